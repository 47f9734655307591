// Warps against the formulas of their points in double precision.
#include <vector>

#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Element;
using test::ElementOf;
using test::Forward;
using test::ImageWarp;
using test::Kind;
using test::Map;
using test::Numbers;
using test::Point;
using test::Quad;
using test::Rule;
using test::Samples;
using test::ValueAt;

constexpr QvpiSize kSource = test::kWarpSource, kTarget = test::kWarpTarget;
const Element& k8u = ElementOf("8u");

constexpr double kAll[4][2] = {{0, 0}, {22, 0}, {22, 16}, {0, 16}};

std::vector<Map> Maps() {
  return {
      {Kind::kAffine, {0.26, 0.12, 1.3, -0.1, 0.6, 6.2}},                      // a rotation that leaves the image
      {Kind::kAffine, {-0.3, 0.05, 22.5, 0, -0.8, 16.4}},                      // mirrored
      {Kind::kAffine, {0.5, 0.5, -10, 0.5, 0.5000001, -10}},                   // nearly singular
      {Kind::kAffine, {1, 0, -3, 0, 1, 2}},                                    // whole pixels
      {Kind::kAffine, {1e9, 0, -1e10, 0, 1e12, -1e13}},                        // huge coordinates
      {Kind::kAffine, {1, 1e-308, -2.5, -1e-308, 1, -1.5}},                    // hardly a turn
      {Kind::kPerspective, {0.2, 0.1, 1, 0.02, 0.5, 2, 0.012, -0.0013, 0.6}},  // a tilt
      {Kind::kPerspective, {0.2, 0.1, -11, 0.02, 0.5, -2, 0.025, 0, -1}},      // the horizon at column 40
      Forward({{3, 2}, {70, -4}, {75, 19}, {10, 14}}),
      Forward({{45, 0}, {55, 0}, {80, 20}, {0, 20}}),           // both signs of B in a row, a fold nearby
      Forward({{70, 1}, {4, -3}, {-2, 18}, {79, 25}}),          // turned over
      Forward({{5, 5}, {80, 10}, {80, 10.5}, {5, 5.2}}),        // thin
      Forward({{-9, 3}, {57, 3}, {57 + 1e-12, 19}, {-9, 19}}),  // affine, nearly
      {Kind::kBilinear, {0, 1, 0, 3, 0, 0, 1, -2}},             // whole pixels
      {Kind::kBilinearBack, {0.003, 0.26, 0.12, 1.3, -0.002, -0.1, 0.6, 6.2}},
      {Kind::kBilinearBack, {-0.02, 0.5, 0.3, 2, 0.03, -0.2, 0.8, 1}},  // with a fold
      {Kind::kBilinearBack, {1e7, 0.5, 0, 2, 0, 5, 1e9, 1}},            // steep
      {Kind::kBilinearBack, {0, 1, 0, -3, 0, 0, 1, 2}},
      Quad(kAll, {{3, 2}, {70, -4}, {75, 19}, {10, 14}}),
      Quad({{5, 4}, {30, 2}, {19, 20}, {-3, 9}}, {{2, 19}, {60, 18}, {40, 1}, {25, 2}}),  // beyond the image, mirrored
      Quad({{5, 4}, {15, 4}, {15, 10}, {5, 10}}, {{-100, -50}, {300, -40}, {200, 60}, {-150, 80}}),
  };
}

// What becomes of one sample. Points beyond everything give the first pixel where the border is replicated. The share
// of what was there is 1 where nothing is written.
struct Mixture {
  double value, share;
};
Mixture ExpectedAt(const Samples& src, QvpiSize size, const Rule& rule, int channels, Point p, int c, int border,
                   bool isSmooth) {
  const bool isPoint = p.u == p.u && p.v == p.v;
  if (border != qvpBorderTransparent) {
    if (isPoint) return {ValueAt(src, size, rule, channels, p, c), 1};
    return {border == qvpBorderConst ? rule.constant[c] : static_cast<double>(src(c, 0)), 1};
  }
  if (!isPoint) return {0, 0};
  const Point edge{std::clamp(p.u, 0.0, size.width - 1.0), std::clamp(p.v, 0.0, size.height - 1.0)};
  const double dx = std::fabs(p.u - edge.u), dy = std::fabs(p.v - edge.v);
  const double share = isSmooth ? std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy) : dx == 0 && dy == 0;
  return {ValueAt(src, size, rule, channels, edge, c), share};
}

