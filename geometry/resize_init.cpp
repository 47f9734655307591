// Resize: making records, and switching them between fast and accurate.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/export.h"
#include "geometry/interpolation_kernels.h"
#include "geometry/resize_record.h"

namespace qvp::resize {
namespace {

struct Method {
  QvpiInterpolationType interpolation;
  WeightKind weights = WeightKind::kFloat;
  bool isFor8u = false, isAntialiasing = false;
  float b = 0, c = 0;
  uint32_t lobes = 0;
  double shift[2] = {};

  InterpolationKernel Kernel() const { return {interpolation, b, c, lobes}; }
  bool HasPlainTaps() const {
    return isAntialiasing || interpolation == qvpInterpolationCubic || interpolation == qvpInterpolationLanczos;
  }
};

// Hands out the places of the tables, one behind the other.
class Tables {
 public:
  explicit Tables(ResizeRecord& record) : base_(reinterpret_cast<uint8_t*>(&record)) {}

  template <class T>
  T* Take(int64_t count, uint32_t* low, uint32_t* high) {
    *low = static_cast<uint32_t>(next_);
    *high = static_cast<uint32_t>(static_cast<uint64_t>(next_) >> 32);
    T* table = reinterpret_cast<T*>(base_ + next_);
    next_ += (count * static_cast<int64_t>(sizeof(T)) + kTableAlignment - 1) & -kTableAlignment;
    return table;
  }
  int32_t* TakeIndex(ResizeAxis& axis, int64_t count) { return Take<int32_t>(count, &axis.indexAt, &axis.indexAtHigh); }
  template <class W>
  W* TakeWeights(ResizeAxis& axis, int64_t count) {
    return Take<W>(count, &axis.weightsAt, &axis.weightsAtHigh);
  }

 private:
  uint8_t* base_;
  int64_t next_ = kTablesAt;
};

void FillNearest(ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) index[d] = static_cast<int32_t>(axis.Nearest(d));
}

// Counts positions whose taps [first, first + taps) are not all inside.
void CountBorders(ResizeAxis& axis, ptrdiff_t first, ptrdiff_t taps) {
  axis.leading += first < 0;
  axis.trailing += first + taps > axis.source;
}

void FillLinearIndex(ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  axis.taps = axis.certainTaps = 2;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const ptrdiff_t first = FloorOf(axis.Coordinate(d));
    index[d] = static_cast<int32_t>(first);
    CountBorders(axis, first, 2);
  }
}

double FractionOf(double x) { return x - static_cast<double>(FloorOf(x)); }

// The weight of the second pixel in units of 1/16384, less than 16384.
int16_t FixedFraction(double x) { return static_cast<int16_t>(FractionOf(x) * kFixedOne + 0.0000001); }

// Rows have the weight of the lower one; columns pairs for the left and the right one.
void FillLinearWeights(ResizeAxis& axis, WeightKind kind, bool isPairs, Tables& tables) {
  const ptrdiff_t n = axis.destination;
  if (kind == WeightKind::kFixed) {
    auto* w = tables.TakeWeights<int16_t>(axis, isPairs ? 2 * n : n);
    for (ptrdiff_t d = 0; d < n; ++d) {
      const int16_t second = FixedFraction(axis.Coordinate(d));
      if (isPairs) *w++ = static_cast<int16_t>(kFixedOne - second);
      *w++ = second;
    }
  } else if (kind == WeightKind::kFloat) {
    auto* w = tables.TakeWeights<float>(axis, n);
    for (ptrdiff_t d = 0; d < n; ++d) w[d] = static_cast<float>(FractionOf(axis.Coordinate(d)));
  } else {
    auto* w = tables.TakeWeights<double>(axis, n);
    for (ptrdiff_t d = 0; d < n; ++d) w[d] = FractionOf(axis.Coordinate(d));
  }
}

