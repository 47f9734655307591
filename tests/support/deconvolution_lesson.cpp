// Parameters of deconvolution.
#include <algorithm>

#include "tests/support/lessons.h"

namespace test {
namespace {

constexpr QvpiBorderType kBorders[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst, qvpBorderWrap};

// Each scene has a point-spread image and a border of its own.
struct Manner {
  QvpiSize psf;
  QvpiBorderType border;
  uint64_t seed;
};
Manner MannerOf(const Scene& scene) {
  constexpr int kMost = 9;
  Random random = scene.choices();
  const auto side = [&](int most) { return 1 + static_cast<int>(random.Next() % std::min(most, kMost)); };
  const int width = side(scene.roi().width), height = side(scene.roi().height);
  return {{width, height}, kBorders[random.Next() % 4], random.Next()};
}
int PsfStep(const Manner& m) { return m.psf.width * 4 + 12; }

const void* Psf(Scene& scene, const Manner& m) {
  uint8_t* const image = scene.Input(size_t{1} * PsfStep(m) * m.psf.height);
  Random random(m.seed);
  for (int y = 0; y < m.psf.height; ++y) {
    for (int x = 0; x < m.psf.width; ++x) {
      const float value = static_cast<float>(1 + random.Next() % 100) / 1000;
      std::memcpy(image + y * PsfStep(m) + x * 4, &value, sizeof(value));
    }
  }
  return image;
}

// The most of any border, so that a border may be exchanged for another.
struct Sizes {
  int spec = 0, init = 0, buffer = 0;
};
Sizes SizesFor(const Scene& scene) {
  Sizes most;
  for (const QvpiBorderType border : kBorders) {
    Sizes s;
    qvpiDeconvolveGetSize_32f(scene.roi(), MannerOf(scene).psf, border, &s.spec, &s.init, &s.buffer);
    most = {std::max(most.spec, s.spec), std::max(most.init, s.init), std::max(most.buffer, s.buffer)};
  }
  return most;
}

const void* Record(Scene& scene) {
  const Manner m = MannerOf(scene);
  const Sizes sizes = SizesFor(scene);
  uint8_t* const spec = scene.Input(sizes.spec);  // no output: a refused Init changes it
  const void* const psf = Psf(scene, m);
  qvpiDeconvolveInit_32f(scene.roi(), static_cast<const float*>(psf), PsfStep(m), m.psf, m.border,
                         reinterpret_cast<QvpiDeconvolveSpec_32f*>(spec), scene.Input(sizes.init));
  return spec;
}

}  // namespace

bool DeconvolutionLesson(Scene& scene, size_t place, Argument& argument) {
  const std::string_view name = scene.function().parameters[place].name;
  const Manner m = MannerOf(scene);
  if (name == "pSrc" || name == "pDst") {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "pPsf") {
    argument = {Psf(scene, m)};
  } else if (name == "iterations") {
    argument = scene.Any({1, 2, 4});
  } else if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pInitBuf" || name == "pBuffer") {
    argument = {scene.Input(name == "pBuffer" ? SizesFor(scene).buffer : SizesFor(scene).init)};
  } else {
    return Choose(name,
                  {{"psfStep", PsfStep(m)},
                   {"psfSize", m.psf},
                   {"borderType", m.border},
                   {"noise", 0.01},
                   {"smoothness", 0.01},
                   {"threshold", 1e-6}},
                  argument);
  }
  return true;
}

}  // namespace test
