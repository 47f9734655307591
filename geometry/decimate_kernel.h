// Decimation of the rows that make one period of results.
#pragma once

#include <cstring>
#include <type_traits>

#include "base/blocks.h"
#include "base/pack.h"
#include "base/pairs.h"
#include "geometry/decimate_taps.h"

namespace qvp::decimate {

// Calls body(0), body(1) ... with constants, so that arrays of vectors stay in registers.
template <int kCount, class Body>
HWY_INLINE void Unrolled(const Body& body) {
  [&]<int... kIndex>(std::integer_sequence<int, kIndex...>) QVP_INLINED {
    (body(std::integral_constant<int, kIndex>()), ...);
  }
  (std::make_integer_sequence<int, kCount>());
}

// Sums of both axes as lanes twice as wide. Words are taken less 32768, as products in pairs are of signed ones.
template <class T, class R, class D>
struct Sums {
  static constexpr bool kIsByte = sizeof(T) == 1;
  using Wide = std::conditional_t<kIsByte, int16_t, int32_t>;
  using DWide = hn::Repartition<Wide, D>;
  using V = hn::Vec<DWide>;

  static HWY_INLINE V InPairs(hn::Vec<D> samples, hn::Vec<D> weights) {
    if constexpr (kIsByte) {
      return MulAddPairs(samples, hn::BitCast(hn::RebindToSigned<D>(), weights));
    } else {
      const hn::Repartition<int16_t, D> d;
      return MulAddPairs(hn::Xor(hn::BitCast(d, samples), hn::Set(d, INT16_MIN)), hn::BitCast(d, weights));
    }
  }

  template <int kWeight>
  static HWY_INLINE V Times(V v) {
    if constexpr (kWeight == 1) return v;
    if constexpr (kWeight == 2) return hn::Add(v, v);
    if constexpr (kWeight == 3) return hn::Add(hn::Add(v, v), v);
  }

  // (2 S + kSum) div (2 kSum): halves go up.
  static HWY_INLINE V Rounded(V sum) {
    const DWide d;
    const Wide bias = kIsByte ? 0 : R::kSum * (1 << (kIsByte ? 0 : 15));
    const auto v = hn::Add(sum, hn::Set(d, static_cast<Wide>(bias + R::kSum / 2)));
    if constexpr (R::kSum == 4) return hn::ShiftRight<2>(v);
    if constexpr (R::kSum == 16) return hn::ShiftRight<4>(v);
    if constexpr (R::kSum == 64) return hn::ShiftRight<6>(v);
    if constexpr (R::kSum == 9) return Ninth(v);
  }

  // floor(v / 9), below 2^15 and 2^20: the reciprocal, rounded up in the last of 16 or 32 bits, adds less than 1 / 9.
  static HWY_INLINE V Ninth(V v) {
    const DWide d;
    const hn::RebindToUnsigned<DWide> du;
    const auto u = hn::BitCast(du, v);
    if constexpr (kIsByte) {
      return hn::BitCast(d, hn::MulHigh(u, hn::Set(du, uint16_t{7282})));
    } else {
      const hn::Repartition<uint64_t, DWide> wide;
      const auto ninth = hn::Set(du, 477218589u);
      const auto odd = hn::BitCast(du, hn::ShiftRight<32>(hn::BitCast(wide, u)));
      return hn::BitCast(d, hn::OddEven(hn::BitCast(du, hn::MulEven(odd, ninth)),
                                        hn::BitCast(du, hn::ShiftRight<32>(hn::MulEven(u, ninth)))));
    }
  }
};

// The rows that one period of results is made of.
template <class R>
struct Rows {
  const uint8_t* from[R::kFrom];
  uint8_t* to[R::kTo];
  int results;  // rows of them
};

// What a vector of D makes of the rows: kTo rows of results from kFrom rows. Vectors begin in one of kCycle places of
// a period.
template <class T, int kChannels, class R, class D>
struct Kernel {
  using K = Taps<T, kChannels, R>;
  using S = Sums<T, R, D>;
  using V = typename S::V;
  static constexpr int kBlocks = kBlocksOf<D>, kResults = kBlocks * K::kResults, kResultBytes = K::kResults * K::kUnit;
  // Vectors of which all lanes are results are narrowed two at a time, as a group.
  static constexpr int kGroup = 2 * kResultBytes == kBlockBytes ? 2 : 1;
  // Places in a period where vectors, and groups, begin.
  static constexpr int kCycle = K::kPhases / std::gcd(K::kPhases, kBlocks);
  static constexpr int kGroupCycle = K::kPhases / std::gcd(K::kPhases, kBlocks* kGroup);

  // From the first sample of the vector to where a load begins.
  static constexpr int Offset(int place, int block, int pair) {
    const int start = place * kResults % R::kTo;
    return static_cast<int>(R::First(start + block * K::kResults) - R::First(start) + 2 * pair) * K::kUnit;
  }
  // What a group reads, from its first sample on; places of groups are counted by groups.
  static constexpr int BytesRead(int place) {
    return Offset(kGroup * place, kGroup * kBlocks - 1, R::kPairs - 1) + kBlockBytes;
  }

