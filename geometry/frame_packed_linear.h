// Linear interpolation of packed 4:2:2 rows of bytes: luma and chroma are gathered out of the packed rows, and joined
// in the last store.
#pragma once

#include "geometry/frame_record.h"
#include "geometry/resize_linear_columns.h"
#include "geometry/resize_walk.h"

namespace qvp::resize {

// Destination tiles of fewer columns than this have no room for the shuffles of both.
inline constexpr ptrdiff_t kFewestPackedColumns = 32;

// dst = pixels of blended luma and chroma; n is even.
inline void BlendPacked(const std::array<const int16_t*, 2>& luma, const std::array<const int16_t*, 2>& chroma,
                        int weight, bool isLumaFirst, uint8_t* dst, ptrdiff_t n) {
  const hn::ScalableTag<int16_t> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<int16_t>());
  const auto w = hn::Set(d, static_cast<int16_t>(2 * weight));
  const int16_t* const first[] = {isLumaFirst ? luma[0] : chroma[0], isLumaFirst ? luma[1] : chroma[1]};
  const int16_t* const second[] = {isLumaFirst ? chroma[0] : luma[0], isLumaFirst ? chroma[1] : luma[1]};
  const auto blend = [=](ptrdiff_t i) HWY_ATTR {
    const auto low = BlendDown(d, first[0] + i, first[1] + i, w);
    const auto high = BlendDown(d, second[0] + i, second[1] + i, w);
    return hn::BitCast(hn::Repartition<uint8_t, decltype(d)>(), hn::Or(low, hn::ShiftLeft<8>(high)));
  };
  const hn::Repartition<uint8_t, decltype(d)> bytes;
  if (n < kLanes) {
    Partial<uint8_t> out(dst, 2 * n);
    hn::StoreU(blend(0), bytes, out.lanes);
    return out.CopyTo(dst, 2 * n);
  }
  for (ptrdiff_t i = 0; i < n - kLanes; i += kLanes) hn::StoreU(blend(i), bytes, dst + 2 * i);
  hn::StoreU(blend(n - kLanes), bytes, dst + 2 * (n - kLanes));
}

// Luma or chroma of packed rows: its columns, and its filtered rows.
struct PackedSide {
  LinearColumns columns;
  RowRing<int16_t> ring;
  int offset;  // of the first sample in a row

  // Filters the rows [first, last), which row(position) gives.
  template <class Row>
  void Filter(ptrdiff_t first, ptrdiff_t last, const Row& row) const {
    ForTwo(
        first, last, [&](ptrdiff_t position) { return row(position) + offset; },
        [&](ptrdiff_t position) { return ring.Row(position); },
        [&](const auto& from, const auto& out) { FilterFixed(columns, from, out); });
  }
};

// A tile of packed rows; `src` points at where the whole source begins.
struct PackedLinear {
  const FrameRecord& record;
  QvpiBorderType border;
  Image<const uint8_t> src;
  uint8_t* buffer;

  // The columns from `place` on to dst.
  void ResizeStrip(Point place, Size size, const Image<uint8_t>& dst) const {
    const ptrdiff_t step = RowFloats(size.width);
    auto* const rows = reinterpret_cast<int16_t*>(AtBoundary(buffer));
    auto* const room = reinterpret_cast<uint8_t*>(rows + 4 * step);
    const bool isLumaFirst = record.lumaPlace == qvpLumaFirst;
    const SourcePixels luma{1, 2, 2, isLumaFirst ? 0 : 1}, chroma{2, 4, 2, isLumaFirst ? 1 : 0};
    const Tile lumaTile(record.Luma(), place, size);
    const Tile chromaTile(record.Chroma(), record.ChromaAt(place), record.ChromaOf(size));
    const ptrdiff_t ahead = record.Luma().sourceWidth * 2 <= kLongestFetched ? 2 * src.step : 0;
    auto* const chromaRoom = room + LinearColumns::RoomBytes(size.width);
    Walk(place.y, size, dst,
         {LinearColumns(record.Luma(), lumaTile, border, luma, ahead, room), {rows, step, 2}, luma.offset},
         {LinearColumns(record.Chroma(), chromaTile, border, chroma, 0, chromaRoom),
          {rows + 2 * step, step, 2},
          chroma.offset});
  }

  // Luma and chroma have the same rows.
  void Walk(ptrdiff_t top, Size size, const Image<uint8_t>& dst, const PackedSide& luma,
            const PackedSide& chroma) const {
    const ResizeRecord& rows = record.Luma();
    const Edge edge = RowEdge(border, rows);
    const Taps taps(rows, rows.rows, top, size.height);
    const int16_t* weights = rows.Weights<int16_t>(rows.rows) + top;
    const auto row = [&](ptrdiff_t position) { return src.Row(edge(position)); };
    const auto filter = [&](ptrdiff_t first, ptrdiff_t last) {
      luma.Filter(first, last, row);
      chroma.Filter(first, last, row);
    };
    const auto blend = [&](ptrdiff_t y) {
      const ptrdiff_t first = taps.first[y];
      BlendPacked(luma.ring.Rows<2>(first), chroma.ring.Rows<2>(first), weights[y], record.lumaPlace == qvpLumaFirst,
                  dst.Row(y), size.width);
    };
    const auto needs = [&](ptrdiff_t y) { return Extent{taps.first[y], taps.first[y] + ptrdiff_t{2}}; };
    WalkDown(size.height, needs, filter, blend);
  }

  void Resize(Point place, Size size, const Image<uint8_t>& dst) const {
    const ptrdiff_t strips = (2 * size.width + kMostSamples - 1) / kMostSamples, pairs = size.width / 2;
    for (ptrdiff_t i = 0; i < strips; ++i) {
      const ptrdiff_t begin = pairs * i / strips * 2, end = pairs * (i + 1) / strips * 2;
      const Image<uint8_t> part{dst.data + 2 * begin, dst.step, dst.layout};
      ResizeStrip({place.x + begin, place.y}, {end - begin, size.height}, part);
    }
  }
};

}  // namespace qvp::resize
