// Parameters of the Fourier transforms.
#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr int kFlag = 4, kOrder = 4;

// Whatever the region is, powers of two transform 16 x 16 pixels.
struct Sizes {
  int spec = 0, init = 0, buffer = 0;
};

bool Is(const Scene& scene, std::string_view text) { return scene.function().name.find(text) != std::string::npos; }

Sizes SizesFor(const Scene& scene, QvpiSize roi) {
  Sizes s;
  if (Is(scene, "FFT")) {
    (Is(scene, "32fc") ? qvpiFFTGetSize_C_32fc : qvpiFFTGetSize_R_32f)(kOrder, kOrder, kFlag, 0, &s.spec, &s.init,
                                                                       &s.buffer);
  } else {
    (Is(scene, "32fc") ? qvpiDFTGetSize_C_32fc : qvpiDFTGetSize_R_32f)(roi, kFlag, 0, &s.spec, &s.init, &s.buffer);
  }
  return s;
}

const void* SpecFor(Scene& scene, QvpiSize roi) {
  uint8_t* const spec = scene.Input(SizesFor(scene, roi).spec);  // no output: a refused Init changes it
  if (Is(scene, "FFT") && Is(scene, "32fc")) {
    qvpiFFTInit_C_32fc(kOrder, kOrder, kFlag, 0, reinterpret_cast<QvpiFFTSpec_C_32fc*>(spec), nullptr);
  } else if (Is(scene, "FFT")) {
    qvpiFFTInit_R_32f(kOrder, kOrder, kFlag, 0, reinterpret_cast<QvpiFFTSpec_R_32f*>(spec), nullptr);
  } else if (Is(scene, "32fc")) {
    qvpiDFTInit_C_32fc(roi, kFlag, 0, reinterpret_cast<QvpiDFTSpec_C_32fc*>(spec), nullptr);
  } else {
    qvpiDFTInit_R_32f(roi, kFlag, 0, reinterpret_cast<QvpiDFTSpec_R_32f*>(spec), nullptr);
  }
  return spec;
}

// Floats without infinities and NaN, of which two may meet with either payload; room for the largest pixel.
const void* Floats(Scene& scene, size_t place, bool isOutput) {
  const size_t width = std::max(scene.roi().width, 16), height = std::max(scene.roi().height, 16);
  const size_t bytes = (width * 16 + 17 * (place + 1)) * height;
  uint8_t* const data = isOutput ? scene.Output(bytes) : scene.Input(bytes);
  for (size_t i = 3; i < bytes; i += 1) data[i] &= 0xBF;
  return data;
}

}  // namespace

bool FourierLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (!Is(scene, "FFT") && !Is(scene, "DFT") && !Is(scene, "Pack")) return false;
  if (name == "pSrc" || name == "pSrc1" || name == "pSrc2") {
    argument.pointer = Floats(scene, place, false);
  } else if (name == "pDst" || name == "pSrcDst") {
    argument.pointer = Floats(scene, place, true);
  } else if (name.ends_with("Step")) {
    argument.number = std::max(scene.roi().width, 16) * 16 + 17 * static_cast<int>(place);
  } else if (name == "orderX" || name == "orderY") {
    argument.number = kOrder;
  } else if (name == "flag") {
    argument.number = kFlag;
  } else if (name == "hint") {
    argument.number = 0;
  } else if (name == "numChannels") {
    argument.number = 3;
  } else if (name == "pSpec") {
    argument.pointer = SpecFor(scene, scene.roi());
  } else if (name == "pMemInit") {
    argument.pointer = scene.Input(64);
  } else if (name == "pBuffer") {
    const bool isTransform = scene.function().Find("pSpec") >= 0;
    argument.pointer = scene.Input(isTransform ? SizesFor(scene, scene.roi()).buffer : scene.roi().width * 4 + 64);
  } else if (name.ends_with("Size") && type.ends_with("*")) {
    argument.pointer = scene.Output(sizeof(int));
  } else {
    return false;
  }
  return true;
}

}  // namespace test
