// Steps of conversions: brightness through floats, and a picture of one bit a pixel.
#include "examples/demo.h"

namespace demo {
namespace {

using RgbFloat = Image<qvpiMalloc_32f_C3, 3>;

// To floats between 0 and 1, their square roots, and back.
void Brighten(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  RgbFloat values(size);
  Rgb brighter(size);
  Require(qvpiScale_8u32f_C3R(photo.data(), photo.step(), values.data(), values.step(), size, 0, 1));
  Require(qvpiSqrt_32f_C3IR(values.data(), values.step(), size));
  demo.Time(size, 3 * sizeof(Qvp32f) + 3,
            CALL(qvpiScale_32f8u_C3R, values.data(), values.step(), brighter.data(), brighter.step(), size, 0, 1));
  demo.Show("Gamma 2 through floats", brighter);
}

// Eight pixels in a byte, and back to two grey values.
void OneBit(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Grey green(size), grey(size), bits({(size.width + 7) / 8, size.height});
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size));
  demo.Time(size, 1, CALL(qvpiGrayToBin_8u1u_C1R, green.data(), green.step(), bits.data(), bits.step(), 0, size, 110));
  Require(qvpiBinToGray_1u8u_C1R(bits.data(), bits.step(), 0, grey.data(), grey.step(), size, 40, 220));
  demo.Show("One bit a pixel", grey);
}

}  // namespace

void ConvertSteps(Demo& demo) {
  Brighten(demo);
  OneBit(demo);
}

}  // namespace demo