void FillLinear(ResizeRecord& record, WeightKind kind, Tables& tables) {
  FillLinearIndex(record.rows, tables);
  FillLinearIndex(record.columns, tables);
  FillLinearWeights(record.rows, kind, false, tables);
  FillLinearWeights(record.columns, kind, true, tables);
}

// The taps of one position: the source pixels nearer than the reach, which is widened by `scale`.
struct Support {
  double centre, reach;
  ptrdiff_t First() const { return FloorOf(centre - reach) + 1; }
  ptrdiff_t End() const { return -FloorOf(-(centre + reach)); }
};

double ScaleOf(const ResizeAxis& axis, const Method& method) {
  return method.isAntialiasing && axis.p > axis.q ? static_cast<double>(axis.p) / axis.q : 1.0;
}

// Most and fewest taps of any position, and the positions that need a border.
void FillTapIndex(ResizeAxis& axis, const Method& method, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  const int reach = method.Kernel().Reach();
  const double scale = ScaleOf(axis, method);
  axis.taps = method.isAntialiasing ? 0 : 2 * reach;
  axis.certainTaps = method.isAntialiasing ? INT32_MAX : 2 * reach;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const Support support{axis.Coordinate(d), reach * scale};
    const ptrdiff_t first = method.isAntialiasing ? support.First() : FloorOf(support.centre) - (reach - 1);
    const ptrdiff_t count = method.isAntialiasing ? support.End() - first : 2 * reach;
    index[d] = static_cast<int32_t>(first);
    axis.taps = std::max(axis.taps, static_cast<int32_t>(count));
    axis.certainTaps = std::min(axis.certainTaps, static_cast<int32_t>(count));
    CountBorders(axis, first, count);
  }
}

// Weights of position d, divided by their sum where the kernel does not itself sum to 1.
class TapWeights {
 public:
  TapWeights(const ResizeAxis& axis, const Method& method, ptrdiff_t d, ptrdiff_t first)
      : kernel_(method.Kernel()), scale_(ScaleOf(axis, method)), centre_(axis.Coordinate(d)), first_(first) {
    const Support support{centre_, kernel_.Reach() * scale_};
    count_ = method.isAntialiasing ? static_cast<int>(support.End() - first) : axis.taps;
    if (!method.isAntialiasing && method.interpolation == qvpInterpolationCubic) return;
    double sum = 0;
    for (int k = 0; k < count_; ++k) sum += Unscaled(k);
    sum_ = sum;
  }
  double At(int k) const { return k < count_ ? Unscaled(k) / sum_ : 0; }

 private:
  double Unscaled(int k) const {
    const double distance = static_cast<double>(first_ + k) - centre_;
    return kernel_.At((distance < 0 ? -distance : distance) / scale_);
  }

  InterpolationKernel kernel_;
  double scale_, centre_;
  ptrdiff_t first_;
  int count_ = 0;
  double sum_ = 1;
};

bool FillFloatTaps(const ResizeRecord& record, ResizeAxis& axis, const Method& method, Tables& tables) {
  const int32_t* index = record.Index(axis);
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<float>(axis, plane * axis.taps);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const TapWeights taps(axis, method, d, index[d]);
    for (int k = 0; k < axis.taps; ++k) weights[k * plane + d] = static_cast<float>(taps.At(k));
  }
  return true;
}

constexpr int kMostFixedTaps = 6;

// Weights in units of 1/16384, which sum to one exactly: the largest takes the residue. False where 16-bit weights or
// 32-bit sums could overflow: a weight of 2 or more, or absolute values that sum to more than 2.8.
bool FixTaps(const TapWeights& taps, int count, int (&fixed)[kMostFixedTaps]) {
  double absolute = 0;
  int sum = 0, largest = 0;
  for (int k = 0; k < count; ++k) {
    const double w = taps.At(k), magnitude = w < 0 ? -w : w;
    absolute += magnitude;
    if (!(magnitude < 2)) return false;
    fixed[k] = static_cast<int>(w * kFixedOne + (w < 0 ? -0.5 : 0.5));
    sum += fixed[k];
    if (std::abs(fixed[k]) > std::abs(fixed[largest])) largest = k;
  }
  fixed[largest] += kFixedOne - sum;
  return absolute <= 2.8 && fixed[largest] <= INT16_MAX && fixed[largest] >= INT16_MIN;
}

