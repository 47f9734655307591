// Structural similarity: the mean over windows that slide over two images.
//
// Four quantities of each sample, x, y, x^2 + y^2 and x y, are averaged under the window: across each row, whose
// averages stay in a ring of as many rows as a window has, then down. Every window is summed up for itself, in the same
// order wherever it lies. Columns go in blocks, whose ring stays in the nearest cache.
#include <algorithm>

#include "base/check.h"
#include "base/export.h"
#include "base/lanes.h"
#include "base/record.h"
#include "base/row_ring.h"
#include "signal/exp_log.h"
#include "stats/accumulators.h"

namespace {
using namespace qvp;

using Reals = hn::ScalableTag<double>;

constexpr int kQuantities = 4, kLeastWindow = 2, kMostWindow = 31;

struct Choice {
  int window;
  double sigma, c1, c2;

  bool HasWindow() const { return window >= kLeastWindow && window <= kMostWindow; }
  bool HasNumbers() const {
    const auto isPositive = [](double c) { return c > 0 && c <= std::numeric_limits<double>::max(); };
    return (sigma == 0 || (sigma >= 0.1 && sigma <= 1000)) && isPositive(c1) && isPositive(c2);
  }
};

// Calls step(d, count, i) for groups of `count` vectors of d from i on, so that nothing behind n is touched: eight,
// four, then one, the last of which overlaps the one before it; fewer numbers than a vector has one by one.
template <class Step>
HWY_INLINE void ForEachGroup(ptrdiff_t n, const Step& step) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(Reals());
  constexpr std::integral_constant<int, 1> kOne;
  ptrdiff_t i = 0;
  if (n < kLanes) {
    for (; i < n; ++i) step(hn::CappedTag<double, 1>(), kOne, i);
    return;
  }
  for (; i + 8 * kLanes <= n; i += 8 * kLanes) step(Reals(), std::integral_constant<int, 8>(), i);
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) step(Reals(), std::integral_constant<int, 4>(), i);
  for (; i < n; i += kLanes) step(Reals(), kOne, std::min(i, n - kLanes));
}

// ---- Averages along one axis

// The weights from the first to the middle one; the others mirror them.
class Weights {
 public:
  explicit Weights(const Choice& choice) : window_(choice.window) {
    double sum = 0, weights[kMostWindow];
    for (int k = 0; k < window_; ++k) sum += weights[k] = choice.sigma == 0 ? 1 : Gauss(choice, k);
    for (int k = 0; k < (window_ + 1) / 2; ++k) half_[k] = weights[k] / sum;
  }

  // Of n places, each from values[k] at its place; those at equal distances from the middle are added first.
  HWY_NOINLINE void Average(const double* const* values, ptrdiff_t n, double* to) const {
    ForEachGroup(n, [&](auto d, auto count, ptrdiff_t i) HWY_ATTR { Average(d, count, values, i, to + i); });
  }

 private:
  static double Gauss(const Choice& choice, int k) {
    const hn::CappedTag<double, 1> d;
    const double distance = k - (choice.window - 1) / 2.0;
    const double power = -(distance * distance) / (2 * (choice.sigma * choice.sigma));
    return hn::GetLane(ExpOfNegative(hn::Set(d, power)));
  }

  template <class D, int kCount>
  HWY_INLINE void Average(D d, std::integral_constant<int, kCount>, const double* const* values, ptrdiff_t i,
                          double* to) const {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    hn::Vec<D> sums[kCount];
    for (int v = 0; v < kCount; ++v) sums[v] = hn::Zero(d);
    const int pairs = window_ / 2;
    for (int k = 0; k < pairs; ++k) {
      const double *const first = values[k] + i, *const last = values[window_ - 1 - k] + i;
      const auto weight = hn::Set(d, half_[k]);
      for (int v = 0; v < kCount; ++v) {
        const auto pair = hn::Add(hn::LoadU(d, first + v * kLanes), hn::LoadU(d, last + v * kLanes));
        sums[v] = hn::Add(sums[v], hn::Mul(weight, pair));
      }
    }
    if (window_ % 2 == 1) {
      const auto weight = hn::Set(d, half_[pairs]);
      for (int v = 0; v < kCount; ++v) {
        sums[v] = hn::Add(sums[v], hn::Mul(weight, hn::LoadU(d, values[pairs] + i + v * kLanes)));
      }
    }
    for (int v = 0; v < kCount; ++v) hn::StoreU(sums[v], d, to + v * kLanes);
  }

