// Exact sums of integers, and of their products, for each channel.
#pragma once

#include "base/pairs.h"
#include "stats/accumulators.h"
#include "stats/pixel_pairs.h"

namespace qvp::stats {

// Exact sums of integers. A kernel for it also says
//   kMostRounds           how many rounds its lanes hold
//   Position(sum, lane)   the place in a round of the samples that a lane adds up, or one a multiple of 12 away
//   Shift(sum)            by what power of two a sum is to be multiplied
//   kPairBias             what each pair of samples adds beyond its sum
// and, if sums come in pairs of lanes of 64 bits, the first of which has what the second one adds up in its upper half,
//   kEvenWithOdd
template <class Kernel>
class ExactSums {
 public:
  template <class F, class... T>
  void Add(ptrdiff_t n, const F& f, const T*... rows) {
    constexpr ptrdiff_t kRound = Accumulators<Kernel>::kRound;
    ptrdiff_t i = 0;
    while (n - i >= kRound) {
      const ptrdiff_t rounds = std::min((n - i) / kRound, Free());
      lanes_.AddRounds(rounds, f, rows + i...);
      rounds_ += rounds;
      i += rounds * kRound;
    }
    if (i < n) {
      Free();
      lanes_.AddEnd(n - i, f, rows + i...);
      ++rounds_;
    }
  }

  // The sum of each channel, modulo 2^64.
  void Finish(int channels, uint64_t* sums) { FinishOne<1>(0, channels, sums); }

  // Of a kernel that sums up several quantities, whose lanes follow one another.
  template <int kQuantities>
  void FinishOne(int quantity, int channels, uint64_t* sums) {
    constexpr int kEach = kSums / kQuantities;
    Drain();
    for (int c = 0; c < channels; ++c) sums[c] = -(Samples(channels) / 2 * Kernel::kPairBias);
    if (channels == 1) AddAllTotals(quantity * kEach, kEach, sums);
    if (channels == 3) AddTotals<3>(quantity * kEach, kEach, sums);
    if (channels == 4) AddTotals<4>(quantity * kEach, kEach, sums);
  }

  // The samples of a channel that were added, with the zeros that filled up rounds.
  uint64_t Samples(int channels) const { return all_rounds_ * (Accumulators<Kernel>::kRound / channels); }

 private:
  using Lane = typename Accumulators<Kernel>::Lane;
  using Totals = hn::Repartition<uint64_t, typename Kernel::Sums>;
  static constexpr int kSums = Kernel::kSums, kLanes = Accumulators<Kernel>::kSumLanes;
  static constexpr int kBits = 8 * sizeof(Lane), kFields = 64 / kBits;

  // Rounds that the lanes have room for.
  ptrdiff_t Free() {
    if (rounds_ == Kernel::kMostRounds) Drain();
    return Kernel::kMostRounds - rounds_;
  }

  // Moves the lanes into 64-bit totals.
  void Drain() {
    const Totals d;
    const auto mask = hn::Set(d, ~uint64_t{0} >> (64 - kBits));
    for (int s = 0; s < kSums; ++s) {
      auto lanes = hn::Load(d, reinterpret_cast<const uint64_t*>(lanes_[s]));
      if constexpr (requires { Kernel::kEvenWithOdd; }) {
        if (s % 2 == 0) lanes = hn::Sub(lanes, hn::ShiftLeft<32>(hn::Load(d, lanes_[s + 1])));
      }
      for (int field = 0; field < kFields; ++field) {
        const auto part = hn::And(hn::ShiftRightSame(lanes, field * kBits), mask);
        hn::Store(hn::Add(hn::Load(d, totals_[s][field]), part), d, totals_[s][field]);
      }
    }
    lanes_.Clear();
    all_rounds_ += rounds_;
    rounds_ = 0;
  }

  template <int kChannels>
  void AddTotals(int first, int count, uint64_t* sums) const {
    for (int s = 0; s < count; ++s) {
      const auto& totals = totals_[first + s];
      for (int lane = 0; lane < kLanes; ++lane) {
        sums[Kernel::Position(s, lane) % kChannels] += totals[lane % kFields][lane / kFields] << Kernel::Shift(s);
      }
    }
  }
  // Of one channel, where no lane has another place than others.
  void AddAllTotals(int first, int count, uint64_t* sum) const {
    const Totals d;
    auto all = hn::Zero(d);
    for (int s = 0; s < count; ++s) {
      for (int field = 0; field < kFields; ++field) {
        all = hn::Add(all, hn::ShiftLeftSame(hn::Load(d, totals_[first + s][field]), Kernel::Shift(s)));
      }
    }
    *sum += hn::GetLane(hn::SumOfLanes(d, all));
  }

  Accumulators<Kernel> lanes_;
  HWY_ALIGN uint64_t totals_[kSums][kFields][kLanes / kFields] = {};
  ptrdiff_t rounds_ = 0;
  uint64_t all_rounds_ = 0;
};

// Sums of bytes of one channel.
struct ByteSums {
  using D = hn::ScalableTag<uint8_t>;
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 4, kSums = 4;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) sums[k] = hn::Add(sums[k], hn::SumsOf8(at(k)));
  }
};

// Sums of unsigned integers.
template <class U>
struct SplitSums {
  using D = hn::ScalableTag<U>;
  using Sums = typename EvenOdd<U>::D;
  static constexpr int kVectors = 3, kSums = 6;
  static constexpr ptrdiff_t kMostRounds = sizeof(U) == 1 ? 257 : 65537;  // (2^16 - 1) / 255, (2^32 - 1) / 65535
  static constexpr int Position(int sum, int lane) {
    return sum / 2 * static_cast<int>(hn::MaxLanes(D())) + 2 * lane + sum % 2;
  }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) {
      const EvenOdd<U> halves(at(k));
      sums[2 * k] = hn::Add(sums[2 * k], halves.even);
      sums[2 * k + 1] = hn::Add(sums[2 * k + 1], halves.odd);
    }
  }
};

