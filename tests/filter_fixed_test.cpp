// Filters with fixed kernels and gradients, against their tables of coefficients.
#include <cmath>
#include <functional>
#include <map>

#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Element;
using test::ElementOf;
using test::Export;
using test::Name;
using test::Real;
using test::Region;
using test::RegionOf;

// Coefficients of a kernel as products of a column and a row, of which a second may be added.
using Axis = std::vector<int>;
struct Kernel {
  Axis row, column, row2 = {}, column2 = {};
};
const Axis kSmooth3{1, 2, 1}, kSmooth5{1, 4, 6, 4, 1}, kSlope3{-1, 0, 1}, kSlope5{-1, -2, 0, 2, 1}, kBend3{1, -2, 1},
    kBend5{1, 0, -2, 0, 1}, kOnes3{1, 1, 1}, kOnes5{1, 1, 1, 1, 1}, kLine5{-2, -1, 0, 1, 2}, kScharr{3, 10, 3};
const std::map<std::string, std::map<int, Kernel>> kKernels{
    {"Binomial", {{3, {kSmooth3, kSmooth3}}, {5, {kSmooth5, kSmooth5}}}},
    {"Sharpen", {{3, {kSmooth3, kSmooth3}}, {5, {kSmooth5, kSmooth5}}}},
    {"SobelX", {{3, {kSlope3, kSmooth3}}, {5, {kSlope5, kSmooth5}}}},
    {"SobelY", {{3, {kSmooth3, kSlope3}}, {5, {kSmooth5, kSlope5}}}},
    {"SobelXX", {{3, {kBend3, kSmooth3}}, {5, {kBend5, kSmooth5}}}},
    {"SobelYY", {{3, {kSmooth3, kBend3}}, {5, {kSmooth5, kBend5}}}},
    {"SobelXY", {{3, {kSlope3, kSlope3}}, {5, {kSlope5, kSlope5}}}},
    {"ScharrX", {{3, {kSlope3, kScharr}}}},
    {"ScharrY", {{3, {kScharr, kSlope3}}}},
    {"PrewittX", {{3, {kSlope3, kOnes3}}, {5, {kLine5, kOnes5}}}},
    {"PrewittY", {{3, {kOnes3, kSlope3}}, {5, {kOnes5, kLine5}}}},
    {"Laplace", {{3, {}}, {5, {kBend5, kSmooth5, kSmooth5, kBend5}}}},
    {"HighPass", {{3, {kOnes3, kOnes3}}, {5, {kOnes5, kOnes5}}}},
    {"RobertsDown", {{2, {}}}},
    {"RobertsUp", {{2, {}}}},
};

std::string KindOf(const std::string& function) {
  const std::string operation = Name(function).operation;  // FilterSobelXBorder
  return operation.substr(6, operation.size() - 12);
}

// Sums in the numbers of F, each operation rounded.
template <class F>
class Sums {
 public:
  using Value = std::function<F(int)>;

  // The middle, then the pairs around it; taps of 0 are left out.
  static F Along(const Axis& taps, const Value& value) {
    const int middle = static_cast<int>(taps.size()) / 2;
    const bool isOdd = taps.front() == -taps.back();
    bool isFirst = true;
    volatile F sum = 0;
    for (int d = 0; d <= middle; ++d) {
      if (taps[middle + d] == 0) continue;
      volatile F term = value(middle + d);
      if (d > 0) term = isOdd ? term - value(middle - d) : term + value(middle - d);
      term = static_cast<F>(taps[middle + d]) * term;
      sum = isFirst ? term : sum + term;
      isFirst = false;
    }
    return sum;
  }
  static F Tree(int n, const Value& value) {
    volatile F two = value(0) + value(1);
    if (n == 3) return two + value(2);
    volatile F more = value(2) + value(3);
    two = two + more;
    return two + value(4);
  }
  template <class Pixel>
  static F Product(const Axis& row, const Axis& column, const Pixel& pixel) {
    const int side = static_cast<int>(row.size());
    return Along(column,
                 [&](int j) { return Along(row, [&](int i) { return F(pixel(i - side / 2, j - side / 2)); }); });
  }

