// Separable filters in space: across and down as images, then through the planes, in floats.
#pragma once

#include "filter/axis_kernels.h"
#include "volume/filter_blocks.h"
#include "volume/filter_kernels.h"

namespace qvp::volume {

// Across and down: rows of a plane, two at a time.
template <class T>
class PlaneSums {
 public:
  explicit PlaneSums(const FilterRecord& record) : mask_(record.mask()) {
    const float* const x = record.Coefficients<float>();
    axes_ = {{x, mask_.width}, {x + mask_.width, mask_.height}, 1, record.mode, 1};
    kernel_ = filter::LaneKernel<float, float, float, false>::For(axes_);
  }

  // Sums of a block of a plane, to rows `step` apart.
  void operator()(const BorderedImage<T>& image, Extent columns, Extent rows, ptrdiff_t step, float* to,
                  uint8_t* memory) const {
    const ptrdiff_t n = columns.end - columns.begin, count = rows.end - rows.begin;
    const auto lines = reinterpret_cast<const void**>(AtBoundary(memory));
    const RowRing<float> ring{AtBoundary(reinterpret_cast<float*>(lines + mask_.height + 1)), step, mask_.height + 1};
    BorderRows<SingleRows<T, float>, T> source(image, mask_.Columns(columns), n >= kLanes);
    auto* const line = reinterpret_cast<float*>(source.Start(reinterpret_cast<uint8_t*>(ring.at + ring.places * step)));
    const ptrdiff_t first = rows.begin - mask_.before.y;
    float *oldest = ring.at, *room = ring.at;
    ptrdiff_t next = 0;
    for (ptrdiff_t y = 0; y < count; y += 2, oldest = ring.Next(ring.Next(oldest))) {
      const ptrdiff_t lower = std::min(y + 1, count - 1), end = lower + mask_.height;
      for (; next < end; ++next, room = ring.Next(room)) {
        kernel_.across(kernel_.context, source.Line(first + next, line), room, n);
      }
      const float* row = oldest;
      for (ptrdiff_t j = y; j < end; ++j, row = ring.Next(row)) lines[j - y] = row;
      if (lower == y) lines[mask_.height] = lines[0];  // is read, but not used
      SumDown(lines, n, to + y * step, to + lower * step);
    }
  }

 private:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<float>());

  void SumDown(const void* const* lines, ptrdiff_t n, float* upper, float* lower) const {
    const auto bytes = [](float* row) { return reinterpret_cast<uint8_t*>(row); };
    kernel_.down(kernel_.context, {lines, n, 0, nullptr, 0, {}}, {{bytes(upper)}, {bytes(lower)}});
  }

  Mask mask_;
  filter::LaneAxes<float> axes_;
  filter::WindowKernel kernel_;
};

// Through the planes.
template <class T>
class PlanesSum {
 public:
  explicit PlanesSum(const FilterRecord& record)
      : taps_{record.Coefficients<float>() + record.kernel.width + record.kernel.height, record.kernel.depth},
        mode_(record.mode),
        sum_(filter::ForTerms<filter::kFewTerms>(taps_.count, [](auto terms) { return Sum<terms>; })) {}

  // A block of results, from rows `step` apart in each plane.
  void operator()(const float* const* planes, ptrdiff_t step, Size block, const Image<T>& dst) const {
    for (ptrdiff_t y = 0; y < block.height; ++y) sum_(taps_, mode_, planes, y * step, block.width, dst.Row(y));
  }

 private:
  using D = hn::ScalableTag<float>;
  using Taps = filter::AxisOf<float>;

  // No sum is -0, as if it had begun with 0.
  template <int kTerms>
  static void Sum(const Taps& axis, int mode, const float* const* planes, ptrdiff_t at, ptrdiff_t n, T* to) {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    const filter::TapVectors<D, float, kTerms> taps(axis);
    const auto lines = filter::LinesOfTerms<float, false, kTerms>(reinterpret_cast<const void* const*>(planes));
    filter::MakeRow<filter::kSumsAtOnce<float>, kLanes>(n, to, [&](auto count, ptrdiff_t i, T* out) QVP_INLINED {
      const auto value = [=](ptrdiff_t k, auto v)
                             QVP_INLINED { return hn::LoadU(D(), lines[k] + at + i + v * kLanes); };
      const auto sums = filter::SumsOfProducts<false, count>(taps, value);
      Unrolled<count>([&](auto v) QVP_INLINED { StoreReals(mode, hn::Add(sums[v], hn::Zero(D())), out + v * kLanes); });
    });
  }

  Taps taps_;
  int mode_;
  void (*sum_)(const Taps&, int, const float* const*, ptrdiff_t, ptrdiff_t, T*);
};

template <class T>
void FilterSeparably(const FilterRecord& record, const BorderedVolume<T>& src, const Volume<T>& dst,
                     const VolumeSize& size, uint8_t* buffer) {
  const PlaneSums<T> sums(record);
  const PlanesSum<T> through(record);
  const Mask mask = record.mask();
  const BlockPlan plan(mask, size);
  plan.ForEachBlock([&](Extent columns, Extent rows) {
    const PlaneRing<float> ring(mask, 1, rows, plan.step(), buffer);
    const Size block{columns.end - columns.begin, rows.end - rows.begin};
    const auto prepare = [&](const BorderedImage<T>& image, float* to, uint8_t* memory, const auto& then) {
      sums(image, columns, rows, plan.step(), to, memory);
      then(0);
    };
    FilterBlock(src, size.depth, mask, ring, prepare, [&](ptrdiff_t z, ptrdiff_t) {
      Image<T> results = dst.Plane(z);
      results.data = results.Row(rows.begin) + columns.begin;
      through(ring.Lines(z - mask.before.z, 0), plan.step(), block, results);
    });
  });
}

}  // namespace qvp::volume
