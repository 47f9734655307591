// Comparisons, counts and the Otsu threshold.
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;

bool Holds(double a, double b, int relation) {
  const bool relations[] = {a<b, a <= b, a == b, a >= b, a> b};
  return relations[relation];
}

// Few different values, so that all orders and equality come up in every lane; the ends of the type among them.
template <class T>
T ValueAt(test::Random& random) {
  using L = std::numeric_limits<T>;
  std::vector<T> values{0, 1, 2, 127, 128, L::lowest(), L::max()};
  if constexpr (!L::is_integer) values.insert(values.end(), {-0.0f, L::quiet_NaN(), L::infinity(), -L::infinity()});
  return random.Next() % 3 == 0 ? values[random.Next() % values.size()] : values[random.Next() % 2];
}

template <class T>
void Check(const Export& function, int pixels, int relation) {
  const Name name(function.name);
  const bool isConstant = function.Find("value") >= 0, isEps = function.Find("eps") >= 0;
  const int samples = pixels * name.channels, height = 3;
  test::Image<T> a(samples, height, 3), b(samples, height, 8);
  test::Image<uint8_t> dst(pixels, height, 1);
  test::Random random(pixels + relation);
  const T constant[4] = {1, ValueAt<T>(random), 0, 1};
  for (int i = 0; i < samples * height; ++i) {
    a.Put(i % samples, i / samples, ValueAt<T>(random));
    b.Put(i % samples, i / samples, ValueAt<T>(random));
  }
  std::vector<Argument> arguments{{a.data()}, {nullptr, a.step()}};
  if (isConstant)
    arguments.push_back({constant, static_cast<ptrdiff_t>(constant[0])});
  else
    arguments.insert(arguments.end(), {{b.data()}, {nullptr, b.step()}});
  arguments.insert(arguments.end(),
                   {{dst.data()}, {nullptr, dst.step()}, {nullptr, pixels, height}, {nullptr, relation}});
  ASSERT_EQ(function.call(arguments.data()), qvpStatusNoError) << function.name;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < pixels; ++x) {
      bool all = true;
      for (int c = 0; c < name.written; ++c) {
        const T left = a(x * name.channels + c, y), right = isConstant ? constant[c] : b(x * name.channels + c, y);
        const float difference = static_cast<float>(left) - static_cast<float>(right);
        all &= isEps ? std::fabs(difference) <= relation : Holds(left, right, relation);
      }
      ASSERT_EQ(dst(x, y), all ? 255 : 0) << function.name << " relation " << relation << " at " << x << ',' << y;
    }
  }
}

TEST(Compare, HoldsForAllChannelsInEveryMember) {
  for (const Export* function : test::FunctionsOf({"Compare", "CompareC", "CompareEqualEps", "CompareEqualEpsC"})) {
    const bool isEps = function->Find("eps") >= 0;
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (int relation = 0; relation < (isEps ? 2 : 5); ++relation) {
        for (const int pixels : {1, 3, 16, 21, 31, 32, 65, 200, 1700}) Check<T>(*function, pixels, relation);
      }
    });
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

template <class T>
void CheckCount(const Export& function, int pixels, int height) {
  const Name name(function.name);
  const int samples = pixels * name.channels;
  test::Image<T> src(samples, height, 5);
  test::Random random(pixels);
  const T lower[3] = {0, 1, 2}, upper[3] = {0, 127, 128};
  int64_t expected[4] = {};
  for (int i = 0; i < samples * height; ++i) {
    const int c = i % samples % name.channels;
    const T v = ValueAt<T>(random);
    src.Put(i % samples, i / samples, v);
    if (c < 3) expected[c] += v >= lower[c] && v <= upper[c];
  }
  int counts[4] = {-1, -1, -1, -1};
  const Argument arguments[] = {{src.data()}, {nullptr, src.step()}, {nullptr, pixels, height}, {counts}, {lower, 0},
                                {upper, 0}};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError);
  for (int c = 0; c < 4; ++c)
    EXPECT_EQ(counts[c], c < name.written ? expected[c] : -1) << function.name << ' ' << pixels;
}

TEST(CountInRange, CountsEachChannelAtEveryWidth) {
  for (const Export* function : test::FunctionsOf({"CountInRange"})) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (int pixels = 1; pixels < 200; pixels += 1 + pixels / 16) CheckCount<T>(*function, pixels, 3);
      CheckCount<T>(*function, 40000, 2);
    });
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
