// Bringing the samples that a row of outputs needs into vectors: one 16-byte load and one byte shuffle serve several
// outputs, because their samples are close to each other. The shuffles are made once for a tile.
#pragma once

#include <cstring>

#include "base/blocks.h"
#include "base/pairs.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

using GatherTag = hn::CappedTag<uint8_t, 32>;
inline constexpr ptrdiff_t kGatherBytes = hn::MaxLanes(GatherTag()), kGatherBlocks = kGatherBytes / kBlockBytes;

// What a lane of the gathered vector is made of: the bytes at `first` and, `apart` bytes behind it, a second one. The
// lane has `lane` bytes: 1 for the first byte alone, 2 for both, 4 for both with zeros behind each.
struct GatherShape {
  int lane, channels, apart;
  int leastLoads = 1;
  int sampleBytes = 1;
  int reach = apart;  // how far behind the first byte there are others that one load has to have, too
};

// The most samples that the first taps of some successive outputs can lie apart. From channel c on, output i is of
// channel (c + i) mod channels of the pixel (c + i) / channels further. Two and four channels begin with the first one.
inline int64_t SpanOf(int outputs, int channels, int64_t p, int64_t q) {
  int64_t span = channels - 1;
  for (int c = 0; c < (channels % 2 == 0 ? 1 : channels); ++c) {
    for (int end = c + std::max(0, outputs - channels); end < c + outputs; ++end) {
      const int pixels = end / channels;
      span = std::max(span, (pixels * p + q - 1) / q * channels + end % channels - c);
    }
  }
  return span;
}

// Whether one load of 16 bytes is enough for so many outputs, p / q source pixels apart.
inline bool IsOneLoad(const GatherShape& shape, int outputs, int64_t p, int64_t q) {
  return (SpanOf(outputs, shape.channels, p, q) + 1) * shape.sampleBytes + shape.reach <= kBlockBytes;
}

// In place of a number of loads for each block: one load for all blocks of a vector.
inline constexpr int kSharedLoad = -1;
constexpr ptrdiff_t OffsetsOfVector(int loads) { return loads == kSharedLoad ? 1 : loads * kGatherBlocks; }

// Loads of 16 bytes for each 16-byte block that are enough for outputs p / q source pixels apart: 1, 2 or 4, or 0 where
// four are not enough.
inline int LoadsFor(const GatherShape& shape, int64_t p, int64_t q) {
  for (const int loads : {1, 2, 4}) {
    if (loads < shape.leastLoads) continue;
    const int outputs = kBlockBytes / shape.lane / loads;
    if (outputs == 0) break;
    if (IsOneLoad(shape, outputs, p, q)) return loads;
  }
  return 0;
}

// The same, or kSharedLoad where that is enough.
inline int FewestLoadsFor(const GatherShape& shape, int64_t p, int64_t q) {
  const bool isShared = kGatherBlocks > 1 && IsOneLoad(shape, static_cast<int>(kGatherBytes) / shape.lane, p, q);
  return isShared ? kSharedLoad : LoadsFor(shape, p, q);
}

struct PlacePair {
  ptrdiff_t first, second;
  ptrdiff_t Least() const { return std::min(first, second); }
};

// The places of the samples of pixels in a source row: of column x from first[x], which never decreases, times
// `pixelBytes` on, less `origin`; `between` bytes lie from one to the next.
struct SamplePlaces {
  const int32_t* first;
  ptrdiff_t pixelBytes, between = 1, origin = 0;
};

// The shuffles for a row of outputs, whose sample s needs the byte at its place in the source row and the one `apart`
// behind it; of one channel, a function may give a pair of any two places that are near. A vector of outputs has
// kGatherBytes / lane samples; the last one may overlap the one before it. Loads stay within [places of the first
// sample, end).
class Gather {
 public:
  // Bytes of memory for n samples. Nothing is kept for a part of a vector.
  static ptrdiff_t Vectors(const GatherShape& shape, ptrdiff_t samples) {
    const ptrdiff_t perVector = kGatherBytes / shape.lane;
    return samples < perVector ? 0 : (samples + perVector - 1) / perVector;
  }

  Gather() = default;

  // `masks` has room for kGatherBytes a vector, `offsets` for OffsetsOfVector(loads) numbers.
  Gather(const GatherShape& shape, int loads, ptrdiff_t samples, ptrdiff_t end, const SamplePlaces& places,
         uint8_t* masks, int32_t* offsets) {
    if (shape.channels == 1) *this = OfPixels<1>(shape, loads, samples, end, places, masks, offsets);
    if (shape.channels == 2) *this = OfPixels<2>(shape, loads, samples, end, places, masks, offsets);
    if (shape.channels == 3) *this = OfPixels<3>(shape, loads, samples, end, places, masks, offsets);
    if (shape.channels == 4) *this = OfPixels<4>(shape, loads, samples, end, places, masks, offsets);
  }
  template <class Pairs>
  static Gather OfPairs(int loads, ptrdiff_t samples, ptrdiff_t end, const Pairs& pairs, uint8_t* masks,
                        int32_t* offsets) {
    const auto add = [&](ptrdiff_t s, ptrdiff_t n, uint8_t* mask) {
      const ptrdiff_t offset = std::min(pairs(s).Least(), end - kBlockBytes);
      for (ptrdiff_t i = 0; i < n; ++i) {
        const PlacePair both = pairs(s + i);
        mask[2 * i] = static_cast<uint8_t>(both.first - offset);
        mask[2 * i + 1] = static_cast<uint8_t>(both.second - offset);
      }
      return static_cast<int32_t>(offset);
    };
    return {2, loads, samples, end - pairs(0).Least(), add, masks, offsets};
  }

