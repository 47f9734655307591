// Norms, sums, extrema and dot products, over every member and special values in every lane.
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

// The norm of Norm_L1, or none.
std::string NormOf(const Name& name) {
  return name.operation == name.family ? "" : name.operation.substr(name.family.size() + 1);
}

// Mostly the ends of an integer type; small floats, whose sums are exact in single precision.
Real ValueOf(const test::Element& element, test::Random& random) {
  const uint32_t r = random.Next();
  if (!element.isInteger) return static_cast<int>(r % 41) - 20;
  return r % 4 == 0 ? EdgeValue(element, random) : r % 4 == 1 ? element.lowest : element.highest;
}

// Sums of one channel, in numbers wide enough for all that the tests add up.
struct Sums {
  Real plain = 0, magnitudes = 0, squares = 0, largest = 0;
  void Add(Real v) {
    plain += v;
    magnitudes += std::fabs(v);
    squares += v * v;
    largest = std::max(largest, std::fabs(v));
  }
  Real Of(const std::string& norm) const { return norm == "Inf" ? largest : norm == "L1" ? magnitudes : squares; }
};

double Expected(const Name& name, const Sums& a, const Sums& b, const Sums& difference, const Sums& product,
                int pixels) {
  const std::string norm = NormOf(name);
  if (name.family == "Sum") return static_cast<double>(a.plain);
  if (name.family == "Mean") return static_cast<double>(a.plain) / pixels;
  if (name.family == "DotProd") return static_cast<double>(product.plain);
  const auto raw = static_cast<double>((name.family == "Norm" ? a : difference).Of(norm));
  const double value = name.family == "NormRel" ? raw / static_cast<double>(b.Of(norm)) : raw;
  return norm == "L2" ? std::sqrt(value) : value;
}

void Check(const Export& function, int pixels, int height, int hint) {
  const Name name(function.name);
  test::Random random(pixels * 7 + hint);
  Samples a(name.From(), pixels * name.channels, height, 3), b(name.From(), a.width(), height, 8, test::Guard::kBefore);
  for (Samples* const image : {&a, &b}) image->Fill([&](int, int) { return ValueOf(name.From(), random); });
  double values[4] = {-7, -7, -7, -7};
  const std::string_view result = function.parameters[function.parameters.size() - 1 - function.Has("hint")].name;
  ASSERT_EQ(function({{"pSrc", a},
                      {"pSrc1", a},
                      {"pSrc2", b},
                      {"roiSize", QvpiSize{pixels, height}},
                      {result, {values}},
                      {"hint", hint}}),
            qvpStatusNoError)
      << function.name;
  for (int c = 0; c < 4; ++c) {
    Sums sums[4];
    for (int i = c; i < a.width() * height && c < name.channels; i += name.channels) {
      const Real x = a(i % a.width(), i / a.width()), y = b(i % a.width(), i / a.width());
      sums[0].Add(x), sums[1].Add(y), sums[2].Add(x - y), sums[3].Add(x * y);
    }
    const double expected = c < name.written ? Expected(name, sums[0], sums[1], sums[2], sums[3], pixels * height) : -7;
    const bool isRounded = name.From().bytes == 4 && name.From().isInteger;  // sums beyond 53 bits, in doubles
    ASSERT_NEAR(values[c], expected, isRounded ? std::fabs(expected) * 1e-11 + 1e7 : 0)
        << function.name << ' ' << pixels << 'x' << height << " channel " << c;
  }
}

TEST(Reductions, AreExactForExtremeValuesInEveryLane) {
  for (const Export* function : test::FamilyOf({"Norm", "NormDiff", "NormRel", "Sum", "Mean", "DotProd"})) {
    for (int hint = 1; hint <= (function->Has("hint") ? 2 : 1); ++hint) {
      for (const int pixels : {1, 2, 5, 16, 23, 31, 33, 64, 100, 131, 400, 1031}) Check(*function, pixels, 3, hint);
      for (const int pixels : {8255, 8257, 16448}) Check(*function, pixels, 1, hint);
    }
  }
}

// The last channel's result, of pixels that are alike in both images, with a hint where there is one.
double ResultOf(const std::string& function, const void* pixels, int step, QvpiSize roi, int hint = qvpAlgHintFast) {
  double v[4];
  const test::Argument image(pixels, step);
  EXPECT_EQ(test::CallNamed("qvpi" + function, {{"pSrc", image},
                                                {"pSrc1", image},
                                                {"pSrc2", image},
                                                {"roiSize", roi},
                                                {"pValue", {v}},
                                                {"pSum", {v}},
                                                {"pMean", {v}},
                                                {"pDp", {v}},
                                                {"hint", hint}}),
            qvpStatusNoError)
      << function;
  return v[Name(function).written - 1];
}

