// Norms, sums, extrema and dot products, over every member and special values in every lane.
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;

// The norm of Norm_L1, or none.
std::string NormOf(const Name& name) {
  return name.operation == name.family ? "" : name.operation.substr(name.family.size() + 1);
}

// Mostly the ends of an integer type; small floats, whose sums are exact in single precision.
template <class T>
T ValueAt(test::Random& random) {
  using L = std::numeric_limits<T>;
  if constexpr (!L::is_integer) return static_cast<T>(static_cast<int>(random.Next() % 41) - 20);
  const uint32_t r = random.Next();
  return r % 4 == 0 ? static_cast<T>(r >> 8) : r % 4 == 1 ? L::lowest() : L::max();
}

template <class T>
void Fill(test::Image<T>& image, int samples, int height, test::Random& random) {
  for (int i = 0; i < samples * height; ++i) image.Put(i % samples, i / samples, ValueAt<T>(random));
}

// Sums of one channel, in numbers wide enough for all that the tests add up.
struct Sums {
  long double plain = 0, magnitudes = 0, squares = 0, largest = 0;
  void Add(long double v) {
    plain += v;
    magnitudes += std::fabs(v);
    squares += v * v;
    largest = std::max(largest, std::fabs(v));
  }
  long double Of(const std::string& norm) const {
    return norm == "Inf" ? largest : norm == "L1" ? magnitudes : squares;
  }
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

template <class T>
void Check(const Export& function, int pixels, int height, int hint) {
  const Name member(function.name);
  const int samples = pixels * member.channels;
  test::Random random(pixels * 7 + hint);
  test::Image<T> a(samples, height, 3), b(samples, height, 8, test::Guard::kBefore);
  Fill(a, samples, height, random);
  Fill(b, samples, height, random);
  double values[4] = {-7, -7, -7, -7};
  std::vector<Argument> arguments{{a.data()}, {nullptr, a.step()}};
  if (function.Find("pSrc2") >= 0) arguments.insert(arguments.end(), {{b.data()}, {nullptr, b.step()}});
  arguments.insert(arguments.end(), {{nullptr, pixels, height}, {values}, {nullptr, hint}});
  ASSERT_EQ(function.call(arguments.data()), qvpStatusNoError) << function.name;
  for (int c = 0; c < 4; ++c) {
    Sums sums[4];
    for (int i = c; i < samples * height && c < member.channels; i += member.channels) {
      const long double x = a(i % samples, i / samples), y = b(i % samples, i / samples);
      sums[0].Add(x), sums[1].Add(y), sums[2].Add(x - y), sums[3].Add(x * y);
    }
    const double expected =
        c < member.written ? Expected(member, sums[0], sums[1], sums[2], sums[3], pixels * height) : -7;
    const bool isRounded =
        member.From().bytes == 4 && member.From().isInteger;  // sums beyond 53 bits, in double precision
    ASSERT_NEAR(values[c], expected, isRounded ? std::fabs(expected) * 1e-11 + 1e7 : 0)
        << function.name << ' ' << pixels << 'x' << height << " channel " << c;
  }
}

TEST(Reductions, AreExactForExtremeValuesInEveryLane) {
  for (const Export* function : test::FamilyOf({"Norm", "NormDiff", "NormRel", "Sum", "Mean", "DotProd"})) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (int hint = 1; hint <= (function->Has("hint") ? 2 : 1); ++hint) {
        for (const int pixels : {1, 2, 5, 16, 23, 31, 33, 64, 100, 131, 400, 1031})
          Check<T>(*function, pixels, 3, hint);
        for (const int pixels : {8255, 8257, 16448}) Check<T>(*function, pixels, 1, hint);
      }
    });
  }
}