  int window_;
  double half_[(kMostWindow + 1) / 2];
};

// ---- Rows. Each quantity has a plane of its own: numbers at a distance from those of the one before it.

struct Planes {
  double* at;
  ptrdiff_t step;
  double* operator[](int quantity) const { return at + quantity * step; }
};

template <class T>
void PutQuantities(const T* x, const T* y, ptrdiff_t n, const Planes& to) {
  ForEachGroup(n, [&](auto d, auto count, ptrdiff_t first) HWY_ATTR {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(decltype(d)());
    for (ptrdiff_t i = first; i < first + count * kLanes; i += kLanes) {
      const auto a = LoadWide(d, x + i), b = LoadWide(d, y + i);
      hn::StoreU(a, d, to[0] + i);
      hn::StoreU(b, d, to[1] + i);
      hn::StoreU(hn::Add(hn::Mul(a, a), hn::Mul(b, b)), d, to[2] + i);
      hn::StoreU(hn::Mul(a, b), d, to[3] + i);
    }
  });
}

// Adds the indices of n windows, from the averages of their quantities, to a number for each of them.
void AddIndices(const Planes& averages, ptrdiff_t n, const Choice& choice, double* sums) {
  ForEachElement(Reals(), n, [&](auto d, ptrdiff_t i) HWY_ATTR {
    const auto c1 = hn::Set(d, choice.c1), c2 = hn::Set(d, choice.c2);
    const auto x = hn::LoadU(d, averages[0] + i), y = hn::LoadU(d, averages[1] + i);
    const auto squares = hn::Add(hn::Mul(x, x), hn::Mul(y, y)), product = hn::Mul(x, y);
    const auto variances = hn::Sub(hn::LoadU(d, averages[2] + i), squares);
    const auto covariance = hn::Sub(hn::LoadU(d, averages[3] + i), product);
    const auto brightness = hn::Div(hn::Add(hn::Add(product, product), c1), hn::Add(squares, c1));
    const auto structure = hn::Div(hn::Add(hn::Add(covariance, covariance), c2), hn::Add(variances, c2));
    hn::StoreU(hn::Add(hn::LoadU(d, sums + i), hn::Mul(brightness, structure)), d, sums + i);
  });
}

// ---- Blocks of columns

// Windows side by side in a block, of so many samples.
constexpr ptrdiff_t kBlockSamples = 96;
constexpr ptrdiff_t MostAbreast(int channels) { return kBlockSamples / channels; }

// Room for a row of quantities, the ring, a row of averages and the sums of indices; it grows with each argument.
ByteCount BufferBytes(int64_t width, int window, int channels) {
  const int64_t most = MostAbreast(channels), abreast = std::min(width, most);
  const int64_t samples = kQuantities * (std::min(width, most + window - 1) + (window + 1) * abreast) + abreast;
  return ByteCount(samples) * (channels * int64_t{sizeof(double)}) + kRecordBoundary;
}

template <class T>
class Block {
 public:
  // `n` samples of a row are windows' first ones; `memory` is at a boundary.
  Block(const Choice& choice, const Weights& weights, int channels, ptrdiff_t n, double* memory)
      : choice_(choice), weights_(weights), channels_(channels), n_(n), read_(n + (choice.window - 1) * channels) {
    const ptrdiff_t row = kQuantities * n;
    quantities_ = {memory, read_};
    ring_ = {memory + kQuantities * read_, row, choice.window};
    averages_ = {ring_.at + choice.window * row, n};
    sums_ = averages_.at + row;
    std::fill_n(sums_, n, 0.0);
  }

