// Steps of qvpi_filter.h: the filter of Gauss, differences of its scales, and a separable motion blur.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

Rgb Gauss(Demo& demo, float sigma) {
  const Rgb& photo = demo.photo();
  const int side = 2 * static_cast<int>(std::ceil(3 * sigma)) + 1;
  const QvpiSize size = photo.size(), mask{side, side};
  int specSize, bufferSize;
  Require(qvpiFilterGaussBorderGetSize(mask, size, qvp8u, 3, &specSize, &bufferSize));
  std::vector<Qvp8u> memory(specSize), buffer(bufferSize);
  auto* spec = reinterpret_cast<QvpiFilterGaussBorderSpec*>(memory.data());
  Require(qvpiFilterGaussBorderInit(mask, sigma, sigma, qvp8u, 3, spec));
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterGaussBorder_8u_C3R, photo.data(), photo.step(), image.data(), image.step(), size,
                 qvpBorderReplicate, nullptr, spec, buffer.data()));
  return image;
}

// The finer one less the coarser one, around mid-grey.
void ShowDifference(Demo& demo, const std::string& caption, const Rgb& fine, const Rgb& coarse) {
  const QvpiSize size = fine.size();
  Rgb image(size);
  for (int y = 0; y < size.height; ++y) {
    const Qvp8u *const a = fine.At(0, y), *const b = coarse.At(0, y);
    Qvp8u* const to = image.At(0, y);
    for (int i = 0; i < 3 * size.width; ++i) to[i] = static_cast<Qvp8u>(std::clamp(128 + a[i] - b[i], 0, 255));
  }
  demo.Show(caption, image);
}

void Scales(Demo& demo) {
  const Rgb fine = Gauss(demo, 1);
  demo.Show("Gauss, sigma 1", fine);
  const Rgb middle = Gauss(demo, 4);
  demo.Show("Gauss, sigma 4", middle);
  const Rgb coarse = Gauss(demo, 16);
  demo.Show("Gauss, sigma 16", coarse);
  ShowDifference(demo, "What sigma 1 has and 4 has not", fine, middle);
  ShowDifference(demo, "What sigma 4 has and 16 has not", middle, coarse);
}

void MotionBlur(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size(), kernel{31, 1};
  int specSize, bufferSize;
  Require(qvpiFilterSeparableBorderGetSize(kernel, size, qvp8u, qvp8u, qvp16s, 3, &specSize, &bufferSize));
  std::vector<Qvp8u> memory(specSize), buffer(bufferSize);
  auto* spec = reinterpret_cast<QvpiFilterSeparableBorderSpec*>(memory.data());
  const std::vector<Qvp16s> ones(kernel.width, 1), one{1};
  Require(qvpiFilterSeparableBorderInit_16s(ones.data(), one.data(), kernel, kernel.width, qvp8u, qvp8u, 3,
                                            qvpRoundNear, spec));
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterSeparableBorder_8u_C3R, photo.data(), photo.step(), image.data(), image.step(), size,
                 qvpBorderReplicate, nullptr, spec, buffer.data()));
  demo.Show("Moved by 31 pixels", image);
}

}  // namespace

void AxesFilterSteps(Demo& demo) {
  Scales(demo);
  MotionBlur(demo);
}

}  // namespace demo
