// Networks of exchanges that sort and merge, and what of them is needed when only a few places are wanted. They are
// made by the compiler for masks whose size it knows, else when a filter begins.
#pragma once

#include <cstdint>

namespace qvp::filter {

// Puts the lesser of two wires onto `low` and the greater onto `high`, as far as they are needed.
struct Exchange {
  uint8_t low, high;
  bool hasLow = true, hasHigh = true;
};

// Wires in the order of what is on them. `dropped` values below the first one are none of them.
template <int kMost>
struct SortedWires {
  uint8_t wires[kMost] = {};
  int count = 0, dropped = 0;

  constexpr void Append(int wire) { wires[count++] = static_cast<uint8_t>(wire); }

  // Every second wire, from the first or the second one on.
  constexpr SortedWires Half(int first) const {
    SortedWires half;
    for (int i = first; i < count; i += 2) half.Append(wires[i]);
    return half;
  }
  constexpr SortedWires Part(int begin, int end) const {
    SortedWires part;
    for (int i = begin; i < end; ++i) part.Append(wires[i]);
    part.dropped = dropped;
    return part;
  }
};

// The places from `low` to `high` in the order of all values are wanted.
struct WantedPlaces {
  int all, low, high;
};

template <int kMostWires, int kMostExchanges>
struct Network {
  using Wires = SortedWires<kMostWires>;

  Exchange exchanges[kMostExchanges] = {};
  int count = 0;
  Wires results;

  static constexpr Wires Range(int first, int n, int dropped = 0) {
    Wires range;
    for (int i = 0; i < n; ++i) range.Append(first + i);
    range.dropped = dropped;
    return range;
  }

  // Of two sorted lists of any lengths (Batcher, Sorting networks and their applications, 1968).
  constexpr Wires Merged(const Wires& a, const Wires& b) {
    Wires all;
    if (a.count == 0 || b.count == 0) {
      all = a.count == 0 ? b : a;
    } else if (a.count == 1 && b.count == 1) {
      Add(all, a.wires[0], b.wires[0]);
    } else {
      const Wires odd = Merged(a.Half(0), b.Half(0)), even = Merged(a.Half(1), b.Half(1));
      all.Append(odd.wires[0]);
      int i = 0;
      for (; i < even.count && i + 1 < odd.count; ++i) Add(all, even.wires[i], odd.wires[i + 1]);
      if (i < even.count) all.Append(even.wires[i]);
      if (i + 1 < odd.count) all.Append(odd.wires[i + 1]);
    }
    all.dropped = a.dropped + b.dropped;
    return all;
  }

  constexpr Wires Sorted(const Wires& unsorted) {
    if (unsorted.count < 2) return unsorted;
    const int middle = unsorted.count / 2;
    const Wires lower = Sorted(unsorted.Part(0, middle)), upper = Sorted(unsorted.Part(middle, unsorted.count));
    return Merged(lower, upper);
  }

  // Without what cannot be at a wanted place, of a list that stands for n of all values: too many are below it, or
  // above.
  static constexpr Wires Trimmed(const Wires& list, int n, const WantedPlaces& wanted) {
    int begin = wanted.low - (wanted.all - n) - list.dropped, end = wanted.high + 1 - list.dropped;
    if (begin < 0) begin = 0;
    if (end > list.count) end = list.count;
    Wires trimmed = list.Part(begin, end);
    trimmed.dropped += begin;
    return trimmed;
  }

  // Ends with results, and leaves out what they do not depend on.
  constexpr void Finish(const Wires& wanted) {
    results = wanted;
    bool isNeeded[kMostWires] = {};
    for (int i = 0; i < wanted.count; ++i) isNeeded[wanted.wires[i]] = true;
    int kept = count;
    for (int i = count - 1; i >= 0; --i) {
      Exchange e = exchanges[i];
      if (!isNeeded[e.low] && !isNeeded[e.high]) continue;
      e.hasLow = isNeeded[e.low];
      e.hasHigh = isNeeded[e.high];
      isNeeded[e.low] = isNeeded[e.high] = true;
      exchanges[--kept] = e;
    }
    for (int i = kept; i < count; ++i) exchanges[i - kept] = exchanges[i];
    count -= kept;
  }

 private:
  constexpr void Add(Wires& sorted, int low, int high) {
    exchanges[count++] = {static_cast<uint8_t>(low), static_cast<uint8_t>(high)};
    sorted.Append(low);
    sorted.Append(high);
  }
};

// ---- The networks of a median of w x h values, for two rows at a time (after Adams, Fast median filters using
// separable sorting networks, 2021). Both have all rows but one in common, the core, whose columns are sorted once and
// merged by twos, fours and so on, for all pixels at once; at each step those values stay that may become a median.

struct MedianShape {
  int width, height;
  WantedPlaces wanted;

  constexpr int CoreHeight() const { return height - 1; }
};

// What a list of so many merged columns has.
struct ListShape {
  int count, dropped;
};

template <class N>
constexpr N ColumnNetwork(const MedianShape& shape) {
  N network;
  const auto sorted = network.Sorted(N::Range(0, shape.CoreHeight()));
  network.Finish(N::Trimmed(sorted, shape.CoreHeight(), shape.wanted));
  return network;
}

// Two lists of as many columns to one of `columns`.
template <class N>
constexpr N PairNetwork(const MedianShape& shape, const ListShape& list, int columns) {
  N network;
  const auto merged =
      network.Merged(N::Range(0, list.count, list.dropped), N::Range(list.count, list.count, list.dropped));
  network.Finish(N::Trimmed(merged, columns * shape.CoreHeight(), shape.wanted));
  return network;
}

// The lists of all columns: lists[k] is that of 2^k columns, of which the width's bits tell
// which there are. Wires are those of the longest first.
template <class N>
constexpr N CoreNetwork(const MedianShape& shape, const ListShape* lists) {
  N network;
  typename N::Wires core;
  int wires = 0, columns = 0;
  for (int k = 7; k >= 0; --k) {
    if ((shape.width >> k & 1) == 0) continue;
    const auto next = N::Range(wires, lists[k].count, lists[k].dropped);
    wires += lists[k].count;
    columns += 1 << k;
    core = network.Merged(core, next);
    core = N::Trimmed(core, columns * shape.CoreHeight(), shape.wanted);
  }
  network.Finish(core);
  return network;
}

// The core with the row that a result has besides, which is not sorted: just the wanted places.
template <class N>
constexpr N RowNetwork(const MedianShape& shape, const ListShape& core) {
  N network;
  const auto row = network.Sorted(N::Range(core.count, shape.width));
  const auto all = network.Merged(N::Range(0, core.count, core.dropped), row);
  network.Finish(N::Trimmed(all, shape.wanted.all, shape.wanted));
  return network;
}

}  // namespace qvp::filter
