// Tiles of warps, row by row, and what is sampled for them.
#pragma once

#include "geometry/warp_anchors.h"
#include "geometry/warp_outline.h"
#include "geometry/warp_passes.h"
#include "geometry/warp_row_spans.h"
#include "geometry/warp_rows.h"

namespace qvp::warp {

// ---- What is sampled

// How far a method reads over the sides that are in memory.
constexpr int ReachOf(QvpiInterpolationType interpolation) { return TapsOf(interpolation) / 2; }

// The kind applies outside of the image enlarged by its sides in memory. Where it is transparent, or none, points of
// the enlarged image have a value.
inline Area AreaOf(const Record& record) {
  const int reach = ReachOf(record.interpolation);
  const BorderKind kind = KindOf(record.border);
  Area area;
  area.columns = EffectiveColumns(record.border, record.sourceWidth, reach, reach);
  area.rows = EffectiveRows(record.border, record.sourceHeight, reach, reach);
  area.kind = kind == BorderKind::kConst ? BorderKind::kConst : BorderKind::kReplicate;
  area.isBounded = kind == BorderKind::kTransparent || kind == BorderKind::kInMemory;
  area.isSmooth = record.isSmooth != 0;
  area.SetBounds(area.columns, area.rows);
  return area;
}

template <int kTaps, class T>
Task<T> TaskOf(const Call<T>& call, const Record& record) {
  Task<T> task{call.src, AreaOf(record), {}, {record.cubicB, record.cubicC}, record.isShift != 0, {}};
  for (int i = 0; i < 4; ++i) task.constant[i] = ToElement<T>(record.borderValue[i]);
  task.SetInterior(kTaps);
  return task;
}

// ---- Tiles

// Points are in double precision where nothing else would be exact.
template <int kTaps, class T>
constexpr bool kIsExact = kTaps == 1 || std::is_same_v<T, double>;

// With what the rows that follow will take fetched ahead.
template <int kTaps, class T>
Task<T> AffineTaskOf(const Call<T>& call, const Record& record, Size size) {
  Task<T> task = TaskOf<kTaps>(call, record);
  const ptrdiff_t middle = call.x + size.width / 2;
  const auto down = [&](int i) {
    return (record.twist[i] * static_cast<double>(middle) + record.c[i][1]) * kRowsAhead;
  };
  task.FetchAhead(down(0), down(1));
  return task;
}

// Rows of affine transforms, and of bilinear ones to the source, which are affine on each row.
template <int kTaps, class T>
class AffineTile {
 public:
  AffineTile(const Call<T>& call, const Record& record, Size size)
      : call_(call),
        record_(record),
        width_(size.width),
        task_(AffineTaskOf<kTaps>(call, record, size)),
        rimmed_(task_, kTaps),
        sources_(rimmed_.sources(task_)),
        spans_(record, task_, SafeBox(rimmed_.InnerBox(kTaps)), call.x, size),
        fixedSteps_(IsPlaced() ? size.width : 0) {}

  void Warp(ptrdiff_t height) {
    if constexpr (kTaps == 1) {
      if (IsPlaced() && rimmed_.isCopy() && !task_.area.isBounded) return MoveNearest(height);
    }
    for (ptrdiff_t y = 0; y < height; ++y) {
      if constexpr (kIsExact<kTaps, T>) {
        WarpExactly(y, PointsOf(y));
      } else {
        WarpByAnchors(y, PointsOf(y));
      }
    }
  }

 private:
  bool IsPlaced() const { return kTaps == 1 && !task_.isShift; }
  AffinePoints PointsOf(ptrdiff_t y) const { return {record_, call_.x, call_.y + y}; }
  Spans SpansOf(ptrdiff_t y, const AffinePoints& points) { return spans_.At(y, call_.y + y, points); }
  void Place(AffinePoints& points) {
    if (fixedSteps_.Set(points.u.a, points.v.a)) points.steps = &fixedSteps_;
  }

  // In a copy all points have a nearest pixel, moved to the rim where they are farther outside, so that none is told
  // from others.
  void MoveNearest(ptrdiff_t height) {
    const PixelBox box(task_.area, 1);
    for (ptrdiff_t y = 0; y < height; ++y) {
      AffinePoints points = PointsOf(y);
      Place(points);
      SampleInterior<1>(sources_.inside, MovedAffinePoints{points, box}, {0, width_}, call_.dst.Row(y));
    }
  }

