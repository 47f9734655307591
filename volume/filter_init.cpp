// Sizes and records of the general filter in space.
#include "base/round.h"
#include "base/scalar.h"
#include "qvpi.h"
#include "volume/filter_blocks.h"
#include "volume/filter_record.h"

namespace {
using namespace qvp;
using namespace qvp::volume;

bool IsFiltered(QvpDataType type, bool isInteger) {
  return type == qvp8u || type == qvp16u || type == qvp16s || (type == qvp32f && !isInteger);
}

ByteCount CellsOf(QvprVolume kernel) { return ByteCount(kernel.width) * kernel.height * kernel.depth; }

// The record begins at a boundary of a block that begins anywhere.
ByteCount RecordBytes(QvprVolume kernel) {
  const ByteCount pairs = ByteCount(kernel.width) * (kernel.height / 2 + 1) * kernel.depth * 8;
  return (CellsOf(kernel) * 8).RoundedTo(kRecordBoundary) + pairs.RoundedTo(kRecordBoundary) + kRecordBoundary +
         FilterRecord::kHeadBytes;
}

ByteCount BufferBytes(QvprVolume kernel, const VolumeSize& size) {
  return BlockPlan(Mask::Centred(kernel), size).Bytes() + kRecordBoundary;
}

bool IsRepresentable(QvprVolume kernel) {
  int bytes;
  return VolumeSize(kernel).IsBelowMost() && RecordBytes(kernel).StoreTo(&bytes) == qvpStatusNoError;
}

struct Request {
  QvprVolume kernel;
  QvprPoint anchor;
  QvpDataType type;
  QvpRoundMode mode;
  bool isInteger = false;
  int divisor = 1;
};

QvpStatus Check(const Request& r) {
  const auto isInside = [](int position, int length) { return position >= 0 && position < length; };
  if (!VolumeSize(r.kernel).HasVoxels()) return qvpStatusSize;
  if (!isInside(r.anchor.x, r.kernel.width) || !isInside(r.anchor.y, r.kernel.height) ||
      !isInside(r.anchor.z, r.kernel.depth)) {
    return qvpStatusAnchor;
  }
  if (r.divisor == 0) return qvpStatusDivisor;
  if (!IsFiltered(r.type, r.isInteger)) return qvpStatusDataType;
  if (!IsRoundMode(r.mode)) return qvpStatusRoundMode;
  return IsRepresentable(r.kernel) ? qvpStatusNoError : qvpStatusSizeOverflow;
}

template <class K, class C>
C* StoreTurned(const K* kernel, ptrdiff_t n, C* to) {
  for (ptrdiff_t i = 0; i < n; ++i) to[n - 1 - i] = LoadScalar(kernel + i);
  return to + n;
}

void StorePairs(FilterRecord& record) {
  const Mask mask = record.mask();
  const int32_t* row = record.Coefficients<int32_t>();
  int32_t* to = record.Pairs();
  for (ptrdiff_t j = 0; j < mask.lines(); ++j, row += mask.width) {
    for (ptrdiff_t i = 0; i < mask.width; i += 2) {
      const uint32_t second = i + 1 < mask.width ? static_cast<uint32_t>(row[i + 1]) : 0;
      *to++ = static_cast<int32_t>((static_cast<uint32_t>(row[i]) & 0xFFFF) | second << 16);
    }
  }
}

// Sums in 32 bits are right if the last one has its place there, whatever partial sums do.
void StoreIntegers(FilterRecord& record, const Qvp16s* kernel) {
  const ptrdiff_t n = record.mask().cells();
  StoreTurned(kernel, n, record.Coefficients<int32_t>());
  int64_t magnitudes = 0;
  for (ptrdiff_t i = 0; i < n; ++i) {
    const int64_t k = record.Coefficients<int32_t>()[i];
    record.total += k;
    magnitudes += std::abs(k);
  }
  record.largest = magnitudes * (record.type == qvp8u ? UINT8_MAX : record.type == qvp16u ? UINT16_MAX : -INT16_MIN);
  record.sums = record.largest <= INT32_MAX ? FilterSums::kWords : FilterSums::kLongs;
  StorePairs(record);
}

void StoreSeparable(FilterRecord& record, const Qvp32f* const (&kernels)[3]) {
  const auto [width, height, depth] = record.kernel;
  float* to = StoreTurned(kernels[0], width, record.Coefficients<float>());
  to = StoreTurned(kernels[1], height, to);
  StoreTurned(kernels[2], depth, to);
  record.sums = FilterSums::kSeparable;
}

// store(record) stores the coefficients.
template <class Store>
QvpStatus Init(const Request& request, bool hasKernel, QvprFilterBorderSpec* spec, const Store& store) {
  return InitRecordIn<FilterRecord>(spec, [&](FilterRecord& record) -> QvpStatus {
    if (!hasKernel) return qvpStatusNullPointer;
    if (const QvpStatus failed = Check(request)) return failed;
    record = {};
    record.type = request.type;
    record.mode = request.mode;
    record.kernel = request.kernel;
    record.anchor = request.anchor;
    record.divisor = request.divisor;
    store(record);
    return qvpStatusNoError;
  });
}

}  // namespace

QvpStatus qvprFilterBorderGetSize(QvprVolume kernelVolume, QvprVolume dstVolume, QvpDataType dataType,
                                  QvpDataType kernelType, int* pSpecSize, int* pBufferSize) {
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  const VolumeSize kernel = kernelVolume, size = dstVolume;
  if (!kernel.HasVoxels() || !size.HasVoxels()) return qvpStatusSize;
  const bool isKernel = kernelType == qvp16s || kernelType == qvp32f;
  if (!isKernel || !IsFiltered(dataType, kernelType == qvp16s)) return qvpStatusDataType;
  const bool isBelowMost = kernel.IsBelowMost() && size.IsBelowMost();
  const ByteCount tooMany(INT64_MAX);
  const QvpStatus ofRecord = (isBelowMost ? RecordBytes(kernelVolume) : tooMany).StoreTo(pSpecSize);
  const QvpStatus failed = (isBelowMost ? BufferBytes(kernelVolume, size) : tooMany).StoreTo(pBufferSize);
  return failed ? failed : ofRecord;
}

QvpStatus qvprFilterBorderInit_16s(const Qvp16s* pKernel, QvprVolume kernelVolume, QvprPoint anchor, int divisor,
                                   QvpDataType dataType, QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec) {
  return Init({kernelVolume, anchor, dataType, roundMode, true, divisor}, pKernel, pSpec,
              [=](FilterRecord& record) { StoreIntegers(record, pKernel); });
}

QvpStatus qvprFilterBorderInit_32f(const Qvp32f* pKernel, QvprVolume kernelVolume, QvprPoint anchor,
                                   QvpDataType dataType, QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec) {
  return Init({kernelVolume, anchor, dataType, roundMode}, pKernel, pSpec, [=](FilterRecord& record) {
    StoreTurned(pKernel, record.mask().cells(), record.Coefficients<float>());
    record.sums = FilterSums::kFloats;
  });
}

QvpStatus qvprFilterBorderSeparableInit_32f(const Qvp32f* pKernelX, const Qvp32f* pKernelY, const Qvp32f* pKernelZ,
                                            QvprVolume kernelVolume, QvprPoint anchor, QvpDataType dataType,
                                            QvpRoundMode roundMode, QvprFilterBorderSpec* pSpec) {
  return Init({kernelVolume, anchor, dataType, roundMode}, pKernelX && pKernelY && pKernelZ, pSpec,
              [=](FilterRecord& record) {
                StoreSeparable(record, {pKernelX, pKernelY, pKernelZ});
              });
}
