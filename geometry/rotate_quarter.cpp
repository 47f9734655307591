// Turns by quarters: the transposition, with the rows of one image taken from the last to the first.
#include "base/check.h"
#include "base/export.h"
#include "core/copy.h"
#include "geometry/mirror.h"
#include "geometry/transpose.h"

namespace {
using namespace qvp;

ConstBytes Constant(const Bytes& image) { return {image.data, image.step, image.layout, image.elementBytes}; }

QvpStatus TurnOddQuarters(const ConstBytes& src, const Bytes& dst, Size roi, bool isClockwise) {
  const Size turned(roi.height, roi.width);
  if (mirror::Overlap(src, roi, Constant(dst), turned)) return qvpStatusNotSupportedMode;
  if (isClockwise) {
    transpose::TransposePixels(mirror::Upended(src, roi.height), dst, roi);
  } else {
    transpose::TransposePixels(src, mirror::Upended(dst, turned.height), roi);
  }
  return qvpStatusNoError;
}

QvpStatus RotateQuarter(const ConstBytes& src, const Bytes& dst, Size roi, int turns) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kStepsNotZero>(roi, {src, dst})) return failed;
  const int quarters = turns & 3;  // modulo 4, also of negative numbers
  if (quarters % 2 != 0) return TurnOddQuarters(src, dst, roi, quarters == 3);
  if (quarters == 2) {
    mirror::ReverseBothAxes(src, dst, roi);
  } else if (src.data != dst.data || src.step != dst.step) {
    CopyImage(src, dst, roi);
  }
  return qvpStatusNoError;
}

}  // namespace

#define ROTATE(type, layout)                                                                                         \
  QVP_MAP(AsBytes, qvpiRotateQuarter_##type##_##layout##R, type, layout, type, layout, int, QvpiSize, RotateQuarter, \
          (int turns), (turns))
#define ROTATE_LAYOUTS(type) QVP_EACH_LAYOUT(ROTATE, type)

ROTATE_LAYOUTS(8u)
ROTATE_LAYOUTS(16u)
ROTATE_LAYOUTS(16s)
ROTATE_LAYOUTS(32f)
