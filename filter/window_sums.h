// Sums of pixels under a window, row by row, as kernels of the windows' walk: down the columns, then across. What
// becomes of the sums is the finish:
//
//   Finish::Result                       the type of results
//   Finish::kVectors                     vectors of sums that it takes at a time
//   finish.Store<kCount>(d, sums, to)    stores the results of so many vectors, or of one
#pragma once

#include "base/pack.h"
#include "filter/running_totals.h"
#include "filter/sum_tree.h"

namespace qvp::filter {

// A row of n results: sums(count, i) gives `count` vectors of sums, a constant, from result i on.
template <class E, class Finish, class Sums>
HWY_INLINE void FinishRow(const Finish& shared, ptrdiff_t n, uint8_t* row, const Sums& sums) {
  using Result = typename Finish::Result;
  const hn::ScalableTag<E> d;
  const Finish finish = shared;
  MakeRow<Finish::kVectors, ptrdiff_t{hn::MaxLanes(d)}>(
      n, reinterpret_cast<Result*>(row),
      [&](auto count, ptrdiff_t i, Result* to) QVP_INLINED { finish.template Store<count>(d, sums(count, i), to); });
}

template <class E, class Finish>
HWY_INLINE void FinishRow(const Finish& finish, const TreeParts<E>& parts, ptrdiff_t n, uint8_t* row) {
  FinishRow<E>(finish, n, row,
               [&](auto count, ptrdiff_t i) QVP_INLINED { return TreeSums<count>(hn::ScalableTag<E>(), parts, i); });
}

// ---- Integers. Sums down the columns run, without the newest row, and two rows of results are made at a time.

struct SumShape {
  ptrdiff_t width, height;
  int channels;

  // What a row of columns has for a row of results.
  ptrdiff_t Columns(ptrdiff_t results) const { return results + (width - 1) * channels; }
};

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
    if (shape.height <= kMostAddedAnew) return sums.AddAnew();
    if (window.y == 0) sums.Start();
    sums.Run();
  }

 private:
  static constexpr ptrdiff_t kMostAddedAnew = 5;  // rows: up to here sums need not run
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

  void AddAnew() const {
    const hn::ScalableTag<S> d;
    const T *const first = lines_[0], *const last = lines_[height_];
    ForEachVectors<2, kLanes>(n_, [&](auto count, ptrdiff_t i) QVP_INLINED {
      const auto shared = Sum<count>(1, height_, i);
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t at = i + v * kLanes;
        StoreAs<L, S>(hn::Add(shared[v], LoadWide(d, first + at)), upper_ + at);
        StoreAs<L, S>(hn::Add(shared[v], LoadWide(d, last + at)), lower_ + at);
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
    const Rows<L> kept{window.kept, window.keptStep};
    kernel.columns(kernel.shape, window);
    kernel.Across(kept.Row(SumRows::kUpper), window.samples, kept.From(SumRows::kLevels), rows.upper[0]);
    if (rows.lower[0] == rows.upper[0]) return;
    kernel.Across(kept.Row(SumRows::kLower), window.samples, kept.From(SumRows::kLevels), rows.lower[0]);
  }

  WindowKernel AsKernel() const {
    return {this, nullptr, Down, sizeof(T), 2, {SumRows::kLevels + across.levels(), sizeof(L)}};
  }

 private:
  // As differences of running totals where these are quicker, and pixels do not lie across blocks of 16 bytes.
  HWY_NOINLINE void Across(const L* sums, ptrdiff_t samples, const Rows<L>& room, uint8_t* row) const {
    if constexpr (std::is_integral_v<L>) {
      if (across.levels() > 0 && shape.channels != 3) return AcrossByTotals(sums, samples, room.Row(0), row);
    }
    FinishRow<L>(finish, PartsAcross<L>(across, sums, shape.channels, samples, room), samples, row);
  }
  void AcrossByTotals(const L* sums, ptrdiff_t samples, L* totals, uint8_t* row) const {
    const hn::ScalableTag<L> d;
    const ptrdiff_t apart = shape.width * shape.channels;
    shape.channels == 1 ? AddUp<1>(sums, shape.Columns(samples), totals)
                        : AddUp<4>(sums, shape.Columns(samples), totals);
    FinishRow<L>(finish, samples, row, [&](auto count, ptrdiff_t i) QVP_INLINED {
      return Differences<count>(d, totals + i, totals + i + apart);
    });
  }
};

// ---- Floats: by trees across, then down. The latest rows of each level are kept.

// The latest rows of a level, by how far they begin behind the row of results.
class LevelRing {
 public:
  LevelRing() = default;
  // Those from offset `oldest` on are used for the row of results y.
  LevelRing(const Rows<float>& room, int depth, ptrdiff_t oldest, ptrdiff_t y)
      : rows_(room),
        places_(depth),
        first_(oldest - static_cast<uint32_t>(y + oldest) % static_cast<uint32_t>(depth)) {}

  float* Row(ptrdiff_t offset) const {
    ptrdiff_t place = offset - first_;
    if (place >= places_) place -= places_;
    if (place < 0) place += (places_ - 1 - place) / places_ * places_;  // older ones, before the first row of results
    return rows_.Row(place);
  }

 private:
  Rows<float> rows_;
  int32_t places_;
  ptrdiff_t first_;  // the offset whose place is the first one
};

// How many rows of the levels are kept.
inline int RowsKept(const SumTree& across, const SumTree& down) {
  int rows = across.levels();
  for (int level = 0; level <= down.levels(); ++level) rows += down.Depth(level);
  return rows;
}

// The sums themselves.
struct AsSums {
  using Result = float;
  static constexpr int kVectors = 4;

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, float* to) const {
    Unrolled<kCount>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], d, to + v * ptrdiff_t{hn::MaxLanes(D())}); });
  }
};

