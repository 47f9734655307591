// What the lessons of geometric transforms share: a source image of a size of its own, with finite numbers in it.
#pragma once

#include <algorithm>
#include <cstring>

#include "tests/support/exports.h"

namespace test {

constexpr ptrdiff_t kLargestPixel = 32;

inline bool Has(const Scene& scene, const char* part) { return scene.function().name.find(part) != std::string::npos; }
inline bool IsWide(const Scene& scene) { return scene.function().name.ends_with("_L"); }
inline bool IsDouble(const Scene& scene) { return Has(scene, "_64f"); }

// Large enough for every method, and reduced, as super-sampling asks.
inline QvpiSize SourceSize(const Scene& scene) {
  return {std::max(scene.roi().width, 7), std::max(scene.roi().height, 7)};
}
inline ptrdiff_t StepOf(QvpiSize size, int more) { return size.width * kLargestPixel + more; }

template <class T>
void PutNumbers(Scene& scene, uint8_t* bytes, ptrdiff_t size, double scale) {
  for (ptrdiff_t i = 0; i + ptrdiff_t{sizeof(T)} <= size; i += sizeof(T)) {
    const T value = static_cast<T>(static_cast<int32_t>(scene.random().Next()) * scale);
    std::memcpy(bytes + i, &value, sizeof(T));
  }
}

// Finite numbers: which of several NaNs comes out of a sum is nobody's promise.
inline const void* Source(Scene& scene) {
  const QvpiSize size = SourceSize(scene);
  const ptrdiff_t bytes = StepOf(size, 8) * size.height;
  uint8_t* data = scene.Input(bytes);
  if (IsDouble(scene)) PutNumbers<double>(scene, data, bytes, 1.0 / 65536);
  if (Has(scene, "_32f")) PutNumbers<float>(scene, data, bytes, 1.0 / 65536);
  return data;
}

}  // namespace test
