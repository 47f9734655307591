// Images of half the size: means of 2x2 pixels. Both averages over areas and linear interpolation come down to them.
#pragma once

#include <hwy/cache_control.h>

#include <cstring>

#include "base/blocks.h"
#include "base/pack.h"
#include "base/pairs.h"
#include "base/scalar.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

// The mean of four integers from their sum, to the nearest integer.
struct TiesToEven {
  template <class D, class V>
  static HWY_INLINE V Quarter(D d, V sum) {
    const auto one = hn::Set(d, 1);
    return hn::ShiftRight<2>(hn::Add(hn::Add(sum, one), hn::And(hn::ShiftRight<2>(sum), one)));
  }
  static int32_t Quarter(int32_t sum) { return (sum + 1 + (sum >> 2 & 1)) >> 2; }
};
struct TiesUp {
  template <class D, class V>
  static HWY_INLINE V Quarter(D d, V sum) {
    return hn::ShiftRight<2>(hn::Add(sum, hn::Set(d, 2)));
  }
  static int32_t Quarter(int32_t sum) { return (sum + 2) >> 2; }
};

// A vector with each sample of a pixel beside that of the next pixel.
template <int kChannels, class D, class V>
HWY_INLINE V SamplesInPairs(D d, V v) {
  static_assert(kChannels == 1 || kChannels == 4);
  if constexpr (kChannels == 1) {
    return v;
  } else if constexpr (sizeof(hn::TFromD<D>) == 1) {
    alignas(16) static constexpr uint8_t kPlaces[16] = {0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15};
    return hn::TableLookupBytes(v, hn::BitCast(d, hn::LoadDup128(hn::Repartition<uint8_t, D>(), kPlaces)));
  } else {
    alignas(16) static constexpr uint8_t kPlaces[16] = {0, 1, 8, 9, 2, 3, 10, 11, 4, 5, 12, 13, 6, 7, 14, 15};
    return hn::TableLookupBytes(v, hn::BitCast(d, hn::LoadDup128(hn::Repartition<uint8_t, D>(), kPlaces)));
  }
}

// Sums of samples that lie in pairs. Those of unsigned 16 bits are of samples less 2^15.
template <class D, class T = hn::TFromD<D>>
HWY_INLINE auto SumsOfPairs(D d, hn::Vec<D> v) {
  if constexpr (sizeof(T) == 1) {
    return MulAddPairs(v, hn::Set(hn::RebindToSigned<D>(), 1));
  } else {
    const hn::Rebind<int16_t, D> words;
    const auto centred = std::is_signed_v<T> ? v : hn::Xor(v, hn::Set(d, static_cast<T>(1 << 15)));
    return MulAddPairs(hn::BitCast(words, centred), hn::Set(words, 1));
  }
}

// A vector of means of samples from two rows: load(row, 0) and load(row, 1) are two vectors of pairs.
template <class Rounding, class D, class Load, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> MeansOfPairs(D d, const T* upper, const T* lower, const Load& load) {
  const auto half = [&](int i) HWY_ATTR {
    const auto sum = hn::Add(SumsOfPairs(d, load(upper, i)), SumsOfPairs(d, load(lower, i)));
    return Rounding::Quarter(hn::DFromV<decltype(sum)>(), sum);
  };
  if constexpr (sizeof(T) == 1) {
    return PackedInOrder<T>(half(0), half(1));
  } else {
    const auto means = hn::BitCast(d, PackedInOrder<int16_t>(half(0), half(1)));
    return std::is_signed_v<T> ? means : hn::Xor(means, hn::Set(d, static_cast<T>(1 << 15)));
  }
}

// How sums of samples become vectors: of pixels whose number of channels divides a block.
template <int kChannels, class T>
struct HalfVectors {
  static constexpr hn::ScalableTag<T> d{};
  static constexpr ptrdiff_t kStep = hn::MaxLanes(d), kSpare = 0;  // samples, and those that are touched behind them

  template <class Rounding>
  static HWY_INLINE void Halve(const T* upper, const T* lower, T* dst) {
    const auto load = [](const T* row, int i)
                          HWY_ATTR { return SamplesInPairs<kChannels>(d, hn::LoadU(d, row + i * kStep)); };
    hn::StoreU(MeansOfPairs<Rounding>(d, upper, lower, load), d, dst);
  }
};

// Of three channels, each block has twelve bytes that count: pairs of pixels, whose sums lie in three lanes of four.
template <class T>
struct HalfVectors<3, T> {
  static constexpr hn::CappedTag<T, 32 / sizeof(T)> d{};
  using Bytes = hn::Repartition<uint8_t, decltype(d)>;
  static constexpr int kBlocks = kBlocksOf<Bytes>, kOfBlock = 12;
  static constexpr ptrdiff_t kStep = kBlocks * kOfBlock / sizeof(T), kSpare = (kBlockBytes - kOfBlock) / sizeof(T);

