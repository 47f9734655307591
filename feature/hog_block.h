// The histograms of the cells of a block.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/simd.h"
#include "feature/hog_planes.h"
#include "feature/hog_record.h"

namespace qvp::hog {

using Cells = hn::FixedTag<float, kCells>;

// Pixels take turns in several histograms, as an addition has to wait for the one before it to the same row. The sides
// of blocks are even.
constexpr int kPartials = 4, kMostBins = 16, kWeightBytes = kCells * sizeof(float);

// A row of a histogram: the lower and the upper shares of the four cells.
constexpr int kRowFloats = 2 * kCells;

using RowTag = hn::CappedTag<float, kRowFloats>;

// The two shares of two pixels.
class TwoPixels {
 public:
  HWY_INLINE explicit TwoPixels(const uint8_t* from)
      : shares_(hn::LoadU(Cells(), reinterpret_cast<const float*>(from))) {}

  // Adds one pixel's shares, times its weights, to a row: by one vector where there are such long ones.
  template <int kPixel, class D>
  HWY_INLINE void Add(D d, const uint8_t* weights, float* row) const {
    const auto weight = hn::LoadDup128(d, reinterpret_cast<const float*>(weights));
    if constexpr (hn::MaxLanes(D()) == kRowFloats) {
      constexpr int kLower = 2 * kPixel, kUpper = kLower + 1;
      HWY_ALIGN static constexpr int32_t kOrder[] = {kLower, kLower, kLower, kLower, kUpper, kUpper, kUpper, kUpper};
      const auto both = hn::TableLookupLanes(hn::ZeroExtendVector(d, shares_), hn::SetTableIndices(d, kOrder));
      hn::Store(hn::Add(hn::Load(d, row), hn::Mul(weight, both)), d, row);
    } else {
      const auto lower = hn::Broadcast<2 * kPixel>(shares_), upper = hn::Broadcast<2 * kPixel + 1>(shares_);
      hn::Store(hn::Add(hn::Load(d, row), hn::Mul(weight, lower)), d, row);
      hn::Store(hn::Add(hn::Load(d, row + kCells), hn::Mul(weight, upper)), d, row + kCells);
    }
  }

 private:
  hn::Vec<Cells> shares_;
};

class Block {
 public:
  explicit Block(int bins) : bins_(bins) {}

  // The weighted votes of the pixels of the block whose first pixel is at `first`, by bins, a lane for each cell.
  void Gather(const Planes& planes, ptrdiff_t first, const uint8_t* weights, int side) {
    HWY_ALIGN PartialHistogram partials[kPartials];
    for (int i = 0; i < (bins_ + 1) * kRowFloats; i += hn::MaxLanes(RowTag())) {
      for (auto& partial : partials) hn::Store(hn::Zero(RowTag()), RowTag(), partial + i);
    }
    const ptrdiff_t width = planes.width();
    const uint8_t *rows = planes.Rows() + first, *shares = planes.Shares() + first * Planes::kPairBytes;
    const ptrdiff_t rowBytes = ptrdiff_t{side} * kWeightBytes;
    for (int j = 0; j < side; j += 2) {
      for (ptrdiff_t i = 0; i < side; i += 2) {
        AddPair(rows + i, shares + i * Planes::kPairBytes, weights + i * kWeightBytes, partials);
        AddPair(rows + width + i, shares + (width + i) * Planes::kPairBytes, weights + rowBytes + i * kWeightBytes,
                partials + 2);
      }
      rows += 2 * width;
      shares += 2 * width * Planes::kPairBytes;
      weights += 2 * rowBytes;
    }
    Sum(partials);
  }

