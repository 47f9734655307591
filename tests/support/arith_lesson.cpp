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
  } else {
    return false;
  }
  return true;
}

}  // namespace test
