// Sums of floats under a window, row by row, as a kernel of the windows' walk: by trees, across each line, then down.
// The latest rows of each level down the columns are kept, so that a line takes one addition for each.
#pragma once

#include "filter/sum_rows.h"

namespace qvp::filter {

// The latest rows of a level, by how far they begin behind the row of results.
template <class E>
class LevelRing {
 public:
  LevelRing() = default;
  // Those from offset `oldest` on are used for the row of results y.
  LevelRing(const RowRoom<E>& room, int depth, ptrdiff_t oldest, ptrdiff_t y)
      : rows_(room),
        places_(depth),
        first_(oldest - static_cast<uint32_t>(y + oldest) % static_cast<uint32_t>(depth)) {}

  E* Row(ptrdiff_t offset) const {
    ptrdiff_t place = offset - first_;
    if (place >= places_) place -= places_;
    if (place < 0) place += (places_ - 1 - place) / places_ * places_;  // older ones, before the first row of results
    return rows_.Row(place);
  }

 private:
  RowRoom<E> rows_;
  int32_t places_;
  ptrdiff_t first_;  // the offset whose place is the first one
};

// What a line of the window adds to the levels: itself or its sums across, and the sum of each level that it completes
// with an older one of the level before.
template <class E>
struct LineSums {
  using D = hn::ScalableTag<E>;

  int levels;
  E* line;  // null if it is in the window
  std::array<const E*, SumTree::kMostTerms> older;
  std::array<E*, SumTree::kMostTerms> sums;

  template <int kCount>
  HWY_INLINE void Put(std::array<hn::Vec<D>, kCount> v, ptrdiff_t i) const {
    if (line) Store(v, line + i);
    for (int level = 0; level < levels; ++level) {
      const E* const from = older[level] + i;
      Unrolled<kCount>([&](auto k) QVP_INLINED { v[k] = hn::Add(hn::LoadU(D(), from + k * kLanes), v[k]); });
      Store(v, sums[level] + i);
    }
  }

 private:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  template <size_t kCount>
  static HWY_INLINE void Store(const std::array<hn::Vec<D>, kCount>& v, E* to) {
    Unrolled<static_cast<int>(kCount)>([&](auto k) QVP_INLINED { hn::StoreU(v[k], D(), to + k * kLanes); });
  }
};

// The levels of sums down the columns, for a row of results.
template <class E>
class ColumnLevels {
 public:
  ColumnLevels(const SumTree& tree, const Window& window, const RowRoom<E>& room, bool keepsLines)
      : tree_(tree), lines_(reinterpret_cast<const E* const*>(window.lines)), keepsLines_(keepsLines) {
    RowRoom<E> rest = room;
    for (int level = 0; level <= tree.levels(); ++level) {
      const int depth = tree.Depth(level);
      rings_[level] = {rest, depth, tree.Oldest(level), window.y};
      rest = rest.From(depth);
    }
  }

  LineSums<E> Line(ptrdiff_t line) const {
    LineSums<E> sums;
    sums.line = keepsLines_ ? rings_[0].Row(line) : nullptr;
    sums.levels = 0;
    for (int level = 1; level <= tree_.levels() && line + 1 >= tree_.Length(level); ++level) {
      const auto first = static_cast<ptrdiff_t>(line + 1 - tree_.Length(level));
      sums.older[sums.levels] = Row(level - 1, first);
      sums.sums[sums.levels++] = rings_[level].Row(first);
    }
    return sums;
  }

  TreeParts<E> Parts() const {
    return TreeParts<E>(tree_, [&](int level, ptrdiff_t offset) { return Row(level, offset); });
  }

 private:
  const E* Row(int level, ptrdiff_t line) const {
    return level == 0 && !keepsLines_ ? lines_[line] : rings_[level].Row(line);
  }

  const SumTree& tree_;
  const E* const* lines_;
  bool keepsLines_;  // as what is added down: else it is those of the window
  std::array<LevelRing<E>, SumTree::kMostTerms> rings_;
};

inline SumTree TreeAcross(ptrdiff_t n) { return SumTree(n, 2); }
inline SumTree TreeDown(ptrdiff_t n) { return SumTree(n, 1); }

// How many rows are kept.
inline int64_t RowsKept(const SumTree& across, const SumTree& down) {
  int64_t rows = across.levels();
  for (int level = 0; level <= down.levels(); ++level) rows += down.Depth(level);
  return rows;
}

template <class Finish>
struct FloatSums {
  SumShape shape;
  SumTree across, down;
  Finish finish;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    static_cast<const FloatSums*>(context)->MakeRow(window, rows.upper[0]);
  }

  WindowKernel AsKernel() const {
    return {.context = this,
            .across = nullptr,
            .down = Down,
            .elementBytes = sizeof(float),
            .rowsAtOnce = 1,
            .kept = {RowsKept(across, down), sizeof(float)},
            .cacheBytes = kSumCacheBytes};
  }

 private:
  using D = hn::ScalableTag<float>;
  // The CPU does not see what comes next among so many rows. In floats.
  static constexpr ptrdiff_t kAhead = 512, kCacheLine = 16;

  void MakeRow(const Window& window, uint8_t* row) const {
    const ptrdiff_t last = shape.height - 1;
    if (last == 0) return FinishRow<float>(finish, PartsOf(window, 0), window.samples, row);
    const RowRoom<float> room{window.kept, window.keptStep};
    const ColumnLevels<float> levels(down, window, room.From(across.levels()), shape.width > 1);
    for (ptrdiff_t line = window.y == 0 ? 0 : last; line < last; ++line) Add(levels.Line(line), window, line);
    const auto columns = levels.Parts();
    const LineSums<float> newest = levels.Line(last);
    const auto parts = PartsOf(window, last);
    const float* const ahead = static_cast<const float*>(window.lines[last]) + kAhead;
    FinishRow<float>(finish, window.samples, row, [&](auto count, ptrdiff_t i) QVP_INLINED {
      hwy::Prefetch(ahead + i);
      if constexpr (count > 1) hwy::Prefetch(ahead + i + kCacheLine);
      newest.Put<count>(TreeSums<count>(D(), parts, i), i);
      return TreeSums<count>(D(), columns, i);
    });
  }

  // One line of those of the first row of results.
  HWY_NOINLINE void Add(const LineSums<float>& sums, const Window& window, ptrdiff_t line) const {
    const auto parts = PartsOf(window, line);
    ForEachVectors<2, ptrdiff_t{hn::MaxLanes(D())}>(window.samples, [&](auto count, ptrdiff_t i) QVP_INLINED {
      sums.Put<count>(TreeSums<count>(D(), parts, i), i);
    });
  }

  // Of the sums across a line of the window; their levels are the first rows that are kept.
  TreeParts<float> PartsOf(const Window& window, ptrdiff_t line) const {
    const auto* const from = static_cast<const float*>(window.lines[line]);
    return PartsAcross<float>(across, from, shape.channels, window.samples, {window.kept, window.keptStep});
  }
};

// The sums themselves.
struct AsSums {
  using Result = float;
  static constexpr int kVectors = 4;

  template <int kCount, class D>
  HWY_INLINE void Store(D d, const std::array<hn::Vec<D>, kCount>& sums, ptrdiff_t, float* to) const {
    Unrolled<kCount>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], d, to + v * ptrdiff_t{hn::MaxLanes(D())}); });
  }
};

}  // namespace qvp::filter
