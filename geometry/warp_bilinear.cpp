// Bilinear warps by all methods, whose loops are those of the other warps.
#include "base/export.h"
#include "geometry/warp_call.h"

using namespace qvp;
using namespace qvp::warp;

#define PLAIN(Kind_, type, layout) \
  QVP_WARP_CALL(qvpiWarp##Kind_##_##type##_##layout##R, Kind_, ByRecord, type, layout, int, , Form::kPlain)
#define PLAIN_AND_WIDE(Kind_, type, layout) \
  PLAIN(Kind_, type, layout)                \
  QVP_WARP_CALL(qvpiWarp##Kind_##_##type##_##layout##R_L, Kind_, ByRecord, type, layout, QvpSizeL, L, Form::kWide)
#define WARPS(Kind_)                       \
  QVP_C1_C3_C4(PLAIN_AND_WIDE, Kind_, 8u)  \
  QVP_C1_C3_C4(PLAIN_AND_WIDE, Kind_, 16u) \
  QVP_C1_C3_C4(PLAIN_AND_WIDE, Kind_, 16s) \
  QVP_C1_C3_C4(PLAIN_AND_WIDE, Kind_, 32f) \
  QVP_C1_C3_C4(PLAIN, Kind_, 64f)

WARPS(Bilinear)
WARPS(BilinearBack)
WARPS(BilinearQuad)
