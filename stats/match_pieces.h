// Pieces of the template, each of which is moved over a tile for two rows of results at once.
#pragma once

#include "base/plane_lines.h"
#include "base/scalar.h"
#include "stats/match.h"

namespace qvp::matching {

// Sides of pieces, and how many steps of two products of bytes a sum of 32 bits takes.
inline constexpr ptrdiff_t kMostWidth = 512, kMostLines = 32, kMostBytePairs = 33025 / 2;

// A part of the template.
struct Piece {
  ptrdiff_t x, y;
  Size size;
};

// Calls visit(piece) for pieces of at most `most`, row by row: of several in a row, each has one row of the template.
template <class Visit>
void ForEachPiece(Size tpl, Size most, const Visit& visit) {
  for (ptrdiff_t y = 0; y < tpl.height; y += most.height) {
    for (ptrdiff_t x = 0; x < tpl.width; x += most.width) {
      visit(Piece{x, y, {std::min(most.width, tpl.width - x), std::min(most.height, tpl.height - y)}});
    }
  }
}

// A plane whose lines are those that a piece covers, for the tile's columns.
template <class Form, class T>
LineWindow<Form, T> LinesFor(const Plane<T>& image, const Piece& piece, const Tile<T>& tile, ptrdiff_t lines,
                             const Form& form = {}) {
  const ptrdiff_t first = tile.x + piece.x, samples = tile.size.width + piece.size.width - 1;
  return {image, {first, first + samples}, false, tile.y + piece.y, static_cast<int>(lines), form};
}

// Calls run(count, column) for all columns of a tile: `kMany` vectors at a time, or one. Rows have room for the last.
template <ptrdiff_t kLanes, int kMany, class Run>
HWY_INLINE void ForEachGroup(ptrdiff_t columns, const Run& run) {
  ptrdiff_t i = 0;
  for (; i + kMany * kLanes <= columns; i += kMany * kLanes) run(std::integral_constant<int, kMany>(), i);
  for (; i < columns; i += kLanes) run(std::integral_constant<int, 1>(), i);
}

// Bytes of the samples of a piece: pairs of them, or doubles.
constexpr int64_t PairBytes(ptrdiff_t pairs) { return ByteCount((pairs + 1) * 8).RoundedTo(kRecordBoundary).value(); }

}  // namespace qvp::matching
