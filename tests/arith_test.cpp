// Arithmetic on pixels: each function against one formula in numbers that hold the exact value, over its whole grid.
#include <cmath>
#include <limits>

#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Guard;
using test::Image;

template <class T>
using Limits = std::numeric_limits<T>;

struct Fraction {
  int64_t top, bottom;  // the bottom is positive
};

// top / bottom * 2^-scale by the rounding mode and saturated, in integers. More than 48 bits change no result.
template <class T>
T Scaled(Fraction f, int scale, int mode = qvpRoundNear) {
  const int shift = std::min(std::abs(std::max(scale, -100)), 48);
  const int64_t magnitude = std::abs(f.top), many = int64_t{1} << 40;
  const bool isLarge = scale < 0 && magnitude / f.bottom >= (many >> shift) && magnitude != 0;
  const long double top = std::ldexp(static_cast<long double>(magnitude), scale < 0 && !isLarge ? shift : 0);
  const long double bottom = std::ldexp(static_cast<long double>(f.bottom), scale > 0 ? shift : 0);
  const long double whole = isLarge ? many : std::floor(top / bottom);
  const long double twice = 2 * std::fmod(top, bottom);
  const bool up = mode == qvpRoundNear ? twice > bottom || (twice == bottom && std::fmod(whole, 2) != 0)
                                       : mode == qvpRoundFinancial && twice >= bottom;
  const long double rounded = (f.top < 0 ? -1 : 1) * (whole + up);
  return static_cast<T>(std::clamp<long double>(rounded, Limits<T>::min(), Limits<T>::max()));
}

// The same of irrational numbers and roots.
template <class T>
T ScaledReal(long double value, int scale) {
  if (std::isnan(value)) return Limits<T>::lowest();
  const long double scaled = std::nearbyint(std::ldexp(value, -std::clamp(scale, -1000000, 1000000)));
  return static_cast<T>(std::clamp<long double>(scaled, Limits<T>::min(), Limits<T>::max()));
}

// A quotient by zero is beyond every bound.
template <class T>
T ScaledQuotient(int a, int b, int scale, int mode) {
  if (a == 0) return b > 0 ? Limits<T>::max() : b < 0 ? Limits<T>::min() : T{0};
  return Scaled<T>({a < 0 ? -b : b, std::abs(a)}, scale, mode);
}

constexpr long double kLog2OfE = 1.44269504088896340735992468100189214L;

float FloatFrom(uint32_t bits) {
  float value;
  std::memcpy(&value, &bits, sizeof(value));
  return value;
}

// What a function computes of its operands, by its name without "qvpi" and a C for a constant. One operand is `b`.
template <class T>
T Expected(const std::string& operation, T a, T b, int scale, int mode) {
  if constexpr (std::is_integral_v<T>) {
    const int64_t x = a, y = b;
    if (operation == "Add") return Scaled<T>({x + y, 1}, scale);
    if (operation == "Sub") return Scaled<T>({y - x, 1}, scale);
    if (operation == "Mul") return Scaled<T>({x * y, 1}, scale);
    if (operation == "MulScale") return Scaled<T>({x * y, Limits<T>::max()}, 0);
    if (operation == "Div" || operation == "Div_Round") return ScaledQuotient<T>(a, b, scale, mode);
    if (operation == "Abs") return Scaled<T>({std::abs(y), 1}, scale);
    if (operation == "Sqr") return Scaled<T>({y * y, 1}, scale);
    if (operation == "Sqrt") return ScaledReal<T>(std::sqrt(static_cast<long double>(std::max<int64_t>(y, 0))), scale);
    if (operation == "Ln") return ScaledReal<T>(std::log(static_cast<long double>(y)), scale);
    if (operation == "Exp") return ScaledReal<T>(std::exp2(y * kLog2OfE - scale), 0);
  } else {
    if (operation == "Add") return a + b;
    if (operation == "Sub") return b - a;
    if (operation == "Mul") return a * b;
    if (operation == "Div") return b / a;
    if (operation == "Abs") return std::fabs(b);
    if (operation == "Sqr") return b * b;
    if (operation == "Sqrt") return std::sqrt(b);
    if (operation == "Ln") return static_cast<float>(std::log(static_cast<double>(b)));
    if (operation == "Exp") return static_cast<float>(std::exp(static_cast<double>(b)));
  }
  ADD_FAILURE() << "no formula for " << operation;
  return {};
}

