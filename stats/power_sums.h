// Sums of the samples of a row times powers of their columns.
#pragma once

#include "base/lanes.h"
#include "base/pairs.h"

namespace qvp::stats {

// Sums of x^m v over a stretch of a row, for m = 0 to 3.
template <class V>
struct PowerSums {
  V s[4] = {};
};

// The same sums for columns counted from a place that is `by` further left.
template <class V>
PowerSums<V> Shifted(const PowerSums<V>& p, V by) {
  return {{p.s[0], p.s[1] + by * p.s[0], p.s[2] + by * (2 * p.s[1] + by * p.s[0]),
           p.s[3] + by * (3 * p.s[2] + by * (3 * p.s[1] + by * p.s[0]))}};
}

// Integers. A row is cut into groups of 64 columns, in which a column is u from -32 to 31, so that u^3 fits 16 bits.
// With values up to 255, products of pairs are added up over a group in 32-bit lanes:
//   t0 = sum v, t1 = sum u v, t2 = sum u^2 v, t3 = sum u^3 v
// With k for the number of the group, counted from the last one, running sums give what the groups' places weigh:
//   sum t, sum k t, sum C(k, 2) t, sum C(k, 3) t
// For 32 groups the largest lane stays below 2^31, even with vectors of four lanes: 4177920 t2 times C(32, 2) = 496.
inline constexpr int kGroup = 64;
inline constexpr ptrdiff_t kIntegerStretch = 32 * kGroup;

struct GroupPowers {
  HWY_ALIGN int16_t u[3][kGroup];
};
inline constexpr GroupPowers kPowers = [] {
  GroupPowers powers{};
  for (int i = 0; i < kGroup; ++i) {
    const int u = i - kGroup / 2;
    powers.u[0][i] = static_cast<int16_t>(u);
    powers.u[1][i] = static_cast<int16_t>(u * u);
    powers.u[2][i] = static_cast<int16_t>(u * u * u);
  }
  return powers;
}();

class GroupSums {
 public:
  using D = hn::ScalableTag<int16_t>;
  using Sums = hn::ScalableTag<int32_t>;
  using V = hn::Vec<Sums>;

  // `groups` groups; at(place) gives the vector of values of 0 to 255 at a place of the stretch.
  template <class At>
  HWY_INLINE PowerSums<int64_t> Of(ptrdiff_t groups, const At& at) {
    V a0 = hn::Zero(Sums()), a1 = a0, a2 = a0, a3 = a0, b0 = a0, b1 = a0, b2 = a0, c0 = a0, c1 = a0, d0 = a0;
    for (ptrdiff_t g = 0; g < groups; ++g) {
      V t0 = hn::Zero(Sums()), t1 = t0, t2 = t0, t3 = t0;
      for (int i = 0; i < kGroup; i += kLanes) {
        const auto v = at(g * kGroup + i);
        t0 = MultiplyAdd(v, hn::Set(D(), int16_t{1}), t0);
        t1 = MultiplyAdd(v, hn::Load(D(), kPowers.u[0] + i), t1);
        t2 = MultiplyAdd(v, hn::Load(D(), kPowers.u[1] + i), t2);
        t3 = MultiplyAdd(v, hn::Load(D(), kPowers.u[2] + i), t3);
      }
      a3 = hn::Add(a3, a2), a2 = hn::Add(a2, a1), a1 = hn::Add(a1, a0), a0 = hn::Add(a0, t0);
      b2 = hn::Add(b2, b1), b1 = hn::Add(b1, b0), b0 = hn::Add(b0, t1);
      c1 = hn::Add(c1, c0), c0 = hn::Add(c0, t2);
      d0 = hn::Add(d0, t3);
    }
    if (groups == 1) return Shifted<int64_t>({{Sum(a0), Sum(b0), Sum(c0), Sum(d0)}}, kGroup / 2);
    // Powers of k from its binomials: k^2 = 2 C(k, 2) + k, k^3 = 6 C(k, 3) + 6 C(k, 2) + k.
    const int64_t k0 = Sum(a0), k1 = Sum(a1), k2 = 2 * Sum(a2) + k1, k3 = 6 * (Sum(a3) + Sum(a2)) + k1;
    const int64_t u0 = Sum(b0), u1 = Sum(b1), u2 = 2 * Sum(b2) + u1, w0 = Sum(c0), w1 = Sum(c1);
    // A column is u - 64 k from the middle of the last group.
    constexpr int64_t kW = kGroup;
    const PowerSums<int64_t> fromLast{{k0, u0 - kW * k1, w0 - 2 * kW * u1 + kW * kW * k2,
                                       Sum(d0) - 3 * kW * w1 + 3 * kW * kW * u2 - kW * kW * kW * k3}};
    return Shifted<int64_t>(fromLast, (groups - 1) * kGroup + kGroup / 2);
  }

