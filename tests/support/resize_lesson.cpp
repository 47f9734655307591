#include <stdexcept>

#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Each scene has a ratio, a border and parameters of its own.
struct Manner {
  QvpiSize target;
  int border;
  float b, c;
  unsigned lobes;
  int smoothMethod;
  bool isAccurate, isShifted;
};

bool IsAntialiased(const Scene& scene) { return Has(scene, "Antialiasing"); }

Manner MannerOf(const Scene& scene) {
  constexpr float kCubic[][2] = {{0, 0.75f}, {1 / 3.0f, 1 / 3.0f}, {0.25f, 0.5f}};
  constexpr int kSmooth[] = {qvpInterpolationLinear, qvpInterpolationCubic, qvpInterpolationLanczos};
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
QvpDataType TypeOf(const Scene& scene) {
  for (const char* type : {"64f", "32f", "16u", "16s"}) {
    if (Has(scene, type)) return ElementOf(type).code;
  }
  return qvp8u;
}

int MethodOf(const Scene& scene) {
  for (const auto& [name, method] : {std::pair{"Linear", qvpInterpolationLinear},
                                     {"Cubic", qvpInterpolationCubic},
                                     {"Lanczos", qvpInterpolationLanczos},
                                     {"Super", qvpInterpolationSuper},
                                     {"Nearest", qvpInterpolationNearest}}) {
    if (Has(scene, name)) return method;
  }
  return IsAntialiased(scene) ? MannerOf(scene).smoothMethod : +qvpInterpolationLinear;
}

QvpStatus InitSmooth(const Scene& scene, QvpiSize s, QvpiSize d, QvpiResizeSpec* spec, Qvp8u* buffer) {
  const Manner m = MannerOf(scene);
  const QvpiSizeL sl{s.width, s.height}, dl{d.width, d.height};
  const QvpDataType type = TypeOf(scene);
  switch (MethodOf(scene)) {
    case qvpInterpolationLinear:
      if (IsWide(scene)) return qvpiResizeAntialiasingLinearInit_L(sl, dl, type, spec, buffer);
      return (type == qvp64f ? qvpiResizeAntialiasingLinearInit_64f : qvpiResizeAntialiasingLinearInit)(s, d, spec,
                                                                                                        buffer);
    case qvpInterpolationCubic:
      if (IsWide(scene)) return qvpiResizeAntialiasingCubicInit_L(sl, dl, type, m.b, m.c, spec, buffer);
      return (type == qvp64f ? qvpiResizeAntialiasingCubicInit_64f : qvpiResizeAntialiasingCubicInit)(s, d, m.b, m.c,
                                                                                                      spec, buffer);
    default:
      if (IsWide(scene)) return qvpiResizeAntialiasingLanczosInit_L(sl, dl, type, m.lobes, spec, buffer);
      return (type == qvp64f ? qvpiResizeAntialiasingLanczosInit_64f : qvpiResizeAntialiasingLanczosInit)(s, d, m.lobes,
                                                                                                          spec, buffer);
  }
}

// The record of a call, by the Init that belongs to the function's name; records of bytes serve all but doubles.
QvpStatus Init(const Scene& scene, QvpiResizeSpec* spec) {
  const Manner m = MannerOf(scene);
  const QvpiSize s = SourceSize(scene), d = m.target;
  const QvpiSizeL sl{s.width, s.height}, dl{d.width, d.height};
  const QvpDataType type = TypeOf(scene);
  Qvp8u buffer[64];
  if (IsAntialiased(scene)) return InitSmooth(scene, s, d, spec, buffer);
  switch (MethodOf(scene)) {
    case qvpInterpolationNearest:
      return IsWide(scene) ? qvpiResizeNearestInit_L(sl, dl, type, spec) : qvpiResizeNearestInit_8u(s, d, spec);
    case qvpInterpolationSuper:
      if (IsWide(scene)) return qvpiResizeSuperInit_L(sl, dl, type, spec);
      return m.isShifted ? qvpiResizeSuperShiftInit_8u(s, d, 0.25, -1.5, spec) : qvpiResizeSuperInit_8u(s, d, spec);
    case qvpInterpolationCubic:
      return IsWide(scene) ? qvpiResizeCubicInit_L(sl, dl, type, m.b, m.c, spec, buffer)
                           : qvpiResizeCubicInit_32f(s, d, m.b, m.c, spec, buffer);
    case qvpInterpolationLanczos:
      return IsWide(scene) ? qvpiResizeLanczosInit_L(sl, dl, type, m.lobes, spec, buffer)
                           : qvpiResizeLanczosInit_16u(s, d, m.lobes, spec, buffer);
    default:
      if (IsWide(scene)) return qvpiResizeLinearInit_L(sl, dl, type, spec);
      return (type == qvp64f ? qvpiResizeLinearInit_64f : qvpiResizeLinearInit_8u)(s, d, spec);
  }
}

int RecordBytes(const Scene& scene) {
  int bytes = 0, init = 0;
  const bool isOfDoubles = IsDouble(scene) && !IsAntialiased(scene);
  const auto query = isOfDoubles ? qvpiResizeGetSize_64f : qvpiResizeGetSize_8u;
  if (query(SourceSize(scene), MannerOf(scene).target, MethodOf(scene), IsAntialiased(scene), &bytes, &init) < 0) {
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
  if (name == "border") {
    argument = m.border;
  } else if (name == "interpolation") {
    argument = IsDouble(scene) ? +qvpInterpolationLinear : +qvpInterpolationCubic;
  } else if (name == "antialiasing") {
    argument = 0;
  } else if (name == "dataType") {
    argument = qvp32f;
  } else if (name == "numChannels") {
    argument = 3;
  } else if (name == "hint") {
    argument = qvpAlgHintAccurate;
  } else if (name == "numLobes") {
    argument = m.lobes;
  } else if (name == "valueB" || name == "valueC") {
    argument = name == "valueB" ? m.b : m.c;
  } else if (name == "shiftX" || name == "shiftY") {
    argument = name == "shiftX" ? 0.25 : -1.5;
  } else {
    return false;
  }
  return true;
}

}  // namespace

bool ResizeLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  const QvpiSize to = MannerOf(scene).target;
  if (name == "dstOffset") {
    argument = QvpiPoint{0, 0};
  } else if (name == "dstRoi") {
    argument = {nullptr, 0, 0, (to.width + 1) / 2, to.height};
  } else if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pInitBuf") {
    argument = {scene.Input(64)};
  } else if (name == "pBuffer") {
    argument = {Buffer(scene)};
  } else if (name == "pBorderValue") {
    argument = Argument(nullptr, 0);
  } else if (LearnChoices(scene, name, argument) || LearnImages(scene, name, to, argument)) {
    return true;
  } else if (type.ends_with("*")) {
    argument = {IsWide(scene) ? scene.Input(32) : scene.Output(32)};  // of a query
  } else {
    return false;
  }
  return true;
}

}  // namespace test