// The largest values, over the lengths at which lanes have to be emptied, and rows repeated until the sums pass 2^32.
TEST(Reductions, NeverOverflow) {
  const std::vector<uint8_t> ones(4 * 70000 * sizeof(int16_t), 0xFF);
  const auto* bytes = ones.data();
  const auto* words = reinterpret_cast<const Qvp16u*>(ones.data());
  double v[4];
  for (const int width : {32767, 32768, 32769, 33024, 33025, 33026, 65536, 65537, 65538, 70000}) {
    const double n = width;
    ASSERT_EQ(qvpiNorm_L1_8u_C3R(bytes, 1, {width, 1}, v), 0);
    EXPECT_EQ(v[2], 255 * n);
    ASSERT_EQ(qvpiNorm_L1_16u_C1R(words, 1, {width, 1}, v), 0);
    EXPECT_EQ(v[0], 65535 * n);
    ASSERT_EQ(qvpiNorm_L2_16u_C4R(words, 1, {width, 1}, v), 0);
    EXPECT_EQ(v[3], std::sqrt(65535.0 * 65535 * n));
    ASSERT_EQ(qvpiDotProd_8u64f_C1R(bytes, 1, bytes, 1, {width, 1}, v), 0);
    EXPECT_EQ(v[0], 65025 * n);
    ASSERT_EQ(qvpiDotProd_8u64f_AC4R(bytes, 1, bytes, 1, {width, 1}, v), 0);
    EXPECT_EQ(v[2], 65025 * n);
  }
  const QvpiSize many{70000, 1000};
  const double pixels = 7e7;
  ASSERT_EQ(qvpiSum_8u_C1R(bytes, 0, many, v), 0);
  EXPECT_EQ(v[0], 255 * pixels);
  ASSERT_EQ(qvpiSum_16u_C3R(words, 0, many, v), 0);
  EXPECT_EQ(v[1], 65535 * pixels);
  ASSERT_EQ(qvpiNorm_L2_16u_C1R(words, 1, {70000, 70}, v), 0);
  EXPECT_EQ(v[0], std::sqrt(65535.0 * 65535 * 70000 * 70));
  ASSERT_EQ(qvpiDotProd_16u64f_C1R(words, 1, words, 1, {70000, 70}, v), 0);
  EXPECT_EQ(v[0], 65535.0 * 65535 * 70000 * 70);
  ASSERT_EQ(qvpiDotProd_8u64f_C3R(bytes, 1, bytes, 1, {70000, 500}, v), 0);
  EXPECT_EQ(v[0], 65025.0 * 70000 * 500);
  const std::vector<int16_t> lowest(70000, INT16_MIN);
  ASSERT_EQ(qvpiDotProd_16s64f_C1R(lowest.data(), 2, lowest.data(), 2, {60000, 500}, v), 0);
  EXPECT_EQ(v[0], 0x1p30 * 60000 * 500);
  ASSERT_EQ(qvpiSum_16s_C1R(lowest.data(), 0, many, v), 0);
  EXPECT_EQ(v[0], -32768 * pixels);
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
    double v;
    ASSERT_EQ(qvpiNorm_Inf_32f_C1R(pixels.data(), 280, {70, 1}, &v), 0);
    EXPECT_EQ(v, 2);
    ASSERT_EQ(qvpiNorm_L1_32f_C1R(pixels.data(), 280, {70, 1}, &v, qvpAlgHintFast), 0);
    EXPECT_TRUE(std::isnan(v));
    pixels[(place + 5) % 70] = -INFINITY;
    ASSERT_EQ(qvpiNorm_Inf_32f_C1R(pixels.data(), 280, {70, 1}, &v), 0);
    EXPECT_EQ(v, INFINITY);
  }
}

TEST(Norms, DifferBetweenFastAndAccurateButNotByMuch) {
  const std::vector<float> pixels(1000000, 0.1f);
  double fast, accurate;
  ASSERT_EQ(qvpiNorm_L1_32f_C1R(pixels.data(), 4000, {1000, 1000}, &fast, qvpAlgHintFast), 0);
  ASSERT_EQ(qvpiNorm_L1_32f_C1R(pixels.data(), 4000, {1000, 1000}, &accurate, qvpAlgHintAccurate), 0);
  EXPECT_NE(fast, accurate);
  EXPECT_NEAR(fast, accurate, accurate * 1e-3);
  EXPECT_NEAR(accurate, 1e6 * double{0.1f}, 1e-6);
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
  double mean;
  ASSERT_EQ(qvpiMean_8u_C1R(row, 0, {65536, 65536}, &mean), 0);
  EXPECT_EQ(mean, 8.0 / 65536);
}

// What one call finds in one channel, by a scalar search.
template <class T>
struct Extreme {
  T value;
  int x = 0, y = 0;

  Extreme(const test::Image<T>& image, int pixels, int height, int channels, int c, bool isMin) : value(image(c, 0)) {
    bool isFound = false;
    for (int i = 0; i < pixels * height; ++i) {
      const T v = image(i % pixels * channels + c, i / pixels);
      if (v != v || (isFound && !(isMin ? v < value : v > value))) continue;
      value = v;
      x = i % pixels;
      y = i / pixels;
      isFound = true;
    }
  }
};

template <class T>
void CheckExtremes(const Export& function, const test::Image<T>& image, int pixels, int height) {
  const Name member(function.name);
  T first[4] = {}, second[4] = {};
  int x[4] = {}, y[4] = {};
  const bool isBoth = member.operation == "MinMax", isIndexed = member.operation.ends_with("Indx");
  const Argument arguments[] = {{image.data()},
                                {nullptr, image.step()},
                                {nullptr, pixels, height},
                                {first},
                                {isBoth ? static_cast<void*>(second) : x},
                                {y}};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError) << function.name;
  for (int c = 0; c < member.written; ++c) {
    const Extreme<T> expected(image, pixels, height, member.channels, c, member.operation.starts_with("Min"));
    ASSERT_TRUE(test::SameBits(first[c], expected.value))
        << function.name << ' ' << pixels << 'x' << height << " channel " << c << ' ' << +first[c] << ' '
        << +expected.value;
    if (isIndexed) {
      ASSERT_EQ(x[c], expected.x) << function.name << ' ' << pixels << 'x' << height << " channel " << c;
      ASSERT_EQ(y[c], expected.y) << function.name << ' ' << pixels << 'x' << height << " channel " << c;
    }
    if (isBoth) {
      const Extreme<T> greatest(image, pixels, height, member.channels, c, false);
      ASSERT_TRUE(test::SameBits(second[c], greatest.value)) << function.name << " channel " << c;
    }
  }
  for (int c = member.written; c < 4; ++c) EXPECT_TRUE(test::SameBits(first[c], T{})) << function.name;
}

