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

// Vectors of pairs at a time, and words that may be written behind what is asked for.
inline constexpr int kAtOnce = 2, kRoom = kAtOnce * PhiloxRow::kWords;

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
    const Floats share =
        hn::Mul(hn::Add(ToFloat(hn::ShiftRight<1>(pairs.even)), hn::Set(d, 1.0f)), hn::Set(d, 0x1p-31f));
    const Floats radius = hn::Sqrt(hn::Mul(LnOfNormal(share, hn::Zero(d)), hn::Set(d, -2.0f)));
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

// Writes the numbers of at least n samples from the first of a block on, each kCopies times.
template <class Number, int kCopies>
void FillNumbers(const PhiloxRow& row, uint32_t block, ptrdiff_t n, float* to) {
  const FloatTag d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const auto store = [&](Floats v, float* at) QVP_INLINED {
    Pixels<kCopies, Floats> copies;
    for (Floats& copy : copies.v) copy = v;
    StoreChannels<kCopies>(copies, d, at);
  };
  const auto write = [&](const WordPairs& pairs, float* at) QVP_INLINED {
    const Numbers numbers = Number::From(pairs);
    store(hn::InterleaveLower(d, numbers.even, numbers.odd), at);
    store(hn::InterleaveUpper(d, numbers.even, numbers.odd), at + kLanes * kCopies);
  };
  for (ptrdiff_t i = 0; i < n; i += kRoom, block += kRoom / 4) {
    const auto blocks = row.Blocks<kAtOnce>(block);
    for (int k = 0; k < kAtOnce; ++k) write(blocks[k], to + (i + k * PhiloxRow::kWords) * kCopies);
  }
}

}  // namespace qvp::noise
