// Affine and perspective warps by linear interpolation.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;
using namespace qvp::warp;

QVP_WARP_TYPES(Linear)
