// Parameters of arithmetic, shifts, conversions and scaling.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

Real NotZero(const Element& element, Random& random) {
  for (;;) {
    const Real value = EdgeValue(element, random);
    if (value != 0) return value;
  }
}

Real Count(const Element&, Random& random) { return random.Next() % 4 == 0 ? random.Next() : random.Next() % 18; }

// A range, of which neither end is infinite.
Argument EndOfRange(Scene& scene, bool isFirst) {
  return isFirst ? scene.Any({-1000, -3, 0}) + scene.random().Next() * 0x1p-32 : scene.Any({7, 254, 255, 70000});
}

}  // namespace

bool DivisionLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name != "value") return false;
  argument = scene.Constants(type, NotZero);
  return true;
}

// Every other scene has one count for all channels.
bool ShiftLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name != "value") return false;
  argument = scene.Constants(type, Count);
  if (scene.roi().width % 2 == 0) return true;
  auto* const counts = static_cast<Qvp32u*>(const_cast<void*>(argument.pointer));
  std::fill(counts + 1, counts + Name(scene.function().name).written, counts[0]);
  return true;
}

bool ScaleLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "mVal") {
    argument = scene.Any({1, 2, -3, 0}) * (scene.Any({0, 1}) ? 1 : 0.3);
  } else if (name == "aVal") {
    argument = scene.Any({0, 1, 60, -40000}) + scene.Any({0, 1}) * 0.25;
  } else if (name == "vMin" || name == "vMax") {
    argument = EndOfRange(scene, name == "vMin");
  } else if (name == "loVal" || name == "hiVal" || name == "threshold") {
    argument = scene.Any({3, 100, 127, 255});
  } else if (name.ends_with("BitOffset")) {
    argument = scene.random().Next() % 8;
  } else {
    return false;
  }
  return true;
}

}  // namespace test
