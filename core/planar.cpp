// Copies between interleaved and planar images.
#include <algorithm>
#include <array>
#include <cstring>
#include <tuple>

#include "base/channels.h"
#include "base/check.h"
#include "base/export.h"
#include "base/rows.h"
#include "base/store.h"

namespace {
using namespace qvp;

template <class T, size_t kPlanes>
using PlaneRows = std::array<T*, kPlanes>;

// kVectors vectors of pixels to as many of each plane, `i` pixels into the rows. A plane is written in one go.
template <Store kStore, int kVectors, class T, int kPlanes>
HWY_INLINE void Split(const T* pixels, const PlaneRows<T, kPlanes>& planes, ptrdiff_t i) {
  const hn::ScalableTag<T> d;
  constexpr int kLanes = hn::MaxLanes(d);
  Pixels<kPlanes, hn::Vec<decltype(d)>> each[kVectors];
  for (int k = 0; k < kVectors; ++k) each[k] = LoadChannels<kPlanes>(d, pixels + k * kPlanes * kLanes);
  for (int p = 0; p < kPlanes; ++p) {
    for (int k = 0; k < kVectors; ++k) StoreTo<kStore>(each[k].v[p], d, planes[p] + i + k * kLanes);
  }
}

// The way back. Interleaving stores are ordinary ones, so streamed pixels are gathered on the stack first.
template <Store kStore, class T, int kPlanes>
HWY_INLINE void Merge(const PlaneRows<const T, kPlanes>& planes, ptrdiff_t i, T* pixels) {
  const hn::ScalableTag<T> d;
  constexpr int kLanes = hn::MaxLanes(d);
  Pixels<kPlanes, hn::Vec<decltype(d)>> each;
  for (int p = 0; p < kPlanes; ++p) each.v[p] = hn::LoadU(d, planes[p] + i);
  if constexpr (kStore == Store::kOrdinary) return StoreChannels(each, d, pixels);
  alignas(64) T staged[kPlanes * kLanes];
  StoreChannels(each, d, staged);
  for (int j = 0; j < kPlanes * kLanes; j += kLanes) StoreTo<kStore>(hn::Load(d, staged + j), d, pixels + j);
}

// The pixels at the end of a row that fill no vector pass through copies on the stack.
template <class T, int kPlanes>
struct Staged {
  static constexpr int kLanes = hn::MaxLanes(hn::ScalableTag<T>());
  T pixels[kPlanes * kLanes] = {}, plane[kPlanes][kLanes] = {};

