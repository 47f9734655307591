// Separable filters in space: across, down, then through the planes, in floats.
#pragma once

#include "volume/filter_blocks.h"
#include "volume/filter_kernels.h"

namespace qvp::volume {

// The sums along each axis.
template <class T>
struct AxisSums {
  Mask mask;
  AxisSum across, down, through;

  explicit AxisSums(const FilterRecord& record) : mask(record.mask()) {
    const float* const x = record.Coefficients<float>();
    across = {x, 1, mask.width, record.mode};
    down = {x + mask.width, mask.height, 1, record.mode};
    through = {x + mask.width + mask.height, mask.depth, 1, record.mode};
  }

  // Sums of a block of a plane across and down, to rows `step` apart; then(y) for each.
  template <class Then>
  void Prepare(const BorderedImage<T>& image, Extent columns, Extent rows, ptrdiff_t step, float* to, uint8_t* memory,
               const Then& then) const {
    const ptrdiff_t n = columns.end - columns.begin;
    const auto lines = reinterpret_cast<const float**>(AtBoundary(memory));
    const RowRing<float> ring{AtBoundary(reinterpret_cast<float*>(lines + mask.height)), step, mask.height};
    BorderRows<SingleRows<T, float>, T> source(image, mask.Columns(columns), n >= across.kLanes);
    auto* const line = reinterpret_cast<float*>(source.Start(reinterpret_cast<uint8_t*>(ring.at + mask.height * step)));
    const ptrdiff_t first = rows.begin - mask.before.y, full = first + mask.height - 1;
    for (ptrdiff_t y = first; y < rows.end + mask.height - 1 - mask.before.y; ++y) {
      const float* const whole = source.Line(y, line);
      across(&whole, n, ring.Row(y));
      if (y < full) continue;
      const float* row = ring.Row(y - mask.height + 1);
      for (int j = 0; j < mask.height; ++j, row = ring.Next(row)) lines[j] = row;
      down(lines, n, to + (y - full) * step);
      then(y - full);
    }
  }
};

template <class T>
void FilterSeparably(const FilterRecord& record, const BorderedVolume<T>& src, const Volume<T>& dst,
                     const VolumeSize& size, uint8_t* buffer) {
  const AxisSums<T> sums(record);
  const BlockPlan plan(sums.mask, size);
  plan.ForEachBlock([&](Extent columns, Extent rows) {
    const PlaneRing<float> ring(sums.mask, 1, rows, plan.step(), buffer);
    const auto prepare = [&](const BorderedImage<T>& image, float* to, uint8_t* memory, const auto& then) {
      sums.Prepare(image, columns, rows, plan.step(), to, memory, then);
    };
    const auto make = [&](ptrdiff_t z, ptrdiff_t y, const float* const* lines) {
      sums.through(lines, columns.end - columns.begin, dst.Plane(z).Row(rows.begin + y) + columns.begin);
    };
    FilterBlock(src, size.depth, sums.mask, ring, prepare, make);
  });
}

}  // namespace qvp::volume
