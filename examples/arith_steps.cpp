// Steps of qvpi_arith.h: arithmetic.
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

// Each exposure counts where it is good: the long one by how dark the photograph is, the short one by how bright.
void Blend(Demo& demo, const Rgb& dark, const Rgb& bright) {
  const Rgb& weight = demo.photo();
  const QvpiSize size = weight.size();
  Rgb fromDark(size), blend(size);
  const Qvp8u full[3] = {255, 255, 255};
  Require(qvpiSet_8u_C3R(full, blend.data(), blend.step(), size));
  Require(qvpiSub_8u_C3IRSfs(weight.data(), weight.step(), blend.data(), blend.step(), size, 0));
  Require(qvpiMulScale_8u_C3IR(bright.data(), bright.step(), blend.data(), blend.step(), size));
  demo.Time(size, 6 + 3,
            CALL(qvpiMulScale_8u_C3R, weight.data(), weight.step(), dark.data(), dark.step(), fromDark.data(),
                 fromDark.step(), size));
  Require(qvpiAdd_8u_C3IRSfs(fromDark.data(), fromDark.step(), blend.data(), blend.step(), size, 0));
  demo.Show("Exposures blended by brightness", blend);
}

}  // namespace

void ArithSteps(Demo& demo) {
  Rgb dark(demo.photo().size()), bright(demo.photo().size());
  Expose(demo, dark, bright);
  Average(demo, dark, bright);
  Blend(demo, dark, bright);
}

}  // namespace demo