  // The kernel's sum; Binomial and Sharpen are not yet divided.
  template <class Pixel>
  static F Of(const std::string& kind, int side, const Pixel& pixel) {
    const auto at = [&](int i, int j) { return static_cast<F>(pixel(i, j)); };
    if (kind == "RobertsDown") return at(1, 1) - at(0, 0);
    if (kind == "RobertsUp") return at(1, 0) - at(0, 1);
    if (kind == "Laplace" && side == 3) {
      volatile F sides = at(-1, 0) + at(1, 0), ends = at(0, -1) + at(0, 1), centre = -4 * at(0, 0);
      sides = sides + ends;
      return centre + sides;
    }
    if (kind == "HighPass") {
      volatile F centre = static_cast<F>(side * side) * at(0, 0);
      return centre -
             Tree(side, [&](int j) { return Tree(side, [&](int i) { return at(i - side / 2, j - side / 2); }); });
    }
    const Kernel& kernel = kKernels.at(kind).at(side);
    volatile F sum = Product(kernel.row, kernel.column, pixel);
    if (!kernel.row2.empty()) sum = sum + Product(kernel.row2, kernel.column2, pixel);
    return sum;
  }
};

template <class Pixel>
Real Expected(const std::string& kind, int side, const Element& from, const Element& to, const Pixel& pixel) {
  const bool divides = kind == "Binomial" || kind == "Sharpen";
  const int divisor = side == 3 ? 16 : 256;
  if (from.isInteger) {
    int64_t sum = Sums<int64_t>::Of(kind, side, pixel);
    if (kind == "Sharpen") sum = 2 * divisor * static_cast<int64_t>(pixel(0, 0)) - sum;
    return divides ? test::Quotient(to, sum, divisor, qvpRoundNear) : test::Converted(to, sum);
  }
  volatile float sum = Sums<float>::Of(kind, side, pixel);
  if (divides) sum = sum * (1.0f / divisor);
  return kind == "Sharpen" ? 2 * static_cast<float>(pixel(0, 0)) - sum : sum;
}

test::Prepared BufferFor(QvpiSize mask, QvpiSize roi, const Element& element, int channels) {
  int bytes = 0;
  EXPECT_EQ(qvpiFilterFixedBorderGetBufferSize(mask, roi, element.code, channels, &bytes), 0);
  test::ExpectModest(bytes, test::kPlain, mask, roi, channels);
  return test::Prepared(bytes);
}

std::vector<const Export*> FixedFunctions() {
  std::vector<const Export*> functions;
  for (const Export& function : test::Exports()) {
    if (function.name.starts_with("qvpiFilter") && function.Has("maskSize") && function.name.ends_with("R") &&
        kKernels.count(KindOf(function.name)) == 1) {
      functions.push_back(&function);
    }
  }
  return functions;
}

// Calls the function on all of a scene, with outputs and what else it takes.
QvpStatus Filter(const Export& function, const Bordered& scene, QvpiSize mask, std::vector<test::Named> others) {
  const Region& r = scene.region;
  others.push_back({"maskSize", mask});
  return test::Filter(function, scene, test::WholeOf(scene), BufferFor(mask, r.size, scene.element(), r.channels),
                      others);
}

void CheckFixed(const Export& function, int side, const Region& r, test::Guard guard) {
  const Name name(function.name);
  const QvpiSize mask{side, side};
  const Bordered scene(name.From(), test::ReachOf(mask), r, guard);
  test::ExpectWindows(
      function, scene, test::FilterAll(function, scene, mask, test::kPlain, {{"maskSize", mask}}),
      [&, kind = KindOf(function.name)](const auto& pixel) {
        return Expected(kind, side, name.From(), name.To(), pixel);
      },
      test::Shown(mask), guard);
}

TEST(FilterFixed, EveryMemberEqualsItsTable) {
  int turn = 0;
  for (const Export* function : FixedFunctions()) {
    for (const auto& [side, kernel] : kKernels.at(KindOf(function->name))) {
      for (int i = 0; i < 8; ++i, ++turn) {
        CheckFixed(*function, side, RegionOf(turn, Name(function->name).channels, side == 3 ? 4 : 3),
                   turn % 2 ? test::Guard::kAfter : test::Guard::kBefore);
      }
    }
  }
  EXPECT_EQ(turn, 8 * (32 * 2 + 96 * 2 - 24));  // Scharr and Roberts have one mask
}

