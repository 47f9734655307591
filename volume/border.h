// What lies around a volume: border types, and planes, rows and columns beyond the region.
#pragma once

#include "base/border_rows.h"
#include "base/volume.h"

namespace qvp::volume {

// Whether a function that knows the given kinds takes the border type: all faces in memory without a kind, or a kind of
// the set with any faces in memory.
constexpr bool IsVolumeBorderOf(std::initializer_list<BorderKind> kinds, QvpiBorderType border) {
  if ((border & ~(0xF | qvpBorderInMemVolume)) != 0) return false;
  return border == qvpBorderInMemVolume || std::find(kinds.begin(), kinds.end(), KindOf(border)) != kinds.end();
}

// Planes that can be read, counted from the first of the region.
constexpr Extent EffectivePlanes(QvpiBorderType border, ptrdiff_t depth, ptrdiff_t front, ptrdiff_t back) {
  return EffectiveExtent(depth, HasFlag(border, qvpBorderInMemFront), front, HasFlag(border, qvpBorderInMemBack), back);
}

// How far an operation reaches beyond a voxel.
struct VolumeReach {
  Reach plane;
  ptrdiff_t front, back;
};

// A volume with what the border puts around it: a bordered image for each plane, those beyond the region too.
template <class T>
class BorderedVolume {
 public:
  BorderedVolume(const Volume<const T>& volume, const VolumeSize& size, QvpiBorderType border, const T* constant,
                 const VolumeReach& reach)
      : volume_(volume),
        size_(size.plane()),
        border_(border),
        reach_(reach.plane),
        planes_(EffectivePlanes(border, size.depth, reach.front, reach.back)),
        constant_(KindOf(border) == BorderKind::kConst ? LoadScalar(constant) : T{}) {}

  // Of a plane that the constant stands for, no row can be read.
  BorderedImage<T> Plane(ptrdiff_t z) const {
    const ptrdiff_t plane = BorderPosition(KindOf(border_), z, planes_);
    const bool isConstant = plane == kOutside;
    auto bordered = WithBorder(volume_.Plane(isConstant ? 0 : plane), size_, border_, &constant_, reach_);
    if (isConstant) bordered.rows = {0, 0};
    return bordered;
  }

 private:
  Volume<const T> volume_;
  Size size_;
  QvpiBorderType border_;
  Reach reach_;
  Extent planes_;
  T constant_;
};

}  // namespace qvp::volume
