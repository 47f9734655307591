// Kernels of the general filter: sums of products for two rows of results at a time, and what becomes of the sums.
#pragma once

#include "base/pack.h"
#include "base/pairs.h"
#include "base/round.h"
#include "filter/border_filter_rows.h"

// For lambdas: one that is called makes memory of what it refers to.
#define QVP_INLINED __attribute__((always_inline))

namespace qvp {

// Calls body(0), body(1) ... with constants, so that arrays of vectors stay in registers.
template <int kCount, class Body>
HWY_INLINE void Unrolled(const Body& body) {
  [&]<int... kIndex>(std::integer_sequence<int, kIndex...>) QVP_INLINED {
    (body(std::integral_constant<int, kIndex>()), ...);
  }
  (std::make_integer_sequence<int, kCount>());
}

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
  // Shifts by one number for all lanes take two instructions inside the CPU, but for the upper half of a product and,
  // since AVX2, one number for each lane.
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Shifted(D d, V v) const {
    if constexpr (sizeof(L) == sizeof(int16_t)) {
      return hn::MulHigh(v, hn::Set(d, static_cast<L>(1 << (16 - bits_))));
    } else if constexpr (HWY_TARGET <= HWY_AVX2) {
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
  IntegerQuotient(const FilterRecord& record, int64_t largest) : mode_(record.mode()), divisor_(record.divisor) {
    const bool isPowerOfTwo = divisor_ > 0 && (divisor_ & (divisor_ - 1)) == 0;
    const int bits = __builtin_ctz(static_cast<unsigned>(divisor_));
    if (isPowerOfTwo && largest + divisor_ <= INT32_MAX) {
      if (NearestShift<int32_t>::Serves(mode_, bits)) {
        way_ = Way::kNearestShift;
        nearest_ = NearestShift<int32_t>(bits);
      }
      shift_ = {mode_, bits};
    } else {
      // A quotient that is no tie differs from one by 1 / (2 divisor) at least, more than the error of a float division
      // if sums are below 2^23. Ties are exact themselves.
      constexpr int64_t kExact = 1 << 22;
      way_ = largest < kExact && std::abs(int64_t{divisor_}) < kExact ? Way::kFloat : Way::kDouble;
    }
  }

  // What is added to the sums.
  int32_t Start() const { return nearest_.Start(); }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V operator()(D d, V v) const {
    if (HWY_LIKELY(way_ == Way::kNearestShift)) return nearest_(d, v);
    if (way_ == Way::kShift) return shift_(d, v);
    if (way_ == Way::kFloat) {
      const hn::Rebind<float, D> f;
      return RoundToInt(RoundedBy(mode_, f, hn::Div(hn::ConvertTo(f, v), hn::Set(f, static_cast<float>(divisor_)))));
    }
    return hn::Combine(d, InDouble(mode_, divisor_, hn::UpperHalf(hn::Half<D>(), v)),
                       InDouble(mode_, divisor_, hn::LowerHalf(v)));
  }

 private:
  enum class Way { kNearestShift, kShift, kFloat, kDouble };

  // Half of a vector: as many doubles as a vector has.
  template <class V>
  HWY_NOINLINE static V InDouble(int mode, int32_t divisor, V v) {
    const hn::ScalableTag<double> d;
    const hn::Rebind<int32_t, decltype(d)> ints;
    const auto quotient = hn::Div(hn::PromoteTo(d, v), hn::Set(d, static_cast<double>(divisor)));
    return hn::DemoteTo(ints, RoundedBy(mode, d, quotient));
  }

  Way way_ = Way::kShift;
  int mode_;
  int32_t divisor_;
  NearestShift<int32_t> nearest_;
  ShiftRounding<int32_t> shift_;
};

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

// A pointer that the compiler knows nothing about, and a place that it moves no loads across. Coefficients are read
// again from memory, which makes vectors of them without the units that add, and pixels when they are needed: loads
// that are brought forward push sums out of the registers.
template <class T>
HWY_INLINE const T* Unknown(const T* p) {
  asm volatile("" : "+r"(p) : : "memory");
  return p;
}

// Integer kernels: rows in pairs, whose products are added by the multiplication.
// kWidth and kHeight are those of the kernel where they are known, or 0.
template <class T, class Sums, int kWidth = 0, int kHeight = 0>
class PairKernel {
 public:
  using Form = PairedRows<T, typename Sums::Lane>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<typename Sums::Sum>());
  static constexpr int kVectors = 4;  // with their sums for two rows, coefficients and pixels they fill the registers

  PairKernel(const FilterRecord& record, int channels, const Sums& sums)
      : pairs_(record.PairsAt()),
        lines_(record.PairsOfRows()),
        width_(record.width),
        channels_(channels),
        sums_(sums) {}

  template <int kCount>
  HWY_INLINE void Run(const typename Form::Element* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    const hn::ScalableTag<typename Sums::Sum> d;
    const hn::ScalableTag<typename Sums::Lane> pixels;
    const hn::ScalableTag<hwy::MakeSigned<typename Sums::Lane>> coefficients;
    const hn::ScalableTag<int32_t> pairs;
    hn::Vec<decltype(d)> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { above[v] = below[v] = hn::Set(d, sums_.start); });
    const int32_t* pair = pairs_;
    const ptrdiff_t width = kWidth ? kWidth : width_;
    const ptrdiff_t lineCount = kHeight ? kHeight / 2 + 1 : lines_;
    for (ptrdiff_t p = 0; p < lineCount; ++p) {
      const auto* line = lines[p] + at;
      for (ptrdiff_t i = 0; i < width; ++i, line += channels_, pair += 2) {
        if constexpr (kWidth > 0) pair = Unknown(pair);
        const auto a = hn::BitCast(coefficients, hn::Set(pairs, pair[0]));
        const auto b = hn::BitCast(coefficients, hn::Set(pairs, pair[1]));
        Unrolled<kCount>([&](auto v) QVP_INLINED {
          const auto pixel = hn::LoadU(pixels, reinterpret_cast<const typename Sums::Lane*>(line + v * kLanes));
          above[v] = hn::Add(above[v], MulAddPairs(pixel, a));
          below[v] = hn::Add(below[v], MulAddPairs(pixel, b));
        });
      }
    }
    sums_.template Store<kCount>(below, lower);
    sums_.template Store<kCount>(above, upper);
  }

