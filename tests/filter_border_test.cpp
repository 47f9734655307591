// The general filter against a direct convolution.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Element;
using test::ElementOf;
using test::Guard;
using test::Part;
using test::Prepared;
using test::ReachOf;
using test::Real;
using test::Region;

// A kernel of 16s, 32f or 64f, and what is asked of Init and SetMode.
struct Filter {
  const Element* element;
  QvpiSize size;
  std::vector<Real> kernel;
  int divisor = 1;
  QvpRoundMode mode = qvpRoundNear;
  int offset = 0;
};

QvpStatus Init(const Filter& f, QvpDataType type, int channels, QvpiFilterBorderSpec* spec) {
  test::Samples kernel(*f.element, static_cast<int>(f.kernel.size()), 1, 0);
  kernel.Fill([&](int i, int) { return f.kernel[i]; });
  if (f.element->code == qvp16s) {
    return qvpiFilterBorderInit_16s(kernel.As<Qvp16s>(), f.size, f.divisor, type, channels, f.mode, spec);
  }
  return f.element->code == qvp32f
             ? qvpiFilterBorderInit_32f(kernel.As<Qvp32f>(), f.size, type, channels, f.mode, spec)
             : qvpiFilterBorderInit_64f(kernel.As<Qvp64f>(), f.size, type, channels, f.mode, spec);
}

QvpiFilterBorderSpec* RecordIn(const Prepared& prepared) { return prepared.record<QvpiFilterBorderSpec>(); }

Prepared Prepare(const Filter& f, QvpiSize roi, QvpDataType type, int channels) {
  int spec = 0, buffer = 0;
  EXPECT_EQ(qvpiFilterBorderGetSize(f.size, roi, type, f.element->code, channels, &spec, &buffer), 0);
  Prepared prepared(spec, buffer);
  EXPECT_EQ(Init(f, type, channels, RecordIn(prepared)), 0);
  if (f.offset != 0) {
    EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, f.offset, RecordIn(prepared)), 0);
  }
  return prepared;
}

// The taps of one result, in the order in which they are added up: coefficient and pixel.
template <class Tap>
void ForEachTap(const Filter& f, const Tap& tap) {
  for (int j = 0; j < f.size.height; ++j) {
    for (int i = 0; i < f.size.width; ++i) {
      tap(f.kernel[f.size.width * f.size.height - 1 - j * f.size.width - i], i - (f.size.width - 1) / 2,
          j - (f.size.height - 1) / 2);
    }
  }
}

// Each product and each sum is rounded, whatever the compiler would like.
template <class F, class Pixel>
Real SumOf(const Filter& f, const Pixel& pixel) {
  volatile F sum = 0;
  ForEachTap(f, [&](Real k, int i, int j) {
    const volatile F product = static_cast<F>(static_cast<double>(k) / f.divisor) * static_cast<F>(pixel(i, j));
    sum = sum + product;
  });
  return static_cast<F>(sum + static_cast<F>(f.offset));
}

bool StaysInteger(const Element& element, const Filter& f, int channels) {
  if (f.element->code != qvp16s) return false;
  return element.code == qvp8u || (element.code == qvp16s && channels == 1 && f.size.width >= 3 && f.size.height >= 2);
}

template <class Pixel>
Real Expected(const Element& element, const Filter& f, int channels, const Pixel& pixel) {
  if (StaysInteger(element, f, channels)) {
    int64_t sum = int64_t{f.offset} * f.divisor;
    ForEachTap(f, [&](Real k, int i, int j) { sum += static_cast<int64_t>(k) * static_cast<int64_t>(pixel(i, j)); });
    return test::Quotient(element, sum, f.divisor, f.mode);
  }
  const bool isDouble = f.element->code == qvp64f;
  return test::Converted(element, isDouble ? SumOf<double>(f, pixel) : SumOf<float>(f, pixel), f.mode);
}

const test::Export& FunctionFor(const Bordered& scene) {
  return test::FunctionNamed("qvpiFilterBorder_" + std::string(scene.element().name) + "_C" +
                             std::to_string(scene.region.channels) + "R");
}

QvpStatus Apply(const Bordered& scene, const Prepared& prepared, const Part& part, const test::Argument& dst) {
  return test::Filter(FunctionFor(scene), scene, part, prepared, {{"pDst", dst}});
}

