// Moments against their definition, and what is derived from them.
#include <array>
#include <cmath>
#include <cstring>

#include "tests/support/name.h"
#include "tests/support/operand.h"

namespace {
using test::Export;
using test::Name;
using test::Real;

// A record at an odd address, at the end of readable memory.
struct State {
  test::Block block{401};
  QvpiMomentState_64f* get() const { return reinterpret_cast<QvpiMomentState_64f*>(block.data()); }
  State() { EXPECT_EQ(qvpiMomentInit_64f(get(), qvpAlgHintFast), qvpStatusNoError); }
};

void Check(const Export& function, int pixels, int height) {
  const Name name(function.name);
  test::Samples image(name.From(), pixels * name.channels, height, 3);
  test::Random random(pixels);
  const Real largest = image.element().isInteger ? image.element().highest : 1;
  image.Fill([&](int, int) { return random.Next() % 3 ? largest : test::AnyPixel(image.element(), random); });
  const State state;
  ASSERT_EQ(function({{"pSrc", image}, {"roiSize", QvpiSize{pixels, height}}, {"pState", {state.get()}}}), 0)
      << function.name;
  for (int c = 0; c < name.written; ++c) {
    for (int order = 0; order < 16; ++order) {
      const int m = order % 4, n = order / 4, x0 = order % 2 ? -5 : 0, y0 = order % 3;
      if (m + n > 3) continue;
      Real expected = 0, magnitude = 0;
      for (int i = 0; i < pixels * height; ++i) {
        const Real x = i % pixels, y = i / pixels, v = image(i % pixels * name.channels + c, i / pixels);
        expected += std::pow(x + x0, m) * std::pow(y + y0, n) * v;
        magnitude += std::pow(x - x0, m) * std::pow(y + y0, n) * std::fabs(v);
      }
      double value = -1;
      ASSERT_EQ(qvpiGetSpatialMoment_64f(state.get(), m, n, c, {x0, y0}, &value), 0);
      const double tolerance = static_cast<double>(magnitude) * (image.element().isInteger ? 2e-15 : 1e-13);
      ASSERT_NEAR(value, static_cast<double>(expected), tolerance)
          << function.name << ' ' << pixels << 'x' << height << " M" << m << n << " channel " << c;
    }
  }
  double value;
  EXPECT_EQ(qvpiGetSpatialMoment_64f(state.get(), 0, 0, name.written, {0, 0}, &value), qvpStatusChannel);
}

TEST(Moments, AreSumsOfPowersTimesValues) {
  for (const Export* function : test::FunctionsOf({"Moments64f"})) {
    for (const int pixels : {1, 7, 8, 9, 63, 64, 65, 200, 1023, 1025}) Check(*function, pixels, 3);
    for (const int pixels : {2047, 2048, 2049, 6000}) Check(*function, pixels, 2);
    Check(*function, 2, 100);
  }
}

// Moments of a figure by their definitions: normalised ones about the origin and the centroid, and Hu's.
struct Described {
  double spatial[4][4] = {}, central[4][4] = {}, normalised[4][4] = {}, hu[7];

