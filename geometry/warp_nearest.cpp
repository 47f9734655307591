// Affine and perspective warps by the nearest pixel.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;

QVP_WARP(Nearest, 1)
