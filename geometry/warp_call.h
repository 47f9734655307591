// What all warp calls share: their checks, the coordinates of pixels, and the walk over blocks.
#pragma once

#include "geometry/sampler.h"
#include "geometry/warp_anchors.h"

namespace qvp {

template <class T>
struct WarpCall {
  Image<const T> src;
  Image<T> dst;
  ptrdiff_t x, y;  // of the tile's first pixel
  Size size;
  const QvpiWarpSpec* spec;
  const uint8_t* buffer;
  WarpKind kind;
  WarpForm form;
};

template <class T>
constexpr QvpDataType TypeOf() {
  if (std::is_same_v<T, uint8_t>) return qvp8u;
  if (std::is_same_v<T, uint16_t>) return qvp16u;
  if (std::is_same_v<T, int16_t>) return qvp16s;
  return std::is_same_v<T, float> ? qvp32f : qvp64f;
}

template <class T>
QvpStatus CheckWarp(const WarpCall<T>& call, QvpiInterpolationType interpolation) {
  const WarpRecord* record = call.spec ? RecordOf(call.spec) : nullptr;
  if (record && !IsOf(call.form, record)) return qvpStatusContextMatch;
  if (!call.src.data || !call.dst.data || !call.spec || !call.buffer) return qvpStatusNullPointer;
  if (call.size.width == 0 || call.size.height == 0) return qvpStatusNoOperation;
  if (call.size.width < 1 || call.size.height < 1) return qvpStatusSize;
  constexpr ptrdiff_t kElement = sizeof(T);
  if (call.src.step % kElement != 0 || call.dst.step % kElement != 0) return qvpStatusStep;
  if (call.x < 0 || call.y < 0 || call.x >= record->width || call.y >= record->height) return qvpStatusOutOfRange;
  const bool isMeant = record->kind == call.kind && record->interpolation == interpolation &&
                       record->type == TypeOf<T>() && record->channels == Channels(call.src.layout);
  return isMeant ? qvpStatusNoError : qvpStatusContextMatch;
}

// How far a method reads over the sides that are in memory.
constexpr int ReachOf(QvpiInterpolationType interpolation) {
  return interpolation == qvpInterpolationNearest ? 0 : interpolation == qvpInterpolationLinear ? 1 : 2;
}

// The kind applies outside of the image enlarged by its sides in memory. Where it is transparent, or none, points of
// the enlarged image have a value.
inline SampleArea AreaOf(const WarpRecord& record) {
  const int reach = ReachOf(record.interpolation);
  const BorderKind kind = KindOf(record.border);
  SampleArea area;
  area.columns = EffectiveColumns(record.border, record.sourceWidth, reach, reach);
  area.rows = EffectiveRows(record.border, record.sourceHeight, reach, reach);
  area.kind = kind == BorderKind::kConst ? BorderKind::kConst : BorderKind::kReplicate;
  area.isBounded = kind == BorderKind::kTransparent || kind == BorderKind::kInMemory;
  area.isSmooth = record.isSmooth != 0;
  area.left = static_cast<double>(area.columns.begin), area.right = static_cast<double>(area.columns.end - 1);
  area.top = static_cast<double>(area.rows.begin), area.bottom = static_cast<double>(area.rows.end - 1);
  return area;
}

template <class T>
SampleTask<T> TaskOf(const WarpCall<T>& call, const WarpRecord& record) {
  SampleTask<T> task{call.src, AreaOf(record), {}, record.b, record.c2, record.isShift != 0, {}};
  for (int i = 0; i < 4; ++i) task.constant[i] = ToElement<T>(record.borderValue[i]);
  return task;
}

// Points whose kind is not known.
template <int kTaps, class T, class Points>
void SampleAny(const SampleTask<T>& task, const Points& points, ptrdiff_t first, ptrdiff_t end, T* row) {
  const int channels = Channels(task.src.layout);
  double u[kBlock], v[kBlock];
  for (ptrdiff_t x = first; x < end; x += kBlock) {
    const ptrdiff_t n = std::min<ptrdiff_t>(end - x, kBlock);
    Locate(points.From(x), n, u, v);
    Sample<kTaps>(task, u, v, n, row + x * channels);
  }
}

// Interior points in blocks.
template <int kTaps, class T, class Points>
void SampleSpan(const SampleTask<T>& task, const Points& points, const Span& span, T* row) {
  for (ptrdiff_t x = span.first, n; x < span.end; x += n) {
    const auto from = points.From(x);
    n = std::min<ptrdiff_t>(span.end - x, from.MostAtOnce());
    SampleInside<kTaps>(task, from, n, row + x * Channels(task.src.layout));
  }
}

// A row of a perspective warp: points of any kind, `certain` ones that are all in the inner box, and any again.
template <int kTaps, class T, class Certain, class Any>
void TiltRow(const SampleTask<T>& task, const PointBox& inner, const PerspectivePoints& points, const Certain& certain,
             const Any& any, ptrdiff_t width, T* row) {
  Span span = points.Inside(inner, width);
  const bool isEmpty = span.first >= span.end || task.interior.u.IsEmpty();
  if (isEmpty || !points.From(span.first).AreAllIn(inner, span.end - span.first)) span = {width, width};
  SampleAny<kTaps>(task, any, 0, span.first, row);
  SampleSpan<kTaps>(task, certain, span, row);
  SampleAny<kTaps>(task, any, span.end, width, row);
}

// A row of an affine warp: pixels beyond the image, pixels at its border, pixels inside, and these in turn. Those in
// the inner box are at `insidePoints`, wherever a tile begins.
template <int kTaps, class T, class Points>
void WarpRow(const SampleTask<T>& task, const PointBox& inner, const AffinePoints& points, const Points& insidePoints,
             ptrdiff_t width, T* row) {
  const int channels = Channels(task.src.layout);
  const Spans spans = SpansOf<kTaps>(task, inner, points, width);
  FillBeyond(task, spans.touching.first, row);
  SampleAny<kTaps>(task, points, spans.touching.first, spans.inside.first, row);
  if (task.interior.u.IsEmpty()) {
    SampleAny<kTaps>(task, insidePoints, spans.inside.first, spans.inside.end, row);
  } else {
    SampleSpan<kTaps>(task, insidePoints, spans.inside, row);
  }
  SampleAny<kTaps>(task, points, spans.inside.end, spans.touching.end, row);
  FillBeyond(task, width - spans.touching.end, row + spans.touching.end * channels);
}

template <int kTaps, class T>
void WarpTile(const WarpCall<T>& call, const WarpRecord& record, ptrdiff_t width, ptrdiff_t height) {
  constexpr bool kIsExact = kTaps == 1 || std::is_same_v<T, double>;
  SampleTask<T> task = TaskOf(call, record);
  task.SetInterior(kTaps);
  const PointBox inner = SafeBox(task.InnerBox(kTaps));
  const FixedSteps steps(record, kTaps == 1 && !task.isShift ? width : 0);
  const FixedSteps* usable = kTaps == 1 && !task.isShift && steps.IsUsable() ? &steps : nullptr;
  const AnchorSteps anchorSteps(record);
  task.FetchAhead(record.c[0][1] * kRowsAhead, record.c[1][1] * kRowsAhead);
  for (ptrdiff_t y = 0; y < height; ++y) {
    T* row = call.dst.Row(y);
    const AffinePoints points(record, call.x, call.y + y, usable);
    if (record.kind == WarpKind::kPerspective) {
      const PerspectivePoints tilted(record, call.x, call.y + y);
      const PerspectivePoints below(record, call.x, call.y + y + kRowsAhead);
      const auto here = tilted.At(width / 2), there = below.At(width / 2);
      task.FetchAhead(there[0] - here[0], there[1] - here[1]);
      if constexpr (kIsExact) {
        TiltRow<kTaps>(task, inner, tilted, tilted, tilted, width, row);
      } else {
        const QuotientPoints<false> certain{tilted, &inner};
        const QuotientPoints<true> any{tilted, &inner};
        TiltRow<kTaps>(task, inner, tilted, certain, any, width, row);
      }
    } else if constexpr (kIsExact) {
      WarpRow<kTaps>(task, inner, points, points, width, row);
    } else if (anchorSteps.IsUsableFor(points, record.width)) {
      WarpRow<kTaps>(task, inner, points, AnchoredPoints(points, anchorSteps, call.x), width, row);
    } else {
      SampleAny<kTaps>(task, points, 0, width, row);
    }
  }
}

template <int kTaps, class T>
QvpStatus Warp(const WarpCall<T>& call) {
  constexpr QvpiInterpolationType kMethod = kTaps == 1   ? qvpInterpolationNearest
                                            : kTaps == 2 ? qvpInterpolationLinear
                                                         : qvpInterpolationCubic;
  if (const QvpStatus failed = CheckWarp(call, kMethod)) return failed;
  const WarpRecord& record = *RecordOf(call.spec);
  const ptrdiff_t width = std::min<ptrdiff_t>(call.size.width, record.width - call.x);
  const ptrdiff_t height = std::min<ptrdiff_t>(call.size.height, record.height - call.y);
  if (record.isShift) {
    WarpTile<1>(call, record, width, height);
  } else {
    WarpTile<kTaps>(call, record, width, height);
  }
  return width < call.size.width || height < call.size.height ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace qvp

#define QVP_WARP_CALL(Kind, type, layout, form)                                                             \
  WarpCall<Qvp##type> {                                                                                     \
    {pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, dstRoiOffset.x, dstRoiOffset.y, \
        dstRoiSize, pSpec, pBuffer, WarpKind::k##Kind, form                                                 \
  }
#define QVP_WARP_LAYOUT(Kind, Method, taps, type, layout)                                                           \
  QvpStatus qvpiWarp##Kind##Method##_##type##_##layout##R(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst,      \
                                                          int dstStep, QvpiPoint dstRoiOffset, QvpiSize dstRoiSize, \
                                                          const QvpiWarpSpec* pSpec, Qvp8u* pBuffer) {              \
    return Warp<taps>(QVP_WARP_CALL(Kind, type, layout, WarpForm::kPlain));                                         \
  }                                                                                                                 \
  QvpStatus qvpiWarp##Kind##Method##_##type##_##layout##R_L(                                                        \
      const Qvp##type* pSrc, QvpSizeL srcStep, Qvp##type* pDst, QvpSizeL dstStep, QvpiPointL dstRoiOffset,          \
      QvpiSizeL dstRoiSize, const QvpiWarpSpec* pSpec, Qvp8u* pBuffer) {                                            \
    return Warp<taps>(QVP_WARP_CALL(Kind, type, layout, WarpForm::kWide));                                          \
  }
#define QVP_WARP_TYPE(Method, taps, type)              \
  QVP_WARP_LAYOUT(Affine, Method, taps, type, C1)      \
  QVP_WARP_LAYOUT(Affine, Method, taps, type, C3)      \
  QVP_WARP_LAYOUT(Affine, Method, taps, type, C4)      \
  QVP_WARP_LAYOUT(Perspective, Method, taps, type, C1) \
  QVP_WARP_LAYOUT(Perspective, Method, taps, type, C3) \
  QVP_WARP_LAYOUT(Perspective, Method, taps, type, C4)
#define QVP_WARP(Method, taps)     \
  QVP_WARP_TYPE(Method, taps, 8u)  \
  QVP_WARP_TYPE(Method, taps, 16u) \
  QVP_WARP_TYPE(Method, taps, 16s) \
  QVP_WARP_TYPE(Method, taps, 32f) \
  QVP_WARP_TYPE(Method, taps, 64f)
