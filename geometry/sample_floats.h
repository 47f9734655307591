// Weighted sums of taps in floating point. Lanes are points where their taps fit into words, and channels of one point
// otherwise.
#pragma once

#include "base/channels.h"
#include "base/gather.h"
#include "base/map.h"
#include "geometry/sample_task.h"

namespace qvp::sampling {

// ---- Lanes are points

// The taps of a row of as many points as there are lanes. For integers a word holds several taps of one channel, or one
// tap of several channels.
template <int kTaps, int kChannels, class T, class D>
class RowTaps {
 public:
  HWY_INLINE RowTaps(D, const uint8_t* row, const int32_t* offset) {
    for (int i = 0; i < kWords; ++i) words_[i] = GatherWords(Words(), row + i * kWordBytes, offset);
  }

  HWY_INLINE hn::Vec<D> At(int tap, int channel) const {
    const D d;
    const int element = kChannels == 1 ? tap % kPerWord : channel;
    const auto word = words_[kChannels == 1 ? tap / kPerWord : tap];
    const auto top = hn::ShiftLeftSame(word, 32 - kBits - element * kBits);
    if constexpr (std::is_signed_v<T>) return hn::ConvertTo(d, hn::ShiftRight<32 - kBits>(top));
    const hn::Rebind<uint32_t, D> bits;
    return hn::ConvertTo(d, hn::BitCast(Words(), hn::ShiftRight<32 - kBits>(hn::BitCast(bits, top))));
  }

 private:
  using Words = hn::Rebind<int32_t, D>;
  static constexpr int kBits = 8 * sizeof(T), kPerWord = 32 / kBits;
  static constexpr int kWords = kChannels == 1 ? (kTaps + kPerWord - 1) / kPerWord : kTaps;
  static constexpr int kWordBytes = (kChannels == 1 ? kPerWord : kChannels) * sizeof(T);
  static_assert(kChannels == 1 || sizeof(T) == 1);

  hn::Vec<Words> words_[kWords];
};

// Floats are loaded as pairs of taps.
template <int kTaps, class D>
class RowTaps<kTaps, 1, float, D> {
 public:
  HWY_INLINE RowTaps(D d, const uint8_t* row, const int32_t* offset) {
    const hn::Repartition<uint64_t, D> pairs;
    for (int i = 0; i < kTaps; i += 2, row += 2 * sizeof(float)) {
      const auto even = hn::BitCast(pairs, LoadWords<2>(row, offset));
      const auto odd = hn::BitCast(pairs, LoadWords<2>(row, offset + 1));
      taps_[i] = hn::OddEven(hn::BitCast(d, hn::ShiftLeft<32>(odd)), hn::BitCast(d, even));
      taps_[i + 1] = hn::OddEven(hn::BitCast(d, odd), hn::BitCast(d, hn::ShiftRight<32>(even)));
    }
  }
  HWY_INLINE hn::Vec<D> At(int tap, int) const { return taps_[tap]; }

 private:
  hn::Vec<D> taps_[kTaps];
};

template <int kTaps, class D>
class RowTaps<kTaps, 1, double, D> {
 public:
  HWY_INLINE RowTaps(D, const uint8_t* row, const int32_t* offset) {
    for (int i = 0; i < kTaps; ++i) taps_[i] = LoadWords<1>(row + i * sizeof(double), offset);
  }
  HWY_INLINE hn::Vec<D> At(int tap, int) const { return taps_[tap]; }

 private:
  hn::Vec<D> taps_[kTaps];
};

// The weighted sums of as many points as there are lanes, from the i-th on.
template <int kTaps, int kChannels, class T, class D>
HWY_INLINE void BlendAt(D d, const uint8_t* src, ptrdiff_t step, const Weigher<kTaps, WorkOf<T>>& weigh,
                        const Places<WorkOf<T>>& places, ptrdiff_t i, hn::Vec<D>* total) {
  using V = hn::Vec<D>;
  const ptrdiff_t point = places.first + i;
  V x[kTaps], y[kTaps];
  weigh(d, hn::LoadU(d, places.x + point), x);
  weigh(d, hn::LoadU(d, places.y + point), y);
  for (int r = 0; r < kTaps; ++r) {
    const RowTaps<kTaps, kChannels, T, D> taps(d, src + r * step, places.offset + point);
    for (int c = 0; c < kChannels; ++c) {
      V row = hn::Mul(taps.At(0, c), x[0]);
      for (int k = 1; k < kTaps; ++k) row = hn::Add(row, hn::Mul(taps.At(k, c), x[k]));
      total[c] = r == 0 ? hn::Mul(row, y[0]) : hn::Add(total[c], hn::Mul(row, y[r]));
    }
  }
}

// Pixels of n points.
template <int kTaps, int kChannels, class T>
void BlendPoints(const Task<T>& task, const Places<WorkOf<T>>& places, ptrdiff_t n, T* dst) {
  using D = hn::ScalableTag<WorkOf<T>>;
  constexpr int kLanes = hn::MaxLanes(D()), kParts = kChannels == 1 ? kVectorsAtOnce<T, WorkOf<T>> : 1;
  const D d;
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step;
  const Weigher<kTaps, WorkOf<T>> weigh(task.cubic);
  MakePixels<kLanes * kParts, 0, kChannels>(task, n, dst, [&](ptrdiff_t i, T* to) HWY_ATTR {
    if constexpr (kChannels == 1) {
      const auto part = [&](ptrdiff_t k) HWY_ATTR {
        hn::Vec<D> total;
        BlendAt<kTaps, 1, T>(d, src, step, weigh, places, i + k * kLanes, &total);
        return total;
      };
      hn::StoreU(NarrowParts<T>(d, part), hn::CappedTag<T, kLanes * kParts>(), to);
    } else {
      hn::Vec<D> total[kChannels];
      Pixels<kChannels, hn::Vec<hn::Rebind<T, D>>> pixels;
      BlendAt<kTaps, kChannels, T>(d, src, step, weigh, places, i, total);
      for (int c = 0; c < kChannels; ++c) pixels.v[c] = Narrow<T>(d, total[c]);
      StoreChannels(pixels, hn::Rebind<T, D>(), to);
    }
  });
}

// ---- Lanes are channels

// Four channels of a pixel.
template <class W>
struct FourChannels {
  static constexpr int kVectors = 4 * sizeof(W) / kBlockBytes, kLanes = 4 / kVectors;
  hn::Full128<W> d;
  hn::Vec<hn::Full128<W>> v[kVectors];

