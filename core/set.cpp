// Fills with a constant.
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/rows.h"
#include "base/store.h"
#include "core/fill.h"

namespace {
using namespace qvp;

using D = hn::ScalableTag<uint8_t>;
constexpr int kVector = static_cast<int>(hn::MaxLanes(D()));

int64_t BytesOf(const Bytes& dst, Size roi) { return static_cast<int64_t>(dst.RowBytes(roi.width)) * roi.height; }

// One vector of a filled row.
template <bool kKeep>
struct Stretch {
  hn::Vec<D> bytes, keep;

  Stretch(const FillPixel& pixel, int phase)
      : bytes(pixel.Repeat(D(), pixel.bytes, phase)), keep(pixel.Repeat(D(), pixel.keep, phase)) {}

  template <Store kStore>
  HWY_INLINE void WriteTo(uint8_t* dst) const {
    const D d;
    StoreTo<kStore>(kKeep ? hn::IfVecThenElse(keep, hn::LoadU(d, dst), bytes) : bytes, d, dst);
  }
};

template <bool kKeep>
HWY_NOINLINE void FillShortRow(const FillPixel& pixel, uint8_t* dst, ptrdiff_t n) {
  uint8_t row[kVector] = {};
  std::memcpy(row, dst, n);
  Stretch<kKeep>(pixel, 0).template WriteTo<Store::kOrdinary>(row);
  std::memcpy(dst, row, n);
}

// Bytes [0, n), whole pixels but for what follows a channel of interest. The first and the last vector may overlap
// their neighbours: those bytes are written twice with one value.
template <Store kStore, bool kKeep>
void FillRow(const FillPixel& pixel, uint8_t* dst, ptrdiff_t n) {
  if (n < kVector) return FillShortRow<kKeep>(pixel, dst, n);
  ptrdiff_t i = 0;
  if constexpr (kStore == Store::kStreaming) {
    Stretch<kKeep>(pixel, 0).template WriteTo<Store::kOrdinary>(dst);
    i = BytesToAlignment(D(), dst);
  }
  const int phase = static_cast<int>(i % pixel.size);
  const Stretch<kKeep> a(pixel, phase), b(pixel, phase + kVector), c(pixel, phase + 2 * kVector);
  for (; i + 3 * kVector <= n; i += 3 * kVector) {
    a.template WriteTo<kStore>(dst + i);
    b.template WriteTo<kStore>(dst + i + kVector);
    c.template WriteTo<kStore>(dst + i + 2 * kVector);
  }
  if (i + kVector <= n) a.template WriteTo<kStore>(dst + i);
  if (i + 2 * kVector <= n) b.template WriteTo<kStore>(dst + i + kVector);
  const Stretch<kKeep> last(pixel, static_cast<int>((n - kVector) % pixel.size));
  last.template WriteTo<Store::kOrdinary>(dst + n - kVector);
}

// Beyond the second-level cache the C library fills faster: machines have an instruction that does not read lines
// first.
constexpr int64_t kManyBytes = 524288;

void FillWithByte(const FillPixel& pixel, uint8_t* dst, ptrdiff_t n) { std::memset(dst, *pixel.bytes, n); }

template <Store kStore>
void FillRows(const FillPixel& pixel, const Bytes& dst, Size roi) {
  const bool isForMemset = kStore == Store::kOrdinary && BytesOf(dst, roi) > kManyBytes && pixel.IsOneByte();
  const auto row = isForMemset ? FillWithByte : pixel.Keeps() ? FillRow<kStore, true> : FillRow<kStore, false>;
  Rows(dst).ForEach(roi, [&](ptrdiff_t width, uint8_t* to) { row(pixel, to, dst.RowBytes(width)); });
}

QvpStatus Set(const void* value, const Bytes& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {dst}, {value})) return failed;
  FillPixels(value, dst, roi);
  return qvpStatusNoError;
}

}  // namespace

void qvp::FillPixels(const void* value, const Bytes& dst, Size roi) {
  const Store store = StoreFor(BytesOf(dst, roi));
  const FillPixel pixel(value, dst);
  (store == Store::kStreaming ? FillRows<Store::kStreaming> : FillRows<Store::kOrdinary>)(pixel, dst, roi);
  Fence(store);
}

#define SET(type)                                     \
  QVP_FILL(qvpiSet_##type##_C1R, type, C1, Set)       \
  QVP_FILL(qvpiSet_##type##_C3R, type, C3, Set)       \
  QVP_FILL(qvpiSet_##type##_C4R, type, C4, Set)       \
  QVP_FILL(qvpiSet_##type##_AC4R, type, AC4, Set)     \
  QVP_FILL_L(qvpiSet_##type##_C1R_L, type, C1, Set)   \
  QVP_FILL_L(qvpiSet_##type##_C3R_L, type, C3, Set)   \
  QVP_FILL_L(qvpiSet_##type##_C4R_L, type, C4, Set)   \
  QVP_FILL_L(qvpiSet_##type##_AC4R_L, type, AC4, Set) \
  QVP_FILL(qvpiSet_##type##_C3CR, type, C3CR, Set)    \
  QVP_FILL(qvpiSet_##type##_C4CR, type, C4CR, Set)

QVP_EACH_MOVED_TYPE(SET)
