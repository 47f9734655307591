// Sums of values times the taps of one axis: across a row, whose values lie beside each other, and down the lines of a
// window.
//
// A symmetric kernel's values may be folded: the middle one, then the sums of the pairs at each distance from it; the
// taps are those from the middle on then. Several vectors are summed at a time, which share the taps.
#pragma once

#include "base/pairs.h"
#include "base/unrolled.h"
#include "filter/windows.h"

namespace qvp::filter {

template <class Tap>
struct AxisOf {
  const Tap* taps;
  ptrdiff_t count;  // of terms
};

// Taps of 16 bits by twos, as the multiplication of pairs takes them; an odd one has a 0 beside it.
struct PairedTaps {
  const int32_t* pairs;
  ptrdiff_t count;
};

// Term k of `count` of vector v, from value(0, v), value(1, v)... of all taps.
template <bool kIsFolded, class Value, class Place>
HWY_INLINE auto TermAt(const Value& value, ptrdiff_t k, ptrdiff_t count, Place v) {
  if constexpr (kIsFolded) {
    const ptrdiff_t middle = count - 1;
    return k == 0 ? value(middle, v) : hn::Add(value(middle + k, v), value(middle - k, v));
  } else {
    return value(k, v);
  }
}

// The taps of an axis as vectors. If their count is a constant they stay in registers, and what is done with each of
// them is unrolled; kTerms of 0 stands for any other count.
template <class D, class Tap, int kTerms>
class TapVectors {
 public:
  explicit TapVectors(const AxisOf<Tap>& axis) : axis_(axis) {
    Unrolled<kTerms>([&](auto k) QVP_INLINED { vectors_[k] = Vector(k); });
  }

  ptrdiff_t count() const { return kTerms > 0 ? kTerms : axis_.count; }

  // body(k, vector) for each tap but the first.
  template <class Body>
  HWY_INLINE void ForEachOther(const Body& body) const {
    if constexpr (kTerms > 0) {
      Unrolled<kTerms - 1>([&](auto k) QVP_INLINED { body(ptrdiff_t{k + 1}, vectors_[k + 1]); });
    } else {
      for (ptrdiff_t k = 1; k < axis_.count; ++k) body(k, Vector(k));
    }
  }
  HWY_INLINE hn::Vec<D> First() const {
    if constexpr (kTerms > 0) return vectors_[0];
    return Vector(0);
  }

 private:
  HWY_INLINE hn::Vec<D> Vector(ptrdiff_t k) const { return hn::Set(D(), static_cast<hn::TFromD<D>>(axis_.taps[k])); }

  AxisOf<Tap> axis_;
  std::array<hn::Vec<D>, kTerms> vectors_;
};

// In lanes as they are, each product and each sum rounded; the first product stands alone.
template <bool kIsFolded, int kCount, class D, class Tap, int kTerms, class Value>
HWY_INLINE std::array<hn::Vec<D>, kCount> SumsOfProducts(const TapVectors<D, Tap, kTerms>& taps, const Value& value) {
  std::array<hn::Vec<D>, kCount> sums;
  const auto first = taps.First();
  Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v] = hn::Mul(TermAt<kIsFolded>(value, 0, taps.count(), v), first); });
  taps.ForEachOther([&](ptrdiff_t k, auto tap) QVP_INLINED {
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      sums[v] = hn::Add(sums[v], hn::Mul(TermAt<kIsFolded>(value, k, taps.count(), v), tap));
    });
  });
  return sums;
}

// The same of two successive windows, whose values are those of one and one more: value(k, v) is loaded once for both.
template <class D, int kCount>
struct TwoSums {
  std::array<hn::Vec<D>, kCount> upper, lower;
};

template <bool kIsFolded, int kCount, class D, class Tap, int kTerms, class Value>
HWY_INLINE TwoSums<D, kCount> TwoSumsOfProducts(const TapVectors<D, Tap, kTerms>& taps, const Value& value) {
  TwoSums<D, kCount> sums;
  std::array<hn::Vec<D>, kCount> before, after;  // the values nearest to the middle that the other window needs, too
  const ptrdiff_t first = kIsFolded ? taps.count() - 1 : 0;
  const auto tap0 = taps.First();
  Unrolled<kCount>([&](auto v) QVP_INLINED {
    before[v] = value(first, v);
    after[v] = value(first + 1, v);
    sums.upper[v] = hn::Mul(before[v], tap0);
    sums.lower[v] = hn::Mul(after[v], tap0);
  });
  taps.ForEachOther([&](ptrdiff_t k, auto tap) QVP_INLINED {
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto next = value(first + 1 + k, v);
      auto upper = after[v], lower = next;
      if constexpr (kIsFolded) {
        const auto previous = value(first - k, v);
        upper = hn::Add(upper, previous);
        lower = hn::Add(lower, before[v]);
        before[v] = previous;
      }
      after[v] = next;
      sums.upper[v] = hn::Add(sums.upper[v], hn::Mul(upper, tap));
      sums.lower[v] = hn::Add(sums.lower[v], hn::Mul(lower, tap));
    });
  });
  return sums;
}

