// The arc tangent of t in [0, 1], as t times a polynomial of t^2 that interpolates at the Chebyshev nodes.
#pragma once

#include <type_traits>

#include "base/simd.h"

namespace qvp {

template <class T>
struct ArcTangentTerms;

// An error of 3e-6.
template <>
struct ArcTangentTerms<float> {
  static constexpr float kTerms[] = {0x1.ffff52p-1f,  -0x1.54f2b6p-2f, 0x1.9011ep-3f,
                                     -0x1.ed5b7ep-4f, 0x1.cf95ccp-5f,  -0x1.ae41ap-7f};
};

// An error of a part in 2^34.
template <>
struct ArcTangentTerms<double> {
  static constexpr double kTerms[] = {
      0x1.fffffffffc08dp-1,  -0x1.555555492919bp-2, 0x1.999993588be50p-3,  -0x1.2491a58a84f79p-3, 0x1.c70acca583a29p-4,
      -0x1.73c9222b3c105p-4, 0x1.37e13200ba7bdp-4,  -0x1.04c14d1e62a91p-4, 0x1.9d54f58e6c973p-5,  -0x1.20e9b1c6f031fp-5,
      0x1.46a78dbcea834p-6,  -0x1.0e11e58ae3a43p-7, 0x1.1b7b1996eeccdp-9,  -0x1.178d203700392p-12};
};

template <class V>
HWY_INLINE V ArcTangent(V t) {
  const hn::DFromV<V> d;
  constexpr auto& kTerms = ArcTangentTerms<hn::TFromV<V>>::kTerms;
  constexpr int kLast = static_cast<int>(std::extent_v<std::remove_reference_t<decltype(kTerms)>>) - 1;
  const V t2 = hn::Mul(t, t);
  V sum = hn::Set(d, kTerms[kLast]);
  for (int i = kLast - 1; i >= 0; --i) sum = hn::Add(hn::Mul(sum, t2), hn::Set(d, kTerms[i]));
  return hn::Mul(sum, t);
}

}  // namespace qvp
