// Sums of integers under a window, row by row, as kernels of the windows' walk: down the columns, then across. Sums of
// columns run, without the newest row, and two rows of results are made at a time.
#pragma once

#include "filter/running_totals.h"
#include "filter/sum_rows.h"

namespace qvp::filter {

// The rows that are kept: running sums by turns, then two rows of sums of columns, and levels of the sums across.
struct SumRows {
  enum { kRunning = 0, kUpper = 2, kLower = 3, kLevels = 4 };
};

// Lanes of S, as lanes of L that are as long or twice as long.
template <class L, class S>
HWY_INLINE void StoreAs(hn::Vec<hn::ScalableTag<S>> v, L* to) {
  const hn::ScalableTag<S> d;
  if constexpr (std::is_same_v<L, S>) {
    hn::StoreU(v, d, to);
  } else {
    const hn::ScalableTag<L> wide;
    const hn::Half<decltype(d)> half;
    hn::StoreU(hn::PromoteTo(wide, hn::LowerHalf(half, v)), wide, to);
    hn::StoreU(hn::PromoteTo(wide, hn::UpperHalf(half, v)), wide, to + hn::MaxLanes(wide));
  }
}

template <int kCount, class D, class E>
HWY_INLINE std::array<hn::Vec<D>, kCount> Differences(D d, const E* from, const E* to) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  std::array<hn::Vec<D>, kCount> differences;
  Unrolled<kCount>([&](auto v) QVP_INLINED {
    differences[v] = hn::Sub(hn::LoadU(d, to + v * kLanes), hn::LoadU(d, from + v * kLanes));
  });
  return differences;
}

// Sums of columns of T in lanes of S, stored as lanes of L.
template <class T, class S, class L>
class ColumnSums {
 public:
  static void Make(const SumShape& shape, const Window& window) {
    const ColumnSums sums(shape, window);
    switch (shape.height) {  // sums of a few rows need not run
      case 1: return sums.template AddAnew<1>();
      case 2: return sums.template AddAnew<2>();
      case 3: return sums.template AddAnew<3>();
      case 4: return sums.template AddAnew<4>();
      case 5: return sums.template AddAnew<5>();
    }
    if (window.y == 0) sums.Start();
    sums.Run();
  }

 private:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<S>());

  ColumnSums(const SumShape& shape, const Window& window)
      : lines_(reinterpret_cast<const T* const*>(window.lines)),
        height_(shape.height),
        n_(shape.Columns(window.samples)),
        before_(Row<S>(window, SumRows::kRunning + window.y / 2 % 2)),
        after_(Row<S>(window, SumRows::kRunning + 1 - window.y / 2 % 2)),
        upper_(Row<L>(window, SumRows::kUpper)),
        lower_(Row<L>(window, SumRows::kLower)) {}

  template <class E>
  static E* Row(const Window& window, ptrdiff_t i) {
    return reinterpret_cast<E*>(window.kept + i * window.keptStep);
  }

  // The sum of lines [first, last), a few vectors of it.
  template <int kCount>
  HWY_INLINE std::array<hn::Vec<hn::ScalableTag<S>>, kCount> Sum(ptrdiff_t first, ptrdiff_t last, ptrdiff_t i) const {
    const hn::ScalableTag<S> d;
    std::array<hn::Vec<decltype(d)>, kCount> sums;
    Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v] = hn::Zero(d); });
    for (ptrdiff_t j = first; j < last; ++j) {
      Unrolled<kCount>([&](auto v)
                           QVP_INLINED { sums[v] = hn::Add(sums[v], LoadWide(d, lines_[j] + i + v * kLanes)); });
    }
    return sums;
  }

  template <int kHeight>
  void AddAnew() const {
    const hn::ScalableTag<S> d;
    const std::array<const T*, kHeight + 1> lines =
        LinesOf<T, kHeight + 1>(reinterpret_cast<const void* const*>(lines_));
    ForEachVectors<2, kLanes>(n_, [&](auto count, ptrdiff_t i) QVP_INLINED {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t at = i + v * kLanes;
        auto shared = hn::Zero(d);
        Unrolled<kHeight - 1>([&](auto j) QVP_INLINED { shared = hn::Add(shared, LoadWide(d, lines[j + 1] + at)); });
        StoreAs<L, S>(hn::Add(shared, LoadWide(d, lines[0] + at)), upper_ + at);
        StoreAs<L, S>(hn::Add(shared, LoadWide(d, lines[kHeight] + at)), lower_ + at);
      });
    });
  }

  void Start() const {
    const hn::ScalableTag<S> d;
    ForEachVectors<4, kLanes>(n_, [&](auto count, ptrdiff_t i) QVP_INLINED {
      const auto sums = Sum<count>(0, height_ - 1, i);
      Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], d, before_ + i + v * kLanes); });
    });
  }

  // From one row of running sums to another one, as the last vector may overlap the one before it.
  void Run() const {
    const hn::ScalableTag<S> d;
    const T *const oldest = lines_[0], *const next = lines_[1], *const newer = lines_[height_ - 1],
                   *const newest = lines_[height_];
    ForEachVectors<2, kLanes>(n_, [&](auto count, ptrdiff_t start) QVP_INLINED {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = start + v * kLanes;
        const auto upper = hn::Add(hn::LoadU(d, before_ + i), LoadWide(d, newer + i));
        const auto lower = hn::Add(hn::Sub(upper, LoadWide(d, oldest + i)), LoadWide(d, newest + i));
        StoreAs<L, S>(upper, upper_ + i);
        StoreAs<L, S>(lower, lower_ + i);
        hn::StoreU(hn::Sub(lower, LoadWide(d, next + i)), d, after_ + i);
      });
    });
  }

  const T* const* lines_;
  ptrdiff_t height_, n_;
  S *before_, *after_;
  L *upper_, *lower_;
};

