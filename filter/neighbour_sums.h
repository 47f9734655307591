// Sums along a row of 16-bit lanes times symmetric taps, for pixels of one channel: neighbours are the pairs that one
// multiplication takes, so that nothing is interleaved, and a vector that is loaded serves results at even places and
// at odd ones.
#pragma once

#include <array>

#include "base/pairs.h"
#include "base/scalar.h"
#include "base/unrolled.h"

namespace qvp::filter {

// All taps of a row by twos, as results at even places take them, whose window begins with a pair, and those at odd
// places, which has one 0 before it: pairs of neighbours serve both as they are.
struct NeighbourTaps {
  struct Pair {
    int32_t even, odd;
  };
  static constexpr int kMost = 512;
  std::array<Pair, kMost> pairs;

  // `count` taps of 16 bits, from the middle on.
  NeighbourTaps(const uint8_t* table, ptrdiff_t count) {
    const auto tap = [=](ptrdiff_t k) {
      const ptrdiff_t distance = k < count ? count - 1 - k : k - count + 1;
      return distance < count ? static_cast<uint32_t>(LoadScalar(reinterpret_cast<const int16_t*>(table) + distance))
                              : 0;
    };
    const auto two = [](uint32_t first, uint32_t second) { return static_cast<int32_t>(first | second << 16); };
    for (ptrdiff_t k = 0; k < count; ++k) {
      pairs[k] = {two(tap(2 * k), tap(2 * k + 1)), two(tap(2 * k - 1), tap(2 * k))};
    }
  }
};

// Vectors of them: those of few terms stay in registers.
template <class D, int kTerms>
class NeighbourVectors {
 public:
  using Ints = hn::Repartition<int32_t, D>;
  struct Sum {
    hn::Vec<Ints> even, odd;
  };

  NeighbourVectors(const NeighbourTaps& taps, ptrdiff_t count) : pairs_(taps.pairs.data()), count_(count) {
    Unrolled<kTerms>([&](auto p) QVP_INLINED {
      even_[p] = Vector(pairs_[p].even);
      odd_[p] = Vector(pairs_[p].odd);
    });
  }

  // The sums of kCount vectors: value(p, v) are those that begin 2 p places behind the first.
  template <int kCount, class Value>
  HWY_INLINE std::array<Sum, kCount> Sums(int32_t start, const Value& value) const {
    std::array<Sum, kCount> sums;
    Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v].even = sums[v].odd = hn::Set(Ints(), start); });
    const auto add = [&](ptrdiff_t p, auto even, auto odd) QVP_INLINED {
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const auto pixels = value(p, v);
        sums[v].even = hn::Add(sums[v].even, MulAddPairs(pixels, even));
        sums[v].odd = hn::Add(sums[v].odd, MulAddPairs(pixels, odd));
      });
    };
    if constexpr (kTerms > 0) {
      Unrolled<kTerms>([&](auto p) QVP_INLINED { add(p, even_[p], odd_[p]); });
    } else {
      for (ptrdiff_t p = 0; p < count_; ++p) add(p, Vector(pairs_[p].even), Vector(pairs_[p].odd));
    }
    return sums;
  }

 private:
  static HWY_INLINE hn::Vec<D> Vector(int32_t pair) { return hn::BitCast(D(), hn::Set(Ints(), pair)); }

  const NeighbourTaps::Pair* pairs_;
  ptrdiff_t count_;
  std::array<hn::Vec<D>, kTerms> even_, odd_;
};

}  // namespace qvp::filter
