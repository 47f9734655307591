// Resize: what is exact.
#include "tests/support/name.h"
#include "tests/support/resizes.h"

namespace {
using test::AllTapsOf;
using test::ElementOf;
using test::Export;
using test::ImageResize;
using test::kLinear;
using test::kShifted;
using test::kSmoothCubic;
using test::kSmoothLanczos;
using test::kSmoothLinear;
using test::kSuper;
using test::Resizing;
using test::Samples;

// By whole numbers: the parts of a pixel that are covered across and down.
double SumAt(const test::Bordered& src, const std::vector<test::Tap>& columns, const std::vector<test::Tap>& rows,
             QvpiSize parts, int channel) {
  double sum = 0;
  for (const auto& v : rows) {
    for (const auto& h : columns) {
      sum += std::round(v.weight * parts.height) * std::round(h.weight * parts.width) *
             static_cast<double>(src.Pixel(h.at, v.at, channel));
    }
  }
  return sum;
}

void CheckAverages(std::string_view type, int channels, QvpiSize across, QvpiSize down) {
  const int n = across.width < 20 ? 19 : 3;
  const QvpiSize from{n * across.width, down.width}, to{n * across.height, down.height};
  const ImageResize resize(kSuper, type, from, to);
  const test::Bordered src(ElementOf(type), {}, {from, channels, qvpBorderReplicate}, test::Guard::kAfter, 4);
  const Samples dst = Resized(FunctionOf(kSuper, type, channels), resize, src);
  const auto columns = AllTapsOf(kSuper, {from.width, to.width}, to.width);
  const auto rows = AllTapsOf(kSuper, {from.height, to.height}, to.height);
  const auto expected = [&](int x, int y) {
    const double sum = SumAt(src, columns[x / channels], rows[y], {across.width, down.width}, x % channels);
    return std::nearbyint(sum / (across.width * down.width)) + 0;  // integers have no -0
  };
  ExpectImage(dst, expected,
              std::string(type) + ' ' + std::to_string(channels) + ' ' + test::Shown(across) + ' ' + test::Shown(down));
}

// Averages of integers are the exact ones, rounded to the nearest, with ties to even.
TEST(Resize, AveragesAreExact) {
  constexpr std::pair<const char*, int> kImages[] = {{"8u", 1}, {"8u", 3}, {"8u", 4}, {"16u", 1}, {"16s", 3}};
  const QvpiSize ratios[] = {{5, 3}, {3, 2}, {3, 1}, {7, 5}, {13, 3}, {15, 13}, {2, 1}, {4, 1},
                             {1, 1}, {4, 3}, {6, 5}, {5, 1}, {16, 1}, {40, 3},  {9, 2}, {270, 1}};
  for (const auto& [type, channels] : kImages) {
    for (const QvpiSize across : ratios) {
      for (const QvpiSize down : ratios) CheckAverages(type, channels, across, down);
    }
  }
}

TEST(Resize, KnownAveragesAndTheSameSize) {
  const Qvp8u src[] = {1, 1, 0, 2, 3, 3, 255, 255, 0, 0, 3, 1, 3, 3, 255, 254};
  Qvp8u dst[4];
  const ImageResize resize(kSuper, "8u", {8, 2}, {4, 1}), same(kLinear, "32f", {4, 3}, {4, 3});
  const test::Block buffer(resize.BufferSize({4, 1}, 1)), room(same.BufferSize({4, 3}, 1));
  ASSERT_EQ(qvpiResizeSuper_8u_C1R(src, 8, dst, 4, {0, 0}, {4, 1}, resize.spec(), buffer.data()), 0);
  EXPECT_EQ((std::vector<int>{dst[0], dst[1], dst[2], dst[3]}),
            (std::vector<int>{0, 2, 3, 255}));  // 0.5, 1.5, 3, 254.75
  const float values[12] = {1, INFINITY, 2, NAN, 3, 4, -INFINITY, 5, 6, 7, 8, 9};
  float out[12];
  ASSERT_EQ(qvpiResizeLinear_32f_C1R(values, 16, out, 16, {0, 0}, {4, 3}, 1, nullptr, same.spec(), room.data()), 0);
  EXPECT_EQ(std::memcmp(values, out, sizeof(out)), 0);
}

// An image of equal pixels, and every result.
void CheckConstant(const Resizing& m, std::string_view type, int channels, QvpiSize from, QvpiSize to, double value,
                   double tolerance) {
  const test::Element& element = ElementOf(type);
  const ImageResize resize(m, type, from, to);
  std::vector<uint8_t> src(size_t{1} * from.width * from.height * channels * element.bytes);
  element.write(src.data(), value);
  for (size_t i = element.bytes; i < src.size(); ++i) src[i] = src[i - element.bytes];
  const Samples dst(element, to.width * channels, to.height, 0);
  const QvpiPoint at = resize.SourceOf({0, 0});
  const int step = from.width * channels * element.bytes;
  ASSERT_EQ(resize(FunctionOf(m, type, channels),
                   {src.data() + size_t{1} * at.y * step + at.x * channels * element.bytes, step}, dst,
                   {0, 0, to.width, to.height}, qvpBorderReplicate),
            0);
  ExpectImage(
      dst, [&](int, int) { return element.read(src.data()); },
      m.Operation() + ' ' + std::string(type) + ' ' + test::Shown(from) + " to " + test::Shown(to), tolerance);
}

// Averages of equal pixels are these pixels, however many: exactly in integers, and within 2 units of the last place in
// 32f. The same for kernels that are widened a thousand times, but for the floats.
TEST(Resize, ConstantsStay) {
  constexpr struct {
    const char* type;
    double value;
  } kPixels[] = {{"8u", 255},     {"8u", 201},   {"16u", 40001},       {"16u", 65535},
                 {"16s", -32767}, {"32f", 0.1f}, {"32f", 0.99999994f}, {"32f", 3.4e38f}};
  const QvpiSize sizes[][2] = {{{1000, 1}, {1, 1}}, {{1000, 900}, {1, 1}}, {{48, 270}, {25, 1}}, {{190, 34}, {170, 17}},
                               {{110, 7}, {90, 5}}, {{36, 90}, {17, 31}},  {{5000, 3}, {7, 3}},  {{97, 61}, {13, 9}}};
  for (const auto& [from, to] : sizes) {
    for (const Resizing& m : {kSuper, kShifted, kSmoothLinear, kSmoothCubic, kSmoothLanczos}) {
      const bool isSuper = m.Is(qvpInterpolationSuper);
      if (!m.Fits(std::min(from.width, from.height), 1)) continue;
      for (const int channels : {1, 3, 4}) {
        if (from.width * from.height > 100000 && channels != 1) continue;
        for (const auto& [type, value] : kPixels) {
          if (value > 1e38 && !isSuper) continue;
          const double ulp = std::nextafter(static_cast<float>(value), INFINITY) - value;
          CheckConstant(m, type, channels, from, to, value, type[0] == '3' ? (isSuper ? 2 : 8) * ulp : 0);
        }
      }
    }
  }
  for (const Resizing& m : {kLinear, test::kCubic, test::kSpline, test::kLanczos2, test::kLanczos3}) {
    for (const int channels : {1, 3}) CheckConstant(m, "8u", channels, {71, 30}, {43, 11}, 201, 0);
  }
}

// Sums of any number of whole rows and columns, with partly covered ones beside them and without.
TEST(Resize, ConstantsStayAtEveryRatio) {
  for (int n = 1; n <= 40; ++n) {
    const QvpiSize sizes[][2] = {{{3 * n + 2, 3 * n + 1}, {3, 3}}, {{n + 9, 2 * n}, {2, 2}}, {{11, 7 * n + 3}, {9, 7}}};
    for (const auto& [from, to] : sizes) {
      for (const float value : {0.1f, 1.9999999f, 1.3333333f, 1.6000001f, 3.4e38f}) {
        const double ulp = std::nextafter(value, INFINITY) - value;
        for (const int channels : {1, 3}) CheckConstant(kSuper, "32f", channels, from, to, value, 2 * ulp);
      }
      CheckConstant(kSuper, "16u", 1, from, to, 65535, 0);
    }
  }
}

// Means are finite where a sum or a difference is not, and infinities and NaN stay in the areas that cover them.
TEST(Resize, AveragesOfExtremeFloats) {
  const float big = 3.4e38f, inf = INFINITY;
  for (const QvpiSize to : {QvpiSize{3, 5}, {2, 2}, {4, 2}, {6, 5}, {5, 3}, {1, 1}}) {
    for (const float other : {-big, big, inf, -inf, NAN}) {
      float src[10][12], dst[5][6];
      std::fill_n(src[0], 120, 1.0f);
      src[0][0] = big;
      src[1][1] = other;
      const ImageResize resize(kSuper, "32f", {12, 10}, to);
      ASSERT_EQ(resize(FunctionOf(kSuper, "32f", 1), {src, 48}, {dst, 24}, {0, 0, to.width, to.height}, 0), 0);
      const double w = 12.0 / to.width, h = 10.0 / to.height;
      const double exact = (double{big} + other + w * h - 2) / (w * h);
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width; ++x) {
          const double expected = x > 0 || y > 0 ? 1 : exact;
          const bool isSame = std::isfinite(expected) ? std::fabs(dst[y][x] - expected) <= (x + y > 0 ? 0 : 1e-6 * big)
                                                      : test::AreSame(dst[y][x], expected);
          ASSERT_TRUE(isSame) << dst[y][x] << " for " << expected << ", " << other << " at " << x << ',' << y;
        }
      }
    }
  }
}