  // Divided by the length, clipped, and divided by the length again. All are NaN if one is.
  void Normalise(float most) {
    const Cells d;
    const float inverse = InverseLength();
    if (std::isnan(inverse)) return static_cast<void>(std::fill_n(votes_, bins_ * kCells, NAN));
    const auto first = hn::Set(d, inverse), bound = hn::Set(d, most);
    for (int b = 0; b < bins_; ++b) {
      hn::Store(hn::Min(hn::Mul(hn::Load(d, Bin(b)), first), bound), d, Bin(b));
    }
    const auto second = hn::Set(d, InverseLength());
    for (int b = 0; b < bins_; ++b) hn::Store(hn::Mul(hn::Load(d, Bin(b)), second), d, Bin(b));
  }

  // Cell after cell: row by row, or column by column.
  void Write(bool byColumns, uint8_t* to) const {
    static constexpr int kOrder[2][kCells] = {{0, 1, 2, 3}, {0, 2, 1, 3}};
    float values[kCells * kMostBins];
    for (int b = 0; b < bins_; ++b) {
      for (int c = 0; c < kCells; ++c) values[c * bins_ + b] = votes_[b * kCells + kOrder[byColumns][c]];
    }
    std::memcpy(to, values, kCells * bins_ * sizeof(float));
  }

 private:
  using PartialHistogram = float[(kMostBins + 1) * kRowFloats];

  static HWY_INLINE void AddPair(const uint8_t* rows, const uint8_t* shares, const uint8_t* weights,
                                 PartialHistogram* partials) {
    const TwoPixels pixels(shares);
    pixels.Add<0>(RowTag(), weights, partials[0] + ptrdiff_t{rows[0]} * (kRowFloats / kRowStep));
    pixels.Add<1>(RowTag(), weights + kWeightBytes, partials[1] + ptrdiff_t{rows[1]} * (kRowFloats / kRowStep));
  }

  float* Bin(int b) { return votes_ + b * kCells; }

  // Bin b has the lower shares of row b + 1 and the upper ones of row b. Beyond either end are the rows where the half
  // turn closes.
  void Sum(const PartialHistogram (&partials)[kPartials]) {
    const Cells d;
    const auto at = [&](int row, int half) HWY_ATTR {
      const auto of = [&](int i) { return hn::Load(d, partials[i] + row * kRowFloats + half * kCells); };
      return hn::Add(hn::Add(of(0), of(1)), hn::Add(of(2), of(3)));
    };
    for (int b = 0; b < bins_; ++b) hn::Store(hn::Add(at(b + 1, 0), at(b, 1)), d, Bin(b));
    hn::Store(hn::Add(hn::Load(d, Bin(0)), at(bins_, 1)), d, Bin(0));
    hn::Store(hn::Add(hn::Load(d, Bin(bins_ - 1)), at(0, 0)), d, Bin(bins_ - 1));
  }

  // 1 / sqrt(2^-23 + the sum of the squares). Where that sum is too large, that of values 2^64 times smaller is not: it
  // has at most 2^12 pixels of less than 2^64 in each bin.
  float InverseLength() const {
    constexpr float kSmaller = 0x1p-64f;
    const float sum = SumOfSquares(1.0f);
    if (HWY_LIKELY(sum <= std::numeric_limits<float>::max())) return InverseRoot(0x1p-23f + sum);
    return InverseRoot(SumOfSquares(kSmaller)) * kSmaller;
  }

  float SumOfSquares(float scale) const {
    const Cells d;
    auto squares = hn::Zero(d);
    for (int b = 0; b < bins_; ++b) {
      const auto v = hn::Mul(hn::Load(d, votes_ + b * kCells), hn::Set(d, scale));
      squares = hn::Add(squares, hn::Mul(v, v));
    }
    HWY_ALIGN float cells[kCells];
    hn::Store(squares, d, cells);
    return (cells[0] + cells[1]) + (cells[2] + cells[3]);
  }

  static float InverseRoot(float v) {
    const Cells d;
    return hn::GetLane(hn::Div(hn::Set(d, 1.0f), hn::Sqrt(hn::Set(d, v))));
  }

  int bins_;
  HWY_ALIGN float votes_[kMostBins * kCells];
};

}  // namespace qvp::hog
