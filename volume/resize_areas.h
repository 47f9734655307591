// Averages over cuboids: sums through the planes, down, and across, in units of the axes' parts, then one scale.
#pragma once

#include "geometry/resize_passes.h"
#include "volume/resize_walk.h"

namespace qvp::volume {

template <class T>
class AreaWalk {
 public:
  AreaWalk(const VolumeResizeCall<T>& call, const VolumeTile& tile)
      : call_(call),
        record_(call.record()),
        tile_(tile),
        plan_(resize::Taps(record_.plane, record_.plane.columns, tile.x, tile.width),
              resize::ColumnEdge(call.border, record_.plane), 1),
        weights_{record_.plane.Weights<float>(record_.plane.columns) + tile.x,
                 static_cast<ptrdiff_t>(resize::PlaneOf(record_.plane.columns.destination))},
        scale_(
            static_cast<float>(1 / (Parts(record_.plane.columns) * Parts(record_.plane.rows) * Parts(record_.depth)))) {
    begin_ = record_.TapsOf(record_.plane.columns, tile.x).begin;
    width_ = record_.TapsOf(record_.plane.columns, tile.x + tile.width - 1).end - begin_;
    const auto step = static_cast<ptrdiff_t>(ResizeRoom(record_, tile.width).row / sizeof(float));
    float* const rows = reinterpret_cast<float*>(AtBoundary(call.buffer));
    through_ = rows, down_ = rows + step, across_ = rows + 2 * step;
  }

  void Run() {
    for (ptrdiff_t z = 0; z < tile_.depth; ++z) {
      const resize::Coverage planes = resize::PeriodicCoverage(record_.depth, tile_.z + z);
      const Image<T> results = call_.dst.Plane(z);
      kept_ = kNone;
      for (ptrdiff_t y = 0; y < tile_.height; ++y) {
        SumDown(planes, resize::PeriodicCoverage(record_.plane.rows, tile_.y + y));
        resize::FilterAcross(plan_, weights_, std::array<const float*, 1>{down_ - begin_}, std::array{across_});
        const auto scale = hn::Set(kLanes, scale_);
        MapRow<false>(
            kLanes, results.Row(y), tile_.width, [=](auto v) HWY_ATTR { return hn::Mul(v, scale); },
            static_cast<const float*>(across_));
      }
    }
  }

 private:
  static constexpr hn::ScalableTag<float> kLanes{};
  static constexpr ptrdiff_t kNone = -1;

  static double Parts(const ResizeAxis& axis) { return axis.p; }

  // Adds a row times its part to sums, which begin with the first one.
  template <class S>
  void Add(bool isFirst, const S* row, double part, float* sums) const {
    const auto w = hn::Set(kLanes, static_cast<float>(part));
    if (isFirst) {
      return MapRow<false>(
          kLanes, sums, width_, [=](auto v) HWY_ATTR { return hn::Mul(v, w); }, row);
    }
    MapRow<false>(
        kLanes, sums, width_, [=](auto sum, auto v) HWY_ATTR { return hn::Add(sum, hn::Mul(v, w)); },
        static_cast<const float*>(sums), row);
  }

  // The sums of row y of the source through planes: the last one is kept, which two areas may share.
  void SumThrough(const resize::Coverage& planes, ptrdiff_t y) {
    if (y == kept_) return;
    for (ptrdiff_t k = 0; k < planes.Pixels(); ++k) {
      Add(k == 0, call_.src.Plane(planes.first + k).Row(y) + begin_, planes.Part(k), through_);
    }
    kept_ = y;
  }
  void SumDown(const resize::Coverage& planes, const resize::Coverage& rows) {
    for (ptrdiff_t k = 0; k < rows.Pixels(); ++k) {
      SumThrough(planes, rows.first + k);
      Add(k == 0, static_cast<const float*>(through_), rows.Part(k), down_);
    }
  }

  const VolumeResizeCall<T>& call_;
  const ResizeRecord& record_;
  const VolumeTile& tile_;
  resize::ColumnPlan<float> plan_;
  resize::TapPlanes<float> weights_;
  float scale_;
  ptrdiff_t begin_, width_, kept_ = kNone;
  float *through_, *down_, *across_;
};

// Where planes are left alone each is an image. The buffer has room for so many rows of it at a time.
template <class T>
void AverageEachPlane(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const ResizeRecord& record = call.record();
  const ptrdiff_t rows = 2 * tile.width + 32;
  for (ptrdiff_t z = 0; z < tile.depth; ++z) {
    const Image<const T> src = call.src.Plane(tile.z + z);
    const Image<T> dst = call.dst.Plane(z);
    for (ptrdiff_t y = 0; y < tile.height; y += rows) {
      const resize::Tile part(record.plane, resize::Point(tile.x, tile.y + y),
                              Size(tile.width, std::min(rows, tile.height - y)));
      const Image<const T> from{src.Row(part.source.y) + part.source.x, src.step, Layout::kC1};
      const Image<T> to{dst.Row(y), dst.step, Layout::kC1};
      resize::AreaTile<T>({from, to, resize::Point(part.x, part.y), Size(part.width, part.height), nullptr, call.buffer,
                           resize::ResizeForm::kPlain},
                          record.plane, part);
    }
  }
}

}  // namespace qvp::volume
