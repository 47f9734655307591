// Unsigned integers of 128 bits as two words: 32-bit machines have none.
#pragma once

#include <bit>
#include <cstdint>

namespace qvp::stats {

struct Wide {
  uint64_t high = 0, low = 0;

  static constexpr Wide Product(uint64_t a, uint64_t b) {
    constexpr uint64_t kHalf = 0xFFFFFFFF;
    const uint64_t lower = (a & kHalf) * (b & kHalf), left = (a >> 32) * (b & kHalf), right = (a & kHalf) * (b >> 32);
    const uint64_t middle = (lower >> 32) + (left & kHalf) + (right & kHalf);
    return {(a >> 32) * (b >> 32) + (left >> 32) + (right >> 32) + (middle >> 32), middle << 32 | (lower & kHalf)};
  }

  // Modulo 2^128.
  friend constexpr Wide operator+(Wide a, Wide b) {
    const uint64_t sum = a.low + b.low;
    return {a.high + b.high + (sum < a.low ? 1 : 0), sum};
  }
  friend constexpr Wide operator-(Wide a, Wide b) { return {a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low}; }

  // Rounded once. What is below the upper 64 bits only tells a tie from what lies above it.
  constexpr double Unsigned() const {
    if (high == 0) return static_cast<double>(low);
    const int shift = 64 - std::countl_zero(high);
    const uint64_t lost = shift == 64 ? low : low & ((uint64_t{1} << shift) - 1);
    const uint64_t kept = shift == 64 ? high : high << (64 - shift) | low >> shift;
    return static_cast<double>(kept | (lost != 0 ? 1 : 0)) * (static_cast<double>(uint64_t{1} << (shift - 1)) * 2);
  }
  // As a number of two's complement.
  constexpr double Signed() const { return high >> 63 ? -(Wide{} - *this).Unsigned() : Unsigned(); }
};

}  // namespace qvp::stats
