// The walk of filters in space: blocks of a region, for which rows of all planes under a mask are prepared once and
// kept in the second cache.
#pragma once

#include "base/row_ring.h"
#include "volume/mask.h"

namespace qvp::volume {

// How a region is divided.
class BlockPlan {
 public:
  BlockPlan(const Mask& mask, const VolumeSize& size) : mask_(mask), size_(size) {
    const int64_t inCache = kSamples / mask.depth / (kRows + mask.height - 1);
    const int64_t columns = std::min<int64_t>(size.width, std::max({kColumns, 4 * int64_t{mask.width}, inCache}));
    step_ = LineBytesFor(columns + mask.width - 1, sizeof(float)).value() / int64_t{sizeof(float)};
    const int64_t rows = std::max<int64_t>(kSamples / mask.depth / step_ - mask.height, FewestRows());
    most_ = {static_cast<ptrdiff_t>(columns), static_cast<ptrdiff_t>(std::min<int64_t>(rows, size.height))};
  }

  ptrdiff_t step() const { return static_cast<ptrdiff_t>(step_); }  // of rows, in elements

  // What a block takes: the ring of planes, a ring of rows and a line of one of them, and lists. Lower regions may have
  // higher blocks where they are narrower, but not with more samples.
  ByteCount Bytes() const {
    const int64_t most = std::max<int64_t>(kSamples / mask_.depth, (FewestRows() + mask_.height) * step_);
    const ByteCount whole = (ByteCount(size_.height) + mask_.height) * step_;
    const ByteCount rows = ByteCount(std::min(most, whole.value())) * mask_.depth + ByteCount(mask_.height + 2) * step_;
    return rows * int64_t{sizeof(float)} + ByteCount(mask_.width) * 4 + ByteCount(mask_.height + 1) * mask_.depth * 8 +
           8 * kRecordBoundary;
  }

  template <class Walk>
  void ForEachBlock(const Walk& walk) const {
    ForEachPart(size_.height, most_.height, [&](Extent rows) {
      ForEachPart(size_.width, most_.width, [&](Extent columns) { walk(columns, rows); });
    });
  }

 private:
  static constexpr int64_t kColumns = 128, kRows = 16, kSamples = 1 << 16;

  int64_t FewestRows() const { return 2 * (int64_t{mask_.height} + 1); }

  template <class Walk>
  static void ForEachPart(int64_t length, int64_t most, const Walk& walk) {
    const int64_t parts = (length + most - 1) / most;
    for (int64_t i = 0; i < parts; ++i) {
      walk(Extent{static_cast<ptrdiff_t>(length * i / parts), static_cast<ptrdiff_t>(length * (i + 1) / parts)});
    }
  }

  Mask mask_;
  VolumeSize size_;
  int64_t step_;
  Size most_{0, 0};
};

// The block's part of the planes under a kernel, each with the rows for windows of `height` lines.
template <class E>
class PlaneRing {
 public:
  PlaneRing(const Mask& mask, int height, Extent rows, ptrdiff_t step, uint8_t* memory)
      : depth_(mask.depth), height_(height), step_(step), lines_(reinterpret_cast<const E**>(AtBoundary(memory))) {
    E* const first = AtBoundary(reinterpret_cast<E*>(lines_ + ptrdiff_t{height} * depth_));
    planes_ = {first, (rows.end - rows.begin + height - 1) * step, depth_};
  }

  E* Plane(ptrdiff_t z) const { return planes_.Row(z); }

  // The lines under a kernel from plane z and row y of the block on: from the uppermost on, one plane after the other.
  const E* const* Lines(ptrdiff_t z, ptrdiff_t y) const {
    const E** to = lines_;
    const E* plane = planes_.Row(z);
    for (int k = 0; k < depth_; ++k, plane = planes_.Next(plane)) {
      const E* line = plane + y * step_;
      for (int j = 0; j < height_; ++j, line += step_) *to++ = line;
    }
    return lines_;
  }

  // The boundary behind the planes.
  uint8_t* end() const { return AtBoundary(reinterpret_cast<uint8_t*>(planes_.at + depth_ * planes_.step)); }

 private:
  int depth_, height_;
  ptrdiff_t step_;
  const E** lines_;
  RowRing<E> planes_;
};

// Results of a block: prepare(plane, to, memory, then) prepares its rows of a plane, and calls then(y) as soon as rows
// of results from y on can be made of them; make(z, y) makes those of plane z.
template <class E, class T, class Prepare, class Make>
void FilterBlock(const BorderedVolume<T>& src, ptrdiff_t depth, const Mask& mask, const PlaneRing<E>& ring,
                 const Prepare& prepare, const Make& make) {
  const ptrdiff_t behind = mask.depth - 1 - mask.before.z;
  for (ptrdiff_t next = -mask.before.z; next < depth + behind; ++next) {
    const ptrdiff_t z = next - behind;
    prepare(src.Plane(next), ring.Plane(next), ring.end(), [&](ptrdiff_t y) {
      if (z >= 0) make(z, y);
    });
  }
}

// Two rows of results at a time, from rows in a form: make(lines, n, upper, lower), of which the lines are those under
// both, one more in each plane than a mask has. A last row without a second is made twice.
template <class Form, class T, class Make>
void FilterMasked(const Mask& mask, const BorderedVolume<T>& src, const Volume<T>& dst, const VolumeSize& size,
                  uint8_t* buffer, const Make& make) {
  const BlockPlan plan(mask, size);
  plan.ForEachBlock([&](Extent columns, Extent rows) {
    const PlaneRing<typename Form::Element> ring(mask, mask.height + 1, rows, plan.step(), buffer);
    const auto prepare = [&](const BorderedImage<T>& image, auto* to, uint8_t* memory, const auto& then) {
      BorderRows<Form, T> source(image, mask.Columns(columns), false);
      source.Start(memory);
      const ptrdiff_t first = rows.begin - mask.before.y;
      ptrdiff_t line = 0;
      for (ptrdiff_t y = 0; y < rows.end - rows.begin; y += 2) {
        for (; line <= y + mask.height; ++line) source.Line(first + line, to + line * plan.step());
        then(y);
      }
    };
    FilterBlock(src, size.depth, mask, ring, prepare, [&](ptrdiff_t z, ptrdiff_t y) {
      const Image<T> results = dst.Plane(z);
      const ptrdiff_t upper = rows.begin + y, lower = std::min(upper + 1, rows.end - 1);
      make(ring.Lines(z - mask.before.z, y), columns.end - columns.begin, results.Row(upper) + columns.begin,
           results.Row(lower) + columns.begin);
    });
  });
}

}  // namespace qvp::volume
