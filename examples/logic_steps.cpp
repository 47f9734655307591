// Steps of bitwise operations and shifts.
#include "examples/demo.h"

namespace demo {
namespace {

// The green channel and its eight bits, the highest first: each is cut out and shown as black and white.
void BitPlanes(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Grey green(size), plane(size), sheet({3 * size.width, 3 * size.height});
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), size));
  Require(qvpiCopy_8u_C1R(green.data(), green.step(), sheet.data(), sheet.step(), size));
  for (int i = 1; i <= 8; ++i) {
    const auto bit = static_cast<Qvp8u>(0x100 >> i);
    Qvp8u* const cell = sheet.At(i % 3 * size.width, i / 3 * size.height);
    Require(qvpiAndC_8u_C1R(green.data(), green.step(), bit, plane.data(), plane.step(), size));
    Require(qvpiCompareC_8u_C1R(plane.data(), plane.step(), bit, cell, sheet.step(), size, qvpCmpEq));
  }
  demo.Time(size, 1 + 1, CALL(qvpiAndC_8u_C1R, green.data(), green.step(), 1, plane.data(), plane.step(), size));
  demo.Show("Green and its bits, the highest first", sheet);
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