struct Request {
  Map map;
  std::string_view type;
  int channels, taps;
  double tolerance;
  int border = qvpBorderReplicate;
  bool isSmooth = false, isWide = false;
  QvpiSize size = kSource, to = kTarget;
};

void CheckPixels(const Request& r, const Samples& src, const Samples& dst, const Samples& before) {
  const Rule rule{.taps = r.taps, .isConstant = r.border == qvpBorderConst};
  for (int y = 0; y < r.to.height; ++y) {
    for (int x = 0; x < r.to.width; ++x) {
      const Point p = PointOf(r.map, r.size, x, y);
      const bool isUnknown = !r.map.IsBilinear() && !(p.u - p.u == 0 && p.v - p.v == 0);  // at the horizon
      if (isUnknown && r.border != qvpBorderTransparent) continue;
      for (int c = 0; c < r.channels; ++c) {
        const auto old = static_cast<double>(before(x * r.channels + c, y));
        const bool isBeyondQuad = r.map.kind == Kind::kBilinearQuad && p.u != p.u;
        const auto [value, share] =
            isBeyondQuad ? Mixture{0, 0} : ExpectedAt(src, r.size, rule, r.channels, p, c, r.border, r.isSmooth);
        const double expected = share == 0 ? old : share * value + (1 - share) * old;
        const bool isExact = share == 0 || (r.taps == 1 && !r.isSmooth);
        ASSERT_NEAR(static_cast<double>(dst(x * r.channels + c, y)), test::Stored(dst.element(), expected),
                    isExact ? 0 : r.tolerance)
            << "taps " << r.taps << " border " << r.border << ' ' << x << ',' << y << " at " << p.u << ',' << p.v;
      }
    }
  }
}

// All pixels, by tiles too, whose widths differ.
void Check(const Request& r, int tileHeight) {
  const Element& element = ElementOf(r.type);
  const Rule rule{.taps = r.taps, .isConstant = r.border == qvpBorderConst};
  const ImageWarp warp(r.map, element, r.channels, rule, r.border, r.size, r.to, r.isSmooth, r.isWide);
  SCOPED_TRACE(warp.function().name);
  const Samples src = Numbers(element, r.size.width * r.channels, r.size.height, 5);
  const Samples dst = Numbers(element, r.to.width * r.channels, r.to.height, 3), before(dst), tiles(dst);
  warp.Whole(src, dst);
  for (int y = 0; y < r.to.height; y += tileHeight) {
    for (int x = 0, width = 1; x < r.to.width; x += width, width = width * 5 % 143) {
      ASSERT_GE(warp(src, {tiles.At(x * r.channels, y), tiles.step()}, {x, y, width, tileHeight}), 0);
    }
  }
  ExpectSame(dst, tiles, "in tiles");
  CheckPixels(r, src, dst, before);
}

TEST(Warp, FollowsTheFormula) {
  const std::vector<Map> maps = Maps();
  for (size_t m = 0; m < maps.size(); ++m) {
    SCOPED_TRACE("map " + std::to_string(m));
    for (const auto& [type, tolerance] : test::kTypes) {
      for (const int taps : {1, 2, 4}) {
        for (const int channels : {1, 3, 4}) {
          if (maps[m].IsBilinear() && channels == 4 - (type[1] == '6')) continue;
          Request r{maps[m], type, channels, taps, tolerance};
          for (const int border : {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent}) {
            r.border = border;
            Check(r, 8);
          }
          r.isSmooth = true;
          if (r.map.IsBilinear()) Check(r, 3);
          if (HasFatalFailure()) return;
        }
        if (type != "64f")
          Check({.map = maps[m], .type = type, .channels = 3, .taps = taps, .tolerance = tolerance, .isWide = true},
                20);
      }
    }
  }
}

