// What all warp calls share: their checks, and the walk over rows and blocks.
#pragma once

#include "base/types.h"
#include "geometry/sampler.h"
#include "geometry/warp_anchors.h"
#include "geometry/warp_spans.h"

namespace qvp::warp {

template <class T>
struct Call {
  Image<const T> src;
  Image<T> dst;
  ptrdiff_t x, y;  // of the tile's first pixel
  Size size;
  const QvpiWarpSpec* spec;
  const uint8_t* buffer;
  Kind kind;
  Form form;
};

template <class T>
QvpStatus Check(const Call<T>& call, QvpiInterpolationType interpolation) {
  const Record* record = call.spec ? RecordOf(call.spec) : nullptr;
  if (record && !IsOf(call.form, record)) return qvpStatusContextMatch;
  if (!call.src.data || !call.dst.data || !call.spec || !call.buffer) return qvpStatusNullPointer;
  if (call.size.width == 0 || call.size.height == 0) return qvpStatusNoOperation;
  if (call.size.width < 1 || call.size.height < 1) return qvpStatusSize;
  constexpr ptrdiff_t kElement = sizeof(T);
  if (call.src.step % kElement != 0 || call.dst.step % kElement != 0) return qvpStatusStep;
  if (call.x < 0 || call.y < 0 || call.x >= record->width || call.y >= record->height) return qvpStatusOutOfRange;
  const bool isMeant = record->kind == call.kind && record->interpolation == interpolation &&
                       record->type == DataTypeOf<T>() && record->channels == Channels(call.src.layout);
  return isMeant ? qvpStatusNoError : qvpStatusContextMatch;
}

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

// ---- Rows

// Points that need a test.
template <int kTaps, class T, class Points>
void SampleTested(const Task<T>& task, const Points& points, ptrdiff_t first, ptrdiff_t end, T* row) {
  const int channels = Channels(task.src.layout);
  double u[kBlock], v[kBlock];
  for (ptrdiff_t x = first; x < end; x += kBlock) {
    const ptrdiff_t n = std::min<ptrdiff_t>(end - x, kBlock);
    StoreCoordinates(points.From(x), n, u, v);
    Sample<kTaps>(task, u, v, n, row + x * channels);
  }
}

// Interior points.
template <int kTaps, class T, class Points>
void SampleInterior(const Task<T>& task, const Points& points, const Span& span, T* row) {
  for (ptrdiff_t x = span.first, n; x < span.end; x += n) {
    const auto from = points.From(x);
    n = std::min<ptrdiff_t>(span.end - x, from.MostAtOnce());
    SampleInside<kTaps>(task, from, n, row + x * Channels(task.src.layout));
  }
}

// A row of an affine warp: pixels beyond the image, pixels at its border, pixels inside, and these in turn. Those in
// the inner box are at `innerPoints`, wherever a tile begins.
template <int kTaps, class T, class Points>
void WarpAffineRow(const Task<T>& task, const PointBox& inner, const AffinePoints& points, const Points& innerPoints,
                   ptrdiff_t width, T* row) {
  const int channels = Channels(task.src.layout);
  const Spans spans = SpansOf<kTaps>(task, inner, points, width);
  FillBeyond(task, spans.touching.first, row);
  SampleTested<kTaps>(task, points, spans.touching.first, spans.inside.first, row);
  if (task.interior.u.IsEmpty()) {
    SampleTested<kTaps>(task, innerPoints, spans.inside.first, spans.inside.end, row);
  } else {
    SampleInterior<kTaps>(task, innerPoints, spans.inside, row);
  }
  SampleTested<kTaps>(task, points, spans.inside.end, spans.touching.end, row);
  FillBeyond(task, width - spans.touching.end, row + spans.touching.end * channels);
}

// A row of a perspective warp: points that need a test, `interior` ones, for points that are all in the inner box, and
// tested ones again.
template <int kTaps, class T, class Interior, class Tested>
void WarpPerspectiveRow(const Task<T>& task, const PointBox& inner, const PerspectivePoints& points,
                        const Interior& interior, const Tested& tested, ptrdiff_t width, T* row) {
  Span span = points.Inside(inner, width);
  const bool isEmpty = span.first >= span.end || task.interior.u.IsEmpty();
  if (isEmpty || !points.From(span.first).AreAllIn(inner, span.end - span.first)) span = {width, width};
  SampleTested<kTaps>(task, tested, 0, span.first, row);
  SampleInterior<kTaps>(task, interior, span, row);
  SampleTested<kTaps>(task, tested, span.end, width, row);
}

// ---- Tiles

// Points are in double precision where nothing else would be exact.
template <int kTaps, class T>
constexpr bool kIsExact = kTaps == 1 || std::is_same_v<T, double>;

template <int kTaps, class T>
void WarpAffineTile(const Call<T>& call, const Record& record, Size size) {
  Task<T> task = TaskOf<kTaps>(call, record);
  const PointBox inner = SafeBox(task.InnerBox(kTaps));
  const bool isPlaced = kTaps == 1 && !task.isShift;
  const FixedSteps fixedSteps(record, isPlaced ? size.width : 0);
  const AnchorSteps anchorSteps(record);
  task.FetchAhead(record.c[0][1] * kRowsAhead, record.c[1][1] * kRowsAhead);
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    T* row = call.dst.Row(y);
    const AffinePoints points(record, call.x, call.y + y, isPlaced && fixedSteps.IsUsable() ? &fixedSteps : nullptr);
    if constexpr (kIsExact<kTaps, T>) {
      WarpAffineRow<kTaps>(task, inner, points, points, size.width, row);
    } else if (anchorSteps.IsUsableFor(points, record.width)) {
      WarpAffineRow<kTaps>(task, inner, points, AnchoredPoints(points, anchorSteps, call.x), size.width, row);
    } else {
      SampleTested<kTaps>(task, points, 0, size.width, row);
    }
  }
}

