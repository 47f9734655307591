// Parameters of histograms.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

constexpr int kMostLevels = 300;

// Of each channel, another number in each scene.
int LevelsOf(const Scene& scene, int channel) { return 2 + (scene.roi().width * 7 + channel * 11) % (kMostLevels - 2); }

const int* NumbersOfLevels(Scene& scene) {
  auto* const numbers = reinterpret_cast<int*>(scene.Input(4 * sizeof(int)));
  for (int c = 0; c < 4; ++c) numbers[c] = LevelsOf(scene, c);
  return numbers;
}

const float* Bounds(Scene& scene, bool isLower) {
  auto* const bounds = reinterpret_cast<float*>(scene.Input(4 * sizeof(float)));
  const float ends[2][5] = {{-1500, 0, 3.5f, -40000, -0.1f}, {200, 255.5f, 120.25f, 60000, 256}};
  for (int c = 0; c < 4; ++c) bounds[c] = ends[!isLower][(scene.roi().width + c) % 5];
  return bounds;
}

// An array of pointers to arrays, with room for the same bytes on machines with pointers of any width.
template <class T>
T* const* Arrays(Scene& scene, bool isOutput) {
  auto** const arrays = reinterpret_cast<T**>(scene.Input(4 * sizeof(uint64_t)));
  for (int c = 0; c < 4; ++c) {
    arrays[c] = reinterpret_cast<T*>(isOutput ? scene.Output(4 * kMostLevels) : scene.Input(4 * kMostLevels));
  }
  return arrays;
}

// Levels that lie at unequal distances.
const float* const* Levels(Scene& scene) {
  float* const* const levels = Arrays<float>(scene, false);
  for (int c = 0; c < 4; ++c) {
    levels[c][0] = static_cast<float>(scene.Any({-300, -1, 0, 7}));
    for (int k = 1; k < kMostLevels; ++k)
      levels[c][k] = levels[c][k - 1] + 1 + static_cast<float>(scene.random().Next() % 800) / 256;
  }
  return levels;
}

QvpDataType PixelsOf(const Scene& scene) {
  const Name name(scene.function().name);
  return name.layout.empty() ? +qvp32f : name.From().code;
}

// Four channels, also for what takes fewer.
const void* Record(Scene& scene) {
  auto* const spec = reinterpret_cast<QvpiHistogramSpec*>(scene.Input(64 + 4 * 4 * kMostLevels));
  const int* const numbers = NumbersOfLevels(scene);
  if (scene.roi().width % 2) {
    qvpiHistogramUniformInit(PixelsOf(scene), Bounds(scene, true), Bounds(scene, false), numbers, 4, spec);
  } else {
    qvpiHistogramInit(PixelsOf(scene), Levels(scene), numbers, 4, spec);
  }
  return spec;
}

}  // namespace

bool HistogramLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "nLevels") {
    argument = {NumbersOfLevels(scene)};
  } else if (name == "dataType") {
    argument = qvp16u;
  } else if (name == "numChannels") {
    argument = 3;
  } else if (name == "uniform") {
    argument = scene.Any({0, 1});
  } else if (name == "pLevels") {
    argument = {type.starts_with("const") ? static_cast<const void*>(Levels(scene)) : Arrays<float>(scene, true)};
  } else if (name == "pHist") {
    argument = {Arrays<Qvp32u>(scene, true)};
  } else if (name == "lowerLevel" || name == "upperLevel") {
    argument = {Bounds(scene, name == "lowerLevel")};
  } else if (name == "pSpec") {
    // No output: a refused Init takes its identification away.
    argument = {type.starts_with("const") ? Record(scene) : scene.Input(64 + 4 * 4 * kMostLevels)};
  } else if (name == "pBuffer") {
    argument = {scene.Input(PixelsOf(scene) == qvp8u ? 4 * 1024 : PixelsOf(scene) == qvp32f ? 4 : 4 * 262144)};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
