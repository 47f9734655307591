// What lies outside a region: the one vocabulary of every operation that reads around its pixels.
#pragma once

#include <algorithm>
#include <initializer_list>

#include "base/image.h"

namespace qvp {

// The low four bits of a border type.
enum class BorderKind {
  kInMemory = 0,
  kReplicate = 1,
  kMirror = 3,
  kReplicateAlt = 4,
  kConst = 6,
  kTransparent = 7,
  kWrap = 8
};

constexpr BorderKind KindOf(QvpiBorderType border) { return static_cast<BorderKind>(border & 0xF); }
constexpr bool HasFlag(QvpiBorderType border, int flag) { return (border & flag) != 0; }

// Whether a function that knows the given kinds takes the border type: one byte, and either all sides in memory without
// a kind, or a kind of the set with any sides in memory.
constexpr bool IsBorderOf(std::initializer_list<BorderKind> kinds, QvpiBorderType border) {
  if (static_cast<uint32_t>(border) > 255) return false;
  return border == qvpBorderInMem || std::find(kinds.begin(), kinds.end(), KindOf(border)) != kinds.end();
}

// The check of most functions with a border.
constexpr QvpStatus CheckBorder(QvpiBorderType border,
                                std::initializer_list<BorderKind> kinds = {BorderKind::kReplicate, BorderKind::kMirror,
                                                                           BorderKind::kConst}) {
  return IsBorderOf(kinds, border) ? qvpStatusNoError : qvpStatusBorder;
}

// Positions [begin, end) along one axis that can be read, counted from the first pixel of the region.
struct Extent {
  ptrdiff_t begin, end;

  constexpr bool Contains(ptrdiff_t i) const { return i >= begin && i < end; }
};

// The extent of an axis of n pixels, lengthened by what the operation reaches over each side that is in memory. The
// kind applies outside the result, so that a mirror of the far side may read what is in memory on the near one, but
// never beyond it.
constexpr Extent EffectiveExtent(ptrdiff_t n, bool isBeforeInMemory, ptrdiff_t before, bool isAfterInMemory,
                                 ptrdiff_t after) {
  return {isBeforeInMemory ? -before : 0, n + (isAfterInMemory ? after : 0)};
}
constexpr Extent EffectiveColumns(QvpiBorderType border, ptrdiff_t width, ptrdiff_t left, ptrdiff_t right) {
  return EffectiveExtent(width, HasFlag(border, qvpBorderInMemLeft), left, HasFlag(border, qvpBorderInMemRight), right);
}
constexpr Extent EffectiveRows(QvpiBorderType border, ptrdiff_t height, ptrdiff_t above, ptrdiff_t below) {
  return EffectiveExtent(height, HasFlag(border, qvpBorderInMemTop), above, HasFlag(border, qvpBorderInMemBottom),
                         below);
}

// A position that no pixel stands for: it takes the border constant, or leaves the destination alone.
inline constexpr ptrdiff_t kOutside = PTRDIFF_MIN;

// The position whose pixel stands for position i:
//   replicate  the nearest one of the extent
//   mirror     reflected at the edge pixel, which is not repeated, as often as it takes: period 2 n - 2
//   wrap       i modulo n
constexpr ptrdiff_t BorderPosition(BorderKind kind, ptrdiff_t i, Extent extent) {
  if (extent.Contains(i)) return i;
  const ptrdiff_t n = extent.end - extent.begin;
  if (kind == BorderKind::kConst || kind == BorderKind::kTransparent) return kOutside;
  if (kind == BorderKind::kMirror || kind == BorderKind::kWrap) {
    const ptrdiff_t period = kind == BorderKind::kWrap ? n : std::max<ptrdiff_t>(2 * n - 2, 1);
    ptrdiff_t t = i - extent.begin;
    if (t < -period || t >= period) t %= period;  // few are so far away that they need a division
    if (t < 0) t += period;
    return extent.begin + (t < n ? t : period - t);
  }
  return std::clamp(i, extent.begin, extent.end - 1);
}

}  // namespace qvp
