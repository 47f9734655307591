// Sums along a row of integers as differences of running totals, for any length of them. Totals are those modulo the
// lanes' range, and so are their differences: sums that the lanes hold are exact.
#pragma once

#include <array>

#include "base/simd.h"

namespace qvp::filter {

// totals[i] is the sum of the values before i, of the same channel: the first of each channel is 0. Behind both rows
// there is room for a vector, and for a pixel.
template <int kChannels, class E>
HWY_NOINLINE void AddUp(const E* values, ptrdiff_t n, E* totals) {
  constexpr int kBlock = kBlockBytes, kPixel = kChannels * int{sizeof(E)};
  const hn::CappedTag<E, 2 * kBlock / sizeof(E)> d;
  const hn::Repartition<uint8_t, decltype(d)> bytes;
  constexpr bool kHasTwoBlocks = hn::MaxLanes(d) * sizeof(E) > kBlock;
  static constexpr auto kLastPixel = [] {
    std::array<uint8_t, 2 * kBlock> places{};
    for (size_t i = 0; i < places.size(); ++i) places[i] = static_cast<uint8_t>(kBlock - kPixel + i % kPixel);
    return places;
  }();
  const auto places = hn::LoadU(bytes, kLastPixel.data());
  std::fill(totals, totals + kChannels, E{0});
  auto before = hn::Zero(d);
  for (ptrdiff_t i = 0; i < n; i += hn::MaxLanes(d)) {
    auto sums = hn::LoadU(d, values + i);  // in each block
    if constexpr (kPixel <= 2) sums = hn::Add(sums, hn::ShiftLeftBytes<2>(d, sums));
    if constexpr (kPixel <= 4) sums = hn::Add(sums, hn::ShiftLeftBytes<4>(d, sums));
    if constexpr (kPixel <= 8) sums = hn::Add(sums, hn::ShiftLeftBytes<8>(d, sums));
    auto all = hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(bytes, sums), places));
    sums = hn::Add(sums, before);
    if constexpr (kHasTwoBlocks) {
      sums = hn::Add(sums, hn::ConcatLowerLower(d, all, hn::Zero(d)));
      all = hn::Add(all, hn::ConcatLowerUpper(d, all, all));
    }
    hn::StoreU(sums, d, totals + kChannels + i);
    before = hn::Add(before, all);
  }
}

// The same of three channels, whose pixels lie across blocks: a pixel at a time, in a vector that has one lane to
// spare.
template <class E>
HWY_NOINLINE void AddUpThrees(const E* values, ptrdiff_t n, E* totals) {
  const hn::CappedTag<E, 4> d;
  auto sums = hn::Zero(d);
  hn::StoreU(sums, d, totals);
  for (ptrdiff_t i = 0; i < n; i += 3) {
    sums = hn::Add(sums, hn::LoadU(d, values + i));
    hn::StoreU(sums, d, totals + 3 + i);
  }
}

}  // namespace qvp::filter
