// Bins of equal width, found by arithmetic and put right by the levels next to them.
#pragma once

#include "base/map.h"
#include "base/rows.h"
#include "base/scalar.h"
#include "stats/accumulators.h"
#include "stats/histogram_spec.h"

namespace qvp::stats {

inline void AddTo(uint32_t* counts, ptrdiff_t i, uint32_t n) { StoreScalar(counts + i, LoadScalar(counts + i) + n); }

template <class T>
using LevelOf = std::conditional_t<std::is_integral_v<T>, int32_t, float>;

// What a call counts, and where to.
template <class T>
struct HistogramTask {
  const Image<const T>& src;
  Size roi;
  uint32_t* const* counts;
  const HistogramRecord& record;

  int channels() const { return Channels(src.layout); }
  uint32_t* Counts(int channel) const { return LoadScalar(counts + channel); }
};

// Bins of equal width. The levels of a channel stand in a table between -inf and +inf, so that what is outside of them
// has bins too, which are dropped.
class GuessedBins {
 public:
  static constexpr int kMostLevels = 512, kTurns = 4;

  // Whether each guess is less than one bin away from the right one: by how far the levels as they are stored lie from
  // equidistant ones, in widths of a bin.
  template <class L>
  bool Open(const HistogramRecord& record, int channel) {
    const int n = record.Levels(channel);
    if (n > kMostLevels) return false;
    const double first = record.Level<L>(channel, 0), last = record.Level<L>(channel, n - 1),
                 width = (last - first) / (n - 1);
    if (!(width > 0x1p-100 && width < 0x1p100)) return false;
    // What the line through the ends is off by: at the levels, by rounding its begin, and by the arithmetic of places.
    double distance = std::max(-first, first) * 0x1p-23;
    for (int k = 0; k < n; ++k) {
      const double off = record.Level<L>(channel, k) - (first + k * width);
      distance = std::max(distance, std::max(off, -off));
    }
    margin = static_cast<float>(distance / width + n * 0x1p-21);
    if (!(margin < 0.25f)) return false;
    levels_ = n;
    lower = static_cast<float>(first);
    scale = static_cast<float>(1 / width);
    top = static_cast<float>(n);
    table_[0] = -__builtin_inff();
    for (int k = 0; k < n; ++k) table_[k + 1] = static_cast<float>(record.Level<L>(channel, k));
    table_[n + 1] = __builtin_inff();
    std::memset(counts_, 0, sizeof(counts_));
    return true;
  }

  // A value is at most one entry away from its guess. NaN stays where it is guessed, at 0.
  int Corrected(float v, int guess) const { return guess + (v >= table_[guess + 1]) - (v < table_[guess]); }
  // The entries at guesses[0], guesses[step] and so on below n. They take turns in the tables.
  void Count(const int32_t* guesses, ptrdiff_t step, ptrdiff_t n) {
    ptrdiff_t i = 0;
    for (; i + (kTurns - 1) * step < n; i += kTurns * step) {
      for (int turn = 0; turn < kTurns; ++turn) ++counts_[turn][guesses[i + turn * step]];
    }
    for (; i < n; i += step) ++counts_[0][guesses[i]];
  }
  void AddToBins(uint32_t* counts) const {
    for (ptrdiff_t k = 0; k + 1 < levels_; ++k) {
      uint32_t sum = 0;
      for (const auto& table : counts_) sum += table[k + 1];
      AddTo(counts, k, sum);
    }
  }

  float lower = 0, scale = 0, top = 0, margin = 0;

 private:
  int levels_ = 0;
  float table_[kMostLevels + 2];
  uint32_t counts_[kTurns][kMostLevels + 2];
};

template <class T>
class GuessedCounter {
 public:
  bool Open(const HistogramTask<T>& task) {
    channels_ = task.channels();
    layout_ = task.src.layout;
    for (int c = 0; c < channels_; ++c) {
      if (!bins_[c].Open<LevelOf<T>>(task.record, c)) return false;
      lower_[c] = bins_[c].lower;
      scale_[c] = bins_[c].scale;
      top_[c] = bins_[c].top;
      margin_ = std::max(margin_, bins_[c].margin);
    }
    return true;
  }

  void Count(const HistogramTask<T>& task) {
    const PerChannel<D> lower(D(), lower_, layout_), scale(D(), scale_, layout_), top(D(), top_, layout_);
    Rows(task.src).ForEach(task.roi, [&](ptrdiff_t pixels, const T* row) {
      for (ptrdiff_t i = 0; i < pixels * channels_; i += kBlock) {
        const ptrdiff_t n = std::min(kBlock, pixels * channels_ - i);
        Guess(row + i, n, lower, scale, top);
        for (int c = 0; c < channels_; ++c) bins_[c].Count(guesses_ + c, channels_, n - c);
      }
    });
    for (int c = 0; c < channels_; ++c) bins_[c].AddToBins(task.Counts(c));
  }

 private:
  using D = hn::ScalableTag<float>;
  static constexpr ptrdiff_t kBlock = 768;  // a multiple of 12 lanes of every vector

  // Entry 1 is the first bin. The guess for NaN is 0. Levels are only looked at where a place is close to one.
  void Guess(const T* row, ptrdiff_t n, const PerChannel<D>& lower, const PerChannel<D>& scale,
             const PerChannel<D>& top) {
    const D d;
    const hn::Rebind<int32_t, D> ints;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    const auto low = hn::Set(d, margin_), high = hn::Set(d, 1 - margin_);
    const auto guessAt = [&](ptrdiff_t i, ptrdiff_t lane) HWY_ATTR {
      const auto v = LoadUpTo(d, row + i, n - i);
      const auto place = hn::Add(hn::Mul(hn::Sub(v, lower.From(lane)), scale.From(lane)), hn::Set(d, 1.0f));
      const auto bounded = hn::Min(MaxOrSecond(place, hn::Zero(d)), top.From(lane));
      const auto guess = hn::ConvertTo(ints, bounded);
      const auto fraction = hn::Sub(bounded, hn::ConvertTo(d, guess));
      hn::Store(guess, ints, guesses_ + i);
      if (HWY_UNLIKELY(!hn::AllFalse(d, hn::Or(hn::Lt(fraction, low), hn::Lt(high, fraction))))) Correct(v, i);
    };
    for (ptrdiff_t i = 0; i < n; i += 3 * kLanes) {
      for (ptrdiff_t lane = 0; lane < 3 * kLanes; lane += kLanes) guessAt(i + lane, lane);
    }
  }

  void Correct(hn::Vec<D> v, ptrdiff_t first) {
    HWY_ALIGN float values[hn::MaxLanes(D())];
    hn::Store(v, D(), values);
    for (int lane = 0, c = static_cast<int>(first % channels_); lane < static_cast<int>(hn::MaxLanes(D())); ++lane) {
      guesses_[first + lane] = bins_[c].Corrected(values[lane], guesses_[first + lane]);
      c = c + 1 == channels_ ? 0 : c + 1;
    }
  }

  int channels_ = 0;
  Layout layout_ = Layout::kC1;
  float lower_[4], scale_[4], top_[4], margin_ = 0;
  GuessedBins bins_[4];
  HWY_ALIGN int32_t guesses_[kBlock];
};

}  // namespace qvp::stats
