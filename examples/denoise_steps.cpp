// Steps of qvpi_denoise.h: a grainy photograph, smoothed; one with less detail and with more; a mask that follows its
// edges.
#include <algorithm>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// The photograph with grain of a standard deviation of about 15 in each channel: sums of four numbers of 16 values.
Rgb Grainy(const Rgb& photo) {
  Rgb grainy(photo.size());
  uint32_t state = 1;
  for (int y = 0; y < photo.size().height; ++y) {
    for (int i = 0; i < 3 * photo.size().width; ++i) {
      int grain = -120;
      for (int k = 0; k < 4; ++k) grain += 4 * static_cast<int>((state = state * 1664525 + 1013904223) >> 28);
      const int value = photo.data()[y * photo.step() + i] + grain / 2;
      grainy.data()[y * grainy.step() + i] = static_cast<Qvp8u>(value < 0 ? 0 : value > 255 ? 255 : value);
    }
  }
  return grainy;
}

void Bilateral(Demo& demo, const Rgb& grainy) {
  const QvpiSize size = grainy.size();
  constexpr int kRadius = 5;
  int specSize, bufferSize;
  Require(qvpiFilterBilateralBorderGetSize(kRadius, size, qvp8u, 3, &specSize, &bufferSize));
  std::vector<Qvp8u> record(specSize), buffer(bufferSize);
  auto* const spec = reinterpret_cast<QvpiFilterBilateralBorderSpec*>(record.data());
  Require(qvpiFilterBilateralBorderInit(kRadius, qvpNormL2, 50, 3, qvp8u, 3, spec));
  Rgb result(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterBilateralBorder_8u_C3R, grainy.data(), grainy.step(), result.data(), result.step(), size,
                 qvpBorderReplicate, nullptr, spec, buffer.data()));
  const QvpiSize left{size.width / 2, size.height};
  Require(qvpiCopy_8u_C3R(grainy.data(), grainy.step(), result.data(), result.step(), left));
  demo.Show("Grain, and smoothed but for edges", result);
}

void Wiener(Demo& demo, const Rgb& grainy) {
  const QvpiSize size = grainy.size(), mask{5, 5};
  constexpr Qvp32f kNoise[3] = {0.0035f, 0.0035f, 0.0035f};
  int bufferSize;
  Require(qvpiFilterWienerBorderGetBufferSize(mask, size, qvp8u, 3, &bufferSize));
  std::vector<Qvp8u> buffer(bufferSize);
  Rgb result(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterWienerBorder_8u_C3R, grainy.data(), grainy.step(), result.data(), result.step(), size, mask,
                 kNoise, qvpBorderReplicate, nullptr, buffer.data()));
  demo.Show("Grain taken away by Wiener", result);
}

// Where the photograph is bright, in squares: the middle pixel of each decides.
Grey CoarseMask(const Rgb& photo) {
  constexpr int kSide = 24;
  Grey mask(photo.size());
  for (int y = 0; y < photo.size().height; ++y) {
    for (int x = 0; x < photo.size().width; ++x) {
      const auto middle = [](int i, int n) { return std::min(i / kSide * kSide + kSide / 2, n - 1); };
      const Qvp8u* const pixel = photo.At(middle(x, photo.size().width), middle(y, photo.size().height));
      *mask.At(x, y) = pixel[0] + pixel[1] + pixel[2] > 3 * 128 ? 255 : 0;
    }
  }
  return mask;
}

void Guided(Demo& demo, const Rgb& grainy) {
  const QvpiSize size = grainy.size(), small{9, 9}, large{61, 61};
  int bufferSize, colorBufferSize;
  Require(qvpiFilterGuidedBorderGetBufferSize(small, size, qvp8u, 3, &bufferSize));
  Require(qvpiFilterGuidedColorBorderGetBufferSize(large, size, qvp8u, &colorBufferSize));
  std::vector<Qvp8u> buffer(std::max(bufferSize, colorBufferSize));
  Rgb result(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterGuidedBorder_8u_C3R, grainy.data(), grainy.step(), grainy.data(), grainy.step(),
                 result.data(), result.step(), size, small, 0.01f, qvpBorderReplicate, buffer.data()));
  demo.Show("Grain taken away, guided by itself", result);
  const Rgb& photo = demo.photo();
  const Grey coarse = CoarseMask(photo);
  Grey fine(size);
  demo.Show("A coarse mask", coarse);
  demo.Time(size, 1 + 3 + 1,
            CALL(qvpiFilterGuidedColorBorder_8u_C1R, coarse.data(), coarse.step(), photo.data(), photo.step(),
                 fine.data(), fine.step(), size, large, 1e-4f, qvpBorderReplicate, buffer.data()));
  demo.Show("The mask, guided by the colours", fine);
}

// The photograph with three times the detail that the filter takes away: 3 p - 2 u.
void Detail(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size();
  int specSize, bufferSize;
  Require(qvpiFilterLeastSquaresGetSize(size, qvp8u, 3, &specSize, &bufferSize));
  std::vector<Qvp8u> record(specSize), buffer(bufferSize);
  auto* const spec = reinterpret_cast<QvpiFilterLeastSquaresSpec*>(record.data());
  Require(qvpiFilterLeastSquaresInit(size, 1, 0.8f, 1e-4f, 4, qvp8u, 3, spec));
  Rgb smooth(size), tripled(size);
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterLeastSquares_8u_C3R, photo.data(), photo.step(), smooth.data(), smooth.step(), spec,
                 buffer.data()));
  demo.Show("Without its detail", smooth);
  for (int y = 0; y < size.height; ++y) {
    for (int i = 0; i < 3 * size.width; ++i) {
      const int value = 3 * photo.data()[y * photo.step() + i] - 2 * smooth.data()[y * smooth.step() + i];
      tripled.data()[y * tripled.step() + i] = static_cast<Qvp8u>(value < 0 ? 0 : value > 255 ? 255 : value);
    }
  }
  demo.Show("With three times its detail", tripled);
}

}  // namespace

void DenoiseSteps(Demo& demo) {
  const Rgb grainy = Grainy(demo.photo());
  Bilateral(demo, grainy);
  Wiener(demo, grainy);
  Guided(demo, grainy);
  Detail(demo);
}

}  // namespace demo
