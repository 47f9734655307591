// Parameters of the histogram of oriented gradients.
#include "tests/support/lessons.h"

namespace test {
namespace {

// A window that fits every region: 4 x 4 pixels, one block of four cells.
constexpr QvpiHOGConfig kConfig{0, 2, 4, 2, 9, 3.0f, 0.2f, {4, 4}};

// Random bits would make NaN of all descriptors.
void PutFinite(Scene& scene, uint8_t* pixels, QvpiSize roi, size_t step) {
  for (int y = 0; y < roi.height; ++y) {
    for (int i = 0; i < 3 * roi.width; ++i) {
      const float value = static_cast<float>(scene.random().Next() % 10000) / 100;
      std::memcpy(pixels + y * step + i * sizeof(float), &value, sizeof(value));
    }
  }
}

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
    const size_t step = size_t{1} * roi.width * 12 + 5;
    uint8_t* const pixels = scene.Input(roi.height * step);
    if (function.starts_with("qvpiHOG_32f")) PutFinite(scene, pixels, roi, step);
    argument.pointer = pixels;
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
