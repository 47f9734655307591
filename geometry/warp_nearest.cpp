// Affine and perspective warps by the nearest pixel.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;
using namespace qvp::warp;

QVP_WARP_TYPES(Nearest)
