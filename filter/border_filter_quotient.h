// Sums of products divided by the divisor, and rounded.
#pragma once

#include "base/lanes.h"
#include "base/round.h"
#include "filter/border_filter.h"

namespace qvp::filter {

// To a whole number, by a mode that is known only now.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V RoundedBy(int mode, D, V v) {
  if (mode == qvpRoundNear) return hn::Round(v);
  return mode == qvpRoundZero ? Rounded<qvpRoundZero>(v) : Rounded<qvpRoundFinancial>(v);
}

// Bounds of a sum of products.
struct SumRange {
  int64_t low, high;

  int64_t Largest() const { return std::max(-low, high); }
};

// Integers divided by 2^bits and rounded to the nearest, ties to even, when they begin with the start that adds one
// half: a tie is whole then, and goes down by one where it would become odd. Others do not mind the one.
template <class L>
class NearestShift {
 public:
  static constexpr bool Serves(int mode, int bits) {
    return mode == qvpRoundNear && bits >= (sizeof(L) == sizeof(int16_t) ? 2 : 1);
  }

  NearestShift() = default;
  explicit NearestShift(int bits) : bits_(bits) {}

  L Start() const { return bits_ == 0 ? L{0} : static_cast<L>(L{1} << (bits_ - 1)); }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V v) const {
    return Shifted(d, hn::Sub(v, hn::And(Shifted(d, v), hn::Set(d, L{1}))));
  }

 private:
  // Shifts by one number for all lanes take two instructions inside a CPU. The upper half of a product takes one, and
  // so do shifts by a number for each lane where vectors are longer than a block.
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Shifted(D d, V v) const {
    if constexpr (sizeof(L) == sizeof(int16_t)) {
      return hn::MulHigh(v, hn::Set(d, static_cast<L>(1 << (16 - bits_))));
    } else if constexpr (hn::MaxLanes(D()) * sizeof(L) > kBlockBytes) {
      return hn::Shr(v, hn::Set(d, bits_));
    } else {
      return hn::ShiftRightSame(v, bits_);
    }
  }

  int bits_ = 0;
};

// Sums as 32-bit integers divided by the divisor and rounded, exactly.
class IntegerQuotient {
 public:
  // `largest` bounds the magnitude of the sums.
  IntegerQuotient(const FilterRecord& record, int64_t largest)
      : IntegerQuotient(record.mode(), record.divisor, largest) {}
  IntegerQuotient(int mode, int32_t divisor, int64_t largest) : mode_(mode), divisor_(divisor) {
    const bool isPowerOfTwo = divisor_ > 0 && (divisor_ & (divisor_ - 1)) == 0;
    const int bits = __builtin_ctz(static_cast<unsigned>(divisor_));
    if (isPowerOfTwo && largest + divisor_ <= INT32_MAX) {
      if (NearestShift<int32_t>::Serves(mode_, bits)) {
        method_ = Method::kNearestShift;
        nearest_ = NearestShift<int32_t>(bits);
      }
      shift_ = {mode_, bits};
    } else {
      // A quotient that is no tie differs from one by 1 / (2 divisor) at least, more than the error of a float division
      // if sums are below 2^23. Ties are exact themselves.
      constexpr int64_t kExact = 1 << 22;
      method_ = largest < kExact && std::abs(int64_t{divisor_}) < kExact ? Method::kFloat : Method::kDouble;
    }
  }

  // What is added to the sums.
  int32_t Start() const { return nearest_.Start(); }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V v) const {
    if (HWY_LIKELY(method_ == Method::kNearestShift)) return nearest_(d, v);
    if (method_ == Method::kShift) return shift_(d, v);
    if (method_ == Method::kFloat) {
      const hn::Rebind<float, D> f;
      return RoundToIntInRange(
          RoundedBy(mode_, f, hn::Div(hn::ConvertTo(f, v), hn::Set(f, static_cast<float>(divisor_)))));
    }
    return hn::Combine(d, InDouble(mode_, divisor_, hn::UpperHalf(hn::Half<D>(), v)),
                       InDouble(mode_, divisor_, hn::LowerHalf(v)));
  }

 private:
  enum class Method { kNearestShift, kShift, kFloat, kDouble };

  // Half of a vector.
  template <class V>
  HWY_INLINE static V InDouble(int mode, int32_t divisor, V v) {
    const hn::DFromV<V> ints;
    const hn::Rebind<double, decltype(ints)> d;
    const auto quotient = hn::Div(hn::PromoteTo(d, v), hn::Set(d, static_cast<double>(divisor)));
    return hn::DemoteTo(ints, RoundedBy(mode, d, quotient));
  }

  Method method_ = Method::kShift;
  int mode_;
  int32_t divisor_;
  NearestShift<int32_t> nearest_;
  ShiftRounding<int32_t> shift_;
};

}  // namespace qvp::filter
