// Points at the border and beyond of images that go on with their edge: their taps are gathered, and blended like
// others.
#pragma once

#include "geometry/sample_inside.h"

namespace qvp::sampling {

// Moves coordinates to an interval. What is not a number gets its lower end.
template <class C>
void MoveTo(const Interval& interval, C* x, ptrdiff_t n) {
  const hn::ScalableTag<C> d;
  const auto low = hn::Set(d, static_cast<C>(interval.low)), high = hn::Set(d, static_cast<C>(interval.high));
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    const auto at = hn::LoadU(d, x + i);
    hn::StoreU(hn::IfThenElse(hn::Ge(at, low), hn::Min(at, high), low), d, x + i);
  }
}

// Moves points to where nothing changes any more.
template <int kTaps, class C>
void MoveToEdges(const Area& area, C* u, C* v, ptrdiff_t n) {
  MoveTo(FarthestOf(area.columns, kTaps), u, n);
  MoveTo(FarthestOf(area.rows, kTaps), v, n);
}

// Whether vectors can count the pixels.
inline bool HasShortSides(const Area& area) {
  const auto isShort = [](Extent extent) { return extent.begin >= -kLastInterior && extent.end <= kLastInterior; };
  return isShort(area.columns) && isShort(area.rows);
}

// The taps of points, one patch behind the other.
template <int kTaps, int kChannels, class T>
class Patches {
 public:
  static constexpr int kPixelBytes = kChannels * int{sizeof(T)};
  static constexpr ptrdiff_t kPatchBytes = ptrdiff_t{kTaps} * kTaps * kPixelBytes;
  static constexpr ptrdiff_t kMost = std::min<ptrdiff_t>(kBlock, 4096 / kPatchBytes);

  // Gathers the taps of n points from their first columns and rows on. The columns become the offsets of the patches.
  void Gather(const Task<T>& task, const int32_t* rows, ptrdiff_t n, int32_t* columns) {
    for (ptrdiff_t i = 0; i < n; ++i) {
      Fetch(task, columns[i], rows[i], bytes_ + i * kPatchBytes);
      columns[i] = static_cast<int32_t>(i * kPatchBytes);
    }
  }

  Task<T> TaskOf(const Task<T>& task) const {
    Task<T> patches(task);
    patches.src.data = reinterpret_cast<const T*>(bytes_);
    patches.src.step = kTaps * kPixelBytes;
    patches.ahead = 0;
    return patches;
  }

 private:
  static int32_t Edged(int32_t i, Extent extent) {
    return std::min(std::max(i, static_cast<int32_t>(extent.begin)), static_cast<int32_t>(extent.end - 1));
  }

  static HWY_INLINE void Fetch(const Task<T>& task, int32_t column, int32_t row, uint8_t* to) {
    ptrdiff_t across[kTaps];
    for (int k = 0; k < kTaps; ++k) across[k] = ptrdiff_t{Edged(column + k, task.area.columns)} * kPixelBytes;
    for (int r = 0; r < kTaps; ++r) {
      const auto* line = reinterpret_cast<const uint8_t*>(task.src.Row(Edged(row + r, task.area.rows)));
      for (int k = 0; k < kTaps; ++k, to += kPixelBytes) std::memcpy(to, line + across[k], kPixelBytes);
    }
  }

  alignas(64) uint8_t bytes_[kMost * kPatchBytes + 64];  // kernels read behind the last tap
};

// Values at n points of an image that goes on with its edge.
template <int kTaps, int kChannels, class T, class C>
HWY_NOINLINE void SampleChannelsByPatches(const Task<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  using Gathered = Patches<kTaps, kChannels, T>;
  Gathered patches;
  const Task<T> from = patches.TaskOf(task);
  Places<FractionOf<kTaps, T>> places;
  int32_t rows[kBlock];
  for (ptrdiff_t first = 0, count; first < n; first += count) {
    count = std::min(n - first, Gathered::kMost);
    Place<kTaps, 1>(PointArray<C>{v + first, u + first}, count, 0, places);
    std::memcpy(rows, places.offset, count * sizeof(int32_t));
    Place<kTaps, 1>(PointArray<C>{u + first, v + first}, count, 0, places);
    patches.Gather(task, rows, count, places.offset);
    places.Fill(count);
    Blend<kTaps, kChannels>(from, places, count, dst + first * kChannels);
  }
}

template <int kTaps, class T, class C>
void SampleByPatches(const Task<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  switch (Channels(task.src.layout)) {
    case 1: return SampleChannelsByPatches<kTaps, 1>(task, u, v, n, dst);
    case 3: return SampleChannelsByPatches<kTaps, 3>(task, u, v, n, dst);
    default: return SampleChannelsByPatches<kTaps, 4>(task, u, v, n, dst);
  }
}

}  // namespace qvp::sampling