  void WarpExactly(ptrdiff_t y, AffinePoints points) {
    if (IsPlaced()) Place(points);
    WarpRow<kTaps>(sources_, SpansOf(y, points), points, points, width_, call_.dst.Row(y));
  }

  void WarpByAnchors(ptrdiff_t y, const AffinePoints& points) {
    T* const row = call_.dst.Row(y);
    const Spans spans = SpansOf(y, points);
    anchorSteps_.Set(points.u.a, points.v.a);
    if (!anchorSteps_.IsUsableFor(points, record_.width)) {
      return SampleTested<kTaps>(sources_, points, 0, width_, row);
    }
    const AnchoredPoints anchored(points, anchorSteps_, call_.x);
    WarpRow<kTaps>(sources_, spans, TestedPoints{points, anchored, &task_.area}, anchored, width_, row);
  }

  const Call<T>& call_;
  const Record& record_;
  ptrdiff_t width_;
  Task<T> task_;
  Rimmed<T> rimmed_;
  Sources<T> sources_;
  RowSpans<kTaps, T> spans_;
  FixedSteps fixedSteps_;
  AnchorSteps anchorSteps_;
};

template <int kTaps, class T>
HWY_NOINLINE void WarpAffineTile(const Call<T>& call, const Record& record, Size size) {
  AffineTile<kTaps, T>(call, record, size).Warp(size.height);
}

// From a point of a row to the one that many rows below it.
template <class T>
void FetchBelow(Task<T>& task, const Record& record, const PerspectivePoints& points, ptrdiff_t x, ptrdiff_t y) {
  const PerspectivePoints below(record, static_cast<ptrdiff_t>(points.affine.columns.first), y + kRowsAhead);
  const auto here = points.At(x), there = below.At(x);
  task.FetchAhead(there[0] - here[0], there[1] - here[1]);
}

// A row by points that take some roundings more inside of a box, where they need not be exact.
template <int kTaps, class T, class Points>
void WarpQuickly(const Sources<T>& sources, const Spans& spans, const PointBox& box, const Points& points,
                 ptrdiff_t width, T* row) {
  if constexpr (kIsExact<kTaps, T>) {
    WarpRow<kTaps>(sources, spans, points, points, width, row);
  } else {
    const QuickPoints<Points, false> interior{points, &box};
    const QuickPoints<Points, true> tested{points, &box};
    WarpRow<kTaps>(sources, spans, tested, interior, width, row);
  }
}

// The columns of a perspective that are all in the inner box; any may touch the image.
inline Spans SpansOf(const PerspectivePoints& points, const PointBox& inner, ptrdiff_t width) {
  const Span inside = points.Inside(inner, width);
  const bool isInside =
      inside.first < inside.end && points.From(inside.first).AreAllIn(inner, inside.end - inside.first);
  return {{0, width}, isInside ? inside : Span{width, width}};
}

template <int kTaps, class T>
HWY_NOINLINE void WarpPerspectiveTile(const Call<T>& call, const Record& record, Size size) {
  const Task<T> task = TaskOf<kTaps>(call, record);
  Rimmed<T> rimmed(task, kTaps);
  const Sources<T> sources = rimmed.sources(task);
  const PointBox inner = SafeBox(rimmed.InnerBox(kTaps));
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    const PerspectivePoints points(record, call.x, call.y + y);
    Spans spans{{0, size.width}, {size.width, size.width}};
    if (!rimmed.isCopy()) {
      FetchBelow(rimmed.task(), record, points, size.width / 2, call.y + y);
      spans = SpansOf(points, inner, size.width);
    }
    WarpQuickly<kTaps>(sources, spans, inner, points, size.width, call.dst.Row(y));
  }
}

// The box within the image proper, beyond which points may move to its edge.
inline PointBox WithinImage(const PointBox& box, const Record& record) {
  const double right = record.sourceWidth - 1.0, bottom = record.sourceHeight - 1.0;
  return {{std::max(box.u.low, 0.0), std::min(box.u.high, right)},
          {std::max(box.v.low, 0.0), std::min(box.v.high, bottom)}};
}

inline PointBox WithRim(const PointBox& box, double rim) {
  return {{box.u.low - rim, box.u.high + rim}, {box.v.low - rim, box.v.high + rim}};
}

