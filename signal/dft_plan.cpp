// Plans of discrete Fourier transforms: factors, places and twiddle factors.
#include <cstring>

#include "signal/dft.h"
#include "signal/dft_passes.h"
#include "signal/sin_cos.h"

namespace qvp::dft {
namespace {

constexpr int64_t kBoundary = 64;

int64_t RoundedUp(int64_t bytes) { return (bytes + kBoundary - 1) / kBoundary * kBoundary; }

// Fills the factors of n: fours first, of which one may become an eight, then primes upward. False if one is too large.
bool Factorise(int64_t n, DftPlan& plan) {
  plan.factorCount = 0;
  const auto take = [&](int factor) {
    for (; n % factor == 0; n /= factor) plan.factors[plan.factorCount++] = static_cast<uint8_t>(factor);
  };
  take(4);
  if (n % 2 == 0 && plan.factorCount > 0) {  // the two that is left makes an eight
    plan.factors[plan.factorCount - 1] = 8;
    n /= 2;
  }
  take(2);
  for (int factor = 3; factor <= kLargestFactor; factor += 2) take(factor);
  return n == 1;
}

// Pairs of the twiddle factors of all passes: a pass of factor p, on pieces of length p m, has m rows of p - 1.
int64_t TwiddleCount(const DftPlan& plan) {
  int64_t count = 0, m = plan.BlockLength();
  for (int i = 0; i < plan.factorCount; ++i) {
    m /= plan.factors[i];
    count += m * (plan.factors[i] - 1);
  }
  return count;
}

// Pairs for the butterflies of primes without a text of their own, each prime once after another.
int64_t PrimeCount(const DftPlan& plan) {
  int64_t count = 0;
  for (int i = 0; i < plan.factorCount; ++i) count += HasOwnButterfly(plan.factors[i]) ? 0 : plan.factors[i];
  return count;
}

void WritePair(float* to, const SinCos& angle) {
  to[0] = static_cast<float>(angle.cos);
  to[1] = static_cast<float>(-angle.sin);
}

void WriteTwiddles(const DftPlan& plan, float* twiddles, float* primes) {
  int64_t length = plan.BlockLength();
  for (int i = 0; i < plan.factorCount; ++i) {
    const int p = plan.factors[i];
    const int64_t m = length / p;
    for (int64_t j = 0; j < m; ++j) {
      for (int k = 1; k < p; ++k, twiddles += 2) WritePair(twiddles, SinCosOfTurn(j * k, length));
    }
    if (!HasOwnButterfly(p)) {
      for (int k = 0; k < p; ++k, primes += 2) WritePair(primes, SinCosOfTurn(k, p));
    }
    length = m;
  }
}

// Frequency k = k1 + p1 (k2 + p2 (...)) lies in piece k1 after the first pass, within it in piece k2 after the second.
void WritePlaces(const DftPlan& plan, int32_t* places) {
  for (int64_t k = 0; k < plan.complexLength; ++k) {
    int64_t place = 0, rest = k, m = plan.complexLength;
    for (int i = 0; i < plan.factorCount; ++i) {
      m /= plan.factors[i];
      place += rest % plan.factors[i] * m;
      rest /= plan.factors[i];
    }
    places[k] = static_cast<int32_t>(plan.chirpLength ? k : place);
  }
}

// e^(-i pi j^2 / n), and the spectrum of its conjugate, wrapped round and divided by the convolution's length.
void WriteChirp(const DftPlan& plan, uint8_t* base) {
  const int64_t n = plan.complexLength, m = plan.chirpLength;
  float* const chirp = reinterpret_cast<float*>(base + plan.chirp);
  float* const spectrum = reinterpret_cast<float*>(base + plan.chirpSpectrum);
  std::memset(spectrum, 0, m * kPairBytes);
  uint64_t square = 0;  // j^2 modulo 2 n
  for (int64_t j = 0; j < n; ++j) {
    const SinCos angle = SinCosOfTurn(static_cast<int64_t>(square), 2 * n);
    WritePair(chirp + 2 * j, angle);
    float* const ends[] = {spectrum + 2 * j, spectrum + 2 * (j == 0 ? 0 : m - j)};
    for (float* const to : ends) {
      to[0] = static_cast<float>(angle.cos / static_cast<double>(m));
      to[1] = static_cast<float>(angle.sin / static_cast<double>(m));
    }
    square = (square + 2 * static_cast<uint64_t>(j) + 1) % (2 * static_cast<uint64_t>(n));
  }
  RunPasses<1>(plan, base, Planes{0, 1}, spectrum, 0, plan.factorCount);
}

}  // namespace

DftPlan LayOutDft(int64_t length, DftKind kind) {
  DftPlan plan{};
  plan.length = length;
  plan.kind = kind;
  plan.complexLength = kind != DftKind::kComplex && length % 2 == 0 ? length / 2 : length;
  plan.scale[0] = plan.scale[1] = plan.ofMean[0] = plan.ofMean[1] = 1;
  if (!Factorise(plan.complexLength, plan)) {
    plan.chirpLength = 1;
    while (plan.chirpLength < 2 * plan.complexLength - 1) plan.chirpLength *= 2;
    Factorise(plan.chirpLength, plan);
  }
  const bool isHalved = plan.complexLength != length;
  const int64_t chirpPairs = plan.chirpLength ? plan.complexLength : 0;
  plan.bytes = RoundedUp(sizeof(DftPlan));
  const auto place = [&](int64_t& offset, int64_t bytes) {
    offset = plan.bytes;
    plan.bytes += RoundedUp(bytes);
  };
  place(plan.places, plan.complexLength * int64_t{sizeof(int32_t)});
  place(plan.twiddles, TwiddleCount(plan) * kPairBytes);
  place(plan.realTwiddles, isHalved ? (plan.complexLength / 2 + 1) * kPairBytes : 0);
  place(plan.cosines, kind == DftKind::kCosine ? (length / 2 + 1) * kPairBytes : 0);
  place(plan.primes, PrimeCount(plan) * kPairBytes);
  place(plan.chirp, chirpPairs * kPairBytes);
  place(plan.chirpSpectrum, plan.chirpLength * kPairBytes);
  return plan;
}

void WriteDft(const DftPlan& plan, uint8_t* to) {
  std::memcpy(to, &plan, sizeof(plan));
  WritePlaces(plan, reinterpret_cast<int32_t*>(to + plan.places));
  WriteTwiddles(plan, reinterpret_cast<float*>(to + plan.twiddles), reinterpret_cast<float*>(to + plan.primes));
  if (plan.complexLength != plan.length) {
    float* pairs = reinterpret_cast<float*>(to + plan.realTwiddles);
    for (int64_t k = 0; k <= plan.complexLength / 2; ++k) WritePair(pairs + 2 * k, SinCosOfTurn(k, plan.length));
  }
  if (plan.kind == DftKind::kCosine) {
    float* pairs = reinterpret_cast<float*>(to + plan.cosines);
    for (int64_t k = 0; k <= plan.length / 2; ++k) WritePair(pairs + 2 * k, SinCosOfTurn(k, 4 * plan.length));
  }
  if (plan.chirpLength) WriteChirp(plan, to);
}

}  // namespace qvp::dft
