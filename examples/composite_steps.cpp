// Steps of compositing and of color keys.
#include <algorithm>
#include <cmath>

#include "examples/demo.h"

namespace demo {
namespace {

// The photograph with an alpha: 255 within an ellipse of this share of the region, down to 0 along its soft edge.
Rgba Round(const Rgb& photo, double share) {
  const QvpiSize size = photo.size();
  Rgba layer(size);
  const int order[4] = {0, 1, 2, 3};
  Require(qvpiSwapChannels_8u_C3C4R(photo.data(), photo.step(), layer.data(), layer.step(), size, order, 255));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double right = (2 * x + 1.0) / size.width - 1, down = (2 * y + 1.0) / size.height - 1;
      const double inside = (share - std::hypot(right, down)) * 4;
      layer.At(x, y)[3] = static_cast<Qvp8u>(255 * std::clamp(inside, 0.0, 1.0));
    }
  }
  return layer;
}

// Opaque squares of two greys.
Rgba Checkerboard(QvpiSize size) {
  Rgba board(size);
  const int side = std::max(1, size.width / 24);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto grey = static_cast<Qvp8u>((x / side + y / side) % 2 ? 200 : 120);
      const Qvp8u pixel[4] = {grey, grey, grey, 255};
      std::copy_n(pixel, 4, board.At(x, y));
    }
  }
  return board;
}

void RoundOverCheckerboard(Demo& demo) {
  const Rgba layer = Round(demo.photo(), 1), board = Checkerboard(layer.size());
  const QvpiSize size = layer.size();
  Rgba result(size);
  demo.Time(size, 4 + 4 + 4,
            CALL(qvpiCompositeStraight_8u_AC4R, layer.data(), layer.step(), board.data(), board.step(), result.data(),
                 result.step(), size, qvpCompositeFirstOver));
  demo.Show("Round alpha over a checkerboard", result);
}

// A disc of one color, to the right, that the layer is combined with.
Rgba Disc(QvpiSize size) {
  Rgba disc(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double right = 2.0 * x / size.width - 1.35, down = (2.0 * y - size.height) / size.height;
      const Qvp8u pixel[4] = {40, 90, 200, static_cast<Qvp8u>(std::hypot(right, down) < 0.6 ? 200 : 0)};
      std::copy_n(pixel, 4, disc.At(x, y));
    }
  }
  return disc;
}

// The operators in the order of their codes, of premultiplied layers; what is left of alpha shows a checkerboard.
void TwelveOperators(Demo& demo) {
  Rgba first = Round(demo.photo(), 0.8), second = Disc(first.size());
  const QvpiSize size = first.size();
  Rgba sheet({4 * size.width, 3 * size.height});
  Require(qvpiPremultiply_8u_AC4IR(first.data(), first.step(), size));
  Require(qvpiPremultiply_8u_AC4IR(second.data(), second.step(), size));
  for (int op = qvpCompositeClear; op <= qvpCompositeXor; ++op) {
    Qvp8u* const cell = sheet.At(op % 4 * size.width, op / 4 * size.height);
    demo.Time(size, 4 + 4 + 4,
              CALL(qvpiComposite_8u_AC4R, first.data(), first.step(), second.data(), second.step(), cell, sheet.step(),
                   size, op));
  }
  Require(qvpiUnpremultiply_8u_AC4IR(sheet.data(), sheet.step(), sheet.size()));
  demo.Show("The twelve operators", sheet);
}

// Diagonal stripes at 40 % over the photograph.
void Watermark(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Rgb mark(size), result(size);
  const int period = std::max(2, size.width / 8);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      std::fill_n(mark.At(x, y), 3, static_cast<Qvp8u>((x + y) % period < period / 2 ? 255 : 0));
    }
  }
  const Qvp8u opacity = 102, opaque = 255;
  demo.Time(size, 3 + 3 + 3,
            CALL(qvpiCompositeC_8u_C3R, mark.data(), mark.step(), opacity, photo.data(), photo.step(), opaque,
                 result.data(), result.step(), size, qvpCompositeFirstOver));
  demo.Show("Watermark at 40 % opacity", result);
}

// What is as light as the backdrop becomes a sunset.
void ReplaceBackdrop(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Rgb sunset(size), result(size);
  for (int y = 0; y < size.height; ++y) {
    const auto down = static_cast<Qvp8u>(int64_t{255} * y / size.height);
    const Qvp8u color[3] = {static_cast<Qvp8u>(255 - down / 8), static_cast<Qvp8u>(90 + down / 2), 60};
    for (int x = 0; x < size.width; ++x) std::copy_n(color, 3, sunset.At(x, y));
  }
  const Qvp8u lower[3] = {165, 165, 175}, upper[3] = {236, 236, 245};
  demo.Time(size, 3 + 3 + 3,
            CALL(qvpiColorKey_8u_C3R, photo.data(), photo.step(), sunset.data(), sunset.step(), result.data(),
                 result.step(), size, lower, upper));
  demo.Show("Backdrop replaced by color key", result);
}

}  // namespace

void CompositeSteps(Demo& demo) {
  RoundOverCheckerboard(demo);
  TwelveOperators(demo);
  Watermark(demo);
  ReplaceBackdrop(demo);
}

}  // namespace demo
