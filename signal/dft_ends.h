// The first pass of a transform together with the gathering of its numbers, and the last one together with the
// scattering of its results, so that the block is walked two times less. Both do what Pass does.
#pragma once

#include <hwy/cache_control.h>

#include "signal/dft_tiles.h"

namespace qvp::dft {

// Whether the first and the last pass differ and have butterflies for the factors that WithFactor knows.
inline bool HasEnds(const DftPlan& plan) {
  if (plan.Lines() != kDftLines || plan.chirpLength || plan.factorCount < 2) return false;
  return plan.factors[0] % 4 == 0 && HasOwnButterfly(plan.factors[plan.factorCount - 1]);
}

// Calls visit with the factor as a constant.
template <class Visit>
HWY_INLINE void WithFactor(int factor, const Visit& visit) {
  if (factor == 4) return visit(std::integral_constant<int, 4>());
  if (factor == 8) return visit(std::integral_constant<int, 8>());
  if (factor == 5) return visit(std::integral_constant<int, 5>());
  if (factor == 3) return visit(std::integral_constant<int, 3>());
  visit(std::integral_constant<int, 2>());
}

// An inverse transform is a forward one of numbers whose parts are exchanged.
template <Direction kDirection>
HWY_INLINE Complex<V> Turned(Complex<V> x) {
  return kDirection == Direction::kForward ? x : Complex<V>{x.im, x.re};
}

// Reads and writes numbers of the block.
struct BlockLanes {
  float *re, *im;

