// Sizes, records and modes of the general filter.
#include <cstring>

#include "filter/border_filter.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

constexpr int kAccuracyFlag = 16;

bool IsPositive(QvpiSize size) { return size.width >= 1 && size.height >= 1; }
bool IsFilteredType(QvpDataType type) { return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f; }
bool IsChannelCount(int channels) { return channels >= 1 && channels <= 4; }
// Modes 0 to 2, whether or not with the flag of accuracy.
bool IsModeOfFilter(QvpRoundMode mode) { return (static_cast<uint32_t>(mode) & ~uint32_t{kAccuracyFlag}) <= 2; }

// Whether an integer kernel keeps its integers; else it becomes one of floats.
bool StaysInteger(QvpDataType type, QvpiSize kernel, int channels) {
  if (type == qvp8u) return true;
  if (type != qvp16s || channels > 2) return false;
  return channels == 1 ? kernel.width >= 3 && kernel.height >= 2 : kernel.width >= 2 && kernel.height >= 2;
}

int ElementBytes(QvpDataType type) { return type == qvp8u ? 1 : type == qvp64f ? 8 : type == qvp32f ? 4 : 2; }

FilterKind KindFor(QvpDataType type) {
  return type == qvp8u    ? FilterKind::k8u
         : type == qvp16u ? FilterKind::k16u
         : type == qvp16s ? FilterKind::k16s
                          : FilterKind::k32f;
}

// Samples of the strips that carry the border of a region: all of the region where the kernel is as large, else the
// larger of two strips. A kernel of two rows (columns) takes one more of the far side, which the mirror asks for.
ByteCount StripSamples(QvpiSize kernel, QvpiSize roi) {
  const int64_t w = roi.width, h = roi.height, kw = kernel.width, kh = kernel.height;
  if (kw >= w || kh >= h) return ByteCount(kw + w - 1) * (kh + h - 1);
  const int64_t right = kw == 2 ? 2 : kw / 2, below = kh == 2 ? 2 : kh / 2;
  const ByteCount rows = ByteCount(kw + w - 1) * (kh + below - 1), columns = ByteCount(kh + h - 1) * (kw + right - 1);
  return std::max(below >= 1 ? rows.value() : 0, right >= 1 ? columns.value() : 0);
}

// A region that is lower or narrower than the given one may need more, as it is the kernel that is larger then. One
// buffer shall serve all of them.
ByteCount StripSamplesOfSmaller(QvpiSize kernel, QvpiSize roi) {
  const int64_t w = roi.width, h = roi.height, kw = kernel.width, kh = kernel.height;
  const ByteCount low = ByteCount(kw + w - 1) * (std::min(kh, h) + kh - 1);
  const ByteCount narrow = ByteCount(std::min(kw, w) + kw - 1) * (kh + h - 1);
  return std::max({StripSamples(kernel, roi).value(), low.value(), narrow.value()});
}

// The strips of the border, which are a reserve, as rows take up their border columns where they are prepared; then
// what the kernels work with, in which the rows of a block have the larger part; then what smaller regions need beyond.
ByteCount BufferBytes(QvpiSize kernel, QvpiSize roi, QvpDataType type, int channels, int alignment) {
  const ByteCount sampleBytes(int64_t{ElementBytes(type)} * channels);
  const ByteCount strips = StripSamples(kernel, roi) * sampleBytes;
  const ByteCount beyond = StripSamplesOfSmaller(kernel, roi) * sampleBytes + ByteCount(-strips.value());
  const int64_t element = type == qvp64f ? 8 : 4;
  const ByteCount inputRow =
      (ByteCount(int64_t{roi.width} + kernel.width) * element * channels).RoundedTo(kRecordBoundary);
  const ByteCount sums = (ByteCount(roi.width) * 8 * channels).RoundedTo(kRecordBoundary);
  const ByteCount rows = PlanFor(kernel, channels, roi.width).Bytes();
  return strips.RoundedTo(32) + 32 + alignment + inputRow + sums + rows + beyond;
}

ByteCount RecordBytes(QvpiSize kernel, QvpDataType kernelType, int coefficientBytes) {
  const ByteCount taps = ByteCount(kernel.width) * kernel.height;
  const ByteCount coefficients = (taps * coefficientBytes).RoundedTo(kRecordBoundary) + 191;
  if (kernelType == qvp64f) return coefficients;
  const ByteCount tables = ByteCount(kernel.width).RoundedTo(2) * 80 * kernel.height;
  return coefficients + tables.RoundedTo(kRecordBoundary);
}

QvpStatus CheckTypes(QvpDataType type, QvpDataType kernelType, int channels) {
  if (kernelType == qvp64f)
    return type != qvp64f ? qvpStatusDataType : channels != 1 ? qvpStatusChannel : qvpStatusNoError;
  if (!IsFilteredType(type) || (kernelType != qvp16s && kernelType != qvp32f)) return qvpStatusDataType;
  return IsChannelCount(channels) ? qvpStatusNoError : qvpStatusChannel;
}

