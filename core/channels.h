// Moves of channels between interleaved layouts: one engine for copies of single channels, between three and four
// channels, channel order and duplication.
#pragma once

#include "base/image.h"

namespace qvp {

// Where a destination channel comes from: the number of a source channel, counted from the source pointer, or
inline constexpr int kKeepChannel = -1;  // from nowhere: it keeps its value
inline constexpr int kFillChannel = -2;  // from the fill value

struct ChannelMap {
  int from[4];
};

// Moves channels of every pixel by the map, which has an entry for each channel of a destination pixel. Both images
// have elements of 1, 2 or 4 bytes; `fill` points at one element. In place is safe where both pixels have the same
// size.
void MoveChannels(const ConstBytes& src, const Bytes& dst, Size roi, const ChannelMap& map, const void* fill = nullptr);

}  // namespace qvp
