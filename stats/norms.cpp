// Norms of images, of differences, and of differences related to the second image.
#include "base/check.h"
#include "base/export.h"
#include "stats/exact_sums.h"
#include "stats/float_sums.h"
#include "stats/largest.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

enum class Norm { kInf, kL1, kL2 };

// |a| and |a - b|. Those of 16-bit integers reach 32768 and 65535, so they are unsigned.
template <class D>
struct Magnitude {
  using V = hn::Vec<D>;
  HWY_INLINE V operator()(V a) const { return hn::Abs(a); }
  HWY_INLINE V operator()(V a, V b) const { return hn::Abs(hn::Sub(a, b)); }
};
template <bool kSigned>
struct IntegerMagnitude {
  template <class V>
  HWY_INLINE V operator()(V a) const {
    if constexpr (kSigned) return hn::BitCast(hn::DFromV<V>(), hn::Abs(Signed(a)));
    return a;
  }
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    if constexpr (kSigned) {
      return hn::BitCast(hn::DFromV<V>(), hn::Sub(hn::Max(Signed(a), Signed(b)), hn::Min(Signed(a), Signed(b))));
    } else {
      return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    }
  }

 private:
  template <class V>
  static HWY_INLINE auto Signed(V v) {
    return hn::BitCast(hn::RebindToSigned<hn::DFromV<V>>(), v);
  }
};

// A meter is given rows, or pairs of rows, and tells max |v|, sum |v| or sum v^2 of each channel: LargestMeter, and
// these.
template <Norm kNorm, class Kernel, class Magnitudes>
class IntegerMeter {
 public:
  template <class... T>
  void Add(ptrdiff_t n, const T*... rows) {
    sums_.Add(
        n,
        [](auto... v) HWY_ATTR {
          const auto m = Magnitudes()(v...);
          if constexpr (kNorm == Norm::kL1) return m;
          if constexpr (kNorm == Norm::kL2) return Factors<decltype(m)>{m, m};
        },
        rows...);
  }
  void Finish(int channels, double* values) {
    uint64_t sums[4];
    sums_.Finish(channels, sums);
    for (int c = 0; c < channels; ++c) values[c] = static_cast<double>(sums[c]);
  }

 private:
  ExactSums<Kernel> sums_;
};

// What is summed up: |v| or v^2, of samples or of their differences.
template <Norm kNorm, class D>
struct Summand {
  template <class... V>
  HWY_INLINE auto operator()(V... v) const {
    const auto m = Magnitude<D>()(v...);
    if constexpr (kNorm == Norm::kL1) return m;
    if constexpr (kNorm == Norm::kL2) return hn::Mul(m, m);
  }
};

template <Norm kNorm, class Kernel, int kImages, class Sample = float>
class FloatMeter {
 public:
  template <class... T>
  void Add(ptrdiff_t n, const T*... rows) {
    static_assert(sizeof...(T) == kImages);
    sums_.Add(n, rows...);
  }
  void Finish(int channels, double* values) { sums_.Finish(channels, values); }

 private:
  using F = Summand<kNorm, typename Kernel::D>;
  using Sums = std::conditional_t<kImages == 1, RunningSums<Kernel, F, Sample>, RunningSums<Kernel, F, Sample, Sample>>;
  Sums sums_{F()};
};

// Squares of signed samples are products of them as they are; those of differences need the sign's bit.
template <Norm kNorm, class T, bool kIsDifference, bool kOneChannel, class U = hwy::MakeUnsigned<T>>
using IntegerMeterFor = std::conditional_t<
    kNorm == Norm::kL1, IntegerMeter<Norm::kL1, SumsOf<U, kOneChannel>, IntegerMagnitude<std::is_signed_v<T>>>,
    std::conditional_t<std::is_signed_v<T> && !kIsDifference,
                       IntegerMeter<Norm::kL2, ProductsOf<T, kOneChannel>, IntegerMagnitude<false>>,
                       IntegerMeter<Norm::kL2, ProductsOf<U, kOneChannel>, IntegerMagnitude<std::is_signed_v<T>>>>>;

