// Resize: making records, and switching them between fast and accurate.
#include <algorithm>
#include <cmath>

#include "base/export.h"
#include "geometry/resize_tables.h"

namespace qvp::resize {
namespace {

constexpr ptrdiff_t kWideLengthLimit = 0x2000000;
constexpr QvpDataType kAnyType = 0;

struct InitCall {
  Size src, dst;
  QvpiResizeSpec* spec;
  ResizeForm form = ResizeForm::kPlain;
  QvpDataType type = kAnyType;
  bool takes64f = false;
};

QvpStatus CheckType(const InitCall& call) {
  if (call.form == ResizeForm::kPlain) return qvpStatusNoError;
  const bool isKnown = call.type == qvp8u || call.type == qvp16u || call.type == qvp16s || call.type == qvp32f;
  if (!isKnown && !(call.type == qvp64f && call.takes64f)) return qvpStatusDataType;
  const auto longest = std::max({call.src.width, call.src.height, call.dst.width, call.dst.height});
  return longest >= kWideLengthLimit ? qvpStatusSizeOverflow : qvpStatusNoError;
}

// What a method asks of its arguments, besides what all do.
struct InitDemand {
  ptrdiff_t shortest = 1;  // side of the source
  bool isReduction = false;
  bool isBufferGiven = true;
  QvpStatus parameters = qvpStatusNoError;
};

bool IsAnyLengthZero(const InitCall& call) {
  return call.src.width == 0 || call.src.height == 0 || call.dst.width == 0 || call.dst.height == 0;
}

QvpStatus CheckSizes(const InitCall& call, const InitDemand& demand) {
  const Size src = call.src, dst = call.dst;
  if (dst.width < 1 || dst.height < 1) return qvpStatusSize;
  if (src.width < demand.shortest || src.height < demand.shortest) return qvpStatusSize;
  return demand.isReduction && (src.width < dst.width || src.height < dst.height) ? qvpStatusSize : qvpStatusNoError;
}

// A length of 0 leaves the record as it is; every failure makes it unusable.
QvpStatus Init(const InitCall& call, const InitDemand& demand, const Method& method) {
  const bool areGiven = call.spec != nullptr && demand.isBufferGiven;
  if (areGiven && IsAnyLengthZero(call)) return qvpStatusNoOperation;
  ResizeRecord* const record = call.spec ? RecordOf(call.spec) : nullptr;
  return InitRecord(record, static_cast<uint32_t>(call.form), [&]() -> QvpStatus {
    if (!areGiven) return qvpStatusNullPointer;
    if (const QvpStatus failed = CheckSizes(call, demand)) return failed;
    if (demand.parameters != qvpStatusNoError) return demand.parameters;
    if (const QvpStatus failed = CheckType(call)) return failed;
    FillRecord(*record, call.src, call.dst, method);
    return qvpStatusNoError;
  });
}

QvpStatus InitNearest(const InitCall& call) { return Init(call, {}, {qvpInterpolationNearest}); }

QvpStatus InitLinear(const InitCall& call, WeightKind weights) {
  return Init(call, {.shortest = 2}, {qvpInterpolationLinear, weights, weights == WeightKind::kFixed});
}

QvpStatus InitAntialiasingLinear(const InitCall& call, const Qvp8u* buffer) {
  return Init(call, {.shortest = 2, .isBufferGiven = buffer != nullptr},
              {qvpInterpolationLinear, WeightKind::kFloat, false, true});
}

QvpStatus InitCubic(const InitCall& call, float b, float c, const Qvp8u* buffer, WeightKind weights,
                    bool isAntialiasing = false) {
  const QvpStatus parameters = std::isfinite(b) && std::isfinite(c) ? qvpStatusNoError : qvpStatusBadArgument;
  return Init(call, {.shortest = 4, .isBufferGiven = buffer != nullptr, .parameters = parameters},
              {qvpInterpolationCubic, weights, weights == WeightKind::kFixed, isAntialiasing, b, c});
}

QvpStatus InitLanczos(const InitCall& call, uint32_t lobes, const Qvp8u* buffer, WeightKind weights,
                      bool isAntialiasing = false) {
  const QvpStatus parameters = lobes == 2 || lobes == 3 ? qvpStatusNoError : qvpStatusNotSupportedMode;
  const ptrdiff_t shortest = lobes == 3 ? 6 : 4;
  return Init(call, {.shortest = shortest, .isBufferGiven = buffer != nullptr, .parameters = parameters},
              {qvpInterpolationLanczos, weights, weights == WeightKind::kFixed, isAntialiasing, 0, 0, lobes});
}

QvpStatus InitSuper(const InitCall& call, double shiftX = 0, double shiftY = 0) {
  const bool areFinite = std::isfinite(shiftX) && std::isfinite(shiftY);
  return Init(call, {.isReduction = true, .parameters = areFinite ? qvpStatusNoError : qvpStatusBadArgument},
              {qvpInterpolationSuper, WeightKind::kFloat, false, false, 0, 0, 0, {shiftX, shiftY}});
}

bool HasModes(const ResizeRecord& record) {
  return !record.isAntialiasing &&
         (record.interpolation == qvpInterpolationLinear || record.interpolation == qvpInterpolationCubic ||
          record.interpolation == qvpInterpolationLanczos);
}

QvpStatus SetMode(QvpHintAlgorithm hint, QvpiResizeSpec* spec) {
  if (hint != qvpAlgHintFast && hint != qvpAlgHintAccurate) return qvpStatusNotSupportedMode;
  if (spec == nullptr) return qvpStatusNullPointer;
  ResizeRecord& record = *RecordOf(spec);
  if (!IsOf(ResizeForm::kPlain, &record) && !IsOf(ResizeForm::kWide, &record)) return qvpStatusContextMatch;
  if (hint == record.mode) return qvpStatusNoError;
  if (!HasModes(record) || (hint == qvpAlgHintFast && !record.isFastCapable)) return qvpStatusNotSupportedMode;
  Method method{record.interpolation};
  method.weights = hint == qvpAlgHintFast ? WeightKind::kFixed : WeightKind::kFloat;
  method.isFor8u = record.isFastCapable != 0;
  method.b = record.b;
  method.c = record.c;
  method.lobes = record.lobes;
  const Size src(record.sourceWidth, record.sourceHeight), dst(record.width, record.height);
  return InitRecord(&record, record.tag, [&]() -> QvpStatus {
    FillRecord(record, src, dst, method);
    return qvpStatusNoError;
  });
}

WeightKind LinearWeights(QvpDataType type) {
  return type == qvp8u ? WeightKind::kFixed : type == qvp64f ? WeightKind::kDouble : WeightKind::kFloat;
}
WeightKind TapWeightsOf(QvpDataType type) { return type == qvp8u ? WeightKind::kFixed : WeightKind::kFloat; }

InitCall Plain(QvpiSize src, QvpiSize dst, QvpiResizeSpec* spec) { return {src, dst, spec}; }
InitCall Wide(QvpiSizeL src, QvpiSizeL dst, QvpiResizeSpec* spec, QvpDataType type, bool takes64f = false) {
  return {src, dst, spec, ResizeForm::kWide, type, takes64f};
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

QvpStatus qvpiResizeSetMode(QvpHintAlgorithm hint, QvpiResizeSpec* pSpec) { return SetMode(hint, pSpec); }

#define INITS(type)                                                                                                  \
  QvpStatus qvpiResizeNearestInit_##type(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec) {                \
    return InitNearest(Plain(srcSize, dstSize, pSpec));                                                              \
  }                                                                                                                  \
  QvpStatus qvpiResizeCubicInit_##type(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC,             \
                                       QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {                                     \
    return InitCubic(Plain(srcSize, dstSize, pSpec), valueB, valueC, pInitBuf, TapWeightsOf(qvp##type));             \
  }                                                                                                                  \
  QvpStatus qvpiResizeLanczosInit_##type(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec, \
                                         Qvp8u* pInitBuf) {                                                          \
    return InitLanczos(Plain(srcSize, dstSize, pSpec), numLobes, pInitBuf, TapWeightsOf(qvp##type));                 \
  }                                                                                                                  \
  QvpStatus qvpiResizeSuperInit_##type(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec) {                  \
    return InitSuper(Plain(srcSize, dstSize, pSpec));                                                                \
  }                                                                                                                  \
  QvpStatus qvpiResizeSuperShiftInit_##type(QvpiSize srcSize, QvpiSize dstSize, Qvp64f shiftX, Qvp64f shiftY,        \
                                            QvpiResizeSpec* pSpec) {                                                 \
    return InitSuper(Plain(srcSize, dstSize, pSpec), shiftX, shiftY);                                                \
  }
#define LINEAR_INIT(type)                                                                            \
  QvpStatus qvpiResizeLinearInit_##type(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec) { \
    return InitLinear(Plain(srcSize, dstSize, pSpec), LinearWeights(qvp##type));                     \
  }
#define ANTIALIASING_INITS(suffix)                                                                                    \
  QvpStatus qvpiResizeAntialiasingLinearInit##suffix(QvpiSize srcSize, QvpiSize dstSize, QvpiResizeSpec* pSpec,       \
                                                     Qvp8u* pInitBuf) {                                               \
    return InitAntialiasingLinear(Plain(srcSize, dstSize, pSpec), pInitBuf);                                          \
  }                                                                                                                   \
  QvpStatus qvpiResizeAntialiasingCubicInit##suffix(QvpiSize srcSize, QvpiSize dstSize, Qvp32f valueB, Qvp32f valueC, \
                                                    QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {                         \
    return InitCubic(Plain(srcSize, dstSize, pSpec), valueB, valueC, pInitBuf, WeightKind::kFloat, true);             \
  }                                                                                                                   \
  QvpStatus qvpiResizeAntialiasingLanczosInit##suffix(QvpiSize srcSize, QvpiSize dstSize, Qvp32u numLobes,            \
                                                      QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {                       \
    return InitLanczos(Plain(srcSize, dstSize, pSpec), numLobes, pInitBuf, WeightKind::kFloat, true);                 \
  }
INITS(8u)
INITS(16u)
INITS(16s)
INITS(32f)
LINEAR_INIT(8u)
LINEAR_INIT(16u)
LINEAR_INIT(16s)
LINEAR_INIT(32f)
LINEAR_INIT(64f)
ANTIALIASING_INITS()
ANTIALIASING_INITS(_64f)

QvpStatus qvpiResizeNearestInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec) {
  return InitNearest(Wide(srcSize, dstSize, pSpec, dataType));
}
QvpStatus qvpiResizeLinearInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpiResizeSpec* pSpec) {
  return InitLinear(Wide(srcSize, dstSize, pSpec, qvp8u), WeightKind::kFixed);
}
QvpStatus qvpiResizeLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec) {
  return InitLinear(Wide(srcSize, dstSize, pSpec, dataType, true), LinearWeights(dataType));
}
QvpStatus qvpiResizeCubicInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32f valueB, Qvp32f valueC,
                                   QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitCubic(Wide(srcSize, dstSize, pSpec, qvp8u), valueB, valueC, pInitBuf, WeightKind::kFixed);
}
QvpStatus qvpiResizeCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB,
                                Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitCubic(Wide(srcSize, dstSize, pSpec, dataType), valueB, valueC, pInitBuf, TapWeightsOf(dataType));
}
QvpStatus qvpiResizeLanczosInit_8u_L(QvpiSizeL srcSize, QvpiSizeL dstSize, Qvp32u numLobes, QvpiResizeSpec* pSpec,
                                     Qvp8u* pInitBuf) {
  return InitLanczos(Wide(srcSize, dstSize, pSpec, qvp8u), numLobes, pInitBuf, WeightKind::kFixed);
}
QvpStatus qvpiResizeLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32u numLobes,
                                  QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitLanczos(Wide(srcSize, dstSize, pSpec, dataType), numLobes, pInitBuf, TapWeightsOf(dataType));
}
QvpStatus qvpiResizeSuperInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, QvpiResizeSpec* pSpec) {
  return InitSuper(Wide(srcSize, dstSize, pSpec, dataType));
}
QvpStatus qvpiResizeAntialiasingLinearInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType,
                                             QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitAntialiasingLinear(Wide(srcSize, dstSize, pSpec, dataType, true), pInitBuf);
}
QvpStatus qvpiResizeAntialiasingCubicInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType, Qvp32f valueB,
                                            Qvp32f valueC, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitCubic(Wide(srcSize, dstSize, pSpec, dataType, true), valueB, valueC, pInitBuf, WeightKind::kFloat, true);
}
QvpStatus qvpiResizeAntialiasingLanczosInit_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType,
                                              Qvp32u numLobes, QvpiResizeSpec* pSpec, Qvp8u* pInitBuf) {
  return InitLanczos(Wide(srcSize, dstSize, pSpec, dataType, true), numLobes, pInitBuf, WeightKind::kFloat, true);
}
