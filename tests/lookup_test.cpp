// Look-ups through levels: curves against their definitions, in exact fractions or in long double; and records.
#include <cmath>
#include <limits>

#include "tests/support/elements.h"

namespace {
using test::Block;
using test::Export;
using test::Guard;
using test::Image;
using test::Name;
using test::Random;
using test::Real;

struct Curve {
  std::vector<float> levels, values;
  int Count() const { return static_cast<int>(levels.size()); }
};

Real SlopeAtEnd(Real h, Real g, Real d, Real e) {
  const Real slope = ((2 * h + g) * d - h * e) / (h + g);
  if (slope * d <= 0) return 0;
  return d * e < 0 && std::fabs(slope) > 3 * std::fabs(d) ? 3 * d : slope;
}

// The curve, as it is documented.
Real At(const Curve& curve, QvpiLookupMethod method, Real v) {
  const auto& x = curve.levels;
  const auto& y = curve.values;
  const int n = curve.Count();
  if (std::isnan(v)) return v;
  if (v < x[0]) return y[0];
  if (v >= x[n - 1]) return y[n - 1];
  const auto gap = [&](int k) { return Real{x[k + 1]} - x[k]; };
  const auto steepness = [&](int k) { return (Real{y[k + 1]} - y[k]) / gap(k); };
  const auto slope = [&](int k) -> Real {
    if (n == 2) return steepness(0);
    if (k == 0) return SlopeAtEnd(gap(0), gap(1), steepness(0), steepness(1));
    if (k == n - 1) return SlopeAtEnd(gap(n - 2), gap(n - 3), steepness(n - 2), steepness(n - 3));
    const Real d = steepness(k - 1), e = steepness(k), h = gap(k), g = gap(k - 1);
    return d * e > 0 ? 3 * (h + g) / ((2 * h + g) / d + (h + 2 * g) / e) : 0;
  };
  int k = 0;
  while (x[k + 1] <= v) ++k;
  const Real u = (v - x[k]) / gap(k), rise = Real{y[k + 1]} - y[k];
  if (method == qvpLookupStep) return y[k];
  if (method == qvpLookupLinear) return y[k] + u * rise;
  const Real a = gap(k) * slope(k), b = gap(k) * slope(k + 1);
  return y[k] + u * (a + u * (3 * rise - 2 * a - b + u * (a + b - 2 * rise)));
}

// A record in memory that begins one byte behind a multiple of 64 and ends where the record has to: at a page that
// cannot be read.
class Record {
 public:
  Record(QvpDataType type, QvpiLookupMethod method, const std::vector<Curve>& curves) {
    std::vector<const float*> levels, values;
    std::vector<int> counts;
    for (const Curve& curve : curves) {
      levels.push_back(curve.levels.data());
      values.push_back(curve.values.data());
      counts.push_back(curve.Count());
    }
    const int channels = static_cast<int>(curves.size());
    int bytes = 0;
    EXPECT_EQ(qvpiLookupGetSize(type, method, counts.data(), channels, &bytes), qvpStatusNoError);
    block_ = std::make_unique<Block>(bytes - 1);
    EXPECT_EQ(qvpiLookupInit(type, method, levels.data(), values.data(), counts.data(), channels, spec()),
              qvpStatusNoError);
  }
  QvpiLookupSpec* spec() const { return reinterpret_cast<QvpiLookupSpec*>(block_->data()); }

