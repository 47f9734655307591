// Thresholds, over every value against every bound and over special values in every lane.
#include <cmath>
#include <limits>

#include "tests/support/elements.h"

namespace {
using test::Export;
using test::Name;

// What all pixels of one call share: a bound, or two, and values, per channel.
template <class T>
struct Constants {
  T lower[4], below[4], upper[4], above[4];
};

template <class T>
T Expected(const std::string& operation, bool isGreater, T v, const Constants<T>& k, int c) {
  if (operation == "Threshold_LTValGTVal") return v < k.lower[c] ? k.below[c] : v > k.upper[c] ? k.above[c] : v;
  const bool replaced = isGreater ? v > k.lower[c] : v < k.lower[c];
  const bool hasValue = operation.ends_with("Val");
  return replaced ? (hasValue ? k.below[c] : k.lower[c]) : v;
}

bool IsAboveForm(const std::string& operation) { return operation.find("_GT") != std::string::npos; }

// NaN, zeros of both signs, the ends of the type and values around the bounds.
template <class T>
std::vector<T> Specials() {
  using L = std::numeric_limits<T>;
  std::vector<T> values{0, 1, 2, 99, 100, 101, 127, 128, 129, 200, L::lowest(), L::max()};
  if constexpr (!L::is_integer) values.insert(values.end(), {-0.0f, L::quiet_NaN(), L::infinity(), -L::infinity()});
  return values;
}

template <class T>
void Check(const Export& function, int pixels, const Constants<T>& k, QvpCmpOp relation) {
  const std::string operation = Name(function.name).operation;
  const bool isGreater = operation == "Threshold" ? relation == qvpCmpGreater : IsAboveForm(operation);
  const auto specials = Specials<T>();
  const auto constants = [](const T* values) { return test::Argument(values, values[0]); };
  test::CheckElements(
      function, {pixels, 3},
      {{"cmpOp", relation},
       {"threshold", constants(k.lower)},
       {"value", constants(k.below)},
       {"thresholdLT", constants(k.lower)},
       {"valueLT", constants(k.below)},
       {"thresholdGT", constants(k.upper)},
       {"valueGT", constants(k.above)}},
      [&](test::Samples& image) {
        image.Fill([&](int x, int y) { return specials[(x * 7 + x / 13 + y * 5) % specials.size()]; });
      },
      [&](test::Real, test::Real v, int c) { return Expected(operation, isGreater, static_cast<T>(v), k, c); });
}

TEST(Threshold, TreatsSpecialValuesInEveryLaneOfEveryMember) {
  for (const Export* function : test::FamilyOf({"Threshold"})) {
    test::WithType(Name(function->name).From(), [&]<class T>() {
      for (const int pixels : {1, 2, 15, 16, 17, 31, 33, 64, 67, 150}) {
        Check<T>(*function, pixels, {{100, 2, 128, 0}, {5, 6, 7, 8}, {128, 2, 200, 0}, {1, 250 % 120, 3, 4}},
                 qvpCmpGreater);
        Check<T>(*function, pixels, {{0, 101, 1, 77}, {9, 100, 7, 2}, {99, 120, 129, 78}, {0, 2, 3, 4}}, qvpCmpLess);
      }
    });
  }
}

TEST(Threshold, BoundsEveryByteByEveryByte) {
  const QvpiSize all{256, 1};
  uint8_t src[256], dst[256];
  for (int i = 0; i < 256; ++i) src[i] = static_cast<uint8_t>(i);
  for (int t = 0; t < 256; ++t) {
    const auto bound = static_cast<uint8_t>(t), value = static_cast<uint8_t>(t * 31 + 5);
    ASSERT_EQ(qvpiThreshold_GT_8u_C1R(src, 256, dst, 256, all, bound), qvpStatusNoError);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], std::min(i, t));
    ASSERT_EQ(qvpiThreshold_LT_8u_C1R(src, 256, dst, 256, all, bound), qvpStatusNoError);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], std::max(i, t));
    ASSERT_EQ(qvpiThreshold_GTVal_8u_C1R(src, 256, dst, 256, all, bound, value), qvpStatusNoError);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], i > t ? value : i);
    ASSERT_EQ(qvpiThreshold_LTVal_8u_C1R(src, 256, dst, 256, all, bound, value), qvpStatusNoError);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(dst[i], i < t ? value : i);
  }
}

TEST(Threshold, RefusesALowerOneAboveTheUpper) {
  float src[4] = {1, 2, 3, 4}, dst[4] = {9, 9, 9, 9}, low[3] = {0, 0, 2}, high[3] = {1, 1, 1}, nan[3] = {0, NAN, 0};
  const QvpiSize one{1, 1};
  for (const int relation : {1, 2, 3, 5}) {
    EXPECT_EQ(qvpiThreshold_32f_C1R(src, 4, dst, 4, one, 0, relation), qvpStatusNotSupportedMode);
  }
  EXPECT_EQ(qvpiThreshold_LTValGTVal_32f_C3R(src, 12, dst, 12, one, low, low, high, low), qvpStatusThreshold);
  EXPECT_EQ(qvpiThreshold_LTValGTVal_32f_AC4R(src, 16, dst, 16, one, nan, low, high, low), qvpStatusThreshold);
}

}  // namespace
