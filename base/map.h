// Element-wise operations along a row.
#pragma once

#include <array>

#include "base/image.h"
#include "base/lanes.h"

namespace qvp {

// Values that differ from channel to channel, as vectors that lie along a row. Lane i of a row belongs to channel
// i mod channels, and three vectors in turn hold whole pixels of 1, 3 and 4 channels.
template <class D>
class PerChannel {
 public:
  using T = hn::TFromD<D>;

  // `values` has one entry for each channel; an alpha channel that is kept needs none.
  template <class S>
  PerChannel(D, const S* values, Layout layout) {
    T pixel[4] = {};
    for (int c = 0; c < ProcessedChannels(layout); ++c) {
      S value;
      std::memcpy(&value, values + c, sizeof(S));
      pixel[c] = static_cast<T>(value);
    }
    for (int i = 0, c = 0; i < kPeriod; ++i) {
      lanes_[i] = pixel[c];
      c = c + 1 == Channels(layout) ? 0 : c + 1;
    }
    for (int i = kPeriod; i < kLanes; i += kPeriod) std::memcpy(lanes_ + i, lanes_, sizeof(T) * kPeriod);
  }

  // The vector that begins at lane `first` of a row.
  HWY_INLINE hn::Vec<D> From(ptrdiff_t first) const { return hn::LoadU(D(), lanes_ + first % kPeriod); }

 private:
  static constexpr int kPeriod = 12;
  static constexpr int kLanes = (static_cast<int>(hn::MaxLanes(D())) / kPeriod + 2) * kPeriod;
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

// dst[i] = op(at, src[i]...) for i in [0, n), in lanes of D, rounded and saturated to T. `at(constant)` is the vector
// of a PerChannel that belongs to the place in the row. With kKeepAlpha every fourth element of dst stays. Operands may
// be the same row: the last vector is computed before the first one is stored, so elements that both cover are not
// operated on twice.
template <bool kKeepAlpha, class D, class Op, class T, class... S>
HWY_INLINE void MapRowWith(D d, T* dst, ptrdiff_t n, const Op& op, const S*... src) {
  const hn::Rebind<T, D> narrow;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  const auto apply = [&](ptrdiff_t first, const T* old, const S*... from) HWY_ATTR {
    const auto at = [first](const auto& constant) HWY_ATTR { return constant.From(first); };
    const auto v = Narrow<T>(d, op(at, LoadWide(d, from)...));
    if constexpr (kKeepAlpha) return hn::IfThenElse(FourthLanes(narrow, first), hn::LoadU(narrow, old), v);
    return v;
  };
  if (n < kLanes) {
    Partial<T> out(dst, n);
    hn::StoreU(apply(0, out.lanes, Partial<S>(src, n).lanes...), narrow, out.lanes);
    return out.CopyTo(dst, n);
  }
  const ptrdiff_t end = n - kLanes;
  const auto last = apply(end, dst + end, (src + end)...);
  constexpr ptrdiff_t kVectors = kLanes % 4 == 0 ? 3 : 6;  // together a multiple of 12 lanes
  ptrdiff_t i = 0;
  for (; i + kVectors * kLanes <= end; i += kVectors * kLanes) {
    for (ptrdiff_t v = 0; v < kVectors * kLanes; v += kLanes) {
      hn::StoreU(apply(v, dst + i + v, (src + i + v)...), narrow, dst + i + v);
    }
  }
  for (; i < end; i += kLanes) hn::StoreU(apply(i, dst + i, (src + i)...), narrow, dst + i);
  hn::StoreU(last, narrow, dst + end);
}

// The same for operations without constants of their own: dst[i] = op(src[i]...).
template <bool kKeepAlpha, class D, class Op, class T, class... S>
HWY_INLINE void MapRow(D d, T* dst, ptrdiff_t n, const Op& op, const S*... src) {
  const auto withoutPlace = [&](const auto&, auto... v) HWY_ATTR { return op(v...); };
  MapRowWith<kKeepAlpha>(d, dst, n, withoutPlace, src...);
}

}  // namespace qvp
