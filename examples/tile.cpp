#include "examples/tile.h"

#include <algorithm>
#include <vector>

namespace demo {
namespace {

QvpiSize FittedSize(QvpiSize size) {
  const double scale = double{kTileSide} / std::max(size.width, size.height);
  const auto scaled = [=](int side) { return std::max(1, static_cast<int>(side * scale + 0.5)); };
  return {scaled(size.width), scaled(size.height)};
}

// Averages over areas where pixels become fewer; what becomes larger shows its pixels.
constexpr QvpiInterpolationType MethodFor(QvpiSize from, QvpiSize to) {
  return to.width <= from.width && to.height <= from.height ? qvpInterpolationSuper : qvpInterpolationNearest;
}

QvpStatus Init(QvpiInterpolationType method, QvpiSize from, QvpiSize to, QvpiResizeSpec* spec) {
  const auto init = method == qvpInterpolationSuper ? qvpiResizeSuperInit_8u : qvpiResizeNearestInit_8u;
  return init(from, to, spec);
}

// The layout's functions, for averages and for the nearest pixel.
template <class AnyImage>
auto ResizeBy(QvpiInterpolationType method) {
  const bool isSuper = method == qvpInterpolationSuper;
  if constexpr (AnyImage::kPixelBytes == 1) return isSuper ? qvpiResizeSuper_8u_C1R : qvpiResizeNearest_8u_C1R;
  if constexpr (AnyImage::kPixelBytes == 3) return isSuper ? qvpiResizeSuper_8u_C3R : qvpiResizeNearest_8u_C3R;
  if constexpr (AnyImage::kPixelBytes == 4) return isSuper ? qvpiResizeSuper_8u_C4R : qvpiResizeNearest_8u_C4R;
}

template <class AnyImage>
AnyImage Fitted(const AnyImage& image) {
  AnyImage fitted(FittedSize(image.size()));
  const QvpiSize from = image.size(), to = fitted.size();
  const QvpiInterpolationType method = MethodFor(from, to);
  int recordSize = 0, initSize = 0, bufferSize = 0;
  Require(qvpiResizeGetSize_8u(from, to, method, 0, &recordSize, &initSize));
  std::vector<Qvp8u> record(recordSize);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(record.data());
  Require(Init(method, from, to, spec));
  Require(qvpiResizeGetBufferSize_8u(spec, to, AnyImage::kPixelBytes, &bufferSize));
  std::vector<Qvp8u> buffer(bufferSize);
  Require(ResizeBy<AnyImage>(method)(image.data(), image.step(), fitted.data(), fitted.step(), {0, 0}, to, spec,
                                     buffer.data()));
  return fitted;
}

Rgb Checkerboard(QvpiSize size) {
  constexpr int kSquare = 8;
  constexpr Qvp8u kLight[3] = {255, 255, 255}, kDark[3] = {190, 190, 190};
  Rgb board(size);
  Require(qvpiSet_8u_C3R(kLight, board.data(), board.step(), size));
  for (int y = 0; y < size.height; y += kSquare) {
    for (int x = y / kSquare % 2 * kSquare; x < size.width; x += 2 * kSquare) {
      const QvpiSize square{std::min(kSquare, size.width - x), std::min(kSquare, size.height - y)};
      Require(qvpiSet_8u_C3R(kDark, board.At(x, y), board.step(), square));
    }
  }
  return board;
}

// To be replaced by the library's own alpha composition, as soon as there is one.
void BlendOver(const Rgba& image, Rgb& background) {
  for (int y = 0; y < image.size().height; ++y) {
    for (int x = 0; x < image.size().width; ++x) {
      const Qvp8u* from = image.At(x, y);
      Qvp8u* to = background.At(x, y);
      for (int c = 0; c < 3; ++c) to[c] = static_cast<Qvp8u>((from[c] * from[3] + to[c] * (255 - from[3]) + 127) / 255);
    }
  }
}

}  // namespace

Rgb Tile(const Grey& image) {
  const Grey fitted = Fitted(image);
  Rgb tile(fitted.size());
  Require(qvpiDup_8u_C1C3R(fitted.data(), fitted.step(), tile.data(), tile.step(), tile.size()));
  return tile;
}

Rgb Tile(const Rgb& image) { return Fitted(image); }

Rgb Tile(const Rgba& image) {
  const Rgba fitted = Fitted(image);
  Rgb tile = Checkerboard(fitted.size());
  BlendOver(fitted, tile);
  return tile;
}

}  // namespace demo
