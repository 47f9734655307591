// Sums and differences of two images, or of an image and a constant.
#include "arith/nan.h"
#include "arith/scale.h"
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"

namespace {
using namespace qvp;

// Elements as unsigned numbers in the same order, for averages. Signed ones are moved up by half of the range.
template <class V>
HWY_INLINE auto AsUnsigned(V v) {
  using T = hn::TFromV<V>;
  const hn::DFromV<V> d;
  const V half = hn::Set(d, std::numeric_limits<T>::lowest());
  return hn::BitCast(hn::RebindToUnsigned<decltype(d)>(), hn::Xor(v, half));
}
template <class D, class U>
HWY_INLINE hn::Vec<D> FromUnsigned(D d, U u) {
  return hn::Xor(hn::BitCast(d, u), hn::Set(d, std::numeric_limits<hn::TFromD<D>>::lowest()));
}

// What rounds a half to the even neighbour: 1 where the operands' sum is odd and the value rounded already is odd too.
template <class U>
HWY_INLINE U OddTie(U a, U b, U rounded) {
  const hn::DFromV<U> d;
  return hn::And(hn::And(hn::Xor(a, b), rounded), hn::Set(d, 1));
}

struct Sum {
  template <class V>
  HWY_INLINE V Exact(V a, V b) const {
    return hn::Add(a, b);
  }
  template <class V>
  HWY_INLINE V Saturated(V a, V b) const {
    return hn::SaturatedAdd(a, b);
  }
  // (a + b) / 2. The CPU's average rounds halves up, so that odd ones are one too much.
  template <class V>
  HWY_INLINE V Half(V a, V b) const {
    const auto x = AsUnsigned(a), y = AsUnsigned(b), average = hn::AverageRound(x, y);
    return FromUnsigned(hn::DFromV<V>(), hn::Sub(average, OddTie(x, y, average)));
  }
};

// The second operand minus the first.
struct Difference {
  template <class V>
  HWY_INLINE V Exact(V a, V b) const {
    return hn::Sub(b, a);
  }
  template <class V>
  HWY_INLINE V Saturated(V a, V b) const {
    return hn::SaturatedSub(b, a);
  }
  // (b - a) / 2. With a' the complement of a, the average of b and a' is floor((b - a) / 2) + half of the range: for
  // signed elements that is where unsigned numbers put the result.
  template <class V>
  HWY_INLINE V Half(V a, V b) const {
    using T = hn::TFromV<V>;
    const auto x = AsUnsigned(a), y = AsUnsigned(b), average = hn::AverageRound(y, hn::Not(x));
    const auto up = OddTie(x, y, average);
    const hn::DFromV<V> d;
    if constexpr (std::is_signed_v<T>) {
      return FromUnsigned(d, hn::SaturatedAdd(average, up));
    } else {
      const V half = hn::Set(d, static_cast<T>(T{1} << (kBits<T> - 1)));
      return hn::SaturatedSub(average, hn::Sub(half, up));
    }
  }
};

// Calls then(kernel) with the operation on two vectors, scaled and saturated.
template <class Op, class T, class Then>
void WithKernel(int scale, const Then& then) {
  const Op op;
  const auto scaled = [&](const auto& scaling) {
    then([=](auto a, auto b) HWY_ATTR {
      const auto x = Widen<T>(a), y = Widen<T>(b);
      return ScaleAndPack<T>(scaling, Halves{op.Exact(x.lower, y.lower), op.Exact(x.upper, y.upper)});
    });
  };
  if (scale == 0) {
    then([=](auto a, auto b) HWY_ATTR { return op.Saturated(a, b); });
  } else if (scale == 1) {
    then([=](auto a, auto b) HWY_ATTR { return op.Half(a, b); });
  } else if (scale > 1) {
    scaled(ScaleDown<WideLane<T>>(scale));
  } else {
    scaled(ScaleUp<WideLane<T>, T>(scale));
  }
}

// The difference is the second operand's NaN, where both are, as subtraction does not commute.
template <class Op, class Then>
void WithFloatKernel(const Then& then) {
  then([](auto a, auto b) HWY_ATTR {
    const auto result = Op().Exact(a, b);
    if constexpr (std::is_same_v<Op, Sum>) return WithNanOf(a, result);
    return result;
  });
}

template <class Op, class T>
QvpStatus Combine(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {a, b, dst})) return failed;
  const auto run = [&](const auto& kernel) { MapImages(hn::ScalableTag<T>(), kernel, roi, dst, a, b); };
  if constexpr (std::is_integral_v<T>) {
    WithKernel<Op, T>(scale, run);
  } else {
    WithFloatKernel<Op>(run);
  }
  return qvpStatusNoError;
}

template <class Op, class T>
QvpStatus CombineWith(const T* values, const Image<const T>& src, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst}, {values})) return failed;
  const auto run = [&](const auto& kernel) { MapImagesWith(hn::ScalableTag<T>(), kernel, roi, values, dst, src); };
  if constexpr (std::is_integral_v<T>) {
    WithKernel<Op, T>(scale, run);
  } else {
    WithFloatKernel<Op>(run);
  }
  return qvpStatusNoError;
}

}  // namespace

#define ADD_SUB_SFS(type)                                              \
  QVP_C1_C3_C4_AC4(QVP_BINARY_SFS, qvpiAdd, type, Combine<Sum>)        \
  QVP_C1_C3_C4_AC4(QVP_BINARY_SFS, qvpiSub, type, Combine<Difference>) \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT_SFS, qvpiAddC, type, CombineWith<Sum>) \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT_SFS, qvpiSubC, type, CombineWith<Difference>)
ADD_SUB_SFS(8u)
ADD_SUB_SFS(16u)
ADD_SUB_SFS(16s)

QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiAdd, 32f, Combine<Sum>)
QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiSub, 32f, Combine<Difference>)
QVP_C1_C3_C4_AC4(QVP_CONSTANT, qvpiAddC, 32f, CombineWith<Sum>)
QVP_C1_C3_C4_AC4(QVP_CONSTANT, qvpiSubC, 32f, CombineWith<Difference>)
