// Parameters of images that are made by formulas.
#include "tests/support/lessons.h"

namespace test {

bool RampLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "start" || name.starts_with("slope")) {
    argument = scene.Constants(type, PlainValue);
  } else if (name == "dstOffset") {
    argument = QvpiPoint{scene.Any({0, -7, 1000000, INT32_MIN}), scene.Any({0, 5, INT32_MAX})};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
