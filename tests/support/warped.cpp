#include "tests/support/warped.h"

#include <cstring>

#include "tests/support/name.h"

namespace test {
namespace {

double ToEdge(double x, double last) {
  const double edge = std::clamp(x, 0.0, last);
  return std::fabs(x - edge) <= 1e-6 ? edge : x;
}

// The point that goes to (x, y), on the side of the corner (0, 0).
Point Solved(const double* c, double width, double height, double x, double y) {
  double a[4], b[4];
  std::copy(c, c + 4, a);
  std::copy(c + 4, c + 8, b);
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

// Coefficients of the map from the unit square.
void FromSquare(const double (*q)[2], double* c) {
  for (int i = 0; i < 2; ++i, c += 4) {
    c[0] = q[0][i] - q[1][i] + q[2][i] - q[3][i];
    c[1] = q[1][i] - q[0][i], c[2] = q[3][i] - q[0][i], c[3] = q[0][i];
  }
}

Point Bilinear(const double* c, double x, double y) {
  const auto at = [&](const double* k) { return ((k[0] * y + k[1]) * x + k[2] * y) + k[3]; };
  return {at(c), at(c + 4)};
}

// Between the corners of the destination.
Point QuadPoint(const Map& m, double x, double y) {
  double t[8], e[8];
  FromSquare(m.to, t), FromSquare(m.from, e);
  const Point s = Solved(t, 1, 1, x, y);
  if (!(s.u >= -1e-9 && s.u <= 1 + 1e-9 && s.v >= -1e-9 && s.v <= 1 + 1e-9)) return {NAN, NAN};
  return Bilinear(e, std::clamp(s.u, 0.0, 1.0), std::clamp(s.v, 0.0, 1.0));
}

const char* NameOf(int taps) { return taps == 1 ? "Nearest" : taps == 2 ? "Linear" : "Cubic"; }

}  // namespace

std::string Map::Operation(int taps) const {
  constexpr const char* kNames[] = {"WarpAffine", "WarpPerspective", "WarpBilinear", "WarpBilinearBack",
                                    "WarpBilinearQuad"};
  const char* const name = kNames[static_cast<int>(kind)];
  return IsBilinear() ? name : std::string(name) + NameOf(taps);
}

Map Forward(const double (&to)[4][2], QvpiSize src) {
  Map m{Kind::kBilinear};
  EXPECT_EQ(qvpiGetBilinearTransform({0, 0, src.width, src.height}, to, reinterpret_cast<double(*)[4]>(m.c)), 0);
  return m;
}
Map Quad(const double (&from)[4][2], const double (&to)[4][2]) {
  Map m{Kind::kBilinearQuad};
  std::memcpy(m.from, from, sizeof(m.from));
  std::memcpy(m.to, to, sizeof(m.to));
  return m;
}

Point PointOf(const Map& m, QvpiSize src, double x, double y) {
  if (m.kind == Kind::kBilinearBack) return Bilinear(m.c, x, y);
  if (!m.IsBilinear()) {
    const double w = m.kind == Kind::kPerspective ? m.c[6] * x + m.c[7] * y + m.c[8] : 1;
    return {(m.c[0] * x + m.c[1] * y + m.c[2]) / w, (m.c[3] * x + m.c[4] * y + m.c[5]) / w};
  }
  const Point p = m.kind == Kind::kBilinear ? Solved(m.c, src.width - 1, src.height - 1, x, y) : QuadPoint(m, x, y);
  return {ToEdge(p.u, src.width - 1), ToEdge(p.v, src.height - 1)};
}

QvpStatus InitWarp(const Map& m, const Rule& rule, QvpDataType type, int channels, int border, QvpiSize src,
                   QvpiSize dst, int smooth, bool isWide, void* spec) {
  const Block buffer(64);
  const std::string kind = m.kind == Kind::kBilinearBack ? "WarpBilinear" : m.IsBilinear() ? m.Operation(0) : "";
  const std::string operation = (m.IsBilinear() ? kind + NameOf(rule.taps) : m.Operation(rule.taps)) + "Init";
  return CallNamed("qvpi" + operation + (isWide ? "_L" : ""),
                   {{"srcSize", src},
                    {"dstSize", dst},
                    {"srcQuad", {m.from}},
                    {"dstQuad", {m.to}},
                    {"dataType", type},
                    {"coeffs", {m.c}},
                    {"direction", m.kind == Kind::kBilinear ? +qvpWarpForward : m.direction},
                    {"numChannels", channels},
                    {"valueB", rule.b},
                    {"valueC", rule.c},
                    {"borderType", border},
                    {"pBorderValue", {rule.constant}},
                    {"smoothEdge", smooth},
                    {"pSpec", {spec}},
                    {"pInitBuf", {buffer.data()}}});
}

ImageWarp::ImageWarp(const Map& map, const Element& element, int channels, const Rule& rule, int border, QvpiSize src,
                     QvpiSize dst, int smooth, bool isWide)
    : function_(FunctionNamed("qvpi" + map.Operation(rule.taps) + "_" + std::string(element.name) + "_C" +
                              std::to_string(channels) + (isWide ? "R_L" : "R"))),
      size_(dst),
      record_(576) {
  EXPECT_EQ(InitWarp(map, rule, element.code, channels, border, src, dst, smooth, isWide, spec()), 0);
  int bytes = 0;
  QvpSizeL wide = 0;
  EXPECT_EQ(isWide ? qvpiWarpGetBufferSize_L(spec(), {dst.width, dst.height}, &wide)
                   : qvpiWarpGetBufferSize(spec(), dst, &bytes),
            0);
  buffer_ = std::make_unique<Block>(isWide ? wide : bytes);
}

}  // namespace test
