// Products of packed spectra of real images: what convolves and correlates.
#pragma once

#include "transform/packed_runs.h"

namespace qvp::packed {

struct Product {
  template <class V>
  static HWY_INLINE V Re(V aRe, V aIm, V bRe, V bIm) {
    return hn::Sub(hn::Mul(aRe, bRe), hn::Mul(aIm, bIm));
  }
  template <class V>
  static HWY_INLINE V Im(V aRe, V aIm, V bRe, V bIm) {
    return hn::Add(hn::Mul(aRe, bIm), hn::Mul(aIm, bRe));
  }
};
struct ConjugateProduct {  // of the first and the conjugate of the second
  template <class V>
  static HWY_INLINE V Re(V aRe, V aIm, V bRe, V bIm) {
    return hn::Add(hn::Mul(aRe, bRe), hn::Mul(aIm, bIm));
  }
  template <class V>
  static HWY_INLINE V Im(V aRe, V aIm, V bRe, V bIm) {
    return hn::Sub(hn::Mul(aIm, bRe), hn::Mul(aRe, bIm));
  }
};

template <class Op>
Numbers ProductOf(const Numbers& a, const Numbers& b, ptrdiff_t n) {
  Numbers product;
  const auto re = [](auto... parts) HWY_ATTR { return Op::Re(parts...); };
  const auto im = [](auto... parts) HWY_ATTR { return Op::Im(parts...); };
  MapRow<false>(D(), product.re, n, re, a.re, a.im, b.re, b.im);
  MapRow<false>(D(), product.im, n, im, a.re, a.im, b.re, b.im);
  return product;
}

// Each channel of a times that of b, or its conjugate. The result may be in the place of a factor.
template <class Op>
void MultiplyPacked(const Image<const float>& a, const Image<const float>& b, const Image<float>& dst, Size roi) {
  const auto multiplyReal = [&](int c, Place, Place at) {
    Channel<float>(dst, c).Put(at, Channel<const float>(a, c).Get(at) * Channel<const float>(b, c).Get(at));
  };
  ForEachRun(roi, dst.layout, multiplyReal, [&](int c, const Run& run) {
    Numbers x, y;
    LoadPacked({a, c}, run, x);
    LoadPacked({b, c}, run, y);
    StorePacked(ProductOf<Op>(x, y, run.count), run, {dst, c});
  });
}

}  // namespace qvp::packed
