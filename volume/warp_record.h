// The record of a warp of volumes.
#pragma once

#include "base/record.h"
#include "qvptypes.h"
#include "volume/affine.h"

namespace qvp::volume {

// At the first boundary of the caller's memory. Nothing follows.
struct WarpRecord {
  uint32_t identification;
  int32_t dataType, interpolation, border;
  QvprVolume src, dst;
  double cubicB, cubicC, value;
  Affine toSource;
  int32_t isShift;  // by whole voxels, which are copied

  static constexpr uint32_t kIdentification = 0x51565202;
};

inline constexpr int kWarpRecordBytes = 576;
static_assert(sizeof(WarpRecord) <= kWarpRecordBytes - kRecordBoundary);

}  // namespace qvp::volume