// Of a copy, a few tested points more cost less than parts of a row that are worked on by themselves.
inline Spans AsOne(const Spans& spans) {
  const bool isOnlyInside = spans.inside.first == spans.touching.first && spans.inside.end == spans.touching.end;
  return isOnlyInside ? spans : Spans{spans.touching, {spans.touching.end, spans.touching.end}};
}

template <int kTaps, class T>
HWY_NOINLINE void WarpBilinearTile(const Call<T>& call, const Record& record, Size size) {
  constexpr double kRim = 1.0 / (1 << 10);  // more than the tolerance at the edge
  const Task<T> task = TaskOf<kTaps>(call, record);
  Rimmed<T> rimmed(task, kTaps);
  const Sources<T> sources = rimmed.sources(task);
  const PointBox inner = SafeBox(WithinImage(rimmed.InnerBox(kTaps), record));
  const Outlines outlines(record, WithRim(TouchingBox<kTaps>(task.area), kRim), kRim, inner);
  const bool isBeyondKnown = IsBeyondKnown(task.area);
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    Spans spans = outlines.At(call.x, call.y + y, size.width);
    if (!isBeyondKnown) spans.touching = {0, size.width};
    if (rimmed.isCopy()) spans = AsOne(spans);
    WarpQuickly<kTaps>(sources, spans, inner, BilinearPoints(record, call.x, call.y + y), size.width, call.dst.Row(y));
  }
}

// A part of the square between two quadrangles whose points have all taps, if one is found: the image of a part is
// convex, so that its corners tell.
inline PointBox InnerSquare(const BilinearMap& toSource, const PointBox& inner) {
  constexpr double kFar = 1 << 24;  // where rounding would lead points out of the box
  const auto isIn = [&](Vertex p) { return inner.u.Contains(p.x) && inner.v.Contains(p.y); };
  const auto isNear = [&](double x) { return std::fabs(x) < kFar; };
  if (!std::all_of(&toSource.c[0][0], &toSource.c[0][0] + 8, isNear)) return {};
  for (double inset = kSafeRim; inset < 0.25; inset = 2 * inset + 1.0 / 4096) {
    const Quadrangle part = toSource(Quadrangle(inset, inset, 1 - inset, 1 - inset));
    if (std::all_of(part.at, part.at + 4, isIn)) return {{inset, 1 - inset}, {inset, 1 - inset}};
  }
  return {};
}

// Only the quadrangle is written.
template <int kTaps, class T>
HWY_NOINLINE void WarpBilinearQuadTile(const Call<T>& call, const Record& record, Size size) {
  constexpr double kRim = 10 * QuadPoints::kTolerance;
  constexpr PointBox kSquare{{0, 1}, {0, 1}};
  const Task<T> task = TaskOf<kTaps>(call, record);
  Rimmed<T> rimmed(task, kTaps);
  const Sources<T> sources = rimmed.sources(task);
  const PointBox quick = SafeBox(kSquare), within = SafeBox(WithinImage(rimmed.InnerBox(kTaps), record));
  const PointBox inner = InnerSquare(record.toSource, within);
  const Outlines outlines(record, WithRim(kSquare, kRim), kRim, inner);
  const Span rows = outlines.Rows(call.y, size.height);
  for (ptrdiff_t y = rows.first; y < rows.end; ++y) {
    const Spans spans = outlines.At(call.x, call.y + y, size.width);
    WarpQuickly<kTaps>(sources, rimmed.isCopy() ? AsOne(spans) : spans, quick, QuadPoints(record, call.x, call.y + y),
                       size.width, call.dst.Row(y));
  }
}

// The tiles are functions of their own, as each has a copy on the stack.
template <int kTaps, class T>
void WarpTile(const Call<T>& call, const Record& record, Size size) {
  if (record.isShift) {  // whole pixels are moved as the nearest ones, whatever the method
    if constexpr (kTaps == 1) return WarpAffineTile<1>(call, record, size);
    return WarpTile<1>(call, record, size);
  }
  switch (record.kind) {
    case Kind::kPerspective: return WarpPerspectiveTile<kTaps>(call, record, size);
    case Kind::kBilinear: return WarpBilinearTile<kTaps>(call, record, size);
    case Kind::kBilinearQuad: return WarpBilinearQuadTile<kTaps>(call, record, size);
    default: return WarpAffineTile<kTaps>(call, record, size);
  }
}

}  // namespace qvp::warp
