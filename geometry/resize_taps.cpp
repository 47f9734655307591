// Resize by kernels of several taps: cubic, Lanczos, and all that are widened against aliasing. In integers for 8-bit
// pixels and weights in units of 1/16384, else in floating point.
#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_filter.h"
#include "geometry/resize_fixed.h"
#include "geometry/resize_passes.h"
#include "geometry/resize_store.h"

namespace qvp::resize {
namespace {

// Filtered rows have 6 bits of fraction. They fit 16 bits: the absolute weights of a position sum to at most 2.8, the
// positive ones thus to 1.9 and the negative ones to -0.9, and 1.9 * 64 * 255 is 31008.
constexpr int kAcrossShift = 8, kDownShift = 20;

// Two source rows, which are filtered at once.
using RowPair = std::array<const uint8_t*, 2>;

// Filters two rows into a row of pairs: the numbers of both for a sample lie beside each other, as the multiplication
// of pairs needs them.
class TapColumns : public FixedColumns {
 public:
  // `room` is for the shuffles: 5 bytes for each sample, or up to 8 of one channel or six taps, in units of 8 samples.
  TapColumns(const ResizeRecord& record, const Tile& tile, QvpiBorderType border, int nc, uint8_t* room)
      : FixedColumns(record, tile, border, nc),
        plane_(static_cast<ptrdiff_t>(PlaneOf(record.width))),
        weights_(record.Weights<int16_t>(record.columns) + 2 * tile.x) {
    const ResizeAxis& axis = record.columns;
    const GatherShape pairs{4, nc, nc}, all{4, nc, nc, 1, 1, (taps.count - 1) * nc};
    const int forAll = FewestLoadsFor(all, axis.p, axis.q);
    hasAll_ = forAll == kSharedLoad || forAll == 1;
    const int loads = hasAll_ ? forAll : LoadsFor(pairs, axis.p, axis.q);
    const bool isRoom = loads < 2 || nc == 1 || taps.count == 6;  // for several loads' places
    if (loads != 0 && isRoom && ServedSamples() > 0) Plan(hasAll_ ? all : pairs, loads, room);
    for (ptrdiff_t x = 0; x < std::min(taps.from, kPlaced); ++x) FindPlaces(x, left_[x]);
    for (ptrdiff_t x = taps.to; x < std::min(taps.length, taps.to + kPlaced); ++x) FindPlaces(x, right_[x - taps.to]);
  }

  template <int kLoads>
  void FilterVectors(const RowPair& rows, int16_t* out) const {
    if (channels == 1) return FilterChannels<kLoads, 1>(rows, out);
    if (channels == 2) return FilterChannels<kLoads, 2>(rows, out);
    if (channels == 3) return FilterChannels<kLoads, 3>(rows, out);
    FilterChannels<kLoads, 4>(rows, out);
  }

  void FilterOneByOne(const RowPair& rows, ptrdiff_t begin, ptrdiff_t end, int16_t* out) const {
    if (begin >= end) return;
    if (channels == 1) return FilterEach<1>(rows, begin, end, out);
    if (channels == 2) return FilterEach<2>(rows, begin, end, out);
    if (channels == 3) return FilterEach<3>(rows, begin, end, out);
    FilterEach<4>(rows, begin, end, out);
  }

 private:
  using Sums = hn::Repartition<int32_t, GatherTag>;
  using Words = hn::Repartition<int16_t, GatherTag>;
  using TapOffsets = ptrdiff_t[6];
  static constexpr ptrdiff_t kSamples = hn::MaxLanes(Sums()), kPlaced = 4;

