// Memory and images that end at, or begin after, what must not be touched.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "tests/support/pages.h"

namespace test {

class Block {
 public:
  // What it holds at first nothing may depend on: as floating-point numbers it is NaN, which spreads.
  explicit Block(size_t bytes, Guard guard = Guard::kAfter) : bytes_(bytes), data_(Pages::Take(bytes, guard)) {
    std::memset(data_, 0xFF, std::min<size_t>(bytes, 1 << 20));
  }
  Block(const Block&) = delete;
  ~Block() { Pages::Return(data_, bytes_); }

  uint8_t* data() const { return data_; }
  size_t size() const { return bytes_; }

 private:
  size_t bytes_;
  uint8_t* data_;
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
    size_t i = 0;
    for (; i + sizeof(uint32_t) <= n; i += sizeof(uint32_t)) {
      const uint32_t four = Next();
      std::memcpy(bytes + i, &four, sizeof(four));
    }
    const uint32_t last = i < n ? Next() : 0;
    std::memcpy(bytes + i, &last, n - i);
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
