// Sums along rows, per channel: exact ones of integers, and float ones in partial sums whose number and order are the
// same on every CPU.
//
// A kernel says what happens to a round of kVectors vectors of consecutive samples. A round is a multiple of 12 samples
// unless there is one channel only, so that each lane of the accumulators belongs to one channel.
#pragma once

#include <algorithm>
#include <bit>

#include "base/lanes.h"
#include "base/rows.h"

namespace qvp {

// Two factors of a product.
template <class V>
struct Factors {
  V a, b;
};

// As many samples as D has lanes, or those of them that a row of n still has, then zeros.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadUpTo(D d, const T* from, ptrdiff_t n) {
  if (n >= static_cast<ptrdiff_t>(hn::MaxLanes(d))) return LoadWide(d, from);
  if (n <= 0) return hn::Zero(d);
  return LoadWide(d, Partial<T>(from, n).lanes);
}

// The accumulators of a kernel, kept in memory from row to row.
template <class Kernel>
class Accumulators {
 public:
  using Lane = hn::TFromD<typename Kernel::Sums>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(typename Kernel::D()), kRound = kLanes * Kernel::kVectors;
  static constexpr int kSums = Kernel::kSums, kSumLanes = static_cast<int>(hn::MaxLanes(typename Kernel::Sums()));

  // Whole rounds of what f makes of the samples of the rows.
  template <class F, class... T>
  HWY_INLINE void AddRounds(ptrdiff_t rounds, const F& f, const T*... rows) {
    hn::Vec<typename Kernel::Sums> sums[kSums];
    for (int s = 0; s < kSums; ++s) sums[s] = hn::Load(typename Kernel::Sums(), lanes_[s]);
    for (ptrdiff_t i = 0; i < rounds * kRound; i += kRound) {
      Kernel::Round(sums, [&](int k) HWY_ATTR { return f(LoadWide(typename Kernel::D(), rows + i + k * kLanes)...); });
    }
    for (int s = 0; s < kSums; ++s) hn::Store(sums[s], typename Kernel::Sums(), lanes_[s]);
  }

  // One round of n samples, filled up with zeros.
  template <class F, class... T>
  void AddEnd(ptrdiff_t n, const F& f, const T*... rows) {
    hn::Vec<typename Kernel::Sums> sums[kSums];
    for (int s = 0; s < kSums; ++s) sums[s] = hn::Load(typename Kernel::Sums(), lanes_[s]);
    Kernel::Round(
        sums, [&](int k) HWY_ATTR { return f(LoadUpTo(typename Kernel::D(), rows + k * kLanes, n - k * kLanes)...); });
    for (int s = 0; s < kSums; ++s) hn::Store(sums[s], typename Kernel::Sums(), lanes_[s]);
  }

  // n samples, the first of which belongs to the first channel.
  template <class F, class... T>
  void Add(ptrdiff_t n, const F& f, const T*... rows) {
    const ptrdiff_t rounds = n / kRound, done = rounds * kRound;
    AddRounds(rounds, f, rows...);
    if (done < n) AddEnd(n - done, f, rows + done...);
  }

  const Lane* operator[](int sum) const { return lanes_[sum]; }
  void Clear() { std::memset(lanes_, 0, sizeof(lanes_)); }

 private:
  HWY_ALIGN Lane lanes_[kSums][kSumLanes] = {};
};

