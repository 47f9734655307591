#include <cstring>

#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace test {
namespace {

constexpr ptrdiff_t kRoom = 4096;
constexpr double kMatrices[][3][3] = {{{0.9, 0.3, -1.5}, {-0.25, 1.1, 1.25}, {0.001, -0.002, 1}},
                                      {{1, 0, 3}, {0, 1, -2}, {0, 0, 1}},
                                      {{-0.5, 0, 30.25}, {0, 0.5, 0.5}, {0, 0.004, 1}},
                                      {{3.98, 0.01, -7}, {0.02, 2, 0}, {-0.02, 0.001, 1}},
                                      {{0.1, 4.5, 1}, {0.3, -0.2, 3}, {0.01, 0.03, 0.5}}};
// They do not fold, whatever the size of an image.
constexpr double kBilinear[][2][4] = {{{0.001, 0.9, 0.3, -1.5}, {-0.0005, -0.25, 1.1, 1.25}},
                                      {{0, 1, 0, 3}, {0, 0, 1, -2}},
                                      {{0.0005, -2, 0.1, 40}, {0.0008, 0.2, 1.5, -3}},
                                      {{0, 0.5, 0.01, 2}, {0, 0.001, 3, -9}}};
constexpr double kQuads[][4][2] = {{{0, 0}, {6, 0}, {6, 6}, {0, 6}},
                                   {{1, 0}, {30, 1}, {36, 4}, {2, 5}},
                                   {{-20, -9}, {70, -4}, {90, 40}, {-3, 30}},
                                   {{3, 9}, {5, -2}, {3.5, -3}, {1, 4}}};
constexpr double kQuad[4][2] = {{0, 0}, {5, 1}, {6, 6}, {-1, 4}};
constexpr double kValue[4] = {7.5, 80, 200, 33};

// Each scene has a transform, a border and a method of its own.
struct Manner {
  const double (*matrix)[3];
  const double (*bilinear)[4];
  const double (*from)[2];
  const double (*to)[2];
  int direction, border, isSmooth;
  double b, c;
  int interpolation;
};
Manner MannerOf(const Scene& scene) {
  constexpr int kKinds[] = {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent, qvpBorderTransparent};
  constexpr double kCubic[][2] = {{0, 0.5}, {1 / 3.0, 1 / 3.0}, {0.25, 0.75}};
  constexpr int kMethods[] = {qvpInterpolationNearest, qvpInterpolationLinear, qvpInterpolationCubic,
                              qvpInterpolationCubicClassic, qvpInterpolationLanczos};
  Random random = scene.choices();
  const auto any = [&](const auto& list) -> const auto& { return list[random.Next() % std::size(list)]; };
  const auto matrix = any(kMatrices);
  const auto bilinear = any(kBilinear);
  const auto from = any(kQuads), to = any(kQuads);
  const int kind = any(kKinds), sides = random.Next() % 2 ? static_cast<int>(random.Next() & qvpBorderInMem) : 0;
  const bool isSmooth = kind == qvpBorderTransparent && random.Next() % 2;
  const auto& cubic = any(kCubic);
  return {matrix,       bilinear, from,     to,       random.Next() % 3 == 0 ? qvpWarpForward : qvpWarpBackward,
          kind | sides, isSmooth, cubic[0], cubic[1], any(kMethods) | (random.Next() % 2 ? qvpSmoothEdge : 0)};
}

Kind KindOf(const Scene& scene) {
  if (Has(scene, "Quad")) return Kind::kBilinearQuad;
  if (Has(scene, "Back")) return Kind::kBilinearBack;
  return Has(scene, "Bilinear") ? Kind::kBilinear : Has(scene, "Perspective") ? Kind::kPerspective : Kind::kAffine;
}

int TapsOf(const Scene& scene, const Manner& m) {
  const bool isNamed = !Has(scene, "Bilinear");
  if (isNamed ? Has(scene, "Cubic") : m.interpolation == qvpInterpolationCubic) return 4;
  return (isNamed ? Has(scene, "Nearest") : m.interpolation == qvpInterpolationNearest) ? 1 : 2;
}

// A record for the call, made by the Init that belongs to the function's name.
QvpStatus Init(const Scene& scene, QvpiWarpSpec* spec) {
  const Name name(scene.function().name);
  const bool isCall = !name.layout.empty();  // or else asks for a size
  const Manner m = MannerOf(scene);
  Map map{KindOf(scene)};
  const double* const c = map.IsBilinear() ? m.bilinear[0] : m.matrix[0];
  std::copy(c, c + (map.IsBilinear() ? 8 : 9), map.c);
  std::memcpy(map.from, m.from, sizeof(map.from));
  std::memcpy(map.to, m.to, sizeof(map.to));
  map.direction = map.kind == Kind::kBilinearBack ? +qvpWarpBackward : m.direction;
  Rule rule{.taps = TapsOf(scene, m), .b = m.b, .c = m.c};
  std::copy(kValue, kValue + 4, rule.constant);
  return InitWarp(map, rule, isCall ? name.From().code : +qvp32f, isCall ? name.channels : 1, m.border,
                  SourceSize(scene), scene.roi(), m.isSmooth, IsWide(scene), spec);
}

const void* Record(Scene& scene) {
  if (Has(scene, "Init")) return scene.Output(kRoom);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(scene.Input(kRoom));
  return Init(scene, spec) < 0 ? nullptr : spec;
}

// Whole and half positions, places in the image and around it, and what is no place.
Real Coordinate(const Element& element, Random& random) {
  const uint32_t r = random.Next();
  if (r % 32 == 0) return EdgeValue(element, random);
  const Real place = static_cast<Real>(random.Next()) * 0x1p-32L;
  return r % 4 == 0 ? static_cast<int>(place * 24) / 2.0L - 1 : element.Stored(place * (r & 64 ? 12 : 80) - 2);
}

}  // namespace

