// Steps of thresholds, comparisons, mirrors, transpositions and turns by quarters.
#include <algorithm>
#include <cstring>

#include "examples/demo.h"

namespace demo {
namespace {

Grey Green(const Rgb& photo) {
  Grey green(photo.size());
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), green.data(), green.step(), photo.size()));
  return green;
}

void OtsuMask(Demo& demo) {
  const Grey green = Green(demo.photo());
  Grey mask(green.size());
  Qvp8u threshold = 0;
  Require(qvpiComputeThreshold_Otsu_8u_C1R(green.data(), green.step(), green.size(), &threshold));
  demo.Time(green.size(), 1 + 1,
            CALL(qvpiCompareC_8u_C1R, green.data(), green.step(), threshold, mask.data(), mask.step(), green.size(),
                 qvpCmpGreater));
  demo.Show("Green above Otsu's threshold, " + std::to_string(threshold), mask);
}

void Posterise(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb poster(photo.size());
  const Qvp8u low[3] = {90, 80, 70}, dark[3] = {24, 32, 72}, high[3] = {165, 165, 165}, bright[3] = {250, 236, 204};
  demo.Time(photo.size(), 3 + 3,
            CALL(qvpiThreshold_LTValGTVal_8u_C3R, photo.data(), photo.step(), poster.data(), poster.step(),
                 photo.size(), low, dark, high, bright));
  demo.Show("Darks and brights replaced", poster);
}

// A square part of the photograph in all ways that its rows and columns can be exchanged.
void Orientations(Demo& demo) {
  const Rgb& photo = demo.photo();
  const int side = std::min(photo.size().width, photo.size().height);
  const QvpiSize square{side, side};
  Rgb sheet({4 * side, 2 * side}), turned(square);
  const auto cell = [&](int i) { return sheet.At(i % 4 * side, i / 4 * side); };
  Require(qvpiCopy_8u_C3R(photo.data(), photo.step(), cell(0), sheet.step(), square));
  for (const int flip : {qvpAxisHorizontal, qvpAxisVertical, qvpAxisBoth, qvpAxis45, qvpAxis135}) {
    Require(qvpiMirror_8u_C3R(photo.data(), photo.step(), cell(flip + 1), sheet.step(), square, flip));
  }
  demo.Time(square, 3 + 3,
            CALL(qvpiTranspose_8u_C3R, photo.data(), photo.step(), turned.data(), turned.step(), square));
  for (const int flip : {qvpAxisHorizontal, qvpAxisVertical}) {
    Require(qvpiMirror_8u_C3R(turned.data(), turned.step(), cell(flip + 6), sheet.step(), square, flip));
  }
  demo.Show("The eight orientations", sheet);
}

// The whole photograph as cameras held in each of the four ways see it.
void QuarterTurns(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize upright = photo.size(), sideways{upright.height, upright.width};
  Rgb sheet({2 * (upright.width + upright.height), std::max(upright.width, upright.height)}), turned(sideways);
  const Qvp8u ground[] = {255, 255, 255};
  Require(qvpiSet_8u_C3R(ground, sheet.data(), sheet.step(), sheet.size()));
  for (int turns = 0, x = 0; turns < 4; x += turns % 2 ? sideways.width : upright.width, ++turns) {
    Require(qvpiRotateQuarter_8u_C3R(photo.data(), photo.step(), sheet.At(x, 0), sheet.step(), photo.size(), turns));
  }
  demo.Time(photo.size(), 3 + 3,
            CALL(qvpiRotateQuarter_8u_C3R, photo.data(), photo.step(), turned.data(), turned.step(), photo.size(), 1));
  demo.Show("Turned by 0 to 3 quarters", sheet);
}

}  // namespace

void ThresholdSteps(Demo& demo) {
  OtsuMask(demo);
  Posterise(demo);
  Orientations(demo);
  QuarterTurns(demo);
}

}  // namespace demo
