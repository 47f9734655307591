// Parameters of the filters that keep edges.
#include <cmath>

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
  const Disc disc = DiscOf(scene);
  return LearnFilter(scene, place,
                     {{"radius", disc.radius},
                      {"normType", disc.norm},
                      {"sigmaRange", disc.range},
                      {"sigmaSpace", disc.space},
                      {"dataType", disc.type},
                      {"numChannels", disc.channels}},
                     argument) ||
         WindowLesson(scene, place, argument);
}

bool LeastSquaresLesson(Scene& scene, size_t place, Argument& argument) {
  constexpr float kLambdas[] = {1, 0.1f, 0.5f, 0}, kPowers[] = {0.8f, 2, 0.3f, 1}, kEps[] = {1e-4f, 1, 1e-6f, 1e-3f};
  const Disc about = DiscOf(scene);
  const int turn = static_cast<int>(scene.choices().Next() % 4);
  return LearnFilter(scene, place,
                     {{"lambda", kLambdas[turn]},
                      {"power", kPowers[turn]},
                      {"eps", kEps[turn]},
                      {"numIterations", 1 + turn},
                      {"dataType", about.type},
                      {"numChannels", about.channels == 1 ? 1 : 3}},
                     argument);
}

bool WienerLesson(Scene& scene, size_t place, Argument& argument) {
  constexpr float kNoises[] = {0.01f, 0, 0.3f, 0.0001f};
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "noise" && type.ends_with('*')) {
    auto* const noise = reinterpret_cast<float*>(scene.Input(4 * sizeof(float)));
    for (int c = 0; c < 4; ++c) noise[c] = kNoises[scene.random().Next() % std::size(kNoises)];
    argument = {noise};
  } else if (name == "noise") {
    argument = kNoises[scene.random().Next() % std::size(kNoises)];
  } else {
    return LearnFilter(scene, place, {{"maskSize", MaskOf(scene)}}, argument) || WindowLesson(scene, place, argument);
  }
  return true;
}

bool LocalThresholdLesson(Scene& scene, size_t place, Argument& argument) {
  constexpr float kDeltas[] = {0, 2.5f, -3, 1e30f}, kSigmas[] = {1.5f, 0.3f, 1e-20f, 40};
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "valueGT" || name == "valueLE") {
    argument = scene.Constants(type);
  } else if (name == "delta") {
    argument = kDeltas[scene.random().Next() % std::size(kDeltas)];
  } else if (name == "sigma") {
    argument = kSigmas[scene.random().Next() % std::size(kSigmas)];
  } else {
    return LearnFilter(scene, place, {{"maskSize", MaskOf(scene)}, {"dataType", DiscOf(scene).type}}, argument) ||
           WindowLesson(scene, place, argument);
  }
  return true;
}

bool GuidedLesson(Scene& scene, size_t place, Argument& argument) {
  // Twice the reach is within what lies around images.
  constexpr QvpiSize kMasks[] = {{3, 3}, {5, 5}, {1, 1}, {7, 3}, {1, 9}, {9, 5}};
  constexpr float kEps[] = {0.01f, 0, 1, 0.0001f};
  const std::string_view name = scene.function().parameters[place].name;
  if (name == "pGuide" || name == "guideStep") return WindowLesson(scene, name == "guideStep", argument);
  Random random = scene.choices();
  const QvpiSize mask = kMasks[random.Next() % std::size(kMasks)];
  const uint32_t choice = random.Next();
  const int kind = choice % 2 ? qvpBorderMirror : qvpBorderReplicate;
  const Disc about = DiscOf(scene);
  return LearnFilter(scene, place,
                     {{"maskSize", mask},
                      {"eps", kEps[choice % std::size(kEps)]},
                      {"borderType", kind | static_cast<int>(random.Next() & qvpBorderInMem)},
                      {"dataType", about.type},
                      {"numChannels", about.channels}},
                     argument) ||
         WindowLesson(scene, place, argument);
}

}  // namespace test
