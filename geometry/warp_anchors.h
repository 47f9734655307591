// Affine points in fixed point, for interpolation in single precision.
#pragma once

#include "geometry/sample_places.h"
#include "geometry/warp_points.h"

namespace qvp::warp {

// Every kAnchorColumns-th column of the whole destination is an anchor: its point is computed in double precision and
// rounded to 2^-26 pixel, and 31 bits hold the offsets of the columns behind it, rounded alike. A point is wrong by
// 2^-26 pixel, half of what a weight is rounded by.
inline constexpr int kAnchorColumns = 8;

// The offsets of the columns from their anchor, for as many columns as the longest vector has lanes.
class AnchorSteps {
 public:
  static constexpr int kColumns = 2 * kAnchorColumns;
  static constexpr double kSteepest = 4;

  static void Fill(double a, int32_t (&steps)[kColumns]) {
    for (int i = 0; i < kAnchorColumns; ++i) steps[i] = steps[i + kAnchorColumns] = Rounded(a * i);
  }

  // For lines of these slopes.
  void Set(double au, double av) {
    if (au_ == au && av_ == av) return;
    au_ = au, av_ = av;
    isShort_ = std::fabs(au) <= kSteepest && std::fabs(av) <= kSteepest;
    if (isShort_) Fill(au, u), Fill(av, v);
  }

  // Whether a row of the destination can be placed by anchors. No matter which part of it is computed.
  bool IsUsableFor(const AffinePoints& points, ptrdiff_t width) const {
    return isShort_ && points.u.IsSmall(static_cast<double>(width)) && points.v.IsSmall(static_cast<double>(width));
  }

  int32_t u[kColumns], v[kColumns];

 private:
  static int32_t Rounded(double x) { return static_cast<int32_t>(NearestWhole(x * kUnits)); }

  double au_ = NAN, av_ = NAN;
  bool isShort_ = false;
};

// The anchors of a block. Low halves of words count.
struct Anchors {
  static constexpr int kCount = kBlock / kAnchorColumns;
  int64_t u[kCount], v[kCount];  // fractions
  int64_t offset[kCount];        // of the whole pixels

  // One anchor for a vector or half of it.
  template <class D>
  HWY_INLINE static hn::Vec<D> At(D d, const int64_t* anchors, ptrdiff_t column) {
    const auto at = [&](ptrdiff_t k) HWY_ATTR { return hn::Set(d, static_cast<int32_t>(anchors[k])); };
    const ptrdiff_t k = column / kAnchorColumns;
    if constexpr (hn::MaxLanes(D()) <= kAnchorColumns) {
      return at(k);
    } else {
      return hn::ConcatLowerLower(d, at(k + 1), at(k));
    }
  }
};

// Interior points of a row.
struct AnchoredPoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = true, kIsLong = false;
  Line u, v;  // in units
  const AnchorSteps* steps;
  ptrdiff_t column;

  AnchoredPoints(const AffinePoints& points, const AnchorSteps& anchorSteps, ptrdiff_t x)
      : u(points.u.Times(kUnits)), v(points.v.Times(kUnits)), steps(&anchorSteps), column(x) {}

  AnchoredPoints From(ptrdiff_t x) const {
    AnchoredPoints points(*this);
    points.column += x;
    return points;
  }

  // Columns before the first one from its anchor on.
  ptrdiff_t Lead() const { return column % kAnchorColumns; }
  ptrdiff_t MostAtOnce() const { return kBlock - Lead(); }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    const ptrdiff_t place = (column + i) % kAnchorColumns;
    const auto anchor = AnchorOf(d, column + i);
    x = At(d, u, anchor, steps->u + place);
    y = At(d, v, anchor, steps->v + place);
  }

  // The anchors of n columns from the first one's on.
  void Set(ptrdiff_t n, int32_t rowBytes, int32_t pixelBytes, Anchors& anchors) const {
    const hn::ScalableTag<double> d;
    const hn::Repartition<int32_t, decltype(d)> ints;
    const auto stride = hn::Set(ints, rowBytes), across = hn::Set(ints, pixelBytes);
    auto x =
        hn::Add(hn::Mul(hn::Iota(d, 0), hn::Set(d, kAnchorColumns)), hn::Set(d, static_cast<double>(column - Lead())));
    const auto next = hn::Set(d, static_cast<double>(hn::Lanes(d) * kAnchorColumns));
    for (ptrdiff_t i = 0; i * kAnchorColumns < n; i += hn::Lanes(d)) {
      const auto row = hn::Mul(hn::BitCast(ints, Split(d, v, x, anchors.v + i)), stride);
      const auto pixel = hn::Mul(hn::BitCast(ints, Split(d, u, x, anchors.u + i)), across);
      hn::StoreU(hn::BitCast(hn::Rebind<int64_t, decltype(d)>(), hn::Add(row, pixel)),
                 hn::Rebind<int64_t, decltype(d)>(), anchors.offset + i);
      x = hn::Add(x, next);
    }
  }

 private:
  // The anchors of as many columns as there are lanes.
  template <class D>
  HWY_INLINE static hn::Vec<D> AnchorOf(D d, ptrdiff_t first) {
    const auto columns = hn::Iota(d, static_cast<double>(first));
    const auto count = hn::Floor(hn::Mul(columns, hn::Set(d, 1.0 / kAnchorColumns)));
    return hn::Mul(count, hn::Set(d, kAnchorColumns));
  }
  template <class D>
  HWY_INLINE static hn::Vec<D> At(D d, const Line& line, hn::Vec<D> anchor, const int32_t* offsets) {
    const auto units = hn::Round(line.At(d, anchor));
    return hn::Mul(hn::Add(units, LoadWide(d, offsets)), hn::Set(d, 1 / kUnits));
  }

  // Stores the fractions of anchors, and gives their whole pixels.
  template <class D>
  HWY_INLINE static hn::Vec<hn::Rebind<uint64_t, D>> Split(D d, const Line& line, hn::Vec<D> x, int64_t* fraction) {
    const hn::Rebind<uint64_t, D> bits;
    const auto units = NearestWholes(line.At(d, x));
    const hn::Rebind<int64_t, D> words;
    hn::StoreU(hn::BitCast(words, hn::And(units, hn::Set(bits, (1 << kUnitBits) - 1))), words, fraction);
    return hn::ShiftRight<kUnitBits>(units);
  }
};

