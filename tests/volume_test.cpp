// Volumes: copies with a border, voxel by voxel, in both orders of the steps; transforms in space.
#include <cmath>
#include <vector>

#include "gtest/gtest.h"
#include "tests/support/bordered.h"
#include "tests/support/voxels.h"

namespace {
using test::Export;
using test::Name;

using Volume = test::Voxels;

struct Frame {
  QvprVolume src, dst;
  int left, top, front;
};

void Check(const Export& function, const Frame& f, bool isCoronal) {
  const Name name(function.name);
  const int bytes = name.From().bytes,
            kind = name.operation == "qvprCopyConstBorder" ? +qvpBorderConst : +qvpBorderReplicate;
  const uint8_t value[4] = {7, 1, 2, 3};
  const Volume src(f.src, bytes, 3, isCoronal), dst(f.dst, bytes, 0, isCoronal);
  src.Fill(name.From(), test::ModestVoxel);
  test::VolumeCall call(function);
  call.Add("pSrc", src);
  call.Add("pDst", dst);
  ASSERT_EQ(call({{"srcVolume", f.src},
                  {"dstVolume", f.dst},
                  {"topBorderHeight", f.top},
                  {"leftBorderWidth", f.left},
                  {"frontBorderDepth", f.front},
                  {"value", name.From().read(value)}}),
            0)
      << function.name;
  dst.ForEach([&](int x, int y, int z) {
    const int u = test::BorderPosition(kind, x - f.left, 0, f.src.width - 1);
    const int v = test::BorderPosition(kind, y - f.top, 0, f.src.height - 1);
    const int w = test::BorderPosition(kind, z - f.front, 0, f.src.depth - 1);
    const bool isValue = u == test::kConstant || v == test::kConstant || w == test::kConstant;
    const uint8_t* const expected = isValue ? value : src.At(u, v, w);
    ASSERT_EQ(std::memcmp(dst.At(x, y, z), expected, bytes), 0) << function.name << ' ' << x << ',' << y << ',' << z;
  });
}

constexpr Frame kFrames[] = {{{1, 1, 1}, {1, 1, 1}, 0, 0, 0},   {{1, 1, 1}, {3, 3, 3}, 1, 1, 1},
                             {{5, 4, 3}, {5, 4, 9}, 0, 0, 2},   {{9, 2, 2}, {40, 12, 6}, 17, 3, 1},
                             {{33, 5, 4}, {37, 8, 4}, 0, 3, 0}, {{70, 3, 1}, {71, 3, 5}, 1, 0, 4}};

TEST(VolumeBorders, EveryMemberInBothOrdersOfSteps) {
  for (const Export* function : test::FunctionsOf({"qvprCopyConstBorder", "qvprCopyReplicateBorder"})) {
    for (const Frame& frame : kFrames) {
      Check(*function, frame, false);
      Check(*function, frame, true);
    }
  }
}

TEST(VolumeBorders, AroundASourceInItsPlace) {
  const Frame f{{4, 3, 2}, {9, 6, 5}, 2, 1, 2};
  const Volume src(f.src, 2, 0, false), apart(f.dst, 2, 6, false), around(f.dst, 2, 6, false);
  test::Random(1).Fill(src.block.data(), src.block.size());
  const auto* const pixels = reinterpret_cast<const Qvp16u*>(src.block.data());
  src.ForEach([&](int x, int y, int z) { std::memcpy(around.At(x + 2, y + 1, z + 2), src.At(x, y, z), 2); });
  const auto copy = [&](const Qvp16u* from, int step, int planeStep, const Volume& to) {
    ASSERT_EQ(qvprCopyReplicateBorder_16u_C1V(from, step, planeStep, f.src, reinterpret_cast<Qvp16u*>(to.block.data()),
                                              to.step, to.planeStep, f.dst, f.top, f.left, f.front),
              0);
  };
  copy(pixels, src.step, src.planeStep, apart);
  copy(reinterpret_cast<const Qvp16u*>(around.At(2, 1, 2)), around.step, around.planeStep, around);
  apart.ForEach([&](int x, int y, int z) { ASSERT_EQ(std::memcmp(apart.At(x, y, z), around.At(x, y, z), 2), 0); });
}

TEST(VolumeBorders, HaveRoomForTheSource) {
  Qvp8u voxel = 7, found[8];
  const auto copy = [&](QvprVolume dst, int top, int left, int front) {
    return qvprCopyConstBorder_8u_C1V(&voxel, 1, 1, {1, 1, 1}, found, 2, 4, dst, top, left, front, 9);
  };
  EXPECT_EQ(copy({2, 2, 2}, 1, 1, 1), 0);
  EXPECT_EQ(copy({2, 2, 2}, 2, 0, 0), qvpStatusSize);
  EXPECT_EQ(copy({2, 2, 2}, 0, INT32_MAX, 0), qvpStatusSize);
  EXPECT_EQ(copy({2, 2, 2}, 0, 0, 2), qvpStatusSize);
}

// ---- Transforms.

using Matrix = double[3][4];

void ExpectNear(const double* found, const std::vector<double>& expected, double tolerance) {
  for (size_t i = 0; i < expected.size(); ++i) EXPECT_NEAR(found[i], expected[i], tolerance) << i;
}

TEST(Space, RotatesAboutAnyAxis) {
  Matrix c;
  const double along[] = {0, 0, 1e200}, across[] = {1e-200, 0, 0}, center[] = {959.5, 539.5, 0}, origin[3] = {};
  ASSERT_EQ(qvprGetRotateTransform(10, along, center, c), 0);
  double flat[2][3];
  ASSERT_EQ(qvpiGetRotateTransform(10, c[0][3], c[1][3], flat), 0);
  ExpectNear(c[0], {flat[0][0], flat[0][1], 0, -79.1062309, flat[1][0], flat[1][1], 0, 174.811644, 0, 0, 1, 0}, 1e-6);
  ASSERT_EQ(qvprGetRotateTransform(90, across, origin, c), 0);
  ExpectNear(c[0], {1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0}, 0);

  const double axis[] = {1, -2, 3};  // by Rodrigues' formula
  ASSERT_EQ(qvprGetRotateTransform(-130, axis, center, c), 0);
  const double angle = 130 * M_PI / 180, length = std::sqrt(14.0), n[] = {1 / length, -2 / length, 3 / length};
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      const double cross = i == j ? 0 : ((j - i + 3) % 3 == 1 ? -1 : 1) * n[3 - i - j];
      const double expected =
          (i == j) * std::cos(angle) + (1 - std::cos(angle)) * n[i] * n[j] + std::sin(angle) * cross;
      EXPECT_NEAR(c[i][j], expected, 1e-15) << i << j;
    }
  }
  EXPECT_EQ(qvprGetRotateTransform(1, origin, center, c), qvpStatusBadArgument);
  const double bad[] = {1, NAN, 0};
  EXPECT_EQ(qvprGetRotateTransform(1, bad, center, c), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetRotateTransform(1, axis, bad, c), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetRotateTransform(INFINITY, axis, center, c), qvpStatusCoefficient);
}

