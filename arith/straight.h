// Composites of pixels that are not premultiplied: colors as they are, whatever their alpha.
#pragma once

#include "arith/operators.h"
#include "arith/pixel_lanes.h"

namespace qvp::layers {

// n / M to the nearest, for n up to M^2. There are no ties, and what is nearest to one is 1 / 2M away from it: more
// than the product by 1 / M errs.
template <class T>
HWY_INLINE Wholes<T> NearestOverMost(Reals<T> n) {
  const auto v = hn::Mul(n, hn::Set(RealTag<T>(), Real<T>{1} / kMost<T>));
  if constexpr (sizeof(T) == 1)
    return RoundToIntInRange(v);
  else
    return hn::Round(v);
}

// n / d to the nearest, halves up, for n up to M d and d up to M^2. A quotient below a tie is 1 / 2d away from it, and
// so is not rounded to it: of floats, whose steps are 2^-16 at most here, 1 / 130050 is just more than half of one.
// Only twice the quotient may be added to: a half could round it up.
template <class T>
HWY_INLINE Wholes<T> NearestQuotient(Reals<T> n, Reals<T> d) {
  const auto q = hn::Div(n, d);
  if constexpr (sizeof(T) == 1) {
    const auto halves = TruncateInRange(hn::Add(q, q));
    return hn::ShiftRight<1>(hn::Add(halves, hn::Set(hn::DFromV<Wholes<T>>(), 1)));
  } else {
    return hn::Floor(hn::Add(q, hn::Set(RealTag<T>(), 0.5)));
  }
}

// Of integers. w1 = F1 a and w2 = F2 b have a sum of M^2 at most: alpha = (w1 + w2) / M, color = (w1 A + w2 B) /
// (w1 + w2). All products and sums are whole numbers that lanes hold: M^3 < 2^24 of bytes. A layer that an operator has
// no term of is no exception, as its weight is 0.
template <class T>
class Straight {
 public:
  explicit Straight(QvpiCompositeOp op)
      : first_(kOperators[op].first, kMost<T>),
        second_(kOperators[op].second, kMost<T>),
        isOver_(op == qvpCompositeFirstOver || op == qvpCompositeFirstAtop) {}

  HWY_INLINE Pixels<Wholes<T>> operator()(const Pixels<Reals<T>>& a, const Pixels<Reals<T>>& b) const {
    const RealTag<T> d;
    if (isOver_ && hn::AllTrue(d, hn::Eq(b.alpha, hn::Set(d, kMost<T>)))) return OverOpaque(a, b);
    const auto w1 = hn::Mul(first_(b.alpha), a.alpha), w2 = hn::Mul(second_(a.alpha), b.alpha), sum = hn::Add(w1, w2);
    const auto alpha = NearestOverMost<T>(sum);
    const auto isClear = hn::Eq(alpha, hn::Zero(hn::DFromV<Wholes<T>>()));
    const auto color = [&](int c) HWY_ATTR {
      const auto weighted = hn::Add(hn::Mul(w1, a.color[c]), hn::Mul(w2, b.color[c]));
      return hn::IfThenZeroElse(isClear, NearestQuotient<T>(weighted, sum));
    };
    return {{color(0), color(1), color(2)}, alpha};
  }

 private:
  // With b = M both weights have a factor of M, and their sum is M^2: nothing is divided.
  static HWY_INLINE Pixels<Wholes<T>> OverOpaque(const Pixels<Reals<T>>& a, const Pixels<Reals<T>>& b) {
    const auto rest = hn::Sub(b.alpha, a.alpha);
    const auto color = [&](int c) HWY_ATTR {
      return NearestOverMost<T>(hn::Add(hn::Mul(a.alpha, a.color[c]), hn::Mul(rest, b.color[c])));
    };
    return {{color(0), color(1), color(2)}, hn::Set(hn::DFromV<Wholes<T>>(), kMost<T>)};
  }

  RealFactor<Real<T>> first_, second_;
  bool isOver_;
};

}  // namespace qvp::layers
