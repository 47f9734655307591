// Moments against their definition, and what is derived from them.
#include <array>
#include <cmath>
#include <cstring>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;

// A record at an odd address, at the end of readable memory.
struct State {
  test::Block block{401};
  QvpiMomentState_64f* get() const { return reinterpret_cast<QvpiMomentState_64f*>(block.data()); }
  State() { EXPECT_EQ(qvpiMomentInit_64f(get(), qvpAlgHintFast), qvpStatusNoError); }
};

template <class T>
void Check(const Export& function, int pixels, int height) {
  const Name name(function.name);
  const int samples = pixels * name.channels;
  test::Image<T> image(samples, height, 3);
  test::Random random(pixels);
  for (int i = 0; i < samples * height; ++i) {
    const T largest = std::is_integral_v<T> ? std::numeric_limits<T>::max() : T{1};
    image.Put(i % samples, i / samples, random.Next() % 3 ? largest : static_cast<T>(random.Next()));
  }
  const State state;
  const Argument arguments[] = {{image.data()}, {nullptr, image.step()}, {nullptr, pixels, height}, {state.get()}};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError) << function.name;
  for (int c = 0; c < name.written; ++c) {
    for (int order = 0; order < 10; ++order) {
      const int m = std::array{0, 1, 0, 2, 1, 0, 3, 2, 1, 0}[order],
                n = std::array{0, 0, 1, 0, 1, 2, 0, 1, 2, 3}[order];
      const double x0 = order % 2 ? -5 : 0, y0 = order % 3;
      long double expected = 0, magnitude = 0;
      for (int i = 0; i < pixels * height; ++i) {
        const long double v = image(i % pixels * name.channels + c, i / pixels), x = i % pixels, y = i / pixels;
        expected += std::pow(x + x0, m) * std::pow(y + y0, n) * v;
        magnitude += std::pow(x + std::fabs(x0), m) * std::pow(y + y0, n) * v;
      }
      double value = -1;
      ASSERT_EQ(qvpiGetSpatialMoment_64f(state.get(), m, n, c, {static_cast<int>(x0), static_cast<int>(y0)}, &value),
                0);
      const double tolerance = static_cast<double>(magnitude) * (std::is_integral_v<T> ? 2e-15 : 1e-13);
      ASSERT_NEAR(value, static_cast<double>(expected), tolerance)
          << function.name << ' ' << pixels << 'x' << height << " M" << m << n << " channel " << c;
    }
  }
  double value;
  EXPECT_EQ(qvpiGetSpatialMoment_64f(state.get(), 0, 0, name.written, {0, 0}, &value), qvpStatusChannel);
}

TEST(Moments, AreSumsOfPowersTimesValues) {
  for (const Export* function : test::FunctionsOf({"Moments64f"})) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const int pixels : {1, 7, 8, 9, 63, 64, 65, 200, 1023, 1025}) Check<T>(*function, pixels, 3);
      for (const int pixels : {2047, 2048, 2049, 6000}) Check<T>(*function, pixels, 2);
      Check<T>(*function, 2, 100);
    });
  }
}

TEST(Moments, OfOnePixel) {
  std::vector<uint8_t> image(64);
  image[8 * 5 + 3] = 1;
  const State state;
  ASSERT_EQ(qvpiMoments64f_8u_C1R(image.data(), 8, {8, 8}, state.get()), qvpStatusNoError);
  const auto spatial = [&](int m, int n, QvpiPoint offset) {
    double v = -1;
    EXPECT_EQ(qvpiGetSpatialMoment_64f(state.get(), m, n, 0, offset, &v), qvpStatusNoError);
    return v;
  };
  EXPECT_EQ(spatial(1, 0, {0, 0}), 3);
  EXPECT_EQ(spatial(0, 1, {0, 0}), 5);
  EXPECT_EQ(spatial(1, 0, {10, 0}), 13);
  EXPECT_EQ(spatial(2, 1, {-1, 2}), 4 * 7);
  for (int m = 0; m < 4; ++m) {
    for (int n = 0; m + n < 4; ++n) {
      double v = -1;
      EXPECT_EQ(qvpiGetCentralMoment_64f(state.get(), m, n, 0, &v), qvpStatusNoError);
      EXPECT_EQ(v, m + n == 0 ? 1 : 0);
    }
  }
}

struct Described {
  double central[16] = {}, normalised[16] = {}, hu[7] = {};
};

