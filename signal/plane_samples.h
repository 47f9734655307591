// Samples of images as numbers of a plane that is transformed, and what of a block of columns is wanted back.
#pragma once

#include <algorithm>

#include "base/border.h"
#include "base/plane.h"
#include "signal/plane_transform.h"

namespace qvp::dft {

// Numbers of a row of a block; rows of the plane's upper half are as far apart as kRowStep, and of its lower half,
// which begins kLines further.
template <class F>
struct BlockRow {
  static constexpr int kLines = PlaneTransform<F>::kLines;
  using D = hn::CappedTag<F, kLines>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kRowStep = 2 * kLines;

  // convert(from) makes a vector of samples.
  template <class T, class Convert>
  HWY_INLINE static void Load(const T* from, const Convert& convert, F* to) {
    for (ptrdiff_t lane = 0; lane < kLines; lane += kLanes) hn::StoreU(convert(from + lane), D(), to + lane);
  }
};

// kLines columns from (x, y) on to `rows` rows of half a block; what is outside of the plane is made of zeros.
template <class F, class T, class Convert>
void LoadRows(const Plane<T>& plane, ptrdiff_t x, ptrdiff_t y, ptrdiff_t rows, const Convert& convert, F* to) {
  using Row = BlockRow<F>;
  constexpr ptrdiff_t kLines = Row::kLines;
  const ptrdiff_t begin = std::clamp<ptrdiff_t>(-x, 0, kLines),
                  end = std::clamp<ptrdiff_t>(plane.size.width - x, begin, kLines);
  const ptrdiff_t first = std::clamp<ptrdiff_t>(-y, 0, rows);
  const ptrdiff_t last = begin == end ? first : std::clamp<ptrdiff_t>(plane.size.height - y, first, rows);
  T staged[kLines] = {};
  for (ptrdiff_t row = 0; row < first; ++row) Row::Load(staged, convert, to + row * Row::kRowStep);
  for (ptrdiff_t row = last; row < rows; ++row) Row::Load(staged, convert, to + row * Row::kRowStep);
  const bool isDirect = plane.channels() == 1 && end - begin == kLines;
  for (ptrdiff_t row = first; row < last; ++row) {
    const T* const from = plane.At(x + begin, y + row);
    if (!isDirect) CopyFewSamples(from, plane.channels(), end - begin, staged + begin);
    Row::Load(isDirect ? from : staged, convert, to + row * Row::kRowStep);
  }
}

// Transforms columns of a plane that begins at (x, y), by a block of the transform.
template <class F, class T, class Convert>
void PutSamples(const PlaneTransform<F>& transform, const Plane<T>& plane, ptrdiff_t x, ptrdiff_t y,
                const Convert& convert, F* block, F* to) {
  constexpr int kLines = PlaneTransform<F>::kLines;
  for (ptrdiff_t column = 0; column < transform.width(); column += kLines) {
    LoadRows(plane, x + column, y, transform.half(), convert, block);
    LoadRows(plane, x + column, y + transform.half(), transform.half(), convert, block + kLines);
    transform.PutColumns(block, column, to);
  }
}

// Calls store(numbers, column, rows) for kLines columns at a time of a plane that is transformed back: the first of
// `rows` of the plane, each BlockRow::kRowStep behind the one before it.
template <class F, class Store>
void GetRows(const PlaneTransform<F>& transform, const F* plane, Extent columns, Extent rows, F* block,
             const Store& store) {
  constexpr int kLines = PlaneTransform<F>::kLines;
  constexpr ptrdiff_t kRowStep = BlockRow<F>::kRowStep;
  const ptrdiff_t half = transform.half();
  const Extent upper{rows.begin, std::min(rows.end, half)}, lower{std::max(rows.begin, half), rows.end};
  for (ptrdiff_t x = columns.begin / kLines * kLines; x < columns.end; x += kLines) {
    transform.GetColumns(plane, x, block);
    if (rows.begin < half) store(block + upper.begin * kRowStep, x, upper);
    if (rows.end > half) store(block + (lower.begin - half) * kRowStep + kLines, x, lower);
  }
}

}  // namespace qvp::dft
