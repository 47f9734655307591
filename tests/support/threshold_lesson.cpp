// Parameters of thresholds, comparisons, counts, mirrors and transpositions.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// The same value for every channel, as a number and as an array.
Argument Same(Scene& scene, std::string_view type, int value) {
  Argument argument{nullptr, value};
  if (!type.ends_with("*")) return argument;
  const std::string element(type.substr(9, type.size() - 10));  // of "const Qvp8u*"
  WithType(element, [&]<class T>() {
    T* values = reinterpret_cast<T*>(scene.Input(4 * sizeof(T)));
    std::fill_n(values, 4, static_cast<T>(value));
    argument.pointer = values;
  });
  return argument;
}

// The destination of a mirror or transposition has room for the source and for the turned source.
int TurnedStep(QvpiSize roi) { return std::max(roi.width, roi.height) * 16 + 5; }

}  // namespace

bool ThresholdLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const std::string& function = scene.function().name;
  const QvpiSize roi = scene.roi();
  const bool turns = function.starts_with("qvpiTranspose_") || function.starts_with("qvpiMirror_");
  if (name == "threshold" || name == "thresholdLT" || name == "lowerBound") {
    argument = Same(scene, type, 40);
  } else if (name == "thresholdGT" || name == "upperBound") {
    argument = Same(scene, type, 90);
  } else if (name == "valueLT" || name == "valueGT") {
    argument = Same(scene, type, name == "valueLT" ? 7 : 100);
  } else if (name == "cmpOp") {
    argument.number = function.starts_with("qvpiThreshold") ? scene.random().Next() % 2 * 4 : scene.random().Next() % 5;
  } else if (name == "eps") {
    argument.number = 1000;
  } else if (name == "pThreshold" || name == "pCounts") {
    argument.pointer = scene.Output(4 * sizeof(int));
  } else if (name == "flip") {
    argument.number = scene.random().Next() % (scene.function().Find("pDst") < 0 ? 3 : 5);
  } else if (turns && name == "pDst") {
    argument.pointer = scene.Output(size_t{1} * TurnedStep(roi) * std::max(roi.width, roi.height));
  } else if (turns && name == "dstStep") {
    argument.number = TurnedStep(roi);
  } else if (function.starts_with("qvpiTranspose_") && function.ends_with("IR") && name == "roiSize") {
    argument.number = argument.second = std::min(roi.width, roi.height);
  } else {
    return false;
  }
  return true;
}

}  // namespace test
