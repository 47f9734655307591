// Sums over all windows of an image, by doubling: of a number k of samples, then of 2k, then, if the next binary digit
// of the window's side is 1, of 2k + 1. Along rows, then down columns; each is the same few additions wherever it is.
#pragma once

#include <algorithm>

#include "base/border.h"
#include "base/row_vectors.h"
#include "stats/match.h"

namespace qvp::matching {

// Steps from sums of `least` to sums of all: step(k, whether there is one more).
template <class Step>
void ForEachDoubling(ptrdiff_t all, const Step& step) {
  int digit = 63 - __builtin_clzll(static_cast<uint64_t>(all));
  for (ptrdiff_t k = 1; digit-- > 0;) {
    const bool isOdd = (all >> digit & 1) != 0;
    step(k, isOdd);
    k = 2 * k + (isOdd ? 1 : 0);
  }
}

// The sums are held in lanes of N.
template <class T, class N>
class WindowSums {
 public:
  WindowSums(const ChannelSet<T>& channels, Size window, bool hasSquares, bool hasSamples)
      : channels_(channels), window_(window), hasSquares_(hasSquares), hasSamples_(hasSamples) {}

  // For blocks up to so many columns, from a boundary on.
  static ByteCount Bytes(Size window, int64_t columns, int channels) {
    const ByteCount line = LineBytes(ByteCount(window.width) + columns, sizeof(N));
    const ByteCount row = LineBytes(columns, sizeof(N));
    return line * 3 + LineBytes(ByteCount(window.width) + columns, sizeof(T)) + row * (kMostQuantities + 1) +
           RingBytes(window, columns, channels);
  }
  static ByteCount RingBytes(Size window, int64_t columns, int channels) {
    return ByteCount(window.height) * (columns * int64_t{sizeof(N)}) * (1 + channels) + kRecordBoundary;
  }

  // Windows that begin at columns of the image, from a row on; Advance() goes on to the first row, then to the next.
  void Start(uint8_t* memory, Extent columns, ptrdiff_t row) {
    columns_ = columns, next_ = row;
    Divide(memory);
    levelCount_ = 0, hasOddLevels_ = false;
    ptrdiff_t at = 0;
    ForEachDoubling(window_.height, [&](ptrdiff_t k, bool isOdd) {
      const ptrdiff_t rows = k + (isOdd ? 1 : 0);
      levels_[levelCount_++] = {rows, at, 0, isOdd};
      at += rows, hasOddLevels_ |= isOdd;
    });
    for (ptrdiff_t i = 1; i < window_.height; ++i) Advance();
  }

  void Advance() {
    if (!hasSquares_ && !hasSamples_) return;
    for (int c = 0; c < channels_.count; ++c) {
      Stage(channels_.image[c]);
      if (hasSquares_) LoadSquares(c);
      if (!hasSamples_) continue;
      LoadSamples(c);
      AddUp(samples_, 1 + c);
    }
    if (hasSquares_) AddUp(squares_, 0);
    for (int i = 0; i < levelCount_; ++i) {
      if (++levels_[i].slot == levels_[i].rows) levels_[i].slot = 0;
    }
    ++next_;
  }

  // Of the row of windows; null if they are not wanted.
  const N* Squares() const { return hasSquares_ ? sums_[0] : nullptr; }
  const N* Samples(int channel) const { return hasSamples_ ? sums_[1 + channel] : nullptr; }

 private:
  using D = hn::ScalableTag<N>;
  static constexpr int kMostQuantities = 1 + kMostJoint, kMostLevels = 31;

  // Rows of sums of k samples, as many as the next sum reaches back: that in `slot` is the oldest.
  struct Level {
    ptrdiff_t rows, at, slot;
    bool isOdd;
  };

  static ByteCount LineBytes(ByteCount count, int64_t bytes) { return (count * bytes).RoundedTo(kRecordBoundary); }
  ptrdiff_t Columns() const { return columns_.end - columns_.begin; }
  ptrdiff_t LineSamples() const { return Columns() + window_.width - 1; }

  // What of the work memory is for what.
  void Divide(uint8_t* memory) {
    const ptrdiff_t line = LineSamples();
    const auto take = [&](auto*& pointer, ptrdiff_t count) {
      pointer = reinterpret_cast<std::remove_reference_t<decltype(pointer)>>(memory);
      memory += LineBytes(count, sizeof(*pointer)).value();
    };
    take(staged_, line), take(squares_, line), take(samples_, line), take(across_, line);
    take(first_, Columns());
    for (N*& sums : sums_) take(sums, Columns());
    rings_ = reinterpret_cast<N*>(memory);
  }

