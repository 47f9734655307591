// Rows that are filtered across and combined down, in floating point. They are made once, in resize_rows.cpp, for all
// methods of images, frames and volumes that have weights of these kinds.
#pragma once

#include "geometry/resize_columns.h"
#include "geometry/resize_walk.h"

namespace qvp::resize {

// One source row or two, across.
template <size_t kRows, class T, class Weights>
void FilterAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                  const std::array<float*, kRows>& out);

// Four rows, which share the loads of weights, where TakesFours says so.
template <class T>
bool TakesFours(const ColumnPlan<T>& plan);
template <class T, class Weights>
void FilterFourAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, 4>& rows,
                      const std::array<float*, 4>& out);

// The row at destination position y, down.
template <class T, class Weights>
void CombineRows(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst,
                 ptrdiff_t n);

// Taps of destination position y but for the last ones, which are not read where their weight is 0.
template <class Weights>
int CountRead(const Taps& taps, const Weights& weights, ptrdiff_t y) {
  int count = taps.count;
  while (count > taps.certain && weights.At(count - 1, y) == 0) --count;
  return count;
}

}  // namespace qvp::resize
