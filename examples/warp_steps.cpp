// Warps and remap of qvpi_geometry.h: the picture turned, tilted and seen through a lens, and what borders look like.
#include <algorithm>
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

// A record and its buffers, of the sizes that the library asks for, for images of one size.
class Warper {
 public:
  explicit Warper(QvpiSize size) : size_(size) {
    int record = 0, initBuffer = 0;
    const Matrix m = Rotation(size, 10);
    Require(qvpiWarpAffineGetSize(size, size, qvp8u, m.c, qvpInterpolationCubic, qvpWarpForward, qvpBorderReplicate,
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
  Tilt(demo);
  Lens(demo);
}

}  // namespace demo
