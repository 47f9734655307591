// Coefficients of geometric transforms.
#include <cmath>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {

TEST(Transforms, MapCornersOfARectangleToAQuadrangleAndBack) {
  const QvpiRect roi{3, 5, 30, 20};
  const double quad[4][2] = {{1, 2}, {41, -3}, {50, 60}, {-2, 33}};
  double affine[2][3], perspective[3][3], bilinear[2][4], back[4][2], bound[2][2];
  ASSERT_EQ(qvpiGetAffineTransform(roi, quad, affine), 0);
  ASSERT_EQ(qvpiGetAffineQuad(roi, back, affine), 0);
  for (const int i : {0, 1, 3}) {
    EXPECT_NEAR(back[i][0], quad[i][0], 1e-12);
    EXPECT_NEAR(back[i][1], quad[i][1], 1e-12);
  }
  ASSERT_EQ(qvpiGetPerspectiveTransform(roi, quad, perspective), 0);
  EXPECT_EQ(perspective[2][2], 1);
  ASSERT_EQ(qvpiGetPerspectiveQuad(roi, back, perspective), 0);
  for (int i = 0; i < 8; ++i) EXPECT_NEAR(back[i / 2][i % 2], quad[i / 2][i % 2], 1e-11);
  ASSERT_EQ(qvpiGetBilinearTransform(roi, quad, bilinear), 0);
  ASSERT_EQ(qvpiGetBilinearBound(roi, bound, bilinear), 0);
  const double expected[] = {-2, -3, 50, 60};
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(bound[i / 2][i % 2], expected[i], 1e-11);
  const double turned[4][2] = {{0, 0}, {0, 29}, {-19, 29}, {-19, 0}};
  EXPECT_EQ(qvpiGetAffineTransform(roi, turned, affine), 0);
  const double crossed[4][2] = {{0, 0}, {1, 1}, {1, 0}, {0, 1}}, flat[2][3] = {{1, 1, 0}, {1, 1, 0}};
  EXPECT_EQ(qvpiGetPerspectiveTransform(roi, crossed, perspective), qvpStatusQuad);
  EXPECT_EQ(qvpiGetAffineTransform({0, 0, 1, 4}, quad, affine), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetAffineTransform({0, 0, 1, 0}, quad, affine), qvpStatusRect);
  EXPECT_EQ(qvpiGetAffineBound(roi, bound, flat), qvpStatusCoefficient);
  EXPECT_EQ(bound[1][0], 32 + 24);
}

TEST(Transforms, RotationsAreAccurate) {
  for (const double angle : {0.0, 10.0, 45.0, 90.0, 135.5, 180.0, 270.0, -30.0, 3600090.0, 1e18, -1e300}) {
    double c[2][3], x, y;
    ASSERT_EQ(qvpiGetRotateTransform(angle, 1, 2, c), 0);
    ASSERT_EQ(qvpiGetRotateShift(30, 20, angle, &x, &y), 0);
    const double turn = std::fmod(angle, 360) * M_PI / 180;
    EXPECT_NEAR(c[0][0], std::cos(turn), 4e-16) << angle;
    EXPECT_NEAR(c[0][1], std::sin(turn), 4e-16) << angle;
    EXPECT_NEAR(c[0][0] * 30 + c[0][1] * 20 + x, 30, 1e-13);
    EXPECT_NEAR(c[1][0] * 30 + c[1][1] * 20 + y, 20, 1e-13);
  }
}

