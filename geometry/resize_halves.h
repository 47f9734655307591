// Images of half the size: means of 2x2 pixels. Both averages over areas and linear interpolation come down to them.
#pragma once

#include <hwy/cache_control.h>

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

// Sums of samples and those of the next pixel. Those of unsigned 16 bits are of samples less 2^15.
template <int kChannels, class T>
HWY_INLINE auto SumsOfPairs(const T* from) {
  const hn::ScalableTag<T> d;
  const auto v = SamplesInPairs<kChannels>(d, hn::LoadU(d, from));
  if constexpr (sizeof(T) == 1) {
    return MulAddPairs(v, hn::Set(hn::ScalableTag<int8_t>(), 1));
  } else {
    const hn::ScalableTag<int16_t> words;
    const auto centred = std::is_signed_v<T> ? v : hn::Xor(v, hn::Set(d, static_cast<T>(1 << 15)));
    return MulAddPairs(hn::BitCast(words, centred), hn::Set(words, 1));
  }
}

// A vector of means of samples from two rows.
template <int kChannels, class Rounding, class T>
HWY_INLINE hn::Vec<hn::ScalableTag<T>> Means(const T* upper, const T* lower) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const auto half = [&](ptrdiff_t i) HWY_ATTR {
    const auto sum = hn::Add(SumsOfPairs<kChannels>(upper + i), SumsOfPairs<kChannels>(lower + i));
    return Rounding::Quarter(hn::DFromV<decltype(sum)>(), sum);
  };
  if constexpr (sizeof(T) == 1) {
    return PackedInOrder<T>(half(0), half(kLanes));
  } else {
    const auto means = hn::BitCast(d, PackedInOrder<int16_t>(half(0), half(kLanes)));
    return std::is_signed_v<T> ? means : hn::Xor(means, hn::Set(d, static_cast<T>(1 << 15)));
  }
}

// n samples. `ahead` is how many bytes on the next two rows lie, which are fetched meanwhile: new rows are too short
// for the CPU to notice their pattern in time.
template <int kChannels, class Rounding, class T>
bool HalveRow(const T* upper, const T* lower, ptrdiff_t ahead, T* dst, ptrdiff_t n) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<T>());
  const auto fetch = [&](const T* row) HWY_ATTR { hwy::Prefetch(reinterpret_cast<const uint8_t*>(row) + ahead); };
  ptrdiff_t i = 0;
  for (; i + kLanes <= n; i += kLanes) {
    fetch(upper + 2 * i);
    fetch(lower + 2 * i);
    hn::StoreU(Means<kChannels, Rounding>(upper + 2 * i, lower + 2 * i), hn::ScalableTag<T>(), dst + i);
  }
  for (; i < n; ++i) {
    const ptrdiff_t at = 2 * (i - i % kChannels) + i % kChannels;
    const auto pair = [&](const T* row) { return LoadScalar(row + at) + LoadScalar(row + at + kChannels); };
    StoreScalar(dst + i, static_cast<T>(Rounding::Quarter(pair(upper) + pair(lower))));
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

// n samples. Returns whether all of them are finite.
template <int kChannels, class Means>
bool HalveRow(const float* upper, const float* lower, ptrdiff_t, float* dst, ptrdiff_t n) {
  const auto halve = [&](auto d, ptrdiff_t i, auto& check) HWY_ATTR {
    hn::Vec<decltype(d)> u0, u1, l0, l1;
    if constexpr (kChannels == 1 && hn::MaxLanes(d) > 1) {
      hn::LoadInterleaved2(d, upper + 2 * i, u0, u1);
      hn::LoadInterleaved2(d, lower + 2 * i, l0, l1);
    } else {
      u0 = hn::LoadU(d, upper + 2 * i), u1 = hn::LoadU(d, upper + 2 * i + kChannels);
      l0 = hn::LoadU(d, lower + 2 * i), l1 = hn::LoadU(d, lower + 2 * i + kChannels);
    }
    const auto mean = Means::Mean(d, u0, u1, l0, l1);
    hn::StoreU(mean, d, dst + i);
    check = hn::Add(check, hn::Sub(mean, mean));
  };
  const std::conditional_t<kChannels == 1, hn::ScalableTag<float>, hn::Full128<float>> d;
  const hn::CappedTag<float, 1> single;
  auto check = hn::Zero(d);
  auto last = hn::Zero(single);
  ptrdiff_t i = 0;
  for (; i + static_cast<ptrdiff_t>(hn::MaxLanes(d)) <= n; i += hn::MaxLanes(d)) halve(d, i, check);
  for (; i < n; ++i) halve(single, i, last);
  return hn::AllTrue(d, hn::Eq(check, hn::Zero(d))) && hn::GetLane(last) == 0;
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

// False where the tile is not half of its source, has pixels of two or three channels, or where not all is finite.
template <class Means, class T>
bool Halve(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if (!IsHalf(record)) return false;
  switch (Channels(call.src.layout)) {
    case 1: return HalveRows<1, Means>(call, tile);
    case 4: return HalveRows<4, Means>(call, tile);
    default: return false;
  }
}

}  // namespace qvp::resize
