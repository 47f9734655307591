// What the filters with a window know: types, masks, steps.
#pragma once

#include <algorithm>

#include "base/border_rows.h"
#include "base/check.h"

namespace qvp::filter {

// A step must cover its row.
template <class T>
bool CoversRow(const Image<T>& image, Size roi) {
  return image.step >= int64_t{roi.width} * image.PixelBytes();
}

// What functions that name an image's type take for it.
template <class T>
constexpr QvpDataType kDataTypeOf = std::is_same_v<T, uint8_t>    ? qvp8u
                                    : std::is_same_v<T, uint16_t> ? qvp16u
                                    : std::is_same_v<T, int16_t>  ? qvp16s
                                                                  : qvp32f;

// Types and channels that size queries and Inits of filters know.
constexpr bool IsFilteredType(QvpDataType type) {
  return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f;
}
constexpr bool IsFilteredChannelCount(int channels) { return channels == 1 || channels == 3 || channels == 4; }

// A mask that is placed by its anchor: the pixel in it that is at that of the result. `isMask` is the family's own rule
// for masks.
constexpr bool IsAnchor(QvpiSize mask, QvpiPoint anchor) {
  return anchor.x >= 0 && anchor.x < mask.width && anchor.y >= 0 && anchor.y < mask.height;
}
constexpr Reach ReachOf(QvpiSize mask, QvpiPoint anchor) {
  return {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}
inline QvpStatus CheckAnchored(bool isMask, QvpiSize mask, QvpiPoint anchor, QvpiBorderType border) {
  if (!isMask) return qvpStatusMaskSize;
  if (!IsAnchor(mask, anchor)) return qvpStatusAnchor;
  return CheckBorder(border);
}

// What asks for the size of a work buffer.
inline QvpStatus CheckQuery(const int* size, QvpiSize roi, bool isMask, QvpDataType type, int channels) {
  if (!size) return qvpStatusNullPointer;
  if (roi.width < 1 || roi.height < 1) return qvpStatusSize;
  if (!isMask) return qvpStatusMaskSize;
  if (!IsFilteredType(type)) return qvpStatusDataType;
  return IsFilteredChannelCount(channels) ? qvpStatusNoError : qvpStatusNumChannels;
}

}  // namespace qvp::filter
