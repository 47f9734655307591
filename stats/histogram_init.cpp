// Sizes, Init functions and levels of histograms.
#include "base/record.h"
#include "qvpi.h"
#include "stats/histogram_spec.h"

namespace {
using namespace qvp;

template <class T>
T Entry(const T* array, ptrdiff_t i) {
  T value;
  std::memcpy(&value, array + i, sizeof(T));
  return value;
}

// Toward zero, within the range of 32 bits.
int32_t Truncated(double v) {
  if (v <= INT32_MIN) return INT32_MIN;
  return v >= INT32_MAX ? INT32_MAX : static_cast<int32_t>(v);
}
// The least integer that is not below v, within the range of 32 bits.
int32_t Ceiling(double v) {
  const int32_t whole = Truncated(v);
  return v > whole && whole < INT32_MAX ? whole + 1 : whole;
}

// Writes a record: as long as it is not finished, its identification is 0.
class Writer {
 public:
  Writer(QvpiHistogramSpec* spec, QvpDataType type, int channels, bool isUniform)
      : bytes_(reinterpret_cast<uint8_t*>(spec)), header_{type, channels, isUniform, 0, {}, {}} {
    WriteIdentification(0);
  }

  void Add(int channel, int levels) {
    header_.levels[channel] = levels;
    offset_ = HistogramRecord::OffsetOf(header_, channel);
    header_.arrays[channel] = bytes_ + offset_;
  }
  // Level k of the channel added last; integers are rounded by `round`.
  void Put(ptrdiff_t k, double level, int32_t (*round)(double)) {
    uint8_t* const to = bytes_ + offset_ + k * HistogramRecord::kLevelBytes;
    const auto single = static_cast<float>(level);
    const int32_t whole = header_.dataType == qvp32f ? 0 : round(level);
    std::memcpy(to, header_.dataType == qvp32f ? static_cast<const void*>(&single) : &whole, sizeof(whole));
  }
  void Finish() {
    std::memset(bytes_, 0, HistogramRecord::kHeaderBytes);
    std::memcpy(bytes_, &header_, sizeof(header_));
    WriteIdentification(HistogramRecord::kIdentification);
  }

 private:
  void WriteIdentification(uint32_t word) {
    std::memcpy(bytes_ + offsetof(HistogramHeader, identification), &word, sizeof(word));
  }

  uint8_t* bytes_;
  HistogramHeader header_;
  ptrdiff_t offset_ = HistogramRecord::kHeaderBytes;
};

QvpStatus CheckLevels(const float* levels, int n) {
  if (levels == nullptr) return qvpStatusNullPointer;
  if (n < 2) return qvpStatusHistoLevels;
  for (ptrdiff_t k = 0; k + 1 < n; ++k) {
    if (!(Entry(levels, k) < Entry(levels, k + 1))) return qvpStatusRange;
  }
  return qvpStatusNoError;
}

// With an infinite bound there are no levels in between.
QvpStatus CheckBounds(double lower, double upper, int n) {
  if (n < 2) return qvpStatusHistoLevels;
  const bool isFinite = upper - lower < __builtin_inf();
  return lower < upper && (isFinite || n == 2) ? qvpStatusNoError : qvpStatusRange;
}

// Whatever fails, the record is none from here on.
QvpStatus CheckFirst(QvpDataType type, const void* a, const void* b, const void* c, QvpiHistogramSpec* spec) {
  if (spec) Writer(spec, type, 0, false);
  if (!IsHistogramType(type)) return qvpStatusDataType;
  return a && b && c && spec ? qvpStatusNoError : qvpStatusNullPointer;
}

}  // namespace

