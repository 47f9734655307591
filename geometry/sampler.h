// Values of an image at points between its pixels: what warps and remap share. Interior points run in vectors; those
// whose taps need a test, one by one with the same arithmetic, so that a result depends on its point alone.
#pragma once

#include "geometry/sample_border.h"
#include "geometry/sample_patches.h"

namespace qvp::sampling {

// Finishes n points that are all beyond.
template <class T>
void FillBeyond(const Task<T>& task, ptrdiff_t n, T* dst) {
  if (task.area.isBounded || n <= 0) return;
  auto* bytes = reinterpret_cast<uint8_t*>(dst);
  const ptrdiff_t pixel = task.src.PixelBytes(), all = n * pixel;
  if (pixel == 1) {
    std::memset(bytes, static_cast<int>(task.constant[0]), all);
    return;
  }
  std::memcpy(bytes, task.constant, pixel);
  for (ptrdiff_t done = pixel; done < all; done += std::min(done, all - done)) {
    std::memcpy(bytes + done, bytes, std::min(done, all - done));
  }
}

// A box in vectors of coordinates.
template <class C>
class BoxLanes {
 public:
  using D = hn::ScalableTag<C>;
  using V = hn::Vec<D>;

  explicit BoxLanes(const PointBox& box)
      : left_(At(box.u.low)), right_(At(box.u.high)), top_(At(box.v.low)), bottom_(At(box.v.high)) {}

  HWY_INLINE hn::Mask<D> Has(V x, V y) const {
    return hn::And(hn::And(hn::Ge(x, left_), hn::Le(x, right_)), hn::And(hn::Ge(y, top_), hn::Le(y, bottom_)));
  }
  HWY_INLINE hn::Mask<D> IsBeside(V x, V y) const {
    return hn::Or(hn::Or(hn::Lt(x, left_), hn::Gt(x, right_)), hn::Or(hn::Lt(y, top_), hn::Gt(y, bottom_)));
  }

 private:
  static V At(double place) { return hn::Set(D(), static_cast<C>(place)); }
  V left_, right_, top_, bottom_;
};

template <class C>
bool AreAllInside(const PointBox& box, const C* u, const C* v, ptrdiff_t n) {
  const hn::ScalableTag<C> d;
  const BoxLanes<C> lanes(box);
  auto isInside = hn::Eq(hn::Zero(d), hn::Zero(d));
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    isInside = hn::And(isInside, lanes.Has(hn::LoadU(d, u + i), hn::LoadU(d, v + i)));
  }
  return hn::AllTrue(d, isInside);
}

// One bit for each point of a block.
class PointBits {
 public:
  template <class D>
  HWY_INLINE void Set(D d, ptrdiff_t first, hn::Mask<D> mask) {
    uint64_t bits = 0;
    hn::StoreMaskBits(d, mask, reinterpret_cast<uint8_t*>(&bits));
    words_[first / 64] |= bits << first % 64;
  }
  bool operator[](ptrdiff_t i) const { return words_[i / 64] >> i % 64 & 1; }

  // The first point of n behind `first` that has another bit, or n.
  ptrdiff_t EndOfRun(ptrdiff_t first, ptrdiff_t n) const {
    const uint64_t same = (*this)[first] ? ~uint64_t{0} : 0;
    for (ptrdiff_t i = first; i < n; i = (i | 63) + 1) {
      const uint64_t others = (words_[i / 64] ^ same) >> i % 64;
      if (others != 0) return std::min(n, i + static_cast<ptrdiff_t>(hwy::Num0BitsBelowLS1Bit_Nonzero64(others)));
    }
    return n;
  }

 private:
  uint64_t words_[kBlock / 64] = {};
};

// The points of a block that need no test, and those that take nothing from the image.
struct PointKinds {
  PointBits inside, beyond;

  template <class C>
  PointKinds(const PointBox& interior, const PointBox& reached, const C* u, const C* v, ptrdiff_t n) {
    const hn::ScalableTag<C> d;
    const BoxLanes<C> inner(interior), outer(reached);
    for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
      const auto x = hn::LoadU(d, u + i), y = hn::LoadU(d, v + i);
      inside.Set(d, i, inner.Has(x, y));
      beyond.Set(d, i, outer.IsBeside(x, y));
    }
  }
};

// Points one by one.
template <int kTaps, class T, class C>
void SampleEach(const Task<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  for (ptrdiff_t i = 0; i < n; ++i, dst += Channels(task.src.layout)) {
    SamplePoint<kTaps>(task, static_cast<double>(LoadScalar(u + i)), static_cast<double>(LoadScalar(v + i)), dst);
  }
}

inline constexpr ptrdiff_t kFewest = 3;  // points for which vectors pay

// Points at the border.
template <int kTaps, class T, class C>
void SampleTaps(const Task<T>& task, C* u, C* v, ptrdiff_t n, T* dst) {
  if constexpr (kTaps > 1) {
    if (n >= kFewest && !IsBeyondKnown(task.area) && HasShortSides(task.area)) {
      MoveToEdges<kTaps>(task.area, u, v, n);
      return SampleByPatches<kTaps>(task, u, v, n, dst);
    }
  }
  SampleEach<kTaps>(task, u, v, n, dst);
}

// Values at n points, up to kBlock, to as many pixels. Coordinates have room for Padded(n) + kSpare points; those
// behind the n-th are copies of it. Points of one kind come in runs. The coordinates may be changed.
template <int kTaps, class T, class C>
void Sample(const Sources<T>& sources, C* u, C* v, ptrdiff_t n, T* dst) {
  const Task<T>&task = sources.tested, &inside = sources.inside;
  if (sources.areMoved) {
    MoveTo(inside.interior.u, u, Padded(n));
    MoveTo(inside.interior.v, v, Padded(n));
    return SampleInside<kTaps>(inside, PointArray<C>{u, v}, n, dst);
  }
  if (AreAllInside(inside.interior, u, v, n)) return SampleInside<kTaps>(inside, PointArray<C>{u, v}, n, dst);
  const PointKinds kinds(inside.interior, TouchingBox<kTaps>(task.area), u, v, n);
  const bool isBeyondKnown = IsBeyondKnown(task.area);
  const int channels = Channels(task.src.layout);
  for (ptrdiff_t first = 0, end; first < n; first = end) {
    const bool isInside = kinds.inside[first], isBeyond = isBeyondKnown && kinds.beyond[first];
    end = kinds.inside.EndOfRun(first, n);
    if (isBeyondKnown && !isInside) end = kinds.beyond.EndOfRun(first, end);
    T* const to = dst + first * channels;
    if (isInside && end - first >= kFewest) {
      SampleInside<kTaps>(inside, PointArray<C>{u + first, v + first}, end - first, to);
    } else if (isBeyond) {
      FillBeyond(task, end - first, to);
    } else {
      SampleTaps<kTaps>(task, u + first, v + first, end - first, to);
    }
  }
}

}  // namespace qvp::sampling
