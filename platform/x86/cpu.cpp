// Facts about the processor, from its identification instruction. Under a hypervisor that instruction takes tens of
// microseconds, so what is asked for during image processing is kept once found; threads that race find the same.
#include <cpuid.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>

#include "platform/x86/cpu_levels.h"

namespace {

using qvp::Bit;

struct Registers {
  unsigned eax = 0, ebx = 0, ecx = 0, edx = 0;
};

// All zero where the processor does not know the leaf.
Registers Identify(unsigned leaf, unsigned subleaf = 0) {
  Registers r;
  __get_cpuid_count(leaf, subleaf, &r.eax, &r.ebx, &r.ecx, &r.edx);
  return r;
}

// Largest data or unified cache of a leaf that lists caches by subleaf: 4, or 0x8000001D where AMD's extension is.
int64_t LargestListedCache(unsigned leaf) {
  constexpr unsigned kNone = 0, kInstructions = 2;
  constexpr unsigned kMostCaches = 16;  // some hypervisors never end the list
  int64_t largest = 0;
  for (unsigned i = 0; i < kMostCaches; ++i) {
    const Registers r = Identify(leaf, i);
    const unsigned type = r.eax & 31;
    if (type == kNone) break;
    if (type == kInstructions) continue;
    const int64_t ways = (r.ebx >> 22) + 1, partitions = (r.ebx >> 12 & 0x3FF) + 1, line = (r.ebx & 0xFFF) + 1;
    largest = std::max(largest, ways * partitions * line * (static_cast<int64_t>(r.ecx) + 1));
  }
  return largest;
}

// The older AMD leaves: level 1 and 2 in KiB, level 3 in units of 512 KiB.
int64_t LargestLegacyCache() {
  const Registers first = Identify(0x80000005), others = Identify(0x80000006);
  return std::max({static_cast<int64_t>(first.ecx >> 24) << 10, static_cast<int64_t>(others.ecx >> 16) << 10,
                   static_cast<int64_t>(others.edx >> 18) << 19});
}

int64_t LargestCache() {
  if (const int64_t listed = LargestListedCache(4)) return listed;
  constexpr int kTopologyExtensions = 22;
  if (Bit(Identify(0x80000001).ecx, kTopologyExtensions)) {
    if (const int64_t listed = LargestListedCache(0x8000001D)) return listed;
  }
  return LargestLegacyCache();
}

uint64_t SavedState(const Registers& basic) {
  constexpr int kOsXsave = 27;
  if (!Bit(basic.ecx, kOsXsave)) return 0;
  unsigned low, high;
  __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return static_cast<uint64_t>(high) << 32 | low;
}

constexpr int64_t kUnknown = -1;
std::atomic<int> largestCache{kUnknown};

}  // namespace

QvpStatus qvpGetMaxCacheSizeB(int* pSizeByte) {
  if (pSizeByte == nullptr) return qvpStatusNullPointer;
  int size = largestCache.load(std::memory_order_relaxed);
  if (size == kUnknown) {
    size = static_cast<int>(std::min<int64_t>(LargestCache(), INT_MAX));
    largestCache.store(size, std::memory_order_relaxed);
  }
  if (size == 0) return qvpStatusNotSupportedMode;
  *pSizeByte = size;
  return qvpStatusNoError;
}

int qvp_get_cache_line_size() {
  constexpr int kUsualLine = 64;
  const int line = static_cast<int>(Identify(1).ebx >> 8 & 0xFF) * 8;
  return line > 0 ? line : kUsualLine;
}

uint64_t ownGetFeature() {
  const Registers basic = Identify(1), extended = Identify(7), amd = Identify(0x80000001);
  return qvp::FeaturesOf({basic.ecx, basic.edx, extended.ebx, amd.ecx, SavedState(basic)});
}
