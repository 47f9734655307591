// Sizes and Init of look-ups through levels.
#include <bit>
#include <limits>

#include "arith/lookup_curve.h"
#include "arith/lookup_record.h"
#include "qvpi.h"

namespace {
using namespace qvp;
using namespace qvp::lookup;

bool IsFinite(double v) { return v - v == 0; }

QvpStatus CheckKind(QvpDataType type, QvpiLookupMethod method, int channels) {
  if (type != qvp8u && type != qvp16u && type != qvp16s && type != qvp32f) return qvpStatusDataType;
  if (method < qvpLookupStep || method > qvpLookupCubic) return qvpStatusInterpolation;
  return channels == 1 || channels == 3 || channels == 4 ? qvpStatusNoError : qvpStatusNumChannels;
}

// Without the spare bytes for the boundary.
QvpStatus CountBytes(QvpDataType type, QvpiLookupMethod method, const int counts[], int channels, ByteCount& bytes) {
  bytes = kHeaderBytes;
  for (int c = 0; c < channels; ++c) {
    const int n = LoadScalar(counts + c);
    if (n < 2) return qvpStatusLutLevels;
    bytes = bytes + TableBytes(type, method, n);
  }
  return qvpStatusNoError;
}

QvpStatus StoreSize(QvpDataType type, QvpiLookupMethod method, const int counts[], int channels, int* size) {
  ByteCount bytes = 0;
  if (const QvpStatus failed = CountBytes(type, method, counts, channels, bytes)) return failed;
  return (bytes + kRecordBoundary).StoreTo(size);
}

// Single precision has to hold what floats are computed from.
bool IsStorable(const Curve& curve, ptrdiff_t k) {
  if (k == curve.levels() - 1) return true;
  const Cubic cubic = curve.Between(k);
  const auto fits = [](double c) { return IsFinite(static_cast<float>(c)); };
  return curve.Gap(k) >= 0x1p-126 && curve.Gap(k) <= 0x1p126 && fits(cubic.c1) && fits(cubic.c2) && fits(cubic.c3);
}

QvpStatus CheckCurve(const Curve& curve, bool isStored) {
  for (ptrdiff_t k = 0; k < curve.levels(); ++k) {
    if (!IsFinite(curve.X(k)) || (k > 0 && !(curve.X(k - 1) < curve.X(k)))) return qvpStatusRange;
  }
  for (ptrdiff_t k = 0; k < curve.levels(); ++k) {
    if (!IsFinite(curve.Y(k))) return qvpStatusBadArgument;
  }
  for (ptrdiff_t k = 0; isStored && k < curve.levels(); ++k) {
    if (!IsStorable(curve, k)) return qvpStatusBadArgument;
  }
  return qvpStatusNoError;
}

// To the nearest, ties to even; saturated.
template <class T>
T Rounded(double v) {
  v = std::clamp<double>(v, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
  const ptrdiff_t whole = FloorOf(v);
  const double rest = v - static_cast<double>(whole);
  return static_cast<T>(whole + (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)));
}

// The value of every element, in the order of their bits as unsigned numbers.
template <class T>
void FillTable(const Curve& curve, uint8_t* table) {
  using Limits = std::numeric_limits<T>;
  auto* const entries = reinterpret_cast<T*>(table);
  ptrdiff_t k = 0;
  Cubic cubic = curve.Between(0);
  for (int v = Limits::lowest(); v <= Limits::max(); ++v) {
    const ptrdiff_t before = k;
    while (k + 1 < curve.levels() && curve.X(k + 1) <= v) ++k;
    if (k != before) cubic = curve.Between(k);
    const double y = v < curve.X(0) ? curve.Y(0) : curve.At(v, k, cubic);
    entries[static_cast<std::make_unsigned_t<T>>(v)] = Rounded<T>(y);
  }
}

void FillEntries(const Curve& curve, QvpiLookupMethod method, float* entry) {
  for (ptrdiff_t k = 0; k < curve.levels(); ++k, entry += EntryWords(method)) {
    const Cubic cubic = curve.Between(k);
    const double inverse = k == curve.levels() - 1 ? 0 : 1 / curve.Gap(k);
    const double words[] = {curve.X(k), inverse, cubic.c0, cubic.c1, cubic.c2, cubic.c3};
    for (int i = 0; i < EntryWords(method); ++i) entry[i] = static_cast<float>(words[i]);
    if (method == qvpLookupStep) entry[1] = static_cast<float>(cubic.c0);
  }
}

// Calls rise in the same way as levels do, so that buckets are in their order; see lookup_levels.h for vectors.
int BucketOf(const Index& index, int buckets, double level) {
  const float place = (static_cast<float>(level) - index.first) * index.scale;
  return static_cast<int>(std::min(place > 0 ? place : 0, static_cast<float>(buckets - 1)));
}

Index FillStarts(const Curve& curve, int32_t* starts) {
  const int n = curve.levels(), buckets = Buckets(n);
  const double scale = buckets / (curve.X(n - 1) - curve.X(0));
  Index index{static_cast<float>(curve.X(0)),
              static_cast<float>(std::min<double>(scale, std::numeric_limits<float>::max())), 0};
  uint32_t most = 0;
  for (int b = 0, k = 0; b <= buckets; ++b) {
    const int first = k;
    for (; k < n && BucketOf(index, buckets, curve.X(k)) < b; ++k) {}
    starts[b] = k;
    most = std::max(most, static_cast<uint32_t>(k - first));
  }
  index.steps = std::bit_width(most);
  return index;
}

void FillChannel(const Curve& curve, int channel, Record* record) {
  uint8_t* const table = record->Table(channel);
  switch (record->type) {
    case qvp8u: return FillTable<uint8_t>(curve, table);
    case qvp16u: return FillTable<uint16_t>(curve, table);
    case qvp16s: return FillTable<int16_t>(curve, table);
    default: break;
  }
  FillEntries(curve, record->method, reinterpret_cast<float*>(table));
  record->index[channel] =
      FillStarts(curve, reinterpret_cast<int32_t*>(table + StartsOffset(record->method, curve.levels())));
}

struct Arguments {
  const Qvp32f* const* levels;
  const Qvp32f* const* values;
  const int* counts;

