// Rows of a tile that are filtered once and kept as long as they are needed.
#pragma once

#include <array>

#include "base/row_ring.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

// Samples from one filtered row to the next.
constexpr ptrdiff_t RowFloats(ptrdiff_t samples) { return (samples + 7) & ~ptrdiff_t{7}; }

// filter(rows, places) for the positions from `position` up to `end`, two at a time and the last one perhaps alone.
template <class Row, class Place, class Filter>
void ForTwo(ptrdiff_t position, ptrdiff_t end, const Row& row, const Place& place, const Filter& filter) {
  for (; position + 1 < end; position += 2) {
    filter(std::array{row(position), row(position + 1)}, std::array{place(position), place(position + 1)});
  }
  if (position < end) filter(std::array{row(position)}, std::array{place(position)});
}

}  // namespace qvp::resize