  void Plan(const GatherShape& shape, int loads, uint8_t* room) {
    auto* offsets = reinterpret_cast<int32_t*>(room + Gather::Vectors(shape, ServedSamples()) * kGatherBytes);
    // Further pairs of taps are read at a fixed distance behind the first one's load, if it does not have them all.
    const ptrdiff_t end = (taps.first[taps.to - 1] + ptrdiff_t{hasAll_ ? taps.count : 2}) * channels;
    const int32_t* first = taps.first + taps.from;
    const int nc = channels;
    gather = Gather(shape, loads, ServedSamples(), end, {first, nc}, room, offsets);
    for (int i = 0; i < 3 * static_cast<int>(kSamples); ++i) {
      pixelOf_[i] = (i / static_cast<int>(kSamples) + i % static_cast<int>(kSamples)) / nc;
    }
  }

  // The first samples of what stands for a column's taps. Those of the first and the last columns are found once.
  void FindPlaces(ptrdiff_t x, TapOffsets& places) const {
    for (int k = 0; k < taps.count; ++k) places[k] = edge(taps.first[x] + k) * channels;
  }
  const ptrdiff_t* PlacesOf(ptrdiff_t x, TapOffsets& found) const {
    if (x < std::min(taps.from, kPlaced)) return left_[x];
    if (x >= taps.to && x < taps.to + kPlaced) return right_[x - taps.to];
    FindPlaces(x, found);
    return found;
  }

  template <int kChannels>
  void FilterEach(const RowPair& rows, ptrdiff_t begin, ptrdiff_t end, int16_t* out) const {
    const int count = taps.count;
    TapOffsets found;
    for (ptrdiff_t x = begin; x < end; ++x) {
      const ptrdiff_t* places = PlacesOf(x, found);
      int sums[2 * kChannels];
      std::fill_n(sums, 2 * kChannels, 1 << (kAcrossShift - 1));
      const int16_t* weights = weights_ + 2 * x;
      for (int k = 0; k < count; ++k) {
        const ptrdiff_t at = places[k];
        for (int i = 0; i < 2 * kChannels; ++i) sums[i] += rows[i % 2][at + i / 2] * weights[k % 2];
        weights += k % 2 * 2 * plane_;
      }
      for (int i = 0; i < 2 * kChannels; ++i) {
        out[x * 2 * kChannels + i] = static_cast<int16_t>(sums[i] >> kAcrossShift);
      }
    }
  }

  template <int kLoads, int kChannels>
  void FilterChannels(const RowPair& rows, int16_t* out) const {
    constexpr bool kCanHaveAll = kLoads == kSharedLoad || kLoads == 1;
    if (hasAll_) return FilterPairs<kLoads, kChannels, kCanHaveAll>(rows, out);
    FilterPairs<kLoads, kChannels, false>(rows, out);
  }

  template <int kLoads, int kChannels, bool kHasAll>
  void FilterPairs(const RowPair& rows, int16_t* out) const {
    taps.count == 4 ? FilterAll<kLoads, kChannels, 2, kHasAll>(rows, out)
                    : FilterAll<kLoads, kChannels, 3, kHasAll>(rows, out);
  }

  // The weights of the taps' pair k for the samples from `start` on.
  template <int kChannels>
  HWY_INLINE hn::Vec<Words> WeightsOf(const int16_t* pairs, ptrdiff_t start) const {
    const Sums d;
    const ptrdiff_t pixel = start / kChannels;
    auto w = hn::LoadU(d, reinterpret_cast<const int32_t*>(pairs + 2 * pixel));
    if constexpr (kChannels > 1) {
      w = hn::TableLookupLanes(w, hn::SetTableIndices(d, pixelOf_ + (start - pixel * kChannels) * kSamples));
    }
    return hn::BitCast(Words(), w);
  }

