// Rows of results of the general filter in space, from the lines under its kernel: sums of floats in the order of
// planes, rows and columns, and exact sums of integers in 32 or 64 bits.
#pragma once

#include "base/pairs.h"
#include "filter/axis_sums.h"
#include "filter/border_filter_sums.h"
#include "filter/windows.h"
#include "volume/filter_record.h"

namespace qvp::volume {

// Coefficients of a kernel for two rows of results at a time: add(line, upper, lower) for each line of its planes, with
// the row of coefficients that it has for either, or null. Rows of them are `width` apart.
template <class E, class C, class Add>
HWY_INLINE void ForEachLine(const Mask& mask, const E* const* lines, const C* coefficients, ptrdiff_t width,
                            const Add& add) {
  const C* const none = nullptr;
  for (int k = 0; k < mask.depth; ++k) {
    add(*lines++, coefficients, none);
    for (int j = 1; j < mask.height; ++j, coefficients += width) add(*lines++, coefficients + width, coefficients);
    add(*lines++, none, coefficients);
    coefficients += width;
  }
}

// ---- Floats

// All NaN become one: which of two a sum keeps hangs on the order of an instruction's operands.
template <class R, class V>
HWY_INLINE void StoreReals(int mode, V sum, R* to) {
  const hn::DFromV<V> d;
  if constexpr (std::is_integral_v<R>) {
    sum = filter::RoundedBy(mode, d, sum);
  } else {
    sum = hn::Or(sum, hn::VecFromMask(d, hn::IsNaN(sum)));
  }
  hn::StoreU(Narrow<R>(d, sum), hn::Rebind<R, decltype(d)>(), to);
}

// Every result has one sum.
template <class T>
class FloatSums {
 public:
  using Form = SingleRows<T, float>;
  static constexpr ptrdiff_t kLanes = Form::kLanes;
  static constexpr int kVectors = 4;

  explicit FloatSums(const FilterRecord& record)
      : mask_(record.mask()), coefficients_(record.Coefficients<float>()), mode_(record.mode) {}

  template <int kCount>
  HWY_INLINE void Run(const float* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    V above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { above[v] = below[v] = hn::Zero(D()); });
    ForEachLine(mask_, lines, coefficients_, mask_.width,
                [&](const float* line, const float* k, const float* kBelow)
                    QVP_INLINED { Add<kCount>(line + at, k, kBelow, above, below); });
    Unrolled<kCount>([&](auto v) QVP_INLINED { StoreReals(mode_, below[v], lower + v * kLanes); });
    Unrolled<kCount>([&](auto v) QVP_INLINED { StoreReals(mode_, above[v], upper + v * kLanes); });
  }

 private:
  using D = hn::ScalableTag<float>;
  using V = hn::Vec<D>;

  // A line that both rows need is loaded once.
  template <int kCount>
  HWY_INLINE void Add(const float* line, const float* k, const float* kBelow, V (&above)[kCount],
                      V (&below)[kCount]) const {
    if (kBelow == nullptr) return AddTo<kCount>(line, k, above);
    if (k == nullptr) return AddTo<kCount>(line, kBelow, below);
    QVP_ROLLED
    for (ptrdiff_t x = 0; x < mask_.width; ++x) {
      const V a = hn::Set(D(), k[x]), b = hn::Set(D(), kBelow[x]);
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const V values = hn::LoadU(D(), line + x + v * kLanes);
        above[v] = hn::Add(above[v], hn::Mul(values, a));
        below[v] = hn::Add(below[v], hn::Mul(values, b));
      });
    }
  }
  template <int kCount>
  HWY_INLINE void AddTo(const float* line, const float* k, V (&sums)[kCount]) const {
    QVP_ROLLED
    for (ptrdiff_t x = 0; x < mask_.width; ++x) {
      const V a = hn::Set(D(), k[x]);
      Unrolled<kCount>(
          [&](auto v) QVP_INLINED { sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(D(), line + x + v * kLanes), a)); });
    }
  }

  Mask mask_;
  const float* coefficients_;
  int mode_;
};

