// Parameters of local binary patterns.
#include "tests/support/lessons.h"

namespace test {
namespace {

bool HasSmallMask(const Scene& scene) { return !scene.Has("16u_") && scene.choices().Next() % 2; }
QvpiSize MaskOf(const Scene& scene) { return HasSmallMask(scene) ? QvpiSize{3, 3} : QvpiSize{5, 5}; }

}  // namespace

bool PatternLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "mode") {
    argument = scene.Any({qvpLBPCode, qvpLBPRotation, qvpLBPUniform, qvpLBPUniformRotation});
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3});
  } else {
    return LearnFilter(scene, place, {{"maskSize", MaskOf(scene)}}, argument) || WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
