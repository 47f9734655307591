// Aligned memory.
#include <cstdlib>

#include "qvpcore.h"

namespace {
constexpr size_t kAlignment = 64;

void* AllocateAligned(QvpSizeL length) {
  if (length < 1) return nullptr;
  return std::aligned_alloc(kAlignment, (static_cast<size_t>(length) + kAlignment - 1) & ~(kAlignment - 1));
}
}  // namespace

void* qvpMalloc(int length) { return AllocateAligned(length); }
void* qvpMalloc_L(QvpSizeL length) { return AllocateAligned(length); }
void qvpFree(void* ptr) { std::free(ptr); }
