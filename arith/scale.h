// The scale-factor rule, in one place: result = exact * 2^-scale, rounded to the nearest integer, ties to even, and
// saturated to the destination's type. Every factor is legal: factors beyond the ends of what is computed here are
// replaced by the last ones, which give the bounds of the type and zero already.
//
// Integer lanes hold the exact value; the narrowing that follows saturates. Lanes must be wide enough for it:
// signed lanes of n bits hold exact values of magnitude up to 2^(n-2), unsigned lanes any value.
#pragma once

#include <algorithm>
#include <limits>

#include "base/halves.h"

namespace qvp {

template <class L>
inline constexpr int kBits = 8 * sizeof(L);

struct Unscaled {
  template <class V>
  HWY_INLINE V operator()(V exact) const {
    return exact;
  }
};

// scale > 0: (exact + 2^(scale-1) - 1 + odd) >> scale, where odd is the lowest bit of exact >> scale.
// kHasRoom: the lane holds what is shifted.
template <class L, bool kHasRoom = std::is_signed_v<L>>
class ScaleDown {
 public:
  explicit ScaleDown(int scale)
      : count_(std::min(scale, kLast)),
        bias_(IsTooFar(scale) ? L{0} : static_cast<L>((uint64_t{1} << (count_ - 1)) - 1)),
        odd_(count_ < kBits<L> ? 1 : 0) {}

  template <class V>
  HWY_INLINE V operator()(V exact) const {
    const hn::DFromV<V> d;
    const V odd = hn::And(hn::ShiftRightSame(exact, count_ % kBits<L>), hn::Set(d, odd_));
    const V bias = hn::Add(odd, hn::Set(d, bias_));
    if constexpr (kHasRoom) {
      return hn::ShiftRightSame(hn::Add(exact, bias), count_);
    } else {
      return hn::ShiftRightSame(HalfOfSum(exact, bias), count_ - 1);
    }
  }

 private:
  static constexpr int kLast = std::is_signed_v<L> ? kBits<L> - 1 : kBits<L>;

  // Beyond the last count nothing is left, but in unsigned lanes the bias could still carry a value to 1.
  static bool IsTooFar(int scale) { return std::is_unsigned_v<L> && scale > kLast; }

  // (exact + bias) / 2, rounded down, of unsigned lanes: the sum may need one bit more.
  template <class V>
  static HWY_INLINE V HalfOfSum(V exact, V bias) {
    if constexpr (sizeof(L) == 2) {  // the CPU averages upwards; from 0 nothing is taken, but that half is shifted out
      return hn::AverageRound(hn::SaturatedSub(exact, hn::Set(hn::DFromV<V>(), 1)), bias);
    } else {  // x + y = 2 (x & y) + (x ^ y)
      return hn::Add(hn::And(exact, bias), hn::ShiftRight<1>(hn::Xor(exact, bias)));
    }
  }

  int count_;
  L bias_, odd_;
};

// scale < 0: exact << -scale. Values that leave T are first reduced to the nearest one that leaves it still, so that
// nothing is lost from the lane.
template <class L, class T>
class ScaleUp {
 public:
  explicit ScaleUp(int scale)
      : count_(scale <= -kLast ? kLast : -scale),
        lowest_(std::is_signed_v<L> ? static_cast<L>(-(static_cast<int>(-int64_t{Limits::lowest()} >> count_) + 1))
                                    : L{0}),
        highest_(static_cast<L>((Limits::max() >> count_) + 1)) {}

  template <class V>
  HWY_INLINE V operator()(V exact) const {
    const hn::DFromV<V> d;
    V reduced = hn::Min(exact, hn::Set(d, highest_));
    if constexpr (std::is_signed_v<L>) reduced = hn::Max(reduced, hn::Set(d, lowest_));
    return hn::ShiftLeftSame(reduced, count_);
  }

 private:
  using Limits = std::numeric_limits<T>;
  static constexpr int kLast = Limits::digits;
  int count_;
  L lowest_, highest_;
};

// Up to this scale a product of two elements, at most (2^16 - 1)^2, leaves room for half a unit beside it.
constexpr int kLastWithRoom = 17;

// Calls then(scaling) with the scaling of lanes L for results of type T. Unsigned lanes of 32 bits are products of two
// elements.
template <class L, class T, class Then>
void WithScaling(int scale, const Then& then) {
  if (scale == 0) {
    then(Unscaled());
  } else if (std::is_same_v<L, uint32_t> && scale > 0 && scale <= kLastWithRoom) {
    then(ScaleDown<L, true>(scale));
  } else if (scale > 0) {
    then(ScaleDown<L>(scale));
  } else {
    then(ScaleUp<L, T>(scale));
  }
}

template <class T, class Scaling, class V>
HWY_INLINE auto ScaleAndPack(const Scaling& scaling, Halves<V> exact) {
  return Pack<T>(Halves<V>{scaling(exact.lower), scaling(exact.upper)});
}

// The factor 2^-scale for results in float lanes, which are rounded by the narrowing that follows. Beyond 2^64 and
// 2^-64 all results of division, square root and logarithm are out of range or round to zero.
template <class F>
F ScaleFactor(int scale) {
  const int exponent = -std::clamp(scale, -64, 64);
  const double magnitude = static_cast<double>(uint64_t{1} << std::min(std::abs(exponent), 63)) *
                           (exponent == 64 || exponent == -64 ? 2.0 : 1.0);
  return static_cast<F>(exponent < 0 ? 1.0 / magnitude : magnitude);
}

}  // namespace qvp
