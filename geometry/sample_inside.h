// Values at interior points: all taps lie in the image, so that nothing is judged and no tap is tested. Lanes are
// points where their taps fit into words, and channels of one point otherwise.
#pragma once

#include "base/map.h"
#include "geometry/resize_kernels.h"
#include "geometry/sample_task.h"

namespace qvp {

// Points whose coordinates are in memory, with room for whole vectors; those behind the last one repeat it.
template <class C>
struct PointArray {
  using Coordinate = C;
  const C *u, *v;

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    x = hn::LoadU(d, u + i);
    y = hn::LoadU(d, v + i);
  }

  // Places nearest pixels by a quicker way than the general one, if there is one.
  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t, int32_t, int32_t*) const {
    return false;
  }
};

// ---- Pixels and fractions

// What a coordinate is made of. With one tap the pixel is the nearest one, the upper of two; there is no fraction then.
template <class D>
struct Split {
  hn::Vec<hn::Rebind<int32_t, D>> pixel;
  hn::Vec<D> fraction;
};

// Numbers of this size have no fraction: adding it rounds to the nearest, ties to even, and shows the result in the low
// 32 bits.
inline constexpr double kToWhole = 6755399441055744.0;  // 1.5 * 2^52

// The pixel, in the low half of each lane, and the fraction of a double.
template <int kTaps>
HWY_INLINE hn::Vec<hn::ScalableTag<int64_t>> SplitDouble(hn::Vec<hn::ScalableTag<double>> x,
                                                         hn::Vec<hn::ScalableTag<double>>& fraction) {
  const hn::ScalableTag<double> d;
  const hn::ScalableTag<int64_t> bits;
  const auto big = hn::Set(d, kToWhole);
  if constexpr (kTaps > 1) {
    const auto whole = hn::Floor(x);
    fraction = hn::Sub(x, whole);
    return hn::BitCast(bits, hn::Add(whole, big));
  } else {
    const auto sum = hn::Add(x, big);
    fraction = hn::Sub(x, hn::Sub(sum, big));
    const auto isLowered = hn::Eq(fraction, hn::Set(d, 0.5));  // a tie that went to the pixel below
    return hn::Sub(hn::BitCast(bits, sum), hn::VecFromMask(bits, hn::RebindMask(bits, isLowered)));
  }
}

// From one vector of doubles for the lower half of the lanes of D and one for the upper half.
template <int kTaps, class D>
HWY_INLINE Split<D> SplitDoubles(D d, hn::Vec<hn::ScalableTag<double>> lower, hn::Vec<hn::ScalableTag<double>> upper) {
  static_assert(std::is_same_v<hn::TFromD<D>, float>);
  const hn::Rebind<int32_t, D> ints;
  const hn::Half<D> half;
  hn::Vec<hn::ScalableTag<double>> f0, f1;
  const auto low = SplitDouble<kTaps>(lower, f0), high = SplitDouble<kTaps>(upper, f1);
  Split<D> split;
  split.pixel = hn::ConcatEven(ints, hn::BitCast(ints, high), hn::BitCast(ints, low));
  if constexpr (kTaps > 1) split.fraction = hn::Combine(d, hn::DemoteTo(half, f1), hn::DemoteTo(half, f0));
  return split;
}

template <int kTaps, class D>
HWY_INLINE Split<D> SplitSame(D d, hn::Vec<D> x) {
  const hn::Rebind<int32_t, D> ints;
  Split<D> split;
  if constexpr (kTaps > 1) {
    const auto whole = hn::Floor(x);
    split.fraction = hn::Sub(x, whole);
    if constexpr (std::is_same_v<hn::TFromD<D>, double>) split.pixel = hn::DemoteTo(ints, whole);
    if constexpr (std::is_same_v<hn::TFromD<D>, float>) split.pixel = RoundToInt(whole);
  } else if constexpr (std::is_same_v<hn::TFromD<D>, double>) {
    const hn::Rebind<uint64_t, D> bits;
    const auto pixel = hn::BitCast(bits, SplitDouble<1>(x, split.fraction));
    split.pixel = hn::BitCast(ints, hn::TruncateTo(hn::Rebind<uint32_t, D>(), pixel));
  } else {
    const auto nearest = RoundToInt(x);
    split.fraction = hn::Sub(x, hn::ConvertTo(d, nearest));
    const auto isLowered = hn::Eq(split.fraction, hn::Set(d, 0.5f));
    split.pixel = hn::Sub(nearest, hn::VecFromMask(ints, hn::RebindMask(ints, isLowered)));
  }
  return split;
}

