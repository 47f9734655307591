// Parameters of minimum, maximum, erosion and dilation.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Each scene has a mask and an anchor of its own.
struct Placed {
  QvpiSize mask;
  QvpiPoint anchor;
};

Placed PlacedOf(const Scene& scene) {
  constexpr QvpiSize kMasks[] = {{3, 3}, {1, 1}, {5, 5}, {1, 7}, {7, 1}, {2, 4}, {9, 9}, {6, 8}, {4, 1}};
  Random random = scene.choices();
  const QvpiSize mask = kMasks[random.Next() % std::size(kMasks)];
  const auto below = [&](int n) { return static_cast<int>(random.Next() % n); };
  const int x = below(mask.width);
  return {mask, {x, below(mask.height)}};
}

bool IsMorphology(const Scene& scene) { return scene.Has("Morphology") || scene.function().Has("pSpec"); }

// Sizes that functions without images ask for are about bytes of one channel.
struct Sizes {
  int spec = 0, buffer = 0;

  explicit Sizes(const Scene& scene) {
    const Name name(scene.function().name);
    const bool isImage = !name.layout.empty();
    const QvpiSize mask = PlacedOf(scene).mask;
    const QvpDataType type = isImage ? name.From().code : qvp8u;
    const int channels = isImage ? name.channels : 1;
    const QvpStatus failed = IsMorphology(scene)
                                 ? qvpiFilterMorphologyBorderGetSize(mask, scene.roi(), type, channels, &spec, &buffer)
                                 : qvpiFilterMinBorderGetBufferSize(mask, scene.roi(), type, channels, &buffer);
    if (failed) throw std::runtime_error("the sizes of a filter of extremes");
  }
};

// Two of three pixels, all of them in every fourth scene.
const Qvp8u* Selected(Scene& scene) {
  const QvpiSize mask = PlacedOf(scene).mask;
  Qvp8u* const selected = scene.Input(mask.width * mask.height);
  Random random = scene.choices();
  const bool isFull = random.Next() % 4 == 0;
  for (int i = 0; i < mask.width * mask.height; ++i) {
    selected[i] = isFull || random.Next() % 3 ? static_cast<Qvp8u>(1 + i) : 0;
  }
  selected[0] = 1;
  return selected;
}

const void* Record(Scene& scene) {
  auto* const spec = reinterpret_cast<QvpiFilterMorphologyBorderSpec*>(scene.Input(Sizes(scene).spec));
  if (scene.Has("Init")) return spec;
  const auto [mask, anchor] = PlacedOf(scene);
  if (qvpiFilterMorphologyBorderInit(Selected(scene), mask, anchor, spec)) {
    throw std::runtime_error("qvpiFilterMorphologyBorderInit");
  }
  return spec;
}

}  // namespace

bool ExtremesLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "maskSize") {
    argument = PlacedOf(scene).mask;
  } else if (name == "anchor") {
    argument = PlacedOf(scene).anchor;
  } else if (name == "pMask") {
    argument = {Selected(scene)};
  } else if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pBuffer") {
    argument = {scene.Input(Sizes(scene).buffer)};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
