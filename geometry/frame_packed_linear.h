// Linear interpolation of packed 4:2:2 rows of bytes: luma and chroma are gathered out of the packed rows, and joined
// in the last store.
#pragma once

#include "geometry/frame_record.h"
#include "geometry/resize_linear_columns.h"

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

// A tile of packed rows; `src` points at where the whole source begins.
struct PackedLinear {
  const FrameRecord& record;
  QvpiBorderType border;
  Image<const uint8_t> src;
  uint8_t* buffer;

  // The columns from `place` on to dst.
  void ResizeStrip(Point place, Size size, const Image<uint8_t>& dst) const {
    const ResizeRecord &lumaRecord = record.Luma(), &chromaRecord = record.Chroma();
    const Tile luma(lumaRecord, place, size), chroma(chromaRecord, record.ChromaAt(place), record.ChromaOf(size));
    const bool isLumaFirst = record.lumaPlace == qvpLumaFirst;
    const SourcePixels lumaPixels{1, 2, 2, isLumaFirst ? 0 : 1}, chromaPixels{2, 4, 2, isLumaFirst ? 1 : 0};
    const ptrdiff_t step = RowFloats(size.width),
                    ahead = lumaRecord.sourceWidth * 2 <= kLongestFetched ? 2 * src.step : 0;
    auto* const rows = reinterpret_cast<int16_t*>(AtBoundary(buffer));
    auto* const room = reinterpret_cast<uint8_t*>(rows + 4 * step);
    const LinearColumns lumaColumns(lumaRecord, luma, border, lumaPixels, ahead, room);
    const LinearColumns chromaColumns(chromaRecord, chroma, border, chromaPixels, 0,
                                      room + LinearColumns::RoomBytes(size.width));
    const RowRing<int16_t> lumaRing{rows, step, 2}, chromaRing{rows + 2 * step, step, 2};
    const Edge edge = RowEdge(border, lumaRecord);
    const Taps taps(lumaRecord, lumaRecord.rows, place.y, size.height);
    const int16_t* weights = lumaRecord.Weights<int16_t>(lumaRecord.rows) + place.y;
    const auto filterOf = [&](const LinearColumns& columns, const RowRing<int16_t>& ring, int offset, ptrdiff_t first,
                              ptrdiff_t last) {
      ForTwo(
          first, last, [&](ptrdiff_t position) { return src.Row(edge(position)) + offset; },
          [&](ptrdiff_t position) { return ring.Row(position); },
          [&](const auto& from, const auto& out) { FilterFixed(columns, from, out); });
    };
    const auto filter = [&](ptrdiff_t first, ptrdiff_t last) {
      filterOf(lumaColumns, lumaRing, lumaPixels.offset, first, last);
      filterOf(chromaColumns, chromaRing, chromaPixels.offset, first, last);
    };
    const auto blend = [&](ptrdiff_t y) {
      const ptrdiff_t first = taps.first[y];
      BlendPacked(lumaRing.Rows<2>(first), chromaRing.Rows<2>(first), weights[y], isLumaFirst, dst.Row(y), size.width);
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
