// Affine and perspective warps by linear interpolation.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;

QVP_WARP(Linear, 2)
