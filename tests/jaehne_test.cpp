// The Jaehne pattern against its formula.
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

constexpr Real kPi = 3.14159265358979323846264338327950288L;

// What a pixel is before it is rounded.
Real Exact(const Element& element, QvpiSize image, int minPeriod, int64_t x, int64_t y) {
  const int64_t across = 2 * x - (image.width - 1), down = 2 * y - (image.height - 1);
  const int64_t divisor = int64_t{4} * minPeriod * std::min(image.width, image.height);
  const Real c = std::cos(2 * kPi * ((across * across + down * down) % divisor) / divisor);
  if (!element.isInteger) return (1 + c) / 2;
  return element.lowest + (element.highest - element.lowest) * (1 + c) / 2;
}

struct Case {
  QvpiSize image;
  int minPeriod;
  QvpiPoint offset;
  QvpiSize roi;
};

void Expect(const Export& function, const Case& c) {
  const Name name(function.name);
  const Element& element = name.From();
  Samples dst(element, c.roi.width * name.channels, c.roi.height, 3);
  ASSERT_EQ(function({{"imageSize", c.image},
                      {"minPeriod", c.minPeriod},
                      {"pDst", dst},
                      {"roiSize", c.roi},
                      {"dstOffset", c.offset}}),
            0);
  // A pixel is its exact value rounded, or at a tie the other neighbour.
  const Real rounding = element.isInteger ? 0.5L + 1e-14L * element.highest : 0x1p-25L + 1e-14L;
  const auto exact = [&](int i, int y) {
    return Exact(element, c.image, c.minPeriod, c.offset.x + i / name.channels, c.offset.y + y);
  };
  ExpectImage(dst, exact, function.name, rounding);
}

TEST(Jaehne, EveryMemberIsTheFormula) {
  constexpr int kMost = 1 << 24;
  for (const Export* function : test::FunctionsOf({"Jaehne"})) {
    for (int n = 1; n <= 40; ++n) Expect(*function, {{n, 41 - n}, 1 + n, {0, 0}, {n, 41 - n}});
    Expect(*function, {{1100, 70}, 2, {3, 1}, {1097, 67}});
    for (const int period : {2, 3, 65536}) {
      Expect(*function, {{kMost, kMost}, period, {kMost - 50, kMost / 2}, {50, 9}});
      Expect(*function, {{kMost, 1}, period, {0, 0}, {50, 1}});
    }
  }
}

TEST(Jaehne, KnownImages) {
  std::vector<Qvp8u> pixels(9);
  EXPECT_EQ(qvpiJaehne_8u_C1R({1, 1}, 2, pixels.data(), 3, {1, 1}, {0, 0}), 0);
  EXPECT_EQ(pixels[0], 255);
  EXPECT_EQ(qvpiJaehne_8u_C1R({3, 3}, 2, pixels.data(), 3, {3, 3}, {0, 0}), 0);
  EXPECT_EQ(pixels, (std::vector<Qvp8u>{64, 191, 64, 191, 255, 191, 64, 191, 64}));
  Qvp16u word;
  Qvp16s number;
  EXPECT_EQ(qvpiJaehne_16u_C1R({3, 3}, 2, &word, 2, {1, 1}, {2, 0}), 0);
  EXPECT_EQ(qvpiJaehne_16s_C1R({3, 3}, 2, &number, 2, {1, 1}, {2, 2}), 0);
  EXPECT_EQ(word, 16384);
  EXPECT_EQ(number, -16384);
}

TEST(Jaehne, HasBoundsOfItsParameters) {
  Qvp8u pixel = 7;
  const auto call = [&](QvpiSize image, int period, QvpiPoint offset, QvpiSize roi = {1, 1}) {
    return qvpiJaehne_8u_C1R(image, period, &pixel, 9, roi, offset);
  };
  for (const QvpiSize image : {QvpiSize{16777217, 1}, {1, 16777217}, {INT32_MIN, 1}}) {
    EXPECT_EQ(call(image, 2, {0, 0}), qvpStatusSize);
  }
  for (const int period : {1, 0, -2, 65537}) EXPECT_EQ(call({5, 5}, period, {0, 0}), qvpStatusBadArgument);
  for (const QvpiPoint offset : {QvpiPoint{5, 0}, {0, 5}, {INT32_MAX, 0}, {0, INT32_MIN}}) {
    EXPECT_EQ(call({5, 5}, 2, offset), qvpStatusOutOfRange);
  }
  EXPECT_EQ(call({5, 5}, 2, {1, 0}, {5, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(call({5, 5}, 2, {0, 4}, {1, INT32_MAX}), qvpStatusOutOfRange);
  EXPECT_EQ(pixel, 7);
}

}  // namespace
