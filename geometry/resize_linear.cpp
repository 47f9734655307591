// Resize by linear interpolation: in 16-bit lanes for 8-bit pixels and weights in units of 1/16384, else in floating
// point.
#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_filter.h"
#include "geometry/resize_halves.h"
#include "geometry/resize_linear_columns.h"
#include "geometry/resize_passes.h"
#include "geometry/resize_store.h"

namespace qvp::resize {
namespace {

template <class D>
void BlendRowsBy(D d, const int16_t* upper, const int16_t* lower, int weight, uint8_t* dst, ptrdiff_t samples) {
  const auto w = hn::Set(d, static_cast<int16_t>(2 * weight));
  StoreBytes(d, dst, samples, [=](ptrdiff_t i) HWY_ATTR { return BlendDown(d, upper + i, lower + i, w); });
}

// Rows too short for two of the longest vectors take shorter ones.
void BlendRows(const int16_t* upper, const int16_t* lower, int weight, uint8_t* dst, ptrdiff_t samples) {
  const hn::ScalableTag<int16_t> d;
  const hn::CappedTag<int16_t, 16> narrow;
  if (samples >= 2 * static_cast<ptrdiff_t>(hn::MaxLanes(d))) return BlendRowsBy(d, upper, lower, weight, dst, samples);
  BlendRowsBy(narrow, upper, lower, weight, dst, samples);
}

// The columns [begin, end) of a tile.
void ResizeStrip(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& whole, ptrdiff_t begin,
                 ptrdiff_t end) {
  Tile tile = whole;
  tile.x += begin;
  tile.width = end - begin;
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels, step = RowFloats(samples);
  auto* rows = reinterpret_cast<int16_t*>(AtBoundary(call.buffer));
  auto* room = reinterpret_cast<uint8_t*>(rows + 2 * step);
  const LinearColumns columns(record, tile, call.border, PixelsOf(channels), AheadOf(call, record, tile, whole), room);
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const int16_t* weights = record.Weights<int16_t>(record.rows) + tile.y;
  const RowRing<int16_t> ring{rows, step, 2};
  const Edge edge = RowEdge(call.border, record);
  const auto source = [&](ptrdiff_t position) { return SourceRow(call, tile, edge(position)); };
  const auto place = [&](ptrdiff_t position) { return ring.Row(position); };
  const auto filter = [&](ptrdiff_t first, ptrdiff_t last) {
    ForTwo(first, last, source, place, [&](const auto& from, const auto& out) { FilterFixed(columns, from, out); });
  };
  const auto blend = [&](ptrdiff_t y) {
    const auto [upper, lower] = ring.Rows<2>(rowTaps.first[y]);
    BlendRows(upper, lower, weights[y], call.dst.Row(y) + begin * channels, samples);
  };
  const auto needs = [&](ptrdiff_t y) { return Extent{rowTaps.first[y], rowTaps.first[y] + ptrdiff_t{2}}; };
  WalkDown(tile.height, needs, filter, blend);
}

void ResizeFixed(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t strips = (tile.width * channels + kMostSamples - 1) / kMostSamples;
  for (ptrdiff_t i = 0; i < strips; ++i) {
    ResizeStrip(call, record, tile, tile.width * i / strips, tile.width * (i + 1) / strips);
  }
}

// Work memory: two rows, then room for weights that have to be converted.
template <class T>
void ResizeFloat(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  float* const rows = reinterpret_cast<float*>(AtBoundary(call.buffer));
  float* const room = rows + 2 * RowFloats(tile.width * Channels(call.src.layout));
  const LinearWeights across(record, record.columns, tile.x), down(record, record.rows, tile.y);
  const auto columns = PlaneOf(across, tile.width, room);
  FilterTile(call, record, tile, columns, PlaneOf(down, tile.height, room + RowFloats(tile.width)), rows);
}

// A strip of columns of doubles: the places of both taps of each, from the beginning of a source row.
class DoubleColumns {
 public:
  static constexpr ptrdiff_t kMost = 256;

  // `second` are the weights of the second taps.
  DoubleColumns(const Taps& taps, const Edge& edge, int channels, const double* second)
      : columns_(taps.length), channels_(channels), second_(second) {
    for (ptrdiff_t x = 0; x < columns_; ++x) {
      left_[x] = edge(taps.first[x]) * channels;
      right_[x] = edge(taps.first[x] + ptrdiff_t{1}) * channels;
    }
  }

  void Filter(const double* row, double* out) const {
    if (channels_ == 1) return FilterEach<1>(row, out);
    channels_ == 3 ? FilterEach<3>(row, out) : FilterEach<4>(row, out);
  }

 private:
  template <int kChannels>
  void FilterEach(const double* row, double* out) const {
    const double* second = second_;
    const ptrdiff_t n = columns_;
    for (ptrdiff_t x = 0; x < n; ++x) {
      const double *l = row + left_[x], *r = row + right_[x], w = second[x];
      for (int c = 0; c < kChannels; ++c) {
        out[x * kChannels + c] = LoadScalar(l + c) * (1 - w) + LoadScalar(r + c) * w;
      }
    }
  }

