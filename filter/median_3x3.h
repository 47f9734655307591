// The median of 3x3: columns are sorted once for three results. It is the middle one of the greatest of their least
// values, the middle one of their middle ones, and the least of their greatest (Smith, Implementing median filters in
// XC4000E FPGAs, 1996): for two rows of results 34 minima and maxima.
#pragma once

#include "filter/median_networks.h"

namespace qvp::filter {

template <class T>
class SmallestKernel {
 public:
  using E = MedianLane<T>;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const SmallestKernel kernel(*static_cast<const NetworkContext<T>*>(context), window);
    E *const upper = reinterpret_cast<E*>(rows.upper[0]), *const lower = reinterpret_cast<E*>(rows.lower[0]);
    const ptrdiff_t most = kStep - 2 * kernel.channels_ - kLanes;
    ForPieces<kLanes>(window.samples, most, upper, lower, [&](ptrdiff_t begin, ptrdiff_t n, E* up, E* low) {
      kernel.SortColumns(begin, n + 2 * kernel.channels_);
      kernel.Select(kLow, n, low);
      kernel.Select(kUp, n, up);
    });
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kRows = 6, kUp = 0, kLow = 3;  // of lists: the least, middle and greatest of two rows' columns
  static constexpr ptrdiff_t kStep = ListBytes(3) / 2 / kRows / 64 * 64 / ptrdiff_t{sizeof(E)};

  SmallestKernel(const NetworkContext<T>& context, const Window& window)
      : channels_(context.channels), lists_(context.lists), lines_(LinesOf<E, 4>(window.lines)) {}

  HWY_INLINE E* Row(int row) const { return lists_ + row * kStep; }

  HWY_NOINLINE void SortColumns(ptrdiff_t begin, ptrdiff_t n) const {
    const D d;
    const E *const l0 = lines_[0] + begin, *const l1 = lines_[1] + begin, *const l2 = lines_[2] + begin,
                   *const l3 = lines_[3] + begin;
    E* const to = lists_;
    ForEachVectors<1, kLanes>(n, [=](auto, ptrdiff_t i) HWY_ATTR {
      const V a = OrderedLanes<T>(hn::LoadU(d, l1 + i)), b = OrderedLanes<T>(hn::LoadU(d, l2 + i));
      const V less = hn::Min(a, b), greater = hn::Max(a, b);
      const auto put = [=](V v, E* list) QVP_INLINED {
        const V middle = hn::Max(v, less);
        hn::StoreU(hn::Min(v, less), d, list);
        hn::StoreU(hn::Min(middle, greater), d, list + kStep);
        hn::StoreU(hn::Max(middle, greater), d, list + 2 * kStep);
      };
      put(OrderedLanes<T>(hn::LoadU(d, l0 + i)), to + kUp * kStep + i);
      put(OrderedLanes<T>(hn::LoadU(d, l3 + i)), to + kLow * kStep + i);
    });
  }

  static HWY_INLINE V Middle(V a, V b, V c) { return hn::Max(hn::Min(a, b), hn::Min(hn::Max(a, b), c)); }

  HWY_NOINLINE void Select(int row, ptrdiff_t n, E* to) const {
    const D d;
    const E *const least = Row(row), *const middle = Row(row + 1), *const greatest = Row(row + 2);
    const ptrdiff_t next = channels_;
    ForEachVectors<2, kLanes>(n, [=](auto count, ptrdiff_t at) HWY_ATTR {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = at + v * kLanes;
        const auto load = [=](const E* from, int k) QVP_INLINED { return hn::LoadU(d, from + i + k * next); };
        const V low = hn::Max(hn::Max(load(least, 0), load(least, 1)), load(least, 2));
        const V high = hn::Min(hn::Min(load(greatest, 0), load(greatest, 1)), load(greatest, 2));
        const V among = Middle(load(middle, 0), load(middle, 1), load(middle, 2));
        hn::StoreU(OrderedLanes<T>(Middle(low, high, among)), d, to + i);
      });
    });
  }

  ptrdiff_t channels_;
  E* lists_;
  std::array<const E*, 4> lines_;
};

}  // namespace qvp::filter
