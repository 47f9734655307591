// Bilinear warps against the formulas of their points in double precision.
#include <cstring>
#include <numeric>
#include <vector>

#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Element;
using test::ElementOf;
using test::Numbers;
using test::Point;
using test::Rule;
using test::Samples;

enum class Kind { kForward, kBack, kQuad };

// Coefficients, or the corners of source and destination.
struct Map {
  Kind kind;
  double c[2][4];
  double from[4][2], to[4][2];
};

constexpr QvpiSize kSource{23, 17}, kTarget{83, 21};
const Element &k8u = ElementOf("8u"), &k64f = ElementOf("64f");

double ToEdge(double x, double last) {
  const double edge = std::clamp(x, 0.0, last);
  return std::fabs(x - edge) <= 1e-6 ? edge : x;
}

// The point that goes to (x, y), on the side of the corner (0, 0).
Point Solved(const double (*c)[4], double width, double height, double x, double y) {
  double a[4], b[4];
  std::copy(c[0], c[0] + 4, a);
  std::copy(c[1], c[1] + 4, b);
  const double acrossX = a[0] * height + a[1], acrossY = b[0] * height + b[1];
  const double downX = a[0] * width + a[2], downY = b[0] * width + b[2];
  const bool isTurned = acrossX * downY - acrossY * downX < 0;  // at the corner opposite
  for (double& v : b) v = isTurned ? -v : v;
  const double p = x - a[3], q = (isTurned ? -y : y) - b[3];
  const double det = a[1] * b[2] - a[2] * b[1], a0 = a[0] * b[2] - a[2] * b[0], a1 = a[0] * b[1] - a[1] * b[0];
  const double b0 = (det - q * a[0]) + p * b[0], b1 = b0 - (det + det);
  const double c0 = p * b[1] - q * a[1], c1 = p * b[2] - q * a[2], r = std::sqrt(b0 * b0 - (4 * a0) * c0);
  return {b1 <= 0 ? (2 * c1) / (r - b1) : (r + b1) / (-2 * a1), b0 >= 0 ? (-2 * c0) / (b0 + r) : (r - b0) / (2 * a0)};
}

void ToSquare(const double (*q)[2], double (*c)[4]) {
  for (int i = 0; i < 2; ++i) {
    c[i][0] = q[0][i] - q[1][i] + q[2][i] - q[3][i];
    c[i][1] = q[1][i] - q[0][i], c[i][2] = q[3][i] - q[0][i], c[i][3] = q[0][i];
  }
}

// Not a number where nothing is written, or beyond the fold.
Point PointOf(const Map& m, QvpiSize src, double x, double y) {
  Point p;
  if (m.kind == Kind::kBack) {
    const auto at = [&](const double(&c)[4]) { return ((c[0] * y + c[1]) * x + c[2] * y) + c[3]; };
    return {at(m.c[0]), at(m.c[1])};
  }
  if (m.kind == Kind::kForward) {
    p = Solved(m.c, src.width - 1, src.height - 1, x, y);
  } else {
    double t[2][4], e[2][4];
    ToSquare(m.to, t), ToSquare(m.from, e);
    const Point s = Solved(t, 1, 1, x, y);
    if (!(s.u >= -1e-9 && s.u <= 1 + 1e-9 && s.v >= -1e-9 && s.v <= 1 + 1e-9)) return {NAN, NAN};
    const double u = std::clamp(s.u, 0.0, 1.0), v = std::clamp(s.v, 0.0, 1.0);
    const auto at = [&](const double(&c)[4]) { return ((c[0] * v + c[1]) * u + c[2] * v) + c[3]; };
    p = {at(e[0]), at(e[1])};
  }
  return {ToEdge(p.u, src.width - 1), ToEdge(p.v, src.height - 1)};
}

const char* OperationOf(Kind kind) {
  return kind == Kind::kForward ? "WarpBilinear" : kind == Kind::kBack ? "WarpBilinearBack" : "WarpBilinearQuad";
}

