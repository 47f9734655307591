// Composites of two premultiplied images, whose pixels have their own alpha, and of two images with an opacity each.
#include "arith/operators.h"
#include "base/export.h"
#include "base/halves.h"
#include "base/pairs.h"
#include "base/scalar.h"
#include "core/copy.h"
#include "core/fill.h"

namespace {
using namespace qvp;
using namespace qvp::layers;

template <class T>
using FactorIn = std::conditional_t<std::is_floating_point_v<T>, RealFactor<float>,
                                    FactorOf<hwy::MakeUnsigned<hwy::MakeWide<T>>, T>>;

// ---- Kernels for the values of premultiplied pixels

// The first layer alone.
template <class T>
struct One {
  FactorIn<T> factor;

  HWY_INLINE Vector<T> operator()(const Layer<T>& a, const Layer<T>& b) const {
    const auto product = [this](auto value, auto alpha) HWY_ATTR { return hn::Mul(value, factor(alpha)); };
    if constexpr (std::is_floating_point_v<T>)
      return product(a.values, b.alpha);
    else
      return ByLanes<T>([&](auto value, auto alpha) HWY_ATTR { return OverMost(product(value, alpha)); }, a.Lanes(),
                        b.alpha);
  }
};

// The first layer as it is, what shows of the second one through it, and no more than M.
template <class T>
struct Over {
  HWY_INLINE Vector<T> operator()(const Layer<T>& a, const Layer<T>& b) const {
    const One<T> rest{FactorIn<T>(Factor::kRest)};
    if constexpr (std::is_floating_point_v<T>)
      return hn::Add(a.values, rest(b, a));
    else
      return hn::SaturatedAdd(a.values, rest(b, a));
  }
};

// The sum of the products rounds once. It does not leave the lane, as the second one is cut where the sum reaches M^2.
template <class T>
struct Two {
  FactorIn<T> first, second;

  HWY_INLINE Vector<T> operator()(const Layer<T>& a, const Layer<T>& b) const {
    const auto sum = [this](auto valueA, auto alphaA, auto valueB, auto alphaB) HWY_ATTR {
      const auto p1 = hn::Mul(valueA, first(alphaB)), p2 = hn::Mul(valueB, second(alphaA));
      if constexpr (std::is_floating_point_v<T>) {
        return hn::Add(p1, p2);
      } else {
        const hn::DFromV<decltype(p1)> d;
        const auto most = hn::Set(d, static_cast<hn::TFromD<decltype(d)>>(kMost<T> * hwy::MakeWide<T>{kMost<T>}));
        return OverMost(hn::Add(p1, hn::Min(p2, hn::Sub(most, p1))));
      }
    };
    return ByLanes<T>(sum, a.Lanes(), a.alpha, b.Lanes(), b.alpha);
  }
};

// ---- Moves, for operators without an alpha

template <class T>
void Clear(const Image<T>& dst, Size roi) {
  constexpr T kZeros[4] = {};
  FillPixels(kZeros, AsBytes(WithAlpha(dst)), roi);
}
template <class T>
void Move(const Image<const T>& src, const Image<T>& dst, Size roi) {
  if (src.data != dst.data) CopyImage(AsBytes(WithAlpha(src)), AsBytes(WithAlpha(dst)), roi);
}
template <class T>
void Clear(const Planes<T>& dst, Size roi) {
  constexpr T kZero = 0;
  for (const auto& plane : dst) FillPixels(&kZero, AsBytes(plane), roi);
}
template <class T>
void Move(const Planes<const T>& src, const Planes<T>& dst, Size roi) {
  for (int p = 0; p < 4; ++p) {
    if (src[p].data != dst[p].data) CopyImage(AsBytes(src[p]), AsBytes(dst[p]), roi);
  }
}

template <class Src, class Dst>
QvpStatus Composite(const Src& src1, const Src& src2, const Dst& dst, Size roi, QvpiCompositeOp code) {
  using T = ElementOf<Dst>;
  if (const QvpStatus failed = ValidateLayers(roi, src1, src2, dst)) return failed;
  if (!IsOperator(code)) return qvpStatusAlphaType;
  InOneOrder(src1, src2, code, [&](const Src& a, const Src& b, Operator op) {
    if (!op.HasFirst()) return Clear(dst, roi);
    if (!op.HasSecond() && op.first == Factor::kOne) return Move(a, dst, roi);
    if (!op.HasSecond()) return MapLayers<false>(One<T>{FactorIn<T>(op.first)}, roi, dst, a, b);
    if (op.first == Factor::kOne) return MapLayers<false>(Over<T>(), roi, dst, a, b);
    MapLayers<false>(Two<T>{FactorIn<T>(op.first), FactorIn<T>(op.second)}, roi, dst, a, b);
  });
  return qvpStatusNoError;
}

// ---- Constant opacities: weights of both images, whose sum is M at most.

template <class T>
T FactorFrom(Factor factor, T alpha) {
  constexpr T kOne = std::is_floating_point_v<T> ? T{1} : kMost<T>;
  const T rest = static_cast<T>(kOne - alpha);
  return factor == Factor::kZero ? T{0} : factor == Factor::kOne ? kOne : factor == Factor::kAlpha ? alpha : rest;
}

template <class T>
T Weight(T alpha, Factor factor, T other) {
  const T share = FactorFrom(factor, other);
  if constexpr (std::is_floating_point_v<T>)
    return alpha * share;
  else
    return static_cast<T>((2 * uint64_t{alpha} * share + kMost<T>) / (2 * uint64_t{kMost<T>}));
}

// Values moved down by 128 are signed, so that a product and a sum of two fit 16 bits with their sign; what is missing,
// 128 times both weights, is added without one.
struct BlendBytes {
  uint16_t weights, missing;

