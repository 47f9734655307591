// Lengths of factors 2, 3 and 5, whose transforms are the fastest.
#pragma once

#include <algorithm>
#include <cstdint>

namespace qvp::dft {

// Calls visit(n) for all n = unit 2^i 3^j 5^k from `least` to `most`.
template <class Visit>
void ForEachSmooth(int64_t unit, int64_t least, int64_t most, const Visit& visit) {
  for (int64_t fives = unit; fives <= most; fives *= 5) {
    for (int64_t threes = fives; threes <= most; threes *= 3) {
      for (int64_t n = threes; n <= most; n *= 2) {
        if (n >= least) visit(n);
      }
    }
  }
}

// The least of them from `least` on, which is at least 1.
inline int64_t SmallestSmooth(int64_t unit, int64_t least) {
  int64_t smallest = INT64_MAX;
  ForEachSmooth(unit, least, 2 * std::max(unit, least), [&](int64_t n) { smallest = std::min(smallest, n); });
  return smallest;
}

}  // namespace qvp::dft
