// Sums of floats in partial sums, whose number and order are the same on every CPU.
#pragma once

#include <limits>
#include <tuple>

#include "stats/accumulators.h"

namespace qvp::stats {

// Sample i goes to partial sum i modulo kPartials.
template <class L, int kPartials>
struct FloatSums {
  using D = hn::ScalableTag<L>;
  using Sums = D;
  static constexpr int kVectors = kPartials / static_cast<int>(hn::MaxLanes(D())), kSums = kVectors;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) sums[k] = hn::Add(sums[k], at(k));
  }
};

// Fast: single precision. Accurate: double precision.
using FastSums = FloatSums<float, 48>;
using AccurateSums = FloatSums<double, 24>;

// The sums of what f makes of samples. These are counted through all rows: so the partial sums depend neither on how
// wide the image is nor on whether its rows are packed, and fill alike even if it is one pixel wide. What a row has
// beyond whole rounds waits for the beginning of the next one.
template <class Kernel, class F, class... T>
class RunningSums {
 public:
  explicit RunningSums(const F& f) : f_(f) {}

  // The next n samples.
  void Add(ptrdiff_t n, const T*... rows) {
    if (n < kRound - waiting_) return Wait(n, rows...);
    const ptrdiff_t head = waiting_ == 0 ? 0 : kRound - waiting_, rounds = (n - head) / kRound;
    if (head > 0) {
      Wait(head, rows...);
      AddWaiting();
    }
    lanes_.AddRounds(rounds, f_, (rows + head)...);
    const ptrdiff_t done = head + rounds * kRound;
    if (done < n) Wait(n - done, (rows + done)...);
  }

  // Adds the partial sums of each channel in ascending order, in their own precision.
  void Finish(int channels, double* sums) {
    if (waiting_ > 0) AddWaiting();
    if (channels == 1) AddPartials<1>(sums);
    if (channels == 3) AddPartials<3>(sums);
    if (channels == 4) AddPartials<4>(sums);
  }

 private:
  static constexpr ptrdiff_t kRound = Accumulators<Kernel>::kRound;
  template <class S>
  struct Round {
    S samples[kRound];
  };

  template <int kChannels>
  void AddPartials(double* sums) const {
    typename Accumulators<Kernel>::Lane totals[kChannels] = {};
    for (int i = 0; i < kRound; i += kChannels) {
      for (int c = 0; c < kChannels; ++c) totals[c] += lanes_.At(i + c);
    }
    for (int c = 0; c < kChannels; ++c) sums[c] = static_cast<double>(totals[c]);
  }

  void Wait(ptrdiff_t n, const T*... rows) {
    const auto copy = [&](auto&... stage) { (std::memcpy(stage.samples + waiting_, rows, n * sizeof(T)), ...); };
    std::apply(copy, stages_);
    waiting_ += n;
  }

  void AddWaiting() {
    std::apply([&](const auto&... stage) { lanes_.AddEnd(waiting_, f_, stage.samples...); }, stages_);
    waiting_ = 0;
  }

  F f_;
  Accumulators<Kernel> lanes_;
  std::tuple<Round<T>...> stages_;
  ptrdiff_t waiting_ = 0;
};

// What relative norms give for 0 / 0 and x / 0.
inline constexpr double kNaN = -std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

}  // namespace qvp::stats
