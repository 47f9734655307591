// Networks of exchanges in the lanes of vectors.
#pragma once

#include <type_traits>
#include <utility>

#include "base/simd.h"
#include "base/unrolled.h"
#include "filter/sorting_networks.h"

namespace qvp::filter {

// Runs one on an array of vectors that stays in registers, as far as there are enough.
template <const auto& kNetwork, int kAt, class V>
HWY_INLINE void RunExchange(V* wires) {
  constexpr Exchange e = kNetwork.exchanges[kAt];
  const V a = wires[e.low], b = wires[e.high];
  if constexpr (e.hasLow) wires[e.low] = hn::Min(a, b);
  if constexpr (e.hasHigh) wires[e.high] = hn::Max(a, b);
}
template <const auto& kNetwork, int kFrom, class V, int... kAt>
HWY_INLINE void RunExchanges(V* wires, std::integer_sequence<int, kAt...>) {
  (RunExchange<kNetwork, kFrom + kAt>(wires), ...);
}
// By parts that compilers take.
template <const auto& kNetwork, int kFrom = 0, class V>
HWY_INLINE void RunNetwork(V* wires) {
  constexpr int kLeft = kNetwork.count - kFrom, kPart = kLeft < 128 ? kLeft : 128;
  RunExchanges<kNetwork, kFrom>(wires, std::make_integer_sequence<int, kPart>());
  if constexpr (kPart < kLeft) RunNetwork<kNetwork, kFrom + kPart>(wires);
}

// Pixels as lanes that have their order, and back.
template <class T, class V>
HWY_INLINE V OrderedLanes(V v) {
  if constexpr (std::is_same_v<T, float>) {
    const hn::DFromV<V> d;
    return hn::Xor(v, hn::And(hn::ShiftRight<31>(v), hn::Set(d, 0x7FFFFFFF)));
  } else {
    return v;
  }
}

}  // namespace qvp::filter
