// Averages over areas of 8-bit pixels, in integers. In units of 1 / q a column covers whole parts of pixels, p in all;
// so does a row. The sum of an area's pixels, each by its parts across times its parts down, is a whole number N, and
// their average N / P with P = p p'.
#pragma once

#include "base/lanes.h"
#include "base/pack.h"
#include "geometry/resize_area_exact.h"
#include "geometry/resize_gather.h"

namespace qvp::resize {

// Bounds of the tables, of the sums down, which fit int16 (255 * 128 < 2^15), and of those of whole areas, which are
// exact in single floats (255 * 2^16 < 2^24).
inline constexpr int kMostAreaPeriod = 64, kMostAreaPairs = 8, kMostPartsDown = 128, kMostAreaParts = 1 << 16;

inline bool AreAreasWhole(const Period& across, const Period& down) {
  return std::max(across.taps, down.taps) <= 2 * kMostAreaPairs && across.q <= kMostAreaPeriod &&
         down.parts <= kMostPartsDown && int64_t{across.parts} * down.parts <= kMostAreaParts;
}

// The columns of a tile, which take the rows of sums down to averages. What they need repeats after q of them.
class AreaColumns {
 public:
  AreaColumns(const Period& across, const Period& down, const Tile& tile, int channels)
      : p_(across.p),
        q_(across.q),
        begin_(tile.x),
        columns_(tile.width),
        origin_(tile.source.x),
        end_(across.End(tile.x + tile.width - 1)),
        channels_(channels),
        pairs_((across.taps + 1) / 2),
        quotient_(static_cast<int>(across.parts * down.parts), 8) {
    walk_ = By(channels <= 2 ? kLanes / channels : kPixels);
    start_ = PlaceOf(0);
    last_ = PlaceOf(columns_ - Fewest(channels));
    FillPhases(across);
    if (channels_ > 2) PlanPixels();
    if (channels_ == 2) PlanSamples<2>();
    if (channels_ == 1) PlanSamples<1>();
  }

  // The fewest columns that there are vectors for.
  static ptrdiff_t Fewest(int channels) { return channels <= 2 ? 2 * kLanes / channels : kPixels; }
  // Source pixels of the tile, and samples of a row of sums with what vectors touch behind them.
  ptrdiff_t Pixels() const { return end_ - origin_; }
  int64_t RowSamples() const { return (int64_t{Pixels()} + 2 * pairs_ + 1) * channels_ + kBlockBytes; }

  // The usual numbers of pairs have loops of their own.
  void Average(const uint16_t* sums, uint8_t* dst) const {
    if (pairs_ == 1) return AverageBy<1>(sums, dst);
    if (pairs_ == 2) return AverageBy<2>(sums, dst);
    AverageBy<0>(sums, dst);
  }

 private:
  using Wide = hn::Repartition<int32_t, GatherTag>;
  using Words = hn::Repartition<int16_t, GatherTag>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(Wide()), kPixels = 4;
  static constexpr ptrdiff_t kPlaces = kMostAreaPeriod + kLanes;  // a vector may begin at every place of a period

  // A column's place in its period, and the byte of the sums that the period begins at.
  struct Place {
    ptrdiff_t phase, source;
  };
  // Steps from column to column without divisions: by whole periods and a rest, and by one period more at its end.
  struct Walk {
    Place step;
    ptrdiff_t period, periodBytes;

    HWY_INLINE Place Next(Place place) const {
      const Place next{place.phase + step.phase, place.source + step.source};
      return next.phase < period ? next : Place{next.phase - period, next.source + periodBytes};
    }
  };
  ptrdiff_t PeriodBytes() const { return p_ * channels_ * ptrdiff_t{sizeof(uint16_t)}; }
  Walk By(ptrdiff_t columns) const { return {{columns % q_, columns / q_ * PeriodBytes()}, q_, PeriodBytes()}; }
  Place PlaceOf(ptrdiff_t column) const {
    const ptrdiff_t at = begin_ + column;
    return {at % q_, (at / q_ * p_ - origin_) * channels_ * ptrdiff_t{sizeof(uint16_t)}};
  }

  // The first pixel of each place, and the parts of two successive pixels in one number; of two channels for each.
  void FillPhases(const Period& across) {
    for (ptrdiff_t j = 0; j < q_; ++j) first_[j] = across.index[j];
    for (ptrdiff_t j = q_; j < q_ + kLanes; ++j) first_[j] = first_[j - q_] + static_cast<int32_t>(p_);
    for (int k = 0; k < across.taps; k += 2) {
      int32_t* const weights = weights_ + k / 2 * kPlaces * (channels_ == 2 ? 2 : 1);
      channels_ == 2 ? FillWeights<2>(across, k, weights) : FillWeights<1>(across, k, weights);
    }
  }
  template <int kEach>
  void FillWeights(const Period& across, int k, int32_t* weights) const {
    const float *first = across.weights + k * q_, *second = first + (k + 1 < across.taps ? q_ : 0);
    const int unit = k + 1 < across.taps ? 1 << 16 : 0;
    for (ptrdiff_t j = 0; j < q_; ++j) {
      std::fill_n(weights + j * kEach, kEach, static_cast<int>(first[j]) + unit * static_cast<int>(second[j]));
    }
    for (ptrdiff_t i = q_ * kEach; i < (q_ + kLanes) * kEach; ++i) weights[i] = weights[i - q_ * kEach];
  }

