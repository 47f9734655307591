// Colors times their alpha, and back.
#include "arith/layers.h"
#include "arith/pixel_lanes.h"
#include "base/export.h"

namespace {
using namespace qvp;
using namespace qvp::layers;

template <class T>
struct Times {
  HWY_INLINE Vector<T> operator()(const Layer<T>& pixels) const {
    const auto product = [](auto color, auto alpha) HWY_ATTR {
      if constexpr (std::is_floating_point_v<T>)
        return hn::Mul(color, alpha);
      else
        return OverMost(hn::Mul(color, alpha));
    };
    return ByLanes<T>(product, pixels.Lanes(), pixels.alpha);
  }
};

struct OverFloats {
  HWY_INLINE Vector<float> operator()(const Layer<float>& pixels) const {
    const hn::ScalableTag<float> d;
    const auto isClear = hn::Eq(pixels.alpha, hn::Zero(d));
    return hn::IfThenZeroElse(isClear, hn::Div(pixels.values, pixels.alpha));
  }
};

// color M / a, halves up, at most M: with color <= a it is at most M. An alpha of 0 leaves colors of 0.
struct OverBytes {
  // As floats, color r with r slightly above M / a: by 2^-18 of it, which is more than all roundings, and takes a tie,
  // or what lies just below for them, up. What lies below a tie does so by 1 / 2a at least and goes up by less than
  // 2^-18 M, that is 1 / 1028.
  HWY_INLINE Pixels<Wholes<uint8_t>> operator()(const Pixels<Reals<uint8_t>>& v) const {
    const RealTag<uint8_t> d;
    const auto r = hn::Div(hn::Set(d, 255 * (1 + 0x1p-18f)), hn::Max(v.alpha, hn::Set(d, 1.0f)));
    const auto divided = [&](auto color) HWY_ATTR { return RoundToIntInRange(hn::Mul(hn::Min(color, v.alpha), r)); };
    return {{divided(v.color[0]), divided(v.color[1]), divided(v.color[2])}, RoundToIntInRange(v.alpha)};
  }
};
struct OverWords {
  // As doubles: a tie of 2^-19 above is past one half whatever the roundings, and all else is 2^-17 away from it.
  HWY_INLINE Pixels<Wholes<uint16_t>> operator()(const Pixels<Reals<uint16_t>>& v) const {
    const RealTag<uint16_t> d;
    const auto r = hn::Div(hn::Set(d, 65535.0), hn::Max(v.alpha, hn::Set(d, 1.0)));
    const auto divided = [&](auto color) HWY_ATTR {
      return hn::Floor(hn::Add(hn::Mul(hn::Min(color, v.alpha), r), hn::Set(d, 0.5 + 0x1p-19)));
    };
    return {{divided(v.color[0]), divided(v.color[1]), divided(v.color[2])}, v.alpha};
  }
};

template <class Src, class Dst>
QvpStatus Premultiply(const Src& src, const Dst& dst, Size roi) {
  if (const QvpStatus failed = ValidateLayers(roi, src, dst)) return failed;
  MapLayers<true>(Times<ElementOf<Dst>>(), roi, dst, src);
  return qvpStatusNoError;
}

template <class Src, class Dst>
QvpStatus Unpremultiply(const Src& src, const Dst& dst, Size roi) {
  using T = ElementOf<Dst>;
  if (const QvpStatus failed = ValidateLayers(roi, src, dst)) return failed;
  if constexpr (std::is_floating_point_v<T>)
    MapLayers<true>(OverFloats(), roi, dst, src);
  else
    MapPixels(std::conditional_t<sizeof(T) == 1, OverBytes, OverWords>(), roi, dst, src);
  return qvpStatusNoError;
}

}  // namespace

#define MULTIPLIED(name, impl)    \
  QVP_UNARY(name, 8u, AC4, impl)  \
  QVP_UNARY(name, 16u, AC4, impl) \
  QVP_UNARY(name, 32f, AC4, impl) \
  QVP_PLANES_MAP(name, 8u, impl)

MULTIPLIED(qvpiPremultiply, Premultiply)
MULTIPLIED(qvpiUnpremultiply, Unpremultiply)