// The largest values, over the lengths at which lanes have to be emptied, and rows repeated until the sums pass 2^32.
TEST(Reductions, NeverOverflow) {
  const std::vector<uint8_t> bits(4 * 70000 * sizeof(int16_t), 0xFF);
  const std::vector<int16_t> lowest(70000, INT16_MIN);
  const auto* const ones = bits.data();
  for (const int width : {32767, 32768, 32769, 33024, 33025, 33026, 65536, 65537, 65538, 70000}) {
    const double n = width;
    EXPECT_EQ(ResultOf("Norm_L1_8u_C3R", ones, 1, {width, 1}), 255 * n);
    EXPECT_EQ(ResultOf("Norm_L1_16u_C1R", ones, 1, {width, 1}), 65535 * n);
    EXPECT_EQ(ResultOf("Norm_L2_16u_C4R", ones, 1, {width, 1}), std::sqrt(65535.0 * 65535 * n));
    EXPECT_EQ(ResultOf("DotProd_8u64f_C1R", ones, 1, {width, 1}), 65025 * n);
    EXPECT_EQ(ResultOf("DotProd_8u64f_AC4R", ones, 1, {width, 1}), 65025 * n);
  }
  const QvpiSize many{70000, 1000}, fewer{70000, 70};
  const double pixels = 7e7;
  EXPECT_EQ(ResultOf("Sum_8u_C1R", ones, 0, many), 255 * pixels);
  EXPECT_EQ(ResultOf("Sum_16u_C3R", ones, 0, many), 65535 * pixels);
  EXPECT_EQ(ResultOf("Norm_L2_16u_C1R", ones, 1, fewer), std::sqrt(65535.0 * 65535 * 70000 * 70));
  EXPECT_EQ(ResultOf("DotProd_16u64f_C1R", ones, 1, fewer), 65535.0 * 65535 * 70000 * 70);
  EXPECT_EQ(ResultOf("DotProd_8u64f_C3R", ones, 1, {70000, 500}), 65025.0 * 70000 * 500);
  EXPECT_EQ(ResultOf("DotProd_16s64f_C1R", lowest.data(), 2, {60000, 500}), 0x1p30 * 60000 * 500);
  EXPECT_EQ(ResultOf("Sum_16s_C1R", lowest.data(), 0, many), -32768 * pixels);
}

TEST(Norms, OfWideBytesGoThroughStrips) {
  std::vector<uint8_t> wide(3 * 40000, 255);
  double v[3];
  ASSERT_EQ(qvpiNorm_L2_8u_C1R(wide.data(), 40000, {40000, 1}, v), 0);
  EXPECT_EQ(v[0], 51000);
  for (size_t i = 0; i < wide.size(); ++i) wide[i] = static_cast<uint8_t>(i * i >> 3);
  ASSERT_EQ(qvpiNorm_L2_8u_C3R(wide.data(), 120000, {40000, 1}, v), 0);
  for (int c = 0; c < 3; ++c) {
    double squares[2] = {};
    for (int x = 0; x < 40000; ++x) squares[x >= 32768] += wide[3 * x + c] * wide[3 * x + c];
    EXPECT_EQ(v[c],
              std::sqrt(std::sqrt(squares[0]) * std::sqrt(squares[0]) + std::sqrt(squares[1]) * std::sqrt(squares[1])));
  }
}

TEST(Norms, WarnWhereTheSecondImageVanishes) {
  const int16_t zero[12] = {}, a[12] = {0, 3, 0, 0, -4, 0}, b[12] = {0, 0, 5};
  double v[3];
  EXPECT_EQ(qvpiNormRel_L2_16s_C3R(a, 24, b, 24, {4, 1}, v), qvpStatusDivideByZero);
  EXPECT_TRUE(std::isnan(v[0]) && std::signbit(v[0]));
  EXPECT_EQ(v[1], std::numeric_limits<double>::infinity());
  EXPECT_EQ(v[2], 1);
  EXPECT_EQ(qvpiNormRel_L1_16s_C1R(zero, 24, zero, 24, {12, 1}, v), qvpStatusDivideByZero);
  EXPECT_TRUE(std::isnan(v[0]));
  const float none[2] = {}, tiny[2] = {1e-45f, 0}, nan[2] = {NAN, 0};
  EXPECT_EQ(qvpiNormRel_Inf_32f_C1R(tiny, 8, tiny, 8, {2, 1}, v), qvpStatusNoError);
  EXPECT_EQ(v[0], 0);
  EXPECT_EQ(qvpiNormRel_Inf_32f_C1R(tiny, 8, none, 8, {2, 1}, v), qvpStatusDivideByZero);
  EXPECT_EQ(v[0], std::numeric_limits<double>::infinity());
  EXPECT_EQ(qvpiNormRel_L1_32f_C1R(nan, 8, none, 8, {2, 1}, v, qvpAlgHintFast), qvpStatusDivideByZero);
  EXPECT_TRUE(std::isnan(v[0]));
  EXPECT_EQ(qvpiNormRel_L1_32f_C1R(none, 8, nan, 8, {2, 1}, v, qvpAlgHintAccurate), qvpStatusNoError);
  EXPECT_TRUE(std::isnan(v[0]));
}

