// Resize of 4:2:0 frames: plane by plane, each by the pass over images of its channels.
#include "base/export.h"
#include "geometry/frame_call.h"
#include "geometry/frame_plane.h"

namespace qvp::resize {
namespace {

// The arrays of a call.
template <class T>
struct Planes {
  const T* const* src;
  const int* srcStep;
  T* const* dst;
  const int* dstStep;

  bool AreGiven(int count) const {
    if (src == nullptr || srcStep == nullptr || dst == nullptr || dstStep == nullptr) return false;
    for (int i = 0; i < count; ++i) {
      if (src[i] == nullptr || dst[i] == nullptr) return false;
    }
    return true;
  }
  bool AreStepsWhole(int count) const {
    constexpr int kElement = sizeof(T);
    for (int i = 0; i < count; ++i) {
      if (srcStep[i] % kElement != 0 || dstStep[i] % kElement != 0) return false;
    }
    return true;
  }
};

template <class T, int kPlanes>
QvpStatus Resize420(const Planes<T>& planes, FrameCall call, QvpiInterpolationType method) {
  if (const QvpStatus failed = TakeBorder(call, method)) return failed;
  if (!planes.AreGiven(kPlanes) || call.spec == nullptr || call.buffer == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(call.spec);
  const QvpStatus failed = CheckTile(call, record, FrameForm::k420, planes.AreStepsWhole(kPlanes));
  if (failed) return failed;
  if (record.type != kTypeOf<T> || record.interpolation != method) return qvpStatusContextMatch;
  const Size size = Clipped(record, call.offset, call.size);
  const Point given = FrameSource(record, call.offset);
  for (int i = 0; i < kPlanes; ++i) {
    const Layout layout = i > 0 && kPlanes == 2 ? Layout::kC2 : Layout::kC1;
    const Image<const T> src{planes.src[i], planes.srcStep[i], layout};
    const Image<T> dst{planes.dst[i], planes.dstStep[i], layout};
    if (i == 0) {
      RunPlane(call, record.Luma(), src, dst, call.offset, size, given);
    } else {
      RunPlane(call, record.Chroma(), src, dst, record.ChromaAt(call.offset), record.ChromaOf(size),
               record.ChromaAt(given));
    }
  }
  return ClippingStatus(size, call.size);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

#define RESIZE_420(method, type, planes, parameters, border)                                                          \
  QvpStatus qvpiResize420##method##_##type##_P##planes##R(                                                            \
      const Qvp##type* const* pSrc, const int* srcStep, Qvp##type* const* pDst, const int* dstStep,                   \
      QvpiPoint dstOffset, QvpiSize dstSize QVP_AND parameters, const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer) {  \
    return Resize420<Qvp##type, planes>({pSrc, srcStep, pDst, dstStep}, {dstOffset, dstSize, border, pSpec, pBuffer}, \
                                        qvpInterpolation##method);                                                    \
  }
#define RESIZE_420_METHODS(type, planes)                             \
  RESIZE_420(Linear, type, planes, (QvpiBorderType border), border)  \
  RESIZE_420(Lanczos, type, planes, (QvpiBorderType border), border) \
  RESIZE_420(Super, type, planes, (), qvpBorderInMem)
RESIZE_420_METHODS(8u, 2)
RESIZE_420_METHODS(8u, 3)
RESIZE_420_METHODS(16u, 2)
RESIZE_420_METHODS(16u, 3)
