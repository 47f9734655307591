// How often each byte value occurs.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace qvp {

// Neighbouring pixels are often equal, and an increment has to wait for the one before it of the same counter: so
// samples take turns in kTables tables, a multiple of the channels. Counts wrap beyond 2^32 - 1.
template <int kTables>
class ByteCounts {
 public:
  using Counts = std::array<uint32_t, 256>;

  void Add(const uint8_t* row, ptrdiff_t n) {
    static_assert(kTables % 4 == 0);
    ptrdiff_t i = 0;
    for (; i + kTables <= n; i += kTables) {
      for (int t = 0; t < kTables; t += 4) {
        uint32_t four;
        std::memcpy(&four, row + i + t, sizeof(four));
        for (int j = 0; j < 4; ++j) ++tables_[t + j][four >> 8 * j & 0xFF];
      }
    }
    for (int t = 0; i < n; ++i, ++t) ++tables_[t][row[i]];
  }

  Counts Of(int channel, int channels) const {
    Counts sum{};
    for (int t = channel; t < kTables; t += channels) {
      for (int value = 0; value < 256; ++value) sum[value] += tables_[t][value];
    }
    return sum;
  }

 private:
  // Tables lie so far apart that equal values do not fall on places that a CPU takes for the same one.
  static constexpr int kApart = 256 + 16;
  uint32_t tables_[kTables][kApart] = {};
};

}  // namespace qvp
