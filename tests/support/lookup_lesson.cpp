// Parameters of look-ups through levels.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

constexpr int kMostLevels = 90;

// Few, or more than are compared one by one, in turn.
int LevelsOf(const Scene& scene, int channel) {
  return 2 + (scene.roi().width * 5 + channel * 31) % (scene.roi().width % 3 == 0 ? kMostLevels - 2 : 20);
}

const int* NumbersOfLevels(Scene& scene) {
  auto* const numbers = reinterpret_cast<int*>(scene.Input(4 * sizeof(int)));
  for (int c = 0; c < 4; ++c) numbers[c] = LevelsOf(scene, c);
  return numbers;
}

// Levels at unequal distances, or values; with room for pointers of any width.
const float* const* Curves(Scene& scene, bool areLevels) {
  auto** const curves = reinterpret_cast<float**>(scene.Input(4 * sizeof(uint64_t)));
  for (int c = 0; c < 4; ++c) {
    curves[c] = reinterpret_cast<float*>(scene.Input(kMostLevels * sizeof(float)));
    curves[c][0] = static_cast<float>(scene.Any({-3000, -30000, 0, 11}));
    for (int k = 1; k < kMostLevels; ++k) {
      const float step = static_cast<float>(scene.random().Next() % 70000) / 128;
      curves[c][k] = areLevels ? curves[c][k - 1] + 0.25f + step : step * static_cast<float>(scene.Any({1, 100, -9}));
    }
  }
  return curves;
}

int MethodOf(const Scene& scene) { return scene.roi().width % 7 % 3; }

constexpr size_t kRecordBytes = 192 + 4 * 131072;

QvpDataType PixelsOf(const Scene& scene) {
  const Name name(scene.function().name);
  return name.layout.empty() ? +qvp32f : name.From().code;
}

// With one curve, or one for each channel.
const void* Record(Scene& scene) {
  auto* const spec = reinterpret_cast<QvpiLookupSpec*>(scene.Input(kRecordBytes));
  const int written = Name(scene.function().name).written, channels = scene.roi().width % 2 == 0 ? 1 : written;
  qvpiLookupInit(PixelsOf(scene), MethodOf(scene), Curves(scene, true), Curves(scene, false), NumbersOfLevels(scene),
                 channels, spec);
  return spec;
}

}  // namespace

bool LookupLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "nLevels") {
    argument = {NumbersOfLevels(scene)};
  } else if (name == "dataType") {
    argument = scene.roi().width % 4 == 0 ? qvp16s : PixelsOf(scene);
  } else if (name == "method") {
    argument = MethodOf(scene);
  } else if (name == "numChannels") {
    argument = 3;
  } else if (name == "pLevels" || name == "pValues") {
    argument = {Curves(scene, name == "pLevels")};
  } else if (name == "pSpec") {
    argument = {type.starts_with("const") ? Record(scene) : scene.Output(kRecordBytes)};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
