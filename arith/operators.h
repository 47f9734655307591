// The operators of Porter and Duff, as the share that each of two layers has in a result.
#pragma once

#include "arith/layers.h"

namespace qvp::layers {

// What a layer is multiplied by: nothing or 1, or the alpha of the other layer, or 1 minus that.
enum class Factor { kZero, kOne, kAlpha, kRest };

struct Operator {
  Factor first, second;

  bool HasFirst() const { return first != Factor::kZero; }
  bool HasSecond() const { return second != Factor::kZero; }
};

inline constexpr Operator kOperators[] = {
    {Factor::kZero, Factor::kZero},   // Clear
    {Factor::kOne, Factor::kZero},    // First
    {Factor::kZero, Factor::kOne},    // Second
    {Factor::kOne, Factor::kRest},    // FirstOver
    {Factor::kRest, Factor::kOne},    // SecondOver
    {Factor::kAlpha, Factor::kZero},  // FirstIn
    {Factor::kZero, Factor::kAlpha},  // SecondIn
    {Factor::kRest, Factor::kZero},   // FirstOut
    {Factor::kZero, Factor::kRest},   // SecondOut
    {Factor::kAlpha, Factor::kRest},  // FirstAtop
    {Factor::kRest, Factor::kAlpha},  // SecondAtop
    {Factor::kRest, Factor::kRest},   // Xor
};

inline bool IsOperator(QvpiCompositeOp op) { return op >= qvpCompositeClear && op <= qvpCompositeXor; }

// Calls use(a, b, operator), with the layers exchanged where only the second one takes part or is whole, so that there
// are fewer cases: no layer, the first one alone, both.
template <class Images, class Use>
void InOneOrder(const Images& a, const Images& b, QvpiCompositeOp op, const Use& use) {
  const Operator o = kOperators[op];
  const bool isExchanged = o.HasSecond() && (!o.HasFirst() || o.second == Factor::kOne);
  isExchanged ? use(b, a, Operator{o.second, o.first}) : use(a, b, o);
}

// A factor of vectors of lanes of L, as data: (alpha and mask) exclusive-or flip.
template <class L, class T>
class FactorOf {
 public:
  explicit FactorOf(Factor factor)
      : mask_(factor == Factor::kAlpha || factor == Factor::kRest ? kMost<T> : 0),
        flip_(factor == Factor::kOne || factor == Factor::kRest ? kMost<T> : 0) {}
  template <class V>
  HWY_INLINE V operator()(V alpha) const {
    const hn::DFromV<V> d;
    return hn::Xor(hn::And(alpha, hn::Set(d, mask_)), hn::Set(d, flip_));
  }

 private:
  L mask_, flip_;
};

// Of reals, where `one` stands for 1: (start - (alpha and mask)) exclusive-or sign, with `start` -0 for alpha itself,
// so that it comes out with its sign, and `one` otherwise, or 0 for kZero; one subtraction is all that rounds.
template <class R>
class RealFactor {
 public:
  explicit RealFactor(Factor factor, R one = 1)
      : start_(factor == Factor::kAlpha  ? R{-0.0}
               : factor == Factor::kZero ? R{0}
                                         : one),
        sign_(factor == Factor::kAlpha ? R{-0.0} : R{0}),
        hasAlpha_(factor == Factor::kAlpha || factor == Factor::kRest ? ~Bits{0} : 0) {}
  template <class V>
  HWY_INLINE V operator()(V alpha) const {
    const hn::DFromV<V> d;
    const auto mask = hn::BitCast(d, hn::Set(hn::RebindToUnsigned<decltype(d)>(), hasAlpha_));
    return hn::Xor(hn::Sub(hn::Set(d, start_), hn::And(alpha, mask)), hn::Set(d, sign_));
  }

 private:
  using Bits = hwy::MakeUnsigned<R>;
  R start_, sign_;
  Bits hasAlpha_;
};

}  // namespace qvp::layers
