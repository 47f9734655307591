// Fourier transforms of images whose sides are powers of two.
#include "base/export.h"
#include "transform/fourier.h"

namespace {
using namespace qvp;
using namespace qvp::dft;

bool IsOrder(int order) { return order >= 0 && order <= kLargestOrder; }

QvpiSize SizeOf(int orderX, int orderY) { return {1 << orderX, 1 << orderY}; }

QvpStatus GetSize(FourierFamily family, int orderX, int orderY, int flag, const FourierSizes& sizes) {
  if (!sizes.record || !sizes.initialisation || !sizes.buffer) return qvpStatusNullPointer;
  if (!IsOrder(orderX) || !IsOrder(orderY)) return qvpStatusFftOrder;
  return FourierGetSizes(family, SizeOf(orderX, orderY), flag, sizes);
}

// An order that no transform can have is refused even without a record.
QvpStatus Init(FourierFamily family, int orderX, int orderY, int flag, QvpHintAlgorithm hint, void* spec) {
  return FourierInit(family, spec, [=](FourierDemand& demand) -> QvpStatus {
    constexpr unsigned kLargest = kLargestOrder + 1;
    if (static_cast<unsigned>(orderX) > kLargest || static_cast<unsigned>(orderY) > kLargest) return qvpStatusFftOrder;
    if (spec == nullptr) return qvpStatusNullPointer;
    if (!IsOrder(orderX) || !IsOrder(orderY)) return qvpStatusFftOrder;
    demand = {SizeOf(orderX, orderY), flag, hint};
    return qvpStatusNoError;
  });
}

}  // namespace

QvpStatus qvpiFFTGetSize_R_32f(int orderX, int orderY, int flag, QvpHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize) {
  return GetSize(FourierFamily::kRealPower, orderX, orderY, flag, {pSpecSize, pSpecBufferSize, pBufferSize});
}
QvpStatus qvpiFFTInit_R_32f(int orderX, int orderY, int flag, QvpHintAlgorithm hint, QvpiFFTSpec_R_32f* pSpec, Qvp8u*) {
  return Init(FourierFamily::kRealPower, orderX, orderY, flag, hint, pSpec);
}

QvpStatus qvpiFFTGetSize_C_32fc(int orderX, int orderY, int flag, QvpHintAlgorithm, int* pSpecSize,
                                int* pSpecBufferSize, int* pBufferSize) {
  return GetSize(FourierFamily::kComplexPower, orderX, orderY, flag, {pSpecSize, pSpecBufferSize, pBufferSize});
}
QvpStatus qvpiFFTInit_C_32fc(int orderX, int orderY, int flag, QvpHintAlgorithm hint, QvpiFFTSpec_C_32fc* pSpec,
                             Qvp8u*) {
  return Init(FourierFamily::kComplexPower, orderX, orderY, flag, hint, pSpec);
}

#define QVP_FFT_REAL(name, direction, layout)                                                                  \
  QVP_FOURIER(name##_32f_##layout, Qvp32f, QvpiFFTSpec_R_32f, FourierFamily::kRealPower, Direction::direction, \
              Layout::k##layout)
#define QVP_FFT_COMPLEX(name, direction)                                                                       \
  QVP_FOURIER(name##_32fc_C1, Qvp32fc, QvpiFFTSpec_C_32fc, FourierFamily::kComplexPower, Direction::direction, \
              Layout::kC2)

QVP_EACH_LAYOUT(QVP_FFT_REAL, qvpiFFTFwd_RToPack, kForward)
QVP_EACH_LAYOUT(QVP_FFT_REAL, qvpiFFTInv_PackToR, kInverse)
QVP_FFT_COMPLEX(qvpiFFTFwd_CToC, kForward)
QVP_FFT_COMPLEX(qvpiFFTInv_CToC, kInverse)
