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

// Lengths of an axis, and those whose ratio it is resized by: for chroma the luma's, of which its own may be rounded.
struct AxisLengths {
  ptrdiff_t source, destination, from, to;
  bool isCosited = false;  // chroma that lies on luma samples

  AxisLengths(ptrdiff_t n, ptrdiff_t m) : source(n), destination(m), from(n), to(m) {}
  // Half of a luma axis. Where the length stays all samples do, wherever they lie.
  AxisLengths(const AxisLengths& luma, bool isOnLuma)
      : source((luma.source + 1) / 2),
        destination((luma.destination + 1) / 2),
        from(luma.source),
        to(luma.destination),
        isCosited(isOnLuma && luma.from != luma.to) {}
};

// Fills all of a record but its tag, and tells its bytes. Fixed-point weights that do not fit 16 bits become
// floating-point ones. The tables begin `at` bytes behind the record's beginning.
int64_t FillRecord(ResizeRecord& record, const AxisLengths& columns, const AxisLengths& rows, Method method,
                   int64_t at = kTablesAt);
inline int64_t FillRecord(ResizeRecord& record, Size src, Size dst, const Method& method) {
  return FillRecord(record, AxisLengths(src.width, dst.width), AxisLengths(src.height, dst.height), method);
}

// Fills an axis beside those of a record, and its tables, `at` bytes behind the record's beginning. Areas have none.
void FillFurtherAxis(ResizeRecord& record, ResizeAxis& axis, const AxisLengths& lengths, const Method& method,
                     int64_t at);

// Gives an axis tables of areas for all of its positions, a plane of weights for each pixel that one may cover, and
// tells where they end.
int64_t FillAreas(ResizeRecord& record, ResizeAxis& axis, int64_t at);

}  // namespace qvp::resize
