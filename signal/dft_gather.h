// Floats of lines to rows of lanes and back. A map gives the row of lanes of each float of a line.
#pragma once

#include <algorithm>

#include "signal/dft_ends.h"

namespace qvp::dft {

// Whether the lines are neighbouring columns, whose floats are the lanes of vectors in memory.
template <class T>
bool AreNeighbours(const DftLines<T>& lines) {
  for (int l = 1; l < kDftLines; ++l) {
    if (l >= lines.count || lines.at[l] != lines.at[0] + l) return false;
  }
  return true;
}

// Rows of vectors between neighbouring columns and the block.
template <class Map>
void GatherNeighbours(const DftLines<const float>& lines, ptrdiff_t first, ptrdiff_t end, const Map& rowOf,
                      float* block) {
  const ptrdiff_t stride = lines.stride;
  for (ptrdiff_t i = first; i < end; ++i) {
    for (int l = 0; l < kDftLines; l += kLanes) {
      hn::StoreU(hn::LoadU(Lanes(), At(lines.at[l], i * stride)), Lanes(), block + rowOf(i) * kDftLines + l);
    }
  }
}
template <class Map>
void ScatterNeighbours(const float* block, float scale, const DftLines<float>& lines, ptrdiff_t first, ptrdiff_t end,
                       const Map& rowOf) {
  const ptrdiff_t stride = lines.stride;
  const V factor = hn::Set(Lanes(), scale);
  for (ptrdiff_t i = first; i < end; ++i) {
    for (int l = 0; l < kDftLines; l += kLanes) {
      const V v = hn::LoadU(Lanes(), block + rowOf(i) * kDftLines + l);
      hn::StoreU(hn::Mul(v, factor), Lanes(), At(lines.at[l], i * stride));
    }
  }
}

// Transposed tiles between lines of any places and the block. Return where the tiles end.
template <class Map>
ptrdiff_t GatherTiles(const DftLines<const float>& lines, ptrdiff_t first, ptrdiff_t end, const Map& rowOf,
                      float* block) {
  const float* from[kDftLines];
  FillUp(lines, from);
  const ptrdiff_t stride = lines.stride;
  for (; first + kTile <= end; first += kTile) {
    for (int l = 0; l < kDftLines; l += kLanes) {
      V v[kTile];
      LoadTile(from, l, first * stride, stride, v);
      for (int t = 0; t < kTile; ++t) hn::StoreU(v[t], Lanes(), block + rowOf(first + t) * kDftLines + l);
    }
  }
  return first;
}
template <class Map>
ptrdiff_t ScatterTiles(const float* block, float scale, const DftLines<float>& lines, ptrdiff_t first, ptrdiff_t end,
                       const Map& rowOf) {
  float* to[kDftLines];
  FillUp(lines, to);
  const ptrdiff_t stride = lines.stride;
  const V factor = hn::Set(Lanes(), scale);
  for (; first + kTile <= end; first += kTile) {
    for (int l = 0; l < lines.count; l += kLanes) {
      V v[kTile];
      for (int t = 0; t < kTile; ++t) {
        v[t] = hn::Mul(hn::LoadU(Lanes(), block + rowOf(first + t) * kDftLines + l), factor);
      }
      StoreTile(v, to, lines.count, l, first * stride, stride);
    }
  }
  return first;
}

// The floats [first, end) of each line.
template <int kLines, class Map>
void Gather(const DftLines<const float>& lines, ptrdiff_t first, ptrdiff_t end, const Map& rowOf, float* block) {
  if constexpr (kLines == kDftLines) {
    if (AreNeighbours(lines)) return GatherNeighbours(lines, first, end, rowOf, block);
    first = GatherTiles(lines, first, end, rowOf, block);
  }
  const ptrdiff_t stride = lines.stride;
  for (ptrdiff_t i = first; i < end; ++i) {
    for (int l = 0; l < kLines; ++l) {
      Copy(At(lines.at[std::min(l, lines.count - 1)], i * stride), block + rowOf(i) * kLines + l);
    }
  }
}

// The floats [first, end) of each line, times a factor.
template <int kLines, class Map>
void Scatter(const float* block, float scale, const DftLines<float>& lines, ptrdiff_t first, ptrdiff_t end,
             const Map& rowOf) {
  if constexpr (kLines == kDftLines) {
    if (AreNeighbours(lines)) return ScatterNeighbours(block, scale, lines, first, end, rowOf);
    first = ScatterTiles(block, scale, lines, first, end, rowOf);
  }
  const ptrdiff_t stride = lines.stride;
  for (ptrdiff_t i = first; i < end; ++i) {
    for (int l = 0; l < lines.count; ++l) {
      const float scaled = block[rowOf(i) * kLines + l] * scale;
      Copy(&scaled, At(lines.at[l], i * stride));
    }
  }
}

}  // namespace qvp::dft
