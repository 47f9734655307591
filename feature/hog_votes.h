// The gradients of pixels, and their votes for directions.
#pragma once

#include <algorithm>
#include <limits>

#include "base/border_rows.h"
#include "base/row_ring.h"
#include "feature/hog_planes.h"
#include "signal/arc_tangent.h"

namespace qvp::hog {

using Floats = hn::ScalableTag<float>;
using FloatVector = hn::Vec<Floats>;
inline constexpr ptrdiff_t kLanes = hn::MaxLanes(Floats());

// Of a number that is not negative.
HWY_INLINE hn::Mask<Floats> IsBelowInfinity(FloatVector v) {
  return hn::Lt(v, hn::Set(Floats(), std::numeric_limits<float>::infinity()));
}

// The direction of a gradient in [0, pi], whatever its sense. The ends are the same direction: no gradient, and any
// along the rows, may have either. Gradients that the quotient leaves out have no magnitude.
HWY_INLINE FloatVector Direction(FloatVector gx, FloatVector gy) {
  const Floats d;
  const FloatVector ax = hn::Abs(gx), ay = hn::Abs(gy), longer = hn::Max(hn::Max(ax, ay), hn::Set(d, 0x1p-126f));
  const FloatVector acute = ArcTangent(hn::Div(hn::Min(ax, ay), longer));
  const auto reflected = [&](FloatVector angle, FloatVector signs,
                             float sum) HWY_ATTR {  // the sum less the angle where the sign is set
    const hn::Rebind<int32_t, Floats> ints;
    const FloatVector all = hn::BitCast(d, hn::BroadcastSignBit(hn::BitCast(ints, signs)));
    return hn::Add(hn::Xor(angle, hn::And(signs, hn::Set(d, -0.0f))), hn::And(all, hn::Set(d, sum)));
  };
  return reflected(reflected(acute, hn::Sub(ax, ay), 0x1.921fb6p+0f), hn::Xor(gx, gy), 0x1.921fb6p+1f);
}

// Bins are centred at (k + 1/2) pi / bins; the vote is shared linearly between the two nearest. Of a gradient that is
// not finite, or whose square is not, both shares are NaN and go to row 0.
template <class T>
HWY_INLINE void Vote(FloatVector gx, FloatVector gy, int bins, const Votes& to, ptrdiff_t i) {
  const Floats d;
  const hn::Rebind<uint8_t, Floats> bytes;
  const float count = static_cast<float>(bins);
  const FloatVector magnitude = hn::Sqrt(hn::Add(hn::Mul(gx, gx), hn::Mul(gy, gy)));
  FloatVector place = hn::Add(hn::Mul(Direction(gx, gy), hn::Set(d, count * 0x1.45f306p-2f)), hn::Set(d, 0.5f));
  if constexpr (std::is_floating_point_v<T>) place = hn::IfThenElseZero(IsBelowInfinity(magnitude), place);
  const FloatVector row = hn::Floor(place);
  const FloatVector share = hn::Mul(magnitude, hn::Sub(place, row));
  hn::StoreInterleaved2(hn::Sub(magnitude, share), share, d, to.shares + 2 * i);
  hn::StoreU(hn::DemoteTo(bytes, RoundToIntInRange(hn::Mul(row, hn::Set(d, float{kRowStep})))), bytes, to.row + i);
}

// The lines around a row, from one pixel before those of interest on.
struct Neighbours {
  const float *above, *at, *below;
};

template <class T, int kChannels>
struct Gradient;
template <class T>
struct Gradient<T, 1> {
  HWY_INLINE Gradient(const Neighbours& lines, ptrdiff_t i) {
    const Floats d;
    x = hn::Sub(hn::LoadU(d, lines.at + i + 2), hn::LoadU(d, lines.at + i));
    y = hn::Sub(hn::LoadU(d, lines.below + i + 1), hn::LoadU(d, lines.above + i + 1));
  }
  FloatVector x, y;
};
// The channel with the longest gradient, the first of several. Not finite if that of any channel is not.
template <class T>
struct Gradient<T, 3> {
  HWY_INLINE Gradient(const Neighbours& lines, ptrdiff_t i) {
    const Floats d;
    FloatVector left[3], right[3], above[3], below[3];
    hn::LoadInterleaved3(d, lines.at + 3 * i, left[0], left[1], left[2]);
    hn::LoadInterleaved3(d, lines.at + 3 * i + 6, right[0], right[1], right[2]);
    hn::LoadInterleaved3(d, lines.above + 3 * i + 3, above[0], above[1], above[2]);
    hn::LoadInterleaved3(d, lines.below + 3 * i + 3, below[0], below[1], below[2]);
    x = hn::Sub(right[0], left[0]);
    y = hn::Sub(below[0], above[0]);
    FloatVector longest = hn::Add(hn::Mul(x, x), hn::Mul(y, y)), sum = longest;
    for (int c = 1; c < 3; ++c) {
      const FloatVector gx = hn::Sub(right[c], left[c]), gy = hn::Sub(below[c], above[c]);
      const FloatVector square = hn::Add(hn::Mul(gx, gx), hn::Mul(gy, gy));
      const auto isLonger = hn::Gt(square, longest);
      x = hn::IfThenElse(isLonger, gx, x);
      y = hn::IfThenElse(isLonger, gy, y);
      longest = hn::Max(square, longest);  // of NaN, which one does not matter
      sum = hn::Add(sum, square);
    }
    if constexpr (std::is_floating_point_v<T>) x = hn::IfThenElse(IsBelowInfinity(sum), x, sum);
  }
  FloatVector x, y;
};

// Pixels are taken by pieces of a row, so that lines of floats fit into the first-level cache.
inline constexpr ptrdiff_t kPiece = 256;

// The votes of the pixels of some columns, for all rows of a region.
template <class T, int kChannels>
class ColumnVotes {
 public:
  ColumnVotes(const BorderedImage<T>& image, Extent columns, ptrdiff_t height)
      : columns_(columns),
        height_(height),
        inside_(image, {columns.begin - 1, columns.end + 1}, false),
        outside_(image, columns, false) {
    inside_.Start(tables_[0]);
    outside_.Start(tables_[1]);
  }

