// Medians of masks whose size the compiler knows, by sorting networks in the lanes of vectors: two rows of results at a
// time, in pieces of a row whose lists stay in the nearest cache.
#pragma once

#include "filter/axis_sums.h"
#include "filter/median.h"
#include "filter/network_lanes.h"

namespace qvp::filter {

// All networks of a mask. Those of weighted medians have the places that are at most
// kSpread from the middle.
template <int kSide, int kSpread>
struct MedianNetworks {
  using N = Network<(kSide > 11 ? 256 : 128), (kSide > 11 ? 4096 : 1024)>;

  static constexpr int kAll = kSide * kSide, kMiddle = kAll / 2;
  static constexpr MedianShape kShape{kSide, kSide, {kAll, kMiddle - kSpread, kMiddle + kSpread}};
  static constexpr N kColumn = ColumnNetwork<N>(kShape);

  // The list of 2^kLog merged columns.
  template <int kLog>
  static constexpr ListShape ShapeOf() {
    if constexpr (kLog == 0)
      return {kColumn.results.count, kColumn.results.dropped};
    else
      return {kPair<kLog>.results.count, kPair<kLog>.results.dropped};
  }
  template <int kLog>
  static constexpr N kPair = PairNetwork<N>(kShape, ShapeOf<kLog - 1>(), 1 << kLog);

  static constexpr int kLogs = kSide < 4 ? 2 : kSide < 8 ? 3 : 4;  // from 0 on
  static constexpr std::array<ListShape, 8> kLists = []<int... kLog>(std::integer_sequence<int, kLog...>) {
    return std::array<ListShape, 8>{ShapeOf<kLog>()...};
  }
  (std::make_integer_sequence<int, kLogs>());
  static constexpr N kCore = CoreNetwork<N>(kShape, kLists.data());
  static constexpr N kRow = RowNetwork<N>(kShape, {kCore.results.count, kCore.results.dropped});
};

template <class T>
struct NetworkContext {
  ptrdiff_t channels;
  int low, high;  // of the networks' results, which are sorted: those that are taken
  MedianLane<T>* lists;
};

// Of the lists of a piece of a row, at most; and what they have as far as their reach allows, for the nearest cache.
inline constexpr ptrdiff_t kMostListBytes = 1 << 17, kUsualListBytes = 24576;

// filter(begin, n, upper, lower) for pieces of two rows of results, none of which is shorter than a vector: `most` are
// two at least.
template <ptrdiff_t kLanes, class E, class Filter>
HWY_INLINE void ForPieces(ptrdiff_t n, ptrdiff_t most, E* upper, E* lower, const Filter& filter) {
  if (n < kLanes) {
    E staged[2][kLanes];
    filter(0, n, staged[0], staged[1]);
    std::memcpy(lower, staged[1], n * sizeof(E));
    std::memcpy(upper, staged[0], n * sizeof(E));
    return;
  }
  const ptrdiff_t pieces = (n + most - 1) / most;
  for (ptrdiff_t p = 0; p < pieces; ++p) {
    const ptrdiff_t begin = n * p / pieces, end = n * (p + 1) / pieces;
    filter(begin, end - begin, upper + begin, lower + begin);
  }
}

template <class T, int kSide, int kSpread>
class NetworkKernel {
 public:
  using E = MedianLane<T>;
  using Context = NetworkContext<T>;

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const NetworkKernel kernel(*static_cast<const Context*>(context), window);
    E *const upper = reinterpret_cast<E*>(rows.upper[0]), *const lower = reinterpret_cast<E*>(rows.lower[0]);
    ForPieces<kLanes>(window.samples, kernel.MostResults(), upper, lower,
                      [&](ptrdiff_t begin, ptrdiff_t n, E* up, E* low) {
                        kernel.SortColumns(begin, n + (kSide - 1) * kernel.context_.channels);
                        kernel.template MergeFrom<1>(n);
                        kernel.Select(begin, n, up, low);
                      });
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  using Networks = MedianNetworks<kSide, kSpread>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr bool kIsFloat = std::is_same_v<T, float>;
  static constexpr int kCoreHeight = kSide - 1;

  // Rows of memory: those of each list, one after the other, and of floats the rows beside the core, as keys.
  static constexpr int FirstRow(int log) {
    int row = 0;
    for (int k = 0; k < log; ++k) row += Networks::kLists[k].count;
    return row;
  }
  static constexpr int kListRows = FirstRow(Networks::kLogs), kRows = kListRows + 2;
  static constexpr ptrdiff_t kAlignment = 64 / ptrdiff_t{sizeof(E)}, kFewest = (kSide - 1) * 4 + 3 * kLanes,
                             kUsual = kUsualListBytes / kRows / ptrdiff_t{sizeof(E)},
                             kStep = (std::max(kFewest, kUsual) + kAlignment - 1) / kAlignment * kAlignment;
  static_assert(kRows * kStep * sizeof(E) <= kMostListBytes);

  NetworkKernel(const Context& context, const Window& window) : context_(context) {
    for (int j = 0; j <= kSide; ++j) lines_[j] = static_cast<const E*>(window.lines[j]);
  }

  static HWY_INLINE V Load(const E* pixels) { return OrderedLanes<T>(hn::LoadU(D(), pixels)); }
  // Of a piece: lists are longer by what the mask reaches, and by a vector.
  ptrdiff_t MostResults() const { return kStep - (kSide - 1) * context_.channels - kLanes; }
  HWY_INLINE E* Row(int row) const { return context_.lists + row * kStep; }