// Rows of several blocks, whose tiles begin anywhere: slopes up to and beyond what is placed in fixed point, both ways,
// points in the middle between two pixels, a tilt whose horizon is outside.
TEST(Warp, InterpolatesLongRows) {
  const QvpiSize size{400, 300};
  const Map maps[] = {{Kind::kAffine, {0.48, 0.2, 7.123, -0.3, 0.48, 270.3}},
                      {Kind::kAffine, {-3.99, 1, 401.5, 0.1, 3.99, -2.25}},
                      {Kind::kAffine, {4.01, 0, -0.4, -0.25, -4.01, 290}},
                      {Kind::kAffine, {0.5, 0, 0.25, 0, 0.5, 10.5}},
                      {Kind::kAffine, {0.5, 0, 0, -0.25, 1, 250.25}},
                      {Kind::kAffine, {-0.5, 1e9, 399, 0, 1, 3}},
                      {Kind::kPerspective, {0.5, 0.1, 1, 0.3, 0.5, 2, 0.0005, 0.01, 1}},
                      {Kind::kPerspective, {-0.6, 0.1, -400, -0.4, -0.5, -10, -0.0005, 0.01, -1.1}},
                      Forward({{-20, -300}, {900, -250}, {810, 350}, {40, 290}}, size),
                      {Kind::kBilinearBack, {0.004, 0.48, 0.2, 7.125, -0.01, -0.3, 0.48, 270.25}},
                      {Kind::kBilinearBack, {0.5, 0.25, 0.5, 1, 0, 0.25, 2, 10.5}},
                      Quad({{1, 2}, {390, 5}, {395, 290}, {4, 280}}, {{-20, -30}, {900, -250}, {810, 350}, {40, 29}})};
  for (const Map& m : maps) {
    SCOPED_TRACE("map " + std::to_string(&m - maps));
    for (const auto& [type, tolerance] : test::kTypes) {
      for (const int channels : {1, 3, 4}) {
        if (channels == 4 && type != "8u") continue;
        for (const int taps : {1, 2, 4}) {
          if (taps == 4 && m.IsBilinear()) continue;
          Request r{m, type, channels, taps, type == "64f" ? 1e-8 : tolerance};
          r.size = size, r.to = {777, m.IsBilinear() ? 9 : 3};
          Check(r, 9);
          if (HasFatalFailure()) return;
        }
      }
    }
  }
}

// A map to an image that has more columns on the left and rows above.
Map Moved(Map m, int left, int top) {
  double* const c = m.c;
  if (m.kind == Kind::kAffine) c[2] += left, c[5] += top;
  if (m.kind == Kind::kBilinearBack) c[3] += left, c[7] += top;
  for (int i = 0; i < 8 && m.kind == Kind::kBilinear; i += 4) {
    c[i + 3] += c[i] * left * top - c[i + 1] * left - c[i + 2] * top;
    c[i + 1] -= c[i] * top, c[i + 2] -= c[i] * left;
  }
  for (auto& corner : m.from) corner[0] += left, corner[1] += top;
  return m;
}

// A region inside a larger image. Sides in memory enlarge it by what the method reaches, and the kind applies outside
// of that: with transparency beyond, pixels are those of a warp of the enlarged image, smooth edges too.
TEST(Warp, ReadsSidesInMemory) {
  const QvpiSize inner{15, 10}, to{60, 22};
  constexpr int kTransparent = qvpBorderTransparent;
  const Map maps[] = {{Kind::kAffine, {0.4, 0.01, -4, 0.005, 0.9, -3.9}},
                      Forward({{8, 6}, {50, 4}, {46, 17}, {5, 15}}, inner),
                      {Kind::kBilinearBack, {0.004, 0.35, 0.01, -4, -0.002, 0.05, 0.9, -3.9}},
                      Quad({{-1, -1}, {15, -1}, {15, 10}, {-1, 10}}, {{4, 3}, {55, 1}, {50, 20}, {2, 18}})};
  for (const Map& m : maps) {
    for (const int border : {+qvpBorderInMem, qvpBorderInMem | kTransparent, qvpBorderInMemLeft | kTransparent,
                             qvpBorderInMemTop | qvpBorderInMemRight | kTransparent}) {
      for (const int turn : {0, 1, 2, 3, 4, 5}) {
        const Rule rule{.taps = 1 << turn / 2};
        const bool isSmooth = turn % 2 && m.kind == Kind::kAffine;
        const auto reach = [&](int side) { return border & side ? rule.taps / 2 : 0; };
        const int left = reach(qvpBorderInMemLeft), top = reach(qvpBorderInMemTop);
        const QvpiSize outer{left + inner.width + reach(qvpBorderInMemRight),
                             top + inner.height + reach(qvpBorderInMemBottom)};
        const Samples src(k8u, outer.width, outer.height, 0), all(k8u, to.width, to.height, 3), dst(all);
        const ImageWarp some(m, k8u, 1, rule, border, inner, to, isSmooth);
        const ImageWarp whole(Moved(m, left, top), k8u, 1, rule, kTransparent, outer, to, isSmooth);
        some.Whole({src.At(left, top), src.step()}, dst);
        whole.Whole(src, all);
        SCOPED_TRACE(std::to_string(&m - maps) + ' ' + std::to_string(border) + ' ' + std::to_string(turn));
        ExpectImage(
            dst, [&](int x, int y) { return all(x, y); }, "", 1);
      }
    }
  }
}

