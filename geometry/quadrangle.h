// Quadrangles and the transforms between them.
#pragma once

#include <cstring>

#include "qvptypes.h"

namespace qvp::warp {

struct Vertex {
  double x, y;
};

// Four corners, clockwise from the top left one.
struct Quadrangle {
  Vertex at[4];

  Quadrangle() = default;
  explicit Quadrangle(const double (*corners)[2]) {
    for (int i = 0; i < 4; ++i) at[i] = {corners[i][0], corners[i][1]};
  }
  // The centres of the corner pixels.
  Quadrangle(double left, double top, double right, double bottom)
      : at{{left, top}, {right, top}, {right, bottom}, {left, bottom}} {}

  void CopyTo(double (*corners)[2]) const {
    for (int i = 0; i < 4; ++i) corners[i][0] = at[i].x, corners[i][1] = at[i].y;
  }
};

enum class Shape { kConvex, kNotConvex, kDegenerate };

// By the cross products of edges that follow each other, relative to their lengths. What is no number is degenerate.
Shape ShapeOf(const Quadrangle& quad);

// How many corners have edges whose cross product is not above 1e-10 of these edges' lengths.
int FlatCornersOf(const Quadrangle& quad);

// Whether a convex quadrangle goes around the other way than its name of corners tells.
bool IsTurnedOver(const Quadrangle& quad);

// A bilinear map of the plane, linear along rows and along columns: c0 x y + c1 x + c2 y + c3.
struct BilinearMap {
  double c[2][4];

  BilinearMap() = default;
  explicit BilinearMap(const double (*coeffs)[4]) { std::memcpy(c, coeffs, sizeof(c)); }

  Vertex operator()(Vertex p) const {
    const double xy = p.x * p.y;
    return {c[0][0] * xy + c[0][1] * p.x + c[0][2] * p.y + c[0][3],
            c[1][0] * xy + c[1][1] * p.x + c[1][2] * p.y + c[1][3]};
  }
  Quadrangle operator()(const Quadrangle& quad) const;
  bool IsFinite() const;
};

// The map of the square (0, 0), (1, 0), (1, 1), (0, 1) to a quadrangle.
BilinearMap BilinearTo(const Quadrangle& quad);

// A 3x3 matrix for points in homogeneous coordinates.
struct Projection {
  double c[3][3];

  Vertex operator()(Vertex p) const {
    const double w = c[2][0] * p.x + c[2][1] * p.y + c[2][2];
    return {(c[0][0] * p.x + c[0][1] * p.y + c[0][2]) / w, (c[1][0] * p.x + c[1][1] * p.y + c[1][2]) / w};
  }
  bool IsFinite() const;
  bool IsSingular() const;
  Projection Inverse() const;  // up to a factor
  Projection Times(const Projection& other) const;
  void Normalize();  // c22 becomes 1, where it is not 0
  void Scale();      // the largest coefficient is about 1, by a power of two: the map stays as it is
};

// The projection of the square (0, 0), (1, 0), (1, 1), (0, 1) to a convex quadrangle.
Projection SquareTo(const Quadrangle& quad);

// The projection that takes the corners of one convex quadrangle to those of another.
Projection Between(const Quadrangle& from, const Quadrangle& to);

}  // namespace qvp::warp
