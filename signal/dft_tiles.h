// Floats of eight lines, or of eight columns, as lanes of vectors: what is shuffled in registers on the way.
#pragma once

#include <cstring>
#include <type_traits>

#include "base/blocks.h"
#include "base/gather.h"
#include "signal/dft_passes.h"

namespace qvp::dft {

template <class T>
T* At(T* p, ptrdiff_t bytes) {
  using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

inline void Copy(const float* from, float* to) { std::memcpy(to, from, sizeof(float)); }

// Four floats of each of eight lines are turned in registers: with eight lanes, a vector has a line of the first four
// and one of the others in its halves.
inline constexpr int kTile = 4;
using Quad = hn::FixedTag<float, kTile>;
using Lanes = hn::CappedTag<float, kDftLines>;
inline constexpr int kLanes = static_cast<int>(hn::MaxLanes(Lanes()));
inline constexpr int kQuads = kLanes / kTile;
using V = hn::Vec<Lanes>;

HWY_INLINE void Transpose(V (&v)[kTile]) {
  const Lanes d;
  const hn::Repartition<uint64_t, Lanes> pairs;
  const auto as = [&](V a) { return hn::BitCast(pairs, a); };
  const V a = hn::InterleaveLower(d, v[0], v[1]), b = hn::InterleaveLower(d, v[2], v[3]);
  const V c = hn::InterleaveUpper(d, v[0], v[1]), e = hn::InterleaveUpper(d, v[2], v[3]);
  v[0] = hn::BitCast(d, hn::InterleaveLower(pairs, as(a), as(b)));
  v[1] = hn::BitCast(d, hn::InterleaveUpper(pairs, as(a), as(b)));
  v[2] = hn::BitCast(d, hn::InterleaveLower(pairs, as(c), as(e)));
  v[3] = hn::BitCast(d, hn::InterleaveUpper(pairs, as(c), as(e)));
}

HWY_INLINE hn::Vec<Quad> LoadQuad(const float* from, ptrdiff_t stride) {
  if (stride == sizeof(float)) return hn::LoadU(Quad(), from);
  return LoadWords<float>([&](int i) { return At(from, i * stride); });
}

HWY_INLINE void StoreQuad(hn::Vec<Quad> v, float* to, ptrdiff_t stride) {
  if (stride == sizeof(float)) return hn::StoreU(v, Quad(), to);
  HWY_ALIGN float four[kTile];
  hn::Store(v, Quad(), four);
  for (int i = 0; i < kTile; ++i) Copy(four + i, At(to, i * stride));
}

// The halves of a vector, of one line or of two.
template <class D>
HWY_INLINE hn::Vec<D> LoadQuads(D d, const float* lower, const float* upper, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) == kTile) {
    return LoadQuad(lower, stride);
  } else {
    return hn::Combine(d, LoadQuad(upper, stride), LoadQuad(lower, stride));
  }
}
template <class D>
HWY_INLINE void StoreLower(D, hn::Vec<D> v, float* to, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) == kTile) {
    StoreQuad(v, to, stride);
  } else {
    StoreQuad(hn::LowerHalf(Quad(), v), to, stride);
  }
}
template <class D>
HWY_INLINE void StoreUpper(D, hn::Vec<D> v, float* to, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) != kTile) StoreQuad(hn::UpperHalf(Quad(), v), to, stride);
}

// Four floats, `at` bytes on, of lines l to l + kLanes - 1 as rows of lanes.
HWY_INLINE void LoadTile(const float* const (&lines)[kDftLines], int l, ptrdiff_t at, ptrdiff_t stride, V (&v)[kTile]) {
  for (int t = 0; t < kTile; ++t) {
    v[t] = LoadQuads(Lanes(), At(lines[l + t], at), At(lines[(l + t + kTile) % kDftLines], at), stride);
  }
  Transpose(v);
}

// The inverse, for the first `count` of all lines.
HWY_INLINE void StoreTile(V (&v)[kTile], float* const (&lines)[kDftLines], int count, int l, ptrdiff_t at,
                          ptrdiff_t stride) {
  Transpose(v);
  for (int t = 0; t < kTile; ++t) {
    if (l + t < count) StoreLower(Lanes(), v[t], At(lines[l + t], at), stride);
    if (l + t + kTile < count) StoreUpper(Lanes(), v[t], At(lines[(l + t + kTile) % kDftLines], at), stride);
  }
}

// All eight lines, of which the last stands for those that are not there.
template <class T>
HWY_INLINE void FillUp(const DftLines<T>& lines, T* (&all)[kDftLines]) {
  for (int l = 0; l < kDftLines; ++l) all[l] = lines.at[l < lines.count ? l : lines.count - 1];
}

// The first and the second floats of the pairs in two vectors, within each block those of `a` before those of `b`.
HWY_INLINE Complex<V> Parted(V a, V b) { return {EvenLanesOfBlocks(a, b), OddLanesOfBlocks(a, b)}; }

// Neighbouring complex numbers of a row, in vectors of kHalf numbers. Of less than eight, vectors overlap.
inline constexpr int kHalf = kLanes / 2;
struct NumberVectors {
  ptrdiff_t first, second;  // where they begin, in floats

  HWY_INLINE NumberVectors(int lane, int count)
      : first(2 * (lane < count - kHalf ? lane : count - kHalf)),
        second(2 * (lane + kHalf < count - kHalf ? lane + kHalf : count - kHalf)) {}
  HWY_INLINE Complex<V> Load(const float* row) const {
    return Parted(hn::LoadU(Lanes(), row + first), hn::LoadU(Lanes(), row + second));
  }
  HWY_INLINE void Store(Complex<V> x, float* row) const {
    hn::StoreU(hn::InterleaveLower(Lanes(), x.re, x.im), Lanes(), row + first);
    hn::StoreU(hn::InterleaveUpper(Lanes(), x.re, x.im), Lanes(), row + second);
  }
};

}  // namespace qvp::dft