// Points of a row that need a test: which of them have a value is told by exact ones. Those within bounds stay there.
struct TestedPoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = true, kIsLong = false;
  AffinePoints exact;
  AnchoredPoints anchored;
  const Area* area;

  TestedPoints From(ptrdiff_t x) const { return {exact.From(x), anchored.From(x), area}; }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    anchored.Load(d, i, x, y);
    if (!area->isBounded) return;
    const Interval across{area->left, area->right}, down{area->top, area->bottom};
    hn::Vec<D> exactX, exactY;
    exact.Load(d, i, exactX, exactY);
    const auto isIn = hn::And(IsIn(d, across, exactX), IsIn(d, down, exactY));
    x = hn::IfThenElse(isIn, Clamped(d, across, x), exactX);
    y = hn::IfThenElse(isIn, Clamped(d, down, y), exactY);
  }

 private:
  template <class D>
  HWY_INLINE static hn::Vec<D> Clamped(D d, const Interval& to, hn::Vec<D> x) {
    return hn::Min(hn::Max(x, hn::Set(d, to.low)), hn::Set(d, to.high));
  }
};

// The fraction of a position in units.
template <class F, class V>
HWY_INLINE auto FractionIn(V units) {
  if constexpr (kIsWhole<F>) {
    return FractionOfUnits(units);
  } else {
    const hn::ScalableTag<float> d;
    const auto part = hn::And(units, hn::Set(hn::ScalableTag<int32_t>(), (1 << kUnitBits) - 1));
    return hn::Mul(hn::ConvertTo(d, part), hn::Set(d, static_cast<float>(1 / kUnits)));
  }
}

// Places n points, and repeats the last one up to a multiple of kWhole. Takes the place of the general way.
template <int kTaps, int kPixelBytes, class F>
void Place(const AnchoredPoints& points, ptrdiff_t n, int32_t step, Places<F>& places) {
  const hn::ScalableTag<int32_t> d;
  const hn::ScalableTag<F> fractions;
  Anchors anchors;
  places.first = points.Lead();
  const ptrdiff_t end = places.first + n;
  points.Set(end, step, kPixelBytes, anchors);
  const auto rowBytes = hn::Set(d, step), pixelBytes = hn::Set(d, kPixelBytes);
  const auto before = hn::Set(d, kTapsBefore(kTaps) * (step + kPixelBytes));
  for (ptrdiff_t i = 0; i < end; i += hn::Lanes(d)) {
    const auto u = hn::Add(Anchors::At(d, anchors.u, i), hn::LoadU(d, points.steps->u + i % kAnchorColumns));
    const auto v = hn::Add(Anchors::At(d, anchors.v, i), hn::LoadU(d, points.steps->v + i % kAnchorColumns));
    const auto column = hn::ShiftRight<kUnitBits>(u);
    const auto across = kPixelBytes == 1 ? column : hn::Mul(column, pixelBytes);
    const auto offset = hn::Add(hn::Mul(hn::ShiftRight<kUnitBits>(v), rowBytes), across);
    const auto origin = hn::Sub(Anchors::At(d, anchors.offset, i), before);
    hn::StoreU(hn::Add(origin, offset), d, places.offset + i);
    hn::StoreU(FractionIn<F>(u), fractions, places.x + i);
    hn::StoreU(FractionIn<F>(v), fractions, places.y + i);
  }
  places.Fill(n);
}

}  // namespace qvp::warp
