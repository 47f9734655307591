// Noise against its formulas, with a generator written from the definition.
#include <array>
#include <cmath>
#include <functional>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/reference.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Random;
using test::Real;
using test::Samples;

using Block = std::array<uint32_t, 4>;

Block Philox(Block counter, uint32_t seed, uint32_t stream) {
  for (int round = 0; round < 10; ++round, seed += 0x9E3779B9, stream += 0xBB67AE85) {
    const uint64_t a = uint64_t{0xD2511F53} * counter[0], b = uint64_t{0xCD9E8D57} * counter[2];
    counter = {static_cast<uint32_t>(b >> 32) ^ counter[1] ^ seed, static_cast<uint32_t>(b),
               static_cast<uint32_t>(a >> 32) ^ counter[3] ^ stream, static_cast<uint32_t>(a)};
  }
  return counter;
}

// The generator of a call.
struct Source {
  uint32_t seed, stream, frame;
  uint32_t Word(int64_t i, int64_t row) const {
    return Philox({static_cast<uint32_t>(i / 4), static_cast<uint32_t>(row), frame, 0}, seed, stream)[i % 4];
  }
  double Normal(int64_t i, int64_t row) const {
    const uint32_t p = Word(i / 2 * 2, row), q = Word(i / 2 * 2 + 1, row);
    const double r = std::sqrt(-2 * std::log((static_cast<float>(p >> 1) + 1) * 0x1p-31)),
                 angle = 2 * M_PI * q / 0x1p32;
    return r * (i % 2 == 0 ? std::cos(angle) : std::sin(angle));
  }
};

// A record at any address.
class Spec {
 public:
  QvpiNoiseSpec* get() { return reinterpret_cast<QvpiNoiseSpec*>(bytes_ + 5); }

 private:
  uint8_t bytes_[128 + 5] = {};
};

// A kind: its Init, the samples that share a word, and the least and the greatest that a sample may become.
struct Range {
  Real least, greatest;
};
struct Kind {
  const char* name;
  std::function<QvpStatus(uint32_t, uint32_t, QvpiNoiseSpec*)> init;
  bool isOfPixels;
  std::function<Range(const Source&, const Element&, Real v, int64_t i, int64_t row)> become;
};

// What is within a part of the exact value, once it is stored: rounding keeps the order.
Range Around(const Element& element, Real exact, Real error) {
  return {test::Converted(element, exact - error), test::Converted(element, exact + error)};
}
// Errors of normal numbers, and of the float operations on values of this size.
Range Scattered(const Element& element, Real v, Real mean, Real scale, Real g) {
  return Around(element, v + mean + scale * g, scale * 2e-6L + (std::fabs(v) + std::fabs(mean) + 7 * scale) * 3e-7L);
}

constexpr float kLow = -20.5f, kHigh = 33.25f, kMean = 1.5f, kSigma = 12.75f, kShare = 0.3f, kGain = 2.25f;

const Kind kKinds[] = {
    {"uniform", [](auto... key) { return qvpiNoiseUniformInit(kLow, kHigh, key...); }, false,
     [](const Source& source, const Element& element, Real v, int64_t i, int64_t row) {
       const volatile float scaled = static_cast<float>(source.Word(i, row) >> 8) * 0x1p-24f * (kHigh - kLow);
       const volatile float noise = kLow + scaled, sum = static_cast<float>(v) + noise;
       return Around(element, sum, 0);
     }},
    {"Gauss", [](auto... key) { return qvpiNoiseGaussInit(kMean, kSigma, key...); }, false,
     [](const Source& source, const Element& element, Real v, int64_t i, int64_t row) {
       return Scattered(element, v, kMean, kSigma, source.Normal(i, row));
     }},
    {"speckle", [](auto... key) { return qvpiNoiseSpeckleInit(kShare, key...); }, false,
     [](const Source& source, const Element& element, Real v, int64_t i, int64_t row) {
       return Scattered(element, v, 0, std::fabs(v * kShare), v < 0 ? -source.Normal(i, row) : source.Normal(i, row));
     }},
    {"shot", [](auto... key) { return qvpiNoiseShotInit(kGain, kSigma, key...); }, false,
     [](const Source& source, const Element& element, Real v, int64_t i, int64_t row) {
       const Real variance = kGain * std::max<Real>(v, 0) + kSigma * kSigma;
       return Scattered(element, v, 0, std::sqrt(variance), source.Normal(i, row));
     }},
    {"salt and pepper", [](auto... key) { return qvpiNoiseSaltPepperInit(0.4, 0.25, -7.5, 65535.5, key...); }, true,
     [](const Source& source, const Element& element, Real v, int64_t i, int64_t row) {
       const uint32_t word = source.Word(i, row);
       const bool isSalt = word < static_cast<uint32_t>(0.4 * 0.25 * 0x1p32);
       const bool isHit = word < static_cast<uint32_t>(0.4 * 0x1p32);
       return Around(element, isSalt ? 65535.5L : isHit ? -7.5L : v, 0);
     }}};

