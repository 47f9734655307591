// Arithmetic on pixels: each function against one formula in numbers that hold the exact value, over its whole grid.
#include <cmath>
#include <limits>

#include "tests/support/elements.h"
#include "tests/support/reference.h"

namespace {
using test::Element;
using test::Image;
using test::Real;
using test::Samples;

// top / bottom * 2^-scale. More bits change no result: products stay below 2^32, divisors below 2^16.
Real Scaled(const Element& element, int64_t top, int64_t bottom, int scale, int mode = qvpRoundNear) {
  const int shift = std::clamp(scale, bottom == 1 ? -30 : -40, 40);
  const int64_t up = int64_t{1} << std::max(-shift, 0), down = int64_t{1} << std::max(shift, 0);
  return test::Quotient(element, top * up, bottom * down, mode);
}

// The same of irrational numbers and roots.
Real ScaledReal(const Element& element, Real value, int scale) {
  return test::Converted(element, std::ldexp(value, -std::clamp(scale, -1000000, 1000000)));
}

// A quotient by zero is beyond every bound.
Real ScaledQuotient(const Element& element, int64_t a, int64_t b, int scale, int mode) {
  if (a == 0) return b > 0 ? element.highest : b < 0 ? element.lowest : 0;
  return Scaled(element, b, a, scale, mode);
}

constexpr Real kLog2OfE = 1.44269504088896340735992468100189214L;

// What a function computes of its operands, by its name without "qvpi" and a C for a constant. One operand is `b`.
Real OfIntegers(const Element& element, std::string_view operation, int64_t a, int64_t b, int scale, int mode) {
  if (operation == "Add") return Scaled(element, a + b, 1, scale);
  if (operation == "Sub") return Scaled(element, b - a, 1, scale);
  if (operation == "Mul") return Scaled(element, a * b, 1, scale);
  if (operation == "MulScale") return Scaled(element, a * b, static_cast<int64_t>(element.highest), 0);
  if (operation == "Div" || operation == "Div_Round") return ScaledQuotient(element, a, b, scale, mode);
  if (operation == "Abs") return Scaled(element, std::abs(b), 1, scale);
  if (operation == "Sqr") return Scaled(element, b * b, 1, scale);
  if (operation == "Sqrt") return ScaledReal(element, std::sqrt(std::max<Real>(b, 0)), scale);
  if (operation == "Ln") return ScaledReal(element, std::log(Real(b)), scale);
  if (operation == "Exp") return ScaledReal(element, std::exp2(b * kLog2OfE - scale), 0);
  ADD_FAILURE() << "no formula for " << operation;
  return 0;
}

// Logarithms and exponents are as near as ErrorsOfFloatFunctions tells: in all layouts those of one channel.
float OfFloats(std::string_view operation, float a, float b) {
  float alone = 0;
  if (operation == "Add") return a + b;
  if (operation == "Sub") return b - a;
  if (operation == "Mul") return a * b;
  if (operation == "Div") return b / a;
  if (operation == "Abs") return std::fabs(b);
  if (operation == "Sqr") return b * b;
  if (operation == "Sqrt") return std::sqrt(b);
  if (operation == "Ln") return qvpiLn_32f_C1R(&b, 4, &alone, 4, {1, 1}), alone;
  if (operation == "Exp") return qvpiExp_32f_C1R(&b, 4, &alone, 4, {1, 1}), alone;
  ADD_FAILURE() << "no formula for " << operation;
  return 0;
}

// A function of the grid, by its name without a C for a constant, and what it takes.
struct Function {
  const test::Export& exported;
  test::Name name{exported.name};
  const Element& element = name.From();
  bool hasConstant = exported.Has("value"), hasScale = exported.Has("scaleFactor"), hasMode = exported.Has("roundMode");
  bool isBinary = exported.Has(name.inPlace ? "pSrc" : "pSrc2");
  std::string operation = std::string(name.operation).erase(hasConstant ? 3 : 0, hasConstant);

