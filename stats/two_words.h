// Whole numbers of two words, for what 64 bits do not hold.
#pragma once

#include <cstdint>

namespace qvp {

class TwoWords {
 public:
  constexpr TwoWords(int64_t n) : low_(static_cast<uint64_t>(n)), high_(n < 0 ? ~uint64_t{0} : 0) {}

  friend constexpr TwoWords operator+(TwoWords a, TwoWords b) {
    const uint64_t low = a.low_ + b.low_;
    return {low, a.high_ + b.high_ + (low < a.low_ ? 1 : 0)};
  }
  friend constexpr TwoWords operator-(TwoWords a, TwoWords b) {
    return {a.low_ - b.low_, a.high_ - b.high_ - (a.low_ < b.low_ ? 1 : 0)};
  }
  // Of numbers of one word.
  friend constexpr TwoWords operator*(TwoWords a, TwoWords b) {
    constexpr uint64_t kHalf = 0xFFFFFFFF;
    const uint64_t x = a.low_, y = b.low_;
    const uint64_t bottom = (x & kHalf) * (y & kHalf), first = (x >> 32) * (y & kHalf) + (bottom >> 32);
    const uint64_t second = (x & kHalf) * (y >> 32) + (first & kHalf);
    const uint64_t top = (x >> 32) * (y >> 32) + (first >> 32) + (second >> 32);
    return {second << 32 | (bottom & kHalf), top - (a.high_ & y) - (b.high_ & x)};
  }

  // Rounded to the nearest, ties to even.
  explicit operator double() const {
    if (high_ >> 63) return -static_cast<double>(TwoWords(0) - *this);
    if (high_ == 0) return static_cast<double>(low_);
    const int shift = 64 - __builtin_clzll(high_);  // of what is cut off it matters whether it is zero
    const uint64_t top = high_ << (64 - shift) | low_ >> shift | (low_ << (64 - shift) != 0 ? 1 : 0);
    return static_cast<double>(top) * static_cast<double>(uint64_t{1} << shift);
  }

 private:
  constexpr TwoWords(uint64_t low, uint64_t high) : low_(low), high_(high) {}
  uint64_t low_, high_;
};

}  // namespace qvp