// sum + a b, for pairs of neighbouring 16-bit lanes.
template <class V, class W>
HWY_INLINE V AddPairProducts(V sum, W a, W b) {
  const hn::Repartition<int16_t, hn::DFromV<V>> d;
  const auto products = MulAddPairs(hn::BitCast(d, a), hn::BitCast(d, b));
  return hn::Add(sum, hn::BitCast(hn::DFromV<V>(), products));
}

// Sums of products of bytes of one channel. A lane grows by 2 * 255^2 in a round.
struct ByteProducts {
  using D = hn::ScalableTag<uint8_t>;
  using Sums = hn::ScalableTag<uint32_t>;
  static constexpr int kVectors = 2, kSums = 4;
  static constexpr ptrdiff_t kMostRounds = 33025;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) {
      const auto factors = at(k);
      const EvenOdd<uint8_t> a(factors.a), b(factors.b);
      sums[2 * k] = AddPairProducts(sums[2 * k], a.even, b.even);
      sums[2 * k + 1] = AddPairProducts(sums[2 * k + 1], a.odd, b.odd);
    }
  }
};

// Sums of products of bytes of several channels. A lane grows by 4 * 2 * 255^2 in a round.
struct BytePixelProducts {
  using D = BytePixelPairs::D;
  using Sums = hn::Repartition<uint32_t, D>;
  static constexpr int kVectors = 6, kSums = 3;
  static constexpr ptrdiff_t kMostRounds = 33025 / 4;
  static constexpr int Position(int sum, int lane) { return BytePixelPairs::Position(sum, lane); }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    BytePixelPairs::ForEach(at, [&](int s, auto a, auto b) QVP_INLINED { sums[s] = AddPairProducts(sums[s], a, b); });
  }
};

// Products of signed 16-bit integers in pairs lie in (-2^31, 2^31]. With this bias they are unsigned and fit 32 bits.
constexpr uint32_t kWordPairBias = 0x7FFFFFFF;

// Adds pairs of products to two sums of 64-bit lanes.
template <class V, class W>
HWY_INLINE void AddWidePairProducts(V& even, V& odd, W a, W b) {
  const hn::ScalableTag<uint32_t> d;
  const EvenOdd<uint32_t> halves(AddPairProducts(hn::Set(d, kWordPairBias), a, b));
  even = hn::Add(even, halves.even);
  odd = hn::Add(odd, halves.odd);
}

// Sums of products of signed 16-bit integers of one channel; each pair of samples has a bias. Even ones need not be
// parted from odd ones, which are known: what they add, modulo 2^64, is taken away at the end.
struct WordProducts {
  using D = hn::ScalableTag<uint16_t>;  // their bits
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 2, kSums = 4;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;
  static constexpr bool kEvenWithOdd = true;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    const auto bias = hn::Set(hn::ScalableTag<uint32_t>(), kPairBias);
    for (int k = 0; k < kVectors; ++k) {
      const auto factors = at(k);
      const auto both = hn::BitCast(Sums(), AddPairProducts(bias, factors.a, factors.b));
      sums[2 * k] = hn::Add(sums[2 * k], both);
      sums[2 * k + 1] = hn::Add(sums[2 * k + 1], hn::ShiftRight<32>(both));
    }
  }
};

// Sums of products of signed 16-bit integers of several channels.
struct WordPixelProducts {
  using D = WordPixelPairs::D;
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 6, kSums = 6;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int sum, int lane) { return WordPixelPairs::Position(sum, lane); }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    WordPixelPairs::ForEach(
        at, [&](int s, auto a, auto b) QVP_INLINED { AddWidePairProducts(sums[s], sums[s + 1], a, b); });
  }
};

// Sums of products of unsigned 16-bit integers: lower and upper halves of the products apart.
struct UnsignedWordProducts {
  using D = hn::ScalableTag<uint16_t>;
  using Sums = hn::ScalableTag<uint32_t>;
  static constexpr int kVectors = 3, kSums = 12;
  static constexpr ptrdiff_t kMostRounds = 65537;
  static constexpr int Position(int sum, int lane) {
    return sum / 4 * static_cast<int>(hn::MaxLanes(D())) + 2 * lane + sum % 2;
  }
  static constexpr int Shift(int sum) { return sum % 4 < 2 ? 0 : 16; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) {
      const auto factors = at(k);
      const EvenOdd<uint16_t> low(hn::Mul(factors.a, factors.b)), high(hn::MulHigh(factors.a, factors.b));
      sums[4 * k] = hn::Add(sums[4 * k], low.even);
      sums[4 * k + 1] = hn::Add(sums[4 * k + 1], low.odd);
      sums[4 * k + 2] = hn::Add(sums[4 * k + 2], high.even);
      sums[4 * k + 3] = hn::Add(sums[4 * k + 3], high.odd);
    }
  }
};

// The kernel for sums, or for sums of products, of the samples of T.
template <class T, bool kOneChannel>
using SumsOf = std::conditional_t<kOneChannel && sizeof(T) == 1, ByteSums, SplitSums<hwy::MakeUnsigned<T>>>;
template <class T, bool kOneChannel>
using ProductsOf = std::conditional_t<
    sizeof(T) == 1, std::conditional_t<kOneChannel, ByteProducts, BytePixelProducts>,
    std::conditional_t<std::is_signed_v<T>, std::conditional_t<kOneChannel, WordProducts, WordPixelProducts>,
                       UnsignedWordProducts>>;

}  // namespace qvp::stats
