// The Wiener filter against its formula, operation by operation.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Export;
using test::Name;
using test::Real;

// One channel's noise is a number, that of more is pointed at.
auto FilterAll(const Export& function, const Bordered& scene, QvpiSize mask, const float* noise) {
  const bool isOne = scene.region.channels == 1;
  return test::FilterAll(function, scene, mask, test::kAmple,
                         {{"maskSize", mask}, {"noise", isOne ? test::Argument(noise[0]) : test::Argument(noise)}});
}

double Product(double a, double b) {
  const volatile double product = a * b;
  return product;
}

Real Expected(const Name& name, QvpiSize mask, double noise, const auto& pixel) {
  const double n = double(mask.width) * mask.height;
  const auto sum = [&](auto zero, auto of) {
    using F = decltype(zero);
    return test::TreeSum<F>(mask.height, [&](int j) {
      return test::TreeSum<F>(
          mask.width, [&](int i) { return of(static_cast<F>(pixel(i - mask.width / 2, j - mask.height / 2))); });
    });
  };
  double s1, deviation;
  if (name.From().isInteger) {
    // Modulo 2^64, which holds the difference.
    const int64_t exact = sum(int64_t(), [](int64_t p) { return p; });
    const uint64_t squares = sum(int64_t(), [](int64_t p) { return p * p; }), square = exact * uint64_t(exact);
    s1 = static_cast<double>(exact);
    deviation = static_cast<double>(static_cast<uint64_t>(n) * squares - square);
  } else {
    s1 = sum(double(), [](double p) { return p; });
    deviation = Product(n, sum(double(), [](double p) { return Product(p, p); })) - Product(s1, s1);
  }
  const double unit = !name.From().isInteger ? 1 : name.From().bytes == 1 ? 255 : 65535;
  const double variance = Product(noise, Product(unit * n, unit * n));
  const volatile double rest = deviation - variance;
  const volatile double gain = deviation > variance ? rest / deviation : 0;
  const volatile double distance = Product(n, static_cast<double>(pixel(0, 0))) - s1;
  const volatile double total = s1 + Product(distance, gain);
  const Real result = total / n;
  return test::Converted(name.To(), result);
}

void Check(const Export& function, QvpiSize mask, const float* noise, const Bordered& scene) {
  const Name name(function.name);
  test::ExpectResults(
      function, scene, FilterAll(function, scene, mask, noise),
      [&](int x, int y, int c) {
        return Expected(name, mask, noise[c], [&](int dx, int dy) { return scene.Pixel(x + dx, y + dy, c); });
      },
      test::Shown(mask) + " noise " + std::to_string(noise[0]));
}

TEST(FilterWiener, EveryMemberEqualsItsFormula) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 5}, {1, 7}, {9, 1}, {7, 3}, {15, 5}, {3, 31}};
  constexpr float kNoise[][4] = {{0.01f, 0.2f, 0.0001f, 0.5f}, {0, 0.99999994f, 0.05f, 0}, {0.05f, 0.001f, 0, 0.01f}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterWienerBorder"})) {
    const Name name(function->name);
    for (const QvpiSize mask : kMasks) {
      for (int i = 0; i < 3; ++i, ++turn) {
        test::Region r = test::RegionOf(turn, name.channels);
        if (mask.width * mask.height > 50) r.size.width = std::min(r.size.width, 70);
        Bordered scene(name.From(), test::ReachOf(mask), r);
        if (!name.From().isInteger) {
          test::Random random(turn);
          scene.image.Fill([&](int, int) {
            return random.Next() % 97 == 0 && i == 2 ? EdgeValue(name.From(), random)
                                                     : static_cast<float>(random.Next() % 1000 / 999.0);
          });
        }
        Check(*function, mask, kNoise[i], scene);
      }
    }
  }
}

// Sums and products at the ends of the types, and beside constants.
TEST(FilterWiener, LargeMasks) {
  for (const auto& [type, low, high] : {std::tuple{"8u", 0, 255}, {"16u", 0, 65535}, {"16s", -32768, 32767}}) {
    const Export& function = test::FunctionNamed(std::string("qvpiFilterWienerBorder_") + type + "_C1R");
    for (const QvpiSize mask : {QvpiSize{255, 255}, {255, 1}, {101, 99}}) {
      for (int pattern = 0; pattern < 4; ++pattern) {
        Bordered scene(test::ElementOf(type), {}, {{7, 2}, 1, qvpBorderReplicate});
        scene.image.Fill([&, l = low, h = high](int x, int y) {
          return pattern == 0   ? h
                 : pattern == 1 ? (x == 5 && y == 1 ? h - 1 : h)
                 : pattern == 2 ? (x < 3 ? l : h)
                 : (x + y) % 2  ? l
                                : h;
        });
        constexpr float kNoises[] = {0, 1e-9f, 0.3f, 0.1f};
        Check(function, mask, &kNoises[pattern], scene);
      }
    }
  }
}

// From 0 to below 1, in every channel that is filtered.
TEST(FilterWiener, RefusesNoise) {
  for (const Export* function : test::FunctionsOf({"FilterWienerBorder"})) {
    const Name name(function->name);
    const Bordered scene(name.From(), {}, {{5, 2}, name.channels, qvpBorderReplicate});
    const test::Samples dst(name.To(), 5 * name.channels, 2, 0);
    for (int c = 0; c < name.channels; ++c) {
      for (const float bad : {1.0f, -1e-30f, NAN}) {
        float noise[4] = {0.5f, 0.5f, 0.5f, 0.5f};
        noise[c] = bad;
        const QvpStatus expected = c < name.written ? qvpStatusNoiseRange : qvpStatusNoError;
        EXPECT_EQ(FilterAll(*function, scene, {3, 3}, noise)(dst), expected) << name.layout << ' ' << c << ' ' << bad;
      }
    }
  }
}

TEST(FilterWiener, KnownValues) {
  const Export& function = test::FunctionNamed("qvpiFilterWienerBorder_8u_C1R");
  for (const auto& [noise, middle, beside] :
       {std::tuple{0.0f, 200, 10}, {0.01f, 169, 14}, {0.05f, 46, 29}, {0.999f, 31, 31}}) {
    Bordered scene(test::ElementOf("8u"), {}, {{5, 5}, 1, qvpBorderReplicate});
    scene.image.Fill([](int x, int y) { return x == 2 && y == 2 ? 200 : 10; });
    const test::Samples dst(test::ElementOf("8u"), 5, 5, 0);
    const float level = noise;
    ASSERT_EQ(FilterAll(function, scene, {3, 3}, &level)(dst), 0);
    EXPECT_EQ(dst(2, 2), middle) << noise;
    EXPECT_EQ(dst(1, 2), beside) << noise;
    EXPECT_EQ(dst(0, 0), 10) << noise;
  }
}

}  // namespace
