// The walk of the filters that make each row of results from the same few rows around it: rows of the source, with the
// border around them, are prepared once each and kept in a window, which moves down over the region.
//
//     source --border--> line --across--> line, in the window --down--> results
//
// The walk is compiled once for each size of elements: what a filter does across and down are functions with a context.
#pragma once

#include <array>

#include "base/row_ring.h"

namespace qvp::filter {

inline constexpr int kMostOutputs = 4;

// Where one or two rows of results go, as far as each output is wanted: else null. Of a single row both are the same,
// and the upper results are stored last.
struct ResultRows {
  std::array<uint8_t*, kMostOutputs> upper, lower;
};

// What rows of results are made from, in a block of columns.
struct Window {
  const void* const* lines;  // from the uppermost on
  ptrdiff_t samples;
  ptrdiff_t y;            // of the upper row
  uint8_t* kept;          // what a filter keeps from row to row; of unknown content at y = 0
  ptrdiff_t keptStep;     // bytes
  BorderColumns columns;  // of lines without border columns, those that are missing
};

// Bytes of the caches that blocks of columns are made for.
inline constexpr int64_t kNearestCacheBytes = 16384, kSecondCacheBytes = 1 << 19;
// One block has all columns.
inline constexpr int64_t kWholeRows = int64_t{1} << 60;

// Lines of floats are read once for two rows of results, for which the second cache is quick enough; the longer the
// rows, the better are the image's read and written.
constexpr int64_t LaneCacheBytes(int elementBytes) {
  return elementBytes == sizeof(float) ? kSecondCacheBytes : kNearestCacheBytes;
}

struct KeptRows {
  int64_t count = 0;
  int elementBytes = 0;
};

// What a filter does.
//   across  makes `samples` elements of a line from one of the source, of which the first result reads the first
//           samples. Null if lines are those of the source.
//   down    makes results from a window. `samples` are those of the source's type of pixel. Without `across` the first
//           result reads the first samples of lines here.
// Both may read and write a vector behind a line, but behind one of the source only if samples are fewer than
// kFewestInPlace, or the filter says that it always does so: else it may be a row of the image.
struct WindowKernel {
  const void* context;
  void (*across)(const void* context, const void* source, void* line, ptrdiff_t samples);
  void (*down)(const void* context, const Window& window, const ResultRows& rows);
  int elementBytes;  // of lines in the window
  int rowsAtOnce;    // of results: 1 or 2

  // Rows that `down` writes for itself, with room for what a line of the source has.
  KeptRows kept = {};
  bool readsBeyond = false;

  // `across` is told all samples of a line of the source, and makes as many.
  bool keepsReach = false;

  // Lines have no border columns: `down` fills them in what it makes of lines. Columns of the border are the same on
  // every row, so that what goes down alone may go down first, on rows as they are.
  bool isBare = false;

  // Of lines and kept rows of a block. Those of the second cache where most is done while a line is new, or where lines
  // are rows as they are, which are best read to their ends.
  int64_t cacheBytes = kNearestCacheBytes;
};

inline constexpr ptrdiff_t kFewestInPlace = 64;

template <class T>
using BitsOf = std::conditional_t<sizeof(T) == 1, uint8_t, std::conditional_t<sizeof(T) == 2, uint16_t, uint32_t>>;

// T is an unsigned integer as long as the elements, unless lines have others: pixels are only moved here.
template <class T>
struct Windows {
  BorderedImage<T> src;
  Size roi;
  Reach reach;
  std::array<Bytes, kMostOutputs> outputs;  // an AC4 image keeps its alpha
  uint8_t* buffer;