  // One or two channels: the shuffles of a vector of samples, for each place of its first one. A lane has a sample and
  // the one of the next pixel.
  template <int kChannels>
  void PlanSamples() {
    constexpr int kBytes = sizeof(uint16_t);
    loads_ = LoadsFor({4, kChannels, kChannels * kBytes, 1, kBytes}, p_, q_);
    const ptrdiff_t lanesOfLoad = kLanes / (loads_ * kGatherBlocks);
    int32_t places[kPlaces * kChannels];
    for (int i = 0; i < (q_ + kLanes) * kChannels; ++i) {
      places[i] = (first_[i / kChannels] * kChannels + i % kChannels) * kBytes;
    }
    int32_t* offset = offsets_;
    for (ptrdiff_t j = 0; j < q_; ++j) {
      const int32_t* at = places + j * kChannels;
      for (ptrdiff_t s = 0; s < kLanes; s += lanesOfLoad) *offset++ = at[s];
      hn::StoreU(Shuffle<kChannels>(hn::LoadU(Wide(), at), loads_), GatherTag(), masks_ + j * kGatherBytes);
    }
  }
  template <int kChannels>
  static hn::Vec<GatherTag> Shuffle(hn::Vec<Wide> places, int loads) {
    const auto sample = hn::Set(Wide(), kChannels == 2 ? 0x05040100 : 0x03020100);
    const auto first = loads == 1 ? hn::Broadcast<0>(places) : loads == 2 ? hn::DupEven(places) : places;
    return hn::BitCast(GatherTag(), hn::Add(sample, hn::Mul(hn::Sub(places, first), hn::Set(Wide(), 0x01010101))));
  }

  // Several channels: where the pixels begin, and the shuffle that brings two successive ones together.
  void PlanPixels() {
    const auto bytes = static_cast<int>(channels_ * sizeof(uint16_t));
    for (ptrdiff_t j = 0; j < q_ + kPixels; ++j) offsets_[j] = first_[j] * bytes;
    for (int i = 0; i < kBlockBytes; ++i) masks_[i] = static_cast<uint8_t>(i / 4 * 2 + i % 2 + i % 4 / 2 * bytes);
  }

  // What the loops read, apart from the class: stores of bytes could change its members.
  struct Tables {
    ptrdiff_t pairs;
    AreaQuotient quotient;
    const int32_t *weights, *offsets;
    const uint8_t* masks;

    HWY_INLINE hn::Vec<Wide> Averages(hn::Vec<Wide> sums) const {
      return RoundToInt(quotient.Of(hn::ConvertTo(hn::Rebind<float, Wide>(), sums)));
    }
  };
  Tables Locals() const { return {pairs_, quotient_, weights_, offsets_, masks_}; }
  static HWY_INLINE auto Bytes(hn::Vec<Words> words) { return hn::DemoteTo(hn::Rebind<uint8_t, Words>(), words); }

  template <int kPairs>
  void AverageBy(const uint16_t* sums, uint8_t* dst) const {
    if (channels_ == 4) return AveragePixels<kPairs, 4>(sums, dst);
    if (channels_ == 3) return AveragePixels<kPairs, 3>(sums, dst);
    channels_ == 2 ? AverageSamples<kPairs, 2>(sums, dst) : AverageSamples<kPairs, 1>(sums, dst);
  }
  template <int kPairs, int kChannels>
  void AverageSamples(const uint16_t* sums, uint8_t* dst) const {
    if (loads_ == 1) return AverageGathered<kPairs, kChannels, 1>(sums, dst);
    if (loads_ == 2) return AverageGathered<kPairs, kChannels, 2>(sums, dst);
    AverageGathered<kPairs, kChannels, 4>(sums, dst);
  }

  template <int kPairs, int kChannels, int kLoads>
  static HWY_INLINE hn::Vec<Wide> Gathered(const Tables& tables, const uint8_t* row, Place place) {
    const auto shuffle = hn::LoadU(GatherTag(), tables.masks + place.phase * kGatherBytes);
    const int32_t* offsets = tables.offsets + place.phase * kLoads * kGatherBlocks;
    auto sum = hn::Zero(Wide());
    for (ptrdiff_t k = 0; k < (kPairs ? kPairs : tables.pairs); ++k) {
      const auto samples = GatherVector<kLoads>(row + place.source + 4 * kChannels * k, offsets, shuffle);
      const auto w = hn::LoadU(Wide(), tables.weights + (k * kPlaces + place.phase) * kChannels);
      sum = hn::Add(sum, MulAddPairs(hn::BitCast(Words(), samples), hn::BitCast(Words(), w)));
    }
    return tables.Averages(sum);
  }

