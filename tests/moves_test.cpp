// Everything that moves whole pixels or channels from one image to another, against one sentence: channel c of a
// destination pixel is a source channel, the fill value, or what it was.
#include <array>

#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Guard;
using test::Name;
using Bytes = test::Image<uint8_t>;

constexpr int kKeep = -1, kFill = -2;
constexpr uint8_t kFillBytes[8] = {0x11, 0x22, 0x33, 0x44};

// What a call moves, by the layout in the function's name.
struct Move {
  const Export* function;
  int elementBytes, from, to;          // channels of a pixel
  std::vector<int> map;                // for each destination channel
  bool oneOfSource, oneOfDestination;  // the pointer selects one channel; the row ends with it
  std::vector<test::Named> more = {};  // arguments besides images and size

  explicit Move(const Export& exported) : function(&exported) {
    const Name name(exported.name);
    elementBytes = name.From().bytes;
    from = name.channels;
    const bool isOneToOne = name.layout.ends_with('C');  // C3C
    to = isOneToOne ? from : name.layout.back() - '0';
    oneOfSource = isOneToOne || (from > 1 && to == 1);
    oneOfDestination = isOneToOne || (from == 1 && to > 1 && name.operation != "Dup");
    for (int c = 0; c < to; ++c) map.push_back(name.operation == "Dup" || c == 0 ? 0 : oneOfDestination ? kKeep : c);
    if (name.layout.ends_with("AC4")) map[3] = kKeep;
  }

  int SourceRow(int width) const { return RowBytes(width, from, oneOfSource); }
  int DestinationRow(int width) const { return RowBytes(width, to, oneOfDestination); }
  bool CanBeInPlace() const { return from == to && oneOfSource == oneOfDestination; }
  QvpStatus operator()(const Bytes& src, const Bytes& dst, QvpiSize size) const {
    std::vector<test::Named> arguments{{"pSrc", src}, {"pDst", dst}, {"pSrcDst", dst}, {"roiSize", size}};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return (*function)(arguments);
  }

 private:
  int RowBytes(int width, int channels, bool one) const {
    return (width * channels - (one ? channels - 1 : 0)) * elementBytes;
  }
};

// What byte i of destination row y must be.
uint8_t Expected(const Move& m, const Bytes& src, const Bytes& before, int i, int y) {
  const int pixel = i / (m.to * m.elementBytes), within = i % (m.to * m.elementBytes);
  const int from = m.map[within / m.elementBytes], byte = within % m.elementBytes;
  if (from == kKeep) return before(i, y);
  return from == kFill ? kFillBytes[byte] : src((pixel * m.from + from) * m.elementBytes + byte, y);
}

void Compare(const Move& m, int width, const Bytes& dst, const Bytes& src, const Bytes& before) {
  for (int y = 0; y < 3; ++y) {
    for (int i = 0; i < m.DestinationRow(width); ++i) {
      ASSERT_EQ(dst(i, y), Expected(m, src, before, i, y))
          << m.function->name << " width " << width << " byte " << i << ',' << y;
    }
  }
}

void Check(const Move& m, int width, int srcGap, int dstGap, Guard guard) {
  const QvpiSize size{width, 3};
  const Bytes src(m.SourceRow(width), size.height, srcGap, guard);
  if (m.function->Has("pSrc")) {
    const Bytes dst(m.DestinationRow(width), size.height, dstGap, guard), before(dst);
    ASSERT_EQ(m(src, dst, size), qvpStatusNoError) << m.function->name;
    Compare(m, width, dst, src, before);
  }
  if (!m.CanBeInPlace()) return;
  const Bytes both(src);
  ASSERT_EQ(m(both, both, size), qvpStatusNoError) << m.function->name;
  Compare(m, width, both, src, src);
}

// Packed rows, rows with gaps that differ, and gaps that leave rows unaligned; images at both kinds of edge.
void CheckGrid(const Move& m, const std::vector<int>& widths) {
  for (const int width : widths) {
    Check(m, width, 0, 0, Guard::kAfter);
    Check(m, width, 3, 8, Guard::kAfter);
    Check(m, width, 8, 0, Guard::kBefore);
    if (testing::Test::HasFatalFailure()) return;
  }
}

