// Steps of qvpi_feature.h: the histograms of oriented gradients of a picture, drawn as stars.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr int kCell = 8, kBins = 9;

// One window of as many whole blocks as the picture has, a block at each cell.
QvpiHOGConfig ConfigFor(QvpiSize size) {
  return {0, kCell, 2 * kCell, kCell, kBins, 4.0f, 0.2f, {size.width / kCell * kCell, size.height / kCell * kCell}};
}

// A line through the middle of a cell along the edge whose gradient falls into a bin. Brighter ones win.
void DrawEdge(Grey& picture, QvpiPoint cell, int bin, float vote) {
  const double gradient = (bin + 0.5) * M_PI / kBins, dx = -std::sin(gradient), dy = std::cos(gradient);
  const Qvp8u grey = static_cast<Qvp8u>(std::min(255.0f, vote * 700));
  for (double t = -kCell / 2.0 + 0.5; t < kCell / 2.0; t += 0.5) {
    Qvp8u* pixel = picture.At(cell.x * kCell + static_cast<int>(kCell / 2 + t * dx),
                              cell.y * kCell + static_cast<int>(kCell / 2 + t * dy));
    *pixel = std::max(*pixel, grey);
  }
}

// Of each block the first cell, which is the one at the block's place.
Grey Stars(const QvpiHOGConfig& config, const std::vector<Qvp32f>& descriptor) {
  Grey picture(config.winSize);
  Require(qvpiSet_8u_C1R(0, picture.data(), picture.step(), picture.size()));
  const int across = config.winSize.width / kCell - 1, down = config.winSize.height / kCell - 1;
  for (int y = 0; y < down; ++y) {
    for (int x = 0; x < across; ++x) {
      const Qvp32f* cell = &descriptor[(y * across + x) * 4 * kBins];
      for (int bin = 0; bin < kBins; ++bin) DrawEdge(picture, {x, y}, bin, cell[bin]);
    }
  }
  return picture;
}

}  // namespace

void HogSteps(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiHOGConfig config = ConfigFor(photo.size());
  int bytes = 0;
  Require(qvpiHOGGetSize(&config, &bytes));
  std::vector<Qvp8u> record(bytes);
  const auto spec = reinterpret_cast<QvpiHOGSpec*>(record.data());
  Require(qvpiHOGInit(&config, spec));
  Require(qvpiHOGGetBufferSize(spec, photo.size(), &bytes));
  std::vector<Qvp8u> buffer(bytes);
  Require(qvpiHOGGetDescriptorSize(spec, &bytes));
  std::vector<Qvp32f> descriptor(bytes / sizeof(Qvp32f));
  const Qvp8u outside[3] = {};
  demo.Time(photo.size(), 3,
            CALL(qvpiHOG_8u32f_C3R, photo.data(), photo.step(), photo.size(), nullptr, 1, descriptor.data(), spec,
                 qvpBorderMirror, outside, buffer.data()));
  demo.Show("Oriented gradients of each cell", Stars(config, descriptor));
}

}  // namespace demo
