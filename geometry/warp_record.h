// The warp record: everything that a warp call needs, with coefficients that map destination to source.
#pragma once

#include "base/image.h"
#include "base/record.h"

namespace qvp::warp {

// Which functions made a record and may use it: those with 32-bit sizes or the `_L` ones. The value is the record's
// first word.
enum class Form : uint32_t { kPlain = 0x4B617394, kWide = 0x4B617395 };

enum class Kind : int32_t { kAffine, kPerspective };

inline constexpr int64_t kRecordBytes = 512, kLongestSide = 0x1FFFFFF;

struct Record {
  uint32_t tag;
  Kind kind;
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
  double cubicB, cubicC;
};
static_assert(sizeof(Record) <= kRecordBytes);

inline const Record* RecordOf(const QvpiWarpSpec* spec) {
  return reinterpret_cast<const Record*>(AtBoundary(reinterpret_cast<const uint8_t*>(spec)));
}
inline Record* RecordOf(QvpiWarpSpec* spec) {
  return reinterpret_cast<Record*>(AtBoundary(reinterpret_cast<uint8_t*>(spec)));
}
inline bool IsOf(Form form, const Record* record) { return record->tag == static_cast<uint32_t>(form); }

}  // namespace qvp::warp
