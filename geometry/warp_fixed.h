// Nearest pixels of affine points in fixed point.
#pragma once

#include "geometry/warp_lines.h"

namespace qvp::warp {

// Nearest pixels of an affine transform in fixed point: the distances of a block's points from its first one, in units
// of 2^-18. They are rounded by half a unit, as is the first point itself; together with the rounding of doubles a
// position is wrong by less than two units. Where one comes closer than that to the middle between two pixels, the
// block is left to exact arithmetic.
class FixedSteps {
 public:
  static constexpr int kBits = 18;
  static constexpr int32_t kOne = 1 << kBits, kTolerance = 2;

  // For blocks of up to n points.
  explicit FixedSteps(ptrdiff_t n) : count_(static_cast<int>(std::min<ptrdiff_t>(Padded(n), kBlock))) {}

  // For lines of these slopes. False if they are too steep.
  bool Set(double au, double av) {
    if (au_ == au && av_ == av) return isUsable_;
    au_ = au, av_ = av;
    isUsable_ = IsShort(au) && IsShort(av);
    if (isUsable_) Fill(au, count_, u_), Fill(av, count_, v_);
    return isUsable_;
  }

  // Offsets of n interior points from (u, v) on, or false.
  template <int kPixelBytes>
  bool Place(double u, double v, ptrdiff_t n, int32_t step, int32_t* offset) const {
    const hn::ScalableTag<int32_t> d;
    const int32_t column = WholeBelowOf(u), row = WholeBelowOf(v);
    const auto origin = hn::Set(d, row * step + column * kPixelBytes), stride = hn::Set(d, step);
    const auto firstU = hn::Set(d, Start(u - column)), firstV = hn::Set(d, Start(v - row));
    const auto fraction = hn::Set(d, kOne - 1), bytes = hn::Set(d, kPixelBytes);
    auto closest = fraction;
    for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
      const auto x = hn::Add(firstU, hn::LoadU(d, u_ + i)), y = hn::Add(firstV, hn::LoadU(d, v_ + i));
      closest = hn::Min(closest, hn::Min(hn::And(x, fraction), hn::And(y, fraction)));
      const auto px = hn::ShiftRight<kBits>(x), across = kPixelBytes == 1 ? px : hn::Mul(px, bytes);
      hn::StoreU(hn::Add(hn::Add(hn::Mul(hn::ShiftRight<kBits>(y), stride), across), origin), d, offset + i);
    }
    return hn::AllTrue(d, hn::Gt(closest, hn::Set(d, 2 * kTolerance - 1)));
  }

 private:
  // Whether the longest block stays within 31 bits.
  static bool IsShort(double a) { return a >= -16 && a <= 16; }
  static void Fill(double a, int n, int32_t* steps) {
    for (int i = 0; i < n; ++i) steps[i] = Rounded(a * i);
  }
  static int32_t Rounded(double x) { return static_cast<int32_t>(NearestWhole(x * kOne)); }
  static int32_t WholeBelowOf(double x) { return static_cast<int32_t>(x + 1) - 1; }  // of interior points, from -1 on
  // Half a pixel on, so that the pixel is the whole number below, and by the tolerance, so that it is on one side of
  // it.
  static int32_t Start(double fraction) { return Rounded(fraction) + kOne / 2 + kTolerance; }

  int count_;
  double au_ = NAN, av_ = NAN;
  bool isUsable_ = false;
  int32_t u_[kBlock], v_[kBlock];
};

}  // namespace qvp::warp
