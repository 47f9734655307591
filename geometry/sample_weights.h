// The weights of the taps around a point, computed in vectors from its fraction: w[k] is that of tap k, counted from
// the one (taps - 1) / 2 pixels before the point's own.
#pragma once

#include "base/simd.h"
#include "geometry/interpolation_kernels.h"

namespace qvp::sampling {

// c[0] + c[1] x + c[2] x^2 ...
template <class D, class W, int kTerms>
HWY_INLINE hn::Vec<D> Polynomial(D d, const W (&c)[kTerms], hn::Vec<D> x) {
  auto sum = hn::Set(d, c[kTerms - 1]);
  for (int i = kTerms - 2; i >= 0; --i) sum = hn::Add(hn::Mul(sum, x), hn::Set(d, c[i]));
  return sum;
}

template <int kTaps, class W>
class Weigher;

template <class W>
class Weigher<2, W> {
 public:
  explicit Weigher(const CubicPolynomials<W>&) {}

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    w[0] = hn::Sub(hn::Set(d, W{1}), f);
    w[1] = f;
  }
};

template <class W>
class Weigher<4, W> {
 public:
  explicit Weigher(const CubicPolynomials<W>& cubic) : cubic_(cubic) {}

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    for (int k = 0; k < 4; ++k) w[k] = Polynomial(d, cubic_.of[k], f);
  }

 private:
  CubicPolynomials<W> cubic_;
};

// Lanczos of three lobes, sinc(t) sinc(t / 3), divided by the sum of the six weights. In z = f - 1/2 and g = f (1 - f)
//
//   w[k] = linear[k] + g (E[k](z^2) + z O[k](z^2)),  w[5 - k] = linear[5 - k] + g (E[k](z^2) - z O[k](z^2))
//
// for k = 0, 1, 2, where linear is 1 - f for tap 2, f for tap 3 and else 0: the weights at pixels are exactly 0 and 1.
// E[0] + E[1] + E[2] = 0, as the weights sum to 1. The polynomials agree with the kernel at Chebyshev's nodes of
// z^2 <= 1/4; their weights are off by less than 2e-9 with 6 terms, and 1e-16 with 11.
template <class W>
struct LanczosPolynomials;

template <>
struct LanczosPolynomials<float> {
  static constexpr float kEven[2][6] = {
      {0.09782608759f, 0.03882082767f, -0.07278489582f, 0.02860105805f, -0.01617637253f, 0.008424804226f},
      {-0.5434782601f, 0.1091678083f, -0.02053233168f, 0.04424649075f, -0.02599813958f, 0.009158413066f}};
  static constexpr float kOdd[3][6] = {
      {-0.2556977625f, 0.217218118f, -0.09986919227f, 0.06651881674f, -0.04369765295f, 0.01849381973f},
      {0.7246376778f, -0.4676176042f, 0.235175513f, -0.1629891218f, 0.1030256432f, -0.04350029414f},
      {-1.346686331f, 0.7946075423f, -0.4674964466f, 0.3148125266f, -0.1928222472f, 0.08252235819f}};
};

template <>
struct LanczosPolynomials<double> {
  static constexpr double kEven[2][11] = {
      {0.09782608695652178, 0.03882100952454842, -0.07279347584528117, 0.02875084433568276, -0.01738318778582511,
       0.013131227098683874, -0.008195120940852072, 0.00511977948443795, -0.003240761682464799, 0.0017734075732867408,
       -0.0006025846659540303},
      {-0.5434782608695652, 0.10916802815356763, -0.020542714788430134, 0.04442817441435347, -0.027468105779974033,
       0.014937103983467433, -0.010243170358014956, 0.00671115860839923, -0.004099586904065928, 0.0022390035665570468,
       -0.0007697597743539064}};
  static constexpr double kOdd[3][11] = {
      {-0.2556977638924777, 0.21721851967353487, -0.0998881562442215, 0.06685038028682551, -0.04637640222468242,
       0.028996466980858813, -0.01851355998989647, 0.011982391767649165, -0.00746445623821495, 0.0040663406791779134,
       -0.0013896086425701955},
      {0.7246376811594201, -0.4676185624976709, 0.23522075857991823, -0.16378012364209374, 0.10941525550108887,
       -0.06854417785167163, 0.04411043093630064, -0.02846909098094803, 0.017717014147641142, -0.009661356412619023,
       0.0033022443408774462},
      {-1.3466863374706624, 0.7946093738323097, -0.4675829130071101, 0.31632392442815477, -0.2050275036128031,
       0.13033260521736725, -0.0840938423646346, 0.05404796384010555, -0.03365610963945123, 0.018369744232324584,
       -0.006276763152272334}};
};

template <class W>
class Weigher<6, W> {
 public:
  explicit Weigher(const CubicPolynomials<W>&) {}

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    using P = LanczosPolynomials<W>;
    const auto rest = hn::Sub(hn::Set(d, W{1}), f), z = hn::Sub(f, hn::Set(d, W{0.5}));
    const auto g = hn::Mul(f, rest), gz = hn::Mul(g, z), square = hn::Mul(z, z);
    const auto even0 = hn::Mul(g, Polynomial(d, P::kEven[0], square));
    const auto even1 = hn::Mul(g, Polynomial(d, P::kEven[1], square));
    const hn::Vec<D> even[3] = {even0, even1, hn::Neg(hn::Add(even0, even1))};
    for (int k = 0; k < 3; ++k) {
      const auto odd = hn::Mul(gz, Polynomial(d, P::kOdd[k], square));
      w[k] = hn::Add(even[k], odd);
      w[5 - k] = hn::Sub(even[k], odd);
    }
    w[2] = hn::Add(rest, w[2]);
    w[3] = hn::Add(f, w[3]);
  }
};

}  // namespace qvp::sampling