// Points that are placed at once, for results that fill a vector of bytes.
inline constexpr ptrdiff_t kWhole = std::max<ptrdiff_t>(hn::MaxLanes(hn::ScalableTag<uint8_t>()), 16);

// Where the points of a block have their first taps, in bytes, and their fractions. The first point is at `first`.
template <class W>
struct Places {
  ptrdiff_t first = 0;
  int32_t offset[kBlock + kWhole];
  W x[kBlock + kWhole], y[kBlock + kWhole];

  // Repeats the last of n points up to a multiple of kWhole.
  void Fill(ptrdiff_t n) {
    for (ptrdiff_t i = n; i % kWhole != 0; ++i) {
      offset[first + i] = offset[first + n - 1];
      x[first + i] = y[first + i] = 0;
    }
  }
};

template <int kTaps, class D, class Points>
HWY_INLINE void SplitPoints(D d, const Points& points, ptrdiff_t i, Split<D>& column, Split<D>& row) {
  if constexpr (std::is_same_v<typename Points::Coordinate, hn::TFromD<D>>) {
    hn::Vec<D> u, v;
    points.Load(d, i, u, v);
    column = SplitSame<kTaps>(d, u);
    row = SplitSame<kTaps>(d, v);
  } else {
    const hn::ScalableTag<double> doubles;
    hn::Vec<decltype(doubles)> u0, v0, u1, v1;
    points.Load(doubles, i, u0, v0);
    points.Load(doubles, i + hn::Lanes(doubles), u1, v1);
    column = SplitDoubles<kTaps>(d, u0, u1);
    row = SplitDoubles<kTaps>(d, v0, v1);
  }
}

// Places n points, and repeats the last one up to a multiple of kWhole. A loop of its own: together with the one
// over the taps it would be a longer chain than a CPU can overlap with the next one.
template <int kTaps, int kPixelBytes, class W, class Points>
void Place(const Points& points, ptrdiff_t n, int32_t step, Places<W>& places) {
  const hn::ScalableTag<W> d;
  const hn::Rebind<int32_t, hn::ScalableTag<W>> ints;
  const auto rowBytes = hn::Set(ints, step), pixelBytes = hn::Set(ints, kPixelBytes);
  const auto before = hn::Set(ints, kTapsBefore(kTaps) * (step + kPixelBytes));
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    Split<hn::ScalableTag<W>> column, row;
    SplitPoints<kTaps>(d, points, i, column, row);
    const auto across = kPixelBytes == 1 ? column.pixel : hn::Mul(column.pixel, pixelBytes);
    hn::StoreU(hn::Sub(hn::Add(hn::Mul(row.pixel, rowBytes), across), before), ints, places.offset + i);
    if constexpr (kTaps > 1) {
      hn::StoreU(column.fraction, d, places.x + i);
      hn::StoreU(row.fraction, d, places.y + i);
    }
  }
  if constexpr (kTaps > 1) places.Fill(n);
}

// ---- Weights

// A cubic's weights are polynomials of the fraction. Mitchell, Netravali: Reconstruction filters in computer graphics
// (1988), expanded for the distances f + 1, f, 1 - f and 2 - f.
struct CubicPolynomials {
  double of[4][4];  // coefficients of 1, f, f^2, f^3

  CubicPolynomials(double b, double c)
      : of{{b / 6, -b / 2 - c, b / 2 + 2 * c, -b / 6 - c},
           {1 - b / 3, 0, -3 + 2 * b + c, 2 - 1.5 * b - c},
           {b / 6, b / 2 + c, 3 - 2.5 * b - 2 * c, -2 + 1.5 * b + c},
           {0, 0, -c, b / 6 + c}} {}
};

// The weights of points from the one before their first tap's position on: w[k] = weight of tap k.
template <int kTaps, class W>
class Weigher;

template <class W>
class Weigher<2, W> {
 public:
  template <class T>
  explicit Weigher(const SampleTask<T>&) {}

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    w[0] = hn::Sub(hn::Set(d, W{1}), f);
    w[1] = f;
  }
};

