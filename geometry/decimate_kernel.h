// Decimation of the rows that make one period of results.
#pragma once

#include <cstring>
#include <type_traits>

#include "base/blocks.h"
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
template <class T, class R>
struct Sums {
  static constexpr bool kIsByte = sizeof(T) == 1;
  using Wide = std::conditional_t<kIsByte, int16_t, int32_t>;
  using DBytes = hn::CappedTag<uint8_t, 2 * kBlockBytes>;
  using D = hn::Repartition<Wide, DBytes>;
  using V = hn::Vec<D>;
  using VBytes = hn::Vec<DBytes>;

  static HWY_INLINE V InPairs(VBytes samples, VBytes weights) {
    if constexpr (kIsByte) {
      return MulAddPairs(samples, hn::BitCast(hn::RebindToSigned<DBytes>(), weights));
    } else {
      const hn::Repartition<int16_t, DBytes> d;
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
    const D d;
    const Wide bias = kIsByte ? 0 : R::kSum * (1 << (kIsByte ? 0 : 15));
    const auto v = hn::Add(sum, hn::Set(d, static_cast<Wide>(bias + R::kSum / 2)));
    if constexpr (R::kSum == 4) return hn::ShiftRight<2>(v);
    if constexpr (R::kSum == 16) return hn::ShiftRight<4>(v);
    if constexpr (R::kSum == 64) return hn::ShiftRight<6>(v);
    if constexpr (R::kSum == 9) return Ninth(v);
  }

  // floor(v / 9), below 2^15 and 2^20: the reciprocal, rounded up in the last of 16 or 32 bits, adds less than 1 / 9.
  static HWY_INLINE V Ninth(V v) {
    const D d;
    const hn::RebindToUnsigned<D> du;
    const auto u = hn::BitCast(du, v);
    if constexpr (kIsByte) {
      return hn::BitCast(d, hn::MulHigh(u, hn::Set(du, uint16_t{7282})));
    } else {
      const hn::Repartition<uint64_t, D> wide;
      const auto ninth = hn::Set(du, 477218589u);
      const auto odd = hn::BitCast(du, hn::ShiftRight<32>(hn::BitCast(wide, u)));
      return hn::BitCast(d, hn::OddEven(hn::BitCast(du, hn::MulEven(odd, ninth)),
                                        hn::BitCast(du, hn::ShiftRight<32>(hn::MulEven(u, ninth)))));
    }
  }
};

// A row of results from kFrom rows: kTo rows of results.
template <class T, int kChannels, class R>
struct Kernel {
  using K = Taps<T, kChannels, R>;
  using S = Sums<T, R>;
  using V = typename S::V;
  using D = typename S::DBytes;
  static constexpr int kBlocks = kBlocksOf<D>, kResults = kBlocks * K::kResults;  // of a vector
  static constexpr int kResultBytes = K::kResults * K::kUnit;
  // Bytes that a vector of results is made of, from its first sample on.
  static constexpr ptrdiff_t BytesRead(ptrdiff_t first) {
    const ptrdiff_t last = R::First(first + kResults - K::kResults) - R::First(first) + 2 * (R::kPairs - 1);
    return last * K::kUnit + kBlockBytes;
  }

  struct Rows {
    const uint8_t* from[R::kFrom];
    uint8_t* to[R::kTo];
    int results;  // rows of them
  };

  // The sums along one row. `at` is the first result's place in its row, of which `row` begins with the first sample.
  static HWY_INLINE V Along(const uint8_t* row, ptrdiff_t at) {
    const D d;
    const ptrdiff_t phase = at / K::kResults % K::kPhases * kBlockBytes;
    V sum;
    Unrolled<R::kPairs>([&](auto pair) QVP_INLINED {
      const auto samples = FromBlocks(d, [&](int block) QVP_INLINED {
        const ptrdiff_t unit = R::First(at + block * K::kResults) - R::First(at) + 2 * pair;
        return hn::LoadU(hn::Full128<uint8_t>(), row + unit * K::kUnit);
      });
      const auto places = hn::LoadU(d, K::kTables.places[pair] + phase);
      const auto weights = hn::LoadU(d, K::kTables.weights[pair] + phase);
      const V product = S::InPairs(hn::TableLookupBytesOr0(samples, places), weights);
      if constexpr (pair == 0) sum = product;
      if constexpr (pair != 0) sum = hn::Add(sum, product);
    });
    return sum;
  }

