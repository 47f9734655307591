// Resizing of volumes: records, sizes, and which source voxels a tile reads.
#include <cmath>

#include "base/record.h"
#include "qvpi.h"
#include "volume/resize_record.h"

namespace {
using namespace qvp;
using namespace qvp::volume;
using resize::Method;

struct Lengths {
  VolumeSize src, dst;

  bool AreValid() const { return src.HasVoxels() && dst.HasVoxels(); }
  bool AreBelowMost() const { return src.IsBelowMost() && dst.IsBelowMost(); }
  bool IsReduction() const { return src.width >= dst.width && src.height >= dst.height && src.depth >= dst.depth; }
};

bool IsType(QvpDataType type) { return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f; }
bool IsKnown(QvpiInterpolationType interpolation) {
  return interpolation == qvpInterpolationNearest || interpolation == qvpInterpolationLinear ||
         interpolation == qvpInterpolationCubic || interpolation == qvpInterpolationSuper ||
         interpolation == qvpInterpolationLanczos;
}

// What comes behind the parameters of a method.
QvpStatus CheckLengths(const Lengths& lengths, QvpiInterpolationType interpolation) {
  if (!lengths.AreBelowMost()) return qvpStatusSizeOverflow;
  if (interpolation == qvpInterpolationSuper && !lengths.IsReduction()) return qvpStatusSize;
  return qvpStatusNoError;
}

ByteCount TableBytes(QvpiInterpolationType interpolation, int64_t source, int64_t destination) {
  return ByteCount(4) * resize::PlaneOf(destination) * (1 + MostTaps(interpolation, source, destination));
}

QvpStatus GetSize(const Lengths& lengths, QvpDataType type, QvpiInterpolationType interpolation, int* bytes) {
  if (bytes == nullptr) return qvpStatusNullPointer;
  if (!lengths.AreValid()) return qvpStatusSize;
  if (!IsType(type)) return qvpStatusDataType;
  if (!IsKnown(interpolation)) return qvpStatusInterpolation;
  const QvpStatus failed = CheckLengths(lengths, interpolation);
  if (failed == qvpStatusSizeOverflow) *bytes = 0;
  if (failed) return failed;
  const auto &s = lengths.src, &d = lengths.dst;
  const ByteCount tables = TableBytes(interpolation, s.width, d.width) + TableBytes(interpolation, s.height, d.height) +
                           TableBytes(interpolation, s.depth, d.depth);
  return (tables + ResizeRecord::kTablesAt + kRecordBoundary).StoreTo(bytes);
}

// Tables of planes that are left alone are those of an image; else areas have a weight for each voxel.
void FillRecord(ResizeRecord& record, const Lengths& lengths, const Method& method) {
  const auto &s = lengths.src, &d = lengths.dst;
  constexpr int64_t kAt = ResizeRecord::kTablesAt - offsetof(ResizeRecord, plane);
  const int64_t end = resize::FillRecord(record.plane, {s.width, d.width}, {s.height, d.height}, method, kAt);
  resize::FillFurtherAxis(record.plane, record.depth, {s.depth, d.depth}, method, end);
  const bool areAreas = method.interpolation == qvpInterpolationSuper;
  if (areAreas && !record.IsPassedOver(record.depth)) resize::FillAreas(record.plane, record.plane.columns, kAt);
}

// `parameters` is what is wrong with those of the method.
QvpStatus Init(const Lengths& lengths, QvpDataType type, const Method& method, QvprResizeSpec* spec,
               QvpStatus parameters = qvpStatusNoError) {
  return InitRecordIn<ResizeRecord>(spec, [&](ResizeRecord& record) -> QvpStatus {
    if (!lengths.AreValid()) return qvpStatusSize;
    if (!IsType(type)) return qvpStatusDataType;
    if (parameters != qvpStatusNoError) return parameters;
    if (const QvpStatus failed = CheckLengths(lengths, method.interpolation)) return failed;
    record.type = type;
    FillRecord(record, lengths, method);
    return qvpStatusNoError;
  });
}

QvpStatus InitLinear(const Lengths& lengths, QvpDataType type, QvprResizeSpec* spec) {
  const auto weights = type == qvp8u ? resize::WeightKind::kFixed : resize::WeightKind::kFloat;
  return Init(lengths, type, {qvpInterpolationLinear, weights}, spec);
}

QvpStatus InitCubic(const Lengths& lengths, QvpDataType type, float b, float c, QvprResizeSpec* spec) {
  Method method{qvpInterpolationCubic};
  method.b = b;
  method.c = c;
  const bool areFinite = std::isfinite(b) && std::isfinite(c);
  return Init(lengths, type, method, spec, areFinite ? qvpStatusNoError : qvpStatusBadArgument);
}

QvpStatus InitLanczos(const Lengths& lengths, QvpDataType type, uint32_t lobes, QvprResizeSpec* spec) {
  Method method{qvpInterpolationLanczos};
  method.lobes = lobes;
  return Init(lengths, type, method, spec, lobes == 2 || lobes == 3 ? qvpStatusNoError : qvpStatusNotSupportedMode);
}

bool IsRecord(const ResizeRecord& record) { return record.identification == ResizeRecord::kIdentification; }

QvpStatus GetBufferSize(const QvprResizeSpec* spec, const VolumeSize& size, int* bytes) {
  if (spec == nullptr || bytes == nullptr) return qvpStatusNullPointer;
  if (!size.HasVoxels()) return qvpStatusSize;
  const ResizeRecord& record = *RecordIn<ResizeRecord>(spec);
  if (!IsRecord(record)) return qvpStatusContextMatch;
  const VolumeTile tile({0, 0, 0}, size, record.Destination());
  const bool isMove = record.interpolation() == qvpInterpolationNearest;
  const ByteCount all = isMove ? ByteCount(kRecordBoundary) : ResizeRoom(record, tile.width).Bytes(tile.height);
  if (const QvpStatus failed = all.StoreTo(bytes)) return failed;
  return tile.isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

// The positions inside an axis that n results read, with either kind of border: taps beyond an end may be mirrored.
Extent ReadBy(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t at, ptrdiff_t n) {
  const ptrdiff_t end = axis.source - 1, first = record.TapsOf(axis, at).begin,
                  last = record.TapsOf(axis, at + n - 1).end - 1;
  ptrdiff_t low = std::max<ptrdiff_t>(0, first), high = std::min(end, last);
  if (first < 0) high = std::max(high, std::min(end, -first));
  if (last > end) low = std::min(low, std::max<ptrdiff_t>(0, 2 * end - last));
  return {low, high + 1};
}

QvpStatus GetSrcCuboid(const QvprResizeSpec* spec, const QvprCuboid& dst, QvprCuboid* src) {
  if (spec == nullptr || src == nullptr) return qvpStatusNullPointer;
  const VolumeSize size(QvprVolume{dst.width, dst.height, dst.depth});
  if (!size.HasVoxels()) return qvpStatusSize;
  const ResizeRecord& record = *RecordIn<ResizeRecord>(spec);
  if (!IsRecord(record)) return qvpStatusContextMatch;
  const QvprPoint at{dst.x, dst.y, dst.z};
  if (!IsInside(at, record.Destination())) return qvpStatusOutOfRange;
  const VolumeTile tile(at, size, record.Destination());
  const Extent x = ReadBy(record, record.plane.columns, tile.x, tile.width);
  const Extent y = ReadBy(record, record.plane.rows, tile.y, tile.height);
  const Extent z = ReadBy(record, record.depth, tile.z, tile.depth);
  const auto length = [](Extent e) { return static_cast<int>(e.end - e.begin); };
  *src = {
      static_cast<int>(x.begin), static_cast<int>(y.begin), static_cast<int>(z.begin), length(x), length(y), length(z)};
  return tile.isClipped ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace

QvpStatus qvprResizeGetSize(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                            QvpiInterpolationType interpolation, int* pSpecSize) {
  return GetSize({srcVolume, dstVolume}, dataType, interpolation, pSpecSize);
}
QvpStatus qvprResizeNearestInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                                QvprResizeSpec* pSpec) {
  return Init({srcVolume, dstVolume}, dataType, {qvpInterpolationNearest}, pSpec);
}
QvpStatus qvprResizeLinearInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                               QvprResizeSpec* pSpec) {
  return InitLinear({srcVolume, dstVolume}, dataType, pSpec);
}
QvpStatus qvprResizeCubicInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, Qvp32f valueB,
                              Qvp32f valueC, QvprResizeSpec* pSpec) {
  return InitCubic({srcVolume, dstVolume}, dataType, valueB, valueC, pSpec);
}
QvpStatus qvprResizeLanczosInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, Qvp32u numLobes,
                                QvprResizeSpec* pSpec) {
  return InitLanczos({srcVolume, dstVolume}, dataType, numLobes, pSpec);
}
QvpStatus qvprResizeSuperInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType, QvprResizeSpec* pSpec) {
  return Init({srcVolume, dstVolume}, dataType, {qvpInterpolationSuper}, pSpec);
}
QvpStatus qvprResizeGetBufferSize(const QvprResizeSpec* pSpec, QvprVolume dstVolume, int* pBufSize) {
  return GetBufferSize(pSpec, dstVolume, pBufSize);
}
QvpStatus qvprResizeGetSrcCuboid(const QvprResizeSpec* pSpec, QvprCuboid dstCuboid, QvprCuboid* pSrcCuboid) {
  return GetSrcCuboid(pSpec, dstCuboid, pSrcCuboid);
}
