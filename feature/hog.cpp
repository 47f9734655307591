// Histograms of oriented gradients (Dalal and Triggs, 2005).
#include <algorithm>
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "feature/hog_votes.h"
#include "feature/hog_windows.h"
#include "qvpi.h"

namespace qvp::hog {
namespace {

// As many whole blocks as fit.
Size Trimmed(Size roi, const QvpiHOGConfig& c) {
  const auto trim = [&](ptrdiff_t n) { return (n - c.blockSize) / c.blockStride * c.blockStride + c.blockSize; };
  return Size(trim(roi.width), trim(roi.height));
}

QvpiPoint LocationAt(const QvpiPoint* locations, int i) {
  QvpiPoint location;
  std::memcpy(&location, locations + i, sizeof(location));
  return location;
}

void DescribeWindows(const Record& record, const uint8_t* weights, const Planes& planes, Size trimmed,
                     const QvpiPoint* locations, int count, uint8_t* dst) {
  Windows windows(record, weights, planes, dst);
  if (locations == nullptr) return windows.Write(0, 0, nullptr);
  const QvpiSize size = record.config.winSize;
  const auto isInside = [&](QvpiPoint p) {
    return p.x >= 0 && p.y >= 0 && p.x <= trimmed.width - size.width && p.y <= trimmed.height - size.height;
  };
  if (count == 1) {
    const QvpiPoint only = LocationAt(locations, 0);
    return isInside(only) ? windows.Write(only.x, only.y, nullptr) : void();
  }
  BlockCache cache(planes);
  for (int i = 0; i < count; ++i) {
    const QvpiPoint location = LocationAt(locations, i);
    if (isInside(location)) windows.Write(location.x, location.y, &cache);
  }
}

struct Call {
  const QvpiPoint* locations;
  int count;
  Qvp32f* dst;
  const QvpiHOGSpec* spec;
  QvpiBorderType border;
  uint8_t* buffer;
};

template <class T>
QvpStatus CheckCall(const Image<const T>& src, Size roi, const T* outside, const Call& call, Record& record) {
  if (const QvpStatus failed = Validate<kPointers>(roi, {src}, {call.spec, call.dst, call.buffer, outside}))
    return failed;
  if (const QvpStatus failed = OpenRecord(call.spec, record)) return failed;
  if (src.step < 1) return qvpStatusStep;
  if (roi.width < record.config.winSize.width || roi.height < record.config.winSize.height) return qvpStatusSize;
  if (call.count < 1) return qvpStatusBadArgument;
  if (call.locations == nullptr && call.count >= 2) return qvpStatusNullPointer;
  return CheckBorder(call.border);
}

template <class T>
QvpStatus Describe(const Image<const T>& src, Size roi, const T* outside, const Call& call) {
  Record record;
  if (const QvpStatus failed = CheckCall(src, roi, outside, call, record)) return failed;
  const Size trimmed = Trimmed(roi, record.config);
  const Planes planes(call.buffer, trimmed);
  const BorderedImage<T> image = WithBorder(src, roi, call.border, outside, {1, 1, 1, 1});
  (Channels(src.layout) == 1 ? VoteRegion<1, T> : VoteRegion<3, T>)(image, trimmed, record.config.nbins, planes);
  const uint8_t* const weights = reinterpret_cast<const uint8_t*>(call.spec) + kTableOffset;
  DescribeWindows(record, weights, planes, trimmed, call.locations, call.count, reinterpret_cast<uint8_t*>(call.dst));
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::hog

using namespace qvp;

#define HOG(type, name, layout)                                                                                       \
  QvpStatus qvpiHOG_##name##_##layout##R(                                                                             \
      const Qvp##type* pSrc, int srcStep, QvpiSize roiSize, const QvpiPoint* pLocation, int nLocations, Qvp32f* pDst, \
      const QvpiHOGSpec* pHOGSpec, QvpiBorderType borderID, const Qvp##type* borderValue, Qvp8u* pBuffer) {           \
    return hog::Describe(Image<const Qvp##type>{pSrc, srcStep, Layout::k##layout}, roiSize, borderValue,              \
                         hog::Call{pLocation, nLocations, pDst, pHOGSpec, borderID, pBuffer});                        \
  }

HOG(8u, 8u32f, C1)
HOG(8u, 8u32f, C3)
HOG(16u, 16u32f, C1)
HOG(16u, 16u32f, C3)
HOG(16s, 16s32f, C1)
HOG(16s, 16s32f, C3)
HOG(32f, 32f, C1)
HOG(32f, 32f, C3)