// Exact sums of integers. A kernel for it also says
//   kMostRounds           how many rounds its lanes hold
//   Position(sum, lane)   the place in a round of the samples that a lane adds up, or one a multiple of 12 away
//   Shift(sum)            by what power of two a sum is to be multiplied
//   kPairBias             what each pair of samples adds beyond its sum
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
  void Finish(int channels, uint64_t* sums) {
    Drain();
    for (int c = 0; c < channels; ++c) sums[c] = -(Samples(channels) / 2 * Kernel::kPairBias);
    if (channels == 1) AddTotals<1>(sums);
    if (channels == 3) AddTotals<3>(sums);
    if (channels == 4) AddTotals<4>(sums);
  }

  // The samples of a channel that were added, with the zeros that filled up rounds.
  uint64_t Samples(int channels) const { return all_rounds_ * (Accumulators<Kernel>::kRound / channels); }

 private:
  using Lane = typename Accumulators<Kernel>::Lane;
  static constexpr int kSums = Kernel::kSums, kLanes = Accumulators<Kernel>::kSumLanes;
  static constexpr int kFields = sizeof(uint64_t) / sizeof(Lane), kBits = 8 * sizeof(Lane);

  // Rounds that the lanes have room for.
  ptrdiff_t Free() {
    if (rounds_ == Kernel::kMostRounds) Drain();
    return Kernel::kMostRounds - rounds_;
  }

  // Moves the lanes into 64-bit totals.
  void Drain() {
    const hn::ScalableTag<uint64_t> d;
    const auto mask = hn::Set(d, ~uint64_t{0} >> (64 - kBits));
    for (int s = 0; s < kSums; ++s) {
      const auto lanes = hn::Load(d, reinterpret_cast<const uint64_t*>(lanes_[s]));
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
  void AddTotals(uint64_t* sums) const {
    for (int s = 0; s < kSums; ++s) {
      for (int lane = 0; lane < kLanes; ++lane) {
        sums[Kernel::Position(s, lane) % kChannels] += totals_[s][lane % kFields][lane / kFields] << Kernel::Shift(s);
      }
    }
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

// The even and the odd lanes of a vector in lanes of twice the width.
template <class U>
struct Halves {
  using Wide = hwy::MakeWide<U>;
  using D = hn::ScalableTag<Wide>;
  hn::Vec<D> even, odd;

  explicit HWY_INLINE Halves(hn::Vec<hn::ScalableTag<U>> v) {
    const auto wide = hn::BitCast(D(), v);
    even = hn::And(wide, hn::Set(D(), hwy::LimitsMax<U>()));
    odd = hn::ShiftRight<8 * sizeof(U)>(wide);
  }
};

// Sums of unsigned integers.
template <class U>
struct SplitSums {
  using D = hn::ScalableTag<U>;
  using Sums = typename Halves<U>::D;
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
      const Halves<U> halves(at(k));
      sums[2 * k] = hn::Add(sums[2 * k], halves.even);
      sums[2 * k + 1] = hn::Add(sums[2 * k + 1], halves.odd);
    }
  }
};

// sum + a b, for pairs of neighbouring 16-bit lanes.
template <class V, class W>
HWY_INLINE V AddPairProducts(V sum, W a, W b) {
  const hn::RebindToSigned<hn::DFromV<V>> d;
  auto unused = hn::Zero(d);
  return hn::BitCast(hn::DFromV<V>(),
                     hn::ReorderWidenMulAccumulate(d, hn::BitCast(hn::Repartition<int16_t, decltype(d)>(), a),
                                                   hn::BitCast(hn::Repartition<int16_t, decltype(d)>(), b),
                                                   hn::BitCast(d, sum), unused));
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
      const Halves<uint8_t> a(factors.a), b(factors.b);
      sums[2 * k] = AddPairProducts(sums[2 * k], a.even, b.even);
      sums[2 * k + 1] = AddPairProducts(sums[2 * k + 1], a.odd, b.odd);
    }
  }
};

// Sums of products of bytes of several channels: pairs are samples that are three vectors apart. Vectors of pixels that
// begin at places equal modulo 12 share a sum, so a lane grows by 4 * 2 * 255^2 in a round.
struct BytePixelProducts {
  using D = hn::ScalableTag<uint8_t>;
  using Sums = hn::ScalableTag<uint32_t>;
  static constexpr int kVectors = 6, kSums = 3;
  static constexpr ptrdiff_t kMostRounds = 33025 / 4;
  static constexpr int Position(int sum, int lane) { return 4 * sum + 16 * (lane / 4) + lane % 4; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = 0;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < 3; ++k) {
      const auto first = at(k), second = at(k + 3);
      const D d;
      AddBlockHalf(sums, 4 * k * kStep, hn::InterleaveLower(d, first.a, second.a),
                   hn::InterleaveLower(d, first.b, second.b));
      AddBlockHalf(sums, 4 * k * kStep + 2, hn::InterleaveUpper(d, first.a, second.a),
                   hn::InterleaveUpper(d, first.b, second.b));
    }
  }

 private:
  static constexpr int kStep = static_cast<int>(hn::MaxLanes(D())) / 16;

  // `place` counts groups of four samples.
  static HWY_INLINE void AddBlockHalf(hn::Vec<Sums>* sums, int place, hn::Vec<D> a, hn::Vec<D> b) {
    const D d;
    const auto zero = hn::Zero(d);
    hn::Vec<Sums>& lower = sums[place % 3];
    hn::Vec<Sums>& upper = sums[(place + 1) % 3];
    lower = AddPairProducts(lower, hn::InterleaveLower(d, a, zero), hn::InterleaveLower(d, b, zero));
    upper = AddPairProducts(upper, hn::InterleaveUpper(d, a, zero), hn::InterleaveUpper(d, b, zero));
  }
};

// Products of signed 16-bit integers in pairs lie in (-2^31, 2^31]. With this bias they are unsigned and fit 32 bits.
constexpr uint32_t kWordPairBias = 0x7FFFFFFF;

// Adds pairs of products to two sums of 64-bit lanes.
template <class V, class W>
HWY_INLINE void AddWidePairProducts(V& even, V& odd, W a, W b) {
  const hn::ScalableTag<uint32_t> d;
  const Halves<uint32_t> halves(AddPairProducts(hn::Set(d, kWordPairBias), a, b));
  even = hn::Add(even, halves.even);
  odd = hn::Add(odd, halves.odd);
}