  template <int kPairs, int kChannels, int kLoads>
  void AverageGathered(const uint16_t* sums, uint8_t* dst) const {
    const Tables tables = Locals();
    const Walk walk = walk_;
    const auto* row = reinterpret_cast<const uint8_t*>(sums);
    const auto store = [=](Place place, Place next, uint8_t* out) HWY_ATTR {
      const auto lower = Gathered<kPairs, kChannels, kLoads>(tables, row, place);
      const auto upper = Gathered<kPairs, kChannels, kLoads>(tables, row, next);
      hn::StoreU(Bytes(PackedInOrder<int16_t>(lower, upper)), hn::Rebind<uint8_t, Words>(), out);
    };
    const ptrdiff_t last = columns_ * kChannels - 2 * kLanes;
    Place place = start_;
    for (ptrdiff_t x = 0; x < last; x += 2 * kLanes) {
      const Place next = walk.Next(place);
      store(place, next, dst + x);
      place = walk.Next(next);
    }
    store(last_, walk.Next(last_), dst + last);
  }

  // A pixel in each block of 16 bytes: that of the place and, in the second block, the one two behind it.
  template <int kPairs, int kChannels>
  static HWY_INLINE hn::Vec<Wide> BlockPixels(const Tables& tables, const uint8_t* row, ptrdiff_t phase) {
    const auto shuffle = hn::LoadDup128(GatherTag(), tables.masks);
    auto sum = hn::Zero(Wide());
    for (ptrdiff_t k = 0; k < (kPairs ? kPairs : tables.pairs); ++k) {
      const int32_t* weights = tables.weights + k * kPlaces + phase;
      const auto samples = LoadBlocks(row + k * 2 * kChannels * sizeof(uint16_t), tables.offsets + phase, 2);
      const auto w =
          FromBlocks(Wide(), [&](int i) HWY_ATTR { return hn::Set(hn::Full128<int32_t>(), weights[2 * i]); });
      const auto pairs = hn::BitCast(Words(), hn::TableLookupBytes(samples, shuffle));
      sum = hn::Add(sum, MulAddPairs(pairs, hn::BitCast(Words(), w)));
    }
    return tables.Averages(sum);
  }

  // Four pixels, of four bytes each.
  template <int kPairs, int kChannels>
  static HWY_INLINE hn::Vec128<uint8_t> FourPixels(const Tables& tables, const uint8_t* row, Place place) {
    const auto pair = [&](ptrdiff_t i) HWY_ATTR {
      return Packed(int16_t(), BlockPixels<kPairs, kChannels>(tables, row + place.source, place.phase + i),
                    BlockPixels<kPairs, kChannels>(tables, row + place.source, place.phase + i + 1));
    };
    if constexpr (kGatherBlocks == 2) {
      return Bytes(pair(0));
    } else {
      return Packed(uint8_t(), pair(0), pair(2));
    }
  }

  template <int kPairs, int kChannels>
  void AveragePixels(const uint16_t* sums, uint8_t* dst) const {
    const Tables tables = Locals();
    const Walk walk = walk_;
    const auto* row = reinterpret_cast<const uint8_t*>(sums);
    const auto store = [=](Place place, uint8_t* out) HWY_ATTR {
      const auto pixels = FourPixels<kPairs, kChannels>(tables, row, place);
      if constexpr (kChannels == 4) {
        hn::StoreU(pixels, hn::Full128<uint8_t>(), out);
      } else {
        StoreThreeOfFour(pixels, out);
      }
    };
    const ptrdiff_t last = columns_ - kPixels;
    Place place = start_;
    for (ptrdiff_t x = 0; x < last; x += kPixels, place = walk.Next(place)) store(place, dst + x * kChannels);
    store(last_, dst + last * kChannels);
  }

  // The first three bytes of every four.
  static HWY_INLINE void StoreThreeOfFour(hn::Vec128<uint8_t> pixels, uint8_t* dst) {
    const hn::Full128<uint8_t> d;
    HWY_ALIGN static constexpr uint8_t kPlaces3[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0x80, 0x80, 0x80, 0x80};
    const auto packed = hn::TableLookupBytesOr0(pixels, hn::Load(d, kPlaces3));
    hn::StoreU(hn::LowerHalf(packed), hn::Full64<uint8_t>(), dst);
    const auto rest = hn::ExtractLane(hn::BitCast(hn::Full128<int32_t>(), packed), 2);
    std::memcpy(dst + 8, &rest, sizeof(rest));
  }

  ptrdiff_t p_, q_, begin_, columns_, origin_, end_, channels_, pairs_;
  AreaQuotient quotient_;
  Walk walk_;
  Place start_, last_;  // those of the first column, and of the last vector's
  int loads_ = 0;
  int32_t first_[kPlaces];
  int32_t weights_[kMostAreaPairs * kPlaces * 2];
  int32_t offsets_[kMostAreaPeriod * 4 * kGatherBlocks];
  uint8_t masks_[kMostAreaPeriod * kGatherBytes];
};

}  // namespace qvp::resize
