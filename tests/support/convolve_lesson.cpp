// Parameters of convolutions and of matching: the second image has a size of its own, the destination what comes of
// both.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Each scene has a second image and a method of its own; the image is never larger than the first one.
struct Choice {
  QvpiSize second;
  QvpiMethod method;
};
Choice ChoiceOf(const Scene& scene) {
  constexpr int kMost = 19;
  Random random = scene.choices();
  const auto side = [&](int most) { return 1 + static_cast<int>(random.Next() % std::min(most, kMost)); };
  const int width = side(scene.roi().width), height = side(scene.roi().height);
  return {{width, height}, static_cast<QvpiMethod>(random.Next() % 3)};
}

// The largest of all shapes.
QvpiSize FullSize(const Scene& scene) {
  const QvpiSize first = scene.roi(), second = ChoiceOf(scene).second;
  return {first.width + second.width - 1, first.height + second.height - 1};
}
int OutputStep(const Scene& scene) { return FullSize(scene).width * 16 + 20; }

const void* Output(Scene& scene, std::string_view type) {
  const int step = OutputStep(scene), height = FullSize(scene).height;
  uint8_t* const image = scene.Output(size_t{1} * step * height);
  scene.FillRows(*PointedAt(type), image, step, height);
  return image;
}

int BufferSize(const Scene& scene) {
  const Name name(scene.function().name);
  const auto [second, method] = ChoiceOf(scene);
  int size = 0;
  if (qvpiConvolveGetBufferSize(scene.roi(), second, name.From().code, name.channels, method, &size)) {
    throw std::runtime_error("the size of a work buffer");
  }
  return size;
}

// ---- Matching: the second image is the template.

struct MatchChoice {
  QvpiMatchShape shape;
  QvpiMatchNorm norm;
};
MatchChoice MatchChoiceOf(const Scene& scene) {
  Random random = scene.choices();
  for (int i = 0; i < 3; ++i) random.Next();  // those of the template
  const auto shape = static_cast<QvpiMatchShape>(random.Next() % 3);
  return {shape, static_cast<QvpiMatchNorm>(random.Next() % 4)};
}

int MatchBufferSize(const Scene& scene) {
  const Name name(scene.function().name);
  const auto [tpl, method] = ChoiceOf(scene);
  const auto [shape, norm] = MatchChoiceOf(scene);
  int size = 0;
  if (qvpiMatchGetBufferSize(name.From().code, name.channels, scene.roi(), tpl, shape, norm, method, &size)) {
    throw std::runtime_error("the size of a work buffer");
  }
  return size;
}

}  // namespace

bool MatchLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "pSrc" || name == "pTpl") {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f});
  } else if (name == "pBuffer") {
    argument = {scene.Input(MatchBufferSize(scene))};
  } else {
    const auto [shape, norm] = MatchChoiceOf(scene);
    return Choose(
               name,
               {{"srcRoiSize", scene.roi()}, {"tplRoiSize", ChoiceOf(scene).second}, {"shape", shape}, {"norm", norm}},
               argument) ||
           ConvolveLesson(scene, place, argument);
  }
  return true;
}

bool ConvolveLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "pSrc1" || name == "pSrc2") {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "pDst") {
    argument = {Output(scene, type)};
  } else if (name == "divisor") {
    argument = scene.Any({1, 2, 64, 1000, -3, 100000, INT32_MIN});
  } else if (name == "dataType") {
    argument = scene.Any({qvp8u, qvp16s, qvp32f});
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3, 4});
  } else if (name == "pBuffer") {
    argument = {scene.Input(BufferSize(scene))};
  } else {
    const auto [second, method] = ChoiceOf(scene);
    return Choose(name,
                  {{"src1Size", scene.roi()}, {"src2Size", second}, {"dstStep", OutputStep(scene)}, {"method", method}},
                  argument);
  }
  return true;
}

}  // namespace test