 private:
  const int32_t* pairs_;
  ptrdiff_t lines_, width_, channels_;
  Sums sums_;
};

// Kernels of F: every result has one sum, to which the products are added in the order of rows and columns.
template <class T, class F, int kWidth = 0, int kHeight = 0>
class RealKernel {
 public:
  using Form = SingleRows<T, F>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<F>());
  static constexpr int kVectors = 4;

  RealKernel(const FilterRecord& record, const F* coefficients, int channels)
      : coefficients_(coefficients),
        width_(record.width),
        height_(record.height),
        channels_(channels),
        mode_(record.mode()),
        offset_(static_cast<F>(record.offset) * static_cast<F>(record.divisor)),
        divisor_(static_cast<F>(record.divisor)) {}

  template <int kCount>
  HWY_INLINE void Run(const F* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    const hn::ScalableTag<F> d;
    hn::Vec<decltype(d)> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { above[v] = below[v] = hn::Zero(d); });
    const F* k = Unknown(coefficients_);
    AddRow<kCount>(lines[0] + at, k, above);
    const auto addRows = [&](ptrdiff_t j) QVP_INLINED {
      AddRows<kCount>(lines[j] + at, k + width(), k, above, below);
      k = Unknown(k + width());
    };
    if constexpr (kHeight > 0) {
      Unrolled<kHeight - 1>([&](auto j) QVP_INLINED { addRows(j + 1); });
    } else {
      for (ptrdiff_t j = 1; j < height_; ++j) addRows(j);
    }
    AddRow<kCount>(lines[height()] + at, k, below);
    Store<kCount>(below, lower);
    Store<kCount>(above, upper);
  }

 private:
  HWY_INLINE ptrdiff_t width() const { return kWidth ? kWidth : width_; }
  HWY_INLINE ptrdiff_t height() const { return kHeight ? kHeight : height_; }

  template <int kCount, class V>
  HWY_INLINE void AddRow(const F* line, const F* k, V (&sums)[kCount]) const {
    const hn::ScalableTag<F> d;
    for (ptrdiff_t i = 0; i < width(); ++i, line += channels_) {
      const V a = hn::Set(d, k[i]);
      Unrolled<kCount>([&](auto v)
                           QVP_INLINED { sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(d, line + v * kLanes), a)); });
    }
  }
  template <int kCount, class V>
  HWY_INLINE void AddRows(const F* line, const F* k, const F* kBelow, V (&above)[kCount], V (&below)[kCount]) const {
    const hn::ScalableTag<F> d;
    for (ptrdiff_t i = 0; i < width(); ++i, line += channels_) {
      if constexpr (kWidth > 3) k = Unknown(k);
      const V a = hn::Set(d, k[i]), b = hn::Set(d, kBelow[i]);
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const V pixel = hn::LoadU(d, line + v * kLanes);
        above[v] = hn::Add(above[v], hn::Mul(pixel, a));
        below[v] = hn::Add(below[v], hn::Mul(pixel, b));
      });
    }
  }
  template <int kCount, class V>
  HWY_INLINE void Store(const V (&sums)[kCount], T* to) const {
    const hn::ScalableTag<F> d;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      V result = sums[v];
      if constexpr (sizeof(F) == sizeof(double)) {
        result = hn::Div(hn::Add(result, hn::Set(d, offset_)), hn::Set(d, divisor_));
      } else if constexpr (std::is_integral_v<T>) {
        result = hn::Add(result, hn::Set(d, offset_));
      }
      if constexpr (std::is_integral_v<T>) {
        result = RoundedBy(mode_, d, result);
      } else {  // one NaN for all: which of two a sum keeps hangs on the order of an instruction's operands
        result = hn::Or(result, hn::VecFromMask(d, hn::IsNaN(result)));
      }
      hn::StoreU(Narrow<T>(d, result), hn::Rebind<T, decltype(d)>(), to + v * kLanes);
    });
  }

  const F* coefficients_;
  ptrdiff_t width_, height_, channels_;
  int mode_;
  F offset_, divisor_;
};