// Calls use<meter of differences, meter of single images>() with the meters for a type, number of channels and hint.
template <Norm kNorm, class T, class Use>
void WithMeters(int channels, QvpHintAlgorithm hint, const Use& use) {
  if constexpr (kNorm == Norm::kInf && std::is_integral_v<T>) {
    using U = hwy::MakeUnsigned<T>;
    using Meter = LargestMeter<U, IntegerMagnitude<std::is_signed_v<T>>>;
    use.template operator()<Meter, Meter>();
  } else if constexpr (kNorm == Norm::kInf) {
    using Meter = LargestMeter<T, Magnitude<hn::ScalableTag<T>>>;
    use.template operator()<Meter, Meter>();
  } else if constexpr (std::is_integral_v<T>) {
    if (channels == 1) {  // NOLINT(bugprone-branch-clone): the template arguments differ
      use.template operator()<IntegerMeterFor<kNorm, T, true, true>, IntegerMeterFor<kNorm, T, false, true>>();
    } else {
      use.template operator()<IntegerMeterFor<kNorm, T, true, false>, IntegerMeterFor<kNorm, T, false, false>>();
    }
  } else if (hint != qvpAlgHintAccurate) {
    use.template operator()<FloatMeter<kNorm, FastSums, 2>, FloatMeter<kNorm, FastSums, 1>>();
  } else {
    use.template operator()<FloatMeter<kNorm, AccurateSums, 2>, FloatMeter<kNorm, AccurateSums, 1>>();
  }
}

double SquareRoot(double v) {
  const hn::CappedTag<double, 1> d;
  return hn::GetLane(hn::Sqrt(hn::Set(d, v)));
}

// What a meter told as the norm.
template <Norm kNorm>
double Finished(double v) {
  return kNorm == Norm::kL2 ? SquareRoot(v) : v;
}

template <Norm kNorm, class T>
void Measure(const Image<const T>& src, Size roi, QvpHintAlgorithm hint, double* values) {
  const int channels = Channels(src.layout);
  WithMeters<kNorm, T>(channels, hint, [&]<class, class Meter>() {
    Meter meter;
    Rows(src).ForEach(roi, [&](ptrdiff_t pixels, const T* row) { meter.Add(pixels * channels, AsUnsigned(row)); });
    meter.Finish(channels, values);
  });
}

// Squares of wide images of bytes: the sums of strips go through a root and a square.
constexpr ptrdiff_t kStrip = 32768;
void MeasureStrips(const Image<const uint8_t>& src, Size roi, double* values) {
  for (int c = 0; c < Channels(src.layout); ++c) values[c] = 0;
  for (ptrdiff_t x = 0; x < roi.width; x += kStrip) {
    const Image<const uint8_t> strip{src.data + x * src.PixelBytes(), src.step, src.layout};
    double squares[4];
    Measure<Norm::kL2>(strip, Size(std::min(kStrip, roi.width - x), roi.height), qvpAlgHintFast, squares);
    for (int c = 0; c < Channels(src.layout); ++c) {
      const double norm = SquareRoot(squares[c]);
      values[c] += norm * norm;
    }
  }
}

template <Norm kNorm, class T>
QvpStatus NormOf(const Image<const T>& src, Size roi, double* value, QvpHintAlgorithm hint = qvpAlgHintFast) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src}, {value})) return failed;
  double values[4] = {};
  if (kNorm == Norm::kL2 && sizeof(T) == 1 && roi.width > kStrip) {
    MeasureStrips({reinterpret_cast<const uint8_t*>(src.data), src.step, src.layout}, roi, values);
  } else {
    Measure<kNorm>(src, roi, hint, values);
  }
  for (double& v : values) v = Finished<kNorm>(v);
  StoreValues(value, values, Channels(src.layout));
  return qvpStatusNoError;
}