 private:
  std::unique_ptr<Block> block_;
};

const char* const kTypes[] = {"8u", "16u", "16s", "32f"};
constexpr QvpiLookupMethod kMethods[] = {qvpLookupStep, qvpLookupLinear, qvpLookupCubic};

// What a curve makes of each number, in one row.
template <class T>
std::vector<T> Mapped(const std::string& type, QvpiLookupMethod method, const Curve& curve, const std::vector<T>& v) {
  const int n = static_cast<int>(v.size());
  const Record record(test::ElementOf(type).code, method, {curve});
  const Image<T> src(n, 1, 0), dst(n, 1, 0, Guard::kBefore);
  std::memcpy(src.bytes(), v.data(), n * sizeof(T));
  EXPECT_EQ(test::CallNamed("qvpiLookup_" + type + "_C1R",
                            {{"pSrc", src}, {"pDst", dst}, {"roiSize", QvpiSize{n, 1}}, {"pSpec", record.spec()}}),
            qvpStatusNoError);
  std::vector<T> result(n);
  std::memcpy(result.data(), dst.bytes(), n * sizeof(T));
  return result;
}

TEST(Lookup, GivesKnownValues) {
  using Bytes = std::vector<uint8_t>;
  const Curve tone{{0, 128, 255}, {0, 160, 255}}, ramp{{10, 20}, {0, 5}}, hill{{0, 64, 128, 192}, {10, 10, 200, 190}};
  EXPECT_EQ(Mapped<uint8_t>("8u", qvpLookupLinear, tone, {1, 64, 127, 129, 200, 254}),
            (Bytes{1, 80, 159, 161, 214, 254}));
  EXPECT_EQ(Mapped<uint8_t>("8u", qvpLookupCubic, tone, {1, 64, 127, 129, 200, 254}),
            (Bytes{2, 89, 159, 161, 221, 254}));
  EXPECT_EQ(Mapped<uint8_t>("8u", qvpLookupLinear, ramp, {10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}),
            (Bytes{0, 0, 1, 2, 2, 2, 3, 4, 4, 4, 5}));
  EXPECT_EQ(Mapped<uint8_t>("8u", qvpLookupCubic, hill, {32, 96, 160, 255}), (Bytes{10, 105, 199, 190}));
  EXPECT_EQ(Mapped<float>("32f", qvpLookupCubic, hill, {160}), (std::vector<float>{198.75f}));
  EXPECT_EQ(Mapped<uint8_t>("8u", qvpLookupStep, {{10, 20}, {7, 9}}, {0, 10, 19, 20, 255}), (Bytes{7, 7, 7, 9, 9}));
}

// Whole levels and values, beyond the type's range too: some close to each other, some far.
Curve WholeCurve(Random& random, int n) {
  const auto below = [&](int bound) { return static_cast<float>(random.Next() % bound); };
  Curve curve;
  float level = -below(3) * below(30000);
  for (int k = 0; k < n; ++k, level += 1 + below(random.Next() % 2 ? 7 : 130000 / n)) {
    curve.levels.push_back(level);
    curve.values.push_back(below(3) - 1 + below(random.Next() % 2 ? 260 : 100000) - below(2) * 30000);
  }
  return curve;
}

// Of a line through whole numbers: its exact fraction to the nearest, ties to even.
int64_t NearestOfLine(const Curve& curve, int v) {
  int k = 0;
  while (k + 2 < curve.Count() && curve.levels[k + 1] <= v) ++k;
  const auto x = static_cast<int64_t>(curve.levels[k]), h = static_cast<int64_t>(curve.levels[k + 1]) - x;
  const auto y = static_cast<int64_t>(curve.values[k]), rise = static_cast<int64_t>(curve.values[k + 1]) - y;
  const int64_t inside = std::clamp<int64_t>(v, x, x + h), top = y * h + (inside - x) * rise;
  const int64_t floor = top >= 0 ? top / h : -((-top + h - 1) / h), rest = 2 * (top - floor * h);
  return floor + (rest > h || (rest == h && floor % 2 != 0));
}

template <class T>
void CheckIntegers(const std::string& type, int curves) {
  using Limits = std::numeric_limits<T>;
  std::vector<T> all;
  for (int v = Limits::lowest(); v <= Limits::max(); ++v) all.push_back(static_cast<T>(v));
  Random random(7);
  for (int i = 0; i < curves; ++i) {
    const Curve curve = WholeCurve(random, 2 + static_cast<int>(random.Next() % 40));
    for (const auto method : kMethods) {
      const auto found = Mapped<T>(type, method, curve, all);
      for (size_t j = 0; j < all.size(); ++j) {
        const Real y = std::clamp<Real>(At(curve, method, all[j]), Limits::lowest(), Limits::max());
        if (method == qvpLookupCubic) {
          ASSERT_LE(std::fabs(found[j] - y), 0.5L + 1e-9L) << type << " cubic at " << +all[j];
        } else {
          const int64_t exact = method == qvpLookupStep ? static_cast<int64_t>(y) : NearestOfLine(curve, all[j]);
          ASSERT_EQ(found[j], std::clamp<int64_t>(exact, Limits::lowest(), Limits::max())) << type << " at " << +all[j];
        }
      }
    }
  }
}

TEST(Lookup, RoundsTheExactCurvesOfIntegers) {
  CheckIntegers<uint8_t>("8u", 60);
  CheckIntegers<uint16_t>("16u", 4);
  CheckIntegers<int16_t>("16s", 4);
}

// Levels at distances that differ by up to 2^30, with runs of equal values and turns, steep or flat.
Curve RealCurve(Random& random, int n, bool isEven) {
  const auto unit = [&] { return static_cast<float>(random.Next() >> 8) * 0x1p-24f; };
  Curve curve;
  double level = -50 * unit();
  const float scale = std::ldexp(1.0f, n % 3 * -6);
  for (int k = 0; k < n; ++k) {
    curve.levels.push_back(static_cast<float>(level));
    curve.values.push_back(k > 0 && random.Next() % 5 == 0 ? curve.values[k - 1] : (300 * unit() - 100) * scale);
    const double gap = isEven ? 1 : std::ldexp(1 + unit(), -static_cast<int>(random.Next() % 24));
    level = std::max<double>(level + gap, std::nextafterf(curve.levels[k], INFINITY));
  }
  return curve;
}

// Numbers at, beside and between the levels, and what is no number.
std::vector<float> Inputs(const Curve& curve, Random& random) {
  std::vector<float> v = {0.0f, -0.0f, NAN, INFINITY, -INFINITY, 1e-45f, 3e38f, -3e38f};
  for (const float level : curve.levels) {
    for (const float to : {-INFINITY, INFINITY}) v.push_back(std::nextafterf(level, to));
    v.push_back(level);
  }
  const float from = curve.levels.front(), width = curve.levels.back() - from;
  for (int i = 0; i < 400; ++i)
    v.push_back(from + width * (static_cast<float>(random.Next() >> 8) * 0x1.2p-24f - 0.05f));
  return v;
}

TEST(Lookup, KeepsFloatsWithinTheDocumentedErrors) {
  Random random(11);
  for (const int n : {2, 3, 4, 5, 6, 9, 16, 31, 32, 33, 34, 64, 65, 200, 1000}) {
    const Curve curve = RealCurve(random, n, n % 2 == 0);
    const std::vector<float> v = Inputs(curve, random);
    for (const auto method : kMethods) {
      const auto found = Mapped<float>("32f", method, curve, v);
      const int roundings = method == qvpLookupStep ? 0 : method == qvpLookupLinear ? 12 : 72;
      for (size_t i = 0; i < v.size(); ++i) {
        const int k =
            static_cast<int>(std::upper_bound(curve.levels.begin(), curve.levels.end(), v[i]) - curve.levels.begin());
        const Real before = curve.values[std::max(k - 1, 0)], after = curve.values[std::min(k, n - 1)];
        const Real bound = roundings * 0x1p-24L * std::max(std::fabs(before), std::fabs(after));
        const Real y = At(curve, method, v[i]);
        ASSERT_TRUE(std::isnan(v[i]) ? std::isnan(found[i]) : std::fabs(found[i] - y) <= bound)
            << n << " levels, method " << method << " at " << v[i] << ": " << found[i] << " not " << y;
      }
    }
  }
}

// Each member, with a curve for each channel and with one, gives what one channel gives alone.
template <class T>
void CheckLayouts(const Export& function, QvpiLookupMethod method, int pixels) {
  const Name name(function.name);
  Random random(pixels + method);
  std::vector<Curve> curves;
  for (const int n : {5, 40, 3, 31}) curves.push_back(RealCurve(random, n, true));
  for (const int count : {1, name.written}) {
    const Record record(name.From().code, method, {curves.begin(), curves.begin() + count});
    std::vector<Record> alone;
    for (int c = 0; c < count; ++c) alone.emplace_back(name.From().code, method, std::vector{curves[c]});
    const Export& forOne = test::FunctionNamed("qvpiLookup_" + name.type + "_C1R");
    test::CheckElements(
        function, {pixels, 2}, {{"pSpec", record.spec()}},
        [&](test::Samples& image) {
          const int most = sizeof(T) == 1 ? 255 : 1599;
          image.Fill([&](int, int) { return Real(random.Next() % (most + 1)) / (std::is_integral_v<T> ? 1 : 16); });
        },
        [&](Real, Real v, int c) {
          const T from = static_cast<T>(v);
          T to;
          EXPECT_EQ(forOne({{"pSrc", {&from, 8}},
                            {"pDst", {&to, 8}},
                            {"roiSize", QvpiSize{1, 1}},
                            {"pSpec", alone[count == 1 ? 0 : c].spec()}}),
                    qvpStatusNoError);
          return to;
        });
  }
}

TEST(Lookup, HasACurveForEachChannelOrOneForAll) {
  for (const Export* function : test::FamilyOf({"Lookup"})) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const auto method : kMethods) {
        for (const int pixels : {1, 3, 7, 8, 9, 33, 70}) CheckLayouts<T>(*function, method, pixels);
      }
    });
  }
}

