// What becomes of the integer sums of a kernel: quotients, saturated to the type of the image.
#pragma once

#include "base/pack.h"
#include "base/unrolled.h"
#include "filter/border_filter_quotient.h"

namespace qvp::filter {

// 32-bit results, saturated to T.
template <int kCount, class T, class V>
HWY_INLINE void StoreResults(const V (&v)[kCount], T* to) {
  const hn::ScalableTag<int32_t> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  constexpr int kPacked = 4 / sizeof(T), kGroups = kCount / kPacked;  // vectors that one vector of results is made of
  Unrolled<kGroups>([&](auto group) QVP_INLINED {
    constexpr int i = group * kPacked;
    if constexpr (sizeof(T) == 1) {
      const auto all =
          InOrder<4>(Packed(T(), Packed(int16_t(), v[i], v[i + 1]), Packed(int16_t(), v[i + 2], v[i + 3])));
      hn::StoreU(all, hn::ScalableTag<T>(), to + i * kLanes);
    } else {
      hn::StoreU(PackedInOrder<T>(v[i], v[i + 1]), hn::ScalableTag<T>(), to + i * kLanes);
    }
  });
  Unrolled<kCount % kPacked>([&](auto rest) QVP_INLINED {
    constexpr int i = kGroups * kPacked + rest;
    hn::StoreU(Narrow<T>(d, v[i]), hn::Rebind<T, decltype(d)>(), to + i * kLanes);
  });
}

// Sums of 32 bits to results.
template <class T>
class WordSums {
 public:
  using Lane = int16_t;
  using Sum = int32_t;

  WordSums(const FilterRecord& record, SumRange range, int64_t offset)
      : quotient_(record, range.Largest()), start(static_cast<int32_t>(offset) + quotient_.Start()) {}
  explicit WordSums(const IntegerQuotient& quotient) : quotient_(quotient), start(quotient_.Start()) {}

  template <int kCount, class V>
  HWY_INLINE void Store(const V (&sums)[kCount], T* to) const {
    V results[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { results[v] = quotient_(hn::ScalableTag<int32_t>(), sums[v]); });
    StoreResults<kCount>(results, to);
  }

 private:
  IntegerQuotient quotient_;

 public:
  const int32_t start;
};

// Sums of 16 bits to bytes. They are formed modulo 2^16. Where they and their rounding lie within 16 bits, they are the
// sums themselves; else they begin with what makes the least sum 0, and are widened.
class ByteSums {
 public:
  using Lane = uint8_t;
  using Sum = int16_t;

  ByteSums(const FilterRecord& record, SumRange range, int64_t offset)
      : isNarrow_(IsPowerOfTwo(record.divisor) && range.Largest() + record.divisor <= INT16_MAX),
        isNearest_(isNarrow_ && NearestShift<int16_t>::Serves(record.mode(), Bits(record.divisor))),
        quotient_(record, range.Largest()),
        widened_(static_cast<int32_t>(range.low) + quotient_.Start()),
        nearest_(isNearest_ ? Bits(record.divisor) : 0),
        start(static_cast<int16_t>(isNarrow_ ? offset + nearest_.Start() : offset - range.low)) {
    if (isNarrow_) shift_ = {record.mode(), Bits(record.divisor)};
  }

  template <int kCount, class V>
  HWY_INLINE void Store(const V (&sums)[kCount], uint8_t* to) const {
    isNarrow_ ? StoreNarrow<kCount>(sums, to) : StoreWidened<kCount>(sums, to);
  }

 private:
  static bool IsPowerOfTwo(int n) { return n > 0 && (n & (n - 1)) == 0; }
  static int Bits(int n) { return __builtin_ctz(static_cast<unsigned>(n)); }

  HWY_INLINE auto Quotient(hn::Vec<hn::ScalableTag<int16_t>> sum) const {
    const hn::ScalableTag<int16_t> d;
    return HWY_LIKELY(isNearest_) ? nearest_(d, sum) : shift_(d, sum);
  }

  template <int kCount, class V>
  HWY_INLINE void StoreNarrow(const V (&sums)[kCount], uint8_t* to) const {
    const hn::ScalableTag<int16_t> d;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    if constexpr (kCount == 1) {
      const hn::Rebind<uint8_t, decltype(d)> bytes;
      hn::StoreU(hn::DemoteTo(bytes, Quotient(sums[0])), bytes, to);
    } else {
      Unrolled<kCount / 2>([&](auto pair) QVP_INLINED {
        constexpr int v = 2 * pair;
        hn::StoreU(PackedInOrder<uint8_t>(Quotient(sums[v]), Quotient(sums[v + 1])), hn::ScalableTag<uint8_t>(),
                   to + v * kLanes);
      });
    }
  }

  template <int kCount, class V>
  HWY_INLINE void StoreWidened(const V (&sums)[kCount], uint8_t* to) const {
    const hn::ScalableTag<int32_t> d;
    const hn::ScalableTag<uint16_t> u;
    hn::Vec<decltype(d)> results[2 * kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto sum = hn::BitCast(u, sums[v]);
      const auto lower = hn::PromoteTo(d, hn::LowerHalf(sum)),
                 upper = hn::PromoteTo(d, hn::UpperHalf(hn::Half<decltype(u)>(), sum));
      results[2 * v] = quotient_(d, hn::Add(lower, hn::Set(d, widened_)));
      results[2 * v + 1] = quotient_(d, hn::Add(upper, hn::Set(d, widened_)));
    });
    StoreResults<2 * kCount>(results, to);
  }

  bool isNarrow_, isNearest_;
  IntegerQuotient quotient_;
  int32_t widened_;
  NearestShift<int16_t> nearest_;
  ShiftRounding<int16_t> shift_;

 public:
  const int16_t start;
};

}  // namespace qvp::filter
