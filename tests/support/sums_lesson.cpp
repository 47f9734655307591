// Parameters of the filters that sum pixels under a window.
#include "tests/support/lessons.h"

namespace test {
namespace {

// Each scene has a mask and an anchor of its own.
struct Placed {
  QvpiSize mask;
  QvpiPoint anchor;
};

Placed PlacedOf(const Scene& scene) {
  constexpr QvpiSize kMasks[] = {{3, 3}, {1, 1}, {5, 5}, {7, 2}, {8, 6}, {9, 9}, {2, 4}, {4, 1}, {6, 8}};
  Random random = scene.choices();
  const QvpiSize mask = kMasks[random.Next() % std::size(kMasks)];
  const auto below = [&](int n) { return static_cast<int>(random.Next() % n); };
  const int x = below(mask.width);
  return {mask, {x, below(mask.height)}};
}

}  // namespace

bool SumsLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [mask, anchor] = PlacedOf(scene);
  const bool isBox = scene.Has("FilterBox"), isRow = scene.Has("SumRow");
  const Argument size = isBox ? Argument(mask) : isRow ? mask.width : mask.height;
  const Argument at = isBox ? Argument(anchor) : isRow ? anchor.x : anchor.y;
  return LearnFilter(scene, place, {{"maskSize", size}, {"anchor", at}}, argument) ||
         WindowLesson(scene, place, argument);
}

}  // namespace test
