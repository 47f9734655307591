// Numbers of the block, and what real lines of even and odd lengths are beside complex ones.
#pragma once

#include "signal/dft_passes.h"

namespace qvp::dft {

template <class T>
const T* Table(const DftPlan& plan, int64_t offset) {
  return reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(&plan) + offset);
}

template <int kLines>
HWY_INLINE Complex<hn::Vec<hn::CappedTag<float, kLines>>> LoadNumber(const float* block, ptrdiff_t place,
                                                                     ptrdiff_t lane) {
  const hn::CappedTag<float, kLines> d;
  return {hn::LoadU(d, block + 2 * place * kLines + lane), hn::LoadU(d, block + (2 * place + 1) * kLines + lane)};
}

template <int kLines, class C>
HWY_INLINE void StoreNumber(const C& x, float* block, ptrdiff_t place, ptrdiff_t lane) {
  const hn::CappedTag<float, kLines> d;
  hn::StoreU(x.re, d, block + 2 * place * kLines + lane);
  hn::StoreU(x.im, d, block + (2 * place + 1) * kLines + lane);
}

// Calls visit(first lane of a vector) for all lanes.
template <int kLines, class Visit>
HWY_INLINE void ForEachLane(const Visit& visit) {
  for (ptrdiff_t lane = 0; lane < kLines;
       lane += static_cast<ptrdiff_t>(hn::MaxLanes(hn::CappedTag<float, kLines>()))) {
    visit(lane);
  }
}

// w O forward and i O back, from the difference i O: the w of the inverse is the conjugate.
template <Direction kDirection, class C>
HWY_INLINE C TurnedOdd(const C& difference, const C& w) {
  if constexpr (kDirection == Direction::kForward) return C{difference.im, hn::Neg(difference.re)} * w;
  const C odd = difference * C{w.re, hn::Neg(w.im)};
  return C{hn::Neg(odd.im), odd.re};
}

// Z, the spectrum of x[2 j] + i x[2 j + 1], to X, that of the real x of n = 2 m numbers, and X to 2 Z:
//   X[k] = E + w^k O, X[m - k] = conj(E - w^k O), w = e^(-2 pi i / n),
//   2 E = Z[k] + conj(Z[m - k]), 2 i O = Z[k] - conj(Z[m - k]).
template <Direction kDirection, int kLines>
void ConvertHalved(const DftPlan& plan, float* block) {
  const hn::CappedTag<float, kLines> d;
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float* const twiddles = Table<float>(plan, plan.realTwiddles);
  constexpr bool kForward = kDirection == Direction::kForward;
  const auto placeOf = [&](int64_t k) { return kForward ? ptrdiff_t{places[k]} : static_cast<ptrdiff_t>(k); };
  ForEachLane<kLines>([&](ptrdiff_t lane) {
    const auto zero = LoadNumber<kLines>(block, placeOf(0), lane);
    using C = std::remove_const_t<decltype(zero)>;
    StoreNumber<kLines>(C{hn::Add(zero.re, zero.im), hn::Sub(zero.re, zero.im)}, block, placeOf(0), lane);
  });
  const auto half = hn::Set(d, kForward ? 0.5f : 1.0f);
  for (int64_t k = 1, m = plan.complexLength; k <= m / 2; ++k) {
    const auto w = Factor(d, twiddles + 2 * k);
    const ptrdiff_t near = placeOf(k), far = placeOf(m - k);
    ForEachLane<kLines>([&](ptrdiff_t lane) {
      const auto a = LoadNumber<kLines>(block, near, lane), b = LoadNumber<kLines>(block, far, lane);
      using C = std::remove_const_t<decltype(a)>;
      const C conjugate{b.re, hn::Neg(b.im)};
      const C even = half * (a + conjugate), turned = TurnedOdd<kDirection>(half * (a - conjugate), w);
      const C other = even - turned;
      StoreNumber<kLines>(C{other.re, hn::Neg(other.im)}, block, far, lane);
      StoreNumber<kLines>(even + turned, block, near, lane);
    });
  }
}

// Of odd lengths, the second half of the spectrum is the first one's mirrored conjugate.
template <int kLines>
void Mirror(const DftPlan& plan, float* block) {
  ForEachLane<kLines>([&](ptrdiff_t lane) {
    const hn::CappedTag<float, kLines> d;
    hn::StoreU(hn::Zero(d), d, block + kLines + lane);
    for (int64_t k = 1; k <= plan.length / 2; ++k) {
      auto x = LoadNumber<kLines>(block, k, lane);
      x.im = hn::Neg(x.im);
      StoreNumber<kLines>(x, block, plan.length - k, lane);
    }
  });
}

}  // namespace qvp::dft
