// Window functions against their formulas.
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/reference.h"
#include "tests/support/same.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

constexpr QvpiWindow kWindows[] = {qvpWindowBartlett, qvpWindowHann, qvpWindowHamming, qvpWindowBlackman};

double WeightOf(QvpiWindow window, int n, int length) {
  if (length == 1) return 1;
  const int last = window & qvpWindowPeriodic ? length : length - 1;
  const double turn = 2 * M_PI * n / last;
  switch (window & ~qvpWindowPeriodic) {
    case qvpWindowBartlett: return 2 * n <= last ? 2.0 * n / last : 2 - 2.0 * n / last;
    case qvpWindowHann: return 0.5 - 0.5 * std::cos(turn);
    case qvpWindowHamming: return 0.54 - 0.46 * std::cos(turn);
    default: return std::max(0.42 - 0.5 * std::cos(turn) + 0.08 * std::cos(2 * turn), 0.0);
  }
}

// Weights of one side, which the products of a row of one pixel are.
std::vector<float> Weights(QvpiWindow window, int length) {
  std::vector<float> weights(length);
  EXPECT_EQ(qvpiSetWindow_32f_C1R(weights.data(), 4 * length, {length, 1}, window), 0);
  return weights;
}

TEST(Window, WeightsEqualTheirFormulas) {
  for (const QvpiWindow kind : kWindows) {
    for (const QvpiWindow window : {kind, kind | qvpWindowPeriodic}) {
      for (const int length : {1, 2, 3, 4, 5, 8, 9, 31, 100, 719, 2048, 2049, 5000, 100000}) {
        const std::vector<float> weights = Weights(window, length);
        for (int n = 0; n < length; ++n) {
          const double exact = WeightOf(window, n, length);
          ASSERT_NEAR(weights[n], exact, 1e-7 * std::abs(exact) + 2e-16) << window << ": " << n << " of " << length;
        }
        const int first = window & qvpWindowPeriodic ? 1 : 0;
        for (int n = first; n < length; ++n)
          ASSERT_EQ(weights[n], weights[length - 1 + first - n]) << window << ' ' << n;
      }
    }
  }
  EXPECT_EQ(Weights(qvpWindowHann | qvpWindowPeriodic, 4), (std::vector<float>{0, 0.5f, 1, 0.5f}));
  EXPECT_EQ(Weights(qvpWindowHann, 2), (std::vector<float>{0, 0}));
  EXPECT_EQ(Weights(qvpWindowHamming, 1), (std::vector<float>{1}));
}

TEST(Window, EveryMemberMultipliesByTheWeights) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"ApplyWindow"})) {
    const Name name(function->name);
    const Element& element = name.From();
    for (const QvpiSize size : {QvpiSize{1, 1}, {5, 3}, {70, 66}, {131, 2}, {2100, 2}}) {
      ++turn;
      const QvpiWindow window = kWindows[turn % 4] | turn / 4 % 2 * qvpWindowPeriodic;
      const std::vector<float> across = Weights(window, size.width), down = Weights(window, size.height);
      const bool isInPlace = !function->Has("pDst");
      test::Random random(turn);
      Samples src(element, size.width * name.channels, size.height, 3),
          dst(element, size.width * name.channels, size.height, 5);
      src.Fill([&](int, int) { return EdgeValue(element, random); });
      const Samples old(src);
      ASSERT_EQ((*function)({{"pSrc", src}, {"pDst", dst}, {"pSrcDst", src}, {"roiSize", size}, {"window", window}}),
                0);
      const auto expected = [&](int i, int y) {
        const volatile float weight = down[y] * across[i / name.channels];
        const volatile float product = static_cast<float>(old(i, y)) * weight;
        return test::Converted(element, product);
      };
      ExpectImage(isInPlace ? src : dst, expected, function->name);
    }
  }
}

TEST(Window, KnownValuesAndRefusedWindows) {
  const auto row = [](QvpiWindow window, int y) {
    std::vector<Qvp8u> pixels(25, 200);
    EXPECT_EQ(qvpiApplyWindow_8u_C1IR(pixels.data(), 5, {5, 5}, window), 0);
    return std::vector<int>(pixels.begin() + 5 * y, pixels.begin() + 5 * y + 5);
  };
  using Row = std::vector<int>;
  for (const QvpiWindow window : {qvpWindowBartlett, qvpWindowHann}) {
    EXPECT_EQ(row(window, 1), (Row{0, 50, 100, 50, 0}));
    EXPECT_EQ(row(window, 2), (Row{0, 100, 200, 100, 0}));
  }
  EXPECT_EQ(row(qvpWindowHamming, 1), (Row{9, 58, 108, 58, 9}));
  EXPECT_EQ(row(qvpWindowHamming, 2), (Row{16, 108, 200, 108, 16}));
  EXPECT_EQ(row(qvpWindowBlackman, 1), (Row{0, 23, 68, 23, 0}));
  EXPECT_EQ(row(qvpWindowBlackman, 2), (Row{0, 68, 200, 68, 0}));
  float weight = 7;
  Qvp8u pixel = 7;
  for (const QvpiWindow window : {-1, 4, 0x14, 0x20, 0x21, INT_MIN}) {
    EXPECT_EQ(qvpiSetWindow_32f_C1R(&weight, 4, {1, 1}, window), qvpStatusNotSupportedMode) << window;
    EXPECT_EQ(qvpiApplyWindow_8u_C1R(&pixel, 1, &pixel, 1, {1, 1}, window), qvpStatusNotSupportedMode) << window;
  }
  EXPECT_EQ(weight, 7);
  EXPECT_EQ(pixel, 7);
}

}  // namespace
