// Wavelet transforms: levels of the image and of its corner with the lower bands of the level before.
#include "base/check.h"
#include "base/export.h"
#include "qvpi.h"
#include "transform/wavelet_level.h"

namespace {
using namespace qvp;
using namespace qvp::wavelet;

// The corner that a level transforms.
Size CornerOf(Size size, int level) {
  for (int i = 0; i < level; ++i) size = Size(LowOf(size.width), LowOf(size.height));
  return size;
}

bool Fits(const WaveletRecord& record, Size size, int levels) {
  const auto isWhole = [=](ptrdiff_t n) { return n == 1 || n % (int64_t{1} << levels) == 0; };
  return record.border != BorderKind::kWrap || (isWhole(size.width) && isWhole(size.height));
}

template <bool kIsForward>
QvpStatus Transform(const Image<const float>& src, const Image<float>& dst, Size size, int levels,
                    const QvpiWaveletSpec_32f* spec, uint8_t* buffer) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(size, {src, dst}, {spec, buffer})) return failed;
  if (levels < 1 || levels > 30) return qvpStatusBadArgument;
  const WaveletRecord& record = *RecordIn<WaveletRecord>(spec);
  if (record.identification != WaveletRecord::kIdentification) return qvpStatusContextMatch;
  if (!Fits(record, size, levels)) return qvpStatusSize;
  const int channels = Channels(src.layout);
  const WaveletPlan plan(record, size.width, size.height, channels);
  Level level(record, channels, plan, AtBoundary(buffer));
  const Image<const float> done = View<const float>(dst.data, dst.step, dst.layout);
  if constexpr (kIsForward) {
    for (int i = 0; i < levels; ++i) level.Forward(i == 0 ? src : done, dst, CornerOf(size, i));
  } else {
    const bool isCopied = levels > 1 && src.data != dst.data;
    for (ptrdiff_t y = 0; isCopied && y < size.height; ++y) {
      std::memcpy(dst.Row(y), src.Row(y), size.width * channels * sizeof(float));
    }
    for (int i = levels - 1; i >= 0; --i) level.Inverse(isCopied ? done : src, dst, CornerOf(size, i));
  }
  return qvpStatusNoError;
}

}  // namespace

#define QVP_WAVELET(name, layout, isForward)                                  \
  QVP_CONVERT(name##_32f_##layout##R, 32f, 32f, layout, Transform<isForward>, \
              (int levels, const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer), (levels, pSpec, pBuffer))
#define QVP_WAVELET_IN_PLACE(name, layout, isForward)                                                           \
  QvpStatus name##_32f_##layout##IR(Qvp32f* pSrcDst, int srcDstStep, QvpiSize roiSize, int levels,              \
                                    const QvpiWaveletSpec_32f* pSpec, Qvp8u* pBuffer) {                         \
    return Transform<isForward>(View<const Qvp32f>(pSrcDst, srcDstStep, Layout::k##layout),                     \
                                View(pSrcDst, srcDstStep, Layout::k##layout), roiSize, levels, pSpec, pBuffer); \
  }
#define QVP_WAVELETS(name, isForward)       \
  QVP_WAVELET(name, C1, isForward)          \
  QVP_WAVELET(name, C3, isForward)          \
  QVP_WAVELET(name, C4, isForward)          \
  QVP_WAVELET_IN_PLACE(name, C1, isForward) \
  QVP_WAVELET_IN_PLACE(name, C3, isForward)
QVP_WAVELETS(qvpiWaveletFwd, true)
QVP_WAVELETS(qvpiWaveletInv, false)
