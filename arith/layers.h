// Images whose pixels have an alpha as their fourth value, interleaved or in four planes: each value comes to a kernel
// beside the alpha of its pixel.
#pragma once

#include <array>
#include <limits>

#include "base/check.h"
#include "base/pixelwise.h"

namespace qvp::layers {

template <class T>
using Vector = hn::Vec<hn::ScalableTag<T>>;

template <class T>
inline constexpr int kBits = 8 * sizeof(T);
// What stands for 1.
template <class T>
inline constexpr T kMost = std::numeric_limits<T>::max();

// ---- Lanes

// The even and the odd elements of a vector of integers, in lanes that hold the product of two.
template <class T>
using ProductTag = hn::ScalableTag<hwy::MakeWide<T>>;
template <class T>
struct Parts {
  hn::Vec<ProductTag<T>> even, odd;
};

template <class T>
HWY_INLINE auto Split(Vector<T> v) {
  if constexpr (std::is_floating_point_v<T>) {
    return v;
  } else {
    const ProductTag<T> d;
    const auto lanes = hn::BitCast(d, v);
    return Parts<T>{hn::And(lanes, hn::Set(d, kMost<T>)), hn::ShiftRight<kBits<T>>(lanes)};
  }
}

// The elements that op makes of lanes, which may be floats; those of integers are in the range of T.
template <class T, class Op, class... P>
HWY_INLINE Vector<T> ByLanes(const Op& op, P... parts) {
  if constexpr (std::is_floating_point_v<T>) {
    return op(parts...);
  } else {
    const auto even = op(parts.even...), odd = op(parts.odd...);
    return hn::BitCast(hn::ScalableTag<T>(), hn::Or(even, hn::ShiftLeft<kBits<T>>(odd)));
  }
}

// A product over the largest element, to the nearest; there are no ties, as that is odd. With t = p + 2^(n-1) it is
// (t + (t >> n)) >> n for elements of n bits, and that is t 257 >> 16 for n = 8.
template <class V>
HWY_INLINE V OverMost(V p) {
  const hn::DFromV<V> d;
  using L = hn::TFromV<V>;
  constexpr int kN = 4 * sizeof(L);
  const V t = hn::Add(p, hn::Set(d, L{1} << (kN - 1)));
  if constexpr (kN == 8) {
    return hn::MulHigh(t, hn::Set(d, 257));
  } else {
    return hn::ShiftRight<kN>(hn::Add(t, hn::ShiftRight<kN>(t)));
  }
}

// ---- Values with the alpha of their pixel, as lanes

template <class T>
struct Layer {
  Vector<T> values;
  decltype(Split<T>(Vector<T>())) alpha;

