// Sizes and records of the Gauss filter.
#include <array>
#include <limits>

#include "base/scalar.h"
#include "filter/gauss.h"
#include "filter/window_check.h"
#include "qvpi.h"
#include "signal/exp_log.h"

namespace qvp::filter {
namespace {

constexpr int kLargest = 1023;

constexpr bool IsSide(int n) { return n >= 1 && n <= kLargest && n % 2 == 1; }
constexpr bool IsMask(QvpiSize mask) { return IsSide(mask.width) && IsSide(mask.height); }

// Weights from the middle on, which with those of the other side sum to 1; the smallest are added first.
class Weights {
 public:
  Weights(int size, double sigma) : radius(size / 2) {
    const hn::CappedTag<double, 1> d;
    const double scale = 2 * (sigma * sigma);
    double sum = 0;
    for (int k = radius; k >= 0; --k) {
      at[k] = hn::GetLane(ExpOfNegative(hn::Set(d, -(static_cast<double>(k) * k) / scale)));
      if (k > 0) sum += at[k];
    }
    const double all = at[0] + 2 * sum;
    for (int k = 0; k <= radius; ++k) at[k] /= all;
  }

  const int radius;
  std::array<double, kLargest / 2 + 1> at;
};

// Taps in units of 2^-bits, whose sum with those of the other side is 1: each takes over the error of the one outside
// of it. False if the middle one does not fit 16 bits.
bool StoreTaps(const Weights& weights, int bits, uint8_t* table) {
  auto* const to = reinterpret_cast<int16_t*>(table);
  const double unit = 1 << bits;
  double error = 0;
  int middle = 1 << bits;
  for (int k = weights.radius; k >= 1; --k) {
    const double exact = weights.at[k] * unit + error;
    const auto whole = static_cast<int>(hn::GetLane(hn::Round(hn::Set(hn::CappedTag<double, 1>(), exact))));
    error = exact - whole;
    to[k] = static_cast<int16_t>(whole);  // the middle one is larger
    middle -= 2 * whole;
  }
  to[0] = static_cast<int16_t>(middle);
  if (weights.radius % 2 == 0) to[weights.radius + 1] = 0;  // the second of the last pair
  return middle <= INT16_MAX;
}

int StoreMostBits(const Weights& weights, uint8_t* table) {
  int bits = 17;
  while (!StoreTaps(weights, bits, table)) --bits;
  return bits;
}

void StoreFloats(const Weights& weights, uint8_t* table) {
  for (int k = 0; k <= weights.radius; ++k) {
    reinterpret_cast<float*>(table)[k] = static_cast<float>(weights.at[k]);
  }
}

QvpStatus CheckMask(QvpiSize mask, QvpDataType type, int channels) {
  if (!IsMask(mask)) return qvpStatusMaskSize;
  if (!IsFilteredType(type)) return qvpStatusDataType;
  return IsFilteredChannelCount(channels) ? qvpStatusNoError : qvpStatusNumChannels;
}

}  // namespace

void FillGauss(QvpiSize mask, float sigmaX, float sigmaY, QvpDataType type, int channels, GaussRecord& record) {
  record.type = type;
  record.channels = channels;
  record.width = mask.width;
  record.height = mask.height;
  const Weights across(mask.width, sigmaX), down(mask.height, sigmaY);
  if (type == qvp8u) {
    record.acrossBits = StoreMostBits(across, record.Across());
    record.downBits = StoreMostBits(down, record.Down());
  } else {
    StoreFloats(across, record.Across());
    StoreFloats(down, record.Down());
  }
}

}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterGaussBorderGetSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                       int* pSpecSize, int* pBufferSize) {
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (const QvpStatus failed = CheckMask(maskSize, dataType, numChannels)) return failed;
  *pSpecSize = static_cast<int>(GaussRecord::Bytes(maskSize)) + kRecordBoundary;
  const int longest = dataType == qvp8u ? 2 : 4;  // an element of a line
  return WindowBytes(maskSize, roiSize.width, numChannels, longest, {}, LaneCacheBytes(longest)).StoreTo(pBufferSize);
}

QvpStatus qvpiFilterGaussBorderInit(QvpiSize maskSize, Qvp32f sigmaX, Qvp32f sigmaY, QvpDataType dataType,
                                    int numChannels, QvpiFilterGaussBorderSpec* pSpec) {
  return InitRecordIn<GaussRecord>(pSpec, [&](GaussRecord& record) -> QvpStatus {
    if (const QvpStatus failed = CheckMask(maskSize, dataType, numChannels)) return failed;
    if (!IsGaussSigma(sigmaX) || !IsGaussSigma(sigmaY)) return qvpStatusBadArgument;
    FillGauss(maskSize, sigmaX, sigmaY, dataType, numChannels, record);
    return qvpStatusNoError;
  });
}
