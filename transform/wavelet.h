// The record of wavelet transforms, and the plan of their work buffer.
#pragma once

#include <algorithm>

#include "base/border.h"
#include "base/record.h"
#include "qvptypes.h"

namespace qvp::wavelet {

inline constexpr int kMostTaps = 64;

struct Filter {
  int32_t length, anchor;
  float taps[kMostTaps];

  int Behind() const { return length - 1 - anchor; }  // taps behind the anchor
};

// The places of a line that results 2 k and 2 k + 1 are made from: 2 k - before to 2 k + behind. In an analysis these
// are place k of both bands.
struct Span {
  int before, behind;
};

struct WaveletRecord {
  uint32_t identification;
  BorderKind border;
  Filter analysisLow, analysisHigh, synthesisLow, synthesisHigh;

  static constexpr uint32_t kIdentification = 0x51575654;

  Span Analysis() const {
    return {std::max(analysisLow.anchor, analysisHigh.anchor - 1),
            std::max(analysisLow.Behind(), analysisHigh.Behind() + 1)};
  }
  // Taps meet what lies before them in opposite order.
  Span Synthesis() const {
    return {std::max(synthesisLow.Behind(), synthesisHigh.Behind()),
            std::max(synthesisLow.anchor, synthesisHigh.anchor) + 1};
  }

  // The place that stands for one beyond the ends. Even ones stand for even ones: where the border wraps, n is even.
  ptrdiff_t PlaceOf(ptrdiff_t place, ptrdiff_t n) const { return BorderPosition(border, place, {0, n}); }
};

// How many numbers of a line are in its lower band, and in the higher one.
constexpr ptrdiff_t LowOf(ptrdiff_t n) { return n / 2 + n % 2; }
constexpr ptrdiff_t HighOf(ptrdiff_t n) { return n / 2; }

// Floats of columns that are transformed together, in place.
inline constexpr ptrdiff_t kStrip = 16;

// The work buffer. For rows: lines of one band with what lies beyond its ends, and a ring of rows that wait for the
// others that they are added to. For columns in place, at another time: a strip with what lies beyond its ends.
struct WaveletPlan {
  static constexpr int kLines = 6;
  // Beyond so many rows of a ring the buffer were too large: rows and columns are transformed in turns then.
  static constexpr int kMostRows = 70;

  Span longest;         // what filters reach at most
  int rows;             // of the ring, if there is one
  ByteCount line, row;  // bytes
  ByteCount strip;

  WaveletPlan(const WaveletRecord& record, int64_t width, int64_t height, int channels)
      : longest{std::max(record.Analysis().before, record.Synthesis().before),
                std::max(record.Analysis().behind, record.Synthesis().behind)},
        rows(RowsFor(record.Analysis())),
        line(Floats(ByteCount(width / 2 + 1 + longest.behind / 2) * channels + FloatsBefore(channels))),
        row(Floats(ByteCount(width) * channels)),
        strip(Floats((ByteCount(height) + 1 + longest.before + longest.behind) * kStrip)) {}

  // Of a line, before its place 0: that is at a boundary.
  int FloatsBefore(int channels) const {
    constexpr int kBoundary = kRecordBoundary / int{sizeof(float)};
    return ((longest.before + 1) / 2 * channels + kBoundary - 1) / kBoundary * kBoundary;
  }
  ByteCount Bytes() const {
    const ByteCount ofRows = kLines * line + rows * row;
    return ByteCount(std::max(ofRows.value(), strip.value())) + kRecordBoundary;
  }

 private:
  // And room for a vector.
  static ByteCount Floats(ByteCount count) {
    return (count * int64_t{sizeof(float)} + kRecordBoundary).RoundedTo(kRecordBoundary);
  }
  static int RowsFor(Span span) {
    const int count = span.before + 1 + span.behind;
    return count <= kMostRows ? count : 0;
  }
};

}  // namespace qvp::wavelet