  template <int kLoads, int kChannels, int kPairs, bool kHasAll>
  HWY_NOINLINE void FilterAll(const RowPair rows, int16_t* out) const {
    const Sums d;
    const uint8_t* mask = gather.masks();
    const int32_t* offsets = gather.offsets();
    const int16_t* weights = weights_ + 2 * taps.from;
    const ptrdiff_t plane = 2 * plane_, last = ServedSamples() - kSamples;
    out += 2 * taps.from * kChannels;
    const auto filter = [&](ptrdiff_t start) HWY_ATTR {
      const auto first = hn::LoadU(GatherTag(), mask);
      hn::Vec<Sums> sums[2];
      for (auto& sum : sums) sum = hn::Set(d, 1 << (kAcrossShift - 1));
      for (int k = 0; k < kPairs; ++k) {
        const auto w = WeightsOf<kChannels>(weights + k * plane, start);
        const auto further = hn::Set(GatherTag(), static_cast<uint8_t>(2 * k * kChannels));
        const auto shuffle = kHasAll && k > 0 ? hn::Add(first, further) : first;
        for (size_t i = 0; i < 2; ++i) {
          const auto pairs = GatherVector<kLoads>(rows[i] + (kHasAll ? 0 : 2 * k * kChannels), offsets, shuffle);
          sums[i] = hn::Add(sums[i], MulAddPairs(hn::BitCast(Words(), pairs), w));
        }
      }
      const auto even = hn::BitCast(Words(), hn::ShiftRight<kAcrossShift>(sums[0]));
      const auto odd = hn::BitCast(Words(), hn::ShiftLeft<16 - kAcrossShift>(sums[1]));
      hn::StoreU(hn::OddEven(odd, even), Words(), out + 2 * start);
    };
    for (ptrdiff_t start = 0; start < last; start += kSamples) {
      filter(start);
      mask += kGatherBytes;
      offsets += OffsetsOfVector(kLoads);
    }
    filter(last);
  }

  ptrdiff_t plane_;
  TapOffsets left_[kPlaced], right_[kPlaced];
  const int16_t* weights_;
  int32_t pixelOf_[3 * kSamples];  // of the lanes of a vector that begins at each channel of a pixel
  bool hasAll_ = false;            // whether one load has all taps of its outputs
};

// dst = the sum of kPairs rows of pairs, by the weights of both rows of each.
template <int kPairs>
void AddPairs(const std::array<const int16_t*, kPairs>& rows, const int16_t* weights, uint8_t* dst, ptrdiff_t samples) {
  const hn::CappedTag<int32_t, 8> d;
  const hn::Repartition<int16_t, hn::CappedTag<int32_t, 8>> words;
  int32_t pairs[kPairs];
  std::memcpy(pairs, weights, sizeof(pairs));
  const auto row = rows;
  StoreRow(d, dst, samples, [&](ptrdiff_t i) HWY_ATTR {
    auto sum = hn::Set(d, 1 << (kDownShift - 1));
    for (int k = 0; k < kPairs; ++k) {
      const auto w = hn::BitCast(words, hn::Set(d, pairs[k]));
      sum = hn::Add(sum, MulAddPairs(hn::LoadU(words, row[k] + 2 * i), w));
    }
    return hn::ShiftRight<kDownShift>(sum);
  });
}

// The same for 2 * kPairs taps from row `first` on. An odd one is the second of its pair, and so is a pair more needed.
template <int kPairs>
void CombinePairs(const RowRing<int16_t>& ring, ptrdiff_t first, const int16_t* weights, ptrdiff_t plane, uint8_t* dst,
                  ptrdiff_t samples) {
  int16_t all[2 * kPairs + 2] = {};
  const bool isOdd = first % 2 != 0;
  for (int k = 0; k < 2 * kPairs; ++k) all[k + isOdd] = weights[k / 2 * 2 * plane + k % 2];
  if (isOdd) return AddPairs<kPairs + 1>(ring.Rows<kPairs + 1>(first / 2), all, dst, samples);
  AddPairs<kPairs>(ring.Rows<kPairs>(first / 2), all, dst, samples);
}

// Source rows are filtered by twos from the tile's first one on, and at the end perhaps the last one twice.
void ResizeFixed(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels, step = 2 * RowFloats(samples), plane = PlaneOf(record.height);
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ptrdiff_t base = rowTaps.first[0], last = rowTaps.first[tile.height - 1] + rowTaps.count - 1 - base;
  const RowRing<int16_t> ring{reinterpret_cast<int16_t*>(AtBoundary(call.buffer)), step, rowTaps.count / 2 + 1};
  auto* room = reinterpret_cast<uint8_t*>(ring.at + ring.places * step);
  const TapColumns columns(record, tile, call.border, channels, room);
  const Edge edge = RowEdge(call.border, record);
  const auto source = [&](ptrdiff_t row) { return SourceRow(call, tile, edge(base + std::min(row, last))); };
  const int16_t* weights = record.Weights<int16_t>(record.rows) + 2 * tile.y;
  const auto combine = rowTaps.count == 4 ? CombinePairs<2> : CombinePairs<3>;
  ptrdiff_t next = 0;  // pair of rows
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    const ptrdiff_t first = rowTaps.first[y] - base;
    next = std::max(next, first / 2);
    for (; 2 * next < first + rowTaps.count; ++next) {
      FilterFixed(columns, RowPair{source(2 * next), source(2 * next + 1)}, ring.Row(next));
    }
    combine(ring, first, weights + 2 * y, plane, call.dst.Row(y), samples);
  }
}

TapPlanes<float> FloatWeights(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin) {
  return {record.Weights<float>(axis) + begin, static_cast<ptrdiff_t>(PlaneOf(axis.destination))};
}
TapPlanes<double> DoubleWeights(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin) {
  return {record.PreciseWeights(axis) + begin, static_cast<ptrdiff_t>(PlaneOf(axis.destination))};
}
FixedTapPlanes FixedWeights(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin) {
  return {record.Weights<int16_t>(axis) + 2 * begin, static_cast<ptrdiff_t>(PlaneOf(axis.destination))};
}

template <class T, class WeightsOf>
void ResizeFloat(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const WeightsOf& weightsOf) {
  const auto across = weightsOf(record, record.columns, tile.x), down = weightsOf(record, record.rows, tile.y);
  if constexpr (sizeof(T) == sizeof(double)) {
    FilterTileDirectly(call, record, tile, across, down);
  } else {
    FilterTile(call, record, tile, across, down, reinterpret_cast<float*>(AtBoundary(call.buffer)));
  }
}

}  // namespace

