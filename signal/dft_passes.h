// The passes of a mixed-radix transform, in place, over complex numbers whose lanes are independent lines, of floats or
// of doubles.
//
// A pass of factor p works on pieces of p m numbers. Downward (decimation in frequency; Gentleman and Sande, 1966)
//   y[k m + j] = w^(j k) sum over q of x[q m + j] v^(q k),   w = e^(-2 pi i / (p m)), v = e^(-2 pi i / p),
// takes numbers in order to frequencies at the plan's places; upward, its transpose takes them from there to order.
#pragma once

#include "base/simd.h"
#include "signal/dft.h"

namespace qvp::dft {

constexpr bool HasOwnButterfly(int factor) { return factor <= 5 || factor == 8; }

// Where the lanes of real and of imaginary parts are in a number, in multiples of the lanes. With both exchanged, a
// forward transform is an inverse one.
struct Planes {
  int re, im;
};

template <class V>
struct Complex {
  V re, im;
  HWY_INLINE friend Complex operator+(Complex a, Complex b) { return {hn::Add(a.re, b.re), hn::Add(a.im, b.im)}; }
  HWY_INLINE friend Complex operator-(Complex a, Complex b) { return {hn::Sub(a.re, b.re), hn::Sub(a.im, b.im)}; }
  HWY_INLINE friend Complex operator*(Complex a, Complex b) {
    return {hn::Sub(hn::Mul(a.re, b.re), hn::Mul(a.im, b.im)), hn::Add(hn::Mul(a.re, b.im), hn::Mul(a.im, b.re))};
  }
  HWY_INLINE friend Complex operator*(V a, Complex b) { return {hn::Mul(a, b.re), hn::Mul(a, b.im)}; }
};

// a - i b and a + i b.
template <class V>
HWY_INLINE Complex<V> MinusI(Complex<V> a, Complex<V> b) {
  return {hn::Add(a.re, b.im), hn::Sub(a.im, b.re)};
}
template <class V>
HWY_INLINE Complex<V> PlusI(Complex<V> a, Complex<V> b) {
  return {hn::Sub(a.re, b.im), hn::Add(a.im, b.re)};
}

// A constant of a butterfly, rounded to the lanes' type.
template <class D>
HWY_INLINE hn::Vec<D> Constant(D d, double value) {
  return hn::Set(d, static_cast<hn::TFromD<D>>(value));
}

// The same factor for all lanes.
template <class D>
HWY_INLINE Complex<hn::Vec<D>> Factor(D d, const hn::TFromD<D>* pair) {
  return {hn::Set(d, pair[0]), hn::Set(d, pair[1])};
}

// ---- Butterflies: transforms of p numbers in registers.

template <int kFactor>
struct Butterfly;

template <>
struct Butterfly<2> {
  template <class V>
  HWY_INLINE static void Apply(Complex<V>* x) {
    const Complex<V> a = x[0], b = x[1];
    x[0] = a + b;
    x[1] = a - b;
  }
};

template <>
struct Butterfly<3> {
  template <class V>
  HWY_INLINE static void Apply(Complex<V>* x) {
    const hn::DFromV<V> d;
    const Complex<V> sum = x[1] + x[2], turned = Constant(d, 0x1.bb67ae8584caap-1) * (x[1] - x[2]);
    const Complex<V> rest = x[0] - Constant(d, 0.5) * sum;
    x[0] = x[0] + sum;
    x[1] = MinusI(rest, turned);
    x[2] = PlusI(rest, turned);
  }
};

template <>
struct Butterfly<4> {
  template <class V>
  HWY_INLINE static void Apply(Complex<V>* x) {
    const Complex<V> a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], e = x[1] - x[3];
    x[0] = a + c;
    x[1] = MinusI(b, e);
    x[2] = a - c;
    x[3] = PlusI(b, e);
  }
};

