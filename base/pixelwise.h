// Operations that compute each element of a destination from the elements at its place, with or without constants of
// the channels.
#pragma once

#include "base/map.h"
#include "base/walk.h"

namespace qvp {

// Calls kernel(n, elements of dst, elements of src...) for rows, or pieces of them, of whole pixels. The kernel exists
// once, as the function that the walk calls. What it needs it copies first: bytes that are stored could otherwise be
// part of it, and it would be read again after each store.
template <class Kernel, class T, class S>
void ForEachPiece(Size roi, const Kernel& kernel, const Image<T>& dst, const Image<const S>& src) {
  const auto call = [](const void* context, ptrdiff_t n, uint8_t* to, const uint8_t* a, const uint8_t*) HWY_ATTR {
    (*static_cast<const Kernel*>(context))(n, reinterpret_cast<T*>(to), reinterpret_cast<const S*>(a));
  };
  Walk(roi, AsBytes(dst), AsBytes(src), nullptr, call, &kernel);
}
template <class Kernel, class T, class S>
void ForEachPiece(Size roi, const Kernel& kernel, const Image<T>& dst, const Image<const S>& a,
                  const Image<const S>& b) {
  const auto call = [](const void* context, ptrdiff_t n, uint8_t* to, const uint8_t* first,
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
  const auto row = [&op, d](ptrdiff_t n, T* to, const S*... from) HWY_ATTR {
    const Op own = op;
    MapRow<kKeepAlpha>(d, to, n, own, from...);
  };
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
  const PerChannel<D> constant(d, values, dst.layout);
  const auto map = [&](auto keepAlpha) {
    const auto row = [&, d](ptrdiff_t n, T* to, const S* from) HWY_ATTR {
      const Op own = op;
      const auto withConstant = [&](const auto& at, auto v) HWY_ATTR { return own(at(constant), v); };
      MapRowWith<keepAlpha()>(d, to, n, withConstant, from);
    };
    ForEachPiece(roi, row, dst, src);
  };
  KeepsAlpha(dst.layout) ? map(std::true_type()) : map(std::false_type());
}

}  // namespace qvp
