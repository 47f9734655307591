// Parameters of minimum, maximum, erosion and dilation.
#include "tests/support/lessons.h"
#include "tests/support/preparation.h"

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

// The pixels that are selected are chosen after the record has its place.
const void* Record(Scene& scene) {
  const auto [mask, anchor] = PlacedOf(scene);
  const auto preparation = [&, mask = mask, anchor = anchor](const Qvp8u* selected) {
    return Preparation(scene.function(), scene.roi(), {{"pMask", {selected}}, {"maskSize", mask}, {"anchor", anchor}});
  };
  uint8_t* const spec = scene.Input(preparation(nullptr).sizes().spec);
  if (!scene.Has("Init")) preparation(Selected(scene)).Init(spec);
  return spec;
}

}  // namespace

bool ExtremesLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const auto [mask, anchor] = PlacedOf(scene);
  if (name == "pMask") return argument = {Selected(scene)}, true;
  if (name == "pSpec") return argument = {Record(scene)}, true;
  return LearnFilter(scene, place, {{"maskSize", mask}, {"anchor", anchor}}, argument) ||
         WindowLesson(scene, place, argument);
}

}  // namespace test
