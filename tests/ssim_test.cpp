// Structural similarity against its formula, window by window.
#include <cmath>
#include <vector>

#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Export;
using test::Name;
using test::Real;
using test::Samples;

struct Choice {
  int window;
  double sigma, c1, c2;
};
constexpr Choice kPaper{11, 1.5, 6.5025, 58.5225};

std::vector<Real> Weights(const Choice& choice) {
  std::vector<Real> weights(choice.window);
  Real sum = 0;
  for (int k = 0; k < choice.window; ++k) {
    const Real distance = k - (choice.window - 1) / Real{2};
    weights[k] = choice.sigma == 0 ? 1 : std::exp(-distance * distance / (2 * choice.sigma * choice.sigma));
    sum += weights[k];
  }
  for (Real& weight : weights) weight /= sum;
  return weights;
}

Real Expected(const Samples& a, const Samples& b, int channels, int c, const Choice& choice) {
  const auto g = Weights(choice);
  const int across = a.width() / channels - choice.window + 1, down = a.height() - choice.window + 1;
  Real total = 0;
  for (int y = 0; y < down; ++y) {
    for (int x = 0; x < across; ++x) {
      Real mx = 0, my = 0, squares = 0, product = 0;
      for (int j = 0; j < choice.window; ++j) {
        for (int i = 0; i < choice.window; ++i) {
          const Real u = a((x + i) * channels + c, y + j), v = b((x + i) * channels + c, y + j), w = g[i] * g[j];
          mx += w * u, my += w * v, squares += w * (u * u + v * v), product += w * u * v;
        }
      }
      const Real means = mx * mx + my * my;
      total += (2 * mx * my + choice.c1) / (means + choice.c1) * (2 * (product - mx * my) + choice.c2) /
               (squares - means + choice.c2);
    }
  }
  return total / across / down;
}

QvpStatus Call(const Export& function, const Samples& a, const Samples& b, QvpiSize roi, const Choice& choice,
               double* values) {
  const int channels = Name(function.name).channels;
  int bytes = 0;
  EXPECT_EQ(qvpiSSIMGetBufferSize(roi, choice.window, channels, &bytes), 0);
  EXPECT_LE(bytes, (32LL * (choice.window + 2) + 8) * roi.width * channels + 4096);
  const test::Block buffer(bytes);
  return function({{"pSrc1", a},
                   {"pSrc2", b},
                   {"roiSize", roi},
                   {"pValue", {values}},
                   {"windowSize", choice.window},
                   {"sigma", choice.sigma},
                   {"c1", choice.c1},
                   {"c2", choice.c2},
                   {"pBuffer", {buffer.data()}}});
}

// An image and what is left of it after noise, in every fourth case anything.
void FillPair(Samples& a, Samples& b, Real highest, int turn) {
  test::Random random(turn);
  const auto any = [&] { return std::floor(random.Next() * 0x1p-32L * (highest + 1)); };
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const Real value = turn % 4 == 0 ? any() : std::floor(highest * (x * 7 % 40 + y) / 100);
      a.Put(x, y, value);
      b.Put(x, y, turn % 4 == 0 ? any() : std::min(highest, value + any() / 8));
    }
  }
}

void Check(const Export& function, QvpiSize size, const Choice& choice, int turn) {
  const Name name(function.name);
  const Real highest = name.type == "8u" ? 255 : name.type == "16u" ? 65535 : 1;
  const test::Guard guard = turn % 3 ? test::Guard::kAfter : test::Guard::kBefore;
  Samples a(name.From(), size.width * name.channels, size.height, 3, guard),
      b(name.From(), size.width * name.channels, size.height, 6, guard);
  FillPair(a, b, name.From().isInteger ? highest : 255, turn);
  if (!name.From().isInteger) {
    for (Samples* s : {&a, &b}) {
      for (int i = 0; i < s->width() * size.height; ++i) {
        const int x = i % s->width(), y = i / s->width();
        s->Put(x, y, static_cast<float>((*s)(x, y) / 255));
      }
    }
  }
  const double l = static_cast<double>(highest);
  const Choice scaled{choice.window, choice.sigma, choice.c1 / 65025 * l * l, choice.c2 / 65025 * l * l};
  double values[] = {-9, -9, -9, -9};
  ASSERT_EQ(Call(function, a, b, size, scaled, values), 0);
  for (int c = 0; c < name.written; ++c) {
    ASSERT_NEAR(values[c], static_cast<double>(Expected(a, b, name.channels, c, scaled)), 1e-9)
        << function.name << ' ' << size.width << 'x' << size.height << " window " << choice.window << " channel " << c;
  }
  if (name.written == 3) EXPECT_EQ(values[3], -9);
  EXPECT_EQ(Call(function, a, a, size, scaled, values), 0);
  for (int c = 0; c < name.written; ++c) EXPECT_EQ(values[c], 1);
}

