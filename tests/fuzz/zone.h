// Memory that is mapped once and used by every trial.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace fuzz {

// Bytes between two pages that cannot be read.
class Zone {
 public:
  static constexpr size_t kBytes = 1 << 20;

  Zone() {
    const size_t page = sysconf(_SC_PAGESIZE);
    void* const base = mmap(nullptr, kBytes + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    begin_ = static_cast<uint8_t*>(base) + page;
    if (base == MAP_FAILED || mprotect(begin_, kBytes, PROT_READ | PROT_WRITE) != 0) abort();
  }
  uint8_t* begin() const { return begin_; }
  uint8_t* end() const { return begin_ + kBytes; }

 private:
  uint8_t* begin_;
};

// Copies of bytes, to compare and restore; all are forgotten at once.
class Copies {
 public:
  void Forget() { used_ = 0; }
  uint8_t* Of(const uint8_t* bytes, size_t n) {
    uint8_t* const copy = room_ + used_;
    if ((used_ += n) > kBytes) abort();
    std::memcpy(copy, bytes, n);
    return copy;
  }

 private:
  static constexpr size_t kBytes = size_t{1} << 26;
  uint8_t* room_ = static_cast<uint8_t*>(
      mmap(nullptr, kBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
  size_t used_ = 0;
};

}  // namespace fuzz
