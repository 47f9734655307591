// Parameters of the histogram of oriented gradients.
#include "tests/support/lessons.h"

namespace test {
namespace {

// A window that fits every region: 4 x 4 pixels, one block of four cells.
constexpr QvpiHOGConfig kConfig{0, 2, 4, 2, 9, 3.0f, 0.2f, {4, 4}};

}  // namespace

bool HogLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const std::string& function = scene.function().name;
  if (!function.starts_with("qvpiHOG")) return false;
  const QvpiSize roi{std::max(scene.roi().width, 4), std::max(scene.roi().height, 4)};
  if (name == "pConfig") {
    argument.pointer = &kConfig;
  } else if (name == "pHOGSpec") {
    int bytes = 0;
    qvpiHOGGetSize(&kConfig, &bytes);
    uint8_t* const spec = scene.Input(bytes);  // no output: a refused Init takes its identification away
    qvpiHOGInit(&kConfig, reinterpret_cast<QvpiHOGSpec*>(spec));
    argument.pointer = spec;
  } else if (name == "pSrc") {
    argument.pointer = scene.Input(size_t{1} * roi.height * (roi.width * 12 + 5));
  } else if (name == "srcStep") {
    argument.number = roi.width * 12 + 5;
  } else if (name == "roiSize") {
    argument = {nullptr, roi.width, roi.height};
  } else if (name == "pLocation") {
    static constexpr QvpiPoint kLocations[] = {{0, 0}, {0, 0}};
    argument.pointer = kLocations;
  } else if (name == "nLocations") {
    argument.number = 2;
  } else if (name == "pDst") {
    argument.pointer = scene.Output(2 * 4 * 9 * sizeof(float));
  } else if (name == "borderID") {
    static constexpr int kBorders[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
    argument.number = kBorders[scene.random().Next() % 3];
  } else if (name == "borderValue") {
    static constexpr float kValue[3] = {0.5f, 1, 2};
    argument.pointer = kValue;
  } else if (name == "pBuffer") {
    argument.pointer = scene.Input(size_t{12} * roi.width * roi.height);
  } else if (name.ends_with("Size")) {
    argument.pointer = scene.Output(sizeof(int));
  } else {
    return false;
  }
  return true;
}

}  // namespace test
