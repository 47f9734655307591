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

// The floats [first, end) of each line.
template <int kLines, class Map>
void Gather(const DftLines<const float>& lines, ptrdiff_t first, ptrdiff_t end, const Map& rowOf, float* block) {
  ptrdiff_t i = first;
  const ptrdiff_t stride = lines.stride;
  if constexpr (kLines == kDftLines) {
    if (AreNeighbours(lines)) {
      for (; i < end; ++i) {
        for (int l = 0; l < kDftLines; l += kLanes) {
          hn::StoreU(hn::LoadU(Lanes(), At(lines.at[l], i * stride)), Lanes(), block + rowOf(i) * kLines + l);
        }
      }
      return;
    }
    const float* from[kDftLines];
    FillUp(lines, from);
    for (; i + kTile <= end; i += kTile) {
      for (int l = 0; l < kDftLines; l += kLanes) {
        V v[kTile];
        LoadTile(from, l, i * stride, stride, v);
        for (int t = 0; t < kTile; ++t) hn::StoreU(v[t], Lanes(), block + rowOf(i + t) * kLines + l);
      }
    }
  }
  for (; i < end; ++i) {
    for (int l = 0; l < kLines; ++l) {
      Copy(At(lines.at[std::min(l, lines.count - 1)], i * stride), block + rowOf(i) * kLines + l);
    }
  }
}

// The floats [first, end) of each line, times a factor.
template <int kLines, class Map>
void Scatter(const float* block, float scale, const DftLines<float>& lines, ptrdiff_t first, ptrdiff_t end,
             const Map& rowOf) {
  ptrdiff_t i = first;
  const ptrdiff_t stride = lines.stride;
  if constexpr (kLines == kDftLines) {
    const V factor = hn::Set(Lanes(), scale);
    if (AreNeighbours(lines)) {
      for (; i < end; ++i) {
        for (int l = 0; l < kDftLines; l += kLanes) {
          const V v = hn::LoadU(Lanes(), block + rowOf(i) * kLines + l);
          hn::StoreU(hn::Mul(v, factor), Lanes(), At(lines.at[l], i * stride));
        }
      }
      return;
    }
    float* to[kDftLines];
    FillUp(lines, to);
    for (; i + kTile <= end; i += kTile) {
      for (int l = 0; l < lines.count; l += kLanes) {
        V v[kTile];
        for (int t = 0; t < kTile; ++t) {
          v[t] = hn::Mul(hn::LoadU(Lanes(), block + rowOf(i + t) * kLines + l), factor);
        }
        StoreTile(v, to, lines.count, l, i * stride, stride);
      }
    }
  }
  for (; i < end; ++i) {
    for (int l = 0; l < lines.count; ++l) {
      const float scaled = block[rowOf(i) * kLines + l] * scale;
      Copy(&scaled, At(lines.at[l], i * stride));
    }
  }
}

}  // namespace qvp::dft