TEST(Norms, SkipNaNOnlyWhenTheyLookForTheLargest) {
  for (int place = 0; place < 70; ++place) {
    std::vector<float> pixels(70, -2);
    pixels[place] = NAN;
    EXPECT_EQ(ResultOf("Norm_Inf_32f_C1R", pixels.data(), 280, {70, 1}), 2);
    EXPECT_TRUE(std::isnan(ResultOf("Norm_L1_32f_C1R", pixels.data(), 280, {70, 1})));
    pixels[(place + 5) % 70] = -INFINITY;
    EXPECT_EQ(ResultOf("Norm_Inf_32f_C1R", pixels.data(), 280, {70, 1}), INFINITY);
  }
}

TEST(Reductions, DifferBetweenFastAndAccurateButNotByMuch) {
  const std::vector<float> pixels(1000000, 0.1f);
  for (const auto& [name, exact] : {std::pair{"Norm_L1_32f_C1R", 1e6 * double{0.1f}},
                                    {"Sum_32f_C1R", 1e6 * double{0.1f}},
                                    {"Mean_32f_C1R", double{0.1f}}}) {
    const double fast = ResultOf(name, pixels.data(), 4000, {1000, 1000}, qvpAlgHintFast),
                 accurate = ResultOf(name, pixels.data(), 4000, {1000, 1000}, qvpAlgHintAccurate);
    EXPECT_NE(fast, accurate) << name;
    EXPECT_NEAR(fast, accurate, accurate * 1e-3) << name;
    EXPECT_NEAR(accurate, exact, exact * 1e-11) << name;
  }
}

TEST(Reductions, TakeAnyStepThatIsNotChecked) {
  const uint8_t src[4] = {1, 2, 3, 4};
  double v = 5;
  EXPECT_EQ(qvpiDotProd_8u64f_C1R(src, 4, src, 0, {4, 1}, &v), qvpStatusSize);
  EXPECT_EQ(qvpiDotProd_8u64f_C1R(src + 2, -2, src + 2, -2, {2, 2}, &v), qvpStatusNoError);
  EXPECT_EQ(v, 1 + 4 + 9 + 16);
  EXPECT_EQ(qvpiSum_8u_C1R(src, 0, {4, 3}, &v), qvpStatusNoError);
  EXPECT_EQ(v, 30);
}

TEST(Mean, CountsPixelsBeyond32Bits) {
  const uint8_t row[65536] = {8};
  EXPECT_EQ(ResultOf("Mean_8u_C1R", row, 0, {65536, 65536}), 8.0 / 65536);
}

// Where a channel has its least or greatest value, which NaN is not.
QvpiPoint Extreme(const Samples& image, int channels, int c, bool isMin) {
  QvpiPoint at{};
  Real best = NAN;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width() / channels; ++x) {
      const Real v = image(x * channels + c, y);
      if (std::isnan(v) || (isMin ? v >= best : v <= best)) continue;
      best = v;
      at = {x, y};
    }
  }
  return at;
}

void CheckExtremes(const Export& function, const Samples& image) {
  const Name name(function.name);
  const Samples results(name.From(), 4, 2, 0);
  int x[4] = {}, y[4] = {};
  std::memset(results.bytes(), 0, results.height() * results.step());
  const bool isMinimum = name.operation.starts_with("Min");
  const int width = image.width() / name.channels;
  ASSERT_EQ(function({{"pSrc", image},
                      {"roiSize", QvpiSize{width, image.height()}},
                      {"pMin", {results.At(0, 0)}},
                      {"pMax", {results.At(0, isMinimum)}},
                      {"pIndexX", {x}},
                      {"pIndexY", {y}}}),
            qvpStatusNoError)
      << function.name;
  for (int c = 0; c < 4; ++c) {
    for (const bool isSecond : {false, name.operation == "MinMax"}) {
      const QvpiPoint at = c < name.written ? Extreme(image, name.channels, c, isMinimum && !isSecond) : QvpiPoint{};
      const Real expected = c < name.written ? image(at.x * name.channels + c, at.y) : 0;
      ASSERT_TRUE(test::AreSame(results(c, isSecond), expected)) << function.name << ' ' << width << " pixels, channel "
                                                                 << c << ' ' << results(c, isSecond) << ' ' << expected;
      if (!name.operation.ends_with("Indx")) continue;
      ASSERT_EQ(x[c], at.x) << function.name << ' ' << width << " pixels, channel " << c;
      ASSERT_EQ(y[c], at.y) << function.name << ' ' << width << " pixels, channel " << c;
    }
  }
}

