// Parameters of the histogram of oriented gradients.
#include "tests/support/lessons.h"

namespace test {
namespace {

// Small windows, which fit most regions, and what each scene takes of them.
constexpr QvpiHOGConfig kConfigs[] = {{0, 2, 4, 2, 9, 3.0f, 0.2f, {4, 4}},
                                      {1, 2, 4, 4, 2, 1.0f, 0.5f, {8, 4}},
                                      {0, 4, 8, 4, 16, 4.0f, 9.0f, {8, 12}},
                                      {1, 3, 6, 3, 12, 100.0f, 0.1f, {9, 6}}};
constexpr int kLocations = 2;

const QvpiHOGConfig& ConfigOf(const Scene& scene) { return kConfigs[scene.choices().Next() % std::size(kConfigs)]; }
QvpiSize RegionOf(const Scene& scene) {
  const QvpiSize least = ConfigOf(scene).winSize;
  return {std::max(scene.roi().width, least.width), std::max(scene.roi().height, least.height)};
}
int StepOf(const Scene& scene) { return (RegionOf(scene).width + 2) * 12 + 5; }

const void* Record(Scene& scene) {
  int bytes = 0;
  qvpiHOGGetSize(&ConfigOf(scene), &bytes);
  uint8_t* const spec = scene.Input(bytes);  // no output: a refused Init takes its identification away
  qvpiHOGInit(&ConfigOf(scene), reinterpret_cast<QvpiHOGSpec*>(spec));
  return spec;
}

// With a rim of one pixel, for sides in memory.
const void* Source(Scene& scene, std::string_view type) {
  const int step = StepOf(scene), height = RegionOf(scene).height + 2;
  uint8_t* const image = scene.Input(size_t{1} * step * height);
  scene.FillRows(*PointedAt(type), image, step, height, scene.Mostly());
  return image + step + 12;
}

}  // namespace

bool HogLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const QvpiSize roi = RegionOf(scene), window = ConfigOf(scene).winSize;
  if (name == "pConfig") {
    argument = {&ConfigOf(scene)};
  } else if (name == "pHOGSpec") {
    argument = {Record(scene)};
  } else if (name == "pSrc") {
    argument = {Source(scene, type)};
  } else if (name == "srcStep") {
    argument = StepOf(scene);
  } else if (name == "roiSize") {
    argument = roi;
  } else if (name == "pLocation") {
    auto* const locations = reinterpret_cast<QvpiPoint*>(scene.Input(kLocations * sizeof(QvpiPoint)));
    locations[0] = {0, 0};
    locations[1] = {(roi.width - window.width) / 2, roi.height - window.height};
    argument = {locations};
  } else if (name == "nLocations") {
    argument = kLocations;
  } else if (name == "pDst") {
    argument = {scene.Output(kLocations * 200 * sizeof(float))};
  } else if (name == "borderID") {
    const int kind = scene.Any({qvpBorderReplicate, qvpBorderMirror, qvpBorderConst});
    argument = kind | static_cast<int>(scene.random().Next() & qvpBorderInMem);
  } else if (name == "borderValue") {
    argument = scene.Constants(type, PlainValue);
  } else if (name == "pBuffer") {
    argument = {scene.Input(size_t{12} * roi.width * roi.height)};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
