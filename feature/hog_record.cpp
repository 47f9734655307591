// Configuration, sizes and weights of the histogram of oriented gradients.
#include "feature/hog_record.h"

#include <algorithm>
#include <cmath>

#include "base/record.h"
#include "qvpi.h"
#include "signal/exp_log.h"

namespace qvp::hog {
namespace {

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

ByteCount DescriptorLength(const Record& record) {
  return ByteCount(record.blocksAcross) * record.blocksDown * (kCells * record.config.nbins);
}

Record RecordOf(const QvpiHOGConfig& config) {
  Record record{0, config, 0, 0, 0};
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
    for (int i = 0; i < side; ++i, table += kCells * sizeof(float)) {
      const float g = Gaussian(i, j, config);
      const float left = NearShare(i, config.cellSize), right = NearShare(side - 1 - i, config.cellSize);
      const float upper = NearShare(j, config.cellSize), lower = NearShare(side - 1 - j, config.cellSize);
      const float weights[kCells] = {g * left * upper, g * right * upper, g * left * lower, g * right * lower};
      std::memcpy(table, weights, sizeof(weights));
    }
  }
}

// All but the identification.
QvpStatus FillRecord(const QvpiHOGConfig* config, uint8_t* out) {
  if (out == nullptr || config == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate(*config)) return failed;
  std::memset(out, 0, kTableOffset);
  const Record record = RecordOf(*config);
  std::memcpy(out, &record, sizeof(record));
  WriteWeights(*config, out + kTableOffset);
  return qvpStatusNoError;
}

constexpr int kPlaneBytes = 3 * sizeof(float);

}  // namespace
}  // namespace qvp::hog

using namespace qvp;
using namespace qvp::hog;

QvpStatus qvpiHOGGetSize(const QvpiHOGConfig* pConfig, int* pSpecSize) {
  if (pSpecSize == nullptr || pConfig == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate(*pConfig)) return failed;
  *pSpecSize = kTableOffset + kCells * static_cast<int>(sizeof(float)) * pConfig->blockSize * pConfig->blockSize;
  return qvpStatusNoError;
}

QvpStatus qvpiHOGInit(const QvpiHOGConfig* pConfig, QvpiHOGSpec* pHOGSpec) {
  return InitRecord(pHOGSpec, kIdentification,
                    [&] { return FillRecord(pConfig, reinterpret_cast<uint8_t*>(pHOGSpec)); });
}

QvpStatus qvpiHOGGetBufferSize(const QvpiHOGSpec* pHOGSpec, QvpiSize roiSize, int* pBufferSize) {
  if (pHOGSpec == nullptr || pBufferSize == nullptr) return qvpStatusNullPointer;
  Record record;
  if (const QvpStatus failed = OpenRecord(pHOGSpec, record)) return failed;
  const QvpiSize window = record.config.winSize;
  if (roiSize.height < window.height || roiSize.width < window.width) return qvpStatusSize;
  return (ByteCount(kPlaneBytes) * roiSize.width * roiSize.height).StoreTo(pBufferSize);
}

QvpStatus qvpiHOGGetDescriptorSize(const QvpiHOGSpec* pHOGSpec, int* pDescriptorSize) {
  if (pHOGSpec == nullptr || pDescriptorSize == nullptr) return qvpStatusNullPointer;
  Record record;
  if (const QvpStatus failed = OpenRecord(pHOGSpec, record)) return failed;
  return (DescriptorLength(record) * static_cast<int>(sizeof(float))).StoreTo(pDescriptorSize);
}
