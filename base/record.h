// Records and work buffers in the caller's memory: places and sizes.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "qvptypes.h"

namespace qvp {

// Records and tables begin at multiples of this; a block has as many spare bytes for the first one.
inline constexpr int kRecordBoundary = 64;

// The first boundary at or after p.
template <class T>
T* AtBoundary(T* p) {
  using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + (-reinterpret_cast<uintptr_t>(p) & (kRecordBoundary - 1)));
}

// The record in memory of its public type; null where that is null.
template <class Record, class Spec>
auto* RecordIn(Spec* spec) {
  using Of = std::conditional_t<std::is_const_v<Spec>, const Record, Record>;
  return reinterpret_cast<Of*>(AtBoundary(spec));
}

// Makes a record: fill() checks all arguments, writes all but the identification, and tells the status. The word that
// identifies the record is cleared first and written last, so that what a refused or unfinished Init leaves is no
// record to anyone, whichever check failed. Without a record, a null pointer, fill() is to say so.
template <class Fill>
QvpStatus InitRecord(void* identification, uint32_t tag, const Fill& fill) {
  const auto put = [&](uint32_t word) { std::memcpy(identification, &word, sizeof(word)); };
  if (identification) put(0);
  const QvpStatus status = fill();
  if (identification && status >= 0) put(tag);
  return status;
}

// The same in memory of a record's public type: fill(record). A null pointer is what is refused first.
template <class Record, class Spec, class Fill>
QvpStatus InitRecordIn(Spec* spec, const Fill& fill) {
  Record* const record = RecordIn<Record>(spec);
  return InitRecord(record ? &record->identification : nullptr, Record::kIdentification,
                    [&]() -> QvpStatus { return record ? fill(*record) : qvpStatusNullPointer; });
}

// A count of bytes that remembers when it has left 64 bits, so that no size ever wraps.
class ByteCount {
 public:
  constexpr ByteCount(int64_t n) : n_(n) {}

  friend constexpr ByteCount operator+(ByteCount a, ByteCount b) {
    int64_t sum = 0;
    const bool isLost = __builtin_add_overflow(a.n_, b.n_, &sum);
    return isLost ? ByteCount(kTooLarge) : ByteCount(sum);
  }
  friend constexpr ByteCount operator*(ByteCount a, ByteCount b) {
    int64_t product = 0;
    const bool isLost = __builtin_mul_overflow(a.n_, b.n_, &product);
    return isLost ? ByteCount(kTooLarge) : ByteCount(product);
  }
  // Rounded up to a multiple of a power of two.
  constexpr ByteCount RoundedTo(int64_t boundary) const {
    const ByteCount up = *this + (boundary - 1);
    return up.n_ == kTooLarge ? up : ByteCount(up.n_ & -boundary);
  }

  constexpr int64_t value() const { return n_; }

  // Writes the count where it fits, else 0 and the status of a size beyond what can be represented. 32-bit outputs
  // are limited to 2147483647, pointer-wide ones to what a pointer can tell.
  template <class Out>
  QvpStatus StoreTo(Out* out) const {
    const bool fits = n_ < kTooLarge && n_ <= static_cast<int64_t>(std::numeric_limits<Out>::max());
    *out = fits ? static_cast<Out>(n_) : 0;
    return fits ? qvpStatusNoError : qvpStatusSizeOverflow;
  }

 private:
  static constexpr int64_t kTooLarge = std::numeric_limits<int64_t>::max();
  int64_t n_;
};

}  // namespace qvp
