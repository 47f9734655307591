// The record of resizing in space: that of the planes, and the axis across them.
#pragma once

#include "geometry/resize_call.h"
#include "geometry/resize_coverage.h"
#include "geometry/resize_tables.h"
#include "volume/tile.h"

namespace qvp::volume {

using resize::ResizeAxis;

struct ResizeRecord {
  static constexpr uint32_t kIdentification = 0x51565201;
  static constexpr int64_t kTablesAt = 256;

  uint32_t identification;
  QvpDataType type;
  ResizeAxis depth;
  resize::ResizeRecord plane;  // of whose tables' places those of `depth` are, too

  QvpiInterpolationType interpolation() const { return plane.interpolation; }
  // Voxels on each side of a position that a method reaches.
  ptrdiff_t Reach() const { return plane.border.left; }
  VolumeSize Destination() const {
    return QvprVolume{plane.columns.destination, plane.rows.destination, depth.destination};
  }
  bool IsPassedOver(const ResizeAxis& axis) const {
    return axis.source == axis.destination && !(interpolation() == qvpInterpolationCubic && plane.b != 0);
  }
  // What position d is made from.
  Extent TapsOf(const ResizeAxis& axis, ptrdiff_t d) const {
    if (IsPassedOver(axis)) return {d, d + 1};
    if (interpolation() == qvpInterpolationSuper) {
      const resize::Coverage coverage = resize::PeriodicCoverage(axis, d);
      return {coverage.first, coverage.first + coverage.Pixels()};
    }
    const ptrdiff_t first = plane.Index(axis)[d], count = std::max(axis.taps, 1);
    return {first, first + count};
  }
};
static_assert(offsetof(ResizeRecord, plane) + sizeof(resize::ResizeRecord) <= ResizeRecord::kTablesAt);

// The most taps of a position on an axis.
inline int64_t MostTaps(QvpiInterpolationType interpolation, int64_t p, int64_t q) {
  switch (interpolation) {
    case qvpInterpolationNearest: return 0;
    case qvpInterpolationLinear: return 1;
    case qvpInterpolationCubic: return 4;
    case qvpInterpolationLanczos: return 6;
    default: return p / q + 2;
  }
}

inline resize::Tile PlaneOf(const VolumeTile& tile, const ResizeRecord& record) {
  return {record.plane, resize::Point(tile.x, tile.y), Size(tile.width, tile.height)};
}

// How a tile's work buffer is divided: rows for one plane's taps, then rows of filtered planes for a strip of rows of
// results. What a tile takes never grows when it gets smaller.
struct ResizeRoom {
  static constexpr int64_t kStripBytes = 1 << 17, kAreaRows = 5;

  int64_t row, rows, planes;  // bytes of a row of floats, and rows of a plane and of planes

  ResizeRoom(const ResizeRecord& record, int64_t width)
      : row(4 * resize::PlaneOf(RowLength(record, width)) + 64),
        rows(IsOfAreas(record) ? kAreaRows : TapRows(record)),
        planes(IsOfAreas(record) ? 0 : TapRows(record)) {}

  static bool IsOfAreas(const ResizeRecord& record) { return record.interpolation() == qvpInterpolationSuper; }
  static int64_t TapRows(const ResizeRecord& record) { return 2 * int64_t{record.plane.tapPairsDown}; }
  // Of areas sums of source columns are kept.
  static int64_t RowLength(const ResizeRecord& record, int64_t width) {
    const ResizeAxis& axis = record.plane.columns;
    return IsOfAreas(record) ? std::min<int64_t>(width * axis.p / axis.q + 2, axis.source) : width;
  }
  ptrdiff_t StripRows(ptrdiff_t height) const {
    return static_cast<ptrdiff_t>(std::clamp<int64_t>(kStripBytes / (row * planes), 1, height));
  }
  ByteCount Bytes(int64_t height) const {
    const ByteCount all = ByteCount(row * planes) * height;
    return ByteCount(row * rows) + std::max(row * planes, std::min(kStripBytes, all.value())) + kRecordBoundary;
  }
};

}  // namespace qvp::volume
