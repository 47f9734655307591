// The record of resizes of chroma-subsampled frames: a header, and a resize record each for luma and chroma planes.
#pragma once

#include "geometry/resize_record.h"

namespace qvp::resize {

// How a frame's chroma is laid out. The value is the record's first word.
enum class FrameForm : uint32_t { k420 = 0x4B617420, k422 = 0x4B617422 };

// Chroma has half of the luma's columns and, in 4:2:0, half of its rows.
constexpr bool HalvesRows(FrameForm form) { return form == FrameForm::k420; }
constexpr ptrdiff_t HalfUp(ptrdiff_t n) { return n / 2 + n % 2; }

struct FrameRecord {
  uint32_t identification;
  QvpDataType type;
  QvpiInterpolationType interpolation;
  QvpiLumaPlace lumaPlace;
  uint32_t chromaAt;  // bytes from here to the chroma record
  uint32_t reserved[27];

  FrameForm Form() const { return static_cast<FrameForm>(identification); }
  const ResizeRecord& Luma() const { return *At(sizeof(FrameRecord)); }
  const ResizeRecord& Chroma() const { return *At(chromaAt); }

  // The chroma sample at a luma position with even coordinates, and the number of those in an area that begins there.
  Point ChromaAt(Point luma) const { return {luma.x / 2, HalvesRows(Form()) ? luma.y / 2 : luma.y}; }
  Size ChromaOf(Size luma) const {
    return {HalfUp(luma.width), HalvesRows(Form()) ? HalfUp(luma.height) : luma.height};
  }

 private:
  const ResizeRecord* At(size_t bytes) const {
    return reinterpret_cast<const ResizeRecord*>(reinterpret_cast<const uint8_t*>(this) + bytes);
  }
};
static_assert(sizeof(FrameRecord) == 128);

// The luma sample that the source pointer of a tile is at. Chroma samples belong to even ones.
inline Point FrameSource(const FrameRecord& record, Point tile) {
  const Point luma = SourceOffset(record.Luma(), tile);
  const Point chroma = SourceOffset(record.Chroma(), record.ChromaAt(tile));
  return {2 * chroma.x, HalvesRows(record.Form()) ? 2 * chroma.y : luma.y};
}

// Pairs of pixels are only whole in packed rows of even width.
inline bool IsFrameSize(FrameForm form, Size size) {
  return size.width >= 1 && size.height >= 1 && (form == FrameForm::k420 || size.width % 2 == 0);
}

// Checks where in the destination a tile begins.
inline QvpStatus CheckOffset(const FrameRecord& record, Point at) {
  const ResizeRecord& luma = record.Luma();
  if (at.x < 0 || at.y < 0 || at.x >= luma.width || at.y >= luma.height) return qvpStatusOutOfRange;
  const bool isOdd = at.x % 2 != 0 || (HalvesRows(record.Form()) && at.y % 2 != 0);
  return isOdd ? qvpStatusMisalignedOffset : qvpStatusNoError;
}

// The part of a tile that lies in the destination, and the status that tells whether that is all of it.
inline Size Clipped(const FrameRecord& record, Point at, Size size) {
  return {std::min<ptrdiff_t>(size.width, record.Luma().width - at.x),
          std::min<ptrdiff_t>(size.height, record.Luma().height - at.y)};
}
inline QvpStatus ClippingStatus(Size clipped, Size size) {
  return clipped.width < size.width || clipped.height < size.height ? qvpStatusSizeWarning : qvpStatusNoError;
}

// Whether the planes of a source are large enough for the taps on one axis: two for linear interpolation, else twice
// the lobes of Lanczos. Areas only shrink.
struct FrameLimits {
  QvpiInterpolationType interpolation;
  uint32_t lobes = 2;

  bool Take(FrameForm form, Size src, Size dst) const {
    if (interpolation == qvpInterpolationSuper) return src.width >= dst.width && src.height >= dst.height;
    const ptrdiff_t least = interpolation == qvpInterpolationLinear ? 2 : 2 * static_cast<ptrdiff_t>(lobes);
    return HalfUp(src.width) >= least && (HalvesRows(form) ? HalfUp(src.height) : src.height) >= least;
  }
};

}  // namespace qvp::resize