class Warp {
 public:
  Warp(int channels, const Element& element, const Rule& rule, const Map& m, int border, QvpiSize src = kSource,
       QvpiSize dst = kTarget, int smooth = 0)
      : record_(576),
        buffer_(64 + 8 * ((dst.height + 7) & -8)),
        function_(test::FunctionOf(OperationOf(m.kind), element, channels)) {
    const QvpDataType type = element.code;
    const int direction = m.kind == Kind::kBack;
    test::Block room(64);
#define COEFFS(Method, ...) \
  qvpiWarpBilinear##Method##Init(src, dst, type, m.c, direction, channels, __VA_ARGS__ rule.constant, smooth, spec()
#define QUADS(Method, ...) \
  qvpiWarpBilinearQuad##Method##Init(src, m.from, dst, m.to, type, channels, __VA_ARGS__ rule.constant, smooth, spec()
#define INIT(Args)                            \
  rule.taps == 1   ? Args(Nearest, border, ))            \
  : rule.taps == 2 ? Args(Linear, border, ))             \
                   : Args(Cubic, rule.b, rule.c, border, ), room.data())
    status = m.kind == Kind::kQuad ? INIT(QUADS) : INIT(COEFFS);
    int bytes = 0;
    if (status == 0) {
      EXPECT_EQ(qvpiWarpGetBufferSize(spec(), dst, &bytes), 0);
    }
    EXPECT_LE(static_cast<size_t>(bytes), buffer_.size());
  }

  QvpiWarpSpec* spec() const { return reinterpret_cast<QvpiWarpSpec*>(record_.data()); }

  QvpStatus operator()(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, QvpiPoint at, QvpiSize size) const {
    return function_({{"pSrc", {src, srcStep}},
                      {"pDst", {dst, dstStep}},
                      {"dstRoiOffset", at},
                      {"dstRoiSize", size},
                      {"pSpec", {spec()}},
                      {"pBuffer", {buffer_.data()}}});
  }
  void Whole(const Samples& src, const Samples& dst, QvpiSize size) const {
    ASSERT_EQ((*this)(src.bytes(), src.step(), dst.bytes(), dst.step(), {0, 0}, size), 0);
  }

  QvpStatus status = 0;

 private:
  test::Block record_, buffer_;
  const test::Export& function_;
};

// What becomes of one sample. Points beyond everything give the first pixel where the border is replicated.
double Expected(const Samples& src, QvpiSize size, const Rule& rule, int channels, Point p, int c, int border,
                bool isSmooth, double old) {
  const bool isPoint = p.u == p.u && p.v == p.v;
  if (border != qvpBorderTransparent) {
    if (isPoint) return test::ValueAt(src, size, rule, channels, p, c);
    return border == qvpBorderConst ? rule.constant[c] : static_cast<double>(src(c, 0));
  }
  const Point edge{std::clamp(p.u, 0.0, size.width - 1.0), std::clamp(p.v, 0.0, size.height - 1.0)};
  const double dx = std::fabs(p.u - edge.u), dy = std::fabs(p.v - edge.v);
  const double share = !isPoint             ? 0
                       : isSmooth           ? std::max(0.0, 1 - dx) * std::max(0.0, 1 - dy)
                       : dx == 0 && dy == 0 ? 1
                                            : 0;
  return share == 0 ? old : share * test::ValueAt(src, size, rule, channels, edge, c) + (1 - share) * old;
}