// One NaN or infinity spoils the results that have it under a coefficient, and no others.
TEST(FilterFixed, NaNReachesWhatItsCoefficientsReach) {
  for (const float bad : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
    // Each has rows or columns of zeros; Laplace is the sum of two whose zeros cross in four places.
    for (const auto& [function, count] : {std::pair{&qvpiFilterSobelXBorder_32f_C1R, 20},
                                          {&qvpiFilterLaplaceBorder_32f_C1R, 21},
                                          {&qvpiFilterBinomialBorder_32f_C1R, 25},
                                          {&qvpiFilterPrewittYBorder_32f_C1R, 20}}) {
      float src[81] = {}, dst[81];
      src[40] = bad;
      const auto buffer = BufferFor({5, 5}, {9, 9}, ElementOf("32f"), 1);
      ASSERT_EQ(function(src, 36, dst, 36, {9, 9}, {5, 5}, qvpBorderMirror, nullptr, buffer.buffer()), 0);
      EXPECT_EQ(std::count_if(dst, dst + 81, [](float v) { return !std::isfinite(v); }), count);
    }
  }
}

TEST(FilterFixed, KnownPictures) {
  const auto filtered = []<class R>(R, auto function, std::vector<Qvp8u> src, QvpiSize size, QvpiSize mask,
                                    int border) {
    std::vector<R> dst(src.size());
    const auto buffer = BufferFor(mask, size, ElementOf("8u"), 1);
    const Qvp8u zero = 0;
    const int step = size.width * static_cast<int>(sizeof(R));
    EXPECT_EQ(function(src.data(), size.width, dst.data(), step, size, mask, border, &zero, buffer.buffer()), 0);
    return dst;
  };
  std::vector<Qvp8u> impulse(25);
  impulse[12] = 255;
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterBinomialBorder_8u_C1R, impulse, {5, 5}, {3, 3}, qvpBorderReplicate)[6], 16);
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterBinomialBorder_8u_C1R, impulse, {5, 5}, {5, 5}, qvpBorderReplicate)[12], 36);
  impulse[12] = 100;
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterSharpenBorder_8u_C1R, impulse, {5, 5}, {3, 3}, qvpBorderReplicate)[12], 175);
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterSharpenBorder_8u_C1R, impulse, {5, 5}, {5, 5}, qvpBorderReplicate)[12], 186);
  impulse[12] = 2;
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterBinomialBorder_8u_C1R, impulse, {5, 5}, {3, 3}, qvpBorderReplicate)[12], 0);
  impulse[12] = 6;
  EXPECT_EQ(filtered(Qvp8u(), qvpiFilterBinomialBorder_8u_C1R, impulse, {5, 5}, {3, 3}, qvpBorderReplicate)[12], 2);
  const std::vector<Qvp8u> ramp{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, four{1, 2, 4, 8};
  using Words = std::vector<Qvp16s>;
  EXPECT_EQ(filtered(Qvp16s(), qvpiFilterSobelXBorder_8u16s_C1R, ramp, {10, 1}, {5, 5}, qvpBorderReplicate),
            (Words{64, 112, 128, 128, 128, 128, 128, 128, 112, 64}));
  EXPECT_EQ(filtered(Qvp16s(), qvpiFilterSobelXBorder_8u16s_C1R, ramp, {10, 1}, {3, 3}, qvpBorderMirror),
            (Words{0, 8, 8, 8, 8, 8, 8, 8, 8, 0}));
  EXPECT_EQ(filtered(Qvp16s(), qvpiFilterRobertsDownBorder_8u16s_C1R, four, {2, 2}, {2, 2}, qvpBorderMirror),
            (Words{7, 2, -2, -7}));
  EXPECT_EQ(filtered(Qvp16s(), qvpiFilterRobertsUpBorder_8u16s_C1R, four, {2, 2}, {2, 2}, qvpBorderReplicate),
            (Words{-2, -6, 4, 0}));
  EXPECT_EQ(filtered(Qvp16s(), qvpiFilterHighPassBorder_8u16s_C1R, std::vector<Qvp8u>(9, 255), {3, 3}, {3, 3},
                     qvpBorderConst),
            (Words{1275, 765, 1275, 765, 0, 765, 1275, 765, 1275}));
}

