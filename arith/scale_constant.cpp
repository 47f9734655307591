// Each value times a number plus a number, stored in any type.
#include "arith/nan.h"
#include "base/check.h"
#include "base/export.h"
#include "base/halves.h"
#include "base/pixelwise.h"
#include "core/copy.h"

namespace {
using namespace qvp;

bool IsIdentity(double factor, double addend) {
  constexpr double kEpsilon = 2.220446049250313e-16;
  return std::abs(factor - 1) < kEpsilon && std::abs(addend) < kEpsilon;
}

// src factor + addend in lanes of F. If the factor is not a number, neither is any result, and the addend is left out:
// of two such operands the CPU would choose one.
template <class F, class S, class T>
void ScaleIn(const Image<const S>& src, double factor, double addend, const Image<T>& dst, Size roi) {
  const F m = static_cast<F>(factor), a = factor != factor ? F{0} : static_cast<F>(addend);
  const auto kernel = [=](auto v) HWY_ATTR {
    const hn::DFromV<decltype(v)> d;
    return WithNanOf(v, hn::Add(hn::Mul(v, hn::Set(d, m)), hn::Set(d, a)));
  };
  MapOneChannel(hn::ScalableTag<F>(), kernel, roi, dst, src);
}

// The same from bytes to bytes, in single precision. No result leaves the integers if those of 0 and 255 do not: then
// packing saturates alone.
void ScaleBytes(const Image<const uint8_t>& src, double factor, double addend, const Image<uint8_t>& dst, Size roi) {
  const auto m = static_cast<float>(factor), a = static_cast<float>(addend);
  const auto scaled = [=](auto v) HWY_ATTR {
    const hn::DFromV<decltype(v)> d;
    return hn::Add(hn::Mul(v, hn::Set(d, m)), hn::Set(d, a));
  };
  const hn::ScalableTag<uint8_t> bytes;
  if (std::abs(m) * 255 + std::abs(a) < 0x1p30f) {
    const auto kernel = [=](auto v) HWY_ATTR {
      return ViaFloats([=](auto lanes) HWY_ATTR { return RoundToIntInRange(scaled(lanes)); }, v);
    };
    MapOneChannel(bytes, kernel, roi, dst, src);
  } else {
    MapOneChannel(bytes, InFloatLanes(scaled), roi, dst, src);
  }
}

// The fast way computes in single precision where that holds all values of both types.
template <class T>
constexpr bool kIsSingle = sizeof(T) <= 2 || std::is_same_v<T, float>;

template <class S, class T>
QvpStatus ScaleC(const Image<const S>& src, double factor, double addend, const Image<T>& dst, Size roi,
                 QvpHintAlgorithm hint) {
  if constexpr (std::is_same_v<S, T>) {
    if (IsIdentity(factor, addend)) {  // a copy, with its checks, before all others
      if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
      const auto bytes = AsBytes(dst.data, dst.step, dst.layout);
      if (src.data != dst.data || src.step != dst.step) {
        CopyPixels(AsBytes(src.data, src.step, src.layout), bytes, roi,
                   StoreForMoved(2 * static_cast<int64_t>(bytes.RowBytes(roi.width)) * roi.height));
      }
      return qvpStatusNoError;
    }
  }
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  if constexpr (kIsSingle<S> && kIsSingle<T>) {
    if (hint != qvpAlgHintAccurate) {
      if constexpr (std::is_same_v<S, uint8_t> && std::is_same_v<T, uint8_t>) {
        ScaleBytes(src, factor, addend, dst, roi);
      } else {
        ScaleIn<float>(src, factor, addend, dst, roi);
      }
      return qvpStatusNoError;
    }
  }
  ScaleIn<double>(src, factor, addend, dst, roi);
  return qvpStatusNoError;
}

}  // namespace

#define SCALE_CONSTANT(name, from, to)                                                                            \
  QvpStatus qvpiScaleC_##name##_C1R(const Qvp##from* pSrc, int srcStep, Qvp64f mVal, Qvp64f aVal, Qvp##to* pDst,  \
                                    int dstStep, QvpiSize roiSize, QvpHintAlgorithm hint) {                       \
    return ScaleC(View(pSrc, srcStep, Layout::kC1), mVal, aVal, View(pDst, dstStep, Layout::kC1), roiSize, hint); \
  }
#define SCALE_CONSTANT_IN_PLACE(type)                                                                                \
  SCALE_CONSTANT(type, type, type)                                                                                   \
  QvpStatus qvpiScaleC_##type##_C1IR(Qvp##type* pSrcDst, int srcDstStep, Qvp64f mVal, Qvp64f aVal, QvpiSize roiSize, \
                                     QvpHintAlgorithm hint) {                                                        \
    return ScaleC(View<const Qvp##type>(pSrcDst, srcDstStep, Layout::kC1), mVal, aVal,                               \
                  View(pSrcDst, srcDstStep, Layout::kC1), roiSize, hint);                                            \
  }
#define SCALE_CONSTANT_TO(from, to) SCALE_CONSTANT(from##to, from, to)
// From one type to each of six others.
#define SCALE_CONSTANT_FROM(from, a, b, c, d, e, f) \
  SCALE_CONSTANT_IN_PLACE(from)                     \
  SCALE_CONSTANT_TO(from, a)                        \
  SCALE_CONSTANT_TO(from, b)                        \
  SCALE_CONSTANT_TO(from, c)                        \
  SCALE_CONSTANT_TO(from, d) SCALE_CONSTANT_TO(from, e) SCALE_CONSTANT_TO(from, f)

SCALE_CONSTANT_FROM(8u, 8s, 16u, 16s, 32s, 32f, 64f)
SCALE_CONSTANT_FROM(8s, 8u, 16u, 16s, 32s, 32f, 64f)
SCALE_CONSTANT_FROM(16u, 8u, 8s, 16s, 32s, 32f, 64f)
SCALE_CONSTANT_FROM(16s, 8u, 8s, 16u, 32s, 32f, 64f)
SCALE_CONSTANT_FROM(32s, 8u, 8s, 16u, 16s, 32f, 64f)
SCALE_CONSTANT_FROM(32f, 8u, 8s, 16u, 16s, 32s, 64f)
SCALE_CONSTANT_FROM(64f, 8u, 8s, 16u, 16s, 32s, 32f)