// Few different values, so that there are many ties.
Real TiedValue(const test::Element& element, test::Random& random, int kind) {
  const Real integers[] = {element.lowest, element.highest, 0, 1};
  const Real reals[] = {NAN, NAN, 0.0L, -0.0L, 1, -1, INFINITY, -INFINITY};
  if (kind == 0) return 1 + random.Next() % 5;
  if (element.isInteger) return kind == 1 ? integers[random.Next() % 4] : integers[kind == 2];
  return reals[kind == 3 ? 0 : random.Next() % (kind * 4)];
}

TEST(Extrema, AreThoseOfTheFirstPixelThatHasThem) {
  for (const Export* function : test::FamilyOf({"Min", "Max", "MinMax", "MinIndx", "MaxIndx"})) {
    const Name name(function->name);
    for (const QvpiSize size : {QvpiSize{1, 1}, {1, 9}, {7, 3}, {16, 2}, {37, 4}, {100, 3}, {4100, 2}, {13000, 1}}) {
      for (int kind = 0; kind < 8; ++kind) {
        Samples image(name.From(), size.width * name.channels, size.height, kind < 4 ? 0 : 5);
        test::Random random(size.width + kind);
        image.Fill([&](int, int) { return TiedValue(name.From(), random, kind % 4); });
        CheckExtremes(*function, image);
      }
    }
  }
}

TEST(Extrema, AreFoundInEveryPlace) {
  for (const Export* function : test::FamilyOf({"MinIndx", "MaxIndx", "MinMax"})) {
    const Name name(function->name);
    const bool isMaximum = name.operation == "MaxIndx";
    for (const int samples : {33 * name.channels, 150 * name.channels}) {
      Samples image(name.From(), samples, 2, 3);
      const auto find = [&](Real found, Real others) {
        image.Fill([&](int, int) { return others; });
        for (int place = 0; place < samples; place += 1 + place / 40) {
          image.Put(place, 1, found);
          CheckExtremes(*function, image);
          image.Put(place, 1, others);
        }
      };
      find(isMaximum ? 6 : 4, 5);
      if (!name.From().isInteger) find(isMaximum ? -INFINITY : INFINITY, NAN);
    }
  }
}

// All partial sums fill, whatever the width; and neither the width nor packing has an influence.
TEST(FastSums, DependNeitherOnTheWidthNorOnPacking) {
  const int n = 1 << 21;
  std::vector<float> ones(n, 1.0f), rows(2 * n, 1.0f);
  for (const int width : {1, 3, 7, 47, 100}) {
    const QvpiSize roi{width, n / width};
    EXPECT_EQ(ResultOf("Sum_32f_C1R", ones.data(), 4 * width, roi), roi.width * roi.height);
    EXPECT_EQ(ResultOf("Sum_32f_C1R", rows.data(), 8 * width, roi), roi.width * roi.height);
  }
  test::Random random(2);
  for (float& v : ones) v = static_cast<float>(random.Next() % 100000) / 7;
  for (const char* function : {"Norm_L2_32f_C1R", "DotProd_32f64f_C1R", "Mean_32f_C3R"}) {
    const auto of = [&](int width) {
      return ResultOf(function, ones.data(), 4 * Name(function).channels * width, {width, 48000 / width});
    };
    for (const int width : {1, 2, 5, 24, 100, 375}) EXPECT_EQ(of(width), of(3000)) << function << ' ' << width;
  }
}

TEST(WeightedSumOfRows, AddsRowsInOrder) {
  test::Random random(1);
  for (const int len : {1, 3, 8, 33, 64, 75}) {
    test::Image<float> rows(len, 4, 0), dst(len, 1, 0);
    const float taps[4] = {0.5f, -3, 7, 0.1f};
    const float* pointers[4];
    for (int k = 0; k < 4; ++k) {
      pointers[k] = rows.data() + k * len;
      for (int x = 0; x < len; ++x) rows.Put(x, k, static_cast<float>(random.Next() % 1000) / 7);
    }
    ASSERT_EQ(qvpiDotProdCol_32f_L2(pointers, dst.data(), 4, taps, len), 0);
    for (int x = 0; x < len; ++x) {
      volatile float sum = rows(x, 0) * taps[0];
      for (int k = 1; k < 4; ++k) {
        volatile float product = rows(x, k) * taps[k];
        sum = sum + product;
      }
      ASSERT_EQ(dst(x, 0), sum) << x << " of " << len;
    }
    EXPECT_EQ(qvpiDotProdCol_32f_L2(pointers, dst.data(), 0, taps, len), qvpStatusSize);
    EXPECT_EQ(qvpiDotProdCol_32f_L2(pointers, dst.data(), 4, taps, 0), qvpStatusSize);
  }
}

}  // namespace
