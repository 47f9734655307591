// Sums and products of floats, the same to the bit in every build.
#pragma once

#include "base/simd.h"

namespace qvp {

// `result` of a commutative operation, where `a` is NaN replaced by it, made quiet. The CPU takes the NaN of its first
// operand, and compilers choose which one that is.
template <class V>
HWY_INLINE V WithNanOf(V a, V result) {
  const hn::DFromV<V> d;
  const V quiet = hn::BitCast(d, hn::Set(hn::RebindToUnsigned<decltype(d)>(), 0x00400000));
  return hn::IfThenElse(hn::IsNaN(a), hn::Or(a, quiet), result);
}

}  // namespace qvp
