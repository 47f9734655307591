// The warp record: everything that a warp call needs, with coefficients that map destination to source.
#pragma once

#include "base/image.h"
#include "base/record.h"

namespace qvp {

// Which functions made a record and may use it: those with 32-bit sizes or the `_L` ones. The value is the record's
// first word.
enum class WarpForm : uint32_t { kPlain = 0x4B617394, kWide = 0x4B617395 };

enum class WarpKind : int32_t { kAffine, kPerspective };

inline constexpr int64_t kWarpRecordBytes = 512, kLongestWarp = 0x1FFFFFF;

struct WarpRecord {
  uint32_t tag;
  WarpKind kind;
  QvpiInterpolationType interpolation;
  QvpDataType type;
  int32_t channels;
  QvpiBorderType border;
  int32_t isSmooth;
  int32_t isShift;  // by whole pixels: shiftX, shiftY from destination to source
  int32_t shiftX, shiftY;
  int32_t sourceWidth, sourceHeight, width, height;
  double c[3][3];
  double quad[4][2];  // of the source in the destination, moved into it
  double borderValue[4];
  double b, c2;  // of the cubic: B and C
};
static_assert(sizeof(WarpRecord) <= kWarpRecordBytes);

inline const WarpRecord* RecordOf(const QvpiWarpSpec* spec) {
  return reinterpret_cast<const WarpRecord*>(AtBoundary(reinterpret_cast<const uint8_t*>(spec)));
}
inline WarpRecord* RecordOf(QvpiWarpSpec* spec) {
  return reinterpret_cast<WarpRecord*>(AtBoundary(reinterpret_cast<uint8_t*>(spec)));
}
inline bool IsOf(WarpForm form, const WarpRecord* record) { return record->tag == static_cast<uint32_t>(form); }

}  // namespace qvp
