// Fills with a constant. A row is the repetition of one pixel of up to 16 bytes, whatever its type and layout: three
// vectors in turn hold a whole number of pixels of every size.
#include <array>
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/rows.h"
#include "base/store.h"

namespace {
using namespace qvp;

using D = hn::ScalableTag<uint8_t>;
using V = hn::Vec<D>;
constexpr int kVector = static_cast<int>(hn::MaxLanes(D()));
constexpr int kLargestPixel = 4 * sizeof(Qvp32s);

// kPhases[p][i] = i mod p: the byte of a pixel of p bytes that stands at byte i.
constexpr int kPhaseCount = 3 * kVector + kLargestPixel;
constexpr auto kPhases = [] {
  std::array<std::array<uint8_t, kPhaseCount>, kLargestPixel + 1> phases{};
  for (int p = 1; p <= kLargestPixel; ++p) {
    for (int i = 0; i < kPhaseCount; ++i) phases[p][i] = static_cast<uint8_t>(i % p);
  }
  return phases;
}();

// What a fill writes: the bytes of one pixel, and which of them stay as they are (0xFF, else 0).
struct Pixel {
  alignas(16) uint8_t bytes[kBlockBytes] = {}, keep[kBlockBytes] = {};
  int size;

  Pixel(const void* value, const Bytes& dst) : size(dst.PixelBytes()) {
    const int given = dst.layout == Layout::kAC4 ? 3 * dst.elementBytes
                      : IsChannelOfInterest(dst.layout) ? dst.elementBytes
                                                        : size;
    std::memcpy(bytes, value, given);
    std::memset(keep + given, 0xFF, size - given);
  }
};

// One vector of the repeated pixel, beginning `phase` bytes into it, phase < kPhaseCount - kVector.
template <bool kKeep>
struct Stretch {
  V bytes, keep;

  Stretch(const Pixel& pixel, int phase) {
    const D d;
    const V index = hn::LoadU(d, kPhases[pixel.size].data() + phase);
    bytes = hn::TableLookupBytes(hn::LoadDup128(d, pixel.bytes), index);
    keep = hn::TableLookupBytes(hn::LoadDup128(d, pixel.keep), index);
  }

  template <Store kStore>
  HWY_INLINE void WriteTo(uint8_t* dst) const {
    const D d;
    StoreTo<kStore>(kKeep ? hn::IfVecThenElse(keep, hn::LoadU(d, dst), bytes) : bytes, d, dst);
  }
};

template <bool kKeep>
HWY_NOINLINE void FillShortRow(const Pixel& pixel, uint8_t* dst, ptrdiff_t n) {
  uint8_t row[kVector] = {};
  std::memcpy(row, dst, n);
  Stretch<kKeep>(pixel, 0).template WriteTo<Store::kOrdinary>(row);
  std::memcpy(dst, row, n);
}

// Bytes [0, n), whole pixels but for what follows a channel of interest. The first and the last vector may overlap
// their neighbours: those bytes are written twice with one value.
template <Store kStore, bool kKeep>
void FillRow(const Pixel& pixel, uint8_t* dst, ptrdiff_t n) {
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

template <Store kStore, bool kKeep>
void FillRows(const Pixel& pixel, Bytes dst, Size roi) {
  ForEachRow(roi, [&](ptrdiff_t width, uint8_t* to) { FillRow<kStore, kKeep>(pixel, to, dst.RowBytes(width)); }, dst);
}

QvpStatus Set(const void* value, Bytes dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {dst}, {value})) return failed;
  const Store store = StoreFor(static_cast<int64_t>(dst.RowBytes(roi.width)) * roi.height);
  const bool keeps = dst.layout == Layout::kAC4 || IsChannelOfInterest(dst.layout);
  const bool streams = store == Store::kStreaming;
  (keeps ? streams ? FillRows<Store::kStreaming, true> : FillRows<Store::kOrdinary, true>
         : streams ? FillRows<Store::kStreaming, false> : FillRows<Store::kOrdinary, false>)(Pixel(value, dst), dst, roi);
  Fence(store);
  return qvpStatusNoError;
}

}  // namespace

#define SET(type)                                               \
  QVP_FILL(qvpiSet_##type##_C1R, type, C1, Set)                 \
  QVP_FILL_L(qvpiSet_##type##_C1R_L, type, C1, Set)             \
  QVP_FILL_CHANNELS(qvpiSet_##type##_C3R, type, C3, Set)        \
  QVP_FILL_CHANNELS_L(qvpiSet_##type##_C3R_L, type, C3, Set)    \
  QVP_FILL_CHANNELS(qvpiSet_##type##_C4R, type, C4, Set)        \
  QVP_FILL_CHANNELS_L(qvpiSet_##type##_C4R_L, type, C4, Set)    \
  QVP_FILL_CHANNELS(qvpiSet_##type##_AC4R, type, AC4, Set)      \
  QVP_FILL_CHANNELS_L(qvpiSet_##type##_AC4R_L, type, AC4, Set)  \
  QVP_FILL(qvpiSet_##type##_C3CR, type, C3CR, Set)              \
  QVP_FILL(qvpiSet_##type##_C4CR, type, C4CR, Set)

QVP_EACH_MOVED_TYPE(SET)
