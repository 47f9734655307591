#include "bench/support.h"

#include <benchmark/benchmark.h>
#include <immintrin.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <opencv2/core.hpp>
#include <random>
#include <vector>

namespace bench {
namespace {

// What the machine itself can do: vector loads and stores over the traffic of a row, without any work between them.
// Reads, writes and updates take turns in blocks small enough for the first-level cache.
constexpr size_t kBlock = 2048, kVector = 32, kGroup = 4 * kVector;

const __m256i* At(const uint8_t* p) { return reinterpret_cast<const __m256i*>(p); }
__m256i* At(uint8_t* p) { return reinterpret_cast<__m256i*>(p); }

template <bool kStreaming>
void Store(uint8_t* to, __m256i v) {
  kStreaming ? _mm256_stream_si256(At(to), v) : _mm256_store_si256(At(to), v);
}

void ReadBytes(const uint8_t* from, size_t bytes, __m256i (&sums)[4]) {
  for (size_t i = 0; i + kGroup <= bytes; i += kGroup) {
    for (int k = 0; k < 4; ++k) sums[k] = _mm256_or_si256(sums[k], _mm256_load_si256(At(from + i + k * kVector)));
  }
}

template <bool kStreaming>
void WriteBytes(uint8_t* to, size_t bytes, __m256i value) {
  for (size_t i = 0; i + kVector <= bytes; i += kVector) Store<kStreaming>(to + i, value);
}

template <bool kStreaming>
void UpdateBytes(uint8_t* at, size_t bytes, __m256i value) {
  for (size_t i = 0; i + kVector <= bytes; i += kVector) {
    Store<kStreaming>(at + i, _mm256_xor_si256(_mm256_load_si256(At(at + i)), value));
  }
}

template <bool kStreaming>
void Touch(const uint8_t* from, uint8_t* to, Traffic traffic) {
  const size_t larger = std::max({traffic.reads, traffic.writes, traffic.updates});
  const size_t blocks = (larger + kBlock - 1) / kBlock;
  const auto share = [&](size_t bytes) { return bytes / blocks & ~(kVector - 1); };
  const size_t reads = share(traffic.reads), writes = share(traffic.writes), updates = share(traffic.updates);
  const __m256i value = _mm256_set1_epi8(0x5A);  // not zero: some processors write zeros faster than other bytes
  __m256i sums[4] = {value, value, value, value};
  for (size_t b = 0; b < blocks; ++b) {
    ReadBytes(from + b * reads, reads, sums);
    WriteBytes<kStreaming>(to + b * writes, writes, value);
    UpdateBytes<kStreaming>(to + b * updates, updates, value);
  }
  benchmark::DoNotOptimize(sums);
  if (kStreaming) _mm_sfence();
}

template <bool kStreaming>
void CopyBytes(const uint8_t* from, uint8_t* to, size_t bytes) {
  for (size_t i = 0; i + kVector <= bytes; i += kVector) Store<kStreaming>(to + i, _mm256_load_si256(At(from + i)));
  if (kStreaming) _mm_sfence();
}

template <bool kStreaming>
void Limit(const uint8_t* from, uint8_t* to, Traffic traffic) {
  traffic.reads == traffic.writes&& traffic.updates == 0 ? CopyBytes<kStreaming>(from, to, traffic.reads)
                                                         : Touch<kStreaming>(from, to, traffic);
}

void Time(const std::string& name, std::function<void()> call) {
  benchmark::RegisterBenchmark(name.c_str(), [call = std::move(call)](benchmark::State& state) {
    for (auto _ : state) {
      call();
      benchmark::ClobberMemory();
    }
  });
}

// What limits are measured with: two buffers for all rows, made when these are known and before any is timed.
size_t largest = 0;  // bytes that a row reads or writes
std::shared_ptr<uint8_t[]> scratch[2];

void MakeScratch() {
  for (auto& buffer : scratch) buffer = Pixels<uint8_t>(largest + 64);
}

void AddLimits(const std::string& name, Traffic traffic) {
  const size_t written = traffic.writes + traffic.updates;
  largest = std::max({largest, size_t{traffic.reads}, written});
  Time(name + "/limit", [=] { Limit<false>(scratch[0].get(), scratch[1].get(), traffic); });
  if (written > 0) Time(name + "/limit streaming", [=] { Limit<true>(scratch[0].get(), scratch[1].get(), traffic); });
}

// The four classic rates, in and out of cache.
void AddMachineLimits() {
  struct {
    const char* name;
    double reads, writes;
  } kinds[] = {{"read", 1, 0}, {"fill", 0, 1}, {"copy", 0.5, 0.5}, {"triad", 2 / 3.0, 1 / 3.0}};
  for (const auto& kind : kinds) {
    for (const size_t bytes : {size_t{32} << 10, size_t{512} << 10, size_t{8} << 20, size_t{96} << 20}) {
      const Traffic traffic{static_cast<size_t>(kind.reads * bytes), static_cast<size_t>(kind.writes * bytes)};
      AddLimits("machine " + std::string(kind.name) + " " + std::to_string(bytes >> 10) + " KiB @" +
                    std::to_string(traffic.Total()),
                traffic);
    }
  }
}

}  // namespace

void Require(int status) {
  if (status == 0) return;
  std::fprintf(stderr, "a benchmarked call returned %d\n", status);
  std::abort();
}

// A mebibyte of noise: long enough that no CPU learns it.
const std::vector<uint8_t>& Noise() {
  static const auto noise = [] {
    std::vector<uint8_t> bytes(size_t{1} << 20);
    std::minstd_rand random(1);
    for (auto& byte : bytes) byte = static_cast<uint8_t>(random() >> 8);
    return bytes;
  }();
  return noise;
}

template <class T>
std::shared_ptr<T[]> Pixels(size_t count) {
  const size_t bytes = (count * sizeof(T) + 63) & ~size_t{63};
  auto* data = static_cast<uint8_t*>(std::aligned_alloc(4096, (bytes + 4095) & ~size_t{4095}));
  const auto& noise = Noise();
  for (size_t i = 0; i < bytes; i += noise.size())
    std::memcpy(data + i, noise.data(), std::min(bytes - i, noise.size()));
  return {reinterpret_cast<T*>(data), [](T* p) { std::free(p); }};
}
template std::shared_ptr<int8_t[]> Pixels(size_t);
template std::shared_ptr<uint8_t[]> Pixels(size_t);
template std::shared_ptr<uint16_t[]> Pixels(size_t);
template std::shared_ptr<int16_t[]> Pixels(size_t);
template std::shared_ptr<int32_t[]> Pixels(size_t);
template std::shared_ptr<float[]> Pixels(size_t);

void Add(Row row) {
  // The report reads the target and the traffic out of the name.
  const std::string name = row.name + " @" + std::to_string(row.traffic.Total());
  Time(name + "/ours", row.ours);
  for (const Peer& peer : row.peers) {
    Time(name + "/peer: " + peer.name + " >= " + std::to_string(peer.atLeast), peer.call);
  }
  AddLimits(name, row.traffic);
}

}  // namespace bench

int main(int argc, char** argv) {
  cv::setNumThreads(1);
  bench::AddMachineLimits();
  bench::MakeScratch();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
