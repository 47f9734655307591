// What mirrors share with the turns by quarters.
#pragma once

#include "base/image.h"

namespace qvp::mirror {

// The same pixels with the rows from the last to the first. The step is negated modulo 2^n, as that of a single row may
// be any number.
template <class T>
Image<T> Upended(const Image<T>& image, ptrdiff_t height) {
  const auto step = static_cast<ptrdiff_t>(0 - static_cast<size_t>(image.step));
  return {image.Row(height - 1), step, image.layout, image.elementBytes};
}

// Whether two images share bytes. Neighbouring regions of one frame, whose rows lie between each other, do not.
bool Overlap(const ConstBytes& a, Size aSize, const ConstBytes& b, Size bSize);

// dst(x, y) = src(W - 1 - x, H - 1 - y). The source may be the destination, with the same step.
void ReverseBothAxes(const ConstBytes& src, const Bytes& dst, Size roi);

}  // namespace qvp::mirror
