// Products of packed spectra of real images: what convolves and correlates.
#pragma once

#include "transform/packed_runs.h"

namespace qvp::packed {

struct Product {
  template <class V>
  static HWY_INLINE void Of(V aRe, V aIm, V bRe, V bIm, V& re, V& im) {
    re = hn::Sub(hn::Mul(aRe, bRe), hn::Mul(aIm, bIm));
    im = hn::Add(hn::Mul(aRe, bIm), hn::Mul(aIm, bRe));
  }
};
struct ConjugateProduct {  // of the first and the conjugate of the second
  template <class V>
  static HWY_INLINE void Of(V aRe, V aIm, V bRe, V bIm, V& re, V& im) {
    re = hn::Add(hn::Mul(aRe, bRe), hn::Mul(aIm, bIm));
    im = hn::Sub(hn::Mul(aIm, bRe), hn::Mul(aRe, bIm));
  }
};

// The numbers of a run from those of two spectra: combine(i, a's parts, b's parts, the result's parts) for vectors from
// number i of the run on. Those of rows are taken from and put to where they lie.
template <class Combine>
void CombineRun(const Channel<const float>& a, const Channel<const float>& b, const Run& run, const Channel<float>& to,
                const Combine& combine) {
  const ptrdiff_t stride = a.Distance(run.next), imaginary = a.At(run.im) - a.At(run.re);
  ptrdiff_t i = 0;
  hn::Vec<D> aRe, aIm, bRe, bIm, re, im;
  if (ArePairs(imaginary, stride) && b.Distance(run.next) == stride && to.Distance(run.next) == stride) {
    for (; i + kLanes <= run.count; i += kLanes) {
      hn::LoadInterleaved2(D(), reinterpret_cast<const float*>(a.At(run.re) + i * stride), aRe, aIm);
      hn::LoadInterleaved2(D(), reinterpret_cast<const float*>(b.At(run.re) + i * stride), bRe, bIm);
      combine(i, aRe, aIm, bRe, bIm, re, im);
      hn::StoreInterleaved2(re, im, D(), reinterpret_cast<float*>(to.At(run.re) + i * stride));
    }
  }
  if (i == run.count) return;
  const Run rest = run.From(i);
  Numbers x{}, y{};
  LoadPacked(a, rest, x);
  LoadPacked(b, rest, y);
  for (ptrdiff_t k = 0; k < rest.count; k += kLanes) {
    combine(i + k, hn::Load(D(), x.re + k), hn::Load(D(), x.im + k), hn::Load(D(), y.re + k), hn::Load(D(), y.im + k),
            re, im);
    hn::Store(re, D(), x.re + k);
    hn::Store(im, D(), x.im + k);
  }
  StorePacked(x, rest, to);
}

// Each channel of a times that of b, or its conjugate. The result may be in the place of a factor.
template <class Op>
void MultiplyPacked(const Image<const float>& a, const Image<const float>& b, const Image<float>& dst, Size roi) {
  const auto multiplyReal = [&](int c, Place, Place at) {
    Channel<float>(dst, c).Put(at, Channel<const float>(a, c).Get(at) * Channel<const float>(b, c).Get(at));
  };
  ForEachRun(roi, dst.layout, multiplyReal, [&](int c, const Run& run) {
    CombineRun({a, c}, {b, c}, run, {dst, c},
               [](ptrdiff_t, auto aRe, auto aIm, auto bRe, auto bIm, auto& re, auto& im)
                   HWY_ATTR { Op::Of(aRe, aIm, bRe, bIm, re, im); });
  });
}

}  // namespace qvp::packed
