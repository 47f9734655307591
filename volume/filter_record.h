// The record of the general filter in space.
#pragma once

#include "base/record.h"
#include "volume/windows.h"

namespace qvp::volume {

// What sums are made of: integers that stay in 32 bits or not, floats, floats along one axis after the other.
enum class FilterSums : int32_t { kWords, kLongs, kFloats, kSeparable };

// The record begins at the first boundary of the caller's block. Kernels are stored turned around, so that they are
// correlated with the volume: plane by plane, row by row. After the head follow
//   floats: the coefficients, of separable kernels those along x, y and z
//   integers: the coefficients as 32-bit numbers; then, at a boundary, each row of them in pairs, with 0 behind an odd
//   number of columns
struct FilterRecord {
  uint32_t identification;
  QvpDataType type;
  FilterSums sums;
  QvpRoundMode mode;
  QvprVolume kernel;
  QvprPoint anchor;
  int32_t divisor;
  int64_t total, largest;  // of an integer kernel's coefficients, and the bound of its sums' magnitude

  static constexpr uint32_t kIdentification = 0x51565203;
  static constexpr int kHeadBytes = 128;

  // An anchor that is the last cell leaves all other voxels of the mask behind the result's place.
  Mask mask() const {
    return {kernel, {kernel.width - 1 - anchor.x, kernel.height - 1 - anchor.y, kernel.depth - 1 - anchor.z}};
  }
  template <class C>
  C* Coefficients() {
    return reinterpret_cast<C*>(reinterpret_cast<uint8_t*>(this) + kHeadBytes);
  }
  template <class C>
  const C* Coefficients() const {
    return const_cast<FilterRecord*>(this)->Coefficients<C>();
  }
  int32_t* Pairs() { return AtBoundary(Coefficients<int32_t>() + mask().cells()); }
  const int32_t* Pairs() const { return const_cast<FilterRecord*>(this)->Pairs(); }
};
static_assert(sizeof(FilterRecord) <= FilterRecord::kHeadBytes);

// How separable filters divide a region: blocks whose sums across and down of all planes under the kernel stay in the
// second cache.
class SeparablePlan {
 public:
  SeparablePlan(const Mask& mask, const VolumeSize& size) : mask_(mask), size_(size) {
    const int64_t columns = std::min<int64_t>(size.width, std::max<int64_t>(kColumns, 4 * int64_t{mask.width}));
    step_ = LineBytesFor(columns, sizeof(float)).value() / int64_t{sizeof(float)};
    const int64_t rows = std::max<int64_t>(kSamples / mask.depth / step_, 2 * (int64_t{mask.height} + 1));
    most_ = {static_cast<ptrdiff_t>(columns), static_cast<ptrdiff_t>(std::min<int64_t>(rows, size.height))};
  }

  ptrdiff_t step() const { return static_cast<ptrdiff_t>(step_); }  // of rows of sums, in elements

  // What a block takes: sums of planes, sums of rows, a line, and lists of them. Lower regions may have higher blocks
  // where they are narrower, but not with more samples.
  ByteCount Bytes() const {
    const ByteCount most = std::max<int64_t>(kSamples / mask_.depth, 2 * (int64_t{mask_.height} + 1) * step_);
    const ByteCount plane = std::min(most.value(), (ByteCount(size_.height) * step_).value());
    const ByteCount line = LineBytesFor(ByteCount(most_.width) + mask_.width, sizeof(float));
    return (plane * mask_.depth + ByteCount(mask_.height) * step_) * int64_t{sizeof(float)} + line * 2 +
           ByteCount(mask_.width) * 4 + (ByteCount(mask_.height) + mask_.depth) * 8 + 8 * kRecordBoundary;
  }

  template <class Walk>
  void ForEachBlock(const Walk& walk) const {
    ForEachPart(size_.height, most_.height, [&](Extent rows) {
      ForEachPart(size_.width, most_.width, [&](Extent columns) { walk(columns, rows); });
    });
  }

 private:
  static constexpr int64_t kColumns = 128, kSamples = 1 << 16;

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

}  // namespace qvp::volume
