// Medians of cuboids, as many results at a time as a vector has lanes: by sorting networks of 3x3x3, else bit by bit.
#pragma once

#include "base/floats.h"
#include "base/row_vectors.h"
#include "filter/median.h"
#include "filter/network_lanes.h"
#include "filter/windows.h"
#include "volume/mask.h"

namespace qvp::volume {

// Lanes whose order is that of voxels, and back: floats as filter::OrderedBits(), unsigned integers in signed lanes of
// their size with the highest bit turned.
template <class T, class V>
HWY_INLINE V OrderedVoxels(V v) {
  using E = hn::TFromV<V>;
  if constexpr (std::is_same_v<T, float>) return filter::OrderedLanes<float>(v);
  if constexpr (!std::is_same_v<T, E> && sizeof(T) == sizeof(E)) {
    return hn::Xor(v, hn::Set(hn::DFromV<V>(), std::numeric_limits<E>::lowest()));
  }
  return v;
}

// Lines of such lanes, of E.
template <class T, class E>
struct OrderedRows {
  using Element = E;
  using Voxel = filter::MedianLane<T>;  // its bits
  static constexpr int kRows = 1;
  static constexpr bool kIsInPlace = std::is_same_v<T, E>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<E>());

  static E Of(const Voxel* const (&rows)[2], ptrdiff_t i) {
    const hn::CappedTag<E, 1> d;
    return hn::GetLane(OrderedVoxels<T>(hn::Set(d, static_cast<E>(LoadScalar(rows[0] + i)))));
  }
  static void Convert(const Voxel* const (&rows)[2], E* out, ptrdiff_t i) {
    const hn::ScalableTag<E> d;
    if constexpr (sizeof(Voxel) == sizeof(E)) {
      hn::StoreU(OrderedVoxels<T>(hn::LoadU(d, reinterpret_cast<const E*>(rows[0]) + i)), d, out + i);
    } else {
      hn::StoreU(LoadWide(d, rows[0] + i), d, out + i);
    }
  }
};

template <class T, class V>
HWY_INLINE void StoreVoxels(V v, T* to) {
  const hn::DFromV<V> d;
  if constexpr (sizeof(T) == sizeof(hn::TFromV<V>)) {
    hn::StoreU(OrderedVoxels<T>(v), d, reinterpret_cast<hn::TFromV<V>*>(to));
  } else {
    hn::StoreU(Narrow<T>(d, v), hn::Rebind<T, hn::DFromV<V>>(), to);
  }
}

// A row of n results: at(i) is the vector from result i on. Behind short lines there is room for one.
template <class T, class E, class At>
HWY_INLINE void StoreRow(ptrdiff_t n, T* to, const At& at) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<E>());
  if (n < kLanes) {
    T staged[kLanes];
    StoreVoxels<T>(at(0), staged);
    return static_cast<void>(std::memcpy(to, staged, n * sizeof(T)));
  }
  ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { StoreVoxels<T>(at(i), to + i); });
}

// ---- 3x3x3: the nine voxels of a column of lanes are sorted once, for the three results that they count for; of two
// rows, the six that they have in common once for both.

struct CubeNetworks {
  using N = filter::Network<32, 256>;
  static constexpr int kNine = 9, kFour = 4;  // rows under two results

