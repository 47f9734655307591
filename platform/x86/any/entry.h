// What the build for every x86-64 chooses between.
#pragma once

#include <cstdint>

namespace {

inline constexpr int kLowest = 2, kHighest = 4;

// As tools/derive.py lays it out: the code that the stub jumps to, and the way from each word to that of a higher
// level. What fills up pages is zero.
struct Entry {
  const char* code;
  int32_t higher[kHighest - kLowest];
};

}  // namespace
