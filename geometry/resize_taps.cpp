// Resize by kernels of several taps: cubic, Lanczos, and all that are widened against aliasing. In integers for 8-bit
// pixels and weights in units of 1/16384, else in floating point.
#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_fixed.h"

namespace qvp {
namespace {

// Filtered rows have 6 bits of fraction, and are saturated to 16 bits: overshoots may leave [0, 64 * 255].
constexpr int kAcrossShift = 8, kDownShift = 20;

int16_t Saturated(int v) { return static_cast<int16_t>(std::clamp<int>(v, INT16_MIN, INT16_MAX)); }

class TapColumns : public FixedColumns {
 public:
  // `room` is for the shuffles: 8 bytes for each sample, in units of 8 samples.
  TapColumns(const ResizeRecord& record, const Tile& tile, QvpiBorderType border, int nc, uint8_t* room)
      : FixedColumns(record, tile, border, nc),
        plane_(static_cast<ptrdiff_t>(PlaneOf(record.width))),
        weights_(record.Weights<int16_t>(record.columns) + 2 * tile.x) {
    const ResizeAxis& axis = record.columns;
    const GatherShape pairs{4, nc, nc}, all{4, nc, nc, 1, 1, (taps.count - 1) * nc};
    hasAll_ = LoadsFor(all, axis.p, axis.q) == 1;
    const int loads = hasAll_ ? 1 : LoadsFor(pairs, axis.p, axis.q);
    if (loads > 0 && InnerSamples() > 0) Plan(hasAll_ ? all : pairs, loads, room);
  }

  template <int kLoads, size_t kRows>
  void FilterVectors(const std::array<const uint8_t*, kRows>& rows, const std::array<int16_t*, kRows>& out) const {
    if (channels == 1) return FilterChannels<kLoads, 1, kRows>(rows, out);
    if (channels == 3) return FilterChannels<kLoads, 3, kRows>(rows, out);
    FilterChannels<kLoads, 4, kRows>(rows, out);
  }

  void FilterOneByOne(const uint8_t* row, ptrdiff_t begin, ptrdiff_t end, int16_t* out) const {
    if (begin >= end) return;
    if (channels == 1) return FilterEach<1>(row, begin, end, out);
    if (channels == 3) return FilterEach<3>(row, begin, end, out);
    FilterEach<4>(row, begin, end, out);
  }

 private:
  using Sums = hn::Repartition<int32_t, GatherTag>;
  using Words = hn::Repartition<int16_t, GatherTag>;
  static constexpr ptrdiff_t kSamples = hn::MaxLanes(Sums());

  void Plan(const GatherShape& shape, int loads, uint8_t* room) {
    auto* offsets = reinterpret_cast<int32_t*>(room + Gather::Vectors(shape, InnerSamples()) * kGatherBytes);
    // Further pairs of taps are read at a fixed distance behind the first one's load, if it does not have them all.
    const ptrdiff_t end = (taps.first[taps.to - 1] + ptrdiff_t{hasAll_ ? taps.count : 2}) * channels;
    const int32_t* first = taps.first + taps.from;
    const int nc = channels;
    gather = Gather(
        shape, loads, InnerSamples(), end,
        [=](ptrdiff_t s) { return nc == 1 ? ptrdiff_t{first[s]} : first[s / nc] * ptrdiff_t{nc} + s % nc; }, room,
        offsets);
    for (int i = 0; i < 3 * static_cast<int>(kSamples); ++i) {
      pixelOf_[i] = (i / static_cast<int>(kSamples) + i % static_cast<int>(kSamples)) / nc;
    }
  }

  template <int kChannels>
  void FilterEach(const uint8_t* row, ptrdiff_t begin, ptrdiff_t end, int16_t* out) const {
    const Edge place = edge;
    for (ptrdiff_t x = begin; x < end; ++x) {
      int sums[kChannels] = {};
      const int16_t* weights = weights_ + 2 * x;
      for (int k = 0; k < taps.count; ++k) {
        const uint8_t* pixel = row + place(taps.first[x] + k) * kChannels;
        for (int c = 0; c < kChannels; ++c) sums[c] += pixel[c] * weights[k % 2];
        weights += k % 2 * 2 * plane_;
      }
      constexpr int kHalf = 1 << (kAcrossShift - 1);
      for (int c = 0; c < kChannels; ++c) out[x * kChannels + c] = Saturated((sums[c] + kHalf) >> kAcrossShift);
    }
  }

