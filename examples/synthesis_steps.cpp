// Steps of qvpi_feature.h: images made by formulas, and five kinds of noise.
#include <algorithm>
#include <string>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

void ShowRamp(Demo& demo) {
  constexpr QvpiSize kSize{512, 320};
  const Qvp64f start[3] = {255, 0, 40}, across[3] = {-0.5, 0.5, 0}, down[3] = {0, 0, 0.6};
  Rgb ramp(kSize);
  demo.Time(kSize, 3, CALL(qvpiRamp_8u_C3R, start, across, down, ramp.data(), ramp.step(), kSize, {0, 0}));
  demo.Show("Ramps in each channel", ramp);
}

// As large as the sheet shows images without scaling.
constexpr QvpiSize kShown{kTileSide, kTileSide}, kTwice{2 * kTileSide, 2 * kTileSide};

Grey Pattern(Demo& demo, QvpiSize size) {
  Grey pattern(size);
  demo.Time(size, 1, CALL(qvpiJaehne_8u_C1R, size, 2, pattern.data(), pattern.step(), size, {0, 0}));
  return pattern;
}

// The record of a resize to half the size, and its work buffer.
struct Halving {
  std::vector<Qvp8u> record, buffer;

  template <class Init>
  Halving(int interpolation, const Init& init) {
    int recordBytes = 0, initBytes = 0, bufferBytes = 0;
    Require(qvpiResizeGetSize_8u(kTwice, kShown, interpolation, 0, &recordBytes, &initBytes));
    record.resize(recordBytes);
    Require(init(kTwice, kShown, spec()));
    Require(qvpiResizeGetBufferSize_8u(spec(), kShown, 1, &bufferBytes));
    buffer.resize(bufferBytes);
  }
  QvpiResizeSpec* spec() { return reinterpret_cast<QvpiResizeSpec*>(record.data()); }
};

// Every second pixel alone brings frequencies that are not there; means of areas do not.
void ShowHalved(Demo& demo) {
  const Grey pattern = Pattern(demo, kTwice);
  Grey half(kShown);
  Halving nearest(qvpInterpolationNearest, qvpiResizeNearestInit_8u),
      super(qvpInterpolationSuper, qvpiResizeSuperInit_8u);
  demo.Time(kShown, 1,
            CALL(qvpiResizeNearest_8u_C1R, pattern.data(), pattern.step(), half.data(), half.step(), {0, 0}, kShown,
                 nearest.spec(), nearest.buffer.data()));
  demo.Show("Halved by nearest pixels", half);
  demo.Time(kShown, 1,
            CALL(qvpiResizeSuper_8u_C1R, pattern.data(), pattern.step(), half.data(), half.step(), {0, 0}, kShown,
                 super.spec(), super.buffer.data()));
  demo.Show("Halved by super-sampling", half);
}

// Structural similarity, the mean of the channels.
std::string Similarity(const Qvp8u* a, int aStep, const Rgb& b) {
  constexpr int kWindow = 11;
  int bytes = 0;
  Require(qvpiSSIMGetBufferSize(b.size(), kWindow, 3, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  double values[3];
  Require(
      qvpiSSIM_8u_C3R(a, aStep, b.data(), b.step(), b.size(), values, kWindow, 1.5, 6.5025, 58.5225, buffer.data()));
  return std::to_string((values[0] + values[1] + values[2]) / 3).substr(0, 4);
}

// On the middle of the photograph.
void ShowNoise(Demo& demo, const char* caption, QvpStatus status, const QvpiNoiseSpec* spec) {
  Require(status, caption);
  const Rgb& photo = demo.photo();
  const QvpiSize size{std::min(photo.size().width, kTileSide), std::min(photo.size().height, kTileSide)};
  const Qvp8u* const from = photo.At((photo.size().width - size.width) / 2, (photo.size().height - size.height) / 2);
  Rgb noisy(size);
  demo.Time(size, 3 + 3, CALL(qvpiNoise_8u_C3R, from, photo.step(), noisy.data(), noisy.step(), size, {0, 0}, 0, spec));
  demo.Show(caption + (": SSIM " + Similarity(from, photo.step(), noisy)), noisy);
}

}  // namespace

void SynthesisSteps(Demo& demo) {
  ShowRamp(demo);
  demo.Show("All frequencies and directions", Pattern(demo, kShown));
  ShowHalved(demo);
  int bytes = 0;
  Require(qvpiNoiseGetSize(&bytes));
  std::vector<Qvp8u> record(bytes);
  auto* const spec = reinterpret_cast<QvpiNoiseSpec*>(record.data());
  ShowNoise(demo, "Uniform noise", qvpiNoiseUniformInit(-40, 40, 1, 0, spec), spec);
  ShowNoise(demo, "Gaussian noise", qvpiNoiseGaussInit(0, 25, 1, 0, spec), spec);
  ShowNoise(demo, "Speckle", qvpiNoiseSpeckleInit(0.2, 1, 0, spec), spec);
  ShowNoise(demo, "Photons, read-out", qvpiNoiseShotInit(4, 3, 1, 0, spec), spec);
  ShowNoise(demo, "Salt and pepper", qvpiNoiseSaltPepperInit(0.05, 0.5, 0, 255, 1, 0, spec), spec);
}

}  // namespace demo
