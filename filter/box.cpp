// The box filter: means under a window.
#include "filter/means.h"
#include "filter/sum_call.h"

namespace qvp::filter {
namespace {

template <class T>
using BoxCall = SumCall<T, T>;

void FilterIn16Bits(const BoxCall<uint8_t>& call) {
  const auto columns = ColumnSums<uint8_t, uint16_t, uint16_t>::Make;
  if (call.Count() % 2) return call.RunIntegers<uint16_t>(columns, ByteMeans<true>(call.Count()));
  call.RunIntegers<uint16_t>(columns, ByteMeans<false>(call.Count()));
}

template <MeanOf kOf, class T>
void FilterIn32Bits(const BoxCall<T>& call) {
  auto columns = ColumnSums<T, int32_t, int32_t>::Make;
  if constexpr (sizeof(T) == 1) {
    if (call.mask.height <= kMostBytesIn16Bits) columns = ColumnSums<T, uint16_t, int32_t>::Make;
  }
  call.template RunIntegers<int32_t>(columns, IntegerMeans<T, kOf>(call.Count()));
}

template <class T>
void FilterIntegers(const BoxCall<T>& call) {
  using enum MeanOf;
  const int64_t n = call.Count();
  if (!Fits32Bits<T>(n)) {
    return call.template RunIntegers<double>(ColumnSums<T, double, double>::Make,
                                             DoubleMeans<T>{static_cast<double>(n)});
  }
  if (n % 2 == 0) return FilterIn32Bits<kEven>(call);
  n <= IntegerMeans<T, kFewOdd>::kMostForFew ? FilterIn32Bits<kFewOdd>(call) : FilterIn32Bits<kOdd>(call);
}

template <class T>
QvpStatus Box(const WindowCall<T>& on, QvpiSize mask, QvpiPoint anchor) {
  const BoxCall<T> call{on, mask, anchor};
  if (const QvpStatus failed = call.Check()) return failed;
  if constexpr (std::is_same_v<T, float>) {
    call.RunFloats(FloatMeans{static_cast<float>(call.Count())});
  } else if (sizeof(T) == 1 && ByteMean::IsExactFor(call.Count())) {
    if constexpr (sizeof(T) == 1) FilterIn16Bits(call);
  } else {
    FilterIntegers(call);
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterBoxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                           int* pBufferSize) {
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, IsSummed(maskSize), dataType, numChannels))
    return failed;
  const int elementBytes = dataType == qvp8u ? 1 : dataType == qvp32f ? 4 : 2;
  return WindowBytes(maskSize, roiSize.width, numChannels, elementBytes, KeptFor(dataType, maskSize), kSumCacheBytes)
      .StoreTo(pBufferSize);
}

#define BOX(type, layout) QVP_ANCHORED_WINDOW(Box, type, layout, Box)
QVP_EACH_LAYOUT(BOX, 8u)
QVP_EACH_LAYOUT(BOX, 16u)
QVP_EACH_LAYOUT(BOX, 16s)
QVP_EACH_LAYOUT(BOX, 32f)