  template <int kLoads, int kChannels, size_t kRows>
  void FilterChannels(const std::array<const uint8_t*, kRows>& rows, const std::array<int16_t*, kRows>& out) const {
    constexpr bool kCanHaveAll = kLoads == 1;
    if (hasAll_) return FilterPairs<kLoads, kChannels, kRows, kCanHaveAll>(rows, out);
    FilterPairs<kLoads, kChannels, kRows, false>(rows, out);
  }

  template <int kLoads, int kChannels, size_t kRows, bool kHasAll>
  void FilterPairs(const std::array<const uint8_t*, kRows>& rows, const std::array<int16_t*, kRows>& out) const {
    taps.count == 4 ? FilterAll<kLoads, kChannels, 2, kRows, kHasAll>(rows, out)
                    : FilterAll<kLoads, kChannels, 3, kRows, kHasAll>(rows, out);
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

  // The sums of one row, or of two, as 16-bit numbers.
  static HWY_INLINE void Store(hn::Vec<Sums> sum, int16_t* out) {
    const hn::Rebind<int16_t, Sums> narrow;
    hn::StoreU(hn::DemoteTo(narrow, sum), narrow, out);
  }
  static HWY_INLINE void Store(hn::Vec<Sums> first, hn::Vec<Sums> second, int16_t* firstOut, int16_t* secondOut) {
    const hn::Half<Words> half;
    const auto both = PackedInOrder<int16_t>(first, second);
    hn::StoreU(hn::LowerHalf(half, both), half, firstOut);
    hn::StoreU(hn::UpperHalf(half, both), half, secondOut);
  }

  template <int kLoads, int kChannels, int kPairs, size_t kRows, bool kHasAll>
  void FilterAll(std::array<const uint8_t*, kRows> rows, std::array<int16_t*, kRows> out) const {
    const Sums d;
    const uint8_t* mask = gather.masks();
    const int32_t* offsets = gather.offsets();
    const int16_t* weights = weights_ + 2 * taps.from;
    const ptrdiff_t plane = 2 * plane_, last = InnerSamples() - kSamples;
    for (int16_t*& row : out) row += taps.from * kChannels;
    const auto filter = [&](ptrdiff_t start) HWY_ATTR {
      const auto first = hn::LoadU(GatherTag(), mask);
      hn::Vec<Sums> sums[kRows];
      for (auto& sum : sums) sum = hn::Set(d, 1 << (kAcrossShift - 1));
      for (int k = 0; k < kPairs; ++k) {
        const auto w = WeightsOf<kChannels>(weights + k * plane, start);
        const auto shuffle = kHasAll ? hn::Add(first, hn::Set(GatherTag(), static_cast<uint8_t>(2 * k * kChannels))) : first;
        for (size_t i = 0; i < kRows; ++i) {
          const auto pairs = GatherVector<kLoads>(rows[i] + (kHasAll ? 0 : 2 * k * kChannels), offsets, shuffle);
          sums[i] = hn::Add(sums[i], MulAddPairs(hn::BitCast(Words(), pairs), w));
        }
      }
      for (auto& sum : sums) sum = hn::ShiftRight<kAcrossShift>(sum);
      if constexpr (kRows == 1) {
        Store(sums[0], out[0] + start);
      } else {
        Store(sums[0], sums[1], out[0] + start, out[1] + start);
      }
    };
    for (ptrdiff_t start = 0; start < last; start += kSamples) {
      filter(start);
      mask += kGatherBytes;
      offsets += kLoads * kGatherBlocks;
    }
    filter(last);
  }

  ptrdiff_t plane_;
  const int16_t* weights_;
  int32_t pixelOf_[3 * kSamples];  // of the lanes of a vector that begins at each channel of a pixel
  bool hasAll_ = false;            // whether one load has all taps of its outputs
};

template <int kPairs>
void CombineRows(const RowRing<int16_t>& ring, ptrdiff_t first, const int16_t* weights, ptrdiff_t plane, uint8_t* dst,
                 ptrdiff_t samples) {
  const hn::CappedTag<int16_t, 16> d;
  const hn::Repartition<int32_t, hn::CappedTag<int16_t, 16>> wide;
  const std::array<const int16_t*, 2 * kPairs> rows = ring.Rows<2 * kPairs>(first);
  int32_t pairs[kPairs];
  for (int k = 0; k < kPairs; ++k) std::memcpy(&pairs[k], weights + 2 * k * plane, sizeof(int32_t));
  StoreBytes(d, dst, samples, [&](ptrdiff_t i) HWY_ATTR {
    auto low = hn::Set(wide, 1 << (kDownShift - 1)), high = low;
    for (int k = 0; k < kPairs; ++k) {
      const auto a = hn::LoadU(d, rows[2 * k] + i), b = hn::LoadU(d, rows[2 * k + 1] + i);
      const auto w = hn::BitCast(d, hn::Set(wide, pairs[k]));
      low = hn::Add(low, MulAddPairs(hn::InterleaveLower(d, a, b), w));
      high = hn::Add(high, MulAddPairs(hn::InterleaveUpper(d, a, b), w));
    }
    return hn::ReorderDemote2To(d, hn::ShiftRight<kDownShift>(low), hn::ShiftRight<kDownShift>(high));
  });
}

void ResizeFixed(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels, step = RowFloats(samples), plane = PlaneOf(record.height);
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  auto* rows = reinterpret_cast<int16_t*>(AtBoundary(call.buffer));
  auto* room = reinterpret_cast<uint8_t*>(rows + rowTaps.count * step);
  const TapColumns columns(record, tile, call.border, channels, room);
  const int16_t* weights = record.Weights<int16_t>(record.rows) + 2 * tile.y;
  const RowRing<int16_t> ring{rows, step, rowTaps.count};
  const auto combine = rowTaps.count == 4 ? CombineRows<2> : CombineRows<3>;
  FilterFixedTile(call, record, tile, rowTaps, columns, ring, [&](ptrdiff_t y) {
    combine(ring, rowTaps.first[y], weights + 2 * y, plane, call.dst.Row(y), samples);
  });
}

template <class Weights>
Weights WeightsOf(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t begin) {
  using W = std::remove_cvref_t<decltype(*Weights::at)>;
  constexpr ptrdiff_t kPair = sizeof(W) == sizeof(int16_t) ? 2 : 1;
  return {record.Weights<W>(axis) + kPair * begin, static_cast<ptrdiff_t>(PlaneOf(axis.destination))};
}

template <class Weights, class T>
void ResizeFloat(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const auto across = WeightsOf<Weights>(record, record.columns, tile.x);
  const auto down = WeightsOf<Weights>(record, record.rows, tile.y);
  if constexpr (sizeof(T) == sizeof(double)) {
    FilterTileDirectly(call, record, tile, across, down);
  } else {
    FilterTile(call, record, tile, across, down, reinterpret_cast<float*>(AtBoundary(call.buffer)));
  }
}

template <class T>
void ResizeTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if (record.weights != WeightKind::kFixed) return ResizeFloat<TapPlanes>(call, record, tile);
  if constexpr (sizeof(T) == 1) {
    ResizeFixed(call, record, tile);
  } else {
    ResizeFloat<FixedTapPlanes>(call, record, tile);
  }
}

template <class T>
QvpStatus Resize(QvpiBorderType border, ResizeCall<T> call, const ResizeDemand& demand) {
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kMirror, BorderKind::kReplicateAlt}, border)) {
    return qvpStatusBorder;
  }
  call.border = border;
  return RunResize(call, demand, ResizeTile<T>);
}

template <class T>
QvpStatus Cubic(QvpiBorderType border, const ResizeCall<T>& call) {
  return Resize(border, call, {qvpInterpolationCubic});
}
template <class T>
QvpStatus Lanczos(QvpiBorderType border, const ResizeCall<T>& call) {
  return Resize(border, call, {qvpInterpolationLanczos});
}
template <class T>
QvpStatus Antialiasing(QvpiBorderType border, const ResizeCall<T>& call) {
  return Resize(border, call, {0, true});
}

}  // namespace
}  // namespace qvp

using namespace qvp;

#define TAPS(type)                                                        \
  QVP_RESIZE_LAYOUTS(QVP_RESIZE_BORDER, qvpiResizeCubic, type, Cubic)     \
  QVP_RESIZE_LAYOUTS(QVP_RESIZE_BORDER, qvpiResizeLanczos, type, Lanczos) \
  QVP_RESIZE_LAYOUTS(QVP_RESIZE_BORDER, qvpiResizeAntialiasing, type, Antialiasing)
TAPS(8u)
TAPS(16u)
TAPS(16s)
TAPS(32f)
QVP_RESIZE_LAYOUTS(QVP_RESIZE_BORDER, qvpiResizeAntialiasing, 64f, Antialiasing)
