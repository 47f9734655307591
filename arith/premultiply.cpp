// Colors times their alpha, and back.
#include "arith/layers.h"
#include "arith/pixel_lanes.h"
#include "base/export.h"

namespace {
using namespace qvp;
using namespace qvp::layers;

// For each byte of a pixel its alpha.
HWY_INLINE Vector<uint8_t> AlphaInAll(Vector<uint8_t> v) {
  const hn::ScalableTag<uint8_t> d;
  alignas(16) static constexpr uint8_t kIndices[] = {3, 3, 3, 3, 7, 7, 7, 7, 11, 11, 11, 11, 15, 15, 15, 15};
  return hn::TableLookupBytes(v, hn::LoadDup128(d, kIndices));
}

// The same as Times, but for an alpha that is the product of itself and 1: no lane has to be put back.
struct TimesInterleavedBytes {
  HWY_INLINE Vector<uint8_t> operator()(Vector<uint8_t> v) const {
    const ProductTag<uint8_t> d;
    const auto layer = InterleavedLayer<uint8_t>(v);
    const auto lanes = layer.Lanes();
    const auto one = hn::BitCast(d, hn::Set(WordTag<uint8_t>(), 0x00FF0000));
    const auto even = OverMost(hn::Mul(lanes.even, layer.alpha.even));
    const auto odd = OverMost(hn::Mul(lanes.odd, hn::Or(layer.alpha.odd, one)));
    return hn::BitCast(hn::ScalableTag<uint8_t>(), hn::Or(even, hn::ShiftLeft<8>(odd)));
  }
};

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
// The same of interleaved pixels, quicker by what is known of their words: the smaller of color and alpha is that of
// bytes, and a float of 2^23 more than a color ends in its byte, which shifts bring to its place.
struct OverInterleavedBytes {
  HWY_INLINE Vector<uint8_t> operator()(Vector<uint8_t> v) const {
    const hn::ScalableTag<uint8_t> bytes;
    const WordTag<uint8_t> words;
    const RealTag<uint8_t> d;
    const auto pixels = hn::BitCast(words, v);
    const auto alpha = ChannelOf<3, uint8_t>(pixels);
    const auto r = hn::Div(hn::Set(d, 255 * (1 + 0x1p-18f)), hn::Max(alpha, hn::Set(d, 1.0f)));
    const auto colors = hn::BitCast(words, hn::Min(v, AlphaInAll(v)));
    const auto divided = [&](auto color)
                             HWY_ATTR { return hn::BitCast(words, hn::Add(hn::Mul(color, r), hn::Set(d, 0x1p23f))); };
    const auto first = divided(ChannelOf<0, uint8_t>(colors));
    const auto second = hn::ShiftLeft<8>(divided(ChannelOf<1, uint8_t>(colors)));
    const auto third = hn::ShiftLeft<16>(divided(ChannelOf<2, uint8_t>(colors)));
    return hn::IfThenElse(FourthLanes(bytes, 0), v, hn::BitCast(bytes, hn::Or(hn::Or(first, second), third)));
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
  using T = ElementOf<Dst>;
  if constexpr (std::is_same_v<Dst, Image<uint8_t>>) {
    MapImages(hn::ScalableTag<T>(), TimesInterleavedBytes(), roi, WithAlpha(dst), WithAlpha(src));
  } else {
    MapLayers<true>(Times<T>(), roi, dst, src);
  }
  return qvpStatusNoError;
}

template <class Src, class Dst>
QvpStatus Unpremultiply(const Src& src, const Dst& dst, Size roi) {
  using T = ElementOf<Dst>;
  if (const QvpStatus failed = ValidateLayers(roi, src, dst)) return failed;
  if constexpr (std::is_same_v<Dst, Image<uint8_t>>)
    MapImages(hn::ScalableTag<T>(), OverInterleavedBytes(), roi, WithAlpha(dst), WithAlpha(src));
  else if constexpr (std::is_floating_point_v<T>)
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
