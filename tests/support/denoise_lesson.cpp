// Parameters of the filters that keep edges.
#include <cmath>
#include <stdexcept>

#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

struct Disc {
  QvpDataType type = qvp8u;
  int channels = 1, radius;
  QvpNormType norm;
  float range, space;
};

// The radius is within what lies around images.
Disc DiscOf(const Scene& scene) {
  constexpr int kRadii[] = {1, 2, 3, 5, 7, 8}, kNorms[] = {qvpNormL1, qvpNormL2};
  constexpr float kRanges[] = {3, 20, 200, INFINITY, 1e-30f}, kSpaces[] = {0.3f, 1, 3, INFINITY};
  Random random = scene.choices();
  const auto any = [&](const auto& list) { return list[random.Next() % std::size(list)]; };
  Disc disc{.radius = any(kRadii), .norm = any(kNorms), .range = any(kRanges), .space = any(kSpaces)};
  const Name name(scene.function().name);
  if (!name.layout.empty()) disc.type = name.From().code, disc.channels = name.channels;
  return disc;
}

QvpiSize MaskOf(const Scene& scene) {
  constexpr QvpiSize kMasks[] = {{3, 3}, {5, 5}, {1, 1}, {7, 3}, {1, 9}, {15, 5}};
  return kMasks[scene.choices().Next() % std::size(kMasks)];
}

}  // namespace

bool BilateralLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Disc disc = DiscOf(scene);
  int spec = 0, buffer = 0;
  if (qvpiFilterBilateralBorderGetSize(disc.radius, scene.roi(), disc.type, disc.channels, &spec, &buffer)) {
    throw std::runtime_error("qvpiFilterBilateralBorderGetSize");
  }
  if (name == "radius") {
    argument = disc.radius;
  } else if (name == "normType") {
    argument = disc.norm;
  } else if (name == "sigmaRange" || name == "sigmaSpace") {
    argument = name == "sigmaRange" ? disc.range : disc.space;
  } else if (name == "dataType") {
    argument = disc.type;
  } else if (name == "numChannels") {
    argument = disc.channels;
  } else if (name == "pBuffer") {
    argument = {scene.Input(buffer)};
  } else if (name == "pSpec") {
    auto* const record = reinterpret_cast<QvpiFilterBilateralBorderSpec*>(scene.Input(spec));
    argument = {record};
    if (!scene.Has("Init") && qvpiFilterBilateralBorderInit(disc.radius, disc.norm, disc.range, disc.space, disc.type,
                                                            disc.channels, record)) {
      throw std::runtime_error("qvpiFilterBilateralBorderInit");
    }
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

bool LeastSquaresLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Disc about = DiscOf(scene);
  Random random = scene.choices();
  const int turn = static_cast<int>(random.Next() % 4);
  constexpr float kLambdas[] = {1, 0.1f, 0.5f, 0}, kPowers[] = {0.8f, 2, 0.3f, 1}, kEps[] = {1e-4f, 1, 1e-6f, 1e-3f};
  const int iterations = 1 + turn, channels = about.channels == 1 ? 1 : 3;
  int spec = 0, buffer = 0;
  if (qvpiFilterLeastSquaresGetSize(scene.roi(), about.type, channels, &spec, &buffer)) {
    throw std::runtime_error("qvpiFilterLeastSquaresGetSize");
  }
  if (name == "lambda") {
    argument = kLambdas[turn];
  } else if (name == "power" || name == "eps") {
    argument = name == "power" ? kPowers[turn] : kEps[turn];
  } else if (name == "numIterations") {
    argument = iterations;
  } else if (name == "dataType") {
    argument = about.type;
  } else if (name == "numChannels") {
    argument = channels;
  } else if (name == "pBuffer") {
    argument = {scene.Input(buffer)};
  } else if (name == "pSpec") {
    auto* const record = reinterpret_cast<QvpiFilterLeastSquaresSpec*>(scene.Input(spec));
    argument = {record};
    if (!scene.Has("Init") && qvpiFilterLeastSquaresInit(scene.roi(), kLambdas[turn], kPowers[turn], kEps[turn],
                                                         iterations, about.type, channels, record)) {
      throw std::runtime_error("qvpiFilterLeastSquaresInit");
    }
  } else {
    return false;
  }
  return true;
}

