// Floats through a curve of levels, in vectors: which levels a value lies between, and the curve between them.
#pragma once

#include "arith/lookup_record.h"
#include "base/blocks.h"
#include "base/floats.h"
#include "base/gather.h"

namespace qvp::lookup {

// Eight floats, or as many as a vector has.
using Floats = hn::CappedTag<float, 8>;
using Words = hn::RebindToSigned<Floats>;
using FloatV = hn::Vec<Floats>;
using WordV = hn::Vec<Words>;

// Up to so many levels are counted one by one; more go through the index.
inline constexpr int kMostCounted = 32;

// Four floats of each lane, from 16 bytes at each of the offsets.
HWY_INLINE void LoadFour(const uint8_t* base, const int32_t* offsets, FloatV (&v)[4]) {
  constexpr Floats d;
  const auto row = [&](int i) HWY_ATTR {
    return FromBlocks(d, [&](int block) HWY_ATTR {
      return hn::LoadU(hn::Full128<float>(), reinterpret_cast<const float*>(base + offsets[4 * block + i]));
    });
  };
  const auto r0 = row(0), r1 = row(1), r2 = row(2), r3 = row(3);
  const auto low02 = hn::InterleaveLower(d, r0, r2), low13 = hn::InterleaveLower(d, r1, r3);
  const auto high02 = hn::InterleaveUpper(d, r0, r2), high13 = hn::InterleaveUpper(d, r1, r3);
  v[0] = hn::InterleaveLower(d, low02, low13);
  v[1] = hn::InterleaveUpper(d, low02, low13);
  v[2] = hn::InterleaveLower(d, high02, high13);
  v[3] = hn::InterleaveUpper(d, high02, high13);
}

template <QvpiLookupMethod kMethod>
class FloatCurve {
 public:
  FloatCurve(const Record& record, int channel)
      : entries_(record.Table(channel)),
        starts_(entries_ + StartsOffset(kMethod, record.levels[channel])),
        levels_(record.levels[channel]),
        index_(record.index[channel]),
        first_(Level(0)),
        last_(Level(levels_ - 1)) {
    if (levels_ > kMostCounted) return;
    constexpr Floats d;
    // What fills up the last group counts for no value.
    for (int k = 1; k < levels_ + kGroup; ++k) {
      hn::Store(hn::Set(d, k < levels_ ? Level(k) : __builtin_nanf("")), d, spread_[k - 1]);
    }
  }

  // Before the first level its value, after the last one that; NaN gives NaN.
  HWY_INLINE FloatV operator()(FloatV v) const {
    constexpr Floats d;
    const FloatV inside = MinOrSecond(hn::Set(d, last_), MaxOrSecond(hn::Set(d, first_), v));
    const WordV k = levels_ <= kMostCounted ? Counted(inside) : Searched(inside);
    return Evaluate(inside, hn::Mul(k, hn::Set(Words(), kEntryBytes)));
  }

 private:
  static constexpr int kEntryBytes = EntryWords(kMethod) * int{sizeof(float)};
  static constexpr int kGroup = 4;

  float Level(ptrdiff_t k) const {
    float level;
    std::memcpy(&level, entries_ + k * kEntryBytes, sizeof(level));
    return level;
  }

  static HWY_INLINE WordV OneIf(hn::Mask<Floats> isSo) { return hn::BitCast(Words(), hn::VecFromMask(Floats(), isSo)); }

  // How many levels but the first are not above v: the number of the last such level. NaN is above none.
  HWY_INLINE WordV Counted(FloatV v) const {
    WordV counts[2] = {hn::Zero(Words()), hn::Zero(Words())};
    for (int k = 0; k + 1 < levels_; k += kGroup) {
      for (int i = 0; i < kGroup; ++i) {
        counts[i % 2] = hn::Sub(counts[i % 2], OneIf(hn::Ge(v, hn::Load(Floats(), spread_[k + i]))));
      }
    }
    return hn::Add(counts[0], counts[1]);
  }

  // The same from the start of the bucket on. What is not below v stays, so that NaN ends at the first level.
  HWY_INLINE WordV Searched(FloatV v) const {
    constexpr Floats d;
    constexpr Words words;
    const FloatV place = hn::Mul(hn::Sub(v, hn::Set(d, index_.first)), hn::Set(d, index_.scale));
    const FloatV last = hn::Set(d, static_cast<float>(Buckets(levels_) - 1));
    const WordV bucket = hn::ConvertTo(words, hn::Min(MaxOrSecond(place, hn::Zero(d)), last));
    WordV count = GatherWords(words, starts_, hn::ShiftLeft<2>(bucket));
    for (int32_t step = (1 << index_.steps) / 2; step > 0; step /= 2) {
      const WordV next = hn::Min(hn::Add(count, hn::Set(words, step)), hn::Set(words, levels_));
      const WordV offset = hn::Mul(hn::Sub(next, hn::Set(words, 1)), hn::Set(words, kEntryBytes));
      const FloatV level = hn::BitCast(d, GatherWords(words, entries_, offset));
      count = hn::IfThenElse(hn::RebindMask(words, hn::Le(level, v)), next, count);
    }
    return hn::Sub(hn::Max(count, hn::Set(words, 1)), hn::Set(words, 1));
  }

  HWY_INLINE FloatV Evaluate(FloatV v, WordV offset) const {
    constexpr Floats d;
    if constexpr (kMethod == qvpLookupStep) {
      const FloatV y = hn::BitCast(d, GatherWords(Words(), entries_ + sizeof(float), offset));
      return hn::IfThenElse(hn::Eq(v, v), y, v);
    } else {
      HWY_ALIGN int32_t offsets[hn::MaxLanes(Floats())];
      hn::Store(offset, Words(), offsets);
      FloatV w[4];  // the level, 1 / (distance to the next), c0, c1
      LoadFour(entries_, offsets, w);
      const FloatV u = hn::Mul(hn::Sub(v, w[0]), w[1]);
      if constexpr (kMethod == qvpLookupLinear) return hn::Add(w[2], hn::Mul(u, w[3]));
      FloatV c[4];
      LoadFour(entries_ + 2 * sizeof(float), offsets, c);
      const FloatV top = hn::Add(hn::Mul(c[3], u), c[2]);
      return hn::Add(hn::Mul(hn::Add(hn::Mul(top, u), c[1]), u), c[0]);
    }
  }

  const uint8_t *entries_, *starts_;
  int32_t levels_;
  Index index_;
  float first_, last_;
  HWY_ALIGN float spread_[kMostCounted + kGroup][hn::MaxLanes(Floats())];  // levels from the second on, in all lanes
};

}  // namespace qvp::lookup