  bool HasNull(int channels) const {
    for (int c = 0; c < channels; ++c) {
      if (!LoadScalar(levels + c) || !LoadScalar(values + c)) return true;
    }
    return false;
  }
  Curve Of(int c, QvpiLookupMethod method) const {
    return {LoadScalar(levels + c), LoadScalar(values + c), LoadScalar(counts + c), method};
  }
};

QvpStatus Check(QvpDataType type, QvpiLookupMethod method, int channels, const Arguments& arguments) {
  if (const QvpStatus failed = CheckKind(type, method, channels)) return failed;
  if (arguments.HasNull(channels)) return qvpStatusNullPointer;
  int size;
  if (const QvpStatus failed = StoreSize(type, method, arguments.counts, channels, &size)) return failed;
  for (int c = 0; c < channels; ++c) {
    const bool isStored = type == qvp32f && method != qvpLookupStep;
    if (const QvpStatus failed = CheckCurve(arguments.Of(c, method), isStored)) return failed;
  }
  return qvpStatusNoError;
}

void Fill(QvpDataType type, QvpiLookupMethod method, int channels, const Arguments& arguments, Record* record) {
  std::memset(record, 0, kHeaderBytes);
  record->type = type;
  record->method = method;
  record->channels = channels;
  ByteCount offset = kHeaderBytes;
  for (int c = 0; c < channels; ++c) {
    const Curve curve = arguments.Of(c, method);
    record->levels[c] = curve.levels();
    record->offsets[c] = static_cast<uint32_t>(offset.value());
    FillChannel(curve, c, record);
    offset = offset + TableBytes(type, method, curve.levels());
  }
}

}  // namespace

QvpStatus qvpiLookupGetSize(QvpDataType dataType, QvpiLookupMethod method, const int nLevels[], int numChannels,
                            int* pSpecSize) {
  if (!nLevels || !pSpecSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckKind(dataType, method, numChannels)) return failed;
  return StoreSize(dataType, method, nLevels, numChannels, pSpecSize);
}

QvpStatus qvpiLookupInit(QvpDataType dataType, QvpiLookupMethod method, const Qvp32f* const pLevels[],
                         const Qvp32f* const pValues[], const int nLevels[], int numChannels, QvpiLookupSpec* pSpec) {
  Record* const record = RecordIn<Record>(pSpec);
  return InitRecord(record, kTag, [&] {
    if (!pLevels || !pValues || !nLevels || !pSpec) return +qvpStatusNullPointer;
    const Arguments arguments{pLevels, pValues, nLevels};
    if (const QvpStatus failed = Check(dataType, method, numChannels, arguments)) return failed;
    Fill(dataType, method, numChannels, arguments, record);
    return +qvpStatusNoError;
  });
}
