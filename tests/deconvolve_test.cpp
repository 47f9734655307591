// Deconvolution against its steps in double precision, on tori made pixel by pixel.
#include <cmath>
#include <complex>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"
#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Export;
using test::Name;
using test::Samples;
using Complex = std::complex<double>;
using Numbers = std::vector<double>;

constexpr double kEpsilon = 0x1p-24;

struct Spread {
  QvpiSize size;
  std::vector<float> pixels;
};

// One that leaves no frequency out, not symmetric.
Spread SpreadOf(QvpiSize size) {
  Spread spread{size, {}};
  test::Random random(size.width * 31 + size.height);
  for (int i = 0; i < size.width * size.height; ++i) {
    spread.pixels.push_back(static_cast<float>(random.Next() % 1000) / 1000 /
                            static_cast<float>(size.width * size.height));
  }
  spread.pixels[(size.height - 1) / 2 * size.width + (size.width - 1) / 2] += 0.5F;
  return spread;
}

test::Prepared Prepare(QvpiSize size, const Spread& spread, QvpiBorderType border) {
  int spec = 0, init = 0, buffer = 0;
  EXPECT_EQ(qvpiDeconvolveGetSize_32f(size, spread.size, border, &spec, &init, &buffer), 0);
  test::Prepared prepared(spec, buffer);
  const test::Block work(init);
  EXPECT_EQ(qvpiDeconvolveInit_32f(size, spread.pixels.data(), spread.size.width * 4, spread.size, border,
                                   prepared.record<QvpiDeconvolveSpec_32f>(), work.data()),
            0);
  return prepared;
}

QvpiDeconvolveSpec_32f* SpecOf(const test::Prepared& prepared) { return prepared.record<QvpiDeconvolveSpec_32f>(); }

// ---- The definition.

int SideOfTorus(int side, int spread, QvpiBorderType border) {
  if (border == qvpBorderWrap) return side;
  for (int n = side + spread - 1;; ++n) {
    int rest = n;
    for (const int factor : {2, 3, 5}) {
      while (rest % factor == 0) rest /= factor;
    }
    if (rest == 1 && n % 2 == 0) return n;
  }
}

struct Torus {
  QvpiSize size;
  Numbers image, spread;

  double& At(Numbers& plane, int x, int y) const {
    return plane[(y + size.height) % size.height * size.width + (x + size.width) % size.width];
  }
  // to(p) = sum over q of from(p - q) h(q), or of from(p + q) h(q)
  Numbers Filtered(const Numbers& from, bool isConvolution) const {
    Numbers to(from.size());
    for (size_t q = 0; q < spread.size(); ++q) {
      if (spread[q] == 0) continue;
      const int dx = static_cast<int>(q) % size.width, dy = static_cast<int>(q) / size.width;
      for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
          const int u = isConvolution ? x - dx : x + dx, v = isConvolution ? y - dy : y + dy;
          to[y * size.width + x] += spread[q] * At(const_cast<Numbers&>(from), u % size.width, v % size.height);
        }
      }
    }
    return to;
  }
  // The transform, unscaled; there and back multiplies by the number of pixels.
  std::vector<Complex> Transformed(const std::vector<Complex>& from, double sign) const {
    const auto turned = [&](int k, int n) { return std::polar(1.0, sign * 2 * M_PI * k / n); };
    std::vector<Complex> rows(from.size()), all(from.size());
    for (int i = 0; i < static_cast<int>(from.size()); ++i) {
      const int u = i % size.width, y = i / size.width;
      for (int x = 0; x < size.width; ++x) rows[i] += from[y * size.width + x] * turned(u * x % size.width, size.width);
    }
    for (int i = 0; i < static_cast<int>(from.size()); ++i) {
      const int u = i % size.width, v = i / size.width;
      for (int y = 0; y < size.height; ++y)
        all[i] += rows[y * size.width + u] * turned(v * y % size.height, size.height);
    }
    return all;
  }
  std::vector<Complex> Spectrum(const Numbers& plane) const { return Transformed({plane.begin(), plane.end()}, -1); }
};

Torus TorusOf(QvpiSize size, const Numbers& image, const Spread& spread, QvpiBorderType border) {
  Torus torus{
      {SideOfTorus(size.width, spread.size.width, border), SideOfTorus(size.height, spread.size.height, border)},
      {},
      {}};
  const auto placeOf = [&](int i, int side, int n) {
    if (i >= side && i - (side - 1) > n - i) i -= n;
    return test::BorderPosition(border == qvpBorderWrap ? test::kWrap : border, i, 0, side - 1);
  };
  for (int y = 0; y < torus.size.height; ++y) {
    for (int x = 0; x < torus.size.width; ++x) {
      const int u = placeOf(x, size.width, torus.size.width), v = placeOf(y, size.height, torus.size.height);
      torus.image.push_back(u == test::kConstant || v == test::kConstant ? 0 : image[v * size.width + u]);
    }
  }
  torus.spread.resize(torus.image.size());
  for (int y = 0; y < spread.size.height; ++y) {
    for (int x = 0; x < spread.size.width; ++x) {
      torus.At(torus.spread, x - (spread.size.width - 1) / 2, y - (spread.size.height - 1) / 2) =
          spread.pixels[y * spread.size.width + x];
    }
  }
  return torus;
}