  BlendBytes(uint8_t first, uint8_t second)
      : weights(static_cast<uint16_t>(first | second << 8)), missing(static_cast<uint16_t>(128 * (first + second))) {}

  HWY_INLINE Vector<uint8_t> operator()(Vector<uint8_t> a, Vector<uint8_t> b) const {
    const hn::ScalableTag<uint8_t> d;
    const hn::ScalableTag<int8_t> signs;
    const hn::ScalableTag<uint16_t> sums;
    const auto by = hn::BitCast(d, hn::Set(sums, weights)), down = hn::Set(d, 128);
    const auto blended = [&](auto pairs) HWY_ATTR {
      const auto sum = hn::BitCast(sums, MulAddPairs(by, hn::BitCast(signs, pairs)));
      return hn::BitCast(hn::ScalableTag<int16_t>(), OverMost(hn::Add(sum, hn::Set(sums, missing))));
    };
    const auto x = hn::Xor(a, down), y = hn::Xor(b, down);
    return Packed(uint8_t(), blended(hn::InterleaveLower(d, x, y)), blended(hn::InterleaveUpper(d, x, y)));
  }
};

struct BlendWords {
  uint16_t first, second;

  HWY_INLINE Vector<uint16_t> operator()(Vector<uint16_t> a, Vector<uint16_t> b) const {
    const auto sum = [this](auto x, auto y) HWY_ATTR {
      const hn::DFromV<decltype(x)> d;
      return OverMost(hn::Add(hn::Mul(x, hn::Set(d, first)), hn::Mul(y, hn::Set(d, second))));
    };
    return ByLanes<uint16_t>(sum, Split<uint16_t>(a), Split<uint16_t>(b));
  }
};

template <class T>
void Blend(const Image<const T>& a, T alphaA, const Image<const T>& b, T alphaB, const Image<T>& dst, Size roi,
           Operator op) {
  using Kernel = std::conditional_t<sizeof(T) == 1, BlendBytes, BlendWords>;
  const Kernel kernel{Weight(alphaA, op.first, alphaB), Weight(alphaB, op.second, alphaA)};
  MapImages(hn::ScalableTag<T>(), kernel, roi, dst, a, b);
}

// An image whose factor is nothing has no term, so that its NaN is not in the result.
void Blend(const Image<const float>& a, float alphaA, const Image<const float>& b, float alphaB,
           const Image<float>& dst, Size roi, Operator op) {
  const hn::ScalableTag<float> d;
  const float first = Weight(alphaA, op.first, alphaB), second = Weight(alphaB, op.second, alphaA);
  constexpr float kZeros[4] = {};
  const auto one = [=](float weight) { return [=](auto v) HWY_ATTR { return hn::Mul(v, hn::Set(d, weight)); }; };
  const auto two = [=](auto x, auto y)
                       HWY_ATTR { return hn::Add(hn::Mul(x, hn::Set(d, first)), hn::Mul(y, hn::Set(d, second))); };
  if (op.HasFirst() && op.HasSecond()) return MapImages(d, two, roi, dst, a, b);
  if (!op.HasFirst() && !op.HasSecond()) return FillPixels(kZeros, AsBytes(dst), roi);
  op.HasFirst() ? MapImages(d, one(first), roi, dst, a) : MapImages(d, one(second), roi, dst, b);
}

bool IsOpacity(float alpha) { return alpha >= 0 && alpha <= 1; }

template <class T>
QvpStatus CompositeC(const Image<const T>& a, T alphaA, const Image<const T>& b, T alphaB, const Image<T>& dst,
                     Size roi, QvpiCompositeOp code) {
  if (const QvpStatus failed = ValidateLayers(roi, a, b, dst)) return failed;
  if constexpr (std::is_floating_point_v<T>) {
    if (!IsOpacity(alphaA) || !IsOpacity(alphaB)) return qvpStatusBadArgument;
  }
  if (!IsOperator(code)) return qvpStatusAlphaType;
  Blend(a, alphaA, b, alphaB, dst, roi, kOperators[code]);
  return qvpStatusNoError;
}

}  // namespace

