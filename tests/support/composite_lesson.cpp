// Parameters of compositing and of color keys.
#include <cmath>

#include "tests/support/lessons.h"

namespace test {
namespace {

// Half of all values are inside of most ranges.
Real Lower(const Element& element, Random& random) { return std::floor(element.highest * (random.Next() % 2) / 8); }
Real Upper(const Element& element, Random& random) { return element.highest - Lower(element, random); }

}  // namespace

bool CompositeLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "op") {
    argument = static_cast<int>(scene.choices().Next() % 12);
  } else if (name == "alpha1" || name == "alpha2") {
    argument = PointedAt(type)->isInteger ? Argument(scene.random().Next() % 256) : scene.Any({0, 1, 3, 4}) * 0.25;
  } else if (name == "lowerBound") {
    argument = scene.Constants(type, Lower);
  } else if (name == "upperBound") {
    argument = scene.Constants(type, Upper);
  } else {
    return false;
  }
  return true;
}

}  // namespace test
