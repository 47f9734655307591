// Resizing of 8-bit pixels in fixed point, by weights in units of 1/16384: rows of the source are filtered across into
// rows of 16-bit numbers with 6 bits of fraction, and these are combined down.
#pragma once

#include <array>

#include "geometry/resize_filter.h"
#include "geometry/resize_gather.h"

namespace qvp::resize {

// The columns of a tile: a Gather serves those whose taps are all in the image, the others are filtered one by one.
struct FixedColumns {
  Taps taps;
  Edge edge;
  int channels;
  Gather gather = {};

  FixedColumns(const ResizeRecord& record, const Tile& tile, QvpiBorderType border, int nc)
      : taps(record, record.columns, tile.x, tile.width), edge(ColumnEdge(border, record)), channels(nc) {}

  // Samples of the columns with all taps in the image.
  ptrdiff_t InnerSamples() const { return (taps.to - taps.from) * channels; }
};

// Filters one row, or two at once, which share what is loaded for each vector of columns.
template <class Columns, class Rows, class Out>
void FilterFixed(const Columns& columns, const Rows& rows, const Out& out) {
  const Taps& taps = columns.taps;
  const Gather& gather = columns.gather;
  const bool hasVectors = gather.count() > 0;
  if (hasVectors && gather.loads() == kSharedLoad) columns.template FilterVectors<kSharedLoad>(rows, out);
  if (hasVectors && gather.loads() == 1) columns.template FilterVectors<1>(rows, out);
  if (hasVectors && gather.loads() == 2) columns.template FilterVectors<2>(rows, out);
  if (hasVectors && gather.loads() == 4) columns.template FilterVectors<4>(rows, out);
  columns.FilterOneByOne(rows, 0, taps.from, out);
  columns.FilterOneByOne(rows, hasVectors ? taps.to : taps.from, taps.length, out);
}

}  // namespace qvp::resize
