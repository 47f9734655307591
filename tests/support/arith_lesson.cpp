// What the parameters of the arithmetic functions mean.
#include "tests/support/lessons.h"

namespace test {

bool ArithLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "scaleFactor") {
    constexpr int kFactors[] = {0, 1, 3, -2, 8};
    argument.number = kFactors[scene.random().Next() % 5];
  } else if (name == "roundMode") {
    argument.number = scene.random().Next() % 3;
  } else if (name == "mVal" || name == "vMin") {
    argument.number = 2;
  } else if (name == "aVal" || name == "vMax") {
    argument.number = 60;
  } else if (name == "hint") {
    argument.number = 1 + scene.random().Next() % 2;
  } else if (name == "loVal" || name == "hiVal") {
    argument.number = name == "loVal" ? 3 : 200;
  } else if (name.ends_with("BitOffset")) {
    argument.number = scene.random().Next() % 8;
  } else {
    return false;
  }
  return true;
}

}  // namespace test