// A function of the grid, by its name without a C for a constant, and what it takes.
struct Function {
  const test::Export* exported;
  test::Name name{exported->name};
  std::string operation = name.operation;
  int channels = name.channels, written = name.written;
  bool inPlace = name.inPlace, hasConstant = exported->Has("value");
  int operands = hasConstant || exported->Has(inPlace ? "pSrc" : "pSrc2") ? 2 : 1;
};

std::vector<Function> Functions(const std::string& type) {
  std::vector<Function> functions;
  for (const test::Export* exported : test::FamilyOf({"Add", "AddC", "Sub", "SubC", "Mul", "MulC", "MulScale",
                                                      "MulCScale", "Div", "DivC", "Abs", "Sqr", "Sqrt", "Ln", "Exp"})) {
    Function f{exported};
    if (f.name.type != type) continue;
    if (f.hasConstant) f.operation.erase(3, 1);  // the C
    functions.push_back(f);
  }
  EXPECT_FALSE(functions.empty()) << type;
  return functions;
}

// Calls with the operands a and b; where there is one operand, or a constant is the other, the image is b. In place,
// dst holds b already.
template <class T>
QvpStatus Call(const Function& f, const Image<T>& a, const Image<T>& b, const Image<T>& dst, QvpiSize roi, int scale,
               int mode) {
  const auto first = f.operands == 1 || f.hasConstant ? &b : &a;
  return (*f.exported)({{"pSrc", *first},
                        {"pSrc1", *first},
                        {"pSrc2", b},
                        {"pDst", dst},
                        {"pSrcDst", dst},
                        {"value", {a.data(), a(0, 0)}},
                        {"roiSize", roi},
                        {"scaleFactor", scale},
                        {"roundMode", mode}});
}

template <class T>
void FillWithEdges(Image<T>& image, const test::Element& element, int samples, int height, unsigned seed) {
  test::Random random(seed);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < samples; ++x) image.Put(x, y, static_cast<T>(test::EdgeValue(element, random)));
  }
}

// Constants that no function refuses.
template <class T>
void MakeConstants(Image<T>& values, int count) {
  for (int c = 0; c < count; ++c) {
    if (values(c, 0) == 0) values.Put(c, 0, T{3});
  }
}

// Functions of floats that are not rounded exactly; the others give the very bits.
bool IsClose(const std::string& operation, float x, float expected) {
  const bool isApproximate = operation == "Ln" || operation == "Exp";
  if (!isApproximate || !std::isfinite(expected)) return false;
  return std::abs(x - expected) <= 2 * (std::nextafter(std::abs(expected), INFINITY) - std::abs(expected));
}
template <class T>
bool IsClose(const std::string&, T, T) {
  return false;
}

template <class T>
void Check(const Function& f, int width, int gap, int scale, int mode, unsigned seed) {
  const int height = 2, samples = width * f.channels;
  Image<T> a(f.hasConstant ? f.written : samples, f.hasConstant ? 1 : height, gap + 2), b(samples, height, gap + 1);
  FillWithEdges(a, f.name.From(), f.hasConstant ? f.written : samples, f.hasConstant ? 1 : height, seed);
  FillWithEdges(b, f.name.From(), samples, height, seed + 1);
  if (f.hasConstant) MakeConstants(a, f.written);
  Image<T> before(samples, height, gap, seed % 2 ? Guard::kBefore : Guard::kAfter);
  if (f.inPlace) FillWithEdges(before, f.name.From(), samples, height, seed + 1);
  const Image<T> dst(before);
  const QvpStatus status = Call(f, a, b, dst, {width, height}, scale, mode);
  bool dividesByZero = false;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < samples; ++x) {
      const bool kept = x % f.channels >= f.written;
      const T first = kept ? T{1} : f.hasConstant ? a(x % f.channels, 0) : f.operands == 1 ? T{1} : a(x, y);
      dividesByZero |= first == 0;
      const T result = dst(x, y);
      const T expected = kept ? before(x, y) : Expected<T>(f.operation, first, b(x, y), scale, mode);
      ASSERT_TRUE(test::AreSame(result, expected) || IsClose(f.operation, result, expected))
          << f.exported->name << ": " << +first << ", " << +b(x, y) << " scale " << scale << " mode " << mode
          << " width " << width << " at " << x << ": " << +result << ", not " << +expected;
    }
  }
  const bool warns = f.operation.starts_with("Div") && !f.hasConstant && dividesByZero;
  ASSERT_EQ(status, warns ? qvpStatusDivideByZero : qvpStatusNoError) << f.exported->name;
}