  static HWY_INLINE void Put(V sum, uint8_t* to) {
    const hn::Rebind<T, typename S::D> narrow;
    const hn::Half<D> d;
    const auto bytes = hn::BitCast(d, hn::DemoteTo(narrow, S::Rounded(sum)));
    if constexpr (2 * kResultBytes == kBlockBytes) return hn::StoreU(bytes, d, to);
    HWY_ALIGN uint8_t all[kBlocks * kBlockBytes / 2];
    hn::Store(bytes, d, all);
    for (int b = 0; b < kBlocks; ++b) std::memcpy(to + b * kResultBytes, all + b * kBlockBytes / 2, kResultBytes);
  }

  // One vector of results of each row, where `from` tells the bytes of each row from the first sample on.
  template <class From, class To>
  static HWY_INLINE void Vector(int results, ptrdiff_t at, const From& from, const To& to) {
    V sums[R::kTo];
    Unrolled<R::kFrom>([&](auto row) QVP_INLINED {
      const V along = Along(from(row), at);
      Unrolled<R::kTo>([&](auto result) QVP_INLINED {
        constexpr int kWeight = R::Weight(result, row);
        if constexpr (kWeight > 0) {
          const V product = S::template Times<kWeight>(along);
          sums[result] = row == R::First(result) ? product : hn::Add(sums[result], product);
        }
      });
    });
    Unrolled<R::kTo>([&](auto result) QVP_INLINED {
      if (result < results) Put(sums[result], to(result));
    });
  }

  // The last results of a row, whose samples and places are staged. The last sample counts again where they end.
  static HWY_NOINLINE void Staged(const Rows& rows, ptrdiff_t at, ptrdiff_t width, ptrdiff_t n) {
    constexpr ptrdiff_t kRowBytes = 96, kAgain = 4;
    alignas(kBlockBytes) uint8_t from[R::kFrom][kRowBytes] = {}, to[R::kTo][2 * kBlockBytes];
    const ptrdiff_t first = R::First(at), units = std::min<ptrdiff_t>(width - first, kRowBytes / K::kUnit - kAgain);
    for (int i = 0; i < R::kFrom; ++i) {
      std::memcpy(from[i], rows.from[i] + first * K::kUnit, units * K::kUnit);
      uint8_t* const end = from[i] + units * K::kUnit;
      for (int again = 0; again < kAgain; ++again) std::memcpy(end + again * K::kUnit, end - K::kUnit, K::kUnit);
    }
    Vector(
        rows.results, at, [&](int i) QVP_INLINED { return from[i]; }, [&](int i) QVP_INLINED { return to[i]; });
    for (int i = 0; i < rows.results; ++i) std::memcpy(rows.to[i] + at * K::kUnit, to[i], n * K::kUnit);
  }

  // `results` of a row from `width` samples.
  static void Row(const Rows& rows, ptrdiff_t results, ptrdiff_t width) {
    ptrdiff_t at = 0;
    for (; at + kResults <= results && R::First(at) * K::kUnit + BytesRead(at) <= width * K::kUnit; at += kResults) {
      const ptrdiff_t first = R::First(at) * K::kUnit;
      Vector(
          rows.results, at, [&](int i) QVP_INLINED { return rows.from[i] + first; },
          [&](int i) QVP_INLINED { return rows.to[i] + at * K::kUnit; });
    }
    for (; at < results; at += kResults) Staged(rows, at, width, std::min<ptrdiff_t>(kResults, results - at));
  }
};

}  // namespace qvp::decimate
