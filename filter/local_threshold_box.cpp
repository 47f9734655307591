// Threshold by the mean under a mask. Without a division: p > mean - delta is n p - sum > -n delta.
#include "filter/double_sums.h"
#include "filter/local_threshold.h"
#include "filter/means.h"
#include "filter/sum_call.h"

namespace qvp::filter {
namespace {

// n times delta is exact in double: of 20 and of 24 bits.
template <class T>
double Bound(const LocalThreshold<T>& call) {
  return -(static_cast<double>(call.mask.width) * call.mask.height * call.delta);
}

// Sums in signed lanes that hold n p less a sum. Whole numbers are above a bound if they are above the whole number
// below.
template <class T, class L>
struct AboveMean {
  using Result = T;
  static constexpr int kVectors = sizeof(L) == sizeof(double) ? 2 : 4;

  L count, bound;
  T above, others;
  const T* pixels = nullptr;

  explicit AboveMean(const LocalThreshold<T>& call)
      : count(static_cast<L>(static_cast<int64_t>(call.mask.width) * call.mask.height)),
        bound(BoundFor(Bound(call))),
        above(call.above),
        others(call.others) {}

  AboveMean Over(const void* row) const {
    AboveMean over = *this;
    over.pixels = static_cast<const T*>(row);
    return over;
  }

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t i, T* to) const {
    std::array<hn::Vec<D>, kCount> results;
    const auto high = hn::Set(d, static_cast<L>(above)), low = hn::Set(d, static_cast<L>(others));
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto pixel = LoadWide(d, pixels + i + v * ptrdiff_t{hn::MaxLanes(D())});
      results[v] = hn::IfThenElse(IsAbove(d, hn::Mul(pixel, hn::Set(d, count)), sums[v]), high, low);
    });
    StoreNarrow<T, kCount>(d, results, to);
  }

 private:
  static L BoundFor(double bound) {
    if constexpr (std::is_floating_point_v<L>) return bound;
    using Limits = std::numeric_limits<L>;
    return static_cast<L>(
        std::clamp(Below(bound), static_cast<double>(Limits::lowest()), static_cast<double>(Limits::max())));
  }
  template <class D, class V>
  HWY_INLINE auto IsAbove(D d, V product, V sum) const {
    return hn::Gt(hn::Sub(product, sum), hn::Set(d, bound));
  }
};

// Up to 255 bytes in lanes of 16 bits without a sign: what would be added to the sum if that is below 0 goes to the
// product, and both saturate beyond all sums.
struct FewAboveMean {
  using Result = uint8_t;
  static constexpr int kVectors = 4;
  static constexpr int64_t kMost = 255;

  uint16_t count, raised, lifted;
  uint8_t above, others;
  const uint8_t* pixels = nullptr;

  explicit FewAboveMean(const LocalThreshold<uint8_t>& call)
      : count(static_cast<uint16_t>(call.mask.width * call.mask.height)), above(call.above), others(call.others) {
    const double bound = std::clamp(Below(Bound(call)), -65535.0, 65535.0);
    raised = static_cast<uint16_t>(bound < 0 ? -bound : 0);
    lifted = static_cast<uint16_t>(bound < 0 ? 0 : bound);
  }

  FewAboveMean Over(const void* row) const {
    FewAboveMean over = *this;
    over.pixels = static_cast<const uint8_t*>(row);
    return over;
  }

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t i, uint8_t* to) const {
    std::array<hn::Vec<D>, kCount> results;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto pixel = LoadWide(d, pixels + i + v * ptrdiff_t{hn::MaxLanes(D())});
      const auto product = hn::SaturatedAdd(hn::Mul(pixel, hn::Set(d, count)), hn::Set(d, raised));
      const auto excess = hn::SaturatedSub(product, hn::SaturatedAdd(sums[v], hn::Set(d, lifted)));
      const auto isOther = hn::Eq(excess, hn::Zero(d));
      results[v] = hn::IfThenElse(isOther, hn::Set(d, uint16_t{others}), hn::Set(d, uint16_t{above}));
    });
    StoreNarrow<uint8_t, kCount>(d, results, to);
  }
};

