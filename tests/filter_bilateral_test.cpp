// The bilateral filter against its formula, operation by operation but for the exponential.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Element;
using test::Export;
using test::Name;
using test::Real;

struct Disc {
  int radius;
  QvpNormType norm;
  float range, space;

  test::Reach reach() const { return {radius, radius, radius, radius}; }
};

auto FilterAll(const Export& function, const Bordered& scene, const Disc& disc) {
  const int side = 2 * disc.radius + 1;
  const std::vector<test::Named> demand = {
      {"radius", disc.radius}, {"normType", disc.norm}, {"sigmaRange", disc.range}, {"sigmaSpace", disc.space}};
  EXPECT_LE(test::Preparation(function, scene.region.size, demand).sizes().spec, 8 * side * side + 16384);
  return test::FilterAll(function, scene, {side, side}, test::kAmple, demand);
}

float Exp(float x) { return x < -87 ? 0 : std::exp(x); }
float Falloff(float sigma) {
  return static_cast<float>(std::min<double>(1 / (2 * (double{sigma} * sigma)), std::numeric_limits<float>::max()));
}

// Weights of both kinds, of whole squares of distances and of differences.
class Weights {
 public:
  Weights(const Disc& disc, int channels) : disc_(disc), colours_(channels == 1 ? 1 : 3) {
    for (int s = 0; s <= disc.radius * disc.radius; ++s) space_.push_back(Exp(-(s * Falloff(disc.space))));
  }
  float Of(int dx, int dy, const float (&d)[3]) const {
    volatile float square = d[0] * d[0];
    if (colours_ == 3 && disc_.norm == qvpNormL1) {
      const volatile float sum = (std::fabs(d[0]) + std::fabs(d[1])) + std::fabs(d[2]);
      square = sum * sum;
    } else if (colours_ == 3) {
      for (int c = 1; c < 3; ++c) {
        const volatile float more = d[c] * d[c];
        square = square + more;
      }
    }
    const volatile float product = square * Falloff(disc_.range);
    return space_[dx * dx + dy * dy] * Exp(-product);
  }
  int colours() const { return colours_; }

 private:
  const Disc& disc_;
  int colours_;
  std::vector<float> space_;
};

Real Expected(const Bordered& scene, const Weights& weights, int radius, int x, int y, int c) {
  float middle[3];
  for (int k = 0; k < weights.colours(); ++k) middle[k] = static_cast<float>(scene.Pixel(x, y, k));
  volatile float sum = 0, all = 1;
  const auto add = [&](int dx, int dy) {
    volatile float weighted[2], weight[2];
    for (const int side : {0, 1}) {
      const int sign = side ? -1 : 1;
      float d[3];
      for (int k = 0; k < weights.colours(); ++k) {
        d[k] = static_cast<float>(scene.Pixel(x + sign * dx, y + sign * dy, k)) - middle[k];
      }
      weight[side] = weights.Of(dx, dy, d);
      weighted[side] = weight[side] * d[c];
    }
    const volatile float pair = weighted[0] + weighted[1], both = weight[0] + weight[1];
    sum = sum + pair;
    all = all + both;
  };
  for (int dy = 0; dy <= radius; ++dy) {
    for (int dx = dy == 0 ? 1 : -radius; dx <= radius; ++dx) {
      if (dx * dx + dy * dy <= radius * radius) add(dx, dy);
    }
  }
  const volatile float mean = sum / all;
  return static_cast<float>(middle[c] + mean);
}

// To the bit where all weights are 1; else by as much as weights may differ.
bool IsClose(const Element& element, const Disc& disc, Real got, Real expected) {
  if (std::isinf(disc.range) && std::isinf(disc.space)) return test::AreSame(got, test::Converted(element, expected));
  if (!element.isInteger) return test::AreSame(got, expected) || std::fabs(got - expected) <= 1e-6 * 4e6;
  return std::fabs(got - std::clamp(expected, element.lowest, element.highest)) <= 0.5 + element.highest * 1e-6;
}

void Check(const Export& function, const Disc& disc, const Bordered& scene) {
  const Name name(function.name);
  const Weights weights(disc, name.channels);
  test::ExpectResults(
      function, scene, FilterAll(function, scene, disc),
      [&](int x, int y, int c) { return Expected(scene, weights, disc.radius, x, y, c); },
      "radius " + std::to_string(disc.radius) + " sigmas " + std::to_string(disc.range) + ' ' +
          std::to_string(disc.space),
      test::Guard::kAfter, [&](Real got, Real expected) { return IsClose(name.To(), disc, got, expected); });
}

