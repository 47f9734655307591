// Sums and means.
#include "base/check.h"
#include "base/export.h"
#include "stats/exact_sums.h"
#include "stats/float_sums.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

// Signed samples are summed as unsigned ones, 32768 larger.
constexpr uint16_t kSign = 0x8000;

template <class T, bool kOneChannel>
void SumIntegers(const Image<const T>& src, Size roi, double* sums) {
  using U = hwy::MakeUnsigned<T>;
  const int channels = Channels(src.layout);
  ExactSums<SumsOf<U, kOneChannel>> exact;
  const auto toUnsigned = [](auto v) HWY_ATTR {
    if constexpr (std::is_signed_v<T>) return hn::Xor(v, hn::Set(hn::ScalableTag<U>(), kSign));
    return v;
  };
  const auto add = [&](ptrdiff_t pixels, const T* row) { exact.Add(pixels * channels, toUnsigned, AsUnsigned(row)); };
  Rows(src).ForEach(roi, add);
  uint64_t totals[4];
  exact.Finish(channels, totals);
  for (int c = 0; c < channels; ++c) {
    const uint64_t bias = std::is_signed_v<T> ? exact.Samples(channels) * kSign : 0;
    const auto sum = static_cast<int64_t>(totals[c] - bias);
    sums[c] = std::is_signed_v<T> ? static_cast<double>(sum) : static_cast<double>(totals[c]);
  }
}

struct Same {
  template <class V>
  HWY_INLINE V operator()(V v) const {
    return v;
  }
};

template <class Kernel>
void SumFloats(const Image<const float>& src, Size roi, double* sums) {
  const int channels = Channels(src.layout);
  RunningSums<Kernel, Same, float> partials{Same()};
  Rows(src).ForEach(roi, [&](ptrdiff_t pixels, const float* row) { partials.Add(pixels * channels, row); });
  partials.Finish(channels, sums);
}

template <class T>
void SumPixels(const Image<const T>& src, Size roi, QvpHintAlgorithm hint, double* sums) {
  if constexpr (std::is_integral_v<T>) {
    (src.layout == Layout::kC1 ? SumIntegers<T, true> : SumIntegers<T, false>)(src, roi, sums);
  } else {
    (hint == qvpAlgHintAccurate ? SumFloats<AccurateSums> : SumFloats<FastSums>)(src, roi, sums);
  }
}

template <class T>
QvpStatus Sum(const Image<const T>& src, Size roi, double* sum, QvpHintAlgorithm hint = qvpAlgHintFast) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src}, {sum})) return failed;
  double sums[4];
  SumPixels(src, roi, hint, sums);
  StoreValues(sum, sums, Channels(src.layout));
  return qvpStatusNoError;
}

template <class T>
QvpStatus Mean(const Image<const T>& src, Size roi, double* mean, QvpHintAlgorithm hint = qvpAlgHintFast) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src}, {mean})) return failed;
  double means[4] = {};
  SumPixels(src, roi, hint, means);
  const double pixels = static_cast<double>(static_cast<int64_t>(roi.width) * roi.height);
  for (double& m : means) m /= pixels;
  StoreValues(mean, means, Channels(src.layout));
  return qvpStatusNoError;
}

}  // namespace

#define SUM(type, form, layout)                                                                                \
  QVP_REDUCE(qvpiSum, type, layout, Sum, (Qvp64f * pSum QVP_##form##_PARAMETER), (pSum QVP_##form##_ARGUMENT)) \
  QVP_REDUCE(qvpiMean, type, layout, Mean, (Qvp64f * pMean QVP_##form##_PARAMETER), (pMean QVP_##form##_ARGUMENT))

QVP_C1_C3_C4(SUM, 8u, PLAIN)
QVP_C1_C3_C4(SUM, 16u, PLAIN)
QVP_C1_C3_C4(SUM, 16s, PLAIN)
QVP_C1_C3_C4(SUM, 32f, HINTED)
