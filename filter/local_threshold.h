// Thresholds by local means: what their calls share.
#pragma once

#include <cmath>

#include "filter/window_call.h"

namespace qvp::filter {

inline constexpr int kLongestThresholdSide = 1023;

constexpr bool IsThresholdMask(QvpiSize mask) {
  const auto isSide = [](int n) { return n >= 1 && n <= kLongestThresholdSide && n % 2 == 1; };
  return isSide(mask.width) && isSide(mask.height);
}

template <class T>
struct LocalThreshold {
  WindowCall<T> on;
  bool isInPlace;
  QvpiSize mask;
  float delta;
  T above, others;  // what pixels above their threshold become, and all others

  QvpStatus CheckFirst() const {
    if (const QvpStatus failed = on.Check()) return failed;
    return IsThresholdMask(mask) ? qvpStatusNoError : qvpStatusMaskSize;
  }
  QvpStatus CheckLast() const {
    if (!(delta - delta == 0)) return qvpStatusBadArgument;
    return CheckBorder(on.border);
  }

  template <class Pixel = BitsOf<T>>
  Windows<Pixel> Reaching(uint8_t* buffer) const {
    const int x = mask.width / 2, y = mask.height / 2;
    auto windows = on.template Reaching<Pixel>({x, y, x, y});
    windows.buffer = buffer;
    windows.isInPlace = isInPlace;
    return windows;
  }
};

// The whole number at or below x, for bounds that are 32 bits long or less.
inline double Below(double x) {
  const double bounded = std::clamp(x, -0x1p40, 0x1p40), whole = static_cast<double>(static_cast<int64_t>(bounded));
  return whole > bounded ? whole - 1 : whole;
}

inline QvpStatus CheckThresholdQuery(const int* size, QvpiSize mask, QvpiSize roi, QvpDataType type) {
  if (type == qvp16s) type = -1;  // what the filters know beside these types
  return CheckQuery(size, roi, IsThresholdMask(mask), type, 1);
}

}  // namespace qvp::filter

// A function impl(call, arguments), and the same in place; parameters stand between the mask and delta.
#define QVP_LOCAL_THRESHOLD(name, type, impl, parameters, arguments)                                                   \
  QvpStatus qvpiThresholdLocal##name##Border_##type##_C1R(                                                             \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize,                              \
      QvpiSize maskSize QVP_AND parameters, Qvp32f delta, Qvp##type valueGT, Qvp##type valueLE,                        \
      QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {                                       \
    return qvp::filter::impl(qvp::filter::LocalThreshold<Qvp##type>{{{pSrc, srcStep, qvp::Layout::kC1},                \
                                                                     {pDst, dstStep, qvp::Layout::kC1},                \
                                                                     roiSize,                                          \
                                                                     borderType,                                       \
                                                                     borderValue,                                      \
                                                                     pBuffer},                                         \
                                                                    false,                                             \
                                                                    maskSize,                                          \
                                                                    delta,                                             \
                                                                    valueGT,                                           \
                                                                    valueLE} QVP_AND arguments);                       \
  }                                                                                                                    \
  QvpStatus qvpiThresholdLocal##name##Border_##type##_C1IR(                                                            \
      Qvp##type* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiSize maskSize QVP_AND parameters, Qvp32f delta,        \
      Qvp##type valueGT, Qvp##type valueLE, QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) { \
    return qvp::filter::impl(qvp::filter::LocalThreshold<Qvp##type>{{{pSrcDst, srcDstStep, qvp::Layout::kC1},          \
                                                                     {pSrcDst, srcDstStep, qvp::Layout::kC1},          \
                                                                     roiSize,                                          \
                                                                     borderType,                                       \
                                                                     borderValue,                                      \
                                                                     pBuffer},                                         \
                                                                    true,                                              \
                                                                    maskSize,                                          \
                                                                    delta,                                             \
                                                                    valueGT,                                           \
                                                                    valueLE} QVP_AND arguments);                       \
  }