bool RemapLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  const QvpiSize from = SourceSize(scene), to = scene.roi();
  if (name == "pxMap" || name == "pyMap") {
    uint8_t* const map = scene.Input(StepOf(to, 40) * to.height);
    scene.FillRows(*PointedAt(type), map, StepOf(to, 40), to.height, Coordinate);
    argument = {map};
  } else if (name.ends_with("MapStep")) {
    argument = StepOf(to, 40);
  } else if (name == "srcRoi") {
    const bool isWhole = scene.random().Next() % 2;
    argument = isWhole ? Argument(nullptr, 0, 0, from.width, from.height) : Argument(nullptr, 1, 1, 5, 5);
  } else if (name == "interpolation") {
    argument = MannerOf(scene).interpolation;
  } else {
    return LearnImages(scene, name, to, argument);
  }
  return true;
}

bool TransformLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  if (name == "srcRoi") {
    argument = {nullptr, 1, 1, 5, scene.roi().height + 3};
  } else if (name == "srcSize") {
    argument = SourceSize(scene);
  } else if (name == "srcQuad" || name == "dstQuad") {
    argument = {name == "srcQuad" ? MannerOf(scene).from : MannerOf(scene).to};
  } else if (name == "angle") {
    argument = scene.random().Next() % 100000 * 0.01 - 300;
  } else if (!type.ends_with("*") && !type.ends_with("]")) {
    argument = 10;
  } else if (!type.starts_with("const")) {
    argument = {scene.Output(128)};
  } else if (name == "quad") {
    argument = {kQuad};
  } else {
    argument = {Has(scene, "Bilinear") ? &kBilinear[0][0][0] : &MannerOf(scene).matrix[0][0]};
  }
  return true;
}

bool WarpLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  const Manner m = MannerOf(scene);
  const bool isQuery = Has(scene, "GetSize");
  if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "dataType") {
    const bool hasDoubles = !Has(scene, "Bilinear") || !IsWide(scene);
    argument = scene.Any({qvp8u, qvp16u, qvp16s, qvp32f, hasDoubles ? +qvp64f : +qvp32f});
  } else if (name.ends_with("Size") && type.ends_with("*")) {
    argument = {IsWide(scene) ? scene.Input(32) : scene.Output(32)};
  } else if (name == "pBuffer" || name == "pInitBuf") {
    argument = {scene.Input(kRoom)};
  } else {
    return Choose(name,
                  {{"dstRoiOffset", QvpiPoint{0, 0}},
                   {"borderType", isQuery ? +qvpBorderReplicate : m.border},
                   {"pBorderValue", {kValue}},
                   {"interpolation", qvpInterpolationCubic},
                   {"direction", m.direction},
                   {"numChannels", 3},
                   {"smoothEdge", m.isSmooth},
                   {"valueB", m.b},
                   {"valueC", m.c},
                   {"srcQuad", {m.from}},
                   {"dstQuad", {m.to}},
                   {"coeffs", {Has(scene, "Bilinear") ? &m.bilinear[0][0] : &m.matrix[0][0]}}},
                  argument) ||
           LearnImages(scene, name, scene.roi(), argument);
  }
  return true;
}

}  // namespace test