// ---- Gradients

struct Gradient {
  Real x, y;
};

Real Magnitude(QvpNormType norm, const Gradient& g) {
  const auto x = static_cast<float>(g.x), y = static_cast<float>(g.y);
  if (norm == qvpNormL1) return std::fabs(x) + std::fabs(y);
  if (norm == qvpNormInf)
    return std::isnan(x + y) && (std::isnan(x) || std::isnan(y)) ? NAN : std::max(std::fabs(x), std::fabs(y));
  const volatile float xx = x * x, yy = y * y, sum = xx + yy;
  return std::sqrt(static_cast<float>(sum));
}
Real Measure(QvpNormType norm, const Gradient& g) {
  const auto x = static_cast<float>(g.x), y = static_cast<float>(g.y);
  if (norm != qvpNormL2) return Magnitude(norm, g);
  const volatile float xx = x * x, yy = y * y, sum = xx + yy;
  return sum;
}

Gradient GradientAt(const Bordered& scene, const std::string& name, int side, QvpNormType norm, int x, int y) {
  Gradient largest{};
  for (int c = 0; c < scene.region.channels; ++c) {
    const auto pixel = [&](int dx, int dy) { return scene.Pixel(x + dx, y + dy, c); };
    const auto sum = [&](const std::string& kind) -> Real {
      if (scene.element().isInteger) return Sums<int64_t>::Of(kind, side, pixel);
      return Sums<float>::Of(kind, side, pixel);
    };
    const Gradient g{sum(name + "X"), sum(name + "Y")};
    if (c == 0 || Measure(norm, g) > Measure(norm, largest)) largest = g;
  }
  return largest;
}

// Each combination of outputs in turn.
void CheckVectors(const Export& function, int side, QvpNormType norm, const Region& r, int wanted) {
  const Name name(function.name);
  const QvpiSize mask{side, side};
  const std::string kind = function.name.find("Scharr") == std::string::npos ? "Sobel" : "Scharr";
  const Bordered scene(name.From(), test::ReachOf(mask), r);
  const Element& real = ElementOf("32f");
  const test::Samples gx(name.To(), r.size.width, r.size.height, 4), gy(name.To(), r.size.width, r.size.height, 8),
      magnitude(real, r.size.width, r.size.height, 12), angle(real, r.size.width, r.size.height, 0);
  const auto output = [&](int bit, const test::Samples& image) {
    return wanted & bit ? test::Argument(image) : test::Argument(nullptr, 1);
  };
  ASSERT_EQ(Filter(function, scene, mask,
                   {{"pGx", output(1, gx)},
                    {"pGy", output(2, gy)},
                    {"pMagnitude", output(4, magnitude)},
                    {"pAngle", output(8, angle)},
                    {"normType", norm}}),
            0);
  for (int y = 0; y < r.size.height; ++y) {
    for (int x = 0; x < r.size.width; ++x) {
      const Gradient g = GradientAt(scene, kind, side, norm, x, y);
      const std::string where = function.name + " at " + std::to_string(x) + "," + std::to_string(y);
      if (wanted & 1) {
        ASSERT_EQ(gx(x, y), g.x) << where;
      }
      if (wanted & 2) {
        ASSERT_EQ(gy(x, y), g.y) << where;
      }
      if (wanted & 4) {
        ASSERT_EQ(magnitude(x, y), Magnitude(norm, g)) << where;
      }
      if (wanted & 8) {
        ASSERT_NEAR(angle(x, y), std::atan2(g.y, g.x), 5e-6) << where;
      }
    }
  }
}

TEST(Gradients, EveryMemberEqualsItsDerivatives) {
  int turn = 0;
  for (const Export& function : test::Exports()) {
    if (!function.name.starts_with("qvpiFilterGradient")) continue;
    for (const int side : {3, 5}) {
      if (side == 5 && function.name.find("Scharr") != std::string::npos) continue;
      for (int i = 0; i < 12; ++i, ++turn) {
        CheckVectors(function, side, 1 + turn % 3, RegionOf(turn, Name(function.name).channels, side == 3 ? 4 : 3),
                     1 + turn % 15);
      }
    }
  }
}

