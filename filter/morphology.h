// The record of erosion and dilation: a mask as chords.
#pragma once

#include "base/record.h"
#include "filter/windows.h"

namespace qvp::filter {

// A run of selected pixels of a mask's row: two windows of 2^level pixels, at a column and a second one, which overlap
// or are the same.
struct Chord {
  int32_t row, column, second, level;
};

struct MorphologyRecord {
  uint32_t identification;
  int32_t width, height, anchorX, anchorY;
  int32_t levels;          // of windows: 1, 2, 4... pixels
  int32_t pairs, singles;  // chords of two windows; behind them those of one
  int32_t isFull;          // all pixels are selected

  static constexpr uint32_t kIdentification = 0x4D70684D;
  static constexpr int kHeadBytes = 64;

  // The bytes for any mask of a size.
  static ByteCount Bytes(QvpiSize mask) {
    const ByteCount chords = ByteCount(mask.height) * (int64_t{mask.width} / 2 + mask.width % 2);
    return chords * int64_t{sizeof(Chord)} + kHeadBytes + kRecordBoundary;
  }

  Reach reach() const { return {anchorX, anchorY, width - 1 - anchorX, height - 1 - anchorY}; }
  Chord* Chords() { return reinterpret_cast<Chord*>(reinterpret_cast<uint8_t*>(this) + kHeadBytes); }
  const Chord* Chords() const { return const_cast<MorphologyRecord*>(this)->Chords(); }

  static MorphologyRecord* At(QvpiFilterMorphologyBorderSpec* p) {
    return reinterpret_cast<MorphologyRecord*>(AtBoundary(reinterpret_cast<uint8_t*>(p)));
  }
  static const MorphologyRecord* At(const QvpiFilterMorphologyBorderSpec* p) {
    return reinterpret_cast<const MorphologyRecord*>(AtBoundary(reinterpret_cast<const uint8_t*>(p)));
  }
};
static_assert(sizeof(Chord) == 16 && sizeof(MorphologyRecord) <= MorphologyRecord::kHeadBytes);

// Levels that the longest chord of a mask may need.
constexpr int LevelsOf(int64_t length) {
  int levels = 1;
  while ((int64_t{1} << levels) <= length) ++levels;
  return levels;
}

}  // namespace qvp::filter