std::vector<int> WidthsAroundVectors() {
  return {1,  2,  3,  4,  5,  7,  8,  9,  15, 16,  17,  21,  22,  31, 32,
          33, 43, 47, 48, 63, 64, 65, 95, 97, 127, 128, 129, 200, 511};
}

bool IsPlanar(const Name& name) { return name.layout.find('P') != std::string::npos; }

TEST(Copy, EveryMember) {
  for (const Export* function : test::FunctionsOf({"Copy", "CopyManaged", "Dup"})) {
    const Name name(function->name);
    if (name.isMasked || IsPlanar(name)) continue;
    Move move(*function);
    for (int flags = -1; flags < (function->Has("flags") ? 8 : 0); ++flags) {
      move.more = {{"flags", flags}};
      CheckGrid(move, WidthsAroundVectors());
    }
  }
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
  for (const Export* function : test::FunctionsOf({"SwapChannels"})) {
    Move move(*function);
    // An entry beyond the source's channels means the constant, or larger that the channel stays, if there is one.
    const bool hasConstant = function->Has("val");
    const int entries = Name(function->name).layout == "AC4" ? 3 : move.to;
    const test::Real constant = Name(function->name).From().read(kFillBytes);
    for (auto order : Orders(entries, hasConstant ? 5 : move.from)) {
      for (int c = 0; c < entries; ++c) {
        if (order[c] == 4 && c % 2 == 1) order[c] = INT32_MAX;  // any larger number does
        move.map[c] = order[c] < move.from ? order[c] : order[c] == move.from ? kFill : kKeep;
      }
      move.more = {{"dstOrder", {order.data()}}, {"val", constant}};
      CheckGrid(move, {1, 5, 33, 64});
    }
  }
}

// Pixels split into planes, and merged again.
TEST(Planar, EveryMember) {
  for (const Export* function : test::FunctionsOf({"Copy"})) {
    const Name name(function->name);
    if (!IsPlanar(name)) continue;
    const int n = name.channels, element = name.From().bytes, height = 3;
    for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 130, 300}) {
      for (const auto& [gap, planeGap] : {std::pair{0, 0}, {5, 2}, {4, 0}}) {
        const Guard guard = gap == 4 ? Guard::kBefore : Guard::kAfter;
        const Bytes pixels(n * width * element, height, gap, guard);
        std::vector<Bytes> planes;
        planes.reserve(4);
        const void* pointers[4];
        for (int c = 0; c < 4; ++c) pointers[c] = planes.emplace_back(width * element, height, planeGap, guard).data();
        const Argument many(pointers, planes[0].step());
        const bool splits = name.layout[0] == 'C';
        ASSERT_EQ((*function)({{"pSrc", splits ? Argument(pixels) : many},
                               {"pDst", splits ? many : Argument(pixels)},
                               {"roiSize", QvpiSize{width, height}}}),
                  0);
        for (int i = 0; i < n * width * element * height; ++i) {
          const int x = i / height / element, byte = i / height % element, y = i % height;
          ASSERT_EQ(pixels(x * element + byte, y), planes[x % n](x / n * element + byte, y))
              << function->name << " width " << width << " at " << x << ',' << y;
        }
      }
    }
  }
}

TEST(SwapChannels, RefusesOrders) {
  Bytes a(64, 1, 0), b(64, 1, 0);
  const Bytes before(b);
  const int good[] = {0, 1, 2, 3}, high[] = {0, 1, 3, 0}, negative[] = {0, 1, -1, 0}, higher[] = {0, 4, 0, 0};
  const QvpiSize size{4, 1};
  EXPECT_EQ(qvpiSwapChannels_8u_C3R(a.data(), 64, b.data(), 64, size, high), qvpStatusChannelOrder);
  EXPECT_EQ(qvpiSwapChannels_8u_C3IR(b.data(), 64, size, high), qvpStatusChannelOrder);
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
