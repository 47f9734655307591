// Least and greatest values, and where they are.
#include "base/check.h"
#include "base/export.h"
#include "stats/extrema_search.h"

namespace {
using namespace qvp;
using namespace qvp::stats;

template <class E, class T>
void StoreExtremes(const E& extreme, int channels, T* values) {
  T found[4];
  for (int c = 0; c < channels; ++c) found[c] = extreme.Value(c);
  std::memcpy(values, found, channels * sizeof(T));
}

template <class Goal, class T>
QvpStatus ExtremeOf(const Image<const T>& src, Size roi, T* values) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src}, {values})) return failed;
  Extreme<Goal, T> extreme(src, roi);
  Search(src, roi, extreme);
  StoreExtremes(extreme, ProcessedChannels(src.layout), values);
  return qvpStatusNoError;
}

template <class T>
QvpStatus BothExtremes(const Image<const T>& src, Size roi, T* least, T* greatest) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src}, {least, greatest})) return failed;
  Extreme<Least, T> low(src, roi);
  Extreme<Greatest, T> high(src, roi);
  Search(src, roi, low, high);
  StoreExtremes(low, ProcessedChannels(src.layout), least);
  StoreExtremes(high, ProcessedChannels(src.layout), greatest);
  return qvpStatusNoError;
}

template <class Goal, class T>
QvpStatus ExtremeWithPosition(const Image<const T>& src, Size roi, T* values, int* columns, int* rows) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src}, {values, columns, rows})) return failed;
  Extreme<Goal, T> extreme(src, roi);
  Search(src, roi, extreme);
  const int channels = ProcessedChannels(src.layout);
  T found[4];
  int x[4], y[4];
  for (int c = 0; c < channels; ++c) {
    const auto place = extreme.Position(c);
    found[c] = LoadScalar(place.pixel + c);
    x[c] = static_cast<int>(place.x);
    y[c] = static_cast<int>(place.y);
  }
  std::memcpy(values, found, channels * sizeof(T));
  std::memcpy(columns, x, channels * sizeof(int));
  std::memcpy(rows, y, channels * sizeof(int));
  return qvpStatusNoError;
}

}  // namespace

#define ONE_EXTREME(name, goal, type, layout)                                                                       \
  QVP_REDUCE(name, type, layout, ExtremeOf<goal>, (Qvp##type * pValue), (pValue))                                   \
  QVP_REDUCE(name##Indx, type, layout, ExtremeWithPosition<goal>, (Qvp##type * pValue, int* pIndexX, int* pIndexY), \
             (pValue, pIndexX, pIndexY))
#define EXTREMA(type, layout)                  \
  ONE_EXTREME(qvpiMin, Least, type, layout)    \
  ONE_EXTREME(qvpiMax, Greatest, type, layout) \
  QVP_REDUCE(qvpiMinMax, type, layout, BothExtremes, (Qvp##type * pMin, Qvp##type * pMax), (pMin, pMax))

QVP_EACH_LAYOUT(EXTREMA, 8u)
QVP_EACH_LAYOUT(EXTREMA, 16u)
QVP_EACH_LAYOUT(EXTREMA, 16s)
QVP_EACH_LAYOUT(EXTREMA, 32f)