template <Norm kNorm, class T>
QvpStatus NormOfDifference(const Image<const T>& a, const Image<const T>& b, Size roi, double* value,
                           QvpHintAlgorithm hint = qvpAlgHintFast) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b}, {value})) return failed;
  const int channels = Channels(a.layout);
  double values[4] = {};
  WithMeters<kNorm, T>(channels, hint, [&]<class Meter, class>() {
    Meter meter;
    const auto add = [&](ptrdiff_t pixels, const T* rowA, const T* rowB) {
      meter.Add(pixels * channels, AsUnsigned(rowA), AsUnsigned(rowB));
    };
    Rows(a, b).ForEach(roi, add);
    meter.Finish(channels, values);
  });
  for (double& v : values) v = Finished<kNorm>(v);
  StoreValues(value, values, channels);
  return qvpStatusNoError;
}

// Samples after which the other meter takes its turn, on rows that are then still in the nearest cache. Whole rounds of
// every kernel.
constexpr ptrdiff_t kTurn = 6144;

template <class OfDifferences, class OfSingles, class T>
void AddInTurns(OfDifferences& difference, OfSingles& single, ptrdiff_t n, const T* a, const T* b) {
  for (ptrdiff_t i = 0; i < n; i += kTurn) {
    const ptrdiff_t now = std::min(kTurn, n - i);
    difference.Add(now, AsUnsigned(a + i), AsUnsigned(b + i));
    single.Add(now, AsUnsigned(b + i));
  }
}

// Sums of integers vanish only if they are 0; norms of floats already where they are subnormal. NaN does not vanish.
template <class T>
bool Vanishes(double v) {
  return v < (std::is_integral_v<T> ? 0.5 : 2.2250738585072014e-308);
}

template <Norm kNorm, class T>
QvpStatus RelativeNorm(const Image<const T>& a, const Image<const T>& b, Size roi, double* value,
                       QvpHintAlgorithm hint = qvpAlgHintFast) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b}, {value})) return failed;
  const int channels = Channels(a.layout);
  double numerators[4], denominators[4], values[4];
  WithMeters<kNorm, T>(channels, hint, [&]<class OfDifference, class OfSingle>() {
    OfDifference difference;
    OfSingle single;
    const auto add = [&](ptrdiff_t pixels, const T* rowA, const T* rowB) {
      AddInTurns(difference, single, pixels * channels, rowA, rowB);
    };
    Rows(a, b).ForEach(roi, add);
    difference.Finish(channels, numerators);
    single.Finish(channels, denominators);
  });
  QvpStatus status = qvpStatusNoError;
  for (int c = 0; c < channels; ++c) {
    if (!Vanishes<T>(denominators[c])) {
      values[c] = Finished<kNorm>(numerators[c] / denominators[c]);
    } else {
      values[c] = Vanishes<T>(numerators[c]) || numerators[c] != numerators[c] ? kNaN : kInfinity;
      status = qvpStatusDivideByZero;
    }
  }
  StoreValues(value, values, channels);
  return status;
}

}  // namespace

// The norms of images, of differences and of relative differences.
#define NORM(norm, type, form, layout)                                                                       \
  QVP_REDUCE(qvpiNorm_##norm, type, layout, NormOf<Norm::k##norm>, (Qvp64f * pValue QVP_##form##_PARAMETER), \
             (pValue QVP_##form##_ARGUMENT))                                                                 \
  QVP_REDUCE_TWO(qvpiNormDiff_##norm, type, layout, NormOfDifference<Norm::k##norm>,                         \
                 (Qvp64f * pValue QVP_##form##_PARAMETER), (pValue QVP_##form##_ARGUMENT))                   \
  QVP_REDUCE_TWO(qvpiNormRel_##norm, type, layout, RelativeNorm<Norm::k##norm>,                              \
                 (Qvp64f * pValue QVP_##form##_PARAMETER), (pValue QVP_##form##_ARGUMENT))
#define NORMS_OF(type, form)           \
  QVP_C1_C3_C4(NORM, Inf, type, PLAIN) \
  QVP_C1_C3_C4(NORM, L1, type, form)   \
  QVP_C1_C3_C4(NORM, L2, type, form)

NORMS_OF(8u, PLAIN)
NORMS_OF(16u, PLAIN)
NORMS_OF(16s, PLAIN)
NORMS_OF(32f, HINTED)
