// Parameters of resizes of frames whose chroma is subsampled.
#include <stdexcept>

#include "tests/support/geometry_lesson.h"
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

bool IsPacked(const Scene& scene) { return Has(scene, "422"); }

// Each scene has a ratio, a border and parameters of its own.
struct Manner {
  QvpiSize from, to;
  int method, border, site, lumaPlace;
  unsigned lobes;
};

int MethodOf(const Scene& scene) {
  if (Has(scene, "Lanczos")) return qvpInterpolationLanczos;
  return Has(scene, "Super") ? +qvpInterpolationSuper : +qvpInterpolationLinear;
}

Manner MannerOf(const Scene& scene) {
  constexpr int kRatios[][2] = {{3, 5}, {1, 1}, {1, 4}, {1, 2}, {7, 4}, {3, 1}};
  Random random = scene.choices();
  const int method = MethodOf(scene);
  const auto along = [&](int n) {
    const auto& ratio = kRatios[random.Next() % std::size(kRatios)];
    const int length = n * ratio[0] / ratio[1];
    return method == qvpInterpolationSuper ? std::min(length, n) : length;
  };
  const auto whole = [&](int n) { return IsPacked(scene) ? (n + 1) / 2 * 2 : n; };  // pairs
  const QvpiSize from{whole(std::max(scene.roi().width, 12)), std::max(scene.roi().height, 12)};
  const QvpiSize to{whole(along(from.width)), along(from.height)};
  const int kind = random.Next() % 2 ? qvpBorderMirror : qvpBorderReplicate;
  const int sides = static_cast<int>(random.Next() & qvpBorderInMem);
  const auto any = [&](unsigned n) { return static_cast<int>(random.Next() % n); };
  return {from, to, method, kind | sides, any(3), any(2), 2 + static_cast<unsigned>(any(2))};
}

QvpDataType TypeOf(const Scene& scene) { return Has(scene, "_16u") ? qvp16u : qvp8u; }

QvpStatus Init(const Scene& scene, QvpiResizeChromaSpec* spec) {
  const Manner m = MannerOf(scene);
  const std::string operation = std::string("qvpiResize") + (IsPacked(scene) ? "422" : "420");
  const char* const method = m.method == qvpInterpolationLanczos ? "Lanczos"
                             : m.method == qvpInterpolationSuper ? "Super"
                                                                 : "Linear";
  Qvp8u buffer[64];
  return CallNamed(operation + method + "Init", {{"srcSize", m.from},
                                                 {"dstSize", m.to},
                                                 {"dataType", TypeOf(scene)},
                                                 {"numLobes", m.lobes},
                                                 {"site", m.site},
                                                 {"lumaPlace", m.lumaPlace},
                                                 {"pSpec", {spec}},
                                                 {"pInitBuf", {buffer}}});
}

const void* Record(Scene& scene) {
  const Manner m = MannerOf(scene);
  int bytes = 0, init = 0;
  const auto query = IsPacked(scene) ? qvpiResize422GetSize : qvpiResize420GetSize;
  if (query(m.from, m.to, TypeOf(scene), m.method, 0, &bytes, &init) != 0) throw std::runtime_error("GetSize");
  if (Has(scene, "Init")) return scene.Output(bytes);
  auto* spec = reinterpret_cast<QvpiResizeChromaSpec*>(scene.Input(bytes));
  if (Init(scene, spec) != 0) throw std::runtime_error("frame Init");
  return spec;
}

const void* Buffer(Scene& scene) {
  const auto* spec = static_cast<const QvpiResizeChromaSpec*>(scene.arguments[scene.function().Find("pSpec")].pointer);
  int bytes = 0;
  (IsPacked(scene) ? qvpiResize422GetBufferSize : qvpiResize420GetBufferSize)(spec, MannerOf(scene).to, &bytes);
  return scene.Input(bytes);
}

// Rows have room for packed pixels of words and what is read around them; each plane has a step of its own.
constexpr int kPlanes = 3, kAround = 3, kUnit = 8;
ptrdiff_t StepOfPlane(int width, int plane, int more) {
  return ptrdiff_t{kUnit} * (width + 2 * kAround) + 2 * (more + 5 * plane);
}

uint8_t* Plane(Scene& scene, bool isOutput, const Element& element, QvpiSize size, ptrdiff_t step) {
  const ptrdiff_t rows = size.height + 2 * kAround;
  uint8_t* const plane = isOutput ? scene.Output(step * rows) : scene.Input(step * rows);
  scene.FillRows(element, plane, step, static_cast<int>(rows), scene.Mostly());
  return plane + kAround * (step + kUnit);
}

const void* Planes(Scene& scene, size_t place, QvpiSize size, int more) {
  const auto& [type, name] = scene.function().parameters[place];
  const bool isOutput = name == "pDst";
  const Element& element = *PointedAt(type);
  if (IsPacked(scene)) return Plane(scene, isOutput, element, size, StepOfPlane(size.width, 0, more));
  auto* const planes = reinterpret_cast<const void**>(scene.Input(kPlanes * sizeof(uint64_t)));
  for (int i = 0; i < kPlanes; ++i) planes[i] = Plane(scene, isOutput, element, size, StepOfPlane(size.width, i, more));
  return planes;
}

Argument Steps(Scene& scene, int width, int more) {
  if (IsPacked(scene)) return StepOfPlane(width, 0, more);
  auto* const steps = reinterpret_cast<int*>(scene.Input(kPlanes * sizeof(int)));
  for (int i = 0; i < kPlanes; ++i) steps[i] = static_cast<int>(StepOfPlane(width, i, more));
  return {steps};
}

bool LearnChoices(const Scene& scene, std::string_view name, Argument& argument) {
  const Manner m = MannerOf(scene);
  return Choose(name,
                {{"border", m.border},
                 {"site", m.site},
                 {"lumaPlace", m.lumaPlace},
                 {"numLobes", m.lobes},
                 {"interpolation", m.method},
                 {"antialiasing", 0},
                 {"dataType", TypeOf(scene)},
                 {"xFactor", 0.4},
                 {"yFactor", 1.7},
                 {"srcSize", m.from},
                 {"dstSize", m.to},
                 {"dstOffset", QvpiPoint{0, 0}},
                 {"dstRoi", {nullptr, 0, 0, (m.to.width + 3) / 4 * 2, m.to.height}}},
                argument);
}

bool LearnPlanes(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  if (name == "pSrc") {
    argument = {Planes(scene, place, m.from, 1)};
  } else if (name == "pDst") {
    argument = {Planes(scene, place, m.to, 2)};
  } else if (name == "srcStep") {
    argument = Steps(scene, m.from.width, 1);
  } else if (name == "dstStep") {
    argument = Steps(scene, m.to.width, 2);
  } else {
    return false;
  }
  return true;
}

}  // namespace

bool FrameResizeLesson(Scene& scene, size_t place, Argument& argument) {
  const auto [type, name] = scene.function().parameters[place];
  if (LearnChoices(scene, name, argument) || LearnPlanes(scene, place, argument)) return true;
  if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pInitBuf") {
    argument = {scene.Input(64)};
  } else if (name == "pBuffer") {
    argument = {Buffer(scene)};
  } else if (type.ends_with("*")) {
    argument = {scene.Output(32)};  // of a query
  } else {
    return false;
  }
  return true;
}

}  // namespace test
