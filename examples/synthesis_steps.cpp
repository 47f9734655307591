// Steps of qvpi_feature.h: images made by formulas, and five kinds of noise.
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

void ShowRamp(Demo& demo) {
  constexpr QvpiSize kSize{480, 320};
  const Qvp64f start[3] = {255, 0, 40}, across[3] = {-0.5, 0.5, 0}, down[3] = {0, 0, 0.6};
  Rgb ramp(kSize);
  demo.Time(kSize, 3, CALL(qvpiRamp_8u_C3R, start, across, down, ramp.data(), ramp.step(), kSize, {0, 0}));
  demo.Show("Ramps in each channel", ramp);
}

// The pattern at half its size: by every second pixel alone frequencies come back that are not there.
void ShowHalved(Demo& demo, const Grey& pattern) {
  const QvpiSize from = pattern.size(), to{from.width / 2, from.height / 2};
  int record = 0, temporary = 0, buffer = 0;
  Require(qvpiResizeGetSize_8u(from, to, qvpInterpolationSuper, 0, &record, &temporary));
  std::vector<Qvp8u> memory(record);
  auto* const spec = reinterpret_cast<QvpiResizeSpec*>(memory.data());
  Grey nearest(to), super(to);
  Require(qvpiResizeSuperInit_8u(from, to, spec));
  Require(qvpiResizeGetBufferSize_8u(spec, to, 1, &buffer));
  std::vector<Qvp8u> work(buffer);
  demo.Time(to, 1,
            CALL(qvpiResizeSuper_8u_C1R, pattern.data(), pattern.step(), super.data(), super.step(), {0, 0}, to, spec,
                 work.data()));
  demo.Show("Halved by super-sampling", super);
  for (int y = 0; y < to.height; ++y) {
    for (int x = 0; x < to.width; ++x) *nearest.At(x, y) = *pattern.At(2 * x, 2 * y);
  }
  demo.Show("Every second pixel", nearest);
}

void ShowPattern(Demo& demo) {
  constexpr QvpiSize kSize{480, 480};
  Grey pattern(kSize);
  demo.Time(kSize, 1, CALL(qvpiJaehne_8u_C1R, kSize, 2, pattern.data(), pattern.step(), kSize, {0, 0}));
  demo.Show("All frequencies and directions", pattern);
  ShowHalved(demo, pattern);
}

void ShowNoise(Demo& demo, const char* caption, QvpStatus status, const QvpiNoiseSpec* spec) {
  Require(status, caption);
  const Rgb& photo = demo.photo();
  Rgb noisy(photo.size());
  demo.Time(
      photo.size(), 3 + 3,
      CALL(qvpiNoise_8u_C3R, photo.data(), photo.step(), noisy.data(), noisy.step(), photo.size(), {0, 0}, 0, spec));
  demo.Show(caption, noisy);
}

}  // namespace

void SynthesisSteps(Demo& demo) {
  ShowRamp(demo);
  ShowPattern(demo);
  int bytes = 0;
  Require(qvpiNoiseGetSize(&bytes));
  std::vector<Qvp8u> record(bytes);
  auto* const spec = reinterpret_cast<QvpiNoiseSpec*>(record.data());
  ShowNoise(demo, "Uniform noise", qvpiNoiseUniformInit(-40, 40, 1, 0, spec), spec);
  ShowNoise(demo, "Gaussian noise", qvpiNoiseGaussInit(0, 25, 1, 0, spec), spec);
  ShowNoise(demo, "Speckle", qvpiNoiseSpeckleInit(0.2, 1, 0, spec), spec);
  ShowNoise(demo, "Noise of photons and read-out", qvpiNoiseShotInit(4, 3, 1, 0, spec), spec);
  ShowNoise(demo, "Salt and pepper", qvpiNoiseSaltPepperInit(0.05, 0.5, 0, 255, 1, 0, spec), spec);
}

}  // namespace demo
