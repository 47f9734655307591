// Affine and perspective warps by cubic interpolation.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;

QVP_WARP(Cubic, 4)
