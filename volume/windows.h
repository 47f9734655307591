// The walk of filters in space: a window of rows of each plane that a mask covers, which moves down over a plane of
// results, block by block of its columns.
#pragma once

#include <new>

#include "base/row_ring.h"
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

// The most that the object of a plane's window has on any machine.
inline constexpr int64_t kPlaneWindowBytes = 512;

// Of lines of elements up to so many bytes. All lines of a block stay in the nearest cache, as far as they are few.
class WindowsPlan {
 public:
  WindowsPlan(const Mask& mask, int64_t regionWidth, int elementBytes)
      : mask_(mask),
        ofPlane_(mask.width, mask.height, 1, regionWidth, elementBytes, WindowPlan::kNearestSamples / mask.depth) {}

  // What the windows of all planes take, and the list of their lines, from any address on.
  ByteCount Bytes() const {
    const ByteCount ofPlane = ofPlane_.Bytes() + kPlaneWindowBytes;
    return ofPlane * mask_.depth + ByteCount(mask_.height) * mask_.depth * 8 + 2 * kRecordBoundary;
  }

  template <class Walk>
  void ForEachBlock(const Walk& walk) const {
    ofPlane_.ForEachBlock(walk);
  }

 private:
  Mask mask_;
  WindowPlan ofPlane_;
};

// Lines of a mask's planes over a block of columns, for one plane of results.
template <class Form, class T>
class MaskWindows {
 public:
  using Element = typename Form::Element;

  // For results of plane z from row 0 on. Lines are rows of the volume where these can be read as far as kernels do:
  // to the last column that a mask covers.
  MaskWindows(const BorderedVolume<T>& volume, const Mask& mask, Extent columns, bool mayBeInPlace, ptrdiff_t z,
              uint8_t* memory)
      : mask_(mask) {
    const Extent covered = mask.Columns(columns);
    lines_ = reinterpret_cast<const Element**>(AtBoundary(memory));
    windows_ = reinterpret_cast<PlaneWindow*>(AtBoundary(reinterpret_cast<uint8_t*>(lines_ + mask.lines())));
    uint8_t* room = AtBoundary(reinterpret_cast<uint8_t*>(windows_ + mask.depth));
    for (int i = 0; i < mask.depth; ++i) {
      auto* const window =
          new (windows_ + i) PlaneWindow(volume.Plane(z + i - mask.before.z), covered, mayBeInPlace, mask);
      room = AtBoundary(window->rows.Start(room));
    }
    List();
  }

  // The lines of each plane from the uppermost on, one plane after the other.
  const Element* const* lines() const { return lines_; }

  void MoveDown() {
    for (int i = 0; i < mask_.depth; ++i) windows_[i].rows.Advance(1);
    List();
  }

 private:
  struct PlaneWindow {
    BorderedImage<T> image;
    RowWindow<Form, T> rows;

    PlaneWindow(const BorderedImage<T>& from, Extent columns, bool mayBeInPlace, const Mask& mask)
        : image(from), rows(image, columns, mayBeInPlace, -ptrdiff_t{mask.before.y}, mask.height) {}
  };

  static_assert(sizeof(PlaneWindow) <= kPlaneWindowBytes);

  void List() {
    for (int i = 0; i < mask_.depth; ++i) {
      std::copy_n(windows_[i].rows.lines(), mask_.height, lines_ + ptrdiff_t{i} * mask_.height);
    }
  }

  const Mask& mask_;
  const Element** lines_;
  PlaneWindow* windows_;
};

// down(lines, n, out) for each row of results in each block of columns, n of them.
template <class Form, class T, class Down>
void FilterMasks(const BorderedVolume<T>& src, const Volume<T>& dst, const VolumeSize& size, const Mask& mask,
                 ptrdiff_t fewestInPlace, uint8_t* buffer, const Down& down) {
  const WindowsPlan plan(mask, size.width, sizeof(typename Form::Element));
  for (ptrdiff_t z = 0; z < size.depth; ++z) {
    const Image<T> results = dst.Plane(z);
    plan.ForEachBlock([&](Extent columns) {
      const ptrdiff_t n = columns.end - columns.begin;
      MaskWindows<Form, T> windows(src, mask, columns, n >= fewestInPlace, z, buffer);
      for (ptrdiff_t y = 0; y < size.height; ++y) {
        if (y > 0) windows.MoveDown();
        down(windows.lines(), n, results.Row(y) + columns.begin);
      }
    });
  }
}

}  // namespace qvp::volume