  // The row's samples, and zeros around the image. Those that are neighbours stay where they are.
  void Stage(const Plane<T>& plane) {
    const ptrdiff_t before = std::clamp<ptrdiff_t>(-columns_.begin, 0, LineSamples());
    const ptrdiff_t end = std::clamp<ptrdiff_t>(plane.size.width - columns_.begin, before, LineSamples());
    const ptrdiff_t inside = plane.HasRow(next_) ? end - before : 0;
    const T* const from = inside > 0 ? plane.At(columns_.begin + before, next_) : nullptr;
    row_ = staged_;
    if (inside == LineSamples() && plane.channels() == 1) {
      row_ = from;
      return;
    }
    std::fill_n(staged_, before, T{});
    if (inside > 0) CopySamples(from, plane.channels(), inside, staged_ + before);
    std::fill_n(staged_ + before + inside, LineSamples() - before - inside, T{});
  }

  // Samples less what they are taken less by; of 16 bits in 32, which hold the squares of what is left.
  template <class Lanes>
  HWY_INLINE auto Less(Lanes d, ptrdiff_t i, double less) const {
    if constexpr (sizeof(N) != 2 * sizeof(int32_t) || std::is_same_v<N, double>) {
      return hn::Sub(LoadWide(d, row_ + i), hn::Set(d, static_cast<N>(less)));
    } else {
      const hn::Rebind<int32_t, Lanes> ints;
      return hn::Sub(LoadWide(ints, row_ + i), hn::Set(ints, static_cast<int32_t>(less)));
    }
  }
  template <class Lanes, class V>
  HWY_INLINE static hn::Vec<Lanes> Whole(Lanes d, V v) {
    if constexpr (std::is_same_v<V, hn::Vec<Lanes>>) return v;
    if constexpr (!std::is_same_v<V, hn::Vec<Lanes>>) return hn::PromoteTo(d, v);
  }

  void LoadSamples(int c) {
    const double less = channels_.less[c];
    ForEachElement(D(), LineSamples(),
                   [&](auto d, ptrdiff_t i) HWY_ATTR { hn::StoreU(Whole(d, Less(d, i, less)), d, samples_ + i); });
  }
  // Those of a pixel's channels are added in their order.
  void LoadSquares(int c) {
    const double less = channels_.less[c];
    ForEachElement(D(), LineSamples(), [&](auto d, ptrdiff_t i) HWY_ATTR {
      const auto v = Less(d, i, less);
      auto square = Whole(d, hn::Mul(v, v));
      if (c > 0) square = hn::Add(hn::LoadU(d, squares_ + i), square);
      hn::StoreU(square, d, squares_ + i);
    });
  }

  // Sums over the last window that the line completes.
  void AddUp(const N* line, int quantity) {
    N* const sums = sums_[quantity];
    Across(line, sums);
    if (hasOddLevels_) std::memcpy(first_, sums, Columns() * sizeof(N));
    N* const rings = rings_ + quantity * (window_.height - 1) * Columns();
    for (int i = 0; i < levelCount_; ++i) Down(levels_[i], rings + levels_[i].at * Columns(), sums);
  }

  void Across(const N* line, N* sums) {
    if (window_.width == 1) std::memcpy(sums, line, Columns() * sizeof(N));
    const N* from = line;
    ForEachDoubling(window_.width, [&](ptrdiff_t k, bool isOdd) {
      const ptrdiff_t size = 2 * k + (isOdd ? 1 : 0), n = LineSamples() - size + 1;
      N* const to = size == window_.width ? sums : across_;
      ForEachElement(D(), n, [&](auto d, ptrdiff_t i) HWY_ATTR {
        auto sum = hn::Add(hn::LoadU(d, from + i), hn::LoadU(d, from + i + k));
        if (isOdd) sum = hn::Add(sum, hn::LoadU(d, line + i + 2 * k));
        hn::StoreU(sum, d, to + i);
      });
      from = across_;
    });
  }

  // From sums of k rows to those of 2k or 2k + 1, the former of which the ring keeps.
  void Down(const Level& level, N* ring, N* row) {
    N* const oldest = ring + level.slot * Columns();
    const N* const last = ring + (level.slot == 0 ? level.rows - 1 : level.slot - 1) * Columns();
    const bool isOdd = level.isOdd;
    ForEachElement(D(), Columns(), [&](auto d, ptrdiff_t i) HWY_ATTR {
      const auto now = hn::LoadU(d, row + i);
      auto sum = hn::Add(hn::LoadU(d, oldest + i), isOdd ? hn::LoadU(d, last + i) : now);
      if (isOdd) sum = hn::Add(sum, hn::LoadU(d, first_ + i));
      hn::StoreU(now, d, oldest + i);
      hn::StoreU(sum, d, row + i);
    });
  }

  const ChannelSet<T>& channels_;
  Size window_;
  bool hasSquares_, hasSamples_;
  Extent columns_{};
  ptrdiff_t next_ = 0;  // row
  int levelCount_ = 0;
  Level levels_[kMostLevels];
  bool hasOddLevels_ = false;
  T* staged_ = nullptr;
  const T* row_ = nullptr;  // its samples
  N *squares_ = nullptr, *samples_ = nullptr, *across_ = nullptr, *first_ = nullptr, *rings_ = nullptr;
  N* sums_[kMostQuantities] = {};
};

}  // namespace qvp::matching