// Few different values, so that there are many ties.
template <class T>
T TiedValue(test::Random& random, int kind) {
  using L = std::numeric_limits<T>;
  if (kind == 0) return static_cast<T>(1 + random.Next() % 5);
  if constexpr (!L::is_integer) {
    const T specials[] = {NAN, NAN, 0.0f, -0.0f, 1, -1, INFINITY, -INFINITY};
    return kind == 1 ? specials[random.Next() % 4] : kind == 2 ? specials[random.Next() % 8] : specials[0];
  }
  const T specials[] = {L::lowest(), L::max(), 0, 1};
  return kind == 1 ? specials[random.Next() % 4] : kind == 2 ? L::max() : L::lowest();
}

TEST(Extrema, AreThoseOfTheFirstPixelThatHasThem) {
  for (const Export* function : test::FamilyOf({"Min", "Max", "MinMax", "MinIndx", "MaxIndx"})) {
    const Name member(function->name);
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const QvpiSize size : {QvpiSize{1, 1}, {1, 9}, {7, 3}, {16, 2}, {37, 4}, {100, 3}, {4100, 2}, {13000, 1}}) {
        for (int kind = 0; kind < 4; ++kind) {
          for (const int gap : {0, 5}) {
            const int samples = size.width * member.channels;
            test::Image<T> image(samples, size.height, gap);
            test::Random random(size.width + kind);
            for (int i = 0; i < samples * size.height; ++i)
              image.Put(i % samples, i / samples, TiedValue<T>(random, kind));
            CheckExtremes(*function, image, size.width, size.height);
          }
        }
      }
    });
  }
}

TEST(Extrema, AreFoundInEveryPlace) {
  for (const Export* function : test::FamilyOf({"MinIndx", "MaxIndx", "MinMax"})) {
    const Name member(function->name);
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const int pixels : {33, 150}) {
        const int samples = pixels * member.channels;
        for (int place = 0; place < samples; place += 1 + place / 40) {
          test::Image<T> image(samples, 2, 3);
          for (int i = 0; i < 2 * samples; ++i) image.Put(i % samples, i / samples, 5);
          image.Put(place, 1, member.operation == "MaxIndx" ? 6 : 4);
          CheckExtremes(*function, image, pixels, 2);
        }
      }
    });
  }
}

// All partial sums fill, whatever the width; and neither the width nor packing has an influence.
TEST(FastSums, DependNeitherOnTheWidthNorOnPacking) {
  const int n = 1 << 21;
  std::vector<float> ones(n, 1.0f), rows(2 * n, 1.0f);
  for (const int width : {1, 3, 7, 47, 100}) {
    double packed = 0, gaps = 0;
    const QvpiSize roi{width, n / width};
    ASSERT_EQ(qvpiSum_32f_C1R(ones.data(), 4 * width, roi, &packed, qvpAlgHintFast), 0);
    EXPECT_EQ(packed, roi.width * roi.height);
    ASSERT_EQ(qvpiSum_32f_C1R(rows.data(), 8 * width, roi, &gaps, qvpAlgHintFast), 0);
    EXPECT_EQ(gaps, packed);
  }
  test::Random random(2);
  for (float& v : ones) v = static_cast<float>(random.Next() % 100000) / 7;
  const auto sumOf = [&](int width, const auto& function) {
    double sums[3] = {};
    function(width, sums);
    return sums[0];
  };
  const auto norm = [&](int width, double* value) {
    qvpiNorm_L2_32f_C1R(ones.data(), 4 * width, {width, 48000 / width}, value, qvpAlgHintFast);
  };
  const auto dot = [&](int width, double* value) {
    qvpiDotProd_32f64f_C1R(ones.data(), 4 * width, ones.data() + 7, 4 * width, {width, 48000 / width}, value, 1);
  };
  const auto mean = [&](int width, double* value) {
    qvpiMean_32f_C3R(ones.data(), 12 * width, {width, 15000 / width}, value, qvpAlgHintFast);
  };
  for (const int width : {1, 2, 5, 24, 100, 375}) {
    EXPECT_EQ(sumOf(width, norm), sumOf(3000, norm)) << width;
    EXPECT_EQ(sumOf(width, dot), sumOf(3000, dot)) << width;
    EXPECT_EQ(sumOf(width, mean), sumOf(3000, mean)) << width;
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
