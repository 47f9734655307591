// The loops over a tile, which all warps of a method share.
#pragma once

#include "base/simd.h"
#include "geometry/warp_record.h"

namespace qvp::warp {

template <class T>
struct Call {
  Image<const T> src;
  Image<T> dst;
  ptrdiff_t x, y;  // of the tile's first pixel
  Size size;
  const QvpiWarpSpec* spec;
  const uint8_t* buffer;
  Kind kind;
  Form form;
};

// A tile by kTaps x kTaps pixels around each point. Each number has a source file, which alone has these loops.
template <int kTaps, class T>
HWY_NOINLINE void WarpTile(const Call<T>& call, const Record& record, Size size);

#define LOOPS(type)                                                              \
  extern template void WarpTile<1>(const Call<type>& call, const Record&, Size); \
  extern template void WarpTile<2>(const Call<type>& call, const Record&, Size); \
  extern template void WarpTile<4>(const Call<type>& call, const Record&, Size);
LOOPS(uint8_t)
LOOPS(uint16_t)
LOOPS(int16_t)
LOOPS(float)
LOOPS(double)
#undef LOOPS

}  // namespace qvp::warp