// ---- Integers

// Lines of 16-bit words, those without sign 32768 less. Never in place, as pairs reach one column further.
template <class T>
struct WordRows {
  using Element = int16_t;
  static constexpr int kRows = 1;
  static constexpr bool kIsInPlace = false;
  static constexpr uint16_t kTurned = std::is_same_v<T, uint16_t> ? 0x8000 : 0;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<int16_t>());

  static int16_t Of(const T* const (&rows)[2], ptrdiff_t i) {
    return static_cast<int16_t>(static_cast<uint16_t>(LoadScalar(rows[0] + i)) ^ kTurned);
  }
  static void Convert(const T* const (&rows)[2], int16_t* out, ptrdiff_t i) {
    const hn::ScalableTag<int16_t> d;
    if constexpr (sizeof(T) == 1) {
      hn::StoreU(LoadWide(d, rows[0] + i), d, out + i);
    } else {
      const auto words = hn::LoadU(d, reinterpret_cast<const int16_t*>(rows[0]) + i);
      hn::StoreU(hn::Xor(words, hn::Set(d, static_cast<int16_t>(kTurned))), d, out + i);
    }
  }
};

template <class T>
int64_t StartOf(const FilterRecord& record) {
  return record.total * WordRows<T>::kTurned;
}

// Sums in 32 bits: neighbours in a line are multiplied in pairs, for the results at even places, and from one column
// further on for those at odd ones.
template <class T>
class WordSums {
 public:
  using Form = WordRows<T>;

  static constexpr ptrdiff_t kLanes = Form::kLanes;
  static constexpr int kVectors = 2;

  explicit WordSums(const FilterRecord& record)
      : mask_(record.mask()),
        pairs_(record.Pairs()),
        quotient_(record.mode, record.divisor, record.largest),
        start_(static_cast<int32_t>(StartOf<T>(record) + quotient_.Start())) {}

  template <int kCount>
  HWY_INLINE void Run(const int16_t* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    Sums<kCount> above, below;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      above.even[v] = above.odd[v] = below.even[v] = below.odd[v] = hn::Set(Sum(), start_);
    });
    ForEachLine(mask_, lines, pairs_, (mask_.width + 1) / 2,
                [&](const int16_t* line, const int32_t* k, const int32_t* kBelow)
                    QVP_INLINED { Add(line + at, k, kBelow, above, below); });
    Unrolled<kCount>([&](auto v) QVP_INLINED { Store(below.even[v], below.odd[v], lower + v * kLanes); });
    Unrolled<kCount>([&](auto v) QVP_INLINED { Store(above.even[v], above.odd[v], upper + v * kLanes); });
  }

 private:
  using D = hn::ScalableTag<int16_t>;
  using Sum = hn::ScalableTag<int32_t>;
  template <int kCount>
  struct Sums {
    hn::Vec<Sum> even[kCount], odd[kCount];

    HWY_INLINE void Add(const int16_t* from, int32_t pair) {
      const auto factors = hn::BitCast(D(), hn::Set(Sum(), pair));
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        even[v] = hn::Add(even[v], MulAddPairs(hn::LoadU(D(), from + v * kLanes), factors));
        odd[v] = hn::Add(odd[v], MulAddPairs(hn::LoadU(D(), from + v * kLanes + 1), factors));
      });
    }
  };

  template <int kCount>
  HWY_INLINE void Add(const int16_t* line, const int32_t* k, const int32_t* kBelow, Sums<kCount>& above,
                      Sums<kCount>& below) const {
    QVP_ROLLED
    for (ptrdiff_t i = 0; 2 * i < mask_.width; ++i) {
      if (k != nullptr) above.Add(line + 2 * i, k[i]);
      if (kBelow != nullptr) below.Add(line + 2 * i, kBelow[i]);
    }
  }

  HWY_INLINE hn::Vec<Sum> Bounded(hn::Vec<Sum> sum) const {
    using Limits = std::numeric_limits<T>;
    const auto lowest = hn::Set(Sum(), Limits::lowest()), highest = hn::Set(Sum(), Limits::max());
    return hn::Min(hn::Max(quotient_(Sum(), sum), lowest), highest);
  }
  HWY_INLINE void Store(hn::Vec<Sum> even, hn::Vec<Sum> odd, T* to) const {
    const auto lower = hn::And(Bounded(even), hn::Set(Sum(), 0xFFFF)), upper = hn::ShiftLeft<16>(Bounded(odd));
    const auto words = hn::BitCast(D(), hn::Or(lower, upper));
    if constexpr (sizeof(T) == 1) {
      hn::StoreU(hn::DemoteTo(hn::Rebind<T, D>(), words), hn::Rebind<T, D>(), to);
    } else {
      hn::StoreU(words, D(), reinterpret_cast<int16_t*>(to));
    }
  }

  Mask mask_;
  const int32_t* pairs_;
  filter::IntegerQuotient quotient_;
  int32_t start_;
};

