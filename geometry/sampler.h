// Values of an image at points between its pixels: what warps and remap share. Interior points run in vectors; those
// whose taps need a test, one by one with the same arithmetic, so that a result depends on its point alone.
#pragma once

#include "geometry/sample_inside.h"

namespace qvp {

// ---- What becomes of a point

inline int64_t WholeBelow(double x) {
  const auto whole = static_cast<int64_t>(x);
  return static_cast<double>(whole) > x ? whole - 1 : whole;
}

// The pixel that belongs to a coordinate: the nearest one, the upper of two; or the one at or before it. x + 0.5 would
// round 0.49999999999999994 up.
template <int kTaps>
int64_t PixelOf(double x) {
  const int64_t whole = WholeBelow(x);
  return kTaps == 1 && x - static_cast<double>(whole) >= 0.5 ? whole + 1 : whole;
}

enum class Fate : uint8_t { kSkipped, kAtBorder, kConstant };

// What becomes of one point. At the border: its first tap. `share` of a point outside smooth bounds is below 1.
struct Verdict {
  Fate fate = Fate::kSkipped;
  int64_t column = 0, row = 0;
  double x = 0, y = 0, share = 1;
};

// The nearest number of [low, high]; not a number gives the lower one.
inline double Bounded(double x, double low, double high) { return x >= low ? x <= high ? x : high : low; }

inline double Beyond(double x, double low, double high) {
  return x < low ? low - x : x > high ? x - high : x == x ? 0 : 1;
}

inline bool AreAllOutside(int64_t first, int taps, Extent extent) {
  return first + taps <= extent.begin || first >= extent.end;
}

// Points are moved to the bounds or, far outside, to where all taps are beyond the extents.
template <int kTaps>
Verdict Judge(const SampleArea& area, double u, double v) {
  Verdict verdict;
  double left = static_cast<double>(area.columns.begin) - kTaps, right = static_cast<double>(area.columns.end) + kTaps;
  double top = static_cast<double>(area.rows.begin) - kTaps, bottom = static_cast<double>(area.rows.end) + kTaps;
  if (area.isBounded) {
    left = area.left, right = area.right, top = area.top, bottom = area.bottom;
    const double dx = Beyond(u, left, right), dy = Beyond(v, top, bottom);
    if (dx >= 1 || dy >= 1 || (!area.isSmooth && (dx > 0 || dy > 0))) return verdict;
    verdict.share = (1 - dx) * (1 - dy);
  }
  const double x = Bounded(u, left, right), y = Bounded(v, top, bottom);
  const int64_t column = PixelOf<kTaps>(x), row = PixelOf<kTaps>(y);
  verdict.column = column - kTapsBefore(kTaps);
  verdict.row = row - kTapsBefore(kTaps);
  verdict.x = x - static_cast<double>(column);
  verdict.y = y - static_cast<double>(row);
  const bool isConstant = area.kind == BorderKind::kConst && (AreAllOutside(verdict.column, kTaps, area.columns) ||
                                                              AreAllOutside(verdict.row, kTaps, area.rows));
  verdict.fate = isConstant ? Fate::kConstant : Fate::kAtBorder;
  return verdict;
}

// The taps of a point at the border: tap k of row r goes to patch + (r * kTaps + k) * channels.
template <int kTaps, class T>
void FetchPatch(const SampleTask<T>& task, const Verdict& verdict, T* patch) {
  const int channels = Channels(task.src.layout);
  ptrdiff_t columns[kTaps];
  for (int k = 0; k < kTaps; ++k) {
    columns[k] = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(verdict.column + k), task.area.columns);
  }
  for (int r = 0; r < kTaps; ++r) {
    const ptrdiff_t y = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(verdict.row + r), task.area.rows);
    const T* row = y == kOutside ? nullptr : task.src.Row(y);
    for (int k = 0; k < kTaps; ++k, patch += channels) {
      const bool isConstant = row == nullptr || columns[k] == kOutside;
      std::memcpy(patch, isConstant ? task.constant : row + columns[k] * channels, channels * sizeof(T));
    }
  }
}

// ---- Points whose taps need a test

// A number as an element: integers are rounded to the nearest, ties to even, and saturated; NaN gives the lowest one.
template <class T>
T ToElement(double value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value);
  } else {
    const double bounded = Bounded(value, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    return static_cast<T>((bounded + kToWhole) - kToWhole);
  }
}