  // Voxel (row y, plane z) is on wire 3 y + z: the sorted three of the first row and of the last, and between them the
  // sorted six of both others.
  static constexpr N kRows = [] {
    N network;
    N::Wires rows[kFour], all;
    for (int y = 0; y < kFour; ++y) rows[y] = network.Sorted(N::Range(3 * y, 3));
    const auto both = network.Merged(rows[1], rows[2]);
    const N::Wires* const lists[] = {&rows[0], &both, &rows[3]};
    for (const auto* const list : lists) {
      for (int i = 0; i < list->count; ++i) all.Append(list->wires[i]);
    }
    network.Finish(all);
    return network;
  }();
  // Sorted three and six.
  static constexpr N kColumn = [] {
    N network;
    network.Finish(network.Merged(N::Range(0, 3), N::Range(3, 6)));
    return network;
  }();
  // Of three sorted columns those in the same place are sorted: the least of the three, the middle ones and the
  // greatest are sorted lists then. Below the least one in place k are k others, above it 26 - 3 k, so that from place
  // 5 on it may be the median; the middle ones may be from 2 to 6, the greatest up to 3. That leaves out as many below
  // as above.
  static constexpr N kMiddle = [] {
    N network;
    N::Wires lists[3];
    for (int k = 0; k < kNine; ++k) {
      N::Wires three;
      for (int column = 0; column < 3; ++column) three.Append(column * kNine + k);
      const auto sorted = network.Sorted(three);
      for (int i = 0; i < 3; ++i) lists[i].Append(sorted.wires[i]);
    }
    constexpr filter::WantedPlaces kMedian{13, 6, 6};
    const auto outer = network.Merged(lists[0].Part(5, 9), lists[2].Part(0, 4));
    const auto all = network.Merged(N::Trimmed(outer, 8, kMedian), lists[1].Part(2, 7));
    network.Finish(N::Trimmed(all, 13, kMedian));
    return network;
  }();
};

template <class T>
class CubeMedian {
 public:
  using E = filter::MedianLane<T>;
  using Form = OrderedRows<T, E>;
  static constexpr int kLines = 2 * CubeNetworks::kNine;  // of sorted columns, for which there is room

  CubeMedian(uint8_t* room, ptrdiff_t step) : sorted_(reinterpret_cast<E*>(room)), step_(step) {}

  void operator()(const E* const* lines, ptrdiff_t n, T* upper, T* lower) const {
    SortColumns(lines, n + 2);
    TakeMiddles(sorted_ + kNine * step_, n, lower);
    TakeMiddles(sorted_, n, upper);
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  static constexpr int kNine = CubeNetworks::kNine, kRows = CubeNetworks::kFour;

  HWY_NOINLINE void SortColumns(const E* const* lines, ptrdiff_t n) const {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    const auto sort = [&](ptrdiff_t i) HWY_ATTR {
      V wires[3 * kRows], upper[kNine], lower[kNine];
      Unrolled<3 * kRows>([&](auto k) QVP_INLINED { wires[k] = hn::LoadU(D(), lines[k % 3 * kRows + k / 3] + i); });
      filter::RunNetwork<CubeNetworks::kRows>(wires);
      const auto sorted = [&](int k) QVP_INLINED { return wires[CubeNetworks::kRows.results.wires[k]]; };
      Unrolled<kNine>([&](auto k) QVP_INLINED {
        upper[k] = sorted(k);
        lower[k] = sorted(k < 3 ? kNine + k : k);
      });
      StoreSorted(upper, sorted_ + i);
      StoreSorted(lower, sorted_ + kNine * step_ + i);
    };
    n < kLanes ? sort(0) : ForEachVector<kLanes>(n, sort);
  }
  HWY_INLINE void StoreSorted(V (&wires)[kNine], E* to) const {
    filter::RunNetwork<CubeNetworks::kColumn>(wires);
    Unrolled<kNine>(
        [&](auto k) QVP_INLINED { hn::StoreU(wires[CubeNetworks::kColumn.results.wires[k]], D(), to + k * step_); });
  }

  HWY_NOINLINE void TakeMiddles(const E* sorted, ptrdiff_t n, T* to) const {
    StoreRow<T, E>(n, to, [&](ptrdiff_t i) HWY_ATTR {
      V wires[3 * kNine];
      Unrolled<3 * kNine>([&](auto k)
                              QVP_INLINED { wires[k] = hn::LoadU(D(), sorted + k % kNine * step_ + i + k / kNine); });
      filter::RunNetwork<CubeNetworks::kMiddle>(wires);
      return wires[CubeNetworks::kMiddle.results.wires[0]];
    });
  }

  E* sorted_;
  ptrdiff_t step_;
};

// ---- Any mask: the greatest value that at most half of the voxels are below, bit by bit from the highest.

// Lanes hold the counts as well: bytes go in words where a mask has more cells than a byte counts.
template <class T, class Lane>
class CountedMedian {
 public:
  using E = Lane;
  using Form = OrderedRows<T, E>;
  static constexpr ptrdiff_t kLanes = Form::kLanes;
  static constexpr int kVectors = 2;

