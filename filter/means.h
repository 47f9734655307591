// Means of integers from their sums: sum / n to the nearest integer, ties to even. Each way is exact for the counts
// that its condition allows.
#pragma once

#include <bit>

#include "base/lanes.h"
#include "base/pack.h"
#include "base/unrolled.h"

namespace qvp::filter {

// Vectors of lanes that hold values of T, as elements.
template <class T, int kCount, class D>
HWY_INLINE void StoreNarrow(D d, const std::array<hn::Vec<D>, kCount>& v, T* to) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  constexpr size_t kRatio = std::is_integral_v<hn::TFromD<D>> ? sizeof(hn::TFromD<D>) / sizeof(T) : 0;
  if constexpr (kRatio == 4 && kCount == 4) {
    const auto lower = Packed(int16_t(), v[0], v[1]), upper = Packed(int16_t(), v[2], v[3]);
    hn::StoreU(InOrder<4>(Packed(T(), lower, upper)), hn::ScalableTag<T>(), to);
  } else if constexpr (kRatio == 2 && kCount % 2 == 0) {
    const hn::RebindToSigned<D> bounded;
    Unrolled<kCount / 2>([&](auto i) QVP_INLINED {
      const auto pair = PackedInOrder<T>(hn::BitCast(bounded, v[2 * i]), hn::BitCast(bounded, v[2 * i + 1]));
      hn::StoreU(pair, hn::ScalableTag<T>(), to + 2 * i * kLanes);
    });
  } else {
    Unrolled<kCount>([&](auto i) QVP_INLINED { hn::StoreU(Narrow<T>(d, v[i]), hn::Rebind<T, D>(), to + i * kLanes); });
  }
}

// Means of bytes from sums in 16 bits, by one multiplication. With half of n added the quotient is that rounded down;
// for odd n there are no ties, for even ones halves of both are divided.
//
// The factor is 2^(16 + shift) / divisor, rounded up by `excess` of its units. The largest sum whose quotient might be
// taken for the next one is 255 n - 1, for which the error has to stay below that of one part of n. Halves are small
// enough for any n.
class ByteMean {
 public:
  explicit constexpr ByteMean(uint32_t n)
      : n_(static_cast<uint16_t>(n)),
        shift_(std::bit_width(Divisor() - 1) - 1),
        factor_((uint32_t{1} << (16 + shift_)) / Divisor() + ((uint32_t{1} << (16 + shift_)) % Divisor() != 0)) {}

  // Whether it is exact: for 3 to 256 values, but for a few odd numbers above 200.
  static constexpr bool IsExactFor(int64_t n) {
    if (n < 3 || n > 256) return false;
    const ByteMean mean(static_cast<uint32_t>(n));
    const int64_t unit = int64_t{1} << (16 + mean.shift_), excess = int64_t{mean.factor_} * mean.Divisor() - unit;
    return n % 2 == 0 || excess * (255 * n - 1) < unit;
  }

  template <bool kIsOdd, class D>
  HWY_INLINE hn::Vec<D> Of(D d, hn::Vec<D> sum) const {
    const auto raised = hn::Add(sum, hn::Set(d, static_cast<uint16_t>(n_ / 2)));
    const auto factor = hn::Set(d, static_cast<uint16_t>(factor_));
    if constexpr (kIsOdd) return hn::ShiftRightSame(hn::MulHigh(raised, factor), shift_);
    const auto mean = hn::ShiftRightSame(hn::MulHigh(hn::ShiftRight<1>(raised), factor), shift_);
    const auto isTie = hn::VecFromMask(d, hn::Eq(hn::Mul(mean, hn::Set(d, n_)), raised));
    return hn::Sub(mean, hn::And(hn::And(isTie, mean), hn::Set(d, uint16_t{1})));
  }

 private:
  constexpr uint32_t Divisor() const { return n_ % 2 ? n_ : n_ / 2; }

  uint16_t n_;
  int shift_;
  uint32_t factor_;
};

template <bool kIsOdd>
struct ByteMeans {
  using Result = uint8_t;
  static constexpr int kVectors = 4;
  ByteMean mean;

  explicit ByteMeans(int64_t n) : mean(static_cast<uint32_t>(n)) {}

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, uint8_t* to) const {
    std::array<hn::Vec<D>, kCount> means;
    Unrolled<kCount>([&](auto v) QVP_INLINED { means[v] = mean.template Of<kIsOdd>(d, sums[v]); });
    StoreNarrow<uint8_t, kCount>(d, means, to);
  }
};

// Means from sums in 32 bits, through floats. Sum, reciprocal and product are each rounded by at most 2^-24 of them, so
// that a mean of up to 2^16 is less than 0.02 off. For odd n a mean is at least 1 / (2 n) away from a tie: where the
// largest mean times n is at most 2^22, it is rounded as the exact one. Else it may be one off, and what it leaves of
// the sum tells.
enum class MeanOf { kFewOdd, kOdd, kEven };

template <class T, MeanOf kOf>
struct IntegerMeans {
  using Result = T;
  static constexpr int kVectors = 4;
  static constexpr int64_t kMostForFew = (int64_t{1} << 22) >> (8 * sizeof(T));

  int32_t n;
  float reciprocal;

  explicit IntegerMeans(int64_t count) : n(static_cast<int32_t>(count)), reciprocal(1 / static_cast<float>(count)) {}

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, T* to) const {
    std::array<hn::Vec<D>, kCount> means;
    Unrolled<kCount>([&](auto v) QVP_INLINED { means[v] = Mean(d, sums[v]); });
    StoreNarrow<T, kCount>(d, means, to);
  }

 private:
  template <class D>
  HWY_INLINE hn::Vec<D> Mean(D d, hn::Vec<D> sum) const {
    const hn::Rebind<float, D> f;
    const auto mean = RoundToIntInRange(hn::Mul(hn::ConvertTo(f, sum), hn::Set(f, reciprocal)));
    if constexpr (kOf == MeanOf::kFewOdd) return mean;
    // More than half of n is left, or as much of an odd mean: the next one is nearer, or even.
    const auto half = hn::Set(d, n / 2), rest = hn::Sub(sum, hn::Mul(mean, hn::Set(d, n)));
    const auto odd = kOf == MeanOf::kEven ? hn::And(mean, hn::Set(d, 1)) : hn::Zero(d);
    const auto up = hn::VecFromMask(d, hn::Gt(hn::Add(rest, odd), half)),
               down = hn::VecFromMask(d, hn::Lt(hn::Sub(rest, odd), hn::Neg(half)));
    return hn::Add(hn::Sub(mean, up), down);
  }
};

// Means from sums in doubles, whose quotient is exact enough for any n, and exact for ties.
template <class T>
struct DoubleMeans {
  using Result = T;
  static constexpr int kVectors = 2;
  double n;

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, T* to) const {
    std::array<hn::Vec<D>, kCount> means;
    Unrolled<kCount>([&](auto v) QVP_INLINED { means[v] = hn::Round(hn::Div(sums[v], hn::Set(d, n))); });
    StoreNarrow<T, kCount>(d, means, to);
  }
};

// The same of floats: one division.
struct FloatMeans {
  using Result = float;
  static constexpr int kVectors = 4;
  float n;

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, float* to) const {
    Unrolled<kCount>([&](auto v)
                         QVP_INLINED { hn::StoreU(hn::Div(sums[v], hn::Set(d, n)), d, to + v * hn::MaxLanes(d)); });
  }
};

}  // namespace qvp::filter
