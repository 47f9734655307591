// Convolutions of two images: checks, the choice of a method, what of the full convolution is wanted.
#include "transform/convolve.h"

#include "base/check.h"
#include "base/export.h"
#include "base/types.h"
#include "qvpi.h"

namespace {
using namespace qvp;
using namespace qvp::convolution;

enum class Shape { kFull, kSame, kValid };

// Kernels of more pixels than this are convolved by Fourier transforms, unless a method is asked for.
template <class T>
constexpr int64_t kMostDirect = std::is_same_v<T, float> ? 120 : 200;

bool IsPositive(Size size) { return size.width >= 1 && size.height >= 1; }
int64_t Area(Size size) { return int64_t{size.width} * size.height; }
bool IsMethod(QvpiMethod method) { return method >= qvpMethodAuto && method <= qvpMethodFourier; }

// A side of the full convolution may be more than an image can have.
bool HasFullSides(Size a, Size b, int64_t most = INT32_MAX) {
  return int64_t{a.width} + b.width - 1 <= most && int64_t{a.height} + b.height - 1 <= most;
}

template <class T>
bool IsByFourier(Size kernel, QvpiMethod method) {
  return method == qvpMethodAuto ? Area(kernel) > kMostDirect<T> : method == qvpMethodFourier;
}

// No buffer holds the transform of a longer side.
constexpr int64_t kLongestTransformed = 1 << 25;

template <class T>
ByteCount BufferBytes(Size image, Size kernel, QvpiMethod method) {
  constexpr int64_t kSpare = kRecordBoundary - 1;
  if (!IsByFourier<T>(kernel, method)) return DirectBytes<T>(image, kernel) + kSpare;
  if (!HasFullSides(image, kernel, kLongestTransformed)) return INT64_MAX;
  return FourierBytes<T>(image, kernel) + kSpare;
}

QvpStatus GetBufferSize(Size src1, Size src2, QvpDataType type, int channels, QvpiMethod method, int* pBufferSize) {
  if (!pBufferSize) return qvpStatusNullPointer;
  if (!IsPositive(src1) || !IsPositive(src2)) return qvpStatusSize;
  const auto bytesFor = type == qvp8u    ? BufferBytes<uint8_t>
                        : type == qvp16s ? BufferBytes<int16_t>
                        : type == qvp32f ? BufferBytes<float>
                                         : nullptr;
  if (!bytesFor) return qvpStatusDataType;
  if (channels != 1 && channels != 3 && channels != 4) return qvpStatusNumChannels;
  if (!IsMethod(method)) return qvpStatusAlgType;
  if (!HasFullSides(src1, src2)) return ByteCount(INT64_MAX).StoreTo(pBufferSize);
  const bool isSwapped = Area(src2) > Area(src1);
  return bytesFor(isSwapped ? src2 : src1, isSwapped ? src1 : src2, method).StoreTo(pBufferSize);
}

// The destination's part of the full convolution.
template <Shape kShape, class T>
void Place(Size a, Size b, Convolution<T>& call) {
  if constexpr (kShape == Shape::kFull) call.roi = {a.width + b.width - 1, a.height + b.height - 1};
  if constexpr (kShape == Shape::kSame) call.roi = a, call.x = (b.width - 1) / 2, call.y = (b.height - 1) / 2;
  if constexpr (kShape == Shape::kValid) {
    call.roi = {a.width - b.width + 1, a.height - b.height + 1};
    call.x = b.width - 1, call.y = b.height - 1;
  }
}

template <Shape kShape, class T>
QvpStatus Convolve(const Image<const T>& a, Size aSize, const Image<const T>& b, Size bSize, const Image<T>& dst,
                   int divisor, QvpiMethod method, uint8_t* buffer) {
  if (const QvpStatus failed = Validate<kPointers>(aSize, {a, b, dst}, {buffer})) return failed;
  if (!IsPositive(aSize) || !IsPositive(bSize) || !HasFullSides(aSize, bSize)) return qvpStatusSize;
  if (kShape == Shape::kValid && (bSize.width > aSize.width || bSize.height > aSize.height)) return qvpStatusSize;
  if (const QvpStatus failed = Validate<kSteps>(aSize, {a, b, dst})) return failed;
  if (divisor == 0) return qvpStatusDivisor;
  if (!IsMethod(method)) return qvpStatusAlgType;
  const Plane<T> first{a, aSize}, second{b, bSize};
  const bool isKernelFirst = Area(bSize) > Area(aSize);
  Convolution<T> call{isKernelFirst ? second : first,
                      isKernelFirst ? first : second,
                      isKernelFirst,
                      dst,
                      aSize,
                      0,
                      0,
                      divisor,
                      AtBoundary(buffer)};
  Place<kShape>(aSize, bSize, call);
  IsByFourier<T>(call.kernel.size, method) ? ConvolveByFourier(call) : ConvolveDirectly(call);
  return qvpStatusNoError;
}

}  // namespace

QvpStatus qvpiConvolveGetBufferSize(QvpiSize src1Size, QvpiSize src2Size, QvpDataType dataType, int numChannels,
                                    QvpiMethod method, int* pBufferSize) {
  return GetBufferSize(src1Size, src2Size, dataType, numChannels, method, pBufferSize);
}

#define CONVOLVE(shape, type, parameter, divisor, layout)                                                     \
  QvpStatus qvpiConvolve##shape##_##type##_##layout##R(                                                       \
      const Qvp##type* pSrc1, int src1Step, QvpiSize src1Size, const Qvp##type* pSrc2, int src2Step,          \
      QvpiSize src2Size, Qvp##type* pDst, int dstStep QVP_AND parameter, QvpiMethod method, Qvp8u* pBuffer) { \
    return Convolve<Shape::k##shape>(View(pSrc1, src1Step, Layout::k##layout), src1Size,                      \
                                     View(pSrc2, src2Step, Layout::k##layout), src2Size,                      \
                                     View(pDst, dstStep, Layout::k##layout), divisor, method, pBuffer);       \
  }
#define CONVOLVE_EACH(shape)                                 \
  QVP_C1_C3_C4(CONVOLVE, shape, 8u, (int divisor), divisor)  \
  QVP_C1_C3_C4(CONVOLVE, shape, 16s, (int divisor), divisor) \
  QVP_C1_C3_C4(CONVOLVE, shape, 32f, (), 1)
CONVOLVE_EACH(Full)
CONVOLVE_EACH(Same)
CONVOLVE_EACH(Valid)