TEST(FilterBilateral, EveryMemberEqualsItsFormula) {
  constexpr float kRanges[] = {40, 5, 1e-30f, INFINITY, 300}, kSpaces[] = {1.5f, INFINITY, 0.2f, 4};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterBilateralBorder"})) {
    const Name name(function->name);
    for (const int radius : {1, 2, 3, 5, 7, 8, 10, 11}) {  // weights of pairs are kept, and no longer
      for (int i = 0; i < (radius < 4 ? 6 : 2); ++i) {
        const Disc disc{radius, 1 + ++turn % 2, kRanges[turn % 5], kSpaces[turn % 4]};
        test::Region r = test::RegionOf(turn, name.channels);
        if (radius > 3) r.size = {std::min(r.size.width, 30), 1 + turn % 4 * radius / 2};
        Bordered scene(name.From(), disc.reach(), r);
        if (turn % 3 == 0) {  // some that are close
          scene.image.Fill([&, old = test::Samples(scene.image)](int x, int y) {
            return name.From().isInteger ? 100 + (x * 7 + y * 3) % 23 : old(x, y) / 10000;
          });
        }
        Check(*function, disc, scene);
      }
    }
  }
}

TEST(FilterBilateral, FarReach) {
  const Disc far{127, qvpNormL2, 100, 60};
  Check(test::FunctionNamed("qvpiFilterBilateralBorder_8u_C3R"), far,
        Bordered(test::ElementOf("8u"), far.reach(), {{3, 1}, 3, qvpBorderMirror}));
}

// What is not finite spreads as the formula says: an infinity less another is no number.
TEST(FilterBilateral, NaNAndInfinities) {
  for (const char* name : {"qvpiFilterBilateralBorder_32f_C1R", "qvpiFilterBilateralBorder_32f_C3R"}) {
    const int channels = Name(name).channels;
    for (const float bad : {NAN, INFINITY, -INFINITY, 3e38f}) {
      for (const float space : {0.1f, 2.0f}) {
        const Disc disc{3, qvpNormL1, 1e3f, space};
        Bordered scene(test::ElementOf("32f"), {}, {{20, 9}, channels, qvpBorderReplicate});
        scene.image.Put(9 * channels, 4, bad);
        Check(test::FunctionNamed(name), disc, scene);
      }
    }
  }
}

TEST(FilterBilateral, KnownValues) {
  const auto filtered = [](const char* function, const Disc& disc, std::vector<int> pixels, int rows) {
    const Name name(function);
    const int samples = static_cast<int>(pixels.size());
    Bordered scene(name.From(), {}, {{samples / name.channels, rows}, name.channels, qvpBorderReplicate});
    scene.image.Fill([&](int x, int) { return pixels[x]; });
    const test::Samples dst(name.To(), samples, rows, 0);
    EXPECT_EQ(FilterAll(test::FunctionNamed(function), scene, disc)(dst), 0);
    for (int i = 0; i < samples; ++i) pixels[i] = static_cast<int>(dst(i, rows / 2));
    return pixels;
  };
  const std::vector<int> step{0, 0, 100, 100, 100};
  using Row = std::vector<int>;
  const char *const grey = "qvpiFilterBilateralBorder_8u_C1R", *const colour = "qvpiFilterBilateralBorder_8u_C3R";
  EXPECT_EQ(filtered(grey, {1, qvpNormL1, 100, 1}, step, 3), (Row{0, 12, 88, 100, 100}));
  EXPECT_EQ(filtered(grey, {1, qvpNormL1, 1e-30f, 1}, step, 3), step);
  EXPECT_EQ(filtered(grey, {1, qvpNormL2, INFINITY, 1}, step, 3), (Row{0, 18, 82, 100, 100}));
  // One pixel that differs, in the middle of a row alone; its rows above and below are the same.
  for (const auto& [norm, expected] : {std::pair{qvpNormL1, Row{26, 41, 30}}, {qvpNormL2, Row{22, 36, 30}}}) {
    Bordered scene(test::ElementOf("8u"), {}, {{3, 3}, 3, qvpBorderReplicate});
    scene.image.Fill([](int x, int y) { return y == 1 && x / 3 == 1 ? (Row{40, 60, 30})[x % 3] : 10 + x % 3 * 10; });
    const test::Samples dst(test::ElementOf("8u"), 9, 3, 0);
    ASSERT_EQ(FilterAll(test::FunctionNamed(colour), scene, {1, norm, 50, 1})(dst), 0);
    for (int c = 0; c < 3; ++c) EXPECT_EQ(dst(3 + c, 1), expected[c]);
  }
}

}  // namespace