  explicit Described(const std::vector<uint8_t>& image, int side) {
    const auto sum = [&](const auto& of) {
      double all = 0;
      for (int i = 0; i < side * side; ++i) all += of(i % side, i / side) * image[i];
      return all;
    };
    const double mass = sum([](int, int) { return 1; });
    const double x0 = sum([](int x, int) { return x; }) / mass, y0 = sum([](int, int y) { return y; }) / mass;
    auto& e = normalised;
    for (int i = 0; i < 16; ++i) {
      const int m = i % 4, n = i / 4;
      central[m][n] = sum([&](int x, int y) { return std::pow(x - x0, m) * std::pow(y - y0, n); });
      spatial[m][n] =
          sum([&](int x, int y) { return std::pow(x, m) * std::pow(y, n); }) / std::pow(mass, 1 + (m + n) / 2.0);
      e[m][n] = central[m][n] / std::pow(mass, 1 + (m + n) / 2.0);
    }
    const double a = e[3][0] + e[1][2], b = e[2][1] + e[0][3], c = e[3][0] - 3 * e[1][2], d = 3 * e[2][1] - e[0][3],
                 f = e[2][0] - e[0][2], g = a * (a * a - 3 * b * b), h = b * (3 * a * a - b * b);
    hu[0] = e[2][0] + e[0][2], hu[1] = f * f + 4 * e[1][1] * e[1][1], hu[2] = c * c + d * d, hu[3] = a * a + b * b;
    hu[4] = c * g + d * h, hu[5] = f * (a * a - b * b) + 4 * e[1][1] * a * b, hu[6] = d * g - c * h;
  }
};

TEST(Moments, OfAFigureFollowTheirFormulas) {
  constexpr int kSide = 40;
  std::vector<uint8_t> image(kSide * kSide);
  for (int i = 0; i < kSide * kSide; ++i) {
    const int x = i % kSide, y = i / kSide;
    image[i] = x > 3 && y > 9 && 2 * x + y < 70 && (x < 15 || y < 20) ? 3 : 0;
  }
  const Described expected(image, kSide);
  const State state;
  ASSERT_EQ(qvpiMoments64f_8u_C1R(image.data(), kSide, {kSide, kSide}, state.get()), 0);
  double value = 0, hu[7];
  for (int m = 0; m < 4; ++m) {
    for (int n = 0; m + n < 4; ++n) {
      EXPECT_EQ(qvpiGetCentralMoment_64f(state.get(), m, n, 0, &value), 0);
      EXPECT_NEAR(value, expected.central[m][n], 1e-6) << m << n;
      EXPECT_EQ(qvpiGetNormalizedSpatialMoment_64f(state.get(), m, n, 0, {0, 0}, &value), 0);
      EXPECT_NEAR(value, expected.spatial[m][n], 1e-12 * expected.spatial[m][n]) << m << n;
      EXPECT_EQ(qvpiGetNormalizedCentralMoment_64f(state.get(), m, n, 0, &value), 0);
      EXPECT_NEAR(value, expected.normalised[m][n], 1e-12) << m << n;
    }
  }
  EXPECT_EQ(qvpiGetHuMoments_64f(state.get(), 0, hu), 0);
  for (int i = 0; i < 7; ++i) EXPECT_NEAR(hu[i], expected.hu[i], std::fabs(expected.hu[i]) * 1e-6) << i;
}

TEST(Moments, AreRefusedWhereThereAreNone) {
  alignas(8) uint8_t record[400] = {};
  auto* const raw = reinterpret_cast<QvpiMomentState_64f*>(record);
  const uint8_t image[12] = {};
  double v = 9, hu[7];
  ASSERT_EQ(qvpiMomentInit_64f(raw, 7), qvpStatusNoError);
  EXPECT_EQ(qvpiGetSpatialMoment_64f(raw, 0, 0, 0, {0, 0}, &v), qvpStatusChannel);
  EXPECT_EQ(qvpiMoments64f_8u_C1R(image, 3, {4, 1}, raw), qvpStatusStride);
  ASSERT_EQ(qvpiMoments64f_8u_C1R(image, 4, {4, 3}, raw), qvpStatusNoError);
  for (const QvpiPoint orders : {QvpiPoint{2, 2}, {-1, 0}, {5, -2}, {INT32_MAX, 1}}) {
    EXPECT_EQ(qvpiGetSpatialMoment_64f(raw, orders.x, orders.y, 9, {0, 0}, &v), qvpStatusSize);
  }
  EXPECT_EQ(qvpiGetCentralMoment_64f(raw, 0, 0, 1, &v), qvpStatusChannel);
  EXPECT_EQ(qvpiGetCentralMoment_64f(raw, 0, 0, 0, &v), qvpStatusMoment00Zero);
  EXPECT_EQ(qvpiGetNormalizedSpatialMoment_64f(raw, 0, 0, 0, {0, 0}, &v), qvpStatusMoment00Zero);
  EXPECT_EQ(qvpiGetHuMoments_64f(raw, 0, hu), qvpStatusMoment00Zero);
  EXPECT_EQ(v, 9);
}

}  // namespace