  explicit CountedMedian(const Mask& mask) : mask_(mask) {}

  void operator()(const E* const* lines, ptrdiff_t n, T* upper, T* lower) const {
    filter::FilterRows(*this, lines, n, upper, lower);
  }

  template <int kCount>
  HWY_INLINE void Run(const E* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    const V most = hn::Set(D(), static_cast<E>(kNone + mask_.cells() / 2));
    V found[kRows][kCount], candidates[kRows][kCount], counts[kRows][kCount];
    ForEach<kCount>([&](auto r, auto v) QVP_INLINED { found[r][v] = hn::Set(D(), kLowest); });
    for (int bit = kBits - 1; bit >= 0; --bit) {
      const V one = hn::Set(D(), static_cast<E>(Bits{1} << bit));
      ForEach<kCount>([&](auto r, auto v) QVP_INLINED { candidates[r][v] = hn::Xor(found[r][v], one); });
      CountBelow<kCount>(lines, at, candidates, counts);
      ForEach<kCount>([&](auto r, auto v) QVP_INLINED {
        found[r][v] = hn::IfThenElse(hn::Gt(counts[r][v], most), found[r][v], candidates[r][v]);
      });
    }
    Unrolled<kCount>([&](auto v) QVP_INLINED { StoreVoxels<T>(found[1][v], lower + v * kLanes); });
    Unrolled<kCount>([&](auto v) QVP_INLINED { StoreVoxels<T>(found[0][v], upper + v * kLanes); });
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  using Bits = hwy::MakeUnsigned<E>;
  static constexpr int kRows = 2, kBits = 8 * static_cast<int>(sizeof(T));
  static constexpr E kLowest = sizeof(T) == sizeof(E) ? std::numeric_limits<E>::lowest() : E{0};
  // Counts begin with it, so that bytes with a sign count to 255.
  static constexpr E kNone = sizeof(E) == 1 ? std::numeric_limits<E>::lowest() : E{0};

  template <int kCount, class Body>
  HWY_INLINE static void ForEach(const Body& body) {
    Unrolled<kRows>([&](auto r) QVP_INLINED { Unrolled<kCount>([&](auto v) QVP_INLINED { body(r, v); }); });
  }

  // Of each plane the first line is the upper row's alone, the last one the lower row's. Lines between them, an even
  // number, are counted by twos, in sums that do not wait for each other.
  template <int kCount>
  HWY_INLINE void CountBelow(const E* const* lines, ptrdiff_t at, const V (&candidates)[kRows][kCount],
                             V (&counts)[kRows][kCount]) const {
    V others[kRows][kCount];
    ForEach<kCount>([&](auto r, auto v) QVP_INLINED {
      counts[r][v] = hn::Set(D(), kNone);
      others[r][v] = hn::Zero(D());
    });
    const auto count = [&](auto r, const E* line, V(&sums)[kRows][kCount]) QVP_INLINED {
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const auto isBelow = hn::Gt(candidates[r][v], hn::LoadU(D(), line + v * kLanes));
        sums[r][v] = hn::Sub(sums[r][v], hn::VecFromMask(D(), isBelow));
      });
    };
    constexpr std::integral_constant<int, 0> kUpper;
    constexpr std::integral_constant<int, 1> kLower;
    for (int k = 0; k < mask_.depth; ++k, lines += mask_.height + 1) {
      for (ptrdiff_t x = at; x < at + mask_.width; ++x) {
        count(kUpper, lines[0] + x, counts), count(kLower, lines[mask_.height] + x, counts);
      }
      for (int j = 1; j < mask_.height; j += 2) {
        for (ptrdiff_t x = at; x < at + mask_.width; ++x) {
          count(kUpper, lines[j] + x, counts), count(kLower, lines[j] + x, counts);
          count(kUpper, lines[j + 1] + x, others), count(kLower, lines[j + 1] + x, others);
        }
      }
    }
    ForEach<kCount>([&](auto r, auto v) QVP_INLINED { counts[r][v] = hn::Add(counts[r][v], others[r][v]); });
  }

  Mask mask_;
};

}  // namespace qvp::volume