// The corners of random quadrangles, some of them far away. The coefficients end with their memory.
TEST(Transforms, TakeQuadranglesToQuadrangles) {
  test::Random random(7);
  const test::Block two(2 * 3 * sizeof(double)), three(3 * 3 * sizeof(double));
  auto* const affine = reinterpret_cast<double(*)[3]>(two.data());
  auto* const perspective = reinterpret_cast<double(*)[3]>(three.data());
  const auto near = [&](double x) { return x + static_cast<double>(random.Next()) * 0x1p-32 * 900; };
  for (int n = 0; n < 200; ++n) {
    const double at = n % 4 * 1000;
    double from[4][2], to[4][2];
    for (auto* quad : {from, to}) {
      const double corners[4][2] = {{at, at}, {at + 2000, at}, {at + 2000, at + 2000}, {at, at + 2000}};
      for (int i = 0; i < 8; ++i) quad[(i / 2 + n) % 4][i % 2] = near(corners[i / 2][i % 2]);
    }
    ASSERT_EQ(qvpiGetAffineQuadTransform(from, to, affine), 0);
    ASSERT_EQ(qvpiGetPerspectiveQuadTransform(from, to, perspective), 0);
    EXPECT_EQ(perspective[2][2], 1);
    for (int i = 0; i < 4; ++i) {
      const double x = from[i][0], y = from[i][1], w = perspective[2][0] * x + perspective[2][1] * y + 1;
      for (int k = 0; k < 2; ++k) {
        EXPECT_NEAR((perspective[k][0] * x + perspective[k][1] * y + perspective[k][2]) / w, to[i][k], 1e-8) << n;
        const double mapped = affine[k][0] * x + affine[k][1] * y + affine[k][2];
        EXPECT_NEAR(mapped, i == 2 ? mapped : to[i][k], 1e-10) << n;
      }
    }
  }
}

