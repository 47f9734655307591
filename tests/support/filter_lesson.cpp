// Parameters of the general filter.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"
#include "tests/support/preparation.h"

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

// For records of 8-bit pixels and of floats, which Inits are asked about, as well as for those of an image.
Preparation PreparationFor(const Scene& scene, const Manner& m, QvpDataType pixels, const void* kernel = nullptr) {
  return {scene.function(),
          scene.roi(),
          {{"kernelSize", m.kernel},
           {"kernelType", m.kernelType},
           {"dataType", pixels},
           {"divisor", m.divisor},
           {"roundMode", m.rounding},
           {"pKernel", {kernel}}}};
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

const void* RecordFor(Scene& scene, const Manner& m, QvpDataType pixels) {
  uint8_t* const memory = scene.Input(PreparationFor(scene, m, pixels).sizes().spec);
  const char* const kind = m.kernelType == qvp16s ? "_16s" : m.kernelType == qvp32f ? "_32f" : "_64f";
  PreparationFor(scene, m, pixels, Kernel(scene, m)).Init(memory, kind);
  auto* const spec = reinterpret_cast<QvpiFilterBorderSpec*>(memory);
  if (qvpiFilterBorderSetMode(qvpAlgHintFast, m.offset, spec)) throw std::runtime_error("qvpiFilterBorderSetMode");
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
    argument = {scene.Input(PreparationFor(scene, m, pixels).sizes().spec)};
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
  const Manner m = MannerOf(scene, pixels);
  if (name == "pSrc") {
    argument = {Source(scene, type)};
  } else if (name == "pSpec") {
    argument = {RecordFor(scene, m, pixels)};
  } else if (name == "borderValue") {
    argument = scene.Constants(type, PlainValue);
  } else if (name == "pBuffer") {
    argument = {scene.Input(PreparationFor(scene, m, pixels).sizes().buffer)};
  } else {
    return Choose(name,
                  {{"kernelSize", m.kernel},
                   {"srcStep", StepOf(scene.roi())},
                   {"roiSize", scene.roi()},
                   {"dstRoiSize", scene.roi()},
                   {"numChannels", std::max(parts.channels, 1)},
                   {"hint", qvpAlgHintFast},
                   {"divisor", m.divisor},
                   {"offset", m.offset},
                   {"dataType", qvp32f},
                   {"kernelType", qvp32f},
                   {"borderType", m.border}},
                  argument);
  }
  return true;
}

}  // namespace test