QvpStatus qvpiHistogramGetBufferSize(QvpDataType dataType, QvpiSize roiSize, const int nLevels[], int numChannels, int,
                                     int* pSpecSize, int* pBufferSize) {
  if (!nLevels || !pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (!IsHistogramChannels(numChannels)) return qvpStatusNumChannels;
  ByteCount bytes = HistogramRecord::kHeaderBytes;
  for (int c = 0; c < numChannels; ++c) {
    const int n = Entry(nLevels, c);
    if (n < 2) return qvpStatusHistoLevels;
    bytes = bytes + ByteCount(n) * HistogramRecord::kLevelBytes;
  }
  if (const QvpStatus failed = bytes.StoreTo(pSpecSize)) return failed;
  const int values = dataType == qvp8u ? 256 : dataType == qvp16u || dataType == qvp16s ? 65536 : 0;
  *pBufferSize = values * static_cast<int>(sizeof(Qvp32u)) * numChannels;
  return IsHistogramType(dataType) ? qvpStatusNoError : qvpStatusDataType;
}

QvpStatus qvpiHistogramInit(QvpDataType dataType, const Qvp32f* const pLevels[], const int nLevels[], int numChannels,
                            QvpiHistogramSpec* pSpec) {
  if (const QvpStatus failed = CheckFirst(dataType, pLevels, nLevels, nLevels, pSpec)) return failed;
  Writer writer(pSpec, dataType, numChannels, false);
  if (!IsHistogramChannels(numChannels)) return qvpStatusNumChannels;
  for (int c = 0; c < numChannels; ++c) {
    if (const QvpStatus failed = CheckLevels(Entry(pLevels, c), Entry(nLevels, c))) return failed;
  }
  for (int c = 0; c < numChannels; ++c) {
    const int n = Entry(nLevels, c);
    writer.Add(c, n);
    for (ptrdiff_t k = 0; k < n; ++k) writer.Put(k, Entry(Entry(pLevels, c), k), Ceiling);
  }
  writer.Finish();
  return qvpStatusNoError;
}

QvpStatus qvpiHistogramUniformInit(QvpDataType dataType, const Qvp32f lowerLevel[], const Qvp32f upperLevel[],
                                   const int nLevels[], int numChannels, QvpiHistogramSpec* pSpec) {
  if (const QvpStatus failed = CheckFirst(dataType, lowerLevel, upperLevel, nLevels, pSpec)) return failed;
  Writer writer(pSpec, dataType, numChannels, true);
  if (!IsHistogramChannels(numChannels)) return qvpStatusNumChannels;
  for (int c = 0; c < numChannels; ++c) {
    const QvpStatus failed = CheckBounds(Entry(lowerLevel, c), Entry(upperLevel, c), Entry(nLevels, c));
    if (failed) return failed;
  }
  bool isNarrow = false;
  for (int c = 0; c < numChannels; ++c) {
    const double lower = Entry(lowerLevel, c), upper = Entry(upperLevel, c);
    const int n = Entry(nLevels, c);
    const double step = (upper - lower) / (n - 1);
    isNarrow |= step < 1;
    writer.Add(c, n);
    writer.Put(0, lower, Truncated);
    for (ptrdiff_t k = 1; k + 1 < n; ++k) writer.Put(k, lower + static_cast<double>(k) * step, Truncated);
    writer.Put(n - 1, upper, Truncated);
  }
  writer.Finish();
  return isNarrow && dataType != qvp32f ? qvpStatusSizeWarning : qvpStatusNoError;
}

QvpStatus qvpiHistogramGetLevels(const QvpiHistogramSpec* pSpec, Qvp32f* const pLevels[]) {
  if (!pSpec || !pLevels) return qvpStatusNullPointer;
  const HistogramRecord record(pSpec);
  if (!record.IsValid()) return qvpStatusBadArgument;
  const int channels = record.header().channels;
  for (int c = 0; c < channels; ++c) {
    if (Entry(pLevels, c) == nullptr) return qvpStatusNullPointer;
  }
  for (int c = 0; c < channels; ++c) {
    for (ptrdiff_t k = 0; k < record.Levels(c); ++k) {
      const bool isFloat = record.header().dataType == qvp32f;
      const float level = isFloat ? record.Level<float>(c, k) : static_cast<float>(record.Level<int32_t>(c, k));
      std::memcpy(Entry(pLevels, c) + k, &level, sizeof(level));
    }
  }
  return qvpStatusNoError;
}
