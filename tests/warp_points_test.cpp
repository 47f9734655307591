// Warps: points that are known, and what is the same by two ways.
#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Element;
using test::ElementOf;
using test::ExpectSame;
using test::Forward;
using test::ImageWarp;
using test::Kind;
using test::Map;
using test::Numbers;
using test::Point;
using test::Quad;
using test::Rule;
using test::Samples;

constexpr QvpiSize kSource = test::kWarpSource, kTarget = test::kWarpTarget;
const Element &k8u = ElementOf("8u"), &k64f = ElementOf("64f");

// An image of coordinates tells the points.
Point Taken(const Map& m, QvpiSize src, QvpiSize dst, QvpiPoint at) {
  double point[2];
  for (int i = 0; i < 2; ++i) {
    Samples image(k64f, src.width, src.height, 0);
    image.Fill([&](int x, int y) { return i == 0 ? x : y; });
    point[i] = -1;
    const ImageWarp warp(m, k64f, 1, {.taps = 2}, qvpBorderTransparent, src, dst);
    EXPECT_EQ(warp(image, {&point[i], 8}, {at.x, at.y, 1, 1}), 0);
  }
  return {point[0], point[1]};
}
void ExpectTaken(const Map& m, QvpiSize size, QvpiPoint at, Point expected, double tolerance = 1e-11) {
  const Point p = Taken(m, size, size, at);
  EXPECT_NEAR(p.u, expected.u, tolerance) << at.x << ',' << at.y;
  EXPECT_NEAR(p.v, expected.v, tolerance) << at.x << ',' << at.y;
}

TEST(Warp, TakesKnownPoints) {
  const QvpiSize size{100, 100};
  const Map keystone = Forward({{0, 0}, {99, 0}, {79, 99}, {20, 99}}, size);
  ExpectTaken(keystone, size, {50, 60}, {50.16214025131739, 60});
  ExpectTaken(keystone, size, {0, 99}, {-1, -1}, 0);
  const int corners[][4] = {{0, 0, 0, 0}, {99, 0, 99, 0}, {79, 99, 99, 99}, {20, 99, 0, 99}};
  for (const auto& [x, y, u, v] : corners) ExpectTaken(keystone, size, {x, y}, {double(u), double(v)}, 0);
  const Map roof = Forward({{45, 0}, {55, 0}, {99, 99}, {0, 99}}, size);
  ExpectTaken(roof, size, {50, 60}, {49.96919431279621, 60});
  ExpectTaken(roof, size, {10, 90}, {6.435, 90}, 5e-4);
  ExpectTaken(roof, size, {99, 99}, {99, 99}, 0);
  ExpectTaken(roof, size, {3, 50}, {-1, -1}, 0);
  ExpectTaken(Forward({{99, 0}, {0, 0}, {0, 99}, {99, 99}}, size), size, {30, 40}, {69, 40}, 0);
  const Map quad = Quad({{10, 5}, {69, 5}, {79, 49}, {0, 49}}, {{0, 0}, {79, 0}, {79, 49}, {0, 49}});
  ExpectTaken(quad, {80, 50}, {40, 20}, {39.92508395763, 22.95918367347}, 1e-10);
}

// The transform has an inverse in whole numbers.
TEST(Warp, ForwardLeadsPixelsWhereTheTransformSays) {
  const QvpiSize from{12, 9}, to{40, 30};
  const double coeffs[2][3] = {{2, 1, -3}, {1, 1, 4}};
  int bytes = 0, initBytes = 0;
  ASSERT_EQ(qvpiWarpAffineGetSize(from, to, qvp8u, coeffs, qvpInterpolationNearest, qvpWarpForward,
                                  qvpBorderTransparent, &bytes, &initBytes),
            0);
  const test::Block record(bytes), buffer(64);
  auto* const spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  ASSERT_EQ(
      qvpiWarpAffineNearestInit(from, to, qvp8u, coeffs, qvpWarpForward, 1, qvpBorderTransparent, nullptr, 0, spec), 0);
  uint8_t src[9][12], dst[30][40] = {};
  for (int i = 0; i < 108; ++i) src[i / 12][i % 12] = static_cast<uint8_t>(i + 1);
  ASSERT_EQ(qvpiWarpAffineNearest_8u_C1R(src[0], 12, dst[0], 40, {0, 0}, to, spec, buffer.data()), 0);
  for (int i = 0; i < 108; ++i) {
    const int x = i % 12, y = i / 12;
    if (2 * x + y >= 3) ASSERT_EQ(dst[x + y + 4][2 * x + y - 3], i + 1) << x << ',' << y;
  }
}

// Without a product of coordinates the way back is affine, to the bit where points are not rounded.
TEST(Warp, WithoutATwistBilinearIsAffine) {
  const Map affine{Kind::kAffine, {0.26, 0.12, 1.3, -0.1, 0.6, 6.2}};
  const Map bilinear{Kind::kBilinearBack, {0, 0.26, 0.12, 1.3, 0, -0.1, 0.6, 6.2}};
  for (const test::Element* element : {&k8u, &k64f}) {
    const Rule rule{.taps = element == &k8u ? 1 : 4};
    const Samples src = Numbers(*element, kSource.width, kSource.height, 0);
    const Samples dst(*element, kTarget.width, kTarget.height, 0), other(*element, kTarget.width, kTarget.height, 0);
    ImageWarp(bilinear, *element, 1, rule, qvpBorderReplicate, kSource, kTarget).Whole(src, dst);
    ImageWarp(affine, *element, 1, rule, qvpBorderReplicate, kSource, kTarget).Whole(src, other);
    ExpectSame(dst, other);
  }
}

