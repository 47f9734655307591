// Resize by the nearest pixel: pixels are only moved.
#include "base/export.h"
#include "geometry/resize_gather.h"

namespace qvp::resize {
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

// Rows of one-byte or two-byte pixels that are close enough to each other to be shuffled out of vectors.
class Shuffle {
 public:
  // `room` is for the shuffles: 4 bytes for each column, and 64.
  Shuffle(const ResizeRecord& record, const Tile& tile, int pixelBytes, uint8_t* room) {
    const GatherShape shape{1, pixelBytes, 0, 2};  // two loads serve reductions to half, and enlargements
    const ptrdiff_t bytes = tile.width * pixelBytes;
    const int loads = pixelBytes > 2 ? 0 : LoadsFor(shape, record.columns.p, record.columns.q);
    if (loads != 2) return;
    const int32_t* index = record.Index(record.columns) + tile.x;
    const ptrdiff_t origin = tile.source.x, last = (index[tile.width - 1] - origin + 1) * pixelBytes;
    auto* offsets = reinterpret_cast<int32_t*>(room + Gather::Vectors(shape, bytes) * kGatherBytes);
    bytes_ = bytes;
    gather_ = Gather(shape, loads, bytes, last, {index, pixelBytes, 1, origin * pixelBytes}, room, offsets);
  }

  bool IsUsable() const { return gather_.count() > 0; }

  void Pick(const uint8_t* row, uint8_t* out) const {
    const uint8_t* mask = gather_.masks();
    const int32_t* offsets = gather_.offsets();
    const ptrdiff_t last = bytes_ - kGatherBytes;
    for (ptrdiff_t i = 0; i < last; i += kGatherBytes, mask += kGatherBytes, offsets += 2 * kGatherBlocks) {
      hn::StoreU(GatherVector<2>(row, offsets, hn::LoadU(GatherTag(), mask)), GatherTag(), out + i);
    }
    hn::StoreU(GatherVector<2>(row, offsets, hn::LoadU(GatherTag(), mask)), GatherTag(), out + last);
  }

 private:
  ptrdiff_t bytes_ = 0;
  Gather gather_;
};

// Destination rows that take the same source row are copies of the first of them.
void ResizeTile(const ConstBytes& src, const Bytes& dst, const ResizeRecord& record, const Tile& tile, uint8_t* room) {
  const int32_t* columns = record.Index(record.columns) + tile.x;
  const int32_t* rows = record.Index(record.rows) + tile.y;
  const PickFunction pick = PickFor(dst.PixelBytes());
  const Shuffle shuffle(record, tile, dst.PixelBytes(), room);
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    const uint8_t* row = src.Row(rows[y] - tile.source.y);
    if (y > 0 && rows[y] == rows[y - 1]) {
      std::memcpy(dst.Row(y), dst.Row(y - 1), dst.RowBytes(tile.width));
    } else if (shuffle.IsUsable()) {
      shuffle.Pick(row, dst.Row(y));
    } else {
      pick(row, columns, tile.source.x, tile.width, dst.Row(y));
    }
  }
}

template <class T>
QvpStatus Nearest(const ResizeCall<T>& call) {
  return RunResize(call, {qvpInterpolationNearest, false, true, true},
                   [](const auto& c, const auto& record, const auto& tile) {
                     ResizeTile(AsBytes(c.src.data, c.src.step, c.src.layout),
                                AsBytes(c.dst.data, c.dst.step, c.dst.layout), record, tile, AtBoundary(c.buffer));
                   });
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeNearest, 8u, Nearest)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeNearest, 16u, Nearest)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeNearest, 16s, Nearest)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeNearest, 32f, Nearest)