  HWY_NOINLINE void SortColumns(ptrdiff_t begin, ptrdiff_t n) const {
    ForEachVectors<1, kLanes>(n, [&](auto, ptrdiff_t i) HWY_ATTR {
      V wires[kCoreHeight];
      Unrolled<kCoreHeight>([&](auto j) QVP_INLINED { wires[j] = Load(lines_[j + 1] + begin + i); });
      RunNetwork<Networks::kColumn>(wires);
      StoreResults<Networks::kColumn>(wires, 0, i);
      if constexpr (kIsFloat) {
        hn::StoreU(Load(lines_[0] + begin + i), D(), Row(kListRows) + i);
        hn::StoreU(Load(lines_[kSide] + begin + i), D(), Row(kListRows + 1) + i);
      }
    });
  }

  template <const auto& kNetwork>
  HWY_INLINE void StoreResults(const V* wires, int row, ptrdiff_t i) const {
    Unrolled<kNetwork.results.count>(
        [&](auto k) QVP_INLINED { hn::StoreU(wires[kNetwork.results.wires[k]], D(), Row(row + k) + i); });
  }

  // Lists of 2^kLog columns, and longer ones.
  template <int kLog>
  HWY_INLINE void MergeFrom(ptrdiff_t n) const {
    if constexpr (kLog < Networks::kLogs) {
      MergePairs<kLog>(n + (kSide - (1 << kLog)) * context_.channels, (1 << (kLog - 1)) * context_.channels);
      MergeFrom<kLog + 1>(n);
    }
  }
  template <int kLog>
  HWY_NOINLINE void MergePairs(ptrdiff_t n, ptrdiff_t distance) const {
    constexpr int kCount = Networks::kLists[kLog - 1].count, kFrom = FirstRow(kLog - 1), kTo = FirstRow(kLog);
    ForEachVectors<1, kLanes>(n, [&](auto, ptrdiff_t i) HWY_ATTR {
      V wires[2 * kCount];
      Unrolled<kCount>([&](auto k) QVP_INLINED {
        wires[k] = hn::LoadU(D(), Row(kFrom + k) + i);
        wires[kCount + k] = hn::LoadU(D(), Row(kFrom + k) + i + distance);
      });
      RunNetwork<Networks::template kPair<kLog>>(wires);
      StoreResults<Networks::template kPair<kLog>>(wires, kTo, i);
    });
  }

  // The core's list at one vector of results: the lists that the width's bits tell, beside each other.
  template <int kLog>
  HWY_INLINE void LoadLists(V* wires, ptrdiff_t i) const {
    if constexpr (kLog >= 0) {
      if constexpr ((kSide >> kLog & 1) != 0) {
        constexpr int kCount = Networks::kLists[kLog].count, kFrom = FirstRow(kLog);
        Unrolled<kCount>([&](auto k) QVP_INLINED { wires[k] = hn::LoadU(D(), Row(kFrom + k) + i); });
        LoadLists<kLog - 1>(wires + kCount, i + (1 << kLog) * context_.channels);
      } else {
        LoadLists<kLog - 1>(wires, i);
      }
    }
  }

  HWY_NOINLINE void Select(ptrdiff_t begin, ptrdiff_t n, E* upper, E* lower) const {
    const E *const above = kIsFloat ? Row(kListRows) : lines_[0] + begin, *const below = kIsFloat
                                                                                             ? Row(kListRows + 1)
                                                                                             : lines_[kSide] + begin;
    const E* const centres = lines_[kSide / 2] + begin;
    const E* const nextCentres = lines_[kSide / 2 + 1] + begin;
    ForEachVectors<1, kLanes>(n, [&](auto, ptrdiff_t i) HWY_ATTR {
      V wires[kSide * kSide];
      LoadLists<Networks::kLogs - 1>(wires, i);
      RunNetwork<Networks::kCore>(wires);
      const V first = Result(wires, above + i, centres + i);
      hn::StoreU(Result(wires, below + i, nextCentres + i), D(), lower + i);
      hn::StoreU(first, D(), upper + i);
    });
  }

  HWY_INLINE V Result(const V* core, const E* row, const E* centres) const {
    constexpr auto& kCore = Networks::kCore.results;
    constexpr auto& kPlaces = Networks::kRow.results.wires;
    V wires[kCore.count + kSide];
    Unrolled<kCore.count>([&](auto k) QVP_INLINED { wires[k] = core[kCore.wires[k]]; });
    Unrolled<kSide>([&](auto k) QVP_INLINED { wires[kCore.count + k] = hn::LoadU(D(), row + k * context_.channels); });
    RunNetwork<Networks::kRow>(wires);
    if constexpr (kSpread == 0) return OrderedLanes<T>(wires[kPlaces[0]]);
    HWY_ALIGN E sorted[(2 * kSpread + 1) * kLanes];
    Unrolled<2 * kSpread + 1>([&](auto k) QVP_INLINED { hn::Store(wires[kPlaces[k]], D(), sorted + k * kLanes); });
    const V centre = Load(centres + kSide / 2 * context_.channels);
    const V low = hn::Load(D(), sorted + context_.low * kLanes), high = hn::Load(D(), sorted + context_.high * kLanes);
    return OrderedLanes<T>(hn::Max(low, hn::Min(centre, high)));
  }

  const Context context_;
  const E* lines_[kSide + 1];
};

}  // namespace qvp::filter
