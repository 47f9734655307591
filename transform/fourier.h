// Two-dimensional Fourier transforms: records, and the composition of transforms of rows and of columns, which the
// power-of-two and the general family share.
#pragma once

#include "base/image.h"
#include "signal/dft.h"

namespace qvp {

enum class FourierFamily : int32_t { kComplexPower = 27, kRealPower = 28, kComplexAny = 29, kRealAny = 30 };

constexpr bool IsReal(FourierFamily family) {
  return family == FourierFamily::kRealPower || family == FourierFamily::kRealAny;
}

// The beginning of a record, at its first 64-byte boundary. Plans follow, at offsets from it.
struct FourierRecord {
  int32_t identification, width, height, hint, bufferBytes;
  int64_t plans[3];  // of the rows, of complex columns, of real columns
};

enum FourierPlan { kRows, kColumns, kRealColumns };

// The largest power that a transform of one dimension takes.
inline constexpr int kLargestOrder = 29;

struct FourierSizes {
  int *record, *initialisation, *buffer;
};

// The sizes for an image of width x height, or the status of what is wrong with the flag or too large.
QvpStatus FourierGetSizes(FourierFamily family, QvpiSize size, int flag, const FourierSizes& sizes);

// Takes the identification of a record away.
void FourierClear(void* spec);
QvpStatus FourierInit(FourierFamily family, QvpiSize size, int flag, int hint, void* spec);

// The transform of an image by a record. Complex images have two floats a pixel, and the layout C2.
QvpStatus FourierTransform(FourierFamily family, Direction direction, const Image<const float>& src,
                           const Image<float>& dst, const void* spec, uint8_t* buffer);

}  // namespace qvp

// A transform of images, and in place. The pixels, real or complex, are taken as floats.
#define QVP_FOURIER(name, Pixel, Spec, family, direction, layout)                                                  \
  QvpStatus name##R(const Pixel* pSrc, int srcStep, Pixel* pDst, int dstStep, const Spec* pSpec, Qvp8u* pBuffer) { \
    return FourierTransform(family, direction, View(reinterpret_cast<const float*>(pSrc), srcStep, layout),        \
                            View(reinterpret_cast<float*>(pDst), dstStep, layout), pSpec, pBuffer);                \
  }                                                                                                                \
  QvpStatus name##IR(Pixel* pSrcDst, int srcDstStep, const Spec* pSpec, Qvp8u* pBuffer) {                          \
    return FourierTransform(family, direction, View(reinterpret_cast<const float*>(pSrcDst), srcDstStep, layout),  \
                            View(reinterpret_cast<float*>(pSrcDst), srcDstStep, layout), pSpec, pBuffer);          \
  }
