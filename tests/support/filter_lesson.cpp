// Parameters of the general filter.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// What may lie around an image on sides in memory: more than kernels reach.
constexpr int kMargin = 8;
int StepOf(QvpiSize roi) { return (roi.width + 2 * kMargin) * 32 + 5; }

// Each scene has a kernel, a way to round and a border of its own.
struct Manner {
  QvpiSize kernel;
  QvpDataType kernelType;  // integers or floats where the pixels leave the choice
  int divisor, offset, limit;
  QvpRoundMode rounding;
  QvpiBorderType border;
};

Manner MannerOf(const Scene& scene, QvpDataType pixels) {
  constexpr QvpiSize kKernels[] = {{3, 4}, {1, 1}, {3, 3},  {5, 5}, {1, 7}, {7, 1},
                                   {2, 2}, {9, 9}, {15, 3}, {4, 3}, {3, 2}};
  constexpr int kDivisors[] = {1, 50, 1024, -7, 4096, 9}, kOffsets[] = {0, 3, -77}, kLimits[] = {2, 12, 1000, 32767};
  constexpr int kKinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
  Random random = scene.choices();
  const auto any = [&](const auto& list) { return list[random.Next() % std::size(list)]; };
  const bool isFloat = pixels == qvp32f || pixels == qvp64f, takesFloats = random.Next() % 3 == 0;
  Manner m{any(kKernels),
           isFloat       ? pixels
           : takesFloats ? qvp32f
                         : qvp16s,
           any(kDivisors),
           any(kOffsets),
           any(kLimits),
           static_cast<int>(random.Next() % 3),
           any(kKinds) | static_cast<int>(random.Next() & qvpBorderInMem)};
  if (pixels != qvp8u && pixels != qvp16u) m.offset = 0;  // the others have none
  if (pixels == qvp64f) m.rounding = qvpRoundNear;
  return m;
}

struct Sizes {
  int spec, buffer;
};
Sizes SizesFor(const Scene& scene, const Manner& m, QvpDataType pixels, int channels) {
  Sizes sizes;
  if (qvpiFilterBorderGetSize(m.kernel, scene.roi(), pixels, m.kernelType, channels, &sizes.spec, &sizes.buffer)) {
    throw std::runtime_error("qvpiFilterBorderGetSize");
  }
  return sizes;
}

const void* Kernel(Scene& scene, const Manner& m) {
  const Element& element = ElementOf(m.kernelType == qvp16s ? "16s" : m.kernelType == qvp32f ? "32f" : "64f");
  const int n = m.kernel.width * m.kernel.height;
  uint8_t* const kernel = scene.Input(n * element.bytes);
  for (int i = 0; i < n; ++i) {
    const int k = static_cast<int>(scene.random().Next() % (2 * m.limit + 1)) - m.limit;
    element.write(kernel + i * element.bytes, element.isInteger ? k : k / 128.0L);
  }
  return kernel;
}

QvpStatus Init(Scene& scene, const Manner& m, QvpDataType pixels, int channels, QvpiFilterBorderSpec* spec) {
  const void* const kernel = Kernel(scene, m);
  if (m.kernelType == qvp16s) {
    return qvpiFilterBorderInit_16s(static_cast<const Qvp16s*>(kernel), m.kernel, m.divisor, pixels, channels,
                                    m.rounding, spec);
  }
  if (m.kernelType == qvp32f) {
    return qvpiFilterBorderInit_32f(static_cast<const Qvp32f*>(kernel), m.kernel, pixels, channels, m.rounding, spec);
  }
  return qvpiFilterBorderInit_64f(static_cast<const Qvp64f*>(kernel), m.kernel, pixels, channels, m.rounding, spec);
}

const void* RecordFor(Scene& scene, QvpDataType pixels, int channels) {
  const Manner m = MannerOf(scene, pixels);
  auto* spec = reinterpret_cast<QvpiFilterBorderSpec*>(scene.Input(SizesFor(scene, m, pixels, channels).spec));
  const bool isReady =
      Init(scene, m, pixels, channels, spec) == 0 && qvpiFilterBorderSetMode(qvpAlgHintFast, m.offset, spec) == 0;
  if (!isReady) throw std::runtime_error("qvpiFilterBorderInit");
  return spec;
}

const void* Source(Scene& scene, std::string_view type) {
  const int step = StepOf(scene.roi()), height = scene.roi().height + 2 * kMargin;
  uint8_t* const image = scene.Input(size_t{1} * step * height);
  scene.FillRows(*PointedAt(type), image, step, height, scene.Mostly());
  return image + kMargin * step + kMargin * 32;
}

}  // namespace

bool FilterInitLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const QvpDataType kernelType = scene.Has("Init_16s") ? qvp16s : scene.Has("Init_64f") ? qvp64f : qvp32f;
  const QvpDataType pixels = kernelType == qvp16s ? qvp8u : kernelType;
  Manner m = MannerOf(scene, pixels);
  m.kernelType = kernelType;
  if (name == "pKernel") {
    argument = {Kernel(scene, m)};
  } else if (name == "pSpec") {
    // No output: a refused Init takes its identification away.
    argument = {scene.Input(SizesFor(scene, m, pixels, 1).spec)};
  } else if (name == "dataType") {
    argument = pixels;
  } else if (name == "roundMode") {
    argument = m.rounding;
  } else {
    return FilterLesson(scene, place, argument);
  }
  return true;
}

bool FilterLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const Name parts(scene.function().name);
  const QvpDataType pixels = parts.layout.empty() ? qvp8u : parts.From().code;
  const int channels = std::max(parts.channels, 1);
  const Manner m = MannerOf(scene, pixels);
  if (name == "kernelSize") {
    argument = m.kernel;
  } else if (name == "dstRoiSize") {
    argument = scene.roi();
  } else if (name == "pSrc") {
    argument = {Source(scene, type)};
  } else if (name == "srcStep") {
    argument = StepOf(scene.roi());
  } else if (name == "roiSize") {
    argument = scene.roi();
  } else if (name == "numChannels") {
    argument = channels;
  } else if (name == "hint") {
    argument = qvpAlgHintFast;
  } else if (name == "divisor") {
    argument = m.divisor;
  } else if (name == "offset") {
    argument = m.offset;
  } else if (name == "dataType" || name == "kernelType") {
    argument = qvp32f;
  } else if (name == "pSpec") {
    argument = {RecordFor(scene, pixels, channels)};
  } else if (name == "borderType") {
    argument = m.border;
  } else if (name == "borderValue") {
    argument = scene.Constants(type, PlainValue);
  } else if (name == "pBuffer") {
    argument = {scene.Input(SizesFor(scene, m, pixels, channels).buffer)};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
