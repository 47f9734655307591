// Parameters of look-up tables and palettes.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// An array of pointers to tables, with room for the same bytes on machines with pointers of any width. Every other
// scene has one table for all channels.
const void* TableForEach(Scene& scene, size_t bytes) {
  auto** const tables = reinterpret_cast<const uint8_t**>(scene.Input(4 * sizeof(uint64_t)));
  for (int c = 0; c < 4; ++c) tables[c] = c == 0 || scene.roi().width % 2 == 1 ? scene.Input(bytes) : tables[0];
  return tables;
}

// Of the index of a palette, every other time all that there are.
int BitsOf(const Scene& scene, int bytes) {
  return scene.roi().width % 2 == 1 ? 8 * bytes : 1 + scene.roi().width / 2 % (8 * bytes);
}

constexpr size_t kLargestEntry = 4 * sizeof(Qvp32f);

}  // namespace

bool TableLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const int indexBytes = Name(scene.function().name).From().bytes;
  if (name == "pTable") {
    const size_t bytes = indexBytes == 1 ? 256 : 65536 * sizeof(Qvp16u);
    argument = type.ends_with("* const*") ? TableForEach(scene, bytes) : scene.Input(bytes);
  } else if (name == "pPalette") {
    argument = {scene.Input((size_t{1} << BitsOf(scene, indexBytes)) * kLargestEntry)};
  } else if (name == "nBits") {
    argument = BitsOf(scene, indexBytes);
  } else {
    return false;
  }
  return true;
}

}  // namespace test
