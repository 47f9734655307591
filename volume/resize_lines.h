// The three steps of resizing in space, row by row: across, down, and through the planes. An axis of equal lengths is
// passed over.
#pragma once

#include "geometry/resize_linear_columns.h"
#include "geometry/resize_rows.h"
#include "geometry/resize_store.h"
#include "volume/border.h"
#include "volume/resize_record.h"

namespace qvp::volume {

// How taps beyond the volume are found, along each axis.
struct VolumeEdges {
  resize::Edge columns, rows, planes;

  VolumeEdges(const ResizeRecord& record, QvpiBorderType border)
      : columns(resize::ColumnEdge(border, record.plane)),
        rows(resize::RowEdge(border, record.plane)),
        planes{KindOf(border), EffectivePlanes(border, record.depth.source, record.Reach(), record.Reach())} {}
};

// Lines of floats. `Weights` are those of an axis, from one of its positions on.
template <class T, class Weights>
class FloatLines {
 public:
  using Line = float;

  FloatLines(const ResizeRecord& record, const VolumeTile& tile, QvpiBorderType border)
      : isAcrossPassedOver_(record.IsPassedOver(record.plane.columns)),
        x_(tile.x),
        width_(tile.width),
        plan_(resize::Taps(record.plane, record.plane.columns, tile.x, tile.width), VolumeEdges(record, border).columns,
              1, AreNear(record.plane.columns)),
        rows_(record.plane, record.plane.rows, tile.y, tile.height),
        planes_(record.plane, record.depth, tile.z, tile.depth),
        across_(WeightsOf(record.plane, record.plane.columns, tile.x)),
        down_(WeightsOf(record.plane, record.plane.rows, tile.y)),
        through_(WeightsOf(record.plane, record.depth, tile.z)) {}

  // Rows of the source, by their voxel 0.
  template <size_t kRows>
  void Across(const std::array<const T*, kRows>& rows, const std::array<float*, kRows>& out) const {
    if (!isAcrossPassedOver_) return resize::FilterAcross(plan_, across_, rows, out);
    for (size_t i = 0; i < kRows; ++i) {
      MapRow<false>(
          hn::ScalableTag<float>(), out[i], width_, [](auto v) { return v; }, rows[i] + x_);
    }
  }
  // The row y of a plane, from the filtered rows of its taps: to be filtered further, or a result.
  template <class Out>
  void Down(const RowRing<float>& ring, ptrdiff_t y, Out* out) const {
    resize::CombineRows(ring, down_, rows_, y, out, width_);
  }
  // A row of plane z from those of its taps' planes.
  void Through(const RowRing<float>& ring, ptrdiff_t z, T* out) const {
    resize::CombineRows(ring, through_, planes_, z, out, width_);
  }
  // A row that needs nothing else.
  void Store(const float* line, T* out) const {
    MapRow<false>(
        hn::ScalableTag<float>(), out, width_, [](auto v) { return v; }, line);
  }

 private:
  static bool AreNear(const ResizeAxis& axis) { return axis.taps == 2 && axis.p <= 2 * axis.q; }
  static Weights WeightsOf(const resize::ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin) {
    const float* weights = record.Weights<float>(axis) + begin;
    if constexpr (std::is_same_v<Weights, resize::LinearPlane<float>>) {
      return {weights};
    } else {
      return {weights, static_cast<ptrdiff_t>(resize::PlaneOf(axis.destination))};
    }
  }

  bool isAcrossPassedOver_;
  ptrdiff_t x_, width_;
  resize::ColumnPlan<T> plan_;
  resize::Taps rows_, planes_;
  Weights across_, down_, through_;
};

// Lines of 16-bit numbers with 6 bits of fraction, for linear interpolation of bytes by weights in units of 1/16384.
class FixedLines {
 public:
  using Line = int16_t;

  // `room` is for the columns.
  FixedLines(const ResizeRecord& record, const VolumeTile& tile, QvpiBorderType border, uint8_t* room)
      : isAcrossPassedOver_(record.IsPassedOver(record.plane.columns)),
        x_(tile.x),
        width_(tile.width),
        columns_(record.plane, PlaneOf(tile, record), border, resize::PixelsOf(1), 0, room,
                 resize::LinearColumns::kSamples),
        rows_(record.plane, record.plane.rows, tile.y, tile.height),
        planes_(record.plane, record.depth, tile.z, tile.depth),
        down_(record.plane.Weights<int16_t>(record.plane.rows) + tile.y),
        through_(record.plane.Weights<int16_t>(record.depth) + tile.z) {}

  template <size_t kRows>
  void Across(const std::array<const uint8_t*, kRows>& rows, const std::array<int16_t*, kRows>& out) const {
    if (!isAcrossPassedOver_) return resize::FilterFixed(columns_, rows, out);
    for (size_t i = 0; i < kRows; ++i) {
      MapRow<false>(
          kLanes, out[i], width_, [](auto v) HWY_ATTR { return hn::ShiftLeft<6>(v); }, rows[i] + x_);
    }
  }
  // v = (h0 (16384 - w) + h1 w + 8192) >> 14
  void Down(const RowRing<int16_t>& ring, ptrdiff_t y, int16_t* out) const {
    const auto [upper, lower] = ring.Rows<2>(rows_.first[y]);
    const auto w = Doubled(down_[y]);
    const ptrdiff_t width = std::max<ptrdiff_t>(width_, hn::MaxLanes(kLanes));  // lines have room for a vector
    MapRow<false>(
        kLanes, out, width,
        [=](auto h0, auto h1) HWY_ATTR { return hn::Add(h0, hn::MulFixedPoint15(hn::Sub(h1, h0), w)); }, upper, lower);
  }
  void Down(const RowRing<int16_t>& ring, ptrdiff_t y, uint8_t* out) const {
    Blend(ring, rows_.first[y], down_[y], out);
  }
  void Through(const RowRing<int16_t>& ring, ptrdiff_t z, uint8_t* out) const {
    Blend(ring, planes_.first[z], through_[z], out);
  }
  void Store(const int16_t* line, uint8_t* out) const { Blend(line, line, 0, out); }

 private:
  static constexpr hn::ScalableTag<int16_t> kLanes{};

  static hn::Vec<hn::ScalableTag<int16_t>> Doubled(int weight) {
    return hn::Set(kLanes, static_cast<int16_t>(2 * weight));
  }
  void Blend(const RowRing<int16_t>& ring, ptrdiff_t first, int weight, uint8_t* out) const {
    const auto [front, back] = ring.Rows<2>(first);
    Blend(front, back, weight, out);
  }
  void Blend(const int16_t* front, const int16_t* back, int weight, uint8_t* out) const {
    const auto w = Doubled(weight);
    resize::StoreBytes(kLanes, out, width_,
                       [=](ptrdiff_t i) HWY_ATTR { return resize::BlendDown(kLanes, front + i, back + i, w); });
  }

  bool isAcrossPassedOver_;
  ptrdiff_t x_, width_;
  resize::LinearColumns columns_;
  resize::Taps rows_, planes_;
  const int16_t *down_, *through_;
};

}  // namespace qvp::volume
