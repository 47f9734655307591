// What becomes of a status. This source is compiled with exceptions and without, and one program has both.
#include <gtest/gtest.h>

#include <cstring>

#include "qvpi.hpp"

namespace {

constexpr QvpiSize kSize{2, 1};

#if QVP_THROWS

TEST(Errors, AreThrownWithTheirSentence) {
  qvp::Image<Qvp8u> image(kSize);
  qvp::fill(image, 4);
  try {
    qvp::divide(image, 0, image);
    FAIL();
  } catch (const qvp::Error& error) {
    EXPECT_EQ(error.status(), qvpStatusDivideByZeroError);
    EXPECT_TRUE(std::strstr(error.what(), "qvpStatusDivideByZeroError: "));
  }
  EXPECT_THROW(qvp::sum(qvp::View<const Qvp8u>()), qvp::Error);
  EXPECT_THROW(qvp::Image<Qvp8u>(0, 1), qvp::Error);
  EXPECT_EQ(*image.row(0), 4);
}

TEST(Errors, AreNotWarnings) {
  qvp::Image<Qvp8u> image(kSize), zero(kSize);
  qvp::fill(image, 4);
  qvp::fill(zero, 0);
  const qvp::Status status = qvp::divide(image, zero, image);
  EXPECT_TRUE(status.ok());
  EXPECT_EQ(status.code(), qvpStatusDivideByZero);
  EXPECT_EQ(*image.row(0), 255);
}

#else

TEST(Results, TellStatuses) {
  qvp::Image<Qvp8u> image(kSize);
  EXPECT_TRUE(qvp::fill(image, 4).ok());
  const qvp::Status status = qvp::divide(image, 0, image);
  EXPECT_FALSE(status.ok());
  EXPECT_EQ(status.code(), qvpStatusDivideByZeroError);
  EXPECT_TRUE(std::strstr(status.what(), "qvpStatusDivideByZeroError: "));
  EXPECT_TRUE(qvp::Image<Qvp8u>(0, 1).empty());
}

TEST(Results, HaveValuesOrNone) {
  qvp::Image<Qvp8u> image(kSize);
  EXPECT_TRUE(qvp::fill(image, 4).ok());
  const auto sum = qvp::sum(image);
  ASSERT_TRUE(sum);
  EXPECT_EQ(*sum, 8);
  const auto none = qvp::sum(qvp::View<const Qvp8u>());
  EXPECT_FALSE(none.has_value());
  EXPECT_EQ(none.status().code(), qvpStatusNullPointer);
  EXPECT_EQ(none.value_or(-1), -1);
}

TEST(Results, OfAnObjectThatCouldNotBeMadeAreItsStatus) {
  qvp::Image<Qvp8u> image(4, 4);
  qvp::Resizer<Qvp8u> resizer({4, 4}, {0, 4});
  EXPECT_EQ(resizer.status().code(), qvpStatusSize);
  EXPECT_EQ(resizer(image, image).code(), qvpStatusSize);
  auto filter = qvp::Filter<Qvp8u>::gauss({2, 3}, 1);
  EXPECT_EQ(filter(image, image).code(), qvpStatusMaskSize);
  EXPECT_TRUE(qvp::resize(image.view({0, 0, 2, 2}), image.view({2, 2, 2, 2})).ok());
}

#endif

}  // namespace