struct Result {
  Numbers pixels;  // of the torus
  double error;    // the rms that is promised
};

Result Inverse(const Torus& torus, double noise, double smoothness) {
  const std::vector<Complex> k = torus.Spectrum(torus.spread), y = torus.Spectrum(torus.image);
  std::vector<Complex> x(y.size());
  double most = 0, spread = 0, power = 0;
  for (const double h : torus.spread) spread += h * h;
  for (const double v : torus.image) power += v * v;
  const auto square = [](int u, int n) { return 2 - 2 * std::cos(2 * M_PI * u / n); };
  for (size_t i = 0; i < y.size(); ++i) {
    const double l = square(static_cast<int>(i) % torus.size.width, torus.size.width) +
                     square(static_cast<int>(i) / torus.size.width, torus.size.height);
    const double divisor = std::norm(k[i]) + noise + smoothness * l * l;
    x[i] = std::conj(k[i]) * y[i] / divisor;
    most = std::max(most, (std::abs(k[i]) + std::sqrt(spread)) / divisor);
  }
  Result result{{}, 4 * kEpsilon * std::sqrt(power / static_cast<double>(y.size())) * most};
  for (const Complex& v : torus.Transformed(x, 1)) result.pixels.push_back(v.real() / static_cast<double>(y.size()));
  return result;
}

Result Iterative(const Torus& torus, int iterations, double threshold) {
  double sum = 0;
  for (const double h : torus.spread) sum += h;
  Numbers estimate = torus.Filtered(torus.image, false);
  for (double& e : estimate) e = std::max(e / sum / sum, 0.0);
  for (int i = 1; i < iterations; ++i) {
    Numbers ratio = torus.Filtered(estimate, true);
    for (size_t j = 0; j < ratio.size(); ++j) ratio[j] = ratio[j] > threshold ? torus.image[j] / ratio[j] : 0;
    const Numbers factor = torus.Filtered(ratio, false);
    for (size_t j = 0; j < factor.size(); ++j) estimate[j] = std::max(estimate[j] * factor[j] / sum, 0.0);
  }
  return {estimate, 32 * kEpsilon};
}

// ---- Calls.

constexpr double kNoise = 0.02, kSmoothness = 0.004, kThreshold = 1e-6;
constexpr int kIterations = 20;

void Check(const Export& function, QvpiSize size, QvpiSize spreadSize, QvpiBorderType border) {
  const Name name(function.name);
  const Spread spread = SpreadOf(spreadSize);
  const test::Prepared prepared = Prepare(size, spread, border);
  const bool isInverse = function.name.find("Inverse") != std::string::npos;
  Samples src(name.From(), size.width * name.channels, size.height, 12),
      dst(name.From(), size.width * name.channels, size.height, 20);
  test::Random random(size.width);
  src.Fill([&](int, int) { return static_cast<float>(random.Next() % 1001) / 1000; });
  ASSERT_EQ(function({{"pSrc", src},
                      {"pDst", dst},
                      {"noise", kNoise},
                      {"smoothness", kSmoothness},
                      {"iterations", kIterations},
                      {"threshold", kThreshold},
                      {"pSpec", {SpecOf(prepared)}},
                      {"pBuffer", {prepared.buffer()}}}),
            0);
  for (int c = 0; c < name.channels; ++c) {
    Numbers channel;
    for (int i = 0; i < size.width * size.height; ++i) {
      channel.push_back(static_cast<double>(src(i % size.width * name.channels + c, i / size.width)));
    }
    const Torus torus = TorusOf(size, channel, spread, border);
    const Result expected = isInverse ? Inverse(torus, static_cast<float>(kNoise), static_cast<float>(kSmoothness))
                                      : Iterative(torus, kIterations, kThreshold);
    double error = 0;
    for (int i = 0; i < size.width * size.height; ++i) {
      const int x = i % size.width, y = i / size.width;
      error +=
          std::pow(static_cast<double>(dst(x * name.channels + c, y)) - expected.pixels[y * torus.size.width + x], 2);
    }
    ASSERT_LE(std::sqrt(error / (size.width * size.height)), expected.error)
        << function.name << ' ' << size.width << 'x' << size.height << " border " << border << " channel " << c;
  }
}

constexpr QvpiBorderType kBorders[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst, qvpBorderWrap};