TEST(Transforms, RefuseQuadranglesInOrder) {
  const double good[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}, line[4][2] = {{0, 0}, {1, 1}, {9, 0}, {2, 2}},
               crossed[4][2] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}},
               endless[4][2] = {{0, 0}, {1, 0}, {1, INFINITY}, {0, 1}};
  const double fan[4][2] = {{-1, 1}, {1, 1}, {2, 2}, {-2, 2}};  // whose sides meet in (0, 0)
  double c[3][3] = {{7, 7, 7}, {7, 7, 7}, {7, 7, 7}};
  EXPECT_EQ(qvpiGetAffineQuadTransform(endless, line, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetAffineQuadTransform(good, line, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetAffineQuadTransform(line, good, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(good, endless, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(crossed, good, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(fan, line, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(fan, good, c), qvpStatusCoefficient);
  for (const auto& row : c) {
    for (const double number : row) EXPECT_EQ(number, 7);
  }
  EXPECT_EQ(qvpiGetAffineQuadTransform(good, crossed, c), 0);  // the corners 2 do not count
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(good, fan, c), 0);
}

TEST(Transforms, CanvasesHoldTurnedImages) {
  QvpiSize canvas;
  QvpiRect inside{7, 7, 7, 7};
  double x, y;
  ASSERT_EQ(qvpiGetRotateFit({1920, 1080}, 10, &canvas, &x, &y), 0);
  ASSERT_EQ(qvpiGetRotateInside({1920, 1080}, 10, &inside), 0);
  EXPECT_EQ(std::pair(canvas.width, canvas.height), std::pair(2079, 1397));
  EXPECT_NEAR(x, 0.39376913347746, 1e-11);
  EXPECT_NEAR(y, 333.31164372133, 1e-11);
  EXPECT_TRUE(inside.x == 134 && inside.y == 310 && inside.width == 1811 && inside.height == 777);
  ASSERT_EQ(qvpiGetRotateFit({1920, 1080}, 90, &canvas, &x, &y), 0);
  ASSERT_EQ(qvpiGetRotateInside({1920, 1080}, 90, &inside), 0);
  EXPECT_TRUE(canvas.width == 1080 && canvas.height == 1920 && x == 0 && y == 1919);
  EXPECT_TRUE(inside.x == 0 && inside.y == 0 && inside.width == 1080 && inside.height == 1920);
  ASSERT_EQ(qvpiGetRotateFit({3, 2}, 30, &canvas, &x, &y), 0);
  EXPECT_TRUE(canvas.width == 4 && canvas.height == 3);
  EXPECT_EQ(qvpiGetRotateInside({3, 2}, 30, &inside), qvpStatusRect);
  EXPECT_EQ(qvpiGetRotateFit({0, 2}, NAN, &canvas, &x, &y), qvpStatusSize);
  EXPECT_EQ(qvpiGetRotateFit({3, 2}, NAN, &canvas, &x, &y), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetRotateFit({INT32_MAX, INT32_MAX}, 45, &canvas, &x, &y), qvpStatusSizeOverflow);
  EXPECT_EQ(qvpiGetRotateInside({INT32_MAX, INT32_MAX}, 45, &inside), qvpStatusSizeOverflow);
  EXPECT_TRUE(canvas.width == 4 && inside.width == 1080);
}

// All four corners of the inner rectangle lie in the image, and all corners of the image in the canvas.
TEST(Transforms, WhatIsInsideOfACanvasHasPixelsOfTheImage) {
  test::Random random(3);
  for (int n = 0; n < 3000; ++n) {
    const QvpiSize size{1 + static_cast<int>(random.Next() % 300), 1 + static_cast<int>(random.Next() % 300)};
    const double angle = n % 3 == 0 ? n % 48 * 7.5 : random.Next() % 72000 * 0.01 - 360;
    double c[2][3], bound[2][2], x, y;
    QvpiSize canvas;
    QvpiRect inside;
    ASSERT_EQ(qvpiGetRotateFit(size, angle, &canvas, &x, &y), 0);
    ASSERT_EQ(qvpiGetRotateTransform(angle, x, y, c), 0);
    const QvpStatus status = qvpiGetRotateBound({0, 0, size.width, size.height}, bound, angle, x, y);
    EXPECT_EQ(status, size.width > 1 && size.height > 1 ? 0 : qvpStatusCoefficient);
    for (int i = 0; i < 2; ++i) {
      const int length = i == 0 ? canvas.width : canvas.height;
      EXPECT_GE(bound[0][i], -1e-9);
      EXPECT_LE(bound[1][i], length - 1 + 1e-9);
      EXPECT_GT(bound[1][i] - bound[0][i], length - 2);
    }
    if (qvpiGetRotateInside(size, angle, &inside) != 0) continue;
    for (int i = 0; i < 4; ++i) {
      const double dx = inside.x + (i % 2) * (inside.width - 1) - x, dy = inside.y + (i / 2) * (inside.height - 1) - y;
      const double u = c[0][0] * dx + c[1][0] * dy, v = c[0][1] * dx + c[1][1] * dy;
      EXPECT_TRUE(u > -1e-9 && u < size.width - 1 + 1e-9) << size.width << 'x' << size.height << ' ' << angle;
      EXPECT_TRUE(v > -1e-9 && v < size.height - 1 + 1e-9) << size.width << 'x' << size.height << ' ' << angle;
    }
  }
}

TEST(Transforms, RotationsTakeACentreToAnotherAndEqualTheAffineForm) {
  double c[2][3], turn[2][3], quad[4][2], expected[4][2], bound[2][2] = {{7, 7}, {7, 7}};
  ASSERT_EQ(qvpiGetRotateScaleTransform(30, 20, 11, -5, 25, 1.5, c), 0);
  ASSERT_EQ(qvpiGetRotateTransform(25, 0.5, 3, turn), 0);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(c[i / 2][i % 2], 1.5 * turn[i / 2][i % 2]);
  EXPECT_NEAR(c[0][0] * 30 + c[0][1] * 20 + c[0][2], 11, 1e-14);
  EXPECT_NEAR(c[1][0] * 30 + c[1][1] * 20 + c[1][2], -5, 1e-14);
  const QvpiRect roi{3, 5, 30, 20};
  ASSERT_EQ(qvpiGetRotateQuad(roi, quad, 25, 0.5, 3), 0);
  ASSERT_EQ(qvpiGetAffineQuad(roi, expected, turn), 0);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(quad[i / 2][i % 2], expected[i / 2][i % 2]);
  EXPECT_EQ(qvpiGetRotateScaleTransform(NAN, 20, 11, -5, 25, -1, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetRotateScaleTransform(1, 20, 11, -5, 25, 0, c), qvpStatusResizeFactor);
  EXPECT_EQ(qvpiGetRotateScaleTransform(1, 20, 11, -5, 25, NAN, c), qvpStatusResizeFactor);
  EXPECT_EQ(qvpiGetRotateBound({-1, 0, 1, 1}, bound, NAN, 0, 0), qvpStatusSize);
  EXPECT_EQ(qvpiGetRotateBound({0, 0, 5, 1}, bound, 0, INFINITY, 0), qvpStatusCoefficient);
  EXPECT_EQ(bound[0][0], 7);
  EXPECT_EQ(qvpiGetRotateBound({0, 0, 5, 1}, bound, 180, 4, 2), qvpStatusCoefficient);  // no area, and yet written
  EXPECT_TRUE(bound[0][0] == 0 && bound[0][1] == 2 && bound[1][0] == 4 && bound[1][1] == 2);
}

}  // namespace
