// Conversions and scaling against exact values.
#include <cmath>
#include <limits>

#include "tests/support/elements.h"
#include "tests/support/reference.h"

namespace {
using test::Converted;
using test::Element;
using test::Export;
using test::Real;

// All values of small types; of others the ends, powers of two, halves and their neighbours, and random bits.
std::vector<Real> Values(const Element& type) {
  std::vector<Real> values;
  if (type.bytes <= 2) {
    for (Real v = type.lowest; v <= type.highest; ++v) values.push_back(v);
    return values;
  }
  for (int bit = 0; bit < 34; ++bit) {
    for (const double base : {std::ldexp(1.0, bit), 3 * std::ldexp(1.0, bit), std::ldexp(1.0, bit) * 1.5}) {
      for (const double offset : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
        for (const double v : {base + offset, -base - offset}) {
          if (v >= type.lowest && v <= type.highest) values.push_back(type.isInteger ? std::trunc(v) : v);
        }
      }
    }
  }
  test::Random random(type.bytes);
  for (int i = 0; i < 1500; ++i) {
    uint8_t bits[8];
    random.Fill(bits, sizeof(bits));
    values.push_back(type.read(bits));
  }
  values.insert(values.end(), {type.lowest, type.highest, 0});
  if (!type.isInteger) {
    const Real below = type.bytes == 4 ? std::nextafter(0.5f, 0.0f) : std::nextafter(0.5, 0.0);
    values.insert(values.end(),
                  {-0.0L, below, -below, NAN, INFINITY, -INFINITY, std::ldexp(1.0L, type.bytes == 4 ? -149 : -1074),
                   254.5L, 255.5L, 65535.5L, 2147483648.0L});
  }
  return values;
}

// A function between two types, and the kind of its name's end.
struct Conversion {
  const Export* function;
  const Element *from, *to;
};

std::vector<Conversion> ConversionsOf(const std::string& operation, std::string_view ending) {
  std::vector<Conversion> found;
  for (const Export* function : test::FunctionsOf({operation})) {
    const test::Name name(function->name);
    if (function->name.ends_with(ending)) found.push_back({function, &name.From(), &name.To()});
  }
  EXPECT_FALSE(found.empty()) << operation << ' ' << ending;
  return found;
}

// Calls the function on rows of all values and compares every element.
template <class Expected>
void Check(const Conversion& c, const std::vector<test::Named>& more, const Expected& expected) {
  const std::vector<Real> values = Values(*c.from);
  const int channels = test::Name(c.function->name).channels, height = 3;
  const int pixels = static_cast<int>(values.size()) / channels / height + 1, samples = pixels * channels;
  test::CheckElements(
      *c.function, {pixels, height}, more,
      [&](test::Samples& image) {
        image.Fill([&](int x, int y) { return values[(y * samples + x) % values.size()]; });
      },
      [&](Real, Real v, int) { return expected(v); });
}

TEST(Convert, SaturatesEveryValue) {
  for (const char* ending : {"R", "Rs"}) {
    for (const auto& c : ConversionsOf("Convert", ending)) {
      if (c.function->Find("roundMode") >= 0) continue;
      Check(c, {}, [&](Real v) { return Converted(*c.to, v); });
    }
  }
}

TEST(Convert, RoundsFloatsInEveryMode) {
  for (const auto& c : ConversionsOf("Convert", "R")) {
    if (c.function->Find("roundMode") < 0) continue;
    for (const int mode : {0, 1, 2, 7, -1}) {
      Check(c, {{"roundMode", mode}}, [&](Real v) { return Converted(*c.to, v, mode); });
    }
  }
}

TEST(Convert, ScalesByPowersOfTwoInEveryMode) {
  for (const auto& c : ConversionsOf("Convert", "RSfs")) {
    for (const int mode : {0, 1, 2}) {
      for (const int scale : {INT32_MIN, -160, -33, -8, -1, 0, 1, 4, 7, 8, 9, 16, 31, 32, 33, 160, INT32_MAX}) {
        Check(c, {{"roundMode", mode}, {"scaleFactor", scale}},
              [&](Real v) { return Converted(*c.to, std::ldexp(v, -std::clamp(scale, -3000, 3000)), mode); });
      }
    }
  }
}

TEST(Convert, ChecksTheModeOfIntegersOnly) {
  int32_t integer = 5;
  float real = 5;
  int16_t words = 9;
  uint8_t bytes = 9;
  for (const int mode : {-1, 3, 7}) {
    EXPECT_EQ(qvpiConvert_32s16s_C1RSfs(&integer, 4, &words, 2, {0, 1}, mode, 0), qvpStatusSize);
    EXPECT_EQ(qvpiConvert_32s16s_C1RSfs(&integer, 4, &words, 2, {1, 1}, mode, 0), qvpStatusRoundMode);
    EXPECT_EQ(words, 9);
    EXPECT_EQ(qvpiConvert_32f8u_C1RSfs(&real, 4, &bytes, 1, {1, 1}, mode, 0), qvpStatusNoError);
    EXPECT_EQ(bytes, 5);
  }
}

TEST(Scale, MapsFullRangesOntoEachOther) {
  for (const auto& c : ConversionsOf("Scale", "R")) {
    if (c.function->Find("vMin") >= 0) continue;
    Check(c, {}, [&](Real v) {
      const Real share = (v - c.from->lowest) / (c.from->highest - c.from->lowest);
      return Converted(*c.to, share * (c.to->highest - c.to->lowest) + c.to->lowest);
    });
  }
}

TEST(Scale, MapsRangesOfFloats) {
  for (const auto& c : ConversionsOf("Scale", "R")) {
    if (c.function->Find("vMin") < 0) continue;
    for (const auto& [low, high] : {std::pair{-3, 1000}, {0, 100}, {7, 8}}) {
      Check(c, {{"vMin", low}, {"vMax", high}}, [&, first = Real(low), range = Real(high - low)](Real v) {
        if (!c.from->isInteger) return Converted(*c.to, (v - first) * 255 / range);
        return Converted(*c.to,
                         static_cast<double>(first) + static_cast<double>(v) * (static_cast<double>(range) / 255));
      });
    }
  }
}

// Large images may take another way, if it gives the same floats.
TEST(Scale, GivesBytesTheSameFloatsInLargeImagesAsInSmallOnes) {
  test::Random random(76);
  std::vector<uint8_t> bytes(2048);
  std::vector<float> large(2048), small(2048);
  for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i);
  for (int i = 0; i < 3000; ++i) {
    const int digits = 1 + i % 24;  // of the ends; few leave exact products in single precision
    const auto end = [&] { return std::ldexp(static_cast<float>(random.Next() % (1u << digits)), i % 50 - 30); };
    const float low = i % 3 == 0 ? 0 : end() - end(), high = low + end();
    if (!(high > low)) continue;
    ASSERT_EQ(qvpiScale_8u32f_C1R(bytes.data(), 2048, large.data(), 8192, {2048, 1}, low, high), qvpStatusNoError);
    ASSERT_EQ(qvpiScale_8u32f_C1R(bytes.data(), 512, small.data(), 2048, {512, 1}, low, high), qvpStatusNoError);
    ASSERT_EQ(std::memcmp(large.data(), small.data(), 2048), 0) << low << " to " << high;
    ASSERT_EQ(std::memcmp(large.data() + 1536, small.data(), 2048), 0) << low << " to " << high;
  }
}

