// Copies of volumes into larger ones: each plane of the source with a border of its own, then whole planes in front and
// behind.
#include "filter/copy_border.h"

#include "core/copy.h"
#include "core/fill.h"
#include "qvpi.h"
#include "volume/tile.h"

namespace {
using namespace qvp;

struct Box {
  VolumeSize src, dst;
  ptrdiff_t top, left, front;

  filter::Frame OfPlane() const { return {src.plane(), dst.plane(), top, left}; }
  bool IsValid() const { return OfPlane().IsValid() && front >= 0 && dst.depth - src.depth >= front; }
};

ConstBytes Const(const Bytes& image) { return {image.data, image.step, image.layout, image.elementBytes}; }

void WritePlane(BorderKind kind, const Bytes& dst, const Bytes& nearest, const uint8_t* value, Size size) {
  kind == BorderKind::kConst ? FillPixels(value, dst, size) : CopyImage(Const(nearest), dst, size);
}

// `value` is the voxel of a constant border; other kinds have none.
QvpStatus Copy(BorderKind kind, const Volume<const uint8_t>& src, const Volume<uint8_t>& dst, const Box& box,
               const void* value = nullptr) {
  if (const QvpStatus failed = volume::CheckVolumes({src, dst}, {box.src, box.dst})) return failed;
  if (!box.IsValid()) return qvpStatusSize;
  uint8_t voxel[kBlockBytes] = {};
  if (value) std::memcpy(voxel, value, dst.front.elementBytes);
  const ptrdiff_t first = box.front, last = first + box.src.depth - 1;
  for (ptrdiff_t z = first; z <= last; ++z) {
    Bytes inner = dst.Plane(z);
    inner.data = inner.Row(box.top) + box.left * inner.PixelBytes();
    filter::WriteFrame(kind, src.Plane(z - first), inner, box.OfPlane(), voxel);
  }
  for (ptrdiff_t z = 0; z < first; ++z) WritePlane(kind, dst.Plane(z), dst.Plane(first), voxel, box.dst.plane());
  for (ptrdiff_t z = last + 1; z < box.dst.depth; ++z) {
    WritePlane(kind, dst.Plane(z), dst.Plane(last), voxel, box.dst.plane());
  }
  return qvpStatusNoError;
}

}  // namespace

// `parameter` and `argument` are those of the constant in parentheses, or empty.
#define AND(...) __VA_OPT__(, ) __VA_ARGS__
#define COPY_BORDER(kind, type, parameter, argument)                                                                  \
  QvpStatus qvprCopy##kind##Border_##type##_C1V(const Qvp##type* pSrc, int srcStep, int srcPlaneStep,                 \
                                                QvprVolume srcVolume, Qvp##type* pDst, int dstStep, int dstPlaneStep, \
                                                QvprVolume dstVolume, int topBorderHeight, int leftBorderWidth,       \
                                                int frontBorderDepth AND parameter) {                                 \
    return Copy(BorderKind::k##kind, ViewVolume<uint8_t>(pSrc, srcStep, srcPlaneStep),                                \
                ViewVolume<uint8_t>(pDst, dstStep, dstPlaneStep),                                                     \
                {srcVolume, dstVolume, topBorderHeight, leftBorderWidth, frontBorderDepth} AND argument);             \
  }
#define BORDERS(type)                  \
  COPY_BORDER(Replicate, type, (), ()) \
  COPY_BORDER(Const, type, (Qvp##type value), (&value))
BORDERS(8u)
BORDERS(16u)
BORDERS(16s)
BORDERS(32f)
