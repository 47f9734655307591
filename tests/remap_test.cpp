// Remaps against the formulas in double precision.
#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Element;
using test::Numbers;
using test::Point;
using test::Rule;
using test::Samples;
using test::Stored;
using test::ValueAt;

constexpr QvpiSize kSource{23, 17};

void CheckRemap(const test::Export& remap, double tolerance) {
  const test::Name name(remap.name);
  const Element& element = name.From();
  const Element& places = *test::PointedAt(remap.parameters[remap.Find("pxMap")].type);
  const int channels = name.channels;
  const QvpiSize to{71, 9};
  const test::Argument region(nullptr, 2, 1, 40, 12);
  const test::Real special[] = {2,     22,     1.9999L,       NAN,   INFINITY,    -INFINITY,
                                3e38L, -3e38L, 2147483648.0L, 21.5L, 0.49999997L, 2.5L};
  for (const int method : {1, 2, 4, 6, 16}) {
    const Samples src = Numbers(element, kSource.width * channels, kSource.height, 5);
    const Samples dst = Numbers(element, to.width * channels, to.height, 0), before(dst);
    Samples x(places, to.width, to.height, 8), y(places, to.width, to.height, 16);
    test::Random random(9);
    for (int j = 0; j < to.height; ++j) {
      for (int i = 0; i < to.width; ++i) {
        Samples* const maps[] = {&x, &y};
        for (Samples* m : maps)
          m->Put(i, j, j >= 6 ? 5 + random.Next() % 600 / 100.0 : random.Next() % 2600 / 100.0 - 1);
        if (j < 2) maps[j]->Put(i, j, special[i % std::size(special)]);
      }
    }
    ASSERT_EQ(remap({{"pSrc", src},
                     {"srcSize", kSource},
                     {"srcStep", src.step()},
                     {"srcRoi", region},
                     {"pxMap", x},
                     {"pyMap", y},
                     {"pDst", dst},
                     {"dstRoiSize", to},
                     {"interpolation", method}}),
              0)
        << remap.name;
    const Rule rule{.taps = method == 16 ? 6 : method >= 4 ? 4 : method, .c = method == 4 ? 0.75 : 0.5};
    const auto expected = [&](int i, int j) -> test::Real {
      const Point p{static_cast<double>(x(i / channels, j)), static_cast<double>(y(i / channels, j))};
      const bool isIn = p.u >= 2 && p.u <= 22 && p.v >= 1 && p.v <= 12;
      if (!isIn || i % channels >= name.written) {
        EXPECT_EQ(dst(i, j), before(i, j)) << remap.name << ' ' << method << ' ' << i << ',' << j;
        return before(i, j);
      }
      return Stored(element, ValueAt(src, kSource, rule, channels, p, i % channels));
    };
    ExpectImage(dst, expected, remap.name + ' ' + std::to_string(method), method == 1 ? 0 : tolerance);
  }
}

TEST(Remap, FollowsTheFormula) {
  for (const test::Export* remap : test::FunctionsOf({"Remap"})) {
    for (const auto& [type, tolerance] : test::kTypes) {
      if (test::Name(remap->name).type == type) CheckRemap(*remap, tolerance);
    }
  }
}

TEST(Remap, KeepsAlphaAndDowngradesForSmallSources) {
  const float x[] = {0, 0.49f, 0.5f, 2, 2.01f, -0.5f}, y[6] = {};
  test::Image<uint8_t> src(3 * 4, 3, 1), classic(6 * 4, 1, 0), lanczos(classic);
  const QvpiRect all{0, 0, 3, 3};
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, lanczos.data(), 24, {6, 1}, 16), 0);
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, classic.data(), 24, {6, 1}, 2), 0);
  for (int i = 0; i < 24; ++i) EXPECT_EQ(lanczos(i, 0), classic(i, 0)) << i;
  test::Image<uint8_t> nearest(6 * 4, 1, 0);
  const test::Image<uint8_t> before(nearest);
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, nearest.data(), 24, {6, 1}, 1), 0);
  const int columns[] = {0, 0, 1, 2, -1, -1};
  for (int i = 0; i < 24; ++i) {
    const int column = columns[i / 4];
    EXPECT_EQ(nearest(i, 0), column < 0 || i % 4 == 3 ? before(i, 0) : src(column * 4 + i % 4, 0)) << i;
  }
}

// A coordinate of -0 is 0: with a next weight of -0 the zero would be +0. Points of a row run by vectors or, beside one
// that is outside, one by one.
TEST(Remap, ZerosHaveTheSameSignWhateverIsBesideThem) {
  const float src[8][8] = {{-0.0f, -5}, {-0.0f, -5}};
  for (int outside = -1; outside < 40; ++outside) {
    float u[40], v[40] = {}, dst[40];
    std::fill(u, u + 40, -0.0f);
    std::fill(dst, dst + 40, 1.0f);
    if (outside >= 0) u[outside] = -9;
    ASSERT_EQ(qvpiRemap_32f_C1R(src[0], {8, 8}, sizeof(src[0]), {0, 0, 8, 8}, u, sizeof(u), v, sizeof(v), dst,
                                sizeof(dst), {40, 1}, qvpInterpolationLinear),
              0);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(std::signbit(dst[i]), i != outside) << i << ", outside " << outside;
  }
}

TEST(Remap, TakesRegionsThatReachBeyondTheSource) {
  uint8_t pixel[4] = {};
  const float map[4] = {};
  const auto remap = [&](QvpiRect region, int method) {
    return qvpiRemap_8u_C1R(pixel, {1, 1}, 1, region, map, 4, map, 4, pixel, 1, {1, 1}, method);
  };
  EXPECT_EQ(remap({1, 0, 1, 1}, 2), qvpStatusNoIntersection);
  EXPECT_EQ(remap({0, 0, INT32_MAX, INT32_MAX}, 2 | qvpSmoothEdge), 0);
}

}  // namespace
