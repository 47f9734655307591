// Transposition of pixels of any size, for the functions that exchange rows and columns.
#pragma once

#include "base/image.h"

namespace qvp::transpose {

// dst(x, y) = src(y, x). `size` is that of the source. With the destination's layout AC4 the fourth channel of the
// destination stays. The images must not overlap.
void TransposePixels(const ConstBytes& src, const Bytes& dst, Size size);

// The same within one square image.
void TransposeInPlace(const Bytes& image, ptrdiff_t side);

}  // namespace qvp::transpose