// All pixels, by tiles too.
void Check(const Element& element, int channels, const Rule& rule, const Map& m, int border, int smooth, QvpiSize size,
           QvpiSize to, QvpiSize tile, double tolerance) {
  const Warp warp(channels, element, rule, m, border, size, to, smooth);
  ASSERT_EQ(warp.status, 0);
  const Samples src = Numbers(element, size.width * channels, size.height, 5);
  const Samples dst = Numbers(element, to.width * channels, to.height, 3), before(dst), tiles(dst);
  warp.Whole(src, dst, to);
  for (int y = 0; y < to.height; y += tile.height) {
    for (int x = 0; x < to.width; x += tile.width) {
      ASSERT_GE(warp(src.bytes(), src.step(), tiles.At(x * channels, y), tiles.step(), {x, y}, tile), 0);
    }
  }
  for (int y = 0; y < to.height; ++y) {
    for (int x = 0; x < to.width * channels; ++x) {
      ASSERT_EQ(dst(x, y), tiles(x, y)) << x << ',' << y;
      const Point p = PointOf(m, size, x / channels, y);
      const double old = static_cast<double>(before(x, y));
      const bool isLeft = m.kind == Kind::kQuad && p.u != p.u;
      const double value = isLeft ? old : Expected(src, size, rule, channels, p, x % channels, border, smooth, old);
      ASSERT_NEAR(static_cast<double>(dst(x, y)), test::Stored(element, value),
                  rule.taps == 1 && !smooth ? 0 : tolerance)
          << "taps " << rule.taps << " border " << border << ' ' << smooth << ' ' << x << ',' << y << " at " << p.u
          << ',' << p.v;
    }
  }
}

constexpr double kAll[4][2] = {{0, 0}, {22, 0}, {22, 16}, {0, 16}};

// A map by where the source's corners go.
Map Forward(const double (&to)[4][2], QvpiSize src = kSource) {
  Map m{Kind::kForward, {}, {}, {}};
  EXPECT_EQ(qvpiGetBilinearTransform({0, 0, src.width, src.height}, to, m.c), 0);
  return m;
}
Map Quad(const double (&from)[4][2], const double (&to)[4][2]) {
  Map m{Kind::kQuad, {}, {}, {}};
  std::memcpy(m.from, from, sizeof(m.from));
  std::memcpy(m.to, to, sizeof(m.to));
  return m;
}

std::vector<Map> Maps() {
  return {
      Forward({{3, 2}, {70, -4}, {75, 19}, {10, 14}}),
      Forward({{45, 0}, {55, 0}, {80, 20}, {0, 20}}),           // both signs of B in a row, a fold nearby
      Forward({{70, 1}, {4, -3}, {-2, 18}, {79, 25}}),          // turned over
      Forward({{5, 5}, {80, 10}, {80, 10.5}, {5, 5.2}}),        // thin
      Forward({{-9, 3}, {57, 3}, {57 + 1e-12, 19}, {-9, 19}}),  // affine, nearly
      {Kind::kForward, {{0, 1, 0, 3}, {0, 0, 1, -2}}, {}, {}},  // whole pixels
      {Kind::kBack, {{0.003, 0.26, 0.12, 1.3}, {-0.002, -0.1, 0.6, 6.2}}, {}, {}},
      {Kind::kBack, {{-0.02, 0.5, 0.3, 2}, {0.03, -0.2, 0.8, 1}}, {}, {}},  // with a fold
      {Kind::kBack, {{1e7, 0.5, 0, 2}, {0, 5, 1e9, 1}}, {}, {}},            // steep
      {Kind::kBack, {{0, 1, 0, -3}, {0, 0, 1, 2}}, {}, {}},
      Quad(kAll, {{3, 2}, {70, -4}, {75, 19}, {10, 14}}),
      Quad({{5, 4}, {30, 2}, {19, 20}, {-3, 9}}, {{2, 19}, {60, 18}, {40, 1}, {25, 2}}),  // beyond the image, mirrored
      Quad({{5, 4}, {15, 4}, {15, 10}, {5, 10}}, {{-100, -50}, {300, -40}, {200, 60}, {-150, 80}}),
  };
}

const struct {
  std::string_view type;
  int channels;
  double tolerance;
} kImages[] = {{"8u", 1, 1},  {"8u", 3, 1},     {"8u", 4, 1},     {"16u", 3, 1},    {"16u", 1, 1},
               {"16s", 4, 1}, {"32f", 1, 2e-3}, {"32f", 3, 2e-3}, {"64f", 1, 1e-9}, {"64f", 3, 1e-9}};

