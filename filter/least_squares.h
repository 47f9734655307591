// The record of the iterative least-squares filter.
#pragma once

#include <algorithm>

#include "base/record.h"
#include "signal/dft.h"

namespace qvp::filter {

struct LeastSquaresRecord {
  uint32_t identification;
  QvpDataType type;
  int32_t channels, width, height, iterations;
  float beta;      // of the quadratic terms that each iteration solves for
  float kappa;     // of the derivative of the penalty of gradients
  float exponent;  // of what weighs it, below 0 or 0
  float eps;

  static constexpr uint32_t kIdentification = 0x51534C51;
  static constexpr int kHeadBytes = 64;

  static int64_t TableBytes(int64_t width) {
    return (width * int64_t{sizeof(double)} + kRecordBoundary - 1) / kRecordBoundary * kRecordBoundary;
  }
  // What differences along rows multiply each frequency by, times beta; then the plan of rows.
  double* Eigenvalues() { return reinterpret_cast<double*>(reinterpret_cast<uint8_t*>(this) + kHeadBytes); }
  const double* Eigenvalues() const { return const_cast<LeastSquaresRecord*>(this)->Eigenvalues(); }
  uint8_t* PlanBytes() { return reinterpret_cast<uint8_t*>(Eigenvalues()) + TableBytes(width); }
  const dft::DftPlan& Plan() const {
    return *reinterpret_cast<const dft::DftPlan*>(const_cast<LeastSquaresRecord*>(this)->PlanBytes());
  }
  // Of the cosine transform of rows.
  static dft::DftPlan PlanFor(int64_t width) {
    dft::DftPlan plan = dft::LayOutDft(width, dft::DftKind::kCosine);
    plan.scale[1] = static_cast<float>(1 / static_cast<double>(width));
    return plan;
  }
};
static_assert(sizeof(LeastSquaresRecord) <= LeastSquaresRecord::kHeadBytes);

// The work buffer: a plane of the correction, one of the columns' coefficients, a row that is kept, and the block of
// transforms, in whose place a row is made.
struct LeastSquaresLayout {
  ByteCount plane, row, block;

  LeastSquaresLayout(int64_t width, int64_t height, const dft::DftPlan& plan)
      : plane((ByteCount(width) * height * int64_t{sizeof(float)}).RoundedTo(kRecordBoundary)),
        row((ByteCount(width) * int64_t{sizeof(float)} + 2 * kRecordBoundary).RoundedTo(kRecordBoundary)),
        block(std::max(ByteCount(plan.BlockBytes()).RoundedTo(kRecordBoundary).value(), row.value())) {}

  ByteCount bytes() const { return plane + plane + row + block + kRecordBoundary; }
};

}  // namespace qvp::filter
