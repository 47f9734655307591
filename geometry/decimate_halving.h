// Means of squares of 4 and of 8 samples: sums of pairs, over all rows, and then pairs of these.
#pragma once

#include "geometry/decimate_kernel.h"

namespace qvp::decimate {

template <class T, int kChannels, class R>
inline constexpr bool kIsHalving =
    R::kTo == 1 && (R::kFrom == 4 || R::kFrom == 8) && kBlockBytes / (kChannels * sizeof(T)) >= R::kFrom;

// As Kernel; a vector makes whole blocks of samples into results.
template <class T, int kChannels, class R, class D>
struct HalvingKernel {
  using K = Taps<T, kChannels, Ratio<2, 1>>;
  using S = Sums<T, Ratio<2, 1>, D>;
  using D32 = hn::Repartition<int32_t, D>;
  using V = hn::Vec<D32>;
  static constexpr bool kIsByte = sizeof(T) == 1;
  static constexpr int kUnit = K::kUnit, kBlocks = kBlocksOf<D>, kBlockResults = kBlockBytes / kUnit / R::kFrom;
  static constexpr int kResults = kBlocks * kBlockResults, kResultBytes = kBlockResults * kUnit;
  // Where each lane is a result, four vectors are narrowed as a group.
  static constexpr int kGroup = kIsByte && R::kFrom == 4 ? 4 : 1, kCycle = 1, kGroupCycle = 1;
  // Lanes of 32 bits have sums of this many samples each where pairs are added no further.
  static constexpr int kAdded = kIsByte ? 4 : 2;

  static constexpr int BytesRead(int) { return kGroup * kBlocks * kBlockBytes; }

  static HWY_INLINE auto Along(const uint8_t* row) {
    const D d;
    const auto samples = hn::LoadU(d, row);
    const auto places = hn::LoadDup128(d, K::kTables.places[0]), weights = hn::LoadDup128(d, K::kTables.weights[0]);
    if constexpr (K::kIsInOrder) return S::InPairs(samples, weights);
    if constexpr (!K::kIsInOrder) return S::InPairs(hn::TableLookupBytesOr0(samples, places), weights);
  }

  // Sums of pairs as lanes of 32 bits: those of bytes are added in pairs of one channel.
  template <class Pairs>
  static HWY_INLINE V Widened(Pairs pairs) {
    if constexpr (kIsByte) {
      const hn::Repartition<int16_t, D> d;
      alignas(kBlockBytes) static constexpr uint8_t kOfChannels[] = {0, 1, 4,  5,  2,  3,  6,  7,
                                                                     8, 9, 12, 13, 10, 11, 14, 15};
      if constexpr (kChannels == 2)
        pairs = hn::TableLookupBytes(pairs, hn::BitCast(d, hn::LoadDup128(D(), kOfChannels)));
      return MulAddPairs(pairs, hn::Set(d, int16_t{1}));
    } else {
      return pairs;
    }
  }

  // Each lane and its neighbour of the same channel; then those two further on.
  static HWY_INLINE V Summed(V v) {
    if constexpr (kAdded < R::kFrom) v = hn::Add(v, kChannels == 1 ? hn::Shuffle2301(v) : hn::Shuffle1032(v));
    if constexpr (2 * kAdded < R::kFrom) v = hn::Add(v, hn::Shuffle1032(v));
    return v;
  }

  // The bytes of a block of lanes that are results, from the first on.
  struct Places {
    alignas(kBlockBytes) uint8_t at[kBlockBytes];
  };
  static constexpr Places kPlaces = [] {
    Places places{};
    for (int i = 0; i < kBlockBytes; ++i) {
      const int sample = i / int{sizeof(T)}, lane = kChannels == 1 ? sample * R::kFrom / kAdded : sample;
      places.at[i] = i < kResultBytes ? static_cast<uint8_t>(4 * lane + i % int{sizeof(T)}) : 0x80;
    }
    return places;
  }();

  static HWY_INLINE V Rounded(V sum) {
    constexpr int kShift = R::kFrom == 4 ? 4 : 6, kBias = kIsByte ? 0 : R::kSum << 15;
    return hn::ShiftRight<kShift>(hn::Add(sum, hn::Set(D32(), kBias + R::kSum / 2)));
  }

  static HWY_INLINE void Put(V sum, uint8_t* to) {
    const D d;
    HWY_ALIGN uint8_t all[kBlocks * kBlockBytes];
    hn::Store(hn::TableLookupBytesOr0(hn::BitCast(d, Rounded(sum)), hn::LoadDup128(d, kPlaces.at)), d, all);
    for (int b = 0; b < kBlocks; ++b) std::memcpy(to + b * kResultBytes, all + b * kBlockBytes, kResultBytes);
  }

  template <class From>
  static HWY_INLINE V SumOf(const From& from, ptrdiff_t offset) {
    auto pairs = Along(from(0) + offset);
    Unrolled<R::kFrom - 1>([&](auto row) QVP_INLINED { pairs = hn::Add(pairs, Along(from(row + 1) + offset)); });
    return Summed(Widened(pairs));
  }

  template <int, bool, class From, class To>
  static HWY_INLINE void Vector(int, const From& from, ptrdiff_t, const To& to) {
    Put(SumOf(from, 0), to(0));
  }

  template <int, class From, class To>
  static HWY_INLINE void Group(int, const From& from, const To& to) {
    constexpr ptrdiff_t kVector = kBlocks * kBlockBytes;
    if constexpr (kGroup == 1) {
      Put(SumOf(from, 0), to(0));
    } else {
      const auto two = [&](int i) QVP_INLINED {
        return Packed(int16_t(), Rounded(SumOf(from, i * kVector)), Rounded(SumOf(from, (i + 1) * kVector)));
      };
      const auto lower = two(0);
      hn::StoreU(InOrder<4>(Packed(uint8_t(), lower, two(2))), D(), to(0));
    }
  }
};

}  // namespace qvp::decimate