template <class W>
class Weigher<4, W> {
 public:
  template <class T>
  explicit Weigher(const SampleTask<T>& task) {
    const CubicPolynomials cubic(task.b, task.c);
    for (int k = 0; k < 16; ++k) p_[k / 4][k % 4] = static_cast<W>(cubic.of[k / 4][k % 4]);
  }

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    for (int k = 0; k < 4; ++k) {
      w[k] = hn::Set(d, p_[k][3]);
      for (int power = 2; power >= 0; --power) w[k] = hn::Add(hn::Mul(w[k], f), hn::Set(d, p_[k][power]));
    }
  }

 private:
  W p_[4][4];
};

// Lanczos of three lobes, divided by the sum of the weights.
template <class W>
class Weigher<6, W> {
 public:
  template <class T>
  explicit Weigher(const SampleTask<T>&) {}

  template <class D>
  HWY_INLINE void operator()(D d, hn::Vec<D> f, hn::Vec<D>* w) const {
    HWY_ALIGN W fractions[hn::MaxLanes(D())], weights[6][hn::MaxLanes(D())];
    hn::Store(f, d, fractions);
    for (size_t i = 0; i < hn::Lanes(d); ++i) WeighOne(static_cast<double>(fractions[i]), weights, i);
    for (int k = 0; k < 6; ++k) w[k] = hn::Load(d, weights[k]);
  }

 private:
  template <size_t kLanes>
  static void WeighOne(double f, W (*to)[kLanes], size_t i) {
    const ResizeKernel kernel{qvpInterpolationLanczos, 0, 0, 3};
    double weights[6], sum = 0;
    for (int k = 0; k < 6; ++k) sum += weights[k] = kernel.At(k < 3 ? f + (2 - k) : (k - 2) - f);
    for (int k = 0; k < 6; ++k) to[k][i] = static_cast<W>(weights[k] / sum);
  }
};

// ---- Lanes are points

// Elements at offsets from any address.
#if HWY_TARGET <= HWY_AVX2
template <class D>
HWY_INLINE hn::Vec<D> GatherWords(D d, const uint8_t* base, hn::Vec<hn::Rebind<int32_t, D>> offset) {
  using T = hn::TFromD<D>;
  const auto* from = reinterpret_cast<const T*>(base);
  if constexpr (sizeof(T) == sizeof(int32_t)) return hn::GatherOffset(d, from, offset);
  if constexpr (sizeof(T) == sizeof(int64_t))
    return hn::GatherOffset(d, from, hn::PromoteTo(hn::Rebind<int64_t, D>(), offset));
}
#else
template <class T>
T WordAt(const uint8_t* from) {
  T word;
  std::memcpy(&word, from, sizeof(T));
  return word;
}
HWY_INLINE hn::Vec128<int32_t> GatherWords(hn::Full128<int32_t>, const uint8_t* base, hn::Vec128<int32_t> offset) {
  const auto at = [&](int i) { return WordAt<int32_t>(base + i); };
  return hn::Vec128<int32_t>{_mm_setr_epi32(at(_mm_extract_epi32(offset.raw, 0)), at(_mm_extract_epi32(offset.raw, 1)),
                                            at(_mm_extract_epi32(offset.raw, 2)),
                                            at(_mm_extract_epi32(offset.raw, 3)))};
}
HWY_INLINE hn::Vec128<double> GatherWords(hn::Full128<double>, const uint8_t* base, hn::Vec128<int32_t, 2> offset) {
  return hn::Vec128<double>{_mm_setr_pd(WordAt<double>(base + _mm_extract_epi32(offset.raw, 0)),
                                        WordAt<double>(base + _mm_extract_epi32(offset.raw, 1)))};
}
#endif

// The taps of a row of as many points as there are lanes: a word holds several taps of one channel, or one tap of
// several channels.
template <int kTaps, int kChannels, class T, class D>
class RowTaps {
 public:
  HWY_INLINE RowTaps(D, const uint8_t* row, hn::Vec<hn::Rebind<int32_t, D>> offset) {
    for (int i = 0; i < kWords; ++i) words_[i] = GatherWords(Words(), row + i * kWordBytes, offset);
  }

  HWY_INLINE hn::Vec<D> At(int tap, int channel) const {
    const D d;
    if constexpr (std::is_floating_point_v<T>) {
      return hn::BitCast(d, words_[tap]);
    } else {
      const int element = kChannels == 1 ? tap % kPerWord : channel;
      const auto word = words_[kChannels == 1 ? tap / kPerWord : tap];
      const auto top = hn::ShiftLeftSame(word, 32 - kBits - element * kBits);
      if constexpr (std::is_signed_v<T>) return hn::ConvertTo(d, hn::ShiftRight<32 - kBits>(top));
      const hn::Rebind<uint32_t, D> bits;
      return hn::ConvertTo(d, hn::BitCast(Words(), hn::ShiftRight<32 - kBits>(hn::BitCast(bits, top))));
    }
  }

