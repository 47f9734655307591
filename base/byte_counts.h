// How often each byte value occurs.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>

namespace qvp {

class ByteCounts {
 public:
  // Neighbouring pixels are often equal, and an increment has to wait for the one before it of the same counter: so
  // pixels take turns in several tables.
  void Add(const uint8_t* row, ptrdiff_t n) {
    ptrdiff_t i = 0;
    for (; i + kTables <= n; i += kTables) {
      uint64_t eight;
      std::memcpy(&eight, row + i, sizeof(eight));
      for (int t = 0; t < kTables; ++t) ++tables_[t][eight >> 8 * t & 0xFF];
    }
    for (; i < n; ++i) ++tables_[0][row[i]];
  }

  // Wraps beyond 2^32 - 1.
  uint32_t Of(int value) const {
    uint32_t count = 0;
    for (const auto& table : tables_) count += table[value];
    return count;
  }

 private:
  static constexpr int kTables = 8;
  std::array<uint32_t, 256> tables_[kTables] = {};
};

}  // namespace qvp