void Expect(const Export& function, const Kind& kind, QvpiSize size, QvpiPoint offset, Random& random) {
  const Name name(function.name);
  const Element& element = name.From();
  const Source source{random.Next(), random.Next(), random.Next()};
  Spec spec;
  ASSERT_EQ(kind.init(source.seed, source.stream, spec.get()), 0);
  Samples src(element, size.width * name.channels, size.height, 3), dst(element, src.width(), size.height, 8);
  src.Fill([&](int, int) { return PlainValue(element, random); });
  const Samples old(src), kept(dst);
  ASSERT_EQ(function({{"pSrc", src},
                      {"pDst", dst},
                      {"pSrcDst", src},
                      {"roiSize", size},
                      {"dstOffset", offset},
                      {"frame", source.frame},
                      {"pSpec", {spec.get()}}}),
            0);
  const Samples& result = name.inPlace ? src : dst;
  for (int y = 0; y < size.height; ++y) {
    for (int i = 0; i < src.width(); ++i) {
      const int64_t sample = int64_t{offset.x} * name.channels + i;
      Range range = kind.become(source, element, old(i, y), kind.isOfPixels ? sample / name.channels : sample,
                                int64_t{offset.y} + y);
      if (i % name.channels >= name.written) range.least = range.greatest = (name.inPlace ? old : kept)(i, y);
      const Real pixel = result(i, y);
      const bool isBits = test::AreSame(pixel, range.least) || (pixel >= range.least && pixel <= range.greatest);
      ASSERT_TRUE(isBits) << function.name << ' ' << kind.name << ' ' << i << ',' << y << ": " << old(i, y)
                          << " became " << pixel << ", not " << range.least << " to " << range.greatest;
    }
  }
}

TEST(Noise, EveryMemberAndKindIsItsFormula) {
  Random random(1);
  for (const Export* function : test::FunctionsOf({"Noise"})) {
    for (const Kind& kind : kKinds) {
      for (int width = 1; width <= 40; ++width) {
        Expect(*function, kind, {width, 1 + width % 3}, {width * 7 % 5, width}, random);
      }
      Expect(*function, kind, {1600, 2}, {3, 0}, random);
      Expect(*function, kind, {37, 3}, {INT32_MAX - 37, INT32_MAX - 3}, random);
    }
  }
}

// Words as uniform noise shows them, all of their upper 24 bits.
std::vector<uint32_t> UpperBits(uint32_t seed, uint32_t stream, uint32_t frame, QvpiPoint offset, int n) {
  Spec spec;
  EXPECT_EQ(qvpiNoiseUniformInit(0, 1 << 24, seed, stream, spec.get()), 0);
  std::vector<float> numbers(n);
  EXPECT_EQ(qvpiNoise_32f_C1IR(numbers.data(), 4 * n, {n, 1}, offset, frame, spec.get()), 0);
  return {numbers.begin(), numbers.end()};
}

TEST(Noise, KnownWords) {
  EXPECT_EQ(Philox({~0u, ~0u, ~0u, ~0u}, ~0u, ~0u), (Block{0x408F276D, 0x41C83B0E, 0xA20BC7C6, 0x6D5451FD}));
  EXPECT_EQ(UpperBits(0, 0, 0, {0, 0}, 8),
            (std::vector<uint32_t>{0x6627E8, 0xE169C5, 0xBC57AC, 0x9B00DB, 0xF8E4CC, 0x5CB200, 0xB1A574, 0x097EFF}));
  EXPECT_EQ(UpperBits(0, 0, 0, {0, 1}, 2), (std::vector<uint32_t>{0x6AD0C5, 0xEA2362}));
  EXPECT_EQ(UpperBits(1, 2, 3, {5, 7}, 1), (std::vector<uint32_t>{0xDFBEBA}));
}

TEST(Noise, KnownPixels) {
  using Row = std::vector<Qvp8u>;
  const auto noisy = [](const auto& init) {
    Spec spec;
    EXPECT_EQ(init(0, 0, spec.get()), 0);
    Row row(8, 100);
    EXPECT_EQ(qvpiNoise_8u_C1IR(row.data(), 8, {8, 1}, {0, 0}, 0, spec.get()), 0);
    return row;
  };
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseUniformInit(-10, 10, k...); }),
            (Row{98, 108, 105, 102, 109, 97, 104, 91}));
  const Row gauss{110, 91, 94, 95, 98, 102, 108, 102};
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseGaussInit(0, 10, k...); }), gauss);
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseSpeckleInit(0.1, k...); }), gauss);
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseShotInit(4, 3, k...); }), (Row{120, 81, 88, 90, 97, 104, 117, 104}));
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseSaltPepperInit(0.5, 0.5, 0, 255, k...); }),
            (Row{0, 100, 100, 100, 100, 0, 100, 255}));
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseSaltPepperInit(0, 1, 0, 255, k...); }), Row(8, 100));
  EXPECT_EQ(noisy([](auto... k) { return qvpiNoiseSaltPepperInit(0.5, 0, 0, 255, k...); }),
            (Row{0, 100, 100, 100, 100, 0, 100, 0}));
}

