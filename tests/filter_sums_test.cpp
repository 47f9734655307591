// Filters that sum pixels under a window, against their definitions: box, sums along rows, sums along columns.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Block;
using test::Bordered;
using test::Element;
using test::ElementOf;
using test::Export;
using test::FunctionNamed;
using test::Name;
using test::Real;

// A mask with its anchor; that of sums along an axis has one row or column.
struct Mask {
  QvpiSize size;
  QvpiPoint anchor;

  int64_t count() const { return int64_t{size.width} * size.height; }
  test::Reach reach() const { return test::ReachOf(size, anchor); }
};

// Of a mask what a function takes.
Mask For(const Name& name, const Mask& m) {
  if (name.family == "FilterSumRowBorder") return {{m.size.width, 1}, {m.anchor.x, 0}};
  if (name.family == "FilterSumColumnBorder") return {{1, m.size.height}, {0, m.anchor.y}};
  return m;
}

auto FilterAll(const Export& function, const Bordered& scene, const Mask& m) {
  std::vector<test::Named> demand{{"maskSize", m.size}, {"anchor", m.anchor}};
  const std::string family = Name(function.name).family;
  if (family == "FilterSumRowBorder") demand = {{"maskSize", m.size.width}, {"anchor", m.anchor.x}};
  if (family == "FilterSumColumnBorder") demand = {{"maskSize", m.size.height}, {"anchor", m.anchor.y}};
  return test::FilterAll(function, scene, m.size, test::kPlain, demand);
}

// Sums of n values from each of `count` places on, `apart` from each other.
std::vector<Real> SumsAlong(bool isInteger, const std::vector<Real>& values, int n, int apart, int count) {
  std::vector<Real> sums(count);
  for (int i = 0; i < count; ++i) {
    if (!isInteger) {
      sums[i] = test::TreeSum<float>(n, [&](int k) { return static_cast<float>(values[i + k * apart]); });
    } else if (i >= apart) {  // exact, so that they may run
      sums[i] = sums[i - apart] - values[i - apart] + values[i + (n - 1) * apart];
    } else {
      for (int k = 0; k < n; ++k) sums[i] += values[i + k * apart];
    }
  }
  return sums;
}

Real Result(const Name& name, const Mask& mask, Real sum) {
  if (name.family != "FilterBoxBorder") return static_cast<float>(sum);
  if (name.From().isInteger) {
    return test::Quotient(name.To(), static_cast<int64_t>(sum), mask.count(), qvpRoundNear);
  }
  const volatile float mean = static_cast<float>(sum) / static_cast<float>(mask.count());
  return mean;
}

// All results of a scene, row by row.
std::vector<Real> Expected(const Name& name, const Bordered& scene, const Mask& mask) {
  const QvpiSize size = scene.region.size;
  const int channels = scene.region.channels, samples = size.width * channels;
  const bool isInteger = name.From().isInteger;
  std::vector<Real> across, row((size.width + mask.size.width - 1) * channels);
  for (int y = -mask.anchor.y; y < size.height + mask.reach().below; ++y) {
    for (int i = 0; i < static_cast<int>(row.size()); ++i) {
      row[i] = scene.Pixel(i / channels - mask.anchor.x, y, i % channels);
    }
    const std::vector<Real> sums = SumsAlong(isInteger, row, mask.size.width, channels, samples);
    across.insert(across.end(), sums.begin(), sums.end());
  }
  std::vector<Real> results = SumsAlong(isInteger, across, mask.size.height, samples, samples * size.height);
  for (Real& value : results) value = Result(name, mask, value);
  return results;
}

void Check(const Export& function, const Mask& whole, const Bordered& scene) {
  const Name name(function.name);
  const Mask mask = For(name, whole);
  const std::vector<Real> all = Expected(name, scene, mask);
  const auto expected = [&](int x, int y, int c) {
    return all[(y * scene.region.size.width + x) * scene.region.channels + c];
  };
  test::ExpectResults(function, scene, FilterAll(function, scene, mask), expected, test::Shown(mask.size));
}

std::vector<const Export*> Functions() {
  return test::FamilyOf({"FilterBoxBorder", "FilterSumRowBorder", "FilterSumColumnBorder"});
}

// A mask whose anchor a number stands for.
Mask MaskOf(int turn, QvpiSize size) { return {size, {turn * 5 % size.width, turn * 3 % size.height}}; }

TEST(FilterSums, EveryMemberEqualsItsDefinition) {
  constexpr QvpiSize kSizes[] = {{1, 1}, {2, 1},  {3, 3},  {1, 5},  {5, 6},  {8, 7},   {9, 9},
                                 {4, 2}, {15, 3}, {3, 15}, {64, 1}, {1, 70}, {21, 24}, {33, 35}};
  int turn = 0;
  for (const Export* function : Functions()) {
    const Name name(function->name);
    for (const QvpiSize size : kSizes) {
      for (int i = 0; i < (size.width * size.height < 100 ? 3 : 1); ++i, ++turn) {
        const Mask mask = MaskOf(turn, size);
        Check(*function, mask, Bordered(name.From(), For(name, mask).reach(), test::RegionOf(turn, name.channels)));
      }
    }
    for (int a = 0; a < 6; ++a) {
      const Mask mask{{3, 2}, {a % 3, a / 3}};
      Check(*function, mask, Bordered(name.From(), For(name, mask).reach(), {{5, 3}, name.channels, qvpBorderMirror}));
    }
  }
}

