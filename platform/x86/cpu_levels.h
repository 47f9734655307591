// What the words of the processor's identification say: its features, and the level of x86-64 that they make up.
#pragma once

#include <cstdint>

#include "qvpcore.h"

namespace qvp {

// The words of the leaves 1 (basic), 7 (extended) and 0x80000001 (amd); and which registers the operating system saves:
// 2 is SSE, 4 AVX, 0xE0 the three parts of AVX-512. It is 0 where it cannot be asked for.
struct CpuWords {
  unsigned basicEcx = 0, basicEdx = 0, extendedEbx = 0, amdEcx = 0;
  uint64_t savedState = 0;
};

constexpr bool Bit(uint64_t value, int bit) { return (value >> bit & 1) != 0; }

constexpr uint64_t FeaturesOf(const CpuWords& cpu) {
  const bool avx = (cpu.savedState & 0x6) == 0x6, avx512 = (cpu.savedState & 0xE6) == 0xE6;
  constexpr uint64_t kAvx512Levels = 1u << 16 | 1u << 17 | 1u << 28 | 1u << 30 | 1u << 31;  // F, DQ, CD, BW, VL
  const auto feature = [](bool present, uint64_t bit) { return present ? bit : 0; };
  return feature(Bit(cpu.basicEdx, 25) && Bit(cpu.basicEdx, 26), qvpFeatureSSE2) |
         feature(Bit(cpu.basicEcx, 0), qvpFeatureSSE3) | feature(Bit(cpu.basicEcx, 9), qvpFeatureSSSE3) |
         feature(Bit(cpu.basicEcx, 19), qvpFeatureSSE41) | feature(Bit(cpu.basicEcx, 20), qvpFeatureSSE42) |
         feature(Bit(cpu.basicEcx, 23), qvpFeaturePOPCNT) | feature(avx && Bit(cpu.basicEcx, 28), qvpFeatureAVX) |
         feature(avx && Bit(cpu.extendedEbx, 5), qvpFeatureAVX2) |
         feature(avx && Bit(cpu.basicEcx, 12), qvpFeatureFMA) | feature(avx && Bit(cpu.basicEcx, 29), qvpFeatureF16C) |
         feature(Bit(cpu.extendedEbx, 3) && Bit(cpu.extendedEbx, 8) && Bit(cpu.amdEcx, 5), qvpFeatureBMI) |
         feature(Bit(cpu.basicEcx, 22), qvpFeatureMOVBE) |
         feature(avx512 && (cpu.extendedEbx & kAvx512Levels) == kAvx512Levels, qvpFeatureAVX512);
}

// The level of x86-64, 1 to 4, as its ABI defines them. Two instructions of level 2 have no feature bit, CMPXCHG16B and
// LAHF: our code has no use for them, and every processor with SSE4.2 and 64 bits knows them.
constexpr int LevelOf(uint64_t features) {
  constexpr uint64_t kLevel2 =
      qvpFeatureSSE2 | qvpFeatureSSE3 | qvpFeatureSSSE3 | qvpFeatureSSE41 | qvpFeatureSSE42 | qvpFeaturePOPCNT;
  constexpr uint64_t kLevel3 =
      kLevel2 | qvpFeatureAVX | qvpFeatureAVX2 | qvpFeatureFMA | qvpFeatureF16C | qvpFeatureBMI | qvpFeatureMOVBE;
  constexpr uint64_t kLevel4 = kLevel3 | qvpFeatureAVX512;
  const auto has = [features](uint64_t level) { return (features & level) == level; };
  return has(kLevel4) ? 4 : has(kLevel3) ? 3 : has(kLevel2) ? 2 : 1;
}

// The level to use: the one supported, or a lower one that is asked for as "v2" or "v3". All else is not listened to.
constexpr int ChosenLevel(int supported, const char* wanted) {
  if (wanted == nullptr || wanted[0] != 'v' || wanted[1] < '2' || wanted[1] > '4' || wanted[2] != 0) return supported;
  const int level = wanted[1] - '0';
  return level < supported ? level : supported;
}

}  // namespace qvp