template <class T>
void CheckEach(const char* type, const std::vector<int>& scales) {
  unsigned seed = 1;
  for (const Function& f : Functions(type)) {
    const int last = !f.exported->Has("scaleFactor") ? 1 : static_cast<int>(scales.size());
    constexpr int kWidths[] = {1, 2, 5, 8, 11, 16, 17, 31, 32, 33, 48, 63, 64, 65, 100};
    for (const int width : kWidths) {
      for (int i = last == 1 ? 0 : static_cast<int>(seed % 4); i < last; i += 4) {  // others for the next width
        const int mode = f.operation == "Div_Round" ? static_cast<int>(seed % 3) : qvpRoundNear;
        Check<T>(f, width, static_cast<int>(seed % 4), scales[i], mode, seed);
        ++seed;
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

const std::vector<int> kScales = {0,  1,   2,   3,   5,   8,   9,   10,  15,        16,        17,
                                  18, 30,  31,  32,  33,  34,  64,  100, -1,        -2,        -7,
                                  -8, -9,  -14, -15, -16, -17, -31, -32, -33,       -40,       -64,
                                  63, -63, 200, -90, 368, -65, 65,  22,  INT32_MAX, INT32_MIN, INT32_MIN + 1};

TEST(Arithmetic, Of8u) { CheckEach<Qvp8u>("8u", kScales); }
TEST(Arithmetic, Of16u) { CheckEach<Qvp16u>("16u", kScales); }
TEST(Arithmetic, Of16s) { CheckEach<Qvp16s>("16s", kScales); }
TEST(Arithmetic, Of32f) { CheckEach<Qvp32f>("32f", {0}); }

// Operands that give each pair of 8-bit values once, as one row.
struct Pairs {
  Image<Qvp8u> a{65536, 1, 0}, b{65536, 1, 0}, dst{65536, 1, 0};
  Pairs() {
    for (int i = 0; i < 65536; ++i) {
      a.Put(i, 0, static_cast<Qvp8u>(i >> 8));
      b.Put(i, 0, static_cast<Qvp8u>(i));
    }
  }
};

TEST(Arithmetic, OfEveryPairOf8u) {
  const Pairs pairs;
  for (const Function& f : Functions("8u")) {
    if (f.channels != 1 || f.inPlace || f.hasConstant || f.operands == 1) continue;
    const bool hasScale = f.exported->Has("scaleFactor");
    for (int scale = hasScale ? -10 : 0; scale <= (hasScale ? 18 : 0); ++scale) {
      for (const int mode : {0, 1, 2}) {
        if (mode != 1 && f.operation != "Div_Round") continue;
        Call(f, pairs.a, pairs.b, pairs.dst, {65536, 1}, scale, mode);
        for (int i = 0; i < 65536; ++i) {
          const Qvp8u expected = Expected<Qvp8u>(f.operation, pairs.a(i, 0), pairs.b(i, 0), scale, mode);
          ASSERT_EQ(pairs.dst(i, 0), expected)
              << f.exported->name << ' ' << i << " scale " << scale << " mode " << mode;
        }
      }
    }
  }
}

template <class T>
void CheckEveryValue(const char* type) {
  Image<T> all(65536, 1, 0);
  for (int i = 0; i < 65536; ++i) all.Put(i, 0, static_cast<T>(i));
  const Image<T> dst(65536, 1, 0);
  for (const Function& f : Functions(type)) {
    if (f.channels != 1 || f.inPlace || f.hasConstant || f.operands == 2) continue;
    for (const int scale : {0, 1, 5, 12, -1, -6, -11, -16, 33, 94000}) {
      Call(f, all, all, dst, {65536, 1}, scale, 0);
      const int applied = !f.exported->Has("scaleFactor") ? 0 : scale;
      for (int i = 0; i < 65536; ++i) {
        ASSERT_EQ(dst(i, 0), Expected<T>(f.operation, T{1}, all(i, 0), applied, 1))
            << f.exported->name << ' ' << +all(i, 0) << " scale " << scale;
      }
    }
  }
}

TEST(Arithmetic, OfEveryValue) {
  CheckEveryValue<Qvp8u>("8u");
  CheckEveryValue<Qvp16u>("16u");
  CheckEveryValue<Qvp16s>("16s");
}

// Distance from the exact value in units in the last place of the nearest float.
double UlpsFrom(long double exact, float value) {
  const float nearest = static_cast<float>(exact);
  return static_cast<double>(std::abs(value - exact) /
                             (std::nextafter(std::abs(nearest), INFINITY) - std::abs(nearest)));
}

// The errors that the headers state, over floats spread evenly over all bits.
TEST(Arithmetic, ErrorsOfFloatFunctions) {
  constexpr int kCount = 4096;
  Image<float> a(kCount, 1, 0), b(kCount, 1, 0);
  const Image<float> dst(kCount, 1, 0);
  double worst[3] = {};
  for (int block = 0; block < 300; ++block) {
    test::Random random(block + 1);
    for (int i = 0; i < kCount; ++i) {
      a.Put(i, 0, FloatFrom(random.Next()));
      const uint32_t small = random.Next() % 0x0D000000 + 0x36000000;  // 2^-19 to 2^7, of either sign
      b.Put(i, 0, FloatFrom(block % 2 ? small | random.Next() << 31 : random.Next()));
    }
    const auto measure = [&](double& error, auto exact) {
      for (int i = 0; i < kCount; ++i) {
        const long double e = exact(i);
        if (std::abs(e) >= Limits<float>::min() && std::abs(e) <= Limits<float>::max()) {
          error = std::max(error, UlpsFrom(e, dst(i, 0)));
        }
      }
    };
    ASSERT_EQ(qvpiLn_32f_C1R(b.data(), b.step(), dst.data(), dst.step(), {kCount, 1}), 0);
    measure(worst[0], [&](int i) { return std::log(static_cast<long double>(b(i, 0))); });
    ASSERT_EQ(qvpiExp_32f_C1R(b.data(), b.step(), dst.data(), dst.step(), {kCount, 1}), 0);
    measure(worst[1], [&](int i) { return std::exp(static_cast<long double>(b(i, 0))); });
    ASSERT_GE(qvpiDiv_32f_C1R(a.data(), a.step(), b.data(), b.step(), dst.data(), dst.step(), {kCount, 1}), 0);
    measure(worst[2], [&](int i) { return static_cast<long double>(b(i, 0)) / a(i, 0); });
  }
  EXPECT_LE(worst[0], 1.0) << "logarithm";
  EXPECT_LE(worst[1], 1.0) << "exponent";
  EXPECT_LE(worst[2], 2.0) << "division";
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
  const Image<Qvp8u> b(8, 2, 0), dst(8, 2, 0);
  Image<Qvp8u> zero(1, 1, 0);
  zero.Put(0, 0, 0);
  for (const Function& f : Functions("8u")) {
    if (f.channels != 1 || f.inPlace || f.operation != "Div" || !f.hasConstant) continue;
    EXPECT_EQ(Call(f, zero, b, dst, {8, 2}, 0, 1), qvpStatusDivideByZeroError);
  }
  const Qvp32f constants[3] = {1, -0.0f, 2}, values[3] = {5, 6, 7};
  Qvp32f out[3];
  EXPECT_EQ(qvpiDivC_32f_C3R(values, 12, constants, out, 12, {1, 1}), qvpStatusDivideByZeroError);
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
