// Warps: what is refused.
#include <memory>
#include <utility>

#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Argument;
using test::Export;
using test::Kind;
using test::Scene;

constexpr double kUnit[9] = {1, 0, 0.5, 0, 1, 0, 0, 0, 1}, kPlain[8] = {0, 1, 0, 3, 0, 0, 1, -2},
                 kCrossed[8] = {-1, 1, 0, 0, 0, 0, 1, 0};

// Three corners in a line, a corner that points inwards, images of one column where two are needed, and of one pixel.
TEST(Warp, RefusesQuadranglesAndSizes) {
  constexpr double kTriangle[4][2] = {{0, 0}, {4, 0}, {8, 0}, {0, 4}}, kBent[4][2] = {{0, 0}, {4, 0}, {1, 1}, {0, 4}};
  for (const Export& function : test::Exports()) {
    if (!function.name.starts_with("qvpiWarp") || !function.Has("srcSize")) continue;
    const auto with = [&](const char* parameter, const Argument& value) {
      Scene scene(function, {37, 5}, 1);
      EXPECT_EQ(scene.Call(), 0) << function.name;
      scene.arguments[function.Find(parameter)] = value;
      return scene.Call();
    };
    for (const char* const quad : {"srcQuad", "dstQuad"}) {
      if (!function.Has(quad)) continue;
      EXPECT_EQ(with(quad, {kTriangle}), qvpStatusQuad) << function.name << ' ' << quad;
      EXPECT_EQ(with(quad, {kBent}), qvpStatusQuad) << function.name << ' ' << quad;
    }
    if (function.name.find("Linear") != std::string::npos) {
      EXPECT_EQ(with("srcSize", QvpiSize{1, 5}), qvpStatusSize) << function.name;
    } else if (function.name.find("Nearest") != std::string::npos) {
      EXPECT_GE(with("srcSize", QvpiSize{1, 1}), 0) << function.name;
    }
    EXPECT_GE(with("dstSize", QvpiSize{1, 1}), 0) << function.name;
    EXPECT_EQ(with("dstSize", QvpiSize{33554432, 5}), qvpStatusSizeOverflow) << function.name;
  }
}

// Products of the determinant that differ by less than a part in 10^10 are equal; the second is looked at alone where
// the first is zero.
TEST(Warp, RefusesTransformsThatFlatten) {
  const auto statusOf = [](double a, double b, double c, double d) {
    const double coeffs[2][3] = {{a, b, 7}, {c, d, -9}};
    int spec = 0, init = 0;
    return qvpiWarpAffineGetSize({30, 20}, {30, 20}, qvp8u, coeffs, qvpInterpolationNearest, qvpWarpForward,
                                 qvpBorderTransparent, &spec, &init);
  };
  EXPECT_EQ(statusOf(1, 1 - 2e-10, 1, 1), 0);
  EXPECT_EQ(statusOf(1, 1 - 5e-11, 1, 1), qvpStatusCoefficient);
  EXPECT_EQ(statusOf(0, 2e-10, 1, 0), 0);
  EXPECT_EQ(statusOf(0, 5e-11, 1, 0), qvpStatusCoefficient);
}

TEST(Warp, OtherInits) {
  const double tiny[9] = {1e-6, 0, 0, 0, 1e-6, 0, 0, 0, 1};
  const double fold[8] = {0.5, 1, 0, 0, 0, 0, -1, 0};
  test::Block record(576);
  const auto init = [&](Kind kind, const double* c, int direction, int border, int smooth, bool isWide = false) {
    test::Map map{kind};
    std::copy(c, c + (kind == Kind::kAffine ? 9 : 8), map.c);
    map.direction = direction;
    return InitWarp(map, {.taps = 2}, isWide ? qvp64f : qvp8u, 1, border, {5, 5}, {5, 5}, smooth, isWide,
                    record.data());
  };
  EXPECT_EQ(init(Kind::kAffine, kUnit, qvpWarpForward, 0xF0, 1), 0);
  EXPECT_EQ(init(Kind::kAffine, kUnit, qvpWarpForward, 0x16, 0), 0);
  EXPECT_EQ(init(Kind::kAffine, tiny, qvpWarpForward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinear, kPlain, qvpWarpForward, 0xF0, 1), 0);
  EXPECT_EQ(init(Kind::kBilinear, kCrossed, qvpWarpForward, 1, 0), qvpStatusQuad);
  EXPECT_EQ(init(Kind::kBilinearBack, kCrossed, qvpWarpBackward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinearBack, fold, qvpWarpBackward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinear, kPlain, qvpWarpForward, 1, 0, true), qvpStatusDataType);
}

// A record for another kind of warp or another method, and tiles beyond the last column.
TEST(Warp, CallsKnowTheirRecordsAndTheLastColumn) {
  std::unique_ptr<Scene> other;
  for (const Export* call :
       test::FunctionsOf({"WarpAffineNearest", "WarpAffineLinear", "WarpAffineCubic", "WarpPerspectiveLinear",
                          "WarpBilinear", "WarpBilinearBack", "WarpBilinearQuad"})) {
    if (test::Name(call->name).isWide) continue;
    auto scene = std::make_unique<Scene>(*call, QvpiSize{37, 5}, 1);
    Argument& spec = scene->arguments[call->Find("pSpec")];
    if (other) {
      const Argument own = std::exchange(spec, other->arguments[other->function().Find("pSpec")]);
      EXPECT_EQ(scene->Call(), qvpStatusContextMatch) << call->name;
      spec = own;
    }
    const size_t size = call->Find("dstRoiSize"), offset = call->Find("dstRoiOffset");
    scene->arguments[size] = QvpiSize{38, 5};
    EXPECT_EQ(scene->Call(), qvpStatusSizeWarning) << call->name;
    scene->arguments[offset] = QvpiPoint{37, 0};
    EXPECT_EQ(scene->Call(), qvpStatusOutOfRange) << call->name;
    scene->arguments[size] = QvpiSize{0, -1};
    EXPECT_EQ(scene->Call(), qvpStatusNoOperation) << call->name;
    other = std::move(scene);
  }
}

}  // namespace
