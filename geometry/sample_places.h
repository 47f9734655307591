// Where the taps of points lie, and between which fractions of a pixel: the first step of every interior block.
#pragma once

#include "geometry/sample_task.h"

namespace qvp::sampling {

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

template <class V>
HWY_INLINE V FractionOfUnits(V units) {
  const hn::DFromV<V> ints;
  return hn::And(hn::ShiftRight<kUnitBits - kFractionBits>(units), hn::Set(ints, (1 << kFractionBits) - 1));
}

// Fractions of F in as many lanes as D has, and the type that positions with such fractions are computed in.
template <class F>
using LaneOf = std::conditional_t<kIsWhole<F>, float, F>;

// What a coordinate is made of. With one tap the pixel is the nearest one, the upper of two; there is no fraction then.
template <class F, class D>
struct Split {
  hn::Vec<hn::Rebind<int32_t, D>> pixel;
  hn::Vec<hn::Rebind<F, D>> fraction;
};

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

// The nearest whole number to a double, below 2^51, as an integer.
HWY_INLINE hn::Vec<hn::ScalableTag<uint64_t>> NearestWholes(hn::Vec<hn::ScalableTag<double>> x) {
  const hn::ScalableTag<double> d;
  const hn::ScalableTag<uint64_t> bits;
  const auto big = hn::Set(d, kToWhole);
  return hn::Sub(hn::BitCast(bits, hn::Add(x, big)), hn::BitCast(bits, big));
}

// From one vector of doubles for the lower half of the lanes of D and one for the upper half.
template <int kTaps, class F, class D>
HWY_INLINE Split<F, D> SplitDoubles(D d, hn::Vec<hn::ScalableTag<double>> lower,
                                    hn::Vec<hn::ScalableTag<double>> upper) {
  static_assert(std::is_same_v<hn::TFromD<D>, float>);
  const hn::Rebind<int32_t, D> ints;
  const auto lowWords = [&](auto low, auto high)
                            HWY_ATTR { return hn::ConcatEven(ints, hn::BitCast(ints, high), hn::BitCast(ints, low)); };
  Split<F, D> split;
  if constexpr (kIsWhole<F> && kTaps > 1) {
    const auto units = hn::Set(hn::ScalableTag<double>(), kUnits);
    const auto low = NearestWholes(hn::Mul(lower, units)), high = NearestWholes(hn::Mul(upper, units));
    split.pixel = lowWords(hn::ShiftRight<kUnitBits>(low), hn::ShiftRight<kUnitBits>(high));
    split.fraction = FractionOfUnits(lowWords(low, high));
  } else {
    const hn::Half<D> half;
    hn::Vec<hn::ScalableTag<double>> f0, f1;
    const auto low = SplitDouble<kTaps>(lower, f0), high = SplitDouble<kTaps>(upper, f1);
    split.pixel = lowWords(low, high);
    if constexpr (kTaps > 1) split.fraction = hn::Combine(d, hn::DemoteTo(half, f1), hn::DemoteTo(half, f0));
  }
  return split;
}

template <int kTaps, class F, class D>
HWY_INLINE Split<F, D> SplitSame(D d, hn::Vec<D> x) {
  const hn::Rebind<int32_t, D> ints;
  Split<F, D> split;
  if constexpr (kTaps > 1) {
    const auto whole = hn::Floor(x), fraction = hn::Sub(x, whole);
    if constexpr (std::is_same_v<hn::TFromD<D>, double>) split.pixel = hn::DemoteTo(ints, whole);
    if constexpr (std::is_same_v<hn::TFromD<D>, float>) split.pixel = RoundToInt(whole);
    if constexpr (kIsWhole<F>) {
      split.fraction = FractionOfUnits(RoundToInt(hn::Mul(fraction, hn::Set(d, static_cast<float>(kUnits)))));
    } else {
      split.fraction = fraction;
    }
  } else if constexpr (std::is_same_v<hn::TFromD<D>, double>) {
    const hn::Rebind<uint64_t, D> bits;
    const auto pixel = hn::BitCast(bits, SplitDouble<1>(x, split.fraction));
    split.pixel = hn::BitCast(ints, hn::TruncateTo(hn::Rebind<uint32_t, D>(), pixel));
  } else {
    const auto nearest = RoundToInt(x);
    const auto isLowered = hn::Eq(hn::Sub(x, hn::ConvertTo(d, nearest)), hn::Set(d, 0.5f));
    split.pixel = hn::Sub(nearest, hn::VecFromMask(ints, hn::RebindMask(ints, isLowered)));
  }
  return split;
}

template <int kTaps, class F, class D, class Points>
HWY_INLINE void SplitPoints(D d, const Points& points, ptrdiff_t i, Split<F, D>& column, Split<F, D>& row) {
  if constexpr (std::is_same_v<typename Points::Coordinate, hn::TFromD<D>>) {
    hn::Vec<D> u, v;
    points.Load(d, i, u, v);
    column = SplitSame<kTaps, F>(d, u);
    row = SplitSame<kTaps, F>(d, v);
  } else {
    const hn::ScalableTag<double> doubles;
    hn::Vec<decltype(doubles)> u0, v0, u1, v1;
    points.Load(doubles, i, u0, v0);
    points.Load(doubles, i + hn::Lanes(doubles), u1, v1);
    column = SplitDoubles<kTaps, F>(d, u0, u1);
    row = SplitDoubles<kTaps, F>(d, v0, v1);
  }
}

// Places n points, and repeats the last one up to a multiple of kWhole. A loop of its own: together with the one
// over the taps it would be a longer chain than a CPU can overlap with the next one.
template <int kTaps, int kPixelBytes, class F, class Points>
void Place(const Points& points, ptrdiff_t n, int32_t step, Places<F>& places) {
  using D = hn::ScalableTag<LaneOf<F>>;
  const D d;
  const hn::Rebind<int32_t, D> ints;
  const hn::Rebind<F, D> fractions;
  const auto rowBytes = hn::Set(ints, step), pixelBytes = hn::Set(ints, kPixelBytes);
  const auto before = hn::Set(ints, kTapsBefore(kTaps) * (step + kPixelBytes));
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    Split<F, D> column, row;
    SplitPoints<kTaps>(d, points, i, column, row);
    const auto across = kPixelBytes == 1 ? column.pixel : hn::Mul(column.pixel, pixelBytes);
    hn::StoreU(hn::Sub(hn::Add(hn::Mul(row.pixel, rowBytes), across), before), ints, places.offset + i);
    if constexpr (kTaps > 1) {
      hn::StoreU(column.fraction, fractions, places.x + i);
      hn::StoreU(row.fraction, fractions, places.y + i);
    }
  }
  if constexpr (kTaps > 1) places.Fill(n);
}

}  // namespace qvp::sampling
