// Copies into a border: every member, every kind, borders wider than the source.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {
using test::Guard;
using Bytes = test::Image<uint8_t>;

enum class Kind { kConst, kReplicate, kMirror, kWrap };

template <class T>
T FirstValue() {
  T value;
  static constexpr uint8_t kBytes[] = {1, 2, 3, 4};
  std::memcpy(&value, kBytes, sizeof(T));
  return value;
}

struct Frame {
  QvpiSize src, dst;
  int top, left;
};

struct Member {
  std::string name;
  Kind kind;
  int elementBytes, channels, written;
  std::function<QvpStatus(const void*, int, void*, int, const Frame&, const void*)> copy;
  std::function<QvpStatus(void*, int, const Frame&, const void*)> inPlace;

  int pixel() const { return elementBytes * channels; }
};

// Step by step, as far as it takes.
int Folded(Kind kind, int x, int n) {
  if (kind == Kind::kReplicate) return std::clamp(x, 0, n - 1);
  if (kind == Kind::kMirror && n == 1) return 0;
  while (x < 0 || x >= n) x = kind == Kind::kWrap ? (x < 0 ? x + n : x - n) : x < 0 ? -x : 2 * n - 2 - x;
  return x;
}

constexpr uint8_t kValue[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

// The byte of the result at row y and byte i, counted from the border's first pixel.
uint8_t Expected(const Member& m, const Frame& f, const Bytes& src, const Bytes& before, int y, int i) {
  const int x = i / m.pixel() - f.left, row = y - f.top, within = i % m.pixel();
  if (within >= m.written * m.elementBytes) return before(i, y);
  const bool isInside = x >= 0 && x < f.src.width && row >= 0 && row < f.src.height;
  if (m.kind == Kind::kConst && !isInside) return kValue[within];
  return src(Folded(m.kind, x, f.src.width) * m.pixel() + within, Folded(m.kind, row, f.src.height));
}

void Check(const Member& m, const Frame& f, int gap, Guard guard) {
  const Bytes src(f.src.width * m.pixel(), f.src.height, gap + 2, guard),
      dst(f.dst.width * m.pixel(), f.dst.height, gap);
  const Bytes before(dst), image(dst);
  uint8_t* const middle = image.data() + f.top * image.step() + f.left * m.pixel();
  for (int y = 0; y < f.src.height; ++y)
    std::memcpy(middle + y * image.step(), src.bytes() + y * src.step(), src.step() - gap - 2);
  const Bytes source(image);
  ASSERT_EQ(m.copy(src.data(), src.step(), dst.data(), dst.step(), f, kValue), qvpStatusNoError) << m.name;
  ASSERT_EQ(m.inPlace(middle, image.step(), f, kValue), qvpStatusNoError) << m.name;
  for (int y = 0; y < f.dst.height; ++y) {
    for (int i = 0; i < f.dst.width * m.pixel(); ++i) {
      ASSERT_EQ(dst(i, y), Expected(m, f, src, before, y, i))
          << m.name << ' ' << f.src.width << " byte " << i << ',' << y;
      ASSERT_EQ(image(i, y), Expected(m, f, src, source, y, i)) << m.name << " in place " << i << ',' << y;
    }
  }
}

std::vector<Member> Members() {
  std::vector<Member> members;
#define VALUE_C1(type) , FirstValue<Qvp##type>()
#define VALUES(type) , static_cast<const Qvp##type*>(value)
#define NO_VALUE(type)
#define MEMBER(kind, type, layout, count, kept, form, Int, Roi, argument)                                             \
  members.push_back({#kind #type #layout #form, Kind::k##kind, sizeof(Qvp##type), count, kept,                        \
                     [](const void* s, int ss, void* d, int ds, const Frame& f, [[maybe_unused]] const void* value) { \
                       return qvpiCopy##kind##Border_##type##_##layout##R##form(                                      \
                           static_cast<const Qvp##type*>(s), ss, Roi{f.src.width, f.src.height},                      \
                           static_cast<Qvp##type*>(d), ds, Roi{f.dst.width, f.dst.height}, f.top,                     \
                           f.left argument(type));                                                                    \
                     },                                                                                               \
                     [](void* d, int ds, const Frame& f, [[maybe_unused]] const void* value) {                        \
                       return qvpiCopy##kind##Border_##type##_##layout##IR##form(                                     \
                           static_cast<Qvp##type*>(d), ds, Roi{f.src.width, f.src.height},                            \
                           Roi{f.dst.width, f.dst.height}, f.top, f.left argument(type));                             \
                     }});
#define BOTH_FORMS(kind, type, layout, count, kept, argument)        \
  MEMBER(kind, type, layout, count, kept, , int, QvpiSize, argument) \
  MEMBER(kind, type, layout, count, kept, _L, QvpSizeL, QvpiSizeL, argument)
