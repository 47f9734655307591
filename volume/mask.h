// Which voxels a filter in space looks at.
#pragma once

#include "volume/border.h"

namespace qvp::volume {

// A cuboid of voxels: those of a result begin so far before it.
struct Mask {
  int width, height, depth;
  QvprPoint before;

  Mask(QvprVolume m, QvprPoint begin) : width(m.width), height(m.height), depth(m.depth), before(begin) {}
  static Mask Centred(QvprVolume m) { return {m, {m.width / 2, m.height / 2, m.depth / 2}}; }
  ptrdiff_t lines() const { return ptrdiff_t{height} * depth; }
  ptrdiff_t cells() const { return lines() * width; }
  VolumeReach Reach() const {
    const auto [x, y, z] = before;
    return {{x, y, width - 1 - x, height - 1 - y}, z, depth - 1 - z};
  }
  Extent Columns(Extent results) const { return {results.begin - before.x, results.end + width - 1 - before.x}; }
};

}  // namespace qvp::volume