TEST(Space, TransformsProductsInversesAndBounds) {
  const QvprCuboid cuboid{2, 0, 5, 9, 8, 7};
  const double corners[4][3] = {{1, 2, 3}, {9, 1, 4}, {0, 8, 2}, {2, 1, 7}};
  const double places[4][3] = {{2, 0, 5}, {10, 0, 5}, {2, 7, 5}, {2, 0, 11}};
  Matrix there, back, both;
  ASSERT_EQ(qvprGetAffineTransform(cuboid, corners, there), 0);
  for (int k = 0; k < 4; ++k) {
    const double* const p = places[k];
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(there[i][0] * p[0] + there[i][1] * p[1] + there[i][2] * p[2] + there[i][3], corners[k][i], 1e-14);
    }
  }
  ASSERT_EQ(qvprGetAffineInverse(there, back), 0);
  ASSERT_EQ(qvprGetAffineProduct(there, back, both), 0);
  ExpectNear(both[0], {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0}, 1e-14);

  const double axis[] = {0, 0, 1}, center[] = {7, 6, 5};
  double bound[2][3];
  ASSERT_EQ(qvprGetRotateTransform(90, axis, center, there), 0);
  ASSERT_EQ(qvprGetAffineBound({0, 0, 0, 15, 13, 11}, bound, there), 0);
  ExpectNear(bound[0], {1, -1, 0, 13, 13, 10}, 0);

  const Matrix sheared = {{1, 0.5, -0.25, 3}, {-2, 1, 0.75, 0}, {0.5, -1, 2, -4}};
  const int first[] = {1, 2, 3}, last[] = {4, 6, 8};
  ASSERT_EQ(qvprGetAffineBound({1, 2, 3, 4, 5, 6}, bound, sheared), 0);
  for (int i = 0; i < 3; ++i) {
    double least = sheared[i][3], most = least;
    for (int j = 0; j < 3; ++j) {
      const auto [low, high] = std::minmax({sheared[i][j] * first[j], sheared[i][j] * last[j]});
      least += low, most += high;
    }
    EXPECT_EQ(bound[0][i], least);
    EXPECT_EQ(bound[1][i], most);
  }
}

TEST(Space, RefusesWhatFlattensSpace) {
  Matrix c = {{1e-6, 0, 0, 0}, {0, 1e-6, 0, 0}, {0, 0, 1e-6, 0}}, out;
  EXPECT_EQ(qvprGetAffineInverse(c, out), 0);
  EXPECT_NEAR(out[1][1], 1e6, 1e-9);
  const Matrix flat = {{1, 2, 3, 0}, {2, 4, 6, 0}, {1, 0, 1, 0}};
  double bound[2][3] = {{9, 9, 9}, {9, 9, 9}};
  EXPECT_EQ(qvprGetAffineInverse(flat, out), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetAffineBound({0, 0, 0, 2, 2, 2}, bound, flat), qvpStatusCoefficient);
  ExpectNear(bound[0], {0, 0, 0, 6, 12, 2}, 0);
  const double corners[4][3] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1, 0}};
  EXPECT_EQ(qvprGetAffineTransform({0, 0, 0, 2, 2, 2}, corners, out), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetAffineTransform({0, 0, 0, 2, 1, 2}, corners, out), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetAffineTransform({0, 0, 0, 2, 0, 2}, corners, out), qvpStatusRect);
  c[2][3] = INFINITY;
  EXPECT_EQ(qvprGetAffineProduct(c, flat, out), qvpStatusCoefficient);
  EXPECT_EQ(qvprGetAffineInverse(c, out), qvpStatusCoefficient);
}

}  // namespace
