// The Gauss filter's formula.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

namespace test {

// From the middle on.
inline std::vector<double> Weights(int size, double sigma) {
  std::vector<double> w;
  double sum = 0;
  for (int d = 0; d <= size / 2; ++d) w.push_back(std::exp(-d * double(d) / (2 * sigma * sigma)));
  for (int d = size / 2; d > 0; --d) sum += w[d];
  const double all = w[0] + 2 * sum;
  for (double& v : w) v /= all;
  return w;
}

struct WholeTaps {
  int bits;
  std::vector<int64_t> taps;
};
inline WholeTaps WholeWeights(int size, double sigma) {
  const std::vector<double> w = Weights(size, sigma);
  for (int bits = 17;; --bits) {
    std::vector<int64_t> q(w.size());
    double error = 0;
    q[0] = 1 << bits;
    for (size_t d = w.size() - 1; d > 0; --d) {
      const double v = w[d] * (1 << bits) + error;
      q[d] = std::llrint(v);
      error = v - q[d];
      q[0] -= 2 * q[d];
    }
    if (q[0] <= 32767) return {bits, q};
  }
}

template <class F, class Tap, class Value>
F FoldedSum(const std::vector<Tap>& taps, const Value& value) {
  volatile F sum = static_cast<F>(taps[0]) * static_cast<F>(value(0));
  for (int d = 1; d < static_cast<int>(taps.size()); ++d) {
    const volatile F pair = static_cast<F>(value(d)) + static_cast<F>(value(-d));
    const volatile F product = static_cast<F>(taps[d]) * pair;
    sum = sum + product;
  }
  return sum;
}

// Of bytes: rows have six bits behind the point, sums six more than the taps down.
template <class Pixel>
int64_t SumOfBytes(const WholeTaps& across, const WholeTaps& down, const Pixel& pixel) {
  return FoldedSum<int64_t>(down.taps, [&](int j) {
    const auto sum = FoldedSum<int64_t>(across.taps, [&](int i) { return pixel(i, j); });
    return (sum + (int64_t{1} << (across.bits - 7))) >> (across.bits - 6);
  });
}

template <class Pixel>
float SumOfFloats(const std::vector<float>& across, const std::vector<float>& down, const Pixel& pixel) {
  return FoldedSum<float>(down, [&](int j) { return FoldedSum<float>(across, [&](int i) { return pixel(i, j); }); });
}

}  // namespace test
