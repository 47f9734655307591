// Sums of n successive values in one fixed order, that of a tree:
//
//   P1(x) = value(x),  P2m(x) = Pm(x) + Pm(x + m)
//   n = m1 + m2 + .., powers of two from the largest on:  Pm1(x) + (Pm2(x + m1) + (Pm3(x + m1 + m2) + ..))
//
// A sum takes at most 2 log2 n additions. Sums of floats have the same bits wherever a row begins, and what is not a
// number is in those alone that cover it: a running sum promises neither.
//
// Sums of 4, 16, 64.. values, or of 2, 4, 8.., are the levels, which are kept if they are used more than once. Others
// are made of them on the way.
#pragma once

#include "filter/axis_sums.h"

namespace qvp::filter {

// One of the sums whose sum is wanted: that of 1, 2 or 4 values of a level, each behind the one before it.
struct TreeTerm {
  int level;
  ptrdiff_t offset;  // of the first of them
  int count;
};

class SumTree {
 public:
  static constexpr int kMostTerms = 31;

  // `stepBits`: 2 for levels of 4, 16, 64.. values, 1 for those of 2, 4, 8..
  explicit constexpr SumTree(ptrdiff_t n, int stepBits = 2) : n_(n), stepBits_(stepBits) {
    while (2 * Length(levels_ + 1) <= n) ++levels_;
    for (int level = 0; level <= levels_; ++level) oldest_[level] = Newest(std::min(level + 1, levels_));
    ptrdiff_t offset = n;
    for (int bit = 0; bit < kMostTerms; ++bit) {
      const ptrdiff_t m = ptrdiff_t{1} << bit;
      if ((n & m) == 0) continue;
      const int level = std::min(bit / stepBits, levels_);
      terms_[termCount_++] = {level, offset -= m, static_cast<int>(m / Length(level))};
      oldest_[level] = std::min(oldest_[level], offset);
    }
  }

  constexpr ptrdiff_t n() const { return n_; }
  // Levels that are kept, besides the values themselves, which are level 0.
  constexpr int levels() const { return levels_; }
  // How many values a sum of a level has.
  constexpr int64_t Length(int level) const { return int64_t{1} << (stepBits_ * level); }
  // From the last term, the smallest, to the first.
  constexpr int terms() const { return termCount_; }
  constexpr const TreeTerm& term(int i) const { return terms_[i]; }

  // Of the sums of a level, once values [0, n) are there: which is the newest, the oldest that is used, and how many
  // these are.
  constexpr ptrdiff_t Newest(int level) const { return static_cast<ptrdiff_t>(n_ - Length(level)); }
  constexpr ptrdiff_t Oldest(int level) const { return oldest_[level]; }
  constexpr int Depth(int level) const { return static_cast<int>(Newest(level) - Oldest(level) + 1); }

 private:
  ptrdiff_t n_;
  int stepBits_, levels_ = 0, termCount_ = 0;
  std::array<TreeTerm, kMostTerms> terms_{};
  std::array<ptrdiff_t, kMostTerms> oldest_{};
};

// A term as the rows that are added.
template <class E>
struct TreePart {
  std::array<const E*, 4> rows;
  int count;
};

// All of a sum, the smallest first.
template <class E>
struct TreeParts {
  std::array<TreePart<E>, SumTree::kMostTerms> parts;
  int count;

  // row(level, offset) tells where the sums of a level are that begin `offset` values behind the first.
  template <class Row>
  TreeParts(const SumTree& tree, const Row& row) : count(tree.terms()) {
    for (int i = 0; i < count; ++i) {
      const TreeTerm& term = tree.term(i);
      parts[i].count = term.count;
      for (int j = 0; j < term.count; ++j) {
        parts[i].rows[j] = row(term.level, term.offset + j * static_cast<ptrdiff_t>(tree.Length(term.level)));
      }
    }
  }
};

// kCount vectors of a part, from element i on.
template <int kCount, class D, class E, class Put>
HWY_INLINE void ForEachOf(D d, const TreePart<E>& part, ptrdiff_t i, const Put& put) {
  const auto at = [&](int j, auto v)
                      QVP_INLINED { return hn::LoadU(d, part.rows[j] + i + v * ptrdiff_t{hn::MaxLanes(D())}); };
  if (part.count == 1) {
    Unrolled<kCount>([&](auto v) QVP_INLINED { put(v, at(0, v)); });
  } else if (part.count == 2) {
    Unrolled<kCount>([&](auto v) QVP_INLINED { put(v, hn::Add(at(0, v), at(1, v))); });
  } else {
    Unrolled<kCount>([&](auto v)
                         QVP_INLINED { put(v, hn::Add(hn::Add(at(0, v), at(1, v)), hn::Add(at(2, v), at(3, v)))); });
  }
}

template <int kCount, class D, class E>
HWY_INLINE std::array<hn::Vec<D>, kCount> TreeSums(D d, const TreeParts<E>& tree, ptrdiff_t i) {
  std::array<hn::Vec<D>, kCount> sums;
  ForEachOf<kCount>(d, tree.parts[0], i, [&](auto v, auto part) QVP_INLINED { sums[v] = part; });
  for (int p = 1; p < tree.count; ++p) {
    ForEachOf<kCount>(d, tree.parts[p], i, [&](auto v, auto part) QVP_INLINED { sums[v] = hn::Add(part, sums[v]); });
  }
  return sums;
}

// n sums of four: those of the next level. Behind a row there is room for a vector.
template <class E>
HWY_NOINLINE void AddFours(const std::array<const E*, 4>& rows, ptrdiff_t n, E* to) {
  const hn::ScalableTag<E> d;
  const TreePart<E> part{rows, 4};
  ForEachVectors<2, hn::MaxLanes(d)>(n, [&](auto count, ptrdiff_t i) QVP_INLINED {
    ForEachOf<count>(d, part, i,
                     [&](auto v, auto sum) QVP_INLINED { hn::StoreU(sum, d, to + i + v * hn::MaxLanes(d)); });
  });
}

// Rows of memory.
template <class E>
struct RowRoom {
  uint8_t* at;
  ptrdiff_t step;  // bytes

  E* Row(ptrdiff_t i) const { return reinterpret_cast<E*>(at + i * step); }
  RowRoom From(ptrdiff_t i) const { return {at + i * step, step}; }
};

// Sums along a row, of values that are `apart` elements from each other: what `results` of them are made of. The levels
// take rows of `room`.
template <class E>
TreeParts<E> PartsAcross(const SumTree& tree, const E* values, ptrdiff_t apart, ptrdiff_t results,
                         const RowRoom<E>& room) {
  const auto row = [&](int level, ptrdiff_t offset) {
    return (level == 0 ? values : room.Row(level - 1)) + offset * apart;
  };
  for (int level = 1; level <= tree.levels(); ++level) {
    const auto part = static_cast<ptrdiff_t>(tree.Length(level - 1));
    AddFours<E>({row(level - 1, 0), row(level - 1, part), row(level - 1, 2 * part), row(level - 1, 3 * part)},
                results + (tree.n() - 4 * part) * apart, room.Row(level - 1));
  }
  return TreeParts<E>(tree, row);
}

}  // namespace qvp::filter
