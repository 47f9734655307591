// Resize by linear interpolation: in 16-bit lanes for 8-bit pixels and weights in units of 1/16384, else in floating
// point.
#include <hwy/cache_control.h>

#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_fixed.h"
#include "geometry/resize_passes.h"

namespace qvp::resize {
namespace {

// h = (l (16384 - w) + r w + 128) >> 8, with 6 bits of fraction: 0 to 64 * 255. It is 64 l + ((r - l) w + 128 >> 8),
// and the second term is the rounded high half of 64 (r - l) times 2 w.
int16_t Across(int l, int r, int w) { return static_cast<int16_t>((l * (kFixedOne - w) + r * w + 128) >> 8); }

// out = (h0 (16384 - w) + h1 w + 2^19) >> 20 is (h0 + ((h1 - h0) w >> 14) + 32) >> 6. The inner term is the high half
// of 2 (h1 - h0) times 2 w, and the outer one the rounded high half of twice its sum times 256.
void BlendRows(const int16_t* upper, const int16_t* lower, int weight, uint8_t* dst, ptrdiff_t samples) {
  const hn::ScalableTag<int16_t> d;
  const auto w = hn::Set(d, static_cast<int16_t>(2 * weight)), down = hn::Set(d, 512);
  StoreBytes(d, dst, samples, [=](ptrdiff_t i) HWY_ATTR {
    const auto h0 = hn::LoadU(d, upper + i), step = hn::Sub(hn::LoadU(d, lower + i), h0);
    return hn::MulFixedPoint15(hn::Add(hn::MulHigh(hn::Add(step, step), w), h0), down);
  });
}

class LinearColumns : public FixedColumns {
 public:
  // `room` is for the shuffles and weights: 4 bytes for each sample and each column.
  LinearColumns(const ResizeRecord& record, const Tile& tile, const ResizeCall<uint8_t>& call, bool isStrip,
                uint8_t* room)
      : FixedColumns(record, tile, call.border, Channels(call.src.layout)),
        weights_(record.Weights<int16_t>(record.columns) + 2 * tile.x) {
    const int nc = channels;
    const ptrdiff_t pixels = taps.first[tile.width - 1] - ptrdiff_t{taps.first[0]};
    const ResizeAxis& down = record.rows;
    if (isStrip || pixels * nc <= kLongestFetched) ahead_ = std::max(2, down.p / down.q) * call.src.step;
    const GatherShape shape{2, nc, nc};
    const int loads = FewestLoadsFor(shape, record.columns.p, record.columns.q);
    if (loads == 0 || InnerSamples() < 1) return;
    const ptrdiff_t bytes = Gather::Vectors(shape, InnerSamples()) * kGatherBytes;
    doubled_ = reinterpret_cast<int16_t*>(room);
    auto* offsets = reinterpret_cast<int32_t*>(room + 2 * bytes);
    if (nc == 1) Plan<1>(shape, loads, room + bytes, offsets);
    if (nc == 2) Plan<2>(shape, loads, room + bytes, offsets);
    if (nc == 3) Plan<3>(shape, loads, room + bytes, offsets);
    if (nc == 4) Plan<4>(shape, loads, room + bytes, offsets);
  }

  template <int kLoads, size_t kRows>
  HWY_NOINLINE void FilterVectors(std::array<const uint8_t*, kRows> rows, std::array<int16_t*, kRows> out) const {
    const hn::Repartition<int8_t, GatherTag> d8;
    const hn::Repartition<int16_t, GatherTag> d16;
    const auto left = hn::BitCast(d8, hn::Set(d16, 64)), step = hn::BitCast(d8, hn::Set(d16, 0x40C0));  // -64, 64
    const uint8_t* mask = gather.masks();
    const int32_t* offsets = gather.offsets();
    const int16_t* weight = doubled_;
    const ptrdiff_t ahead = ahead_;
    for (int16_t*& row : out) row += taps.from * channels;
    const auto filter = [&](ptrdiff_t at) HWY_ATTR {
      const auto w = hn::LoadU(d16, weight);
      const auto shuffle = hn::LoadU(GatherTag(), mask);
      hn::Vec<decltype(d16)> h[kRows];
      for (size_t i = 0; i < kRows; ++i) {
        const auto pairs = GatherVector<kLoads>(rows[i], offsets, shuffle);
        if (ahead != 0) hwy::Prefetch(rows[i] + ahead + offsets[0]);
        h[i] = hn::Add(MulAddPairs(pairs, left), hn::MulFixedPoint15(MulAddPairs(pairs, step), w));
      }
      for (size_t i = 0; i < kRows; ++i) hn::StoreU(h[i], d16, out[i] + at);
    };
    const ptrdiff_t last = InnerSamples() - kSamples;
    for (ptrdiff_t at = 0; at < last; at += kSamples) {
      filter(at);
      mask += kGatherBytes;
      offsets += OffsetsOfVector(kLoads);
      weight += kSamples;
    }
    filter(last);
  }

  template <size_t kRows>
  void FilterOneByOne(const std::array<const uint8_t*, kRows>& rows, ptrdiff_t begin, ptrdiff_t end,
                      const std::array<int16_t*, kRows>& out) const {
    for (ptrdiff_t x = begin; x < end; ++x) {
      for (size_t i = 0; i < kRows; ++i) {
        const uint8_t* l = Pixel(rows[i], taps.first[x]);
        const uint8_t* r = Pixel(rows[i], taps.first[x] + ptrdiff_t{1});
        for (int c = 0; c < channels; ++c) out[i][x * channels + c] = Across(l[c], r[c], weights_[2 * x + 1]);
      }
    }
  }

 private:
  static constexpr ptrdiff_t kSamples = kGatherBytes / 2;
  // Rows of up to a page of memory, and pieces of rows, end before the CPU has noticed where to read on: those that are
  // filtered next are asked for early. Longer rows only get slower by that.
  static constexpr ptrdiff_t kLongestFetched = 4096;

  template <int kChannels>
  void Plan(const GatherShape& shape, int loads, uint8_t* masks, int32_t* offsets) {
    const ptrdiff_t samples = InnerSamples(), end = (taps.first[taps.to - 1] + ptrdiff_t{2}) * kChannels;
    const int32_t* first = taps.first + taps.from;
    const int16_t* second = weights_ + 2 * taps.from + 1;
    gather = Gather(
        shape, loads, samples, end,
        [=](ptrdiff_t s) { return first[s / kChannels] * ptrdiff_t{kChannels} + s % kChannels; }, masks, offsets);
    for (ptrdiff_t v = 0; v < gather.count(); ++v) {
      const ptrdiff_t start = std::min(v * kSamples, samples - kSamples);
      for (ptrdiff_t s = 0; s < kSamples; ++s) {
        doubled_[v * kSamples + s] = static_cast<int16_t>(2 * second[(start + s) / kChannels * 2]);
      }
    }
  }

  const int16_t* weights_;
  int16_t* doubled_ = nullptr;
  ptrdiff_t ahead_ = 0;
};

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
  const LinearColumns columns(record, tile, call, tile.width < whole.width, room);
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

// A sample of the destination takes about 12 bytes of filtered rows, shuffles, weights and source. Wide tiles go in
// strips, for which these stay in a first-level cache of 48 KiB.
constexpr ptrdiff_t kMostSamples = 3500;

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
      if (record.weights == WeightKind::kFixed) return ResizeFixed(call, record, tile);
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
