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

  // Of a window of `width` elements at each place, which are `channels` apart: `from` has n + (width - 1) * channels
  // elements, and a vector behind them if that is less than a vector. `spare` are two rows as long for what is between.
  static void Across(const E* from, ptrdiff_t width, ptrdiff_t channels, E* const (&spare)[2], ptrdiff_t n, T* to) {
    ptrdiff_t reached = 1;
    for (int turn = 0; width > 5 * reached; turn ^= 1) {
      const ptrdiff_t next = 4 * reached;
      Combine<4, E>(from, reached * channels, 3 * reached * channels, n + (width - next) * channels, spare[turn]);
      from = spare[turn];
      reached = next;
    }
    const ptrdiff_t step = reached * channels, last = (width - reached) * channels;
    switch ((width + reached - 1) / reached) {
      case 1: return Combine<1, T>(from, step, last, n, to);
      case 2: return Combine<2, T>(from, step, last, n, to);
      case 3: return Combine<3, T>(from, step, last, n, to);
      case 4: return Combine<4, T>(from, step, last, n, to);
      default: return Combine<5, T>(from, step, last, n, to);
    }
  }

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