 private:
  using Words = hn::Rebind<std::conditional_t<std::is_same_v<T, double>, double, int32_t>, D>;
  static constexpr int kBits = 8 * sizeof(T), kPerWord = std::max<int>(32 / kBits, 1);
  static constexpr int kWords = kChannels == 1 ? (kTaps + kPerWord - 1) / kPerWord : kTaps;
  static constexpr int kWordBytes = (kChannels == 1 ? kPerWord : kChannels) * sizeof(T);
  static_assert(kChannels == 1 || sizeof(T) == 1);

  hn::Vec<Words> words_[kWords];
};

// Whole pixels from one vector for each channel.
template <int kChannels, class D, class T = hn::TFromD<D>>
HWY_INLINE void StorePixels(D d, const hn::Vec<D>* v, T* to) {
  if constexpr (kChannels == 3) hn::StoreInterleaved3(v[0], v[1], v[2], d, to);
  if constexpr (kChannels == 4) hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, to);
}

// The weighted sums of as many points as there are lanes, from the i-th on.
template <int kTaps, int kChannels, class T, class D>
HWY_INLINE void BlendAt(D d, const uint8_t* src, ptrdiff_t step, const Weigher<kTaps, WorkOf<T>>& weigh,
                        const Places<WorkOf<T>>& places, ptrdiff_t i, hn::Vec<D>* total) {
  using V = hn::Vec<D>;
  const ptrdiff_t point = places.first + i;
  const auto offset = hn::LoadU(hn::Rebind<int32_t, D>(), places.offset + point);
  V x[kTaps], y[kTaps];
  weigh(d, hn::LoadU(d, places.x + point), x);
  weigh(d, hn::LoadU(d, places.y + point), y);
  for (int r = 0; r < kTaps; ++r) {
    const RowTaps<kTaps, kChannels, T, D> taps(d, src + r * step, offset);
    for (int c = 0; c < kChannels; ++c) {
      V row = hn::Mul(taps.At(0, c), x[0]);
      for (int k = 1; k < kTaps; ++k) row = hn::Add(row, hn::Mul(taps.At(k, c), x[k]));
      total[c] = r == 0 ? hn::Mul(row, y[0]) : hn::Add(total[c], hn::Mul(row, y[r]));
    }
  }
}

// Makes the pixels of n points by strides: make(i, to) writes those of kStride points from the i-th on, and elements of
// kOver pixels behind them. What a stride has too much, and channels that stay, are kept off the destination.
template <int kStride, int kOver, int kChannels, class T, class Make>
void MakePixels(const SampleTask<T>& task, ptrdiff_t n, T* dst, const Make& make) {
  const int written = ProcessedChannels(task.src.layout);
  ptrdiff_t i = 0;
  for (; written == kChannels && i + kStride + kOver <= n; i += kStride) make(i, dst + i * kChannels);
  for (; i < n; i += kStride) {
    T out[kStride * kChannels + 4];
    make(i, out);
    const ptrdiff_t rest = std::min<ptrdiff_t>(n - i, kStride);
    T* to = dst + i * kChannels;
    if (written == kChannels) {
      std::memcpy(to, out, rest * kChannels * sizeof(T));
      continue;
    }
    for (ptrdiff_t j = 0; j < rest; ++j) std::memcpy(to + j * kChannels, out + j * kChannels, written * sizeof(T));
  }
}

// Pixels of n points.
template <int kTaps, int kChannels, class T>
void BlendPoints(const SampleTask<T>& task, const Places<WorkOf<T>>& places, ptrdiff_t n, T* dst) {
  using D = hn::ScalableTag<WorkOf<T>>;
  constexpr int kLanes = hn::MaxLanes(D()), kParts = kChannels == 1 ? kVectorsAtOnce<T, WorkOf<T>> : 1;
  const D d;
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step;
  const Weigher<kTaps, WorkOf<T>> weigh(task);
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
      hn::Vec<hn::Rebind<T, D>> pixels[kChannels];
      BlendAt<kTaps, kChannels, T>(d, src, step, weigh, places, i, total);
      for (int c = 0; c < kChannels; ++c) pixels[c] = Narrow<T>(d, total[c]);
      StorePixels<kChannels>(hn::Rebind<T, D>(), pixels, to);
    }
  });
}

