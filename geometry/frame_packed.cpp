// Resize of packed 4:2:2 frames. A packed row is one of pixels of two samples, the luma and any chroma, and also one of
// half as many of four samples. The first view is resized for its luma, the second one for its chroma, and both results
// are joined.
#include "base/export.h"
#include "base/lanes.h"
#include "base/scalar.h"
#include "geometry/frame_call.h"
#include "geometry/frame_packed_linear.h"
#include "geometry/frame_plane.h"

namespace qvp::resize {
namespace {

// dst = its luma and the chroma of `chroma`; n pixels.
template <class T>
void TakeChroma(const T* chroma, QvpiLumaPlace lumaPlace, ptrdiff_t n, T* dst) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<T>());
  const bool isLumaFirst = lumaPlace == qvpLumaFirst;
  ptrdiff_t i = 0;
  for (; i + kLanes <= 2 * n; i += kLanes) {
    const auto a = hn::LoadU(d, dst + i), b = hn::LoadU(d, chroma + i);
    hn::StoreU(isLumaFirst ? hn::OddEven(b, a) : hn::OddEven(a, b), d, dst + i);
  }
  for (i += isLumaFirst; i < 2 * n; i += 2) StoreScalar(dst + i, LoadScalar(chroma + i));
}

// Chroma of a part of the destination is on the stack until it is joined.
constexpr ptrdiff_t kPartBytes = 12288, kPartColumns = 1024;

template <class T>
struct Packed {
  const FrameCall& call;
  const FrameRecord& record;
  const T* src;
  ptrdiff_t srcStep;
  T* dst;
  ptrdiff_t dstStep;

  // The pixels [x, x + size.width) of the rows from y on, counted from the tile's first one.
  void Resize(Point at, Size size, Point given) const {
    alignas(kRecordBoundary) T chroma[kPartBytes / sizeof(T)];
    const Point place(call.offset.x + at.x, call.offset.y + at.y);
    const Image<T> to{dst + 2 * at.x, dstStep, Layout::kC2};
    const Image<T> part{to.Row(at.y), dstStep, Layout::kC2};
    RunPlane<T>(call, record.Luma(), {src, srcStep, Layout::kC2}, part, place, size, given);
    const Image<T> pairs{chroma, size.width * 2 * ptrdiff_t{sizeof(T)}, Layout::kC4};
    RunPlane<T>(call, record.Chroma(), {src, srcStep, Layout::kC4}, pairs, record.ChromaAt(place),
                record.ChromaOf(size), record.ChromaAt(given));
    for (ptrdiff_t y = 0; y < size.height; ++y) TakeChroma(pairs.Row(y), record.lumaPlace, size.width, part.Row(y));
  }

  bool IsLinearOfBytes(Size size) const {
    const bool isCopy =
        record.Luma().columns.p == record.Luma().columns.q && record.Luma().rows.p == record.Luma().rows.q;
    return sizeof(T) == 1 && record.interpolation == qvpInterpolationLinear && size.width >= kFewestPackedColumns &&
           !isCopy;
  }

  void ResizeAll(Size size) const {
    const Point given = FrameSource(record, call.offset);
    if constexpr (sizeof(T) == 1) {
      if (IsLinearOfBytes(size)) {
        Image<const T> from{src, srcStep, Layout::kC2};
        from.data = from.Row(-given.y) - 2 * given.x;
        return PackedLinear{record, call.border, from, call.buffer}.Resize(call.offset, size,
                                                                           {dst, dstStep, Layout::kC2});
      }
    }
    const ptrdiff_t columns = std::min(size.width, kPartColumns);
    const ptrdiff_t rows = kPartBytes / (2 * ptrdiff_t{sizeof(T)} * columns);
    for (ptrdiff_t y = 0; y < size.height; y += rows) {
      for (ptrdiff_t x = 0; x < size.width; x += columns) {
        Resize({x, y}, {std::min(columns, size.width - x), std::min(rows, size.height - y)}, given);
      }
    }
  }
};

template <class T>
QvpStatus Resize422(const T* src, int srcStep, T* dst, int dstStep, FrameCall call, QvpiInterpolationType method) {
  if (const QvpStatus failed = TakeBorder(call, method)) return failed;
  if (!src || !dst || call.spec == nullptr || call.buffer == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(call.spec);
  constexpr int kElement = sizeof(T);
  const bool areStepsWhole = srcStep % kElement == 0 && dstStep % kElement == 0;
  if (const QvpStatus failed = CheckTile(call, record, FrameForm::k422, areStepsWhole)) return failed;
  if (record.type != kTypeOf<T> || record.interpolation != method) return qvpStatusContextMatch;
  const Size size = Clipped(record, call.offset, call.size);
  Packed<T>{call, record, src, srcStep, dst, dstStep}.ResizeAll(size);
  return ClippingStatus(size, call.size);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

#define RESIZE_422(method, type, parameters, border)                                                               \
  QvpStatus qvpiResize422##method##_##type##_C2R(const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, \
                                                 QvpiPoint dstOffset, QvpiSize dstSize QVP_AND parameters,         \
                                                 const QvpiResizeChromaSpec* pSpec, Qvp8u* pBuffer) {              \
    return Resize422(pSrc, srcStep, pDst, dstStep, {dstOffset, dstSize, border, pSpec, pBuffer},                   \
                     qvpInterpolation##method);                                                                    \
  }
#define RESIZE_422_METHODS(type)                             \
  RESIZE_422(Linear, type, (QvpiBorderType border), border)  \
  RESIZE_422(Lanczos, type, (QvpiBorderType border), border) \
  RESIZE_422(Super, type, (), qvpBorderInMem)
RESIZE_422_METHODS(8u)
RESIZE_422_METHODS(16u)