// A value with a share below 1 is mixed with what was there before. Only what comes of that is rounded.
template <class T, class W>
void StoreMixed(const W* value, double share, int written, T* dst) {
  for (int c = 0; c < written; ++c) {
    T old;
    std::memcpy(&old, dst + c, sizeof(T));
    const T mixed = ToElement<T>(share * static_cast<double>(value[c]) + (1 - share) * static_cast<double>(old));
    std::memcpy(dst + c, &mixed, sizeof(T));
  }
}

// The weighted sum of the taps from `first` on. Four elements are read at each tap, however many channels there are.
template <int kTaps, class T>
FourChannels<WorkOf<T>> WeightedSum(const SampleTask<T>& task, const Verdict& verdict, const uint8_t* first,
                                    ptrdiff_t step) {
  using W = WorkOf<T>;
  const hn::CappedTag<W, 1> d;
  const Weigher<kTaps, W> weigh(task);
  hn::Vec<hn::CappedTag<W, 1>> weights[kTaps];
  W x[kTaps], y[kTaps];
  weigh(d, hn::Set(d, static_cast<W>(verdict.x)), weights);
  for (int k = 0; k < kTaps; ++k) x[k] = hn::GetLane(weights[k]);
  weigh(d, hn::Set(d, static_cast<W>(verdict.y)), weights);
  for (int k = 0; k < kTaps; ++k) y[k] = hn::GetLane(weights[k]);
  return SumOfTaps<kTaps, T>(first, step, Channels(task.src.layout), x, y, 1);
}

// The value of a point, not mixed, as blocks of points have it.
template <int kTaps, class T>
void BlendJudged(const SampleTask<T>& task, const Verdict& verdict, const uint8_t* first, ptrdiff_t step, T* out) {
  if constexpr (kIsWhole<FractionOf<kTaps, T>>) {
    const auto fraction = [](double x) {
      return static_cast<int>((x * kUnits + kToWhole) - kToWhole) >> (kUnitBits - kFractionBits);
    };
    BlendBytesOf(first, first + step, Channels(task.src.layout), fraction(verdict.x), fraction(verdict.y), out);
  } else {
    WeightedSum<kTaps>(task, verdict, first, step).StoreTo(out);
  }
}

// Writes the value of a point whose taps begin at `first`.
template <int kTaps, class T>
void StoreJudged(const SampleTask<T>& task, const Verdict& verdict, const T* first, ptrdiff_t step, T* dst) {
  const int written = ProcessedChannels(task.src.layout);
  const auto* bytes = reinterpret_cast<const uint8_t*>(first);
  if (verdict.share < 1) {
    WorkOf<T> sum[4];
    WeightedSum<kTaps>(task, verdict, bytes, step).StoreTo(sum);
    return StoreMixed(sum, verdict.share, written, dst);
  }
  T value[4];
  BlendJudged<kTaps>(task, verdict, bytes, step, value);
  std::memcpy(dst, value, written * sizeof(T));
}

// A point by its taps, in the image where all are in it and in copies otherwise.
template <int kTaps, class T>
void SampleJudged(const SampleTask<T>& task, const Verdict& verdict, bool isInterior, T* dst) {
  const int channels = Channels(task.src.layout);
  if (isInterior) {
    const T* first = task.src.Row(static_cast<ptrdiff_t>(verdict.row)) + verdict.column * channels;
    return StoreJudged<kTaps>(task, verdict, first, task.src.step, dst);
  }
  T patch[kTaps * kTaps * 4 + 4];
  FetchPatch<kTaps>(task, verdict, patch);
  std::memset(patch + kTaps * kTaps * channels, 0, 4 * sizeof(T));  // is read, but not used
  StoreJudged<kTaps>(task, verdict, patch, ptrdiff_t{kTaps} * channels * sizeof(T), dst);
}

template <int kTaps, class T>
void SamplePoint(const SampleTask<T>& task, double u, double v, T* dst) {
  const Verdict verdict = Judge<kTaps>(task.area, u, v);
  if (verdict.fate == Fate::kSkipped) return;
  const int written = ProcessedChannels(task.src.layout);
  if (verdict.fate == Fate::kConstant) {
    std::memcpy(dst, task.constant, written * sizeof(T));
  } else if constexpr (kTaps > 1) {
    SampleJudged<kTaps>(task, verdict, task.interior.u.Contains(u) && task.interior.v.Contains(v), dst);
  } else {
    T value[4];
    FetchPatch<1>(task, verdict, value);
    if (verdict.share < 1) return StoreMixed(value, verdict.share, written, dst);
    std::memcpy(dst, value, written * sizeof(T));
  }
}