// Two rows of n results. Where there is only one, `lower` is the same as `upper`: kernels store the upper results last.
// What the kernel holds is copied, as bytes that are stored might be part of it for all that the compiler can tell. The
// last vector may overlap the one before it: results are not what is read.
template <class Kernel, class E, class T>
void FilterRows(const Kernel& shared, const E* const* lines, ptrdiff_t n, T* upper, T* lower) {
  constexpr ptrdiff_t kLanes = Kernel::kLanes, kGroup = Kernel::kVectors * kLanes;
  const Kernel kernel = shared;
  if (n < kLanes) {
    T staged[2][kLanes];
    kernel.template Run<1>(lines, 0, staged[0], staged[1]);
    std::memcpy(lower, staged[1], n * sizeof(T));
    std::memcpy(upper, staged[0], n * sizeof(T));
    return;
  }
  ptrdiff_t i = 0;
  for (; i + kGroup <= n; i += kGroup) kernel.template Run<Kernel::kVectors>(lines, i, upper + i, lower + i);
  for (; i + kLanes <= n; i += kLanes) kernel.template Run<1>(lines, i, upper + i, lower + i);
  if (i < n) kernel.template Run<1>(lines, n - kLanes, upper + n - kLanes, lower + n - kLanes);
}

}  // namespace qvp
