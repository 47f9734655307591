// Sizes and records of the bilateral filter.
#include <limits>

#include "filter/bilateral_range.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

QvpStatus CheckDisc(int radius, QvpDataType type, int channels) {
  if (radius < 1 || radius > kMostRadius) return qvpStatusMaskSize;
  if (type == qvp16s || !IsFilteredType(type)) return qvpStatusDataType;
  return IsFilteredChannelCount(channels) ? qvpStatusNoError : qvpStatusNumChannels;
}

// 1 / (2 sigma^2), finite: what is times a square then decays as fast as floats can tell.
float Falloff(float sigma) {
  const double falloff = 1 / (2 * (static_cast<double>(sigma) * sigma));
  return static_cast<float>(std::min<double>(falloff, std::numeric_limits<float>::max()));
}

float Weight(float exponent) { return hn::GetLane(ExpOfDecay(hn::Set(BilateralLanes(), -exponent))); }

// Weights by distance. Those of integers that are 0 are left out: they are the last of their rows.
void FillSpace(float falloff, BilateralRecord& record) {
  const auto weight = [&](int dx, int dy) { return Weight(static_cast<float>(dx * dx + dy * dy) * falloff); };
  const bool takesAll = record.type == qvp32f;
  float* to = record.Space();
  for (int dy = 0; dy <= record.radius; ++dy) {
    if (!takesAll && dy > 0 && weight(0, dy) == 0) break;
    int reach = BilateralRecord::DiscReach(record.radius, dy);
    while (!takesAll && reach > 0 && weight(reach, dy) == 0) --reach;
    record.rows = dy;
    record.reachOfRow[dy] = static_cast<int16_t>(reach);
    for (int dx = dy == 0 ? 1 : -reach; dx <= reach; ++dx) *to++ = weight(dx, dy);
  }
}

void FillTable(BilateralRecord& record) {
  for (int d = 0; d < BilateralRecord::kDifferences; ++d) {
    record.Table()[d] = Weight(static_cast<float>(d * d) * record.falloff);
  }
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterBilateralBorderGetSize(int radius, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                           int* pSpecSize, int* pBufferSize) {
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (const QvpStatus failed = CheckDisc(radius, dataType, numChannels)) return failed;
  const int64_t weights = BilateralRecord::Offsets(radius) * int64_t{sizeof(float)};
  *pSpecSize =
      static_cast<int>(BilateralRecord::kHeadBytes + BilateralRecord::TableBytes(dataType) + weights) + kRecordBoundary;
  const int side = 2 * radius + 1;
  return WindowBytes(QvpiSize{side, side}, roiSize.width, numChannels, sizeof(float), KeptWeights(radius, numChannels),
                     kSecondCacheBytes)
      .StoreTo(pBufferSize);
}

QvpStatus qvpiFilterBilateralBorderInit(int radius, QvpNormType normType, Qvp32f sigmaRange, Qvp32f sigmaSpace,
                                        QvpDataType dataType, int numChannels, QvpiFilterBilateralBorderSpec* pSpec) {
  return InitRecordIn<BilateralRecord>(pSpec, [&](BilateralRecord& record) -> QvpStatus {
    if (const QvpStatus failed = CheckDisc(radius, dataType, numChannels)) return failed;
    if (normType != qvpNormL1 && normType != qvpNormL2) return qvpStatusNotSupportedMode;
    if (!(sigmaRange > 0) || !(sigmaSpace > 0)) return qvpStatusBadArgument;
    record.type = dataType;
    record.channels = numChannels;
    record.radius = radius;
    record.norm = normType;
    record.falloff = Falloff(sigmaRange);
    FillSpace(Falloff(sigmaSpace), record);
    if (record.HasTable()) FillTable(record);
    return qvpStatusNoError;
  });
}
