// Sums along one axis, as floats.
#include "filter/sum_call.h"

namespace qvp::filter {
namespace {

// Exact sums of integers, rounded once to the nearest float.
struct AsFloats {
  using Result = float;
  static constexpr int kVectors = 4;

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, float* to) const {
    Unrolled<kCount>([&](auto v) QVP_INLINED { Put(d, sums[v], to + v * ptrdiff_t{hn::MaxLanes(D())}); });
  }

 private:
  template <class D>
  static HWY_INLINE void Put(D, hn::Vec<D> sum, float* to) {
    using L = hn::TFromD<D>;
    const hn::ScalableTag<float> f;
    if constexpr (std::is_same_v<L, double>) {
      const hn::Rebind<float, D> half;
      hn::StoreU(hn::DemoteTo(half, sum), half, to);
    } else if constexpr (std::is_same_v<L, int32_t>) {
      hn::StoreU(hn::ConvertTo(f, sum), f, to);
    } else {
      const hn::Rebind<int32_t, decltype(f)> ints;
      const hn::Half<D> half;
      hn::StoreU(hn::ConvertTo(f, hn::PromoteTo(ints, hn::LowerHalf(half, sum))), f, to);
      hn::StoreU(hn::ConvertTo(f, hn::PromoteTo(ints, hn::UpperHalf(half, sum))), f, to + hn::MaxLanes(f));
    }
  }
};

template <class T>
QvpStatus Sums(const WindowCall<T, float>& on, QvpiSize mask, QvpiPoint anchor) {
  const SumCall<T, float> call{on, mask, anchor};
  if (const QvpStatus failed = call.Check()) return failed;
  if constexpr (std::is_same_v<T, float>) {
    call.RunFloats(AsSums());
  } else if (sizeof(T) == 1 && call.Count() <= kMostBytesIn16Bits) {
    if constexpr (sizeof(T) == 1)
      call.template RunIntegers<uint16_t>(ColumnSums<T, uint16_t, uint16_t>::Make, AsFloats());
  } else if (Fits32Bits<T>(call.Count())) {
    call.template RunIntegers<int32_t>(ColumnSums<T, int32_t, int32_t>::Make, AsFloats());
  } else {
    call.template RunIntegers<double>(ColumnSums<T, double, double>::Make, AsFloats());
  }
  return qvpStatusNoError;
}

QvpStatus StoreBufferSize(QvpiSize mask, QvpiSize roi, QvpDataType type, int channels, int* size) {
  if (const QvpStatus failed = CheckQuery(size, roi, IsSummed(mask), type, channels)) return failed;
  return WindowBytes(mask, roi.width, channels, sizeof(float), KeptFor(type, mask), kSumCacheBytes).StoreTo(size);
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterSumRowBorderGetBufferSize(int maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                              int* pBufferSize) {
  return StoreBufferSize({maskSize, 1}, roiSize, dataType, numChannels, pBufferSize);
}
QvpStatus qvpiFilterSumColumnBorderGetBufferSize(int maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                                 int* pBufferSize) {
  return StoreBufferSize({1, maskSize}, roiSize, dataType, numChannels, pBufferSize);
}

#define SUMS(axis, mask, point, type, types, layout) \
  QVP_WINDOW(Sum##axis, type, 32f, types, layout, Sums, (int maskSize, int anchor), (), (mask, point))
#define SUMS_ON_BOTH_AXES(type, types, layout)                                    \
  SUMS(Row, (QvpiSize{maskSize, 1}), (QvpiPoint{anchor, 0}), type, types, layout) \
  SUMS(Column, (QvpiSize{1, maskSize}), (QvpiPoint{0, anchor}), type, types, layout)
QVP_C1_C3_C4(SUMS_ON_BOTH_AXES, 8u, 8u32f)
QVP_C1_C3_C4(SUMS_ON_BOTH_AXES, 16u, 16u32f)
QVP_C1_C3_C4(SUMS_ON_BOTH_AXES, 16s, 16s32f)
QVP_C1_C3_C4(SUMS_ON_BOTH_AXES, 32f, 32f)
