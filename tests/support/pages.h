// Memory around which nothing may be touched: pages between two that cannot be read, so that one byte too far ends the
// test. Where pages cannot be protected, red zones stand in: marked bytes on both sides, and a changed mark is reported
// when the memory is returned. Those do not see what is only read.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>
#include <vector>

#include "tests/support/rights.h"

#ifdef __wasm__
#define QVP_CAN_PROTECT 0
#else
#define QVP_CAN_PROTECT 1
#endif

namespace test {

enum class Guard { kAfter, kBefore };

#if QVP_CAN_PROTECT
// Small pieces are kept for the next one of their size: mapping them costs more than most calls of the library. Any
// thread may take and return them.
class Pages {
 public:
  // `bytes` that begin or end at a guard.
  static uint8_t* Take(size_t bytes, Guard guard) {
    const size_t room = RoomFor(bytes);
    uint8_t* const kept = TakeKept(room);
    uint8_t* const pages = kept != nullptr ? kept : Map(room);
    return pages + (guard == Guard::kAfter ? room - bytes : 0);
  }
  static void Return(uint8_t* data, size_t bytes) {
    const size_t room = RoomFor(bytes);
    uint8_t* const pages = data - reinterpret_cast<uintptr_t>(data) % Page();
    if (room > kMostKept) {
      Unmap(pages - Page(), room + 2 * Page());
      return;
    }
    const std::lock_guard lock(mutex_);
    kept_[room].push_back(pages);
  }
  // Makes the pages that the bytes lie in read-only, or lets them be written again.
  static void SetReadOnly(const void* data, size_t bytes, bool isReadOnly) {
    auto* const page = reinterpret_cast<uint8_t*>(reinterpret_cast<uintptr_t>(data) / Page() * Page());
    MakeReadable(page, RoomFor(bytes), !isReadOnly);
  }

 private:
  static constexpr size_t kMostKept = 1 << 16;

  static size_t Page() { return PageBytes(); }
  static size_t RoomFor(size_t bytes) { return (bytes + Page() - 1) / Page() * Page(); }
  static uint8_t* TakeKept(size_t room) {
    const std::lock_guard lock(mutex_);
    auto& kept = kept_[room];
    if (kept.empty()) return nullptr;
    uint8_t* const pages = kept.back();
    kept.pop_back();
    return pages;
  }
  static uint8_t* Map(size_t room) {
    uint8_t* const pages = MapUnreadable(room + 2 * Page()) + Page();
    MakeReadable(pages, room, true);
    return pages;
  }

  static inline std::mutex mutex_;
  static inline std::map<size_t, std::vector<uint8_t*>> kept_;
};
#else
// The bytes begin or end at a multiple of a page, as they do elsewhere: tests choose alignments that way.
class Pages {
 public:
  static uint8_t* Take(size_t bytes, Guard guard) {
    const size_t room = RoomFor(bytes);
    auto* const pages = static_cast<uint8_t*>(std::aligned_alloc(kPage, room + 2 * kPage)) + kPage;
    uint8_t* const data = pages + (guard == Guard::kAfter ? room - bytes : 0);
    std::memset(data - kZone, kMark, kZone);
    std::memset(data + bytes, kMark, kZone);
    return data;
  }
  static void Return(uint8_t* data, size_t bytes) {
    EXPECT_TRUE(IsMarked(data - kZone)) << "red zone before " << bytes << " bytes";
    EXPECT_TRUE(IsMarked(data + bytes)) << "red zone after " << bytes << " bytes";
    std::free(data - reinterpret_cast<uintptr_t>(data) % kPage - kPage);
  }
  static void SetReadOnly(const void*, size_t, bool) {}

 private:
  static constexpr size_t kPage = 512, kZone = 256;
  static constexpr uint8_t kMark = 0x5A;

  static size_t RoomFor(size_t bytes) { return (bytes + kPage - 1) / kPage * kPage; }
  static bool IsMarked(const uint8_t* zone) {
    return std::all_of(zone, zone + kZone, [](uint8_t byte) { return byte == kMark; });
  }
};
#endif

}  // namespace test
