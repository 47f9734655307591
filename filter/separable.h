// The record of the separable filter.
#pragma once

#include "base/record.h"
#include "filter/windows.h"

namespace qvp::filter {

// How sums are formed.
enum class SeparableForm : int32_t {
  kWords,    // across in 16 bits, down in 32
  kInts,     // both in 32 bits
  kDoubles,  // both in double precision, exact
  kLongs,    // both in 64 bits, as doubles would not be exact
  kFloats,   // both in single precision
};

// After the head follow two tables, at boundaries: taps across, then down, turned by 180 degrees, so that they are
// correlated with the image. A table has, each from a boundary on,
//   kWords, kInts: taps as 32-bit numbers; pairs of them, see PairedTaps
//   kDoubles, kLongs, kFloats: taps as numbers of that type
struct SeparableRecord {
  uint32_t identification;
  QvpDataType srcType, dstType, kernelType;
  int32_t channels, width, height, divisor;
  QvpRoundMode mode;
  SeparableForm form;
  int32_t largestSum;  // kWords, kInts: what a sum can be before it is divided, of either sign
  int32_t rowSum;      // kInts: of the taps across

  static constexpr uint32_t kIdentification = 0x50655346;
  static constexpr int kHeadBytes = 64, kTapBytes = 8;

  static constexpr int64_t ArrayBytes(int64_t taps) {
    return (taps * kTapBytes + kRecordBoundary - 1) / kRecordBoundary * kRecordBoundary;
  }
  static constexpr int64_t TableBytes(int64_t taps) { return 2 * ArrayBytes(taps); }

  bool IsFor(QvpDataType src, QvpDataType dst, int count) const {
    return srcType == src && dstType == dst && channels == count;
  }
  // Pixels to the left and above; an even side reaches one further right, or below.
  Reach reach() const { return {(width - 1) / 2, (height - 1) / 2, width / 2, height / 2}; }

  uint8_t* Across() { return reinterpret_cast<uint8_t*>(this) + kHeadBytes; }
  uint8_t* Down() { return Across() + TableBytes(width); }
  const uint8_t* Across() const { return const_cast<SeparableRecord*>(this)->Across(); }
  const uint8_t* Down() const { return const_cast<SeparableRecord*>(this)->Down(); }

  template <class F>
  static const F* TapsIn(const uint8_t* table) {
    return reinterpret_cast<const F*>(table);
  }
  static const int32_t* PairsIn(const uint8_t* table, int64_t taps) {
    return reinterpret_cast<const int32_t*>(table + ArrayBytes(taps));
  }
};
static_assert(sizeof(SeparableRecord) <= SeparableRecord::kHeadBytes);

}  // namespace qvp::filter
