// Volumes: what calls and Inits refuse, in the documented order.
#include "tests/support/faults.h"
#include "tests/support/name.h"

namespace {
using test::Export;
using test::Fault;
using test::Scene;

TEST(Volume, CallsRefuseInOrder) {
  const test::Block foreign(1024);
  std::memset(foreign.data(), 0, foreign.size());
  const std::vector<Fault> faults = {
      {qvpStatusSize, "dstVolume", QvprVolume{0, 1, 1}},
      {qvpStatusSize, "dstVolume", QvprVolume{1, -1, 1}},
      {qvpStatusSize, "dstVolume", QvprVolume{1, 1, 0}},
      {qvpStatusSize, "srcVolume", QvprVolume{1, 0, 1}},
      {qvpStatusStep, "srcStep", 0},
      {qvpStatusStep, "dstStep", 0},
      {qvpStatusSize, "topBorderHeight", -1},
      {qvpStatusSize, "frontBorderDepth", -1},
      {qvpStatusSize, "frontBorderDepth", 1000},
      {qvpStatusSize, "leftBorderWidth", INT32_MAX},
      {qvpStatusMaskSize, "maskVolume", QvprVolume{2, 1, 1}},
      {qvpStatusMaskSize, "maskVolume", QvprVolume{1, 1, -1}},
      {qvpStatusMaskSize, "maskVolume", QvprVolume{181, 183, 1}},
      {qvpStatusMaskSize, "maskVolume", QvprVolume{INT32_MAX, 1, 1}},
      {qvpStatusBorder, "borderType", 0},
      {qvpStatusBorder, "borderType", qvpBorderInMem},
      {qvpStatusBorder, "borderType", qvpBorderReplicate | 0x4000},
      {qvpStatusBorder, "borderType", qvpBorderConst, "qvprResize"},
      {qvpStatusBorder, "borderType", qvpBorderMirror, "Median"},
      {qvpStatusInterpolation, "interpolation", 3},
      {qvpStatusContextMatch, "pSpec", {foreign.data()}},
      {qvpStatusOutOfRange, "dstOffset", QvprPoint{-1, 0, 0}},
      {qvpStatusOutOfRange, "dstOffset", QvprPoint{0, 0, 1000}},
  };
  for (const Export* call : test::FunctionsWith("qvpr", "_C1")) {
    Scene scene(*call, {9, 6}, 2);
    EXPECT_EQ(scene.Call(), 0) << call->name;
    ExpectInOrder(scene, faults, [](QvpStatus) {});
  }
}

TEST(Volume, InitsAndSizeQueriesRefuseInOrder) {
  constexpr double kFlat[3][4] = {{1, 2, 3, 0}, {2, 4, 6, 0}, {1, 0, 1, 0}};
  const std::vector<Fault> faults = {
      {qvpStatusSize, "srcVolume", QvprVolume{0, 1, 1}},
      {qvpStatusSize, "dstVolume", QvprVolume{1, 1, 0}},
      {qvpStatusSize, "kernelVolume", QvprVolume{3, 0, 3}},
      {qvpStatusMaskSize, "maskVolume", QvprVolume{3, 3, 2}},
      {qvpStatusAnchor, "anchor", QvprPoint{0, 0, 100}},
      {qvpStatusDivisor, "divisor", 0},
      {qvpStatusDataType, "dataType", qvp64f},
      {qvpStatusRoundMode, "roundMode", 3},
      {qvpStatusCoefficient, "coeffs", {kFlat}},
      {qvpStatusInterpolation, "interpolation", 3},
      {qvpStatusWarpDirection, "direction", 9},
      {qvpStatusBadArgument, "valueB", NAN},
      {qvpStatusBorder, "borderType", 3},
      {qvpStatusNotSupportedMode, "numLobes", 4},
      {qvpStatusSizeOverflow, "srcVolume", QvprVolume{33554432, 1, 1}},
      {qvpStatusSizeOverflow, "dstVolume", QvprVolume{1, 1, 33554432}},
  };
  for (const char* part : {"Init", "GetSize", "BorderGetBufferSize"}) {
    for (const Export* function : test::FunctionsWith("qvpr", part)) {
      Scene scene(*function, {9, 6}, 2);
      EXPECT_EQ(scene.Call(), 0) << function->name;
      ExpectInOrder(scene, faults, [](QvpStatus) {});
    }
  }
}

}  // namespace
