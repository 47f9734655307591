// The record of the general filter in space.
#pragma once

#include "base/record.h"
#include "volume/mask.h"

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

}  // namespace qvp::volume
