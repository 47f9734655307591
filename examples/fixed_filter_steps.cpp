// Steps of qvpi_filter.h: filters with fixed kernels, and gradients.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

using Words = Image<qvpiMalloc_16s_C1, 1>;
using Reals = Image<qvpiMalloc_32f_C1, 1>;

std::vector<Qvp8u> BufferFor(QvpiSize mask, QvpiSize size, int channels) {
  int bytes = 0;
  Require(qvpiFilterFixedBorderGetBufferSize(mask, size, qvp8u, channels, &bytes));
  return std::vector<Qvp8u>(bytes);
}

// The green channel stands for the brightness.
Grey Brightness(const Rgb& photo) {
  Grey grey(photo.size());
  Require(qvpiCopy_8u_C3C1R(photo.data() + 1, photo.step(), grey.data(), grey.step(), photo.size()));
  return grey;
}

void Sharpened(Demo& demo, int side) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size(), mask{side, side};
  auto buffer = BufferFor(mask, size, 3);
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterSharpenBorder_8u_C3R, photo.data(), photo.step(), image.data(), image.step(), size, mask,
                 qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Sharpened by a " + ToString(mask) + " binomial", image);
}

// Derivatives around mid-grey, divided by a power of two so that most of them fit.
void ShowAroundGrey(Demo& demo, const std::string& caption, Words& derivative, Qvp32u shift) {
  const QvpiSize size = derivative.size();
  Grey picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      *picture.At(x, y) = static_cast<Qvp8u>(std::clamp(128 + (*derivative.At(x, y) >> shift), 0, 255));
    }
  }
  demo.Show(caption, picture);
}

#define DERIVATIVE(function, side, caption, shift)                                                             \
  {                                                                                                            \
    auto buffer = BufferFor({side, side}, size, 1);                                                            \
    demo.Time(size, 1 + 2,                                                                                     \
              CALL(function, grey.data(), grey.step(), derivative.data(), derivative.step(), size, mask##side, \
                   qvpBorderReplicate, nullptr, buffer.data()));                                               \
    ShowAroundGrey(demo, caption, derivative, shift);                                                          \
  }

void Derivatives(Demo& demo) {
  const Grey grey = Brightness(demo.photo());
  const QvpiSize size = grey.size(), mask3{3, 3}, mask5{5, 5};
  Words derivative(size);
  DERIVATIVE(qvpiFilterSobelXBorder_8u16s_C1R, 3, "Slope to the right, Sobel", 2)
  DERIVATIVE(qvpiFilterScharrYBorder_8u16s_C1R, 3, "Slope downward, Scharr", 4)
  DERIVATIVE(qvpiFilterLaplaceBorder_8u16s_C1R, 5, "Spots and edges, Laplace", 3)
  DERIVATIVE(qvpiFilterHighPassBorder_8u16s_C1R, 5, "What 5x5 means lose", 3)
}

// A hue from an angle, as bright as the gradient is large.
void PutHue(Qvp8u* rgb, float angle, float magnitude) {
  for (int c = 0; c < 3; ++c) {
    const float wave = 0.5f + 0.5f * std::cos(angle - static_cast<float>(c) * 2.0943951f);
    rgb[c] = static_cast<Qvp8u>(std::clamp(magnitude * wave, 0.0f, 255.0f));
  }
}

void Directions(Demo& demo) {
  const Grey grey = Brightness(demo.photo());
  const QvpiSize size = grey.size(), mask{3, 3};
  Reals magnitude(size), angle(size);
  auto buffer = BufferFor(mask, size, 1);
  demo.Time(size, 1 + 4 + 4,
            CALL(qvpiFilterGradientSobelBorder_8u16s_C1R, grey.data(), grey.step(), nullptr, 0, nullptr, 0,
                 magnitude.data(), magnitude.step(), angle.data(), angle.step(), size, mask, qvpNormL2,
                 qvpBorderReplicate, nullptr, buffer.data()));
  Rgb image(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) PutHue(image.At(x, y), *angle.At(x, y), *magnitude.At(x, y));
  }
  demo.Show("Gradient: direction as hue", image);
}

}  // namespace

void FixedFilterSteps(Demo& demo) {
  Sharpened(demo, 3);
  Sharpened(demo, 5);
  Derivatives(demo);
  Directions(demo);
}

}  // namespace demo
