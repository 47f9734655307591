// Values of an image at points between its pixels: what warps and remap share. Interior points run in vectors; those
// whose taps need a test, one by one with the same arithmetic, so that a result depends on its point alone.
#pragma once

#include "geometry/sample_border.h"
#include "geometry/sample_inside.h"

namespace qvp::sampling {

// Whether no point of a block takes anything from the image. What is no number is left to closer inspection.
template <int kTaps, class C>
bool AreAllBeyond(const Area& a, const C* u, const C* v, ptrdiff_t n) {
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
inline bool IsBeyondKnown(const Area& area) { return area.isBounded || area.kind == BorderKind::kConst; }

// Finishes n points that are all beyond.
template <class T>
void FillBeyond(const Task<T>& task, ptrdiff_t n, T* dst) {
  if (task.area.isBounded || n <= 0) return;
  auto* bytes = reinterpret_cast<uint8_t*>(dst);
  const ptrdiff_t pixel = task.src.PixelBytes(), all = n * pixel;
  if (pixel == 1) {
    std::memset(bytes, static_cast<int>(task.constant[0]), all);
    return;
  }
  std::memcpy(bytes, task.constant, pixel);
  for (ptrdiff_t done = pixel; done < all; done += std::min(done, all - done)) {
    std::memcpy(bytes + done, bytes, std::min(done, all - done));
  }
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
void Sample(const Task<T>& task, const C* u, const C* v, ptrdiff_t n, T* dst) {
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
    SamplePoint<kTaps>(task, static_cast<double>(LoadScalar(u + i)), static_cast<double>(LoadScalar(v + i)),
                       dst + i * channels);
  }
}

}  // namespace qvp::sampling
