// Cosine transforms of blocks against their formulas.
#include <array>
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

using Block = std::array<float, 64>;

// The order of the operations, each rounded to a float.
constexpr float k1 = 0x1.63150cp+0f, k2 = 0x1.4e7aeap+0f, k3 = 0x1.2d062ep+0f, k5 = 0x1.92469cp-1f, k6 = 0x1.1517a8p-1f,
                k7 = 0x1.1a855ep-2f;
float Sum(float a, float b) {
  const volatile float sum = a + b;
  return sum;
}
float Product(float a, float b) {
  const volatile float product = a * b;
  return product;
}
float Pair(float a, float x, float b, float y) { return Sum(Product(a, x), Product(b, y)); }

void Forward(float* x, int stride) {
  float s[4], d[4];
  for (int i = 0; i < 4; ++i)
    s[i] = Sum(x[i * stride], x[(7 - i) * stride]), d[i] = Sum(x[i * stride], -x[(7 - i) * stride]);
  const float a0 = Sum(s[0], s[3]), a1 = Sum(s[1], s[2]), b0 = Sum(s[0], -s[3]), b1 = Sum(s[1], -s[2]);
  const float results[] = {Sum(a0, a1),           Sum(Pair(d[0], k1, d[1], k3), Pair(d[2], k5, d[3], k7)),
                           Pair(b0, k2, b1, k6),  Sum(Pair(d[0], k3, d[1], -k7), -Pair(d[2], k1, d[3], k5)),
                           Sum(a0, -a1),          Sum(Pair(d[0], k5, d[1], -k1), Pair(d[2], k7, d[3], k3)),
                           Pair(b0, k6, b1, -k2), Sum(Pair(d[0], k7, d[1], -k5), Pair(d[2], k3, d[3], -k1))};
  for (int i = 0; i < 8; ++i) x[i * stride] = results[i];
}

void Inverse(float* x, int stride) {
  const auto at = [&](int i) { return x[i * stride]; };
  const float e0 = Sum(at(0), at(4)), e1 = Sum(at(0), -at(4)), f0 = Pair(at(2), k2, at(6), k6),
              f1 = Pair(at(2), k6, at(6), -k2);
  const float g[] = {Sum(e0, f0), Sum(e1, f1), Sum(e1, -f1), Sum(e0, -f0)};
  const float h[] = {Sum(Pair(at(1), k1, at(3), k3), Pair(at(5), k5, at(7), k7)),
                     Sum(Pair(at(1), k3, at(3), -k7), -Pair(at(5), k1, at(7), k5)),
                     Sum(Pair(at(1), k5, at(3), -k1), Pair(at(5), k7, at(7), k3)),
                     Sum(Pair(at(1), k7, at(3), -k5), Pair(at(5), k3, at(7), -k1))};
  for (int i = 0; i < 4; ++i) x[i * stride] = Sum(g[i], h[i]), x[(7 - i) * stride] = Sum(g[i], -h[i]);
}

Block Transformed(Block b, bool isForward) {
  const auto rows = [&] {
    for (int r = 0; r < 8; ++r) (isForward ? Forward : Inverse)(&b[8 * r], 1);
  };
  if (isForward) rows();
  for (int c = 0; c < 8; ++c) (isForward ? Forward : Inverse)(&b[c], 8);
  if (!isForward) rows();
  return b;
}

double Cosine(int k, int n) { return (k == 0 ? std::sqrt(0.125) : 0.5) * std::cos(M_PI * (2 * n + 1) * k / 16); }

TEST(DctBlocks, FormulaIsTheCosineTransform) {
  test::Random random(1);
  Block pixels;
  for (float& p : pixels) p = static_cast<float>(random.Next() % 256) - 128;
  const Block forward = Transformed(pixels, true), back = Transformed(forward, false);
  for (int i = 0; i < 64; ++i) {
    double sum = 0;
    for (int j = 0; j < 64; ++j) sum += pixels[j] * Cosine(i / 8, j / 8) * Cosine(i % 8, j % 8);
    EXPECT_NEAR(forward[i] / 8, sum, 1e-4);
    EXPECT_NEAR(back[i] / 64, pixels[i], 1e-4);
  }
}

