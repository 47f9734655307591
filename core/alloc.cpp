// Image memory: rows padded to cache lines, from the companion library's allocator.
#include "base/image.h"
#include "qvpcore.h"
#include "qvpi.h"

namespace {
using namespace qvp;

constexpr int kRowAlignment = 64;

// Length is the type of the step, whose limit is the limit of the row and of the whole image. The step stays written
// when only the whole image is too large.
template <class T, class Length>
T* Allocate(Length width, Length height, Layout layout, Length* step, void* (*allocate)(Length)) {
  if (step == nullptr) return nullptr;
  *step = 0;
  if (width < 1 || height < 1) return nullptr;
  Length row, padded, total;
  if (__builtin_mul_overflow(width, static_cast<Length>(Channels(layout) * sizeof(T)), &row)) return nullptr;
  if (__builtin_add_overflow(row, static_cast<Length>(kRowAlignment - 1), &padded)) return nullptr;
  *step = padded & -static_cast<Length>(kRowAlignment);
  if (__builtin_mul_overflow(*step, height, &total)) return nullptr;
  return static_cast<T*>(allocate(total));
}

}  // namespace

#define MALLOC(type, layout)                                                                           \
  Qvp##type* qvpiMalloc_##type##_##layout(int width, int height, int* pStepBytes) {                    \
    return Allocate<Qvp##type>(width, height, Layout::k##layout, pStepBytes, qvpMalloc);               \
  }                                                                                                    \
  Qvp##type* qvpiMalloc_##type##_##layout##_L(QvpSizeL width, QvpSizeL height, QvpSizeL* pStepBytes) { \
    return Allocate<Qvp##type>(width, height, Layout::k##layout, pStepBytes, qvpMalloc_L);             \
  }
#define MALLOC_LAYOUTS(type) MALLOC(type, C1) MALLOC(type, C2) MALLOC(type, C3) MALLOC(type, C4) MALLOC(type, AC4)

MALLOC_LAYOUTS(8u)
MALLOC_LAYOUTS(16u)
MALLOC_LAYOUTS(16s)
MALLOC_LAYOUTS(32s)
MALLOC_LAYOUTS(32f)
MALLOC_LAYOUTS(32sc)
MALLOC_LAYOUTS(32fc)

void qvpiFree(void* ptr) { qvpFree(ptr); }
