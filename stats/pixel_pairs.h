// Samples of several channels in pairs, whose products can be added up at once: both are of one channel.
#pragma once

#include "base/unrolled.h"

namespace qvp::stats {

// Bytes of several channels in pairs of 16-bit lanes, from rounds of six vectors: pairs are samples that are three
// vectors apart. Vectors of pixels that begin at places equal modulo 12 share a sum.
struct BytePixelPairs {
  using D = hn::CappedTag<uint8_t, 32>;  // CPUs with longer vectors shuffle these no faster
  static constexpr int Position(int sum, int lane) { return 4 * sum + 16 * (lane / 4) + lane % 4; }

  // Calls add(sum, a, b), with 0 to 2 for the sum.
  template <class At, class Add>
  static HWY_INLINE void ForEach(const At& at, const Add& add) {
    const D d;
    Unrolled<3>([&](auto k) QVP_INLINED {
      const auto first = at(k), second = at(k + 3);
      ForEachOfHalf(4 * k * kStep, hn::InterleaveLower(d, first.a, second.a), hn::InterleaveLower(d, first.b, second.b),
                    add);
      ForEachOfHalf(4 * k * kStep + 2, hn::InterleaveUpper(d, first.a, second.a),
                    hn::InterleaveUpper(d, first.b, second.b), add);
    });
  }

 private:
  static constexpr int kStep = static_cast<int>(hn::MaxLanes(D())) / 16;

  // `place` counts groups of four samples.
  template <class Add>
  static HWY_INLINE void ForEachOfHalf(int place, hn::Vec<D> a, hn::Vec<D> b, const Add& add) {
    const D d;
    const auto zero = hn::Zero(d);
    add(place % 3, hn::InterleaveLower(d, a, zero), hn::InterleaveLower(d, b, zero));
    add((place + 1) % 3, hn::InterleaveUpper(d, a, zero), hn::InterleaveUpper(d, b, zero));
  }
};

// 16-bit integers of several channels in pairs, as bytes are. Sums are of 32-bit lanes that hold four samples of each
// block of eight; even and odd lanes of a sum are added up apart.
struct WordPixelPairs {
  using D = hn::ScalableTag<uint16_t>;  // their bits
  static constexpr int Position(int sum, int lane) { return 4 * (sum / 2) + 8 * (lane / 2) + 2 * (lane % 2) + sum % 2; }

  // Calls add(sum, a, b), with 0, 2 or 4 for the sum.
  template <class At, class Add>
  static HWY_INLINE void ForEach(const At& at, const Add& add) {
    const D d;
    Unrolled<3>([&](auto k) QVP_INLINED {
      const auto first = at(k), second = at(k + 3);
      add(2 * (2 * k * kStep % 3), hn::InterleaveLower(d, first.a, second.a),
          hn::InterleaveLower(d, first.b, second.b));
      add(2 * ((2 * k * kStep + 1) % 3), hn::InterleaveUpper(d, first.a, second.a),
          hn::InterleaveUpper(d, first.b, second.b));
    });
  }

 private:
  static constexpr int kStep = static_cast<int>(hn::MaxLanes(D())) / 8;
};

}  // namespace qvp::stats