// A plane for each pair of taps.
bool FillFixedTaps(const ResizeRecord& record, ResizeAxis& axis, const Method& method, Tables& tables) {
  const int32_t* index = record.Index(axis);
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<int16_t>(axis, plane * axis.taps);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    int fixed[kMostFixedTaps];
    if (!FixTaps(TapWeights(axis, method, d, index[d]), axis.taps, fixed)) return false;
    for (int k = 0; k < axis.taps; ++k) weights[k / 2 * 2 * plane + 2 * d + k % 2] = static_cast<int16_t>(fixed[k]);
  }
  return true;
}

bool FillTaps(ResizeRecord& record, const Method& method, Tables& tables) {
  FillTapIndex(record.rows, method, tables);
  FillTapIndex(record.columns, method, tables);
  const auto fill = method.weights == WeightKind::kFixed ? FillFixedTaps : FillFloatTaps;
  return fill(record, record.rows, method, tables) && fill(record, record.columns, method, tables);
}

// One period: destination position j covers [j p, (j + 1) p) in units of 1 / q source pixels.
void FillSuper(ResizeAxis& axis, Tables& tables) {
  const int64_t p = axis.p, q = axis.q;
  axis.taps = axis.certainTaps = static_cast<int32_t>(p / q + std::min<int64_t>(p % q, 2));
  int32_t* index = tables.TakeIndex(axis, q);
  auto* weights = tables.TakeWeights<float>(axis, q * (p / q + 2));
  for (int64_t j = 0; j < q; ++j) {
    index[j] = static_cast<int32_t>(j * p / q);
    for (int64_t k = 0; k < axis.taps; ++k) {
      weights[k * q + j] = static_cast<float>(Overlap(axis, j, k));
    }
  }
}

bool FillTables(ResizeRecord& record, const Method& method) {
  Tables tables(record);
  if (method.HasPlainTaps()) return FillTaps(record, method, tables);
  switch (method.interpolation) {
    case qvpInterpolationNearest:
      FillNearest(record.rows, tables);
      FillNearest(record.columns, tables);
      break;
    case qvpInterpolationLinear: FillLinear(record, method.weights, tables); break;
    default:
      FillSuper(record.rows, tables);
      FillSuper(record.columns, tables);
      break;
  }
  return true;
}

void SetLengths(ResizeAxis& axis, ptrdiff_t source, ptrdiff_t destination) {
  axis.source = static_cast<int32_t>(source);
  axis.destination = static_cast<int32_t>(destination);
  const int32_t g = std::gcd(axis.source, axis.destination);
  axis.p = axis.source / g;
  axis.q = axis.destination / g;
}

int32_t TapPairs(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  if (!method.isAntialiasing) return method.Kernel().Reach();
  return static_cast<int32_t>(ReservedTaps(method.interpolation, true, axis.source, axis.destination) / 2);
}

// Pixels around the source rectangle of a tile that its taps may reach.
uint32_t BorderOf(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  const double reach = method.Kernel().Reach() * ScaleOf(axis, method);
  return static_cast<uint32_t>(-FloorOf(-reach));
}

