// Parameters of copies into a border and of orders of channels.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// The region of a scene is the destination; the source lies in its middle.
QvpiSize SourceSize(QvpiSize dst) { return {std::max(1, dst.width - 7), std::max(1, dst.height - 3)}; }
int Before(int dst, int src) { return (dst - src) / 2; }

int PixelBytes(const Scene& scene) {
  const Name name(scene.function().name);
  return name.channels * name.From().bytes;
}

}  // namespace

bool CopyBorderLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const QvpiSize dst = scene.roi(), src = SourceSize(dst);
  const int top = Before(dst.height, src.height), left = Before(dst.width, src.width), step = dst.width * 16 + 5;
  if (name == "srcRoiSize") {
    argument = src;
  } else if (name == "dstRoiSize") {
    argument = dst;
  } else if (name == "topBorderHeight") {
    argument = top;
  } else if (name == "leftBorderWidth") {
    argument = left;
  } else if (name == "srcDstStep") {
    argument = step;
  } else if (name == "pSrcDst") {
    argument = {scene.Output(size_t{1} * step * dst.height) + top * step + left * PixelBytes(scene)};
  } else {
    return false;
  }
  return true;
}

bool OrderLesson(Scene& scene, size_t place, Argument& argument) {
  if (scene.function().parameters[place].name != "dstOrder") return false;
  const Name name(scene.function().name);
  // One beyond the source's channels means the constant, more leave the channel alone, where there is a constant.
  const int entries = scene.function().Has("val") ? 5 : name.channels;
  uint8_t* const order = scene.Input(4 * sizeof(int));
  for (int i = 0; i < 4; ++i) {
    const int channel = static_cast<int>(scene.random().Next() % entries);
    std::memcpy(order + i * sizeof(int), &channel, sizeof(int));
  }
  argument = {order};
  return true;
}

}  // namespace test