TEST(WarpBilinear, FollowsTheFormula) {
  const std::vector<Map> maps = Maps();
  for (const auto& [type, channels, tolerance] : kImages) {
    for (size_t m = 0; m < maps.size(); ++m) {
      SCOPED_TRACE(std::string(type) + " map " + std::to_string(m));
      for (const int taps : {1, 2, 4}) {
        for (const int border : {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent}) {
          const Rule rule{.taps = taps, .isConstant = border == qvpBorderConst};
          Check(ElementOf(type), channels, rule, maps[m], border, 0, kSource, kTarget, {37, 8}, tolerance);
          if (HasFatalFailure()) return;
        }
        Check(ElementOf(type), channels, {.taps = taps}, maps[m], qvpBorderTransparent, 1, kSource, kTarget, {7, 3},
              tolerance);
        if (HasFatalFailure()) return;
      }
    }
  }
}

// Rows of several blocks; tiles of a pixel, and others that begin anywhere.
TEST(WarpBilinear, InterpolatesLongRows) {
  const QvpiSize size{400, 300}, to{777, 9};
  const Map maps[] = {Forward({{-20, -300}, {900, -250}, {810, 350}, {40, 290}}, size),
                      {Kind::kBack, {{0.004, 0.48, 0.2, 7.125}, {-0.01, -0.3, 0.48, 270.25}}, {}, {}},
                      {Kind::kBack, {{0.5, 0.25, 0.5, 1}, {0, 0.25, 2, 10.5}}, {}, {}},
                      Quad({{1, 2}, {390, 5}, {395, 290}, {4, 280}}, {{-20, -30}, {900, -250}, {810, 350}, {40, 29}})};
  for (const auto& [type, channels, tolerance] : kImages) {
    if (channels == 4) continue;
    for (const Map& m : maps) {
      SCOPED_TRACE(std::string(type) + " map " + std::to_string(&m - maps));
      for (const int taps : {1, 2}) {
        Check(ElementOf(type), channels, {.taps = taps}, m, qvpBorderReplicate, 0, size, to, {taps == 2 ? 113 : 1, 9},
              tolerance);
        if (HasFatalFailure()) return;
      }
    }
  }
}

// An image of coordinates tells the points.
Point Taken(const Map& m, QvpiSize src, QvpiSize dst, QvpiPoint at) {
  double point[2];
  for (int i = 0; i < 2; ++i) {
    test::Image<double> image(src.width, src.height, 0), pixel(1, 1, 0);
    for (int y = 0; y < src.height; ++y) {
      for (int x = 0; x < src.width; ++x) image.data()[y * src.width + x] = i == 0 ? x : y;
    }
    pixel.data()[0] = -1;
    const Warp warp(1, k64f, {.taps = 2}, m, qvpBorderTransparent, src, dst);
    EXPECT_EQ(warp(image.bytes(), image.step(), pixel.bytes(), 8, at, {1, 1}), 0);
    point[i] = pixel.data()[0];
  }
  return {point[0], point[1]};
}
void ExpectTaken(const Map& m, QvpiSize size, QvpiPoint at, Point expected, double tolerance = 1e-11) {
  const Point p = Taken(m, size, size, at);
  EXPECT_NEAR(p.u, expected.u, tolerance) << at.x << ',' << at.y;
  EXPECT_NEAR(p.v, expected.v, tolerance) << at.x << ',' << at.y;
}

