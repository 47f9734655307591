#include <stdexcept>

#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"
#include "tests/support/resizes.h"

namespace test {
namespace {

// Each scene has a ratio, a border and parameters of its own.
struct Manner {
  QvpiSize target;
  int border;
  float b, c;
  unsigned lobes;
  int smoothMethod;  // linear, cubic, Lanczos
  bool isAccurate, isShifted;
};

bool IsAntialiased(const Scene& scene) { return Has(scene, "Antialiasing"); }

Manner MannerOf(const Scene& scene) {
  constexpr float kCubic[][2] = {{0, 0.75f}, {1 / 3.0f, 1 / 3.0f}, {0.25f, 0.5f}};
  constexpr int kSmooth[] = {0, 1, 2};
  constexpr int kRatios[][2] = {{3, 5}, {1, 1}, {1, 4}, {1, 2}, {7, 4}, {3, 1}};
  Random random = scene.choices();
  const auto any = [&](const auto& list) -> const auto& { return list[random.Next() % std::size(list)]; };
  const auto along = [&](int n) {
    const auto& ratio = any(kRatios);
    const int length = n * ratio[0] / ratio[1];
    return Has(scene, "Super") ? std::min(length, n) : length;
  };
  const QvpiSize from = SourceSize(scene);
  const QvpiSize target{along(from.width), along(from.height)};
  const auto& cubic = any(kCubic);
  const int kind = random.Next() % 2 ? qvpBorderMirror : qvpBorderReplicate;
  // Antialiasing reaches further than what lies around the source.
  const int sides = IsAntialiased(scene) ? 0 : static_cast<int>(random.Next() & qvpBorderInMem);
  // Linear forms of 64-bit lengths repeat the edge only.
  const bool takesReplicateOnly = IsWide(scene) && Has(scene, "Linear") && !IsAntialiased(scene);
  return {target,
          takesReplicateOnly ? +qvpBorderReplicate : kind | sides,
          cubic[0],
          cubic[1],
          2 + random.Next() % 2,
          any(kSmooth),
          random.Next() % 2 != 0,
          random.Next() % 2 != 0};
}

// Of the pixels; queries are asked about bytes.
std::string TypeOf(const Scene& scene) {
  for (const char* type : {"64f", "32f", "16u", "16s"}) {
    if (Has(scene, type)) return type;
  }
  return "8u";
}

// By the function's name.
Resizing ResizingOf(const Scene& scene) {
  const Manner m = MannerOf(scene);
  const auto lobes = static_cast<int>(m.lobes);
  const bool isShifted = m.isShifted && !IsWide(scene) && Has(scene, "Super");
  const Resizing all[] = {{"Linear", qvpInterpolationLinear},
                          {"Cubic", qvpInterpolationCubic, false, m.b, m.c},
                          {"Lanczos", qvpInterpolationLanczos, false, 0, 0, lobes},
                          {"Super", qvpInterpolationSuper, false, 0, 0, 0, {isShifted * 0.25, isShifted * -1.5}},
                          {"Nearest", qvpInterpolationNearest}};
  Resizing resizing = all[IsAntialiased(scene) ? m.smoothMethod : 0];
  for (const Resizing& one : all) {
    if (Has(scene, one.name)) resizing = one;
  }
  resizing.isAntialiasing = IsAntialiased(scene);
  return resizing;
}

QvpStatus Init(const Scene& scene, QvpiResizeSpec* spec) {
  Qvp8u buffer[64];
  return InitResize(ResizingOf(scene), TypeOf(scene), SourceSize(scene), MannerOf(scene).target, IsWide(scene), spec,
                    buffer);
}

int RecordBytes(const Scene& scene) {
  int bytes = 0, init = 0;
  const bool isOfDoubles = IsDouble(scene) && !IsAntialiased(scene);
  const auto query = isOfDoubles ? qvpiResizeGetSize_64f : qvpiResizeGetSize_8u;
  if (query(SourceSize(scene), MannerOf(scene).target, ResizingOf(scene).interpolation, IsAntialiased(scene), &bytes,
            &init) < 0) {
    throw std::runtime_error("qvpiResizeGetSize");
  }
  return bytes;
}

const void* Record(Scene& scene) {
  const int bytes = RecordBytes(scene);
  if (Has(scene, "Init")) return scene.Output(bytes);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(Has(scene, "SetMode") ? scene.Output(bytes) : scene.Input(bytes));
  if (const QvpStatus status = Init(scene, spec); status < 0) {
    throw std::runtime_error("qvpiResizeInit " + std::to_string(status));
  }
  if (MannerOf(scene).isAccurate) qvpiResizeSetMode(qvpAlgHintAccurate, spec);  // where there is such a mode
  return spec;
}

const void* Buffer(Scene& scene) {
  const auto* const spec = static_cast<const QvpiResizeSpec*>(scene.arguments[scene.function().Find("pSpec")].pointer);
  const int channels = Name(scene.function().name).channels;
  const QvpiSize to = MannerOf(scene).target;
  int bytes = 0;
  QvpSizeL wide = 0;
  if (IsWide(scene)) {
    qvpiResizeGetBufferSize_L(spec, {to.width, to.height}, channels, &wide);
  } else {
    (IsDouble(scene) ? qvpiResizeGetBufferSize_64f : qvpiResizeGetBufferSize_8u)(spec, to, channels, &bytes);
  }
  return scene.Input(IsWide(scene) ? wide : bytes);
}

bool LearnChoices(const Scene& scene, std::string_view name, Argument& argument) {
  const Manner m = MannerOf(scene);
  const QvpiSize to = m.target;
  return Choose(name,
                {{"border", m.border},
                 {"interpolation", IsDouble(scene) ? +qvpInterpolationLinear : +qvpInterpolationCubic},
                 {"antialiasing", 0},
                 {"dataType", qvp32f},
                 {"numChannels", 3},
                 {"hint", qvpAlgHintAccurate},
                 {"numLobes", m.lobes},
                 {"valueB", m.b},
                 {"valueC", m.c},
                 {"shiftX", 0.25},
                 {"shiftY", -1.5},
                 {"dstOffset", QvpiPoint{0, 0}},
                 {"dstRoi", {nullptr, 0, 0, (to.width + 1) / 2, to.height}},
                 {"pBorderValue", {nullptr, 0}}},
                argument);
}

}  // namespace

bool ResizeLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  const QvpiSize to = MannerOf(scene).target;
  if (LearnChoices(scene, name, argument) || LearnImages(scene, name, to, argument)) return true;
  if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pInitBuf") {
    argument = {scene.Input(64)};
  } else if (name == "pBuffer") {
    argument = {Buffer(scene)};
  } else if (type.ends_with("*")) {
    argument = {IsWide(scene) ? scene.Input(32) : scene.Output(32)};  // of a query
  } else {
    return false;
  }
  return true;
}

}  // namespace test
