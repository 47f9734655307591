// The votes of all pixels, which are made once a call, in the work buffer; the windows' blocks gather them.
#pragma once

#include <cstring>

#include "base/image.h"

namespace qvp::hog {

// A pixel's vote goes to the bins row - 1 and row, counted round the half turn, in a pair of shares. Rows are kept
// times kRowStep: a CPU's addresses take that times 8, and a row of a histogram has so many bytes.
constexpr int kRowStep = 4;
struct Votes {
  float* shares;
  uint8_t* row;
};

// The work buffer, 12 bytes for each pixel of the trimmed region: shares, a byte for the row, and what is left for the
// places of finished blocks. The buffer begins anywhere.
class Planes {
 public:
  Planes(uint8_t* buffer, Size trimmed)
      : shares_(buffer), width_(trimmed.width), area_(trimmed.width * trimmed.height) {}

  void Store(ptrdiff_t x, ptrdiff_t y, ptrdiff_t n, const Votes& votes) const {
    const ptrdiff_t at = y * width_ + x;
    std::memcpy(Shares() + at * kPairBytes, votes.shares, n * kPairBytes);
    std::memcpy(Rows() + at, votes.row, n);
  }

  static constexpr int kPairBytes = 2 * sizeof(float);
  uint8_t* Shares() const { return shares_; }
  uint8_t* Rows() const { return shares_ + area_ * kPairBytes; }
  uint8_t* Rest() const { return Rows() + area_; }
  ptrdiff_t RestBytes() const { return 3 * area_; }
  ptrdiff_t width() const { return width_; }

 private:
  uint8_t* shares_;
  ptrdiff_t width_, area_;
};

}  // namespace qvp::hog
