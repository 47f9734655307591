// The passes over a tile that functions for images and for frames share. A call's source pointer is at tile.source, and
// its border is one that its method takes. Frames have planes of one and of two channels.
#pragma once

#include "geometry/resize_call.h"

namespace qvp::resize {

template <class T>
void LinearTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile);
// Methods of more taps.
template <class T>
void TapTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile);
// Averages over areas.
template <class T>
void AreaTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile);

}  // namespace qvp::resize
