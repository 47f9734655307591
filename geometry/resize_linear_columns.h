// Linear interpolation across in 16-bit lanes, for 8-bit samples and weights in units of 1/16384.
#pragma once

#include <hwy/cache_control.h>

#include "geometry/resize_fixed.h"

namespace qvp::resize {

// The samples of a pixel that are filtered: `between` bytes from one to the next, the first one `offset` bytes behind
// the beginning of the pixel. Rows are given by their first sample.
struct SourcePixels {
  int channels, bytes, between, offset;
};
constexpr SourcePixels PixelsOf(int channels) { return {channels, channels, 1, 0}; }

// h = (l (16384 - w) + r w + 128) >> 8, with 6 bits of fraction: 0 to 64 * 255. It is 64 l + ((r - l) w + 128 >> 8),
// and the second term is the rounded high half of 64 (r - l) times 2 w.
inline int16_t Across(int l, int r, int w) { return static_cast<int16_t>((l * (kFixedOne - w) + r * w + 128) >> 8); }

// Two filtered rows, down, by twice the weight of the lower one in each lane of w:
//   (h0 (16384 - w) + h1 w + 2^19) >> 20 = (h0 + ((h1 - h0) w >> 14) + 32) >> 6
// The inner term is the high half of 2 (h1 - h0) times 2 w, and the outer one the rounded high half of twice its sum
// times 256. The result is 0 to 255.
template <class D>
HWY_INLINE hn::Vec<D> BlendDown(D d, const int16_t* upper, const int16_t* lower, hn::Vec<D> w) {
  const auto h0 = hn::LoadU(d, upper), step = hn::Sub(hn::LoadU(d, lower), h0);
  return hn::MulFixedPoint15(hn::Add(hn::MulHigh(hn::Add(step, step), w), h0), hn::Set(d, 512));
}

// A sample of the destination takes about 12 bytes of filtered rows, shuffles, weights and source. Wide tiles go in
// strips, for which these stay in a first-level cache of 48 KiB.
inline constexpr ptrdiff_t kMostSamples = 3500;

class LinearColumns : public FixedColumns {
 public:
  static constexpr ptrdiff_t kSamples = kGatherBytes / 2;  // of a vector

  // `room` is for the shuffles and weights: 4 bytes for each sample and each column, or RoomBytes(). `ahead` is how far
  // behind a row those lie that are filtered next, or 0 where the CPU finds them in time. Rows of results and `room`
  // are for `least` samples, of one channel: the last column is repeated if there are fewer.
  LinearColumns(const ResizeRecord& record, const Tile& tile, QvpiBorderType border, const SourcePixels& pixels,
                ptrdiff_t ahead, uint8_t* room, ptrdiff_t least = 0)
      : FixedColumns(record, tile, border, pixels.channels),
        pixels_(pixels),
        weights_(record.Weights<int16_t>(record.columns) + 2 * tile.x),
        ahead_(ahead) {
    const int nc = channels;
    // The bytes that one load has to have: those of the second taps of its last pixel's first to last sample.
    const GatherShape shape{2, nc, pixels.bytes, 1, pixels.between, pixels.bytes + 1 - pixels.between};
    const int loads = FewestLoadsFor(shape, record.columns.p, record.columns.q);
    if (nc == 1) served = {0, std::max(taps.length, least)};  // what stands for pixels beyond the edges is near, too
    if (loads == 0 || ServedSamples() < 1) return;
    const ptrdiff_t bytes = Gather::Vectors(shape, ServedSamples()) * kGatherBytes;
    doubled_ = reinterpret_cast<int16_t*>(room);
    auto* offsets = reinterpret_cast<int32_t*>(room + 2 * bytes);
    if (nc == 1) Plan<1>(shape, loads, room + bytes, offsets);
    if (nc == 2) Plan<2>(shape, loads, room + bytes, offsets);
    if (nc == 3) Plan<3>(shape, loads, room + bytes, offsets);
    if (nc == 4) Plan<4>(shape, loads, room + bytes, offsets);
  }

  // What most loads need of the room for so many samples.
  static ptrdiff_t RoomBytes(ptrdiff_t samples) {
    constexpr ptrdiff_t kOffsets = OffsetsOfVector(4) * ptrdiff_t{sizeof(int32_t)};
    return Gather::Vectors({2, 1, 1}, samples) * (2 * kGatherBytes + kOffsets);
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
    for (int16_t*& row : out) row += served.begin * channels;
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
    const ptrdiff_t last = ServedSamples() - kSamples;
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
        const uint8_t* l = rows[i] + edge(taps.first[x]) * pixels_.bytes;
        const uint8_t* r = rows[i] + edge(taps.first[x] + ptrdiff_t{1}) * pixels_.bytes;
        for (int c = 0; c < channels; ++c) {
          const int at = c * pixels_.between;
          out[i][x * channels + c] = Across(l[at], r[at], weights_[2 * x + 1]);
        }
      }
    }
  }

 private:
  template <int kChannels>
  void Plan(const GatherShape& shape, int loads, uint8_t* masks, int32_t* offsets) {
    const ptrdiff_t samples = ServedSamples(), pixelBytes = pixels_.bytes;
    const int32_t* first = taps.first + served.begin;
    const int16_t* second = weights_ + 2 * served.begin + 1;
    const ptrdiff_t lastColumn = std::min(served.end, taps.length) - 1 - served.begin, last = first[lastColumn];
    const ptrdiff_t end = (std::max(edge(last), edge(last + 1)) + 1) * pixelBytes - pixels_.offset;
    if constexpr (kChannels == 1) {
      const auto pairs = [this, lastColumn](ptrdiff_t s) { return PlacesOf(std::min(s, lastColumn)); };
      gather = Gather::OfPairs(loads, samples, end, pairs, masks, offsets);
    } else {
      gather = Gather(shape, loads, samples, end, {first, pixelBytes, pixels_.between}, masks, offsets);
    }
    for (ptrdiff_t v = 0; v < gather.count(); ++v) {
      const ptrdiff_t start = std::min(v * kSamples, samples - kSamples);
      for (ptrdiff_t s = 0; s < kSamples; ++s) {
        const ptrdiff_t column = kChannels == 1 ? std::min(start + s, lastColumn) : (start + s) / kChannels;
        doubled_[v * kSamples + s] = static_cast<int16_t>(2 * second[2 * column]);
      }
    }
  }

  // The bytes of both taps of a column of one channel.
  PlacePair PlacesOf(ptrdiff_t x) const {
    const ptrdiff_t first = taps.first[x], pixelBytes = pixels_.bytes;
    if (taps.from <= x && x < taps.to) return {first * pixelBytes, (first + 1) * pixelBytes};
    return {edge(first) * pixelBytes, edge(first + 1) * pixelBytes};
  }

  SourcePixels pixels_;
  const int16_t* weights_;
  int16_t* doubled_ = nullptr;
  ptrdiff_t ahead_;
};

// Rows of up to a page of memory, and pieces of rows, end before the CPU has noticed where to read on: those that are
// filtered next are asked for early. Longer rows only get slower by that.
inline constexpr ptrdiff_t kLongestFetched = 4096;
inline ptrdiff_t AheadOf(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile,
                         const Tile& whole) {
  const int32_t* first = record.Index(record.columns) + tile.x;
  const ptrdiff_t pixels = first[tile.width - 1] - ptrdiff_t{first[0]};
  if (tile.width == whole.width && pixels * Channels(call.src.layout) > kLongestFetched) return 0;
  return std::max(2, record.rows.p / record.rows.q) * call.src.step;
}

}  // namespace qvp::resize