void CheckMagnitude(const Export& function, int side, QvpNormType norm, const Region& r) {
  const Name name(function.name);
  const QvpiSize mask{side, side};
  const Bordered scene(name.From(), test::ReachOf(mask), r);
  const auto run = test::FilterAll(function, scene, mask, test::kPlain, {{"maskSize", mask}, {"normType", norm}});
  test::ExpectResults(function, scene, run, [&](int x, int y, int) {
    const Gradient g = GradientAt(scene, "Sobel", side, norm, x, y);
    const bool isWhole = name.From().isInteger && norm != qvpNormL2;
    const Real ax = std::fabs(g.x), ay = std::fabs(g.y);
    const Real whole = norm == qvpNormL1 ? ax + ay : std::max(ax, ay);
    return test::Converted(name.To(), isWhole ? whole : Magnitude(norm, g));
  });
}

TEST(Gradients, MagnitudesAreRoundedAndSaturated) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterSobel"})) {
    for (int i = 0; i < 30; ++i, ++turn) {
      Region r = RegionOf(turn, 1);
      if ((r.border & 15) == qvpBorderMirror) r.border -= 2;
      CheckMagnitude(*function, turn % 2 ? 3 : 5, 1 + turn % 3, r);
    }
  }
}

TEST(Gradients, AnglesOfZerosInfinitiesAndNaN) {
  const float inf = std::numeric_limits<float>::infinity(), nan = NAN;
  const auto angleOf = [](float x, float y) {
    // Slopes of x to the right and of y downward around the middle; halves keep them exact.
    const float src[9] = {0, -y / 2, 0, -x / 2, 0, x / 2, 0, y / 2, 0};
    float angle[9], magnitude[9];
    const auto buffer = BufferFor({3, 3}, {3, 3}, ElementOf("32f"), 1);
    EXPECT_EQ(qvpiFilterGradientSobelBorder_32f_C1R(src, 12, nullptr, 0, nullptr, 0, magnitude, 12, angle, 12, {3, 3},
                                                    {3, 3}, qvpNormInf, qvpBorderReplicate, nullptr, buffer.buffer()),
              0);
    EXPECT_EQ(std::isnan(magnitude[4]), std::isnan(angle[4]));
    return angle[4];
  };
  EXPECT_TRUE(test::SameBits(angleOf(0, 0), 0.0f));
  EXPECT_NEAR(angleOf(-1, 0), M_PI, 5e-6);
  EXPECT_NEAR(angleOf(inf, inf), M_PI / 4, 5e-6);
  EXPECT_NEAR(angleOf(-inf, 3), M_PI, 5e-6);
  EXPECT_NEAR(angleOf(3, -inf), -M_PI / 2, 5e-6);
  EXPECT_TRUE(std::isnan(angleOf(nan, 1)) && std::isnan(angleOf(1, nan)));
}

// ---- Tiles, refusals

TEST(FilterFixed, TakesTheMasksAndBordersOfEachKernel) {
  Qvp16u src[16] = {};
  Qvp32f dst[16];
  Qvp8u buffer[4096];
  const auto laplace = [&](QvpiSize mask, int border) {
    return qvpiFilterLaplaceBorder_16u32f_C1R(src, 8, dst, 16, {4, 4}, mask, border, nullptr, buffer);
  };
  EXPECT_EQ(laplace({3, 5}, qvpBorderReplicate), qvpStatusMaskSize);
  EXPECT_EQ(laplace({5, 5}, qvpBorderReplicateAlt), qvpStatusBorder);
  EXPECT_EQ(laplace({3, 3}, qvpBorderReplicateAlt), qvpStatusNoError);
  for (const int border : {2, 0x101}) EXPECT_EQ(laplace({3, 3}, border), qvpStatusBorder);
  EXPECT_EQ(qvpiFilterScharrXBorder_16u32f_C1R(src, 8, dst, 16, {4, 4}, {5, 5}, 1, nullptr, buffer), qvpStatusMaskSize);
  EXPECT_EQ(qvpiFilterRobertsUpBorder_16u32f_C1R(src, 8, dst, 16, {4, 4}, {2, 2}, 4, nullptr, buffer), qvpStatusBorder);
}

}  // namespace
