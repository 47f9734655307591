// The first checks of calls with volumes, in their order, and tiles of a destination.
#pragma once

#include "base/check.h"
#include "base/volume.h"

namespace qvp::volume {

// A volume reduced to what the checks look at.
struct VolumeOperand {
  Operand plane;
  ptrdiff_t planeStep;
  template <class T>
  VolumeOperand(const Volume<T>& volume) : plane(volume.front), planeStep(volume.planeStep) {}
};

// Pointers, those of the volumes first, then lengths, then steps.
inline QvpStatus CheckVolumes(std::initializer_list<VolumeOperand> volumes, std::initializer_list<VolumeSize> sizes,
                              Pointers others = {}) {
  for (const VolumeOperand& volume : volumes) {
    if (!volume.plane.data) return qvpStatusNullPointer;
  }
  if (!Passes(kPointers, {1, 1}, {}, others)) return qvpStatusNullPointer;
  for (const VolumeSize& size : sizes) {
    if (!size.HasVoxels()) return qvpStatusSize;
  }
  for (const VolumeOperand& volume : volumes) {
    if (volume.plane.step < 1 || volume.planeStep < 1) return qvpStatusStep;
  }
  return qvpStatusNoError;
}

// A part of a destination, which is cut where it reaches beyond its end.
struct VolumeTile {
  ptrdiff_t x, y, z, width, height, depth;
  bool isClipped;

  VolumeTile(QvprPoint at, const VolumeSize& size, const VolumeSize& whole)
      : x(at.x),
        y(at.y),
        z(at.z),
        width(std::min(size.width, whole.width - x)),
        height(std::min(size.height, whole.height - y)),
        depth(std::min(size.depth, whole.depth - z)),
        isClipped(width < size.width || height < size.height || depth < size.depth) {}
};

inline bool IsInside(QvprPoint at, const VolumeSize& whole) {
  return at.x >= 0 && at.y >= 0 && at.z >= 0 && at.x < whole.width && at.y < whole.height && at.z < whole.depth;
}

}  // namespace qvp::volume
