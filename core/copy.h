// Copies, for the families that move rows.
#pragma once

#include "base/image.h"
#include "base/store.h"

namespace qvp {

// Copies rows from 0 on, with the kind of store that the caller has decided on.
void CopyPixels(const ConstBytes& src, const Bytes& dst, Size roi, Store store);

// Copies what is processed of each pixel: an alpha that is kept is not.
void CopyImage(const ConstBytes& src, const Bytes& dst, Size roi);

}  // namespace qvp
