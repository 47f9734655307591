// Parameters of frames whose chroma is subsampled.
#include <algorithm>

#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

constexpr int kFractions[] = {qvpDecimate1of2, qvpDecimate1of3, qvpDecimate1of4, qvpDecimate1of8,
                              qvpDecimate2of3, qvpDecimate3of4, qvpDecimate3of8};

// Each plane of a frame has a step of its own, and all have rows enough for luma.
constexpr int kPlanes = 3;
ptrdiff_t StepOfPlane(int width, int plane, int more) { return 4 * (width + 8) + 2 * (more + 5 * plane); }

const void* Steps(Scene& scene, int width, int more) {
  auto* const steps = reinterpret_cast<int*>(scene.Input(kPlanes * sizeof(int)));
  for (int i = 0; i < kPlanes; ++i) steps[i] = static_cast<int>(StepOfPlane(width, i, more));
  return steps;
}

const void* Planes(Scene& scene, size_t place, QvpiSize size, int more) {
  const bool isOutput = scene.function().parameters[place].name == "pDst";
  const Element& element = *PointedAt(scene.function().parameters[place].type);
  auto* const planes =
      reinterpret_cast<const void**>(scene.Input(kPlanes * sizeof(uint64_t)));  // of one size everywhere
  for (int i = 0; i < Name(scene.function().name).written; ++i) {
    const ptrdiff_t step = StepOfPlane(size.width, i, more);
    uint8_t* const plane = isOutput ? scene.Output(step * size.height) : scene.Input(step * size.height);
    scene.FillRows(element, plane, step, size.height);
    planes[i] = plane;
  }
  return planes;
}

// Of the source of the largest fraction.
QvpiSize Eightfold(QvpiSize size) { return {8 * size.width + 8, 8 * size.height + 8}; }

}  // namespace

bool FrameLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const QvpiSize to = scene.roi();
  if (name == "pSrc") {
    argument = {Planes(scene, place, Eightfold(to), 1)};
  } else if (name == "srcStep") {
    argument = {Steps(scene, Eightfold(to).width, 1)};
  } else if (name == "pDst") {
    argument = {Planes(scene, place, to, 2)};
  } else if (name == "dstStep") {
    argument = {Steps(scene, to.width, 2)};
  } else if (name == "dstSize") {
    argument = to;
  } else if (name == "fraction") {
    argument = kFractions[scene.choices().Next() % std::size(kFractions)];
  } else {
    return false;
  }
  return true;
}

}  // namespace test
