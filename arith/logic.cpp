// Bitwise and, or, exclusive or of two images, or of an image and a constant; bitwise not.
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"

namespace {
using namespace qvp;

struct BitAnd {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::And(a, b);
  }
};
struct BitOr {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Or(a, b);
  }
};
struct BitXor {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Xor(a, b);
  }
};

template <class Op, class T>
QvpStatus Combine(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
  MapImages(hn::ScalableTag<T>(), Op(), roi, dst, a, b);
  return qvpStatusNoError;
}

template <class Op, class T>
QvpStatus CombineWith(const T* values, const Image<const T>& src, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {values})) return failed;
  MapImagesWith(hn::ScalableTag<T>(), Op(), roi, values, dst, src);
  return qvpStatusNoError;
}

QvpStatus Invert(const Image<const uint8_t>& src, const Image<uint8_t>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  MapImages(
      hn::ScalableTag<uint8_t>(), [](auto v) HWY_ATTR { return hn::Not(v); }, roi, dst, src);
  return qvpStatusNoError;
}

}  // namespace

#define LOGIC(name, Op)                                         \
  QVP_C1_C3_C4_AC4(QVP_BINARY, name, 8u, Combine<Op>)           \
  QVP_C1_C3_C4_AC4(QVP_BINARY, name, 16u, Combine<Op>)          \
  QVP_BINARY(name, 32s, C1, Combine<Op>)                        \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT, name##C, 8u, CombineWith<Op>)  \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT, name##C, 16u, CombineWith<Op>) \
  QVP_CONSTANT(name##C, 32s, C1, CombineWith<Op>)

LOGIC(qvpiAnd, BitAnd)
LOGIC(qvpiOr, BitOr)
LOGIC(qvpiXor, BitXor)
QVP_C1_C3_C4_AC4(QVP_UNARY, qvpiNot, 8u, Invert)
