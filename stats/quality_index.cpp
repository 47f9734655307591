// The quality index of two images: how alike they are in structure, contrast and brightness.
#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "stats/float_sums.h"
#include "stats/joint_sums.h"
#include "stats/wide.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

// What the index of a channel is made of: N^2 times the covariance, N^2 times the sum of the variances, and the sums.
struct Moments {
  double covariance, variances, x, y;
};

// The index, and whether a factor had no denominator, which makes it 1.
double IndexOf(const Moments& m, bool& isUndefined) {
  const double squares = m.x * m.x + m.y * m.y;
  isUndefined |= m.variances == 0 || squares == 0;
  const double structure = m.variances == 0 ? 1 : 2 * m.covariance / m.variances;
  const double brightness = squares == 0 ? 1 : 2 * (m.x * m.y) / squares;
  return structure * brightness;
}

// From the sums of x, y, x^2, y^2 and x y over n pixels.
Moments MomentsOf(double n, const double (&s)[kJointSums]) {
  return {n * s[4] - s[0] * s[1], (n * s[2] - s[0] * s[0]) + (n * s[3] - s[1] * s[1]), s[0], s[1]};
}

// ---- Integers

// Sums over `pixels` in a channel, modulo 2^64, which holds them up to 2^32 pixels; those of signed samples as numbers
// of two's complement.
struct ChannelSums {
  uint64_t pixels, x, y, xx, yy, xy;
};

constexpr uint64_t kMiddle = 0x8000;

// Those of samples that are all larger by 32768.
ChannelSums Raised(const ChannelSums& s) {
  const uint64_t squares = kMiddle * kMiddle * s.pixels;
  return {s.pixels,
          s.x + kMiddle * s.pixels,
          s.y + kMiddle * s.pixels,
          s.xx + 2 * kMiddle * s.x + squares,
          s.yy + 2 * kMiddle * s.y + squares,
          s.xy + kMiddle * (s.x + s.y) + squares};
}

// Pairs of samples for the kernels: those of 16 bits as signed numbers, unsigned ones less 32768.
template <class T>
struct SignedPair {
  template <class V>
  HWY_INLINE Factors<V> operator()(V a, V b) const {
    if constexpr (!std::is_same_v<T, uint16_t>) return {a, b};
    const V middle = hn::Set(hn::DFromV<V>(), static_cast<hn::TFromV<V>>(kMiddle));
    return {hn::Xor(a, middle), hn::Xor(b, middle)};
  }
};

// From what the kernels find: `filling` zeros filled up rounds, and became -32768 like all of their kind.
ChannelSums OfUnsignedWords(ChannelSums s, uint64_t filling) {
  s.x += kMiddle * filling, s.y += kMiddle * filling;
  const uint64_t squares = kMiddle * kMiddle * filling;
  s.xx -= squares, s.yy -= squares, s.xy -= squares;
  return Raised(s);
}

template <class T, bool kOneChannel>
void SumBlock(const Image<const T>& a, const Image<const T>& b, Size roi, ChannelSums* sums) {
  const int channels = Channels(a.layout);
  ExactSums<JointSumsOf<T, kOneChannel>> exact;
  Rows(a, b).ForEach(roi, [&](ptrdiff_t pixels, const T* rowA, const T* rowB) {
    exact.Add(pixels * channels, SignedPair<T>(), AsUnsigned(rowA), AsUnsigned(rowB));
  });
  uint64_t found[kJointSums][4];
  for (int q = 0; q < kJointSums; ++q) exact.template FinishOne<kJointSums>(q, channels, found[q]);
  const uint64_t pixels = static_cast<uint64_t>(roi.width) * static_cast<uint64_t>(roi.height);
  for (int c = 0; c < channels; ++c) {
    sums[c] = {pixels, found[0][c], found[1][c], found[2][c], found[3][c], found[4][c]};
    if (std::is_same_v<T, uint16_t>) sums[c] = OfUnsignedWords(sums[c], exact.Samples(channels) - pixels);
  }
}

// A sum of samples, or of products of two of them, rounded to double.
template <class T>
double Rounded(uint64_t sum) {
  return std::is_signed_v<T> ? static_cast<double>(static_cast<int64_t>(sum)) : static_cast<double>(sum);
}

// In unsigned numbers, whose products have no signs: raising all samples changes no variance.
template <class T>
Moments ExactMoments(const ChannelSums& sums) {
  const ChannelSums s = std::is_signed_v<T> ? Raised(sums) : sums;
  const auto times = [](uint64_t a, uint64_t b) { return Wide::Product(a, b); };
  const Wide covariance = times(s.pixels, s.xy) - times(s.x, s.y);
  const Wide variances = (times(s.pixels, s.xx) - times(s.x, s.x)) + (times(s.pixels, s.yy) - times(s.y, s.y));
  return {covariance.Signed(), variances.Unsigned(), Rounded<T>(sums.x), Rounded<T>(sums.y)};
}