// Weights of doubles keep their bits far from the image's beginning, where positions themselves have few left.
TEST(Resize, DoublesAreInterpolatedToTheLastBits) {
  const int n = 3000001, m = 2000003;
  std::vector<double> src(2 * size_t{n}), dst(m);
  for (int i = 0; i < n; ++i) src[i] = src[n + i] = i % 2;
  for (const Resizing& method : {kLinear, kSmoothLinear}) {
    const ImageResize resize(method, "64f", {n, 2}, {m, 1});
    ASSERT_EQ(resize(FunctionOf(method, "64f", 1), {src.data(), n * 8}, {dst.data(), m * 8}, {0, 0, m, 1}, 1), 0);
    for (int d = 10; d < m - 10; d += 997) {
      const int64_t of2m = (2 * int64_t{d} + 1) * n - m,
                    first = of2m / (2 * int64_t{m});  // the position, in units of 1 / (2 m)
      long double expected = 0, sum = 0;
      for (int64_t i = first - 2; i < first + 4; ++i) {
        const long double distance = std::fabs(static_cast<long double>(of2m - 2 * m * i) / (2.0L * m));
        const long double scale = method.isAntialiasing ? static_cast<long double>(n) / m : 1;
        const long double w = std::max(0.0L, 1 - distance / scale);
        expected += w * src[i];
        sum += w;
      }
      ASSERT_NEAR(dst[d], static_cast<double>(expected / sum), 1e-15) << d;
    }
  }
}