TEST(WarpBilinear, TakesKnownPoints) {
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

// Without a product of coordinates the way back is affine, to the bit where points are not rounded.
TEST(WarpBilinear, EqualsTheAffineWarpWithoutATwist) {
  const Map m{Kind::kBack, {{0, 0.26, 0.12, 1.3}, {0, -0.1, 0.6, 6.2}}, {}, {}};
  const double affine[2][3] = {{0.26, 0.12, 1.3}, {-0.1, 0.6, 6.2}};
  test::Block record(576), buffer(1024), room(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const auto check = [&](const Element& element, int taps, auto function) {
    const Samples src = Numbers(element, kSource.width, kSource.height, 0);
    const Samples dst = Numbers(element, kTarget.width, kTarget.height, 0), other(dst);
    Warp(1, element, {.taps = taps}, m, qvpBorderReplicate).Whole(src, dst, kTarget);
    function(src, other);
    EXPECT_EQ(std::memcmp(dst.bytes(), other.bytes(), size_t(dst.step()) * kTarget.height), 0) << element.name;
  };
  check(k8u, 1, [&](const Samples& src, const Samples& dst) {
    ASSERT_EQ(qvpiWarpAffineNearestInit(kSource, kTarget, qvp8u, affine, 1, 1, 1, nullptr, 0, spec), 0);
    ASSERT_EQ(qvpiWarpAffineNearest_8u_C1R(src.As<Qvp8u>(), src.step(), dst.As<Qvp8u>(), dst.step(), {0, 0}, kTarget,
                                           spec, buffer.data()),
              0);
  });
  check(k64f, 4, [&](const Samples& src, const Samples& dst) {
    ASSERT_EQ(qvpiWarpAffineCubicInit(kSource, kTarget, qvp64f, affine, 1, 1, 0, 0.5, 1, nullptr, 0, spec, room.data()),
              0);
    ASSERT_EQ(qvpiWarpAffineCubic_64f_C1R(src.As<Qvp64f>(), src.step(), dst.As<Qvp64f>(), dst.step(), {0, 0}, kTarget,
                                          spec, buffer.data()),
              0);
  });
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
        Map m{Kind::kQuad, {}, {}, {}};
        cell(source, m.from), cell(*this, m.to);
        const ::Warp warp(1, element, {.taps = taps}, m, qvpBorderReplicate, size, size);
        ASSERT_EQ(warp.status, 0);
        warp.Whole(src, dst, size);
      }
    }
  }
};

TEST(WarpBilinear, MeshesOfTheIdentityReturnTheImage) {
  const QvpiSize size{61, 47};
  const Mesh mesh(size, 4, 3);
  const Samples src = Numbers(k64f, size.width, size.height, 0), dst = Numbers(k64f, size.width, size.height, 8);
  mesh.Warp(k64f, 2, mesh, src, dst);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      ASSERT_NEAR(static_cast<double>(dst(x, y)), static_cast<double>(src(x, y)), 1e-9) << x << ',' << y;
    }
  }
}

TEST(WarpBilinear, MeshesLeaveNoPixelOut) {
  const QvpiSize size{97, 83};
  test::Image<uint8_t> zero(size.width, size.height, 0);
  const Samples src(k8u, size.width, size.height, 0), dst(k8u, size.width, size.height, 0);
  std::memset(src.bytes(), 7, size_t(src.step()) * size.height);
  for (int seed = 1; seed < 9; ++seed) {
    std::memset(dst.bytes(), 0, size_t(dst.step()) * size.height);
    Mesh(size, 6, seed).Warp(k8u, 1 + seed % 2, Mesh(size, 0, 1), src, dst);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) ASSERT_EQ(dst(x, y), 7) << seed << ' ' << x << ',' << y;
    }
  }
}