template <class K>
void StoreRotated(const K* kernel, ptrdiff_t taps, double* out) {
  for (ptrdiff_t i = 0; i < taps; ++i) {
    K k;
    std::memcpy(&k, kernel + i, sizeof(K));
    out[taps - 1 - i] = static_cast<double>(k);
  }
}

// What an Init is asked for.
struct FilterRequest {
  const void* kernel;
  QvpiSize size;
  QvpDataType type;
  int channels;
  QvpRoundMode roundMode;
};

// All that kernels of any type have, but the identification.
template <class K>
void StoreKernel(const FilterRequest& request, FilterRecord& record) {
  record = {};
  record.width = request.size.width;
  record.height = request.size.height;
  record.channels = request.channels;
  record.divisor = 1;
  record.roundMode = request.roundMode;
  record.hint = qvpAlgHintFast;
  StoreRotated(static_cast<const K*>(request.kernel), record.taps(), record.Doubles());
}

// Coefficient in row j and column i of the rotated kernel, 0 beyond it.
int CoefficientAt(const FilterRecord& r, ptrdiff_t j, ptrdiff_t i) {
  return j >= 0 && j < r.height ? static_cast<int>(r.Doubles()[j * r.width + i]) : 0;
}

// 8-bit pixels times 8-bit coefficients: no pair may leave 16 bits, and all sums must lie within a range of 65536, as
// they are formed modulo that.
bool FitsBytes(const FilterRecord& r) {
  if ((r.positive - r.negative) * 255 > 65535) return false;
  for (ptrdiff_t j = 0; j < r.height; ++j) {
    for (ptrdiff_t i = 0; i < r.width; ++i) {
      const int k = CoefficientAt(r, j, i), next = CoefficientAt(r, j + 1, i);
      if (k > 127 || std::abs(k) + std::abs(next) > 128) return false;
    }
  }
  return true;
}

void SumCoefficients(FilterRecord& r) {
  for (ptrdiff_t i = 0; i < r.taps(); ++i) {
    const auto k = static_cast<int64_t>(r.Doubles()[i]);
    (k > 0 ? r.positive : r.negative) += k;
    if (k == INT16_MIN || k == INT16_MAX) r.pairForm = PairForm::kNone;
  }
}

int32_t Pair(PairForm form, int first, int second) {
  const uint32_t bits = form == PairForm::kBytes ? 8 : 16, mask = (1u << bits) - 1;
  const uint32_t pair = (static_cast<uint32_t>(first) & mask) | (static_cast<uint32_t>(second) & mask) << bits;
  return static_cast<int32_t>(form == PairForm::kBytes ? pair | pair << 16 : pair);
}

void StorePairs(FilterRecord& r) {
  int32_t* out = r.PairsAt();
  for (ptrdiff_t p = 0; p < r.PairsOfRows(); ++p) {
    for (ptrdiff_t i = 0; i < r.width; ++i) {
      const int row = CoefficientAt(r, 2 * p, i);
      *out++ = Pair(r.pairForm, row, CoefficientAt(r, 2 * p + 1, i));
      *out++ = Pair(r.pairForm, CoefficientAt(r, 2 * p - 1, i), row);
    }
  }
}

// Pairs of coefficients for the form that these fit.
void StoreIntegers(FilterRecord& r, QvpDataType type, int divisor) {
  r.kind = type == qvp8u ? FilterKind::kInt8u : FilterKind::kInt16s;
  r.divisor = divisor;
  r.pairForm = PairForm::kWords;
  SumCoefficients(r);
  if (type == qvp8u && FitsBytes(r)) r.pairForm = PairForm::kBytes;
  StorePairs(r);
}

// The float kinds compute with single precision; doubles hold the same numbers.
void StoreFloats(FilterRecord& r, QvpDataType type, int divisor) {
  r.kind = KindFor(type);
  for (ptrdiff_t i = 0; i < r.taps(); ++i) {
    r.Floats()[i] = static_cast<float>(r.Doubles()[i] / divisor);
    r.Doubles()[i] = static_cast<double>(r.Floats()[i]);
  }
}

QvpStatus WarningFor(QvpRoundMode mode, bool hasAccuracy) {
  return (mode & kAccuracyFlag) && !hasAccuracy ? qvpStatusAccurateModeNotSupported : qvpStatusNoError;
}

QvpStatus FillFromIntegers(const FilterRequest& request, int divisor, FilterRecord* record) {
  const auto [kernel, size, type, channels, roundMode] = request;
  if (!kernel || !record) return qvpStatusNullPointer;
  if (!IsPositive(size)) return qvpStatusSize;
  if (!IsFilteredType(type) || type == qvp32f) return qvpStatusDataType;
  if (!IsChannelCount(channels)) return qvpStatusChannel;
  if (!IsModeOfFilter(roundMode)) return qvpStatusRoundMode;
  if (divisor == 0) return qvpStatusDivisor;
  StoreKernel<Qvp16s>(request, *record);
  if (StaysInteger(type, size, channels)) {
    StoreIntegers(*record, type, divisor);
  } else {
    StoreFloats(*record, type, divisor);
  }
  return WarningFor(roundMode, type == qvp8u || (type == qvp16s && channels == 1));
}