// Whether no point of a block takes anything from the image. What is no number is left to closer inspection.
template <int kTaps, class C>
bool AreAllBeyond(const SampleArea& a, const C* u, const C* v, ptrdiff_t n) {
  const hn::ScalableTag<C> d;
  const auto at = [d](double place) { return hn::Set(d, static_cast<C>(place)); };
  const auto left = at((a.isBounded ? a.left : static_cast<double>(a.columns.begin)) - kTaps - 1);
  const auto right = at((a.isBounded ? a.right : static_cast<double>(a.columns.end)) + kTaps + 1);
  const auto top = at((a.isBounded ? a.top : static_cast<double>(a.rows.begin)) - kTaps - 1);
  const auto bottom = at((a.isBounded ? a.bottom : static_cast<double>(a.rows.end)) + kTaps + 1);
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    const auto x = hn::LoadU(d, u + i), y = hn::LoadU(d, v + i);
    const auto isBeyond = hn::Or(hn::Or(hn::Lt(x, left), hn::Gt(x, right)), hn::Or(hn::Lt(y, top), hn::Gt(y, bottom)));
    if (!hn::AllTrue(d, isBeyond)) return false;
  }
  return true;
}

// Whether points far enough outside take nothing from the image: they are left alone, or get the constant.
inline bool IsBeyondKnown(const SampleArea& area) { return area.isBounded || area.kind == BorderKind::kConst; }

// Finishes n points that are all beyond.
template <class T>
void FillBeyond(const SampleTask<T>& task, ptrdiff_t n, T* dst) {
  if (task.area.isBounded || n <= 0) return;
  auto* bytes = reinterpret_cast<uint8_t*>(dst);
  const ptrdiff_t all = n * task.src.PixelBytes();
  ptrdiff_t done = task.src.PixelBytes();
  std::memcpy(bytes, task.constant, done);
  for (; done < all; done += std::min(done, all - done)) std::memcpy(bytes + done, bytes, std::min(done, all - done));
}

// ---- Blocks of any points

// A coordinate from any address.
template <class C>
double NumberAt(const C* from) {
  C number;
  std::memcpy(&number, from, sizeof(C));
  return static_cast<double>(number);
}

template <class C>
bool AreAllInside(const PointBox& box, const C* u, const C* v, ptrdiff_t n) {
  const hn::ScalableTag<C> d;
  const auto at = [d](double place) { return hn::Set(d, static_cast<C>(place)); };
  const auto left = at(box.u.low), right = at(box.u.high), top = at(box.v.low), bottom = at(box.v.high);
  auto isInside = hn::Eq(left, left);
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    const auto x = hn::LoadU(d, u + i), y = hn::LoadU(d, v + i);
    const auto isColumn = hn::And(hn::Ge(x, left), hn::Le(x, right));
    isInside = hn::And(isInside, hn::And(isColumn, hn::And(hn::Ge(y, top), hn::Le(y, bottom))));
  }
  return hn::AllTrue(d, isInside);
}

// Blocks whose points differ in kind are divided into four, down to groups of a vector.
inline constexpr ptrdiff_t kGroup = hn::MaxLanes(hn::ScalableTag<float>());
constexpr ptrdiff_t QuarterOf(ptrdiff_t n) { return std::max((n / 4 + kGroup - 1) / kGroup, ptrdiff_t{1}) * kGroup; }

// Values at n points, up to kBlock, to as many pixels. Coordinates have room for Padded(n) points; those behind the
// n-th are copies of it.
template <int kTaps, class T, class C>
void Sample(const SampleTask<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
  const PointArray<C> points{u, v};
  if (AreAllInside(task.interior, u, v, n)) return SampleInside<kTaps>(task, points, n, dst);
  if (IsBeyondKnown(task.area) && AreAllBeyond<kTaps>(task.area, u, v, n)) return FillBeyond(task, n, dst);
  const int channels = Channels(task.src.layout);
  if (n > kGroup) {
    const ptrdiff_t quarter = QuarterOf(n);
    for (ptrdiff_t i = 0; i < n; i += quarter) {
      Sample<kTaps>(task, u + i, v + i, std::min(quarter, n - i), dst + i * channels);
    }
    return;
  }
  for (ptrdiff_t i = 0; i < n; ++i) {
    SamplePoint<kTaps>(task, NumberAt(u + i), NumberAt(v + i), dst + i * channels);
  }
}

}  // namespace qvp
