// What all resize calls share: their checks, the tile, and where pixels beyond the edges come from.
#pragma once

#include <algorithm>

#include "base/border.h"
#include "base/export.h"
#include "base/image.h"
#include "geometry/resize_record.h"

namespace qvp::resize {

template <class T>
struct ResizeCall {
  Image<const T> src;
  Image<T> dst;
  Point offset;
  Size size;
  const QvpiResizeSpec* spec;
  uint8_t* buffer;
  ResizeForm form;
  QvpiBorderType border = qvpBorderInMem;  // that of methods which need none
};

// The record that a function takes.
struct ResizeDemand {
  QvpiInterpolationType interpolation;  // or 0 for any that can be antialiased
  bool isAntialiasing = false;
  bool refusesFixed = false, refusesDouble = false;  // weights, in the `_L` form
};

inline bool IsRefused(const ResizeDemand& demand, ResizeForm form, WeightKind weights) {
  if (form == ResizeForm::kPlain) return false;
  return (demand.refusesFixed && weights == WeightKind::kFixed) ||
         (demand.refusesDouble && weights == WeightKind::kDouble);
}

inline bool IsTaken(const ResizeDemand& demand, const ResizeRecord& record) {
  if (demand.interpolation != 0) return record.interpolation == demand.interpolation;
  return record.interpolation == qvpInterpolationLinear || record.interpolation == qvpInterpolationCubic ||
         record.interpolation == qvpInterpolationLanczos;
}

template <class T>
QvpStatus CheckResize(const ResizeCall<T>& call, const ResizeDemand& demand) {
  if (!call.src.data || !call.dst.data || !call.spec || !call.buffer) return qvpStatusNullPointer;
  if (call.size.width == 0 || call.size.height == 0) return qvpStatusNoOperation;
  const ResizeRecord& record = *RecordOf(call.spec);
  if (!IsOf(call.form, &record) || IsRefused(demand, call.form, record.weights)) return qvpStatusContextMatch;
  if (call.size.width < 1 || call.size.height < 1) return qvpStatusSize;
  constexpr ptrdiff_t kElement = sizeof(T);
  if (call.src.step % kElement != 0 || call.dst.step % kElement != 0) return qvpStatusStep;
  const Point at = call.offset;
  if (at.x < 0 || at.y < 0 || at.x >= record.width || at.y >= record.height) return qvpStatusOutOfRange;
  if ((record.isAntialiasing != 0) != demand.isAntialiasing) return qvpStatusNotSupportedMode;
  return IsTaken(demand, record) ? qvpStatusNoError : qvpStatusContextMatch;
}

// The destination pixels of a call that exist, and the source pixel that the call's source pointer is at.
struct Tile {
  ptrdiff_t x, y, width, height;
  Point source;

  Tile(const ResizeRecord& record, Point offset, Size size)
      : x(offset.x),
        y(offset.y),
        width(std::min<ptrdiff_t>(size.width, record.width - offset.x)),
        height(std::min<ptrdiff_t>(size.height, record.height - offset.y)),
        source(SourceOffset(record, offset)) {}
};

// Checks the call, runs kernel(call, record, tile) and tells whether all of the call's pixels exist.
template <class T, class Kernel>
QvpStatus RunResize(const ResizeCall<T>& call, const ResizeDemand& demand, const Kernel& kernel) {
  if (const QvpStatus failed = CheckResize(call, demand)) return failed;
  const ResizeRecord& record = *RecordOf(call.spec);
  const Tile tile(record, call.offset, call.size);
  kernel(call, record, tile);
  return tile.width < call.size.width || tile.height < call.size.height ? qvpStatusSizeWarning : qvpStatusNoError;
}

// A row of the source by its position in the whole source image, as a pointer to where the row's position 0 would be.
template <class T>
const T* SourceRow(const ResizeCall<T>& call, const Tile& tile, ptrdiff_t position) {
  return call.src.Row(position - tile.source.y) - tile.source.x * Channels(call.src.layout);
}

// The source positions along one axis that a tile may touch, and what stands for those outside the image.
struct Edge {
  BorderKind kind;
  Extent image;

  ptrdiff_t operator()(ptrdiff_t position) const { return BorderPosition(kind, position, image); }
};

inline Edge ColumnEdge(QvpiBorderType border, const ResizeRecord& r) {
  return {KindOf(border), EffectiveColumns(border, r.sourceWidth, r.border.left, r.border.right)};
}
inline Edge RowEdge(QvpiBorderType border, const ResizeRecord& r) {
  return {KindOf(border), EffectiveRows(border, r.sourceHeight, r.border.top, r.border.bottom)};
}

// The taps of the destination positions of a tile, along one axis.
struct Taps {
  const int32_t* first;  // source position of the first tap, which never decreases
  ptrdiff_t length;      // positions
  int count;             // taps of each position
  int certain;           // taps from this one on are not read where their weight is 0
  ptrdiff_t from, to;    // the positions whose taps are all in the image

  Taps(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin, ptrdiff_t n)
      : first(record.Index(axis) + begin),
        length(n),
        count(axis.taps),
        certain(axis.certainTaps),
        from(std::clamp<ptrdiff_t>(axis.leading - begin, 0, n)),
        to(n - std::clamp<ptrdiff_t>(axis.trailing - (axis.destination - (begin + n)), 0, n)) {
    if (to < from) to = from;
  }
};

}  // namespace qvp::resize

// The parameter lists of resize calls: impl(call) for methods without a border, impl(call, border) for those with one;
// each function plain and in its `_L` form, whose types have that letter, too.
#define QVP_RESIZE_FORM(name, end, type, layout, Int, L, form, impl, parameters, arguments)                    \
  QvpStatus name##_##type##_##layout##R##end(const Qvp##type* pSrc, Int srcStep, Qvp##type* pDst, Int dstStep, \
                                             QvpiPoint##L dstOffset, QvpiSize##L dstSize QVP_AND parameters,   \
                                             const QvpiResizeSpec* pSpec, Qvp8u* pBuffer) {                    \
    const ResizeCall<Qvp##type> call{View(pSrc, srcStep, Layout::k##layout),                                   \
                                     View(pDst, dstStep, Layout::k##layout),                                   \
                                     dstOffset,                                                                \
                                     dstSize,                                                                  \
                                     pSpec,                                                                    \
                                     pBuffer,                                                                  \
                                     ResizeForm::form};                                                        \
    return impl(call QVP_AND arguments);                                                                       \
  }
#define QVP_RESIZE_FORMS(name, type, layout, impl, parameters, arguments)           \
  QVP_RESIZE_FORM(name, , type, layout, int, , kPlain, impl, parameters, arguments) \
  QVP_RESIZE_FORM(name, _L, type, layout, QvpSizeL, L, kWide, impl, parameters, arguments)
#define QVP_RESIZE(name, type, impl, layout) QVP_RESIZE_FORMS(name, type, layout, impl, (), ())
#define QVP_RESIZE_BORDER(name, type, impl, layout) \
  QVP_RESIZE_FORMS(name, type, layout, impl, (QvpiBorderType border, const Qvp##type*), (border))
