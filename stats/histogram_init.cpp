// Sizes, Init functions and levels of histograms.
#include "base/record.h"
#include "base/scalar.h"
#include "qvpi.h"
#include "stats/histogram_spec.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

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

// Writes what follows a record's identification.
class Writer {
 public:
  Writer(QvpiHistogramSpec* spec, QvpDataType type, int channels, bool isUniform)
      : bytes_(reinterpret_cast<uint8_t*>(spec)), header_{type, channels, isUniform, 0, {}, {}} {}

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
  }

 private:
  uint8_t* bytes_;
  HistogramHeader header_;
  ptrdiff_t offset_ = HistogramRecord::kHeaderBytes;
};

template <class Fill>
QvpStatus MakeRecord(QvpiHistogramSpec* spec, const Fill& fill) {
  uint8_t* const begin = reinterpret_cast<uint8_t*>(spec);
  return InitRecord(begin ? begin + offsetof(HistogramHeader, identification) : nullptr,
                    HistogramRecord::kIdentification, fill);
}

QvpStatus CheckLevels(const float* levels, int n) {
  if (levels == nullptr) return qvpStatusNullPointer;
  if (n < 2) return qvpStatusHistoLevels;
  for (ptrdiff_t k = 0; k + 1 < n; ++k) {
    if (!(LoadScalar(levels + k) < LoadScalar(levels + k + 1))) return qvpStatusRange;
  }
  return qvpStatusNoError;
}

// With an infinite bound there are no levels in between.
QvpStatus CheckBounds(double lower, double upper, int n) {
  if (n < 2) return qvpStatusHistoLevels;
  const bool isFinite = upper - lower < __builtin_inf();
  return lower < upper && (isFinite || n == 2) ? qvpStatusNoError : qvpStatusRange;
}

QvpStatus CheckFirst(QvpDataType type, const void* a, const void* b, const void* c, const void* spec, int channels) {
  if (!IsHistogramType(type)) return qvpStatusDataType;
  if (!a || !b || !c || !spec) return qvpStatusNullPointer;
  return IsHistogramChannels(channels) ? qvpStatusNoError : qvpStatusNumChannels;
}

QvpStatus FillLevels(QvpDataType type, const Qvp32f* const levels[], const int counts[], int channels,
                     QvpiHistogramSpec* spec) {
  if (const QvpStatus failed = CheckFirst(type, levels, counts, counts, spec, channels)) return failed;
  for (int c = 0; c < channels; ++c) {
    const QvpStatus failed = CheckLevels(LoadScalar(levels + c), LoadScalar(counts + c));
    if (failed) return failed;
  }
  Writer writer(spec, type, channels, false);
  for (int c = 0; c < channels; ++c) {
    const int n = LoadScalar(counts + c);
    writer.Add(c, n);
    for (ptrdiff_t k = 0; k < n; ++k) writer.Put(k, LoadScalar(LoadScalar(levels + c) + k), Ceiling);
  }
  writer.Finish();
  return qvpStatusNoError;
}

// The n levels of a channel, from lower to upper in equal steps. Returns the step.
double AddUniformLevels(Writer& writer, int channel, double lower, double upper, int n) {
  const double step = (upper - lower) / (n - 1);
  writer.Add(channel, n);
  writer.Put(0, lower, Truncated);
  for (ptrdiff_t k = 1; k + 1 < n; ++k) writer.Put(k, lower + static_cast<double>(k) * step, Truncated);
  writer.Put(n - 1, upper, Truncated);
  return step;
}

QvpStatus FillUniform(QvpDataType type, const Qvp32f lower[], const Qvp32f upper[], const int counts[], int channels,
                      QvpiHistogramSpec* spec) {
  if (const QvpStatus failed = CheckFirst(type, lower, upper, counts, spec, channels)) return failed;
  for (int c = 0; c < channels; ++c) {
    const QvpStatus failed = CheckBounds(LoadScalar(lower + c), LoadScalar(upper + c), LoadScalar(counts + c));
    if (failed) return failed;
  }
  Writer writer(spec, type, channels, true);
  bool isNarrow = false;
  for (int c = 0; c < channels; ++c) {
    isNarrow |= AddUniformLevels(writer, c, LoadScalar(lower + c), LoadScalar(upper + c), LoadScalar(counts + c)) < 1;
  }
  writer.Finish();
  return isNarrow && type != qvp32f ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace

QvpStatus qvpiHistogramGetBufferSize(QvpDataType dataType, QvpiSize roiSize, const int nLevels[], int numChannels, int,
                                     int* pSpecSize, int* pBufferSize) {
  if (!nLevels || !pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (!IsHistogramChannels(numChannels)) return qvpStatusNumChannels;
  ByteCount bytes = HistogramRecord::kHeaderBytes;
  for (int c = 0; c < numChannels; ++c) {
    const int n = LoadScalar(nLevels + c);
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
  return MakeRecord(pSpec, [&] { return FillLevels(dataType, pLevels, nLevels, numChannels, pSpec); });
}

QvpStatus qvpiHistogramUniformInit(QvpDataType dataType, const Qvp32f lowerLevel[], const Qvp32f upperLevel[],
                                   const int nLevels[], int numChannels, QvpiHistogramSpec* pSpec) {
  return MakeRecord(pSpec, [&] { return FillUniform(dataType, lowerLevel, upperLevel, nLevels, numChannels, pSpec); });
}

QvpStatus qvpiHistogramGetLevels(const QvpiHistogramSpec* pSpec, Qvp32f* const pLevels[]) {
  if (!pSpec || !pLevels) return qvpStatusNullPointer;
  const HistogramRecord record(pSpec);
  if (!record.IsValid()) return qvpStatusBadArgument;
  const int channels = record.header().channels;
  for (int c = 0; c < channels; ++c) {
    if (LoadScalar(pLevels + c) == nullptr) return qvpStatusNullPointer;
  }
  for (int c = 0; c < channels; ++c) {
    for (ptrdiff_t k = 0; k < record.Levels(c); ++k) {
      const bool isFloat = record.header().dataType == qvp32f;
      const float level = isFloat ? record.Level<float>(c, k) : static_cast<float>(record.Level<int32_t>(c, k));
      std::memcpy(LoadScalar(pLevels + c) + k, &level, sizeof(level));
    }
  }
  return qvpStatusNoError;
}
