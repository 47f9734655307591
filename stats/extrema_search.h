// The search for least and greatest values, and for where they are.
//
// Rows are searched in pieces. The best values so far lie in a pattern along the row; a piece starts from them, and
// only if it ends with a better one is it looked at more closely, and remembered. The position is then searched for in
// the last piece remembered. There are few of those: a better value becomes rarer with every piece.
#pragma once

#include "base/map.h"
#include "base/rows.h"
#include "base/scalar.h"

namespace qvp::stats {

// NaN is never selected: of it and the best value so far the second is taken.
struct Least {
  template <class V>
  static HWY_INLINE V Better(V v, V best) {
    return MinOrSecond(v, best);
  }
  template <class V>
  static HWY_INLINE auto IsBetter(V v, V best) {
    return hn::Lt(v, best);
  }
  template <class T>
  static bool IsBetterValue(T v, T best) {
    return v < best;
  }
  template <class T>
  static constexpr T kWorst = std::is_integral_v<T> ? hwy::HighestValue<T>() : static_cast<T>(__builtin_inff());
  template <class T>
  static constexpr T kBest = std::is_integral_v<T> ? hwy::LowestValue<T>() : static_cast<T>(-__builtin_inff());
};
struct Greatest {
  template <class V>
  static HWY_INLINE V Better(V v, V best) {
    return MaxOrSecond(v, best);
  }
  template <class V>
  static HWY_INLINE auto IsBetter(V v, V best) {
    return hn::Lt(best, v);
  }
  template <class T>
  static bool IsBetterValue(T v, T best) {
    return v > best;
  }
  template <class T>
  static constexpr T kWorst = Least::kBest<T>;
  template <class T>
  static constexpr T kBest = Least::kWorst<T>;
};

// A piece of a row: n samples from the sample `first` of row y on, the first of which belongs to the first channel.
template <class T>
struct Piece {
  const T* samples;
  ptrdiff_t n, first, y;
};
inline constexpr ptrdiff_t kPieceSamples = 12 * 1024;

// Lanes of one channel's samples that are equal to a value.
template <class T>
class Finder {
 public:
  HWY_INLINE Finder(T value, int channel, Layout layout)
      : values_(D(), Four(value).v, layout), mask_(D(), Of(channel).v, layout) {}

  // The first such sample among n, or -1.
  HWY_INLINE ptrdiff_t In(const T* samples, ptrdiff_t n) const {
    const D d;
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const auto v = i + kLanes <= n ? hn::LoadU(d, samples + i) : hn::LoadU(d, Partial<T>(samples + i, n - i).lanes);
      const auto isMember = hn::Ne(mask_.From(i % 12), hn::Zero(d));
      const ptrdiff_t found = hn::FindFirstTrue(d, hn::And(hn::Eq(v, values_.From(i % 12)), isMember));
      if (found >= 0) return i + found < n ? i + found : -1;
    }
    return -1;
  }

 private:
  using D = hn::ScalableTag<T>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  struct Channels4 {
    T v[4];
  };
  static Channels4 Four(T value) { return {{value, value, value, value}}; }
  static Channels4 Of(int channel) {
    Channels4 members = {};
    members.v[channel] = 1;
    return members;
  }

  PerChannel<D> values_, mask_;
};

// The extreme of each channel, and the piece where it came up first.
template <class Goal, class T>
class Extreme {
 public:
  using D = hn::ScalableTag<T>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  HWY_INLINE explicit Extreme(const Image<const T>& src, Size roi)
      : src_(src), roi_(roi), best_{kWorst, kWorst, kWorst, KeepsAlpha(src.layout) ? Goal::template kBest<T> : kWorst} {
    std::fill_n(pieces_, 4, Piece<T>{src.data, 1, 0, 0});
    Spread();
  }

  HWY_INLINE V Start(ptrdiff_t lane) const { return pattern_.From(lane); }
  template <class Lanes>
  static HWY_INLINE Lanes Better(Lanes v, Lanes best) {
    return Goal::Better(v, best);
  }
  HWY_INLINE bool IsBetter(V v, ptrdiff_t lane) const {
    return !hn::AllFalse(D(), Goal::IsBetter(v, pattern_.From(lane)));
  }

  // Samples of a piece, the first of which stands at the place `lane` of a row.
  void Update(const Piece<T>& piece, const T* samples, ptrdiff_t n, ptrdiff_t lane) {
    const int channels = Channels(src_.layout);
    for (ptrdiff_t i = 0, c = lane % channels; i < n; ++i) {
      const T v = LoadScalar(samples + i);
      if (Goal::IsBetterValue(v, best_[c])) {
        best_[c] = v;
        pieces_[c] = piece;
      }
      c = c + 1 == channels ? 0 : c + 1;
    }
    Spread();
  }
  void Update(const Piece<T>& piece, V v, ptrdiff_t lane) {
    HWY_ALIGN T lanes[kLanes];
    hn::Store(v, D(), lanes);
    Update(piece, lanes, kLanes, lane);
  }

  // Whether all blocks have the same channels in the same lanes, so that a piece's vectors can become one block.
  bool AreBlocksAlike() const { return Channels(src_.layout) != 3; }
  void UpdateByBlocks(const Piece<T>& piece, V v) {
    const hn::Full128<T> d;
    HWY_ALIGN T lanes[kLanes];
    hn::Store(v, D(), lanes);
    auto best = hn::Load(d, lanes);
    for (ptrdiff_t i = hn::MaxLanes(d); i < kLanes; i += hn::MaxLanes(d)) best = Better(hn::Load(d, lanes + i), best);
    hn::Store(best, d, lanes);
    Update(piece, lanes, hn::MaxLanes(d), 0);
  }

