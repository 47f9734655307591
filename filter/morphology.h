// The record of erosion and dilation: a mask as chords.
//
// A chord, a run of selected pixels of a mask's row, is two windows of a power of two pixels that overlap or are the
// same. Masks of regular shapes have few chords that differ in more than their row: these become lines of their own, so
// that each use of one is a single read, often for two rows of results. Else lines are all such windows, and a chord
// is two reads.
#pragma once

#include "base/record.h"
#include "filter/windows.h"

namespace qvp::filter {

// The windows begin at a column and at a second one, which is not before it, and have 2^level pixels.
struct ChordSpan {
  int32_t column, second, level;

  bool operator==(const ChordSpan&) const = default;
};

struct Chord {
  int32_t row;
  ChordSpan span;
};

// Successive lines of a span, in the window of lines that two rows of results have.
struct SpanUse {
  int32_t line;
  uint32_t span : 4, count : 28;
};

struct MorphologyRecord {
  static constexpr uint32_t kIdentification = 0x4D70684D;
  static constexpr int kHeadBytes = 192, kMostSpans = 12;

  uint32_t identification;
  int32_t width, height, anchorX, anchorY;
  int32_t isFull;    // all pixels are selected
  int32_t isDirect;  // lines are rows of pixels: a span is a column
  int32_t levels;    // of windows: 1, 2, 4... pixels
  int32_t spans;     // by ascending levels; 0 if there are too many
  // Of spans: uses by both rows, by the upper one, by the lower one. Else: chords of two windows, and of one.
  int32_t counts[3];
  ChordSpan spanAt[kMostSpans];

  // The bytes for any mask of a size.
  static ByteCount Bytes(QvpiSize mask) {
    const ByteCount chords = ByteCount(mask.height) * (int64_t{mask.width} / 2 + mask.width % 2);
    return chords * int64_t{sizeof(Chord)} + kHeadBytes + kRecordBoundary;
  }

  // A mask serves all images.
  static bool IsFor(QvpDataType, QvpDataType, int) { return true; }
  Reach reach() const { return {anchorX, anchorY, width - 1 - anchorX, height - 1 - anchorY}; }
  uint8_t* Table() { return reinterpret_cast<uint8_t*>(this) + kHeadBytes; }
  Chord* Chords() { return reinterpret_cast<Chord*>(Table()); }
  SpanUse* Uses() { return reinterpret_cast<SpanUse*>(Table()); }
  const Chord* Chords() const { return const_cast<MorphologyRecord*>(this)->Chords(); }
  const SpanUse* Uses() const { return const_cast<MorphologyRecord*>(this)->Uses(); }
};
static_assert(sizeof(MorphologyRecord) <= MorphologyRecord::kHeadBytes);
static_assert(sizeof(Chord) == 2 * sizeof(SpanUse), "a chord is used by two rows");

// Levels that the longest chord of a mask may need.
constexpr int LevelsOf(int64_t length) {
  int levels = 1;
  while ((int64_t{1} << levels) <= length) ++levels;
  return levels;
}

// Where levels are made on their way to spans: two rows as long as the region with its reach.
constexpr ByteCount LevelBytes(int64_t samples, int elementBytes) {
  return (ByteCount(samples) * elementBytes + kRecordBoundary).RoundedTo(kRecordBoundary);
}

}  // namespace qvp::filter
