// The record and the work buffer of the general filter.
#pragma once

#include <algorithm>

#include "base/record.h"

namespace qvp {

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
  int64_t positive, negative;  // sums of the coefficients of an integer kernel of either sign
  PairForm pairForm;
  int32_t reserved;  // instead of padding

  static constexpr int kHeadBytes = 128, kModeMask = 3;

  static FilterRecord* At(QvpiFilterBorderSpec* p) { return reinterpret_cast<FilterRecord*>(AtBoundary(Bytes(p))); }
  static const FilterRecord* At(const QvpiFilterBorderSpec* p) {
    return reinterpret_cast<const FilterRecord*>(AtBoundary(reinterpret_cast<const uint8_t*>(p)));
  }

  ptrdiff_t taps() const { return static_cast<ptrdiff_t>(width) * height; }
  int mode() const { return roundMode & kModeMask; }
  ptrdiff_t left() const { return (width - 1) / 2; }
  ptrdiff_t above() const { return (height - 1) / 2; }
  ptrdiff_t right() const { return width - 1 - left(); }
  ptrdiff_t below() const { return height - 1 - above(); }

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

 private:
  static uint8_t* Bytes(QvpiFilterBorderSpec* p) { return reinterpret_cast<uint8_t*>(p); }
};
static_assert(sizeof(FilterRecord) <= FilterRecord::kHeadBytes);

// Where the parts of the work buffer lie. A region is filtered in blocks of columns; the rows of a block that a result
// needs are prepared for the kernels here, border columns included, in up to 8 bytes a sample.
class FilterWork {
 public:
  // For regions up to `regionWidth`.
  FilterWork(int32_t width, int32_t height, int channels, ptrdiff_t regionWidth)
      : kernelWidth_(width),
        rows_(int64_t{height} + 1),
        channels_(channels),
        columns_(std::min<int64_t>(regionWidth, BlockColumns(width, height, channels))) {}

  // Columns of a block: so few that its rows stay in the nearest cache, but enough for the border of one side to be
  // found in the same block even if the region is cut evenly and its last block is half of this.
  static constexpr int64_t BlockColumns(int64_t width, int64_t height, int channels) {
    constexpr int64_t kCacheSamples = 4096;
    return std::max({kCacheSamples / ((height + 1) * channels), 4 * width, int64_t{64}});
  }

  // Bytes as long as the longest vector.
  static constexpr int64_t kSpare = 256;

  int64_t columns() const { return columns_; }
  // A prepared row, and as many bytes as the longest vector beyond it, which may be read and written.
  ByteCount RowBytes() const {
    return (ByteCount(columns_ + kernelWidth_ - 1) * channels_ * int64_t{sizeof(double)} + kSpare)
        .RoundedTo(kRecordBoundary);
  }
  ByteCount PointerBytes() const { return (ByteCount(rows_) * 8).RoundedTo(kRecordBoundary); }
  ByteCount EdgeBytes() const {
    return (ByteCount(kernelWidth_) * int64_t{sizeof(int32_t)}).RoundedTo(kRecordBoundary);
  }
  // The prepared rows, one row of the border's constant, pointers to the rows, and the sources of border columns.
  ByteCount Total() const { return RowBytes() * (rows_ + 1) + PointerBytes() + EdgeBytes() + kRecordBoundary; }

 private:
  int64_t kernelWidth_, rows_;
  int channels_;
  int64_t columns_;
};

}  // namespace qvp
