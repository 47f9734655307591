// The general filter in space: checks, and the choice of sums.
#include "base/types.h"
#include "qvpi.h"
#include "volume/filter_separable.h"
#include "volume/tile.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

template <class T>
struct Call {
  Volume<const T> src;
  Volume<T> dst;
  VolumeSize size;
  QvpiBorderType border;
  const T* value;
  const FilterRecord* record;
  uint8_t* buffer;

  QvpStatus Check() const;

  template <class Kernel>
  void Run(const BorderedVolume<T>& bordered, const Kernel& kernel) const {
    FilterMasked<typename Kernel::Form>(record->mask(), bordered, dst, size, buffer,
                                        [&](const auto* const* lines, ptrdiff_t n, T* upper, T* lower) {
                                          filter::FilterRows(kernel, lines, n, upper, lower);
                                        });
  }
};

template <class T>
QvpStatus Call<T>::Check() const {
  const bool needsValue = KindOf(border) == BorderKind::kConst;
  const Pointers others = {needsValue ? static_cast<const void*>(value) : buffer, record, buffer};
  if (const QvpStatus failed = CheckVolumes({src, dst}, {size}, others)) return failed;
  if (!IsVolumeBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kConst}, border))
    return qvpStatusBorder;
  if (record->identification != FilterRecord::kIdentification || record->type != DataTypeOf<T>()) {
    return qvpStatusContextMatch;
  }
  const VolumeReach reach = record->mask().Reach();
  const Extent read = EffectivePlanes(border, size.depth, reach.front, reach.back);
  return src.HasPlanes(read) && dst.HasPlanes({0, size.depth}) ? qvpStatusNoError : qvpStatusNullPointer;
}

template <class T>
QvpStatus Filter(const Call<T>& call) {
  if (const QvpStatus failed = call.Check()) return failed;
  const FilterRecord& record = *call.record;
  const BorderedVolume<T> bordered(call.src, call.size, call.border, call.value, record.mask().Reach());
  if (record.sums == FilterSums::kSeparable) {
    FilterSeparably(record, bordered, call.dst, call.size, call.buffer);
  } else if (record.sums == FilterSums::kFloats) {
    call.Run(bordered, FloatSums<T>(record));
  } else if constexpr (std::is_integral_v<T>) {
    record.sums == FilterSums::kWords ? call.Run(bordered, WordSums<T>(record))
                                      : call.Run(bordered, LongSums<T>(record));
  }
  return qvpStatusNoError;
}

}  // namespace

#define FILTER(type)                                                                                                  \
  QvpStatus qvprFilterBorder_##type##_C1V(const Qvp##type* pSrc, int srcStep, int srcPlaneStep, Qvp##type* pDst,      \
                                          int dstStep, int dstPlaneStep, QvprVolume dstVolume,                        \
                                          QvpiBorderType borderType, const Qvp##type* borderValue,                    \
                                          const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer) {                        \
    return Filter<Qvp##type>({ViewVolume<Qvp##type>(pSrc, srcStep, srcPlaneStep),                                     \
                              ViewVolume<Qvp##type>(pDst, dstStep, dstPlaneStep), dstVolume, borderType, borderValue, \
                              RecordIn<FilterRecord>(pSpec), pBuffer});                                               \
  }                                                                                                                   \
  QvpStatus qvprFilterBorder_##type##_C1PV(                                                                           \
      const Qvp##type* const pSrc[], int srcStep, Qvp##type* const pDst[], int dstStep, QvprVolume dstVolume,         \
      QvpiBorderType borderType, const Qvp##type* borderValue, const QvprFilterBorderSpec* pSpec, Qvp8u* pBuffer) {   \
    return Filter<Qvp##type>({ViewVolume<Qvp##type>(pSrc, srcStep), ViewVolume<Qvp##type>(pDst, dstStep), dstVolume,  \
                              borderType, borderValue, RecordIn<FilterRecord>(pSpec), pBuffer});                      \
  }
FILTER(8u)
FILTER(16u)
FILTER(16s)
FILTER(32f)