// The mode is switched after the Init buffer is gone, by a record that then belongs to either arithmetic.
TEST(Resize, SwitchesModes) {
  const QvpiSize from{57, 9}, to{41, 7};
  const test::Bordered src(ElementOf("8u"), {}, {from, 1, qvpBorderMirror});
  for (const Resizing& m : {kLinear, test::kCubic, test::kLanczos2, test::kLanczos3}) {
    const Export& function = FunctionOf(m, "8u", 1);
    const ImageResize resize(m, "8u", from, to), accurate(m, "16u", from, to);
    const Samples fast = Resized(function, resize, src);
    ASSERT_EQ(qvpiResizeSetMode(qvpAlgHintAccurate, resize.spec()), 0);
    ExpectSame(Resized(function, resize, src), Resized(function, accurate, src), m.name);
    ASSERT_EQ(qvpiResizeSetMode(qvpAlgHintFast, resize.spec()), 0);
    ExpectSame(Resized(function, resize, src), fast, m.name);
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintFast, accurate.spec()), qvpStatusNotSupportedMode);
    EXPECT_EQ(qvpiResizeSetMode(3, resize.spec()), qvpStatusNotSupportedMode);
  }
  for (const Resizing& m : {test::kNearest, kSuper, kSmoothLinear}) {
    const ImageResize resize(m, "8u", from, to);
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintAccurate, resize.spec()), 0);
    EXPECT_EQ(qvpiResizeSetMode(qvpAlgHintFast, resize.spec()), qvpStatusNotSupportedMode);
  }
}

}  // namespace
