// The record of the bilateral filter.
//
// A pixel of the disc at (dx, dy) has the weight g = space(dx, dy) * range(q - p). Pixels are taken in pairs, one on
// either side of the middle, so that offsets of half the disc suffice: those to the right of the middle, then all of
// the rows below it.
#pragma once

#include <array>

#include "base/record.h"
#include "filter/windows.h"

namespace qvp::filter {

inline constexpr int kMostRadius = 127;

struct BilateralRecord {
  uint32_t identification;
  QvpDataType type;
  int32_t channels, radius;
  QvpNormType norm;
  float falloff;                        // of squared differences
  int32_t rows;                         // of the disc below the middle whose weights count
  int16_t reachOfRow[kMostRadius + 1];  // to the right of the middle, and to the left

  static constexpr uint32_t kIdentification = 0x4C494251;
  static constexpr int kHeadBytes = 320;

  // Differences of bytes, whose weights are in a table: of one channel, or summed over three.
  static constexpr int kDifferences = 3 * 255 + 1;

  // The pixels of the disc in the row `dy` reach so far.
  static int DiscReach(int radius, int dy) {
    int dx = radius;
    while (dx * dx + dy * dy > radius * radius) --dx;
    return dx;
  }
  static int64_t Offsets(int radius) {
    int64_t count = radius;
    for (int dy = 1; dy <= radius; ++dy) count += 2 * DiscReach(radius, dy) + 1;
    return count;
  }
  static int64_t TableBytes(QvpDataType type) { return type == qvp8u ? kDifferences * int64_t{sizeof(float)} : 0; }

  bool HasTable() const { return type == qvp8u && (channels == 1 || norm == qvpNormL1); }
  // Images of one type, and of so many channels.
  bool IsFor(QvpDataType src, QvpDataType, int count) const { return type == src && channels == count; }
  Reach reach() const { return {radius, radius, radius, radius}; }
  // Of differences, then of offsets: the middle row's from the nearest on, then row by row.
  float* Table() { return reinterpret_cast<float*>(reinterpret_cast<uint8_t*>(this) + kHeadBytes); }
  float* Space() { return Table() + TableBytes(type) / sizeof(float); }
  const float* Table() const { return const_cast<BilateralRecord*>(this)->Table(); }
  const float* Space() const { return const_cast<BilateralRecord*>(this)->Space(); }
};
static_assert(sizeof(BilateralRecord) <= BilateralRecord::kHeadBytes);

// The weight of a pair serves both its pixels: it is kept until its lower one is the middle. For each offset in the row
// `dy` there are dy + 1 rows of weights, those of the row `dy` above among them. So many rows fit the second cache for
// discs up to a radius only.
constexpr int MostKeptRadius(int channels) { return channels == 1 ? 10 : 7; }
inline KeptRows KeptWeights(int radius, int channels) {
  int count = 0;
  for (int dy = 1; dy <= std::min(radius, MostKeptRadius(channels)); ++dy) {
    count += (2 * BilateralRecord::DiscReach(std::min(radius, MostKeptRadius(channels)), dy) + 1) * (dy + 1);
  }
  return {count, sizeof(float)};
}

}  // namespace qvp::filter
