// Copies of small sources with a rim around them, in which points at the border of the image have all taps.
#pragma once

#include "base/record.h"
#include "base/scalar.h"
#include "geometry/sample_task.h"

namespace qvp::sampling {

// Whether points far enough outside take nothing from the image: they are left alone, or get the constant.
inline bool IsBeyondKnown(const Area& area) { return area.isBounded || area.kind == BorderKind::kConst; }

// The points of which some tap lies in the extent, or that are within the bounds.
inline Interval TouchingOf(const Area& area, int taps, Extent extent, double low, double high) {
  if (area.isBounded) return {low - area.isSmooth, high + area.isSmooth};
  const double before = kTapsBefore(taps) - kPointsBefore(taps);
  return {static_cast<double>(extent.begin) - taps + 1 + before, static_cast<double>(extent.end) + before};
}

template <int kTaps>
PointBox TouchingBox(const Area& area) {
  return {TouchingOf(area, kTaps, area.columns, area.left, area.right),
          TouchingOf(area, kTaps, area.rows, area.top, area.bottom)};
}

inline Interval Common(const Interval& a, const Interval& b) {
  return {std::max(a.low, b.low), std::min(a.high, b.high)};
}

// The channels of a pixel, by few instructions: a call would take longer than all else of a point.
template <class T>
HWY_INLINE void CopyPixel(T* to, const T* from, int channels) {
  switch (channels) {
    case 1: std::memcpy(to, from, sizeof(T)); break;
    case 3: std::memcpy(to, from, 3 * sizeof(T)); break;
    default: std::memcpy(to, from, 4 * sizeof(T)); break;
  }
}

// What a call takes points from that need a test, and those that need none.
template <class T>
struct Sources {
  const Task<T>& tested;
  const Task<T>& inside;
  bool areMoved = false;  // whether points outside of the interior are what the nearest one in it is
};

// What interior points are taken from: the source or, if it is small, a copy with as many pixels around it as taps can
// lie in. There a point at the border costs no more than others. Whether there is one depends on the source alone,
// so that tiles equal the whole.
template <class T>
class Rimmed {
 public:
  Rimmed(const Task<T>& task, int taps) : task_(task) {
    const int further = kFurther(taps, Channels(task.src.layout));
    const Extent columns = WithRim(task.area.columns, taps, further), rows = WithRim(task.area.rows, taps, further);
    const int64_t rowBytes = (int64_t{columns.end - columns.begin} * task.src.PixelBytes() + 63) & -64;
    const int64_t most = kMostBytes - kElementsBehind * int64_t{sizeof(T)};
    isCopy_ = !task.isShift && rowBytes <= most && (rows.end - rows.begin) * rowBytes <= most;
    if (isCopy_) Copy(columns, rows, static_cast<ptrdiff_t>(rowBytes), taps);
  }

  Task<T>& task() { return task_; }
  bool isCopy() const { return isCopy_; }
  // With what the copy was made of. Where the edge goes on forever, the interior ends where nothing changes any more.
  Sources<T> sources(const Task<T>& tested) const {
    return {tested, task_, !IsBeyondKnown(task_.area) && (isCopy_ || task_.HasNearestInside())};
  }
  // The points that need no test.
  PointBox InnerBox(int taps) const { return isCopy_ ? task_.interior : task_.InnerBox(taps); }

 private:
  // Of a copy on the stack, with what kernels load behind the last tap.
  static constexpr int64_t kMostBytes = 24 << 10, kElementsBehind = 8;

  // The taps of all points that are not moved, and of those that are.
  static Extent WithRim(Extent extent, int taps, int further) {
    return {extent.begin - taps, extent.end + taps + further};
  }

  // `step` is that of the copy. Made once for all methods, in sample_rim.cpp.
  void Copy(Extent columns, Extent rows, ptrdiff_t step, int taps);

  Task<T> task_;
  bool isCopy_;
  alignas(64) uint8_t bytes_[kMostBytes];
};

}  // namespace qvp::sampling