TEST(Noise, LeavesNaN) {
  Spec spec;
  ASSERT_EQ(qvpiNoiseGaussInit(0, 1, 1, 2, spec.get()), 0);
  std::vector<float> pixels(70, NAN);
  ASSERT_EQ(qvpiNoise_32f_C1IR(pixels.data(), 280, {70, 1}, {0, 0}, 0, spec.get()), 0);
  for (const float v : pixels) EXPECT_TRUE(std::isnan(v));
}

TEST(Noise, InitRefusesWhatIsNoNoise) {
  Spec spec;
  Qvp8u pixel = 7;
  const auto expect = [&](QvpStatus expected, QvpStatus (*init)(double, double, QvpiNoiseSpec*), double a, double b) {
    ASSERT_EQ(qvpiNoiseGaussInit(0, 1, 0, 0, spec.get()), 0);
    EXPECT_EQ(init(a, b, spec.get()), expected) << a << ' ' << b;
    const QvpStatus use = expected < 0 ? qvpStatusContextMatch : qvpStatusNoError;
    EXPECT_EQ(qvpiNoise_8u_C1IR(&pixel, 1, {1, 1}, {0, 0}, 0, spec.get()), use) << a << ' ' << b;
  };
  const auto uniform = [](double a, double b, QvpiNoiseSpec* s) { return qvpiNoiseUniformInit(a, b, 0, 0, s); };
  const auto gauss = [](double a, double b, QvpiNoiseSpec* s) { return qvpiNoiseGaussInit(a, b, 0, 0, s); };
  const auto shot = [](double a, double b, QvpiNoiseSpec* s) { return qvpiNoiseShotInit(a, b, 0, 0, s); };
  const auto speckle = [](double a, double, QvpiNoiseSpec* s) { return qvpiNoiseSpeckleInit(a, 0, 0, s); };
  const auto level = [](double a, double b, QvpiNoiseSpec* s) { return qvpiNoiseSaltPepperInit(a, b, 0, 1, 0, 0, s); };
  const auto ends = [](double a, double b, QvpiNoiseSpec* s) { return qvpiNoiseSaltPepperInit(0.1, 1, a, b, 0, 0, s); };
  for (const double v : {double{NAN}, double{INFINITY}, 4e38, -1e300}) {
    expect(qvpStatusBadArgument, uniform, v, 1);
    expect(qvpStatusBadArgument, uniform, -1, v);
    expect(qvpStatusBadArgument, gauss, v, 1);
    for (const auto init : {+gauss, +shot}) expect(qvpStatusBadArgument, init, 1, v);
    for (const auto init : {+shot, +speckle}) expect(qvpStatusBadArgument, init, v, 1);
  }
  expect(qvpStatusBadArgument, uniform, -3e38, 3e38);
  expect(qvpStatusRange, uniform, 1, 0.5);
  expect(qvpStatusNoError, uniform, 1, 1);
  for (const auto init : {+gauss, +shot}) expect(qvpStatusBadArgument, init, 0, -1e-60);
  expect(qvpStatusBadArgument, shot, -1, 1);
  expect(qvpStatusBadArgument, shot, 1, 1e20);
  expect(qvpStatusBadArgument, speckle, -1e-9, 0);
  expect(qvpStatusNoError, gauss, -1, 0);
  for (const double v : {-1e-9, 1.0, 2.0, double{NAN}}) expect(qvpStatusNoiseRange, level, v, NAN);
  for (const double v : {-1e-9, 1.0001, double{NAN}}) expect(qvpStatusBadArgument, level, 0.5, v);
  expect(qvpStatusBadArgument, ends, NAN, 0);
  expect(qvpStatusBadArgument, ends, 0, NAN);
  expect(qvpStatusNoError, ends, -INFINITY, INFINITY);
}

TEST(Noise, RefusesPlacesBeyondTheCounters) {
  Spec spec;
  Qvp8u pixel = 7;
  const auto call = [&](QvpiPoint offset, QvpiSize roi, int step = 1) {
    return qvpiNoise_8u_C1IR(&pixel, step, roi, offset, 0, spec.get());
  };
  for (const QvpiPoint offset : {QvpiPoint{-1, 0}, {0, -1}, {INT32_MAX, 0}, {0, INT32_MAX}, {INT32_MIN, 0}}) {
    EXPECT_EQ(call(offset, {1, 1}), qvpStatusOutOfRange);
    EXPECT_EQ(call(offset, {1, 1}, 0), qvpStatusStep);
  }
  EXPECT_EQ(call({1, 0}, {INT32_MAX, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(call({0, 0}, {1, 1}), qvpStatusContextMatch);
  EXPECT_EQ(pixel, 7);
}

}  // namespace
