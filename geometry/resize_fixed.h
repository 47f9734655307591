// Resizing of 8-bit pixels in fixed point, by weights in units of 1/16384: rows of the source are filtered across into
// rows of 16-bit numbers with 6 bits of fraction, and these are combined down.
#pragma once

#include <array>

#include "geometry/resize_columns.h"
#include "geometry/resize_gather.h"

namespace qvp::resize {

// The columns of a tile: a Gather serves the columns `served`, the others are filtered one by one.
struct FixedColumns {
  Taps taps;
  Edge edge;
  int channels;
  Extent served;
  Gather gather = {};

  FixedColumns(const ResizeRecord& record, const Tile& tile, QvpiBorderType border, int nc)
      : taps(record, record.columns, tile.x, tile.width),
        edge(ColumnEdge(border, record)),
        channels(nc),
        served{taps.from, taps.to} {}

  ptrdiff_t ServedSamples() const { return (served.end - served.begin) * channels; }
};

// Filters one row, or two at once, which share what is loaded for each vector of columns.
template <class Columns, class Rows, class Out>
void FilterFixed(const Columns& columns, const Rows& rows, const Out& out) {
  const Gather& gather = columns.gather;
  const bool hasVectors = gather.count() > 0;
  if (hasVectors && gather.loads() == kSharedLoad) columns.template FilterVectors<kSharedLoad>(rows, out);
  if (hasVectors && gather.loads() == 1) columns.template FilterVectors<1>(rows, out);
  if (hasVectors && gather.loads() == 2) columns.template FilterVectors<2>(rows, out);
  if (hasVectors && gather.loads() == 4) columns.template FilterVectors<4>(rows, out);
  const Extent done = hasVectors ? columns.served : Extent{0, 0};
  if (done.begin > 0) columns.FilterOneByOne(rows, 0, done.begin, out);
  if (done.end < columns.taps.length) columns.FilterOneByOne(rows, done.end, columns.taps.length, out);
}

}  // namespace qvp::resize
