// Operations that compute each element of a destination from the elements at its place, with or without constants of
// the channels.
#pragma once

#include "base/map.h"
#include "base/walk.h"

namespace qvp {

// Calls kernel(n, elements of dst, elements of src...) for rows, or pieces of them, of whole pixels. The kernel exists
// once, as the function that the walk calls. It captures by value what it needs: the context is restrict, so that it
// need not be read again after each store, as bytes that are stored could otherwise be part of it.
template <class Kernel, class T, class S>
void ForEachPiece(Size roi, const Kernel& kernel, const Image<T>& dst, const Image<const S>& src) {
  const auto call = [](const void* HWY_RESTRICT context, ptrdiff_t n, uint8_t* to, const uint8_t* a,
                       const uint8_t*) HWY_ATTR {
    (*static_cast<const Kernel*>(context))(n, reinterpret_cast<T*>(to), reinterpret_cast<const S*>(a));
  };
  Walk(roi, AsBytes(dst), AsBytes(src), nullptr, call, &kernel);
}
template <class Kernel, class T, class S>
void ForEachPiece(Size roi, const Kernel& kernel, const Image<T>& dst, const Image<const S>& a,
                  const Image<const S>& b) {
  const auto call = [](const void* HWY_RESTRICT context, ptrdiff_t n, uint8_t* to, const uint8_t* first,
                       const uint8_t* second) HWY_ATTR {
    (*static_cast<const Kernel*>(context))(n, reinterpret_cast<T*>(to), reinterpret_cast<const S*>(first),
                                           reinterpret_cast<const S*>(second));
  };
  const ConstBytes second = AsBytes(b);
  Walk(roi, AsBytes(dst), AsBytes(a), &second, call, &kernel);
}

// dst = op(src...) in lanes of D, but for the alpha of images that keep theirs.
template <bool kKeepAlpha, class D, class Op, class T, class... S>
void MapChannels(D d, const Op& op, Size roi, const Image<T>& dst, const Image<const S>&... src) {
  const auto row = [op, d](ptrdiff_t n, T* to, const S*... from)
                       HWY_ATTR { MapRow<kKeepAlpha>(d, to, n, op, from...); };
  ForEachPiece(roi, row, dst, src...);
}
template <class D, class Op, class T, class... S>
void MapImages(D d, const Op& op, Size roi, const Image<T>& dst, const Image<const S>&... src) {
  KeepsAlpha(dst.layout) ? MapChannels<true>(d, op, roi, dst, src...) : MapChannels<false>(d, op, roi, dst, src...);
}

// The same for images of one channel, so that there is no kernel that keeps an alpha.
template <class D, class Op, class T, class... S>
void MapOneChannel(D d, const Op& op, Size roi, const Image<T>& dst, const Image<const S>&... src) {
  MapChannels<false>(d, op, roi, dst, src...);
}

// dst = op(value of the channel, src) in lanes of D.
template <class D, class Op, class T, class S>
void MapImagesWith(D d, const Op& op, Size roi, const S* values, const Image<T>& dst, const Image<const S>& src) {
  const auto map = [&](auto keepAlpha) {
    const auto row = [op, d, constant = PerChannel<D>(d, values, dst.layout)](ptrdiff_t n, T* to,
                                                                              const S* from) HWY_ATTR {
      const auto withConstant = [&](const auto& at, auto v) HWY_ATTR { return op(at(constant), v); };
      MapRowWith<decltype(keepAlpha)::value>(d, to, n, withConstant, from);
    };
    ForEachPiece(roi, row, dst, src);
  };
  KeepsAlpha(dst.layout) ? map(std::true_type()) : map(std::false_type());
}

}  // namespace qvp
