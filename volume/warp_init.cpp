// Sizes and records of affine warps of volumes.
#include "base/scalar.h"
#include "base/volume.h"
#include "qvpi.h"
#include "volume/warp_record.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

struct Demand {
  QvprVolume src, dst;
  QvpDataType type;
  const double (*coeffs)[4];
  QvpiInterpolationType interpolation;
  QvpiWarpDirection direction;
  QvpiBorderType border;
  double cubicB = 0, cubicC = 0;
};

QvpStatus CheckBeforeMethod(const Demand& d) {
  if (!VolumeSize(d.src).HasVoxels() || !VolumeSize(d.dst).HasVoxels()) return qvpStatusSize;
  if (d.type != qvp8u && d.type != qvp16u && d.type != qvp16s && d.type != qvp32f) return qvpStatusDataType;
  const Affine affine(d.coeffs);
  return affine.IsFinite() && !affine.IsDegenerate() ? qvpStatusNoError : qvpStatusCoefficient;
}

QvpStatus CheckBehindMethod(const Demand& d) {
  if (d.direction != qvpWarpForward && d.direction != qvpWarpBackward) return qvpStatusWarpDirection;
  if (!std::isfinite(d.cubicB) || !std::isfinite(d.cubicC)) return qvpStatusBadArgument;
  switch (d.border) {
    case qvpBorderReplicate:
    case qvpBorderConst:
    case qvpBorderTransparent:
    case qvpBorderInMemVolume: break;
    default: return qvpStatusBorder;
  }
  const bool isRepresented = VolumeSize(d.src).IsBelowMost() && VolumeSize(d.dst).IsBelowMost();
  return isRepresented ? qvpStatusNoError : qvpStatusSizeOverflow;
}

QvpStatus GetSize(const Demand& d, int* bytes) {
  if (!d.coeffs || !bytes) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckBeforeMethod(d)) return failed;
  if (d.interpolation != qvpInterpolationNearest && d.interpolation != qvpInterpolationLinear &&
      d.interpolation != qvpInterpolationCubic) {
    return qvpStatusInterpolation;
  }
  const QvpStatus status = CheckBehindMethod(d);
  if (status == qvpStatusNoError || status == qvpStatusSizeOverflow) *bytes = status ? 0 : kWarpRecordBytes;
  return status;
}

// Each voxel of the destination is one of the source, so that nothing lies between.
bool IsShift(const Affine& a) {
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      if (a.c[i][j] != (i == j ? 1 : 0)) return false;
    }
    if (!(std::fabs(a.c[i][3]) <= kMostVolumeLength) || a.c[i][3] != static_cast<int>(a.c[i][3])) return false;
  }
  return true;
}

QvpStatus FillRecord(const Demand& d, const double* value, WarpRecord& record) {
  const bool needsValue = d.border == qvpBorderConst;
  if (!d.coeffs || (needsValue && !value)) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckBeforeMethod(d)) return failed;
  if (const QvpStatus failed = CheckBehindMethod(d)) return failed;
  const Affine given(d.coeffs), toSource = d.direction == qvpWarpForward ? given.Inverse() : given;
  if (!toSource.IsFinite()) return qvpStatusCoefficient;
  record = {0,
            d.type,
            d.interpolation,
            d.border,
            d.src,
            d.dst,
            d.cubicB,
            d.cubicC,
            needsValue ? LoadScalar(value) : 0,
            toSource,
            IsShift(toSource) && d.cubicB == 0};
  return qvpStatusNoError;
}

QvpStatus Init(const Demand& demand, const double* value, QvprWarpSpec* spec) {
  return InitRecordIn<WarpRecord>(spec, [&](WarpRecord& record) { return FillRecord(demand, value, record); });
}

}  // namespace

QvpStatus qvprWarpAffineGetSize(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                                const double coeffs[3][4], QvpiInterpolationType interpolation,
                                QvpiWarpDirection direction, QvpiBorderType borderType, int* pSpecSize) {
  return GetSize({srcVolume, dstVolume, dataType, coeffs, interpolation, direction, borderType}, pSpecSize);
}
QvpStatus qvprWarpAffineNearestInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                                    const double coeffs[3][4], QvpiWarpDirection direction, QvpiBorderType borderType,
                                    const Qvp64f* pBorderValue, QvprWarpSpec* pSpec) {
  return Init({srcVolume, dstVolume, dataType, coeffs, qvpInterpolationNearest, direction, borderType}, pBorderValue,
              pSpec);
}
QvpStatus qvprWarpAffineLinearInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                                   const double coeffs[3][4], QvpiWarpDirection direction, QvpiBorderType borderType,
                                   const Qvp64f* pBorderValue, QvprWarpSpec* pSpec) {
  return Init({srcVolume, dstVolume, dataType, coeffs, qvpInterpolationLinear, direction, borderType}, pBorderValue,
              pSpec);
}
QvpStatus qvprWarpAffineCubicInit(QvprVolume srcVolume, QvprVolume dstVolume, QvpDataType dataType,
                                  const double coeffs[3][4], QvpiWarpDirection direction, double valueB, double valueC,
                                  QvpiBorderType borderType, const Qvp64f* pBorderValue, QvprWarpSpec* pSpec) {
  return Init({srcVolume, dstVolume, dataType, coeffs, qvpInterpolationCubic, direction, borderType, valueB, valueC},
              pBorderValue, pSpec);
}

QvpStatus qvprWarpGetBufferSize(const QvprWarpSpec* pSpec, QvprVolume dstVolume, int* pBufSize) {
  if (!pSpec || !pBufSize) return qvpStatusNullPointer;
  if (!VolumeSize(dstVolume).HasVoxels()) return qvpStatusSize;
  const WarpRecord& record = *RecordIn<WarpRecord>(pSpec);
  if (record.identification != WarpRecord::kIdentification) return qvpStatusContextMatch;
  if (!VolumeSize(dstVolume).IsBelowMost()) return ByteCount(INT64_MAX).StoreTo(pBufSize);
  const ByteCount rows = (ByteCount(dstVolume.height) * 8).RoundedTo(kRecordBoundary);
  const ByteCount planes = ((ByteCount(record.src.depth) + 8) * 8).RoundedTo(kRecordBoundary);
  return (rows + planes + kRecordBoundary).StoreTo(pBufSize);
}