bool WienerLesson(Scene& scene, size_t place, Argument& argument) {
  constexpr float kNoises[] = {0.01f, 0, 0.3f, 0.0001f};
  const auto& [type, name] = scene.function().parameters[place];
  const QvpiSize mask = MaskOf(scene);
  const Disc about = DiscOf(scene);
  if (name == "maskSize") {
    argument = mask;
  } else if (name == "noise" && type.ends_with('*')) {
    auto* const noise = reinterpret_cast<float*>(scene.Input(4 * sizeof(float)));
    for (int c = 0; c < 4; ++c) noise[c] = kNoises[scene.random().Next() % std::size(kNoises)];
    argument = {noise};
  } else if (name == "noise") {
    argument = kNoises[scene.random().Next() % std::size(kNoises)];
  } else if (name == "pBuffer") {
    int size = 0;
    if (qvpiFilterWienerBorderGetBufferSize(mask, scene.roi(), about.type, about.channels, &size)) {
      throw std::runtime_error("qvpiFilterWienerBorderGetBufferSize");
    }
    argument = {scene.Input(size)};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

bool LocalThresholdLesson(Scene& scene, size_t place, Argument& argument) {
  constexpr float kDeltas[] = {0, 2.5f, -3, 1e30f}, kSigmas[] = {1.5f, 0.3f, 1e-20f, 40};
  const auto& [type, name] = scene.function().parameters[place];
  const QvpiSize mask = MaskOf(scene);
  if (name == "maskSize") {
    argument = mask;
  } else if (name == "valueGT" || name == "valueLE") {
    argument = scene.Constants(type);
  } else if (name == "delta") {
    argument = kDeltas[scene.random().Next() % std::size(kDeltas)];
  } else if (name == "sigma") {
    argument = kSigmas[scene.random().Next() % std::size(kSigmas)];
  } else if (name == "dataType") {
    argument = DiscOf(scene).type;
  } else if (name == "pBuffer") {
    const auto query =
        scene.Has("Gauss") ? qvpiThresholdLocalGaussBorderGetBufferSize : qvpiThresholdLocalBoxBorderGetBufferSize;
    int size = 0;
    if (query(mask, scene.roi(), DiscOf(scene).type, &size)) throw std::runtime_error("qvpiThresholdLocal");
    argument = {scene.Input(size)};
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

bool GuidedLesson(Scene& scene, size_t place, Argument& argument) {
  // Twice the reach is within what lies around images.
  constexpr QvpiSize kMasks[] = {{3, 3}, {5, 5}, {1, 1}, {7, 3}, {1, 9}, {9, 5}};
  constexpr float kEps[] = {0.01f, 0, 1, 0.0001f};
  const std::string_view name = scene.function().parameters[place].name;
  Random random = scene.choices();
  const QvpiSize mask = kMasks[random.Next() % std::size(kMasks)];
  const Disc about = DiscOf(scene);
  if (name == "pGuide") {
    return WindowLesson(scene, 0, argument);
  } else if (name == "guideStep") {
    return WindowLesson(scene, 1, argument);
  } else if (name == "maskSize") {
    argument = mask;
  } else if (name == "eps") {
    argument = kEps[random.Next() % std::size(kEps)];
  } else if (name == "borderType") {
    const bool isMirror = random.Next() % 2;
    argument = (isMirror ? qvpBorderMirror : qvpBorderReplicate) | static_cast<int>(random.Next() & qvpBorderInMem);
  } else if (name == "pBuffer") {
    int size = 0;
    if (scene.Has("Color")
            ? qvpiFilterGuidedColorBorderGetBufferSize(mask, scene.roi(), about.type, &size)
            : qvpiFilterGuidedBorderGetBufferSize(mask, scene.roi(), about.type, about.channels, &size)) {
      throw std::runtime_error("the size of a guided filter's work buffer");
    }
    argument = {scene.Input(size)};
  } else if (name == "dataType") {
    argument = about.type;
  } else if (name == "numChannels") {
    argument = about.channels;
  } else {
    return WindowLesson(scene, place, argument);
  }
  return true;
}

}  // namespace test