// Only linear and antialiasing functions take doubles, and of these only the latter come here.
template <class T>
void TapTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if constexpr (sizeof(T) == sizeof(double)) {
    ResizeFloat(call, record, tile, DoubleWeights);
  } else if (record.weights != WeightKind::kFixed) {
    ResizeFloat(call, record, tile, FloatWeights);
  } else if constexpr (sizeof(T) == 1) {
    ResizeFixed(call, record, tile);
  } else {
    ResizeFloat(call, record, tile, FixedWeights);
  }
}

template void TapTile(const ResizeCall<uint8_t>&, const ResizeRecord&, const Tile&);
template void TapTile(const ResizeCall<uint16_t>&, const ResizeRecord&, const Tile&);

namespace {

template <class T>
QvpStatus Resize(ResizeCall<T> call, QvpiBorderType border, const ResizeDemand& demand) {
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kReplicateAlt}, border)) {
    return qvpStatusBorder;
  }
  call.border = border;
  return RunResize(call, demand, TapTile<T>);
}

template <class T>
QvpStatus Cubic(const ResizeCall<T>& call, QvpiBorderType border) {
  return Resize(call, border, {qvpInterpolationCubic});
}
template <class T>
QvpStatus Lanczos(const ResizeCall<T>& call, QvpiBorderType border) {
  return Resize(call, border, {qvpInterpolationLanczos});
}
template <class T>
QvpStatus Antialiasing(const ResizeCall<T>& call, QvpiBorderType border) {
  return Resize(call, border, {0, true});
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

#define TAPS(type)                                                  \
  QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeCubic, type, Cubic)     \
  QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeLanczos, type, Lanczos) \
  QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeAntialiasing, type, Antialiasing)
TAPS(8u)
TAPS(16u)
TAPS(16s)
TAPS(32f)
QVP_C1_C3_C4(QVP_RESIZE_BORDER, qvpiResizeAntialiasing, 64f, Antialiasing)
