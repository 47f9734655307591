// Two-dimensional Fourier transforms: records, and the composition of transforms of rows and of columns, which the
// power-of-two and the general family share.
#pragma once

#include "base/image.h"
#include "base/record.h"
#include "signal/dft.h"

namespace qvp::dft {

enum class FourierFamily : int32_t { kComplexPower = 27, kRealPower = 28, kComplexAny = 29, kRealAny = 30 };

constexpr bool IsReal(FourierFamily family) {
  return family == FourierFamily::kRealPower || family == FourierFamily::kRealAny;
}

// Whether the sides are powers of two.
constexpr bool IsPower(FourierFamily family) {
  return family == FourierFamily::kComplexPower || family == FourierFamily::kRealPower;
}

// The beginning of a record, at its first 64-byte boundary. Plans follow, at offsets from it.
struct FourierRecord {
  FourierFamily identification;
  int32_t across, down;               // the sides, or of powers of two their exponents
  int32_t hint, bufferBytes, unused;  // without a gap, whose bytes nobody would set
  int64_t plans[3];                   // of the rows, of complex columns, of real columns

  int64_t width() const { return IsPower(identification) ? int64_t{1} << across : across; }
  int64_t height() const { return IsPower(identification) ? int64_t{1} << down : down; }
};

enum FourierPlan { kRows, kColumns, kRealColumns };

// The largest power that a transform of one dimension takes.
inline constexpr int kLargestOrder = 29;

struct FourierSizes {
  int *record, *initialisation, *buffer;
};

// The sizes for an image of width x height, or the status of what is wrong with the flag or too large.
QvpStatus FourierGetSizes(FourierFamily family, QvpiSize size, int flag, const FourierSizes& sizes);

// What an Init asks for.
struct FourierDemand {
  QvpiSize size;
  int flag;
  QvpHintAlgorithm hint;
};

// Makes a record for an image of the demand's size.
QvpStatus FourierFill(FourierFamily family, const FourierDemand& demand, void* spec);

// The same, where check(demand) tells what is asked for, or the status of the first argument that is wrong.
template <class Check>
QvpStatus FourierInit(FourierFamily family, void* spec, const Check& check) {
  return InitRecord(AtBoundary(static_cast<uint8_t*>(spec)), static_cast<uint32_t>(family), [&]() -> QvpStatus {
    FourierDemand demand{};
    if (const QvpStatus failed = check(demand)) return failed;
    return FourierFill(family, demand, spec);
  });
}

// The transform of an image by a record. Complex images have two floats a pixel, and the layout C2.
QvpStatus FourierTransform(FourierFamily family, Direction direction, const Image<const float>& src,
                           const Image<float>& dst, const void* spec, uint8_t* buffer);

}  // namespace qvp::dft

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
