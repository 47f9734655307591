// The walk over the rows of a region.
#pragma once

#include <cstdint>

#include "base/image.h"

namespace qvp {

// Calls kernel(pixels, row pointers...) for each row from 0 on, or once for all pixels when every image is packed.
template <class Kernel, class... T>
void ForEachRow(Size roi, const Kernel& kernel, const Image<T>&... images) {
  ptrdiff_t pixels;
  if ((images.IsPacked(roi.width) && ...) && !__builtin_mul_overflow(roi.width, roi.height, &pixels)) {
    roi = Size(pixels, 1);
  }
  for (ptrdiff_t y = 0; y < roi.height; ++y) kernel(roi.width, images.Row(y)...);
}

}  // namespace qvp