// A mesh of quadrangles, each written into the same picture.
struct Mesh {
  static constexpr int kCells = 5;
  QvpiSize size;
  double at[kCells + 1][kCells + 1][2];

  Mesh(QvpiSize s, double noise, uint64_t seed) : size(s) {
    test::Random random(seed);
    for (int j = 0; j <= kCells; ++j) {
      for (int i = 0; i <= kCells; ++i) {
        const bool isEdgeX = i % kCells == 0, isEdgeY = j % kCells == 0;
        const auto shift = [&](bool isEdge) { return isEdge ? 0 : noise * (random.Next() * 0x1p-31 - 1); };
        at[j][i][0] = i * (size.width - 1.0) / kCells + shift(isEdgeX);
        at[j][i][1] = j * (size.height - 1.0) / kCells + shift(isEdgeY);
      }
    }
  }
  // From cells of `source`.
  void Warp(const Element& element, int taps, const Mesh& source, const Samples& src, const Samples& dst) const {
    for (int j = 0; j < kCells; ++j) {
      for (int i = 0; i < kCells; ++i) {
        const auto cell = [&](const Mesh& m, double(&q)[4][2]) {
          const int x[] = {i, i + 1, i + 1, i}, y[] = {j, j, j + 1, j + 1};
          for (int k = 0; k < 4; ++k) std::copy(m.at[y[k]][x[k]], m.at[y[k]][x[k]] + 2, q[k]);
        };
        Map m{Kind::kBilinearQuad};
        cell(source, m.from), cell(*this, m.to);
        ImageWarp(m, element, 1, {.taps = taps}, qvpBorderReplicate, size, size).Whole(src, dst);
      }
    }
  }
};

TEST(Warp, MeshesOfTheIdentityReturnTheImage) {
  const QvpiSize size{61, 47};
  const Mesh mesh(size, 4, 3);
  const Samples src = Numbers(k64f, size.width, size.height, 0), dst = Numbers(k64f, size.width, size.height, 8);
  mesh.Warp(k64f, 2, mesh, src, dst);
  ExpectImage(
      dst, [&](int x, int y) { return src(x, y); }, "", 1e-9);
}

TEST(Warp, MeshesLeaveNoPixelOut) {
  const QvpiSize size{97, 83};
  const Samples src(k8u, size.width, size.height, 0), dst(k8u, size.width, size.height, 0);
  std::memset(src.bytes(), 7, size_t(src.step()) * size.height);
  for (int seed = 1; seed < 9; ++seed) {
    std::memset(dst.bytes(), 0, size_t(dst.step()) * size.height);
    Mesh(size, 6, seed).Warp(k8u, 1 + seed % 2, Mesh(size, 0, 1), src, dst);
    ExpectSame(dst, src, std::to_string(seed));
  }
}

// A common factor of a perspective's coefficients changes nothing, however large or small it is.
TEST(Warp, PerspectivesMayHaveAnyFactor) {
  const Map map{Kind::kPerspective, {0.25, 0.125, 1, 0.03125, 0.5, 2, 0.015625, -0.0009765625, 0.75}};
  const Samples src(k8u, kSource.width, kSource.height, 0), expected(k8u, kTarget.width, kTarget.height, 0),
      dst(expected);
  for (const int direction : {qvpWarpForward, qvpWarpBackward}) {
    for (const int power : {0, -1060, -700, -360, -341, 340, 700, 1022}) {
      Map scaled = map;
      scaled.direction = direction;
      for (double& c : scaled.c) c = std::ldexp(c, power);
      const ImageWarp warp(scaled, k8u, 1, {.taps = 2}, qvpBorderReplicate, kSource, kTarget);
      warp.Whole(src, power == 0 ? expected : dst);
      if (power != 0) ExpectSame(dst, expected);
    }
  }
}

TEST(Warp, QuadranglesMeetTheirCorners) {
  const double from[4][2] = {{2, 1}, {20, 2}, {19, 14}, {1, 15}}, to[4][2] = {{3, 2}, {70, 1}, {60, 18}, {5, 19}};
  ImageWarp warp({Kind::kPerspective, {1, 0, 0, 0, 1, 0, 0, 0, 1}}, k8u, 1, {}, qvpBorderReplicate, kSource, kTarget);
  ASSERT_EQ(qvpiWarpQuadNearestInit(kSource, from, kTarget, to, qvp8u, 1, 1, nullptr, 0, warp.spec()), 0);
  const Samples src(k8u, kSource.width, kSource.height, 2), dst(k8u, kTarget.width, kTarget.height, 3);
  warp.Whole(src, dst);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(dst(static_cast<int>(to[i][0]), static_cast<int>(to[i][1])),
              src(static_cast<int>(from[i][0]), static_cast<int>(from[i][1])));
  }
}

}  // namespace