// `record` is the type that the record is made for, if not that of the image.
void Check(const Bordered& scene, const Filter& f, QvpDataType record = 0, Guard guard = Guard::kAfter) {
  const int channels = scene.region.channels;
  const Prepared prepared = Prepare(f, scene.region.size, record ? record : scene.element().code, channels);
  const std::string about = test::Shown(f.size) + " of " + std::string(f.element->name) + " divisor " +
                            std::to_string(f.divisor) + " mode " + std::to_string(f.mode) + " offset " +
                            std::to_string(f.offset);
  test::ExpectWindows(
      FunctionFor(scene), scene,
      [&](const test::Argument& dst) { return Apply(scene, prepared, test::WholeOf(scene), dst); },
      [&](const auto& pixel) { return Expected(scene.element(), f, channels, pixel); }, about, guard);
}
void Check(std::string_view type, const Filter& f, const Region& r, Guard guard = Guard::kAfter,
           QvpDataType record = 0) {
  Check(Bordered(ElementOf(type), ReachOf(f.size), r, guard), f, record, guard);
}

// Coefficients of magnitudes up to `limit`.
Filter RandomFilter(std::string_view type, QvpiSize size, int limit, int divisor = 1, QvpRoundMode mode = qvpRoundNear,
                    int offset = 0) {
  Filter f{&ElementOf(type), size, {}, divisor, mode, offset};
  test::Random random(size.width * 31 + size.height + limit);
  for (int i = 0; i < size.width * size.height; ++i) {
    const int k = static_cast<int>(random.Next() % (2 * limit + 1)) - limit;
    f.kernel.push_back(f.element->isInteger ? k : k / 128.0L);
  }
  return f;
}

void CheckAllKernels(std::string_view type, std::string_view kernelType, int limit, int divisor) {
  int turn = 0;
  for (int kw = 1; kw <= 9; ++kw) {
    for (int kh = 1; kh <= 9; ++kh) {
      for (const int channels : {1, 3, 4}) {
        if (type == "64f" && channels > 1) continue;
        const QvpiBorderType kinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
        const int width = (1 + turn % 70) / (channels > 1 ? 2 : 1) + 1, height = 1 + turn % 11;
        Check(type, RandomFilter(kernelType, {kw, kh}, limit, divisor), {{width, height}, channels, kinds[turn % 3]},
              turn % 2 ? Guard::kAfter : Guard::kBefore);
        ++turn;
      }
    }
  }
  Check(type, RandomFilter(kernelType, {15, 3}, limit, divisor), {{40, 20}, 1, qvpBorderMirror});
  Check(type, RandomFilter(kernelType, {3, 15}, limit, divisor), {{40, 20}, 1, qvpBorderReplicate});
}

TEST(FilterBorder, EveryTypeAndKernel) {
  CheckAllKernels("8u", "16s", 2, 4);        // bytes in pairs
  CheckAllKernels("8u", "16s", 1000, 1024);  // words in pairs
  CheckAllKernels("8u", "32f", 100, 1);
  CheckAllKernels("16u", "16s", 300, 999);
  CheckAllKernels("16u", "32f", 100, 1);
  CheckAllKernels("16s", "16s", 300, 4096);
  CheckAllKernels("16s", "32f", 100, 1);
  CheckAllKernels("32f", "32f", 100, 1);
  CheckAllKernels("64f", "64f", 100, 1);
}

void CheckAllBorders(std::string_view type, std::string_view kernelType, int limit, int divisor) {
  for (int flags = 0; flags < 256; flags += 16) {
    for (const int kind : std::initializer_list<int>{qvpBorderReplicate, qvpBorderMirror, qvpBorderConst, 0}) {
      if (kind == 0 && flags != qvpBorderInMem) continue;
      for (const QvpiSize roi : {QvpiSize{1, 1}, {1, 9}, {7, 1}, {5, 4}, {70, 6}}) {
        for (const QvpiSize kernel : {QvpiSize{1, 3}, {2, 2}, {5, 5}, {7, 4}, {2, 9}}) {
          Check(type, RandomFilter(kernelType, kernel, limit, divisor), {roi, 1, flags | kind});
        }
      }
    }
  }
}

TEST(FilterBorder, EveryBorderAndSideInMemory) {
  CheckAllBorders("8u", "16s", 2, 3);
  CheckAllBorders("16s", "16s", 500, 100);
  CheckAllBorders("32f", "32f", 100, 1);
}

