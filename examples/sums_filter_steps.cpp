// Steps of qvpi_filter.h: means under a window, and what they leave.
#include <algorithm>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

Rgb Means(Demo& demo, QvpiSize mask) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  const QvpiPoint anchor{mask.width / 2, mask.height / 2};
  int bufferSize;
  Require(qvpiFilterBoxBorderGetBufferSize(mask, size, qvp8u, 3, &bufferSize));
  std::vector<Qvp8u> buffer(bufferSize);
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterBoxBorder_8u_C3R, photo.data(), photo.step(), image.data(), image.step(), size, mask, anchor,
                 qvpBorderReplicate, nullptr, buffer.data()));
  return image;
}

// Light is evened out: each pixel around mid-grey instead of the mean around it.
void ShowEvenLight(Demo& demo, const std::string& caption, const Rgb& means) {
  const QvpiSize size = means.size();
  Rgb image(size);
  for (int y = 0; y < size.height; ++y) {
    const Qvp8u *const pixels = demo.photo().At(0, y), *const mean = means.At(0, y);
    Qvp8u* const to = image.At(0, y);
    for (int i = 0; i < 3 * size.width; ++i) to[i] = static_cast<Qvp8u>(std::clamp(128 + pixels[i] - mean[i], 0, 255));
  }
  demo.Show(caption, image);
}

}  // namespace

void SumsFilterSteps(Demo& demo) {
  const Rgb means = Means(demo, {31, 31});
  demo.Show("Means of 31x31", means);
  ShowEvenLight(demo, "Pixels less their means", means);
}

}  // namespace demo