// Pixels floor(x / n) under a row of n have the sums 0, 1, 2...
TEST(FilterSums, MeansOfAllSumsOfBytes) {
  for (int n = 1; n <= 256; ++n) {
    const int width = 255 * n + 1;
    std::vector<Qvp8u> src(width + n - 1), dst(width);
    for (int x = 0; x < width + n - 1; ++x) src[x] = static_cast<Qvp8u>(x / n);
    int bytes;
    ASSERT_EQ(qvpiFilterBoxBorderGetBufferSize({n, 1}, {width, 1}, qvp8u, 1, &bytes), 0);
    const Block buffer(bytes);
    ASSERT_EQ(qvpiFilterBoxBorder_8u_C1R(src.data(), width + n - 1, dst.data(), width, {width, 1}, {n, 1}, {0, 0},
                                         qvpBorderInMem, nullptr, buffer.data()),
              0);
    for (int sum = 0; sum < width; ++sum) {
      const int whole = sum / n, twice = 2 * (sum - whole * n);
      ASSERT_EQ(dst[sum], whole + (twice > n || (twice == n && whole % 2))) << sum << " / " << n;
    }
  }
}

// Counts around the bounds of each way to sum and to divide, at the ends of the types and close to ties.
TEST(FilterSums, LargeMasks) {
  constexpr QvpiSize kSizes[] = {{7, 9},     {8, 8},    {13, 5},    {16, 8},    {43, 3},    {15, 17},   {16, 16},
                                 {257, 1},   {1, 257},  {1, 258},   {181, 181}, {182, 181}, {127, 129}, {128, 128},
                                 {16385, 1}, {64, 512}, {256, 256}, {331, 199}, {1, 32769}, {65536, 1}};
  struct Ends {
    std::string type;
    int low, high;
  };
  for (const auto& [type, low, high] : {Ends{"8u", 0, 255}, {"16u", 0, 65535}, {"16s", -32768, 32767}}) {
    for (const QvpiSize size : kSizes) {
      Bordered scene(ElementOf(type), {}, {{19, 3}, 1, qvpBorderReplicate});
      const int values[] = {low, high, (low + high) / 2, (low + high) / 2 + 1};
      test::Random random(size.width);
      scene.image.Fill([&](int, int) { return values[random.Next() / 64 % 4]; });
      for (const std::string& function : {"qvpiFilterBoxBorder_" + type, "qvpiFilterSumRowBorder_" + type + "32f"}) {
        Check(FunctionNamed(function + "_C1R"), {size, {size.width / 3, size.height / 2}}, scene);
      }
    }
  }
}

TEST(FilterSums, KnownValues) {
  const auto check = [](const char* function, const Mask& mask, int border, int width, std::vector<Real> pixels,
                        const std::vector<Real>& expected) {
    const Name name(function);
    const int height = static_cast<int>(pixels.size()) / width;
    Bordered scene(name.From(), {}, {{width, height}, 1, border});
    std::fill(scene.value, scene.value + sizeof(scene.value), uint8_t{0});
    scene.image.Fill([&](int x, int y) { return pixels[y * width + x]; });
    const test::Samples dst(name.To(), width, height, 0);
    ASSERT_EQ(FilterAll(FunctionNamed(function), scene, mask)(dst), 0);
    for (size_t i = 0; i < expected.size(); ++i) {
      EXPECT_EQ(dst(static_cast<int>(i) % width, static_cast<int>(i) / width), expected[i]) << function << ' ' << i;
    }
  };
  const char* const bytes = "qvpiFilterBoxBorder_8u_C1R";
  check(bytes, {{3, 1}, {1, 0}}, qvpBorderReplicate, 3, {10, 20, 40}, {13, 23, 33});
  check(bytes, {{2, 1}, {0, 0}}, qvpBorderReplicate, 4, {0, 1, 2, 4}, {0, 2, 3, 4});
  check(bytes, {{3, 3}, {1, 1}}, qvpBorderConst, 3, std::vector<Real>(9, 255), {113, 170, 113, 170, 255, 170, 113});
  check("qvpiFilterBoxBorder_32f_C1R", {{5, 1}, {2, 0}}, qvpBorderReplicate, 5, {1e8, 1, -1e8, 1, 3},
        {40000000, 20000000, 0.6f});
  check("qvpiFilterSumRowBorder_8u32f_C1R", {{3, 1}, {1, 0}}, qvpBorderMirror, 3, {1, 2, 3}, {5, 6, 7});
  check("qvpiFilterSumColumnBorder_16u32f_C1R", {{1, 257}, {0, 9}}, qvpBorderReplicate, 1, {65535}, {16842496});
}

TEST(FilterSums, NotANumberReachesItsWindowsAlone) {
  for (const auto& [function, expected] : {std::pair{"qvpiFilterBoxBorder_32f_C1R", 91},
                                           {"qvpiFilterSumRowBorder_32f_C1R", 13},
                                           {"qvpiFilterSumColumnBorder_32f_C1R", 7}}) {
    Bordered scene(ElementOf("32f"), {}, {{200, 30}, 1, qvpBorderReplicate});
    scene.image.Put(100, 11, NAN);
    const test::Samples dst(ElementOf("32f"), 200, 30, 0);
    const Mask mask = For(Name(function), {{13, 7}, {2, 3}});
    ASSERT_EQ(FilterAll(FunctionNamed(function), scene, mask)(dst), 0);
    int count = 0;
    for (int i = 0; i < 200 * 30; ++i) count += std::isnan(dst(i % 200, i / 200));
    EXPECT_EQ(count, expected) << function;
  }
}

}  // namespace
