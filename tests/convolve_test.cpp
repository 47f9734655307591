// Convolutions against their sum: every shape, type and method, on images that end at unreadable pages.
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/operand.h"
#include "tests/support/reference.h"

namespace {
using test::Block;
using test::Element;
using test::Export;
using test::Name;
using test::Operand;
using test::Real;
using test::Samples;

constexpr QvpiMethod kMethods[] = {qvpMethodDirect, qvpMethodFourier, qvpMethodAuto};

// What images are filled with.
enum class Content { kRandom, kExtremes, kLowest };

Real ValueOf(Content content, const Element& element, test::Random& random) {
  if (content == Content::kLowest) return element.lowest;
  if (content == Content::kExtremes) return random.Next() % 2 ? element.lowest : element.highest;
  return test::AnyPixel(element, random);
}

std::vector<double> PlaneOf(const Operand& operand, int channel) {
  std::vector<double> plane;
  for (int y = 0; y < operand.size.height; ++y) {
    for (int x = 0; x < operand.size.width; ++x) plane.push_back(operand.At(x, y, channel));
  }
  return plane;
}

// The full convolution of a channel: products added in the order of the second image. `F` is float, or holds the sums.
template <class F>
std::vector<F> Full(const Operand& a, const Operand& b, int channel) {
  const std::vector<double> first = PlaneOf(a, channel), second = PlaneOf(b, channel);
  const int width = a.size.width + b.size.width - 1, height = a.size.height + b.size.height - 1;
  std::vector<F> full(size_t(width) * height);
  for (int y = 0; y < b.size.height; ++y) {
    for (int x = 0; x < b.size.width; ++x) {
      const auto factor = static_cast<F>(second[y * b.size.width + x]);
      if (factor == 0) continue;  // adds +0 or -0 to what is not -0
      for (int v = 0; v < a.size.height; ++v) {
        F* const to = &full[size_t(y + v) * width + x];
        const double* const from = &first[v * a.size.width];
        for (int u = 0; u < a.size.width; ++u) {
          const F product = static_cast<F>(from[u]) * factor;
          to[u] += product;
        }
      }
    }
  }
  return full;
}

// of(channel) for each.
template <class Of>
auto PerChannel(const Operand& operand, const Of& of) {
  std::vector<decltype(of(0))> results(operand.channels);
  for (int c = 0; c < operand.channels; ++c) results[c] = of(c);
  return results;
}
template <class F>
auto FullOfEach(const Operand& a, const Operand& b) {
  return PerChannel(a, [&](int c) { return Full<F>(a, b, c); });
}

struct Region {
  int x, y;
  QvpiSize size;
};
Region RegionOf(const Export& function, QvpiSize a, QvpiSize b) {
  const auto has = [&](const char* shape) { return function.name.find(shape) != std::string::npos; };
  if (has("Full")) return {0, 0, {a.width + b.width - 1, a.height + b.height - 1}};
  if (has("Same")) return {(b.width - 1) / 2, (b.height - 1) / 2, a};
  return {b.width - 1, b.height - 1, {a.width - b.width + 1, a.height - b.height + 1}};
}

int BufferSize(const Operand& a, const Operand& b, QvpiMethod method) {
  int bytes = -1;
  EXPECT_EQ(qvpiConvolveGetBufferSize(a.size, b.size, a.pixels.element().code, a.channels, method, &bytes), 0);
  return bytes;
}

struct Request {
  const Operand &a, &b;
  int divisor;
  QvpiMethod method;
};

// The result of a function, by a buffer of just the size that was told.
void Call(const Export& function, const Request& request, const Samples& dst) {
  const auto& [a, b, divisor, method] = request;
  const Block buffer(BufferSize(a, b, method));
  ASSERT_EQ(function({{"pSrc1", a.pixels},
                      {"src1Size", a.size},
                      {"pSrc2", b.pixels},
                      {"src2Size", b.size},
                      {"pDst", dst},
                      {"divisor", divisor},
                      {"method", method},
                      {"pBuffer", {buffer.data()}}}),
            0)
      << function.name;
}

// Calls check(x, y, channel, result, place in the full convolution) for all results.
template <class Check>
void ForEachResult(const Export& function, const Request& request, const Check& check) {
  const Operand &a = request.a, &b = request.b;
  const Region region = RegionOf(function, a.size, b.size);
  if (region.size.width < 1 || region.size.height < 1) return;
  Samples dst(a.pixels.element(), region.size.width * a.channels, region.size.height, 5);
  Call(function, request, dst);
  for (int y = 0; y < region.size.height; ++y) {
    for (int i = 0; i < region.size.width * a.channels; ++i) {
      const size_t at = size_t(y + region.y) * (a.size.width + b.size.width - 1) + i / a.channels + region.x;
      check(i % a.channels, dst(i, y), at);
    }
  }
}

struct Pair {
  QvpiSize a, b;
};
constexpr Pair kPairs[] = {{{1, 1}, {1, 1}},     {{7, 5}, {3, 3}},   {{40, 9}, {5, 4}},  {{33, 12}, {2, 6}},
                           {{64, 50}, {23, 19}}, {{5, 40}, {20, 3}}, {{3, 3}, {17, 20}}, {{19, 1}, {1, 19}},
                           {{131, 3}, {3, 3}},   {{70, 41}, {5, 5}}, {{9, 20}, {4, 17}}, {{30, 9}, {3, 26}}};

std::vector<const Export*> Convolutions() {
  return test::FunctionsOf({"ConvolveFull", "ConvolveSame", "ConvolveValid"});
}

void ExpectExact(const Export& function, const Request& request) {
  const auto full = FullOfEach<int64_t>(request.a, request.b);
  ForEachResult(function, request, [&](int channel, Real result, size_t at) {
    ASSERT_EQ(result, test::Quotient(request.a.pixels.element(), full[channel][at], request.divisor, qvpRoundNear))
        << function.name << " by method " << request.method << " / " << request.divisor << ", " << request.a.size.width
        << 'x' << request.a.size.height << " with " << request.b.size.width << 'x' << request.b.size.height;
  });
}

TEST(Convolve, IntegersAreExactByEveryMethod) {
  int turn = 0;
  for (const Export* function : Convolutions()) {
    const Name name(function->name);
    if (!name.From().isInteger) continue;
    for (const Pair& pair : kPairs) {
      ++turn;
      const auto content = static_cast<Content>(turn % 3);
      Operand a(name.From(), pair.a, name.channels, 3), b(name.From(), pair.b, name.channels, 4);
      a.Fill(content, turn), b.Fill(content, turn + 1000);
      const int taps = std::min(pair.a.width * pair.a.height, pair.b.width * pair.b.height);
      const int typical = name.From().bytes == 1 ? 128 * taps : 8192 * taps;
      const int divisors[] = {typical, 1, -typical, INT_MIN, 64, -3};
      for (const QvpiMethod method : kMethods) ExpectExact(*function, {a, b, divisors[(turn / 3) % 6], method});
    }
  }
}

// Sums that leave 32 bits, of every sign, and coefficients that do not.
TEST(Convolve, WordsOfAnySumAreExact) {
  const Export& function = test::FunctionNamed("qvpiConvolveSame_16s_C1R");
  for (const Pair& pair : {Pair{{70, 60}, {40, 37}}, {{40, 3}, {600, 2}}, {{64, 64}, {64, 64}}}) {
    for (const Content content : {Content::kRandom, Content::kExtremes, Content::kLowest}) {
      Operand a(test::ElementOf("16s"), pair.a, 1, 3), b(test::ElementOf("16s"), pair.b, 1, 4);
      a.Fill(content, 1), b.Fill(content, 2);
      const int taps = std::min(pair.a.width * pair.a.height, pair.b.width * pair.b.height);
      for (const QvpiMethod method : kMethods) {
        for (const int divisor : {1 << 20, 32768 * std::min(taps, 65535), 100003})
          ExpectExact(function, {a, b, divisor, method});
      }
    }
  }
}

// So large that pixels of both images have to be cut into parts; the second one is zero but for a few.
TEST(Convolve, PartsOfBothImagesAreExact) {
  Operand a(test::ElementOf("16s"), {660, 620}, 1, 3), b(test::ElementOf("16s"), {700, 650}, 1, 4);
  a.Fill(Content::kExtremes, 1);
  b.pixels.Fill([](int, int) { return 0; });
  test::Random random(2);
  for (int i = 0; i < 30; ++i) {
    const int x = static_cast<int>(random.Next() % 700), y = static_cast<int>(random.Next() % 650);
    b.pixels.Put(x, y, ValueOf(Content::kRandom, b.pixels.element(), random));
  }
  ExpectExact(test::FunctionNamed("qvpiConvolveSame_16s_C1R"), {a, b, 100003, qvpMethodFourier});
}

// check(function, a, b) for random images of all float members and sizes.
template <class Check>
void ForEachFloatCase(const Check& check) {
  int turn = 0;
  for (const Export* function : Convolutions()) {
    const Name name(function->name);
    if (name.From().isInteger) continue;
    for (const Pair& pair : kPairs) {
      Operand a(name.From(), pair.a, name.channels, 4), b(name.From(), pair.b, name.channels, 8);
      a.Fill(Content::kRandom, ++turn), b.Fill(Content::kRandom, turn + 1000);
      SCOPED_TRACE(function->name + ' ' + std::to_string(pair.b.width) + 'x' + std::to_string(pair.b.height));
      check(*function, a, b);
    }
  }
}

TEST(Convolve, FloatsAreAddedInOrder) {
  ForEachFloatCase([](const Export& function, const Operand& a, const Operand& b) {
    const auto full = FullOfEach<float>(a, b);
    ForEachResult(function, {a, b, 1, qvpMethodDirect},
                  [&](int channel, Real result, size_t at) { ASSERT_EQ(result, full[channel][at]); });
  });
}

double Norm(const std::vector<double>& values) {
  double sum = 0;
  for (const double value : values) sum += value * value;
  return std::sqrt(sum);
}

TEST(Convolve, SpectraOfFloatsKeepTheirErrors) {
  constexpr double kEps = 0x1p-24;
  ForEachFloatCase([](const Export& function, const Operand& a, const Operand& b) {
    const auto full = FullOfEach<double>(a, b);
    const auto norms = PerChannel(a, [&](int c) { return Norm(PlaneOf(a, c)) * Norm(PlaneOf(b, c)); });
    std::vector<double> errors(full.size()), count(full.size());
    ForEachResult(function, {a, b, 1, qvpMethodFourier}, [&](int channel, Real result, size_t at) {
      const double error = std::abs(static_cast<double>(result) - full[channel][at]) / (kEps * norms[channel]);
      ASSERT_LE(error, 10);
      errors[channel] += error * error;
      ++count[channel];
    });
    for (size_t c = 0; c < full.size(); ++c) ASSERT_LE(errors[c], 4 * count[c]);
  });
}

// Kernels so small beside the image that there are several tiles, whose edges the results must not show.
TEST(Convolve, TilesMeet) {
  const Pair pair{{700, 90}, {9, 7}};
  for (const auto function : {"qvpiConvolveFull_8u_C1R", "qvpiConvolveSame_16s_C3R", "qvpiConvolveValid_8u_C1R"}) {
    const Name name(function);
    Operand a(name.From(), pair.a, name.channels, 3), b(name.From(), pair.b, name.channels, 4);
    a.Fill(Content::kRandom, 5), b.Fill(Content::kRandom, 6);
    ExpectExact(test::FunctionNamed(function), {a, b, 63, qvpMethodFourier});
  }
}

TEST(Convolve, KnownValues) {
  const Qvp8u a[] = {1, 2, 3, 4, 5, 6}, b[] = {1, 2, 3, 4};
  const QvpiSize size{3, 2}, small{2, 2};
  using Pixels = std::vector<int>;
  for (const QvpiMethod method : kMethods) {
    int bytes = 0;
    ASSERT_EQ(qvpiConvolveGetBufferSize(size, small, qvp8u, 1, method, &bytes), 0);
    const Block buffer(bytes);
    const auto full = [&](int divisor) {
      Qvp8u dst[12];
      EXPECT_EQ(qvpiConvolveFull_8u_C1R(a, 3, size, b, 2, small, dst, 4, divisor, method, buffer.data()), 0);
      return Pixels(dst, dst + 12);
    };
    EXPECT_EQ(full(1), (Pixels{1, 4, 7, 6, 7, 23, 33, 24, 12, 31, 38, 24}));
    EXPECT_EQ(full(2), (Pixels{0, 2, 4, 3, 4, 12, 16, 12, 6, 16, 19, 12}));
    EXPECT_EQ(full(-1), Pixels(12));
    Qvp8u same[6], valid[2];
    EXPECT_EQ(qvpiConvolveSame_8u_C1R(a, 3, size, b, 2, small, same, 3, 1, method, buffer.data()), 0);
    EXPECT_EQ(Pixels(same, same + 6), (Pixels{1, 4, 7, 7, 23, 33}));
    EXPECT_EQ(qvpiConvolveValid_8u_C1R(a, 3, size, b, 2, small, valid, 2, 1, method, buffer.data()), 0);
    EXPECT_EQ(Pixels(valid, valid + 2), (Pixels{23, 33}));
  }
}

TEST(Convolve, RefusesSizesThatDoNotFit) {
  const QvpiSize one{1, 1}, wide{INT_MAX, 1};
  int bytes = 7;
  EXPECT_EQ(qvpiConvolveGetBufferSize(wide, {2, 1}, qvp8u, 1, qvpMethodDirect, &bytes), qvpStatusSizeOverflow);
  EXPECT_EQ(bytes, 0);
  Qvp8u pixel = 7, buffer[1];
  EXPECT_EQ(qvpiConvolveFull_8u_C1R(&pixel, 1, wide, &pixel, 1, {2, 1}, &pixel, 1, 1, 0, buffer), qvpStatusSize);
  for (const QvpiSize larger : {QvpiSize{2, 1}, {1, 2}}) {
    EXPECT_EQ(qvpiConvolveValid_8u_C1R(&pixel, 1, one, &pixel, 1, larger, &pixel, 1, 1, 0, buffer), qvpStatusSize);
  }
}

}  // namespace
