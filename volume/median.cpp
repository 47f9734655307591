// Medians of cuboids around voxels: checks, and the choice of a method.
#include "base/types.h"
#include "qvpi.h"
#include "volume/filter_blocks.h"
#include "volume/median_kernels.h"
#include "volume/tile.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

constexpr ptrdiff_t kMostCells = 32767, kMostInBytes = 255;
constexpr int kMostBytes = 4;  // of an element of a line

bool IsMask(QvprVolume m) {
  const auto isSide = [](int side) { return side >= 1 && side <= kMostCells && side % 2 == 1; };
  return isSide(m.width) && isSide(m.height) && isSide(m.depth) && int64_t{m.width} * m.height <= kMostCells &&
         int64_t{m.width} * m.height * m.depth <= kMostCells;
}

// Of a line of sorted columns: as of those that they are made of.
ptrdiff_t SortedStep(const BlockPlan& plan) { return plan.step(); }
int64_t SortedBytes(const BlockPlan& plan) {
  return SortedStep(plan) * CubeMedian<float>::kLines * kMostBytes + kRecordBoundary;
}

template <class T>
using SignedLane = std::make_signed_t<filter::MedianLane<T>>;

template <class T>
struct Call {
  Volume<const filter::MedianLane<T>> src;
  Volume<filter::MedianLane<T>> dst;
  VolumeSize size;
  QvprVolume mask;
  QvpiBorderType border;
  const T* value;
  uint8_t* buffer;

  QvpStatus Check() const;

  template <class Kernel>
  void Run(const Kernel& kernel, uint8_t* room) const {
    const Mask used = Mask::Centred(mask);
    const BorderedVolume<filter::MedianLane<T>> bordered(
        src, size, border, reinterpret_cast<const filter::MedianLane<T>*>(value), used.Reach());
    FilterMasked<typename Kernel::Form>(used, bordered, dst, size, room,
                                        [&](const auto* const* lines, ptrdiff_t n, auto* upper, auto* lower) {
                                          kernel(lines, n, reinterpret_cast<T*>(upper), reinterpret_cast<T*>(lower));
                                        });
  }
};

template <class T>
QvpStatus Call<T>::Check() const {
  const bool needsValue = KindOf(border) == BorderKind::kConst;
  const Pointers others = {needsValue ? static_cast<const void*>(value) : buffer, buffer};
  if (const QvpStatus failed = CheckVolumes({src, dst}, {size}, others)) return failed;
  if (!IsMask(mask)) return qvpStatusMaskSize;
  if (!IsVolumeBorderOf({BorderKind::kReplicate, BorderKind::kConst}, border)) return qvpStatusBorder;
  const Extent read = EffectivePlanes(border, size.depth, mask.depth / 2, mask.depth / 2);
  return src.HasPlanes(read) && dst.HasPlanes({0, size.depth}) ? qvpStatusNoError : qvpStatusNullPointer;
}

template <class T>
QvpStatus Median(const Call<T>& call) {
  if (const QvpStatus failed = call.Check()) return failed;
  const Mask mask = Mask::Centred(call.mask);
  uint8_t* const room = AtBoundary(call.buffer);
  if (mask.width == 3 && mask.height == 3 && mask.depth == 3) {
    const BlockPlan plan(mask, call.size);
    call.Run(CubeMedian<T>(room, SortedStep(plan)), room + SortedBytes(plan));
  } else if constexpr (sizeof(T) == 1) {
    mask.cells() <= kMostInBytes ? call.Run(CountedMedian<T, int8_t>(mask), room)
                                 : call.Run(CountedMedian<T, int16_t>(mask), room);
  } else {
    call.Run(CountedMedian<T, SignedLane<T>>(mask), room);
  }
  return qvpStatusNoError;
}

QvpStatus GetBufferSize(QvprVolume mask, const VolumeSize& size, QvpDataType type, int* bytes) {
  if (bytes == nullptr) return qvpStatusNullPointer;
  if (!size.HasVoxels()) return qvpStatusSize;
  if (!IsMask(mask)) return qvpStatusMaskSize;
  if (type != qvp8u && type != qvp16u && type != qvp16s && type != qvp32f) return qvpStatusDataType;
  const bool isCube = mask.width == 3 && mask.height == 3 && mask.depth == 3;
  const BlockPlan plan(Mask::Centred(mask), size);
  const ByteCount all = plan.Bytes() + kRecordBoundary + (isCube ? SortedBytes(plan) : 0);
  return (size.IsBelowMost() ? all : ByteCount(INT64_MAX)).StoreTo(bytes);
}

}  // namespace

QvpStatus qvprFilterMedianBorderGetBufferSize(QvprVolume maskVolume, QvprVolume dstVolume, QvpDataType dataType,
                                              int* pBufferSize) {
  return GetBufferSize(maskVolume, dstVolume, dataType, pBufferSize);
}

#define MEDIAN(type)                                                                                                   \
  QvpStatus qvprFilterMedianBorder_##type##_C1V(const Qvp##type* pSrc, int srcStep, int srcPlaneStep, Qvp##type* pDst, \
                                                int dstStep, int dstPlaneStep, QvprVolume dstVolume,                   \
                                                QvprVolume maskVolume, QvpiBorderType borderType,                      \
                                                const Qvp##type* borderValue, Qvp8u* pBuffer) {                        \
    using Lane = filter::MedianLane<Qvp##type>;                                                                        \
    return Median<Qvp##type>({ViewVolume<Lane>(pSrc, srcStep, srcPlaneStep),                                           \
                              ViewVolume<Lane>(pDst, dstStep, dstPlaneStep), dstVolume, maskVolume, borderType,        \
                              borderValue, pBuffer});                                                                  \
  }                                                                                                                    \
  QvpStatus qvprFilterMedianBorder_##type##_C1PV(                                                                      \
      const Qvp##type* const pSrc[], int srcStep, Qvp##type* const pDst[], int dstStep, QvprVolume dstVolume,          \
      QvprVolume maskVolume, QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {                \
    using Lane = filter::MedianLane<Qvp##type>;                                                                        \
    return Median<Qvp##type>({ViewVolume<Lane>(pSrc, srcStep), ViewVolume<Lane>(pDst, dstStep), dstVolume, maskVolume, \
                              borderType, borderValue, pBuffer});                                                      \
  }
MEDIAN(8u)
MEDIAN(16u)
MEDIAN(16s)
MEDIAN(32f)
