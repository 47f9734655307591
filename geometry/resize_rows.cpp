// Rows that are filtered across and combined down.
#include "geometry/resize_rows.h"

#include "geometry/resize_combine.h"
#include "geometry/resize_pairs.h"
#include "geometry/resize_pixels.h"
#include "geometry/resize_singles.h"

namespace qvp::resize {
namespace {

using TwoBlocks = hn::CappedTag<float, 8>;
constexpr bool kHasTwoBlocks = hn::MaxLanes(TwoBlocks()) == 8;

// The columns from taps.from on that there are vectors for.
template <size_t kRows, class T, class Weights>
void FilterVectors(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                   const std::array<float*, kRows>& out) {
  if constexpr (kCanPick<T>) {
    if (plan.arePicked) return PickAcross<kRows>(plan, weights, rows, out);
  }
  if (plan.channels == 1) return FilterSinglesAcross(plan, weights, rows, out);
  if constexpr (kHasPairs<T>) {
    if (plan.channels == 2) return FilterPairsAcross(plan, weights, rows, out);
  }
  if (kRows == 2 && kHasTwoBlocks) {
    return FilterPixelsAcross(TwoBlocks(), plan, weights, rows.data(), out.data());
  }
  for (size_t i = 0; i < kRows; ++i) FilterPixelsAcross(hn::Full128<float>(), plan, weights, &rows[i], &out[i]);
}

// Whether there are as many columns as FilterVectors takes at least.
template <class T>
bool HasVectors(const ColumnPlan<T>& plan) {
  if (plan.channels > 2) return true;
  if (plan.channels == 2 && !kHasPairs<T>) return false;
  return plan.to - plan.taps.from >= ptrdiff_t{hn::MaxLanes(TwoBlocks())};
}

}  // namespace

template <size_t kRows, class T, class Weights>
void FilterAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                  const std::array<float*, kRows>& out) {
  const bool hasVectors = HasVectors(plan);
  const ptrdiff_t done = hasVectors ? plan.to : plan.taps.from;
  if (hasVectors) FilterVectors(plan, weights, rows, out);
  for (size_t i = 0; i < kRows; ++i) FilterEnds(plan, weights, done, rows[i], out[i]);
}

template <class T>
bool TakesFours(const ColumnPlan<T>& plan) {
  return kHasTwoBlocks && plan.channels > 2 && AreStaged<T>(plan.taps);
}

template <class T, class Weights>
void FilterFourAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, 4>& rows,
                      const std::array<float*, 4>& out) {
  if constexpr (kHasTwoBlocks && Weights::kMostTaps > 2) {
    const PixelRows<TwoBlocks, T, 2> pixels(rows.data(), out.data(), plan.channels);
    FilterStagedAcross(TwoBlocks(), plan.taps, plan.to, weights, pixels);
    for (size_t i = 0; i < 4; ++i) FilterEnds(plan, weights, plan.to, rows[i], out[i]);
  }
}

// The usual numbers of taps have loops of their own.
template <class T, class Weights>
void CombineRows(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst,
                 ptrdiff_t n) {
  FilterByCount<Weights, 2, 3, 4, 6>(taps.count, taps.certain == taps.count, [&](auto count) {
    if constexpr (count.value == kMany) {
      AddBlocks(ring, weights, taps, y, dst, n);
    } else if constexpr (count.value == kFew) {
      AddRing(ring, weights, taps, y, dst, n);
    } else {
      AddRows<count.value>(ring, weights, taps, y, dst, n);
    }
  });
}

#define ROWS(T, WEIGHTS)                                                                               \
  template void FilterAcross(const ColumnPlan<T>&, const WEIGHTS&, const std::array<const T*, 1>&,     \
                             const std::array<float*, 1>&);                                            \
  template void FilterAcross(const ColumnPlan<T>&, const WEIGHTS&, const std::array<const T*, 2>&,     \
                             const std::array<float*, 2>&);                                            \
  template void FilterFourAcross(const ColumnPlan<T>&, const WEIGHTS&, const std::array<const T*, 4>&, \
                                 const std::array<float*, 4>&);                                        \
  template void CombineRows(const RowRing<float>&, const WEIGHTS&, const Taps&, ptrdiff_t, T*, ptrdiff_t);

#define ALL_ROWS(T)                               \
  template bool TakesFours(const ColumnPlan<T>&); \
  ROWS(T, LinearPlane<float>)                     \
  ROWS(T, TapPlanes<float>)

ALL_ROWS(uint8_t)
ALL_ROWS(uint16_t)
ALL_ROWS(int16_t)
ALL_ROWS(float)
// Of records for bytes, which have such weights, functions for other types make use, too.
ROWS(uint16_t, FixedTapPlanes)
ROWS(int16_t, FixedTapPlanes)
ROWS(float, FixedTapPlanes)

}  // namespace qvp::resize
