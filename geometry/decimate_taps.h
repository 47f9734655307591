// Which samples make each sample of a decimated row, as tables for shuffles and products in pairs.
#pragma once

#include <array>
#include <numeric>

#include "base/simd.h"

namespace qvp::decimate {

// N samples become M. Sample j covers [j N / M, (j + 1) N / M).
template <int N, int M>
struct Ratio {
  static constexpr int kFrom = N, kTo = M, kSum = N * N;  // of the weights on both axes

  static constexpr ptrdiff_t First(ptrdiff_t j) { return j / M * N + j % M * N / M; }
  // Of sample i for the result j, in units of 1 / M of a sample.
  static constexpr int Weight(int j, int i) {
    const int begin = std::max(i * M, j * N), end = std::min((i + 1) * M, (j + 1) * N);
    return std::max(0, end - begin);
  }
  // Samples that a result is made of, at most: as pairs.
  static constexpr int kPairs = [] {
    int most = 0;
    for (int j = 0; j < M; ++j) most = std::max(most, ((j + 1) * N + M - 1) / M - j * N / M);
    return (most + 1) / 2;
  }();
};

// The results of one block of 16 bytes, from loads of 16 bytes, one for each pair of samples. A unit is a sample of all
// channels. What N and M leave of a period shows in the tables: blocks begin in one of kPhases places of it.
template <class T, int kChannels, class R>
struct Taps {
  static constexpr int kUnit = kChannels * sizeof(T), kUnitsRead = kBlockBytes / kUnit;

  // As many results as have their sums in a block and each pair of samples in a load.
  static constexpr int kResults = [] {
    int results = kUnitsRead / 2;
    const auto fits = [](int n) {
      for (int j = 0; j < R::kTo; ++j) {
        if (R::First(j + n - 1) - R::First(j) + 2 > kUnitsRead) return false;
      }
      return true;
    };
    while (!fits(results)) --results;
    return results;
  }();
  static constexpr int kPhases = R::kTo / std::gcd(kResults, R::kTo);

  // The samples of a block follow each other in pairs.
  static constexpr bool kIsInOrder = kChannels == 1 && R::kFrom == 2;

  // One more phase than there are, so that those of two blocks lie side by side.
  struct Tables {
    alignas(2 * kBlockBytes) uint8_t places[R::kPairs][(kPhases + 1) * kBlockBytes];
    alignas(2 * kBlockBytes) uint8_t weights[R::kPairs][(kPhases + 1) * kBlockBytes];
  };

  static constexpr Tables kTables = [] {
    Tables tables{};
    for (int pair = 0; pair < R::kPairs; ++pair) {
      for (int at = 0; at < (kPhases + 1) * kBlockBytes; ++at) {
        const int start = at / kBlockBytes * kResults % R::kTo, sample = at % kBlockBytes / int{sizeof(T)};
        const int lane = sample / 2, result = lane / kChannels, byte = at % int{sizeof(T)};
        const int from = static_cast<int>(R::First(start + result)), tap = 2 * pair + sample % 2;
        const int weight = result < kResults ? R::Weight(start + result, from + tap) : 0;
        const int unit = from - static_cast<int>(R::First(start)) + sample % 2;
        const int place = unit * kUnit + lane % kChannels * int{sizeof(T)} + byte;
        tables.places[pair][at] = static_cast<uint8_t>(weight == 0 ? 0x80 : place);
        tables.weights[pair][at] = static_cast<uint8_t>(byte == 0 ? weight : 0);  // the lower byte comes first
      }
    }
    return tables;
  }();
};

}  // namespace qvp::decimate