  ptrdiff_t columns_;
  int channels_;
  const double* second_;
  ptrdiff_t left_[kMost], right_[kMost];
};

// The work buffer has no room for two rows of doubles: the columns from `begin` on have them on the stack.
void ResizeDoubleStrip(const ResizeCall<double>& call, const ResizeRecord& record, const Tile& tile, ptrdiff_t begin,
                       const DoubleColumns& columns, ptrdiff_t samples) {
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const LinearWeights weights(record, record.rows, tile.y);
  const Edge edge = RowEdge(call.border, record);
  double rows[2 * kMostChannels * DoubleColumns::kMost];
  const RowRing<double> ring{rows, kMostChannels * DoubleColumns::kMost, 2};
  const auto filter = [&](ptrdiff_t position, ptrdiff_t end) {
    for (; position < end; ++position) columns.Filter(SourceRow(call, tile, edge(position)), ring.Row(position));
  };
  const auto blend = [&](ptrdiff_t y) {
    const hn::ScalableTag<double> d;
    const auto [upper, lower] = ring.Rows<2>(rowTaps.first[y]);
    const double second = weights.Second(y);
    const auto w0 = hn::Set(d, 1 - second), w1 = hn::Set(d, second);
    double* dst = call.dst.Row(y) + begin * Channels(call.dst.layout);
    MapRow<false>(
        d, dst, samples, [=](auto a, auto b) HWY_ATTR { return hn::Add(hn::Mul(a, w0), hn::Mul(b, w1)); }, upper,
        lower);
  };
  const auto needs = [&](ptrdiff_t y) { return Extent{rowTaps.first[y], rowTaps.first[y] + ptrdiff_t{2}}; };
  WalkDown(tile.height, needs, filter, blend);
}

void ResizeDouble(const ResizeCall<double>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const LinearWeights weights(record, record.columns, tile.x);
  const auto across = PlaneOf(weights, tile.width, reinterpret_cast<double*>(AtBoundary(call.buffer)));
  for (ptrdiff_t x = 0; x < tile.width; x += DoubleColumns::kMost) {
    const ptrdiff_t n = std::min(tile.width - x, DoubleColumns::kMost);
    const Taps taps(record, record.columns, tile.x + x, n);
    const DoubleColumns columns(taps, ColumnEdge(call.border, record), channels, across.second + x);
    ResizeDoubleStrip(call, record, tile, x, columns, n * channels);
  }
}

template <class T>
void CopyTile(const ResizeCall<T>& call, const Tile& tile) {
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    std::memcpy(call.dst.Row(y), call.src.Row(y), static_cast<size_t>(call.dst.RowBytes(tile.width)));
  }
}

bool IsSameSize(const ResizeRecord& record) {
  return record.columns.p == record.columns.q && record.rows.p == record.rows.q;
}

}  // namespace

template <class T>
void LinearTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if (IsSameSize(record)) return CopyTile(call, tile);
  if constexpr (sizeof(T) == sizeof(double))
    return ResizeDouble(call, record, tile);
  else {
    if constexpr (sizeof(T) == 1) {
      if (record.weights == WeightKind::kFixed) {
        if (!Halve<TiesUp>(call, record, tile)) ResizeFixed(call, record, tile);
        return;
      }
    }
    if constexpr (sizeof(T) == 2) {
      if (Halve<TiesToEven>(call, record, tile)) return;
    } else if constexpr (sizeof(T) == 4) {
      if (Halve<HalfSums>(call, record, tile)) return;
    }
    ResizeFloat(call, record, tile);
  }
}

template void LinearTile(const ResizeCall<uint8_t>&, const ResizeRecord&, const Tile&);
template void LinearTile(const ResizeCall<uint16_t>&, const ResizeRecord&, const Tile&);

namespace {

// The `_L` form knows replication only.
bool IsBorder(QvpiBorderType border, ResizeForm form) {
  return form == ResizeForm::kWide ? IsBorderOf({BorderKind::kReplicate}, border)
                                   : IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror}, border);
}

template <class T>
QvpStatus Linear(ResizeCall<T> call, QvpiBorderType border) {
  if (KindOf(border) == BorderKind::kReplicateAlt) border = (border & ~0xF) | qvpBorderReplicate;
  if (!IsBorder(border, call.form)) return qvpStatusBorder;
  call.border = border;
  return RunResize(call, {qvpInterpolationLinear, false, false, sizeof(T) != sizeof(double)}, LinearTile<T>);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLinear, 8u, Linear)
QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLinear, 16u, Linear)
QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLinear, 16s, Linear)
QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLinear, 32f, Linear)
QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLinear, 64f, Linear)