  // The samples of one pair for each result. Loads that would end behind the row end with it: their places move by as
  // much.
  template <int kPlace, int kPair, bool kAtEnd>
  static HWY_INLINE hn::Vec<D> Pair(const uint8_t* row, ptrdiff_t left) {
    const D d;
    const hn::Full128<uint8_t> block;
    constexpr int kTable = kPlace * kBlocks % K::kPhases * kBlockBytes;
    const auto beyond = [&](auto b) { return std::max<ptrdiff_t>(0, Offset(kPlace, b, kPair) + kBlockBytes - left); };
    if constexpr (!kAtEnd && K::kIsInOrder) return hn::LoadU(d, row);
    const auto samples = FromBlocks(d, [&](int b) QVP_INLINED {
      return hn::LoadU(block, row + Offset(kPlace, b, kPair) - (kAtEnd ? beyond(b) : 0));
    });
    auto places = hn::LoadU(d, K::kTables.places[kPair] + kTable);
    if constexpr (kAtEnd) {
      places = hn::Add(
          places, FromBlocks(d, [&](int b) QVP_INLINED { return hn::Set(block, static_cast<uint8_t>(beyond(b))); }));
    }
    return hn::TableLookupBytesOr0(samples, places);
  }

  template <int kPlace, bool kAtEnd>
  static HWY_INLINE V Along(const uint8_t* row, ptrdiff_t left) {
    const D d;
    constexpr int kTable = kPlace * kBlocks % K::kPhases * kBlockBytes;
    V sum;
    Unrolled<R::kPairs>([&](auto pair) QVP_INLINED {
      const auto weights = hn::LoadU(d, K::kTables.weights[pair] + kTable);
      const V product = S::InPairs(Pair<kPlace, pair, kAtEnd>(row, left), weights);
      if constexpr (pair == 0) sum = product;
      if constexpr (pair != 0) sum = hn::Add(sum, product);
    });
    return sum;
  }

  static HWY_INLINE void Put(V sum, uint8_t* to) {
    const hn::Rebind<T, typename S::DWide> narrow;
    const hn::Half<D> d;
    const auto bytes = hn::BitCast(d, hn::DemoteTo(narrow, S::Rounded(sum)));
    if constexpr (2 * kResultBytes == kBlockBytes) {
      hn::StoreU(bytes, d, to);
    } else {
      HWY_ALIGN uint8_t all[kBlocks * kBlockBytes / 2];
      hn::Store(bytes, d, all);
      for (int b = 0; b < kBlocks; ++b) std::memcpy(to + b * kResultBytes, all + b * kBlockBytes / 2, kResultBytes);
    }
  }

  template <int kPlace, bool kAtEnd, class From>
  static HWY_INLINE void SumsOf(const From& from, ptrdiff_t left, V (&sums)[R::kTo]) {
    Unrolled<R::kFrom>([&](auto row) QVP_INLINED {
      const V along = Along<kPlace, kAtEnd>(from(row), left);
      Unrolled<R::kTo>([&](auto result) QVP_INLINED {
        constexpr int kWeight = R::Weight(result, row);
        if constexpr (kWeight > 0) {
          const V product = S::template Times<kWeight>(along);
          sums[result] = row == R::First(result) ? product : hn::Add(sums[result], product);
        }
      });
    });
  }

  // One vector of results of each row. `from` tells where its first sample lies, of which `left` bytes of the row are
  // left, and `to` the results' places.
  template <int kPlace, bool kAtEnd, class From, class To>
  static HWY_INLINE void Vector(int results, const From& from, ptrdiff_t left, const To& to) {
    V sums[R::kTo];
    SumsOf<kPlace, kAtEnd>(from, left, sums);
    Unrolled<R::kTo>([&](auto result) QVP_INLINED {
      if (result < results) Put(sums[result], to(result));
    });
  }

  // The same for a group.
  template <int kPlace, class From, class To>
  static HWY_INLINE void Group(int results, const From& from, const To& to) {
    if constexpr (kGroup == 1) return Vector<kPlace, false>(results, from, 0, to);
    if constexpr (kGroup == 2) {
      constexpr int kFirst = 2 * kPlace, kNext = Offset(kFirst, kBlocks, 0);
      V lower[R::kTo], upper[R::kTo];
      SumsOf<kFirst, false>(from, 0, lower);
      SumsOf<kFirst + 1, false>([&](int row) QVP_INLINED { return from(row) + kNext; }, 0, upper);
      Unrolled<R::kTo>([&](auto result) QVP_INLINED {
        const auto packed = PackedInOrder<T>(S::Rounded(lower[result]), S::Rounded(upper[result]));
        if (result < results) hn::StoreU(hn::BitCast(D(), packed), D(), to(result));
      });
    }
  }
};

}  // namespace qvp::decimate
