// Copies into a larger image, for the families that need a border around something.
#pragma once

#include "filter/copy_border_frame.h"

namespace qvp::filter {

// `dst` begins with the first pixel of the source, which is there already where the two are the same memory. `value` is
// the pixel of a constant border, a block of bytes.
void WriteFrame(BorderKind kind, const ConstBytes& src, const Bytes& dst, const Frame& frame, const uint8_t* value);

}  // namespace qvp::filter
