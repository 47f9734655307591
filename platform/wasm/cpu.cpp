// Facts about the processor. WebAssembly shows programs none: neither its caches nor what it can do beyond what the
// program was made for.
#include "qvpcore.h"

QvpStatus qvpGetMaxCacheSizeB(int* pSizeByte) {
  return pSizeByte == nullptr ? qvpStatusNullPointer : qvpStatusNotSupportedMode;
}

int qvp_get_cache_line_size() {
  constexpr int kUsual = 64;
  return kUsual;
}

uint64_t ownGetFeature() { return 0; }
