// Rows of results of the general filter in space, from the lines under its kernel: sums of floats in the order of
// planes, rows and columns, and exact sums of integers in 32 or 64 bits.
#pragma once

#include "base/pairs.h"
#include "filter/axis_sums.h"
#include "filter/border_filter_sums.h"
#include "volume/filter_record.h"

namespace qvp::volume {

// ---- Floats

// Every result has one sum. `lines` of `width` coefficients each.
template <class T>
struct FloatSums {
  using Form = SingleRows<T, float>;
  using D = hn::ScalableTag<float>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = 8;  // they hide how long an addition takes

  const float* coefficients;
  ptrdiff_t lines, width;
  int mode;

  template <class R>
  void operator()(const float* const* from, ptrdiff_t n, R* to) const {
    filter::MakeRow<kVectors, kLanes>(n, to, [&](auto count, ptrdiff_t i, R* out) QVP_INLINED {
      hn::Vec<D> sums[count];
      filter::Unrolled<count>([&](auto v) QVP_INLINED { sums[v] = hn::Zero(D()); });
      const float* k = coefficients;
      for (ptrdiff_t j = 0; j < lines; ++j) {
        const float* const line = from[j] + i;
        for (ptrdiff_t x = 0; x < width; ++x) {
          const auto factor = hn::Set(D(), *k++);
          filter::Unrolled<count>([&](auto v) QVP_INLINED {
            sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(D(), line + x + v * kLanes), factor));
          });
        }
      }
      filter::Unrolled<count>([&](auto v) QVP_INLINED { Store(sums[v], out + v * kLanes); });
    });
  }

 private:
  // All NaN become one: which of two a sum keeps hangs on the order of an instruction's operands.
  template <class R>
  HWY_INLINE void Store(hn::Vec<D> sum, R* to) const {
    if constexpr (std::is_integral_v<R>) {
      sum = filter::RoundedBy(mode, D(), sum);
    } else {
      sum = hn::Or(sum, hn::VecFromMask(D(), hn::IsNaN(sum)));
    }
    hn::StoreU(Narrow<R>(D(), sum), hn::Rebind<R, D>(), to);
  }
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

  explicit WordSums(const FilterRecord& record)
      : pairs_(record.Pairs()),
        lines_(record.mask().lines()),
        width_(record.kernel.width),
        quotient_(record.mode, record.divisor, record.largest),
        start_(static_cast<int32_t>(StartOf<T>(record) + quotient_.Start())) {}

  void operator()(const int16_t* const* from, ptrdiff_t n, T* to) const {
    filter::MakeRow<kVectors, kLanes>(n, to, [&](auto count, ptrdiff_t i, T* out) QVP_INLINED {
      hn::Vec<Sum> even[count], odd[count];
      filter::Unrolled<count>([&](auto v) QVP_INLINED { even[v] = odd[v] = hn::Set(Sum(), start_); });
      const int32_t* pair = pairs_;
      for (ptrdiff_t j = 0; j < lines_; ++j) {
        const int16_t* const line = from[j] + i;
        for (ptrdiff_t x = 0; x < width_; x += 2) {
          const auto factors = hn::BitCast(D(), hn::Set(Sum(), *pair++));
          filter::Unrolled<count>([&](auto v) QVP_INLINED {
            const int16_t* const at = line + x + v * kLanes;
            even[v] = hn::Add(even[v], MulAddPairs(hn::LoadU(D(), at), factors));
            odd[v] = hn::Add(odd[v], MulAddPairs(hn::LoadU(D(), at + 1), factors));
          });
        }
      }
      filter::Unrolled<count>([&](auto v) QVP_INLINED { Store(even[v], odd[v], out + v * kLanes); });
    });
  }

 private:
  using D = hn::ScalableTag<int16_t>;
  using Sum = hn::ScalableTag<int32_t>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = 4;

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

  const int32_t* pairs_;
  ptrdiff_t lines_, width_;
  filter::IntegerQuotient quotient_;
  int32_t start_;
};

// A sum divided and rounded, exactly.
inline int64_t Quotient(int64_t sum, int64_t divisor, int mode) {
  const int64_t whole = sum / divisor, twice = 2 * std::abs(sum % divisor) - std::abs(divisor);
  const bool isAway = mode == qvpRoundFinancial ? twice >= 0 : twice > 0 || (twice == 0 && whole % 2 != 0);
  return mode == qvpRoundZero || !isAway ? whole : (sum < 0) == (divisor < 0) ? whole + 1 : whole - 1;
}

// Sums in 64 bits, of large kernels alone: one after the other.
template <class T>
class LongSums {
 public:
  using Form = WordRows<T>;

  explicit LongSums(const FilterRecord& record) : record_(record), mask_(record.mask()) {}

  void operator()(const int16_t* const* from, ptrdiff_t n, T* to) const {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(Long());
    filter::MakeRow<1, kLanes>(n, to, [&](auto, ptrdiff_t i, T* out) QVP_INLINED {
      HWY_ALIGN int64_t sums[kLanes];
      hn::Store(SumsAt(from, i), Long(), sums);
      for (ptrdiff_t lane = 0; lane < kLanes; ++lane) {
        const int64_t result = Quotient(sums[lane], record_.divisor, record_.mode);
        StoreScalar(out + lane, static_cast<T>(std::clamp<int64_t>(result, std::numeric_limits<T>::lowest(),
                                                                   std::numeric_limits<T>::max())));
      }
    });
  }

 private:
  using Long = hn::ScalableTag<int64_t>;

  HWY_INLINE hn::Vec<Long> SumsAt(const int16_t* const* from, ptrdiff_t i) const {
    const hn::Rebind<int32_t, Long> words;
    auto sum = hn::Set(Long(), StartOf<T>(record_));
    const int32_t* k = record_.Coefficients<int32_t>();
    for (ptrdiff_t j = 0; j < mask_.lines(); ++j) {
      for (ptrdiff_t x = 0; x < mask_.width; ++x) {
        const auto product = hn::Mul(LoadWide(words, from[j] + i + x), hn::Set(words, *k++));
        sum = hn::Add(sum, hn::PromoteTo(Long(), product));
      }
    }
    return sum;
  }

  const FilterRecord& record_;
  Mask mask_;
};

}  // namespace qvp::volume
