// The rounding modes, in one place: a value between two integers becomes one of them.
#pragma once

#include "base/simd.h"
#include "qvptypes.h"

namespace qvp {

constexpr bool IsRoundMode(int mode) { return mode >= qvpRoundZero && mode <= qvpRoundFinancial; }

// Of float lanes, exact for every value: adding one half first would carry what lies just below it.
template <QvpRoundMode kMode, class V>
HWY_INLINE V Rounded(V v) {
  static_assert(kMode == qvpRoundZero || kMode == qvpRoundFinancial);
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  const V whole = hn::Trunc(v);
  if constexpr (kMode == qvpRoundZero) return whole;
  const auto away = hn::Ge(hn::Abs(hn::Sub(v, whole)), hn::Set(d, F{0.5}));
  return hn::Add(whole, hn::IfThenElseZero(away, hn::CopySignToAbs(hn::Set(d, F{1}), v)));
}

// Calls then(rounding) with a rounding of float lanes, for results that are narrowed to integers next: the narrowing
// itself rounds to the nearest. What is no mode counts as the last one.
template <class Then>
auto WithRounding(QvpRoundMode mode, const Then& then) {
  switch (mode) {
    case qvpRoundZero: return then([](auto v) HWY_ATTR { return Rounded<qvpRoundZero>(v); });
    case qvpRoundNear: return then([](auto v) HWY_ATTR { return v; });
    default: return then([](auto v) HWY_ATTR { return Rounded<qvpRoundFinancial>(v); });
  }
}

// Integer lanes: v / 2^shift, rounded: (v + addend + ((v >> from) & mask)) >> shift, where
//   mode 0  adds 2^shift - 1 to negative numbers
//   mode 1  adds half - 1, and 1 more to what would become odd
//   mode 2  adds half, and 1 less to negative numbers
template <class L>
struct ShiftRounding {
  L addend = 0, mask = 0;
  int from = 0, shift = 0;

  ShiftRounding() = default;
  ShiftRounding(int mode, int bits) : shift(bits) {
    if (bits == 0) return;
    const L half = static_cast<L>(L{1} << (bits - 1));
    from = mode == qvpRoundNear ? bits : 8 * int{sizeof(L)} - 1;
    addend = static_cast<L>(mode == qvpRoundZero ? 0 : mode == qvpRoundNear ? half - 1 : half);
    mask = static_cast<L>(mode == qvpRoundZero ? 2 * half - 1 : mode == qvpRoundNear ? 1 : -1);
  }
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V v) const {
    return hn::ShiftRightSame(hn::Add(hn::Add(v, hn::Set(d, addend)), Extra(d, v)), shift);
  }
  // For results so narrow that a saturated sum stands for any greater one.
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Saturated(D d, V v) const {
    return hn::ShiftRightSame(hn::SaturatedAdd(v, hn::Add(hn::Set(d, addend), Extra(d, v))), shift);
  }

 private:
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Extra(D d, V v) const {
    return hn::And(hn::ShiftRightSame(v, from), hn::Set(d, mask));
  }
};

}  // namespace qvp
