// Warps and remap of qvpi_geometry.h: the picture turned, tilted and seen through a lens, and what borders look like.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr Qvp64f kDark[3] = {24, 32, 48};
constexpr int kChannels = 3;

struct Matrix {
  double c[2][3];
};

// About the centre, counter-clockwise.
Matrix Rotation(QvpiSize size, double degrees) {
  Matrix m;
  double x = 0, y = 0;
  Require(qvpiGetRotateShift((size.width - 1) / 2.0, (size.height - 1) / 2.0, degrees, &x, &y));
  Require(qvpiGetRotateTransform(degrees, x, y, m.c));
  return m;
}

// A record and its buffers, of the sizes that the library asks for.
class Warper {
 public:
  explicit Warper(QvpiSize size) : Warper(size, size) {}
  Warper(QvpiSize from, QvpiSize to) : size_(to) {
    int record = 0, initBuffer = 0;
    const Matrix m = Rotation(from, 10);
    Require(qvpiWarpAffineGetSize(from, to, qvp8u, m.c, qvpInterpolationCubic, qvpWarpForward, qvpBorderReplicate,
                                  &record, &initBuffer));
    record_.resize(record);
    buffer_.resize(initBuffer);
  }

  QvpiWarpSpec* spec() { return reinterpret_cast<QvpiWarpSpec*>(record_.data()); }
  Qvp8u* initBuffer() { return buffer_.data(); }
  Qvp8u* buffer() {
    int bytes = 0;
    Require(qvpiWarpGetBufferSize(spec(), size_, &bytes));
    buffer_.resize(bytes);
    return buffer_.data();
  }

 private:
  QvpiSize size_;
  std::vector<Qvp8u> record_, buffer_;
};

// What stays where nothing is written.
Rgb Chequered(QvpiSize size) {
  Rgb image(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int c = 0; c < kChannels; ++c) image.At(x, y)[c] = (x / 16 + y / 16) % 2 ? 176 : 208;
    }
  }
  return image;
}

void Turn(Demo& demo, const std::string& caption, QvpiBorderType border, int isSmooth) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Warper warper(size);
  Require(qvpiWarpAffineLinearInit(size, size, qvp8u, Rotation(size, 10).c, qvpWarpForward, kChannels, border, kDark,
                                   isSmooth, warper.spec()));
  Rgb result = Chequered(size);
  demo.Time(size, 3,
            CALL(qvpiWarpAffineLinear_8u_C3R, photo.data(), photo.step(), result.data(), result.step(), {0, 0}, size,
                 warper.spec(), warper.buffer()));
  if (isSmooth) {  // repeated calls have blended the edge more than once
    result = Chequered(size);
    Require(qvpiWarpAffineLinear_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), {0, 0}, size,
                                        warper.spec(), warper.buffer()));
  }
  demo.Show(caption, result);
}

// The whole picture on a canvas that holds it, and what of that has its pixels only.
void TurnWhole(Demo& demo) {
  const Rgb& photo = demo.photo();
  QvpiSize size;
  QvpiRect inside;
  Matrix m;
  double x = 0, y = 0;
  Require(qvpiGetRotateFit(photo.size(), 10, &size, &x, &y));
  Require(qvpiGetRotateInside(photo.size(), 10, &inside));
  Require(qvpiGetRotateTransform(10, x, y, m.c));
  Warper warper(photo.size(), size);
  Require(qvpiWarpAffineLinearInit(photo.size(), size, qvp8u, m.c, qvpWarpForward, kChannels, qvpBorderConst, kDark, 0,
                                   warper.spec()));
  Rgb canvas(size), part({inside.width, inside.height});
  demo.Time(size, 3,
            CALL(qvpiWarpAffineLinear_8u_C3R, photo.data(), photo.step(), canvas.data(), canvas.step(), {0, 0}, size,
                 warper.spec(), warper.buffer()));
  demo.Show("The whole, turned by 10 degrees", canvas);
  Require(qvpiCopy_8u_C3R(canvas.At(inside.x, inside.y), canvas.step(), part.data(), part.step(), part.size()));
  demo.Show("Cropped to what is inside", part);
}

// The picture as a poster on a wall that one looks along.
void Tilt(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const double w = size.width - 1, h = size.height - 1;
  const double from[4][2] = {{0, 0}, {w, 0}, {w, h}, {0, h}};
  const double to[4][2] = {{0.05 * w, 0.05 * h}, {0.9 * w, 0.3 * h}, {0.9 * w, 0.7 * h}, {0.05 * w, 0.95 * h}};
  Warper warper(size);
  Require(qvpiWarpQuadCubicInit(size, from, size, to, qvp8u, kChannels, 0, 0.5, qvpBorderConst, kDark, 0, warper.spec(),
                                warper.initBuffer()));
  Rgb result(size);
  demo.Time(size, 3,
            CALL(qvpiWarpPerspectiveCubic_8u_C3R, photo.data(), photo.step(), result.data(), result.step(), {0, 0},
                 size, warper.spec(), warper.buffer()));
  demo.Show("A quadrangle in perspective", result);
}

using Corners = double[4][2];