  HWY_INLINE auto Lanes() const { return Split<T>(values); }
};

// For each lane of a product the bytes of its pixel's alpha, which is the same for the even and the odd elements; an
// index of 0x80 gives zero.
template <class T>
alignas(16) inline constexpr auto kAlphaBytes = [] {
  std::array<uint8_t, 16> indices{};
  constexpr int kBytes = sizeof(T);
  for (int i = 0; i < 16; ++i) {
    const int pixel = i / (4 * kBytes), byte = i % (2 * kBytes);
    indices[i] = static_cast<uint8_t>(byte < kBytes ? (4 * pixel + 3) * kBytes + byte : 0x80);
  }
  return indices;
}();

template <class T>
HWY_INLINE Layer<T> InterleavedLayer(Vector<T> v) {
  if constexpr (std::is_floating_point_v<T>) {
    return {v, hn::Broadcast<3>(v)};
  } else {
    const hn::ScalableTag<uint8_t> bytes;
    const auto indices = hn::LoadDup128(bytes, kAlphaBytes<T>.data());
    const auto alpha = hn::BitCast(ProductTag<T>(), hn::TableLookupBytesOr0(hn::BitCast(bytes, v), indices));
    return {v, {alpha, alpha}};
  }
}

// ---- Walks. kCopiesAlpha: the kernel makes colors only.

// All four values are written.
template <class T>
Image<T> WithAlpha(Image<T> image) {
  image.layout = Layout::kC4;
  return image;
}

template <bool kCopiesAlpha, class T, class Kernel, class... V>
HWY_INLINE Vector<T> OnInterleaved(const Kernel& kernel, Vector<T> first, V... more) {
  const auto made = kernel(InterleavedLayer<T>(first), InterleavedLayer<T>(more)...);
  const hn::ScalableTag<T> d;
  if constexpr (kCopiesAlpha) return hn::IfThenElse(FourthLanes(d, 0), first, made);
  return made;
}

// dst = kernel(layers...)
template <bool kCopiesAlpha, class Kernel, class T, class... S>
void MapLayers(const Kernel& kernel, Size roi, const Image<T>& dst, const Image<S>&... src) {
  const auto op = [kernel](auto... v) HWY_ATTR { return OnInterleaved<kCopiesAlpha, T>(kernel, v...); };
  MapImages(hn::ScalableTag<T>(), op, roi, WithAlpha(dst), WithAlpha(src)...);
}

// Four planes with one step, the alpha last.
template <class T>
using Planes = std::array<Image<T>, 4>;
template <class T>
using PlaneRows = std::array<T*, 4>;

template <class T>
Planes<T> PlanesOf(T* const* planes, ptrdiff_t step) {
  Planes<T> images;
  for (int p = 0; p < 4; ++p) images[p] = {planes == nullptr ? nullptr : planes[p], step, Layout::kC1};
  return images;
}

// A vector of each plane.
template <class V>
struct FourVectors {
  V of[4];
};

template <class D, class S>
HWY_INLINE auto LoadFour(D d, const PlaneRows<S>& rows, ptrdiff_t i) {
  return FourVectors<hn::Vec<D>>{
      {hn::LoadU(d, rows[0] + i), hn::LoadU(d, rows[1] + i), hn::LoadU(d, rows[2] + i), hn::LoadU(d, rows[3] + i)}};
}

template <class T>
struct StagedFour {
  Partial<T> plane[4];

  StagedFour() = default;
  template <class S>
  StagedFour(const PlaneRows<S>& rows, ptrdiff_t n)
      : plane{{rows[0], size_t(n)}, {rows[1], size_t(n)}, {rows[2], size_t(n)}, {rows[3], size_t(n)}} {}
  PlaneRows<T> Rows() { return {plane[0].lanes, plane[1].lanes, plane[2].lanes, plane[3].lanes}; }
};

// dst = op(FourVectors...) along rows of planes, in vectors of D, the elements' tag; planes may be their own sources.
template <class D, class Op, class T, class... S>
HWY_INLINE void MapPlaneRow(D d, const Op& op, ptrdiff_t n, const PlaneRows<T>& to, const PlaneRows<S>&... from) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  using Four = FourVectors<hn::Vec<D>>;
  const auto store = [d](const PlaneRows<T>& rows, ptrdiff_t i, const Four& v) HWY_ATTR {
    for (int p = 0; p < 4; ++p) hn::StoreU(v.of[p], d, rows[p] + i);
  };
  if (n < kLanes) {
    StagedFour<T> out;
    store(out.Rows(), 0, op(LoadFour(d, StagedFour<T>(from, n).Rows(), 0)...));
    for (int p = 0; p < 4; ++p) out.plane[p].CopyTo(to[p], n);
    return;
  }
  const auto at = [&](ptrdiff_t i, ptrdiff_t) HWY_ATTR { return op(LoadFour(d, from, i)...); };
  ForEachVectorInPlace<1, kLanes>(n, at, [&](ptrdiff_t i, const Four& v) HWY_ATTR { store(to, i, v); });
}

template <class T>
PlaneRows<T> RowsAt(const Planes<T>& planes, ptrdiff_t y) {
  return {planes[0].Row(y), planes[1].Row(y), planes[2].Row(y), planes[3].Row(y)};
}