  // The results take the place of the source. The filter makes lines of its own of each row, which stay in the window
  // where the image has results already.
  bool isInPlace = false;
};

// Bytes of the work buffer for regions up to a width, from any address on; they grow with each argument.
// `elementBytes` is the most that an element of the source, of a line or of a result has; `cacheBytes` as in the
// kernel.
ByteCount WindowBytes(Size mask, int64_t regionWidth, int channels, int elementBytes, KeptRows kept = {},
                      int64_t cacheBytes = kNearestCacheBytes);

// Lines of the source have elements of E: numbers of a wider type are made of pixels where `across` takes each of them
// many times.
template <class T, class E = T>
void FilterWindows(const Windows<T>& windows, const WindowKernel& kernel);
extern template void FilterWindows<uint8_t>(const Windows<uint8_t>&, const WindowKernel&);
extern template void FilterWindows<uint16_t>(const Windows<uint16_t>&, const WindowKernel&);
extern template void FilterWindows<uint32_t>(const Windows<uint32_t>&, const WindowKernel&);
extern template void FilterWindows<uint8_t, int16_t>(const Windows<uint8_t>&, const WindowKernel&);
extern template void FilterWindows<uint8_t, float>(const Windows<uint8_t>&, const WindowKernel&);
extern template void FilterWindows<uint16_t, float>(const Windows<uint16_t>&, const WindowKernel&);
extern template void FilterWindows<int16_t, float>(const Windows<int16_t>&, const WindowKernel&);

// The types of a walk over pixels of T with lines of numbers of E: what is so already is moved as bits.
template <class T, class E>
struct LineTypes {
  static constexpr bool kIsMoved = std::is_same_v<T, E>;
  using Pixel = std::conditional_t<kIsMoved, BitsOf<T>, T>;
  using Element = std::conditional_t<kIsMoved, BitsOf<T>, E>;
};

// Two rows of n results, by a kernel that makes those of kVectors vectors at a time, or of one:
// Run<kCount>(lines, first sample, upper, lower). What the kernel holds is copied, as bytes that are stored might be
// part of it for all that the compiler can tell. The last vector may overlap the one before it: results are not what is
// read.
template <class Kernel, class E, class T>
HWY_INLINE void FilterRows(const Kernel& shared, const E* const* lines, ptrdiff_t n, T* upper, T* lower) {
  constexpr ptrdiff_t kLanes = Kernel::kLanes, kGroup = Kernel::kVectors * kLanes;
  const Kernel kernel = shared;
  T staged[2][kLanes];
  const bool isShort = n < kLanes;
  T *const toUpper = isShort ? staged[0] : upper, *const toLower = isShort ? staged[1] : lower;
  const ptrdiff_t last = isShort ? 0 : n - kLanes;
  ptrdiff_t i = 0;
  if constexpr (Kernel::kVectors > 1) {
    for (; i + kGroup <= n; i += kGroup) kernel.template Run<Kernel::kVectors>(lines, i, toUpper + i, toLower + i);
  }
  for (; i < n; i += kLanes) {
    const ptrdiff_t at = std::min(i, last);
    kernel.template Run<1>(lines, at, toUpper + at, toLower + at);
  }
  if (!isShort) return;
  std::memcpy(lower, staged[1], n * sizeof(T));
  std::memcpy(upper, staged[0], n * sizeof(T));
}

// The lines of a window, copied: what is stored might be part of an array that is not.
template <class E, int kCount>
std::array<const E*, kCount> LinesOf(const void* const* lines) {
  std::array<const E*, kCount> copy;
  for (int j = 0; j < kCount; ++j) copy[j] = static_cast<const E*>(lines[j]);
  return copy;
}

// The same as what a WindowKernel does down: Kernel names the types of lines and of results, and how many lines it has.
template <class Kernel>
void DownBy(const void* context, const Window& window, const ResultRows& rows) {
  using Result = typename Kernel::Result;
  const auto from = LinesOf<typename Kernel::Element, Kernel::kLines>(window.lines);
  FilterRows(*static_cast<const Kernel*>(context), from.data(), window.samples,
             reinterpret_cast<Result*>(rows.upper[0]), reinterpret_cast<Result*>(rows.lower[0]));
}

// An image as one of unsigned integers.
// `Pixel` is T, or as long.
template <class Pixel, class T>
Windows<Pixel> WindowsAs(const Image<const T>& src, Size roi, QvpiBorderType border, const T* value, const Reach& reach,
                         uint8_t* buffer) {
  const Image<const Pixel> image{reinterpret_cast<const Pixel*>(src.data), src.step, src.layout};
  return {WithBorder(image, roi, border, reinterpret_cast<const Pixel*>(value), reach), roi, reach, {}, buffer};
}
template <class T>
Windows<BitsOf<T>> WindowsOn(const Image<const T>& src, Size roi, QvpiBorderType border, const T* value,
                             const Reach& reach, uint8_t* buffer) {
  return WindowsAs<BitsOf<T>>(src, roi, border, value, reach, buffer);
}

}  // namespace qvp::filter
