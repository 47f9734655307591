// Copies between interleaved images.
#include "core/copy.h"

#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/rows.h"
#include "base/store.h"
#include "core/channels.h"

namespace {
using namespace qvp;

using D = hn::ScalableTag<uint8_t>;
constexpr ptrdiff_t kVector = hn::MaxLanes(D());

// Bytes [0, n). The first and the last vector may overlap their neighbours: bytes are then written twice with one
// value.
template <Store kStore>
void CopyRow(const uint8_t* src, uint8_t* dst, ptrdiff_t n) {
  const D d;
  if (n < kVector) return static_cast<void>(std::memcpy(dst, src, n));
  ptrdiff_t i = 0;
  if constexpr (kStore == Store::kStreaming) {
    hn::StoreU(hn::LoadU(d, src), d, dst);
    i = BytesToAlignment(d, dst);
  }
  for (; i + 4 * kVector <= n; i += 4 * kVector) {
    const auto a = hn::LoadU(d, src + i), b = hn::LoadU(d, src + i + kVector);
    const auto c = hn::LoadU(d, src + i + 2 * kVector), e = hn::LoadU(d, src + i + 3 * kVector);
    StoreTo<kStore>(a, d, dst + i);
    StoreTo<kStore>(b, d, dst + i + kVector);
    StoreTo<kStore>(c, d, dst + i + 2 * kVector);
    StoreTo<kStore>(e, d, dst + i + 3 * kVector);
  }
  for (; i + kVector <= n; i += kVector) StoreTo<kStore>(hn::LoadU(d, src + i), d, dst + i);
  if (i < n) hn::StoreU(hn::LoadU(d, src + n - kVector), d, dst + n - kVector);
}

template <Store kStore>
void CopyRows(const ConstBytes& src, const Bytes& dst, Size roi) {
  Rows(src, dst).ForEach(
      roi, [&](ptrdiff_t width, const uint8_t* from, uint8_t* to) { CopyRow<kStore>(from, to, dst.RowBytes(width)); });
}

QvpStatus Copy(const ConstBytes& src, const Bytes& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  CopyImage(src, dst, roi);
  return qvpStatusNoError;
}

// Channels in their order, those of an AC4 source or destination without its fourth.
QvpStatus CopyColours(const ConstBytes& src, const Bytes& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  MoveChannels(src, dst, roi, {{0, 1, 2, kKeepChannel}});
  return qvpStatusNoError;
}

// The channel that the source pointer selects to the one that the destination pointer selects.
QvpStatus CopyChannel(const ConstBytes& src, const Bytes& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  MoveChannels(src, dst, roi, {{0, kKeepChannel, kKeepChannel, kKeepChannel}});
  return qvpStatusNoError;
}

// The cache-control kernels. Rows go in blocks of 64 bytes once the destination is aligned to 16.
template <Store kStore, bool kStreamingLoads>
void ManagedRow(const uint8_t* src, uint8_t* dst, ptrdiff_t n) {
  constexpr ptrdiff_t kBlock = 64;
  const hn::FixedTag<uint8_t, kBlockBytes> d;
  ptrdiff_t i = n < kBlock ? n : BytesToAlignment(d, dst);
  std::memcpy(dst, src, i);
  const bool aligned = reinterpret_cast<uintptr_t>(src + i) % kBlockBytes == 0;
  for (; i + kBlock <= n; i += kBlock) {
    for (int j = 0; j < kBlock; j += kBlockBytes) {
      const auto v = kStreamingLoads && aligned ? LoadStreaming(src + i + j) : hn::LoadU(d, src + i + j);
      StoreTo<kStore>(v, d, dst + i + j);
    }
  }
  std::memcpy(dst + i, src + i, n - i);
}

template <Store kStore, bool kStreamingLoads>
void ManagedRows(const ConstBytes& src, const Bytes& dst, Size roi) {
  Rows(src, dst).ForEach(roi, [](ptrdiff_t width, const uint8_t* from, uint8_t* to) {
    ManagedRow<kStore, kStreamingLoads>(from, to, width);
  });
  Fence(kStore);
}

constexpr int kStreamingStoreFlag = 1, kStreamingLoadFlag = 2;

QvpStatus CopyManaged(const ConstBytes& src, const Bytes& dst, Size roi, int flags) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  switch (flags & (kStreamingStoreFlag | kStreamingLoadFlag)) {
    case 0: CopyRows<Store::kOrdinary>(src, dst, roi); break;
    case kStreamingStoreFlag: ManagedRows<Store::kStreaming, false>(src, dst, roi); break;
    case kStreamingLoadFlag: ManagedRows<Store::kOrdinary, true>(src, dst, roi); break;
    default: ManagedRows<Store::kStreaming, true>(src, dst, roi); break;
  }
  return qvpStatusNoError;
}

}  // namespace

void qvp::CopyPixels(const ConstBytes& src, const Bytes& dst, Size roi, Store store) {
  store == Store::kStreaming ? CopyRows<Store::kStreaming>(src, dst, roi) : CopyRows<Store::kOrdinary>(src, dst, roi);
  Fence(store);
}

void qvp::CopyImage(const ConstBytes& src, const Bytes& dst, Size roi) {
  if (KeepsAlpha(dst.layout)) return MoveChannels(src, dst, roi, {{0, 1, 2, kKeepChannel}});
  CopyPixels(src, dst, roi, StoreForMoved(2 * static_cast<int64_t>(dst.RowBytes(roi.width)) * roi.height));
}

#define COPY(type, layout, impl)                                      \
  QVP_MOVE(qvpiCopy_##type##_##layout##R, type, layout, layout, impl) \
  QVP_MOVE_L(qvpiCopy_##type##_##layout##R_L, type, layout, layout, impl)
#define COPY_LAYOUTS(type) \
  COPY(type, C1, Copy)     \
  COPY(type, C3, Copy)     \
  COPY(type, C4, Copy)     \
  COPY(type, AC4, CopyColours)
#define COPY_CHANNEL_LAYOUTS(type)                                \
  QVP_MOVE(qvpiCopy_##type##_C3CR, type, C3CR, C3CR, CopyChannel) \
  QVP_MOVE(qvpiCopy_##type##_C4CR, type, C4CR, C4CR, CopyChannel) \
  QVP_MOVE(qvpiCopy_##type##_C3C1R, type, C3CR, C1, CopyChannel)  \
  QVP_MOVE(qvpiCopy_##type##_C4C1R, type, C4CR, C1, CopyChannel)  \
  QVP_MOVE(qvpiCopy_##type##_C1C3R, type, C1, C3CR, CopyChannel)  \
  QVP_MOVE(qvpiCopy_##type##_C1C4R, type, C1, C4CR, CopyChannel)
#define COPY_THREE_FOUR(type)                                    \
  QVP_MOVE(qvpiCopy_##type##_C3AC4R, type, C3, AC4, CopyColours) \
  QVP_MOVE(qvpiCopy_##type##_AC4C3R, type, AC4, C3, CopyColours)

QVP_EACH_MOVED_TYPE(COPY_LAYOUTS)
QVP_EACH_MOVED_TYPE(COPY_CHANNEL_LAYOUTS)
QVP_EACH_MOVED_TYPE(COPY_THREE_FOUR)

QvpStatus qvpiCopyManaged_8u_C1R(const Qvp8u* pSrc, int srcStep, Qvp8u* pDst, int dstStep, QvpiSize roiSize,
                                 int flags) {
  return CopyManaged(AsBytes(pSrc, srcStep, Layout::kC1), AsBytes(pDst, dstStep, Layout::kC1), roiSize, flags);
}
