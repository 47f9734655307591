// Facts about the processor. AArch64 shows programs the length of a cache line; sizes of caches are for the operating
// system alone, and all that the library needs is in the baseline, which has no bits.
#include <cstdint>

#include "qvpcore.h"

QvpStatus qvpGetMaxCacheSizeB(int* pSizeByte) {
  return pSizeByte == nullptr ? qvpStatusNullPointer : qvpStatusNotSupportedMode;
}

int qvp_get_cache_line_size() {
  uint64_t type;
  __asm__("mrs %0, ctr_el0" : "=r"(type));
  constexpr int kWordBytes = 4;
  return kWordBytes << (type >> 16 & 15);  // of the shortest data cache line, as a power of two of words
}

uint64_t ownGetFeature() { return 0; }
