// Extremes along rows: of windows that are longer than a power of a few, by overlapping shorter ones.
#pragma once

#include "filter/axis_sums.h"
#include "filter/extremes.h"

namespace qvp::filter {

template <class Op, class T>
struct ExtremeRows {
  using E = ExtremeLane<T>;
  using D = hn::ScalableTag<E>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = 4;  // at a time

  // Pixels as lanes.
  static void Load(const void* source, ptrdiff_t n, E* to) {
    const D d;
    const auto* const from = static_cast<const E*>(source);
    ForEachVectors<kVectors, kLanes>(n, [=](auto count, ptrdiff_t i) HWY_ATTR {
      Unrolled<count>([&](auto v) QVP_INLINED {
        hn::StoreU(LanesOf<Op, T>(hn::LoadU(d, from + i + v * kLanes)), d, to + i + v * kLanes);
      });
    });
  }

  // The extremes of four elements, `step` apart.
  static void Quadruple(const E* from, ptrdiff_t step, ptrdiff_t n, E* to) {
    Combine<4, E>(from, step, 3 * step, n, to);
  }

  // The extremes of windows of `width` elements, which are `channels` apart: passes that make windows four times as
  // long, and a last one that overlaps them.
  class Windowed {
   public:
    Windowed(ptrdiff_t width, ptrdiff_t channels) : width_(width), channels_(channels) {
      while (width > 5 * reached_) reached_ *= 4;
      constexpr auto kFinish = std::array{Combine<1, T>, Combine<2, T>, Combine<3, T>, Combine<4, T>, Combine<5, T>};
      finish_ = kFinish[(width + reached_ - 1) / reached_ - 1];
    }

    // `from` has n + (width - 1) * channels elements, and a vector behind them if that is less than a vector. It and
    // `spare`, which is as long, are for what is between.
    HWY_INLINE void Run(E* from, E* spare, ptrdiff_t n, T* to) const {
      for (ptrdiff_t reached = 1; reached < reached_; reached *= 4) {
        const ptrdiff_t step = reached * channels_;
        Quadruple(from, step, n + (width_ - 4 * reached) * channels_, spare);
        std::swap(from, spare);
      }
      finish_(from, reached_ * channels_, (width_ - reached_) * channels_, n, to);
    }

   private:
    ptrdiff_t width_, channels_, reached_ = 1;
    void (*finish_)(const E* from, ptrdiff_t step, ptrdiff_t last, ptrdiff_t n, T* to);
  };

 private:
  // The extreme of kTerms elements, `step` apart but the last one, which is at `last`. Results of T are finished.
  template <int kTerms, class R>
  static HWY_NOINLINE void Combine(const E* from, ptrdiff_t step, ptrdiff_t last, ptrdiff_t n, R* to) {
    const D d;
    MakeRow<kVectors, kLanes>(n, reinterpret_cast<E*>(to), [=](auto count, ptrdiff_t i, E* out) HWY_ATTR {
      hn::Vec<D> v[count];
      Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::LoadU(d, from + last + i + k * kLanes); });
      Unrolled<kTerms - 1>([&](auto t) QVP_INLINED {
        Unrolled<count>([&](auto k)
                            QVP_INLINED { v[k] = Op::Of(v[k], hn::LoadU(d, from + t * step + i + k * kLanes)); });
      });
      Unrolled<count>([&](auto k) QVP_INLINED { hn::StoreU(ResultOf<Op, R>(v[k]), d, out + k * kLanes); });
    });
  }
};

}  // namespace qvp::filter
