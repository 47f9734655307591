// A row as two lines: of its numbers at even places and of those at odd ones, or of its two bands.
#pragma once

#include <hwy/cache_control.h>

#include <cstring>
#include <utility>

#include "base/row_vectors.h"
#include "transform/wavelet.h"

namespace qvp::wavelet {

// Calls visit with a constant of as many channels.
template <class Visit>
HWY_INLINE void WithChannels(int channels, const Visit& visit) {
  if (channels == 1) return visit(std::integral_constant<int, 1>());
  if (channels == 3) return visit(std::integral_constant<int, 3>());
  visit(std::integral_constant<int, 4>());
}

// Every other one of the next pixels of three channels, as many as fit into a vector.
template <class D>
class EveryOtherPixel {
 public:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kPixels = kLanes / 3;

  // From a number on: that of the first pixel or of the second one.
  explicit EveryOtherPixel(ptrdiff_t begin) {
    HWY_ALIGN int32_t first[kLanes] = {}, last[kLanes] = {}, isFirst[kLanes] = {};
    for (ptrdiff_t l = 0; l < 3 * kPixels; ++l) {
      const int32_t place = static_cast<int32_t>(begin + 2 * l - l % 3);
      isFirst[l] = place < kLanes ? -1 : 0;
      (place < kLanes ? first : last)[l] = place < kLanes ? place : static_cast<int32_t>(place - kFromLast);
    }
    first_ = hn::SetTableIndices(D(), first);
    last_ = hn::SetTableIndices(D(), last);
    isFirst_ = hn::BitCast(D(), hn::Load(hn::RebindToSigned<D>(), isFirst));
  }

  // Reads no further than the pixels go; what is stored behind them has no meaning.
  HWY_INLINE void Copy(const float* from, float* to) const {
    const D d;
    const auto first = hn::TableLookupLanes(hn::LoadU(d, from), first_),
               last = hn::TableLookupLanes(hn::LoadU(d, from + kFromLast), last_);
    hn::StoreU(hn::IfVecThenElse(isFirst_, first, last), d, to);
  }

 private:
  static constexpr ptrdiff_t kFromLast = 6 * kPixels - kLanes;  // of the second vector's lanes

  decltype(hn::SetTableIndices(D(), std::declval<const int32_t*>())) first_, last_;
  hn::Vec<D> isFirst_;
};

// Pixels of all channels from place 0 on; before and behind there is room for what lies beyond the ends, and for a
// vector.
class Lines {
 public:
  Lines(float* even, float* odd, int channels) : even_(even), odd_(odd), channels_(channels) {}

  float* even() const { return even_; }
  float* odd() const { return odd_; }
  const float* At(ptrdiff_t place) const { return Pixel(place, channels_); }

  // From a row of n pixels.
  void Split(const float* row, ptrdiff_t n) const {
    WithChannels(channels_, [&](auto channels) {
      SplitPairs<channels()>(row, n / 2);
      if (n % 2 != 0) CopyPixels(row + (n - 1) * channels(), 1, even_ + n / 2 * channels());
    });
  }

  // From a row that has the bands one behind the other.
  void Gather(const float* row, ptrdiff_t n) const {
    CopyPixels(row, LowOf(n), even_);
    CopyPixels(row + LowOf(n) * channels_, HighOf(n), odd_);
  }

  // To a row of n pixels.
  void Join(ptrdiff_t n, float* row) const {
    WithChannels(channels_, [&](auto channels) {
      JoinPairs<channels()>(n / 2, row);
      if (n % 2 != 0) CopyPixels(even_ + n / 2 * channels(), 1, row + (n - 1) * channels());
    });
  }

  // Fills in what lies beyond the ends, as far as a span reaches.
  void Extend(const WaveletRecord& record, Span span, ptrdiff_t n) const {
    WithChannels(channels_, [&](auto channels) {
      const auto fill = [&](ptrdiff_t place) QVP_INLINED {
        std::memcpy(Pixel(place, channels()), Pixel(record.PlaceOf(place, n), channels()), channels() * sizeof(float));
      };
      for (ptrdiff_t place = -span.before; place < 0; ++place) fill(place);
      for (ptrdiff_t place = n; place <= 2 * (LowOf(n) - 1) + span.behind; ++place) fill(place);
    });
  }

