// Steps of qvpi_arith.h: arithmetic.
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// The photograph as a shorter and as a longer exposure would have it: times 1/2, and times 7/4 as far as 8 bits reach.
void Expose(Demo& demo, Rgb& dark, Rgb& bright) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const Qvp8u half[3] = {1, 1, 1}, sevenQuarters[3] = {7, 7, 7};
  demo.Time(size, 3 + 3, CALL(qvpiMulC_8u_C3RSfs, photo.data(), photo.step(), half, dark.data(), dark.step(), size, 1));
  demo.Show("Short exposure: times 1/2", dark);
  demo.Time(size, 3 + 3,
            CALL(qvpiMulC_8u_C3RSfs, photo.data(), photo.step(), sevenQuarters, bright.data(), bright.step(), size, 2));
  demo.Show("Long exposure: times 7/4, saturated", bright);
}

void Average(Demo& demo, const Rgb& dark, const Rgb& bright) {
  Rgb average(dark.size());
  demo.Time(dark.size(), 6 + 3,
            CALL(qvpiAdd_8u_C3RSfs, dark.data(), dark.step(), bright.data(), bright.step(), average.data(),
                 average.step(), dark.size(), 1));
  demo.Show("Average of both exposures", average);
}

// Fractions from 0 at the left edge to 1, which is 255, at the right. A step of 0 uses one row as the source of all.
Rgb Ramp(QvpiSize size) {
  Rgb ramp(size);
  std::vector<Qvp8u> row(3 * size.width);
  for (int i = 0; i < 3 * size.width; ++i) row[i] = static_cast<Qvp8u>(int64_t{255} * (i / 3) / size.width);
  Require(qvpiCopy_8u_C3R(row.data(), 0, ramp.data(), ramp.step(), size));
  return ramp;
}

// ramp * bright + (1 - ramp) * dark
void Blend(Demo& demo, const Rgb& dark, const Rgb& bright) {
  const QvpiSize size = dark.size();
  const Rgb ramp = Ramp(size);
  Rgb fromBright(size), blend(size);
  const Qvp8u full[3] = {255, 255, 255};
  Require(qvpiSet_8u_C3R(full, blend.data(), blend.step(), size));
  Require(qvpiSub_8u_C3IRSfs(ramp.data(), ramp.step(), blend.data(), blend.step(), size, 0));
  Require(qvpiMulScale_8u_C3IR(dark.data(), dark.step(), blend.data(), blend.step(), size));
  demo.Time(size, 6 + 3,
            CALL(qvpiMulScale_8u_C3R, ramp.data(), ramp.step(), bright.data(), bright.step(), fromBright.data(),
                 fromBright.step(), size));
  Require(qvpiAdd_8u_C3IRSfs(fromBright.data(), fromBright.step(), blend.data(), blend.step(), size, 0));
  demo.Show("Exposures blended along a ramp", blend);
}

}  // namespace

void ArithSteps(Demo& demo) {
  Rgb dark(demo.photo().size()), bright(demo.photo().size());
  Expose(demo, dark, bright);
  Average(demo, dark, bright);
  Blend(demo, dark, bright);
}

}  // namespace demo
