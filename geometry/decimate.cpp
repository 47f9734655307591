// Decimation of 4:2:0 frames by simple fractions: exact means of what each sample covers.
#include <algorithm>

#include "base/export.h"
#include "geometry/decimate_plane.h"

namespace qvp::decimate {
namespace {

// Samples that n results are made of.
template <class R>
ptrdiff_t SamplesOf(ptrdiff_t n) {
  return static_cast<ptrdiff_t>((static_cast<int64_t>(n) * R::kFrom + R::kTo - 1) / R::kTo);
}

// Chroma has half of the luma's samples on both axes, and one more where that is odd.
Size Halved(Size size) { return {size.width / 2 + size.width % 2, size.height / 2 + size.height % 2}; }

template <class T, int kPlanes, class R>
void DecimateFrame(const T* const* src, const int* srcStep, T* const* dst, const int* dstStep, Size luma) {
  const Size samples(SamplesOf<R>(luma.width), SamplesOf<R>(luma.height));
  for (int i = 0; i < kPlanes; ++i) {
    const Plane plane{reinterpret_cast<const uint8_t*>(src[i]),
                      srcStep[i],
                      reinterpret_cast<uint8_t*>(dst[i]),
                      dstStep[i],
                      i == 0 ? luma : Halved(luma),
                      i == 0 ? samples : Halved(samples)};
    i > 0 && kPlanes == 2 ? Decimation<T, 2, R>(plane).Run() : Decimation<T, 1, R>(plane).Run();
  }
}

template <class T, int kPlanes>
QvpStatus Check(const T* const* src, const int* srcStep, T* const* dst, const int* dstStep, QvpiSize size) {
  if (src == nullptr || srcStep == nullptr || dst == nullptr || dstStep == nullptr) return qvpStatusNullPointer;
  for (int i = 0; i < kPlanes; ++i) {
    if (src[i] == nullptr || dst[i] == nullptr) return qvpStatusNullPointer;
  }
  if (size.width < 1 || size.height < 1) return qvpStatusSize;
  for (int i = 0; i < kPlanes; ++i) {
    if ((srcStep[i] | dstStep[i]) % int{sizeof(T)} != 0) return qvpStatusStep;
  }
  return qvpStatusNoError;
}

template <class T, int kPlanes>
QvpStatus Decimate420(const T* const* src, const int* srcStep, T* const* dst, const int* dstStep, QvpiSize size,
                      QvpiDecimateFraction fraction) {
  if (const QvpStatus failed = Check<T, kPlanes>(src, srcStep, dst, dstStep, size)) return failed;
  const auto by = [&]<int N, int M>(Ratio<N, M>) {
    DecimateFrame<T, kPlanes, Ratio<N, M>>(src, srcStep, dst, dstStep, size);
    return qvpStatusNoError;
  };
  switch (fraction) {
    case qvpDecimate1of2: return by(Ratio<2, 1>());
    case qvpDecimate1of3: return by(Ratio<3, 1>());
    case qvpDecimate1of4: return by(Ratio<4, 1>());
    case qvpDecimate1of8: return by(Ratio<8, 1>());
    case qvpDecimate2of3: return by(Ratio<3, 2>());
    case qvpDecimate3of4: return by(Ratio<4, 3>());
    case qvpDecimate3of8: return by(Ratio<8, 3>());
    default: return qvpStatusDecimateFraction;
  }
}

}  // namespace
}  // namespace qvp::decimate

#define DECIMATE(type, planes)                                                                                  \
  QvpStatus qvpiDecimate420_##type##_P##planes##R(const Qvp##type* const* pSrc, const int* srcStep,             \
                                                  Qvp##type* const* pDst, const int* dstStep, QvpiSize dstSize, \
                                                  QvpiDecimateFraction fraction) {                              \
    return qvp::decimate::Decimate420<Qvp##type, planes>(pSrc, srcStep, pDst, dstStep, dstSize, fraction);      \
  }
DECIMATE(8u, 2)
DECIMATE(8u, 3)
DECIMATE(16u, 2)
DECIMATE(16u, 3)
