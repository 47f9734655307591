// Parameters of the filters that have a mask, a border and a work buffer.
#include "tests/support/lessons.h"
#include "tests/support/preparation.h"

namespace test {
namespace {

// What may lie around an image on sides in memory: more than masks reach.
constexpr int kMargin = 8;
int SourceStep(QvpiSize roi) { return (roi.width + 2 * kMargin) * 32 + 5; }

// Each scene has a mask and a border of its own.
QvpiSize MaskOf(const Scene& scene) {
  if (scene.Has("Roberts")) return {2, 2};
  const int side = scene.Has("Scharr") || scene.choices().Next() % 2 ? 3 : 5;
  return {side, side};
}

QvpiBorderType BorderOf(const Scene& scene) {
  constexpr int kKinds[] = {qvpBorderReplicate, qvpBorderConst, qvpBorderMirror};
  Random random = scene.choices();
  random.Next();
  const int kinds = scene.Has("FilterSobel_") ? 2 : 3;
  return kKinds[random.Next() % kinds] | static_cast<int>(random.Next() & qvpBorderInMem);
}

const void* Source(Scene& scene, std::string_view type, bool isInPlace) {
  const int step = SourceStep(scene.roi()), height = scene.roi().height + 2 * kMargin;
  const size_t bytes = size_t{1} * step * height;
  uint8_t* const image = isInPlace ? scene.Output(bytes) : scene.Input(bytes);
  scene.FillRows(*PointedAt(type), image, step, height, scene.Mostly());
  return image + kMargin * step + kMargin * 32;
}

// Steps of floats are multiples of their size.
int OutputStep(const Scene& scene, size_t place) { return scene.roi().width * 16 + 20 * static_cast<int>(place + 1); }

const void* Output(Scene& scene, size_t place, std::string_view type) {
  const int step = OutputStep(scene, place);
  uint8_t* const image = scene.Output(size_t{1} * step * scene.roi().height);
  scene.FillRows(*PointedAt(type), image, step, scene.roi().height);
  return image;
}

}  // namespace

bool LearnFilter(Scene& scene, size_t place, const std::vector<Named>& demand, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  for (const Named& choice : demand) {
    if (choice.name == name) return argument = choice.value, true;
  }
  const Preparation preparation(scene.function(), scene.roi(), demand);
  if (name == "pBuffer") return argument = {scene.Input(preparation.sizes().buffer)}, true;
  if (name != "pSpec") return false;
  uint8_t* const spec = scene.Input(preparation.sizes().spec);
  if (!scene.Has("Init")) preparation.Init(spec);
  argument = {spec};
  return true;
}

bool WindowLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "pSrc" || name == "pSrcDst") {
    argument = {Source(scene, type, name == "pSrcDst")};
  } else if (name == "srcStep" || name == "srcDstStep") {
    argument = SourceStep(scene.roi());
  } else if (name == "pDst" || name == "pGx" || name == "pGy" || name == "pMagnitude" || name == "pAngle") {
    argument = {Output(scene, place, type)};
  } else if (name.ends_with("Step")) {
    argument = OutputStep(scene, place - 1);
  } else if (name == "normType") {
    argument = scene.Any({qvpNormL1, qvpNormL2, qvpNormInf});
  } else if (name == "borderType") {
    argument = BorderOf(scene);
  } else if (name == "borderValue") {
    argument = scene.Constants(type, PlainValue);
  } else if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f});
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3, 4});
  } else {
    return LearnFilter(scene, place, {{"maskSize", MaskOf(scene)}}, argument);
  }
  return true;
}

}  // namespace test
