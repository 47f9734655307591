// Parameters of the filters that sum across, then down.
#include "tests/support/lessons.h"
#include "tests/support/preparation.h"

namespace test {
namespace {

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

// The taps are chosen after the record has its place.
const void* Record(Scene& scene, const Manner& m, std::vector<Named> demand) {
  uint8_t* const spec = scene.Input(Preparation(scene.function(), scene.roi(), demand).sizes().spec);
  if (scene.Has("Init")) return spec;
  demand.push_back({"pRowKernel", {Kernel(scene, m, m.kernel.width)}});
  demand.push_back({"pColumnKernel", {Kernel(scene, m, m.kernel.height)}});
  Preparation(scene.function(), scene.roi(), demand).Init(spec, m.type == qvp16s ? "_16s" : "_32f");
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

}  // namespace

// Those without images are about bytes of one channel.
bool SeparableLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  const std::vector<Named> demand = {
      {"kernelSize", m.kernel}, {"kernelType", m.type}, {"divisor", m.divisor}, {"roundMode", m.rounding}};
  if (name == "pRowKernel") {
    argument = {Kernel(scene, m, m.kernel.width)};
  } else if (name == "pColumnKernel") {
    argument = {Kernel(scene, m, m.kernel.height)};
  } else if (name == "pSpec") {
    argument = {Record(scene, m, demand)};
  } else {
    return Choose(name, {{"srcType", qvp8u}, {"dstType", qvp8u}, {"numChannels", 1}}, argument) ||
           LearnFilter(scene, place, demand, argument) || WindowLesson(scene, place, argument);
  }
  return true;
}

bool GaussLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Bell b = BellOf(scene);
  return Choose(name, {{"dataType", qvp8u}, {"numChannels", 1}}, argument) ||
         LearnFilter(scene, place, {{"maskSize", b.mask}, {"sigmaX", b.sigmaX}, {"sigmaY", b.sigmaY}}, argument) ||
         WindowLesson(scene, place, argument);
}

}  // namespace test
