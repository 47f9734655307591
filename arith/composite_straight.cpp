// Composites of two images that are not premultiplied.
#include "arith/straight.h"
#include "base/export.h"
#include "core/fill.h"

namespace {
using namespace qvp;
using namespace qvp::layers;

// All four values, 0 where alpha is +0 or -0.
HWY_INLINE Vector<float> Made(Vector<float> color, Vector<float> alpha) {
  const hn::ScalableTag<float> d;
  const auto pixels = hn::IfThenElse(FourthLanes(d, 0), alpha, color);
  return hn::IfThenZeroElse(hn::Eq(alpha, hn::Zero(d)), pixels);
}

// The first layer alone: its colors.
struct One {
  RealFactor<float> factor;

  HWY_INLINE Vector<float> operator()(const Layer<float>& a, const Layer<float>& b) const {
    return Made(a.values, hn::Mul(factor(b.alpha), a.alpha));
  }
};

struct Two {
  RealFactor<float> first, second;

  HWY_INLINE Vector<float> operator()(const Layer<float>& a, const Layer<float>& b) const {
    const auto w1 = hn::Mul(first(b.alpha), a.alpha), w2 = hn::Mul(second(a.alpha), b.alpha), sum = hn::Add(w1, w2);
    return Made(hn::Div(hn::Add(hn::Mul(w1, a.values), hn::Mul(w2, b.values)), sum), sum);
  }
};

void Composite(const Image<const float>& src1, const Image<const float>& src2, const Image<float>& dst, Size roi,
               QvpiCompositeOp code) {
  InOneOrder(src1, src2, code, [&](const Image<const float>& a, const Image<const float>& b, Operator op) {
    constexpr float kZeros[4] = {};
    if (!op.HasFirst()) return FillPixels(kZeros, AsBytes(WithAlpha(dst)), roi);
    if (!op.HasSecond()) return MapLayers<false>(One{RealFactor<float>(op.first)}, roi, dst, a, b);
    MapLayers<false>(Two{RealFactor<float>(op.first), RealFactor<float>(op.second)}, roi, dst, a, b);
  });
}

template <class Src, class Dst>
QvpStatus CompositeStraight(const Src& a, const Src& b, const Dst& dst, Size roi, QvpiCompositeOp op) {
  using T = ElementOf<Dst>;
  if (const QvpStatus failed = ValidateLayers(roi, a, b, dst)) return failed;
  if (!IsOperator(op)) return qvpStatusAlphaType;
  if constexpr (std::is_floating_point_v<T>)
    Composite(a, b, dst, roi, op);
  else
    MapPixels(Straight<T>(op), roi, dst, a, b);
  return qvpStatusNoError;
}

}  // namespace

QVP_BINARY_FORM(qvpiCompositeStraight, , 8u, AC4, CompositeStraight, (QvpiCompositeOp op), (op))
QVP_BINARY_FORM(qvpiCompositeStraight, , 16u, AC4, CompositeStraight, (QvpiCompositeOp op), (op))
QVP_BINARY_FORM(qvpiCompositeStraight, , 32f, AC4, CompositeStraight, (QvpiCompositeOp op), (op))
QVP_PLANES_BINARY(qvpiCompositeStraight, 8u, CompositeStraight, (QvpiCompositeOp op), (op))
QVP_PLANES_BINARY(qvpiCompositeStraight, 16u, CompositeStraight, (QvpiCompositeOp op), (op))