  // Row y of both images, from the first sample of the block on.
  void AddRow(ptrdiff_t y, const T* a, const T* b) {
    PutQuantities(a, b, read_, quantities_);
    const Planes across{ring_.Row(y), n_};
    ForEachPlane([&](int q, int k) { return quantities_[q] + k * channels_; }, across);
    if (y < choice_.window - 1) return;
    const double* rows[kMostWindow];
    rows[0] = ring_.Row(y - choice_.window + 1);
    for (int k = 1; k < choice_.window; ++k) rows[k] = ring_.Next(rows[k - 1]);
    ForEachPlane([&](int q, int k) { return rows[k] + q * n_; }, averages_);
    AddIndices(averages_, n_, choice_, sums_);
  }

  // Of all rows, in ascending order.
  void AddTo(double* totals) const {
    for (ptrdiff_t i = 0; i < n_; ++i) totals[i % channels_] += sums_[i];
  }

 private:
  // Averages of each quantity from the numbers at place(quantity, k).
  template <class Place>
  void ForEachPlane(const Place& place, const Planes& to) const {
    for (int q = 0; q < kQuantities; ++q) {
      const double* values[kMostWindow];
      for (int k = 0; k < choice_.window; ++k) values[k] = place(q, k);
      weights_.Average(values, n_, to[q]);
    }
  }

  const Choice& choice_;
  const Weights& weights_;
  int channels_;
  ptrdiff_t n_, read_;  // samples of a row: of windows, and those that windows have
  Planes quantities_, averages_;
  RowRing<double> ring_;
  double* sums_;
};

template <class T>
void SumIndices(const Image<const T>& a, const Image<const T>& b, Size roi, const Choice& choice, uint8_t* buffer,
                double* totals) {
  const int channels = Channels(a.layout);
  const ptrdiff_t windows = roi.width - choice.window + 1, most = MostAbreast(channels);
  const Weights weights(choice);
  double* const memory = reinterpret_cast<double*>(AtBoundary(buffer));
  for (ptrdiff_t x = 0; x < windows; x += most) {
    Block<T> block(choice, weights, channels, std::min(most, windows - x) * channels, memory);
    for (ptrdiff_t y = 0; y < roi.height; ++y) block.AddRow(y, a.Row(y) + x * channels, b.Row(y) + x * channels);
    block.AddTo(totals);
  }
}

// ---- Calls

QvpStatus CheckWindow(Size roi, const Choice& choice) {
  if (!choice.HasWindow()) return qvpStatusMaskSize;
  return roi.width < choice.window || roi.height < choice.window ? qvpStatusSize : qvpStatusNoError;
}

template <class T>
QvpStatus Ssim(const Image<const T>& a, const Image<const T>& b, Size roi, double* values, const Choice& choice,
               uint8_t* buffer) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b}, {values, buffer})) return failed;
  if (const QvpStatus failed = CheckWindow(roi, choice)) return failed;
  if (!choice.HasNumbers()) return qvpStatusBadArgument;
  double totals[4] = {};
  SumIndices(a, b, roi, choice, buffer, totals);
  const double across = static_cast<double>(roi.width - choice.window + 1),
               down = static_cast<double>(roi.height - choice.window + 1);
  for (double& total : totals) total /= across * down;
  stats::StoreValues(values, totals, ProcessedChannels(a.layout));
  return qvpStatusNoError;
}

}  // namespace

QvpStatus qvpiSSIMGetBufferSize(QvpiSize roiSize, int windowSize, int numChannels, int* pBufferSize) {
  if (!pBufferSize) return qvpStatusNullPointer;
  if (numChannels != 1 && numChannels != 3 && numChannels != 4) return qvpStatusNumChannels;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (const QvpStatus failed = CheckWindow(roiSize, {windowSize, 0, 1, 1})) return failed;
  return BufferBytes(roiSize.width, windowSize, numChannels).StoreTo(pBufferSize);
}

#define SSIM(type, layout)                                                                              \
  QVP_REDUCE_TWO(qvpiSSIM, type, layout, Ssim,                                                          \
                 (Qvp64f * pValue, int windowSize, Qvp64f sigma, Qvp64f c1, Qvp64f c2, Qvp8u* pBuffer), \
                 (pValue, {windowSize, sigma, c1, c2}, pBuffer))
QVP_EACH_LAYOUT(SSIM, 8u)
QVP_EACH_LAYOUT(SSIM, 16u)
QVP_EACH_LAYOUT(SSIM, 32f)
