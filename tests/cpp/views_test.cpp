// Views, parts of them, planes, and images.
#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>
#include <vector>

#include "qvpi.hpp"

namespace {

using qvp::Image;
using qvp::PlanarView;
using qvp::View;

static_assert(!std::is_copy_constructible_v<Image<Qvp8u, 3>> && std::is_nothrow_move_constructible_v<Image<Qvp8u, 3>>);
static_assert(std::is_convertible_v<View<Qvp8u, 3>, View<const Qvp8u, 3>>);
static_assert(!std::is_convertible_v<View<const Qvp8u, 3>, View<Qvp8u, 3>>);
static_assert(!std::is_convertible_v<const Image<Qvp8u>&, View<Qvp8u>>, "a constant image is not written");

TEST(View, AddressesRowsAndPartsOfEveryLayout) {
  std::vector<Qvp16u> numbers(12 * 5);
  const View<Qvp16u, 3> all(numbers.data(), 24, {4, 5});
  const auto part = all.view({1, 2, 3, 2});
  EXPECT_EQ(part.data(), numbers.data() + 2 * 12 + 3);
  EXPECT_EQ(part.row(1), numbers.data() + 3 * 12 + 3);
  EXPECT_EQ(part.view({1, 1, 1, 1}).data(), numbers.data() + 3 * 12 + 6);
  EXPECT_EQ(all.channel(2).at(1, 1), numbers.data() + 12 + 5);
  const View<Qvp16u, 3> upwards(numbers.data() + 48, -24, {4, 5});
  EXPECT_EQ(upwards.view({0, 4, 4, 1}).data(), numbers.data());
}

TEST(View, IsEmptyWhereAPartOrASpanDoesNotHoldIt) {
  std::vector<Qvp8u> numbers(3 * 10 + 4);
  const View<Qvp8u> all(numbers, 10, {4, 4});
  EXPECT_EQ(all.data(), numbers.data()) << "the last row need not be a whole step long";
  for (const View<Qvp8u> none :
       {View<Qvp8u>(numbers, 10, {5, 4}), View<Qvp8u>(numbers, 11, {4, 4}), View<Qvp8u>(numbers, 3, {4, 4}),
        View<Qvp8u>(numbers, -10, {4, 4}), View<Qvp8u>(numbers, {0x7FFFFFFF, 0x7FFFFFFF}), all.view({-1, 0, 2, 2}),
        all.view({3, 3, 2, 1}), all.view({0, 0, 0x7FFFFFFF, 1}), all.view({1, 1, 0, 1})}) {
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.data(), nullptr);
  }
  EXPECT_EQ((View<Qvp32f, 3>(nullptr, {0x7FFFFFFF, 1}).step()), 0);
}

TEST(View, PlanesAreAlikeOrNone) {
  Image<Qvp8u> stack(10, 12);
  const PlanarView<Qvp8u, 3> planes(stack.view());
  EXPECT_EQ(planes.height(), 4);
  EXPECT_EQ(planes.plane(2).data(), stack.row(8));
  EXPECT_EQ(planes.view({3, 1, 2, 2}).plane(1).data(), stack.row(5) + 3);
  EXPECT_TRUE((PlanarView<Qvp8u, 3>(stack.view({0, 0, 10, 11})).empty()));
  EXPECT_TRUE((PlanarView<Qvp8u, 3>({stack.view(), stack.view({0, 0, 10, 11}), stack.view()}).empty()));
  EXPECT_EQ((PlanarView<const Qvp8u, 3>(planes).plane(1).data()), stack.row(4));
}

TEST(Image, OwnsAlignedRowsAndMoves) {
  Image<Qvp32f, 3> image(7, 5);
  EXPECT_EQ(image.step(), 128);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(image.row(3)) % 64, 0u);
  Qvp32f* const data = image.data();
  Image<Qvp32f, 3> other = std::move(image);
  EXPECT_EQ(other.data(), data);
  EXPECT_TRUE(image.empty());
  EXPECT_EQ(image.view().data(), nullptr);
  other = Image<Qvp32f, 3>(1, 2);
  EXPECT_EQ(other.size().height, 2);
}

TEST(Buffer, Grows) {
  qvp::Buffer buffer(100);
  Qvp8u* const data = buffer.data();
  EXPECT_TRUE(buffer.reserve(50));
  EXPECT_EQ(buffer.data(), data);
  EXPECT_TRUE(buffer.reserve(1 << 20));
  buffer.data()[(1 << 20) - 1] = 1;
  EXPECT_FALSE(buffer.reserve(static_cast<QvpSizeL>(~size_t{0} >> 1)));
  EXPECT_EQ(buffer.data(), nullptr);
  EXPECT_TRUE(buffer.reserve(1));
}

}  // namespace
