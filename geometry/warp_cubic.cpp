// Warps by cubic interpolation: affine and perspective ones, and the loops of all.
#include "base/export.h"
#include "geometry/warp_call.h"
#include "geometry/warp_tiles.h"

using namespace qvp;
using namespace qvp::warp;

QVP_WARP_TYPES(Cubic)