TEST(Scale, GivesBothEndsOfEveryRangeAndRefusesWhatIsNone) {
  test::Random random(77);
  const uint8_t bytes[2] = {0, 255};
  uint8_t kept = 9;
  float reals[2] = {7, 7};
  for (int i = 0; i < 20000; ++i) {
    const float low = static_cast<float>(random.Next()) * 0x1p-20f - 1000, high = low + std::ldexp(1.1f, i % 60 - 20);
    if (!(high > low)) continue;
    ASSERT_EQ(qvpiScale_8u32f_C1R(bytes, 2, reals, 8, {2, 1}, low, high), qvpStatusNoError);
    ASSERT_EQ(reals[0], low);
    ASSERT_EQ(reals[1], high);
  }
  for (const auto& [low, high] : {std::pair{0.5f, 0.5f}, {0.5f, 0.4f}, {0.5f, NAN}, {0, INFINITY}, {-INFINITY, 1}}) {
    EXPECT_EQ(qvpiScale_32f8u_C1R(reals, 8, &kept, 1, {1, 1}, low, high), qvpStatusScaleRange);
    EXPECT_EQ(qvpiScale_8u32f_C1R(bytes, 2, reals, 8, {1, 1}, low, high), qvpStatusScaleRange);
    EXPECT_EQ(qvpiScale_8u32f_C1R(bytes, 2, reals, 8, {1, 0}, low, high), qvpStatusSize);
  }
  EXPECT_EQ(kept, 9);
}

// In the precision that the hint and the types ask for. What changes nothing is a copy, of the sign of zero too.
Real ScaledByConstant(const Conversion& c, Real v, double m, double a, int hint) {
  const auto isSmall = [](const Element& type) { return type.bytes <= 2 || type.name == "32f"; };
  if (c.from == c.to && m == 1 && a == 0) return v;
  if (isSmall(*c.from) && isSmall(*c.to) && hint != qvpAlgHintAccurate) {
    volatile float product = static_cast<float>(v) * static_cast<float>(m);
    const float sum = product + static_cast<float>(a);
    return Converted(*c.to, sum);
  }
  volatile double product = static_cast<double>(v) * m;
  const double sum = product + a;
  return Converted(*c.to, sum);
}