  BlockLanes(float* block, Planes planes) : re(block + planes.re * kDftLines), im(block + planes.im * kDftLines) {}
  HWY_INLINE Complex<V> Load(ptrdiff_t place, int lane) const {
    const ptrdiff_t at = place * 2 * kDftLines + lane;
    return {hn::LoadU(Lanes(), re + at), hn::LoadU(Lanes(), im + at)};
  }
  HWY_INLINE void Store(const Complex<V>& x, ptrdiff_t place, int lane) const {
    const ptrdiff_t at = place * 2 * kDftLines + lane;
    hn::StoreU(x.re, Lanes(), re + at);
    hn::StoreU(x.im, Lanes(), im + at);
  }
};

// A butterfly of the first pass, and its results to the block.
template <int kFactor>
HWY_INLINE void FinishFirst(Complex<V> (&x)[kFactor], const float* pairs, BlockLanes block, ptrdiff_t j, ptrdiff_t m,
                            int lane) {
  Butterfly<kFactor>::Apply(x);
  for (int k = 1; k < kFactor; ++k) x[k] = x[k] * Factor(Lanes(), pairs + 2 * (k - 1));
  for (int k = 0; k < kFactor; ++k) block.Store(x[k], j + k * m, lane);
}

// A butterfly of the last pass, of the numbers from `place` on, scaled.
template <Direction kDirection, int kFactor>
HWY_INLINE void StartLast(Complex<V> (&x)[kFactor], BlockLanes block, ptrdiff_t place, float scale, int lane) {
  for (int k = 0; k < kFactor; ++k) x[k] = block.Load(place + k, lane);
  Butterfly<kFactor>::Apply(x);
  for (int k = 0; k < kFactor; ++k) x[k] = Turned<kDirection>(hn::Set(Lanes(), scale) * x[k]);
}

// ---- Lines of which each number is two neighbouring floats; two numbers at a time.

inline bool HasLineEnds(const DftPlan& plan, ptrdiff_t stride) {
  if (stride != sizeof(float) || !HasEnds(plan)) return false;
  const auto leavesEven = [n = plan.complexLength](int factor) { return (n & (2 * (factor & -factor) - 1)) == 0; };
  return leavesEven(plan.factors[0]) && leavesEven(plan.factors[plan.factorCount - 1]);
}

template <Direction kDirection, int kFactor>
void FirstLinePass(const DftPlan& plan, const DftLines<const float>& src, const float* pairs, BlockLanes block) {
  const auto m = static_cast<ptrdiff_t>(plan.complexLength / kFactor);
  const float* lines[kDftLines];
  FillUp(src, lines);
  for (ptrdiff_t j = 0; j < m; j += 2, pairs += 4 * (kFactor - 1)) {
    for (int lane = 0; lane < kDftLines; lane += kLanes) {
      Complex<V> x[kFactor], y[kFactor];
      for (int k = 0; k < kFactor; ++k) {
        V v[kTile];
        LoadTile(lines, lane, (j + k * m) * kPairBytes, sizeof(float), v);
        x[k] = Turned<kDirection>({v[0], v[1]});
        y[k] = Turned<kDirection>({v[2], v[3]});
      }
      FinishFirst(x, pairs, block, j, m, lane);
      FinishFirst(y, pairs + 2 * (kFactor - 1), block, j + 1, m, lane);
    }
  }
}

// The piece of frequency f has f + m, f + 2 m ... as well.
template <Direction kDirection, int kFactor>
void LastLinePass(const DftPlan& plan, const int32_t* places, float scale, BlockLanes block,
                  const DftLines<float>& dst) {
  const auto m = static_cast<ptrdiff_t>(plan.complexLength / kFactor);
  float* lines[kDftLines];
  FillUp(dst, lines);
  for (ptrdiff_t f = 0; f < m; f += 2) {
    for (int lane = 0; lane < kDftLines; lane += kLanes) {
      Complex<V> x[kFactor], y[kFactor];
      StartLast<kDirection>(x, block, places[f], scale, lane);
      StartLast<kDirection>(y, block, places[f + 1], scale, lane);
      for (int k = 0; k < kFactor; ++k) {
        V v[kTile] = {x[k].re, x[k].im, y[k].re, y[k].im};
        StoreTile(v, lines, kDftLines, lane, (f + k * m) * kPairBytes, sizeof(float));
      }
    }
  }
}

// ---- Columns whose numbers are neighbours, in rows of at least half a vector.

template <class T>
bool HasColumnEnds(const DftPlan& plan, const DftColumns<T>& columns, int count) {
  const bool areNeighbours = columns.pitch == kPairBytes && columns.imaginary == sizeof(float);
  return areNeighbours && count >= kHalf && HasEnds(plan);
}

// The next numbers of a row are fetched when these are read, and rows to come when others are written.
inline constexpr ptrdiff_t kAhead = 8;

template <Direction kDirection, int kFactor>
void FirstColumnPass(const DftPlan& plan, const DftColumns<const float>& src, int count, const float* pairs,
                     BlockLanes block) {
  const auto m = static_cast<ptrdiff_t>(plan.complexLength / kFactor);
  const ptrdiff_t step = src.step, distance = m * step;
  const float* row = src.data;
  for (ptrdiff_t j = 0; j < m; ++j, pairs += 2 * (kFactor - 1), row = At(row, step)) {
    for (int lane = 0; lane < kDftLines; lane += kLanes) {
      const NumberVectors numbers(lane, count);
      Complex<V> x[kFactor];
      for (int k = 0; k < kFactor; ++k) {
        const float* const number = At(row, k * distance);
        hwy::Prefetch(number + 2 * kDftLines);
        x[k] = Turned<kDirection>(numbers.Load(number));
      }
      FinishFirst(x, pairs, block, j, m, lane);
    }
  }
}

template <Direction kDirection, int kFactor>
void LastColumnPass(const DftPlan& plan, const int32_t* places, float scale, BlockLanes block,
                    const DftColumns<float>& dst, int count) {
  const auto m = static_cast<ptrdiff_t>(plan.complexLength / kFactor);
  const ptrdiff_t step = dst.step, distance = m * step;
  float* row = dst.data;
  for (ptrdiff_t f = 0; f < m; ++f, row = At(row, step)) {
    for (int lane = 0; lane < kDftLines; lane += kLanes) {
      const NumberVectors numbers(lane, count);
      Complex<V> x[kFactor];
      StartLast<kDirection>(x, block, places[f], scale, lane);
      for (int k = 0; k < kFactor; ++k) {
        float* const number = At(row, k * distance);
        hwy::Prefetch(At(number, kAhead * step));
        numbers.Store(x[k], number);
      }
    }
  }
}

}  // namespace qvp::dft
