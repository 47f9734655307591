// The walk over the rows of element-wise operations. It is compiled once: operations reach it as a function with a
// context, and what differs between images (layouts, steps, sizes of elements) is a value.
#pragma once

#include "base/image.h"

namespace qvp {

// A kernel: n elements of a row, of one source or two. Sources may be the destination.
using RowCall = void (*)(const void* context, ptrdiff_t n, uint8_t* to, const uint8_t* a, const uint8_t* b);

// A piece of a row: whole pixels of every type and layout; stays in the first-level cache.
inline constexpr ptrdiff_t kPieceBytes = 6144;

// Calls the kernel for each row, or once for all elements if every image is packed. Where that pays, a row leaves in
// pieces of whole pixels past the caches. `b` is null for operations of one source.
void Walk(Size roi, const Bytes& dst, const ConstBytes& a, const ConstBytes* b, RowCall call, const void* context);

}  // namespace qvp
