// Resize by averages over the area that a destination pixel covers in the source.
#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_area_exact.h"
#include "geometry/resize_area_near.h"
#include "geometry/resize_area_strips.h"
#include "geometry/resize_areas.h"
#include "geometry/resize_halves.h"
#include "geometry/resize_passes.h"

namespace qvp::resize {
namespace {

// Bytes of work memory that every caller has for a tile.
int64_t RoomFor(const Tile& tile, int channels) {
  const int64_t columns = PlaneOf(int64_t{4} * tile.width), samples = PlaneOf(int64_t{4} * tile.width * channels);
  return PlaneOf(int64_t{4} * tile.height) + columns + 2 * samples;
}

// In integers, a row of sums at a time. False where they do not fit the bounds, where there is no room for one, or
// where the tile is narrower than a vector.
bool ResizeWhole(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const Period across(record, record.columns), down(record, record.rows);
  if (tile.width < AreaColumns::Fewest(channels) || !AreAreasWhole(across, down)) return false;
  const AreaColumns columns(across, down, tile, channels);
  auto* sums = reinterpret_cast<uint16_t*>(AtBoundary(call.buffer));
  if (columns.RowSamples() * int64_t{sizeof(*sums)} > RoomFor(tile, channels)) return false;
  Period::Place place = down.PlaceOf(tile.y);
  for (ptrdiff_t y = 0; y < tile.height; ++y, place = down.Next(place)) {
    const auto parts = [&](int k) { return static_cast<uint16_t>(down.Weight(k, place)); };
    const Image<const uint8_t> rows{call.src.Row(down.First(place) - tile.source.y), call.src.step, call.src.layout};
    SumDown(hn::ScalableTag<uint16_t>(), rows, down.Count(place), parts, columns.Pixels() * channels, sums);
    columns.Average(sums, call.dst.Row(y));
  }
  return true;
}

// Whether the sum of an area, in whole parts of pixels, fits the 24 bits of a float: then it is exact, and so is the
// nearest integer to its quotient by the area.
template <class T>
bool AreSumsExact(const ResizeRecord& record) {
  return !record.IsShifted() && int64_t{record.columns.p} * record.rows.p <= (1 << 24) >> (8 * sizeof(T));
}

// A part of a tile, as use(call, tile).
template <class T, class Use>
void WithPart(ResizeCall<T> call, Tile tile, Extent columns, Extent rows, const Use& use) {
  if (columns.begin >= columns.end || rows.begin >= rows.end) return;
  call.dst.data = call.dst.Row(rows.begin) + columns.begin * Channels(call.dst.layout);
  tile.x += columns.begin;
  tile.y += rows.begin;
  tile.width = columns.end - columns.begin;
  tile.height = rows.end - rows.begin;
  use(call, tile);
}

// The positions of a tile whose areas are all in the plane: all but perhaps the axis' first one and its last one.
Extent InnerPositions(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin, ptrdiff_t n) {
  const FrameArea first(record, axis, 0), last(record, axis, axis.destination - 1);
  const ptrdiff_t from = first.begin < 0 ? 1 : 0;
  const ptrdiff_t to = axis.destination - (last.end > last.units * axis.q * axis.source ? 1 : 0);
  const ptrdiff_t inner = std::clamp<ptrdiff_t>(from - begin, 0, n);
  return {inner, std::clamp<ptrdiff_t>(to - begin, inner, n)};
}

// Chroma: the inner areas in whole parts, those at the edges each by its own. False where sums are not exact.
template <class T>
bool ResizeChroma(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const Period across(record, record.columns), down(record, record.rows);
  const bool areExact = int64_t{across.parts} * down.parts <= (1 << 24) >> (8 * sizeof(T));
  if (!record.IsOfChroma() || !areExact || ColumnsPerStrip(across, Channels(call.src.layout)) < 1) return false;
  const Extent x = InnerPositions(record, record.columns, tile.x, tile.width);
  const Extent y = InnerPositions(record, record.rows, tile.y, tile.height);
  const auto inner = [&](const auto& part, const Tile& of) {
    if constexpr (sizeof(T) == 1) {
      if (ResizeWhole(part, record, of)) return;
    }
    ResizeStrips(part, record, of);
  };
  const auto edge = [&](const auto& part, const Tile& of) { AverageAreas(part, record, of); };
  const auto column = [&](const auto& part, const Tile& of) { AverageColumnFor<T>(call.src.layout)(part, record, of); };
  WithPart(call, tile, x, y, inner);
  WithPart(call, tile, {0, tile.width}, {0, y.begin}, edge);
  WithPart(call, tile, {0, tile.width}, {y.end, tile.height}, edge);
  WithPart(call, tile, {0, x.begin}, y, column);
  WithPart(call, tile, {x.end, tile.width}, y, column);
  return true;
}

}  // namespace

template <class T>
void AreaTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  // Means of integers in floating point are exact: this is the same result.
  if (Halve<std::conditional_t<std::is_integral_v<T>, TiesToEven, Midpoints>>(call, record, tile)) return;
  if constexpr (sizeof(T) == 1) {
    if (!record.IsShifted() && ResizeWhole(call, record, tile)) return;
  }
  if constexpr (std::is_integral_v<T>) {
    if (AreSumsExact<T>(record) && ResizeStrips(call, record, tile)) return;
    if (ResizeChroma(call, record, tile)) return;
  }
  if (IsNear(record)) return AverageStrips<NearColumns>(call, record, tile);
  if (AverageParts(call, record, tile)) return;
  AverageAreas(call, record, tile);
}

template void AreaTile(const ResizeCall<uint8_t>&, const ResizeRecord&, const Tile&);
template void AreaTile(const ResizeCall<uint16_t>&, const ResizeRecord&, const Tile&);
template void AreaTile(const ResizeCall<int16_t>&, const ResizeRecord&, const Tile&);
template void AreaTile(const ResizeCall<float>&, const ResizeRecord&, const Tile&);

namespace {

template <class T>
QvpStatus Super(const ResizeCall<T>& call) {
  return RunResize(call, {qvpInterpolationSuper, false, true, true}, AreaTile<T>);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 8u, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 16u, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 16s, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 32f, Super)
