// Thresholds: values beyond a bound become the bound, or a value of the caller's.
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"

namespace {
using namespace qvp;

// Unsigned lanes have no comparison of their own below AVX-512, but minimum and maximum.
template <class V>
constexpr bool kHasOrder = !std::is_unsigned_v<hn::TFromV<V>>;

// `value` where v is above the bound, else `otherwise`. What is not a number is neither above nor below.
template <class V>
HWY_INLINE V IfAbove(V v, V bound, V value, V otherwise) {
  if constexpr (kHasOrder<V>) {
    return hn::IfThenElse(hn::Gt(v, bound), value, otherwise);
  } else {
    return hn::IfThenElse(hn::Eq(hn::Max(v, bound), bound), otherwise, value);
  }
}
template <class V>
HWY_INLINE V IfBelow(V v, V bound, V value, V otherwise) {
  if constexpr (kHasOrder<V>) {
    return hn::IfThenElse(hn::Lt(v, bound), value, otherwise);
  } else {
    return hn::IfThenElse(hn::Eq(hn::Min(v, bound), bound), otherwise, value);
  }
}

// NaN stays.
struct BoundAbove {
  template <class V>
  HWY_INLINE V operator()(V v, V bound) const {
    return MinOrSecond(bound, v);
  }
};
struct BoundBelow {
  template <class V>
  HWY_INLINE V operator()(V v, V bound) const {
    return MaxOrSecond(bound, v);
  }
};
struct ValueAbove {
  template <class V>
  HWY_INLINE V operator()(V v, V bound, V value) const {
    return IfAbove(v, bound, value, v);
  }
};
struct ValueBelow {
  template <class V>
  HWY_INLINE V operator()(V v, V bound, V value) const {
    return IfBelow(v, bound, value, v);
  }
};
struct ValuesOutside {
  template <class V>
  HWY_INLINE V operator()(V v, V lower, V below, V upper, V above) const {
    return IfBelow(v, lower, below, IfAbove(v, upper, above, v));
  }
};

// The arrays hold one value for each processed channel.
template <class Op, class T, class... Constant>
void Apply(const Image<const T>& src, const Image<T>& dst, Size roi, const Constant*... values) {
  const hn::ScalableTag<T> d;
  const auto map = [&](auto keepAlpha) {
    const auto row = [d, ... constant = PerChannel(d, values, dst.layout)](ptrdiff_t n, T* to, const T* from) HWY_ATTR {
      const auto op = [&](const auto& at, auto v) HWY_ATTR { return Op()(v, at(constant)...); };
      MapRowWith<decltype(keepAlpha)::value>(d, to, n, op, from);
    };
    ForEachPiece(roi, row, dst, src);
  };
  KeepsAlpha(dst.layout) ? map(std::true_type()) : map(std::false_type());
}

// One bound: Op is either of the two operations with a bound alone, or with a bound and a value.
template <class Op, class T, class... Constant>
QvpStatus OneSided(const Image<const T>& src, const Image<T>& dst, Size roi, const Constant*... values) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {values...})) return failed;
  Apply<Op>(src, dst, roi, values...);
  return qvpStatusNoError;
}

template <class T>
QvpStatus Threshold(const Image<const T>& src, const Image<T>& dst, Size roi, const T* bound, QvpCmpOp relation) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {bound})) return failed;
  if (relation != qvpCmpLess && relation != qvpCmpGreater) return qvpStatusNotSupportedMode;
  relation == qvpCmpGreater ? Apply<BoundAbove>(src, dst, roi, bound) : Apply<BoundBelow>(src, dst, roi, bound);
  return qvpStatusNoError;
}

template <class T>
QvpStatus TwoSided(const Image<const T>& src, const Image<T>& dst, Size roi, const T* lower, const T* below,
                   const T* upper, const T* above) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {lower, below, upper, above})) {
    return failed;
  }
  if (!AreOrdered(lower, upper, dst.layout)) return qvpStatusThreshold;
  Apply<ValuesOutside>(src, dst, roi, lower, below, upper, above);
  return qvpStatusNoError;
}

}  // namespace

#define THRESHOLDS(type, layout)                                                                                   \
  QVP_BOTH_PLACES(qvpiThreshold, , type, layout, Threshold, (QVP_VALUES_##layout(type) threshold, QvpCmpOp cmpOp), \
                  (Values(threshold), cmpOp))                                                                      \
  QVP_BOTH_PLACES(qvpiThreshold_GT, , type, layout, OneSided<BoundAbove>, (QVP_VALUES_##layout(type) threshold),   \
                  (Values(threshold)))                                                                             \
  QVP_BOTH_PLACES(qvpiThreshold_LT, , type, layout, OneSided<BoundBelow>, (QVP_VALUES_##layout(type) threshold),   \
                  (Values(threshold)))                                                                             \
  QVP_BOTH_PLACES(qvpiThreshold_GTVal, , type, layout, OneSided<ValueAbove>,                                       \
                  (QVP_VALUES_##layout(type) threshold, QVP_VALUES_##layout(type) value),                          \
                  (Values(threshold), Values(value)))                                                              \
  QVP_BOTH_PLACES(qvpiThreshold_LTVal, , type, layout, OneSided<ValueBelow>,                                       \
                  (QVP_VALUES_##layout(type) threshold, QVP_VALUES_##layout(type) value),                          \
                  (Values(threshold), Values(value)))                                                              \
  QVP_BOTH_PLACES(qvpiThreshold_LTValGTVal, , type, layout, TwoSided,                                              \
                  (QVP_VALUES_##layout(type) thresholdLT, QVP_VALUES_##layout(type) valueLT,                       \
                   QVP_VALUES_##layout(type) thresholdGT, QVP_VALUES_##layout(type) valueGT),                      \
                  (Values(thresholdLT), Values(valueLT), Values(thresholdGT), Values(valueGT)))

QVP_EACH_LAYOUT(THRESHOLDS, 8u)
QVP_EACH_LAYOUT(THRESHOLDS, 16u)
QVP_EACH_LAYOUT(THRESHOLDS, 16s)
QVP_EACH_LAYOUT(THRESHOLDS, 32f)
