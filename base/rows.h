// The walk over the rows of a region.
#pragma once

#include <cstdint>
#include <limits>

#include "base/image.h"

namespace qvp {

// Whether a region of packed rows can be treated as one row: the number of its pixels must be representable.
template <class... T>
bool Collapses(Size roi, const Image<T>&... images) {
  return roi.height <= std::numeric_limits<ptrdiff_t>::max() / roi.width && (images.IsPacked(roi.width) && ...);
}

// Calls kernel(pixels, row pointers...) for each row from 0 on, or once for all pixels when every image is packed.
template <class Kernel, class... T>
void ForEachRow(Size roi, const Kernel& kernel, const Image<T>&... images) {
  if (Collapses(roi, images...)) roi = Size(roi.width * roi.height, 1);
  for (ptrdiff_t y = 0; y < roi.height; ++y) kernel(roi.width, images.Row(y)...);
}

}  // namespace qvp