// Sums of products of signed 16-bit integers of one channel; each pair of samples has a bias.
struct WordProducts {
  using D = hn::ScalableTag<uint16_t>;  // their bits
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 2, kSums = 4;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  static constexpr int Position(int, int) { return 0; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) {
      const auto factors = at(k);
      AddWidePairProducts(sums[2 * k], sums[2 * k + 1], factors.a, factors.b);
    }
  }
};

// The same for several channels: pairs are samples that are three vectors apart.
struct WordPixelProducts {
  using D = hn::ScalableTag<uint16_t>;  // their bits
  using Sums = hn::ScalableTag<uint64_t>;
  static constexpr int kVectors = 6, kSums = 6;
  static constexpr ptrdiff_t kMostRounds = PTRDIFF_MAX;
  // Lanes of 32 bits that hold four samples of each block of eight, in turn even and odd ones.
  static constexpr int Position(int sum, int lane) { return 4 * (sum / 2) + 8 * (lane / 2) + 2 * (lane % 2) + sum % 2; }
  static constexpr int Shift(int) { return 0; }
  static constexpr uint32_t kPairBias = kWordPairBias;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    const D d;
    for (int k = 0; k < 3; ++k) {
      const auto first = at(k), second = at(k + 3);
      const int lower = 2 * (2 * k * kStep % 3), upper = 2 * ((2 * k * kStep + 1) % 3);
      AddWidePairProducts(sums[lower], sums[lower + 1], hn::InterleaveLower(d, first.a, second.a),
                          hn::InterleaveLower(d, first.b, second.b));
      AddWidePairProducts(sums[upper], sums[upper + 1], hn::InterleaveUpper(d, first.a, second.a),
                          hn::InterleaveUpper(d, first.b, second.b));
    }
  }

 private:
  static constexpr int kStep = static_cast<int>(hn::MaxLanes(D())) / 8;
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
      const Halves<uint16_t> low(hn::Mul(factors.a, factors.b)), high(hn::MulHigh(factors.a, factors.b));
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

// Partial sums of floats: every build has the same number of them, and sample i of a row goes to number i modulo that.
template <class L, int kPartials, class DL = hn::ScalableTag<L>>
struct FloatSums {
  using D = DL;
  using Sums = D;
  static constexpr int kVectors = kPartials / static_cast<int>(hn::MaxLanes(D())), kSums = kVectors;

  template <class At>
  static HWY_INLINE void Round(hn::Vec<Sums>* sums, const At& at) {
    for (int k = 0; k < kVectors; ++k) sums[k] = hn::Add(sums[k], at(k));
  }
};

// NaN has one pattern of bits: which operand's pattern an addition hands on depends on the compiler.
constexpr double kNaN = std::bit_cast<double>(0xFFF8000000000000);
constexpr double kInfinity = std::bit_cast<double>(0x7FF0000000000000);
constexpr double Canonical(double v) { return v != v ? kNaN : v; }

// Adds the partial sums of each channel in ascending order, in their own precision.
template <class Kernel>
void SumPartials(const Accumulators<Kernel>& partials, int channels, double* sums) {
  using L = typename Accumulators<Kernel>::Lane;
  L totals[4] = {};
  for (int s = 0, channel = 0; s < Kernel::kSums; ++s) {
    for (int lane = 0; lane < Accumulators<Kernel>::kSumLanes; ++lane) {
      totals[channel] += partials[s][lane];
      channel = channel + 1 == channels ? 0 : channel + 1;
    }
  }
  for (int c = 0; c < channels; ++c) sums[c] = Canonical(static_cast<double>(totals[c]));
}

// Calls use(pixels, row pointers...). Rows of floats are never joined: their sums must not depend on packing.
template <class Use, class... T>
void ForEachRow(Size roi, const Use& use, const Image<const T>&... images) {
  if constexpr ((std::is_integral_v<T> && ...)) {
    Rows(images...).ForEach(roi, use);
  } else {
    for (ptrdiff_t y = 0; y < roi.height; ++y) use(roi.width, images.Row(y)...);
  }
}

// The samples of a row without their signs: kernels of integers tell themselves what the bits mean.
template <class T>
HWY_INLINE auto AsUnsigned(const T* row) {
  if constexpr (std::is_integral_v<T>) {
    return reinterpret_cast<const hwy::MakeUnsigned<T>*>(row);
  } else {
    return row;
  }
}

// Writes one value for each channel, to any address.
template <class T>
void StoreValues(T* to, const T* values, int channels) {
  std::memcpy(to, values, channels * sizeof(T));
}

// Fast: single precision. Accurate: double precision.
using FastSums = FloatSums<float, 48>;
using AccurateSums = FloatSums<double, 24>;

}  // namespace qvp
