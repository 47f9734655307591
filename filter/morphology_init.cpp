// Sizes and records of erosion and dilation.
#include <algorithm>

#include "filter/extremes.h"
#include "filter/morphology.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

// Calls run(row, first column, length) for the runs of a mask.
template <class Run>
void ForEachRun(const uint8_t* mask, QvpiSize size, const Run& run) {
  for (int row = 0; row < size.height; ++row, mask += size.width) {
    for (int x = 0; x < size.width; ++x) {
      const int first = x;
      while (x < size.width && mask[x] != 0) ++x;
      if (x > first) run(row, first, x - first);
    }
  }
}

// Chords of two windows come first.
void Fill(const uint8_t* mask, QvpiSize size, QvpiPoint anchor, MorphologyRecord& record) {
  int64_t selected = 0;
  int32_t counts[2] = {}, levels = 0;
  Chord* to = record.Chords();
  for (const bool isSingle : {false, true}) {
    ForEachRun(mask, size, [&](int row, int column, int length) {
      const int level = LevelsOf(length) - 1, second = column + length - (1 << level);
      if ((second == column) != isSingle) return;
      *to++ = {row, column, second, level};
      ++counts[isSingle];
      levels = std::max(levels, level + 1);
      selected += length;
    });
  }
  record.width = size.width;
  record.height = size.height;
  record.anchorX = anchor.x;
  record.anchorY = anchor.y;
  record.levels = levels;
  record.pairs = counts[0];
  record.singles = counts[1];
  record.isFull = selected == int64_t{size.width} * size.height;
}

bool IsEmpty(const uint8_t* mask, QvpiSize size) {
  const uint8_t* const end = mask + ptrdiff_t{size.width} * size.height;
  return std::all_of(mask, end, [](uint8_t b) { return b == 0; });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

// For either way of filtering.
QvpStatus qvpiFilterMorphologyBorderGetSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                            int* pSpecSize, int* pBufferSize) {
  if (!pSpecSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, IsExtremeMask(maskSize), dataType, numChannels)) {
    return failed;
  }
  const int bytes = ExtremeBytes(dataType);
  const ByteCount full = RectangleBytes(maskSize, roiSize.width, numChannels, bytes),
                  chords = WindowBytes(maskSize, roiSize.width, numChannels, LevelsOf(maskSize.width) * bytes);
  const QvpStatus spec = MorphologyRecord::Bytes(maskSize).StoreTo(pSpecSize);
  const QvpStatus buffer = ByteCount(std::max(full.value(), chords.value())).StoreTo(pBufferSize);
  return spec ? spec : buffer;
}

QvpStatus qvpiFilterMorphologyBorderInit(const Qvp8u* pMask, QvpiSize maskSize, QvpiPoint anchor,
                                         QvpiFilterMorphologyBorderSpec* pSpec) {
  MorphologyRecord* const record = pSpec ? MorphologyRecord::At(pSpec) : nullptr;
  return InitRecord(record, MorphologyRecord::kIdentification, [&]() -> QvpStatus {
    if (!pMask || !record) return qvpStatusNullPointer;
    if (!IsExtremeMask(maskSize)) return qvpStatusMaskSize;
    if (!IsAnchor(maskSize, anchor)) return qvpStatusAnchor;
    if (IsEmpty(pMask, maskSize)) return qvpStatusBadArgument;
    int bytes;
    if (const QvpStatus failed = MorphologyRecord::Bytes(maskSize).StoreTo(&bytes)) return failed;
    Fill(pMask, maskSize, anchor, *record);
    return qvpStatusNoError;
  });
}
