// Resize by the nearest pixel: pixels are only moved.
#include "base/export.h"
#include "geometry/resize_call.h"

namespace qvp {
namespace {

template <int kBytes>
void PickRow(const uint8_t* row, const int32_t* index, ptrdiff_t origin, ptrdiff_t width, uint8_t* out) {
  for (ptrdiff_t x = 0; x < width; ++x) std::memcpy(out + x * kBytes, row + (index[x] - origin) * kBytes, kBytes);
}

using PickFunction = void (*)(const uint8_t*, const int32_t*, ptrdiff_t, ptrdiff_t, uint8_t*);

PickFunction PickFor(int pixelBytes) {
  switch (pixelBytes) {
    case 1: return PickRow<1>;
    case 2: return PickRow<2>;
    case 3: return PickRow<3>;
    case 4: return PickRow<4>;
    case 6: return PickRow<6>;
    case 8: return PickRow<8>;
    case 12: return PickRow<12>;
    default: return PickRow<16>;
  }
}

// Destination rows that take the same source row are copies of the first of them.
void ResizeTile(const ConstBytes& src, const Bytes& dst, const ResizeRecord& record, const Tile& tile) {
  const int32_t* columns = record.Index(record.columns) + tile.x;
  const int32_t* rows = record.Index(record.rows) + tile.y;
  const PickFunction pick = PickFor(dst.PixelBytes());
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    if (y > 0 && rows[y] == rows[y - 1]) {
      std::memcpy(dst.Row(y), dst.Row(y - 1), dst.RowBytes(tile.width));
    } else {
      pick(src.Row(rows[y] - tile.source.y), columns, tile.source.x, tile.width, dst.Row(y));
    }
  }
}

template <class T>
QvpStatus Nearest(const ResizeCall<T>& call) {
  return RunResize(call, {qvpInterpolationNearest, false, true, true},
                   [](const auto& c, const auto& record, const auto& tile) {
                     ResizeTile(AsBytes(c.src.data, c.src.step, c.src.layout),
                                AsBytes(c.dst.data, c.dst.step, c.dst.layout), record, tile);
                   });
}

}  // namespace
}  // namespace qvp

using namespace qvp;

QVP_RESIZE_LAYOUTS(QVP_RESIZE, qvpiResizeNearest, 8u, Nearest)
QVP_RESIZE_LAYOUTS(QVP_RESIZE, qvpiResizeNearest, 16u, Nearest)
QVP_RESIZE_LAYOUTS(QVP_RESIZE, qvpiResizeNearest, 16s, Nearest)
QVP_RESIZE_LAYOUTS(QVP_RESIZE, qvpiResizeNearest, 32f, Nearest)
