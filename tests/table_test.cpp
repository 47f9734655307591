// Look-up tables and palettes: every entry, through each member, against an array access.
#include <array>
#include <numeric>

#include "tests/support/elements.h"

namespace {
using test::Block;
using test::Export;
using test::Guard;
using test::Image;
using test::Name;

// A table of random entries that ends at a page that cannot be read, so that most are not aligned.
template <class T>
struct Table {
  static constexpr size_t kEntries = size_t{1} << 8 * sizeof(T);
  Block block;

  explicit Table(uint64_t seed, Guard guard = Guard::kAfter) : block(kEntries * sizeof(T), guard) {
    test::Random(seed).Fill(block.data(), block.size());
  }
  const T* data() const { return reinterpret_cast<const T*>(block.data()); }
  T operator[](size_t i) const {
    T entry;
    std::memcpy(&entry, block.data() + i * sizeof(T), sizeof(T));
    return entry;
  }
};

// Looks up rows of all values in turn. `of` tells which of the tables each channel has.
template <class T>
void Check(const Export& function, int pixels, const Table<T> (&tables)[4], const std::array<int, 4>& of) {
  const Name name(function.name);
  const T* pointers[4];
  for (int c = 0; c < 4; ++c) pointers[c] = c < name.written ? tables[of[c]].data() : nullptr;
  const void* const table = name.channels == 1 ? static_cast<const void*>(pointers[0]) : pointers;
  test::CheckElements(
      function, {pixels, 3}, {{"pTable", table}},
      [&](test::Samples& image) {
        image.Fill([&](int x, int y) { return static_cast<T>(x / name.channels * 7 + y * 85); });
      },
      [&](test::Real, test::Real v, int c) { return tables[of[c]][static_cast<size_t>(v)]; });
}

template <class T>
void CheckAll(const std::string& type, std::initializer_list<int> widths) {
  const Table<T> tables[4] = {Table<T>(1), Table<T>(2, Guard::kBefore), Table<T>(3), Table<T>(4)};
  for (const Export* function : test::FunctionsOf({"LookupTable"})) {
    if (Name(function->name).type != type) continue;
    for (const int pixels : widths) {
      Check(*function, pixels, tables, {0, 1, 2, 3});
      Check(*function, pixels, tables, {1, 1, 1, 1});
      Check(*function, pixels, tables, {2, 0, 0, 2});
    }
  }
}

TEST(LookupTable, TakesEveryEntryInEveryLane) {
  CheckAll<uint8_t>("8u", {1, 2, 3, 5, 15, 16, 17, 31, 32, 33, 47, 63, 64, 65, 100, 129, 256, 517});
  CheckAll<uint16_t>("16u", {1, 2, 3, 4, 5, 7, 16, 33, 517});
}

TEST(LookupTable, TakesEveryEntryOf16Bits) {
  const Table<uint16_t> table(5);
  std::vector<uint16_t> src(65536), dst(65536);
  std::iota(src.begin(), src.end(), uint16_t{0});
  ASSERT_EQ(qvpiLookupTable_16u_C1R(src.data(), 512, dst.data(), 512, {256, 256}, table.data()), qvpStatusNoError);
  for (size_t i = 0; i < dst.size(); ++i) ASSERT_EQ(dst[i], table[i]) << i;
}

// Channels of the destination: C1C3 has three.
int ChannelsOfEntry(const Name& name) { return name.layout.back() - '0'; }

// Entries of random bits, NaN among them, that end at a page that cannot be read; and indices with all bits.
void CheckPalette(const Export& function, int pixels, int nBits) {
  const Name name(function.name);
  const int height = 2, indexBytes = name.From().bytes, entryBytes = ChannelsOfEntry(name) * name.To().bytes;
  const Block palette((size_t{1} << nBits) * entryBytes);
  test::Random(nBits).Fill(palette.data(), palette.size());
  const Image<uint8_t> src(pixels * indexBytes, height, 3), dst(pixels * entryBytes, height, 5);
  ASSERT_EQ(function({{"pSrc", src},
                      {"pDst", dst},
                      {"roiSize", QvpiSize{pixels, height}},
                      {"pPalette", palette.data()},
                      {"nBits", nBits}}),
            qvpStatusNoError)
      << function.name;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < pixels; ++x) {
      size_t index = 0;  // little-endian, as all machines are
      for (int b = 0; b < indexBytes; ++b) index |= size_t{src(x * indexBytes + b, y)} << 8 * b;
      const uint8_t* const entry = palette.data() + index % (size_t{1} << nBits) * entryBytes;
      ASSERT_EQ(std::memcmp(dst.bytes() + y * dst.step() + x * entryBytes, entry, entryBytes), 0)
          << function.name << " with " << nBits << " bits at " << x << ',' << y;
    }
  }
}

TEST(Palette, CopiesTheEntryOfTheLowestBits) {
  for (const Export* function : test::FamilyOf({"Palette"})) {
    for (int nBits = 1; nBits <= 8 * Name(function->name).From().bytes; ++nBits) {
      for (const int pixels : {1, 2, 3, 31, 67, 300}) CheckPalette(*function, pixels, nBits);
    }
  }
}

TEST(Palette, RefusesBitCountsOutsideOfTheIndex) {
  const Qvp16u wide[4] = {1, 2, 3, 4};
  const Qvp8u src[4] = {1, 2, 3, 4};
  const std::vector<Qvp8u> palette(4 << 16);
  Qvp8u dst[16] = {};
  for (const int more : {-8, -9, 1, INT32_MAX - 16, INT32_MIN}) {  // than 8
    EXPECT_EQ(qvpiPalette_8u_C1C3R(src, 4, dst, 16, {1, 1}, palette.data(), 8 + more), qvpStatusOutOfRange);
  }
  EXPECT_EQ(qvpiPalette_16u8u_C1C4R(wide, 8, dst, 16, {1, 1}, palette.data(), 17), qvpStatusOutOfRange);
  EXPECT_EQ(qvpiPalette_16u8u_C1C4R(wide, 8, dst, 16, {1, 1}, palette.data(), 16), qvpStatusNoError);
}

}  // namespace