template <class D, class Op, class T, class... S>
void MapPlanes(D d, const Op& op, Size roi, const Planes<T>& dst, const Planes<S>&... src) {
  ptrdiff_t pixels;
  const bool isPacked = dst[0].IsPacked(roi.width) && (src[0].IsPacked(roi.width) && ...);
  if (isPacked && !__builtin_mul_overflow(roi.width, roi.height, &pixels)) roi = Size(pixels, 1);
  for (ptrdiff_t y = 0; y < roi.height; ++y) MapPlaneRow(d, op, roi.width, RowsAt(dst, y), RowsAt(src, y)...);
}

template <bool kCopiesAlpha, class Kernel, class T, class... S>
void MapLayers(const Kernel& kernel, Size roi, const Planes<T>& dst, const Planes<S>&... src) {
  using Four = FourVectors<Vector<T>>;
  const auto op = [kernel](const Four& first, const auto&... more) HWY_ATTR {
    const auto plane = [&](int p) HWY_ATTR {
      const auto layer = [p](const Four& v) HWY_ATTR { return Layer<T>{v.of[p], Split<T>(v.of[3])}; };
      return kernel(layer(first), layer(more)...);
    };
    Four result{{plane(0), plane(1), plane(2), first.of[3]}};
    if constexpr (!kCopiesAlpha) result.of[3] = plane(3);
    return result;
  };
  MapPlanes(hn::ScalableTag<T>(), op, roi, dst, src...);
}

template <class T>
T ElementIn(const Image<T>&);
template <class T>
T ElementIn(const Planes<T>&);
// Of an image of either kind.
template <class Images>
using ElementOf = decltype(ElementIn(std::declval<Images>()));

// ---- Checks: pointers, the size, steps

template <class... T>
QvpStatus ValidateLayers(Size roi, const Image<T>&... images) {
  return Validate<kPointers, kSize, kSteps>(roi, {images...});
}
template <class... T>
QvpStatus ValidateLayers(Size roi, const Planes<T>&... images) {
  return Validate<kPointers, kSize, kSteps>(roi, {images[0]..., images[1]..., images[2]..., images[3]...});
}

}  // namespace qvp::layers

// ---- Spelling of the functions on four planes: impl(source..., destination, size, arguments...)

#define QVP_PLANES_MAP(name, type, impl)                                                                             \
  QvpStatus name##_##type##_AP4R(const Qvp##type* const pSrc[4], int srcStep, Qvp##type* const pDst[4], int dstStep, \
                                 QvpiSize roiSize) {                                                                 \
    return impl(PlanesOf(pSrc, srcStep), PlanesOf(pDst, dstStep), roiSize);                                          \
  }                                                                                                                  \
  QvpStatus name##_##type##_AP4IR(Qvp##type* const pSrcDst[4], int srcDstStep, QvpiSize roiSize) {                   \
    return impl(PlanesOf<const Qvp##type>(pSrcDst, srcDstStep), PlanesOf(pSrcDst, srcDstStep), roiSize);             \
  }
#define QVP_PLANES_BINARY(name, type, impl, parameters, arguments)                                               \
  QvpStatus name##_##type##_AP4R(const Qvp##type* const pSrc1[4], int src1Step, const Qvp##type* const pSrc2[4], \
                                 int src2Step, Qvp##type* const pDst[4], int dstStep,                            \
                                 QvpiSize roiSize QVP_AND parameters) {                                          \
    return impl(PlanesOf(pSrc1, src1Step), PlanesOf(pSrc2, src2Step), PlanesOf(pDst, dstStep),                   \
                roiSize QVP_AND arguments);                                                                      \
  }                                                                                                              \
  QvpStatus name##_##type##_AP4IR(const Qvp##type* const pSrc[4], int srcStep, Qvp##type* const pSrcDst[4],      \
                                  int srcDstStep, QvpiSize roiSize QVP_AND parameters) {                         \
    return impl(PlanesOf(pSrc, srcStep), PlanesOf<const Qvp##type>(pSrcDst, srcDstStep),                         \
                PlanesOf(pSrcDst, srcDstStep), roiSize QVP_AND arguments);                                       \
  }