  // Whether nothing can be better.
  bool IsFinal() const {
    bool isFinal = true;
    for (int c = 0; c < ProcessedChannels(src_.layout); ++c) isFinal &= best_[c] == Goal::template kBest<T>;
    return isFinal;
  }

  // The extreme as the pixel that has it: zeros have signs, and there may be nothing but NaN.
  T Value(int channel) const {
    if constexpr (std::is_floating_point_v<T>) {
      if (best_[channel] == 0 || best_[channel] == Goal::template kWorst<T>) {
        return LoadScalar(reinterpret_cast<const T*>(Position(channel).pixel) + channel);
      }
    }
    return best_[channel];
  }

  struct Place {
    const T* pixel;
    ptrdiff_t x, y;
  };
  HWY_INLINE Place Position(int channel) const {
    const Piece<T>& piece = pieces_[channel];
    const Finder<T> finder(best_[channel], channel, src_.layout);
    const ptrdiff_t i = finder.In(piece.samples, piece.n);
    if (i >= 0) return At(piece.samples, piece.first + i, i, piece.y);
    return PositionOfWorst(finder);
  }

 private:
  void Spread() { pattern_ = PerChannel<D>(D(), best_, Layout(Channels(src_.layout))); }

  Place At(const T* samples, ptrdiff_t sample, ptrdiff_t i, ptrdiff_t y) const {
    const ptrdiff_t channels = Channels(src_.layout), x = sample / channels;
    return {samples + i / channels * channels, x % roi_.width, y + x / roi_.width};
  }

  // No pixel is better than the worst value: the first one that has it, or the first of all when there are only NaN.
  Place PositionOfWorst(const Finder<T>& finder) const {
    if constexpr (std::is_floating_point_v<T>) {
      for (ptrdiff_t y = 0; y < roi_.height; ++y) {
        const ptrdiff_t i = finder.In(src_.Row(y), roi_.width * Channels(src_.layout));
        if (i >= 0) return At(src_.Row(y), i, i, y);
      }
    }
    return {src_.data, 0, 0};
  }

  const Image<const T>& src_;
  Size roi_;
  static constexpr T kWorst = Goal::template kWorst<T>;
  T best_[4];
  Piece<T> pieces_[4];
  PerChannel<D> pattern_;
};

// The best values of one piece, lane by lane.
template <class E>
struct Running {
  static constexpr int kVectors = 3;
  using V = typename E::V;
  static constexpr ptrdiff_t kLanes = E::kLanes;
  E& extreme;
  V best[kVectors], last;

  HWY_INLINE explicit Running(E& e) : extreme(e), last(e.Start(0)) {
    for (int k = 0; k < kVectors; ++k) best[k] = e.Start(k * kLanes);
  }
  HWY_INLINE void Take(int k, V v) { best[k] = E::Better(v, best[k]); }
  // The last vector of a piece may begin anywhere.
  HWY_INLINE void TakeLast(V v, ptrdiff_t lane) { last = E::Better(v, extreme.Start(lane)); }

  template <class T>
  HWY_INLINE void Finish(const Piece<T>& piece, ptrdiff_t lastLane) {
    if (extreme.AreBlocksAlike()) {
      const V all = E::Better(E::Better(best[0], best[1]), E::Better(best[2], last));
      if (extreme.IsBetter(all, 0)) extreme.UpdateByBlocks(piece, all);
      return;
    }
    for (int k = 0; k < kVectors; ++k) {
      if (extreme.IsBetter(best[k], k * kLanes)) extreme.Update(piece, best[k], k * kLanes);
    }
    if (extreme.IsBetter(last, lastLane)) extreme.Update(piece, last, lastLane);
  }
};

template <class T, class... E>
HWY_INLINE void SearchPiece(const Piece<T>& piece, Running<E>... running) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d), kRound = 3 * kLanes;
  const ptrdiff_t last = piece.n - kLanes;
  ptrdiff_t i = 0;
  for (; i + kRound <= piece.n; i += kRound) {
    for (int k = 0; k < 3; ++k) {
      const auto v = hn::LoadU(d, piece.samples + i + k * kLanes);
      (running.Take(k, v), ...);
    }
  }
  for (int k = 0; k < 3 && i < last; ++k, i += kLanes) {
    const auto v = hn::LoadU(d, piece.samples + i);
    (running.Take(k, v), ...);
  }
  const auto v = hn::LoadU(d, piece.samples + last);
  (running.TakeLast(v, last % 12), ...);
  (running.Finish(piece, last % 12), ...);
}

template <class T, class... E>
HWY_INLINE void Search(const Image<const T>& src, Size roi, E&... extremes) {
  const ptrdiff_t channels = Channels(src.layout);
  ptrdiff_t y = 0;
  bool isFinal = false;
  Rows(src).ForEach(roi, [&](ptrdiff_t pixels, const T* row) {
    const ptrdiff_t n = pixels * channels;
    for (ptrdiff_t i = 0; i < n && !isFinal; i += kPieceSamples) {
      const Piece<T> piece{row + i, std::min(kPieceSamples, n - i), i, y};
      if (piece.n < static_cast<ptrdiff_t>(hn::MaxLanes(hn::ScalableTag<T>()))) {
        (extremes.Update(piece, piece.samples, piece.n, 0), ...);
      } else {
        SearchPiece(piece, Running<E>(extremes)...);
      }
      isFinal = (extremes.IsFinal() && ...);
    }
    ++y;
  });
}

}  // namespace qvp::stats
