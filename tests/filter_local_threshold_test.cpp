// Thresholds by local means against their definition.
#include <cmath>

#include "tests/support/bordered.h"
#include "tests/support/gauss.h"
#include "tests/support/same.h"

namespace {
using test::Bordered;
using test::Export;
using test::Name;
using test::Real;

// A sigma of 0 stands for the mean under a box.
struct Demand {
  QvpiSize mask;
  float delta, sigma = 0;
  Real above = 200, others = 7;

  std::string name(const std::string& end) const {
    return std::string("qvpiThresholdLocal") + (sigma > 0 ? "Gauss" : "Box") + "Border_" + end;
  }
};

auto FilterAll(const Export& function, const Bordered& scene, const Demand& demand) {
  return test::FilterAll(function, scene, demand.mask, test::kAmple,
                         {{"pSrcDst", {scene.At(0, 0), scene.image.step()}},
                          {"maskSize", demand.mask},
                          {"sigma", demand.sigma},
                          {"delta", demand.delta},
                          {"valueGT", static_cast<double>(demand.above)},
                          {"valueLE", static_cast<double>(demand.others)}});
}

// Exact for integers; sums of floats in double, in the order of the tree.
bool IsAboveBoxMean(bool isInteger, const Demand& demand, const auto& pixel) {
  const QvpiSize m = demand.mask;
  const double n = double(m.width) * m.height;
  const auto at = [&](int i, int j) { return pixel(i - m.width / 2, j - m.height / 2); };
  if (isInteger) {
    int64_t sum = 0;
    for (int j = 0; j < m.height; ++j) {
      for (int i = 0; i < m.width; ++i) sum += static_cast<int64_t>(at(i, j));
    }
    return n * static_cast<Real>(pixel(0, 0)) - sum > -n * static_cast<Real>(demand.delta);
  }
  const double sum = test::TreeSum<double>(m.height, [&](int j) {
    return test::TreeSum<double>(m.width, [&](int i) { return static_cast<double>(at(i, j)); });
  });
  const volatile double bound = sum - n * demand.delta, product = n * static_cast<double>(pixel(0, 0));
  return product > bound;
}

// Of bytes exact after the rounding of rows; else in floats.
bool IsAboveGaussMean(bool isByte, const Demand& demand, const auto& pixel) {
  if (isByte) {
    const test::WholeTaps down = test::WholeWeights(demand.mask.height, demand.sigma);
    const int64_t sum = test::SumOfBytes(test::WholeWeights(demand.mask.width, demand.sigma), down, pixel);
    const int64_t unit = int64_t{1} << (down.bits + 6);
    return static_cast<Real>(unit * static_cast<int64_t>(pixel(0, 0)) - sum) > -static_cast<Real>(demand.delta) * unit;
  }
  const auto weights = [&](int side) {
    const std::vector<double> exact = test::Weights(side, demand.sigma);
    return std::vector<float>(exact.begin(), exact.end());
  };
  const volatile float mean = test::SumOfFloats(weights(demand.mask.width), weights(demand.mask.height), pixel);
  const volatile float bound = mean - demand.delta;
  return static_cast<float>(pixel(0, 0)) > bound;
}

void Check(const std::string& types, const Demand& demand, const Bordered& scene) {
  const Export& function = test::FunctionNamed(demand.name(types + "_C1R"));
  const Export& inPlace = test::FunctionNamed(demand.name(types + "_C1IR"));
  const Name name(function.name);
  const QvpiSize size = scene.region.size;
  test::ExpectWindows(
      function, scene, FilterAll(function, scene, demand),
      [&](const auto& pixel) {
        const bool isAbove = demand.sigma > 0 ? IsAboveGaussMean(types == "8u", demand, pixel)
                                              : IsAboveBoxMean(name.From().isInteger, demand, pixel);
        return isAbove ? demand.above : demand.others;
      },
      test::Shown(demand.mask) + " delta " + std::to_string(demand.delta));
  const test::Samples out(name.To(), size.width, size.height, 0);
  ASSERT_EQ(FilterAll(function, scene, demand)(out), 0);
  ASSERT_EQ(FilterAll(inPlace, scene, demand)({}), 0);
  ExpectImage(
      out, [&](int x, int y) { return scene.element().read(scene.At(x, y)); },
      inPlace.name + " mask " + test::Shown(demand.mask) + " border " + std::to_string(scene.region.border));
}

TEST(LocalThreshold, EveryMemberEqualsItsDefinition) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 3}, {1, 9}, {15, 1}, {15, 17}, {17, 15}, {7, 31}, {31, 7}};
  constexpr float kDeltas[] = {0, 0.1f, -0.1f, 3, -3, 1000, -1000, 1e30f, -1e30f};
  constexpr float kSigmas[] = {0, 0.3f, 1.5f, 30};
  int turn = 0;
  for (const char* const types : {"8u", "16u", "32f"}) {
    for (const QvpiSize mask : kMasks) {
      for (int i = 0; i < 18; ++i) {
        ++turn;
        test::Region r = test::RegionOf(turn, 1);
        if (mask.width * mask.height > 50) r.size.width = std::min(r.size.width, 60);
        Bordered scene(test::ElementOf(types), test::ReachOf(mask), r);
        if (turn % 2) {  // close to the mean
          scene.image.Fill([&](int x, int y) { return 100 + (x * 7 + y * 5) % 11 / 4; });
        } else if (types == std::string("32f") && turn % 4 == 0) {
          test::Random random(turn);
          scene.image.Fill([&](int, int) {
            return random.Next() % 50 ? Real(random.Next() % 100) : EdgeValue(scene.element(), random);
          });
        }
        Check(types, {mask, kDeltas[(turn + turn / 9) % 9], kSigmas[(turn / 2 + turn / 8) % 4]}, scene);
      }
    }
  }
}

