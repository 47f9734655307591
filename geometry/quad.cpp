// Quadrangles, bounds and transforms.
#include "geometry/quad.h"

#include <algorithm>
#include <span>

#include "base/export.h"

namespace qvp {

namespace {

constexpr double kRelative = 1e-10;

bool IsNumber(double x) { return x - x == 0; }
double Magnitude(double x) { return x < 0 ? -x : x; }
double SquareRoot(double x) { return __builtin_sqrt(x < 0 ? 0 : x); }
double Length(Vertex e) { return SquareRoot(e.x * e.x + e.y * e.y); }
Vertex Edge(const Quad4& q, int i) {
  const Vertex a = q.at[i], b = q.at[(i + 1) % 4];
  return {b.x - a.x, b.y - a.y};
}

}  // namespace

QuadShape ShapeOf(const Quad4& quad) {
  int left = 0;
  for (int i = 0; i < 4; ++i) {
    const Vertex a = Edge(quad, i), b = Edge(quad, (i + 1) % 4);
    const double cross = a.x * b.y - a.y * b.x;
    if (!(Magnitude(cross) > kRelative * Length(a) * Length(b)) || !IsNumber(cross)) return QuadShape::kDegenerate;
    left += cross < 0;
  }
  return left == 0 || left == 4 ? QuadShape::kConvex : QuadShape::kNotConvex;
}

bool Projection::IsFinite() const { return std::all_of(&c[0][0], &c[0][0] + 9, IsNumber); }

// The determinant is compared with the largest of its six products: a factor of the matrix does not matter.
bool Projection::IsSingular() const {
  double sum = 0, largest = 0;
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3, k = (i + 2) % 3;
    const double plus = c[0][i] * c[1][j] * c[2][k], minus = c[0][i] * c[1][k] * c[2][j];
    sum += plus - minus;
    largest = std::max(largest, std::max(Magnitude(plus), Magnitude(minus)));
  }
  return !(Magnitude(sum) > kRelative * largest);
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
    for (const double value : row) largest = std::max(largest, Magnitude(value));
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
Projection SquareTo(const Quad4& quad) {
  const Vertex a = quad.at[0], b = quad.at[1], c = quad.at[2], d = quad.at[3];
  const double sx = a.x - b.x + c.x - d.x, sy = a.y - b.y + c.y - d.y;
  const double bx = b.x - c.x, by = b.y - c.y, dx = d.x - c.x, dy = d.y - c.y;
  const double det = bx * dy - dx * by;
  const double g = (sx * dy - dx * sy) / det, h = (bx * sy - sx * by) / det;
  return {
      {{b.x - a.x + g * b.x, d.x - a.x + h * d.x, a.x}, {b.y - a.y + g * b.y, d.y - a.y + h * d.y, a.y}, {g, h, 1}}};
}

Projection Between(const Quad4& from, const Quad4& to) { return SquareTo(to).Times(SquareTo(from).Inverse()); }

namespace {

struct Affine {
  const double (*c)[3];
  Vertex operator()(Vertex p) const {
    return {c[0][0] * p.x + c[0][1] * p.y + c[0][2], c[1][0] * p.x + c[1][1] * p.y + c[1][2]};
  }
};
struct Perspective {
  const double (*c)[3];
  Vertex operator()(Vertex p) const {
    const double w = c[2][0] * p.x + c[2][1] * p.y + c[2][2];
    return {(c[0][0] * p.x + c[0][1] * p.y + c[0][2]) / w, (c[1][0] * p.x + c[1][1] * p.y + c[1][2]) / w};
  }
};
struct Bilinear {
  const double (*c)[4];
  Vertex operator()(Vertex p) const {
    const double xy = p.x * p.y;
    return {c[0][0] * xy + c[0][1] * p.x + c[0][2] * p.y + c[0][3],
            c[1][0] * xy + c[1][1] * p.x + c[1][2] * p.y + c[1][3]};
  }
};

Quad4 CornersOf(QvpiRect r) {
  const double left = r.x, top = r.y;
  return {left, top, left + r.width - 1, top + r.height - 1};
}

template <class Map>
QvpStatus MapCorners(QvpiRect roi, const Map& map, Quad4& quad) {
  if (map.c == nullptr) return qvpStatusNullPointer;
  if (roi.x < 0 || roi.y < 0 || roi.width < 1 || roi.height < 1) return qvpStatusSize;
  quad = CornersOf(roi);
  for (Vertex& p : quad.at) p = map(p);
  const QuadShape shape = ShapeOf(quad);
  if (shape == QuadShape::kDegenerate) return qvpStatusCoefficient;
  return shape == QuadShape::kConvex ? qvpStatusNoError : qvpStatusQuad;
}

// A degenerate result is told, and yet written.
bool IsWritten(QvpStatus status) { return status == qvpStatusNoError || status == qvpStatusCoefficient; }

template <class Map>
QvpStatus GetQuad(QvpiRect roi, double (*corners)[2], const Map& map) {
  if (corners == nullptr) return qvpStatusNullPointer;
  Quad4 quad;
  const QvpStatus status = MapCorners(roi, map, quad);
  if (IsWritten(status)) quad.CopyTo(corners);
  return status;
}

template <class Map>
QvpStatus GetBound(QvpiRect roi, double (*bound)[2], const Map& map) {
  if (bound == nullptr) return qvpStatusNullPointer;
  Quad4 quad;
  const QvpStatus status = MapCorners(roi, map, quad);
  if (!IsWritten(status)) return status;
  Vertex low = quad.at[0], high = quad.at[0];
  for (const Vertex& p : quad.at) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  bound[0][0] = low.x, bound[0][1] = low.y, bound[1][0] = high.x, bound[1][1] = high.y;
  return status;
}

// A rectangle of one pixel across or down has no two corners on that axis to tell a scale from.
QvpStatus CheckTransform(QvpiRect roi, const double (*quad)[2], const void* coeffs) {
  if (quad == nullptr || coeffs == nullptr) return qvpStatusNullPointer;
  if (roi.width < 1 || roi.height < 1) return qvpStatusRect;
  return roi.width == 1 || roi.height == 1 ? qvpStatusCoefficient : qvpStatusNoError;
}

QvpStatus GetAffineTransform(QvpiRect roi, const double (*corners)[2], double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckTransform(roi, corners, coeffs)) return failed;
  Quad4 quad(corners);  // the corner opposite to the first one follows from the others
  quad.at[2] = {quad.at[1].x + quad.at[3].x - quad.at[0].x, quad.at[1].y + quad.at[3].y - quad.at[0].y};
  if (ShapeOf(quad) == QuadShape::kDegenerate) return qvpStatusCoefficient;
  const Vertex origin = quad.at[0];
  const double width = roi.width - 1.0, height = roi.height - 1.0;
  const double across[] = {(quad.at[1].x - origin.x) / width, (quad.at[1].y - origin.y) / width};
  const double down[] = {(quad.at[3].x - origin.x) / height, (quad.at[3].y - origin.y) / height};
  const double from[] = {origin.x, origin.y};
  for (int i = 0; i < 2; ++i) {
    coeffs[i][0] = across[i];
    coeffs[i][1] = down[i];
    coeffs[i][2] = from[i] - across[i] * roi.x - down[i] * roi.y;
  }
  return qvpStatusNoError;
}

QvpStatus GetPerspectiveTransform(QvpiRect roi, const double (*corners)[2], double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckTransform(roi, corners, coeffs)) return failed;
  const Quad4 quad(corners);
  if (ShapeOf(quad) != QuadShape::kConvex) return qvpStatusQuad;
  Projection projection = Between(CornersOf(roi), quad);
  projection.Normalize();
  for (int i = 0; i < 3; ++i) std::copy(projection.c[i], projection.c[i] + 3, coeffs[i]);
  return qvpStatusNoError;
}

