// Linear interpolation of bytes in 16-bit lanes. A pixel p is 128 p, a fraction is in units of 2^-15, and each of the
// three steps between two values is rounded: with the fractions rounded down, a result is less than 0.024 off before
// it is rounded to a whole number.
#pragma once

#include "base/gather.h"
#include "base/pack.h"
#include "geometry/sample_task.h"

namespace qvp::sampling {

using Words = hn::ScalableTag<int16_t>;
inline constexpr int kByteBits = 7;  // a byte in its lane

// On the way from a to b.
template <class V>
HWY_INLINE V Between(V a, V b, V fraction) {
  return hn::Add(a, hn::MulFixedPoint15(hn::Sub(b, a), fraction));
}

// Whole numbers, the nearest ones, of two the even one. Lanes are at most 128 * 255.
template <class V>
HWY_INLINE V ToWhole(V v) {
  const Words d;
  const V below = hn::Set(d, (1 << (kByteBits - 1)) - 1);
  const V isOdd = hn::And(hn::ShiftRight<kByteBits>(v), hn::Set(d, 1));
  return hn::ShiftRight<kByteBits>(hn::Add(hn::Add(v, below), isOdd));
}

// The same for a single point. Rows begin with its first tap.
inline void BlendBytesOf(const uint8_t* upper, const uint8_t* lower, int channels, int x, int y, uint8_t* out) {
  const auto between = [](int a, int b, int fraction) { return a + (((b - a) * fraction + (1 << 14)) >> 15); };
  for (int c = 0; c < channels; ++c) {
    const int top = between(upper[c] << kByteBits, upper[c + channels] << kByteBits, x);
    const int bottom = between(lower[c] << kByteBits, lower[c + channels] << kByteBits, x);
    const int value = between(top, bottom, y), whole = value >> kByteBits;
    out[c] = static_cast<uint8_t>((value + (1 << (kByteBits - 1)) - 1 + (whole & 1)) >> kByteBits);
  }
}

// ---- One channel: lanes are points

// Even lanes from the lower halves of one vector of words, odd lanes from those of another.
template <class V>
HWY_INLINE auto Alternate(V even, V odd) {
  const Words d;
  return hn::OddEven(hn::BitCast(d, hn::ShiftLeft<16>(odd)), hn::BitCast(d, even));
}

// A row's part of points whose words hold two taps each.
template <class V>
HWY_INLINE auto BetweenTaps(V even, V odd, hn::Vec<Words> fraction) {
  const Words d;
  const hn::ScalableTag<uint16_t> bits;
  const auto taps = hn::BitCast(bits, Alternate(even, odd)), mask = hn::Set(bits, 0xFF << kByteBits);
  const auto left = hn::And(hn::ShiftLeft<kByteBits>(taps), mask), right = hn::And(hn::ShiftRight<1>(taps), mask);
  return Between(hn::BitCast(d, left), hn::BitCast(d, right), fraction);
}

// The points from the i-th on in even lanes, and those from the j-th on in odd ones.
HWY_INLINE auto BlendAlternate(const uint8_t* src, ptrdiff_t step, const Places<int32_t>& places, ptrdiff_t i,
                               ptrdiff_t j) {
  const hn::ScalableTag<int32_t> d;
  const auto load = [&](const int32_t* from, ptrdiff_t k) HWY_ATTR { return hn::LoadU(d, from + places.first + k); };
  const auto even = load(places.offset, i), odd = load(places.offset, j);
  const auto x = Alternate(load(places.x, i), load(places.x, j));
  const auto y = Alternate(load(places.y, i), load(places.y, j));
  const auto row = [&](const uint8_t* base)
                       HWY_ATTR { return BetweenTaps(GatherWords(d, base, even), GatherWords(d, base, odd), x); };
  return ToWhole(Between(row(src), row(src + step), y));
}

// Bytes in the order of their points: words hold one of each of four vectors of points.
template <class V>
HWY_INLINE V Sorted(V bytes) {
  const hn::ScalableTag<uint8_t> d;
  alignas(16) static constexpr uint8_t kColumns[16] = {0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15};
  return InOrder<4>(hn::TableLookupBytes(bytes, hn::LoadDup128(d, kColumns)));
}

inline void BlendSingleBytes(const Task<uint8_t>& task, const Places<int32_t>& places, ptrdiff_t n, uint8_t* dst) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<int32_t>());
  const uint8_t* src = task.src.data;
  const ptrdiff_t step = task.src.step;
  MakePixels<4 * kLanes, 0, 1>(task, n, dst, [&](ptrdiff_t i, uint8_t* to) HWY_ATTR {
    const hn::ScalableTag<uint8_t> bytes;
    const auto lower = BlendAlternate(src, step, places, i, i + 2 * kLanes);
    const auto upper = BlendAlternate(src, step, places, i + kLanes, i + 3 * kLanes);
    hn::StoreU(Sorted(hn::BitCast(bytes, hn::Or(lower, hn::ShiftLeft<8>(upper)))), bytes, to);
  });
}

