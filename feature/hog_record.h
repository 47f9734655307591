// The record of the histogram of oriented gradients: a header, and a table of weights for the pixels of a block.
#pragma once

#include <cstdint>
#include <cstring>

#include "qvptypes.h"

namespace qvp {

// As it lies in the caller's memory, at any address: it is copied out before use.
struct HogRecord {
  uint32_t identification;
  QvpiHOGConfig config;
  int blocksAcross, blocksDown;
  int descriptorLength;  // floats; what does not fit is given as the largest int
};
inline constexpr uint32_t kHogIdentification = 0x4B61738F;
inline constexpr int kHogTableOffset = 72;
static_assert(sizeof(HogRecord) <= kHogTableOffset);

// The cells of a block: 2 x 2.
inline constexpr int kHogCells = 4;

// Pointers are tested by the caller.
inline QvpStatus OpenHogRecord(const QvpiHOGSpec* spec, HogRecord& record) {
  std::memcpy(&record, spec, sizeof(record));
  return record.identification == kHogIdentification ? qvpStatusNoError : qvpStatusContextMatch;
}

}  // namespace qvp