// A region inside a larger image: sides in memory enlarge it by what the method reaches. Pixels are those of a warp of
// the enlarged image.
TEST(WarpBilinear, ReadsSidesInMemory) {
  const QvpiSize inner{15, 10}, to{60, 22};
  constexpr int kTransparent = qvpBorderTransparent;
  const Map maps[] = {Forward({{8, 6}, {50, 4}, {46, 17}, {5, 15}}, inner),
                      {Kind::kBack, {{0.004, 0.35, 0.01, -4}, {-0.002, 0.05, 0.9, -3.9}}, {}, {}},
                      Quad({{-1, -1}, {15, -1}, {15, 10}, {-1, 10}}, {{4, 3}, {55, 1}, {50, 20}, {2, 18}})};
  for (const Map& m : maps) {
    for (const int border : {+qvpBorderInMem, qvpBorderInMem | kTransparent, qvpBorderInMemLeft | kTransparent,
                             qvpBorderInMemTop | qvpBorderInMemRight | kTransparent}) {
      for (const int taps : {1, 2, 4}) {
        const auto reach = [&](int side) { return border & side ? taps / 2 : 0; };
        const int left = reach(qvpBorderInMemLeft), top = reach(qvpBorderInMemTop);
        const QvpiSize outer{left + inner.width + reach(qvpBorderInMemRight),
                             top + inner.height + reach(qvpBorderInMemBottom)};
        Map moved = m;
        for (int i = 0; i < 2 && m.kind == Kind::kForward; ++i) {
          double* c = moved.c[i];
          c[3] += c[0] * left * top - c[1] * left - c[2] * top;
          c[1] -= c[0] * top, c[2] -= c[0] * left;
        }
        if (m.kind == Kind::kBack) moved.c[0][3] += left, moved.c[1][3] += top;
        for (auto& corner : moved.from) corner[0] += left, corner[1] += top;
        const Samples src(k8u, outer.width, outer.height, 0), all(k8u, to.width, to.height, 3), dst(all);
        const Warp some(1, k8u, {.taps = taps}, m, border, inner, to);
        const Warp whole(1, k8u, {.taps = taps}, moved, kTransparent, outer, to);
        ASSERT_EQ(some(src.At(left, top), src.step(), dst.bytes(), dst.step(), {0, 0}, to), 0);
        whole.Whole(src, all, to);
        for (int y = 0; y < to.height; ++y) {
          for (int x = 0; x < to.width; ++x) {
            ASSERT_NEAR(static_cast<double>(dst(x, y)), static_cast<double>(all(x, y)), 1)
                << &m - maps << ' ' << border << ' ' << taps << ' ' << x << ',' << y;
          }
        }
      }
    }
  }
}

