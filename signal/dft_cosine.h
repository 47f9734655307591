// What cosine transforms are beside Fourier transforms of real lines: the order of a line, and spectra turned in the
// block.
#pragma once

#include "signal/dft_real.h"

namespace qvp::dft {

// Where number i of a line of n comes in the order that is transformed: even places, then odd ones backwards.
inline ptrdiff_t OrderOf(ptrdiff_t i, ptrdiff_t n) { return i % 2 == 0 ? i / 2 : n - (i + 1) / 2; }

// The row of the block that cosine k of n has, where number j has rows 2 place(j) and 2 place(j) + 1: with the cosine k
// goes n - k; the middle one of an even length is in the imaginary part of the first number, as in spectra.
template <class PlaceOf>
HWY_INLINE ptrdiff_t RowOfCosine(ptrdiff_t k, ptrdiff_t n, const PlaceOf& placeOf) {
  if (2 * k == n) return 1;
  return 2 * k < n ? 2 * placeOf(k) : 2 * placeOf(n - k) + 1;
}

// The real and the imaginary part of V[k] to C[k] and C[n - k], and back: turned by pi k / (2 n) and reflected, which
// is its own inverse.
template <Direction kDirection, int kLines>
void TurnSpectrum(const DftPlan& plan, float* block) {
  const hn::CappedTag<float, kLines> d;
  const int32_t* const places = Table<int32_t>(plan, plan.places);
  const float* const pairs = Table<float>(plan, plan.cosines);
  constexpr bool kForward = kDirection == Direction::kForward;
  const auto n = static_cast<ptrdiff_t>(plan.length);
  for (ptrdiff_t k = 1; k < (n + 1) / 2; ++k) {
    const auto w = Factor(d, pairs + 2 * k);  // the sine is negative
    const ptrdiff_t place = kForward ? ptrdiff_t{places[k]} : k;
    ForEachLane<kLines>([&](ptrdiff_t lane) {
      const auto x = LoadNumber<kLines>(block, place, lane);
      using C = std::remove_const_t<decltype(x)>;
      StoreNumber<kLines>(C{hn::Sub(hn::Mul(x.re, w.re), hn::Mul(x.im, w.im)),
                            hn::Neg(hn::Add(hn::Mul(x.re, w.im), hn::Mul(x.im, w.re)))},
                          block, place, lane);
    });
  }
  const auto ofMean = hn::Set(d, plan.ofMean[!kForward]);
  const auto ofMiddle = hn::Set(d, n % 2 == 0 ? (kForward ? 1 : 2) * pairs[n] : 1);
  ForEachLane<kLines>([&](ptrdiff_t lane) {
    auto x = LoadNumber<kLines>(block, 0, lane);
    x.re = hn::Mul(x.re, ofMean);
    if (n % 2 == 0) x.im = hn::Mul(x.im, ofMiddle);
    StoreNumber<kLines>(x, block, 0, lane);
  });
}

}  // namespace qvp::dft
