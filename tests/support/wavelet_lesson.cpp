// Parameters of wavelet transforms.
#include "tests/support/lessons.h"
#include "tests/support/name.h"

namespace test {
namespace {

// Long filters, none symmetric, none with its anchor in the middle.
QvpiWaveletBank LongBank() {
  static const std::vector<float> taps = [] {
    std::vector<float> numbers(64);
    for (int i = 0; i < 64; ++i) numbers[i] = static_cast<float>(i * 37 % 64 - 31) / 64;
    return numbers;
  }();
  return {{taps.data(), 64, 50}, {taps.data() + 3, 9, 0}, {taps.data() + 5, 1, 0}, {taps.data() + 8, 33, 32}};
}

struct Manner {
  QvpiWaveletBank bank;
  int levels;
  QvpiBorderType border;
};

// Each scene has its own; images wrap where their sides allow it.
Manner MannerOf(const Scene& scene) {
  Random random = scene.choices();
  Manner manner;
  const int kind = static_cast<int>(random.Next() % 7);
  if (qvpiWaveletGetBank_32f(kind, &manner.bank)) manner.bank = LongBank();
  manner.levels = 1 + static_cast<int>(random.Next() % 3);
  const auto fits = [&](int side) { return side == 1 || side % (1 << manner.levels) == 0; };
  manner.border = fits(scene.roi().width) && fits(scene.roi().height) ? qvpBorderWrap : qvpBorderMirror;
  return manner;
}

const QvpiWaveletSpec_32f* Record(Scene& scene) {
  const Manner manner = MannerOf(scene);
  int bytes = 0;
  qvpiWaveletGetSize_32f(&manner.bank, &bytes);
  auto* const spec =
      reinterpret_cast<QvpiWaveletSpec_32f*>(scene.Input(bytes));  // no output: a refused Init changes it
  qvpiWaveletInit_32f(&manner.bank, manner.border, spec);
  return spec;
}

const void* Buffer(Scene& scene) {
  int bytes = 0;
  qvpiWaveletGetBufferSize_32f(Record(scene), scene.roi(), Name(scene.function().name).channels, &bytes);
  return scene.Input(bytes);
}

// No output, as it holds addresses. As large on every machine, so that scenes go on with the same numbers.
const void* Bank(Scene& scene) {
  constexpr size_t kBytes = 64;
  const QvpiWaveletBank bank = MannerOf(scene).bank;
  static_assert(sizeof(bank) <= kBytes);
  uint8_t* const memory = scene.Input(kBytes);
  std::memcpy(memory, &bank, sizeof(bank));
  return memory;
}

}  // namespace

bool WaveletLesson(Scene& scene, size_t place, Argument& argument) {
  const auto& [type, name] = scene.function().parameters[place];
  if (name == "pSrc" || name == "pDst" || name == "pSrcDst") {
    argument = {scene.ImageFor(place, scene.Mostly())};
  } else if (name == "wavelet") {
    argument = scene.Any({0, 1, 2, 3, 4, 5});
  } else if (name == "levels") {
    argument = MannerOf(scene).levels;
  } else if (name == "borderType") {
    argument = MannerOf(scene).border;
  } else if (name == "numChannels") {
    argument = scene.Any({1, 3, 4});
  } else if (name == "pBank") {
    argument = {Bank(scene)};
  } else if (name == "pSpec") {
    argument = {Record(scene)};
  } else if (name == "pBuffer") {
    argument = {Buffer(scene)};
  } else {
    return false;
  }
  return true;
}

}  // namespace test
