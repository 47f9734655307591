// One plane of a frame, by the passes over images.
#pragma once

#include "geometry/frame_call.h"
#include "geometry/resize_passes.h"

namespace qvp::resize {

// A tile of one plane. `given` is what its source pointer is at; the pass starts at a place of its own.
template <class T>
void RunPlane(const FrameCall& frame, const ResizeRecord& record, Image<const T> src, Image<T> dst, Point at, Size size,
              Point given) {
  const Tile tile(record, at, size);
  src.data = src.Row(tile.source.y - given.y) + (tile.source.x - given.x) * Channels(src.layout);
  const ResizeCall<T> call{src, dst, at, size, nullptr, frame.buffer, ResizeForm::kPlain, frame.border};
  switch (record.interpolation) {
    case qvpInterpolationLinear: return LinearTile(call, record, tile);
    case qvpInterpolationLanczos: return TapTile(call, record, tile);
    default: return AreaTile(call, record, tile);
  }
}

}  // namespace qvp::resize
