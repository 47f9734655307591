// A work buffer serves all regions and masks that are smaller than those it was made for.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/exports.h"

namespace {
using test::Export;
using test::Exports;
using test::Scene;

// What a query tells of growing regions or masks; what it refuses is left out.
void ExpectGrowth(Scene& scene, size_t place, QvpiSize other) {
  const Export& function = scene.function();
  for (size_t i = 0; i < scene.arguments.size(); ++i) {
    if (function.parameters[i].type == "QvpiSize") scene.arguments[i] = other;
  }
  std::vector<int> before;
  for (const int side : {1, 3, 5, 7, 9, 15, 17, 31, 33, 63, 65, 99, 127, 129, 255, 1001, 4097, 20001, 1000001}) {
    scene.arguments[place] = QvpiSize{side, std::min(side, 1001)};
    if (scene.Call() != qvpStatusNoError) continue;
    std::vector<int> sizes;
    for (size_t i = 0; i < scene.arguments.size(); ++i) {
      if (function.parameters[i].name == "pBufferSize")
        sizes.push_back(*static_cast<const int*>(scene.arguments[i].pointer));
    }
    for (size_t i = 0; i < before.size(); ++i) EXPECT_GE(sizes[i], before[i]) << function.name << ' ' << side;
    before = sizes;
  }
}

TEST(EveryFunction, TellsBuffersThatServeSmallerRegionsAndMasks) {
  for (const Export& function : Exports()) {
    if (!function.Has("pBufferSize") || !(function.Has("maskSize") || function.Has("radius"))) continue;
    for (size_t place = 0; place < function.parameters.size(); ++place) {
      if (function.parameters[place].type != "QvpiSize") continue;
      for (const int side : {1, 3, 15, 127, 1001}) {
        for (const uint64_t seed : {1, 2, 3, 4}) {  // for types and channels
          Scene scene(function, {37, 5}, seed);
          ExpectGrowth(scene, place, {side, std::min(side, 127)});
        }
      }
    }
  }
}

}  // namespace