TEST(WarpBilinear, WideFormsEqualPlainOnes) {
  const QvpiSizeL from{kSource.width, kSource.height}, to{kTarget.width, kTarget.height};
  const std::vector<Map> maps = Maps();
  test::Block record(576), buffer(1024), room(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const Samples src = Numbers(k8u, kSource.width * 3, kSource.height, 6);
  const auto check = [&](const Map& m, int taps, auto wide) {
    const Samples dst(k8u, kTarget.width * 3, kTarget.height, 2), other(dst);
    const Warp warp(3, k8u, {.taps = taps}, m, qvpBorderReplicate);
    ASSERT_EQ(warp(src.bytes(), src.step(), dst.bytes(), dst.step(), {5, 1}, {70, 20}), 0);
    ASSERT_EQ(wide(src.bytes(), src.step(), other.bytes(), other.step(), {5, 1}, {70, 20}, spec, buffer.data()), 0);
    EXPECT_EQ(std::memcmp(dst.bytes(), other.bytes(), size_t(dst.step()) * (kTarget.height - 1)), 0);
  };
  ASSERT_EQ(qvpiWarpBilinearNearestInit_L(from, to, qvp8u, maps[0].c, 0, 3, 1, nullptr, 0, spec), 0);
  check(maps[0], 1, qvpiWarpBilinear_8u_C3R_L);
  ASSERT_EQ(qvpiWarpBilinearLinearInit_L(from, to, qvp8u, maps[6].c, 1, 3, 1, nullptr, 0, spec), 0);
  check(maps[6], 2, qvpiWarpBilinearBack_8u_C3R_L);
  ASSERT_EQ(qvpiWarpBilinearQuadCubicInit_L(from, maps[11].from, to, maps[11].to, qvp8u, 3, 0, 0.5, 1, nullptr, 0, spec,
                                            room.data()),
            0);
  check(maps[11], 4, qvpiWarpBilinearQuad_8u_C3R_L);
  EXPECT_EQ(qvpiWarpBilinearNearestInit_L(from, to, qvp64f, maps[0].c, 0, 3, 1, nullptr, 0, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiWarpGetBufferSize_L(spec, to, nullptr), qvpStatusNullPointer);
}

TEST(WarpBilinear, InitsRefuseInOrder) {
  const Map good = Maps()[0], quad = Maps()[10];
  const double nan[2][4] = {{0, 1, 0, NAN}, {0, 0, 1, 0}}, flat[2][4] = {{0, 1, 0, 0}, {0, 1, 0, 0}};
  const double fold[2][4] = {{0.5, 1, 0, 0}, {0, 0, -1, 0}}, crossed[2][4] = {{-1, 1, 0, 0}, {0, 0, 1, 0}};
  const double value[4] = {};
  test::Block record(576), room(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  int bytes = 0;
  const auto init = [&](const double(*c)[4], QvpiSize src, int type, int direction, int channels, int border,
                        const double* v, int smooth) {
    const QvpStatus status =
        qvpiWarpBilinearLinearInit(src, {5, 5}, type, c, direction, channels, border, v, smooth, spec);
    EXPECT_EQ(qvpiWarpGetBufferSize(spec, {5, 5}, &bytes), status == 0 ? 0 : qvpStatusContextMatch);
    return status;
  };
  EXPECT_EQ(init(good.c, {5, 5}, qvp8u, 0, 1, 0xF0, nullptr, 1), 0);
  EXPECT_EQ(init(nullptr, {0, 5}, 3, 2, 2, 256, nullptr, 1), qvpStatusBorder);
  EXPECT_EQ(init(nullptr, {0, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusNullPointer);
  EXPECT_EQ(init(nan, {0, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusSize);
  EXPECT_EQ(init(nan, {1, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusDataType);
  EXPECT_EQ(init(nan, {1, 5}, qvp8u, 2, 2, 1, nullptr, 1), qvpStatusWarpDirection);
  EXPECT_EQ(init(nan, {1, 5}, qvp8u, 1, 2, 6, nullptr, 1), qvpStatusCoefficient);
  EXPECT_EQ(init(flat, {1, 5}, qvp8u, 0, 2, 6, nullptr, 1), qvpStatusCoefficient);
  EXPECT_EQ(init(flat, {1, 5}, qvp8u, 1, 2, 6, nullptr, 1), qvpStatusCoefficient);
  EXPECT_EQ(init(crossed, {5, 5}, qvp8u, 0, 2, 6, nullptr, 1), qvpStatusQuad);
  EXPECT_EQ(init(crossed, {5, 5}, qvp8u, 1, 1, 1, nullptr, 0), 0);
  EXPECT_EQ(init(fold, {5, 5}, qvp8u, 1, 1, 1, nullptr, 0), 0);
  EXPECT_EQ(init(good.c, {1, 5}, qvp8u, 0, 2, 6, nullptr, 1), qvpStatusNullPointer);
  EXPECT_EQ(init(good.c, {1, 5}, qvp8u, 0, 2, 6, value, 1), qvpStatusNumChannels);
  EXPECT_EQ(init(good.c, {1, 5}, qvp8u, 0, 3, 6, value, 1), qvpStatusNotSupportedMode);
  EXPECT_EQ(init(good.c, {1, 5}, qvp8u, 0, 3, 6, value, 0), qvpStatusSize);
  EXPECT_EQ(init(good.c, {33554432, 5}, qvp8u, 1, 3, 6, value, 0), qvpStatusSizeOverflow);
  const auto initQuad = [&](const double(*from)[2], const double(*to)[2], int channels, double b, uint8_t* buffer) {
    return qvpiWarpBilinearQuadCubicInit({5, 5}, from, {5, 5}, to, qvp8u, channels, b, 0, 1, nullptr, 0, spec, buffer);
  };
  const double triangle[4][2] = {{0, 0}, {4, 0}, {8, 0}, {0, 4}}, bent[4][2] = {{0, 0}, {4, 0}, {1, 1}, {0, 4}};
  EXPECT_EQ(initQuad(quad.from, nullptr, 2, NAN, room.data()), qvpStatusNullPointer);
  EXPECT_EQ(initQuad(triangle, quad.to, 2, NAN, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(initQuad(triangle, quad.to, 2, NAN, room.data()), qvpStatusQuad);
  EXPECT_EQ(initQuad(quad.from, bent, 2, NAN, room.data()), qvpStatusQuad);
  EXPECT_EQ(initQuad(quad.from, quad.to, 2, NAN, room.data()), qvpStatusNumChannels);
  EXPECT_EQ(initQuad(quad.from, quad.to, 1, NAN, room.data()), qvpStatusBadArgument);
}

TEST(WarpBilinear, SizeQueriesRefuseInOrder) {
  const Map good = Maps()[0], quad = Maps()[10];
  const double nan[2][4] = {{0, 1, 0, NAN}, {0, 0, 1, 0}};
  int size = 0, room = 0;
  const auto query = [&](const double(*c)[4], int width, int type, int method, int direction, int border) {
    return qvpiWarpBilinearGetSize({width, 5}, {5, 5}, type, c, method, direction, border, &size, &room);
  };
  EXPECT_EQ(query(nullptr, 0, 3, 3, 2, 0), qvpStatusNullPointer);
  EXPECT_EQ(query(nan, 0, 3, 3, 2, 0), qvpStatusSize);
  EXPECT_EQ(query(nan, 1, 3, 3, 2, 0), qvpStatusDataType);
  EXPECT_EQ(query(nan, 1, qvp64f, 3, 2, 0), qvpStatusInterpolation);
  EXPECT_EQ(query(nan, 1, qvp64f, 6, 2, 0), qvpStatusWarpDirection);
  EXPECT_EQ(query(nan, 1, qvp64f, 6, 0, 0), qvpStatusCoefficient);
  EXPECT_EQ(query(good.c, 1, qvp64f, 6, 0, 0), qvpStatusBorder);
  EXPECT_EQ(query(good.c, 1, qvp64f, 6, 0, 1), qvpStatusSize);
  EXPECT_EQ(query(good.c, 33554432, qvp64f, 6, 1, 1), qvpStatusSizeOverflow);
  EXPECT_EQ(size + room, 0);
  EXPECT_EQ(query(good.c, 5, qvp64f, 6, 0, 1), 0);
  EXPECT_EQ(size, 576);
  EXPECT_EQ(room, 64);
  EXPECT_EQ(qvpiWarpBilinearQuadGetSize({5, 5}, quad.from, {5, 5}, quad.from, qvp8u, 1, 0, &size, &room),
            qvpStatusBorder);
  QvpSizeL wide = 0;
  EXPECT_EQ(qvpiWarpBilinearQuadGetSize_L({5, 5}, quad.from, {5, 5}, quad.to, qvp64f, 1, 1, &wide, &wide),
            qvpStatusDataType);
}

TEST(WarpBilinear, CallsRefuseForeignRecordsAndBadTiles) {
  const std::vector<Map> maps = Maps();
  const Warp warp(1, ElementOf("16u"), {.taps = 2}, maps[0], 1), back(1, ElementOf("16u"), {.taps = 2}, maps[6], 1);
  test::Image<uint16_t> src(kSource.width, kSource.height, 0), dst(kTarget.width, kTarget.height, 0);
  test::Block buffer(1024);
  const auto call = [&](auto f, const Warp& w, QvpiPoint at, QvpiSize size, int step) {
    return f(src.data(), step, dst.data(), dst.step(), at, size, w.spec(), buffer.data());
  };
  const int step = src.step();
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C1R, warp, {0, 0}, {0, -1}, 1), qvpStatusNoOperation);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C1R, warp, {0, 0}, {1, -1}, 1), qvpStatusSize);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C1R, warp, {-1, 0}, {1, 1}, 1), qvpStatusStep);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C3R, warp, {0, 21}, {1, 1}, step), qvpStatusOutOfRange);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C3R, warp, {0, 0}, {1, 1}, step), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C1R, back, {0, 0}, {1, 1}, step), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpBilinearQuad_16u_C1R, warp, {0, 0}, {1, 1}, step), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C1R, back, {0, 0}, {1, 1}, step), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpBilinear_16u_C1R, warp, {80, 20}, {9, 9}, step), qvpStatusSizeWarning);
  EXPECT_EQ(qvpiWarpBilinearBack_16u_C1R_L(nullptr, 2, nullptr, 2, {0, 0}, {1, 1}, back.spec(), nullptr),
            qvpStatusContextMatch);
  EXPECT_EQ(qvpiWarpBilinearBack_16u_C1R(src.data(), step, nullptr, 2, {0, 0}, {0, 1}, back.spec(), buffer.data()),
            qvpStatusNullPointer);
}

}  // namespace