  ptrdiff_t count() const { return count_; }
  int loads() const { return loads_; }
  const uint8_t* masks() const { return masks_; }
  const int32_t* offsets() const { return offsets_; }

 private:
  // add(s, n, mask) makes the mask of a load for n samples from s on, and tells its offset.
  template <class Add>
  Gather(int lane, int loads, ptrdiff_t samples, ptrdiff_t bytes, const Add& add, uint8_t* masks, int32_t* offsets)
      : masks_(masks), offsets_(offsets), loads_(loads) {
    const ptrdiff_t perVector = kGatherBytes / lane, perLoad = perVector / OffsetsOfVector(loads);
    if (samples < perVector || bytes < kBlockBytes) return;
    count_ = (samples + perVector - 1) / perVector;
    for (ptrdiff_t v = 0; v < count_; ++v) {
      const ptrdiff_t start = std::min(v * perVector, samples - perVector);
      for (ptrdiff_t s = start; s < start + perVector; s += perLoad) {
        *offsets++ = add(s, perLoad, masks);
        masks += perLoad * lane;
      }
    }
  }

  template <int kChannels>
  static Gather OfPixels(const GatherShape& shape, int loads, ptrdiff_t samples, ptrdiff_t end,
                         const SamplePlaces& places, uint8_t* masks, int32_t* offsets) {
    const auto make = [&](auto one, uint32_t behind) {
      using Lane = decltype(one);
      const auto add = [=](ptrdiff_t s, ptrdiff_t n, uint8_t* mask) {
        return AddLoad<kChannels>(places, s, n, end, one, static_cast<Lane>(behind), mask);
      };
      return Gather(shape.lane, loads, samples, end - PlaceOf<kChannels>(places, 0), add, masks, offsets);
    };
    const auto apart = static_cast<uint32_t>(shape.apart);
    if (shape.lane == 1) return make(uint8_t{1}, 0);
    if (shape.lane == 2) return make(uint16_t{0x101}, apart << 8);
    return make(uint32_t{0x10001}, apart << 16 | 0x80008000);
  }

  template <int kChannels>
  static ptrdiff_t PlaceOf(const SamplePlaces& p, ptrdiff_t s) {
    return p.first[s / kChannels] * p.pixelBytes + s % kChannels * p.between - p.origin;
  }

  // A lane of the mask is a sample's place in the load times `one`, plus `behind`.
  template <int kChannels, class Lane>
  static int32_t AddLoad(const SamplePlaces& places, ptrdiff_t s, ptrdiff_t n, ptrdiff_t end, Lane one, Lane behind,
                         uint8_t* mask) {
    ptrdiff_t offset = end - kBlockBytes;
    for (ptrdiff_t i = 0; i < std::min<ptrdiff_t>(n, kChannels); ++i) {
      offset = std::min(offset, PlaceOf<kChannels>(places, s + i));
    }
    for (ptrdiff_t i = 0; i < n; ++i) {
      const auto lane = static_cast<Lane>((PlaceOf<kChannels>(places, s + i) - offset) * one + behind);
      std::memcpy(mask + i * ptrdiff_t{sizeof(Lane)}, &lane, sizeof lane);
    }
    return static_cast<int32_t>(offset);
  }

  uint8_t* masks_ = nullptr;
  int32_t* offsets_ = nullptr;
  int loads_ = 0;
  ptrdiff_t count_ = 0;
};

// One load for each block of a vector; `stride` loads lie between those of the first and of the second block.
HWY_INLINE hn::Vec<GatherTag> LoadBlocks(const uint8_t* row, const int32_t* offsets, int stride) {
  return FromBlocks(GatherTag(),
                    [&](int i) HWY_ATTR { return hn::LoadU(hn::Full128<uint8_t>(), row + offsets[i * stride]); });
}

// The vector of gathered bytes. With several loads each is shuffled by the whole mask, of which it has its part.
// (Several shuffles of one place share its loads.)
template <int kLoads>
HWY_INLINE hn::Vec<GatherTag> GatherVector(const uint8_t* row, const int32_t* offsets, hn::Vec<GatherTag> shuffle) {
  const GatherTag d;
  const hn::Repartition<uint64_t, GatherTag> d64;
  const hn::Repartition<uint32_t, GatherTag> d32;
  const auto part = [&](int i)
                        HWY_ATTR { return hn::TableLookupBytesOr0(LoadBlocks(row, offsets + i, kLoads), shuffle); };
  if constexpr (kLoads == kSharedLoad) {
    return hn::TableLookupBytesOr0(hn::LoadDup128(d, row + offsets[0]), shuffle);
  } else if constexpr (kLoads == 1) {
    return part(0);
  } else if constexpr (kLoads == 2) {
    return hn::BitCast(d, hn::OddEven(hn::BitCast(d64, part(1)), hn::BitCast(d64, part(0))));
  } else {
    const auto low = hn::OddEven(hn::BitCast(d32, part(1)), hn::BitCast(d32, part(0)));
    const auto high = hn::OddEven(hn::BitCast(d32, part(3)), hn::BitCast(d32, part(2)));
    return hn::BitCast(d, hn::OddEven(hn::BitCast(d64, high), hn::BitCast(d64, low)));
  }
}

}  // namespace qvp::resize