TEST(LookupRecord, HasTheDocumentedSizes) {
  const auto size = [](QvpDataType type, QvpiLookupMethod method, std::vector<int> counts) {
    int bytes = -1;
    const auto status = qvpiLookupGetSize(type, method, counts.data(), static_cast<int>(counts.size()), &bytes);
    return std::pair(status, bytes);
  };
  const auto fits = [](int bytes) { return std::pair(+qvpStatusNoError, bytes); };
  EXPECT_EQ(size(qvp8u, qvpLookupCubic, {2, 300, 2}), fits(960));
  EXPECT_EQ(size(qvp16u, qvpLookupStep, {INT32_MAX}), fits(131264));
  EXPECT_EQ(size(qvp16s, qvpLookupStep, {2, 2, 2, 2}), fits(192 + 4 * 131072));
  EXPECT_EQ(size(qvp32f, qvpLookupLinear, {16}), fits(512));
  EXPECT_EQ(size(qvp32f, qvpLookupCubic, {5, 5, 5}), fits(1536));
  for (const int method : {3, -1}) EXPECT_EQ(size(qvp32f, method, {16}).first, qvpStatusInterpolation);
  const int most[] = {178956944, 107374160, 76695824};
  for (const auto method : kMethods) {
    EXPECT_EQ(size(qvp32f, method, {most[method]}).first, qvpStatusNoError) << method;
    EXPECT_EQ(size(qvp32f, method, {most[method] + 1}), std::pair(+qvpStatusSizeOverflow, 0)) << method;
  }
  EXPECT_EQ(size(qvp32f, qvpLookupStep, {INT32_MAX, INT32_MAX, INT32_MAX}).first, qvpStatusSizeOverflow);
}

