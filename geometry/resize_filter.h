// Resizing in floating point: rows of the source are filtered across into rows of floats, and these are combined down.
// Every output is the sum of its products in the order of the taps, each rounded; of many taps in blocks.
#pragma once

#include "geometry/resize_rows.h"

namespace qvp::resize {

// A tile, by weights across and down. The rows of the ring need places * RowFloats(samples) floats at `rows`.
template <class T, class Across, class Down>
void FilterTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Across& across,
                const Down& down, float* rows) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels;
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ResizeAxis& axis = record.columns;
  const bool areNear = axis.taps == 2 && axis.certainTaps == 2 && axis.p <= 2 * axis.q;
  const ColumnPlan<T> plan(Taps(record, axis, tile.x, tile.width), ColumnEdge(call.border, record), channels, areNear);
  const Edge rowEdge = RowEdge(call.border, record);
  const RowRing<float> ring{rows, RowFloats(samples), rowTaps.count};
  const auto source = [&](ptrdiff_t p) { return SourceRow(call, tile, rowEdge(p)); };
  const auto place = [&](ptrdiff_t p) { return ring.Row(p); };
  const bool byFours = TakesFours(plan);
  const auto filter = [&](ptrdiff_t position, ptrdiff_t end) {
    for (; byFours && position + 4 <= end; position += 4) {
      const ptrdiff_t p = position;
      FilterFourAcross(plan, across, std::array{source(p), source(p + 1), source(p + 2), source(p + 3)},
                       std::array{place(p), place(p + 1), place(p + 2), place(p + 3)});
    }
    ForTwo(position, end, source, place,
           [&](const auto& sources, const auto& out) { FilterAcross(plan, across, sources, out); });
  };
  const auto combine = [&](ptrdiff_t y) { CombineRows(ring, down, rowTaps, y, call.dst.Row(y), samples); };
  const auto needs = [&](ptrdiff_t y) {
    const ptrdiff_t first = rowTaps.first[y];
    return Extent{first, first + CountRead(rowTaps, down, y)};
  };
  WalkDown(tile.height, needs, filter, combine);
}

// The same for doubles and any number of taps, which have no room for filtered rows: each output is computed from the
// source.
template <class Across, class Down>
void FilterTileDirectly(const ResizeCall<double>& call, const ResizeRecord& record, const Tile& tile,
                        const Across& across, const Down& down) {
  const int channels = Channels(call.src.layout);
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ColumnPlan<double> plan(Taps(record, record.columns, tile.x, tile.width), ColumnEdge(call.border, record),
                                channels);
  const Edge rowEdge = RowEdge(call.border, record);
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    for (ptrdiff_t x = 0; x < tile.width; ++x) {
      double pixel[kMostChannels] = {};
      const auto filtered = [&](int k, bool isRead) {
        const double* row = SourceRow(call, tile, rowEdge(rowTaps.first[y] + k));
        if (isRead) FilterPixel<false>(plan, channels, across, row, x, pixel);
        return pixel;
      };
      double sums[kMostChannels];
      AddTaps<false>(
          rowTaps, channels, filtered, [&](int k) { return down.At(k, y); }, sums);
      std::memcpy(call.dst.Row(y) + x * channels, sums, channels * sizeof(double));
    }
  }
}

}  // namespace qvp::resize