TEST(Deconvolve, EqualsItsStepsInDouble) {
  const QvpiSize sizes[][2] = {{{1, 1}, {1, 1}},  {{2, 9}, {2, 4}},    {{9, 1}, {3, 1}},
                               {{13, 8}, {4, 3}}, {{17, 22}, {17, 5}}, {{40, 24}, {7, 9}}};
  for (const auto& [size, spread] : sizes) {
    for (const QvpiBorderType border : kBorders) {
      Check(test::FunctionNamed("qvpiDeconvolveInverse_32f_C1R"), size, spread, border);
      Check(test::FunctionNamed("qvpiDeconvolveIterative_32f_C1R"), size, spread, border);
    }
  }
  for (const Export* function : test::FunctionsOf({"DeconvolveInverse", "DeconvolveIterative"})) {
    Check(*function, {11, 6}, {3, 2}, qvpBorderMirror);
  }
}

TEST(Deconvolve, KnownValues) {
  const Spread spread{{3, 1}, {0.25F, 0.5F, 0.25F}};
  const test::Prepared row = Prepare({4, 1}, spread, qvpBorderWrap);
  const float image[] = {0, 4, 0, 0};
  const auto expect = [](const std::vector<float>& expected, const float* found) {
    for (size_t i = 0; i < expected.size(); ++i) EXPECT_NEAR(found[i], expected[i], 3e-6) << i;
  };
  const auto inverse = [&](float noise, float smoothness) {
    static float found[4];
    EXPECT_EQ(qvpiDeconvolveInverse_32f_C1R(image, 16, found, 16, noise, smoothness, SpecOf(row), row.buffer()), 0);
    return found;
  };
  const auto iterative = [&](int n) {
    static float found[4];
    EXPECT_EQ(qvpiDeconvolveIterative_32f_C1R(image, 16, found, 16, n, 1e-6F, SpecOf(row), row.buffer()), 0);
    return found;
  };
  expect({1, 2, 1, 0}, iterative(1));
  expect({2 / 3.F, 8 / 3.F, 2 / 3.F, 0}, iterative(2));
  expect({0.8F, 2.8F, 0.8F, -1.2F}, inverse(0.25F, 0));
  expect({1, 1.8F, 1, 0.2F}, inverse(0, 0.25F));
}

// A spread of one pixel is no blur; what is not above 0 counts as 0.
TEST(Deconvolve, NoBlurOfNumbersThatAreNone) {
  const test::Prepared none = Prepare({3, 1}, {{1, 1}, {1}}, qvpBorderConst);
  const float image[] = {-2, NAN, 5};
  float found[3];
  ASSERT_EQ(qvpiDeconvolveIterative_32f_C1R(image, 12, found, 12, 3, 0, SpecOf(none), none.buffer()), 0);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(found[i], i == 2 ? 5 : 0, 4e-6);
  ASSERT_EQ(qvpiDeconvolveInverse_32f_C1R(image, 12, found, 12, 1, 0, SpecOf(none), none.buffer()), 0);
  EXPECT_TRUE(std::isnan(found[0]));
}

TEST(Deconvolve, RefusesWhatItsParametersForbid) {
  const test::Prepared row = Prepare({2, 1}, {{1, 1}, {1}}, qvpBorderWrap),
                       dark = Prepare({2, 1}, {{1, 1}, {0}}, qvpBorderWrap);
  const float image[] = {1, 2};
  float found[2];
  const auto inverse = [&](float noise, float smoothness) {
    return qvpiDeconvolveInverse_32f_C1R(image, 8, found, 8, noise, smoothness, SpecOf(row), row.buffer());
  };
  const auto iterative = [&](int n, float threshold, const test::Prepared& by) {
    return qvpiDeconvolveIterative_32f_C1R(image, 8, found, 8, n, threshold, SpecOf(by), by.buffer());
  };
  for (const float bad : {-1.F, INFINITY, NAN}) {
    EXPECT_EQ(inverse(bad, 1), qvpStatusBadArgument);
    EXPECT_EQ(inverse(1, bad), qvpStatusBadArgument);
  }
  EXPECT_EQ(inverse(0, 0), qvpStatusBadArgument);
  EXPECT_EQ(iterative(0, 0, row), qvpStatusBadArgument);
  EXPECT_EQ(iterative(1, NAN, row), qvpStatusBadArgument);
  EXPECT_EQ(iterative(1, 0, dark), qvpStatusBadArgument);
  const float spread[] = {1, NAN, 1};
  EXPECT_EQ(qvpiDeconvolveInit_32f({2, 1}, spread, 4, {1, 2}, qvpBorderWrap, SpecOf(row), row.buffer()), qvpStatusSize);
  EXPECT_EQ(qvpiDeconvolveInit_32f({2, 1}, spread, 8, {2, 1}, 4, SpecOf(row), row.buffer()), qvpStatusBorder);
  EXPECT_EQ(qvpiDeconvolveInit_32f({2, 1}, spread, 8, {2, 1}, 8, SpecOf(row), row.buffer()), qvpStatusBadArgument);
  EXPECT_EQ(inverse(1, 0), qvpStatusContextMatch);
  int s[3];
  EXPECT_EQ(qvpiDeconvolveGetSize_32f({1 << 30, 3}, {1, 1}, 1, s, s + 1, s + 2), qvpStatusSizeOverflow);
  EXPECT_EQ(s[0] + s[1] + s[2], 0);
}

}  // namespace
