// The record of the Gauss filter.
#pragma once

#include <limits>

#include "base/record.h"
#include "filter/windows.h"

namespace qvp::filter {

// Taps from the middle on, for either axis a table: of bytes pairs of 16-bit taps, in units of 2^-bits; else floats.
struct GaussRecord {
  uint32_t identification;
  QvpDataType type;
  int32_t channels, width, height;
  int32_t acrossBits, downBits;

  static constexpr uint32_t kIdentification = 0x73754147;
  static constexpr int kHeadBytes = 64;

  static constexpr int64_t Terms(int64_t size) { return size / 2 + 1; }
  static constexpr int64_t TableBytes(int64_t size) {
    return (Terms(size) * int64_t{sizeof(float)} + kRecordBoundary - 1) / kRecordBoundary * kRecordBoundary;
  }

  // Of a record with its tables.
  static int64_t Bytes(QvpiSize mask) { return kHeadBytes + TableBytes(mask.width) + TableBytes(mask.height); }

  // Images of one type, and of so many channels.
  bool IsFor(QvpDataType src, QvpDataType, int count) const { return type == src && channels == count; }
  Reach reach() const { return {width / 2, height / 2, width / 2, height / 2}; }
  uint8_t* Across() { return reinterpret_cast<uint8_t*>(this) + kHeadBytes; }
  uint8_t* Down() { return Across() + TableBytes(width); }
  const uint8_t* Across() const { return const_cast<GaussRecord*>(this)->Across(); }
  const uint8_t* Down() const { return const_cast<GaussRecord*>(this)->Down(); }
};
static_assert(sizeof(GaussRecord) <= GaussRecord::kHeadBytes);

inline bool IsGaussSigma(float sigma) { return sigma > 0 && sigma <= std::numeric_limits<float>::max(); }

// All but the identification.
void FillGauss(QvpiSize mask, float sigmaX, float sigmaY, QvpDataType type, int channels, GaussRecord& record);

// Bits of filtered rows behind the point: they are at most 255 * 2^6, so that two fit 16 bits.
inline constexpr int kGaussRowBits = 6;

}  // namespace qvp::filter
