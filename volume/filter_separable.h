// Separable filters in space: across, down, then through the planes, in floats.
#pragma once

#include "volume/filter_kernels.h"

namespace qvp::volume {

// A block of the region. Each plane under the kernel is summed across and down once, and kept as long as it is needed.
template <class T>
class SeparableBlock {
 public:
  SeparableBlock(const FilterRecord& record, const SeparablePlan& plan, Extent columns, Extent rows, uint8_t* memory)
      : mask_(record.mask()), columns_(columns), rows_(rows), step_(plan.step()) {
    const float* const x = record.Coefficients<float>();
    across_ = {x, 1, mask_.width, record.mode};
    down_ = {x + mask_.width, mask_.height, 1, record.mode};
    through_ = {x + mask_.width + mask_.height, mask_.depth, 1, record.mode};
    lines_ = reinterpret_cast<const float**>(AtBoundary(memory));
    rowsRing_ = {AtBoundary(reinterpret_cast<float*>(lines_ + std::max(mask_.height, mask_.depth))), step_,
                 mask_.height};
    planes_ = {rowsRing_.at + mask_.height * step_, (rows.end - rows.begin) * step_, mask_.depth};
    room_ = reinterpret_cast<uint8_t*>(planes_.at + mask_.depth * planes_.step);
  }

  void Filter(const BorderedVolume<T>& src, const Volume<T>& dst, ptrdiff_t depth) {
    const ptrdiff_t behind = mask_.depth - 1 - mask_.before.z;
    for (ptrdiff_t z = -mask_.before.z; z < depth + behind; ++z) {
      Prepare(src.Plane(z), planes_.Row(z));
      if (z >= behind) SumPlanes(z - behind, dst.Plane(z - behind));
    }
  }

 private:
  ptrdiff_t samples() const { return columns_.end - columns_.begin; }

  // Sums of a plane across and down.
  void Prepare(const BorderedImage<T>& image, float* to) {
    BorderRows<SingleRows<T, float>, T> source(image, mask_.Columns(columns_), samples() >= across_.kLanes);
    float* const line = reinterpret_cast<float*>(source.Start(room_));
    const ptrdiff_t first = rows_.begin - mask_.before.y;
    for (ptrdiff_t y = first; y < rows_.end + mask_.height - 1 - mask_.before.y; ++y) {
      const float* const whole = source.Line(y, line);
      across_(&whole, samples(), rowsRing_.Row(y));
      if (y < first + mask_.height - 1) continue;
      List(rowsRing_, y - mask_.height + 1, 0);
      down_(lines_, samples(), to);
      to += step_;
    }
  }

  void SumPlanes(ptrdiff_t z, const Image<T>& dst) {
    for (ptrdiff_t y = rows_.begin; y < rows_.end; ++y) {
      List(planes_, z - mask_.before.z, (y - rows_.begin) * step_);
      through_(lines_, samples(), dst.Row(y) + columns_.begin);
    }
  }

  // All positions of a ring from one on.
  void List(const RowRing<float>& ring, ptrdiff_t position, ptrdiff_t offset) {
    const float* row = ring.Row(position);
    for (int i = 0; i < ring.places; ++i, row = ring.Next(row)) lines_[i] = row + offset;
  }

  Mask mask_;
  Extent columns_, rows_;
  ptrdiff_t step_;
  FloatSums<T> across_, down_, through_;
  const float** lines_;
  RowRing<float> rowsRing_, planes_;
  uint8_t* room_;
};

template <class T>
void FilterSeparably(const FilterRecord& record, const BorderedVolume<T>& src, const Volume<T>& dst,
                     const VolumeSize& size, uint8_t* buffer) {
  const SeparablePlan plan(record.mask(), size);
  plan.ForEachBlock([&](Extent columns, Extent rows) {
    SeparableBlock<T>(record, plan, columns, rows, buffer).Filter(src, dst, size.depth);
  });
}

}  // namespace qvp::volume
