// Sides of tiles, and parts of integers.
#include "signal/tiling.h"

#include <algorithm>

#include "signal/plane_transform.h"
#include "signal/smooth_lengths.h"

namespace qvp::dft {
namespace {

// What a pass of each factor takes for a number, beside what is done whatever the passes.
int64_t WorkPerNumber(int64_t length) {
  constexpr int64_t kFixed = 16, kBeyondCache = 16, kLongestInCache = 512;
  int64_t work = length > kLongestInCache ? kFixed + kBeyondCache : kFixed;
  const SmoothLength plan = SmoothLength::Of(length);
  for (int i = 0; i < plan.factorCount; ++i) work += plan.factors[i] == 5 ? 6 : plan.factors[i] == 8 ? 6 : 4;
  return work;
}

}  // namespace

Tiling TilingFor(int64_t image, int64_t kernel, int64_t unit) {
  const int64_t full = image + kernel - 1, most = std::max(2 * full, unit);
  int64_t best = 0, least = INT64_MAX;
  ForEachSmooth(unit, kernel, most, [&](int64_t side) {
    const int64_t step = side >= full ? side : side - kernel + 1, tiles = (full + step - 1) / step;
    const int64_t work = tiles * side * WorkPerNumber(side);
    if (work < least || (work == least && side < best)) best = side, least = work;
  });
  return {static_cast<ptrdiff_t>(best), static_cast<ptrdiff_t>(best >= full ? 0 : kernel - 1), best >= full};
}

Tiling OverlapTilingFor(int64_t results, int64_t kernel, int64_t unit, int64_t most) {
  int64_t best = most, least = INT64_MAX;
  ForEachSmooth(unit, kernel, most, [&](int64_t side) {
    const int64_t step = side - kernel + 1, tiles = (results + step - 1) / step,
                  work = tiles * side * WorkPerNumber(side);
    if (work < least || (work == least && side < best)) best = side, least = work;
  });
  return {static_cast<ptrdiff_t>(best), static_cast<ptrdiff_t>(kernel - 1), false};
}

// The error of a sum is far below log2(area) * 2^-48 times the lengths of both as vectors; a quarter is asked for.
Parts PartsFor(int64_t area, int largest, const Squares& squares) {
  const double error = 0x1p-48 * static_cast<double>(64 - __builtin_clzll(static_cast<uint64_t>(area)));
  const auto isExact = [&](double pixel, double sum) {
    return error * error * (pixel * pixel) * static_cast<double>(area) * sum < 1.0 / 16;
  };
  if (isExact(largest, squares.whole)) return {1, 1};
  return isExact(largest, squares.parts) ? Parts{2, 1} : Parts{2, 2};
}

}  // namespace qvp::dft
