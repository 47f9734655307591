// Fourier transforms of images of any size.
#include "base/export.h"
#include "transform/fourier.h"

namespace {
using namespace qvp;
using namespace qvp::dft;

bool IsSize(QvpiSize size) { return size.width >= 1 && size.height >= 1; }

QvpStatus GetSize(FourierFamily family, QvpiSize size, int flag, const FourierSizes& sizes) {
  if (!sizes.record || !sizes.initialisation || !sizes.buffer) return qvpStatusNullPointer;
  return IsSize(size) ? FourierGetSizes(family, size, flag, sizes) : qvpStatusSize;
}

QvpStatus Init(FourierFamily family, QvpiSize size, int flag, QvpHintAlgorithm hint, void* spec) {
  return FourierInit(family, spec, [=](FourierDemand& demand) -> QvpStatus {
    if (spec == nullptr) return qvpStatusNullPointer;
    demand = {size, flag, hint};
    return IsSize(size) ? qvpStatusNoError : qvpStatusSize;
  });
}

}  // namespace

QvpStatus qvpiDFTGetSize_R_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize) {
  return GetSize(FourierFamily::kRealAny, roiSize, flag, {pSpecSize, pSpecBufferSize, pBufferSize});
}
QvpStatus qvpiDFTInit_R_32f(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDFTSpec_R_32f* pSpec, Qvp8u*) {
  return Init(FourierFamily::kRealAny, roiSize, flag, hint, pSpec);
}

QvpStatus qvpiDFTGetSize_C_32fc(QvpiSize roiSize, int flag, QvpHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize) {
  return GetSize(FourierFamily::kComplexAny, roiSize, flag, {pSpecSize, pSpecBufferSize, pBufferSize});
}
QvpStatus qvpiDFTInit_C_32fc(QvpiSize roiSize, int flag, QvpHintAlgorithm hint, QvpiDFTSpec_C_32fc* pSpec, Qvp8u*) {
  return Init(FourierFamily::kComplexAny, roiSize, flag, hint, pSpec);
}

#define QVP_DFT_REAL(name, direction, layout)                                                                \
  QVP_FOURIER(name##_32f_##layout, Qvp32f, QvpiDFTSpec_R_32f, FourierFamily::kRealAny, Direction::direction, \
              Layout::k##layout)
#define QVP_DFT_COMPLEX(name, direction)                                                                     \
  QVP_FOURIER(name##_32fc_C1, Qvp32fc, QvpiDFTSpec_C_32fc, FourierFamily::kComplexAny, Direction::direction, \
              Layout::kC2)

QVP_EACH_LAYOUT(QVP_DFT_REAL, qvpiDFTFwd_RToPack, kForward)
QVP_EACH_LAYOUT(QVP_DFT_REAL, qvpiDFTInv_PackToR, kInverse)
QVP_DFT_COMPLEX(qvpiDFTFwd_CToC, kForward)
QVP_DFT_COMPLEX(qvpiDFTInv_CToC, kInverse)
