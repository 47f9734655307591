// The taps of methods with plain taps and their weights, position by position.
#pragma once

#include <algorithm>

#include "geometry/resize_tables.h"

namespace qvp::resize {

// The taps of position d: the source pixels that are nearer than `reach` pixels, widened by the ratio when
// antialiasing. In whole units of 1 / (2 q) pixels, so that pixels exactly at the reach, of weight 0, are never taken.
struct Support {
  ptrdiff_t first, count;

  Support(const ResizeRecord& record, const ResizeAxis& axis, const Method& method, ptrdiff_t d) {
    const int64_t p = axis.p, q = axis.q, centre = (2 * static_cast<int64_t>(d) + 1) * p - q;
    const int reach = method.Kernel().Reach();
    if (!method.isAntialiasing) {
      first = FloorOf(record.Coordinate(axis, d)) - (reach - 1);
      count = 2 * reach;
      return;
    }
    const int64_t half = 2 * reach * std::max(p, q);
    first = static_cast<ptrdiff_t>(FloorOfQuotient(centre - half, 2 * q) + 1);
    count = static_cast<ptrdiff_t>(-FloorOfQuotient(-centre - half, 2 * q)) - first;
  }
};

inline double ScaleOf(const ResizeAxis& axis, const Method& method) {
  return method.isAntialiasing && axis.p > axis.q ? static_cast<double>(axis.p) / axis.q : 1.0;
}

// Weights of position d, divided by their sum where the kernel does not itself sum to 1.
class TapWeights {
 public:
  TapWeights(const ResizeRecord& record, const ResizeAxis& axis, const Method& method, ptrdiff_t d)
      : record_(record),
        axis_(axis),
        kernel_(method.Kernel()),
        scale_(ScaleOf(axis, method)),
        d_(d),
        support_(record, axis, method, d) {
    if (!method.isAntialiasing && method.interpolation == qvpInterpolationCubic) return;
    double sum = 0;
    for (int k = 0; k < support_.count; ++k) sum += Unscaled(k);
    sum_ = sum;
  }
  double At(int k) const { return k < support_.count ? Unscaled(k) / sum_ : 0; }

 private:
  double Unscaled(int k) const {
    const double distance = record_.Distance(axis_, d_, support_.first + k);
    return kernel_.At((distance < 0 ? -distance : distance) / scale_);
  }

  const ResizeRecord& record_;
  const ResizeAxis& axis_;
  InterpolationKernel kernel_;
  double scale_;
  ptrdiff_t d_;
  Support support_;
  double sum_ = 1;
};

}  // namespace qvp::resize
