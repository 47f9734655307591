// Functions that were derived, each kind of parameter and result with numbers that tell the order of arguments.
#include <gtest/gtest.h>

#include <vector>

#include "qvpi.hpp"

namespace {

using qvp::Image;
using qvp::In;
using qvp::Pixel;

// The numbers of a view, row by row.
template <class T, int kChannels>
std::vector<T> NumbersOf(const Image<T, kChannels>& image) {
  std::vector<T> numbers;
  for (int y = 0; y < image.height(); ++y) {
    numbers.insert(numbers.end(), image.row(y), image.row(y) + image.width() * kChannels);
  }
  return numbers;
}

template <class T, int kChannels = 1>
Image<T, kChannels> Of(QvpiSize size, const std::vector<T>& numbers) {
  Image<T, kChannels> image(size);
  const int row = size.width * kChannels;
  for (int y = 0; y < size.height; ++y) std::copy_n(numbers.data() + y * row, row, image.row(y));
  return image;
}

using Bytes = std::vector<Qvp8u>;

TEST(Operations, TakeOperandsInTheOrderInWhichTheyAreWritten) {
  const auto a = Of<Qvp8u>({2, 1}, {200, 9}), b = Of<Qvp8u>({2, 1}, {50, 2});
  Image<Qvp8u> dst(2, 1);
  qvp::subtract(a, b, dst);
  EXPECT_EQ(NumbersOf(dst), (Bytes{150, 7}));
  qvp::divide(a, b, dst);
  EXPECT_EQ(NumbersOf(dst), (Bytes{4, 4}));
  qvp::divide(a, b, dst, qvp::RoundMode::financial);
  EXPECT_EQ(NumbersOf(dst), (Bytes{4, 5}));
  qvp::subtract(a, 10, dst, 1);
  EXPECT_EQ(NumbersOf(dst), (Bytes{95, 0}));
  qvp::compare(a, b, dst, qvp::CmpOp::less);
  EXPECT_EQ(NumbersOf(dst), (Bytes{0, 0}));
}

TEST(Operations, TakePixelsMasksChannelsAndPlanes) {
  auto image = Of<Qvp8u, 3>({2, 1}, {1, 2, 3, 4, 5, 6});
  Image<Qvp8u, 3> dst(2, 1);
  qvp::add(image, {10, 20, 30}, dst);
  EXPECT_EQ(NumbersOf(dst), (Bytes{11, 22, 33, 14, 25, 36}));
  qvp::fill(dst, {7, 8, 9}, Of<Qvp8u>({2, 1}, {0, 1}));
  EXPECT_EQ(NumbersOf(dst), (Bytes{11, 22, 33, 7, 8, 9}));
  qvp::copy_to(image.view().channel(2), dst.view().channel(0));
  EXPECT_EQ(NumbersOf(dst), (Bytes{3, 22, 33, 6, 8, 9}));

  Image<Qvp8u> stack(2, 3);
  const qvp::PlanarView<Qvp8u, 3> planes(stack.view());
  qvp::copy_to(image, planes);
  EXPECT_EQ(NumbersOf(stack), (Bytes{1, 4, 2, 5, 3, 6}));
  qvp::copy_to(planes, dst);
  EXPECT_EQ(NumbersOf(dst), NumbersOf(image));
  qvp::copy_to(image.view().channel(1), stack.view({0, 0, 2, 1}));
  EXPECT_EQ(NumbersOf(stack), (Bytes{2, 5, 2, 5, 3, 6}));
}

TEST(Operations, LeaveAlphaAloneWhereItIsNotAmongTheColors) {
  const auto src = Of<Qvp8u, 4>({1, 1}, {1, 2, 3, 4});
  auto dst = Of<Qvp8u, 4>({1, 1}, {50, 60, 70, 80});
  qvp::add(src.view().colors(), dst.view().colors(), dst.view().colors());
  EXPECT_EQ(NumbersOf(dst), (Bytes{51, 62, 73, 80}));
  qvp::add(src, dst, dst);
  EXPECT_EQ(NumbersOf(dst), (Bytes{52, 64, 76, 84}));
  qvp::composite(src, dst, dst, qvp::CompositeOp::first);
  EXPECT_EQ(NumbersOf(dst), NumbersOf(src)) << "alpha takes part";
}

TEST(Operations, ReturnWhatTheyCompute) {
  const auto gray = Of<Qvp8u>({3, 2}, {5, 9, 4, 9, 1, 7});
  EXPECT_EQ(qvp::sum(gray), 35);
  const auto [min, max] = qvp::min_max(gray);
  EXPECT_EQ(min, 1);
  EXPECT_EQ(max, 9);
  const auto last = qvp::argmin(gray);
  EXPECT_EQ(last.value * 100 + last.x * 10 + last.y, 111);
  EXPECT_EQ(qvp::count_in_range(gray, 5, 7), 2);

  const auto color = Of<Qvp16s, 3>({2, 1}, {1, -2, 3, 4, 5, -6});
  EXPECT_EQ(qvp::max(color), (Pixel<Qvp16s, 3>{4, 5, 3}));
  EXPECT_EQ(qvp::argmax(color).x, (Pixel<int, 3>{1, 1, 0}));
  EXPECT_EQ(qvp::norm_diff_l1(color, color), (Pixel<double, 3>{0, 0, 0}));
}

TEST(Operations, FindBuffersByThemselves) {
  const auto src = Of<Qvp8u>({3, 3}, {1, 1, 1, 1, 90, 1, 1, 1, 1});
  Image<Qvp8u> dst(3, 3);
  qvp::Buffer buffer;
  qvp::median(src, dst, {3, 3}, buffer);
  EXPECT_EQ(NumbersOf(dst), Bytes(9, 1));
  qvp::maximum(src, dst, {2, 1}, {1, 0}, buffer, qvp::BorderType::constant, 99);
  EXPECT_EQ(NumbersOf(dst), (Bytes{99, 1, 1, 99, 90, 90, 99, 1, 1}));

  Image<Qvp16s> gx(3, 3);
  qvp::gradient_sobel(src, gx, {}, {}, {}, {3, 3}, qvp::NormType::l2, buffer);
  EXPECT_EQ(NumbersOf(gx)[3], 2 * 89) << "images that are not wanted may be left out";
}

TEST(Operations, RefuseImagesWhoseSizesDoNotFit) {
  const Image<Qvp8u> a(4, 3), wide(5, 3);
  Image<Qvp8u> dst(4, 3), high(3, 4), full(8, 5);
  qvp::fill(dst, 1);
  qvp::Buffer buffer;
  const auto refused = [](auto call) {
    try {
      call();
    } catch (const qvp::Error& error) {
      return error.status() == qvpStatusSize;
    }
    return false;
  };
  EXPECT_TRUE(refused([&] { qvp::add(a, wide, dst); }));
  EXPECT_TRUE(refused([&] { qvp::add(wide, a, dst); }));
  EXPECT_TRUE(refused([&] { qvp::add(wide, 1, dst); }));
  EXPECT_TRUE(refused([&] { qvp::copy_to(a, dst, wide); }));
  EXPECT_TRUE(refused([&] { qvp::norm_diff_l2(a, wide); }));
  EXPECT_TRUE(refused([&] { qvp::box(a, high, {3, 3}, {1, 1}, buffer); }));
  EXPECT_TRUE(refused([&] { qvp::transpose(a, dst); }));
  EXPECT_TRUE(refused([&] { qvp::rot90(a, high, 2); }));
  EXPECT_TRUE(refused([&] { qvp::convolve_full(a, wide, dst, buffer); }));
  EXPECT_TRUE(refused([&] { qvp::convolve_valid(a, wide, dst, buffer); }));
  qvp::transpose(a, high);
  qvp::rot90(a, high, -1);
  qvp::convolve_full(a, wide, full, buffer);
}

TEST(Operations, MayWorkInPlace) {
  auto image = Of<Qvp8u>({3, 1}, {1, 2, 3});
  qvp::multiply(image, image, image);
  EXPECT_EQ(NumbersOf(image), (Bytes{1, 4, 9}));
  qvp::flip(image, image, qvp::Axis::vertical);
  EXPECT_EQ(NumbersOf(image), (Bytes{9, 4, 1}));
}

}  // namespace
