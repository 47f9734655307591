// How a convolution is cut into tiles whose transforms hold it, and into how many parts integers are cut that doubles
// then hold exactly.
#pragma once

#include <algorithm>

#include "base/border.h"

namespace qvp::dft {

// Along one axis. A tile shorter than the full convolution has right results but for the first kernel - 1, which wrap
// around; one as long has them all, from the first on.
struct Tiling {
  ptrdiff_t side;  // of the transform
  ptrdiff_t lead;  // place of the first right result
  bool isWhole;    // the tile is as long

  // How many results a tile gives of `count`.
  ptrdiff_t Step(ptrdiff_t count) const { return isWhole ? count : side - lead; }
  // The places in a tile of its results: those from `at` on of `count`, of which the first is at `begin` of the full
  // convolution.
  Extent ResultsAt(ptrdiff_t begin, ptrdiff_t at, ptrdiff_t count) const {
    const ptrdiff_t first = isWhole ? begin : lead;
    return {first, first + std::min(Step(count), count - at)};
  }
  // Where in the image a tile begins whose first result is at `begin` of the full convolution.
  ptrdiff_t BeginOf(ptrdiff_t begin) const { return isWhole ? 0 : begin - lead; }
};

// For an image and a kernel so long: a side that is a multiple of `unit`, with factors of 2, 3 and 5.
Tiling TilingFor(int64_t image, int64_t kernel, int64_t unit);

// The side of overlapping tiles that all have right results but for the first kernel - 1, at most `most`, for a number
// of results; `most` is at least the kernel and a unit.
Tiling OverlapTilingFor(int64_t results, int64_t kernel, int64_t unit, int64_t most);

// Parts of the kernel's pixels and of the image's: all, or 256 times a part and another.
struct Parts {
  int kernel, image;
};

// What is known of a kernel's pixels: sums of squares of the pixels and of the larger of their parts.
struct Squares {
  double whole, parts;
};

// So few that sums of a tile of `area` pixels are exact when they are rounded, for an image of pixels up to `largest`.
Parts PartsFor(int64_t area, int largest, const Squares& squares);

}  // namespace qvp::dft
