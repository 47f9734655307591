// Filters that sum across, then down, against their formulas: the separable filter and that of Gauss.
#include <cmath>
#include <functional>

#include "tests/support/bordered.h"
#include "tests/support/gauss.h"

namespace {
using test::Block;
using test::Bordered;
using test::Element;
using test::ElementOf;
using test::Export;
using test::FunctionNamed;
using test::Name;
using test::Real;
using test::Region;
using test::RegionOf;

// ---- The separable filter

struct Axes {
  bool isInteger;
  std::vector<Real> row, column;
  int divisor = 1;
  QvpRoundMode mode = qvpRoundNear;

  QvpiSize size() const { return {static_cast<int>(row.size()), static_cast<int>(column.size())}; }
};

// Taps of magnitudes up to `limit`.
Axes RandomAxes(bool isInteger, QvpiSize size, int limit, int divisor = 1, QvpRoundMode mode = qvpRoundNear) {
  Axes axes{isInteger, {}, {}, divisor, mode};
  test::Random random(size.width * 31 + size.height + limit);
  const auto tap = [&] {
    const int k = static_cast<int>(random.Next() % (2 * limit + 1)) - limit;
    return isInteger ? static_cast<Real>(k) : static_cast<Real>(static_cast<float>(k / 128.0));
  };
  for (int i = 0; i < size.width; ++i) axes.row.push_back(tap());
  for (int j = 0; j < size.height; ++j) axes.column.push_back(tap());
  return axes;
}

auto FilterAll(const Export& function, const Bordered& scene, QvpiSize mask, const std::vector<test::Named>& demand,
               const char* kind = "") {
  EXPECT_LE(test::Preparation(function, scene.region.size, demand).sizes().spec, 64 * (mask.width + mask.height) + 512);
  return test::FilterAll(function, scene, mask, test::kPlain, demand, kind);
}

auto Separable(const Export& function, const Bordered& scene, const Axes& axes) {
  const Element& element = ElementOf(axes.isInteger ? "16s" : "32f");
  test::Samples row(element, axes.size().width, 1, 0), column(element, axes.size().height, 1, 0);
  row.Fill([&](int i, int) { return axes.row[i]; });
  column.Fill([&](int j, int) { return axes.column[j]; });
  return FilterAll(function, scene, axes.size(),
                   {{"pRowKernel", {row.bytes()}},
                    {"pColumnKernel", {column.bytes()}},
                    {"kernelSize", axes.size()},
                    {"kernelType", element.code},
                    {"divisor", axes.divisor},
                    {"roundMode", axes.mode}},
                   axes.isInteger ? "_16s" : "_32f");
}

// Taps are turned; sums in F, each operation rounded, the first product alone.
template <class F>
F SumAlong(const std::vector<Real>& taps, const std::function<F(int)>& value) {
  const int n = static_cast<int>(taps.size());
  volatile F sum = 0;
  for (int i = 0; i < n; ++i) {
    const volatile F product = static_cast<F>(taps[n - 1 - i]) * value(i - (n - 1) / 2);
    sum = i == 0 ? product : static_cast<F>(sum + product);
  }
  return sum;
}
template <class F>
F SumOf(const Axes& axes, const std::function<Real(int, int)>& pixel) {
  return SumAlong<F>(axes.column,
                     [&](int j) { return SumAlong<F>(axes.row, [&](int i) { return static_cast<F>(pixel(i, j)); }); });
}

void CheckSeparable(const Export& function, const Axes& axes, const Region& r) {
  const Name name(function.name);
  const Bordered scene(name.From(), test::ReachOf(axes.size()), r);
  const auto expected = [&](const auto& pixel) {
    if (axes.isInteger) return test::Quotient(name.To(), SumOf<int64_t>(axes, pixel), axes.divisor, axes.mode);
    return test::Converted(name.To(), SumOf<float>(axes, pixel), axes.mode);
  };
  test::ExpectWindows(function, scene, Separable(function, scene, axes), expected, test::Shown(axes.size()));
}

TEST(FilterSeparable, EveryMemberEqualsItsFormula) {
  constexpr QvpiSize kSizes[] = {{1, 1}, {3, 3}, {5, 2}, {2, 5}, {9, 9}, {15, 3}, {3, 15}, {1, 7}, {64, 1}, {4, 33}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterSeparableBorder"})) {
    const Name name(function->name);
    for (const QvpiSize size : kSizes) {
      // Sums across of 16 and of 32 bits, doubles, 64 bits.
      for (const int limit : {3, 100, 8000, 32767}) {
        ++turn;
        if (name.From().isInteger) {
          CheckSeparable(*function, RandomAxes(true, size, limit, 1 + limit * limit / 3, turn % 3),
                         RegionOf(turn, name.channels));
        }
        if (limit == 100) {
          CheckSeparable(*function, RandomAxes(false, size, limit, 1, turn % 3), RegionOf(turn, name.channels));
        }
      }
    }
  }
}

// Extreme pixels under extreme taps: at the bounds between the forms of sums nothing may wrap around.
TEST(FilterSeparable, NeverWrapsAround) {
  for (const auto& [type, lowest, highest] : {std::tuple{"8u", 0, 255}, {"16u", 0, 65535}, {"16s", -32768, 32767}}) {
    const Export& function = FunctionNamed(std::string("qvpiFilterSeparableBorder_") + type + "_C1R");
    for (const int tap : {1, 63, 64, 127, 128, 180, 181, 182, 2047, 2048, 32767, -32768}) {
      for (const QvpiSize size : {QvpiSize{1, 1}, {2, 1}, {3, 2}, {16, 16}, {40, 1000}}) {
        if (size.height > 100 && tap > 0 && tap < 32767) continue;
        for (const int divisor : {1, 1000, INT32_MAX, -7, INT32_MIN}) {
          Axes axes{true, std::vector<Real>(size.width, tap), std::vector<Real>(size.height, tap), divisor};
          if (size.width > 1) axes.row[0] = -tap - (tap == -32768);
          const Name name(function.name);
          Bordered scene(name.From(), {}, {{33, 1}, 1, qvpBorderReplicate});
          const auto run = Separable(function, scene, axes);
          for (const int pixel : {lowest, highest}) {
            scene.image.Fill([&](int, int) { return pixel; });
            const auto sum = SumOf<int64_t>(axes, [&](int, int) { return Real(pixel); });
            const Real expected = test::Quotient(name.To(), sum, divisor, axes.mode);
            test::ExpectResults(
                function, scene, run, [&](int, int, int) { return expected; },
                std::to_string(tap) + " / " + std::to_string(divisor));
          }
        }
      }
    }
  }
}

// Taps so large that sums may take 64 bits, which cancel each other but for one.
TEST(FilterSeparable, RoundsTiesOfLongSums) {
  const Export& function = FunctionNamed("qvpiFilterSeparableBorder_16s_C1R");
  std::vector<Real> taps{1};
  for (int i = 0; i < 10; ++i) taps.insert(taps.end(), {32767, -32767});
  for (const QvpRoundMode mode : {qvpRoundZero, qvpRoundNear, qvpRoundFinancial}) {
    for (const int divisor : {2, -2, 6}) {
      const Axes axes{true, taps, taps, divisor, mode};
      const Name name(function.name);
      Bordered scene(name.From(), {}, {{33, 1}, 1, qvpBorderReplicate});
      const auto run = Separable(function, scene, axes);
      for (const int pixel : {-9, -5, -3, -2, -1, 1, 2, 3, 4, 5, 9}) {
        scene.image.Fill([&](int, int) { return pixel; });
        const Real expected = test::Quotient(name.To(), int64_t{pixel}, divisor, mode);
        test::ExpectResults(
            function, scene, run, [&](int, int, int) { return expected; },
            std::to_string(pixel) + " / " + std::to_string(divisor));
      }
    }
  }
}

TEST(FilterSeparable, EqualsTheGeneralFilterWithTheProduct) {
  const Axes axes = RandomAxes(true, {5, 4}, 9, 37);
  const Export& function = FunctionNamed("qvpiFilterSeparableBorder_8u_C3R");
  const Region r{{300, 7}, 3, qvpBorderMirror};
  const Bordered scene(ElementOf("8u"), {}, r);
  const test::Samples dst(ElementOf("8u"), 900, 7, 0), other(ElementOf("8u"), 900, 7, 0);
  ASSERT_EQ(Separable(function, scene, axes)(dst), 0);
  std::vector<Qvp16s> product;
  for (const Real c : axes.column) {
    for (const Real k : axes.row) product.push_back(static_cast<Qvp16s>(c * k));
  }
  int spec, bytes;
  ASSERT_EQ(qvpiFilterBorderGetSize({5, 4}, r.size, qvp8u, qvp16s, 3, &spec, &bytes), 0);
  const Block record(spec), buffer(bytes);
  auto* const general = reinterpret_cast<QvpiFilterBorderSpec*>(record.data());
  ASSERT_EQ(qvpiFilterBorderInit_16s(product.data(), {5, 4}, 37, qvp8u, 3, qvpRoundNear, general), 0);
  ASSERT_EQ(qvpiFilterBorder_8u_C3R(scene.At(0, 0), scene.image.step(), other.bytes(), other.step(), r.size, r.border,
                                    nullptr, general, buffer.data()),
            0);
  EXPECT_EQ(std::memcmp(dst.bytes(), other.bytes(), 900 * 7), 0);
}

// ---- Gauss

auto Gauss(const Export& function, const Bordered& scene, QvpiSize mask, float sigmaX, float sigmaY) {
  return FilterAll(function, scene, mask, {{"maskSize", mask}, {"sigmaX", sigmaX}, {"sigmaY", sigmaY}});
}

void CheckGauss(const Export& function, QvpiSize mask, float sigmaX, float sigmaY, const Region& r) {
  const Name name(function.name);
  const Element& element = name.From();
  const test::WholeTaps across = test::WholeWeights(mask.width, sigmaX), down = test::WholeWeights(mask.height, sigmaY);
  const auto floats = [](const std::vector<double>& w) { return std::vector<float>(w.begin(), w.end()); };
  const std::vector<float> x = floats(test::Weights(mask.width, sigmaX)),
                           y = floats(test::Weights(mask.height, sigmaY));
  const Bordered scene(element, test::ReachOf(mask), r);
  const auto expected = [&](const auto& pixel) -> Real {
    if (element.bytes == 1) {
      return (test::SumOfBytes(across, down, pixel) + (int64_t{1} << (down.bits + 5))) >> (down.bits + 6);
    }
    return test::Converted(element, test::SumOfFloats(x, y, pixel));
  };
  test::ExpectWindows(function, scene, Gauss(function, scene, mask, sigmaX, sigmaY), expected, test::Shown(mask));
}

TEST(FilterGauss, EveryMemberEqualsItsFormula) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 3}, {1, 9}, {7, 7}, {31, 5}, {15, 63}, {101, 1}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterGaussBorder"})) {
    for (const QvpiSize mask : kMasks) {
      for (const float sigma : {0.01f, 0.8f, 2.5f, 40.0f}) {
        ++turn;
        CheckGauss(*function, mask, sigma, sigma + turn % 2, RegionOf(turn, Name(function->name).channels));
      }
    }
  }
}

