// What the lessons of geometric transforms share: a source image of a size of its own, with what sides in memory need
// around it.
#pragma once

#include <algorithm>

#include "tests/support/exports.h"

namespace test {

constexpr ptrdiff_t kLargestPixel = 32, kMargin = 3;

inline bool Has(const Scene& scene, const char* part) { return scene.Has(part); }
inline bool IsWide(const Scene& scene) { return scene.function().name.ends_with("_L"); }
inline bool IsDouble(const Scene& scene) { return scene.Has("_64f"); }

// Large enough for every method, and reduced, as super-sampling asks.
inline QvpiSize SourceSize(const Scene& scene) {
  return {std::max(scene.roi().width, 7), std::max(scene.roi().height, 7)};
}
inline ptrdiff_t StepOf(QvpiSize size, int more) { return (size.width + 2 * kMargin) * kLargestPixel + more; }

inline const void* Source(Scene& scene) {
  const std::string_view type = scene.function().parameters[scene.function().Find("pSrc")].type;
  const QvpiSize size = SourceSize(scene);
  const ptrdiff_t step = StepOf(size, 8), height = size.height + 2 * kMargin;
  uint8_t* const data = scene.Input(step * height);
  scene.FillRows(*PointedAt(type), data, step, static_cast<int>(height), scene.Mostly());
  return data + kMargin * (step + kLargestPixel);
}

// Images and sizes; `to` is the size of the destination.
inline bool LearnImages(Scene& scene, std::string_view name, QvpiSize to, Argument& argument) {
  const QvpiSize from = SourceSize(scene);
  if (name == "pSrc") {
    argument = {Source(scene)};
  } else if (name == "srcStep") {
    argument = StepOf(from, 8);
  } else if (name == "pDst") {
    argument = {scene.Output(StepOf(to, 24) * to.height)};
  } else if (name == "dstStep") {
    argument = StepOf(to, 24);
  } else if (name == "srcSize") {
    argument = from;
  } else if (name == "dstSize" || name == "dstRoiSize") {
    argument = to;
  } else {
    return false;
  }
  return true;
}

}  // namespace test
