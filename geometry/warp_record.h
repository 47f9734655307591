// The warp record: everything that a warp call needs, with coefficients that map destination to source.
#pragma once

#include "base/image.h"
#include "base/record.h"
#include "geometry/quadrangle.h"

namespace qvp::warp {

// Which functions made a record and may use it: those with 32-bit sizes or the `_L` ones. The value is the record's
// first word.
enum class Form : uint32_t { kPlain = 0x4B617394, kWide = 0x4B617395 };

enum class Kind : int32_t { kAffine, kPerspective, kBilinear, kBilinearBack, kBilinearQuad };

inline constexpr int64_t kRecordBytes = 512, kLongestSide = 0x1FFFFFF;

struct Record {
  uint32_t tag;
  Kind kind;
  QvpiInterpolationType interpolation;
  QvpDataType type;
  int32_t channels;
  QvpiBorderType border;
  int32_t isSmooth;
  int32_t isShift;  // by whole pixels: an affine transform, whatever the kind
  int32_t sourceWidth, sourceHeight, width, height;
  double borderValue[4];
  double cubicB, cubicC;
  double c[3][3];      // destination to source: affine, perspective, or bilinear but for the twist
  double twist[2];     // of xy, bilinear
  BilinearMap solved;  // to the destination, from the source or a square, where points come by its inverse ...
  double side;  // ... which is -1 where it turns over; the rows of the map and the destination are turned over then
  BilinearMap toSource;  // from that square
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
