// Making a record: its header and tables.
#pragma once

#include "geometry/interpolation_kernels.h"
#include "geometry/resize_record.h"

namespace qvp::resize {

// A method with its parameters.
struct Method {
  QvpiInterpolationType interpolation;
  WeightKind weights = WeightKind::kFloat;
  bool isFor8u = false, isAntialiasing = false;
  float b = 0, c = 0;
  uint32_t lobes = 0;
  double shift[2] = {};

  InterpolationKernel Kernel() const { return {interpolation, b, c, lobes}; }
  bool HasPlainTaps() const {
    return isAntialiasing || interpolation == qvpInterpolationCubic || interpolation == qvpInterpolationLanczos;
  }
};

// Fills all of a record but its tag. Fixed-point weights that do not fit 16 bits become floating-point ones.
void FillRecord(ResizeRecord& record, Size src, Size dst, Method method);

}  // namespace qvp::resize
