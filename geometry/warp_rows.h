// Rows of warps: blocks of points that are sampled.
#pragma once

#include "geometry/sampler.h"
#include "geometry/warp_spans.h"

namespace qvp::warp {

// ---- Rows

// Sample, for the points among n that are there at all; from the last run on, as coordinates behind one may change.
template <int kTaps, class T>
void SampleRuns(const Sources<T>& sources, double* u, double* v, ptrdiff_t n, T* dst) {
  const auto isThere = [&](ptrdiff_t i) { return u[i] == u[i]; };
  for (ptrdiff_t first, end = n; end > 0; end = first) {
    while (end > 0 && !isThere(end - 1)) --end;
    for (first = end; first > 0 && isThere(first - 1);) --first;
    if (first < end) {
      Sample<kTaps>(sources, u + first, v + first, end - first, dst + first * Channels(sources.tested.src.layout));
    }
  }
}

// Points that need a test.
template <int kTaps, class T, class Points>
void SampleTested(const Sources<T>& sources, const Points& points, ptrdiff_t first, ptrdiff_t end, T* row) {
  const int channels = Channels(sources.tested.src.layout);
  double u[kBlock + kSpare], v[kBlock + kSpare];
  for (ptrdiff_t x = first; x < end; x += kBlock) {
    const ptrdiff_t n = std::min<ptrdiff_t>(end - x, kBlock);
    StoreCoordinates(points.From(x), n, u, v);
    if constexpr (Points::kAreAllWritten) {
      Sample<kTaps>(sources, u, v, n, row + x * channels);
    } else {
      SampleRuns<kTaps>(sources, u, v, n, row + x * channels);
    }
  }
}

// Interior points. Where a point takes a long chain of steps, a loop of its own makes them: a CPU overlaps few turns of
// a longer one.
template <int kTaps, class T, class Points>
void SampleInterior(const Task<T>& task, const Points& points, const Span& span, T* row) {
  for (ptrdiff_t x = span.first, n; x < span.end; x += n) {
    const auto from = points.From(x);
    n = std::min<ptrdiff_t>(span.end - x, from.MostAtOnce());
    T* const to = row + x * Channels(task.src.layout);
    if constexpr (Points::kIsLong) {
      double u[kBlock + kSpare], v[kBlock + kSpare];
      StoreCoordinates(from, n, u, v);
      SampleInside<kTaps>(task, PointArray<double>{u, v}, n, to);
    } else {
      SampleInside<kTaps>(task, from, n, to);
    }
  }
}

// A row of pixels beyond the image, pixels at its border, pixels inside, and these in turn. Those inside are at
// `innerPoints`, wherever a tile begins. Pixels beyond a quadrangle are left alone.
template <int kTaps, class T, class Points, class InnerPoints>
void WarpRow(const Sources<T>& sources, const Spans& spans, const Points& points, const InnerPoints& innerPoints,
             ptrdiff_t width, T* row) {
  const Task<T>& task = sources.tested;
  const int channels = Channels(task.src.layout);
  if constexpr (Points::kAreAllWritten) FillBeyond(task, spans.touching.first, row);
  SampleTested<kTaps>(sources, points, spans.touching.first, spans.inside.first, row);
  if (sources.inside.interior.u.IsEmpty()) {
    SampleTested<kTaps>(sources, innerPoints, spans.inside.first, spans.inside.end, row);
  } else {
    SampleInterior<kTaps>(sources.inside, innerPoints, spans.inside, row);
  }
  SampleTested<kTaps>(sources, points, spans.inside.end, spans.touching.end, row);
  if constexpr (Points::kAreAllWritten) {
    FillBeyond(task, width - spans.touching.end, row + spans.touching.end * channels);
  }
}

}  // namespace qvp::warp
