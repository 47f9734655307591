// Element-wise operations along a row.
#pragma once

#include <array>

#include "base/image.h"
#include "base/lanes.h"
#include "base/pack.h"
#include "base/row_vectors.h"

namespace qvp {

// Values that differ from channel to channel, as vectors that lie along a row. Lane i of a row belongs to channel
// i mod channels, and three vectors in turn hold whole pixels of 1, 3 and 4 channels.
template <class D>
class PerChannel {
 public:
  using T = hn::TFromD<D>;

  PerChannel() = default;

  // `values` has one entry for each channel; an alpha channel that is kept needs none.
  template <class S>
  PerChannel(D, const S* values, Layout layout) {
    T pixel[4] = {};
    for (int c = 0; c < ProcessedChannels(layout); ++c) {
      S value;
      std::memcpy(&value, values + c, sizeof(S));
      pixel[c] = static_cast<T>(value);
    }
    if (Channels(layout) == 1) {
      Fill(pixel[0]);
      return;
    }
    for (int i = 0, c = 0; i < kPeriod; ++i) {
      lanes_[i] = pixel[c];
      c = c + 1 == Channels(layout) ? 0 : c + 1;
    }
    for (int i = kPeriod; i < kLanes; i += kPeriod) std::memcpy(lanes_ + i, lanes_, sizeof(T) * kPeriod);
  }

  // The vector that begins at lane `first` of a row.
  HWY_INLINE hn::Vec<D> From(ptrdiff_t first) const { return hn::LoadU(D(), lanes_ + first % kPeriod); }

  T Of(int channel) const { return lanes_[channel]; }

 private:
  static constexpr int kPeriod = 12;
  static constexpr int kVector = hn::MaxLanes(D()), kLanes = (kVector / kPeriod + 2) * kPeriod;

  // By whole vectors, which are loaded sooner than what was stored in parts.
  HWY_INLINE void Fill(T value) {
    const auto v = hn::Set(D(), value);
    for (int i = 0; i < kLanes - kVector; i += kVector) hn::StoreU(v, D(), lanes_ + i);
    hn::StoreU(v, D(), lanes_ + kLanes - kVector);
  }

  HWY_ALIGN T lanes_[kLanes];
};

// Whether a lane belongs to the fourth channel of its pixel, for rows that begin with the lane `first`.
template <class D>
HWY_INLINE hn::Mask<D> FourthLanes(D d, ptrdiff_t first) {
  using T = hn::TFromD<D>;
  using Bits = hwy::MakeUnsigned<T>;
  static constexpr auto kPhases = [] {
    std::array<Bits, hn::MaxLanes(D()) + 4> phases{};
    for (size_t i = 0; i < phases.size(); ++i) phases[i] = i % 4 == 3 ? static_cast<Bits>(~Bits{0}) : Bits{0};
    return phases;
  }();
  const hn::RebindToUnsigned<D> bits;
  return hn::RebindMask(d, hn::MaskFromVec(hn::LoadU(bits, kPhases.data() + first % 4)));
}

// How many vectors of lanes L make one of elements T at a time: narrowing several at once takes fewer instructions than
// each on its own.
template <class T, class L>
constexpr int kVectorsAtOnce = std::is_integral_v<T> && sizeof(T) < sizeof(int32_t) &&
                                       (std::is_same_v<L, float> || std::is_same_v<L, int32_t>)
                                   ? sizeof(int32_t) / sizeof(T)
                                   : 1;

// 32-bit integers that saturate to the element that the lane rounds to.
template <class T, class V>
HWY_INLINE auto Whole(V v) {
  if constexpr (std::is_same_v<hn::TFromV<V>, float>) {
    return RoundForPacking<T>(v);
  } else {
    return v;
  }
}

// A full vector of elements of T from the results of part(k), k from 0 on.
template <class T, class D, class Part>
HWY_INLINE auto NarrowParts(D d, const Part& part) {
  constexpr int kParts = kVectorsAtOnce<T, hn::TFromD<D>>;
  if constexpr (kParts == 1) {
    return Narrow<T>(d, part(0));
  } else if constexpr (kParts == 2) {
    return PackedInOrder<T>(Whole<T>(part(0)), Whole<T>(part(1)));
  } else {
    const auto lower = Packed(int16_t(), Whole<T>(part(0)), Whole<T>(part(1)));
    const auto upper = Packed(int16_t(), Whole<T>(part(2)), Whole<T>(part(3)));
    return InOrder<4>(Packed(T(), lower, upper));
  }
}

// dst[i] = op(at, src[i]...) for i in [0, n), in lanes of D, rounded and saturated to T. `at(constant)` is the vector
// of a PerChannel that belongs to the place in the row. With kKeepAlpha every fourth element of dst stays. Operands may
// be the same row: the last vector is computed before the first one is stored, so elements that both cover are not
// operated on twice. With constants kSteps vectors of dst make a multiple of 12 lanes.
template <int kSteps, bool kKeepAlpha, class D, class Op, class T, class... S>
HWY_INLINE void MapRowBy(D d, T* dst, ptrdiff_t n, const Op& op, const S*... src) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kStride = kLanes * kVectorsAtOnce<T, hn::TFromD<D>>;
  const hn::CappedTag<T, kStride> narrow;
  const auto apply = [&](ptrdiff_t first, const T* old, const S*... from) HWY_ATTR {
    const auto v = NarrowParts<T>(d, [&](ptrdiff_t k) HWY_ATTR {
      const auto at = [&](const auto& constant) HWY_ATTR { return constant.From(first + k * kLanes); };
      return op(at, LoadWide(d, from + k * kLanes)...);
    });
    if constexpr (kKeepAlpha) return hn::IfThenElse(FourthLanes(narrow, first), hn::LoadU(narrow, old), v);
    return v;
  };
  if (n < kStride) {
    Partial<T> out(dst, n);
    hn::StoreU(apply(0, out.lanes, Partial<S>(src, n).lanes...), narrow, out.lanes);
    return out.CopyTo(dst, n);
  }
  const auto at = [&](ptrdiff_t i, ptrdiff_t phase) HWY_ATTR { return apply(phase, dst + i, (src + i)...); };
  ForEachVectorInPlace<kSteps, kStride>(n, at, [&](ptrdiff_t i, auto v) HWY_ATTR { hn::StoreU(v, narrow, dst + i); });
}

template <bool kKeepAlpha, class D, class Op, class T, class... S>
HWY_INLINE void MapRowWith(D d, T* dst, ptrdiff_t n, const Op& op, const S*... src) {
  constexpr int kLanes = hn::MaxLanes(D()) * kVectorsAtOnce<T, hn::TFromD<D>>;
  MapRowBy<kLanes % 4 == 0 ? 3 : 6, kKeepAlpha>(d, dst, n, op, src...);
}

// The same for operations without constants of their own: dst[i] = op(src[i]...).
template <bool kKeepAlpha, class D, class Op, class T, class... S>
HWY_INLINE void MapRow(D d, T* dst, ptrdiff_t n, const Op& op, const S*... src) {
  const auto withoutPlace = [&](const auto&, auto... v) HWY_ATTR { return op(v...); };
  MapRowBy<kVectorsAtOnce<T, hn::TFromD<D>> == 1 ? 2 : 1, kKeepAlpha>(d, dst, n, withoutPlace, src...);
}

}  // namespace qvp
