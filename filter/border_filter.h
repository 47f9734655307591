// The record of the general filter, and the plan of its work buffer.
#pragma once

#include "base/record.h"
#include "base/row_ring.h"

namespace qvp::filter {

// What the coefficients are, and which images they were made for.
enum class FilterKind : int32_t { kInt8u = 0, kInt16s = 1, k8u = 3, k16s = 4, k16u = 5, k32f = 6, k64f = 7 };

constexpr bool IsInteger(FilterKind kind) { return kind == FilterKind::kInt8u || kind == FilterKind::kInt16s; }

// How pairs of coefficients of an integer kernel are multiplied.
enum class PairForm : int32_t {
  kNone,   // not at all: a coefficient is an extreme of 16 bits
  kBytes,  // 8-bit pixels and coefficients, 16-bit sums
  kWords,  // 16-bit pixels and coefficients, 32-bit sums
};

// The record begins at the first boundary of the caller's block. Kernels are stored rotated by 180 degrees, so that
// they are correlated with the image. After the head follow
//   the coefficients as double, undivided; then, at a boundary,
//   float kinds: the coefficients as float
//   integer kinds: pairs of coefficients, see PairsAt
struct FilterRecord {
  FilterKind kind;
  int32_t width, height, channels;
  int32_t divisor, offset;  // integer kinds divide by the divisor; the offset is added to the quotient
  QvpRoundMode roundMode;   // with the flag of accuracy
  QvpHintAlgorithm hint;
  PairForm pairForm;
  uint32_t identification;
  int64_t positive, negative;  // sums of the coefficients of an integer kernel of either sign

  static constexpr uint32_t kIdentification = 0x46427264;
  static constexpr int kHeadBytes = 128, kModeMask = 3;

  bool IsReady() const { return identification == kIdentification; }

  QvpiSize size() const { return {width, height}; }
  ptrdiff_t taps() const { return static_cast<ptrdiff_t>(width) * height; }
  int mode() const { return roundMode & kModeMask; }
  // An even side reaches one pixel further right, or below.
  Reach reach() const { return {(width - 1) / 2, (height - 1) / 2, width / 2, height / 2}; }

  double* Doubles() { return reinterpret_cast<double*>(reinterpret_cast<uint8_t*>(this) + kHeadBytes); }
  const double* Doubles() const { return const_cast<FilterRecord*>(this)->Doubles(); }
  float* Floats() { return reinterpret_cast<float*>(AtBoundary(Doubles() + taps())); }
  const float* Floats() const { return const_cast<FilterRecord*>(this)->Floats(); }

  // Two rows of results are made at a time, from rows of pixels taken in pairs: none is paired twice. Pair p of column
  // i has rows 2p and 2p + 1 of the kernel for the upper result and rows 2p - 1 and 2p for the lower one, 0 where there
  // is no such row. Each is repeated to fill the 32 bits of an entry.
  ptrdiff_t PairsOfRows() const { return height / 2 + 1; }
  int32_t* PairsAt() { return reinterpret_cast<int32_t*>(Floats()); }
  const int32_t* PairsAt() const { return const_cast<FilterRecord*>(this)->PairsAt(); }
};
static_assert(sizeof(FilterRecord) <= FilterRecord::kHeadBytes);

// Two rows of results are made at a time, so that one more row is prepared than the kernel has.
inline WindowPlan PlanFor(QvpiSize kernel, int channels, int64_t regionWidth) {
  return {kernel.width, int64_t{kernel.height} + 1, channels, regionWidth};
}

}  // namespace qvp::filter
