// Averages over areas of 8-bit pixels, in integers. In units of 1 / q a column covers whole parts of pixels, p in all;
// so does a row. The sum of an area's pixels, each by its parts across times its parts down, is a whole number N, and
// their average N / P with P = p p'.
#pragma once

#include "base/lanes.h"
#include "base/pack.h"
#include "geometry/resize_gather.h"

namespace qvp::resize {

// Bounds of the tables, and of the sums down: 255 * 64 fits int16.
inline constexpr int kMostAreaParts = 64, kMostAreaPairs = 8;

// Whether averages of integers are the same bits as those of floating point with t taps across and t' down. With odd P
// there are no ties, N / P is 1 / (2 P) or more away from one, and the error of floating point is less than
// 255 (t + t' + 4) / 2^24. Where both ratios are whole powers of two, floating point is exact.
inline bool AreAreasWhole(const ResizeRecord& record) {
  const ResizeAxis &across = record.columns, &down = record.rows;
  if (record.IsShifted() || std::max(across.p, down.p) > kMostAreaParts) return false;
  if (std::max(across.taps, down.taps) > 2 * kMostAreaPairs) return false;
  const int parts = across.p * down.p;
  if (parts % 2 == 0) return across.q == 1 && down.q == 1 && (parts & (parts - 1)) == 0;
  return int64_t{2 * 255} * parts * (across.taps + down.taps + 4) < 1 << 24;
}

// The columns of a tile, which take the rows of sums down to averages. What they need repeats after q of them.
class AreaColumns {
 public:
  AreaColumns(const ResizeRecord& record, const Tile& tile, int channels)
      : p_(record.columns.p),
        q_(record.columns.q),
        begin_(tile.x),
        columns_(tile.width),
        origin_(tile.source.x),
        channels_(channels),
        pairs_((record.columns.taps + 1) / 2),
        scale_(static_cast<float>(1.0 / (record.columns.p * record.rows.p))) {
    FillWeights(record.columns);
    channels_ <= 2 ? PlanSamples() : PlanPixels();
  }

  // The fewest columns that there are vectors for.
  static ptrdiff_t Fewest(int channels) { return channels <= 2 ? 2 * kLanes / channels : kPixels; }
  // Source pixels of the tile, and samples of a row of sums with what vectors touch behind them.
  ptrdiff_t Pixels() const { return static_cast<ptrdiff_t>((int64_t{begin_ + columns_} * p_ + q_ - 1) / q_) - origin_; }
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
  static constexpr ptrdiff_t kPlaces = kMostAreaParts + 2 * kLanes;  // a vector may begin at every place of a period

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

  // The parts of two successive pixels in one number; of two channels for each.
  void FillWeights(const ResizeAxis& axis) {
    const ptrdiff_t each = channels_ == 2 ? 2 : 1;
    for (ptrdiff_t k = 0; k < pairs_; ++k) {
      for (ptrdiff_t j = 0; j < q_ + 2 * kLanes; ++j) {
        const int64_t second = 2 * k + 1 < axis.taps ? Overlap(axis, j, 2 * k + 1) : 0;
        const auto parts = static_cast<int32_t>(Overlap(axis, j, 2 * k) | second << 16);
        std::fill_n(weights_ + (k * kPlaces + j) * each, each, parts);
      }
    }
  }

  // One or two channels: the shuffles of a vector of samples, for each place of its first one.
  void PlanSamples() {
    constexpr int kBytes = sizeof(uint16_t);
    const auto channels = static_cast<int>(channels_);
    const GatherShape shape{4, channels, channels * kBytes, 1, kBytes};
    loads_ = LoadsFor(shape, p_, q_);
    for (ptrdiff_t j = 0; j < q_; ++j) {
      const auto place = [this, j](ptrdiff_t s) {
        return ((j + s / channels_) * p_ / q_ * channels_ + s % channels_) * ptrdiff_t{kBytes};
      };
      Gather(shape, loads_, kLanes, INT32_MAX, place, masks_ + j * kGatherBytes, offsets_ + j * loads_ * kGatherBlocks);
    }
  }

  // Several channels: where the pixels begin, and the shuffle that brings two successive ones together.
  void PlanPixels() {
    const auto bytes = static_cast<int>(channels_ * sizeof(uint16_t));
    for (ptrdiff_t j = 0; j < q_ + kPixels; ++j) offsets_[j] = static_cast<int32_t>(j * p_ / q_ * bytes);
    for (int i = 0; i < kBlockBytes; ++i) masks_[i] = static_cast<uint8_t>(i / 4 * 2 + i % 2 + i % 4 / 2 * bytes);
  }

  // What the loops read, apart from the class: stores of bytes could change its members.
  struct Tables {
    ptrdiff_t pairs;
    float scale;
    const int32_t *weights, *offsets;
    const uint8_t* masks;

    HWY_INLINE hn::Vec<Wide> Averages(hn::Vec<Wide> sums) const {
      const hn::Rebind<float, Wide> d;
      return RoundToInt(hn::Mul(hn::ConvertTo(d, sums), hn::Set(d, scale)));
    }
  };
  Tables Locals() const { return {pairs_, scale_, weights_, offsets_, masks_}; }
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
    const Walk walk = By(kLanes / kChannels);
    const auto* row = reinterpret_cast<const uint8_t*>(sums);
    const auto store = [=](Place place, Place next, uint8_t* out) HWY_ATTR {
      const auto lower = Gathered<kPairs, kChannels, kLoads>(tables, row, place);
      const auto upper = Gathered<kPairs, kChannels, kLoads>(tables, row, next);
      hn::StoreU(Bytes(PackedInOrder<int16_t>(lower, upper)), hn::Rebind<uint8_t, Words>(), out);
    };
    const ptrdiff_t last = columns_ * kChannels - 2 * kLanes;
    Place place = PlaceOf(0);
    for (ptrdiff_t x = 0; x < last; x += 2 * kLanes) {
      const Place next = walk.Next(place);
      store(place, next, dst + x);
      place = walk.Next(next);
    }
    const Place end = PlaceOf(last / kChannels);
    store(end, walk.Next(end), dst + last);
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
    const Walk walk = By(kPixels);
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
    Place place = PlaceOf(0);
    for (ptrdiff_t x = 0; x < last; x += kPixels, place = walk.Next(place)) store(place, dst + x * kChannels);
    store(PlaceOf(last), dst + last * kChannels);
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

  ptrdiff_t p_, q_, begin_, columns_, origin_, channels_, pairs_;
  float scale_;
  int loads_ = 0;
  int32_t weights_[kMostAreaPairs * kPlaces * 2];
  int32_t offsets_[kMostAreaParts * 4 * kGatherBlocks];
  uint8_t masks_[kMostAreaParts * kGatherBytes];
};

}  // namespace qvp::resize
