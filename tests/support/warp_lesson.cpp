#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr ptrdiff_t kRoom = 4096;
constexpr double kMatrix[3][3] = {{0.9, 0.3, -1.5}, {-0.25, 1.1, 1.25}, {0.001, -0.002, 1}};
constexpr double kBilinear[2][4] = {{0.01, 0.9, 0.3, -1.5}, {0.02, -0.25, 1.1, 1.25}};
constexpr double kFrom[4][2] = {{0, 0}, {5, 1}, {6, 6}, {-1, 4}}, kTo[4][2] = {{1, 0}, {30, 1}, {36, 4}, {2, 5}};

QvpDataType TypeOf(const Scene& scene) {
  return Has(scene, "_8u")    ? qvp8u
         : Has(scene, "_16u") ? qvp16u
         : Has(scene, "_16s") ? qvp16s
         : Has(scene, "_64f") ? qvp64f
                              : qvp32f;
}
int ChannelsOf(const Scene& scene) { return Has(scene, "_C4R") ? 4 : Has(scene, "_C3R") ? 3 : 1; }

// Scenes differ in size: each size has a border and a method of its own.
struct Manner {
  QvpiBorderType border;
  int isSmooth, interpolation;
};
Manner MannerOf(const Scene& scene) {
  const int width = scene.roi().width;
  if (width < 32) return {qvpBorderTransparent, 1, qvpInterpolationNearest | qvpSmoothEdge};
  if (width < 64) return {qvpBorderTransparent, 1, qvpInterpolationLinear | qvpSmoothEdge};
  if (width < 128) return {qvpBorderConst, 0, qvpInterpolationCubicClassic | qvpSmoothEdge};
  if (width < 512) return {qvpBorderTransparent, 0, qvpInterpolationLanczos};
  return {qvpBorderReplicate, 0, qvpInterpolationCubic};
}
constexpr double kValue[4] = {7.5, 80, 200, 33};

// A record for the call, made by the Init that belongs to the function's name.
QvpStatus Init(const Scene& scene, QvpiWarpSpec* spec) {
  const QvpiSize s = SourceSize(scene), d = scene.roi();
  const QvpiSizeL sl{s.width, s.height}, dl{d.width, d.height};
  const QvpDataType type = TypeOf(scene);
  const int channels = ChannelsOf(scene);
  const Manner manner = MannerOf(scene);
  Qvp8u buffer[64];
#define INIT(Kind, Method, ...)                                                                                      \
  (IsWide(scene)                                                                                                     \
       ? qvpiWarp##Kind##Method##Init_L(sl, dl, type, kMatrix, qvpWarpBackward, channels, __VA_ARGS__ spec OPTIONAL) \
       : qvpiWarp##Kind##Method##Init(s, d, type, kMatrix, qvpWarpBackward, channels, __VA_ARGS__ spec OPTIONAL))
#define BORDER manner.border, kValue, manner.isSmooth,
#define OPTIONAL , buffer
  if (Has(scene, "AffineCubic")) return INIT(Affine, Cubic, 0, 0.5, BORDER);
  if (Has(scene, "PerspectiveCubic")) return INIT(Perspective, Cubic, 0.25, 0.5, BORDER);
#undef OPTIONAL
#define OPTIONAL
  if (Has(scene, "AffineNearest")) return INIT(Affine, Nearest, BORDER);
  if (Has(scene, "PerspectiveNearest")) return INIT(Perspective, Nearest, BORDER);
  if (Has(scene, "PerspectiveLinear")) return INIT(Perspective, Linear, BORDER);
  return INIT(Affine, Linear, BORDER);
}

// Points in the image and around it.
const void* Map(Scene& scene) {
  const ptrdiff_t bytes = StepOf(scene.roi(), 40) * scene.roi().height;
  uint8_t* data = scene.Input(bytes);
  if (IsDouble(scene)) PutNumbers<double>(scene, data, bytes, 6 / 2147483648.0);
  if (!IsDouble(scene)) PutNumbers<float>(scene, data, bytes, 6 / 2147483648.0);
  return data;
}

bool IsMine(const std::string& name) {
  for (const char* start :
       {"qvpiWarp", "qvpiRemap", "qvpiGetAffine", "qvpiGetPerspective", "qvpiGetBilinear", "qvpiGetRotate"}) {
    if (name.starts_with(start)) return true;
  }
  return false;
}

const void* Record(Scene& scene) {
  if (Has(scene, "Init")) return scene.Output(kRoom);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(scene.Input(kRoom));
  return Init(scene, spec) < 0 ? nullptr : spec;
}

}  // namespace

bool WarpLesson(Scene& scene, size_t place, Argument& argument) {
  if (!IsMine(scene.function().name)) return false;
  const auto [type, name] = scene.function().parameters[place];
  const QvpiSize from = SourceSize(scene), to = scene.roi();
  if (name == "pSrc")
    argument.pointer = Source(scene);
  else if (name == "pDst")
    argument.pointer = scene.Output(StepOf(to, 24) * to.height);
  else if (name == "pxMap" || name == "pyMap")
    argument.pointer = Map(scene);
  else if (name == "srcStep")
    argument.number = StepOf(from, 8);
  else if (name == "dstStep")
    argument.number = StepOf(to, 24);
  else if (name == "xMapStep" || name == "yMapStep")
    argument.number = StepOf(to, 40);
  else if (name == "srcSize")
    argument = {nullptr, from.width, from.height};
  else if (name == "dstSize" || name == "dstRoiSize")
    argument = {nullptr, to.width, to.height};
  else if (name == "dstRoiOffset")
    argument = {nullptr, 0, 0};
  else if (name == "srcRoi")
    argument = {nullptr, 1, 1, 5, 5};
  else if (name == "pSpec")
    argument.pointer = Record(scene);
  else if (name == "pInitBuf" || name == "pBuffer")
    argument.pointer = scene.Input(kRoom);
  else if (name == "borderType")
    argument.number = qvpBorderReplicate;
  else if (name == "pBorderValue")
    argument.pointer = nullptr;
  else if (name == "interpolation")
    argument.number = Has(scene, "Remap") ? MannerOf(scene).interpolation : qvpInterpolationCubic;
  else if (name == "direction")
    argument.number = qvpWarpBackward;
  else if (name == "dataType")
    argument.number = qvp32f;
  else if (name == "numChannels")
    argument.number = 3;
  else if (name == "smoothEdge" || name == "valueB" || name == "valueC")
    argument.number = 0;
  else if (name == "xCenter" || name == "yCenter" || name == "angle" || name == "shiftX" || name == "shiftY")
    argument.number = 10;
  else if (name == "srcQuad" || (name == "quad" && type.starts_with("const")))
    argument.pointer = kFrom;
  else if (name == "dstQuad")
    argument.pointer = kTo;
  else if (name == "coeffs" && type.starts_with("const"))
    argument.pointer = Has(scene, "Bilinear") ? &kBilinear[0][0] : &kMatrix[0][0];
  else if (type.ends_with("*") || type.ends_with("]") || name == "coeffs" || name == "quad" || name == "bound")
    argument.pointer = IsWide(scene) ? scene.Input(128) : scene.Output(128);
  else
    return false;
  return true;
}

}  // namespace test
