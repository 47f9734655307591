// Exact sums of the samples of two images, of their squares and of their products, in one pass.
#pragma once

#include "stats/exact_sums.h"

namespace qvp::stats {

inline constexpr int kJointSums = 5;  // of x, y, x^2, y^2 and x y

// Calls add(quantity, a, b) with the factors of each quantity.
template <class V, class Add>
HWY_INLINE void ForEachJointSum(V x, V y, V ones, const Add& add) {
  add(0, x, ones);
  add(1, y, ones);
  add(2, x, x);
  add(3, y, y);
  add(4, x, y);
}

// Bytes of one channel. A lane grows by 2 * 4 * 255^2 in a round.
struct ByteJointSums {
  using D = hn::ScalableTag<uint8_t>;
  using Sums = hn::ScalableTag<uint32_t>;
  static constexpr int kVectors = 2, kSums = kJointSums;
  static constexpr ptrdiff_t kMostRounds = 33025 / 4;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    const Sums d;
    for (int k = 0; k < kVectors; ++k) {
      const auto v = at(k);
      const EvenOdd<uint8_t> x(v.a), y(v.b);
      sums[0] = hn::Add(sums[0], hn::BitCast(d, hn::SumsOf8(v.a)));
      sums[1] = hn::Add(sums[1], hn::BitCast(d, hn::SumsOf8(v.b)));
      sums[2] = AddPairProducts(AddPairProducts(sums[2], x.even, x.even), x.odd, x.odd);
      sums[3] = AddPairProducts(AddPairProducts(sums[3], y.even, y.even), y.odd, y.odd);
      sums[4] = AddPairProducts(AddPairProducts(sums[4], x.even, y.even), x.odd, y.odd);
    }
  }
};

// Bytes of several channels, in the pairs of BytePixelPairs.
struct BytePixelJointSums {
  using D = BytePixelPairs::D;
  using Sums = hn::Repartition<uint32_t, D>;
  static constexpr int kVectors = 6, kEach = 3, kSums = kJointSums * kEach;
  static constexpr ptrdiff_t kMostRounds = BytePixelProducts::kMostRounds;
  static constexpr int Position(int sum, int lane) { return BytePixelPairs::Position(sum, lane); }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    const auto ones = hn::BitCast(D(), hn::Set(hn::Repartition<uint16_t, D>(), 1));
    BytePixelPairs::ForEach(at, [&](int s, auto x, auto y) QVP_INLINED {
      ForEachJointSum(x, y, ones, [&](int q, auto a, auto b) QVP_INLINED {
        sums[q * kEach + s] = AddPairProducts(sums[q * kEach + s], a, b);
      });
    });
  }
};

// Signed 16-bit integers of one channel; each pair of samples has a bias in each quantity.
struct WordJointSums {
  using D = hn::ScalableTag<uint16_t>;  // their bits
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 2, kSums = kJointSums;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) {
      const auto v = at(k);
      ForEachJointSum(v.a, v.b, hn::Set(D(), 1),
                      [&](int q, auto a, auto b) HWY_ATTR { AddWidePairProducts(sums[q], sums[q], a, b); });
    }
  }
};

// The same for several channels, in the pairs of WordPixelPairs.
struct WordPixelJointSums {
  using D = hn::ScalableTag<uint16_t>;
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 6, kEach = 6, kSums = kJointSums * kEach;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int sum, int lane) { return WordPixelPairs::Position(sum, lane); }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    WordPixelPairs::ForEach(at, [&](int s, auto x, auto y) QVP_INLINED {
      ForEachJointSum(x, y, hn::Set(D(), 1), [&](int q, auto a, auto b) QVP_INLINED {
        AddWidePairProducts(sums[q * kEach + s], sums[q * kEach + s + 1], a, b);
      });
    });
  }
};

template <class T, bool kOneChannel>
using JointSumsOf =
    std::conditional_t<sizeof(T) == 1, std::conditional_t<kOneChannel, ByteJointSums, BytePixelJointSums>,
                       std::conditional_t<kOneChannel, WordJointSums, WordPixelJointSums>>;

}  // namespace qvp::stats
