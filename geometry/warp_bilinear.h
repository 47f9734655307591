// Source points by the inverse of a bilinear map.
#pragma once

#include "geometry/warp_points.h"

namespace qvp::warp {

// The inverse along a row of the destination. Of the point (u, v) that goes to (X, Y), with p = X - a3 and q = Y - b3,
// each coordinate is a root of a quadratic equation,
//
//   A v^2 + B v + C = 0,   A' u^2 + B' u + C' = 0,   A = a0 b2 - a2 b0,   A' = a0 b1 - a1 b0,   D = a1 b2 - a2 b1,
//   B = D - q a0 + p b0,   B' = B - 2 D,             C = p b1 - q a1,     C' = p b2 - q a2.
//
// Both have the discriminant R^2, R the Jacobian of the map at the point: positive where the map does not turn over.
// Of the two ways to write a root, that without a difference of like numbers is taken. Beyond the fold R is NaN.
class InverseRow {
 public:
  // `map` does not turn over; `y` is the row, or -y where `map` was turned over. Factors of 2 change no digit, so that
  // they stand where they cost nothing.
  InverseRow(const BilinearMap& map, double y) : a3_(map.c[0][3]) {
    const auto &a = map.c[0], &b = map.c[1];
    const double q = y - b[3], det = a[1] * b[2] - a[2] * b[1];
    const double ofV = a[0] * b[2] - a[2] * b[0], ofU = a[0] * b[1] - a[1] * b[0];
    b0_ = b[0], minusTwoB1_ = -2 * b[1], twoB2_ = 2 * b[2];
    first_ = det - q * a[0];
    minusTwoQA1_ = -2 * (q * a[1]), twoQA2_ = 2 * (q * a[2]);
    twoDet_ = det + det;
    twoA_ = 2 * ofV, minusTwoAU_ = -2 * ofU;
  }

  // Coordinates as quotients.
  template <class V>
  struct Quotients {
    V u, overU, v, overV;
  };

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE Quotients<V> At(D d, V x) const {
    const auto p = hn::Sub(x, hn::Set(d, a3_)), twoA = hn::Set(d, twoA_);
    const auto linear = hn::Add(hn::Set(d, first_), hn::Mul(p, hn::Set(d, b0_)));
    const auto linearU = hn::Sub(linear, hn::Set(d, twoDet_));
    const auto minusTwoC = hn::Sub(hn::Mul(p, hn::Set(d, minusTwoB1_)), hn::Set(d, minusTwoQA1_));
    const auto twoCU = hn::Sub(hn::Mul(p, hn::Set(d, twoB2_)), hn::Set(d, twoQA2_));
    const auto root = hn::Sqrt(hn::Add(hn::Mul(linear, linear), hn::Mul(twoA, minusTwoC)));
    const auto sum = hn::Add(root, hn::Abs(linear)), sumU = hn::Add(root, hn::Abs(linearU));
    const auto isRising = hn::Ge(linear, hn::Zero(d)), isRisingU = hn::Le(linearU, hn::Zero(d));
    return {hn::IfThenElse(isRisingU, twoCU, sumU), hn::IfThenElse(isRisingU, sumU, hn::Set(d, minusTwoAU_)),
            hn::IfThenElse(isRising, minusTwoC, sum), hn::IfThenElse(isRising, sum, twoA)};
  }

  template <class D>
  HWY_INLINE void Solve(D d, hn::Vec<D> x, hn::Vec<D>& u, hn::Vec<D>& v) const {
    const auto q = At(d, x);
    u = hn::Div(q.u, q.overU);
    v = hn::Div(q.v, q.overV);
  }

  // The same by one division for both, up to 2^-51 of a coordinate away.
  template <class D>
  HWY_INLINE void SolveAtOnce(D d, hn::Vec<D> x, hn::Vec<D>& u, hn::Vec<D>& v) const {
    const auto q = At(d, x);
    const auto factor = hn::Div(hn::Set(d, 1.0), hn::Mul(q.overU, q.overV));
    u = hn::Mul(hn::Mul(q.u, q.overV), factor);
    v = hn::Mul(hn::Mul(q.v, q.overU), factor);
  }

 private:
  double a3_, b0_, minusTwoB1_, twoB2_, first_, minusTwoQA1_, twoQA2_, twoDet_, twoA_, minusTwoAU_;
};

// A point up to this far outside of the image lies on its edge: rounding would lose whole rows of edge pixels.
inline constexpr double kEdgeTolerance = 1e-6;

// The last pixels of an image.
struct LastPixel {
  double u, v;

