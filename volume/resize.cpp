// Resizing of volumes: checks, and the choice of a method.
#include "base/check.h"
#include "base/types.h"
#include "qvpi.h"
#include "volume/resize_areas.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

// Planes that a call reads and writes are not null.
template <class T>
bool HasPlanes(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const ResizeRecord& record = call.record();
  const VolumeEdges edges(record, call.border);
  for (ptrdiff_t z = tile.z; call.src.isArray && z < tile.z + tile.depth; ++z) {
    const Extent taps = record.TapsOf(record.depth, z);
    for (ptrdiff_t k = taps.begin; k < taps.end; ++k) {
      const ptrdiff_t plane = edges.planes(k);
      if (!call.src.HasPlanes({plane, plane + 1})) return false;
    }
  }
  return call.dst.HasPlanes({0, tile.depth});
}

template <class T>
QvpStatus Check(const VolumeResizeCall<T>& call, QvpDataType type) {
  const VolumeSize size(call.volume);
  if (const QvpStatus failed = CheckVolumes({call.src, call.dst}, {size}, {call.spec, call.buffer})) return failed;
  if (!IsVolumeBorderOf({BorderKind::kReplicate, BorderKind::kMirror}, call.border)) return qvpStatusBorder;
  const ResizeRecord& record = call.record();
  if (record.identification != ResizeRecord::kIdentification || record.type != type) return qvpStatusContextMatch;
  if (!IsInside(call.offset, record.Destination())) return qvpStatusOutOfRange;
  return HasPlanes(call, VolumeTile(call.offset, size, record.Destination())) ? qvpStatusNoError : qvpStatusNullPointer;
}

// Voxels of one size are moved alike. A row that the one above was made from, too, is copied.
template <class T>
void MoveNearest(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const resize::ResizeRecord& record = call.record().plane;
  const int32_t *columns = record.Index(record.columns) + tile.x, *rows = record.Index(record.rows) + tile.y,
                *planes = record.Index(call.record().depth) + tile.z;
  const bool isPassedOver = record.columns.p == record.columns.q;
  const size_t bytes = static_cast<size_t>(tile.width) * sizeof(T);
  for (ptrdiff_t z = 0; z < tile.depth; ++z) {
    const Image<const T> src = call.src.Plane(planes[z]);
    const Image<T> dst = call.dst.Plane(z);
    for (ptrdiff_t y = 0; y < tile.height; ++y) {
      const T* const from = src.Row(rows[y]);
      T* const to = dst.Row(y);
      if (isPassedOver) {
        std::memcpy(to, from + tile.x, bytes);
      } else if (y > 0 && rows[y] == rows[y - 1]) {
        std::memcpy(to, dst.Row(y - 1), bytes);
      } else {
        for (ptrdiff_t x = 0; x < tile.width; ++x) std::memcpy(to + x, from + columns[x], sizeof(T));
      }
    }
  }
}

bool IsSameSize(const ResizeRecord& record) {
  return record.IsPassedOver(record.plane.columns) && record.IsPassedOver(record.plane.rows) &&
         record.IsPassedOver(record.depth);
}

template <class T>
void CopyTile(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  for (ptrdiff_t z = 0; z < tile.depth; ++z) {
    const Image<const T> src = call.src.Plane(tile.z + z);
    const Image<T> dst = call.dst.Plane(z);
    for (ptrdiff_t y = 0; y < tile.height; ++y) {
      std::memcpy(dst.Row(y), src.Row(tile.y + y) + tile.x, static_cast<size_t>(tile.width) * sizeof(T));
    }
  }
}

template <class Lines, class T>
void FilterFloats(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const Lines lines(call.record(), tile, call.border);
  ResizeWalk<T, Lines>(call, tile, lines, AtBoundary(call.buffer)).Run();
}

// The lines of 16-bit numbers take half of what floats would; what belongs to the columns lies behind them.
void FilterBytes(const VolumeResizeCall<uint8_t>& call, const VolumeTile& tile) {
  const ResizeRoom room(call.record(), tile.width);
  const int64_t lineBytes = room.row / 2 * (room.rows + room.planes * room.StripRows(tile.height));
  uint8_t* const memory = AtBoundary(call.buffer);
  const FixedLines lines(call.record(), tile, call.border, memory + lineBytes);
  ResizeWalk<uint8_t, FixedLines>(call, tile, lines, memory).Run();
}

template <class T>
void Average(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const ResizeRecord& record = call.record();
  record.IsPassedOver(record.depth) ? AverageEachPlane(call, tile) : AreaWalk<T>(call, tile).Run();
}

template <class T>
void ResizeTile(const VolumeResizeCall<T>& call, const VolumeTile& tile) {
  const ResizeRecord& record = call.record();
  const QvpiInterpolationType interpolation = record.interpolation();
  if (interpolation == qvpInterpolationNearest) return MoveNearest(call, tile);
  if (IsSameSize(record)) return CopyTile(call, tile);
  if (interpolation == qvpInterpolationSuper) return Average(call, tile);
  if (interpolation != qvpInterpolationLinear) return FilterFloats<FloatLines<T, resize::TapPlanes<float>>>(call, tile);
  if constexpr (sizeof(T) == 1) {
    FilterBytes(call, tile);
  } else {
    FilterFloats<FloatLines<T, resize::LinearPlane<float>>>(call, tile);
  }
}

template <class T>
QvpStatus Resize(const VolumeResizeCall<T>& call, QvpDataType type) {
  if (const QvpStatus failed = Check(call, type)) return failed;
  const VolumeTile tile(call.offset, call.volume, call.record().Destination());
  ResizeTile(call, tile);
  return tile.isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace

#define RESIZE(type)                                                                                                   \
  QvpStatus qvprResize_##type##_C1V(const Qvp##type* pSrc, int srcStep, int srcPlaneStep, Qvp##type* pDst,             \
                                    int dstStep, int dstPlaneStep, QvprPoint dstOffset, QvprVolume dstVolume,          \
                                    QvpiBorderType borderType, const QvprResizeSpec* pSpec, Qvp8u* pBuffer) {          \
    return Resize<Qvp##type>(                                                                                          \
        {ViewVolume<Qvp##type>(pSrc, srcStep, srcPlaneStep), ViewVolume<Qvp##type>(pDst, dstStep, dstPlaneStep),       \
         dstOffset, dstVolume, borderType, pSpec, pBuffer},                                                            \
        qvp##type);                                                                                                    \
  }                                                                                                                    \
  QvpStatus qvprResize_##type##_C1PV(const Qvp##type* const pSrc[], int srcStep, Qvp##type* const pDst[], int dstStep, \
                                     QvprPoint dstOffset, QvprVolume dstVolume, QvpiBorderType borderType,             \
                                     const QvprResizeSpec* pSpec, Qvp8u* pBuffer) {                                    \
    return Resize<Qvp##type>({ViewVolume<Qvp##type>(pSrc, srcStep), ViewVolume<Qvp##type>(pDst, dstStep), dstOffset,   \
                              dstVolume, borderType, pSpec, pBuffer},                                                  \
                             qvp##type);                                                                               \
  }
RESIZE(8u)
RESIZE(16u)
RESIZE(16s)
RESIZE(32f)
