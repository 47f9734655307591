// Fills, and copies and fills under a mask.
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {
using test::Guard;
using Bytes = test::Image<uint8_t>;

// The value's bytes: as many as the largest pixel has, so that every byte of a pixel is told from every other.
constexpr uint8_t kValue[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

template <class T>
T FirstValue() {
  T value;
  std::memcpy(&value, kValue, sizeof(T));
  return value;
}

// kValue with exactly `channels` elements before an unreadable page.
template <class T>
class GuardedValues {
 public:
  explicit GuardedValues(int channels) : block_(channels * sizeof(T)) {
    std::memcpy(block_.data(), kValue, block_.size());
  }
  const T* get() const { return reinterpret_cast<const T*>(block_.data()); }

 private:
  test::Block block_;
};

struct Fill {
  std::string name;
  int elementBytes, channels, written;
  std::function<QvpStatus(void*, int, QvpiSize)> fill;
  bool oneChannel = false;

  int RowBytes(int width) const { return (width * channels - (oneChannel ? channels - 1 : 0)) * elementBytes; }
};

void Check(const Fill& m, int width, int gap, Guard guard) {
  const int height = 3, pixel = m.channels * m.elementBytes;
  Bytes dst(m.RowBytes(width), height, gap, guard);
  const Bytes before(dst);
  ASSERT_EQ(m.fill(dst.data(), dst.step(), {width, height}), qvpStatusNoError) << m.name;
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < m.RowBytes(width); ++i) {
      const bool kept = i % pixel >= m.written * m.elementBytes;
      ASSERT_EQ(dst(i, y), kept ? before(i, y) : kValue[i % pixel]) << m.name << " width " << width << " byte " << i;
    }
  }
}

#define FOR_EACH_TYPE(MEMBERS) MEMBERS(8u) MEMBERS(16u) MEMBERS(16s) MEMBERS(32s) MEMBERS(32f)

std::vector<Fill> Fills() {
  std::vector<Fill> fills;
#define FILL(type, layout, channels, written, value, ...)                                                     \
  fills.push_back(                                                                                            \
      {"Set_" #type "_" #layout, sizeof(Qvp##type), channels, written, [](void* d, int step, QvpiSize size) { \
         return qvpiSet_##type##_##layout(value, static_cast<Qvp##type*>(d), step, size);                     \
       } __VA_OPT__(, ) __VA_ARGS__});
#define FILL_L(type, layout, channels, written, value)                                                         \
  fills.push_back(                                                                                             \
      {"Set_" #type "_" #layout, sizeof(Qvp##type), channels, written, [](void* d, int step, QvpiSize size) {  \
         return qvpiSet_##type##_##layout(value, static_cast<Qvp##type*>(d), step, {size.width, size.height}); \
       }});
