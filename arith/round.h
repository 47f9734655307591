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
// itself rounds to the nearest.
template <class Then>
auto WithRounding(QvpRoundMode mode, const Then& then) {
  switch (mode) {
    case qvpRoundZero: return then([](auto v) HWY_ATTR { return Rounded<qvpRoundZero>(v); });
    case qvpRoundNear: return then([](auto v) HWY_ATTR { return v; });
    default: return then([](auto v) HWY_ATTR { return Rounded<qvpRoundFinancial>(v); });
  }
}

}  // namespace qvp
