// Medians of rectangles: what their methods share.
//
//     networks         sort small masks, with as many results at a time as a vector has lanes
//     column counts    bytes, in a time that does not depend on the mask
//     sliding counts   16-bit numbers, and floats by their ranks
#pragma once

#include "filter/windows.h"

namespace qvp::filter {

constexpr int kLongestMedianSide = 255;

constexpr bool IsOddUpTo(int most, QvpiSize mask) {
  const auto isSide = [=](int side) { return side >= 1 && side <= most && side % 2 == 1; };
  return isSide(mask.width) && isSide(mask.height);
}

// What is taken of the sorted values X of a mask, which are counted from 0: max(X(low), min(centre, X(high))). Of a
// plain median both are the same.
struct MedianRanks {
  int low, high;

  constexpr bool isPlain() const { return low == high; }
};

constexpr Reach ReachAround(QvpiSize mask) {
  return {mask.width / 2, mask.height / 2, mask.width / 2, mask.height / 2};
}

constexpr QvpStatus CheckMedianBorder(QvpiBorderType border) {
  return CheckBorder(border, {BorderKind::kReplicate, BorderKind::kConst});
}

// The centre counts `weight` times, fewer than there are values.
constexpr MedianRanks RanksFor(int n, int weight) {
  const int middle = (n + weight) / 2;
  return {middle - weight, middle - 1};
}

// A call. The mask is centred, and the windows reach as far as it does.
template <class T>
struct MedianCall {
  using Pixel = T;

  Windows<BitsOf<T>> windows;
  QvpiSize mask;
  MedianRanks ranks;

  int channels() const { return windows.src.channels(); }
};

// Lanes in the order of pixels: integers as they are, floats as integers in which those of negative ones are turned
// around, but for the sign.
template <class T>
using MedianLane = std::conditional_t<std::is_same_v<T, float>, int32_t, T>;

constexpr int32_t OrderedBits(int32_t bits) { return bits ^ ((bits >> 31) & 0x7FFFFFFF); }

// The methods take what they need of the work buffer, at any address; the walk has the rest.
bool FilterByNetworks(const MedianCall<uint8_t>& call);  // false if it is none of theirs
bool FilterByNetworks(const MedianCall<uint16_t>& call);
bool FilterByNetworks(const MedianCall<int16_t>& call);
bool FilterByNetworks(const MedianCall<float>& call);
void FilterByColumnCounts(const MedianCall<uint8_t>& call);
template <class T>
void FilterBySlidingCounts(const MedianCall<T>& call);
void FilterByRanks(const MedianCall<float>& call);

// What column counts keep beside the lines of bytes, 16 counts at a time, and the bytes that blocks of columns have.
inline constexpr KeptRows kColumnCounts{17, 16};
inline constexpr int64_t kColumnCacheBytes = 1 << 18;

// Bytes that the others take.
ByteCount NetworkBytes();
ByteCount SlidingBytes();
ByteCount RankBytes(QvpiSize mask);

}  // namespace qvp::filter