// Integers of T, by sums of columns as `columns` makes them, and across in lanes of L.
template <class T, class L, class Finish>
struct IntegerSums {
  SumShape shape;
  SumTree across;
  void (*columns)(const SumShape&, const Window&);
  Finish finish;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& kernel = *static_cast<const IntegerSums*>(context);
    kernel.columns(kernel.shape, window);
    const auto row = [&](ptrdiff_t k) {
      const ptrdiff_t middle = (kernel.shape.width - 1) / 2 * kernel.shape.channels;
      return static_cast<const T*>(window.lines[(kernel.shape.height - 1) / 2 + k]) + middle;
    };
    const RowRoom<L> kept{window.kept, window.keptStep};
    kernel.Across(FinishOver(kernel.finish, row(0)), kept, SumRows::kUpper, window.samples, rows.upper[0]);
    if (rows.lower[0] == rows.upper[0]) return;
    kernel.Across(FinishOver(kernel.finish, row(1)), kept, SumRows::kLower, window.samples, rows.lower[0]);
  }

  WindowKernel AsKernel() const {
    return {.context = this,
            .across = nullptr,
            .down = Down,
            .elementBytes = sizeof(T),
            .rowsAtOnce = 2,
            .kept = {SumRows::kLevels + across.levels(), sizeof(L)},
            .cacheBytes = kSumCacheBytes};
  }

 private:
  // As differences of running totals if there are many. Those of three channels take as long for any lanes, and trees
  // of few do not.
  HWY_NOINLINE void Across(const Finish& of, const RowRoom<L>& kept, ptrdiff_t sums, ptrdiff_t samples,
                           uint8_t* row) const {
    const RowRoom<L> room = kept.From(SumRows::kLevels);
    if constexpr (std::is_integral_v<L>) {
      const bool isMany = across.levels() > 0;
      if (isMany && (shape.channels != 3 || sizeof(L) == sizeof(int32_t)))
        return AcrossByTotals(of, kept.Row(sums), samples, room.Row(0), row);
    }
    FinishRow<L>(of, PartsAcross<L>(across, kept.Row(sums), shape.channels, samples, room), samples, row);
  }
  void AcrossByTotals(const Finish& of, const L* sums, ptrdiff_t samples, L* totals, uint8_t* row) const {
    const hn::ScalableTag<L> d;
    const ptrdiff_t apart = shape.width * shape.channels;
    const ptrdiff_t n = shape.Columns(samples);
    shape.channels == 1   ? AddUp<1>(sums, n, totals)
    : shape.channels == 3 ? AddUpThrees(sums, n, totals)
                          : AddUp<4>(sums, n, totals);
    FinishRow<L>(of, samples, row, [&](auto count, ptrdiff_t i) QVP_INLINED {
      return Differences<count>(d, totals + i, totals + i + apart);
    });
  }
};

}  // namespace qvp::filter
