// Cosine transforms of images against their definition.
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"

namespace {
using test::Export;
using test::Name;
using test::Samples;

class Transform {
 public:
  Transform(QvpiSize size, int flag) : spec_(SizesOf(size, flag).first), buffer_(SizesOf(size, flag).second) {
    EXPECT_EQ(qvpiDCTInit_32f(size, flag, 0, spec(), nullptr), 0);
  }
  static std::pair<int, int> SizesOf(QvpiSize size, int flag) {
    int spec = 0, init = 1, buffer = 0;
    EXPECT_EQ(qvpiDCTGetSize_32f(size, flag, 0, &spec, &init, &buffer), 0);
    EXPECT_EQ(init, 0);
    return {spec, buffer};
  }
  QvpiDCTSpec_32f* spec() const { return reinterpret_cast<QvpiDCTSpec_32f*>(spec_.data()); }
  Qvp8u* buffer() const { return buffer_.data(); }

 private:
  test::Block spec_, buffer_;
};

// Matrices of one dimension, row by row: forward M(u, n), inverse M(n, u).
std::vector<double> MatrixOf(int n, int flag, bool isForward) {
  std::vector<double> m(static_cast<size_t>(n) * n);
  for (int u = 0; u < n; ++u) {
    const double a = flag == 1 ? 1.0 / n : flag == 4 ? std::sqrt((u ? 2.0 : 1.0) / n) : 1;
    const double b = (u && flag != 4 ? 2.0 : 1.0) * (flag == 2 ? 1.0 / n : flag == 4 ? a : 1);
    for (int x = 0; x < n; ++x) {
      const double cos = std::cos(M_PI * ((2LL * x + 1) * u % (4LL * n)) / (2.0 * n));
      m[isForward ? u * n + x : x * n + u] = (isForward ? a : b) * cos;
    }
  }
  return m;
}

std::vector<double> Exact(const std::vector<double>& image, QvpiSize size, int flag, bool isForward) {
  const std::vector<double> across = MatrixOf(size.width, flag, isForward),
                            down = MatrixOf(size.height, flag, isForward);
  std::vector<double> rows(image.size()), all(image.size());
  for (int y = 0; y < size.height; ++y) {
    for (int u = 0; u < size.width; ++u) {
      double sum = 0;
      for (int x = 0; x < size.width; ++x)
        sum += across[size_t{1} * u * size.width + x] * image[size_t{1} * y * size.width + x];
      rows[size_t{1} * y * size.width + u] = sum;
    }
  }
  for (int v = 0; v < size.height; ++v) {
    for (int y = 0; y < size.height; ++y) {
      const double factor = down[size_t{1} * v * size.height + y];
      for (int u = 0; u < size.width; ++u)
        all[size_t{1} * v * size.width + u] += factor * rows[size_t{1} * y * size.width + u];
    }
  }
  return all;
}

// All channels by one function; the rms error of each against the definition.
void Check(const Export& function, QvpiSize size, int flag) {
  const Name name(function.name);
  const Transform transform(size, flag);
  const bool isInPlace = !function.Has("pDst"), isForward = function.name.find("Fwd") != std::string::npos;
  test::Random random(size.width * 100 + size.height + flag);
  Samples src(name.From(), size.width * name.channels, size.height, 12),
      dst(name.From(), size.width * name.channels, size.height, 20);
  src.Fill([&](int, int) { return static_cast<int>(random.Next() % 2001) - 1000; });
  dst.Fill([](int, int) { return 77; });
  const Samples before(src);
  ASSERT_EQ(function({{"pSrc", src},
                      {"pDst", dst},
                      {"pSrcDst", src},
                      {"pSpec", {transform.spec()}},
                      {"pBuffer", {transform.buffer()}}}),
            0);
  const Samples& result = isInPlace ? src : dst;
  for (int c = 0; c < name.channels; ++c) {
    std::vector<double> channel;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) channel.push_back(static_cast<double>(before(x * name.channels + c, y)));
    }
    if (c >= name.written) {
      for (int x = 0; x < size.width; ++x)
        ASSERT_EQ(result(x * name.channels + c, 0), isInPlace ? before(x * name.channels + c, 0) : 77);
      continue;
    }
    const std::vector<double> exact = Exact(channel, size, flag, isForward);
    double error = 0, power = 0;
    for (size_t i = 0; i < exact.size(); ++i) {
      const int x = static_cast<int>(i % size.width), y = static_cast<int>(i / size.width);
      error += std::pow(static_cast<double>(result(x * name.channels + c, y)) - exact[i], 2);
      power += exact[i] * exact[i];
    }
    const double most = 4 * 0x1p-24 * std::log2(2.0 * size.width * size.height) * std::sqrt(power);
    ASSERT_LE(std::sqrt(error), most) << function.name << ' ' << size.width << 'x' << size.height << " flag " << flag;
  }
}

TEST(Dct, EqualsItsDefinitionForAllSmallSizes) {
  const Export &forward = test::FunctionNamed("qvpiDCTFwd_32f_C1R"),
               &inverse = test::FunctionNamed("qvpiDCTInv_32f_C1R");
  for (int height = 1; height <= 16; ++height) {
    for (int width = 1; width <= 16; ++width) {
      const int flag = 1 << (width + height) % 4;
      Check(forward, {width, height}, flag);
      Check(inverse, {width, height}, flag);
    }
  }
}

TEST(Dct, EqualsItsDefinitionForLongerAndPrimeSizes) {
  int turn = 0;
  for (const QvpiSize size :
       {QvpiSize{17, 40}, {23, 29}, {36, 18}, {67, 8}, {1, 100}, {100, 1}, {127, 64}, {509, 3}, {480, 7}}) {
    for (const char* const name : {"qvpiDCTFwd_32f_C1R", "qvpiDCTInv_32f_C1R"})
      Check(test::FunctionNamed(name), size, 1 << ++turn % 4);
  }
  Check(test::FunctionNamed("qvpiDCTFwd_32f_C1R"), {509, 499}, 4);
}

TEST(Dct, EveryMemberFlagAndPlace) {
  for (const Export* function : test::FunctionsOf({"DCTFwd", "DCTInv"})) {
    for (const int flag : {1, 2, 4, 8}) Check(*function, {13, 10}, flag);
  }
}

TEST(Dct, KnownValues) {
  const float pixels[8] = {1, 2, 3, 4, 5, 6, 7, 8};
  const auto transformed = [&](int flag) {
    const Transform transform({4, 2}, flag);
    std::vector<float> result(8);
    EXPECT_EQ(qvpiDCTFwd_32f_C1R(pixels, 16, result.data(), 16, transform.spec(), transform.buffer()), 0);
    return result;
  };
  const auto expect = [](const std::vector<float>& result, const std::vector<float>& known) {
    for (size_t i = 0; i < known.size(); ++i) EXPECT_NEAR(result[i], known[i], 2e-6 * 36) << i;
  };
  expect(transformed(8), {36, -6.308644f, 0, -0.448342f, -11.313708f, 0, 0, 0});
  expect(transformed(4), {12.727922f, -3.154322f, 0, -0.224171f, -5.656854f, 0, 0, 0});
  EXPECT_EQ(transformed(1)[0], 4.5f);
}

}  // namespace
