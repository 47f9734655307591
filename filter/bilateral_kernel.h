// The kernel of the bilateral filter: weighted sums of the pixels of a disc, row by row.
#pragma once

#include <cstring>

#include "base/lanes.h"
#include "base/row_vectors.h"
#include "filter/axis_sums.h"
#include "filter/bilateral_range.h"
#include "filter/windows.h"

namespace qvp::filter {

template <class Range>
struct Bilateral {
  const BilateralRecord& record;
  Range range;
};

// Lines are planes of floats, one for each colour, of which the fourth channel is none.
template <class T, int kChannels, class Range, bool kKeeps>
class BilateralKernel {
 public:
  static constexpr int kColours = kChannels == 1 ? 1 : 3;

  static void Across(const void*, const void* source, void* line, ptrdiff_t samples) {
    const auto* const from = static_cast<const T*>(source);
    auto* const to = static_cast<float*>(line);
    const ptrdiff_t pixels = samples / kChannels;
    const auto split = [=](const T* at, ptrdiff_t i) HWY_ATTR {
      const hn::Rebind<T, D> narrow;
      const auto each = LoadChannels<kChannels>(narrow, at);
      for (int c = 0; c < kColours; ++c) hn::StoreU(Float(each.v[c]), D(), to + c * pixels + i);
    };
    if (pixels >= kLanes) {
      ForEachVector<kLanes>(pixels, [=](ptrdiff_t i) HWY_ATTR { split(from + i * kChannels, i); });
    } else {
      T staged[kLanes * kChannels] = {};
      std::memcpy(staged, from, samples * sizeof(T));
      split(staged, 0);
    }
    hn::StoreU(hn::Zero(D()), D(), to + kColours * pixels);  // what is read behind lines are differences, too
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& bilateral = *static_cast<const Bilateral<Range>*>(context);
    const BilateralKernel kernel(bilateral, window);
    if constexpr (kKeeps) kernel.WeighBorders();
    const ptrdiff_t n = window.samples / kChannels;
    auto* const out = reinterpret_cast<T*>(rows.upper[0]);
    if (n >= kLanes) {
      return ForEachVectors<kVectors, kLanes>(
          n, [&](auto count, ptrdiff_t i) HWY_ATTR { kernel.template Make<count>(i, out + i * kChannels); });
    }
    T staged[kLanes * kChannels];
    kernel.template Make<1>(0, staged);
    std::memcpy(out, staged, window.samples * sizeof(T));
  }

 private:
  using D = BilateralLanes;
  using V = BilateralVector;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = kColours == 1 ? 2 : 1;

  struct Totals {
    Difference<kColours> middle, weighted;
    V weights;
  };

  // Rows of weights of the offsets of a row of the disc, from that at the left on.
  struct Weights {
    float* fresh;      // of pairs whose upper pixel is the middle
    const float* old;  // of those whose lower pixel is
    ptrdiff_t step;
  };

  BilateralKernel(const Bilateral<Range>& bilateral, const Window& window)
      : record_(bilateral.record),
        range_(bilateral.range),
        window_(window),
        radius_(record_.radius),
        pixels_(window.samples / kChannels),
        plane_(pixels_ + 2 * radius_) {
    if constexpr (kKeeps) {
      for (int dy = 1; dy <= record_.rows; ++dy) weights_[dy] = WeightsIn(FirstWeights(dy), dy, window.y);
    }
  }

  static HWY_INLINE V Float(hn::Vec<hn::Rebind<T, D>> v) {
    if constexpr (std::is_same_v<T, float>) return v;
    if constexpr (std::is_integral_v<T>) return hn::ConvertTo(D(), hn::PromoteTo(hn::RebindToSigned<D>(), v));
  }

  // The first pixel of the region in a line, by its distance from the middle one.
  HWY_INLINE const float* Line(ptrdiff_t dy) const {
    return static_cast<const float*>(window_.lines[radius_ + dy]) + radius_;
  }
  HWY_INLINE Difference<kColours> Load(const float* from) const {
    Difference<kColours> pixels;
    Unrolled<kColours>([&](auto c) QVP_INLINED { pixels.v[c] = hn::LoadU(D(), from + c * plane_); });
    return pixels;
  }
  static HWY_INLINE Difference<kColours> Minus(const Difference<kColours>& a, const Difference<kColours>& b) {
    Difference<kColours> d;
    Unrolled<kColours>([&](auto c) QVP_INLINED { d.v[c] = hn::Sub(a.v[c], b.v[c]); });
    return d;
  }

  // Rows of weights for the row y of the region; `first` is that of the offset at the left.
  Weights WeightsIn(float* first, int dy, ptrdiff_t y) const {
    const auto places = dy + 1, row = static_cast<int>(y);
    const ptrdiff_t step = window_.keptStep / ptrdiff_t{sizeof(float)};
    return {first + (row + places) % places * step, first + (row + 1) % places * step, places * step};
  }
  float* FirstWeights(int dy) const {
    ptrdiff_t row = 0;
    for (int above = 1; above < dy; ++above) row += (2 * record_.reachOfRow[above] + 1) * (above + 1);
    return reinterpret_cast<float*>(window_.kept + row * window_.keptStep) + radius_;
  }

  // Weighs pairs of a line and of that `dy` below, for columns [begin, end) of the upper one.
  void Weigh(int dx, float space, const float* upper, const float* lower, ptrdiff_t begin, ptrdiff_t end,
             float* to) const {
    for (ptrdiff_t i = begin; i < end; i += kLanes) {
      const V range = range_(Minus(Load(lower + i + dx), Load(upper + i)));
      hn::StoreU(hn::Mul(hn::Set(D(), space), range), D(), to + i);
    }
  }