// The way a bilinear map takes the corners, or back.
void Keystone(Demo& demo, const std::string& caption, const Rgb& from, const Corners& to, QvpiWarpDirection direction,
              Rgb& result) {
  const QvpiSize size = from.size();
  double coeffs[2][4];
  Require(qvpiGetBilinearTransform({0, 0, size.width, size.height}, to, coeffs));
  Warper warper(size);
  Require(qvpiWarpBilinearLinearInit(size, size, qvp8u, coeffs, direction, kChannels, qvpBorderConst, kDark, 0,
                                     warper.spec()));
  const auto warp = [&](auto function) {
    return [&, function] {
      return function(from.data(), from.step(), result.data(), result.step(), {0, 0}, size, warper.spec(),
                      warper.buffer());
    };
  };
  if (direction == qvpWarpForward) {
    demo.Time(size, 3, "qvpiWarpBilinear_8u_C3R", warp(qvpiWarpBilinear_8u_C3R));
  } else {
    demo.Time(size, 3, "qvpiWarpBilinearBack_8u_C3R", warp(qvpiWarpBilinearBack_8u_C3R));
  }
  demo.Show(caption, result);
}

// What a projector above the screen makes of the picture, and the picture again.
void KeystoneAndBack(Demo& demo) {
  const QvpiSize size = demo.photo().size();
  const double w = size.width - 1, h = size.height - 1;
  const Corners to = {{0.15 * w, 0}, {0.85 * w, 0}, {w, h}, {0, h}};
  Rgb keystone(size), back(size);
  Keystone(demo, "Bilinear: keystone", demo.photo(), to, qvpWarpForward, keystone);
  Keystone(demo, "The keystone undone", keystone, to, qvpWarpBackward, back);
}

// Lays a quadrangle of the picture into another one of the result.
QvpStatus Lay(const Rgb& photo, const Corners& from, const Corners& to, Warper& warper, Rgb& result) {
  const QvpiSize size = photo.size();
  Require(qvpiWarpBilinearQuadLinearInit(size, from, size, to, qvp8u, kChannels, qvpBorderReplicate, nullptr, 0,
                                         warper.spec()));
  return qvpiWarpBilinearQuad_8u_C3R(photo.data(), photo.step(), result.data(), result.step(), {0, 0}, size,
                                     warper.spec(), warper.buffer());
}

// Only the quadrangle is written.
void Poster(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const double w = size.width - 1, h = size.height - 1;
  const Corners from = {{0, 0}, {w, 0}, {w, h}, {0, h}};
  const Corners to = {{0.3 * w, 0.05 * h}, {0.95 * w, 0.25 * h}, {0.75 * w, 0.95 * h}, {0.1 * w, 0.7 * h}};
  Warper warper(size);
  Rgb result = Chequered(size);
  demo.Time(size, 3, "qvpiWarpBilinearQuad_8u_C3R", [&] { return Lay(photo, from, to, warper, result); });
  demo.Show("Bilinear: a tilted poster", result);
}

// A mesh of 8 by 8 cells whose corners wave.
void Mesh(Demo& demo) {
  constexpr int kCells = 8;
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const double w = size.width - 1, h = size.height - 1;
  const auto place = [&](int i, int j, double strength, double(&corner)[2]) {
    corner[0] = w * i / kCells + strength * w * std::sin(j * 1.2) * (i % kCells != 0);
    corner[1] = h * j / kCells + strength * h * std::sin(i * 1.2) * (j % kCells != 0);
  };
  const auto cell = [&](int i, int j, double strength, Corners& corners) {
    for (int k = 0; k < 4; ++k) place(i + (k == 1 || k == 2), j + (k >= 2), strength, corners[k]);
  };
  Warper warper(size);
  Rgb result = Chequered(size);
  demo.Time(size, 3, "qvpiWarpBilinearQuad_8u_C3R", [&] {
    QvpStatus status = qvpStatusNoError;
    for (int k = 0; status == qvpStatusNoError && k < kCells * kCells; ++k) {
      Corners from, to;
      cell(k % kCells, k / kCells, 0, from);
      cell(k % kCells, k / kCells, 0.03, to);
      status = Lay(photo, from, to, warper, result);
    }
    return status;
  });
  demo.Show("A waving mesh of 8x8 quadrangles", result);
}

// A lens that magnifies its middle: what is seen at distance r from it lies at r (1 - k (1 - r^2)).
void Lens(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const float cx = 0.5f * static_cast<float>(size.width - 1), cy = 0.5f * static_cast<float>(size.height - 1);
  const float radius = std::min(cx, cy), strength = 0.6f;
  std::vector<Qvp32f> xMap(size_t{1} * size.width * size.height), yMap(xMap.size());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const float dx = static_cast<float>(x) - cx, dy = static_cast<float>(y) - cy;
      const float r2 = (dx * dx + dy * dy) / (radius * radius);
      const float scale = r2 < 1 ? 1 - strength * (1 - r2) : 1;
      xMap[size_t{1} * y * size.width + x] = cx + dx * scale;
      yMap[size_t{1} * y * size.width + x] = cy + dy * scale;
    }
  }
  Rgb result(size);
  const int mapStep = size.width * static_cast<int>(sizeof(Qvp32f));
  demo.Time(size, 3,
            CALL(qvpiRemap_8u_C3R, photo.data(), size, photo.step(), {0, 0, size.width, size.height}, xMap.data(),
                 mapStep, yMap.data(), mapStep, result.data(), result.step(), size, qvpInterpolationLanczos));
  demo.Show("A lens, Lanczos", result);
}

}  // namespace

void WarpSteps(Demo& demo) {
  if (demo.photo().size().width < 6 || demo.photo().size().height < 6) return;  // too small for every method
  Turn(demo, "Turned by 10 degrees: replicated", qvpBorderReplicate, 0);
  Turn(demo, "Turned: constant", qvpBorderConst, 0);
  Turn(demo, "Turned: transparent", qvpBorderTransparent, 0);
  Turn(demo, "Turned: smooth edge", qvpBorderTransparent, 1);
  TurnWhole(demo);
  Tilt(demo);
  KeystoneAndBack(demo);
  Poster(demo);
  Mesh(demo);
  Lens(demo);
}

}  // namespace demo
