// Prints a hash of what each function writes for seeded arguments. The lines of all builds must be the same: builds for
// which the tests are not run against their formulas replay these calls instead. So the widths are those around the
// lengths of all vectors and of their unrolled loops, and each call has arguments of its own.
#include <cinttypes>
#include <cstdio>
#include <stdexcept>

#include "tests/support/exports.h"

namespace {

constexpr int kWidths[] = {1,  2,  3,  4,  5,  7,  8,  9,  11, 12, 13, 15, 16, 17,  19,  23,  24,  25,  29,
                           31, 32, 33, 37, 47, 48, 49, 63, 64, 65, 95, 96, 97, 127, 129, 201, 259, 1030};

uint64_t HashOf(const test::Export& function) {
  uint64_t hash = 0, seed = 1;
  for (const int width : kWidths) {
    test::Scene scene(function, {width, width > 200 ? 2 : 1 + static_cast<int>(seed % 5)}, seed);
    ++seed;
    const QvpStatus status = scene.Call();
    if (status < 0) {
      throw std::runtime_error("returned " + std::to_string(status) + " for width " + std::to_string(width));
    }
    hash = hash * 31 + scene.HashOfOutputs();
  }
  return hash;
}

}  // namespace

int main() {
  int failures = 0;
  for (const test::Export& function : test::Exports()) {
    try {
      std::printf("%s %016" PRIx64 "\n", function.name.c_str(), HashOf(function));
    } catch (const std::exception& refusal) {
      std::fprintf(stderr, "%s: %s\n", function.name.c_str(), refusal.what());
      ++failures;
    }
  }
  return failures != 0;
}
