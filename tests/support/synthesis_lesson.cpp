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

// The region is part of an image that is a little larger.
bool JaehneLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  Random random = scene.choices();
  const QvpiPoint offset{static_cast<int>(random.Next() % 9), static_cast<int>(random.Next() % 9)};
  if (name == "imageSize") {
    argument = QvpiSize{scene.roi().width + offset.x, scene.roi().height + 2 * offset.y};
  } else if (name == "minPeriod") {
    argument = scene.Any({2, 3, 65536});
  } else if (name == "dstOffset") {
    argument = offset;
  } else {
    return false;
  }
  return true;
}

}  // namespace test