struct Plane {
  QvpiSize size;
  int BlocksAcross() const { return (size.width + 7) / 8; }
  int BlocksDown() const { return (size.height + 7) / 8; }
};

// Values whose coefficients do not all saturate, and some that do.
Real AnyValue(const Element& element, test::Random& random) {
  if (element.bytes == 1 || random.Next() % 8 == 0) return element.Stored(EdgeValue(element, random));
  return element.Stored(static_cast<Real>(static_cast<int>(random.Next() % 2048)) - 1024);
}

void CheckForward(const Export& function, Plane plane, const std::vector<Qvp16u>& quantizer, int seed) {
  const Name name(function.name);
  const Element &from = name.From(), &to = name.To();
  const bool isQuantised = function.Has("quantizer");
  test::Random random(seed);
  Samples src(from, plane.size.width, plane.size.height, 3), dst(to, 64 * plane.BlocksAcross(), plane.BlocksDown(), 5);
  src.Fill([&](int, int) { return AnyValue(from, random); });
  ASSERT_EQ(function({{"pSrc", src}, {"pDst", dst}, {"roiSize", plane.size}, {"quantizer", {quantizer.data()}}}), 0);
  for (int block = 0; block < plane.BlocksAcross() * plane.BlocksDown(); ++block) {
    const int left = block % plane.BlocksAcross() * 8, top = block / plane.BlocksAcross() * 8;
    Block b;
    for (int i = 0; i < 64; ++i) {
      const Real pixel =
          src(std::min(left + i % 8, plane.size.width - 1), std::min(top + i / 8, plane.size.height - 1));
      b[i] = static_cast<float>(pixel) - (from.bytes == 1 ? 128 : 0);
    }
    b = Transformed(b, true);
    for (int i = 0; i < 64; ++i) {
      const float value = isQuantised ? Product(b[i], Product(1.0f / quantizer[i], 0.125f)) : Product(b[i], 0.125f);
      ASSERT_PRED2(test::AreSame, dst(left * 8 + i, top / 8), test::Converted(to, value))
          << function.name << ' ' << block << ' ' << i;
    }
  }
}

void CheckInverse(const Export& function, Plane plane, const std::vector<Qvp16u>& quantizer, int seed) {
  const Name name(function.name);
  const Element &from = name.From(), &to = name.To();
  const bool isQuantised = function.Has("quantizer");
  test::Random random(seed);
  Samples src(from, 64 * plane.BlocksAcross(), plane.BlocksDown(), 5), dst(to, plane.size.width, plane.size.height, 3);
  src.Fill([&](int, int) { return AnyValue(from, random); });
  ASSERT_EQ(function({{"pSrc", src}, {"pDst", dst}, {"roiSize", plane.size}, {"quantizer", {quantizer.data()}}}), 0);
  for (int y = 0; y < plane.size.height; y += 8) {
    for (int x = 0; x < plane.size.width; x += 8) {
      Block b;
      for (int i = 0; i < 64; ++i) {
        b[i] = static_cast<float>(src(x * 8 + i, y / 8));
        if (isQuantised) b[i] = Product(b[i], quantizer[i]);
      }
      b = Transformed(b, false);
      for (int i = 0; i < 64; ++i) {
        if (x + i % 8 >= plane.size.width || y + i / 8 >= plane.size.height) continue;
        const float value = Product(b[i], 0.125f);
        const Real expected =
            to.bytes == 1 ? std::clamp<Real>(std::nearbyint(value) + 128.0L, 0, 255) : test::Converted(to, value);
        ASSERT_PRED2(test::AreSame, dst(x + i % 8, y + i / 8), expected)
            << function.name << ' ' << x << ',' << y << ' ' << i;
      }
    }
  }
}

