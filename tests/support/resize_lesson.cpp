#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr ptrdiff_t kRoom = 1 << 18;

QvpiSize TargetSize(const Scene& scene) {
  const QvpiSize from = SourceSize(scene);
  return {from.width * 3 / 5, from.height * 2 / 3};
}

template <class Plain, class Wide, class... A>
QvpStatus Either(bool isWide, Plain plain, Wide wide, A... arguments) {
  return isWide ? wide(arguments...) : plain(arguments...);
}

// A record for the call, made by the Init that belongs to the function's name.
QvpStatus Init(const Scene& scene, QvpiResizeSpec* spec) {
  const QvpiSize s = SourceSize(scene), d = TargetSize(scene);
  const QvpiSizeL sl{s.width, s.height}, dl{d.width, d.height};
  const bool is8u = Has(scene, "_8u"), isWide = IsWide(scene);
  const QvpDataType type = is8u ? qvp8u : IsDouble(scene) ? qvp64f : qvp32f;
  Qvp8u buffer[64];
  if (Has(scene, "Nearest"))
    return isWide ? qvpiResizeNearestInit_L(sl, dl, type, spec) : qvpiResizeNearestInit_8u(s, d, spec);
  if (Has(scene, "Super"))
    return isWide ? qvpiResizeSuperInit_L(sl, dl, type, spec) : qvpiResizeSuperInit_8u(s, d, spec);
  if (Has(scene, "Antialiasing_")) {
    return isWide ? qvpiResizeAntialiasingCubicInit_L(sl, dl, type, 0.25f, 0.5f, spec, buffer)
                  : qvpiResizeAntialiasingCubicInit(s, d, 0.25f, 0.5f, spec, buffer);
  }
  if (Has(scene, "Cubic")) {
    if (isWide) return qvpiResizeCubicInit_L(sl, dl, type, 0, 0.75f, spec, buffer);
    return (is8u ? qvpiResizeCubicInit_8u : qvpiResizeCubicInit_32f)(s, d, 0, 0.75f, spec, buffer);
  }
  if (Has(scene, "Lanczos")) {
    if (isWide) return qvpiResizeLanczosInit_L(sl, dl, type, 3, spec, buffer);
    return (is8u ? qvpiResizeLanczosInit_8u : qvpiResizeLanczosInit_32f)(s, d, 3, spec, buffer);
  }
  if (isWide) return qvpiResizeLinearInit_L(sl, dl, type, spec);
  return (IsDouble(scene) ? qvpiResizeLinearInit_64f
          : is8u          ? qvpiResizeLinearInit_8u
                          : qvpiResizeLinearInit_32f)(s, d, spec);
}

const void* Record(Scene& scene) {
  if (Has(scene, "Init")) return scene.Output(kRoom);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(Has(scene, "SetMode") ? scene.Output(kRoom) : scene.Input(kRoom));
  if (Has(scene, "SetMode"))
    return qvpiResizeLinearInit_8u(SourceSize(scene), TargetSize(scene), spec) < 0 ? nullptr : spec;
  return Init(scene, spec) < 0 ? nullptr : spec;
}

}  // namespace

bool ResizeLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string& function = scene.function().name;
  if (!function.starts_with("qvpiResize") || function.starts_with("qvpiResizeYUV")) return false;
  const auto [type, name] = scene.function().parameters[place];
  const QvpiSize from = SourceSize(scene), to = TargetSize(scene);
  if (name == "pSrc")
    argument.pointer = Source(scene);
  else if (name == "pDst")
    argument.pointer = scene.Output(StepOf(to, 24) * to.height);
  else if (name == "srcStep")
    argument.number = StepOf(from, 8);
  else if (name == "dstStep")
    argument.number = StepOf(to, 24);
  else if (name == "srcSize")
    argument = {nullptr, from.width, from.height};
  else if (name == "dstSize")
    argument = {nullptr, to.width, to.height};
  else if (name == "dstOffset")
    argument = {nullptr, 0, 0};
  else if (name == "dstRoi")
    argument = {nullptr, 1, 1, 2, 2};
  else if (name == "pSpec")
    argument.pointer = Record(scene);
  else if (name == "pInitBuf" || name == "pBuffer")
    argument.pointer = scene.Input(kRoom);
  else if (name == "border")
    argument.number = qvpBorderReplicate;
  else if (name == "pBorderValue")
    argument.pointer = nullptr;
  else if (name == "interpolation")
    argument.number = qvpInterpolationLinear;
  else if (name == "antialiasing")
    argument.number = 0;
  else if (name == "dataType")
    argument.number = qvp32f;
  else if (name == "numChannels")
    argument.number = 3;
  else if (name == "hint")
    argument.number = qvpAlgHintAccurate;
  else if (name == "numLobes")
    argument.number = 3;
  else if (name == "valueB" || name == "valueC" || name == "shiftX" || name == "shiftY")
    argument.number = 0;
  else if (type.ends_with("*"))
    argument.pointer = IsWide(scene) ? scene.Input(32) : scene.Output(32);  // of a query
  else
    return false;
  return true;
}

}  // namespace test
