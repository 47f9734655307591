// The linear system of the iterative least-squares filter, (1 + beta L) v = r with the Laplacian L of a reflected
// image: a cosine transform along each row leaves a tridiagonal system down each column.
#pragma once

#include "filter/least_squares.h"

namespace qvp::filter {

class LeastSquaresSystem {
 public:
  LeastSquaresSystem(const LeastSquaresRecord& record, uint8_t* buffer);

  // The plane of v, which is r while a system is built, from above downward.
  float* Row(ptrdiff_t y) const { return v_ + y * width_; }
  // Room for a row, with a vector behind it, until rows are solved for; and for one that stays meanwhile.
  float* Scratch() const { return reinterpret_cast<float*>(block_); }
  float* Kept() const { return kept_; }

  // Lines that are transformed together.
  int RowsAtOnce() const { return record_.Plan().Lines(); }

  void Clear() const;
  // Takes `count` rows of r, from row y on, one after the other downward; then solves, from below upward.
  void Eliminate(ptrdiff_t y, int count) const;
  void Substitute() const;

 private:
  void FillPivots() const;
  void TransformRows(dft::Direction direction, ptrdiff_t y, int count) const;
  // to = (to + factor * other) * pivot, or to + factor * (other * pivot).
  void AddAbove(const float* above, const float* pivots, float* row) const;
  void AddBelow(const float* below, const float* pivots, float* row) const;
  void SubstituteRows(ptrdiff_t y, int count) const;

  const LeastSquaresRecord& record_;
  ptrdiff_t width_, height_;
  float *v_, *pivots_, *kept_, *block_;
};

}  // namespace qvp::filter
