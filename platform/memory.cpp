// Aligned memory.
#include <cstdlib>

#ifdef _WIN32
#include <malloc.h>
#endif

#include "qvpcore.h"

namespace {
constexpr size_t kAlignment = 64;

#ifdef _WIN32
void* Allocate(size_t length) { return _aligned_malloc(length, kAlignment); }
void Free(void* block) { _aligned_free(block); }
#else
void* Allocate(size_t length) { return std::aligned_alloc(kAlignment, (length + kAlignment - 1) & ~(kAlignment - 1)); }
void Free(void* block) { std::free(block); }
#endif

void* AllocateAligned(QvpSizeL length) { return length < 1 ? nullptr : Allocate(static_cast<size_t>(length)); }
}  // namespace

void* qvpMalloc(int length) { return AllocateAligned(length); }
void* qvpMalloc_L(QvpSizeL length) { return AllocateAligned(length); }
void qvpFree(void* ptr) { Free(ptr); }
