// Conversions and scaling against exact values.
#include <cmath>
#include <limits>
#include <regex>

#include "tests/support/exports.h"

namespace {
using test::Argument;
using test::Export;

template <class Use>
void WithType(const std::string& type, const Use& use) {
  if (type == "8u") use.template operator()<uint8_t>();
  if (type == "8s") use.template operator()<int8_t>();
  if (type == "16u") use.template operator()<uint16_t>();
  if (type == "16s") use.template operator()<int16_t>();
  if (type == "32u") use.template operator()<uint32_t>();
  if (type == "32s") use.template operator()<int32_t>();
  if (type == "32f") use.template operator()<float>();
  if (type == "64f") use.template operator()<double>();
}

// All values of small types; of others the ends, powers of two, halves and their neighbours, and random bits.
template <class S>
std::vector<S> Values() {
  std::vector<S> values;
  if constexpr (sizeof(S) <= 2) {
    for (int v = std::numeric_limits<S>::lowest(); v <= std::numeric_limits<S>::max(); ++v)
      values.push_back(static_cast<S>(v));
    return values;
  }
  test::Random random(sizeof(S));
  for (int bit = 0; bit < 34; ++bit) {
    for (const double base : {std::ldexp(1.0, bit), 3 * std::ldexp(1.0, bit), std::ldexp(1.0, bit) * 1.5}) {
      for (const double offset : {-1.0, -0.5, 0.0, 0.5, 1.0}) {
        for (const double v : {base + offset, -base - offset}) {
          if (!std::numeric_limits<S>::is_integer ||
              (v >= std::numeric_limits<S>::lowest() && v <= std::numeric_limits<S>::max())) {
            values.push_back(static_cast<S>(v));
          }
        }
      }
    }
  }
  for (int i = 0; i < 1500; ++i) {
    S v;
    const uint32_t bits[2] = {random.Next(), random.Next()};
    std::memcpy(&v, bits, sizeof(v));
    values.push_back(v);
  }
  if constexpr (!std::numeric_limits<S>::is_integer) {
    using L = std::numeric_limits<S>;
    const S below = std::nextafter(S{0.5}, S{0});
    values.insert(values.end(), {S{0}, -S{0}, below, -below, L::quiet_NaN(), L::infinity(), -L::infinity(),
                                 L::denorm_min(), -L::denorm_min(), L::max(), L::lowest(), S{254.5}, S{255.5},
                                 S{65535.5}, static_cast<S>(2147483648.0)});
  } else {
    values.insert(values.end(), {std::numeric_limits<S>::lowest(), std::numeric_limits<S>::max(), S{0}});
  }
  return values;
}

long double Rounded(long double v, int mode) {
  if (mode == qvpRoundZero) return std::trunc(v);
  return mode == qvpRoundNear ? std::nearbyint(v) : std::copysign(std::floor(std::fabs(v) + 0.5L), v);
}

// An exact value in type T.
template <class T>
T Stored(long double v, int mode = qvpRoundNear) {
  using L = std::numeric_limits<T>;
  if constexpr (!L::is_integer) return static_cast<T>(v);
  if (std::isnan(v)) return L::lowest();
  return static_cast<T>(Rounded(std::clamp<long double>(v, L::lowest(), L::max()), mode));
}

template <class T>
bool Same(T a, T b) {
  return a == b || (a != a && b != b);
}

// Calls the function on rows of all values and compares every element. Further arguments follow the size.
template <class S, class T, class Expected>
void Check(const Export& function, const std::vector<Argument>& further, const Expected& expected, size_t before = 0) {
  const int channels = std::regex_search(function.name, std::regex("_A?C4")) ? 4
                       : function.name.find("_C3") != std::string::npos      ? 3
                                                                             : 1;
  const int written = function.name.find("_AC4") != std::string::npos ? 3 : channels;
  const auto values = Values<S>();
  const int height = 3, pixels = static_cast<int>(values.size()) / channels / height + 1, samples = pixels * channels;
  const bool inPlace = function.Find("pSrcDst") >= 0;
  test::Image<S> src(samples, height, 3);
  test::Image<T> dst(samples, height, 5, test::Guard::kBefore);
  for (int i = 0; i < samples * height; ++i) src.Put(i % samples, i / samples, values[i % values.size()]);
  const test::Image<S> given(src);
  const test::Image<T> kept(dst);
  std::vector<Argument> arguments{{src.data()}, {nullptr, src.step()}};
  arguments.insert(arguments.end(), further.begin(), further.begin() + before);
  if (!inPlace) arguments.insert(arguments.end(), {{dst.data()}, {nullptr, dst.step()}});
  arguments.push_back({nullptr, pixels, height});
  arguments.insert(arguments.end(), further.begin() + before, further.end());
  ASSERT_EQ(function.call(arguments.data()), qvpStatusNoError) << function.name;
  for (int i = 0; i < samples * height; ++i) {
    const int x = i % samples, y = i / samples;
    T is{}, wanted = x % channels < written ? expected(given(x, y)) : kept(x, y);
    if (inPlace) {
      const S bits = src(x, y);
      std::memcpy(&is, &bits, std::min(sizeof(is), sizeof(bits)));
    } else {
      is = dst(x, y);
    }
    ASSERT_TRUE(Same(is, wanted)) << function.name << " of " << +given(x, y) << " is " << +is << ", not " << +wanted;
  }
}

struct Conversion {
  const Export* function;
  std::string from, to;
};

std::vector<Conversion> ConversionsOf(const std::string& pattern) {
  std::vector<Conversion> found;
  std::smatch match;
  for (const Export& function : test::Exports()) {
    if (std::regex_match(function.name, match, std::regex(pattern))) found.push_back({&function, match[1], match[2]});
  }
  return found;
}

const std::string kTypes = "(8u|8s|16u|16s|32u|32s|32f|64f)(8u|8s|16u|16s|32u|32s|32f|64f)";

TEST(Convert, SaturatesEveryValue) {
  for (const auto& c : ConversionsOf("qvpiConvert_" + kTypes + "_A?C[134]Rs?")) {
    if (c.function->Find("roundMode") >= 0) continue;
    WithType(c.from, [&]<class S>() {
      WithType(c.to, [&]<class T>() { Check<S, T>(*c.function, {}, [](S v) { return Stored<T>(v); }); });
    });
  }
}

TEST(Convert, RoundsFloatsInEveryMode) {
  for (const auto& c : ConversionsOf("qvpiConvert_" + kTypes + "_A?C[134]R")) {
    if (c.function->Find("roundMode") < 0) continue;
    for (const int mode : {0, 1, 2, 7, -1}) {
      WithType(c.to, [&]<class T>() {
        Check<float, T>(*c.function, {{nullptr, mode}}, [=](float v) { return Stored<T>(v, mode); });
      });
    }
  }
}

TEST(Convert, ScalesByPowersOfTwoInEveryMode) {
  for (const auto& c : ConversionsOf("qvpiConvert_" + kTypes + "_C1I?RSfs")) {
    for (const int mode : {0, 1, 2}) {
      for (const int scale : {INT32_MIN, -160, -33, -8, -1, 0, 1, 4, 7, 8, 9, 16, 31, 32, 33, 160, INT32_MAX}) {
        WithType(c.from, [&]<class S>() {
          WithType(c.to, [&]<class T>() {
            Check<S, T>(*c.function, {{nullptr, mode}, {nullptr, scale}}, [=](S v) {
              return Stored<T>(std::ldexp(static_cast<long double>(v), -std::clamp(scale, -3000, 3000)), mode);
            });
          });
        });
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
  for (const auto& c : ConversionsOf("qvpiScale_" + kTypes + "_A?C[134]R")) {
    if (c.function->Find("vMin") >= 0) continue;
    WithType(c.from, [&]<class S>() {
      WithType(c.to, [&]<class T>() {
        using From = std::numeric_limits<S>;
        using To = std::numeric_limits<T>;
        Check<S, T>(*c.function, {}, [](S v) {
          const long double range = static_cast<long double>(From::max()) - From::lowest();
          const long double share = (static_cast<long double>(v) - From::lowest()) / range;
          return Stored<T>(share * (static_cast<long double>(To::max()) - To::lowest()) + To::lowest());
        });
      });
    });
  }
}

// The functions take the bounds as floats: arguments of the list are whole numbers.
TEST(Scale, MapsRangesOfFloats) {
  for (const auto& c : ConversionsOf("qvpiScale_(8u|32f)(8u|32f)_A?C[134]R")) {
    const double low = -3, high = 1000;
    const std::vector<Argument> range{{nullptr, -3}, {nullptr, 1000}};
    if (c.from == "8u") {
      Check<uint8_t, float>(*c.function, range,
                            [=](uint8_t v) { return static_cast<float>(low + v * ((high - low) / 255)); });
    } else {
      Check<float, uint8_t>(*c.function, range,
                            [=](float v) { return Stored<uint8_t>((v - low) * (255 / (high - low))); });
    }
  }
  uint8_t byte = 255, kept = 9;
  float real = 7;
  ASSERT_EQ(qvpiScale_8u32f_C1R(&byte, 1, &real, 4, {1, 1}, 0.1f, 0.3f), qvpStatusNoError);
  EXPECT_EQ(real, 0.3f);
  for (const float high : {0.5f, 0.4f, NAN}) {
    EXPECT_EQ(qvpiScale_32f8u_C1R(&real, 4, &kept, 1, {1, 1}, 0.5f, high), qvpStatusScaleRange);
    EXPECT_EQ(qvpiScale_8u32f_C1R(&byte, 1, &real, 4, {1, 0}, 0.5f, high), qvpStatusSize);
  }
  EXPECT_EQ(kept, 9);
}

// In the precision that the hint and the types ask for.
template <class S, class T>
T ScaledByConstant(S v, double m, double a, int hint) {
  constexpr bool single = (sizeof(S) <= 2 || std::is_same_v<S, float>)&&(sizeof(T) <= 2 || std::is_same_v<T, float>);
  if (single && hint != qvpAlgHintAccurate) {
    volatile float product = static_cast<float>(v) * static_cast<float>(m);
    const float sum = product + static_cast<float>(a);
    return Stored<T>(sum);
  }
  volatile double product = static_cast<double>(v) * m;
  const double sum = product + a;
  return Stored<T>(sum);
}

TEST(ScaleC, ComputesInThePrecisionOfHintAndTypes) {
  for (const auto& c : ConversionsOf("qvpiScaleC_" + kTypes + "_C1R")) {
    for (const auto& k : {std::pair{3, -7}, {-2, 100}, {1, 0}, {0, 70000}}) {
      for (const int hint : {0, 1, 2}) {
        WithType(c.from, [&]<class S>() {
          WithType(c.to, [&]<class T>() {
            Check<S, T>(
                *c.function, {{nullptr, k.first}, {nullptr, k.second}, {nullptr, hint}},
                [=](S v) { return ScaledByConstant<S, T>(v, k.first, k.second, hint); }, 2);
          });
        });
      }
    }
  }
}

TEST(ScaleC, WorksInPlaceAndCopiesWithoutStepChecks) {
  for (const auto& c : ConversionsOf("qvpiScaleC_(8u|8s|16u|16s|32s|32f|64f)()_C1I?R")) {
    for (const auto& k : {std::pair{3, -7}, {1, 0}}) {
      WithType(c.from, [&]<class T>() {
        Check<T, T>(
            *c.function, {{nullptr, k.first}, {nullptr, k.second}, {nullptr, 1}},
            [=](T v) { return ScaledByConstant<T, T>(v, k.first, k.second, 1); }, 2);
      });
    }
  }
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