template <class Finish>
struct FloatSums {
  SumShape shape;
  SumTree across, down;
  Finish finish;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& sums = *static_cast<const FloatSums*>(context);
    const auto* const lines = reinterpret_cast<const float* const*>(window.lines);
    const Rows<float> room{window.kept, window.keptStep};
    if (sums.shape.height == 1) return sums.PutRow(sums.PartsOf(lines[0], window.samples, room), window, rows);
    const Columns columns(sums, window, room.From(sums.across.levels()));
    for (ptrdiff_t line = window.y == 0 ? 0 : sums.shape.height - 1; line < sums.shape.height; ++line) {
      columns.Add(sums, window, line);
    }
    sums.PutRow(columns.Parts(sums.down), window, rows);
  }

  WindowKernel AsKernel() const {
    return {this, nullptr, Down, sizeof(float), 1, {RowsKept(across, down), sizeof(float)}};
  }

 private:
  // The levels of sums down the columns.
  class Columns {
   public:
    Columns(const FloatSums& sums, const Window& window, Rows<float> room)
        : lines_(reinterpret_cast<const float* const*>(window.lines)), isPlain_(sums.shape.width == 1) {
      for (int level = 0; level <= sums.down.levels(); ++level) {
        const int depth = sums.down.Depth(level);
        rings_[level] = {room, depth, sums.down.Oldest(level), window.y};
        room = room.From(depth);
      }
    }

    // With one more line, that of the window's: its sums across, and those of each level that it completes.
    void Add(const FloatSums& sums, const Window& window, ptrdiff_t line) const {
      if (!isPlain_) {
        const auto parts = sums.PartsOf(lines_[line], window.samples, {window.kept, window.keptStep});
        FinishRow<float>(AsSums(), parts, window.samples, reinterpret_cast<uint8_t*>(rings_[0].Row(line)));
      }
      for (int level = 1; level <= sums.down.levels(); ++level) {
        const ptrdiff_t first = line + 1 - static_cast<ptrdiff_t>(SumTree::Length(level));
        if (first < 0) break;
        const auto part = static_cast<ptrdiff_t>(SumTree::Length(level - 1));
        const auto row = [&](int i) { return Row(level - 1, first + i * part); };
        AddFours<float>({row(0), row(1), row(2), row(3)}, window.samples, rings_[level].Row(first));
      }
    }

    TreeParts<float> Parts(const SumTree& tree) const {
      return TreeParts<float>(tree, [&](int level, ptrdiff_t offset) { return Row(level, offset); });
    }

   private:
    const float* Row(int level, ptrdiff_t line) const {
      return level == 0 && isPlain_ ? lines_[line] : rings_[level].Row(line);
    }

    const float* const* lines_;
    bool isPlain_;  // lines are what is added down
    std::array<LevelRing, SumTree::kMostTerms / 2 + 1> rings_;
  };

  TreeParts<float> PartsOf(const float* line, ptrdiff_t samples, const Rows<float>& room) const {
    return PartsAcross<float>(across, line, shape.channels, samples, room);
  }
  void PutRow(const TreeParts<float>& parts, const Window& window, const ResultRows& rows) const {
    FinishRow<float>(finish, parts, window.samples, rows.upper[0]);
  }
};

}  // namespace qvp::filter