// Sums and bounds at the ends of the lanes; masks that are larger than the image.
TEST(LocalThreshold, LargeMasks) {
  for (const auto& [types, high] : {std::pair{"8u", 255}, {"16u", 65535}}) {
    for (const QvpiSize mask : {QvpiSize{255, 1}, {1, 257}, {181, 181}, {183, 181}, {301, 99}}) {
      for (int pattern = 0; pattern < 3; ++pattern) {
        Bordered scene(test::ElementOf(types), {}, {{9, 4}, 1, pattern == 2 ? qvpBorderMirror : qvpBorderReplicate});
        scene.image.Fill([&, h = high](int x, int y) {
          return pattern == 0 ? h : (x + y) % 2 ? h : pattern == 1 ? 0 : h - 1;
        });
        constexpr float kDeltas[] = {0, 0.00001f, -40000};
        Check(types, {mask, kDeltas[pattern]}, scene);
        if (mask.width > 200) Check(types, {mask, kDeltas[pattern], 60}, scene);
      }
    }
  }
}

TEST(LocalThreshold, KnownValues) {
  const auto filtered = [](const Demand& demand, int width, auto value) {
    Bordered scene(test::ElementOf("8u"), {}, {{width, 1}, 1, qvpBorderReplicate});
    scene.image.Fill([&](int x, int) { return value(x); });
    const test::Samples dst(test::ElementOf("8u"), width, 1, 0);
    EXPECT_EQ(FilterAll(test::FunctionNamed(demand.name("8u_C1R")), scene, demand)(dst), 0);
    std::vector<int> values;
    for (int x = 0; x < width; ++x) values.push_back(dst(x, 0) > 0);
    return values;
  };
  const auto rising = [&](float delta) {
    return filtered({{3, 1}, delta, 0, 255, 0}, 6, [](int x) { return 10 + 10 * x; });
  };
  EXPECT_EQ(rising(0), (std::vector<int>{0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(rising(0.1f), (std::vector<int>{0, 1, 1, 1, 1, 1}));
  EXPECT_EQ(rising(-3), (std::vector<int>{0, 0, 0, 0, 0, 1}));
  for (const float sigma : {0.0f, 2.0f}) {
    const auto even = [&](float delta) { return filtered({{5, 3}, delta, sigma, 255, 0}, 1, [](int) { return 77; }); };
    EXPECT_EQ(even(0), std::vector<int>{0});
    EXPECT_EQ(even(0.1f), std::vector<int>{1});
    EXPECT_EQ(even(-0.1f), std::vector<int>{0});
  }
  const auto peak = [&](float delta) {  // the weights are 0.2389 and 0.5221
    return filtered({{3, 1}, delta, 0.8f, 255, 0}, 3, [](int x) { return x == 1 ? 200 : 10; });
  };
  EXPECT_EQ(peak(45.3f), (std::vector<int>{0, 1, 0}));  // means of 55.4 and 109.2
  EXPECT_EQ(peak(45.5f), (std::vector<int>{1, 1, 1}));
  EXPECT_EQ(peak(-90.7f), (std::vector<int>{0, 1, 0}));
  EXPECT_EQ(peak(-90.9f), (std::vector<int>{0, 0, 0}));
}

}  // namespace