#define COMPOSITE(type) QVP_BINARY_FORM(qvpiComposite, , type, AC4, Composite, (QvpiCompositeOp op), (op))
COMPOSITE(8u)
COMPOSITE(16u)
COMPOSITE(32f)
QVP_PLANES_BINARY(qvpiComposite, 8u, Composite, (QvpiCompositeOp op), (op))
QVP_PLANES_BINARY(qvpiComposite, 16u, Composite, (QvpiCompositeOp op), (op))

#define COMPOSITE_C(type, layout)                                                                                     \
  QvpStatus qvpiCompositeC_##type##_##layout##R(const Qvp##type* pSrc1, int src1Step, Qvp##type alpha1,               \
                                                const Qvp##type* pSrc2, int src2Step, Qvp##type alpha2,               \
                                                Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiCompositeOp op) { \
    return CompositeC(View(pSrc1, src1Step, Layout::k##layout), alpha1, View(pSrc2, src2Step, Layout::k##layout),     \
                      alpha2, View(pDst, dstStep, Layout::k##layout), roiSize, op);                                   \
  }                                                                                                                   \
  QvpStatus qvpiCompositeC_##type##_##layout##IR(const Qvp##type* pSrc, int srcStep, Qvp##type alpha1,                \
                                                 Qvp##type* pSrcDst, int srcDstStep, Qvp##type alpha2,                \
                                                 QvpiSize roiSize, QvpiCompositeOp op) {                              \
    return CompositeC(View(pSrc, srcStep, Layout::k##layout), alpha1,                                                 \
                      View<const Qvp##type>(pSrcDst, srcDstStep, Layout::k##layout), alpha2,                          \
                      View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, op);                                     \
  }
#define COMPOSITE_C_LAYOUTS(type) COMPOSITE_C(type, C1) COMPOSITE_C(type, C3) COMPOSITE_C(type, AC4)
COMPOSITE_C_LAYOUTS(8u)
COMPOSITE_C_LAYOUTS(16u)
COMPOSITE_C_LAYOUTS(32f)