TEST(Similarity, EveryMemberEqualsItsFormula) {
  const Choice choices[] = {kPaper, {2, 0, 6.5, 58.5}, {7, 0.1, 6.5, 58.5}, {8, 2.5, 6.5, 58.5}, {16, 1000, 6.5, 58.5}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"SSIM"})) {
    for (const Choice& choice : choices) {
      const int w = choice.window;
      for (const QvpiSize size : {QvpiSize{w, w}, {w + 1 + turn % 7, w + 3}, {w + 37 + turn % 30, w + 1}}) {
        Check(*function, size, choice, turn++);
      }
    }
    Check(*function, {230, 12}, kPaper, turn++);  // of several blocks
    Check(*function, {35, 33}, {31, 5, 6.5, 58.5}, turn++);
  }
  EXPECT_EQ(turn, 12 * 17);
}

// What a window gives does not depend on where it lies: nothing is carried along a row.
TEST(Similarity, WindowsStandForThemselves) {
  Samples a(test::ElementOf("32f"), 300, 12, 4), b(a);
  a.Fill([](int x, int y) { return x == 150 ? 1e6 : (x * y + x) % 7 / Real{8}; });
  b.Fill([](int x, int y) { return x == 150 ? 1e6 : (x * y + y) % 5 / Real{8}; });
  const Export& function = []() -> const Export& { return *test::FunctionsOf({"SSIM"})[8]; }();
  ASSERT_EQ(function.name, "qvpiSSIM_32f_C1R");
  double whole, sum = 0, one;
  ASSERT_EQ(Call(function, a, b, {300, 12}, kPaper, &whole), 0);
  std::vector<double> columns(290);
  for (int x = 0; x < 290; ++x) {
    Samples u(a.element(), 11, 12, 4), v(u);
    u.Fill([&](int i, int y) { return a(x + i, y); });
    v.Fill([&](int i, int y) { return b(x + i, y); });
    ASSERT_EQ(Call(function, u, v, {11, 12}, kPaper, &one), 0);
    sum += 2 * one;
  }
  EXPECT_EQ(whole, sum / (290 * 2));
}

TEST(Similarity, KnownValuesAndNaN) {
  const std::vector<Qvp8u> dark(121, 10), light(121, 20);
  std::vector<Qvp8u> buffer(1 << 16);
  double value;
  EXPECT_EQ(
      qvpiSSIM_8u_C1R(dark.data(), 11, light.data(), 11, {11, 11}, &value, 11, 1.5, 6.5025, 58.5225, buffer.data()), 0);
  EXPECT_NEAR(value, 0.80256760825, 1e-11);
  std::vector<float> spoilt(3 * 400, 1.0f);
  spoilt[3 * 399 + 1] = NAN;
  double values[3];
  EXPECT_EQ(qvpiSSIM_32f_C3R(spoilt.data(), 240, spoilt.data(), 240, {20, 20}, values, 4, 0, 1, 1, buffer.data()), 0);
  EXPECT_EQ(values[0], 1);
  EXPECT_TRUE(std::isnan(values[1]));
  EXPECT_EQ(values[2], 1);
}

TEST(Similarity, HasBoundsOfItsParameters) {
  const Qvp8u image[400] = {};
  std::vector<Qvp8u> buffer(1 << 17);
  double value;
  const auto call = [&](QvpiSize roi, int window, double sigma) {
    return qvpiSSIM_8u_C1R(image, 20, image, 20, roi, &value, window, sigma, 1, 1, buffer.data());
  };
  for (const int window : {1, 32}) EXPECT_EQ(call({1, 1}, window, 0), qvpStatusMaskSize);
  for (const QvpiSize roi : {QvpiSize{20, 7}, {7, 20}}) EXPECT_EQ(call(roi, 8, 0), qvpStatusSize);
  for (const double sigma : {0.09, 1001.0}) EXPECT_EQ(call({20, 20}, 8, sigma), qvpStatusBadArgument);
  for (const double sigma : {0.1, 1000.0}) EXPECT_EQ(call({8, 8}, 8, sigma), qvpStatusNoError);
}

}  // namespace
