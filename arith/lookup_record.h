// The record of a look-up through levels: a header, then what a call needs for each channel. Integer types have a table
// with an entry for each value. Floats have an entry for each level, with what the curve from there on is made of, and
// an index of the levels.
#pragma once

#include <algorithm>

#include "base/record.h"

namespace qvp::lookup {

inline constexpr uint32_t kTag = 0x2D4C5554;
inline constexpr int kHeaderBytes = 128;

// Buckets of equal width, of which starts[b] tells how many levels lie below bucket b. A bucket holds less than 2^steps
// levels, among which a search by halves goes on.
struct Index {
  float first, scale;  // bucket of v: (v - first) * scale toward zero, at least 0 and at most the last one
  int32_t steps;
};

struct Record {
  uint32_t tag;
  QvpDataType type;
  QvpiLookupMethod method;
  int32_t channels;
  int32_t levels[4];
  uint32_t offsets[4];  // of the channels' tables, from the header on
  Index index[4];

  const uint8_t* Table(int channel) const { return reinterpret_cast<const uint8_t*>(this) + offsets[channel]; }
  uint8_t* Table(int channel) { return reinterpret_cast<uint8_t*>(this) + offsets[channel]; }
};
static_assert(sizeof(Record) <= kHeaderBytes && offsetof(Record, offsets) == 8 * sizeof(uint32_t));

// Words of an entry for floats: the level x, then the value y of steps; or the level, 1 / (distance to the next), and
// the coefficients c0, c1 (c2, c3) of the curve by u, which goes from 0 to 1 up to the next level.
constexpr int EntryWords(QvpiLookupMethod method) {
  return method == qvpLookupStep ? 2 : method == qvpLookupLinear ? 4 : 6;
}

// An array with a word for each level.
constexpr ByteCount WordsOf(int levels) { return (ByteCount(levels) * sizeof(uint32_t)).RoundedTo(kRecordBoundary); }

constexpr ByteCount TableBytes(QvpDataType type, QvpiLookupMethod method, int levels) {
  if (type == qvp8u) return 256;
  if (type != qvp32f) return 65536 * sizeof(uint16_t);
  return WordsOf(levels) * (EntryWords(method) + 1);
}

// The starts of the buckets come behind the entries.
inline ptrdiff_t StartsOffset(QvpiLookupMethod method, int levels) {
  return static_cast<ptrdiff_t>((WordsOf(levels) * EntryWords(method)).value());
}

// There is a start for each bucket and one behind the last. Their numbers are exact as floats.
inline int Buckets(int levels) { return std::min(levels - 1, 1 << 24); }

}  // namespace qvp::lookup