QvpStatus GetBilinearTransform(QvpiRect roi, const double (*q)[2], double (*coeffs)[4]) {
  if (const QvpStatus failed = CheckTransform(roi, q, coeffs)) return failed;
  if (ShapeOf(Quad4(q)) != QuadShape::kConvex) return qvpStatusQuad;
  const double width = roi.width - 1.0, height = roi.height - 1.0, x = roi.x, y = roi.y;
  double c[2][4];
  for (int i = 0; i < 2; ++i) {
    const double twist = (q[0][i] - q[1][i] + q[2][i] - q[3][i]) / (width * height);
    const double across = (q[1][i] - q[0][i]) / width, down = (q[3][i] - q[0][i]) / height;
    c[i][0] = twist;
    c[i][1] = across - twist * y;
    c[i][2] = down - twist * x;
    c[i][3] = q[0][i] - across * x - down * y + twist * x * y;
  }
  for (int i = 0; i < 2; ++i) std::copy(c[i], c[i] + 4, coeffs[i]);
  return qvpStatusNoError;
}

struct Turn {
  double cosine, sine;
};

// The remainder of a non-negative number, exact: only multiples of the modulus times powers of two are subtracted.
double Remainder(double x, double modulus) {
  double m = modulus;
  while (m <= x / 2) m *= 2;
  for (; m >= modulus; m /= 2) x = x >= m ? x - m : x;
  return x;
}