// Beyond 2^32 pixels: blocks of as many rows as have no more, added in double precision.
template <class T, class SumOfBlock>
void FindMomentsByBlocks(const Image<const T>& a, const Image<const T>& b, Size roi, ptrdiff_t rows,
                         const SumOfBlock& sumBlock, Moments* moments) {
  const int channels = Channels(a.layout);
  double n = 0, totals[4][kJointSums] = {};
  for (ptrdiff_t y = 0; y < roi.height; y += rows) {
    const Size block(roi.width, std::min(rows, roi.height - y));
    ChannelSums sums[4];
    sumBlock(View(a.Row(y), a.step, a.layout), View(b.Row(y), b.step, b.layout), block, sums);
    n += static_cast<double>(sums[0].pixels);
    for (int c = 0; c < channels; ++c) {
      const ChannelSums& s = sums[c];
      const double rounded[] = {Rounded<T>(s.x), Rounded<T>(s.y), static_cast<double>(s.xx), static_cast<double>(s.yy),
                                Rounded<T>(s.xy)};
      for (int q = 0; q < kJointSums; ++q) totals[c][q] += rounded[q];
    }
  }
  for (int c = 0; c < channels; ++c) moments[c] = MomentsOf(n, totals[c]);
}

template <class T>
void FindMoments(const Image<const T>& a, const Image<const T>& b, Size roi, Moments* moments) {
  const auto sumBlock = a.layout == Layout::kC1 ? SumBlock<T, true> : SumBlock<T, false>;
  const int64_t rows = (int64_t{1} << 32) / roi.width;
  if (roi.height > rows) {
    return FindMomentsByBlocks(a, b, roi, static_cast<ptrdiff_t>(rows), sumBlock, moments);
  }
  ChannelSums sums[4];
  sumBlock(a, b, roi, sums);
  for (int c = 0; c < Channels(a.layout); ++c) moments[c] = ExactMoments<T>(sums[c]);
}

// ---- Floats

using Reals = hn::ScalableTag<double>;

struct First {
  template <class V>
  HWY_INLINE V operator()(V a, V) const {
    return a;
  }
};
struct Second {
  template <class V>
  HWY_INLINE V operator()(V, V b) const {
    return b;
  }
};
struct Times {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Mul(a, b);
  }
};
struct FirstSquared {
  template <class V>
  HWY_INLINE V operator()(V a, V) const {
    return hn::Mul(a, a);
  }
};
struct SecondSquared {
  template <class V>
  HWY_INLINE V operator()(V, V b) const {
    return hn::Mul(b, b);
  }
};

// Sums of what the samples of two images differ from those of their first pixels, so that flat images give exactly 0.
class FloatMoments {
 public:
  FloatMoments(const float* first, const float* second, Layout layout)
      : origins_{{Reals(), first, layout}, {Reals(), second, layout}}, channels_(Channels(layout)) {}

  // A row of n samples.
  void Add(ptrdiff_t n, const float* a, const float* b) {
    for (ptrdiff_t i = 0; i < n; i += kStaged) {
      const ptrdiff_t part = std::min(kStaged, n - i);
      Stage(0, part, a + i);
      Stage(1, part, b + i);
      std::apply([&](auto&... sum) { (sum.Add(part, staged_[0], staged_[1]), ...); }, sums_);
    }
  }

  void Finish(double n, Moments* moments) {
    double found[kJointSums][4];
    int q = 0;
    std::apply([&](auto&... sum) { (sum.Finish(channels_, found[q++]), ...); }, sums_);
    for (int c = 0; c < channels_; ++c) {
      moments[c] = MomentsOf(n, {found[0][c], found[1][c], found[2][c], found[3][c], found[4][c]});
      moments[c].x += n * origins_[0].Of(c);
      moments[c].y += n * origins_[1].Of(c);
    }
  }

 private:
  static constexpr ptrdiff_t kStaged = 240;  // begins with a pixel of each layout
  template <class F>
  using SumOf = RunningSums<AccurateSums, F, double, double>;

  void Stage(int image, ptrdiff_t n, const float* row) {
    const auto less = [&](const auto& at, auto v) HWY_ATTR { return hn::Sub(v, at(origins_[image])); };
    MapRowWith<false>(Reals(), staged_[image], n, less, row);
  }

  PerChannel<Reals> origins_[2];
  int channels_;
  double staged_[2][kStaged];
  std::tuple<SumOf<First>, SumOf<Second>, SumOf<FirstSquared>, SumOf<SecondSquared>, SumOf<Times>> sums_{
      First(), Second(), FirstSquared(), SecondSquared(), Times()};
};

void FindMoments(const Image<const float>& a, const Image<const float>& b, Size roi, Moments* moments) {
  const int channels = Channels(a.layout);
  FloatMoments sums(a.data, b.data, a.layout);
  Rows(a, b).ForEach(
      roi, [&](ptrdiff_t pixels, const float* rowA, const float* rowB) { sums.Add(pixels * channels, rowA, rowB); });
  sums.Finish(static_cast<double>(roi.width) * static_cast<double>(roi.height), moments);
}

// ---- Calls

template <class T>
QvpStatus QualityIndex(const Image<const T>& a, const Image<const T>& b, Size roi, double* values) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b}, {values})) return failed;
  Moments moments[4];
  FindMoments(a, b, roi, moments);
  bool isUndefined = false;
  double found[4];
  const int channels = ProcessedChannels(a.layout);
  for (int c = 0; c < channels; ++c) found[c] = IndexOf(moments[c], isUndefined);
  StoreValues(values, found, channels);
  return isUndefined ? qvpStatusQualityIndex : qvpStatusNoError;
}

}  // namespace

#define QUALITY_INDEX(type, layout) \
  QVP_REDUCE_TWO(qvpiQualityIndex, type, layout, QualityIndex, (Qvp64f * pValue), (pValue))
QVP_EACH_LAYOUT(QUALITY_INDEX, 8u)
QVP_EACH_LAYOUT(QUALITY_INDEX, 16u)
QVP_EACH_LAYOUT(QUALITY_INDEX, 16s)
QVP_EACH_LAYOUT(QUALITY_INDEX, 32f)
