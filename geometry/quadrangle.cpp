// Quadrangles and the transforms between them.
#include "geometry/quadrangle.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace qvp::warp {
namespace {

constexpr double kRelative = 1e-10;

double SquareRoot(double x) { return __builtin_sqrt(x < 0 ? 0 : x); }
double Length(Vertex e) { return SquareRoot(e.x * e.x + e.y * e.y); }
Vertex Edge(const Quadrangle& q, int i) {
  const Vertex a = q.at[i], b = q.at[(i + 1) % 4];
  return {b.x - a.x, b.y - a.y};
}

// Of the edges that meet at the corner behind the i-th: below 0 where they turn left, 0 where that cannot be told.
double CrossBehind(const Quadrangle& quad, int i) {
  const Vertex a = Edge(quad, i), b = Edge(quad, (i + 1) % 4);
  const double cross = a.x * b.y - a.y * b.x;
  return std::fabs(cross) > kRelative * Length(a) * Length(b) && std::isfinite(cross) ? cross : 0;
}

}  // namespace

int FlatCornersOf(const Quadrangle& quad) {
  int flat = 0;
  for (int i = 0; i < 4; ++i) flat += CrossBehind(quad, i) == 0;
  return flat;
}

Shape ShapeOf(const Quadrangle& quad) {
  if (FlatCornersOf(quad) > 0) return Shape::kDegenerate;
  int left = 0;
  for (int i = 0; i < 4; ++i) left += CrossBehind(quad, i) < 0;
  return left == 0 || left == 4 ? Shape::kConvex : Shape::kNotConvex;
}

bool IsTurnedOver(const Quadrangle& quad) { return CrossBehind(quad, 0) < 0; }

Quadrangle BilinearMap::operator()(const Quadrangle& quad) const {
  Quadrangle mapped;
  for (int i = 0; i < 4; ++i) mapped.at[i] = (*this)(quad.at[i]);
  return mapped;
}

bool BilinearMap::IsFinite() const {
  return std::all_of(&c[0][0], &c[0][0] + 8, [](double x) { return std::isfinite(x); });
}

BilinearMap BilinearTo(const Quadrangle& quad) {
  const auto rowOf = [&](double Vertex::*axis, double(&row)[4]) {
    const auto at = [&](int i) { return quad.at[i].*axis; };
    row[0] = at(0) - at(1) + at(2) - at(3);
    row[1] = at(1) - at(0);
    row[2] = at(3) - at(0);
    row[3] = at(0);
  };
  BilinearMap map;
  rowOf(&Vertex::x, map.c[0]);
  rowOf(&Vertex::y, map.c[1]);
  return map;
}

bool Projection::IsFinite() const {
  return std::all_of(&c[0][0], &c[0][0] + 9, [](double x) { return std::isfinite(x); });
}

// The determinant is compared with the largest of its six products: a factor of the matrix does not matter.
bool Projection::IsSingular() const {
  double sum = 0, largest = 0;
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3, k = (i + 2) % 3;
    const double plus = c[0][i] * c[1][j] * c[2][k], minus = c[0][i] * c[1][k] * c[2][j];
    sum += plus - minus;
    largest = std::max(largest, std::max(std::fabs(plus), std::fabs(minus)));
  }
  return !(std::fabs(sum) > kRelative * largest);
}

Projection Projection::Inverse() const {
  Projection inverse;
  for (int i = 0; i < 3; ++i) {
    const int i1 = (i + 1) % 3, i2 = (i + 2) % 3;
    for (int j = 0; j < 3; ++j) {
      const int j1 = (j + 1) % 3, j2 = (j + 2) % 3;
      inverse.c[j][i] = c[i1][j1] * c[i2][j2] - c[i1][j2] * c[i2][j1];
    }
  }
  return inverse;
}

Projection Projection::Times(const Projection& other) const {
  Projection product;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      product.c[i][j] = c[i][0] * other.c[0][j] + c[i][1] * other.c[1][j] + c[i][2] * other.c[2][j];
    }
  }
  return product;
}

void Projection::Normalize() {
  const double last = c[2][2];
  if (last == 0) return;
  for (auto& row : c) {
    for (double& value : row) value /= last;
  }
}

void Projection::Scale() {
  double largest = 0;
  for (const auto& row : c) {
    for (const double value : row) largest = std::max(largest, std::fabs(value));
  }
  if (!(largest > 0) || !IsFinite()) return;
  const auto scaleBy = [&](double factor) {
    largest *= factor;
    for (double& value : std::span(&c[0][0], 9)) value *= factor;
  };
  for (const double factor : {0x1p512, 0x1p256, 0x1p128, 0x1p64, 0x1p32, 0x1p16, 0x1p8, 0x1p4, 0x1p2, 0x1p1}) {
    while (largest >= factor) scaleBy(1 / factor);
    while (largest < 1 / factor) scaleBy(factor);
  }
}

// Heckbert: Fundamentals of texture mapping and image warping (1989).
Projection SquareTo(const Quadrangle& quad) {
  const Vertex a = quad.at[0], b = quad.at[1], c = quad.at[2], d = quad.at[3];
  const double sx = a.x - b.x + c.x - d.x, sy = a.y - b.y + c.y - d.y;
  const double bx = b.x - c.x, by = b.y - c.y, dx = d.x - c.x, dy = d.y - c.y;
  const double det = bx * dy - dx * by;
  const double g = (sx * dy - dx * sy) / det, h = (bx * sy - sx * by) / det;
  return {
      {{b.x - a.x + g * b.x, d.x - a.x + h * d.x, a.x}, {b.y - a.y + g * b.y, d.y - a.y + h * d.y, a.y}, {g, h, 1}}};
}

Projection Between(const Quadrangle& from, const Quadrangle& to) {
  return SquareTo(to).Times(SquareTo(from).Inverse());
}

}  // namespace qvp::warp
