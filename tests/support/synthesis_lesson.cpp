// Parameters of images that are made by formulas.
#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr int kNoiseBytes = 128;

// A record of one of the five kinds, and an input: a refused Init takes its identification away.
const void* NoiseRecord(Scene& scene) {
  auto* const spec = reinterpret_cast<QvpiNoiseSpec*>(scene.Input(kNoiseBytes));
  const Qvp32u seed = scene.random().Next(), stream = scene.random().Next();
  switch (scene.random().Next() % 5) {
    case 0: qvpiNoiseUniformInit(-20, 30, seed, stream, spec); break;
    case 1: qvpiNoiseGaussInit(3, 25, seed, stream, spec); break;
    case 2: qvpiNoiseSpeckleInit(0.4, seed, stream, spec); break;
    case 3: qvpiNoiseShotInit(2, 5, seed, stream, spec); break;
    default: qvpiNoiseSaltPepperInit(0.4, 0.3, -5.5, 300, seed, stream, spec);
  }
  return spec;
}

}  // namespace

// Planes that change from pixel to pixel within every type: a function whose pixels did not depend on their place would
// pass for one that takes each on its own.
bool RampLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "start" || name.starts_with("slope")) {
    const auto numbers = reinterpret_cast<double*>(scene.Input(4 * sizeof(double)));
    for (int c = 0; c < 4; ++c) numbers[c] = scene.Any({7, 45, 101}) / (name == "start" ? 1.0 : 32.0);
    argument = {numbers, numbers[0]};
  } else if (name == "dstOffset") {
    argument = QvpiPoint{scene.Any({0, -7, 100}), scene.Any({0, 5, -3})};
  } else {
    return false;
  }
  return true;
}

// The region is part of an image that is a little larger.
bool JaehneLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  Random random = scene.choices();
  const QvpiPoint offset{static_cast<int>(random.Next() % 9), static_cast<int>(random.Next() % 9)};
  if (name == "imageSize") {
    argument = QvpiSize{scene.roi().width + offset.x, scene.roi().height + 2 * offset.y};
  } else if (name == "minPeriod") {
    argument = scene.Any({2, 3, 40});
  } else if (name == "dstOffset") {
    argument = offset;
  } else {
    return false;
  }
  return true;
}

bool NoiseLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "pSpec") {
    argument = {scene.Has("Init") ? scene.Input(kNoiseBytes) : NoiseRecord(scene)};
  } else if (name == "dstOffset") {
    argument = QvpiPoint{scene.Any({0, 1, 2, 7, INT32_MAX - 5000}), scene.Any({0, 3, INT32_MAX - 5000})};
  } else if (name == "seed" || name == "stream" || name == "frame") {
    argument = scene.random().Next();
  } else if (name == "level" || name == "saltShare") {
    argument = Number(scene.Any({0, 1, 30, 99}) / 100.0);
  } else if (name == "low" || name == "mean" || name == "pepper") {
    argument = scene.Any({0, -3, -300});
  } else if (name == "high" || name == "salt" || name == "sigma" || name == "gain") {
    argument = scene.Any({0, 2, 300});
  } else {
    return false;
  }
  return true;
}

}  // namespace test