// ---- Lanes are channels

// Four channels of a pixel.
template <class W>
struct Quad {
  static constexpr int kVectors = 4 * sizeof(W) / kBlockBytes, kLanes = 4 / kVectors;
  hn::Full128<W> d;
  hn::Vec<hn::Full128<W>> v[kVectors];

  template <class T>
  HWY_INLINE static Quad Weighted(const T* pixel, W weight) {
    Quad q;
    for (int i = 0; i < kVectors; ++i) q.v[i] = hn::Mul(LoadWide(q.d, pixel + i * kLanes), hn::Set(q.d, weight));
    return q;
  }
  HWY_INLINE void Scale(W weight) {
    for (int i = 0; i < kVectors; ++i) v[i] = hn::Mul(v[i], hn::Set(d, weight));
  }
  HWY_INLINE void Add(const Quad& other) {
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
// at each tap and written, however many channels there are.
template <int kTaps, class T, class W>
HWY_INLINE void BlendPixel(const uint8_t* first, ptrdiff_t step, int channels, const W* x, const W* y, ptrdiff_t stride,
                           T* out) {
  Quad<W> total;
  for (int r = 0; r < kTaps; ++r) {
    const T* taps = reinterpret_cast<const T*>(first + r * step);
    Quad<W> row = Quad<W>::Weighted(taps, x[0]);
    for (int k = 1; k < kTaps; ++k) row.Add(Quad<W>::Weighted(taps + k * channels, x[k * stride]));
    row.Scale(y[r * stride]);
    if (r == 0) total = row;
    if (r != 0) total.Add(row);
  }
  total.StoreTo(out);
}

// As BlendPoints.
template <int kTaps, int kChannels, class T, class W>
void BlendPixels(const SampleTask<T>& task, const Places<W>& places, ptrdiff_t n, T* dst) {
  constexpr int kStride = 16;
  const hn::ScalableTag<W> d;
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  const ptrdiff_t step = task.src.step;
  const Weigher<kTaps, W> weigh(task);
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
    for (ptrdiff_t i = 0; i < kStride; ++i) {
      BlendPixel<kTaps>(src + places.offset[first + i], step, kChannels, x[0] + i, y[0] + i, kStride,
                        to + i * kChannels);
    }
  });
}

// ---- Nearest

template <int kChannels, class T>
void MovePixels(const SampleTask<T>& task, const int32_t* offset, ptrdiff_t n, T* dst) {
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  if (ProcessedChannels(task.src.layout) < kChannels) {
    for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * kChannels, src + offset[i], (kChannels - 1) * sizeof(T));
  } else if (task.isShift) {
    std::memcpy(dst, src + offset[0], n * kChannels * sizeof(T));
  } else {
    for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * kChannels, src + offset[i], kChannels * sizeof(T));
  }
}

// ---- Blocks

template <int kTaps, int kChannels, class T, class Points>
void SampleChannelsInside(const SampleTask<T>& task, const Points& points, ptrdiff_t n, T* dst) {
  constexpr int kPixelBytes = kChannels * int{sizeof(T)};
  const auto step = static_cast<int32_t>(task.src.step);
  Places<WorkOf<T>> places;
  if constexpr (kTaps == 1) {
    if (!points.template PlaceNearest<kPixelBytes>(n, step, places.offset)) {
      Place<1, kPixelBytes>(points, task.isShift ? 1 : n, step, places);
    }
    MovePixels<kChannels>(task, places.offset, n, dst);
  } else {
    Place<kTaps, kPixelBytes>(points, n, step, places);
    constexpr bool kAreWords = kTaps <= 4 && (kChannels == 1 || sizeof(T) == 1);
    if constexpr (kAreWords) BlendPoints<kTaps, kChannels>(task, places, n, dst);
    if constexpr (!kAreWords) BlendPixels<kTaps, kChannels>(task, places, n, dst);
  }
}

// Values at n interior points, up to kBlock, to as many pixels.
template <int kTaps, class T, class Points>
void SampleInside(const SampleTask<T>& task, const Points& points, ptrdiff_t n, T* dst) {
  switch (Channels(task.src.layout)) {
    case 1: return SampleChannelsInside<kTaps, 1>(task, points, n, dst);
    case 3: return SampleChannelsInside<kTaps, 3>(task, points, n, dst);
    default: return SampleChannelsInside<kTaps, 4>(task, points, n, dst);
  }
}

}  // namespace qvp