template <>
struct Butterfly<5> {
  template <class V>
  HWY_INLINE static void Apply(Complex<V>* x) {
    const hn::DFromV<V> d;
    const V cos1 = Constant(d, 0x1.3c6ef372fe95p-2), cos2 = Constant(d, -0x1.9e3779b97f4a8p-1);
    const V sin1 = Constant(d, 0x1.e6f0e134454ffp-1), sin2 = Constant(d, 0x1.2cf2304755a5ep-1);
    const Complex<V> a = x[1] + x[4], b = x[1] - x[4], c = x[2] + x[3], e = x[2] - x[3], first = x[0];
    const Complex<V> even1 = first + (cos1 * a + cos2 * c), even2 = first + (cos2 * a + cos1 * c);
    const Complex<V> odd1 = sin1 * b + sin2 * e, odd2 = sin2 * b - sin1 * e;
    x[0] = first + (a + c);
    x[1] = MinusI(even1, odd1);
    x[2] = MinusI(even2, odd2);
    x[3] = PlusI(even2, odd2);
    x[4] = PlusI(even1, odd1);
  }
};

// The even and the odd numbers by fours, then joined: (1 - i) / sqrt(2) and its like are turns by 45 degrees.
template <>
struct Butterfly<8> {
  template <class V>
  HWY_INLINE static void Apply(Complex<V>* x) {
    const hn::DFromV<V> d;
    const V root = Constant(d, 0x1.6a09e667f3bcdp-1);
    Complex<V> even[] = {x[0], x[2], x[4], x[6]}, odd[] = {x[1], x[3], x[5], x[7]};
    Butterfly<4>::Apply(even);
    Butterfly<4>::Apply(odd);
    odd[1] = root * MinusI(odd[1], odd[1]);
    odd[3] = root * PlusI(odd[3], odd[3]);
    x[0] = even[0] + odd[0];
    x[4] = even[0] - odd[0];
    x[1] = even[1] + odd[1];
    x[5] = even[1] - odd[1];
    x[2] = MinusI(even[2], odd[2]);
    x[6] = PlusI(even[2], odd[2]);
    x[3] = even[3] - odd[3];
    x[7] = even[3] + odd[3];
  }
};

// Any odd p: the sums and the differences of numbers k and p - k go with cosines and with sines.
template <class V>
HWY_INLINE void ApplyPrime(Complex<V>* x, int p, const hn::TFromV<V>* pairs) {
  const hn::DFromV<V> d;
  Complex<V> y[kLargestFactor];
  y[0] = x[0];
  for (int k = 1; k <= p / 2; ++k) {
    const Complex<V> sum = x[k] + x[p - k], difference = x[k] - x[p - k];
    y[0] = y[0] + sum;
    x[k] = sum;
    x[p - k] = difference;
  }
  for (int q = 1; q <= p / 2; ++q) {
    Complex<V> even = x[0], odd{hn::Zero(d), hn::Zero(d)};
    for (int k = 1, at = q; k <= p / 2; ++k, at += at + q >= p ? q - p : q) {
      even = even + hn::Set(d, pairs[2 * at]) * x[k];
      odd = odd + hn::Set(d, pairs[2 * at + 1]) * x[p - k];
    }
    y[q] = PlusI(even, odd);
    y[p - q] = MinusI(even, odd);
  }
  for (int k = 0; k < p; ++k) x[k] = y[k];
}

// ---- Passes.

enum class Order { kDown, kUp };

template <class D, class V = hn::Vec<D>>
HWY_INLINE void MultiplyByTwiddles(D d, int p, const hn::TFromD<D>* pairs, Complex<V>* x) {
  for (int k = 1; k < p; ++k) x[k] = x[k] * Factor(d, pairs + 2 * (k - 1));
}