void FillHeader(ResizeRecord& record, Size src, Size dst, const Method& method) {
  std::memset(&record, 0, sizeof(record));
  SetLengths(record.rows, src.height, dst.height);
  SetLengths(record.columns, src.width, dst.width);
  record.weights = method.weights;
  record.interpolation = method.interpolation;
  record.tapPairsAcross = TapPairs(method, record.columns);
  record.tapPairsDown = TapPairs(method, record.rows);
  record.isAntialiasing = method.isAntialiasing;
  record.border.left = record.border.right = BorderOf(method, record.columns);
  record.border.top = record.border.bottom = BorderOf(method, record.rows);
  record.mode = method.weights == WeightKind::kFixed ? qvpAlgHintFast : qvpAlgHintAccurate;
  record.sourceWidth = record.columns.source;
  record.sourceHeight = record.rows.source;
  record.width = record.columns.destination;
  record.height = record.rows.destination;
  record.isFastCapable = method.isFor8u;
  record.b = method.b;
  record.c = method.c;
  record.lobes = method.lobes;
  std::memcpy(record.shift, method.shift, sizeof(record.shift));
}

// The tag comes last: a record is whole, or refused.
void Build(ResizeRecord& record, Size src, Size dst, Method method, ResizeForm form) {
  FillHeader(record, src, dst, method);
  if (!FillTables(record, method)) {
    method.weights = WeightKind::kFloat;
    FillHeader(record, src, dst, method);
    FillTables(record, method);
  }
  record.tag = static_cast<uint32_t>(form);
}

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

QvpStatus CheckSource(const InitCall& call, ptrdiff_t shortest) {
  const auto [src, dst, spec, form, type, takes64f] = call;
  if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return qvpStatusNoOperation;
  if (dst.width < 1 || dst.height < 1 || src.width < shortest || src.height < shortest) return qvpStatusSize;
  return qvpStatusNoError;
}

QvpStatus Finish(const InitCall& call, const Method& method) {
  if (const QvpStatus failed = CheckType(call)) return failed;
  Build(*RecordOf(call.spec), call.src, call.dst, method, call.form);
  return qvpStatusNoError;
}

QvpStatus InitNearest(const InitCall& call) {
  if (call.spec == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, 1)) return failed;
  return Finish(call, {qvpInterpolationNearest});
}

QvpStatus InitLinear(const InitCall& call, WeightKind weights) {
  if (call.spec == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, 2)) return failed;
  return Finish(call, {qvpInterpolationLinear, weights, weights == WeightKind::kFixed});
}

QvpStatus InitAntialiasingLinear(const InitCall& call, const Qvp8u* buffer) {
  if (call.spec == nullptr || buffer == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, 2)) return failed;
  return Finish(call, {qvpInterpolationLinear, WeightKind::kFloat, false, true});
}

QvpStatus InitCubic(const InitCall& call, float b, float c, const Qvp8u* buffer, WeightKind weights,
                    bool isAntialiasing = false) {
  if (call.spec == nullptr || buffer == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, 4)) return failed;
  if (!std::isfinite(b) || !std::isfinite(c)) return qvpStatusBadArgument;
  return Finish(call, {qvpInterpolationCubic, weights, weights == WeightKind::kFixed, isAntialiasing, b, c});
}

QvpStatus InitLanczos(const InitCall& call, uint32_t lobes, const Qvp8u* buffer, WeightKind weights,
                      bool isAntialiasing = false) {
  if (call.spec == nullptr || buffer == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, lobes == 3 ? 6 : 4)) return failed;
  if (lobes != 2 && lobes != 3) return qvpStatusNotSupportedMode;
  return Finish(call, {qvpInterpolationLanczos, weights, weights == WeightKind::kFixed, isAntialiasing, 0, 0, lobes});
}

QvpStatus InitSuper(const InitCall& call, double shiftX = 0, double shiftY = 0) {
  if (call.spec == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSource(call, 1)) return failed;
  if (call.src.width < call.dst.width || call.src.height < call.dst.height) return qvpStatusSize;
  if (!std::isfinite(shiftX) || !std::isfinite(shiftY)) return qvpStatusBadArgument;
  return Finish(call, {qvpInterpolationSuper, WeightKind::kFloat, false, false, 0, 0, 0, {shiftX, shiftY}});
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
  Build(record, Size(record.sourceWidth, record.sourceHeight), Size(record.width, record.height), method,
        static_cast<ResizeForm>(record.tag));
  return qvpStatusNoError;
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
