// Parameters of the Fourier and cosine transforms, of packed spectra and windows.
#include "tests/support/lessons.h"

namespace test {
namespace {

// Each scene has a flag and orders of its own; those are of transforms of powers of two, whatever the region is.
struct Manner {
  int flag, orderX, orderY;
};
Manner MannerOf(const Scene& scene) {
  Random random = scene.choices();
  return {1 << random.Next() % 4, static_cast<int>(random.Next() % 8), static_cast<int>(random.Next() % 5)};
}

QvpiSize SizeOf(const Scene& scene) {
  const Manner m = MannerOf(scene);
  return scene.Has("FFT") ? QvpiSize{1 << m.orderX, 1 << m.orderY} : scene.roi();
}
int StepOf(const Scene& scene, size_t place) { return SizeOf(scene).width * 16 + 17 * static_cast<int>(place + 1); }

// The query or the Init of the transform that a function is about.
QvpStatus CallOf(const Scene& scene, const std::string& step, std::vector<Named> arguments) {
  const auto [flag, x, y] = MannerOf(scene);
  arguments.insert(arguments.end(),
                   {{"orderX", x}, {"orderY", y}, {"roiSize", scene.roi()}, {"flag", flag}, {"hint", 0}});
  const char* const kind = scene.Has("FFT") ? "qvpiFFT" : scene.Has("DCT") ? "qvpiDCT" : "qvpiDFT";
  return CallNamed(kind + step + (scene.Has("DCT") ? "_32f" : scene.Has("32fc") ? "_C_32fc" : "_R_32f"), arguments);
}

struct Sizes {
  int spec = 0, init = 0, buffer = 0;
};
Sizes SizesFor(const Scene& scene) {
  Sizes s;
  CallOf(scene, "GetSize", {{"pSpecSize", {&s.spec}}, {"pSpecBufferSize", {&s.init}}, {"pBufferSize", {&s.buffer}}});
  return s;
}

const void* SpecFor(Scene& scene) {
  uint8_t* const spec = scene.Input(SizesFor(scene).spec);  // no output: a refused Init changes it
  CallOf(scene, "Init", {{"pSpec", {spec}}, {"pMemInit", {nullptr}}});
  return spec;
}

const void* Floats(Scene& scene, size_t place, bool isOutput) {
  const int step = StepOf(scene, place), height = SizeOf(scene).height;
  const size_t bytes = size_t{1} * step * height;
  uint8_t* const data = isOutput ? scene.Output(bytes) : scene.Input(bytes);
  scene.FillRows(ElementOf("32f"), data, step, height, scene.Mostly());
  return data;
}

}  // namespace

bool FourierLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  if (name.starts_with("pSrc") || name == "pDst") {
    argument = {Floats(scene, place, name == "pDst" || name == "pSrcDst")};
  } else if (name.ends_with("Step")) {
    argument = StepOf(scene, place - 1);
  } else if (name == "pSpec") {
    argument = {SpecFor(scene)};
  } else if (name == "pMemInit") {
    argument = {scene.Input(64)};
  } else if (name == "pBuffer") {
    const bool isTransform = scene.function().Has("pSpec");
    argument = {scene.Input(isTransform ? SizesFor(scene).buffer : scene.roi().width * 4 + 64)};
  } else {
    return Choose(name, {{"orderX", m.orderX}, {"orderY", m.orderY}, {"flag", m.flag}, {"numChannels", 3}}, argument);
  }
  return true;
}

// Coefficients are an image of their own size; pixels are as everywhere.
bool DctBlocksLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  const bool isForward = scene.Has("Fwd");
  const int across = (scene.roi().width + 7) / 8, height = (scene.roi().height + 7) / 8, step = across * 256 + 20;
  if (name == "quantizer") {
    auto* const steps = reinterpret_cast<uint16_t*>(scene.Input(64 * sizeof(uint16_t)));
    for (int i = 0; i < 64; ++i) steps[i] = static_cast<uint16_t>(1 + scene.random().Next() % (i % 5 ? 99 : 65535));
    argument = {steps};
  } else if (name == (isForward ? "dstStep" : "srcStep")) {
    argument = step;
  } else if (name == (isForward ? "pDst" : "pSrc")) {
    const size_t bytes = size_t{1} * step * height;
    uint8_t* const image = isForward ? scene.Output(bytes) : scene.Input(bytes);
    scene.FillRows(*PointedAt(type), image, step, height);
    argument = {image};
  } else {
    return false;
  }
  return true;
}

bool WindowFunctionLesson(Scene& scene, size_t place, Argument& argument) {
  if (scene.function().parameters[place].name != "window") return false;
  argument = scene.Any({0, 1, 2, 3}) | scene.Any({0, int{qvpWindowPeriodic}});
  return true;
}

}  // namespace test
