// The walk of resizing over a tile: a strip of rows of all its planes after the other. Each plane of the source is
// filtered across and down once for a strip, and kept as long as results need it.
#pragma once

#include "base/store.h"
#include "volume/resize_lines.h"

namespace qvp::volume {

template <class T>
struct VolumeResizeCall {
  Volume<const T> src;  // at voxel (0, 0, 0) of the whole source
  Volume<T> dst;
  QvprPoint offset;
  QvprVolume volume;
  QvpiBorderType border;
  const QvprResizeSpec* spec;
  uint8_t* buffer;

  const ResizeRecord& record() const { return *RecordIn<ResizeRecord>(spec); }
};

template <class T, class Lines>
class ResizeWalk {
 public:
  using Line = typename Lines::Line;

  // Rows of lines lie one behind the other at `memory`, those of a plane's taps first.
  ResizeWalk(const VolumeResizeCall<T>& call, const VolumeTile& tile, const Lines& lines, uint8_t* memory)
      : call_(call),
        record_(call.record()),
        tile_(tile),
        lines_(lines),
        edges_(record_, call.border),
        store_(StoreOf(record_, tile)) {
    const ResizeRoom room(record_, tile.width);
    step_ = static_cast<ptrdiff_t>(room.row) / kFloat;
    taps_ = {reinterpret_cast<Line*>(memory), step_, static_cast<int>(room.rows)};
    planes_ = {taps_.at + room.rows * step_, 0, static_cast<int>(room.planes)};
    stripRows_ = room.StripRows(tile.height);
  }

  void Run() {
    for (ptrdiff_t y = 0; y < tile_.height; y += stripRows_) {
      const Extent rows{y, std::min(y + stripRows_, tile_.height)};
      record_.IsPassedOver(record_.depth) ? FilterEachPlane(rows) : FilterStrip(rows);
    }
  }

 private:
  static constexpr ptrdiff_t kFloat = sizeof(float);  // a row has as many elements of any type

  void FilterEachPlane(Extent rows) const {
    for (ptrdiff_t z = 0; z < tile_.depth; ++z) {
      const Image<T> results = call_.dst.Plane(z);
      FilterPlane(call_.src.Plane(tile_.z + z), rows, [&](ptrdiff_t y) { return results.Row(y); });
    }
  }

  void FilterStrip(Extent rows) const {
    const RowRing<Line> planes{planes_.at, (rows.end - rows.begin) * step_, planes_.places};
    const auto needs = [&](ptrdiff_t z) { return record_.TapsOf(record_.depth, tile_.z + z); };
    const auto prepare = [&](ptrdiff_t plane, ptrdiff_t end) {
      for (; plane < end; ++plane) {
        Line* const strip = planes.Row(plane);
        FilterPlane(call_.src.Plane(edges_.planes(plane)), rows,
                    [&](ptrdiff_t y) { return strip + (y - rows.begin) * step_; });
      }
    };
    WalkDown(tile_.depth, needs, prepare, [&](ptrdiff_t z) {
      const Image<T> results = call_.dst.Plane(z);
      RowRing<Line> lines = planes;
      for (ptrdiff_t y = rows.begin; y < rows.end; ++y, lines.at += step_) PutThrough(lines, z, results.Row(y));
    });
    Fence(store_);
  }

  // A result that goes past the caches lies in the place of a plane's taps first.
  void PutThrough(const RowRing<Line>& lines, ptrdiff_t z, T* to) const {
    if (store_ == Store::kOrdinary) return lines_.Through(lines, z, to);
    lines_.Through(lines, z, reinterpret_cast<T*>(taps_.at));
    StreamRow(reinterpret_cast<const uint8_t*>(taps_.at), reinterpret_cast<uint8_t*>(to),
              tile_.width * ptrdiff_t{sizeof(T)});
  }

  // By what a call reads and writes, if a tile takes its share of the source.
  static Store StoreOf(const ResizeRecord& record, const VolumeTile& tile) {
    const auto voxels = [](ptrdiff_t width, ptrdiff_t height, ptrdiff_t depth) {
      return static_cast<double>(width) * static_cast<double>(height) * static_cast<double>(depth);
    };
    const ResizeAxis &x = record.plane.columns, &y = record.plane.rows, &z = record.depth;
    const double results = voxels(tile.width, tile.height, tile.depth);
    const double scale = voxels(x.source, y.source, z.source) / voxels(x.destination, y.destination, z.destination);
    constexpr double kMost = 1e18;
    return StoreFor(static_cast<int64_t>(std::min(results * (1 + scale) * sizeof(T), kMost)));
  }

  // Across and down, to the row out(y) for each of the tile's rows.
  template <class Out>
  void FilterPlane(const Image<const T>& plane, Extent rows, const Out& out) const {
    if (record_.IsPassedOver(record_.plane.rows)) return FilterRows(plane, rows, out);
    const auto source = [&](ptrdiff_t y) { return plane.Row(edges_.rows(y)); };
    const auto place = [&](ptrdiff_t y) { return taps_.Row(y); };
    const auto prepare = [&](ptrdiff_t y, ptrdiff_t end) {
      resize::ForTwo(y, end, source, place, [&](const auto& from, const auto& to) { lines_.Across(from, to); });
    };
    const auto needs = [&](ptrdiff_t y) { return record_.TapsOf(record_.plane.rows, tile_.y + rows.begin + y); };
    WalkDown(rows.end - rows.begin, needs, prepare,
             [&](ptrdiff_t y) { lines_.Down(taps_, rows.begin + y, out(rows.begin + y)); });
  }

  template <class Out>
  void FilterRows(const Image<const T>& plane, Extent rows, const Out& out) const {
    constexpr bool kIsResult = std::is_same_v<decltype(out(0)), T*>;
    for (ptrdiff_t y = rows.begin; y < rows.end; ++y) {
      const std::array from{plane.Row(tile_.y + y)};
      if constexpr (kIsResult) {
        lines_.Across(from, std::array{taps_.at});
        lines_.Store(taps_.at, out(y));
      } else {
        lines_.Across(from, std::array{out(y)});
      }
    }
  }

  const VolumeResizeCall<T>& call_;
  const ResizeRecord& record_;
  const VolumeTile& tile_;
  const Lines& lines_;
  VolumeEdges edges_;
  Store store_;
  ptrdiff_t step_, stripRows_;
  RowRing<Line> taps_, planes_;
};

}  // namespace qvp::volume