// Rows begin and end up to two pixels outside, so that all shares occur, on the left, the right and at the corners.
// Only the mixture of the value, which may be beyond the type, and the old pixel is rounded. Where nothing is mixed,
// bytes are within 0.02 of it.
TEST(Warp, BlendsSmoothEdges) {
  constexpr struct {
    std::string_view type;
    int channels;
    double tolerance;
  } kImages[] = {{"8u", 3, 0.5001}, {"16u", 1, 0.52}, {"16s", 4, 0.52}, {"32f", 3, 2e-3}, {"64f", 1, 1e-9}};
  const QvpiSize size{5, 6}, to{24, 9};
  for (const auto& [type, channels, tolerance] : kImages) {
    for (const int taps : {1, 2, 4}) {
      for (const double turn : {0.0, 0.03}) {
        const Element& element = ElementOf(type);
        const Map map{Kind::kAffine, {0.3, turn, -1.5, -turn, 0.875, -0.75}};
        const ImageWarp warp(map, element, channels, {.taps = taps}, qvpBorderTransparent, size, to, 1);
        const Samples src = Numbers(element, size.width * channels, size.height, 0);
        const Samples dst = Numbers(element, to.width * channels, to.height, 2), before(dst);
        warp.Whole(src, dst);
        for (int i = 0; i < dst.width() * to.height; ++i) {
          const int x = i % dst.width(), y = i / dst.width();
          const Point p = PointOf(map, size, x / channels, y);
          const auto [value, share] =
              ExpectedAt(src, size, {.taps = taps}, channels, p, x % channels, qvpBorderTransparent, true);
          const double mixed = share * value + (1 - share) * static_cast<double>(before(x, y));
          ASSERT_NEAR(static_cast<double>(dst(x, y)),
                      static_cast<double>(std::clamp<test::Real>(mixed, element.lowest, element.highest)),
                      tolerance + (share == 1 && type == "8u" ? 0.02 : 0))
              << type << ' ' << taps << ' ' << x << ',' << y;
        }
      }
    }
  }
}

// Where fractions are eighths nothing is rounded but the result, ties to even: between any two values, at every place
// of a vector, inside and at the border.
TEST(Warp, BytesAreExactBetweenEighths) {
  const QvpiSize size{900, 3};
  for (int eighth = 0; eighth < 8; ++eighth) {
    const ImageWarp warp({Kind::kAffine, {1, 0, eighth / 8.0, 0, 1, 0.5}}, k8u, 1, {.taps = 2}, qvpBorderReplicate,
                         size, size);
    const Samples src(k8u, size.width, size.height, 1), dst(k8u, size.width, size.height, 0);
    warp.Whole(src, dst);
    const auto expected = [&](int x, int y) {
      return std::nearbyint(ValueAt(src, size, {.taps = 2}, 1, {x + eighth / 8.0, y + 0.5}, 0));
    };
    ExpectImage(dst, expected, std::to_string(eighth));
  }
}

}  // namespace