// By the power series on half a right angle. Whole right angles are exact.
Turn SmallTurn(double degrees) {
  const double x = degrees * (3.14159265358979323846 / 180), square = x * x;
  double sine = 0, cosine = 0;
  for (int k = 20; k > 0; k -= 2) {
    cosine = (1 - cosine) * square / (k * (k - 1));
    sine = (1 - sine) * square / (k * (k + 1));
  }
  return {1 - cosine, x * (1 - sine)};
}
Turn TurnBy(double degrees) {
  const double angle = Remainder(Magnitude(degrees), 360);
  const int quarter = (static_cast<int>(angle / 45) + 1) / 2;  // the nearest one
  const Turn t = SmallTurn(angle - 90.0 * quarter);
  const double cosines[] = {t.cosine, -t.sine, -t.cosine, t.sine};
  const double sine = cosines[(quarter + 3) % 4];
  return {cosines[quarter % 4], degrees < 0 ? -sine : sine};
}

QvpStatus GetRotateShift(double x, double y, double angle, double* shiftX, double* shiftY) {
  if (shiftX == nullptr || shiftY == nullptr) return qvpStatusNullPointer;
  if (!IsNumber(x) || !IsNumber(y) || !IsNumber(angle)) return qvpStatusCoefficient;
  const Turn turn = TurnBy(angle);
  *shiftX = (1 - turn.cosine) * x - turn.sine * y;
  *shiftY = turn.sine * x + (1 - turn.cosine) * y;
  return qvpStatusNoError;
}

QvpStatus GetRotateTransform(double angle, double shiftX, double shiftY, double (*coeffs)[3]) {
  if (coeffs == nullptr) return qvpStatusNullPointer;
  if (!IsNumber(angle) || !IsNumber(shiftX) || !IsNumber(shiftY)) return qvpStatusCoefficient;
  const Turn turn = TurnBy(angle);
  const double matrix[2][3] = {{turn.cosine, turn.sine, shiftX}, {-turn.sine, turn.cosine, shiftY}};
  for (int i = 0; i < 2; ++i) std::copy(matrix[i], matrix[i] + 3, coeffs[i]);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp

using namespace qvp;

#define QUERIES(Kind, columns, rows)                                                                           \
  QvpStatus qvpiGet##Kind##Quad(QvpiRect srcRoi, double quad[4][2], const double coeffs[rows][columns]) {      \
    return GetQuad(srcRoi, quad, Kind{coeffs});                                                                \
  }                                                                                                            \
  QvpStatus qvpiGet##Kind##Bound(QvpiRect srcRoi, double bound[2][2], const double coeffs[rows][columns]) {    \
    return GetBound(srcRoi, bound, Kind{coeffs});                                                              \
  }                                                                                                            \
  QvpStatus qvpiGet##Kind##Transform(QvpiRect srcRoi, const double quad[4][2], double coeffs[rows][columns]) { \
    return Get##Kind##Transform(srcRoi, quad, coeffs);                                                         \
  }
QUERIES(Affine, 3, 2)
QUERIES(Perspective, 3, 3)
QUERIES(Bilinear, 4, 2)

QvpStatus qvpiGetRotateShift(double xCenter, double yCenter, double angle, double* pShiftX, double* pShiftY) {
  return GetRotateShift(xCenter, yCenter, angle, pShiftX, pShiftY);
}
QvpStatus qvpiGetRotateTransform(double angle, double shiftX, double shiftY, double coeffs[2][3]) {
  return GetRotateTransform(angle, shiftX, shiftY, coeffs);
}
