// The largest magnitude of each channel, of samples of any type.
#pragma once

#include "stats/accumulators.h"

namespace qvp::stats {

// Largest values. NaN stands first in the comparison, which then takes the second operand.
template <class L>
struct LargestLanes {
  using D = hn::ScalableTag<L>;
  using Sums = D;
  static constexpr int kVectors = 6, kSums = 6;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* largest, const At& at) {
    for (int k = 0; k < kVectors; ++k) largest[k] = MaxOrSecond(at(k), largest[k]);
  }
};

// Is given rows, or pairs of rows, and tells the largest of what Magnitudes makes of each channel.
template <class L, class Magnitudes>
class LargestMeter {
 public:
  template <class... T>
  void Add(ptrdiff_t n, const T*... rows) {
    lanes_.Add(n, Magnitudes(), rows...);
  }
  void Finish(int channels, double* values) const {
    L largest[kPeriod] = {};
    for (int s = 0; s < LargestLanes<L>::kSums; ++s) {
      for (int lane = 0; lane < lanes_.kSumLanes; lane += kBlock) {
        L* const to = largest + (s * lanes_.kSumLanes + lane) % kPeriod;
        for (int i = 0; i < kBlock; ++i) to[i] = std::max(to[i], lanes_[s][lane + i]);
      }
    }
    for (int c = 0; c < channels; ++c) {
      L most = 0;
      for (int i = c; i < kPeriod; i += channels) most = std::max(most, largest[i]);
      values[c] = most;
    }
  }

 private:
  // Lanes of the shortest vectors, and of three of them, which begin with the same channel again.
  static constexpr int kBlock = 16 / static_cast<int>(sizeof(L)), kPeriod = 3 * kBlock;

  Accumulators<LargestLanes<L>> lanes_;
};

}  // namespace qvp::stats
