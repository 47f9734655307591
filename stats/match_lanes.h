// Whole numbers of 64 bits as doubles and back, which not every instruction set has.
#pragma once

#include "base/lanes.h"

namespace qvp::matching {

// Whole numbers beside this are its last bits.
inline constexpr double kWholeMagic = 0x1.8p52;

// Below 2^51 in magnitude.
template <class D>
HWY_INLINE hn::Vec<D> ToDouble(D d, hn::Vec<hn::Rebind<int64_t, D>> v) {
  const hn::Rebind<int64_t, D> ints;
  const auto magic = hn::Set(d, kWholeMagic);
  return hn::Sub(hn::BitCast(d, hn::Add(v, hn::BitCast(ints, magic))), magic);
}

// Sums as doubles; of 64 bits such ones as above.
template <class D, class N>
HWY_INLINE hn::Vec<D> LoadSums(D d, const N* from) {
  if constexpr (std::is_same_v<N, int64_t>) {
    return ToDouble(d, hn::LoadU(hn::Rebind<int64_t, D>(), from));
  } else {
    return LoadWide(d, from);
  }
}

// The same back, rounded to the nearest.
template <class D>
HWY_INLINE hn::Vec<hn::Rebind<int64_t, D>> ToWhole(D d, hn::Vec<D> v) {
  const hn::Rebind<int64_t, D> ints;
  const auto magic = hn::Set(d, kWholeMagic);
  return hn::Sub(hn::BitCast(ints, hn::Add(v, magic)), hn::BitCast(ints, magic));
}

}  // namespace qvp::matching