// A sum divided and rounded, exactly.
inline int64_t Quotient(int64_t sum, int64_t divisor, int mode) {
  const int64_t whole = sum / divisor, twice = 2 * std::abs(sum % divisor) - std::abs(divisor);
  const bool isAway = mode == qvpRoundFinancial ? twice >= 0 : twice > 0 || (twice == 0 && whole % 2 != 0);
  return mode == qvpRoundZero || !isAway ? whole : (sum < 0) == (divisor < 0) ? whole + 1 : whole - 1;
}

// Sums in 64 bits, of large kernels alone.
template <class T>
class LongSums {
 public:
  using Form = WordRows<T>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<int64_t>());
  static constexpr int kVectors = 1;

  explicit LongSums(const FilterRecord& record)
      : mask_(record.mask()),
        coefficients_(record.Coefficients<int32_t>()),
        start_(StartOf<T>(record)),
        divisor_(record.divisor),
        mode_(record.mode) {}

  template <int kCount>
  HWY_INLINE void Run(const int16_t* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    auto above = hn::Set(Long(), start_), below = above;
    ForEachLine(mask_, lines, coefficients_, mask_.width,
                [&](const int16_t* line, const int32_t* k, const int32_t* kBelow) QVP_INLINED {
                  for (ptrdiff_t x = 0; x < mask_.width; ++x) {
                    if (k != nullptr) above = hn::Add(above, Product(line + at + x, k[x]));
                    if (kBelow != nullptr) below = hn::Add(below, Product(line + at + x, kBelow[x]));
                  }
                });
    Store(below, lower);
    Store(above, upper);
  }

 private:
  using Long = hn::ScalableTag<int64_t>;

  HWY_INLINE static hn::Vec<Long> Product(const int16_t* from, int32_t factor) {
    const hn::Rebind<int32_t, Long> words;
    return hn::PromoteTo(Long(), hn::Mul(LoadWide(words, from), hn::Set(words, factor)));
  }
  HWY_INLINE void Store(hn::Vec<Long> sum, T* to) const {
    HWY_ALIGN int64_t sums[kLanes];
    hn::Store(sum, Long(), sums);
    for (ptrdiff_t lane = 0; lane < kLanes; ++lane) {
      const int64_t result = Quotient(sums[lane], divisor_, mode_);
      StoreScalar(to + lane, static_cast<T>(std::clamp<int64_t>(result, std::numeric_limits<T>::lowest(),
                                                                std::numeric_limits<T>::max())));
    }
  }

  Mask mask_;
  const int32_t* coefficients_;
  int64_t start_;
  int32_t divisor_;
  int mode_;
};

}  // namespace qvp::volume
