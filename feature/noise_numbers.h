// Random numbers for the samples of a row, from the words of the generator.
#pragma once

#include <algorithm>

#include "base/channels.h"
#include "feature/philox.h"
#include "signal/exp_log.h"
#include "signal/sin_cos.h"

namespace qvp::noise {

using FloatTag = hn::ScalableTag<float>;
using Floats = hn::Vec<FloatTag>;
using IntTag = hn::ScalableTag<int32_t>;

// Numbers that may be written behind those that are asked for.
inline constexpr int kRoom = Philox::kWords;

HWY_INLINE Floats ToFloat(Words v) { return hn::ConvertTo(FloatTag(), hn::BitCast(IntTag(), v)); }

// Numbers of two samples from their words.
struct Numbers {
  Floats even, odd;
};

// From 0 to 1, without 1.
struct Uniform {
  static HWY_INLINE Numbers From(const WordPairs& pairs) { return {Fraction(pairs.even), Fraction(pairs.odd)}; }

 private:
  static HWY_INLINE Floats Fraction(Words v) {
    return hn::Mul(ToFloat(hn::ShiftRight<8>(v)), hn::Set(FloatTag(), 0x1p-24f));
  }
};

// Of the normal distribution, by the method of Box and Muller: the first word's logarithm tells how far from the
// middle, the second in which direction.
struct Normal {
  static HWY_INLINE Numbers From(const WordPairs& pairs) {
    const FloatTag d;
    const Floats share = hn::Add(ToFloat(hn::ShiftRight<1>(pairs.even)), hn::Set(d, 1.0f));  // of 2^31
    const Floats radius = hn::Sqrt(hn::Mul(LnOfNormal(share, hn::Set(d, 31.0f)), hn::Set(d, -2.0f)));
    const SinCosLanes<Floats> direction = SinCosOfTurn(pairs.odd);
    return {hn::Mul(radius, direction.cos), hn::Mul(radius, direction.sin)};
  }
};

// Words less 2^31, as integers: their order is that of the words.
struct Ordered {
  static HWY_INLINE Numbers From(const WordPairs& pairs) { return {Signed(pairs.even), Signed(pairs.odd)}; }

 private:
  static HWY_INLINE Floats Signed(Words v) {
    return hn::BitCast(FloatTag(), hn::Xor(v, hn::Set(WordTag(), 0x80000000u)));
  }
};

// The row of a generator that numbers are for.
struct NumberRow {
  const Philox& philox;
  uint32_t row;

  // write(pairs, i) for words of at least n samples from the first of a block on, i the place of each vector of pairs.
  // Two vectors at once, as each waits for its products.
  template <class Write>
  HWY_INLINE void ForEach(uint32_t block, ptrdiff_t n, const Write& write) const {
    constexpr ptrdiff_t kWords = Philox::kWords;
    const auto blockAt = [&](ptrdiff_t i) { return block + static_cast<uint32_t>(i / 4); };
    ptrdiff_t i = 0;
    for (; i + kWords < n; i += 2 * kWords) {
      const auto pairs = philox.Blocks<2>(row, blockAt(i));
      write(pairs[0], i);
      write(pairs[1], i + kWords);
    }
    if (i < n) write(philox.Blocks<1>(row, blockAt(i))[0], i);
  }
};

// In the order of samples, each kCopies times.
template <int kCopies>
HWY_INLINE void StoreNumbers(const Numbers& numbers, float* to) {
  const FloatTag d;
  Pixels<kCopies, Floats> lower, upper;
  for (Floats& copy : lower.v) copy = hn::InterleaveLower(d, numbers.even, numbers.odd);
  for (Floats& copy : upper.v) copy = hn::InterleaveUpper(d, numbers.even, numbers.odd);
  StoreChannels<kCopies>(lower, d, to);
  StoreChannels<kCopies>(upper, d, to + hn::MaxLanes(d) * kCopies);
}

// Writes the numbers of at least n samples from the first of a block on, each kCopies times.
template <class Number, int kCopies = 1>
void FillNumbers(const NumberRow& row, uint32_t block, ptrdiff_t n, float* to) {
  row.ForEach(block, n, [&](const WordPairs& pairs, ptrdiff_t i) QVP_INLINED {
    StoreNumbers<kCopies>(Number::From(pairs), to + i * kCopies);
  });
}

// The same of normal numbers: first all words, then all numbers. One after the other makes so long a chain that a CPU
// does not reach the next one while it waits, and takes a tenth more time.
inline void FillNormal(const NumberRow& row, uint32_t block, ptrdiff_t n, float* to) {
  const WordTag words;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(words);
  auto* const at = reinterpret_cast<uint32_t*>(to);
  row.ForEach(block, n, [&](const WordPairs& pairs, ptrdiff_t i) QVP_INLINED {
    hn::StoreU(pairs.even, words, at + i);
    hn::StoreU(pairs.odd, words, at + i + kLanes);
  });
  for (ptrdiff_t i = 0; i < n; i += Philox::kWords) {
    StoreNumbers<1>(Normal::From({hn::LoadU(words, at + i), hn::LoadU(words, at + i + kLanes)}), to + i);
  }
}

}  // namespace qvp::noise
