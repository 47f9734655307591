// Template matching: checks, the choice of a method, which windows are wanted.
#include "base/check.h"
#include "base/export.h"
#include "base/types.h"
#include "qvpi.h"
#include "stats/match_map.h"

namespace {
using namespace qvp;
using namespace qvp::matching;

// Templates of more pixels than this go by Fourier transforms, unless a method is asked for.
template <class T>
constexpr int64_t kMostDirect = sizeof(T) == 1   ? 256
                                : sizeof(T) == 2 ? 128
                                                 : 64;

bool IsPositive(Size size) { return size.width >= 1 && size.height >= 1; }
int64_t Area(Size size) { return int64_t{size.width} * size.height; }
bool IsMethod(QvpiMethod method) { return method >= qvpMethodAuto && method <= qvpMethodFourier; }

// Also tells what no table of shapes has, which is refused later.
QvpStatus CheckSizes(Size src, Size tpl, QvpiMatchShape shape) {
  if (!IsPositive(src) || !IsPositive(tpl) || Area(tpl) > INT32_MAX) return qvpStatusSize;
  const bool isTooLarge =
      int64_t{src.width} + tpl.width - 1 > INT32_MAX || int64_t{src.height} + tpl.height - 1 > INT32_MAX;
  if (shape == qvpMatchFull && isTooLarge) return qvpStatusSize;
  const bool isInside = tpl.width <= src.width && tpl.height <= src.height;
  return shape == qvpMatchValid && !isInside ? qvpStatusSize : qvpStatusNoError;
}

QvpStatus CheckSelectors(QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method) {
  if (shape < qvpMatchValid || shape > qvpMatchFull) return qvpStatusNotSupportedMode;
  if (norm < qvpMatchPlain || norm > qvpMatchCoefficient) return qvpStatusNotSupportedMode;
  return IsMethod(method) ? qvpStatusNoError : qvpStatusAlgType;
}

template <class T>
bool IsByFourier(Size tpl, QvpiMethod method) {
  return method == qvpMethodAuto ? Area(tpl) > kMostDirect<T> : method == qvpMethodFourier;
}

Size ResultSize(Size src, Size tpl, QvpiMatchShape shape) {
  if (shape == qvpMatchSame) return src;
  const ptrdiff_t more = shape == qvpMatchFull ? 1 : -1;
  return {src.width + more * (tpl.width - 1), src.height + more * (tpl.height - 1)};
}

template <class T>
ByteCount BufferBytes(Size results, Size tpl, int channels, QvpiMethod method) {
  return MapBytes<T>(results, tpl, channels, IsByFourier<T>(tpl, method)) + (kRecordBoundary - 1);
}

template <class T>
QvpStatus MatchTemplate(const Image<const T>& src, Size srcSize, const Image<const T>& tpl, Size tplSize,
                        const Image<float>& dst, bool isDistance, QvpiMatchShape shape, QvpiMatchNorm norm,
                        QvpiMethod method, uint8_t* buffer) {
  if (const QvpStatus failed = Validate<kPointers>(srcSize, {src, tpl, dst}, {buffer})) return failed;
  if (const QvpStatus failed = CheckSizes(srcSize, tplSize, shape)) return failed;
  if (const QvpStatus failed = Validate<kSteps>(srcSize, {src, tpl, dst})) return failed;
  if (const QvpStatus failed = CheckSelectors(shape, norm, method)) return failed;
  const bool isFull = shape == qvpMatchFull, isSame = shape == qvpMatchSame;
  const auto reach = [&](ptrdiff_t side) { return isFull ? side - 1 : isSame ? (side - 1) / 2 : 0; };
  MapScores(Match<T>{src,
                     srcSize,
                     tpl,
                     tplSize,
                     dst,
                     ResultSize(srcSize, tplSize, shape),
                     -reach(tplSize.width),
                     -reach(tplSize.height),
                     {isDistance, (norm & qvpMatchNormed) != 0, (norm & qvpMatchCentred) != 0},
                     IsByFourier<T>(tplSize, method)},
            AtBoundary(buffer));
  return qvpStatusNoError;
}

QvpStatus GetBufferSize(Size src, Size tpl, QvpDataType type, int channels, QvpiMatchShape shape, QvpiMatchNorm norm,
                        QvpiMethod method, int* pBufferSize) {
  if (!pBufferSize) return qvpStatusNullPointer;
  const auto bytesFor = type == qvp8u    ? BufferBytes<uint8_t>
                        : type == qvp16u ? BufferBytes<uint16_t>
                        : type == qvp16s ? BufferBytes<int16_t>
                        : type == qvp32f ? BufferBytes<float>
                                         : nullptr;
  if (!bytesFor) return qvpStatusDataType;
  if (channels != 1 && channels != 3 && channels != 4) return qvpStatusNumChannels;
  if (const QvpStatus failed = CheckSizes(src, tpl, shape)) return failed;
  if (const QvpStatus failed = CheckSelectors(shape, norm, method)) return failed;
  return bytesFor(ResultSize(src, tpl, shape), tpl, channels, method).StoreTo(pBufferSize);
}

}  // namespace

QvpStatus qvpiMatchGetBufferSize(QvpDataType dataType, int numChannels, QvpiSize srcRoiSize, QvpiSize tplRoiSize,
                                 QvpiMatchShape shape, QvpiMatchNorm norm, QvpiMethod method, int* pBufferSize) {
  return GetBufferSize(srcRoiSize, tplRoiSize, dataType, numChannels, shape, norm, method, pBufferSize);
}

#define MATCH(name, isDistance, type, types, layout, fromLayout, toLayout)                                    \
  QvpStatus qvpiMatch##name##_##types##_##layout##R(const Qvp##type* pSrc, int srcStep, QvpiSize srcRoiSize,  \
                                                    const Qvp##type* pTpl, int tplStep, QvpiSize tplRoiSize,  \
                                                    Qvp32f* pDst, int dstStep, QvpiMatchShape shape,          \
                                                    QvpiMatchNorm norm, QvpiMethod method, Qvp8u* pBuffer) {  \
    return MatchTemplate(View(pSrc, srcStep, Layout::k##fromLayout), srcRoiSize,                              \
                         View(pTpl, tplStep, Layout::k##fromLayout), tplRoiSize,                              \
                         View(pDst, dstStep, Layout::k##toLayout), isDistance, shape, norm, method, pBuffer); \
  }
#define MATCH_LAYOUTS(name, isDistance, type, types)  \
  MATCH(name, isDistance, type, types, C1, C1, C1)    \
  MATCH(name, isDistance, type, types, C3, C3, C3)    \
  MATCH(name, isDistance, type, types, C4, C4, C4)    \
  MATCH(name, isDistance, type, types, AC4, AC4, AC4) \
  MATCH(name, isDistance, type, types, C3C1, C3, C1)  \
  MATCH(name, isDistance, type, types, AC4C1, AC4, C1)
#define MATCH_TYPES(name, isDistance)          \
  MATCH_LAYOUTS(name, isDistance, 8u, 8u32f)   \
  MATCH_LAYOUTS(name, isDistance, 16u, 16u32f) \
  MATCH_LAYOUTS(name, isDistance, 16s, 16s32f) \
  MATCH_LAYOUTS(name, isDistance, 32f, 32f)
MATCH_TYPES(Distance, true)
MATCH_TYPES(Correlation, false)