  // Weighs the pairs that pixels of the region are not the upper ones of: beside it in the middle row, and at first
  // above it.
  HWY_NOINLINE void WeighBorders() const {
    const float* space = record_.Space() + record_.reachOfRow[0];
    for (int dy = 1; dy <= record_.rows; ++dy) {
      const int reach = record_.reachOfRow[dy];
      for (ptrdiff_t y = window_.y == 0 ? -dy : 0; y <= 0; ++y) {
        const float *const upper = Line(y), *const lower = Line(y + dy);
        const Weights weights = WeightsIn(FirstWeights(dy), dy, window_.y + y);
        for (int dx = -reach; dx <= reach; ++dx) {
          const ptrdiff_t begin = y < 0 || dx > 0 ? -dx : pixels_, end = y == 0 && dx > 0 ? 0 : pixels_ - dx;
          Weigh(dx, space[dx + reach], upper, lower, begin, end, weights.fresh + (dx + reach) * weights.step);
        }
      }
      space += 2 * reach + 1;
    }
  }

  // Adds a pair of pixels on either side of the middle, by their differences from it.
  static HWY_INLINE void Add(const Difference<kColours>& plus, const Difference<kColours>& minus, V weightOfPlus,
                             V weightOfMinus, Totals& totals) {
    Unrolled<kColours>([&](auto c) QVP_INLINED {
      const V pair = hn::Add(hn::Mul(weightOfPlus, plus.v[c]), hn::Mul(weightOfMinus, minus.v[c]));
      totals.weighted.v[c] = hn::Add(totals.weighted.v[c], pair);
    });
    totals.weights = hn::Add(totals.weights, hn::Add(weightOfPlus, weightOfMinus));
  }

  // kCount vectors of results from the pixel i on.
  template <int kCount>
  HWY_INLINE void Make(ptrdiff_t i, T* to) const {
    Totals totals[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { totals[v] = Start(Line(0) + i + v * kLanes); });
    const float* space = AddMiddleRow<kCount>(i, totals);
    for (int dy = 1; dy <= record_.rows; ++dy) space = AddRows<kCount>(dy, i, space, totals);
    Unrolled<kCount>([&](auto v) QVP_INLINED { Finish(totals[v], to + v * kLanes * kChannels); });
  }

  HWY_INLINE Totals Start(const float* middle) const {
    Totals totals{Load(middle), {}, hn::Set(D(), 1.0f)};
    Unrolled<kColours>([&](auto c) QVP_INLINED { totals.weighted.v[c] = hn::Zero(D()); });
    return totals;
  }

  static HWY_INLINE void Finish(const Totals& totals, T* to) {
    const hn::Rebind<T, D> narrow;
    Pixels<kChannels, hn::Vec<decltype(narrow)>> results;
    if constexpr (kChannels == 4) results.v[3] = hn::Zero(narrow);
    Unrolled<kColours>([&](auto c) QVP_INLINED {
      const V mean = hn::Div(totals.weighted.v[c], totals.weights);
      results.v[c] = Narrow<T>(D(), hn::Add(totals.middle.v[c], mean));
    });
    StoreChannels(results, narrow, to);
  }

  template <int kCount>
  HWY_INLINE const float* AddMiddleRow(ptrdiff_t i, Totals (&totals)[kCount]) const {
    const float *space = record_.Space(), *const line = Line(0) + i;
    for (int dx = 1; dx <= record_.reachOfRow[0]; ++dx, ++space) AddBoth(line + dx, line - dx, *space, totals);
    return space;
  }

  // The rows of the disc `dy` below the middle and above it.
  template <int kCount>
  HWY_INLINE const float* AddRows(int dy, ptrdiff_t i, const float* space, Totals (&totals)[kCount]) const {
    const int reach = record_.reachOfRow[dy];
    const float *below = Line(dy) + i - reach, *above = Line(-dy) + i + reach, *const end = space + 2 * reach + 1;
    if constexpr (!kKeeps) {
      for (; space != end; ++space, ++below, --above) AddBoth(below, above, *space, totals);
    } else {
      Weights weights = weights_[dy];
      weights.fresh += i;
      weights.old += i + reach;
      for (; space != end; ++space, ++below, --above) {
        AddKept(below, above, *space, weights, totals);
        weights.fresh += weights.step;
        weights.old += weights.step - 1;
      }
    }
    return end;
  }

  // The pairs of pixels at two addresses, by their own weights, or by one of their own and one that was kept.
  template <int kCount>
  HWY_INLINE void AddBoth(const float* at, const float* opposite, float space, Totals (&totals)[kCount]) const {
    const V weight = hn::Set(D(), space);
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto plus = Minus(Load(at + v * kLanes), totals[v].middle),
                 minus = Minus(Load(opposite + v * kLanes), totals[v].middle);
      Add(plus, minus, hn::Mul(weight, range_(plus)), hn::Mul(weight, range_(minus)), totals[v]);
    });
  }
  template <int kCount>
  HWY_INLINE void AddKept(const float* at, const float* opposite, float space, const Weights& weights,
                          Totals (&totals)[kCount]) const {
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto plus = Minus(Load(at + v * kLanes), totals[v].middle),
                 minus = Minus(Load(opposite + v * kLanes), totals[v].middle);
      const V fresh = hn::Mul(hn::Set(D(), space), range_(plus));
      hn::StoreU(fresh, D(), weights.fresh + v * kLanes);
      Add(plus, minus, fresh, hn::LoadU(D(), weights.old + v * kLanes), totals[v]);
    });
  }

  const BilateralRecord& record_;
  const Range range_;
  const Window& window_;
  const ptrdiff_t radius_, pixels_, plane_;
  std::array<Weights, kKeeps ? MostKeptRadius(1) + 1 : 0> weights_;  // of the middle's row
};

}  // namespace qvp::filter
