// Loops whose counts are constants, unrolled, and what keeps their registers for sums.
#pragma once

#include <utility>

#include "base/simd.h"

namespace qvp {

// Calls body(0), body(1) ... with constants, so that arrays of vectors stay in registers.
template <int kCount, class Body>
HWY_INLINE void Unrolled(const Body& body) {
  [&]<int... kIndex>(std::integer_sequence<int, kIndex...>) QVP_INLINED {
    (body(std::integral_constant<int, kIndex>()), ...);
  }
  (std::make_integer_sequence<int, kCount>());
}

// A pointer that the compiler knows nothing about, and a place that it moves no loads across. Coefficients are read
// again from memory, which makes vectors of them without the units that add, and pixels when they are needed: loads
// that are brought forward push sums out of the registers.
template <class T>
HWY_INLINE const T* Unknown(const T* p) {
  asm volatile("" : "+r"(p) : : "memory");
  return p;
}

}  // namespace qvp
