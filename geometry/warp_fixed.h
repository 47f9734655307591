// Nearest pixels of affine points in fixed point.
#pragma once

#include "geometry/warp_lines.h"

namespace qvp::warp {

// Whole pixels, both ends included.
struct PixelBox {
  int32_t low[2], high[2];

  PixelBox(const Area& area, int taps) {
    const Interval axes[2] = {FarthestOf(area.columns, taps), FarthestOf(area.rows, taps)};
    for (int k = 0; k < 2; ++k)
      low[k] = static_cast<int32_t>(axes[k].low), high[k] = static_cast<int32_t>(axes[k].high);
  }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Moved(D d, int axis, int32_t origin, V pixel) const {
    return hn::Min(hn::Max(pixel, hn::Set(d, low[axis] - origin)), hn::Set(d, high[axis] - origin));
  }
};

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
    return PlaceKept<kPixelBytes>(u, v, n, step, offset, [](auto pixel, int, int32_t) HWY_ATTR { return pixel; });
  }
  // The same of any points, which are moved to the pixels of a box.
  template <int kPixelBytes>
  HWY_INLINE bool PlaceIn(const PixelBox& box, double u, double v, ptrdiff_t n, int32_t step, int32_t* offset) const {
    return PlaceKept<kPixelBytes>(u, v, n, step, offset, [&](auto pixel, int axis, int32_t origin) HWY_ATTR {
      return box.Moved(hn::ScalableTag<int32_t>(), axis, origin, pixel);
    });
  }

 private:
  // With keep(pixels, axis, origin) of pixels that are counted from an origin.
  template <int kPixelBytes, class Keep>
  HWY_INLINE bool PlaceKept(double u, double v, ptrdiff_t n, int32_t step, int32_t* offset, const Keep& keep) const {
    const hn::ScalableTag<int32_t> d;
    const int32_t column = WholeBelowOf(u), row = WholeBelowOf(v);
    const auto origin = hn::Set(d, OffsetOf(row, step) + OffsetOf(column, kPixelBytes)), stride = hn::Set(d, step);
    const auto firstU = hn::Set(d, Start(u - column)), firstV = hn::Set(d, Start(v - row));
    const auto fraction = hn::Set(d, kOne - 1), bytes = hn::Set(d, kPixelBytes);
    auto closest = fraction;
    for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
      const auto x = hn::Add(firstU, hn::LoadU(d, u_ + i)), y = hn::Add(firstV, hn::LoadU(d, v_ + i));
      closest = hn::Min(closest, hn::Min(hn::And(x, fraction), hn::And(y, fraction)));
      const auto px = keep(hn::ShiftRight<kBits>(x), 0, column), py = keep(hn::ShiftRight<kBits>(y), 1, row);
      const auto across = kPixelBytes == 1 ? px : hn::Mul(px, bytes);
      hn::StoreU(hn::Add(hn::Add(hn::Mul(py, stride), across), origin), d, offset + i);
    }
    return hn::AllTrue(d, hn::Gt(closest, hn::Set(d, 2 * kTolerance - 1)));
  }

  // Whether the longest block stays within 31 bits.
  static bool IsShort(double a) { return a >= -16 && a <= 16; }
  static void Fill(double a, int n, int32_t* steps) {
    for (int i = 0; i < n; ++i) steps[i] = Rounded(a * i);
  }
  static int32_t Rounded(double x) { return static_cast<int32_t>(NearestWhole(x * kOne)); }
  static int32_t WholeBelowOf(double x) { return static_cast<int32_t>(std::floor(x)); }
  // May wrap: sums of offsets are taken to 32 bits.
  static int32_t OffsetOf(int32_t pixels, int32_t bytes) {
    return static_cast<int32_t>(static_cast<uint32_t>(pixels) * static_cast<uint32_t>(bytes));
  }
  // Half a pixel on, so that the pixel is the whole number below, and by the tolerance, so that it is on one side of
  // it.
  static int32_t Start(double fraction) { return Rounded(fraction) + kOne / 2 + kTolerance; }

  int count_;
  double au_ = NAN, av_ = NAN;
  bool isUsable_ = false;
  int32_t u_[kBlock], v_[kBlock];
};

}  // namespace qvp::warp
