// Parameters of norms, sums, extrema, dot products, similarity and moments.
#include <algorithm>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Pointers to rows of numbers, with room for the same bytes on machines with pointers of any width.
const void* RowsOf(Scene& scene, const Element& element, int rows, int length) {
  uint8_t* const pointers = scene.Input(rows * sizeof(uint64_t));
  for (int k = 0; k < rows; ++k) {
    uint8_t* const row = scene.Input(length * element.bytes);
    scene.FillRows(element, row, length * element.bytes, 1, scene.Mostly());
    std::memcpy(pointers + k * sizeof(row), &row, sizeof(row));
  }
  return pointers;
}

// Of similarity: a region has one window at least, whose side depends on the scene.
QvpiSize WindowedRegion(const Scene& scene) {
  return {std::max(scene.roi().width, 2), std::max(scene.roi().height, 2)};
}
int WindowOf(const Scene& scene) {
  const QvpiSize roi = WindowedRegion(scene);
  return 2 + static_cast<int>(scene.choices().Next() % (std::min({roi.width, roi.height, 31}) - 1));
}
int WindowedStep(const Scene& scene, size_t place) {
  return WindowedRegion(scene).width * 16 + 17 * static_cast<int>(place + 1);
}
const void* WindowedImage(Scene& scene, size_t place) {
  const int step = WindowedStep(scene, place), height = WindowedRegion(scene).height;
  uint8_t* const image = scene.Input(size_t{1} * step * height);
  scene.FillRows(*PointedAt(scene.function().parameters[place].type), image, step, height, scene.Mostly());
  return image;
}

// Computed from a small image, so that there is something to ask.
const void* Moments(Scene& scene, bool isFilled) {
  auto* const state = reinterpret_cast<QvpiMomentState_64f*>(scene.Output(400));
  qvpiMomentInit_64f(state, qvpAlgHintFast);
  const uint8_t pixels[12] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, static_cast<uint8_t>(scene.roi().width), 250};
  if (isFilled) qvpiMoments64f_8u_C1R(pixels, 4, {4, 3}, state);
  return state;
}

}  // namespace

bool ReductionLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name.starts_with("pSrc")) {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "hint") {
    argument = scene.Any({0, qvpAlgHintFast, qvpAlgHintAccurate, 3});
  } else if (type.ends_with("*")) {
    argument = {scene.Output(4 * sizeof(double))};
  } else {
    return false;
  }
  return true;
}

bool WeightedRowsLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const int rows = 1 + scene.roi().height, length = scene.roi().width;
  if (name == "ppSrcRow") {
    argument = {RowsOf(scene, *PointedAt(type), rows, length)};
  } else if (name == "pTaps" || name == "pDst") {
    const Element& element = *PointedAt(type);
    const int n = name == "pTaps" ? rows : length;
    uint8_t* const numbers = name == "pTaps" ? scene.Input(n * element.bytes) : scene.Output(n * element.bytes);
    scene.FillRows(element, numbers, n * element.bytes, 1, PlainValue);
    argument = {numbers};
  } else {
    argument = name == "numRows" ? rows : length;
  }
  return true;
}

bool SimilarityLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name.starts_with("pSrc")) {
    argument = {WindowedImage(scene, place)};
  } else if (name.ends_with("Step")) {
    argument = WindowedStep(scene, place - 1);
  } else if (name == "roiSize") {
    argument = WindowedRegion(scene);
  } else if (name == "pValue") {
    argument = {scene.Output(4 * sizeof(double))};
  } else if (name == "windowSize") {
    argument = WindowOf(scene);
  } else if (name == "sigma") {
    argument = scene.Any({0, 1, 1000});
  } else if (name == "c1" || name == "c2") {
    argument = scene.Any({1, 7, 1000000});
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3, 4});
  } else if (name == "pBuffer") {
    int bytes = 0;
    qvpiSSIMGetBufferSize(WindowedRegion(scene), WindowOf(scene), Name(scene.function().name).channels, &bytes);
    argument = {scene.Input(bytes)};
  } else {
    return false;
  }
  return true;
}

bool MomentLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const int order = scene.roi().width % 4;
  if (name == "pSrc") {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "pState") {
    argument = {Moments(scene, type.starts_with("const"))};
  } else if (name == "mOrd" || name == "nOrd") {
    argument = name == "mOrd" ? order : scene.roi().height % (4 - order);
  } else if (name == "nChannel") {
    argument = 0;
  } else if (name == "roiOffset") {
    argument = QvpiPoint{5, -7};
  } else if (name == "pHm" || name == "pValue") {
    argument = {scene.Output(7 * sizeof(double))};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