// From a point of a row to the one that many rows below it.
template <class T>
void FetchBelow(Task<T>& task, const Record& record, const PerspectivePoints& points, ptrdiff_t x, ptrdiff_t y) {
  const PerspectivePoints below(record, static_cast<ptrdiff_t>(points.affine.columns.first), y + kRowsAhead);
  const auto here = points.At(x), there = below.At(x);
  task.FetchAhead(there[0] - here[0], there[1] - here[1]);
}

template <int kTaps, class T>
void WarpPerspectiveTile(const Call<T>& call, const Record& record, Size size) {
  Task<T> task = TaskOf<kTaps>(call, record);
  const PointBox inner = SafeBox(task.InnerBox(kTaps));
  for (ptrdiff_t y = 0; y < size.height; ++y) {
    T* row = call.dst.Row(y);
    const PerspectivePoints points(record, call.x, call.y + y);
    FetchBelow(task, record, points, size.width / 2, call.y + y);
    if constexpr (kIsExact<kTaps, T>) {
      WarpPerspectiveRow<kTaps>(task, inner, points, points, points, size.width, row);
    } else {
      const QuotientPoints<false> interior{points, &inner};
      const QuotientPoints<true> tested{points, &inner};
      WarpPerspectiveRow<kTaps>(task, inner, points, interior, tested, size.width, row);
    }
  }
}

// Whole pixels are moved as the nearest ones, whatever the method.
template <int kTaps, class T>
void WarpTile(const Call<T>& call, const Record& record, Size size) {
  if (record.kind == Kind::kPerspective) return WarpPerspectiveTile<kTaps>(call, record, size);
  if (record.isShift) return WarpAffineTile<1>(call, record, size);
  WarpAffineTile<kTaps>(call, record, size);
}

template <QvpiInterpolationType kMethod, class T>
QvpStatus Warp(const Call<T>& call) {
  if (const QvpStatus failed = Check(call, kMethod)) return failed;
  const Record& record = *RecordOf(call.spec);
  const Size size(std::min<ptrdiff_t>(call.size.width, record.width - call.x),
                  std::min<ptrdiff_t>(call.size.height, record.height - call.y));
  WarpTile<TapsOf(kMethod)>(call, record, size);
  const bool isClipped = size.width < call.size.width || size.height < call.size.height;
  return isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace qvp::warp

// Each function twice: SUFFIX is empty or `_L`, Width empty or the letter behind the types of points and sizes.
#define QVP_WARP(Kind_, Method, type, layout, SUFFIX, Step, Width, form)                                    \
  QvpStatus qvpiWarp##Kind_##Method##_##type##_##layout##R##SUFFIX(                                         \
      const Qvp##type* pSrc, Step srcStep, Qvp##type* pDst, Step dstStep, QvpiPoint##Width dstRoiOffset,    \
      QvpiSize##Width dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer) {                              \
    return Warp<qvpInterpolation##Method>(                                                                  \
        Call<Qvp##type>{View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout),     \
                        dstRoiOffset.x, dstRoiOffset.y, dstRoiSize, pSpec, pBuffer, Kind::k##Kind_, form}); \
  }
#define QVP_WARP_LAYOUT(Kind_, Method, type, layout)           \
  QVP_WARP(Kind_, Method, type, layout, , int, , Form::kPlain) \
  QVP_WARP(Kind_, Method, type, layout, _L, QvpSizeL, L, Form::kWide)
#define QVP_WARP_TYPE(Method, type)                   \
  QVP_C1_C3_C4(QVP_WARP_LAYOUT, Affine, Method, type) \
  QVP_C1_C3_C4(QVP_WARP_LAYOUT, Perspective, Method, type)
#define QVP_WARP_TYPES(Method) \
  QVP_WARP_TYPE(Method, 8u)    \
  QVP_WARP_TYPE(Method, 16u)   \
  QVP_WARP_TYPE(Method, 16s)   \
  QVP_WARP_TYPE(Method, 32f)   \
  QVP_WARP_TYPE(Method, 64f)
