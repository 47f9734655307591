// The counter-based generator Philox 4x32-10: a block of four words for each counter and key, by ten rounds of products
// and exclusive ors. Any block is computed on its own, so that noise is a function of the place.
#pragma once

#include <array>

#include "base/simd.h"

namespace qvp::noise {

using WordTag = hn::ScalableTag<uint32_t>;
using Words = hn::Vec<WordTag>;

// The two words of as many pairs of neighbouring samples as there are lanes.
struct WordPairs {
  Words even, odd;
};

// The generator with a key, for blocks with the counters {block, row, frame, 0}.
class Philox {
 public:
  // Words of a vector of pairs.
  static constexpr int kWords = 2 * static_cast<int>(hn::MaxLanes(WordTag()));

  // The keys of each round, the first with the second above it: in memory, as there are more of them than registers.
  Philox(uint32_t seed, uint32_t stream, uint32_t frame) : frame_(frame) {
    const Tag d;
    for (uint32_t round = 0; round < kRounds; ++round) {
      const uint64_t key0 = seed + round * 0x9E3779B9, key1 = stream + round * 0xBB67AE85;
      hn::Store(hn::Set(d, key0 | key1 << 32), d, keys_[round][0]);
      hn::Store(hn::Set(d, key1), d, keys_[round][1]);
    }
  }

  // kCount vectors of pairs of a row, which follow each other, from a block on. Several at once, since each round waits
  // for the products of the one before.
  template <int kCount>
  HWY_INLINE std::array<WordPairs, kCount> Blocks(uint32_t row, uint32_t first) const {
    State states[kCount];
    for (int i = 0; i < kCount; ++i) states[i] = Start(row, first + i * kWords / 4);
    for (uint32_t round = 0; round + 1 < kRounds; ++round) {
      for (State& state : states) Round(state, hn::Load(Tag(), keys_[round][0]), hn::Load(Tag(), keys_[round][1]));
    }
    std::array<WordPairs, kCount> pairs;
    for (int i = 0; i < kCount; ++i) pairs[i] = LastRound(states[i], hn::Load(Tag(), keys_[kRounds - 1][0]));
    return pairs;
  }

 private:
  // Each block is in a 64-bit lane of all four, as its lower half; the upper one is anything: products take the lower.
  using Tag = hn::ScalableTag<uint64_t>;
  using Vector = hn::Vec<Tag>;
  static constexpr uint32_t kRounds = 10, kFirstFactor = 0xD2511F53, kSecondFactor = 0xCD9E8D57;
  struct State {
    Vector word[4];
  };

  // Blocks in an order in which lanes of pairs that are interleaved within blocks of 16 bytes come in that of samples.
  static HWY_INLINE Vector Order() {
    constexpr int kLanes = static_cast<int>(hn::MaxLanes(Tag()));
    HWY_ALIGN static constexpr auto kOrder = [] {
      std::array<uint64_t, kLanes> order{};
      for (int i = 0; i < kLanes; ++i) order[i] = i / 2 + i % 2 * (kLanes / 2);
      return order;
    }();
    return hn::Load(Tag(), kOrder.data());
  }
  HWY_INLINE State Start(uint32_t row, uint32_t block) const {
    const Tag d;
    return {{hn::Add(hn::Set(d, uint64_t{block}), Order()), hn::Set(d, uint64_t{row}), hn::Set(d, uint64_t{frame_}),
             hn::Zero(d)}};
  }
  static HWY_INLINE Vector Product(Vector v, uint32_t factor) {
    const WordTag words;
    return hn::MulEven(hn::BitCast(words, v), hn::Set(words, factor));
  }
  static HWY_INLINE void Round(State& state, Vector key0, Vector key1) {
    const Vector first = Product(state.word[0], kFirstFactor), second = Product(state.word[2], kSecondFactor);
    const Vector mixed0 = hn::Xor(state.word[1], key0), mixed2 = hn::Xor(state.word[3], key1);
    state = {{hn::Xor(hn::ShiftRight<32>(second), mixed0), second, hn::Xor(hn::ShiftRight<32>(first), mixed2), first}};
  }
  // The lower half of a lane of one, the upper half of another.
  static HWY_INLINE Words Halves(Vector lower, Vector upper) {
    const WordTag d;
    return hn::OddEven(hn::BitCast(d, upper), hn::BitCast(d, lower));
  }
  // With both halves in use.
  static HWY_INLINE WordPairs LastRound(const State& state, Vector keys) {
    const Vector first = Product(state.word[0], kFirstFactor), second = Product(state.word[2], kSecondFactor);
    const Words mixed = hn::Xor(Halves(state.word[1], hn::ShiftLeft<32>(state.word[3])), hn::BitCast(WordTag(), keys));
    return {hn::Xor(Halves(hn::ShiftRight<32>(second), first), mixed), Halves(second, hn::ShiftLeft<32>(first))};
  }

  HWY_ALIGN uint64_t keys_[kRounds][2][hn::MaxLanes(Tag())];
  uint32_t frame_;
};

}  // namespace qvp::noise