 private:
  // A page: CPUs do not look beyond it by themselves. Rows of three channels from memory are split in a fifth less
  // time.
  static constexpr ptrdiff_t kFetchedAhead = 1024;

  HWY_INLINE float* Pixel(ptrdiff_t place, int channels) const {
    const ptrdiff_t parity = place & 1;
    return (parity == 0 ? even_ : odd_) + (place - parity) / 2 * channels;
  }
  void CopyPixels(const float* from, ptrdiff_t count, float* to) const {
    std::memcpy(to, from, count * channels_ * sizeof(float));
  }

  // Three channels are moved as four, but for the last pair: the next pixel is stored over what is too much.
  template <int kChannels>
  HWY_INLINE void SplitPairs(const float* row, ptrdiff_t pairs) const {
    const ptrdiff_t done = kChannels == 3 ? SplitThreeChannels(row, pairs) : 0;
    ForEachPair<kChannels>(done, pairs, [row, even = even_, odd = odd_](auto d, ptrdiff_t i, ptrdiff_t to) HWY_ATTR {
      if constexpr (kChannels == 1 && hn::MaxLanes(decltype(d)()) > 1) {
        hn::Vec<decltype(d)> a, b;
        hn::LoadInterleaved2(d, row + i, a, b);
        hn::StoreU(a, d, even + to);
        hn::StoreU(b, d, odd + to);
      } else {
        hn::StoreU(hn::LoadU(d, row + i), d, even + to);
        hn::StoreU(hn::LoadU(d, row + i + kChannels), d, odd + to);
      }
    });
  }
  // Pixels of three channels where a vector has several. Tells how many pairs are done; what is behind them is to be
  // stored over what is too much.
  HWY_INLINE ptrdiff_t SplitThreeChannels(const float* row, ptrdiff_t pairs) const {
    using Pixels = EveryOtherPixel<hn::ScalableTag<float>>;
    ptrdiff_t i = 0;
    if constexpr (Pixels::kPixels > 1) {
      const Pixels evenPixels(0), oddPixels(3);
      float *const even = even_, *const odd = odd_;
      for (; i + Pixels::kPixels < pairs; i += Pixels::kPixels) {
        hwy::Prefetch(row + 6 * i + kFetchedAhead);
        evenPixels.Copy(row + 6 * i, even + 3 * i);
        oddPixels.Copy(row + 6 * i, odd + 3 * i);
      }
    }
    return i;
  }
  template <int kChannels>
  HWY_INLINE void JoinPairs(ptrdiff_t pairs, float* row) const {
    ForEachPair<kChannels>(0, pairs, [row, even = even_, odd = odd_](auto d, ptrdiff_t i, ptrdiff_t from) HWY_ATTR {
      const auto a = hn::LoadU(d, even + from), b = hn::LoadU(d, odd + from);
      if constexpr (kChannels == 1 && hn::MaxLanes(decltype(d)()) > 1) {
        hn::StoreInterleaved2(a, b, d, row + i);
      } else {
        hn::StoreU(a, d, row + i);
        hn::StoreU(b, d, row + i + kChannels);
      }
    });
  }

  // step(d, where in the row, where in the lines) for pairs: many of one channel at a time, one of several channels, or
  // each of its channels.
  template <int kChannels, class Step>
  static HWY_INLINE void ForEachPair(ptrdiff_t first, ptrdiff_t pairs, const Step& step) {
    if constexpr (kChannels == 1) {
      ForEachElement(hn::ScalableTag<float>(), pairs, [&](auto d, ptrdiff_t i) QVP_INLINED { step(d, 2 * i, i); });
    } else {
      const ptrdiff_t whole = kChannels == 4 ? pairs : pairs - 1;
      ptrdiff_t i = first;
      for (; i < whole; ++i) step(hn::Full128<float>(), 2 * i * kChannels, i * kChannels);
      for (; i < pairs; ++i) {
        for (int c = 0; c < kChannels; ++c) step(hn::CappedTag<float, 1>(), 2 * i * kChannels + c, i * kChannels + c);
      }
    }
  }

  float *even_, *odd_;
  int channels_;
};

}  // namespace qvp::wavelet
