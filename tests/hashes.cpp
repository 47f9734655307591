// Prints a hash of what each function writes for seeded arguments. The lines of all builds must be the same.
#include <cinttypes>
#include <cstdio>
#include <stdexcept>

#include "tests/support/exports.h"

int main() {
  using test::Scene;
  for (const test::Export& function : test::Exports()) {
    uint64_t hash = 0;
    uint64_t seed = 1;
    for (const QvpiSize roi : {QvpiSize{1, 1}, {37, 5}, {64, 3}, {201, 4}, {1030, 2}}) {
      Scene scene(function, roi, seed++);
      const QvpStatus status = scene.Call();
      if (status < 0) throw std::runtime_error(function.name + " returned " + std::to_string(status));
      hash = hash * 31 + scene.HashOfOutputs();
    }
    std::printf("%s %016" PRIx64 "\n", function.name.c_str(), hash);
  }
}