// Sums of 16-bit lanes as 32-bit ones, modulo 2^32: those of the lower half of each block, and of the upper half.
// Packing brings them back in order.
template <class D>
struct BlockSums {
  hn::Vec<hn::Repartition<int32_t, D>> lower, upper;
};

// The same for taps by twos.
template <class D, int kTerms>
class PairVectors {
 public:
  explicit PairVectors(const PairedTaps& taps) : taps_(taps) {
    Unrolled<(kTerms + 1) / 2>([&](auto p) QVP_INLINED { vectors_[p] = Vector(2 * p); });
  }

  ptrdiff_t count() const { return kTerms > 0 ? kTerms : taps_.count; }

  // two(k, vector) for taps k and k + 1, and one(k, vector) for the last one, if their number is odd.
  template <class Two, class One>
  HWY_INLINE void ForEach(const Two& two, const One& one) const {
    if constexpr (kTerms > 0) {
      Unrolled<kTerms / 2>([&](auto p) QVP_INLINED { two(ptrdiff_t{2 * p}, vectors_[p]); });
      if constexpr (kTerms % 2 != 0) one(ptrdiff_t{kTerms - 1}, vectors_[kTerms / 2]);
    } else {
      ptrdiff_t k = 0;
      for (; k + 1 < taps_.count; k += 2) two(k, Vector(k));
      if (k < taps_.count) one(k, Vector(k));
    }
  }

 private:
  HWY_INLINE hn::Vec<D> Vector(ptrdiff_t k) const {
    return hn::BitCast(D(), hn::Set(hn::Repartition<int32_t, D>(), taps_.pairs[k / 2]));
  }

  PairedTaps taps_;
  std::array<hn::Vec<D>, (kTerms + 1) / 2> vectors_;
};

template <bool kIsFolded, int kCount, class D, int kTerms, class Value>
HWY_INLINE std::array<BlockSums<D>, kCount> SumsOfPairs(const PairVectors<D, kTerms>& taps, int32_t start,
                                                        const Value& value) {
  const D d;
  const hn::Repartition<int32_t, D> ints;
  std::array<BlockSums<D>, kCount> sums;
  Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v].lower = sums[v].upper = hn::Set(ints, start); });
  const auto term = [&](ptrdiff_t k, auto v) QVP_INLINED { return TermAt<kIsFolded>(value, k, taps.count(), v); };
  const auto add = [&](auto v, auto a, auto b, auto pair) QVP_INLINED {
    sums[v].lower = hn::Add(sums[v].lower, MulAddPairs(hn::InterleaveLower(d, a, b), pair));
    sums[v].upper = hn::Add(sums[v].upper, MulAddPairs(hn::InterleaveUpper(d, a, b), pair));
  };
  taps.ForEach(
      [&](ptrdiff_t k, auto pair)
          QVP_INLINED { Unrolled<kCount>([&](auto v) QVP_INLINED { add(v, term(k, v), term(k + 1, v), pair); }); },
      [&](ptrdiff_t k, auto pair)
          QVP_INLINED { Unrolled<kCount>([&](auto v) QVP_INLINED { add(v, term(k, v), hn::Zero(d), pair); }); });
  return sums;
}

// What get(count) gives for a count of terms as a constant: of 1 to kMost terms, or 0 for any other.
template <int kMost, class Get>
auto ForTerms(ptrdiff_t terms, const Get& get) {
  auto found = get(std::integral_constant<int, 0>());
  Unrolled<kMost>([&](auto k) {
    if (terms == k + 1) found = get(std::integral_constant<int, k + 1>());
  });
  return found;
}

// step(count, i) for the vectors of a row, kVectors at a time and then one by one; count is a constant. The last one
// may overlap the one before it. A row that is shorter than a vector has a step at 0 alone.
template <int kVectors, ptrdiff_t kLanes, class Step>
HWY_INLINE void ForEachVectors(ptrdiff_t n, const Step& step) {
  const ptrdiff_t last = std::max<ptrdiff_t>(n - kLanes, 0);
  ptrdiff_t i = 0;
  for (; i + kVectors * kLanes <= n; i += kVectors * kLanes) step(std::integral_constant<int, kVectors>(), i);
  for (; i < n; i += kLanes) step(std::integral_constant<int, 1>(), std::min(i, last));
}

// The same for a row of results: step(count, i, where they go), which writes whole vectors.
template <int kVectors, ptrdiff_t kLanes, class R, class Step>
HWY_INLINE void MakeRow(ptrdiff_t n, R* to, const Step& step) {
  R staged[kLanes];
  const bool isShort = n < kLanes;
  R* const out = isShort ? staged : to;
  ForEachVectors<kVectors, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED { step(count, i, out + i); });
  if (isShort) std::memcpy(to, staged, n * sizeof(R));
}

// For groups at places that are multiples of their length: the last one may have too many results.
template <ptrdiff_t kLanes, class R, class Make>
HWY_INLINE void MakeGroups(ptrdiff_t n, R* to, const Make& make) {
  R staged[kLanes];
  for (ptrdiff_t i = 0; i < n; i += kLanes) {
    const bool isWhole = i + kLanes <= n;
    make(i, isWhole ? to + i : staged);
    if (!isWhole) std::memcpy(to + i, staged, (n - i) * sizeof(R));
  }
}

}  // namespace qvp::filter
