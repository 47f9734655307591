// Ramps against their formula.
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"
#include "tests/support/reference.h"
#include "tests/support/same.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Random;
using test::Real;
using test::Samples;

// Of one channel: start, slope across and slope down.
struct Plane {
  double start, across, down;
  double At(QvpiPoint offset, int x, int y) const {
    const volatile double vertical = down * (static_cast<double>(offset.y) + y);
    const volatile double horizontal = across * (static_cast<double>(offset.x) + x);
    const volatile double first = start + vertical;
    return first + horizontal;
  }
};

// Slopes that cross the type's range, that have ties, that have no end.
Plane AnyPlane(const Element& element, Random& random) {
  const auto any = [&](std::initializer_list<double> list) { return list.begin()[random.Next() % list.size()]; };
  if (random.Next() % 4 == 0) {
    const auto edge = [&] { return static_cast<double>(EdgeValue(test::ElementOf("64f"), random)); };
    return {edge(), edge(), edge()};
  }
  const double start = any({0, 250, -3.25, 65530, 1e-3, static_cast<double>(element.lowest)});
  return {start, any({0, 0.5, 3, -1.75, 1e-9, 0.1}), any({0, 0.25, -7, 33.3})};
}

TEST(Ramp, EveryMemberIsThePlane) {
  constexpr QvpiPoint kOffsets[] = {{0, 0}, {-37, 5}, {INT32_MAX, INT32_MIN}, {123456789, -987654321}};
  Random random(1);
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"Ramp"})) {
    const Name name(function->name);
    const Element& element = name.From();
    std::vector<QvpiSize> sizes = {{2310, 2}, {577, 3}};
    for (int width = 1; width <= 40; ++width) sizes.push_back({width, 1 + width % 4});
    for (const QvpiSize size : sizes) {
      Plane planes[4];
      double values[3][4];
      for (int c = 0; c < 4; ++c) {
        planes[c] = AnyPlane(element, random);
        values[0][c] = planes[c].start, values[1][c] = planes[c].across, values[2][c] = planes[c].down;
      }
      const QvpiPoint offset = kOffsets[++turn % 4];
      Samples dst(element, size.width * name.channels, size.height, turn % 3 * 5);
      dst.Fill([&](int, int) { return EdgeValue(element, random); });
      const Samples old(dst);
      const auto all = [&](int k) { return test::Argument(values[k], values[k][0]); };
      ASSERT_EQ((*function)({{"start", all(0)},
                             {"slopeX", all(1)},
                             {"slopeY", all(2)},
                             {"pDst", dst},
                             {"roiSize", size},
                             {"dstOffset", offset}}),
                0);
      const auto expected = [&](int i, int y) {
        const int c = i % name.channels;
        const Real made = test::Converted(element, planes[c].At(offset, i / name.channels, y));
        return c < name.written ? made : old(i, y);
      };
      ExpectImage(dst, expected, function->name);
    }
  }
}

TEST(Ramp, KnownRows) {
  std::vector<Qvp8u> row(8);
  EXPECT_EQ(qvpiRamp_8u_C1R(0, 0.5, 9, row.data(), 8, {8, 1}, {0, 0}), 0);
  EXPECT_EQ(row, (std::vector<Qvp8u>{0, 0, 1, 2, 2, 2, 3, 4}));
  EXPECT_EQ(qvpiRamp_8u_C1R(250, 3, 9, row.data(), 8, {4, 1}, {0, 0}), 0);
  EXPECT_EQ(row, (std::vector<Qvp8u>{250, 253, 255, 255, 2, 2, 3, 4}));
}

}  // namespace
