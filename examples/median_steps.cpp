// Steps of qvpi_denoise.h: medians against impulse noise, and the background of a picture.
#include <algorithm>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// Selects one pixel of twenty or so, the same ones at each run.
Grey Scattered(QvpiSize size, uint32_t seed) {
  Grey mask(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      seed = seed * 1664525 + 1013904223;
      *mask.At(x, y) = seed >> 24 < 13 ? 255 : 0;
    }
  }
  return mask;
}

Rgb WithImpulses(Demo& demo) {
  const QvpiSize size = demo.photo().size();
  Rgb noisy(size);
  Require(qvpiCopy_8u_C3R(demo.photo().data(), demo.photo().step(), noisy.data(), noisy.step(), size));
  constexpr Qvp8u kValues[2][3] = {{0, 0, 0}, {255, 255, 255}};
  for (const uint32_t seed : {0, 1}) {
    const Grey mask = Scattered(size, seed);
    demo.Time(size, 3 + 1,
              CALL(qvpiSet_8u_C3MR, kValues[seed], noisy.data(), noisy.step(), size, mask.data(), mask.step()));
  }
  demo.Show("Salt and pepper", noisy);
  return noisy;
}

std::vector<Qvp8u> BufferFor(QvpiSize mask, QvpiSize size) {
  int medians, vectors = 0;
  Require(qvpiFilterMedianBorderGetBufferSize(mask, size, qvp8u, 3, &medians));
  if (mask.width <= 7) Require(qvpiFilterMedianVectorBorderGetBufferSize(mask, size, qvp8u, 3, &vectors));
  return std::vector<Qvp8u>(std::max(medians, vectors));
}

void ShowMedian(Demo& demo, const std::string& caption, const Rgb& from, int side) {
  const QvpiSize size = from.size(), mask{side, side};
  std::vector<Qvp8u> buffer = BufferFor(mask, size);
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterMedianBorder_8u_C3R, from.data(), from.step(), image.data(), image.step(), size, mask,
                 qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show(caption, image);
}

void ShowWeightedMedian(Demo& demo, const Rgb& from) {
  const QvpiSize size = from.size(), mask{5, 5};
  std::vector<Qvp8u> buffer = BufferFor(mask, size);
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterMedianCenterBorder_8u_C3R, from.data(), from.step(), image.data(), image.step(), size, mask,
                 9, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("5x5 weight 9 keeps lines", image);
}

void ShowVectorMedian(Demo& demo, const Rgb& from) {
  const QvpiSize size = from.size(), mask{3, 3};
  std::vector<Qvp8u> buffer = BufferFor(mask, size);
  Rgb image(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterMedianVectorBorder_8u_C3R, from.data(), from.step(), image.data(), image.step(), size, mask,
                 qvpNormL1, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Vector median 3x3", image);
}

}  // namespace

void MedianSteps(Demo& demo) {
  const Rgb noisy = WithImpulses(demo);
  ShowMedian(demo, "Median 3x3", noisy, 3);
  ShowWeightedMedian(demo, noisy);
  ShowVectorMedian(demo, noisy);
  ShowMedian(demo, "Background: median 31x31", demo.photo(), 31);
}

}  // namespace demo