  template <class D>
  HWY_INLINE static hn::Vec<D> OnEdge(D d, hn::Vec<D> x, double last) {
    const auto edge = hn::Min(hn::Max(x, hn::Zero(d)), hn::Set(d, last));
    const auto isNear = hn::Le(hn::Abs(hn::Sub(x, edge)), hn::Set(d, kEdgeTolerance));
    return hn::IfThenElse(isNear, edge, x);
  }
  template <class D>
  HWY_INLINE void MoveToEdge(D d, hn::Vec<D>& x, hn::Vec<D>& y) const {
    x = OnEdge(d, x, u);
    y = OnEdge(d, y, v);
  }
};

struct BilinearPoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = true, kIsLong = true;
  InverseRow row;
  LastPixel last;
  Columns columns;

  BilinearPoints(const Record& record, ptrdiff_t x, ptrdiff_t y)
      : row(record.solved, record.side * static_cast<double>(y)),
        last{record.sourceWidth - 1.0, record.sourceHeight - 1.0},
        columns{static_cast<double>(x)} {}

  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t, int32_t, int32_t*) const {
    return false;
  }

  ptrdiff_t MostAtOnce() const { return kBlock; }

  BilinearPoints From(ptrdiff_t x) const {
    BilinearPoints points(*this);
    points.columns.first += static_cast<double>(x);
    return points;
  }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    row.Solve(d, columns.Load(d, i), x, y);
    last.MoveToEdge(d, x, y);
  }

  // The box is part of the image.
  template <bool kIsTested, class D>
  HWY_INLINE hn::Mask<D> LoadQuick(D d, ptrdiff_t i, const PointBox& box, hn::Vec<D>& x, hn::Vec<D>& y) const {
    row.SolveAtOnce(d, columns.Load(d, i), x, y);
    return IsIn(d, box, x, y);
  }
};

// Points of a quadrangle in another one. Elsewhere there is no coordinate, but NaN, and pixels are left alone.
struct QuadPoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = false, kIsLong = true;
  static constexpr double kTolerance = 1e-9;  // of the square between the quadrangles
  BilinearPoints square;                      // points of it
  const BilinearMap* toSource;

  QuadPoints(const Record& record, ptrdiff_t x, ptrdiff_t y) : square(record, x, y), toSource(&record.toSource) {}

  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t, int32_t, int32_t*) const {
    return false;
  }

  ptrdiff_t MostAtOnce() const { return kBlock; }

  QuadPoints From(ptrdiff_t x) const {
    QuadPoints points(*this);
    points.square = square.From(x);
    return points;
  }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    constexpr PointBox kWritten{{-kTolerance, 1 + kTolerance}, {-kTolerance, 1 + kTolerance}};
    const auto zero = hn::Zero(d), one = hn::Set(d, 1.0);
    hn::Vec<D> s, t;
    square.row.Solve(d, square.columns.Load(d, i), s, t);
    const auto isWritten = IsIn(d, kWritten, s, t);
    FromSquare(d, hn::Min(hn::Max(s, zero), one), hn::Min(hn::Max(t, zero), one), x, y);
    square.last.MoveToEdge(d, x, y);
    x = hn::IfThenElse(isWritten, x, hn::NaN(d));
    y = hn::IfThenElse(isWritten, y, hn::NaN(d));
  }

  // The box is part of the square. Points that are not tested are within the image, so that none moves to its edge.
  template <bool kIsTested, class D>
  HWY_INLINE hn::Mask<D> LoadQuick(D d, ptrdiff_t i, const PointBox& box, hn::Vec<D>& x, hn::Vec<D>& y) const {
    hn::Vec<D> s, t;
    square.row.SolveAtOnce(d, square.columns.Load(d, i), s, t);
    FromSquare(d, s, t, x, y);
    if constexpr (kIsTested) square.last.MoveToEdge(d, x, y);
    return IsIn(d, box, s, t);
  }

 private:
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE void FromSquare(D d, V s, V t, V& x, V& y) const {
    const auto at = [&](const double(&e)[4]) HWY_ATTR {
      const auto slope = hn::Add(hn::Mul(hn::Set(d, e[0]), t), hn::Set(d, e[1]));
      return hn::Add(hn::Add(hn::Mul(slope, s), hn::Mul(hn::Set(d, e[2]), t)), hn::Set(d, e[3]));
    };
    x = at(toSource->c[0]);
    y = at(toSource->c[1]);
  }
};

}  // namespace qvp::warp