#define FILLS(type)                                             \
  FILL(type, C1R, 1, 1, FirstValue<Qvp##type>())                \
  FILL_L(type, C1R_L, 1, 1, FirstValue<Qvp##type>())            \
  FILL(type, C3R, 3, 3, GuardedValues<Qvp##type>(3).get())      \
  FILL_L(type, C3R_L, 3, 3, GuardedValues<Qvp##type>(3).get())  \
  FILL(type, C4R, 4, 4, GuardedValues<Qvp##type>(4).get())      \
  FILL_L(type, C4R_L, 4, 4, GuardedValues<Qvp##type>(4).get())  \
  FILL(type, AC4R, 4, 3, GuardedValues<Qvp##type>(3).get())     \
  FILL_L(type, AC4R_L, 4, 3, GuardedValues<Qvp##type>(3).get()) \
  FILL(type, C3CR, 3, 1, FirstValue<Qvp##type>(), true)         \
  FILL(type, C4CR, 4, 1, FirstValue<Qvp##type>(), true)
  FOR_EACH_TYPE(FILLS)
  return fills;
}

TEST(Set, EveryMember) {
  for (const Fill& fill : Fills()) {
    for (int width = 1; width < 70; ++width) Check(fill, width, width % 3, width % 2 ? Guard::kAfter : Guard::kBefore);
    for (const int width : {95, 96, 97, 128, 191, 192, 193, 256, 383, 1000}) Check(fill, width, 7, Guard::kAfter);
  }
}

TEST(Set, FillsUpwardsWithANegativeStep) {
  const Bytes dst(50, 3, 4);
  ASSERT_EQ(qvpiSet_8u_C1R(9, dst.data() + 2 * dst.step(), -dst.step(), {50, 3}), qvpStatusNoError);
  for (int y = 0; y < 3; ++y) {
    for (int i = 0; i < 50; ++i) ASSERT_EQ(dst(i, y), 9);
  }
}

struct Masked {
  std::string name;
  int elementBytes, channels, written;
  bool hasSource;
  std::function<QvpStatus(const void*, int, void*, int, QvpiSize, const Qvp8u*, int)> call;
};

// Masks of any non-zero value select.
Bytes MaskFor(int width, int height, int gap, unsigned seed) {
  Bytes mask(width, height, gap);
  test::Random random(seed);
  constexpr uint8_t kMasks[] = {0, 1, 0, 0x80, 0, 0xFF, 0x10, 0x7F};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      mask.Put(x, y, seed == 0 ? 0 : seed == 1 ? 255 : kMasks[random.Next() % 8]);
    }
  }
  return mask;
}

void Check(const Masked& m, int width, int gap, int maskGap, unsigned seed) {
  const int height = 3, pixel = m.channels * m.elementBytes;
  const Bytes src(width * pixel, height, gap + 1), mask = MaskFor(width, height, maskGap, seed);
  Bytes dst(width * pixel, height, gap);
  const Bytes before(dst);
  ASSERT_EQ(m.call(src.data(), src.step(), dst.data(), dst.step(), {width, height}, mask.data(), mask.step()), 0);
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < width * pixel; ++i) {
      const bool kept = mask(i / pixel, y) == 0 || i % pixel >= m.written * m.elementBytes;
      const uint8_t value = m.hasSource ? src(i, y) : kValue[i % pixel];
      ASSERT_EQ(dst(i, y), kept ? before(i, y) : value) << m.name << " width " << width << " byte " << i << ',' << y;
    }
  }
}

TEST(Masked, EveryMember) {
  std::vector<Masked> members;
#define MASKED_COPY(type, layout, channels, written)                                                        \
  members.push_back({"Copy_" #type "_" #layout, sizeof(Qvp##type), channels, written, true,                 \
                     [](const void* s, int ss, void* d, int ds, QvpiSize size, const Qvp8u* mask, int ms) { \
                       return qvpiCopy_##type##_##layout(static_cast<const Qvp##type*>(s), ss,              \
                                                         static_cast<Qvp##type*>(d), ds, size, mask, ms);   \
                     }});
#define MASKED_SET(type, layout, channels, written, value)                                                      \
  members.push_back({"Set_" #type "_" #layout, sizeof(Qvp##type), channels, written, false,                     \
                     [](const void*, int, void* d, int ds, QvpiSize size, const Qvp8u* mask, int ms) {          \
                       return qvpiSet_##type##_##layout(value, static_cast<Qvp##type*>(d), ds, size, mask, ms); \
                     }});
#define MASKED(type)                                              \
  MASKED_COPY(type, C1MR, 1, 1)                                   \
  MASKED_COPY(type, C3MR, 3, 3)                                   \
  MASKED_COPY(type, C4MR, 4, 4)                                   \
  MASKED_COPY(type, AC4MR, 4, 3)                                  \
  MASKED_SET(type, C1MR, 1, 1, FirstValue<Qvp##type>())           \
  MASKED_SET(type, C3MR, 3, 3, GuardedValues<Qvp##type>(3).get()) \
  MASKED_SET(type, C4MR, 4, 4, GuardedValues<Qvp##type>(4).get()) \
  MASKED_SET(type, AC4MR, 4, 3, GuardedValues<Qvp##type>(3).get())
  FOR_EACH_TYPE(MASKED)
  for (const Masked& m : members) {
    for (const int width : {1, 2, 7, 15, 16, 17, 31, 32, 33, 48, 63, 64, 65, 100, 260}) {
      for (const unsigned seed : {0, 1, 2, 3}) {
        Check(m, width, 0, 0, seed);
        Check(m, width, 5, 3, seed);
      }
    }
  }
}

// Packed pixels and a packed mask make one row; a step that merely equals the width must not.
TEST(Masked, RowsCollapseOnlyWhenEveryImageIsPacked) {
  const int width = 100, height = 50;
  const test::Image<Qvp32f> src(width, height, 0), dst(width, height, 0), before(dst);
  const Bytes mask = MaskFor(width, height, 0, 7);
  ASSERT_EQ(qvpiCopy_32f_C1MR(src.data(), width, dst.data(), width, {width, height}, mask.data(), width), 0);
  // Rows overlap: each starts 100 bytes after the one before, and only their span of 5300 bytes is written.
  EXPECT_EQ(std::memcmp(dst.bytes() + 5300, before.bytes() + 5300, 4 * width * height - 5300), 0);
}

}  // namespace