  static HWY_INLINE auto Load(const T* row) {
    alignas(16) static constexpr uint8_t kPairs[2][16] = {
        {0, 3, 1, 4, 2, 5, 0x80, 0x80, 6, 9, 7, 10, 8, 11, 0x80, 0x80},
        {0, 1, 6, 7, 2, 3, 8, 9, 4, 5, 10, 11, 0x80, 0x80, 0x80, 0x80}};
    const auto* from = reinterpret_cast<const uint8_t*>(row);
    const auto samples =
        FromBlocks(Bytes(), [&](int b) HWY_ATTR { return hn::LoadU(hn::Full128<uint8_t>(), from + b * kOfBlock); });
    return hn::BitCast(d, hn::TableLookupBytesOr0(samples, hn::LoadDup128(Bytes(), kPairs[sizeof(T) - 1])));
  }

  template <class Rounding>
  static HWY_INLINE void Halve(const T* upper, const T* lower, T* dst) {
    alignas(16) static constexpr uint8_t kThreeOfFour[2][16] = {
        {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0x80, 0x80, 0x80, 0x80},
        {0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 0x80, 0x80, 0x80, 0x80}};
    const auto load = [](const T* row, int i) HWY_ATTR { return Load(row + i * kStep); };
    const auto means = hn::BitCast(Bytes(), MeansOfPairs<Rounding>(d, upper, lower, load));
    const auto packed = hn::TableLookupBytesOr0(means, hn::LoadDup128(Bytes(), kThreeOfFour[sizeof(T) - 1]));
    auto* to = reinterpret_cast<uint8_t*>(dst);
    if constexpr (kBlocks == 1) {
      hn::StoreU(packed, Bytes(), to);
    } else {
      hn::StoreU(hn::LowerHalf(packed), hn::Half<Bytes>(), to);
      hn::StoreU(hn::UpperHalf(hn::Half<Bytes>(), packed), hn::Half<Bytes>(), to + kOfBlock);
    }
  }
};

template <int kChannels, class Rounding, class T>
void HalveSamples(const T* upper, const T* lower, T* dst, ptrdiff_t begin, ptrdiff_t n) {
  for (ptrdiff_t i = begin; i < n; ++i) {
    const ptrdiff_t at = 2 * (i - i % kChannels) + i % kChannels;
    const auto pair = [&](const T* row) { return LoadScalar(row + at) + LoadScalar(row + at + kChannels); };
    StoreScalar(dst + i, static_cast<T>(Rounding::Quarter(pair(upper) + pair(lower))));
  }
}

// The last samples, as many as a vector has, by copies: vectors touch more than these.
template <class Rounding, class Vectors, class T>
void HalveStaged(const T* upper, const T* lower, T* dst) {
  constexpr ptrdiff_t kStep = Vectors::kStep;
  T rows[2][2 * kStep + Vectors::kSpare], means[kStep + Vectors::kSpare];
  std::memcpy(rows[0], upper, 2 * kStep * sizeof(T));
  std::memcpy(rows[1], lower, 2 * kStep * sizeof(T));
  Vectors::template Halve<Rounding>(rows[0], rows[1], means);
  std::memcpy(dst, means, kStep * sizeof(T));
}

// n samples. `ahead` is how many bytes on the next two rows lie, which are fetched meanwhile: new rows are too short
// for the CPU to notice their pattern in time.
template <int kChannels, class Rounding, class T>
bool HalveRow(const T* upper, const T* lower, ptrdiff_t ahead, T* dst, ptrdiff_t n) {
  using Vectors = HalfVectors<kChannels, T>;
  const auto fetch = [&](const T* row) HWY_ATTR { hwy::Prefetch(reinterpret_cast<const uint8_t*>(row) + ahead); };
  ptrdiff_t i = 0;
  for (; i + Vectors::kStep + Vectors::kSpare <= n; i += Vectors::kStep) {
    fetch(upper + 2 * i);
    fetch(lower + 2 * i);
    Vectors::template Halve<Rounding>(upper + 2 * i, lower + 2 * i, dst + i);
  }
  if (Vectors::kSpare == 0 || n < Vectors::kStep) {
    HalveSamples<kChannels, Rounding>(upper, lower, dst, i, n);
  } else {
    for (; i < n; i += Vectors::kStep) {
      const ptrdiff_t at = std::min(i, n - Vectors::kStep);
      HalveStaged<Rounding, Vectors>(upper + 2 * at, lower + 2 * at, dst + at);
    }
  }
  return true;
}

