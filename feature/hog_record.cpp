// Configuration, sizes and weights of the histogram of oriented gradients.
#include "feature/hog_record.h"

#include <algorithm>
#include <cmath>

#include "base/record.h"
#include "qvpi.h"
#include "signal/exp_log.h"

namespace {
using namespace qvp;

constexpr int kLeastCell = 2, kLargestCell = 16, kLargestBlock = 64, kLeastBins = 2, kLargestBins = 16;

bool IsInRange(int v, int lower, int upper) { return v >= lower && v <= upper; }

// Tests that NaN fails.
QvpStatus Validate(const QvpiHOGConfig& c) {
  const bool hasBlocks = IsInRange(c.cellSize, kLeastCell, kLargestCell) && c.blockSize <= kLargestBlock &&
                         c.blockSize == 2 * c.cellSize && c.blockStride >= 1 && c.blockStride % c.cellSize == 0;
  if (!hasBlocks || !IsInRange(c.nbins, kLeastBins, kLargestBins)) return qvpStatusNotSupportedMode;
  if (!(c.sigma > 0) || !(c.l2thresh > 0)) return qvpStatusNotSupportedMode;
  if (c.winSize.width < c.blockSize || c.winSize.height < c.blockSize) return qvpStatusSize;
  const bool isTiled =
      (c.winSize.width - c.blockSize) % c.blockStride == 0 && (c.winSize.height - c.blockSize) % c.blockStride == 0;
  return isTiled ? qvpStatusNoError : qvpStatusSize;
}

ByteCount DescriptorLength(const HogRecord& record) {
  return ByteCount(record.blocksAcross) * record.blocksDown * (kHogCells * record.config.nbins);
}

HogRecord RecordOf(const QvpiHOGConfig& config) {
  HogRecord record{kHogIdentification, config, 0, 0, 0};
  record.blocksAcross = (config.winSize.width - config.blockSize) / config.blockStride + 1;
  record.blocksDown = (config.winSize.height - config.blockSize) / config.blockStride + 1;
  record.descriptorLength = static_cast<int>(std::min<int64_t>(DescriptorLength(record).value(), INT32_MAX));
  return record;
}

// The share of the near cell in a pixel at i of 2 cells, falling to nothing at the middle of the far one.
float NearShare(int i, int cell) {
  return std::max(0.0f, 1 - std::fabs((static_cast<float>(i) + 0.5f) / static_cast<float>(cell) - 0.5f));
}

// The Gaussian around the middle of the block.
float Gaussian(int i, int j, const QvpiHOGConfig& config) {
  const int half = config.blockSize / 2;
  const float middle = static_cast<float>(half) - 0.5f;
  const float dx = static_cast<float>(i) - middle, dy = static_cast<float>(j) - middle;
  const float f = 1 / (2 * config.sigma * config.sigma);
  return hn::GetLane(Exp(hn::Set(hn::FixedTag<float, 4>(), -(dx * dx + dy * dy) * f)));
}

void WriteWeights(const QvpiHOGConfig& config, uint8_t* table) {
  const int side = config.blockSize;
  for (int j = 0; j < side; ++j) {
    for (int i = 0; i < side; ++i, table += kHogCells * sizeof(float)) {
      const float g = Gaussian(i, j, config);
      const float left = NearShare(i, config.cellSize), right = NearShare(side - 1 - i, config.cellSize);
      const float upper = NearShare(j, config.cellSize), lower = NearShare(side - 1 - j, config.cellSize);
      const float weights[kHogCells] = {g * left * upper, g * right * upper, g * left * lower, g * right * lower};
      std::memcpy(table, weights, sizeof(weights));
    }
  }
}

constexpr int kPlaneBytes = 3 * sizeof(float);

}  // namespace

QvpStatus qvpiHOGGetSize(const QvpiHOGConfig* pConfig, int* pSpecSize) {
  if (pSpecSize == nullptr || pConfig == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate(*pConfig)) return failed;
  *pSpecSize = kHogTableOffset + kHogCells * static_cast<int>(sizeof(float)) * pConfig->blockSize * pConfig->blockSize;
  return qvpStatusNoError;
}

QvpStatus qvpiHOGInit(const QvpiHOGConfig* pConfig, QvpiHOGSpec* pHOGSpec) {
  if (pHOGSpec == nullptr) return qvpStatusNullPointer;
  uint8_t* const record = reinterpret_cast<uint8_t*>(pHOGSpec);
  std::memset(record, 0, sizeof(HogRecord::identification));  // until all of it is there
  if (pConfig == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate(*pConfig)) return failed;
  std::memset(record, 0, kHogTableOffset);
  WriteWeights(*pConfig, record + kHogTableOffset);
  const HogRecord filled = RecordOf(*pConfig);
  std::memcpy(record, &filled, sizeof(filled));
  return qvpStatusNoError;
}

QvpStatus qvpiHOGGetBufferSize(const QvpiHOGSpec* pHOGSpec, QvpiSize roiSize, int* pBufferSize) {
  if (pHOGSpec == nullptr || pBufferSize == nullptr) return qvpStatusNullPointer;
  HogRecord record;
  if (const QvpStatus failed = OpenHogRecord(pHOGSpec, record)) return failed;
  const QvpiSize window = record.config.winSize;
  if (roiSize.height < window.height || roiSize.width < window.width) return qvpStatusSize;
  return (ByteCount(kPlaneBytes) * roiSize.width * roiSize.height).StoreTo(pBufferSize);
}

QvpStatus qvpiHOGGetDescriptorSize(const QvpiHOGSpec* pHOGSpec, int* pDescriptorSize) {
  if (pHOGSpec == nullptr || pDescriptorSize == nullptr) return qvpStatusNullPointer;
  HogRecord record;
  if (const QvpStatus failed = OpenHogRecord(pHOGSpec, record)) return failed;
  return (DescriptorLength(record) * static_cast<int>(sizeof(float))).StoreTo(pDescriptorSize);
}