#define TYPE(type)                                 \
  BOTH_FORMS(Const, type, C1, 1, 1, VALUE_C1)      \
  BOTH_FORMS(Const, type, C3, 3, 3, VALUES)        \
  BOTH_FORMS(Const, type, C4, 4, 4, VALUES)        \
  BOTH_FORMS(Const, type, AC4, 4, 3, VALUES)       \
  BOTH_FORMS(Replicate, type, C1, 1, 1, NO_VALUE)  \
  BOTH_FORMS(Replicate, type, C3, 3, 3, NO_VALUE)  \
  BOTH_FORMS(Replicate, type, C4, 4, 4, NO_VALUE)  \
  BOTH_FORMS(Replicate, type, AC4, 4, 3, NO_VALUE) \
  BOTH_FORMS(Mirror, type, C1, 1, 1, NO_VALUE)     \
  BOTH_FORMS(Mirror, type, C3, 3, 3, NO_VALUE)     \
  BOTH_FORMS(Mirror, type, C4, 4, 4, NO_VALUE)
#define FOR_EACH_TYPE(MEMBERS) MEMBERS(8u) MEMBERS(16u) MEMBERS(16s) MEMBERS(32s) MEMBERS(32f)
#define COPIES(type) BOTH_FORMS(Wrap, type, C1, 1, 1, NO_VALUE)
  FOR_EACH_TYPE(TYPE)
  COPIES(32s)
  COPIES(32f)
  return members;
}

TEST(CopyBorder, EveryMember) {
  const Frame frames[] = {{{1, 1}, {1, 1}, 0, 0},       {{1, 3}, {12, 9}, 2, 7},   {{4, 5}, {31, 30}, 11, 10},
                          {{7, 2}, {7, 9}, 3, 0},       {{23, 4}, {64, 4}, 0, 20}, {{40, 6}, {43, 9}, 1, 1},
                          {{64, 5}, {72, 13}, 4, 4},    {{65, 1}, {66, 2}, 0, 1},  {{130, 3}, {147, 8}, 2, 16},
                          {{9, 130}, {30, 140}, 5, 17}, {{16, 3}, {19, 4}, 1, 2},  {{6000, 12}, {6009, 14}, 1, 5}};
  for (const Member& m : Members()) {
    for (const Frame& f : frames) Check(m, f, f.src.width % 4, f.src.width % 2 ? Guard::kAfter : Guard::kBefore);
  }
}

TEST(CopyBorder, ChecksInOrder) {
  for (const Member& m : Members()) {
    Bytes a(600, 3, 0), b(600, 3, 0);
    const Bytes before(b);
    const auto copy = [&](const void* src, int srcStep, int dstStep, Frame f) {
      return m.copy(src, srcStep, b.data(), dstStep, f, kValue);
    };
    const Frame bad{{0, 3}, {5, 3}, 0, 0};
    EXPECT_EQ(copy(nullptr, 0, 0, bad), qvpStatusNullPointer) << m.name;
    EXPECT_EQ(copy(a.data(), 0, 600, bad), qvpStatusStep) << m.name;
    EXPECT_EQ(copy(a.data(), 600, -1, bad), qvpStatusStep) << m.name;
    for (const Frame& f : {bad,
                           Frame{{5, 0}, {5, 3}, 0, 0},
                           {{5, 3}, {0, 3}, 0, 0},
                           {{5, 3}, {5, -1}, 0, 0},
                           {{5, 3}, {9, 9}, -1, 0},
                           {{5, 3}, {9, 9}, 0, -1},
                           {{5, 3}, {7, 3}, 0, 3},
                           {{5, 3}, {5, 4}, 2, 0},
                           {{5, 3}, {9, 9}, INT32_MAX, 0},
                           {{5, 3}, {9, 9}, 0, INT32_MAX}}) {
      EXPECT_EQ(copy(a.data(), 600, 600, f), qvpStatusSize) << m.name;
      EXPECT_EQ(m.inPlace(b.data(), 600, f, kValue), qvpStatusSize) << m.name;
    }
    EXPECT_EQ(std::memcmp(b.bytes(), before.bytes(), 1800), 0) << m.name;
  }
}

// One pointer for source and destination: the border goes around it. A step of the source is then not even looked at,
// but where the border is wrapped; with a constant there is no such rule.
TEST(CopyBorder, OnePointerForBothIsTheFormInPlace) {
  for (const Member& m : Members()) {
    if (m.kind == Kind::kConst) continue;
    const Frame f{{6, 3}, {11, 8}, 2, 3};
    const Bytes a(f.dst.width * m.pixel(), f.dst.height, 1), b(a);
    const ptrdiff_t inside = f.top * a.step() + f.left * m.pixel();
    const bool checksFirst = m.kind == Kind::kWrap;
    ASSERT_EQ(m.inPlace(a.data() + inside, a.step(), f, nullptr), 0);
    EXPECT_EQ(m.copy(b.data() + inside, 0, b.data() + inside, b.step(), f, nullptr), checksFirst ? qvpStatusStep : 0);
    if (checksFirst) {
      EXPECT_EQ(m.copy(b.data() + inside, 1, b.data() + inside, b.step(), f, nullptr), 0);
    }
    for (int y = 0; y < f.dst.height; ++y) {
      for (int i = 0; i < f.dst.width * m.pixel(); ++i) ASSERT_EQ(a(i, y), b(i, y)) << m.name;
    }
  }
}

}  // namespace
