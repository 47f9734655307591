// Memory and images that end at, or begin after, a page that cannot be read: one byte too far ends the test.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace test {

enum class Guard { kAfter, kBefore };

// Pages between two that cannot be read. Small pieces are kept for the next one of their size: mapping them costs more
// than most calls of the library. Any thread may take and return them.
class Pages {
 public:
  static uint8_t* Take(size_t room) {
    uint8_t* const kept = TakeKept(room);
    return kept != nullptr ? kept : Map(room);
  }
  static void Return(uint8_t* pages, size_t room) {
    if (room > kMostKept) {
      munmap(pages - Page(), room + 2 * Page());
      return;
    }
    const std::lock_guard lock(mutex_);
    kept_[room].push_back(pages);
  }
  static size_t Page() { return static_cast<size_t>(sysconf(_SC_PAGESIZE)); }

 private:
  static constexpr size_t kMostKept = 1 << 16;

  static uint8_t* TakeKept(size_t room) {
    const std::lock_guard lock(mutex_);
    auto& kept = kept_[room];
    if (kept.empty()) return nullptr;
    uint8_t* const pages = kept.back();
    kept.pop_back();
    return pages;
  }
  static uint8_t* Map(size_t room) {
    void* const base = mmap(nullptr, room + 2 * Page(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    uint8_t* const pages = static_cast<uint8_t*>(base) + Page();
    if (base == MAP_FAILED || mprotect(pages, room, PROT_READ | PROT_WRITE) != 0) abort();
    return pages;
  }

  static inline std::mutex mutex_;
  static inline std::map<size_t, std::vector<uint8_t*>> kept_;
};

class Block {
 public:
  explicit Block(size_t bytes, Guard guard = Guard::kAfter)
      : bytes_(bytes),
        room_((bytes + Pages::Page() - 1) / Pages::Page() * Pages::Page()),
        pages_(Pages::Take(room_)),
        data_(pages_ + (guard == Guard::kAfter ? room_ - bytes : 0)) {}
  Block(const Block&) = delete;
  ~Block() { Pages::Return(pages_, room_); }

  uint8_t* data() const { return data_; }
  size_t size() const { return bytes_; }

 private:
  size_t bytes_, room_;
  uint8_t *pages_, *data_;
};

// The same numbers on every machine.
class Random {
 public:
  explicit Random(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15 + 1) {}
  uint32_t Next() {
    state_ = state_ * 6364136223846793005 + 1442695040888963407;
    return static_cast<uint32_t>(state_ >> 32 ^ state_ >> 45);
  }
  void Fill(uint8_t* bytes, size_t n) {
    for (size_t i = 0; i < n; i += sizeof(uint32_t)) {
      const uint32_t four = Next();
      std::memcpy(bytes + i, &four, std::min(n - i, sizeof(four)));
    }
  }

 private:
  uint64_t state_;
};

// An image of random bytes. Its rows are `gap` bytes apart; the gaps are marked, and a changed mark is reported when
// the image goes. Images that take part in one call should have different gaps: a step mixed up between them then
// shows.
template <class T>
class Image {
 public:
  Image(ptrdiff_t samples, int height, int gap, Guard guard = Guard::kAfter)
      : row_(samples * sizeof(T)), height_(height), gap_(gap), block_(row_ * height + gap * (height - 1), guard) {
    static std::atomic<uint64_t> seed = 0;
    Random(++seed).Fill(bytes(), block_.size());
    for (int y = 0; y + 1 < height; ++y) std::memset(bytes() + y * step() + row_, kMark, gap);
  }
  Image(const Image& other) : Image(other.row_ / sizeof(T), other.height_, other.gap_) {
    std::memcpy(bytes(), other.bytes(), block_.size());
  }
  ~Image() {
    for (int y = 0; y + 1 < height_; ++y) {
      const uint8_t* gap = bytes() + y * step() + row_;
      EXPECT_TRUE(std::all_of(gap, gap + gap_, [](uint8_t b) { return b == kMark; })) << "gap after row " << y;
    }
  }

  // As the library takes it; it need not be aligned.
  T* data() const { return reinterpret_cast<T*>(block_.data()); }
  int step() const { return static_cast<int>(row_) + gap_; }
  uint8_t* bytes() const { return block_.data(); }

  T operator()(ptrdiff_t x, int y) const {
    T value;
    std::memcpy(&value, bytes() + y * step() + x * sizeof(T), sizeof(T));
    return value;
  }
  void Put(ptrdiff_t x, int y, T value) { std::memcpy(bytes() + y * step() + x * sizeof(T), &value, sizeof(T)); }

 private:
  static constexpr uint8_t kMark = 0xA5;
  ptrdiff_t row_;
  int height_, gap_;
  Block block_;
};

}  // namespace test
