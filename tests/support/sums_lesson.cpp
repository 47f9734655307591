// Parameters of the filters that sum pixels under a window.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

bool IsBox(const Scene& scene) { return scene.Has("FilterBox"); }
bool IsRow(const Scene& scene) { return scene.Has("SumRow"); }

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

// Functions without images are asked about bytes of one channel.
int BufferSize(const Scene& scene) {
  const Name name(scene.function().name);
  const QvpiSize mask = PlacedOf(scene).mask, roi = scene.roi();
  const bool isImage = !name.layout.empty();
  const QvpDataType type = isImage ? name.From().code : qvp8u;
  const int channels = isImage ? name.channels : 1;
  int size = 0;
  const QvpStatus failed = IsBox(scene) ? qvpiFilterBoxBorderGetBufferSize(mask, roi, type, channels, &size)
                           : IsRow(scene)
                               ? qvpiFilterSumRowBorderGetBufferSize(mask.width, roi, type, channels, &size)
                               : qvpiFilterSumColumnBorderGetBufferSize(mask.height, roi, type, channels, &size);
  if (failed) throw std::runtime_error("the size of a work buffer");
  return size;
}

}  // namespace

bool SumsLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const auto [mask, anchor] = PlacedOf(scene);
  if (name == "maskSize") {
    argument = IsBox(scene) ? Argument(mask) : Argument(IsRow(scene) ? mask.width : mask.height);
  } else if (name == "anchor") {
    argument = IsBox(scene) ? Argument(anchor) : Argument(IsRow(scene) ? anchor.x : anchor.y);
  } else if (name == "pBuffer") {
    argument = {scene.Input(BufferSize(scene))};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
