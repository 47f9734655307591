// Fills, and copies and fills under a mask.
#include "tests/support/name.h"

namespace {
using test::Export;
using test::Guard;
using test::Name;
using Bytes = test::Image<uint8_t>;

// The value's bytes: as many as the largest pixel has, so that every byte of a pixel is told from every other.
constexpr uint8_t kValue[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};

// What a function writes, in bytes of a pixel.
struct Member {
  const Export& function;
  Name name{function.name};
  bool isOneChannel = name.layout.ends_with('C');  // C3C: the pointer selects it, and rows end with it
  int element = name.From().bytes, pixel = name.channels * element;
  int written = (isOneChannel ? 1 : name.written) * element;
  test::Block values{static_cast<size_t>(written)};  // no more of them can be read

  explicit Member(const Export& exported) : function(exported) { std::memcpy(values.data(), kValue, written); }
  int RowBytes(int width) const { return width * pixel - (isOneChannel ? pixel - element : 0); }
  test::Argument Value() const { return {values.data(), name.From().read(values.data())}; }
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

void Check(const Member& m, int width, int gap, int maskGap, unsigned seed, Guard guard) {
  const int height = 3;
  const Bytes src(m.RowBytes(width), height, gap + 1), mask = MaskFor(width, height, maskGap, seed);
  const Bytes dst(m.RowBytes(width), height, gap, guard), before(dst);
  ASSERT_EQ(
      m.function(
          {{"value", m.Value()}, {"pSrc", src}, {"pDst", dst}, {"roiSize", QvpiSize{width, height}}, {"pMask", mask}}),
      qvpStatusNoError);
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < m.RowBytes(width); ++i) {
      const bool kept = (m.name.isMasked && mask(i / m.pixel, y) == 0) || i % m.pixel >= m.written;
      const uint8_t value = m.function.Has("pSrc") ? src(i, y) : kValue[i % m.pixel];
      ASSERT_EQ(dst(i, y), kept ? before(i, y) : value)
          << m.function.name << " width " << width << " byte " << i << ',' << y;
    }
  }
}

TEST(Set, EveryMember) {
  for (const Export* function : test::FunctionsOf({"Set"})) {
    const Member m(*function);
    if (m.name.isMasked) continue;
    for (int width = 1; width < 70; ++width) {
      Check(m, width, width % 3, 0, 0, width % 2 ? Guard::kAfter : Guard::kBefore);
    }
    for (const int width : {95, 96, 97, 128, 191, 192, 193, 256, 383, 1000}) Check(m, width, 7, 0, 0, Guard::kAfter);
  }
}

TEST(Masked, EveryMember) {
  for (const Export* function : test::FunctionsOf({"Copy", "Set"})) {
    const Member m(*function);
    if (!m.name.isMasked) continue;
    for (const int width : {1, 2, 7, 15, 16, 17, 31, 32, 33, 48, 63, 64, 65, 100, 260}) {
      for (const unsigned seed : {0, 1, 2, 3}) {
        Check(m, width, 0, 0, seed, Guard::kAfter);
        Check(m, width, 5, 3, seed, Guard::kAfter);
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