// Means of floats in the steps of linear interpolation, and in those of averages over areas.
struct HalfSums {
  template <class D, class V>
  static HWY_INLINE V Mean(D d, V left, V right) {
    const auto half = hn::Set(d, 0.5f);
    return hn::Add(hn::Mul(left, half), hn::Mul(right, half));
  }
  template <class D, class V>
  static HWY_INLINE V Mean(D d, V upperLeft, V upperRight, V lowerLeft, V lowerRight) {
    return Mean(d, Mean(d, upperLeft, upperRight), Mean(d, lowerLeft, lowerRight));
  }
};
struct Midpoints {
  template <class D, class V>
  static HWY_INLINE V Mean(D d, V a, V b) {
    return hn::Add(a, hn::Mul(hn::Sub(b, a), hn::Set(d, 0.5f)));
  }
  template <class D, class V>
  static HWY_INLINE V Mean(D d, V upperLeft, V upperRight, V lowerLeft, V lowerRight) {
    return hn::Add(Mean(d, Mean(d, upperLeft, lowerLeft), Mean(d, upperRight, lowerRight)), hn::Zero(d));
  }
};

// Samples of two rows for a vector of means, and those of the next pixels.
template <int kChannels, class D, class V = hn::Vec<D>>
HWY_INLINE void LoadPairs(D d, const float* row, V& first, V& second) {
  if constexpr (kChannels == 1 && hn::MaxLanes(d) > 1) {
    hn::LoadInterleaved2(d, row, first, second);
  } else if constexpr (hn::MaxLanes(d) > kChannels) {
    const auto lower = hn::LoadU(d, row), upper = hn::LoadU(d, row + hn::MaxLanes(d));
    first = hn::ConcatLowerLower(d, upper, lower), second = hn::ConcatUpperUpper(d, upper, lower);
  } else {
    first = hn::LoadU(d, row), second = hn::LoadU(d, row + kChannels);
  }
}

// n samples. Returns whether all of them are finite.
template <int kChannels, class Means>
bool HalveRow(const float* upper, const float* lower, ptrdiff_t ahead, float* dst, ptrdiff_t n) {
  const auto fetch = [&](const float* row) HWY_ATTR { hwy::Prefetch(reinterpret_cast<const uint8_t*>(row) + ahead); };
  const auto halve = [&](auto d, ptrdiff_t i, auto& check) HWY_ATTR {
    hn::Vec<decltype(d)> u0, u1, l0, l1;
    LoadPairs<kChannels>(d, upper + 2 * i, u0, u1);
    LoadPairs<kChannels>(d, lower + 2 * i, l0, l1);
    const auto mean = Means::Mean(d, u0, u1, l0, l1);
    hn::StoreU(mean, d, dst + i);
    check = hn::Add(check, hn::Sub(mean, mean));
  };
  const std::conditional_t<kChannels == 1, hn::ScalableTag<float>, hn::CappedTag<float, 8>> d;
  const hn::CappedTag<float, kChannels> single;  // a pixel
  auto check = hn::Zero(d);
  auto last = hn::Zero(single);
  ptrdiff_t i = 0;
  for (; i + static_cast<ptrdiff_t>(hn::MaxLanes(d)) <= n; i += hn::MaxLanes(d)) {
    fetch(upper + 2 * i);
    fetch(lower + 2 * i);
    halve(d, i, check);
  }
  for (; i < n; i += kChannels) halve(single, i, last);
  return hn::AllTrue(d, hn::Eq(check, hn::Zero(d))) && hn::AllTrue(single, hn::Eq(last, hn::Zero(single)));
}

inline bool IsHalf(const ResizeRecord& record) {
  return record.columns.p == 2 && record.columns.q == 1 && record.rows.p == 2 && record.rows.q == 1 &&
         !record.IsShifted() && !record.IsOfChroma();
}

template <int kChannels, class Means, class T>
bool HalveRows(const ResizeCall<T>& call, const Tile& tile) {
  bool areFinite = true;
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    const T* const upper = SourceRow(call, tile, 2 * (tile.y + y)) + 2 * tile.x * kChannels;
    const T* const lower = SourceRow(call, tile, 2 * (tile.y + y) + 1) + 2 * tile.x * kChannels;
    areFinite &= HalveRow<kChannels, Means>(upper, lower, 2 * call.src.step, call.dst.Row(y), tile.width * kChannels);
  }
  return areFinite;
}

// False where the tile is not half of its source, has pixels of two channels or of three floats, or where not all is
// finite.
template <class Means, class T>
bool Halve(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if (!IsHalf(record)) return false;
  switch (Channels(call.src.layout)) {
    case 1: return HalveRows<1, Means>(call, tile);
    case 3:
      if constexpr (std::is_integral_v<T>) return HalveRows<3, Means>(call, tile);
      return false;
    case 4: return HalveRows<4, Means>(call, tile);
    default: return false;
  }
}

}  // namespace qvp::resize