// A pass over all of the block. kFactor is 0 for a prime that is only known at run time.
template <int kFactor, Order kOrder, bool kHasTwiddles, int kLines, class F = float>
void Pass(F* block, Planes planes, int64_t length, int64_t m, int factor, const F* twiddles, const F* primes) {
  const hn::CappedTag<F, kLines> d;
  using V = hn::Vec<decltype(d)>;
  constexpr int kMost = kFactor ? kFactor : kLargestFactor;
  const int p = kFactor ? kFactor : factor;
  const ptrdiff_t number = 2 * kLines, distance = m * number, toRe = planes.re * kLines, toIm = planes.im * kLines;
  for (F *piece = block, *end = block + length * number; piece < end; piece += p * distance) {
    const F* pairs = twiddles;
    for (F* at = piece; at < piece + distance; at += number, pairs += 2 * (p - 1)) {
      for (ptrdiff_t lane = 0; lane < kLines; lane += static_cast<ptrdiff_t>(hn::Lanes(d))) {
        F *const re = at + toRe + lane, *const im = at + toIm + lane;
        Complex<V> x[kMost];
        for (int k = 0; k < p; ++k) x[k] = {hn::LoadU(d, re + k * distance), hn::LoadU(d, im + k * distance)};
        if constexpr (kHasTwiddles && kOrder == Order::kUp) MultiplyByTwiddles(d, p, pairs, x);
        if constexpr (kFactor) {
          Butterfly<kFactor>::Apply(x);
        } else {
          ApplyPrime(x, p, primes);
        }
        if constexpr (kHasTwiddles && kOrder == Order::kDown) MultiplyByTwiddles(d, p, pairs, x);
        for (int k = 0; k < p; ++k) {
          hn::StoreU(x[k].re, d, re + k * distance);
          hn::StoreU(x[k].im, d, im + k * distance);
        }
      }
    }
  }
}

template <Order kOrder, bool kHasTwiddles, int kLines>
void AnyPass(float* block, Planes planes, int64_t length, int64_t m, int factor, const float* twiddles,
             const float* primes) {
  const auto pass = factor == 4   ? Pass<4, kOrder, kHasTwiddles, kLines>
                    : factor == 2 ? Pass<2, kOrder, kHasTwiddles, kLines>
                    : factor == 3 ? Pass<3, kOrder, kHasTwiddles, kLines>
                    : factor == 8 ? Pass<8, kOrder, kHasTwiddles, kLines>
                    : factor == 5 ? Pass<5, kOrder, kHasTwiddles, kLines>
                                  : Pass<0, kOrder, kHasTwiddles, kLines>;
  pass(block, planes, length, m, factor, twiddles, primes);
}

// n / p, which is whole; a division takes as long as a butterfly.
constexpr int64_t Divided(int64_t n, int p) { return p == 4 ? n >> 2 : p == 8 ? n >> 3 : n / p; }

// Passes [begin, end) downward: all of them take numbers in order to frequencies at their places.
template <int kLines>
void RunPasses(const DftPlan& plan, const uint8_t* base, Planes planes, float* block, int begin, int end) {
  const float* twiddles = reinterpret_cast<const float*>(base + plan.twiddles);
  const float* primes = reinterpret_cast<const float*>(base + plan.primes);
  const int64_t length = plan.BlockLength();
  int64_t m = length;
  for (int i = 0; i < end; ++i) {
    const int p = plan.factors[i];
    m = Divided(m, p);
    if (i >= begin) {
      const auto pass = m == 1 ? AnyPass<Order::kDown, false, kLines> : AnyPass<Order::kDown, true, kLines>;
      pass(block, planes, length, m, p, twiddles, primes);
    }
    twiddles += 2 * m * (p - 1);
    if (!HasOwnButterfly(p)) primes += 2 * p;
  }
}

// All passes upward, of a power of two: numbers at the places of frequencies to frequencies in order.
template <int kLines>
void RunPassesUpward(const DftPlan& plan, const uint8_t* base, Planes planes, float* block) {
  const int64_t length = plan.BlockLength();
  const float* twiddles = reinterpret_cast<const float*>(base + plan.twiddles) + 2 * (length - 1);
  int64_t m = 1;
  for (int i = plan.factorCount - 1; i >= 0; --i) {
    const int p = plan.factors[i];
    twiddles -= 2 * m * (p - 1);
    const auto pass = p == 8   ? Pass<8, Order::kUp, true, kLines>
                      : p == 4 ? Pass<4, Order::kUp, true, kLines>
                               : Pass<2, Order::kUp, true, kLines>;
    pass(block, planes, length, m, p, twiddles, nullptr);
    m *= p;
  }
}

}  // namespace qvp::dft
