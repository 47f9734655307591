// The record of a histogram: a header of 64 bytes, then the levels of each channel. It is used exactly where the caller
// put it, at any address, so it is only read and written by copying.
#pragma once

#include <algorithm>
#include <cstring>

#include "qvptypes.h"

namespace qvp::stats {

struct HistogramHeader {
  int32_t dataType, channels, isUniform;
  uint32_t identification;
  int32_t levels[4];
  const void* arrays[4];  // as isUniform for whoever looks at a record: the library counts its way
};

class HistogramRecord {
 public:
  static constexpr int kHeaderBytes = 64, kLevelBytes = 4;
  static constexpr uint32_t kIdentification = 0x74736968;  // "hist"
  static_assert(sizeof(HistogramHeader) <= kHeaderBytes && sizeof(int32_t) == kLevelBytes);

  explicit HistogramRecord(const QvpiHistogramSpec* spec) : bytes_(reinterpret_cast<const uint8_t*>(spec)) {
    std::memcpy(&header_, bytes_, sizeof(header_));
  }

  const HistogramHeader& header() const { return header_; }
  bool IsValid() const { return header_.identification == kIdentification; }
  int Levels(int channel) const { return header_.levels[channel]; }
  int Bins(int channel) const { return Levels(channel) - 1; }

  // Level k of a channel; L is float for records of floats, else int32_t.
  template <class L>
  L Level(int channel, ptrdiff_t k) const {
    L level;
    std::memcpy(&level, bytes_ + OffsetOf(header_, channel) + k * kLevelBytes, sizeof(level));
    return level;
  }

  static ptrdiff_t OffsetOf(const HistogramHeader& header, int channel) {
    ptrdiff_t offset = kHeaderBytes;
    for (int c = 0; c < channel; ++c) offset += ptrdiff_t{header.levels[c]} * kLevelBytes;
    return offset;
  }

 private:
  const uint8_t* bytes_;
  HistogramHeader header_;
};

constexpr bool IsHistogramType(QvpDataType type) {
  return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f;
}
constexpr bool IsHistogramChannels(int channels) { return channels == 1 || channels == 3 || channels == 4; }

}  // namespace qvp::stats