// Floats, in double.
struct FloatsAboveMean {
  using Result = float;
  static constexpr int kPlanes = 1;

  double count, lifted;
  float above, others;

  static HWY_INLINE std::array<DoubleVector, kPlanes> Quantities(DoubleVector p) { return {p}; }

  HWY_INLINE DoubleVector Of(ptrdiff_t, DoubleVector p, const std::array<DoubleVector, kPlanes>& sums) const {
    const DoubleLanes d;
    const auto isAbove = hn::Gt(hn::Mul(hn::Set(d, count), p), hn::Add(sums[0], hn::Set(d, lifted)));
    return hn::IfThenElse(isAbove, hn::Set(d, double{above}), hn::Set(d, double{others}));
  }
};

template <class T>
void CopyRow(const void*, const void* source, void* line, ptrdiff_t samples) {
  std::memcpy(line, source, samples * sizeof(T));
}

template <class T, class L, class Finish>
void FilterIntegersAs(const LocalThreshold<T>& call, void (*columns)(const SumShape&, const Window&),
                      const Finish& finish) {
  const IntegerSums<T, L, Finish> sums{
      {call.mask.width, call.mask.height, 1}, SumTree(call.mask.width), columns, finish};
  WindowKernel kernel = sums.AsKernel();
  if (call.isInPlace) {
    kernel.across = CopyRow<T>;
    kernel.keepsReach = true;
  }
  FilterWindows(call.Reaching(call.on.buffer), kernel);
}

template <class T>
void FilterIntegers(const LocalThreshold<T>& call) {
  const int64_t n = int64_t{call.mask.width} * call.mask.height;
  if constexpr (sizeof(T) == 1) {
    if (n <= FewAboveMean::kMost) {
      return FilterIntegersAs<T, uint16_t>(call, ColumnSums<T, uint16_t, uint16_t>::Make, FewAboveMean(call));
    }
  }
  if (Fits32Bits<T>(n)) {
    return FilterIntegersAs<T, int32_t>(call, ColumnSums<T, int32_t, int32_t>::Make, AboveMean<T, int32_t>(call));
  }
  FilterIntegersAs<T, double>(call, ColumnSums<T, double, double>::Make, AboveMean<T, double>(call));
}

using FloatThresholdSums = DoubleSums<float, FloatsAboveMean>;

void FilterFloats(const LocalThreshold<float>& call) {
  const double n = static_cast<double>(call.mask.width) * call.mask.height;
  uint8_t* const work = AtBoundary(call.on.buffer);
  const ptrdiff_t width = call.on.roi.width;
  const FloatThresholdSums sums(call.mask, 1, width, {n, Bound(call), call.above, call.others}, work);
  FilterWindows(call.Reaching(work + FloatThresholdSums::WorkBytes(call.mask, width, 1).value()), sums.AsKernel());
}

template <class T>
QvpStatus ThresholdByBox(const LocalThreshold<T>& call) {
  if (const QvpStatus failed = call.CheckFirst()) return failed;
  if (const QvpStatus failed = call.CheckLast()) return failed;
  if constexpr (std::is_same_v<T, float>) {
    FilterFloats(call);
  } else {
    FilterIntegers(call);
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

// In place there is one block of columns.
QvpStatus qvpiThresholdLocalBoxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                   int* pBufferSize) {
  if (const QvpStatus failed = CheckThresholdQuery(pBufferSize, maskSize, roiSize, dataType)) return failed;
  if (dataType == qvp32f) {
    return (FloatThresholdSums::WorkBytes(maskSize, roiSize.width, 1) +
            FloatThresholdSums::WalkBytes(maskSize, roiSize.width, 1, kWholeRows) + kRecordBoundary)
        .StoreTo(pBufferSize);
  }
  return WindowBytes(maskSize, roiSize.width, 1, dataType == qvp8u ? 1 : 2, KeptFor(dataType, maskSize), kWholeRows)
      .StoreTo(pBufferSize);
}

QVP_LOCAL_THRESHOLD(Box, 8u, ThresholdByBox, (), ())
QVP_LOCAL_THRESHOLD(Box, 16u, ThresholdByBox, (), ())
QVP_LOCAL_THRESHOLD(Box, 32f, ThresholdByBox, (), ())
