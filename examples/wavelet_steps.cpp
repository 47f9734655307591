// Steps of qvpi_transform.h: a picture's bands, and a grainy picture without its small details.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

using Plane = Image<qvpiMalloc_32f_C1, 1>;

class Wavelets {
 public:
  explicit Wavelets(QvpiSize size) {
    QvpiWaveletBank bank;
    int specBytes = 0, bufferBytes = 0;
    Require(qvpiWaveletGetBank_32f(qvpWaveletCdf97, &bank));
    Require(qvpiWaveletGetSize_32f(&bank, &specBytes));
    record_.resize(specBytes);
    auto* const spec = reinterpret_cast<QvpiWaveletSpec_32f*>(record_.data());
    Require(qvpiWaveletInit_32f(&bank, qvpBorderMirror, spec));
    Require(qvpiWaveletGetBufferSize_32f(spec, size, 1, &bufferBytes));
    buffer_.resize(bufferBytes);
  }
  const QvpiWaveletSpec_32f* spec() const { return reinterpret_cast<const QvpiWaveletSpec_32f*>(record_.data()); }
  Qvp8u* buffer() { return buffer_.data(); }

 private:
  std::vector<Qvp8u> record_, buffer_;
};

Plane Green(const Rgb& photo, int grain) {
  Plane green(photo.size());
  unsigned random = 1;
  for (int y = 0; y < photo.size().height; ++y) {
    for (int x = 0; x < photo.size().width; ++x) {
      int sum = 0;
      for (int i = 0; i < 4; ++i) sum += static_cast<int>((random = random * 1664525 + 1013904223) >> 24) - 128;
      *green.At(x, y) = static_cast<Qvp32f>(photo.At(x, y)[1]) + static_cast<Qvp32f>(sum * grain) / 128;
    }
  }
  return green;
}

// value(x, y) of each pixel as a grey.
template <class Value>
Grey Picture(QvpiSize size, const Value& value) {
  Grey picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      *picture.At(x, y) = static_cast<Qvp8u>(std::lround(std::clamp<double>(value(x, y), 0, 255)));
    }
  }
  return picture;
}

void Transform(Demo& demo, const Plane& image, int levels, Wavelets& wavelets, Plane& bands) {
  demo.Time(image.size(), 4 + 4,
            CALL(qvpiWaveletFwd_32f_C1R, image.data(), image.step(), bands.data(), bands.step(), image.size(), levels,
                 wavelets.spec(), wavelets.buffer()));
}

// The corner is brighter by 2 for each level; details are around 0.
void ShowBands(Demo& demo) {
  constexpr int kLevels = 3;
  const Plane image = Green(demo.photo(), 0);
  const QvpiSize size = image.size();
  Wavelets wavelets(size);
  Plane bands(size);
  Transform(demo, image, kLevels, wavelets, bands);
  const int width = (size.width + 7) / 8, height = (size.height + 7) / 8;
  demo.Show("Three levels of wavelets", Picture(size, [&](int x, int y) {
              return x < width && y < height ? *bands.At(x, y) / (1 << kLevels) : 128 + 3 * *bands.At(x, y);
            }));
}

void ShowDenoised(Demo& demo) {
  constexpr int kLevels = 4;
  constexpr float kSmall = 28;
  const Plane grainy = Green(demo.photo(), 8);
  const QvpiSize size = grainy.size();
  Wavelets wavelets(size);
  Plane bands(size), image(size);
  Transform(demo, grainy, kLevels, wavelets, bands);
  demo.Show("Grainy", Picture(size, [&](int x, int y) { return *grainy.At(x, y); }));
  const int width = (size.width + 15) / 16, height = (size.height + 15) / 16;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if ((x >= width || y >= height) && std::abs(*bands.At(x, y)) < kSmall) *bands.At(x, y) = 0;
    }
  }
  demo.Time(size, 4 + 4,
            CALL(qvpiWaveletInv_32f_C1R, bands.data(), bands.step(), image.data(), image.step(), size, kLevels,
                 wavelets.spec(), wavelets.buffer()));
  demo.Show("Without its small details", Picture(size, [&](int x, int y) { return *image.At(x, y); }));
}

}  // namespace

void WaveletSteps(Demo& demo) {
  ShowBands(demo);
  ShowDenoised(demo);
}

}  // namespace demo
