// Steps of qvpi_core.h: copy, set, channel order and channel duplication.
#include <algorithm>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

constexpr Qvp8u kBlue[3] = {52, 92, 140};

Rgb CopyOf(const Rgb& image) {
  Rgb copy(image.size());
  Require(qvpiCopy_8u_C3R(image.data(), image.step(), copy.data(), copy.step(), image.size()));
  return copy;
}

void Original(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb copy(photo.size());
  demo.Time(photo.size(), 3 + 3,
            CALL(qvpiCopy_8u_C3R, photo.data(), photo.step(), copy.data(), copy.step(), photo.size()));
  demo.Show("Original", copy);
}

void SwapRedAndBlue(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb swapped(photo.size());
  const int order[3] = {2, 1, 0};
  demo.Time(
      photo.size(), 3 + 3,
      CALL(qvpiSwapChannels_8u_C3R, photo.data(), photo.step(), swapped.data(), swapped.step(), photo.size(), order));
  demo.Show("Red and blue swapped", swapped);
}

Grey Ellipse(QvpiSize size) {
  Grey mask(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double right = (2 * x + 1.0) / size.width - 1, down = (2 * y + 1.0) / size.height - 1;
      *mask.At(x, y) = right * right + down * down <= 1 ? 255 : 0;
    }
  }
  return mask;
}

void CopyUnderMask(Demo& demo) {
  const Rgb& photo = demo.photo();
  const Grey mask = Ellipse(photo.size());
  Rgb framed(photo.size());
  Require(qvpiSet_8u_C3R(kBlue, framed.data(), framed.step(), framed.size()));
  demo.Time(photo.size(), 3 + 1 + 3,
            CALL(qvpiCopy_8u_C3MR, photo.data(), photo.step(), framed.data(), framed.step(), photo.size(), mask.data(),
                 mask.step()));
  demo.Show("Copied under an ellipse as mask", framed);
}

void RemoveBlue(Demo& demo) {
  Rgb image = CopyOf(demo.photo());
  demo.Time(image.size(), 1, CALL(qvpiSet_8u_C3CR, 0, image.data() + 2, image.step(), image.size()));
  demo.Show("Blue set to 0", image);
}

void ReplaceGreenByRed(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb image = CopyOf(photo);
  demo.Time(image.size(), 1 + 1,
            CALL(qvpiCopy_8u_C3CR, photo.data(), photo.step(), image.data() + 1, image.step(), image.size()));
  demo.Show("Green replaced by red", image);
}

void SplitIntoPlanes(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  Grey red(size), green(size), blue(size);
  Qvp8u* const planes[3] = {red.data(), green.data(), blue.data()};
  demo.Time(size, 3 + 3, CALL(qvpiCopy_8u_C3P3R, photo.data(), photo.step(), planes, red.step(), size));
  demo.Show("Red plane", red);
  demo.Show("Green plane", green);
  demo.Show("Blue plane", blue);
}

// Opaque at the left edge, transparent at the right. A step of 0 uses one row as the source of all.
void SetAlphaGradient(Rgba& image) {
  const int last = image.size().width - 1;
  std::vector<Qvp8u> row(image.size().width, 255);
  for (int x = 1; x <= last; ++x) row[x] = static_cast<Qvp8u>(255 - int64_t{255} * x / last);
  Require(qvpiCopy_8u_C1C4R(row.data(), 0, image.data() + 3, image.step(), image.size()));
}

void CopyAndSetBesideAlpha(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgba image(photo.size());
  SetAlphaGradient(image);
  demo.Time(photo.size(), 3 + 3,
            CALL(qvpiCopy_8u_C3AC4R, photo.data(), photo.step(), image.data(), image.step(), photo.size()));
  demo.Show("Copied, alpha gradient kept", image);

  const QvpiSize size = image.size(), half{std::max(1, size.width / 2), std::max(1, size.height / 2)};
  Qvp8u* const centre = image.At(size.width / 4, size.height / 4);
  demo.Time(half, 3, CALL(qvpiSet_8u_AC4R, kBlue, centre, image.step(), half));
  demo.Show("Inner region set, alpha kept", image);
}

}  // namespace

void CoreSteps(Demo& demo) {
  Original(demo);
  SwapRedAndBlue(demo);
  CopyUnderMask(demo);
  RemoveBlue(demo);
  ReplaceGreenByRed(demo);
  SplitIntoPlanes(demo);
  CopyAndSetBesideAlpha(demo);
}

}  // namespace demo
