// The spans of many rows at once: a lane is a row. What a row costs besides its pixels counts in small images.
#pragma once

#include "geometry/warp_spans.h"

namespace qvp::warp {

// A line of each of as many rows as there are lanes.
template <class D>
struct RowLines {
  using V = hn::Vec<D>;
  V a, b, c;

  HWY_INLINE RowLines(D d, const double (&coefficients)[3], double twist, V y)
      : a(hn::Add(hn::Mul(hn::Set(d, twist), y), hn::Set(d, coefficients[0]))),
        b(hn::Mul(hn::Set(d, coefficients[1]), y)),
        c(hn::Set(d, coefficients[2])) {}

  HWY_INLINE V At(V x) const { return hn::Add(hn::Add(hn::Mul(a, x), b), c); }

  // Where the line is in an interval, roughly: that part of columns [low, high].
  HWY_INLINE void Clip(D d, const Interval& interval, V& low, V& high) const {
    const auto isLevel = hn::Eq(a, hn::Zero(d));
    const auto crossing = [&](double value) HWY_ATTR { return hn::Div(hn::Sub(hn::Sub(hn::Set(d, value), c), b), a); };
    const V first = crossing(interval.low), last = crossing(interval.high);
    low = hn::IfThenElse(isLevel, low, hn::Max(low, hn::Min(first, last)));
    high = hn::IfThenElse(isLevel, high, hn::Min(high, hn::Max(first, last)));
  }
};

// The columns of a tile whose points are in a box, for kRows rows from one on.
class BoxedRows {
 public:
  static constexpr ptrdiff_t kRows = 16;

  BoxedRows(const Record& record, const PointBox& box, ptrdiff_t x, ptrdiff_t n)
      : record_(record), box_(box), first_(static_cast<double>(x)), last_(static_cast<double>(x + n - 1)) {}

  void Find(ptrdiff_t y, ptrdiff_t rows) {
    for (ptrdiff_t i = 0; i < rows; i += hn::MaxLanes(D())) FindLanes(y, i);
  }

  // Of row i. False where the guess is not exact, or there is no such column.
  bool Get(ptrdiff_t i, Span& span) const {
    const auto column = [&](double x) { return static_cast<ptrdiff_t>(x - first_); };
    if (!(low_[i] <= high_[i])) return false;
    span = {column(low_[i]), column(high_[i]) + 1};
    return true;
  }

 private:
  using D = hn::ScalableTag<double>;
  using V = hn::Vec<D>;

  // The ends of a span are in, and what is beside them is not, as the box is convex and each rounded step monotone.
  void FindLanes(ptrdiff_t y, ptrdiff_t i) {
    const D d;
    const V rows = hn::Iota(d, static_cast<double>(y + i)), one = hn::Set(d, 1.0);
    const RowLines<D> u(d, record_.c[0], record_.twist[0], rows), v(d, record_.c[1], record_.twist[1], rows);
    const V first = hn::Set(d, first_), last = hn::Set(d, last_);
    V low = first, high = last;
    u.Clip(d, box_.u, low, high);
    v.Clip(d, box_.v, low, high);
    low = hn::Ceil(low);
    high = hn::Floor(high);
    const auto isIn = [&](V x) HWY_ATTR { return IsIn(d, box_, u.At(x), v.At(x)); };
    const V before = hn::Sub(low, one), behind = hn::Add(high, one);
    const auto isBeyond =
        hn::Or(hn::And(hn::Ge(before, first), isIn(before)), hn::And(hn::Le(behind, last), isIn(behind)));
    const auto isSpan = hn::And(hn::Le(low, high), hn::And(isIn(low), isIn(high)));
    hn::StoreU(low, d, low_ + i);
    hn::StoreU(hn::IfThenElse(hn::AndNot(isBeyond, isSpan), high, hn::Set(d, -INFINITY)), d, high_ + i);
  }

  const Record& record_;
  PointBox box_;
  double first_, last_;
  double low_[kRows], high_[kRows];
};

// The spans of the rows of a tile, asked for downwards.
template <int kTaps, class T>
class RowSpans {
 public:
  RowSpans(const Record& record, const Task<T>& task, const PointBox& inner, ptrdiff_t x, Size size)
      : task_(task),
        inner_(inner),
        width_(size.width),
        height_(size.height),
        touching_(record, TouchingBox<kTaps>(task.area), x, width_),
        inside_(record, inner, x, width_) {}

  // Of row i of the tile, which is row `y` of the destination.
  Spans At(ptrdiff_t i, ptrdiff_t y, const AffinePoints& points) {
    const ptrdiff_t place = i % BoxedRows::kRows;
    if (place == 0) Find(y, std::min(height_ - i, BoxedRows::kRows));
    Spans spans{{0, width_}, {}};
    const bool isFound =
        (!IsBeyondKnown(task_.area) || touching_.Get(place, spans.touching)) && inside_.Get(place, spans.inside);
    return isFound ? spans : SpansOf<kTaps>(task_, inner_, points, width_);
  }

 private:
  void Find(ptrdiff_t y, ptrdiff_t rows) {
    if (IsBeyondKnown(task_.area)) touching_.Find(y, rows);
    inside_.Find(y, rows);
  }

  const Task<T>& task_;
  PointBox inner_;
  ptrdiff_t width_, height_;
  BoxedRows touching_, inside_;
};

}  // namespace qvp::warp
