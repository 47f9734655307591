// Averages over areas, by strips of columns whose sums of rows are on the stack.
#pragma once

#include "geometry/resize_area_parts.h"
#include "geometry/resize_split.h"

namespace qvp::resize {

// Memory for one strip: one row of sums down, or the weights of its columns.
inline constexpr ptrdiff_t kStripFloats = 2048;

// Whether no area has more than three pixels an axis.
inline bool IsNear(const ResizeRecord& record) {
  return !record.IsShifted() && std::max(record.columns.taps, record.rows.taps) <= kMostNear;
}

// Two channels, one after the other.
template <class Columns>
bool AveragePairs(const Columns& columns, const typename Columns::Sum* sums, typename Columns::Mean* means) {
  typename Columns::Sum planes[2][kStripFloats / 2];
  typename Columns::Mean halves[2][Columns::kMost];
  SplitPairs(sums, columns.pixels() + Columns::kBehind, planes[0], planes[1]);
  const bool areFinite[] = {columns.Average(planes[0], 1, halves[0]), columns.Average(planes[1], 1, halves[1])};
  JoinPairs(halves[0], halves[1], columns.columns(), means);
  return areFinite[0] && areFinite[1];
}

// The averages of a row of a strip to dst. False where not all are finite.
template <class Columns, class T>
bool AverageRowOf(const Columns& columns, const typename Columns::Sum* sums, int channels, T* dst) {
  using Mean = typename Columns::Mean;
  if constexpr (std::is_same_v<T, Mean>) {
    return columns.Average(sums, channels, dst);
  } else {
    Mean means[4 * Columns::kMost];
    const bool areFinite = channels == 2 ? AveragePairs(columns, sums, means) : columns.Average(sums, channels, means);
    MapRow<false>(
        hn::ScalableTag<Mean>(), dst, columns.columns() * channels, [](auto v) { return v; },
        static_cast<const Mean*>(means));
    return areFinite;
  }
}

// Strip by strip, each with its sums of rows, by a class of columns.
template <class Columns, class T>
void AverageStrips(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const ResizeAxis& axis = record.columns;
  // A strip covers up to two pixels more than its ratio tells.
  const auto pixels = static_cast<int64_t>(kStripFloats / channels - Columns::kBehind - 2);
  const auto most = std::min(static_cast<ptrdiff_t>(pixels * axis.q / axis.p), Columns::kMost);
  typename Columns::Sum sums[kStripFloats];
  for (ptrdiff_t x = 0; x < tile.width; x += most) {
    const Columns columns(record, tile.x + x, std::min(most, tile.width - x));
    const ptrdiff_t n = columns.pixels() * channels;
    std::fill_n(sums + n, Columns::kBehind * channels, typename Columns::Sum());
    for (ptrdiff_t y = 0; y < tile.height; ++y) {
      const Coverage down = PeriodicCoverage(record.rows, tile.y + y);
      const T* row = SourceRow(call, tile, down.first) + columns.origin() * channels;
      columns.SumDown(Image<const T>{row, call.src.step, call.src.layout}, down, n, sums);
      const bool areFinite = AverageRowOf(columns, sums, channels, call.dst.Row(y) + x * channels);
      if constexpr (std::is_same_v<T, float>) {
        if (!areFinite) AverageAgain(call, record, tile, x, y, columns.columns());
      }
    }
  }
}

// By parts of pixels, if there is room for the sums of rows and not too many pixels across. False if not.
template <class T>
bool AverageParts(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if (record.IsShifted() || record.columns.taps > kMostParts) return false;
  if constexpr (std::is_integral_v<T>) {
    if (!AreSumsShort<T>(record)) return false;
    AverageStrips<PartColumns<int32_t>>(call, record, tile);
  } else {
    if (!AreMeansFloat(record)) return false;
    AverageStrips<PartColumns<float>>(call, record, tile);
  }
  return true;
}

}  // namespace qvp::resize
