// What Init prepares for a deconvolution, and the torus that images are continued to.
#pragma once

#include "base/image.h"
#include "base/record.h"

namespace qvp::deconvolution {

// At the first boundary of the caller's memory; what the offsets tell follows.
struct DeconvolveRecord {
  uint32_t identification;
  int32_t width, height;  // of images
  int32_t torusWidth, torusHeight;
  float sum;         // of the point-spread image
  int64_t fourier;   // record of the torus' transforms
  int64_t transfer;  // packed spectrum of the point-spread image
  int64_t places;    // PlaceOf() each column of the torus, then each row
  int64_t squares;   // (2 sin(pi u / n))^2 of each frequency across, then down

  static constexpr uint32_t kIdentification = 0x51444356;

  template <class T>
  const T* At(int64_t offset) const {
    return reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(this) + offset);
  }
  template <class T>
  T* At(int64_t offset) {
    return reinterpret_cast<T*>(reinterpret_cast<uint8_t*>(this) + offset);
  }
  QvpiSize torus() const { return {torusWidth, torusHeight}; }
};
static_assert(sizeof(DeconvolveRecord) <= kRecordBoundary);

// What stands at a place of the torus that no pixel stands for: 0.
inline constexpr int32_t kNoPlace = -1;

// Planes of floats in records and buffers. An odd number of boundaries from row to row keeps the pixels of a column
// from falling into the same few sets of a cache.
constexpr int64_t PlaneStep(int64_t width) { return (width * int64_t{sizeof(float)} + 63) / 128 * 128 + 64; }
constexpr ByteCount PlaneBytes(QvpiSize size) { return ByteCount(PlaneStep(size.width)) * size.height; }

template <class T>
Image<T> Plane(T* at, QvpiSize size) {
  return View(at, static_cast<ptrdiff_t>(PlaneStep(size.width)), Layout::kC1);
}

}  // namespace qvp::deconvolution