QvpStatus FillFromFloats(const FilterRequest& request, FilterRecord* record) {
  const auto [kernel, size, type, channels, roundMode] = request;
  if (!kernel || !record) return qvpStatusNullPointer;
  if (!IsPositive(size)) return qvpStatusSize;
  if (!IsFilteredType(type)) return qvpStatusDataType;
  if (!IsChannelCount(channels)) return qvpStatusChannel;
  if (!IsModeOfFilter(roundMode)) return qvpStatusRoundMode;
  StoreKernel<Qvp32f>(request, *record);
  StoreFloats(*record, type, 1);
  return WarningFor(roundMode, false);
}

QvpStatus FillFromDoubles(const FilterRequest& request, FilterRecord* record) {
  const auto [kernel, size, type, channels, roundMode] = request;
  if (!kernel || !record) return qvpStatusNullPointer;
  if (!IsPositive(size)) return qvpStatusSize;
  if (type != qvp64f) return qvpStatusDataType;
  if (channels != 1) return qvpStatusChannel;
  if ((roundMode & ~kAccuracyFlag) != qvpRoundNear) return qvpStatusRoundMode;
  StoreKernel<Qvp64f>(request, *record);
  record->kind = FilterKind::k64f;
  return qvpStatusNoError;
}

// fill(record) checks and writes; a null pointer stays one.
template <class Fill>
QvpStatus Init(QvpiFilterBorderSpec* spec, const Fill& fill) {
  FilterRecord* const record = RecordIn<FilterRecord>(spec);
  return InitRecord(record ? &record->identification : nullptr, FilterRecord::kIdentification,
                    [&] { return fill(record); });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterBorderGetSize(QvpiSize kernelSize, QvpiSize dstRoiSize, QvpDataType dataType,
                                  QvpDataType kernelType, int numChannels, int* pSpecSize, int* pBufferSize) {
  if (!IsPositive(kernelSize) || !IsPositive(dstRoiSize)) return qvpStatusSize;
  if (const QvpStatus failed = CheckTypes(dataType, kernelType, numChannels)) return failed;
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  const bool isInteger = kernelType == qvp16s && StaysInteger(dataType, kernelSize, numChannels);
  const int coefficientBytes = kernelType == qvp64f ? 8 : isInteger ? 2 : 4;
  const int alignment = kernelType == qvp64f ? 126 : 63;
  const ByteCount buffer = BufferBytes(kernelSize, dstRoiSize, dataType, numChannels, alignment);
  const QvpStatus record = RecordBytes(kernelSize, kernelType, coefficientBytes).StoreTo(pSpecSize);
  const QvpStatus failed = buffer.StoreTo(pBufferSize);
  return failed ? failed : record;
}

QvpStatus qvpiFilterBorderInit_16s(const Qvp16s* pKernel, QvpiSize kernelSize, int divisor, QvpDataType dataType,
                                   int numChannels, QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec) {
  const FilterRequest request{pKernel, kernelSize, dataType, numChannels, roundMode};
  return Init(pSpec, [&](FilterRecord* record) { return FillFromIntegers(request, divisor, record); });
}

QvpStatus qvpiFilterBorderInit_32f(const Qvp32f* pKernel, QvpiSize kernelSize, QvpDataType dataType, int numChannels,
                                   QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec) {
  const FilterRequest request{pKernel, kernelSize, dataType, numChannels, roundMode};
  return Init(pSpec, [&](FilterRecord* record) { return FillFromFloats(request, record); });
}

QvpStatus qvpiFilterBorderInit_64f(const Qvp64f* pKernel, QvpiSize kernelSize, QvpDataType dataType, int numChannels,
                                   QvpRoundMode roundMode, QvpiFilterBorderSpec* pSpec) {
  const FilterRequest request{pKernel, kernelSize, dataType, numChannels, roundMode};
  return Init(pSpec, [&](FilterRecord* record) { return FillFromDoubles(request, record); });
}

QvpStatus qvpiFilterBorderSetMode(QvpHintAlgorithm hint, int offset, QvpiFilterBorderSpec* pSpec) {
  if (!pSpec) return qvpStatusNullPointer;
  FilterRecord& record = *RecordIn<FilterRecord>(pSpec);
  if (!record.IsReady()) return qvpStatusContextMatch;
  const bool takesOffset =
      record.kind == FilterKind::kInt8u || record.kind == FilterKind::k8u || record.kind == FilterKind::k16u;
  if (offset != 0 && !takesOffset) return qvpStatusNotSupportedMode;
  if (record.kind == FilterKind::k64f) return qvpStatusNoError;
  const bool hasAccuracy =
      record.kind == FilterKind::kInt8u || (record.kind == FilterKind::kInt16s && record.channels == 1);
  record.roundMode = record.mode() | (hint == qvpAlgHintAccurate && hasAccuracy ? kAccuracyFlag : 0);
  record.offset = offset;
  record.hint = hint;
  return qvpStatusNoError;
}