  template <class Fill>
  void Check(QvpiSize size, const Samples& constants, int scale, int mode, const Fill& fill, QvpStatus status) const {
    const auto expected = [&](Real a, Real b, int c) -> Real {
      const Real first = hasConstant ? constants(c, 0) : a;
      if (!element.isInteger) return OfFloats(operation, static_cast<float>(first), static_cast<float>(b));
      return OfIntegers(element, operation, static_cast<int64_t>(first), static_cast<int64_t>(b), hasScale ? scale : 0,
                        hasMode ? mode : qvpRoundNear);
    };
    const test::Argument value(constants.data(), static_cast<double>(constants(0, 0)));
    test::CheckElements(exported, size, {{"value", value}, {"scaleFactor", scale}, {"roundMode", mode}}, fill, expected,
                        status);
  }
};

template <class Suits>
std::vector<Function> Functions(const Suits& suits) {
  std::vector<Function> functions;
  for (const test::Export* exported : test::FamilyOf({"Add", "AddC", "Sub", "SubC", "Mul", "MulC", "MulScale",
                                                      "MulCScale", "Div", "DivC", "Abs", "Sqr", "Sqrt", "Ln", "Exp"})) {
    const Function f{*exported};
    if (suits(f)) functions.push_back(f);
  }
  return functions;
}

// Divisors have zeros, in one channel at least, or none but in alpha that is kept. Constants have none.
void Check(const Function& f, int width, int scale, int mode, unsigned seed) {
  const bool isDivision = f.operation.starts_with("Div") && !f.hasConstant, hasZeros = seed % 2;
  test::Random random(seed);
  const auto other = [&](Real value) { return value == 0 ? Real{3} : value; };
  const auto fill = [&](Samples& image) {
    image.Fill([&](int x, int) {
      const Real value = EdgeValue(image.element(), random);
      return isDivision && !hasZeros && x % f.name.channels < f.name.written ? other(value) : value;
    });
    const int zero = static_cast<int>(seed / 2) % image.width();
    if (isDivision && hasZeros) image.Put(zero - (zero % f.name.channels >= f.name.written), seed % 3 == 0, 0);
  };
  Samples constants(f.element, 4, 1, 0);
  constants.Fill([&](int, int) { return other(EdgeValue(f.element, random)); });
  const QvpStatus status = isDivision && hasZeros ? qvpStatusDivideByZero : qvpStatusNoError;
  f.Check({width, 2}, constants, scale, mode, fill, status);
}

constexpr int kScales[] = {0,  1,   2,   3,   5,   8,   9,   10,  15,        16,        17,
                           18, 30,  31,  32,  33,  34,  64,  100, -1,        -2,        -7,
                           -8, -9,  -14, -15, -16, -17, -31, -32, -33,       -40,       -64,
                           63, -63, 200, -90, 368, -65, 65,  22,  INT32_MAX, INT32_MIN, INT32_MIN + 1};

void CheckEach(std::string_view type) {
  unsigned seed = 1;
  for (const Function& f : Functions([&](const Function& of) { return of.name.type == type; })) {
    const size_t last = f.hasScale ? std::size(kScales) : 1;
    for (const int width : {1, 2, 5, 8, 11, 16, 17, 31, 32, 33, 48, 63, 64, 65, 100}) {
      for (size_t i = last == 1 ? 0 : seed % 4; i < last; i += 4) {  // others for the next width
        Check(f, width, kScales[i], static_cast<int>(seed % 3), seed);
        ++seed;
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

TEST(Arithmetic, Of8u) { CheckEach("8u"); }
TEST(Arithmetic, Of16u) { CheckEach("16u"); }
TEST(Arithmetic, Of16s) { CheckEach("16s"); }
TEST(Arithmetic, Of32f) { CheckEach("32f"); }

// Each pair of bytes; each value of the one operand of others, for words with the first ten scales.
TEST(Arithmetic, OfEveryPairOrValue) {
  constexpr int kFew = 10, kMany[] = {0,  1,  5,  12, -1, -6, -11, -16, 33, 94000, 2,  3,  4,  6,  7,  8,  9,
                                      10, 11, 13, 14, 15, 16, 17,  18,  -2, -3,    -4, -5, -7, -8, -9, -10};
  const auto fill = [](test::Pixels& a, test::Pixels& b) {
    const Real lowest = a.element().lowest;
    a.Fill([](int, int y) { return test::Pixel{Real(y)}; });
    b.Fill([&](int x, int y) { return test::Pixel{lowest + (a.element().bytes == 1 ? x : 256 * y + x)}; });
  };
  const auto suits = [](const Function& f) {
    const bool isPlain = f.name.layout == "C1" && !f.name.inPlace && !f.hasConstant && f.element.isInteger;
    return isPlain && (!f.isBinary || f.element.bytes == 1);
  };
  for (const Function& f : Functions(suits)) {
    const bool isByte = f.element.bytes == 1;
    for (int i = 0; i < (!f.hasScale ? 1 : isByte ? int{std::size(kMany)} : kFew); ++i) {
      for (int mode = 0; mode < (f.hasMode ? 3 : 1); ++mode) {
        f.Check({256, 256}, Samples(f.element, 4, 1, 0), kMany[i], mode, fill,
                f.operation.starts_with("Div") ? qvpStatusDivideByZero : qvpStatusNoError);
      }
    }
  }
}

float FloatFrom(uint32_t bits) {
  float value;
  std::memcpy(&value, &bits, sizeof(value));
  return value;
}

// Distance from the exact value in units in the last place of the nearest float.
double UlpsFrom(long double exact, float value) {
  const float nearest = static_cast<float>(exact);
  return static_cast<double>(std::abs(value - exact) /
                             (std::nextafter(std::abs(nearest), INFINITY) - std::abs(nearest)));
}

// The errors that the headers state, over floats spread evenly over all bits; what is no normal number is as near as
// it can be.
TEST(Arithmetic, ErrorsOfFloatFunctions) {
  constexpr int kCount = 4096;
  const Real least = std::numeric_limits<float>::min(), most = std::numeric_limits<float>::max();
  Image<float> src(kCount, 1, 0);
  const Image<float> dst(kCount, 1, 0);
  const auto check = [&](const auto& function, const auto& exact) {
    ASSERT_EQ(function(src.data(), src.step(), dst.data(), dst.step(), QvpiSize{kCount, 1}), 0);
    for (int i = 0; i < kCount; ++i) {
      const long double wanted = exact(static_cast<long double>(src(i, 0)));
      if (std::abs(wanted) >= least && std::abs(wanted) <= most) {
        ASSERT_LE(UlpsFrom(wanted, dst(i, 0)), 1.0) << src(i, 0);
      } else {
        ASSERT_TRUE(test::AreSame(dst(i, 0), static_cast<float>(wanted)) || std::abs(dst(i, 0) - wanted) <= 0x1p-148L)
            << src(i, 0) << " gives " << dst(i, 0);
      }
    }
  };
  for (int block = 0; block < 300; ++block) {
    test::Random random(block + 1);
    for (int i = 0; i < kCount; ++i) {
      const uint32_t small = random.Next() % 0x0D000000 + 0x36000000;  // 2^-19 to 2^7, of either sign
      src.Put(i, 0, FloatFrom(block % 2 ? small | random.Next() << 31 : random.Next()));
    }
    constexpr float kSpecials[] = {0, -0.0f, 1, -1, NAN, INFINITY, -INFINITY, 1e-45f, -1e-40f, 88.8f, -87.4f, -103.9f};
    for (size_t i = 0; i < std::size(kSpecials); ++i) src.Put(i * 300, 0, kSpecials[i]);
    check(qvpiLn_32f_C1R, [](long double v) { return std::log(v); });
    check(qvpiExp_32f_C1R, [](long double v) { return std::exp(v); });
  }
}

// Quotients are rounded correctly, with the sign of theirs even where they vanish; zero divisors are told.
TEST(Arithmetic, DividesFloatsCorrectly) {
  constexpr float kInfinity = INFINITY;
  std::vector<std::pair<float, float>> cases = {
      {0.0f, 2.0f},        {0.0f, -2.0f},       {-0.0f, 2.0f},  {-0.0f, -2.0f},   {0.0f, kInfinity}, {-0.0f, kInfinity},
      {0.0f, 0.0f},        {0.0f, -0.0f},       {-0.0f, 0.0f},  {0.0f, NAN},      {kInfinity, 2.0f}, {-kInfinity, 2.0f},
      {14.500001f, -0.0f}, {-282.50003f, 0.0f}, {1e-40f, 0.0f}, {1e-40f, 1e-40f}, {3e38f, -1e-30f},  {1e-45f, 3e38f}};
  test::Random random(5);
  for (int i = 0; i < 20000; ++i) {
    const float divisor = FloatFrom(random.Next());
    cases.insert(cases.end(), {{divisor, FloatFrom(random.Next())}, {divisor, -0.0f}, {divisor, 1e-38f}});
  }
  for (const auto& [divisor, dividend] : cases) {
    for (const int width : {1, 19}) {
      std::vector<float> a(width, 1.0f), b(width, 1.0f);
      a.back() = divisor;
      b.back() = dividend;
      ASSERT_EQ(qvpiDiv_32f_C1IR(a.data(), 4 * width, b.data(), 4 * width, {width, 1}),
                divisor == 0 ? qvpStatusDivideByZero : qvpStatusNoError);
      ASSERT_TRUE(test::AreSame(b.back(), dividend / divisor)) << dividend << " / " << divisor << " is " << b.back();
    }
  }
}

// One channel's zero is enough, of either sign.
TEST(Arithmetic, RefusesConstantsOfZero) {
  const Image<float> src(64, 1, 0), dst(64, 1, 0);
  for (const test::Export* function : test::FamilyOf({"DivC"})) {
    const test::Name name(function->name);
    test::WithType(name.From(), [&]<class T>() {
      for (int c = 0; c < name.written; ++c) {
        T values[4] = {1, 2, 3, 4};
        values[c] = static_cast<T>(-0.0f);
        EXPECT_EQ((*function)({{"pSrc", src},
                               {"pDst", dst},
                               {"pSrcDst", dst},
                               {"value", test::Argument(values, values[0])},
                               {"roiSize", QvpiSize{9, 1}},
                               {"scaleFactor", 0}}),
                  qvpStatusDivideByZeroError)
            << function->name;
      }
    });
  }
}

// Rows are taken together only where those of all images follow each other.
TEST(Arithmetic, OfPackedImagesBesidePaddedOnes) {
  for (int choice = 0; choice < 8; ++choice) {
    const Image<Qvp16s> a(33, 7, choice % 2 * 6), b(33, 7, choice / 2 % 2 * 10), dst(33, 7, choice / 4 * 4);
    ASSERT_EQ(qvpiSub_16s_C1RSfs(a.data(), a.step(), b.data(), b.step(), dst.data(), dst.step(), {33, 7}, 1), 0);
    for (int i = 0; i < 33 * 7; ++i) {
      const int x = i % 33, y = i / 33;
      ASSERT_EQ(dst(x, y), Scaled(test::ElementOf("16s"), b(x, y) - a(x, y), 1, 1))
          << x << ',' << y << " of " << choice;
    }
    ASSERT_EQ(qvpiAbs_16s_C1R(a.data(), a.step(), dst.data(), dst.step(), {33, 7}), 0);
    for (int i = 0; i < 33 * 7; ++i) ASSERT_EQ(dst(i % 33, i / 33), std::min(std::abs(a(i % 33, i / 33)), 32767));
  }
}

// Results that go past the caches leave in whole lines from any start, and are the same.
TEST(Arithmetic, OfLargeImages) {
  const int width = 7001, height = 4000, step = 7040;
  std::vector<Qvp8u> a(size_t{1} * step * height), b(a.size()), dst(a.size() + 3, 7);
  test::Random(1).Fill(a.data(), a.size());
  test::Random(2).Fill(b.data(), b.size());
  ASSERT_EQ(qvpiAdd_8u_C1RSfs(a.data(), step, b.data(), step, dst.data() + 3, step, {width, height}, 0), 0);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < step && y * size_t{1} * step + x < a.size(); ++x) {
      const size_t i = size_t{1} * y * step + x;
      ASSERT_EQ(dst[3 + i], x < width ? std::min(a[i] + b[i], 255) : 7) << x << ',' << y;
    }
  }
}

}  // namespace