TEST(DctBlocks, EveryMemberEqualsItsFormula) {
  int turn = 0;
  for (const Export* function :
       test::FunctionsOf({"DCTBlocksFwd", "DCTBlocksInv", "DCTBlocksQuantFwd", "DCTBlocksQuantInv"})) {
    for (const QvpiSize size : {QvpiSize{8, 8}, {1, 1}, {9, 9}, {70, 5}, {24, 16}, {7, 23}}) {
      std::vector<Qvp16u> quantizer(64);
      test::Random random(++turn);
      for (Qvp16u& q : quantizer) q = random.Next() % 8 ? 1 + random.Next() % 99 : 1 + random.Next() % 65535;
      (function->name.find("Fwd") != std::string::npos ? CheckForward : CheckInverse)(*function, {size}, quantizer,
                                                                                      turn);
    }
  }
}

TEST(DctBlocks, KnownValues) {
  Qvp8u ramp[64], back[64];
  for (int i = 0; i < 64; ++i) ramp[i] = static_cast<Qvp8u>(i);
  Qvp16s c[64];
  ASSERT_EQ(qvpiDCTBlocksFwd_8u16s_C1R(ramp, 8, c, 128, {8, 8}), 0);
  const auto row = [&](int v) { return std::vector<int>(c + 8 * v, c + 8 * v + 8); };
  EXPECT_EQ(row(0), (std::vector<int>{-772, -18, 0, -2, 0, -1, 0, 0}));
  for (const auto& [v, value] : {std::pair{1, -146}, {3, -15}, {5, -5}, {7, -1}}) EXPECT_EQ(c[8 * v], value);
  const std::vector<Qvp16u> steps(64, 16);
  ASSERT_EQ(qvpiDCTBlocksQuantFwd_8u16s_C1R(ramp, 8, c, 128, {8, 8}, steps.data()), 0);
  EXPECT_EQ(row(0), (std::vector<int>{-48, -1, 0, 0, 0, 0, 0, 0}));
  Qvp8u dot[64] = {255};
  ASSERT_EQ(qvpiDCTBlocksFwd_8u16s_C1R(dot, 8, c, 128, {8, 8}), 0);
  EXPECT_EQ(row(0), (std::vector<int>{-992, 44, 42, 37, 32, 25, 17, 9}));
  EXPECT_EQ(row(7), (std::vector<int>{9, 12, 11, 10, 9, 7, 5, 2}));
  for (const auto& [mean, level] : {std::pair{4, 128}, {12, 130}, {20, 130}, {-4, 128}, {1024, 255}, {-1028, 0}}) {
    Qvp16s lone[64] = {static_cast<Qvp16s>(mean)};
    ASSERT_EQ(qvpiDCTBlocksInv_16s8u_C1R(lone, 128, back, 8, {8, 8}), 0);
    for (const Qvp8u value : back) ASSERT_EQ(value, level) << mean;
  }
}

TEST(DctBlocks, BytesComeBack) {
  test::Random random(5);
  Qvp8u pixels[64], back[64];
  Qvp16s c[64];
  for (int turn = 0; turn < 1000; ++turn) {
    for (Qvp8u& p : pixels) p = static_cast<Qvp8u>(random.Next() % 4 == 0 ? random.Next() : random.Next() % 2 * 255);
    ASSERT_EQ(qvpiDCTBlocksFwd_8u16s_C1R(pixels, 8, c, 128, {8, 8}), 0);
    ASSERT_EQ(qvpiDCTBlocksInv_16s8u_C1R(c, 128, back, 8, {8, 8}), 0);
    for (int i = 0; i < 64; ++i) ASSERT_LE(std::abs(pixels[i] - back[i]), 1) << turn;
  }
}

TEST(DctBlocks, RefusesAQuantizerWithZero) {
  std::vector<Qvp16u> steps(64, 1);
  steps[63] = 0;
  Qvp16s pixels[64] = {}, c[64] = {7};
  EXPECT_EQ(qvpiDCTBlocksQuantFwd_16s_C1R(pixels, 16, c, 128, {8, 8}, steps.data()), qvpStatusDivideByZeroError);
  EXPECT_EQ(c[0], 7);
  EXPECT_EQ(qvpiDCTBlocksQuantInv_16s_C1R(c, 128, pixels, 16, {8, 8}, steps.data()), qvpStatusNoError);
}

}  // namespace
