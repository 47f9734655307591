// Dot products of images, and weighted sums of rows.
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/scalar.h"
#include "stats/exact_sums.h"
#include "stats/float_sums.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

struct Pair {
  template <class V>
  HWY_INLINE Factors<V> operator()(V a, V b) const {
    return {a, b};
  }
};

template <class T, bool kOneChannel>
void DotOfIntegers(const Image<const T>& a, const Image<const T>& b, Size roi, double* dots) {
  const int channels = Channels(a.layout);
  ExactSums<ProductsOf<T, kOneChannel>> exact;
  const auto add = [&](ptrdiff_t pixels, const T* rowA, const T* rowB) {
    exact.Add(pixels * channels, Pair(), AsUnsigned(rowA), AsUnsigned(rowB));
  };
  Rows(a, b).ForEach(roi, add);
  uint64_t sums[4];
  exact.Finish(channels, sums);
  for (int c = 0; c < channels; ++c) {
    dots[c] = std::is_signed_v<T> ? static_cast<double>(static_cast<int64_t>(sums[c])) : static_cast<double>(sums[c]);
  }
}

// Unsigned 32-bit integers arrive in double precision as signed ones, the upper half of them 2^32 too low.
template <class V>
HWY_INLINE V Unsigned(V v) {
  const hn::DFromV<V> d;
  return hn::IfThenElse(hn::Lt(v, hn::Zero(d)), hn::Add(v, hn::Set(d, 4294967296.0)), v);
}

struct Product {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Mul(a, b);
  }
};
struct UnsignedProduct {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Mul(Unsigned(a), Unsigned(b));
  }
};

// Products and sums in the lanes of the kernel. Unsigned integers are loaded as signed ones.
template <class Kernel, class T>
void DotInLanes(const Image<const T>& a, const Image<const T>& b, Size roi, double* dots) {
  constexpr bool kIsUnsigned = std::is_same_v<T, uint32_t>;
  using Sample = std::conditional_t<kIsUnsigned, int32_t, T>;
  using F = std::conditional_t<kIsUnsigned, UnsignedProduct, Product>;
  const int channels = Channels(a.layout);
  RunningSums<Kernel, F, Sample, Sample> sums{F()};
  Rows(a, b).ForEach(roi, [&](ptrdiff_t pixels, const T* rowA, const T* rowB) {
    sums.Add(pixels * channels, reinterpret_cast<const Sample*>(rowA), reinterpret_cast<const Sample*>(rowB));
  });
  sums.Finish(channels, dots);
}

template <class T>
void DotOf(const Image<const T>& a, const Image<const T>& b, Size roi, QvpHintAlgorithm hint, double* dots) {
  if constexpr (sizeof(T) <= 2) {
    (a.layout == Layout::kC1 ? DotOfIntegers<T, true> : DotOfIntegers<T, false>)(a, b, roi, dots);
  } else if constexpr (std::is_integral_v<T>) {
    DotInLanes<AccurateSums, T>(a, b, roi, dots);
  } else {
    (hint == qvpAlgHintAccurate ? DotInLanes<AccurateSums, T> : DotInLanes<FastSums, T>)(a, b, roi, dots);
  }
}

template <class T>
QvpStatus DotProduct(const Image<const T>& a, const Image<const T>& b, Size roi, double* dot,
                     QvpHintAlgorithm hint = qvpAlgHintAccurate) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {a, b}, {dot})) return failed;
  if (a.step == 0 || b.step == 0) return qvpStatusSize;
  double dots[4];
  DotOf(a, b, roi, hint, dots);
  StoreValues(dot, dots, ProcessedChannels(a.layout));
  return qvpStatusNoError;
}

// kVectors vectors of the result, from column x on.
template <int kVectors, class D, class T = hn::TFromD<D>>
HWY_INLINE void AddWeightedRows(D d, const T* const* rows, int count, const T* taps, ptrdiff_t x, T* dst) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  hn::Vec<D> sums[kVectors];
  const auto term = [&](int k, int v) HWY_ATTR {
    return hn::Mul(hn::LoadU(d, LoadScalar(rows + k) + x + v * kLanes), hn::Set(d, LoadScalar(taps + k)));
  };
  for (int v = 0; v < kVectors; ++v) sums[v] = term(0, v);
  for (int k = 1; k < count; ++k) {
    for (int v = 0; v < kVectors; ++v) sums[v] = hn::Add(sums[v], term(k, v));
  }
  for (int v = 0; v < kVectors; ++v) hn::StoreU(sums[v], d, dst + v * kLanes);
}

template <class T>
QvpStatus WeightedSumOfRows(const T* const* rows, T* dst, int count, const T* taps, int n) {
  if (rows == nullptr || dst == nullptr || taps == nullptr) return qvpStatusNullPointer;
  if (n < 1 || count < 1) return qvpStatusSize;
  for (int k = 0; k < count; ++k) {
    if (LoadScalar(rows + k) == nullptr) return qvpStatusNullPointer;
  }
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  ptrdiff_t x = 0;
  for (; x + 4 * kLanes <= n; x += 4 * kLanes) AddWeightedRows<4>(d, rows, count, taps, x, dst + x);
  for (; x + kLanes <= n; x += kLanes) AddWeightedRows<1>(d, rows, count, taps, x, dst + x);
  for (; x < n; ++x) AddWeightedRows<1>(hn::CappedTag<T, 1>(), rows, count, taps, x, dst + x);
  return qvpStatusNoError;
}

}  // namespace

#define DOT_PRODUCT(type, form, layout)                                             \
  QVP_TWO_TO_NUMBERS(qvpiDotProd_##type##64f_##layout##R, type, layout, DotProduct, \
                     (Qvp64f * pDp QVP_##form##_PARAMETER), (pDp QVP_##form##_ARGUMENT))

QVP_EACH_LAYOUT(DOT_PRODUCT, 8u, PLAIN)
QVP_EACH_LAYOUT(DOT_PRODUCT, 16u, PLAIN)
QVP_EACH_LAYOUT(DOT_PRODUCT, 16s, PLAIN)
QVP_EACH_LAYOUT(DOT_PRODUCT, 32s, PLAIN)
QVP_EACH_LAYOUT(DOT_PRODUCT, 32u, PLAIN)
DOT_PRODUCT(32f, HINTED, C1)
DOT_PRODUCT(32f, HINTED, C3)
DOT_PRODUCT(32f, PLAIN, C4)
DOT_PRODUCT(32f, PLAIN, AC4)

QvpStatus qvpiDotProdCol_32f_L2(const Qvp32f* const ppSrcRow[], Qvp32f* pDst, int numRows, const Qvp32f* pTaps,
                                int len) {
  return WeightedSumOfRows(ppSrcRow, pDst, numRows, pTaps, len);
}
QvpStatus qvpiDotProdCol_64f_L2(const Qvp64f* const ppSrcRow[], Qvp64f* pDst, int numRows, const Qvp64f* pTaps,
                                int len) {
  return WeightedSumOfRows(ppSrcRow, pDst, numRows, pTaps, len);
}