// Regions that are cut into several blocks of columns.
TEST(FilterBorder, WideRegions) {
  for (const int width : {2048, 2049, 4500}) {
    for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst}) {
      Check("8u", RandomFilter("16s", {3, 3}, 5, 9), {{width, 3}, 1, kind});
      Check("8u", RandomFilter("16s", {4, 2}, 500, 9), {{width, 3}, 3, kind});
      Check("32f", RandomFilter("32f", {6, 5}, 50), {{width, 3}, 1, kind});
    }
  }
  Check("8u", RandomFilter("16s", {100, 1}, 5, 9), {{4097, 2}, 1, qvpBorderMirror});
  Check("16u", RandomFilter("32f", {2, 70}, 5), {{331, 3}, 4, qvpBorderMirror});
}

// Quotients at and around ties, out of range, with an offset inside the rounding; sums of 16 and 32 bits and beyond.
TEST(FilterBorder, EveryRoundingAndDivisor) {
  for (const QvpRoundMode mode : {qvpRoundZero, qvpRoundNear, qvpRoundFinancial}) {
    for (const int divisor : {1,    2,    8,     256,     1 << 14,   1 << 20, 1 << 30, 3,  6,   7,        10,
                              1000, 6500, 99999, 8388609, INT32_MAX, -1,      -2,      -8, -10, INT32_MIN}) {
      for (const int limit : {1, 8, 60, 3000, 32766, 32767}) {
        for (const int offset : {0, 1, -3, 77, 100000}) {
          Check("8u", RandomFilter("16s", {3, 3}, limit, divisor, mode, offset), {{40, 4}, 1, qvpBorderReplicate});
        }
        Check("16s", RandomFilter("16s", {3, 2}, limit, divisor, mode), {{40, 4}, 1, qvpBorderReplicate});
        Check("16u", RandomFilter("16s", {3, 2}, limit, divisor, mode, 5), {{40, 4}, 1, qvpBorderReplicate});
      }
    }
    Check("16u", RandomFilter("32f", {3, 2}, 64, 1, mode, 9), {{40, 4}, 1, qvpBorderReplicate});
  }
}

// Pixels and coefficients at their limits: sums of 258 such taps leave 32 bits for 8u, of 3 for 16s.
void CheckExtremes(std::string_view type, QvpiSize kernel, int coefficient, int divisor) {
  const Element& element = ElementOf(type);
  const Filter f{&ElementOf("16s"), kernel, std::vector<Real>(kernel.width * kernel.height, coefficient), divisor};
  Bordered scene(element, ReachOf(f.size), {{40, 3}, 1, qvpBorderReplicate});
  for (const Real pixel : {element.lowest, element.highest}) {
    scene.image.Fill([&](int, int) { return pixel; });
    Check(scene, f);
  }
}

TEST(FilterBorder, NeverWrapsAround) {
  for (const int coefficient : {INT16_MIN, -32767, -128, -64, 64, 127, 128, 32766, 32767}) {
    for (const int divisor : {1, 4096, 8421376, 100000000, -7}) {
      for (const QvpiSize kernel : {QvpiSize{1, 1}, {3, 2}, {16, 16}, {17, 17}}) {
        CheckExtremes("8u", kernel, coefficient, divisor);
        CheckExtremes("16s", kernel, coefficient, divisor);
      }
    }
  }
}

TEST(FilterBorder, IntegerResultsOfFloatsSaturateAndNaNIsTheLowest) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  for (const float k : {nan, inf, -inf, 1e30f, -1e30f, 2.5f, -0.5f}) {
    for (const QvpRoundMode mode : {qvpRoundZero, qvpRoundNear, qvpRoundFinancial}) {
      Check("8u", {&ElementOf("32f"), {1, 1}, {k}, 1, mode}, {{40, 2}, 1, qvpBorderReplicate});
      Check("16s", {&ElementOf("32f"), {1, 1}, {k}, 1, mode}, {{40, 2}, 1, qvpBorderReplicate});
    }
  }
}