  static constexpr int kLanes = static_cast<int>(hn::MaxLanes(D()));

 private:
  static HWY_INLINE V MultiplyAdd(hn::Vec<D> v, hn::Vec<D> powers, V sum) {
    return hn::Add(sum, MulAddPairs(v, powers));
  }
  static HWY_INLINE int64_t Sum(V v) {
    const hn::RepartitionToWide<Sums> wide;
    const hn::Half<Sums> half;
    const auto pairs =
        hn::Add(hn::PromoteTo(wide, hn::LowerHalf(half, v)), hn::PromoteTo(wide, hn::UpperHalf(half, v)));
    return hn::GetLane(hn::SumOfLanes(wide, pairs));
  }
};

// Whole groups of samples. Those of 16 bits are 256 times their upper bytes plus their lower ones. The sums take all
// vector registers: inlined into a larger function, they would not stay there.
HWY_NOINLINE inline PowerSums<int64_t> SumsOfGroups(const uint8_t* row, ptrdiff_t groups) {
  return GroupSums().Of(groups, [&](ptrdiff_t i) HWY_ATTR { return LoadWide(GroupSums::D(), row + i); });
}
HWY_NOINLINE inline PowerSums<int64_t> SumsOfGroups(const uint16_t* row, ptrdiff_t groups) {
  const hn::ScalableTag<uint16_t> d;
  const GroupSums::D signedD;
  PowerSums<int64_t> sums = GroupSums().Of(groups, [&](ptrdiff_t i) HWY_ATTR {
    return hn::BitCast(signedD, hn::And(hn::LoadU(d, row + i), hn::Set(d, uint16_t{0xFF})));
  });
  const PowerSums<int64_t> upper = GroupSums().Of(
      groups, [&](ptrdiff_t i) HWY_ATTR { return hn::BitCast(signedD, hn::ShiftRight<8>(hn::LoadU(d, row + i))); });
  for (int m = 0; m < 4; ++m) sums.s[m] += 256 * upper.s[m];
  return sums;
}

// A stretch of n integers, the last group filled up with zeros.
template <class T>
PowerSums<double> SumsOfStretch(const T* row, ptrdiff_t n) {
  const ptrdiff_t groups = n / kGroup, whole = groups * kGroup;
  PowerSums<int64_t> sums;
  if (groups > 0) sums = SumsOfGroups(row, groups);
  if (whole < n) {
    HWY_ALIGN T rest[kGroup] = {};
    std::memcpy(rest, row + whole, (n - whole) * sizeof(T));
    const PowerSums<int64_t> more = Shifted<int64_t>(SumsOfGroups(rest, 1), whole);
    for (int m = 0; m < 4; ++m) sums.s[m] += more.s[m];
  }
  PowerSums<double> exact;
  for (int m = 0; m < 4; ++m) exact.s[m] = static_cast<double>(sums.s[m]);
  return exact;
}

// Floats: in double precision, in eight partial sums on every build.
inline constexpr int kPartials = 8;
inline PowerSums<double> SumsOfStretch(const float* row, ptrdiff_t n) {
  const hn::ScalableTag<double> d;
  constexpr int kLanes = static_cast<int>(hn::MaxLanes(d)), kVectors = kPartials / kLanes;
  HWY_ALIGN double partials[4][kPartials] = {};
  hn::Vec<decltype(d)> sums[4][kVectors], x[kVectors];
  for (int v = 0; v < kVectors; ++v) {
    x[v] = hn::Iota(d, static_cast<double>(v * kLanes));
    for (auto& sum : sums) sum[v] = hn::Zero(d);
  }
  const auto add = [&](const float* from) HWY_ATTR {
    for (int v = 0; v < kVectors; ++v) {
      auto term = LoadWide(d, from + v * kLanes);
      for (int m = 0; m < 4; ++m) {
        sums[m][v] = hn::Add(sums[m][v], term);
        if (m < 3) term = hn::Mul(term, x[v]);
      }
      x[v] = hn::Add(x[v], hn::Set(d, static_cast<double>(kPartials)));
    }
  };
  ptrdiff_t i = 0;
  for (; i + kPartials <= n; i += kPartials) add(row + i);
  if (i < n) add(Partial<float>(row + i, n - i).lanes);
  PowerSums<double> total;
  for (int m = 0; m < 4; ++m) {
    for (int v = 0; v < kVectors; ++v) hn::Store(sums[m][v], d, partials[m] + v * kLanes);
    for (const double partial : partials[m]) total.s[m] += partial;
  }
  return total;
}

}  // namespace qvp::stats
