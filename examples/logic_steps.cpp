// Steps of bitwise operations and shifts.
#include "examples/demo.h"

namespace demo {
namespace {

// The eight bits of the green channel, the highest first: each is cut out and shown as black and white.
void BitPlanes(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Grey green(size), plane(size), sheet({4 * size.width, 2 * size.height});
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size));
  for (int i = 0; i < 8; ++i) {
    const auto bit = static_cast<Qvp8u>(0x80 >> i);
    demo.Time(size, 1 + 1, CALL(qvpiAndC_8u_C1R, green.data(), green.step(), bit, plane.data(), plane.step(), size));
    Qvp8u* const cell = sheet.At(i % 4 * size.width, i / 4 * size.height);
    Require(qvpiCompareC_8u_C1R(plane.data(), plane.step(), bit, cell, sheet.step(), size, qvpCmpEq));
  }
  demo.Show("Bit planes of green, highest first", sheet);
}

// What is left of each sample when four bits are shifted out to the right and zeros come in on the way back.
void FourBits(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const Qvp32u four[3] = {4, 4, 4};
  Rgb coarse(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiShiftRightC_8u_C3R, photo.data(), photo.step(), four, coarse.data(), coarse.step(), size));
  Require(qvpiShiftLeftC_8u_C3IR(four, coarse.data(), coarse.step(), size));
  demo.Show("Upper four bits of each channel", coarse);
}

}  // namespace

void LogicSteps(Demo& demo) {
  BitPlanes(demo);
  FourBits(demo);
}

}  // namespace demo