// A figure of some value, drawn at a place, turned by quarters, with pixels of size x size.
Described Describe(int x0, int y0, int quarters, int size, int value) {
  std::vector<uint8_t> image(200 * 200);
  for (int i = 0; i < 30 * size; ++i) {
    for (int j = 0; j < 20 * size; ++j) {
      const int u = i / size, v = j / size;
      if (u > 10 && v > 5 && u + v < 40) continue;
      const int x = quarters == 1 ? 20 * size - 1 - j : quarters == 2 ? 30 * size - 1 - i : i;
      const int y = quarters == 1 ? i : quarters == 2 ? 20 * size - 1 - j : j;
      image[(y0 + y) * 200 + x0 + x] = static_cast<uint8_t>(value);
    }
  }
  const State state;
  EXPECT_EQ(qvpiMoments64f_8u_C1R(image.data(), 200, {200, 200}, state.get()), 0);
  Described all;
  for (int m = 0; m < 4; ++m) {
    for (int n = 0; m + n < 4; ++n) {
      EXPECT_EQ(qvpiGetCentralMoment_64f(state.get(), m, n, 0, all.central + m + 4 * n), 0);
      EXPECT_EQ(qvpiGetNormalizedCentralMoment_64f(state.get(), m, n, 0, all.normalised + m + 4 * n), 0);
    }
  }
  EXPECT_EQ(qvpiGetHuMoments_64f(state.get(), 0, all.hu), 0);
  return all;
}

TEST(Moments, OfOneFigureStayTheSame) {
  const Described original = Describe(10, 20, 0, 1, 3), moved = Describe(150, 90, 0, 1, 3),
                  turned = Describe(40, 30, 1, 1, 3), half = Describe(10, 0, 2, 1, 3),
                  twice = Describe(10, 20, 0, 2, 3);
  const double scale = original.central[3];
  ASSERT_NE(scale, 0);
  for (int i = 0; i < 16; ++i) EXPECT_NEAR(moved.central[i], original.central[i], std::fabs(scale) * 1e-9) << i;
  EXPECT_NEAR(turned.central[8], original.central[2], original.central[2] * 1e-9);
  EXPECT_NEAR(half.central[3], -original.central[3], std::fabs(scale) * 1e-9);
  for (int i = 0; i < 7; ++i) {
    const double tolerance = std::fabs(original.hu[i]) * 1e-6 + 1e-18;
    for (const Described& other : {moved, turned, half}) EXPECT_NEAR(other.hu[i], original.hu[i], tolerance) << i;
    EXPECT_NE(original.hu[i], 0) << i;
  }
  // Larger pixels leave the third order as it is.
  for (const int i : {2, 3, 4, 6}) EXPECT_NEAR(twice.hu[i], original.hu[i], std::fabs(original.hu[i]) * 1e-9) << i;
  EXPECT_NEAR(original.normalised[2], original.central[2] / std::pow(original.central[0], 2), 1e-15);
  EXPECT_NEAR(original.normalised[3], original.central[3] / std::pow(original.central[0], 2.5), 1e-15);
  EXPECT_NEAR(original.hu[0], original.normalised[2] + original.normalised[8], 1e-15);
}

TEST(Moments, AreRefusedWhereThereAreNone) {
  alignas(8) uint8_t record[400] = {};
  auto* const raw = reinterpret_cast<QvpiMomentState_64f*>(record);
  const uint8_t image[12] = {};
  double v = 9, hu[7];
  ASSERT_EQ(qvpiMomentInit_64f(raw, 7), qvpStatusNoError);
  EXPECT_EQ(qvpiGetSpatialMoment_64f(raw, 0, 0, 0, {0, 0}, &v), qvpStatusChannel);
  EXPECT_EQ(qvpiMoments64f_8u_C1R(image, 3, {4, 1}, raw), qvpStatusStride);
  ASSERT_EQ(qvpiMoments64f_8u_C1R(image, 4, {4, 3}, raw), qvpStatusNoError);
  for (const QvpiPoint orders : {QvpiPoint{2, 2}, {-1, 0}, {5, -2}, {INT32_MAX, 1}}) {
    EXPECT_EQ(qvpiGetSpatialMoment_64f(raw, orders.x, orders.y, 9, {0, 0}, &v), qvpStatusSize);
  }
  EXPECT_EQ(qvpiGetCentralMoment_64f(raw, 0, 0, 1, &v), qvpStatusChannel);
  EXPECT_EQ(qvpiGetCentralMoment_64f(raw, 0, 0, 0, &v), qvpStatusMoment00Zero);
  EXPECT_EQ(qvpiGetNormalizedSpatialMoment_64f(raw, 0, 0, 0, {0, 0}, &v), qvpStatusMoment00Zero);
  EXPECT_EQ(qvpiGetHuMoments_64f(raw, 0, hu), qvpStatusMoment00Zero);
  EXPECT_EQ(v, 9);
}

}  // namespace
