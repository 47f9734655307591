// Everything that moves whole pixels or channels from one interleaved image to another, against one sentence: channel c
// of a destination pixel is a source channel, the fill value, or what it was.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <vector>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {
using test::Guard;
using Bytes = test::Image<uint8_t>;

constexpr int kKeep = -1, kFill = -2;
constexpr uint8_t kFillBytes[] = {0x11, 0x22, 0x33, 0x44};

// A function bound to everything but its images and size.
using Move = std::function<QvpStatus(const void*, int, void*, int, QvpiSize)>;

struct Member {
  std::string name;
  int elementBytes, from, to;  // channels of a pixel
  std::vector<int> map;        // for each destination channel
  Move move;
  bool oneOfSource = false, oneOfDestination = false;  // the pointer selects one channel; the row ends with it

  int SourceRow(int width) const { return RowBytes(width, from, oneOfSource); }
  int DestinationRow(int width) const { return RowBytes(width, to, oneOfDestination); }
  bool CanBeInPlace() const { return from == to && oneOfSource == oneOfDestination; }

 private:
  int RowBytes(int width, int channels, bool one) const {
    return (width * channels - (one ? channels - 1 : 0)) * elementBytes;
  }
};

// What byte i of destination row y must be.
uint8_t Expected(const Member& m, const Bytes& src, const Bytes& before, int i, int y) {
  const int pixel = i / (m.to * m.elementBytes), within = i % (m.to * m.elementBytes);
  const int from = m.map[within / m.elementBytes], byte = within % m.elementBytes;
  if (from == kKeep) return before(i, y);
  return from == kFill ? kFillBytes[byte] : src((pixel * m.from + from) * m.elementBytes + byte, y);
}

void Check(const Member& m, int width, int srcGap, int dstGap, Guard guard) {
  const int height = 3;
  const Bytes src(m.SourceRow(width), height, srcGap, guard);
  Bytes dst(m.DestinationRow(width), height, dstGap, guard);
  const Bytes before(dst);
  ASSERT_EQ(m.move(src.data(), src.step(), dst.data(), dst.step(), {width, height}), qvpStatusNoError) << m.name;
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < m.DestinationRow(width); ++i) {
      ASSERT_EQ(dst(i, y), Expected(m, src, before, i, y)) << m.name << " width " << width << " byte " << i << ',' << y;
    }
  }
  if (!m.CanBeInPlace()) return;
  const Bytes both(src), expected(src);
  ASSERT_EQ(m.move(both.data(), both.step(), both.data(), both.step(), {width, height}), qvpStatusNoError) << m.name;
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < m.DestinationRow(width); ++i) {
      ASSERT_EQ(both(i, y), Expected(m, expected, expected, i, y)) << m.name << " in place, width " << width;
    }
  }
}

// Packed rows, rows with gaps that differ, and gaps that leave rows unaligned; images at both kinds of edge.
void CheckGrid(const std::vector<Member>& members, const std::vector<int>& widths) {
  for (const Member& m : members) {
    for (const int width : widths) {
      Check(m, width, 0, 0, Guard::kAfter);
      Check(m, width, 3, 8, Guard::kAfter);
      Check(m, width, 8, 0, Guard::kBefore);
    }
  }
}

std::vector<int> WidthsAroundVectors() {
  return {1,  2,  3,  4,  5,  7,  8,  9,  15, 16,  17,  21,  22,  31, 32,
          33, 43, 47, 48, 63, 64, 65, 95, 97, 127, 128, 129, 200, 511};
}

#define BOUND(type, function, ...)                                                        \
  [=](const void* s, int ss, void* d, int ds, QvpiSize size) {                            \
    return function(static_cast<const Qvp##type*>(s), ss, static_cast<Qvp##type*>(d), ds, \
                    size __VA_OPT__(, ) __VA_ARGS__);                                     \
  }
