// Parameters of the filters that sum across, then down.
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

struct Sizes {
  int spec = 0, buffer = 0;
};

// What of its scene a function is about; those without images are about bytes of one channel.
struct Subject {
  QvpDataType from, to;
  int channels;

  explicit Subject(const Scene& scene) : from(qvp8u), to(qvp8u), channels(1) {
    const Name name(scene.function().name);
    if (name.layout.empty()) return;
    from = name.From().code;
    to = name.To().code;
    channels = name.channels;
  }
};

// ---- The separable filter. Each scene has kernels, a way to round and a form of sums of its own.

struct Manner {
  QvpiSize kernel;
  QvpDataType type;
  int limit, divisor;
  QvpRoundMode rounding;
};

Manner MannerOf(const Scene& scene) {
  constexpr QvpiSize kKernels[] = {{3, 4}, {1, 1}, {3, 3}, {5, 5}, {1, 7}, {7, 1}, {2, 2}, {9, 9}, {15, 3}, {4, 3}};
  constexpr int kLimits[] = {2, 12, 1000, 32767}, kDivisors[] = {1, 50, 1024, -7, 4096, 9};
  Random random = scene.choices();
  const auto any = [&](const auto& list) { return list[random.Next() % std::size(list)]; };
  const bool isFloat = scene.Has("_32f") || (!scene.Has("Init") && random.Next() % 3 == 0);
  return {any(kKernels), isFloat ? qvp32f : qvp16s, any(kLimits), any(kDivisors), static_cast<int>(random.Next() % 3)};
}

const void* Kernel(Scene& scene, const Manner& m, int taps) {
  const Element& element = ElementOf(m.type == qvp16s ? "16s" : "32f");
  uint8_t* const kernel = scene.Input(taps * element.bytes);
  for (int i = 0; i < taps; ++i) {
    const int k = static_cast<int>(scene.random().Next() % (2 * m.limit + 1)) - m.limit;
    element.write(kernel + i * element.bytes, element.isInteger ? k : k / 128.0L);
  }
  return kernel;
}

Sizes SeparableSizes(const Scene& scene, const Manner& m) {
  const Subject s(scene);
  Sizes sizes;
  if (qvpiFilterSeparableBorderGetSize(m.kernel, scene.roi(), s.from, s.to, m.type, s.channels, &sizes.spec,
                                       &sizes.buffer)) {
    throw std::runtime_error("qvpiFilterSeparableBorderGetSize");
  }
  return sizes;
}

const void* SeparableRecord(Scene& scene, const Manner& m) {
  const Subject s(scene);
  auto* spec = reinterpret_cast<QvpiFilterSeparableBorderSpec*>(scene.Input(SeparableSizes(scene, m).spec));
  if (scene.Has("Init")) return spec;
  const void *const row = Kernel(scene, m, m.kernel.width), *const column = Kernel(scene, m, m.kernel.height);
  const QvpStatus failed =
      m.type == qvp16s
          ? qvpiFilterSeparableBorderInit_16s(static_cast<const Qvp16s*>(row), static_cast<const Qvp16s*>(column),
                                              m.kernel, m.divisor, s.from, s.to, s.channels, m.rounding, spec)
          : qvpiFilterSeparableBorderInit_32f(static_cast<const Qvp32f*>(row), static_cast<const Qvp32f*>(column),
                                              m.kernel, s.from, s.to, s.channels, m.rounding, spec);
  if (failed) throw std::runtime_error("qvpiFilterSeparableBorderInit");
  return spec;
}

// ---- Gauss

struct Bell {
  QvpiSize mask;
  float sigmaX, sigmaY;
};

Bell BellOf(const Scene& scene) {
  constexpr QvpiSize kMasks[] = {{3, 3}, {1, 1}, {5, 5}, {1, 7}, {7, 1}, {9, 5}, {15, 3}};
  constexpr float kSigmas[] = {0.5f, 0.8f, 1.1f, 3, 20};
  Random random = scene.choices();
  const auto any = [&](const auto& list) { return list[random.Next() % std::size(list)]; };
  return {any(kMasks), any(kSigmas), any(kSigmas)};
}

Sizes GaussSizes(const Scene& scene) {
  const Subject s(scene);
  Sizes sizes;
  if (qvpiFilterGaussBorderGetSize(BellOf(scene).mask, scene.roi(), s.from, s.channels, &sizes.spec, &sizes.buffer)) {
    throw std::runtime_error("qvpiFilterGaussBorderGetSize");
  }
  return sizes;
}

const void* GaussRecord(Scene& scene) {
  const Subject s(scene);
  const Bell b = BellOf(scene);
  auto* spec = reinterpret_cast<QvpiFilterGaussBorderSpec*>(scene.Input(GaussSizes(scene).spec));
  if (scene.Has("Init")) return spec;
  if (qvpiFilterGaussBorderInit(b.mask, b.sigmaX, b.sigmaY, s.from, s.channels, spec)) {
    throw std::runtime_error("qvpiFilterGaussBorderInit");
  }
  return spec;
}

}  // namespace

bool SeparableLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  if (name == "kernelSize") {
    argument = m.kernel;
  } else if (name == "pRowKernel") {
    argument = {Kernel(scene, m, m.kernel.width)};
  } else if (name == "pColumnKernel") {
    argument = {Kernel(scene, m, m.kernel.height)};
  } else if (name == "srcType" || name == "dstType") {
    argument = qvp8u;
  } else if (name == "kernelType") {
    argument = m.type;
  } else if (name == "numChannels") {
    argument = 1;
  } else if (name == "divisor") {
    argument = m.divisor;
  } else if (name == "roundMode") {
    argument = m.rounding;
  } else if (name == "pSpec") {
    argument = {SeparableRecord(scene, m)};
  } else if (name == "pBuffer") {
    argument = {scene.Input(SeparableSizes(scene, m).buffer)};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

bool GaussLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Bell b = BellOf(scene);
  if (name == "maskSize") {
    argument = b.mask;
  } else if (name == "sigmaX" || name == "sigmaY") {
    argument = name == "sigmaX" ? b.sigmaX : b.sigmaY;
  } else if (name == "dataType") {
    argument = qvp8u;
  } else if (name == "numChannels") {
    argument = 1;
  } else if (name == "pSpec") {
    argument = {GaussRecord(scene)};
  } else if (name == "pBuffer") {
    argument = {scene.Input(GaussSizes(scene).buffer)};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
