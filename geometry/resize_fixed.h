// Resizing of 8-bit pixels in fixed point, by weights in units of 1/16384: rows of the source are filtered across into
// rows of 16-bit numbers with 6 bits of fraction, and these are combined down.
#pragma once

#include <array>

#include "geometry/resize_filter.h"
#include "geometry/resize_gather.h"

namespace qvp {

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
  const uint8_t* Pixel(const uint8_t* row, ptrdiff_t position) const { return row + edge(position) * channels; }
};

// Filters one row, or two at once, which share what is loaded for each vector of columns.
template <size_t kRows, class Columns>
void FilterFixed(const Columns& columns, const std::array<const uint8_t*, kRows>& rows,
                 const std::array<int16_t*, kRows>& out) {
  const Taps& taps = columns.taps;
  const Gather& gather = columns.gather;
  const bool hasVectors = gather.count() > 0;
  if (hasVectors && gather.loads() == 1) columns.template FilterVectors<1, kRows>(rows, out);
  if (hasVectors && gather.loads() == 2) columns.template FilterVectors<2, kRows>(rows, out);
  if (hasVectors && gather.loads() == 4) columns.template FilterVectors<4, kRows>(rows, out);
  for (size_t i = 0; i < kRows; ++i) {
    columns.FilterOneByOne(rows[i], 0, taps.from, out[i]);
    columns.FilterOneByOne(rows[i], hasVectors ? taps.to : taps.from, taps.length, out[i]);
  }
}

// A tile whose filtered rows lie in `ring`: combine(y) makes its row y of them.
template <class Columns, class Combine>
void FilterFixedTile(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile, const Taps& rowTaps,
                     const Columns& columns, const RowRing<int16_t>& ring, const Combine& combine) {
  const Edge edge = RowEdge(call.border, record);
  const auto source = [&](ptrdiff_t position) { return SourceRow(call, tile, edge(position)); };
  const auto place = [&](ptrdiff_t position) { return ring.Row(position); };
  const auto filter = [&](ptrdiff_t begin, ptrdiff_t end) {
    ForTwo(begin, end, source, place, [&](const auto& rows, const auto& out) { FilterFixed(columns, rows, out); });
  };
  WalkDown(rowTaps, filter, combine, [](int, ptrdiff_t) { return true; });
}

}  // namespace qvp
