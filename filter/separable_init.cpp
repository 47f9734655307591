// Sizes and records of the separable filter.
#include <algorithm>
#include <cstdlib>

#include "base/round.h"
#include "base/scalar.h"
#include "filter/separable.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

constexpr int64_t kMostTaps = 65536;

constexpr bool IsKernel(QvpiSize size) {
  return size.width >= 1 && size.height >= 1 && int64_t{size.width} * size.height <= kMostTaps;
}

// Pairs of types that a kernel of integers serves, and one of floats.
constexpr bool AreTypesOf(QvpDataType src, QvpDataType dst, QvpDataType kernel) {
  const bool isInteger = src == qvp8u || src == qvp16u || src == qvp16s;
  if (isInteger && (src == dst || (src == qvp8u && dst == qvp16s))) return kernel == qvp16s || kernel == qvp32f;
  return src == qvp32f && dst == qvp32f && kernel == qvp32f;
}

constexpr int64_t LargestPixel(QvpDataType type) { return type == qvp8u ? 255 : type == qvp16u ? 65535 : 32768; }

ByteCount RecordBytes(QvpiSize kernel) {
  const int64_t tables = SeparableRecord::TableBytes(kernel.width) + SeparableRecord::TableBytes(kernel.height);
  return ByteCount(tables) + SeparableRecord::kHeadBytes + kRecordBoundary;
}

template <class K>
int64_t SumOfMagnitudes(const K* kernel, int64_t taps) {
  int64_t sum = 0;
  for (int64_t i = 0; i < taps; ++i) sum += std::abs(int64_t{LoadScalar(kernel + i)});
  return sum;
}

// The narrowest form whose sums are exact.
SeparableForm FormFor(QvpDataType type, int64_t across, int64_t down) {
  const ByteCount largest = ByteCount(LargestPixel(type)) * across * down;
  if (largest.value() >= int64_t{1} << 53) return SeparableForm::kLongs;
  if (largest.value() > INT32_MAX) return SeparableForm::kDoubles;
  return type == qvp8u && LargestPixel(type) * across <= INT16_MAX ? SeparableForm::kWords : SeparableForm::kInts;
}

template <class F, class K>
void StoreTurned(const K* kernel, int64_t taps, uint8_t* table) {
  auto* const to = reinterpret_cast<F*>(table);
  for (int64_t i = 0; i < taps; ++i) to[taps - 1 - i] = static_cast<F>(LoadScalar(kernel + i));
}

void StorePairs(int64_t taps, uint8_t* table) {
  const auto* const from = SeparableRecord::TapsIn<int32_t>(table);
  auto* const to = const_cast<int32_t*>(SeparableRecord::PairsIn(table, taps));
  for (int64_t i = 0; i < taps; i += 2) {
    const uint32_t second = i + 1 < taps ? static_cast<uint32_t>(from[i + 1]) : 0;
    to[i / 2] = static_cast<int32_t>((static_cast<uint32_t>(from[i]) & 0xFFFF) | second << 16);
  }
}

void StoreTaps(const Qvp16s* kernel, int64_t taps, SeparableForm form, uint8_t* table) {
  if (form == SeparableForm::kDoubles) return StoreTurned<double>(kernel, taps, table);
  if (form == SeparableForm::kLongs) return StoreTurned<int64_t>(kernel, taps, table);
  StoreTurned<int32_t>(kernel, taps, table);
  StorePairs(taps, table);
}

// What both Inits check, and what their records begin with.
struct Request {
  const void *across, *down;
  QvpiSize size;
  QvpDataType src, dst, kernel;
  int channels;
  QvpRoundMode mode;

  QvpStatus Check() const {
    if (!across || !down) return qvpStatusNullPointer;
    if (!IsKernel(size)) return qvpStatusMaskSize;
    if (!AreTypesOf(src, dst, kernel)) return qvpStatusDataType;
    if (!IsFilteredChannelCount(channels)) return qvpStatusNumChannels;
    return IsRoundMode(mode) ? qvpStatusNoError : qvpStatusRoundMode;
  }
  void Fill(SeparableRecord& record) const {
    const uint32_t identification = record.identification;
    record = {};
    record.identification = identification;
    record.srcType = src;
    record.dstType = dst;
    record.kernelType = kernel;
    record.channels = channels;
    record.width = size.width;
    record.height = size.height;
    record.divisor = 1;
    record.mode = mode;
  }
};