#define BOUND_L(type, function)                                                                                       \
  [](const void* s, int ss, void* d, int ds, QvpiSize size) {                                                         \
    return function(static_cast<const Qvp##type*>(s), ss, static_cast<Qvp##type*>(d), ds, {size.width, size.height}); \
  }
#define FOR_EACH_TYPE(MEMBERS) MEMBERS(8u) MEMBERS(16u) MEMBERS(16s) MEMBERS(32s) MEMBERS(32f)

TEST(Copy, EveryMember) {
  std::vector<Member> members;
  const std::vector<int> keepAlpha{0, 1, 2, kKeep}, one3{0, kKeep, kKeep}, one4{0, kKeep, kKeep, kKeep};
#define COPY(type, layout, from, to, ...) \
  members.push_back({#type "_" #layout, sizeof(Qvp##type), from, to, __VA_ARGS__});
#define COPIES(type)                                                               \
  COPY(type, C1R, 1, 1, {0}, BOUND(type, qvpiCopy_##type##_C1R))                   \
  COPY(type, C3R, 3, 3, {0, 1, 2}, BOUND(type, qvpiCopy_##type##_C3R))             \
  COPY(type, C4R, 4, 4, {0, 1, 2, 3}, BOUND(type, qvpiCopy_##type##_C4R))          \
  COPY(type, AC4R, 4, 4, keepAlpha, BOUND(type, qvpiCopy_##type##_AC4R))           \
  COPY(type, C1R_L, 1, 1, {0}, BOUND_L(type, qvpiCopy_##type##_C1R_L))             \
  COPY(type, C3R_L, 3, 3, {0, 1, 2}, BOUND_L(type, qvpiCopy_##type##_C3R_L))       \
  COPY(type, C4R_L, 4, 4, {0, 1, 2, 3}, BOUND_L(type, qvpiCopy_##type##_C4R_L))    \
  COPY(type, AC4R_L, 4, 4, keepAlpha, BOUND_L(type, qvpiCopy_##type##_AC4R_L))     \
  COPY(type, C3AC4R, 3, 4, keepAlpha, BOUND(type, qvpiCopy_##type##_C3AC4R))       \
  COPY(type, AC4C3R, 4, 3, {0, 1, 2}, BOUND(type, qvpiCopy_##type##_AC4C3R))       \
  COPY(type, C3CR, 3, 3, one3, BOUND(type, qvpiCopy_##type##_C3CR), true, true)    \
  COPY(type, C4CR, 4, 4, one4, BOUND(type, qvpiCopy_##type##_C4CR), true, true)    \
  COPY(type, C3C1R, 3, 1, {0}, BOUND(type, qvpiCopy_##type##_C3C1R), true, false)  \
  COPY(type, C4C1R, 4, 1, {0}, BOUND(type, qvpiCopy_##type##_C4C1R), true, false)  \
  COPY(type, C1C3R, 1, 3, one3, BOUND(type, qvpiCopy_##type##_C1C3R), false, true) \
  COPY(type, C1C4R, 1, 4, one4, BOUND(type, qvpiCopy_##type##_C1C4R), false, true)
  FOR_EACH_TYPE(COPIES)
  COPY(8u, Dup_C1C3R, 1, 3, {0, 0, 0}, BOUND(8u, qvpiDup_8u_C1C3R))
  COPY(8u, Dup_C1C4R, 1, 4, {0, 0, 0, 0}, BOUND(8u, qvpiDup_8u_C1C4R))
  for (int flags = -1; flags < 8; ++flags) {
    COPY(8u, Managed, 1, 1, {0}, BOUND(8u, qvpiCopyManaged_8u_C1R, flags))
  }
  CheckGrid(members, WidthsAroundVectors());
}

// A channel copied onto another of the same image: the pointers differ, the pixels are the same.
TEST(Copy, OneChannelToAnotherOfTheSameImage) {
  for (const int width : WidthsAroundVectors()) {
    const Bytes image(3 * width, 2, 5), before(image);
    ASSERT_EQ(qvpiCopy_8u_C3CR(image.data(), image.step(), image.data() + 2, image.step(), {width, 2}), 0);
    for (int y = 0; y < 2; ++y) {
      for (int i = 0; i < 3 * width; ++i) ASSERT_EQ(image(i, y), before(i % 3 == 2 ? i - 2 : i, y)) << width;
    }
  }
}

TEST(Copy, UsesStepsOfAnySign) {
  const Bytes src(40, 3, 2);
  Bytes dst(40, 3, 7);
  ASSERT_EQ(qvpiCopy_8u_C1R(src.data() + 2 * src.step(), -src.step(), dst.data(), dst.step(), {40, 3}), 0);
  for (int i = 0; i < 40; ++i) ASSERT_EQ(dst(i, 0), src(i, 2)) << "upside down";
  ASSERT_EQ(qvpiCopy_8u_C1R(src.data(), src.step(), dst.data(), 0, {40, 3}), 0);
  for (int i = 0; i < 40; ++i) ASSERT_EQ(dst(i, 0), src(i, 2)) << "the last row stays";
  ASSERT_EQ(qvpiCopy_8u_C1R(src.data(), 0, dst.data(), dst.step(), {40, 3}), 0);
  for (int i = 0; i < 40; ++i) ASSERT_EQ(dst(i, 2), src(i, 0)) << "one row to all";
}

// All orders for each layout, of numbers from 0 up to `values` - 1.
std::vector<std::array<int, 4>> Orders(int entries, int values) {
  std::vector<std::array<int, 4>> orders;
  int count = 1;
  for (int i = 0; i < entries; ++i) count *= values;
  for (int n = 0; n < count; ++n) {
    std::array<int, 4> order{};
    for (int i = 0, rest = n; i < entries; ++i, rest /= values) order[i] = rest % values;
    orders.push_back(order);
  }
  return orders;
}

// The orders with their widths are many, so each order gets a few widths.
TEST(SwapChannels, EveryOrder) {
  std::vector<Member> members;
#define SWAP(type, layout, from, to, map, ...) \
  members.push_back({#type "_Swap" #layout, sizeof(Qvp##type), from, to, map, BOUND(type, __VA_ARGS__)});
#define SWAPS(type)                                                                                          \
  for (const auto& o : Orders(3, 3)) {                                                                       \
    SWAP(type, C3R, 3, 3, (std::vector{o[0], o[1], o[2]}), qvpiSwapChannels_##type##_C3R, o.data())          \
  }                                                                                                          \
  for (const auto& o : Orders(3, 4)) {                                                                       \
    SWAP(type, C4C3R, 4, 3, (std::vector{o[0], o[1], o[2]}), qvpiSwapChannels_##type##_C4C3R, o.data())      \
    SWAP(type, AC4R, 4, 4, (std::vector{o[0], o[1], o[2], kKeep}), qvpiSwapChannels_##type##_AC4R, o.data()) \
  }                                                                                                          \
  for (const auto& o : Orders(4, 4)) {                                                                       \
    SWAP(type, C4R, 4, 4, (std::vector{o[0], o[1], o[2], o[3]}), qvpiSwapChannels_##type##_C4R, o.data())    \
  }                                                                                                          \
  for (const auto& o : Orders(4, 5)) {                                                                       \
    std::vector<int> map;                                                                                    \
    for (const int entry : o) map.push_back(entry == 3 ? kFill : entry > 3 ? kKeep : entry);                 \
    Qvp##type value;                                                                                         \
    std::memcpy(&value, kFillBytes, sizeof(value));                                                          \
    SWAP(type, C3C4R, 3, 4, map, qvpiSwapChannels_##type##_C3C4R, o.data(), value)                           \
  }
  FOR_EACH_TYPE(SWAPS)
  CheckGrid(members, {1, 5, 33, 64});
}

TEST(SwapChannels, InPlaceForms) {
  for (const int width : WidthsAroundVectors()) {
    const Bytes three(3 * width, 2, 1), four(4 * width, 2, 6), before3(three), before4(four);
    const int order[] = {1, 2, 0, 0};
    ASSERT_EQ(qvpiSwapChannels_8u_C3IR(three.data(), three.step(), {width, 2}, order), 0);
    ASSERT_EQ(qvpiSwapChannels_8u_C4IR(four.data(), four.step(), {width, 2}, order), 0);
    for (int x = 0; x < width; ++x) {
      for (int c = 0; c < 3; ++c) ASSERT_EQ(three(3 * x + c, 1), before3(3 * x + order[c], 1));
      for (int c = 0; c < 4; ++c) ASSERT_EQ(four(4 * x + c, 1), before4(4 * x + order[c], 1));
    }
  }
}

TEST(SwapChannels, RefusesInItsOwnOrder) {
  Bytes a(64, 1, 0), b(64, 1, 0);
  const Bytes before(b);
  const int good[] = {0, 1, 2, 3}, high[] = {0, 1, 3, 0}, negative[] = {0, 1, -1, 0}, higher[] = {0, 4, 0, 0};
  const QvpiSize size{4, 1}, none{0, 1};
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(nullptr, 0, b.data(), 0, none, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 0, b.data(), 64, none, nullptr), qvpStatusStep);
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 64, b.data(), 0, none, nullptr), qvpStatusStep);
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 64, b.data(), 64, none, nullptr), qvpStatusSize);
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 64, b.data(), 64, size, nullptr), qvpStatusNullPointer);
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 64, b.data(), 64, size, high), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_C3IR(b.data(), 64, size, high), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_C3IR(b.data(), 0, none, nullptr), qvpStatusStep);
  EXPECT_EQ(qvpiSwapChannels_8u_C4C3R(a.data(), 64, b.data(), 64, size, higher), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_C4R(a.data(), 64, b.data(), 64, size, higher), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_AC4R(a.data(), 64, b.data(), 64, size, negative), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_C3C4R(a.data(), 64, b.data(), 64, size, negative, 1), qvpStatusChannelOrder);
  for (int i = 0; i < 64; ++i) ASSERT_EQ(b(i, 0), before(i, 0));
  EXPECT_EQ(qvpiSwapChannels_8u_C4R(a.data(), -64, b.data(), -64, size, good), qvpStatusNoError);
}

// An AC4 order has three entries: a fourth is not read.
TEST(SwapChannels, ReadsNoMoreEntriesThanItUses) {
  test::Block memory(3 * sizeof(int));
  const int order[] = {3, 2, 1};
  std::memcpy(memory.data(), order, sizeof(order));
  const auto* guarded = reinterpret_cast<const int*>(memory.data());
  const Bytes a(16, 1, 0), b(16, 1, 0);
  EXPECT_EQ(qvpiSwapChannels_8u_AC4R(a.data(), 16, b.data(), 16, {4, 1}, guarded), qvpStatusNoError);
  EXPECT_EQ(qvpiSwapChannels_8u_C4C3R(a.data(), 16, b.data(), 12, {4, 1}, guarded), qvpStatusNoError);
}

}  // namespace
