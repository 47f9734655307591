// Sizes of records and work buffers, and the source that a tile reads.
#pragma once

#include "geometry/resize_record.h"

namespace qvp::resize {

// The tables of both axes, the header and what the alignment of tables and record takes.
ByteCount RecordBytes(QvpDataType type, QvpiInterpolationType interpolation, bool isAntialiasing, Size src, Size dst);

// The work buffer of a tile.
ByteCount WorkBytes(const ResizeRecord& record, int64_t width, int64_t height, int channels);

// The source position behind the last one that a tile's last destination position belongs to.
ptrdiff_t SourceEnd(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t end);

// Stores a size; what does not fit its type gives 0 and qvpStatusSizeOverflow.
inline constexpr int64_t kSizeLimit = 0x7FFFFFFF;
template <class Out>
QvpStatus StoreSize(ByteCount bytes, Out* out) {
  if (sizeof(Out) == sizeof(int32_t) && bytes.value() >= kSizeLimit) bytes = ByteCount(INT64_MAX);
  return bytes.StoreTo(out);
}

}  // namespace qvp::resize