TEST(ScaleC, ComputesInThePrecisionOfHintAndTypes) {
  for (const auto& c : ConversionsOf("ScaleC", "R")) {
    for (const auto& k : {std::pair{3, -7}, {-2, 100}, {1, 0}, {0, 70000}}) {
      for (const int hint : {0, 1, 2}) {
        Check(c, {{"mVal", k.first}, {"aVal", k.second}, {"hint", hint}},
              [&](Real v) { return ScaledByConstant(c, v, k.first, k.second, hint); });
      }
    }
  }
}

TEST(ScaleC, CopiesWithoutStepChecks) {
  uint8_t src[3] = {1, 2, 3}, dst[3] = {9, 9, 9};
  EXPECT_EQ(qvpiScaleC_8u_C1R(src, 0, 2, 0, dst, 3, {3, 1}, 1), qvpStatusStep);
  EXPECT_EQ(qvpiScaleC_8u_C1R(src, 0, 2, 0, dst, 3, {0, 1}, 1), qvpStatusSize);
  EXPECT_EQ(dst[0], 9);
  EXPECT_EQ(qvpiScaleC_8u_C1R(src, -1, 1, 0, dst, 3, {3, 1}, 1), qvpStatusNoError);
  EXPECT_EQ(dst[2], 3);
  EXPECT_EQ(qvpiScaleC_8u8s_C1R(src, 0, 1, 0, reinterpret_cast<Qvp8s*>(dst), 3, {3, 1}, 1), qvpStatusStep);
}

template <class T>
void CheckBits(QvpStatus (*toGrey)(const Qvp8u*, int, int, T*, int, QvpiSize, T, T),
               QvpStatus (*toBits)(const T*, int, Qvp8u*, int, int, QvpiSize, T)) {
  for (int offset = 0; offset < 8; ++offset) {
    for (int width = 1; width < 70; width += 1 + width / 20) {
      const int bytes = (offset + width + 7) / 8, height = 3;
      test::Image<uint8_t> bits(bytes, height, 2), back(bytes, height, 1, test::Guard::kBefore);
      const test::Image<uint8_t> before(back);
      test::Image<T> grey(width, height, 3);
      ASSERT_EQ(toGrey(bits.data(), bits.step(), offset, grey.data(), grey.step(), {width, height}, T{3}, T{90}), 0);
      ASSERT_EQ(toBits(grey.data(), grey.step(), back.data(), back.step(), offset, {width, height}, T{89}), 0);
      for (int y = 0; y < height; ++y) {
        for (int i = 0; i < bytes * 8; ++i) {
          const auto bit = [&](const test::Image<uint8_t>& image) { return image(i / 8, y) >> (7 - i % 8) & 1; };
          const bool isPixel = i >= offset && i < offset + width;
          if (isPixel) {
            ASSERT_EQ(grey(i - offset, y), bit(bits) ? T{90} : T{3});
          }
          ASSERT_EQ(bit(back), isPixel ? bit(bits) : bit(before)) << offset << ' ' << width << ' ' << i;
        }
      }
    }
  }
}

TEST(Bits, GoToGreyAndBackAtEveryOffset) {
  CheckBits<uint8_t>(qvpiBinToGray_1u8u_C1R, qvpiGrayToBin_8u1u_C1R);
  CheckBits<uint16_t>(qvpiBinToGray_1u16u_C1R, qvpiGrayToBin_16u1u_C1R);
  CheckBits<int16_t>(qvpiBinToGray_1u16s_C1R, qvpiGrayToBin_16s1u_C1R);
  CheckBits<float>(qvpiBinToGray_1u32f_C1R, qvpiGrayToBin_32f1u_C1R);
  const float values[] = {NAN, 1, 2, INFINITY};
  uint8_t bits = 0xFF;
  ASSERT_EQ(qvpiGrayToBin_32f1u_C1R(values, 16, &bits, 1, 2, {4, 1}, 1), qvpStatusNoError);
  EXPECT_EQ(bits, 0b11001111);
  for (const int offset : {-1, 8}) {
    EXPECT_EQ(qvpiGrayToBin_32f1u_C1R(values, 16, &bits, 1, offset, {4, 0}, 1), qvpStatusSize);
    EXPECT_EQ(qvpiGrayToBin_32f1u_C1R(values, 16, &bits, 1, offset, {4, 1}, 1), qvpStatusOutOfRange);
    EXPECT_EQ(qvpiBinToGray_1u8u_C1R(&bits, 1, offset, &bits, 1, {1, 1}, 1, 2), qvpStatusOutOfRange);
  }
  EXPECT_EQ(bits, 0b11001111);
}

}  // namespace
