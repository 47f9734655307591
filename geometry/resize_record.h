// The resize record: a header of 49 words, followed by the tables of both axes.
#pragma once

#include <algorithm>
#include <cstring>

#include "base/image.h"
#include "base/record.h"

namespace qvp::resize {

struct Point {
  ptrdiff_t x, y;
  Point(ptrdiff_t column, ptrdiff_t row) : x(column), y(row) {}
  Point(QvpiPoint point) : x(point.x), y(point.y) {}
  Point(QvpiPointL point) : x(point.x), y(point.y) {}
};

// Which functions made a record and may use it: those with 32-bit sizes or the `_L` ones. The value is the record's
// first word.
enum class ResizeForm : uint32_t { kPlain = 0x4B617389, kWide = 0x4B61738C };

// What the weights of a record are: pairs of 16-bit numbers in units of 1/16384, or floating-point.
enum class WeightKind : int32_t { kFixed = 7, kFloat = 13, kDouble = 19 };

inline constexpr int kFixedOne = 16384;

// The tables begin behind the header, each at a multiple of kTableAlignment.
inline constexpr int64_t kTablesAt = 256, kTableAlignment = 32;

// From the weights of one tap to those of the next: a table of weights holds all positions for the first tap (or pair
// of taps), then all for the second, so that vectors of positions are contiguous.
constexpr int64_t PlaneOf(int64_t length) { return (length + kTableAlignment - 1) & -kTableAlignment; }

constexpr ptrdiff_t FloorOf(double x) {
  const auto whole = static_cast<ptrdiff_t>(x);
  return static_cast<double>(whole) > x ? whole - 1 : whole;
}

// The greatest integer that is not above a / b, for b > 0.
constexpr int64_t FloorOfQuotient(int64_t a, int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

struct ResizeAxis {
  int32_t source, destination;  // lengths
  int32_t p, q;                 // the ratio in lowest terms: source : destination, for chroma that of the luma
  uint32_t indexAt, indexAtHigh;
  int32_t taps;  // for each destination position
  uint32_t weightsAt, weightsAtHigh;
  int32_t leading, trailing;  // positions whose taps reach over the first or the last pixel
  int32_t certainTaps;        // taps from this one on have weight 0 at some positions, and are not read there

  // The source position at the same fraction of the axis.
  ptrdiff_t Offset(ptrdiff_t d) const { return static_cast<ptrdiff_t>(static_cast<int64_t>(d) * p / q); }
  // The nearest source position; of two equally near ones the lower.
  ptrdiff_t Nearest(ptrdiff_t d) const {
    const int64_t twice = (2 * static_cast<int64_t>(d) + 1) * p;
    return static_cast<ptrdiff_t>((twice - 1) / (2 * static_cast<int64_t>(q)));
  }
};

struct ResizeRecord {
  uint32_t tag;
  WeightKind weights;
  QvpiInterpolationType interpolation;
  int32_t tapPairsAcross, tapPairsDown;
  uint32_t isAntialiasing;
  QvpiBorderSize border;
  ResizeAxis rows, columns;
  QvpHintAlgorithm mode;
  int32_t sourceWidth, sourceHeight, width, height;
  uint32_t isFastCapable;
  float b, c;  // of the cubic
  uint32_t reserved;
  uint32_t lobes;
  uint32_t shift[4];     // two doubles: x and y
  uint8_t isCosited[2];  // columns, rows: not 0 where chroma lies on luma samples
  uint8_t isClipped;     // not 0 where the area of the last position reaches over the edge
  uint8_t spare;

  // Position 0 of source and of destination lies 1 / Parts pixels behind the beginning: in the middle of its pixel, or
  // for chroma that lies on every other luma sample, in the middle of that.
  int Parts(const ResizeAxis& axis) const { return isCosited[&axis == &columns ? 0 : 1] ? 4 : 2; }
  // Where destination position d lies in the source.
  double Coordinate(const ResizeAxis& axis, ptrdiff_t d) const {
    const double origin = 1.0 / Parts(axis);
    return (static_cast<double>(d) + origin) * axis.p / axis.q - origin;
  }
  // How far destination position d lies behind source position i: rounded once, wherever on the axis that is.
  double Distance(const ResizeAxis& axis, ptrdiff_t d, ptrdiff_t i) const {
    const int64_t parts = Parts(axis), unit = parts * axis.q;
    const int64_t units = (parts * d + 1) * axis.p - (parts * i + 1) * axis.q;
    return static_cast<double>(units) / static_cast<double>(unit);
  }

  double Shift(int axis) const {
    double value;
    std::memcpy(&value, shift + 2 * axis, sizeof(value));
    return value;
  }
  // Areas that are those of the axes' periods but at the edges of the plane, or begin a part of a pixel earlier.
  bool IsOfChroma() const { return isCosited[0] || isCosited[1] || isClipped; }
  bool IsShifted() const { return isClipped || Shift(0) != 0 || Shift(1) != 0; }

  const int32_t* Index(const ResizeAxis& axis) const { return At<int32_t>(axis.indexAt, axis.indexAtHigh); }
  template <class W>
  const W* Weights(const ResizeAxis& axis) const {
    return At<W>(axis.weightsAt, axis.weightsAtHigh);
  }
  // The weights of antialiasing in double, which lie behind those in float.
  const double* PreciseWeights(const ResizeAxis& axis) const {
    return reinterpret_cast<const double*>(Weights<float>(axis) + PlaneOf(axis.destination) * axis.taps);
  }

  template <class Table>
  const Table* At(uint32_t low, uint32_t high) const {
    const auto offset = static_cast<size_t>(static_cast<uint64_t>(high) << 32 | low);
    return reinterpret_cast<const Table*>(reinterpret_cast<const uint8_t*>(this) + offset);
  }
};
static_assert(sizeof(ResizeAxis) == 12 * 4 && sizeof(ResizeRecord) == 49 * 4);

// The area of destination position j on an axis of a frame, in units of 1 / (Units q) pixels: it has Units p of them.
// That of chroma on luma samples begins (p - q) / 4 q pixels earlier than that of other samples.
struct FrameArea {
  int64_t units, begin, end, first;  // `first` is the pixel that it begins in, -1 before the plane

  FrameArea(const ResizeRecord& record, const ResizeAxis& axis, int64_t j) : units(UnitsOf(record, axis)) {
    begin = units * j * axis.p - (units == 4 ? axis.p - axis.q : 0);
    end = begin + units * axis.p;
    first = FloorOfQuotient(begin, units * axis.q);
  }
  static int64_t UnitsOf(const ResizeRecord& record, const ResizeAxis& axis) { return record.Parts(axis) == 4 ? 4 : 1; }

  int64_t Pixels(const ResizeAxis& axis) const { return -FloorOfQuotient(-end, units * axis.q) - first; }
  // What it covers of its pixel k.
  int64_t Overlap(const ResizeAxis& axis, int64_t k) const {
    const int64_t pixel = units * axis.q, at = (first + k) * pixel;
    return std::max<int64_t>(std::min(end, at + pixel) - std::max(begin, at), 0);
  }
};

inline const ResizeRecord* RecordOf(const QvpiResizeSpec* spec) {
  return reinterpret_cast<const ResizeRecord*>(AtBoundary(reinterpret_cast<const uint8_t*>(spec)));
}
inline ResizeRecord* RecordOf(QvpiResizeSpec* spec) {
  return reinterpret_cast<ResizeRecord*>(AtBoundary(reinterpret_cast<uint8_t*>(spec)));
}
inline bool IsOf(ResizeForm form, const ResizeRecord* record) { return record->tag == static_cast<uint32_t>(form); }

// The source interval [begin, end) that destination position d covers when areas are averaged, for a grid that is
// shifted by some destination pixels. It is clipped to the axis, and not empty: what lies outside takes the edge pixel.
struct Interval {
  double begin, end;
};
inline Interval CoveredBy(const ResizeAxis& axis, double d, double count, double shift) {
  const double length = axis.source, begin = (d - shift) * axis.p / axis.q, end = (d + count - shift) * axis.p / axis.q;
  if (end <= 0) return {0, 1};
  if (begin >= length) return {length - 1, length};
  return {begin > 0 ? begin : 0, end < length ? end : length};
}
inline constexpr double kAreaTolerance = 0.0000000001;

// The first pixel of an interval and the one behind its last: a touch within the tolerance does not count.
inline ptrdiff_t FirstOf(const Interval& interval) { return FloorOf(interval.begin + kAreaTolerance); }
inline ptrdiff_t EndOf(const Interval& interval) { return -FloorOf(kAreaTolerance - interval.end); }

// The source position that belongs to the first pixel of a tile.
inline ptrdiff_t SourceOffset(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t d) {
  const double shift = record.Shift(&axis == &record.columns ? 0 : 1);
  if (shift == 0) return axis.Offset(d);
  const ptrdiff_t first = FirstOf(CoveredBy(axis, static_cast<double>(d), 1, shift));
  return first < axis.source ? first : axis.source - 1;
}
inline Point SourceOffset(const ResizeRecord& record, Point tile) {
  return {SourceOffset(record, record.columns, tile.x), SourceOffset(record, record.rows, tile.y)};
}

// Bytes of the tables of one axis, each rounded up to the alignment.
struct TableBytes {
  ByteCount index, weights;
};

// Super-sampling has one period of the ratio in its tables; a shifted grid can touch one pixel more than t = p div q +
// 0, 1 or 2, but never more than p div q + 2.
inline TableBytes SuperTables(int64_t p, int64_t q) {
  return {(ByteCount(4) * q).RoundedTo(kTableAlignment), (ByteCount(4) * q * (p / q + 2)).RoundedTo(kTableAlignment)};
}

// The most taps of a position: `reach` pixels on each side, widened by the ratio when antialiasing.
constexpr int64_t MostTaps(QvpiInterpolationType interpolation, bool isAntialiasing, int64_t source,
                           int64_t destination) {
  const int64_t taps = interpolation == qvpInterpolationLinear ? 2 : interpolation == qvpInterpolationCubic ? 4 : 6;
  if (!isAntialiasing || source <= destination) return taps;
  return (taps * source + destination - 1) / destination;
}

// Taps that a record and its work buffer reserve for a position: for reductions twice as many.
constexpr int64_t ReservedTaps(QvpiInterpolationType interpolation, bool isAntialiasing, int64_t source,
                               int64_t destination) {
  const int64_t most = MostTaps(interpolation, isAntialiasing, source, destination);
  return isAntialiasing && source > destination ? 2 * most : most;
}

}  // namespace qvp::resize
