// An image and the larger one around it, which is filled from the image or with a constant.
#pragma once

#include "base/border.h"
#include "base/simd.h"

namespace qvp::filter {

// A source and the larger image around it.
struct Frame {
  Size src, dst;
  ptrdiff_t top, left;

  bool IsValid() const {
    const bool hasPixels = src.width >= 1 && src.height >= 1 && dst.width >= 1 && dst.height >= 1;
    return hasPixels && top >= 0 && left >= 0 && dst.width - src.width >= left && dst.height - src.height >= top;
  }
  ptrdiff_t right() const { return dst.width - src.width - left; }
  Extent Rows() const { return {-top, dst.height - top}; }  // of the destination, counted from the source's first
};

// What border columns are made of: the columns of the source, or a single one that holds a constant.
struct Border {
  BorderKind kind;
  const uint8_t* pixels;    // row 0
  ptrdiff_t step, width;    // bytes and pixels
  int pixelBytes, written;  // bytes of a pixel, and those of them that are not kept

  ptrdiff_t RowBytes() const { return width * pixelBytes; }
  bool IsConstant() const { return step == 0; }
  // The first byte of what stands for column x.
  ptrdiff_t SourceOf(ptrdiff_t x) const { return BorderPosition(kind, x, {0, width}) * pixelBytes; }
};

using Block = hn::FixedTag<uint8_t, kBlockBytes>;

// Calls write(y, from, distance, count) for rows [y, y + count) that stand for rows `from`, `from` + distance, ...
template <class Write>
HWY_INLINE void ForEachBand(BorderKind kind, Extent rows, Extent source, const Write& write) {
  const auto rowFor = [&](ptrdiff_t y) { return BorderPosition(kind, y, source); };
  for (ptrdiff_t y = rows.begin, count = 1; y < rows.end; y += count, count = 1) {
    const ptrdiff_t from = rowFor(y), distance = y + 1 < rows.end ? rowFor(y + 1) - from : 0;
    if (source.Contains(y)) count = std::min(rows.end, source.end) - y;
    while (y + count < rows.end && rowFor(y + count) == from + count * distance) ++count;
    write(y, from, distance, count);
  }
}

}  // namespace qvp::filter
