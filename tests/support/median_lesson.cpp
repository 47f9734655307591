// Parameters of medians.
#include "tests/support/lessons.h"

namespace test {
namespace {

bool HasVectors(const Scene& scene) { return scene.Has("Vector"); }

// Each scene has a mask of its own; those of margins reach no farther than these.
QvpiSize MaskOf(const Scene& scene) {
  constexpr QvpiSize kMasks[] = {{3, 3}, {5, 5}, {1, 1},  {7, 7},   {1, 7},  {3, 5},
                                 {7, 3}, {9, 9}, {17, 1}, {15, 15}, {17, 17}};
  constexpr int kOfVectors = 7;
  return kMasks[scene.choices().Next() % (HasVectors(scene) ? kOfVectors : std::size(kMasks))];
}

QvpiBorderType BorderOf(const Scene& scene) {
  Random random = scene.choices();
  random.Next();
  const int kind = random.Next() % 2 ? qvpBorderReplicate : qvpBorderConst;
  return kind | static_cast<int>(random.Next() & qvpBorderInMem);
}

}  // namespace

bool MedianLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "weight") {
    argument = scene.Any({1, 2, 3, 4, 5, 9, 24, INT32_MAX});
  } else if (name == "normType") {
    argument = scene.Any({qvpNormL1, qvpNormL2});
  } else if (name == "borderType") {
    argument = BorderOf(scene);
  } else if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp32f});
  } else if (name == "numChannels") {
    argument = HasVectors(scene) ? scene.Any({3, 4}) : scene.Any({1, 3, 4});
  } else {
    return LearnFilter(scene, place, {{"maskSize", MaskOf(scene)}}, argument) || WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