  template <class T>
  HWY_INLINE static FourChannels Weighted(const T* pixel, W weight) {
    FourChannels q;
    for (int i = 0; i < kVectors; ++i) q.v[i] = hn::Mul(LoadWide(q.d, pixel + i * kLanes), hn::Set(q.d, weight));
    return q;
  }
  HWY_INLINE void Scale(W weight) {
    for (int i = 0; i < kVectors; ++i) v[i] = hn::Mul(v[i], hn::Set(d, weight));
  }
  HWY_INLINE void Add(const FourChannels& other) {
    for (int i = 0; i < kVectors; ++i) v[i] = hn::Add(v[i], other.v[i]);
  }
  template <class T>
  HWY_INLINE void StoreTo(T* pixel) const {
    for (int i = 0; i < kVectors; ++i) {
      hn::StoreU(Narrow<T>(d, v[i]), hn::Rebind<T, hn::Full128<W>>(), pixel + i * kLanes);
    }
  }
};

// The weighted sum of one point's taps; its weight of tap k is x[k * stride] and y[k * stride]. Four elements are read
// at each tap, however many channels there are.
template <int kTaps, class T, class W>
HWY_INLINE FourChannels<W> SumOfTaps(const uint8_t* first, ptrdiff_t step, int channels, const W* x, const W* y,
                                     ptrdiff_t stride) {
  FourChannels<W> total;
  for (int r = 0; r < kTaps; ++r) {
    const T* taps = reinterpret_cast<const T*>(first + r * step);
    FourChannels<W> row = FourChannels<W>::Weighted(taps, x[0]);
    for (int k = 1; k < kTaps; ++k) row.Add(FourChannels<W>::Weighted(taps + k * channels, x[k * stride]));
    row.Scale(y[r * stride]);
    if (r == 0) total = row;
    if (r != 0) total.Add(row);
  }
  return total;
}

// As BlendPoints.
template <int kTaps, int kChannels, class T, class W>
void BlendPixels(const Task<T>& task, const Places<W>& places, ptrdiff_t n, T* dst) {
  constexpr int kStride = 16;
  const hn::ScalableTag<W> d;
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step;
  const Weigher<kTaps, W> weigh(task.cubic);
  const auto weighAlong = [&](const W* fraction, W(*to)[kStride]) HWY_ATTR {
    hn::Vec<hn::ScalableTag<W>> w[kTaps];
    for (ptrdiff_t i = 0; i < kStride; i += hn::Lanes(d)) {
      weigh(d, hn::LoadU(d, fraction + i), w);
      for (int k = 0; k < kTaps; ++k) hn::StoreU(w[k], d, to[k] + i);
    }
  };
  MakePixels<kStride, kFurther(kTaps, kChannels), kChannels>(task, n, dst, [&](ptrdiff_t point, T* to) HWY_ATTR {
    const ptrdiff_t first = places.first + point;
    W x[kTaps][kStride], y[kTaps][kStride];
    weighAlong(places.x + first, x);
    weighAlong(places.y + first, y);
    const uint8_t* const from = src;  // copies, which stores of pixels cannot change
    const int32_t* const offset = places.offset + first;
    const ptrdiff_t rowBytes = step;
    for (ptrdiff_t i = 0; i < kStride; ++i) {
      SumOfTaps<kTaps, T>(from + offset[i], rowBytes, kChannels, x[0] + i, y[0] + i, kStride)
          .StoreTo(to + i * kChannels);
    }
  });
}

}  // namespace qvp::sampling
