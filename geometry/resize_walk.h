// The walk down a tile, which keeps the filtered rows that are needed again.
#pragma once

#include <array>

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

// Filtered rows, one place for each tap: the row of position p is at place p modulo the number of taps.
template <class S>
struct RowRing {
  S* at;
  ptrdiff_t step;  // samples
  int places;

  // Positions are numbers of 32 bits, which are quicker to divide.
  S* Row(ptrdiff_t position) const {
    int place = static_cast<int32_t>(position) % places;
    if (place < 0) place += places;
    return at + place * step;
  }

  // The rows of kCount successive positions.
  template <size_t kCount>
  std::array<const S*, kCount> Rows(ptrdiff_t position) const {
    const S* const end = at + places * step;
    std::array<const S*, kCount> rows{Row(position)};
    for (size_t k = 1; k < kCount; ++k) {
      const S* next = rows[k - 1] + step;
      rows[k] = next == end ? at : next;
    }
    return rows;
  }
};

// Walks down a tile and keeps the filtered rows that the next destination rows need too: filter(begin, end) fills the
// rows of these positions, combine(y) makes destination row y from those that its taps need.
template <class Filter, class Combine, class IsRead>
void WalkDown(const Taps& taps, const Filter& filter, const Combine& combine, const IsRead& isRead) {
  ptrdiff_t next = PTRDIFF_MIN;
  for (ptrdiff_t y = 0; y < taps.length; ++y) {
    int count = taps.count;
    while (count > taps.certain && !isRead(count - 1, y)) --count;
    const ptrdiff_t end = taps.first[y] + count;
    filter(std::max<ptrdiff_t>(next, taps.first[y]), end);
    next = std::max(next, end);
    combine(y);
  }
}

}  // namespace qvp::resize
