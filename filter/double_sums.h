// Sums of doubles under a window, of several quantities of each pixel, in the order of trees: across each line, then
// down. What the quantities are, and what becomes of their sums, is the family's:
//
//   Family::Result                        the type of results
//   Family::kPlanes                       how many quantities
//   Family::Quantities(v)                 those of a vector of pixels
//   family.Of(i, v, sums)                 results from result i of a row on, of pixels and of their sums
#pragma once

#include "filter/exact_differences.h"
#include "filter/float_sums.h"

namespace qvp::filter {

// Rows of memory that are used while a line is made: the quantities, and levels of their sums.
inline ByteCount DoubleRowBytes(QvpiSize mask, int64_t regionWidth, int channels) {
  return ((ByteCount(regionWidth) + mask.width) * (channels * int64_t{sizeof(double)}) + kRecordBoundary)
      .RoundedTo(kRecordBoundary);
}

// Lines have for each sample of a row of results the sums across of each quantity, and the pixel itself: rows of
// doubles, one behind the other.
template <class T, class Family>
class DoubleSums {
 public:
  static constexpr int kPlanes = Family::kPlanes;

  // `memory` has WorkBytes() at a boundary.
  DoubleSums(QvpiSize mask, int channels, ptrdiff_t regionWidth, const Family& family, uint8_t* memory)
      : mask_(mask),
        channels_(channels),
        across_(TreeAcross(mask.width)),
        down_(TreeDown(mask.height)),
        family_(family),
        room_{memory, static_cast<ptrdiff_t>(DoubleRowBytes(mask, regionWidth, channels).value())} {}

  WindowKernel AsKernel() const {
    return {.context = this,
            .across = Across,
            .down = Down,
            .elementBytes = kLineBytes,
            .rowsAtOnce = 1,
            .kept = Kept(mask_),
            .cacheBytes = kSecondCacheBytes};
  }

  static ByteCount WorkBytes(QvpiSize mask, int64_t regionWidth, int channels) {
    return (kPlanes + TreeAcross(mask.width).levels()) * DoubleRowBytes(mask, regionWidth, channels);
  }
  // Of the walk.
  static ByteCount WalkBytes(QvpiSize mask, int64_t regionWidth, int channels, int64_t cacheBytes = kSecondCacheBytes) {
    return WindowBytes(mask, regionWidth, channels, kLineBytes, Kept(mask), cacheBytes);
  }

 private:
  using D = DoubleLanes;
  using V = DoubleVector;
  using Result = typename Family::Result;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kLineBytes = (kPlanes + 1) * sizeof(double);

  static KeptRows Kept(QvpiSize mask) {
    return {RowsKept(TreeAcross(1), TreeDown(mask.height)), kPlanes * int{sizeof(double)}};
  }

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    static_cast<const DoubleSums*>(context)->MakeLine(static_cast<const T*>(source), static_cast<double*>(line),
                                                      samples);
  }
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    static_cast<const DoubleSums*>(context)->MakeResults(window, reinterpret_cast<Result*>(rows.upper[0]));
  }

  void MakeLine(const T* from, double* line, ptrdiff_t n) const {
    std::array<double*, kPlanes> planes;
    for (int q = 0; q < kPlanes; ++q) planes[q] = room_.Row(q);
    ForEachVectors<2, kLanes>(n + (mask_.width - 1) * channels_, [&](auto count, ptrdiff_t start) QVP_INLINED {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = start + v * kLanes;
        const auto quantities = Family::Quantities(LoadWide(D(), from + i));
        Unrolled<kPlanes>([&](auto q) QVP_INLINED { hn::StoreU(quantities[q], D(), planes[q] + i); });
      });
    });
    for (int q = 0; q < kPlanes; ++q) SumAcross(planes[q], n, line + q * n);
    const ptrdiff_t middle = mask_.width / 2 * channels_;
    ForEachVectors<2, kLanes>(n, [&](auto count, ptrdiff_t start) QVP_INLINED {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = start + v * kLanes;
        hn::StoreU(LoadWide(D(), from + middle + i), D(), line + kPlanes * n + i);
      });
    });
  }
  HWY_NOINLINE void SumAcross(const double* values, ptrdiff_t n, double* to) const {
    const auto parts = PartsAcross<double>(across_, values, channels_, n, room_.From(kPlanes));
    ForEachVectors<2, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED {
      const auto sums = TreeSums<count>(D(), parts, i);
      Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], D(), to + i + v * kLanes); });
    });
  }

  void MakeResults(const Window& window, Result* to) const {
    const ptrdiff_t n = window.samples, last = mask_.height - 1;
    const ColumnLevels<double> levels(down_, window, {window.kept, window.keptStep}, false);
    for (ptrdiff_t line = window.y == 0 ? 0 : last; line <= last; ++line)
      Add(levels.Line(line), LineOf(window, line), kPlanes * n);
    const auto parts = levels.Parts();
    const double* const pixels = LineOf(window, last / 2) + kPlanes * n;
    const Family family = family_;
    MakeRow<2, kLanes>(n, to, [&](auto count, ptrdiff_t start, Result* out) QVP_INLINED {
      std::array<std::array<V, count>, kPlanes> sums;
      Unrolled<kPlanes>([&](auto q) QVP_INLINED { sums[q] = TreeSums<count>(D(), parts, q * n + start); });
      Unrolled<count>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = start + v * kLanes;
        std::array<V, kPlanes> ofPixels;
        Unrolled<kPlanes>([&](auto q) QVP_INLINED { ofPixels[q] = sums[q][v]; });
        const V result = family.Of(i, hn::LoadU(D(), pixels + i), ofPixels);
        hn::StoreU(Narrow<Result>(D(), result), hn::Rebind<Result, D>(), out + v * kLanes);
      });
    });
  }
  static const double* LineOf(const Window& window, ptrdiff_t line) {
    return static_cast<const double*>(window.lines[line]);
  }
  static HWY_NOINLINE void Add(const LineSums<double>& sums, const double* line, ptrdiff_t n) {
    if (sums.levels == 0) return;
    ForEachVectors<2, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED {
      std::array<V, count> v;
      Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::LoadU(D(), line + i + k * kLanes); });
      sums.template Put<count>(v, i);
    });
  }

  QvpiSize mask_;
  int channels_;
  SumTree across_, down_;
  Family family_;
  RowRoom<double> room_;
};

}  // namespace qvp::filter
