// Comparisons, counts and the Otsu threshold.
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

bool Holds(Real a, Real b, int relation) {
  const bool relations[] = {a<b, a <= b, a == b, a >= b, a> b};
  return relations[relation];
}

// Few different values, so that all orders and equality come up in every lane; the ends of the type among them.
Real ValueOf(const Element& element, test::Random& random) {
  const Real values[] = {0, 1, 2, 127, 128, element.lowest, element.highest, -0.0L, NAN, INFINITY, -INFINITY};
  return values[random.Next() % (random.Next() % 3 != 0 ? 2 : element.isInteger ? 7 : 11)];
}

void Check(const Export& function, int pixels, int relation) {
  const Name name(function.name);
  const bool isConstant = function.Has("value"), isEps = function.Has("eps");
  Samples a(name.From(), pixels * name.channels, 3, 3), b(name.From(), pixels * name.channels, 3, 8),
      constant(name.From(), 4, 1, 0);
  const test::Image<uint8_t> dst(pixels, 3, 1);
  test::Random random(pixels + relation);
  for (Samples* const image : {&a, &b, &constant}) image->Fill([&](int, int) { return ValueOf(name.From(), random); });
  ASSERT_EQ(function({{"pSrc", a},
                      {"pSrc1", a},
                      {"pSrc2", b},
                      {"value", {constant.data(), static_cast<double>(constant(0, 0))}},
                      {"pDst", dst},
                      {"roiSize", QvpiSize{pixels, 3}},
                      {"cmpOp", relation},
                      {"eps", relation}}),
            qvpStatusNoError)
      << function.name;
  for (int i = 0; i < pixels * 3; ++i) {
    const int x = i % pixels, y = i / pixels;
    bool all = true;
    for (int c = 0; c < name.written; ++c) {
      const Real left = a(x * name.channels + c, y), right = isConstant ? constant(c, 0) : b(x * name.channels + c, y);
      all &= isEps ? std::fabs(static_cast<float>(left) - static_cast<float>(right)) <= relation
                   : Holds(left, right, relation);
    }
    ASSERT_EQ(dst(x, y), all ? 255 : 0) << function.name << " relation " << relation << " at " << x << ',' << y;
  }
}

TEST(Compare, HoldsForAllChannelsInEveryMember) {
  for (const Export* function : test::FunctionsOf({"Compare", "CompareC", "CompareEqualEps", "CompareEqualEpsC"})) {
    const bool isEps = function->Has("eps");
    for (int relation = 0; relation < (isEps ? 2 : 5); ++relation) {
      for (const int pixels : {1, 3, 16, 21, 31, 32, 65, 200, 1700}) Check(*function, pixels, relation);
    }
  }
}

TEST(Compare, DoesNothingSilentlyWithoutARelation) {
  uint8_t src[4] = {1, 2, 3, 4}, dst[4] = {9, 9, 9, 9};
  const QvpiSize roi{4, 1};
  for (const int relation : {5, 7, -1, INT32_MIN}) {
    EXPECT_EQ(qvpiCompareC_8u_C1R(src, 4, 2, dst, 4, roi, relation), qvpStatusNoError);
    EXPECT_EQ(qvpiCompare_8u_C1R(src, 4, src, 4, dst, 4, roi, relation), qvpStatusNoError);
    for (const uint8_t v : dst) EXPECT_EQ(v, 9);
  }
  EXPECT_EQ(qvpiCompareC_8u_C1R(src, 4, 2, dst, 4, {4, 0}, 7), qvpStatusSize);
}

void CheckCount(const Export& function, int pixels, int height) {
  const Name name(function.name);
  Samples src(name.From(), pixels * name.channels, height, 5), lower(name.From(), 3, 1, 0), upper(lower);
  test::Random random(pixels);
  src.Fill([&](int, int) { return ValueOf(name.From(), random); });
  lower.Fill([](int c, int) { return c; });
  upper.Fill([](int c, int) { return c == 0 ? 0 : 126 + c; });
  int counts[4] = {-1, -1, -1, -1}, expected[4] = {-1, -1, -1, -1};
  for (int c = 0; c < name.written; ++c) {
    expected[c] = 0;
    for (int i = 0; i < pixels * height; ++i) {
      const Real v = src(i % pixels * name.channels + c, i / pixels);
      expected[c] += v >= lower(c, 0) && v <= upper(c, 0);
    }
  }
  ASSERT_EQ(function({{"pSrc", src},
                      {"roiSize", QvpiSize{pixels, height}},
                      {"pCounts", {counts}},
                      {"lowerBound", {lower.data()}},
                      {"upperBound", {upper.data()}}}),
            qvpStatusNoError);
  for (int c = 0; c < 4; ++c) EXPECT_EQ(counts[c], expected[c]) << function.name << ' ' << pixels;
}

TEST(CountInRange, CountsEachChannelAtEveryWidth) {
  for (const Export* function : test::FunctionsOf({"CountInRange"})) {
    for (int pixels = 1; pixels < 200; pixels += 1 + pixels / 16) CheckCount(*function, pixels, 3);
    CheckCount(*function, 40000, 2);
  }
}

// The variance between the classes by its definition, from their means.
int OtsuByDefinition(const std::vector<uint8_t>& pixels) {
  double best = 0;
  int level = 0;
  for (int k = 0; k < 255; ++k) {
    double n[2] = {}, sum[2] = {};
    for (const uint8_t v : pixels) ++n[v > k], sum[v > k] += v;
    if (n[0] == 0 || n[1] == 0) continue;
    const double difference = sum[0] / n[0] - sum[1] / n[1], score = n[0] * n[1] * difference * difference;
    if (score > best * (1 + 1e-12)) best = score, level = k;
  }
  return level;
}

TEST(Otsu, SeparatesTheClassesBest) {
  test::Random random(3);
  for (int round = 0; round < 60; ++round) {
    std::vector<uint8_t> pixels(640);
    const int low = random.Next() % 200, spread = 1 + random.Next() % 100;
    for (auto& v : pixels)
      v = static_cast<uint8_t>(random.Next() % 3 ? random.Next() % spread : low + random.Next() % 56);
    uint8_t threshold = 0;
    ASSERT_EQ(qvpiComputeThreshold_Otsu_8u_C1R(pixels.data(), 80, {80, 8}, &threshold), qvpStatusNoError);
    EXPECT_EQ(threshold, OtsuByDefinition(pixels));
  }
}

TEST(Otsu, TakesTheLowestOfEqualLevelsAndRefusesShortSteps) {
  uint8_t pixels[64], threshold = 77;
  for (int i = 0; i < 64; ++i) pixels[i] = i % 8 < 4 ? 10 : 200;
  EXPECT_EQ(qvpiComputeThreshold_Otsu_8u_C1R(pixels, 7, {8, 8}, &threshold), qvpStatusStep);
  EXPECT_EQ(qvpiComputeThreshold_Otsu_8u_C1R(pixels, 7, {8, 0}, &threshold), qvpStatusSize);
  EXPECT_EQ(threshold, 77);
  EXPECT_EQ(qvpiComputeThreshold_Otsu_8u_C1R(pixels, 8, {8, 8}, &threshold), qvpStatusNoError);
  EXPECT_EQ(threshold, 10);
  EXPECT_EQ(qvpiComputeThreshold_Otsu_8u_C1R(pixels, 8, {4, 8}, &threshold), qvpStatusNoError);
  EXPECT_EQ(threshold, 0);
}

}  // namespace
