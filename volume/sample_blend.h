// Values at points whose taps lie in memory: the formulas, written once over points in lanes.
#pragma once

#include "filter/axis_sums.h"
#include "geometry/sample_bytes.h"
#include "geometry/sample_floats.h"

namespace qvp::volume {

using sampling::FractionOf;
using sampling::RowTaps;
using sampling::Weigher;

// Points of a block, and behind them room for the longest vectors.
inline constexpr ptrdiff_t kBlockPoints = 128, kBlockRoom = kBlockPoints + 64;

// Where the taps of points lie: those of plane k at offset[k][i] from base[k], rows `step` bytes from each other.
template <int kTaps>
struct BlockTaps {
  ptrdiff_t step;
  const uint8_t* base[kTaps];
  int32_t* offset[kTaps];
};

template <int kTaps, class T>
class Blender {
 public:
  using F = FractionOf<kTaps, T>;
  using D = hn::ScalableTag<float>;
  using Ints = hn::ScalableTag<int32_t>;
  using Taps = BlockTaps<kTaps>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  alignas(64) F fraction[3][kBlockRoom];  // of the points of a block

  explicit Blender(const CubicPolynomials<float>& cubic) : weigh_(cubic) {}

  // Values of n points, whose fractions begin with number `first`. Offsets are repeated behind the last one.
  void operator()(const Taps& taps, ptrdiff_t first, ptrdiff_t n, T* to) const {
    for (int32_t* const offset : taps.offset) std::fill(offset + n, offset + n + 4 * kLanes, offset[n - 1]);
    if constexpr (kTaps == 1) {
      const uint8_t* const base = taps.base[0];
      const int32_t* const offset = taps.offset[0];
      for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i, base + offset[i], sizeof(T));
    } else if constexpr (sampling::kIsWhole<F>) {
      BlendBytes(taps, first, n, to);
    } else {
      BlendNumbers(taps, first, n, to);
    }
  }

 private:
  // Sums along columns, rows and planes, in this order.
  HWY_INLINE hn::Vec<D> SumAt(const Taps& at, ptrdiff_t first, ptrdiff_t i) const {
    const D d;
    hn::Vec<D> weights[3][kTaps], total = hn::Zero(d);
    for (int k = 0; k < 3; ++k) weigh_(d, hn::LoadU(d, fraction[k] + first + i), weights[k]);
    for (int z = 0; z < kTaps; ++z) {
      hn::Vec<D> plane = hn::Zero(d);
      for (int y = 0; y < kTaps; ++y) {
        const RowTaps<kTaps, 1, T, D> taps(d, at.base[z] + y * at.step, at.offset[z] + i);
        hn::Vec<D> row = hn::Mul(taps.At(0, 0), weights[0][0]);
        for (int x = 1; x < kTaps; ++x) row = hn::Add(row, hn::Mul(taps.At(x, 0), weights[0][x]));
        plane = y == 0 ? hn::Mul(row, weights[1][0]) : hn::Add(plane, hn::Mul(row, weights[1][y]));
      }
      total = z == 0 ? hn::Mul(plane, weights[2][0]) : hn::Add(total, hn::Mul(plane, weights[2][z]));
    }
    return total;
  }

  HWY_NOINLINE void BlendNumbers(const Taps& taps, ptrdiff_t first, ptrdiff_t n, T* to) const {
    const Taps at = taps;  // copies, which stores of values cannot change
    constexpr int kParts = kVectorsAtOnce<T, float>;
    filter::MakeGroups<kParts * kLanes>(n, to, [&](ptrdiff_t i, T* out) HWY_ATTR {
      const auto part = [&](ptrdiff_t k) HWY_ATTR { return SumAt(at, first, i + k * kLanes); };
      hn::StoreU(NarrowParts<T>(D(), part), hn::CappedTag<T, kLanes * kParts>(), out);
    });
  }

  // As bytes of images, with a third step between planes.
  HWY_INLINE auto BlendAlternate(const Taps& taps, ptrdiff_t first, ptrdiff_t i, ptrdiff_t j) const {
    const auto along = [&](int axis) HWY_ATTR {
      return sampling::Alternate(hn::LoadU(Ints(), fraction[axis] + first + i),
                                 hn::LoadU(Ints(), fraction[axis] + first + j));
    };
    const auto x = along(0), y = along(1), z = along(2);
    const auto plane = [&](int k) HWY_ATTR {
      const int32_t *const even = taps.offset[k] + i, *const odd = taps.offset[k] + j;
      const auto row = [&](const uint8_t* at) HWY_ATTR {
        return sampling::BetweenTaps(GatherWords(Ints(), at, even), GatherWords(Ints(), at, odd), x);
      };
      return sampling::Between(row(taps.base[k]), row(taps.base[k] + taps.step), y);
    };
    return sampling::ToWhole(sampling::Between(plane(0), plane(1), z));
  }
  HWY_NOINLINE void BlendBytes(const Taps& from, ptrdiff_t first, ptrdiff_t n, T* to) const {
    const Taps taps = from;  // copies, which stores of values cannot change
    const hn::ScalableTag<uint8_t> bytes;
    filter::MakeGroups<4 * kLanes>(n, to, [&](ptrdiff_t i, uint8_t* out) HWY_ATTR {
      const auto lower = BlendAlternate(taps, first, i, i + 2 * kLanes);
      auto upper = lower;  // of few points the others are not used
      if (n - i > kLanes) upper = BlendAlternate(taps, first, i + kLanes, i + 3 * kLanes);
      hn::StoreU(sampling::Sorted(hn::BitCast(bytes, hn::Or(lower, hn::ShiftLeft<8>(upper)))), bytes, out);
    });
  }

  Weigher<std::max(kTaps, 2), float> weigh_;
};

}  // namespace qvp::volume
