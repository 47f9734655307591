// Weights of a tile's positions, by the way in which a record keeps them: At(k, d) is the weight of tap k at position
// d, Load(k, d) the weights of as many positions as there are lanes, from d on. There are kMostTaps at most.
#pragma once

#include <limits>

#include "base/lanes.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

// One floating-point number for each tap.
template <class W>
struct TapPlanes {
  static constexpr int kMostTaps = std::numeric_limits<int>::max();
  const W* at;
  ptrdiff_t plane;

  W At(int k, ptrdiff_t d) const { return at[k * plane + d]; }
  template <class D>
  HWY_INLINE hn::Vec<D> Load(D lanes, int k, ptrdiff_t d) const {
    return LoadWide(lanes, at + k * plane + d);
  }
};

// Pairs of integers in units of 1/16384, of methods that are not widened.
struct FixedTapPlanes {
  static constexpr int kMostTaps = 6;
  const int16_t* at;
  ptrdiff_t plane;

  float At(int k, ptrdiff_t d) const {
    const int pair = k / 2;
    return at[2 * (pair * plane + d) + k % 2] * (1.0f / kFixedOne);
  }
  template <class D>
  HWY_INLINE hn::Vec<D> Load(D lanes, int k, ptrdiff_t d) const {
    const hn::Rebind<int32_t, D> ints;
    const auto pairs = hn::LoadU(ints, reinterpret_cast<const int32_t*>(at + k / 2 * 2 * plane + 2 * d));
    const auto w = k % 2 ? hn::ShiftRight<16>(pairs) : hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs));
    return hn::Mul(hn::ConvertTo(lanes, w), hn::Set(lanes, 1.0f / kFixedOne));
  }
};

// The weight of the second of two taps, in any of the three ways.
struct LinearWeights {
  const void* at;
  WeightKind kind;
  int stride;  // numbers from one position to the next

  LinearWeights(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin)
      : at(nullptr), kind(record.weights), stride(1) {
    if (kind == WeightKind::kFloat) at = record.Weights<float>(axis) + begin;
    if (kind == WeightKind::kDouble) at = record.Weights<double>(axis) + begin;
    if (kind != WeightKind::kFixed) return;
    const bool isPairs = &axis == &record.columns;
    stride = isPairs ? 2 : 1;
    at = record.Weights<int16_t>(axis) + begin * stride + (isPairs ? 1 : 0);
  }

  double Second(ptrdiff_t d) const {
    if (kind == WeightKind::kFloat) return static_cast<const float*>(at)[d];
    if (kind == WeightKind::kDouble) return static_cast<const double*>(at)[d];
    return static_cast<const int16_t*>(at)[d * stride] * (1.0 / kFixedOne);
  }
};

// The same as single floating-point numbers.
template <class F>
struct LinearPlane {
  static constexpr int kMostTaps = 2;
  const F* second;

  F At(int k, ptrdiff_t d) const { return k == 0 ? 1 - second[d] : second[d]; }
  template <class D>
  HWY_INLINE hn::Vec<D> Load(D lanes, int k, ptrdiff_t d) const {
    const auto w = hn::LoadU(lanes, second + d);
    return k == 0 ? hn::Sub(hn::Set(lanes, F{1}), w) : w;
  }
};

// The weights of n positions, as they are or converted to `room`.
template <class F>
LinearPlane<F> PlaneOf(const LinearWeights& weights, ptrdiff_t n, F* room) {
  constexpr WeightKind kOwn = sizeof(F) == sizeof(float) ? WeightKind::kFloat : WeightKind::kDouble;
  if (weights.kind == kOwn) return {static_cast<const F*>(weights.at)};
  for (ptrdiff_t d = 0; d < n; ++d) room[d] = static_cast<F>(weights.Second(d));
  return {room};
}

}  // namespace qvp::resize
