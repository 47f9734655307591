// Parameters of local binary patterns.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

bool HasSmallMask(const Scene& scene) { return !scene.Has("16u_") && scene.choices().Next() % 2; }
QvpiSize MaskOf(const Scene& scene) { return HasSmallMask(scene) ? QvpiSize{3, 3} : QvpiSize{5, 5}; }

int BufferSize(const Scene& scene) {
  const Name name(scene.function().name);
  int size = 0;
  if (qvpiFilterLBPBorderGetBufferSize(MaskOf(scene), scene.roi(), name.From().code, name.channels, &size)) {
    throw std::runtime_error("the size of a work buffer of patterns");
  }
  return size;
}

}  // namespace

bool PatternLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "maskSize") {
    argument = MaskOf(scene);
  } else if (name == "mode") {
    argument = scene.Any({qvpLBPCode, qvpLBPRotation, qvpLBPUniform, qvpLBPUniformRotation});
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3});
  } else if (name == "pBuffer") {
    argument = {scene.Input(BufferSize(scene))};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