// ---- Several channels: each point takes four lanes

using FourLanes = hn::ScalableTag<int64_t>;  // a point

// The bytes of a point's left or right taps, each in the upper half of its lane.
template <int kChannels, int kTap>
HWY_INLINE auto SpreadTaps(hn::Vec<hn::ScalableTag<uint8_t>> taps) {
  const hn::ScalableTag<uint8_t> d;
  alignas(16) static constexpr auto kPlaces = [] {
    std::array<uint8_t, 16> places{};
    for (int i = 0; i < 16; ++i) {
      const int point = i / 8, channel = i % 8 / 2;
      const bool isByte = i % 2 == 1 && channel < kChannels;
      places[i] = static_cast<uint8_t>(isByte ? 8 * point + kTap * kChannels + channel : 0x80);
    }
    return places;
  }();
  const auto spread = hn::TableLookupBytesOr0(taps, hn::LoadDup128(d, kPlaces.data()));
  return hn::BitCast(Words(), hn::ShiftRight<8 - kByteBits>(hn::BitCast(hn::ScalableTag<uint16_t>(), spread)));
}

// Each point's fraction in its four lanes.
HWY_INLINE auto SpreadFractions(const int32_t* fractions) {
  const hn::ScalableTag<uint8_t> d;
  const hn::ScalableTag<uint64_t> wide;
  alignas(16) static constexpr uint8_t kFirst[16] = {0, 1, 0, 1, 0, 1, 0, 1, 8, 9, 8, 9, 8, 9, 8, 9};
  const auto words = hn::LoadU(hn::Rebind<uint32_t, FourLanes>(), reinterpret_cast<const uint32_t*>(fractions));
  return hn::BitCast(Words(),
                     hn::TableLookupBytes(hn::BitCast(d, hn::PromoteTo(wide, words)), hn::LoadDup128(d, kFirst)));
}

// As many points as there are lanes for.
template <int kChannels>
HWY_INLINE auto BlendFourLanes(const uint8_t* src, ptrdiff_t step, const Places<int32_t>& places, ptrdiff_t i) {
  const ptrdiff_t point = places.first + i;
  const auto x = SpreadFractions(places.x + point), y = SpreadFractions(places.y + point);
  const auto row = [&](const uint8_t* base) HWY_ATTR {
    const auto taps = hn::BitCast(hn::ScalableTag<uint8_t>(), LoadWords<1>(base, places.offset + point));
    return Between(SpreadTaps<kChannels, 0>(taps), SpreadTaps<kChannels, 1>(taps), x);
  };
  return ToWhole(Between(row(src), row(src + step), y));
}

// Blocks of four pixels one after the other, without their fourth bytes where there are three channels. Four bytes more
// may be written.
template <int kChannels, class V>
HWY_INLINE void StoreBlocks(V v, uint8_t* to) {
  const hn::DFromV<V> d;
  if constexpr (kChannels == 4) {
    hn::StoreU(v, d, to);
  } else if constexpr (hn::MaxLanes(hn::DFromV<V>()) > kBlockBytes) {
    const hn::Half<decltype(d)> half;
    StoreBlocks<3>(hn::LowerHalf(half, v), to);
    StoreBlocks<3>(hn::UpperHalf(half, v), to + 3 * hn::MaxLanes(half) / 4);
  } else {
    alignas(16) static constexpr uint8_t kThree[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 3, 7, 11, 15};
    hn::StoreU(hn::TableLookupBytes(v, hn::Load(d, kThree)), d, to);
  }
}

template <int kChannels>
void BlendSeveralBytes(const Task<uint8_t>& task, const Places<int32_t>& places, ptrdiff_t n, uint8_t* dst) {
  constexpr ptrdiff_t kPoints = hn::MaxLanes(FourLanes());
  const uint8_t* src = task.src.data;
  const ptrdiff_t step = task.src.step;
  MakePixels<2 * kPoints, kChannels == 3 ? 2 : 0, kChannels>(task, n, dst, [&](ptrdiff_t i, uint8_t* to) HWY_ATTR {
    const auto lower = BlendFourLanes<kChannels>(src, step, places, i);
    const auto upper = BlendFourLanes<kChannels>(src, step, places, i + kPoints);
    StoreBlocks<kChannels>(PackedInOrder<uint8_t>(lower, upper), to);
  });
}

template <int kChannels>
void BlendBytes(const Task<uint8_t>& task, const Places<int32_t>& places, ptrdiff_t n, uint8_t* dst) {
  if constexpr (kChannels == 1) {
    BlendSingleBytes(task, places, n, dst);
  } else {
    BlendSeveralBytes<kChannels>(task, places, n, dst);
  }
}

}  // namespace qvp::sampling