  template <class Element = T>
  PlaneRows<Element, kPlanes> Planes() {
    PlaneRows<Element, kPlanes> rows;
    for (int p = 0; p < kPlanes; ++p) rows[p] = plane[p];
    return rows;
  }
};

// Row kernels take the rows of the planes by value: pointers in memory would be read again after every store.
template <Store kStore, class T, int kPlanes>
void SplitRow(ptrdiff_t n, const T* pixels, PlaneRows<T, kPlanes> planes) {
  using Buffer = Staged<T, kPlanes>;
  ptrdiff_t i = 0;
  if constexpr (kStore == Store::kStreaming) {  // lines that are completed one after the other leave the CPU faster
    constexpr int kLine = kStreamedLine / sizeof(T), kVectors = kLine / Buffer::kLanes;
    for (; i + kLine <= n; i += kLine) Split<kStore, kVectors, T, kPlanes>(pixels + kPlanes * i, planes, i);
  }
  for (; i + Buffer::kLanes <= n; i += Buffer::kLanes) Split<kStore, 1, T, kPlanes>(pixels + kPlanes * i, planes, i);
  if (i == n) return;
  Buffer rest;
  std::memcpy(rest.pixels, pixels + kPlanes * i, (n - i) * kPlanes * sizeof(T));
  Split<Store::kOrdinary, 1, T, kPlanes>(rest.pixels, rest.Planes(), 0);
  for (int p = 0; p < kPlanes; ++p) std::memcpy(planes[p] + i, rest.plane[p], (n - i) * sizeof(T));
}

template <Store kStore, class T, int kPlanes>
void MergeRow(ptrdiff_t n, T* pixels, PlaneRows<const T, kPlanes> planes) {
  using Buffer = Staged<T, kPlanes>;
  ptrdiff_t i = 0;
  for (; i + Buffer::kLanes <= n; i += Buffer::kLanes) Merge<kStore, T, kPlanes>(planes, i, pixels + kPlanes * i);
  if (i == n) return;
  Buffer rest;
  for (int p = 0; p < kPlanes; ++p) std::memcpy(rest.plane[p], planes[p] + i, (n - i) * sizeof(T));
  Merge<Store::kOrdinary, T, kPlanes>(rest.template Planes<const T>(), 0, rest.pixels);
  std::memcpy(pixels + kPlanes * i, rest.pixels, (n - i) * kPlanes * sizeof(T));
}

template <class T, size_t kPlanes>
using PlaneImages = std::array<Image<T>, kPlanes>;

// The planes of a planar image as images of their own; null pointers where the array of planes is null.
template <int kPlanes, class T>
PlaneImages<T, kPlanes> PlanesOf(T* const* planes, ptrdiff_t step) {
  PlaneImages<T, kPlanes> images;
  for (int p = 0; p < kPlanes; ++p) images[p] = {planes == nullptr ? nullptr : planes[p], step, Layout::kC1};
  return images;
}

template <class P, class T, size_t kPlanes>
QvpStatus Check(Size roi, const Image<P>& pixels, const PlaneImages<T, kPlanes>& planes) {
  for (const Image<T>& plane : planes) {
    if (const QvpStatus failed = Validate<kPointers>(roi, {pixels, plane})) return failed;
  }
  return Validate<kSize>(roi, {pixels});
}

// Calls kernel(pixels, row of the interleaved image, rows of the planes).
template <class Kernel, class P, class T, size_t kPlanes>
void ForEachRow(Size roi, const Image<P>& pixels, const PlaneImages<T, kPlanes>& planes, const Kernel& kernel) {
  const auto walk = [&](const auto&... plane) {
    Rows(pixels, plane...).ForEach(roi, [&](ptrdiff_t n, P* at, auto*... row) {
      kernel(n, at, PlaneRows<T, kPlanes>{row...});
    });
  };
  std::apply(walk, planes);
}

// Planes are streamed to when their rows are aligned to whole lines; those of qvpiMalloc are.
template <class T>
bool HasAlignedRows(const Image<T>& image) {
  return ((reinterpret_cast<uintptr_t>(image.data) | static_cast<uintptr_t>(image.step)) % kStreamedLine) == 0;
}

template <class T>
Store StoreForRows(Size roi, const Image<T>& pixels, bool aligned) {
  return aligned ? StoreForMoved(2 * static_cast<int64_t>(pixels.RowBytes(roi.width)) * roi.height) : Store::kOrdinary;
}

constexpr Layout LayoutOf(int planes) { return planes == 3 ? Layout::kC3 : Layout::kC4; }

template <int kPlanes, class T>
QvpStatus SplitPixels(const T* pSrc, ptrdiff_t srcStep, T* const* pDst, ptrdiff_t dstStep, Size roi) {
  const Image<const T> src{pSrc, srcStep, LayoutOf(kPlanes)};
  const auto dst = PlanesOf<kPlanes>(pDst, dstStep);
  if (const QvpStatus failed = Check(roi, src, dst)) return failed;
  const Store store = StoreForRows(roi, src, std::all_of(dst.begin(), dst.end(), HasAlignedRows<T>));
  const auto row =
      store == Store::kStreaming ? SplitRow<Store::kStreaming, T, kPlanes> : SplitRow<Store::kOrdinary, T, kPlanes>;
  ForEachRow(roi, src, dst, row);
  Fence(store);
  return qvpStatusNoError;
}

template <int kPlanes, class T>
QvpStatus MergePlanes(const T* const* pSrc, ptrdiff_t srcStep, T* pDst, ptrdiff_t dstStep, Size roi) {
  const auto src = PlanesOf<kPlanes>(pSrc, srcStep);
  const Image<T> dst{pDst, dstStep, LayoutOf(kPlanes)};
  if (const QvpStatus failed = Check(roi, dst, src)) return failed;
  const Store store = StoreForRows(roi, dst, HasAlignedRows(dst));
  const auto row =
      store == Store::kStreaming ? MergeRow<Store::kStreaming, T, kPlanes> : MergeRow<Store::kOrdinary, T, kPlanes>;
  ForEachRow(roi, dst, src, row);
  Fence(store);
  return qvpStatusNoError;
}

// Elements move as unsigned integers of their width.
template <class T>
using Word = hwy::MakeUnsigned<T>;

}  // namespace

#define PLANAR(type, planes)                                                                                          \
  QvpStatus qvpiCopy_##type##_C##planes##P##planes##R(const Qvp##type* pSrc, int srcStep, Qvp##type* const* pDst,     \
                                                      int dstStep, QvpiSize roiSize) {                                \
    using W = Word<Qvp##type>;                                                                                        \
    return SplitPixels<planes>(reinterpret_cast<const W*>(pSrc), srcStep, reinterpret_cast<W* const*>(pDst), dstStep, \
                               roiSize);                                                                              \
  }                                                                                                                   \
  QvpStatus qvpiCopy_##type##_P##planes##C##planes##R(const Qvp##type* const* pSrc, int srcStep, Qvp##type* pDst,     \
                                                      int dstStep, QvpiSize roiSize) {                                \
    using W = Word<Qvp##type>;                                                                                        \
    return MergePlanes<planes>(reinterpret_cast<const W* const*>(pSrc), srcStep, reinterpret_cast<W*>(pDst), dstStep, \
                               roiSize);                                                                              \
  }
#define PLANAR_LAYOUTS(type) PLANAR(type, 3) PLANAR(type, 4)

QVP_EACH_MOVED_TYPE(PLANAR_LAYOUTS)