TEST(FilterGauss, KnownWeightsAndPictures) {
  EXPECT_EQ(test::WholeWeights(3, 0.8f).taps, (std::vector<int64_t>{17106, 7831}));
  EXPECT_EQ(test::WholeWeights(5, 1.1f).taps, (std::vector<int64_t>{24218, 16021, 4638}));
  const test::WholeTaps wide = test::WholeWeights(15, 2.5);
  EXPECT_EQ(wide.bits, 17);
  EXPECT_EQ(wide.taps[0], 20970);
  const Export& function = FunctionNamed("qvpiFilterGaussBorder_8u_C1R");
  Bordered scene(ElementOf("8u"), {}, {{5, 5}, 1, qvpBorderReplicate});
  scene.image.Fill([](int x, int y) { return x == 2 && y == 2 ? 255 : 0; });
  const test::Samples dst(ElementOf("8u"), 5, 5, 0);
  ASSERT_EQ(Gauss(function, scene, {5, 5}, 1.1f, 1.1f)(dst), 0);
  constexpr int kExpected[3][3] = {{35, 23, 7}, {23, 15, 4}, {7, 4, 1}};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(dst(2 + i % 3, 2 + i / 3), kExpected[i / 3][i % 3]);
}

// Constants stay, at every size of the mask.
TEST(FilterGauss, KeepsConstants) {
  for (const auto& [type, value] : {std::pair{"8u", 255}, {"16u", 65535}, {"16s", -32768}}) {
    const Export& function = FunctionNamed(std::string("qvpiFilterGaussBorder_") + type + "_C1R");
    Bordered scene(ElementOf(type), {}, {{40, 2}, 1, qvpBorderMirror});
    scene.image.Fill([v = value](int, int) { return v; });
    for (int side = 1; side <= 1023; side += side < 65 ? 2 : 86) {
      test::ExpectResults(
          function, scene, Gauss(function, scene, {side, side}, side / 4.0f, side / 5.0f),
          [v = value](int, int, int) { return v; }, std::to_string(side));
    }
  }
}

}  // namespace
