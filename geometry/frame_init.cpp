// Resize of chroma-subsampled frames: making records.
#include "base/export.h"
#include "geometry/frame_record.h"
#include "geometry/resize_tables.h"

namespace qvp::resize {
namespace {

struct FrameInit {
  FrameForm form;
  Size src, dst;
  QvpDataType type;
  QvpiChromaSite site;
  QvpiLumaPlace lumaPlace;
  QvpiResizeChromaSpec* spec;
};

// Chroma on luma samples: a destination position begins this much before its place in halved planes, in destination
// samples. Its middle, at (d + 1/2 - m) p / q, is then as far behind the beginning as that of luma samples.
double ShiftOf(const AxisLengths& axis) {
  return axis.isCosited ? (1 - static_cast<double>(axis.to) / static_cast<double>(axis.from)) / 4 : 0;
}

ResizeRecord& RecordAt(FrameRecord& record, size_t bytes) {
  return *reinterpret_cast<ResizeRecord*>(reinterpret_cast<uint8_t*>(&record) + bytes);
}

void FillFrame(FrameRecord& record, const FrameInit& init, Method method) {
  const AxisLengths columns(init.src.width, init.dst.width), rows(init.src.height, init.dst.height);
  const AxisLengths chromaColumns(columns, init.site != qvpChromaCentre);
  const AxisLengths chromaRows =
      HalvesRows(init.form) ? AxisLengths(rows, init.site == qvpChromaTopLeft) : AxisLengths(rows);
  ResizeRecord& luma = RecordAt(record, sizeof(FrameRecord));
  const int64_t end = static_cast<int64_t>(sizeof(FrameRecord)) + FillRecord(luma, columns, rows, method);
  record.type = init.type;
  record.interpolation = method.interpolation;
  record.lumaPlace = init.lumaPlace;
  record.chromaAt = static_cast<uint32_t>((end + kRecordBoundary - 1) & -kRecordBoundary);
  if (method.interpolation == qvpInterpolationSuper) {
    method.shift[0] = ShiftOf(chromaColumns);
    method.shift[1] = ShiftOf(chromaRows);
  }
  FillRecord(RecordAt(record, record.chromaAt), chromaColumns, chromaRows, method);
}

QvpStatus Check(const FrameInit& init, const Method& method) {
  if (!IsFrameSize(init.form, init.src) || !IsFrameSize(init.form, init.dst)) return qvpStatusSize;
  if (init.type != qvp8u && init.type != qvp16u) return qvpStatusDataType;
  const bool isLanczos = method.interpolation == qvpInterpolationLanczos;
  if (isLanczos && method.lobes != 2 && method.lobes != 3) return qvpStatusNotSupportedMode;
  if (!FrameLimits{method.interpolation, method.lobes}.Take(init.form, init.src, init.dst)) return qvpStatusSize;
  if (init.site < qvpChromaCentre || init.site > qvpChromaTopLeft) return qvpStatusNotSupportedMode;
  const bool isPlace = init.lumaPlace == qvpLumaFirst || init.lumaPlace == qvpLumaSecond;
  return isPlace ? qvpStatusNoError : qvpStatusChannelOrder;
}

bool IsAnyLengthZero(Size a, Size b) { return a.width == 0 || a.height == 0 || b.width == 0 || b.height == 0; }

// A length of 0 leaves the record as it is; every failure makes it unusable.
QvpStatus Init(const FrameInit& init, const Method& method, bool isBufferGiven = true) {
  const bool areGiven = init.spec != nullptr && isBufferGiven;
  if (areGiven && IsAnyLengthZero(init.src, init.dst)) return qvpStatusNoOperation;
  auto* const record = init.spec ? RecordIn<FrameRecord>(init.spec) : nullptr;
  return InitRecord(record, static_cast<uint32_t>(init.form), [&]() -> QvpStatus {
    if (!areGiven) return qvpStatusNullPointer;
    if (const QvpStatus failed = Check(init, method)) return failed;
    std::memset(record, 0, sizeof(*record));
    FillFrame(*record, init, method);
    return qvpStatusNoError;
  });
}

WeightKind WeightsFor(QvpDataType type) { return type == qvp8u ? WeightKind::kFixed : WeightKind::kFloat; }

QvpStatus InitLinear(const FrameInit& init) { return Init(init, {qvpInterpolationLinear, WeightsFor(init.type)}); }
QvpStatus InitSuper(const FrameInit& init) { return Init(init, {qvpInterpolationSuper}); }
QvpStatus InitLanczos(const FrameInit& init, uint32_t lobes, const uint8_t* buffer) {
  Method method{qvpInterpolationLanczos, WeightsFor(init.type)};
  method.lobes = lobes;
  return Init(init, method, buffer != nullptr);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

// `place` is the parameter of packed frames, in parentheses, and `value` what is handed on.
#define INITS(form, place, value)                                                                                    \
  QvpStatus qvpiResize##form##LinearInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType,                   \
                                         QvpiChromaSite site QVP_AND place, QvpiResizeChromaSpec* pSpec) {           \
    return InitLinear({FrameForm::k##form, srcSize, dstSize, dataType, site, value, pSpec});                         \
  }                                                                                                                  \
  QvpStatus qvpiResize##form##LanczosInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType, Qvp32u numLobes, \
                                          QvpiChromaSite site QVP_AND place, QvpiResizeChromaSpec* pSpec,            \
                                          Qvp8u* pInitBuf) {                                                         \
    return InitLanczos({FrameForm::k##form, srcSize, dstSize, dataType, site, value, pSpec}, numLobes, pInitBuf);    \
  }                                                                                                                  \
  QvpStatus qvpiResize##form##SuperInit(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType,                    \
                                        QvpiChromaSite site QVP_AND place, QvpiResizeChromaSpec* pSpec) {            \
    return InitSuper({FrameForm::k##form, srcSize, dstSize, dataType, site, value, pSpec});                          \
  }
INITS(420, (), qvpLumaFirst)
INITS(422, (QvpiLumaPlace lumaPlace), lumaPlace)
