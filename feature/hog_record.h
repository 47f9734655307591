// The record of the histogram of oriented gradients: a header, and a table of weights for the pixels of a block.
#pragma once

#include <cstdint>
#include <cstring>

#include "base/scalar.h"
#include "qvptypes.h"

namespace qvp::hog {

// As it lies in the caller's memory, at any address: it is copied out before use.
struct Record {
  uint32_t identification;
  QvpiHOGConfig config;
  int blocksAcross, blocksDown;
  int descriptorLength;  // floats; what does not fit is given as the largest int
};
inline constexpr uint32_t kIdentification = 0x4B61738F;
inline constexpr int kTableOffset = 72;
static_assert(sizeof(Record) <= kTableOffset);

// The cells of a block: 2 x 2.
inline constexpr int kCells = 4;

// Pointers are tested by the caller. A record of another family may be shorter.
inline QvpStatus OpenRecord(const QvpiHOGSpec* spec, Record& record) {
  if (LoadScalar(reinterpret_cast<const uint32_t*>(spec)) != kIdentification) return qvpStatusContextMatch;
  std::memcpy(&record, spec, sizeof(record));
  return qvpStatusNoError;
}

}  // namespace qvp::hog