// In the last channel; whatever fails leaves no record.
TEST(LookupRecord, RefusesCurvesThatAreNone) {
  const float nan = NAN, far = 3e38f, x[3] = {0, 1, 2}, y[3] = {0, 1, 2}, equal[3] = {0, 1, 1},
              unknown[3] = {0, nan, 2};
  const float infinite[3] = {0, 1, INFINITY}, steep[3] = {-far, far, 0}, close[3] = {0, 1e-39f, 1},
              wide[3] = {-far, 0, far};
  struct {
    QvpDataType type;
    QvpiLookupMethod method;
    const float *levels, *values;
    QvpStatus expected;
  } cases[] = {{qvp8u, 0, equal, infinite, qvpStatusRange},     {qvp32f, 0, unknown, infinite, qvpStatusRange},
               {qvp16u, 1, infinite, infinite, qvpStatusRange}, {qvp16s, 2, x, infinite, qvpStatusBadArgument},
               {qvp32f, 0, x, unknown, qvpStatusBadArgument},   {qvp32f, 1, x, steep, qvpStatusBadArgument},
               {qvp32f, 2, x, steep, qvpStatusBadArgument},     {qvp32f, 1, close, y, qvpStatusBadArgument},
               {qvp32f, 2, wide, y, qvpStatusBadArgument},      {qvp32f, 0, wide, steep, qvpStatusNoError},
               {qvp32f, 0, close, steep, qvpStatusNoError},     {qvp8u, 2, close, steep, qvpStatusNoError}};
  const int counts[3] = {3, 3, 3};
  for (const auto& c : cases) {
    for (const int channels : {1, 3}) {
      const float *const levels[3] = {x, x, c.levels}, *const values[3] = {y, y, c.values};
      const Record record(c.type, qvpLookupCubic, std::vector(3, Curve{{0, 1, 2}, {0, 1, 2}}));
      EXPECT_EQ(qvpiLookupInit(c.type, c.method, levels + 3 - channels, values + 3 - channels, counts, channels,
                               record.spec()),
                c.expected);
      float pixel[3] = {1, 1, 1};
      const bool isRecord = c.expected == qvpStatusNoError && c.type == qvp32f;
      EXPECT_EQ(qvpiLookup_32f_C3IR(pixel, 12, {1, 1}, record.spec()),
                isRecord ? qvpStatusNoError : qvpStatusContextMatch);
    }
  }
}

TEST(LookupRecord, ServesItsTypeAndNumberOfChannels) {
  const Curve curve{{0, 1}, {0, 1}};
  const std::vector<Curve> curves[] = {{curve}, {curve, curve, curve}, {curve, curve, curve, curve}};
  for (const char* type : kTypes) {
    for (const auto& of : curves) {
      const Record record(test::ElementOf(type).code, qvpLookupStep, of);
      for (const Export* function : test::FamilyOf({"Lookup"})) {
        const Name name(function->name);
        const Image<double> src(8, 1, 0), dst(8, 1, 0);
        const bool isServed = name.type == type && (of.size() == 1 || of.size() == static_cast<size_t>(name.written));
        EXPECT_EQ((*function)({{"pSrc", {src.data(), 64}},
                               {"pDst", {dst.data(), 64}},
                               {"pSrcDst", {dst.data(), 64}},
                               {"roiSize", QvpiSize{1, 1}},
                               {"pSpec", record.spec()}}),
                  isServed ? qvpStatusNoError : qvpStatusContextMatch)
            << function->name;
      }
    }
  }
}

}  // namespace
