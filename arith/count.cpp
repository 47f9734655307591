// How many pixels lie in a range.
#include <algorithm>

#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/rows.h"

namespace {
using namespace qvp;

// Lanes of ones where lower <= v <= upper; NaN lies in no range. Bytes compare by the distance from the lower bound,
// which wraps for what is below it.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V InRange(D d, V v, V lower, V upper) {
  if constexpr (sizeof(hn::TFromD<D>) == 1) {
    const V distance = hn::Sub(v, lower);
    return hn::VecFromMask(d, hn::Eq(hn::Min(distance, hn::Sub(upper, lower)), distance));
  } else {
    return hn::VecFromMask(d, hn::And(hn::Ge(v, lower), hn::Le(v, upper)));
  }
}

// Counts in lanes as wide as the pixels: lane i of vector k counts samples of channel (k * lanes + i) mod channels.
// They are kept from row to row, and added to the totals before they overflow.
constexpr int kVectors = 3;

template <class T>
class Counter {
 public:
  using D = hn::ScalableTag<T>;
  using Lane = hwy::MakeUnsigned<T>;
  using Lanes = hn::ScalableTag<Lane>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kStride = kVectors * kLanes;

  Counter(const T* lower, const T* upper, Layout layout)
      : lower_(D(), lower, layout), upper_(D(), upper, layout), channels_(Channels(layout)) {}

  // n samples, the first of which belongs to the first channel.
  void Add(const T* row, ptrdiff_t n) {
    ptrdiff_t i = 0;
    while (i + kStride <= n) {
      const ptrdiff_t rounds = std::min<ptrdiff_t>((n - i) / kStride, FreeRounds());
      AddRounds(row + i, rounds);
      i += rounds * kStride;
    }
    if (i < n) AddTail(row + i, n - i);
  }

  int64_t Of(int channel) {
    Drain();
    return totals_[channel];
  }

 private:
  // A lane counts up to this.
  static constexpr ptrdiff_t kMostRounds = sizeof(Lane) == 1 ? 255 : 1 << 24;

  ptrdiff_t FreeRounds() {
    if (rounds_ == kMostRounds) Drain();
    return kMostRounds - rounds_;
  }

  HWY_INLINE hn::Vec<Lanes> At(const T* from, int k) const {
    return hn::BitCast(
        Lanes(), InRange(D(), hn::LoadU(D(), from + k * kLanes), lower_.From(k * kLanes), upper_.From(k * kLanes)));
  }

  void AddRounds(const T* row, ptrdiff_t rounds) {
    auto a = hn::Load(Lanes(), counts_), b = hn::Load(Lanes(), counts_ + kLanes),
         c = hn::Load(Lanes(), counts_ + 2 * kLanes);
    for (ptrdiff_t i = 0; i < rounds * kStride; i += kStride) {  // lanes in range are -1
      a = hn::Sub(a, At(row + i, 0));
      b = hn::Sub(b, At(row + i, 1));
      c = hn::Sub(c, At(row + i, 2));
    }
    hn::Store(a, Lanes(), counts_);
    hn::Store(b, Lanes(), counts_ + kLanes);
    hn::Store(c, Lanes(), counts_ + 2 * kLanes);
    rounds_ += rounds;
  }

  // Fewer samples than a stride.
  void AddTail(const T* row, ptrdiff_t n) {
    FreeRounds();
    HWY_ALIGN T samples[kStride] = {};
    std::memcpy(samples, row, n * sizeof(T));
    for (int k = 0; k * kLanes < n; ++k) {
      Lane* const counts = counts_ + k * kLanes;
      const auto isSample = hn::FirstN(Lanes(), std::min<ptrdiff_t>(n - k * kLanes, kLanes));
      const auto found = hn::IfThenElseZero(isSample, At(samples, k));
      hn::Store(hn::Sub(hn::Load(Lanes(), counts), found), Lanes(), counts);
    }
    ++rounds_;
  }

  void Drain() {
    if constexpr (sizeof(Lane) == 1) {
      if (channels_ == 1) return DrainBytes();
    }
    for (ptrdiff_t i = 0, channel = 0; i < kStride; ++i) {
      totals_[channel] += counts_[i];
      channel = channel + 1 == channels_ ? 0 : channel + 1;
    }
    Clear();
  }

  // Of one channel.
  void DrainBytes() {
    const hn::ScalableTag<uint64_t> d;
    const auto sums = [&](int k) HWY_ATTR { return hn::SumsOf8(hn::Load(Lanes(), counts_ + k * kLanes)); };
    const auto all = hn::Add(hn::Add(sums(0), sums(1)), sums(2));
    totals_[0] += static_cast<int64_t>(hn::GetLane(hn::SumOfLanes(d, all)));
    Clear();
  }

  void Clear() {
    std::memset(counts_, 0, sizeof(counts_));
    rounds_ = 0;
  }

  PerChannel<D> lower_, upper_;
  int channels_;
  ptrdiff_t rounds_ = 0;
  HWY_ALIGN Lane counts_[kStride] = {};
  int64_t totals_[4] = {};
};

// A count beyond the largest int is given as that.
template <class T>
QvpStatus CountInRange(const Image<const T>& src, Size roi, int* counts, const T* lower, const T* upper) {
  if (const QvpStatus failed = Validate<kPointers, kSteps, kSize>(roi, {src}, {counts, lower, upper})) return failed;
  if (!AreOrdered(lower, upper, src.layout)) return qvpStatusRange;
  Counter<T> counter(lower, upper, src.layout);
  Rows(src).ForEach(roi, [&](ptrdiff_t pixels, const T* row) { counter.Add(row, pixels * Channels(src.layout)); });
  for (int c = 0; c < ProcessedChannels(src.layout); ++c) {
    const int count = static_cast<int>(std::min<int64_t>(counter.Of(c), INT32_MAX));
    std::memcpy(counts + c, &count, sizeof(count));
  }
  return qvpStatusNoError;
}

}  // namespace

#define COUNT_IN_RANGE(type, layout)                                                                     \
  QVP_REDUCE(qvpiCountInRange, type, layout, CountInRange,                                               \
             (int* pCounts, QVP_VALUES_##layout(type) lowerBound, QVP_VALUES_##layout(type) upperBound), \
             (pCounts, Values(lowerBound), Values(upperBound)))

COUNT_IN_RANGE(8u, C1)
COUNT_IN_RANGE(8u, C3)
COUNT_IN_RANGE(8u, AC4)
COUNT_IN_RANGE(32f, C1)
COUNT_IN_RANGE(32f, C3)
COUNT_IN_RANGE(32f, AC4)
