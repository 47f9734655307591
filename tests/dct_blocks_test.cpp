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

// Values whose coefficients do not all saturate, and some that do.
Real AnyValue(const Element& element, test::Random& random) {
  if (element.bytes == 1 || random.Next() % 8 == 0) return element.Stored(EdgeValue(element, random));
  return element.Stored(static_cast<Real>(static_cast<int>(random.Next() % 2048)) - 1024);
}

// Beyond the plane are the pixels of its edge.
Block PixelsAt(const Samples& plane, int left, int top) {
  Block b;
  for (int i = 0; i < 64; ++i) {
    const Real pixel = plane(std::min(left + i % 8, plane.width() - 1), std::min(top + i / 8, plane.height() - 1));
    b[i] = static_cast<float>(pixel) - (plane.element().bytes == 1 ? 128 : 0);
  }
  return b;
}
Block CoefficientsAt(const Samples& blocks, int left, int top, const Qvp16u* quantizer) {
  Block b;
  for (int i = 0; i < 64; ++i) {
    b[i] = static_cast<float>(blocks(left * 8 + i, top / 8));
    if (quantizer) b[i] = Product(b[i], quantizer[i]);
  }
  return b;
}

// Of the pixels or the coefficients of a block, that with number i.
Real ResultOf(const Element& to, bool isForward, float value, const Qvp16u* quantizer, int i) {
  const float factor = isForward && quantizer ? Product(1.0f / quantizer[i], 0.125f) : 0.125f;
  const float result = Product(value, factor);
  const bool isPixel = !isForward && to.bytes == 1;
  return isPixel ? std::clamp<Real>(std::nearbyint(result) + 128.0L, 0, 255) : test::Converted(to, result);
}

void Check(const Export& function, QvpiSize size, const std::vector<Qvp16u>& steps, int seed) {
  const Name name(function.name);
  const bool isForward = function.name.find("Fwd") != std::string::npos;
  const Qvp16u* const quantizer = function.Has("quantizer") ? steps.data() : nullptr;
  const Element &of = isForward ? name.From() : name.To(), &other = isForward ? name.To() : name.From();
  Samples plane(of, size.width, size.height, 3), blocks(other, (size.width + 7) / 8 * 64, (size.height + 7) / 8, 5);
  Samples &src = isForward ? plane : blocks, &dst = isForward ? blocks : plane;
  test::Random random(seed);
  src.Fill([&](int, int) { return AnyValue(name.From(), random); });
  ASSERT_EQ(function({{"pSrc", src}, {"pDst", dst}, {"roiSize", size}, {"quantizer", {steps.data()}}}), 0);
  for (int k = 0; k < blocks.width() / 64 * blocks.height(); ++k) {
    const int left = k % (blocks.width() / 64) * 8, top = k / (blocks.width() / 64) * 8;
    const Block given = isForward ? PixelsAt(src, left, top) : CoefficientsAt(src, left, top, quantizer);
    const Block result = Transformed(given, isForward);
    for (int i = 0; i < 64; ++i) {
      const int x = left + i % 8, y = top + i / 8;
      if (!isForward && (x >= size.width || y >= size.height)) continue;
      ASSERT_PRED2(test::AreSame, isForward ? dst(left * 8 + i, top / 8) : dst(x, y),
                   ResultOf(name.To(), isForward, result[i], quantizer, i))
          << function.name << " block " << k << ' ' << i;
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
      Check(*function, size, quantizer, turn);
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