// Sums begin with +0, and no coefficient makes a NaN or an infinity vanish.
TEST(FilterBorder, ZerosArePositiveAndNaNSpreads) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const float src[3][5] = {{-0.0f, -0.0f, -0.0f, 2, 3}, {-0.0f, -0.0f, -0.0f, 2, nan}, {-0.0f, 1, 2, 3, inf}};
  const Prepared identity = Prepare({&ElementOf("32f"), {3, 1}, {0, 1, 0}}, {5, 3}, qvp32f, 1);
  float dst[3][5];
  ASSERT_EQ(qvpiFilterBorder_32f_C1R(src[0], 20, dst[0], 20, {5, 3}, qvpBorderReplicate, nullptr, RecordIn(identity),
                                     identity.buffer()),
            0);
  EXPECT_FALSE(std::signbit(dst[0][1]));
  EXPECT_EQ(dst[0][4], 3);
  for (const int y : {1, 2}) {
    EXPECT_EQ(dst[y][2], src[y][2]);
    EXPECT_TRUE(std::isnan(dst[y][3]) && std::isnan(dst[y][4])) << y;
  }
}

// Floats take the offset of a record for 8-bit or 16-bit images, as those images do.
TEST(FilterBorder, FloatsTakeTheOffsetOfARecordForIntegers) {
  for (const QvpDataType record : {qvp8u, qvp16u}) {
    for (const int side : {1, 3, 5}) {
      const Filter f = RandomFilter("32f", {side, side}, 100, 1, qvpRoundNear, -37);
      Check("32f", f, {{70, 4}, 1, qvpBorderMirror}, Guard::kAfter, record);
    }
  }
}

// A record for another type gives the same filter, with nothing beyond the images touched.
TEST(FilterBorder, RecordsOfOtherTypesAreSafe) {
  const Filter f = RandomFilter("16s", {3, 3}, 5, 7);
  const Prepared bytes = Prepare(f, {40, 3}, qvp8u, 1);
  Bordered scene(ElementOf("16u"), ReachOf(f.size), {{40, 3}, 1, qvpBorderReplicate});
  scene.image.Fill([](int x, int y) { return x * 5 + y; });
  const auto expected = [&](const auto& pixel) {
    int64_t sum = 0;
    ForEachTap(f, [&](Real k, int dx, int dy) { sum += static_cast<int64_t>(k * pixel(dx, dy)); });
    return test::Quotient(scene.element(), sum, 7, qvpRoundNear);
  };
  const auto run = [&](const test::Argument& dst) { return Apply(scene, bytes, test::WholeOf(scene), dst); };
  test::ExpectWindows(FunctionFor(scene), scene, run, expected);
  const Prepared doubles = Prepare(RandomFilter("64f", {3, 3}, 5), {40, 3}, qvp64f, 1);
  const test::Samples dst(scene.element(), 40, 3, 0);
  EXPECT_EQ(Apply(scene, doubles, {0, 0, {40, 3}, qvpBorderMirror}, dst), 0);
}

TEST(FilterBorder, TakesAnElementForEachPixelFromStepToStep) {
  const Prepared prepared = Prepare(RandomFilter("16s", {3, 3}, 5, 7), {9, 2}, qvp16u, 1);
  const Bordered scene(ElementOf("16u"), {}, {{9, 2}, 1, qvpBorderReplicate});
  const test::Samples dst(ElementOf("16u"), 9, 2, 0);
  EXPECT_EQ(Apply(scene, prepared, test::WholeOf(scene), {dst.bytes(), 18}), 0);
  EXPECT_EQ(Apply(scene, prepared, test::WholeOf(scene), {dst.bytes(), 17}), qvpStatusStep);
}

// Accuracy is more than usual for two kinds of records, offsets are for two others.
TEST(FilterBorder, TakesAccuracyAndOffsetsWhereTheyHaveAnEffect) {
  const Prepared prepared = Prepare(RandomFilter("16s", {3, 3}, 5), {9, 9}, qvp8u, 1);
  const Qvp16s k[9] = {};
  QvpiFilterBorderSpec* const spec = RecordIn(prepared);
  const struct {
    QvpDataType type;
    int channels;
    QvpStatus accurate, offset;
  } cases[] = {{qvp8u, 4, 0, 0},
               {qvp16s, 1, 0, qvpStatusNotSupportedMode},
               {qvp16u, 1, qvpStatusAccurateModeNotSupported, 0},
               {qvp16s, 3, qvpStatusAccurateModeNotSupported, qvpStatusNotSupportedMode}};
  for (const auto& c : cases) {
    EXPECT_EQ(qvpiFilterBorderInit_16s(k, {3, 3}, 1, c.type, c.channels, 16 + qvpRoundNear, spec), c.accurate);
    EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 1, spec), c.offset);
    EXPECT_EQ(qvpiFilterBorderSetMode(qvpAlgHintFast, 0, spec), 0);
  }
}

}  // namespace
