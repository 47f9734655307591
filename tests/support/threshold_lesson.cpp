// Parameters of thresholds, comparisons, counts, mirrors, transpositions and turns.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Lower bounds are below zero or small, upper ones large: no range is empty.
Real LowerBound(const Element& element, Random& random) {
  const Real bounds[] = {element.lowest, 0, 1, 40, 40.5L};
  return element.Stored(bounds[random.Next() % (element.isInteger ? 4 : 5)]);
}
Real UpperBound(const Element& element, Random& random) {
  const Real bounds[] = {element.highest, 41, 90, 127, 255.5L};
  return std::min(element.Stored(bounds[random.Next() % (element.isInteger ? 4 : 5)]), element.highest);
}

// Quarters of a turn, the axis of a mirror or transposition, and the size that it makes of the region's.
int TurnsOf(const Scene& scene) { return static_cast<int>(scene.choices().Next() % 8) - 3; }
int AxisOf(const Scene& scene) {
  if (scene.Has("Transpose")) return qvpAxis45;
  if (scene.Has("RotateQuarter")) return TurnsOf(scene) % 2 != 0 ? qvpAxis45 : qvpAxisBoth;
  return static_cast<int>(scene.choices().Next() % (scene.function().Has("pDst") ? 5 : 3));  // squares in place
}
QvpiSize TurnedSize(const Scene& scene) {
  const QvpiSize roi = scene.roi();
  return AxisOf(scene) < qvpAxis45 ? roi : QvpiSize{roi.height, roi.width};
}
int TurnedStep(const Scene& scene) { return TurnedSize(scene).width * 16 + 5; }

}  // namespace

bool ThresholdLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "thresholdLT" || name == "lowerBound") {
    argument = scene.Constants(type, LowerBound);
  } else if (name == "thresholdGT" || name == "upperBound") {
    argument = scene.Constants(type, UpperBound);
  } else if (name == "threshold" || name == "valueLT" || name == "valueGT") {
    argument = scene.Constants(type);
  } else if (name == "cmpOp") {
    const bool isThreshold = scene.function().name.starts_with("qvpiThreshold");
    argument = isThreshold ? scene.Any({qvpCmpLess, qvpCmpGreater}) : scene.Any({0, 1, 2, 3, 4});
  } else if (name == "eps") {
    argument = scene.Any({0, 1, 1000}) * 0.5;
  } else if (name == "pThreshold" || name == "pCounts") {
    argument = scene.Output(4 * sizeof(int));
  } else {
    return false;
  }
  return true;
}

bool TurnLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const int side = std::min(scene.roi().width, scene.roi().height);
  const bool inPlace = !scene.function().Has("pDst");
  if (name == "flip") {
    argument = AxisOf(scene);
  } else if (name == "turns") {
    argument = TurnsOf(scene);
  } else if (name == "pDst") {
    argument = {scene.Output(size_t{1} * TurnedStep(scene) * TurnedSize(scene).height)};
  } else if (name == "dstStep") {
    argument = TurnedStep(scene);
  } else if (name == "roiSize" && inPlace && scene.Has("Transpose")) {
    argument = QvpiSize{side, side};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