QvpStatus FillIntegers(const Request& request, int divisor, SeparableRecord& record) {
  if (const QvpStatus failed = request.Check()) return failed;
  if (divisor == 0) return qvpStatusDivisor;
  request.Fill(record);
  const auto *const across = static_cast<const Qvp16s*>(request.across), *const down =
                                                                             static_cast<const Qvp16s*>(request.down);
  const int64_t w = request.size.width, h = request.size.height;
  const int64_t ofRow = SumOfMagnitudes(across, w), ofColumn = SumOfMagnitudes(down, h);
  record.divisor = divisor;
  record.form = FormFor(request.src, ofRow, ofColumn);
  if (record.form == SeparableForm::kWords || record.form == SeparableForm::kInts) {
    record.largestSum = static_cast<int32_t>(LargestPixel(request.src) * ofRow * ofColumn);
    for (int64_t i = 0; i < w; ++i) record.rowSum += LoadScalar(across + i);
  }
  StoreTaps(across, w, record.form, record.Across());
  StoreTaps(down, h, record.form, record.Down());
  return qvpStatusNoError;
}

QvpStatus FillFloats(const Request& request, SeparableRecord& record) {
  if (const QvpStatus failed = request.Check()) return failed;
  request.Fill(record);
  record.form = SeparableForm::kFloats;
  StoreTurned<float>(static_cast<const Qvp32f*>(request.across), request.size.width, record.Across());
  StoreTurned<float>(static_cast<const Qvp32f*>(request.down), request.size.height, record.Down());
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterSeparableBorderGetSize(QvpiSize kernelSize, QvpiSize roiSize, QvpDataType srcType,
                                           QvpDataType dstType, QvpDataType kernelType, int numChannels, int* pSpecSize,
                                           int* pBufferSize) {
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (!IsKernel(kernelSize)) return qvpStatusMaskSize;
  if (!AreTypesOf(srcType, dstType, kernelType)) return qvpStatusDataType;
  if (!IsFilteredChannelCount(numChannels)) return qvpStatusNumChannels;
  const QvpStatus spec = RecordBytes(kernelSize).StoreTo(pSpecSize);
  const int longest = kernelType == qvp32f ? 4 : 8;  // an element of a line
  const QvpStatus buffer =
      WindowBytes(kernelSize, roiSize.width, numChannels, longest, {}, LaneCacheBytes(longest)).StoreTo(pBufferSize);
  return spec ? spec : buffer;
}

QvpStatus qvpiFilterSeparableBorderInit_16s(const Qvp16s* pRowKernel, const Qvp16s* pColumnKernel, QvpiSize kernelSize,
                                            int divisor, QvpDataType srcType, QvpDataType dstType, int numChannels,
                                            QvpRoundMode roundMode, QvpiFilterSeparableBorderSpec* pSpec) {
  const Request request{pRowKernel, pColumnKernel, kernelSize, srcType, dstType, qvp16s, numChannels, roundMode};
  return InitRecordIn<SeparableRecord>(pSpec,
                                       [&](SeparableRecord& record) { return FillIntegers(request, divisor, record); });
}

QvpStatus qvpiFilterSeparableBorderInit_32f(const Qvp32f* pRowKernel, const Qvp32f* pColumnKernel, QvpiSize kernelSize,
                                            QvpDataType srcType, QvpDataType dstType, int numChannels,
                                            QvpRoundMode roundMode, QvpiFilterSeparableBorderSpec* pSpec) {
  const Request request{pRowKernel, pColumnKernel, kernelSize, srcType, dstType, qvp32f, numChannels, roundMode};
  return InitRecordIn<SeparableRecord>(pSpec, [&](SeparableRecord& record) { return FillFloats(request, record); });
}
