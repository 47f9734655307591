// Differences of products of sums, n s - u v, as doubles that are rounded once.
#pragma once

#include "base/lanes.h"

namespace qvp::filter {

using DoubleLanes = hn::ScalableTag<double>;
using DoubleVector = hn::Vec<DoubleLanes>;
using WordLanes = hn::Repartition<uint64_t, DoubleLanes>;
using WordVector = hn::Vec<WordLanes>;

// Whole numbers below 2^52, from doubles.
HWY_INLINE WordVector Whole(DoubleVector v) {
  const WordLanes words;
  const auto bits = hn::BitCast(words, hn::Add(v, hn::Set(DoubleLanes(), 0x1p52)));
  return hn::And(bits, hn::Set(words, (uint64_t{1} << 52) - 1));
}

// A whole number below 2^32 as a double, with an offset that the lower bits of its significand hold.
HWY_INLINE DoubleVector WithOffset(WordVector half, double offset) {
  const DoubleVector v = hn::Set(DoubleLanes(), offset);
  return hn::Sub(hn::BitCast(DoubleLanes(), hn::Or(half, hn::BitCast(WordLanes(), v))), v);
}

// A whole number below 2^63 as a double: its halves are exact, so that their sum is rounded once.
HWY_INLINE DoubleVector Rounded(WordVector whole) {
  const auto lower = hn::And(whole, hn::Set(WordLanes(), 0xFFFFFFFF));
  return hn::Add(WithOffset(hn::ShiftRight<32>(whole), 0x1p84), WithOffset(lower, 0x1p52));
}

// One with a sign, modulo 2^64.
HWY_INLINE DoubleVector RoundedSigned(WordVector whole) {
  const DoubleLanes d;
  const WordLanes words;
  const auto isNegative = hn::BitCast(words, hn::BroadcastSignBit(hn::BitCast(hn::RebindToSigned<WordLanes>(), whole)));
  const auto magnitude = hn::Sub(hn::Xor(whole, isNegative), isNegative);
  return hn::CopySignToAbs(Rounded(magnitude), hn::BitCast(d, whole));
}

// n s - u v modulo 2^64 of whole numbers n < 2^32, s < 2^52, u and v < 2^32.
HWY_INLINE WordVector WholeDifference(double n, DoubleVector s, DoubleVector u, DoubleVector v) {
  const WordLanes words;
  const hn::Repartition<uint32_t, DoubleLanes> halves;
  const auto factor = [&](DoubleVector x) QVP_INLINED { return hn::BitCast(halves, Whole(x)); };
  const auto count = hn::BitCast(halves, hn::Set(words, static_cast<uint64_t>(n))), sum = factor(s);
  const auto upper = hn::MulEven(hn::BitCast(halves, hn::ShiftRight<32>(hn::BitCast(words, sum))), count);
  const auto product = hn::Add(hn::MulEven(sum, count), hn::ShiftLeft<32>(upper));
  return hn::Sub(product, hn::MulEven(factor(u), factor(v)));
}

// n s - u v in doubles, which are exact for sums of bytes and of their products.
HWY_INLINE DoubleVector RealDifference(double n, DoubleVector s, DoubleVector u, DoubleVector v) {
  return hn::Sub(hn::Mul(hn::Set(DoubleLanes(), n), s), hn::Mul(u, v));
}

}  // namespace qvp::filter