  void StoreTo(const Planes& planes, int bins) {
    const auto prepare = [&](ptrdiff_t y, ptrdiff_t end) {
      for (; y < end; ++y) Prepare(y);
    };
    WalkDown(
        height_,
        [](ptrdiff_t y) {
          return Extent{y - 1, y + 2};
        },
        prepare, [&](ptrdiff_t y) { StoreRow(planes, bins, y); });
  }

 private:
  static constexpr ptrdiff_t kLineSamples = kChannels * (kPiece + 2);
  static constexpr ptrdiff_t kLineFloats =
      LineBytesFor(kLineSamples + kChannels, sizeof(float)).value() / sizeof(float);
  static constexpr ptrdiff_t kTableBytes = kRecordBoundary + LineBytesFor(kLineSamples, sizeof(T)).value();

  // A line begins one pixel before those of interest. Above and below the region nothing but these is looked at.
  void Prepare(ptrdiff_t y) {
    const bool isInside = y >= 0 && y < height_;
    isInside ? inside_.Line(y, ring_.Row(y)) : outside_.Line(y, ring_.Row(y) + kChannels);
  }

  HWY_NOINLINE void StoreRow(const Planes& planes, int bins, ptrdiff_t y) {
    const auto [above, at, below] = ring_.template Rows<3>(y - 1);
    const Neighbours neighbours{above, at, below};
    const ptrdiff_t n = columns_.end - columns_.begin;
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const Gradient<T, kChannels> gradient(neighbours, i);
      Vote<T>(gradient.x, gradient.y, bins, {shares_, row_}, i);
    }
    planes.Store(columns_.begin, y, n, {shares_, row_});
  }

  Extent columns_;
  ptrdiff_t height_;
  BorderRows<SingleRows<T, float>, T> inside_, outside_;
  alignas(kRecordBoundary) uint8_t tables_[2][kTableBytes];
  alignas(kRecordBoundary) float lines_[3][kLineFloats] = {};  // what is behind a line is of earlier ones
  RowRing<float> ring_{lines_[0], kLineFloats, 3};
  HWY_ALIGN float shares_[2 * (kPiece + kLanes)];
  uint8_t row_[kPiece + kLanes];
};

template <int kChannels, class T>
void VoteRegion(const BorderedImage<T>& image, Size region, int bins, const Planes& planes) {
  for (ptrdiff_t x = 0; x < region.width; x += kPiece) {
    ColumnVotes<T, kChannels>(image, {x, std::min(x + kPiece, region.width)}, region.height).StoreTo(planes, bins);
  }
}

}  // namespace qvp::hog
