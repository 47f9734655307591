// Matching: what its stages are given. The products of windows and template come from the one method or the other, sums
// over windows from doubling; scores are made of both.
#pragma once

#include "base/plane.h"
#include "base/record.h"

namespace qvp::matching {

// Channels that go into one result, at most.
inline constexpr int kMostJoint = 3;

// What sums over windows are held in: doubles, which hold all of bytes, or 64 bits.
template <class T>
using Sum = std::conditional_t<sizeof(T) == 2, int64_t, double>;

template <class T>
constexpr bool kIsFloat = std::is_same_v<T, float>;

// Samples are taken less than they are: words without sign by this much.
template <class T>
constexpr int kMiddle = std::is_same_v<T, uint16_t> ? 32768 : 0;
// For transforms, bytes too.
template <class T>
constexpr int kMiddleOfSpectra = std::is_same_v<T, uint8_t> ? 128 : kMiddle<T>;

// Sums of s t over windows, or of (s - t)^2.
enum class Products { kOf, kOfDifferences };

struct Norm {
  bool isDistance, isNormed, isCentred;
};

// Channels of image and template that make one result.
template <class T>
struct ChannelSet {
  int count = 0;
  Plane<T> image[kMostJoint] = {}, tpl[kMostJoint] = {};
  double less[kMostJoint] = {};  // what samples are taken less by, those outside of the image too
};

// Results whose first window begins at (x, y) of the image, and where their sums of products go: rows of `step` sums,
// of which there is an even number, with room for kTileUnit columns at a time.
template <class T>
struct Tile {
  ptrdiff_t x, y;
  Size size;
  Sum<T>* sums;
  ptrdiff_t step;

  Sum<T>* Row(ptrdiff_t row) const { return sums + row * step; }
};
inline constexpr ptrdiff_t kTileUnit = 16;

}  // namespace qvp::matching
