// Medians of cuboids, as many results at a time as a vector has lanes: by sorting networks of 3x3x3, else bit by bit.
#pragma once

#include "base/floats.h"
#include "base/row_vectors.h"
#include "filter/median.h"
#include "filter/network_lanes.h"
#include "volume/windows.h"

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

// ---- 3x3x3: the nine voxels of a column of lanes are sorted once, for the three results that they count for.

struct CubeNetworks {
  using N = filter::Network<32, 256>;
  static constexpr int kNine = 9;

  static constexpr N kColumn = [] {
    N network;
    network.Finish(network.Sorted(N::Range(0, kNine)));
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

  // `room` for nine lines of sorted columns.
  CubeMedian(uint8_t* room, ptrdiff_t step) : sorted_(reinterpret_cast<E*>(room)), step_(step) {}

  void operator()(const E* const* lines, ptrdiff_t n, T* to) const {
    SortColumns(lines, n + 2);
    StoreRow<T, E>(n, to, [&](ptrdiff_t i) HWY_ATTR {
      V wires[3 * kNine];
      filter::Unrolled<3 * kNine>(
          [&](auto k) QVP_INLINED { wires[k] = hn::LoadU(D(), sorted_ + k % kNine * step_ + i + k / kNine); });
      filter::RunNetwork<CubeNetworks::kMiddle>(wires);
      return wires[CubeNetworks::kMiddle.results.wires[0]];
    });
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  static constexpr int kNine = CubeNetworks::kNine;

  HWY_NOINLINE void SortColumns(const E* const* lines, ptrdiff_t n) const {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    const auto sort = [&](ptrdiff_t i) HWY_ATTR {
      V wires[kNine];
      filter::Unrolled<kNine>([&](auto k) QVP_INLINED { wires[k] = hn::LoadU(D(), lines[k] + i); });
      filter::RunNetwork<CubeNetworks::kColumn>(wires);
      filter::Unrolled<kNine>([&](auto k) QVP_INLINED {
        hn::StoreU(wires[CubeNetworks::kColumn.results.wires[k]], D(), sorted_ + k * step_ + i);
      });
    };
    n < kLanes ? sort(0) : ForEachVector<kLanes>(n, sort);
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

  explicit CountedMedian(const Mask& mask) : mask_(mask) {}

  void operator()(const E* const* lines, ptrdiff_t n, T* to) const {
    StoreRow<T, E>(n, to, [&](ptrdiff_t i) HWY_ATTR { return At(lines, i); });
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;
  using Bits = hwy::MakeUnsigned<E>;
  static constexpr int kBits = 8 * static_cast<int>(sizeof(T));
  static constexpr E kLowest = sizeof(T) == sizeof(E) ? std::numeric_limits<E>::lowest() : E{0};
  // Counts begin with it, so that bytes with a sign count to 255.
  static constexpr E kNone = sizeof(E) == 1 ? std::numeric_limits<E>::lowest() : E{0};

  V At(const E* const* lines, ptrdiff_t i) const {
    const V most = hn::Set(D(), static_cast<E>(kNone + mask_.cells() / 2));
    V found = hn::Set(D(), kLowest);
    for (int bit = kBits - 1; bit >= 0; --bit) {
      const V candidate = hn::Xor(found, hn::Set(D(), static_cast<E>(Bits{1} << bit)));
      found = hn::IfThenElse(hn::Gt(CountBelow(lines, i, candidate), most), found, candidate);
    }
    return found;
  }

  // Two sums at a time, which do not wait for each other.
  HWY_INLINE V CountBelow(const E* const* lines, ptrdiff_t i, V candidate) const {
    V counts[2] = {hn::Set(D(), kNone), hn::Zero(D())};
    const ptrdiff_t rows = mask_.lines();
    const auto count = [&](const E* line, V& sum) HWY_ATTR {
      sum = hn::Sub(sum, hn::VecFromMask(D(), hn::Gt(candidate, hn::LoadU(D(), line))));
    };
    ptrdiff_t j = 0;
    for (; j + 2 <= rows; j += 2) {
      const E *const first = lines[j] + i, *const second = lines[j + 1] + i;
      for (ptrdiff_t x = 0; x < mask_.width; ++x) {
        count(first + x, counts[0]);
        count(second + x, counts[1]);
      }
    }
    for (ptrdiff_t x = 0; j < rows && x < mask_.width; ++x) count(lines[j] + i + x, counts[0]);
    return hn::Add(counts[0], counts[1]);
  }

  Mask mask_;
};

}  // namespace qvp::volume
