// Warps by the formulas in double precision: where pixels come from, and values of an image between its pixels.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "tests/support/exports.h"
#include "tests/support/reference.h"
#include "tests/support/same.h"

namespace test {

struct Point {
  double u, v;
};

enum class Kind { kAffine, kPerspective, kBilinear, kBilinearBack, kBilinearQuad };

// Coefficients, row after row, or the corners of source and destination.
struct Map {
  Kind kind;
  double c[9] = {};
  double from[4][2] = {}, to[4][2] = {};
  int direction = qvpWarpBackward;

  bool IsBilinear() const { return kind >= Kind::kBilinear; }
  // As in names of functions, for as many taps.
  std::string Operation(int taps) const;
};

// The sizes of most images that tests warp.
constexpr QvpiSize kWarpSource{23, 17}, kWarpTarget{83, 21};

// The bilinear map by where the source's corners go, and one by corners on both sides.
Map Forward(const double (&to)[4][2], QvpiSize src = kWarpSource);
Map Quad(const double (&from)[4][2], const double (&to)[4][2]);

// Where the pixel at (x, y) comes from; not a number where nothing is written, or beyond the fold.
Point PointOf(const Map& map, QvpiSize src, double x, double y);

// What is known about a point's surroundings.
struct Rule {
  int taps = 1;
  double b = 0, c = 0.5;
  bool isConstant = false;
  double constant[4] = {7, 80, 200, 33};
};

inline double Weight(const Rule& rule, double t) {
  if (rule.taps == 2) return std::max(0.0, 1 - std::fabs(t));
  return rule.taps == 6 ? LanczosWeight(t, 3) : CubicWeight(t, rule.b, rule.c);
}

inline double PixelAt(const Samples& src, QvpiSize size, const Rule& rule, int channels, long x, long y, int c) {
  const int kind = rule.isConstant ? qvpBorderConst : qvpBorderReplicate;
  const int column = BorderPosition(kind, static_cast<int>(x), 0, size.width - 1);
  const int row = BorderPosition(kind, static_cast<int>(y), 0, size.height - 1);
  if (column == kConstant || row == kConstant) return rule.constant[c];
  return static_cast<double>(src(column * channels + c, row));
}

// What the pixels along an axis count for a point.
struct AxisWeights {
  int first;
  double weights[6], sum = 0;

  AxisWeights(const Rule& rule, double at) {
    const double x = std::clamp(at, -999.0, 999.0), whole = std::floor(x);
    first = static_cast<int>(whole) - (rule.taps - 1) / 2 + (rule.taps == 1 && x - whole >= 0.5);
    for (int i = 0; i < rule.taps; ++i) sum += weights[i] = rule.taps == 1 ? 1 : Weight(rule, x - (first + i));
  }
};

inline double ValueAt(const Samples& src, QvpiSize size, const Rule& rule, int channels, Point p, int c) {
  const AxisWeights x(rule, p.u), y(rule, p.v);
  double sum = 0;
  for (int j = 0; j < rule.taps; ++j) {
    for (int i = 0; i < rule.taps; ++i) {
      sum += x.weights[i] * y.weights[j] * PixelAt(src, size, rule, channels, x.first + i, y.first + j, c);
    }
  }
  return rule.taps == 6 ? sum / (x.sum * y.sum) : sum;
}

// A warp as a record in memory of its size, at the end of a page.
class ImageWarp {
 public:
  ImageWarp(const Map& map, const Element& element, int channels, const Rule& rule, int border, QvpiSize src,
            QvpiSize dst, int smooth = 0, bool isWide = false);

  QvpiWarpSpec* spec() const { return reinterpret_cast<QvpiWarpSpec*>(record_.data()); }
  const Export& function() const { return function_; }
  // To an image that begins with the tile.
  QvpStatus operator()(const Argument& src, const Argument& dst, QvpiRect tile) const {
    return function_({{"pSrc", src},
                      {"pDst", dst},
                      {"dstRoiOffset", QvpiPoint{tile.x, tile.y}},
                      {"dstRoiSize", QvpiSize{tile.width, tile.height}},
                      {"pSpec", {spec()}},
                      {"pBuffer", {buffer_->data()}}});
  }
  void Whole(const Argument& src, const Argument& dst) const {
    ASSERT_EQ((*this)(src, dst, {0, 0, size_.width, size_.height}), 0) << function_.name;
  }

 private:
  const Export& function_;
  QvpiSize size_;
  Block record_;
  std::unique_ptr<Block> buffer_;
};

// Makes a record of a warp by a method.
QvpStatus InitWarp(const Map& map, const Rule& rule, QvpDataType type, int channels, int border, QvpiSize src,
                   QvpiSize dst, int smooth, bool isWide, void* spec);

// How near results are to the formulas.
constexpr struct {
  std::string_view type;
  double tolerance;
} kTypes[] = {{"8u", 1}, {"16u", 1}, {"16s", 1}, {"32f", 2e-3}, {"64f", 1e-9}};

// An image of random numbers.
inline Samples Numbers(const Element& element, int samples, int height, int gap) {
  Samples image(element, samples, height, gap * element.bytes);
  Random random(5);
  if (!element.isInteger) image.Fill([&](int, int) { return random.Next() % 10000 / 16.0L; });
  return image;
}

// What a value becomes in an image, as a double.
inline double Stored(const Element& element, double value) { return static_cast<double>(Converted(element, value)); }

inline bool IsIn(Point p, QvpiSize s) { return p.u >= 0 && p.v >= 0 && p.u <= s.width - 1 && p.v <= s.height - 1; }

}  // namespace test
