// Mirrors, transpositions and turns by quarters.
#include "tests/support/name.h"

namespace {
using test::Argument;
using test::Export;
using test::Name;

// The column and row of the source pixel that destination pixel (x, y) takes; w and h are the source's.
std::pair<int, int> SourceOf(int axis, int x, int y, int w, int h) {
  switch (axis) {
    case qvpAxisHorizontal: return {x, h - 1 - y};
    case qvpAxisVertical: return {w - 1 - x, y};
    case qvpAxisBoth: return {w - 1 - x, h - 1 - y};
    case qvpAxis45: return {y, x};
    default: return {w - 1 - y, h - 1 - x};
  }
}

// The same for turns by quarters, counter-clockwise.
std::pair<int, int> SourceOfTurn(int turns, int x, int y, int w, int h) {
  switch ((turns % 4 + 4) % 4) {
    case 0: return {x, y};
    case 1: return {w - 1 - y, x};
    case 2: return {w - 1 - x, h - 1 - y};
    default: return {y, h - 1 - x};
  }
}

// `axis` is qvpAxis45 for transpositions. Of turns it is their number.
void Check(const Export& function, int w, int h, int axis, int gap) {
  const Name name(function.name);
  const int element = name.type == "32fc" ? 8 : name.From().bytes, pixel = element * name.channels,
            written = element * name.written;
  const bool isTurn = function.Has("turns"), turned = isTurn ? axis % 2 != 0 : axis >= qvpAxis45;
  const int dstWidth = turned ? h : w, dstHeight = turned ? w : h;
  test::Image<uint8_t> src(w * pixel, h, gap), dst(dstWidth * pixel, dstHeight, gap + 3, test::Guard::kBefore);
  test::Image<uint8_t> both(src);
  const test::Image<uint8_t> before(dst);
  auto& out = name.inPlace ? both : dst;
  std::vector<Argument> arguments;
  if (!name.inPlace) arguments = {{src.data()}, {nullptr, src.step()}};
  arguments.insert(arguments.end(), {{out.data()}, {nullptr, out.step()}, {nullptr, w, h}, {nullptr, axis}});
  ASSERT_EQ(function.call(arguments.data()), qvpStatusNoError) << function.name << ' ' << w << 'x' << h << ' ' << axis;
  for (int y = 0; y < dstHeight; ++y) {
    for (int x = 0; x < dstWidth; ++x) {
      const auto [fromX, fromY] = (isTurn ? SourceOfTurn : SourceOf)(axis, x, y, w, h);
      for (int b = 0; b < pixel; ++b) {
        const uint8_t kept = name.inPlace ? src(x * pixel + b, y) : before(x * pixel + b, y);
        ASSERT_EQ(out(x * pixel + b, y), b < written ? src(fromX * pixel + b, fromY) : kept)
            << function.name << ' ' << w << 'x' << h << " axis " << axis << " at " << x << ',' << y;
      }
    }
  }
}

TEST(Mirror, MovesEveryPixelOfEveryMember) {
  for (const Export* function : test::FunctionsOf({"Mirror"})) {
    for (int axis = 0; axis <= qvpAxis135; ++axis) {
      const bool square = axis >= qvpAxis45 && Name(function->name).inPlace;
      for (const int w : {1, 2, 5, 6, 17, 33, 70}) {
        for (const int h : {1, 4, 13, 35, 70}) Check(*function, w, square ? w : h, axis, w % 3);
      }
    }
    Check(*function, 601, 3, qvpAxisVertical, 1);
    Check(*function, 601, 3, qvpAxisBoth, 1);
  }
}

TEST(Transpose, MovesEveryPixelOfEveryMember) {
  for (const Export* function : test::FunctionsOf({"Transpose"})) {
    const bool square = Name(function->name).inPlace;
    for (int w = 1; w <= 70; w += 1 + w / 9) {
      for (int h = 1; h <= 70; h += 1 + h / 9) Check(*function, w, square ? w : h, qvpAxis45, w % 2);
    }
    if (!square) Check(*function, 300, 130, qvpAxis45, 5);
  }
}

TEST(RotateQuarter, MovesEveryPixelOfEveryMember) {
  for (const Export* function : test::FunctionsOf({"RotateQuarter"})) {
    for (int w = 1; w <= 70; w += 1 + w / 5) {
      for (int h = 1; h <= 70; h += 1 + h / 5) Check(*function, w, h, (w + h) % 2 ? 1 : -1, w % 3);
    }
    for (int turns = -5; turns <= 5; ++turns) Check(*function, 37, 70, turns, 1);
    Check(*function, 300, 130, 3, 5);
  }
}

TEST(Mirror, TakesOneImageForBothAsInPlace) {
  for (int axis = 0; axis <= qvpAxisBoth; ++axis) {
    test::Image<uint8_t> image(3 * 19, 7, 2);
    test::Image<uint8_t> other(image);
    ASSERT_EQ(qvpiMirror_8u_C3R(image.data(), image.step(), image.data(), image.step(), {19, 7}, QvpiAxis(axis)), 0);
    ASSERT_EQ(qvpiMirror_8u_C3IR(other.data(), other.step(), {19, 7}, QvpiAxis(axis)), 0);
    for (int i = 0; i < 7 * 57; ++i) ASSERT_EQ(image(i % 57, i / 57), other(i % 57, i / 57)) << "axis " << axis;
  }
}

TEST(RotateQuarter, TurnsInPlaceByHalfAndTakesRowsUpwards) {
  constexpr int kWidth = 19, kHeight = 6;
  const QvpiSize roi{kWidth, kHeight};
  test::Image<uint8_t> image(3 * kWidth, kHeight, 2), turned(3 * kHeight, kWidth, 5);
  const test::Image<uint8_t> before(image);
  const int step = image.step();
  ASSERT_EQ(qvpiRotateQuarter_8u_C3R(image.data(), step, image.data(), step, roi, -2), qvpStatusNoError);
  ASSERT_EQ(qvpiRotateQuarter_8u_C3R(image.data(), step, image.data(), step, roi, 4), qvpStatusNoError);
  const uint8_t* const last = image.data() + (kHeight - 1) * step;
  ASSERT_EQ(qvpiRotateQuarter_8u_C3R(last, -step, turned.data(), turned.step(), roi, 1), qvpStatusNoError);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < 3 * kWidth; ++x) {
      const int pixel = kWidth - 1 - x / 3, channel = x % 3;
      ASSERT_EQ(image(x, y), before(3 * pixel + channel, kHeight - 1 - y));
      ASSERT_EQ(turned(3 * y + channel, pixel), image(x, kHeight - 1 - y));
    }
  }
}

// Beyond the caches, and in whole blocks, rows are streamed.
TEST(Transpose, MovesLargeImages) {
  constexpr int kWidth = 8192, kHeight = 4096;
  std::vector<uint8_t> memory(2 * kWidth * kHeight + 64);
  uint8_t* const src = memory.data() + (-reinterpret_cast<uintptr_t>(memory.data()) & 63);
  uint8_t* const dst = src + kWidth * kHeight;
  test::Random(1).Fill(src, kWidth * kHeight);
  ASSERT_EQ(qvpiTranspose_8u_C1R(src, kWidth, dst, kHeight, {kWidth, kHeight}), qvpStatusNoError);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) ASSERT_EQ(dst[x * kHeight + y], src[y * kWidth + x]) << x << ',' << y;
  }
  ASSERT_EQ(qvpiRotateQuarter_8u_C1R(src, kWidth, dst, kHeight, {kWidth, kHeight}, 1), qvpStatusNoError);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) ASSERT_EQ(dst[(kWidth - 1 - x) * kHeight + y], src[y * kWidth + x]);
  }
}

TEST(Mirror, ChecksEachPathInItsOrder) {
  uint8_t image[64] = {1, 2, 3, 4}, other[64] = {};
  const QvpiSize wide{3, 2}, none{0, 2};
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 0, other, 8, none, qvpAxis45), qvpStatusStep);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, other, 8, none, 5), qvpStatusSize);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, other, 8, wide, 5), qvpStatusMirrorFlip);
  EXPECT_EQ(qvpiMirror_8u_C1IR(image, 8, wide, qvpAxis45), qvpStatusSize);
  EXPECT_EQ(qvpiTranspose_8u_C1IR(image, 8, wide), qvpStatusSize);
  EXPECT_EQ(qvpiTranspose_8u_C1R(image, 8, image, 8, wide), qvpStatusSize);
}

// Source 2 wide and 3 high, destination 3 wide and 2 high, in one frame with rows of 8 bytes. Rows of turns may go
// upwards.
TEST(RotateQuarter, TellsOverlapFromNeighbourhoodLikeMirror) {
  constexpr struct {
    int src, srcStep, dst, dstStep;
    bool isApart;
  } kPlaces[] = {{32, 8, 34, 8, true},    // side by side
                 {37, 8, 34, 8, true},    // the other way round
                 {32, 8, 33, 8, false},   // a shared column
                 {36, 8, 34, 8, false},   //
                 {32, 8, 32, 8, false},   //
                 {32, 8, 48, 8, false},   // a shared row
                 {32, 8, 56, 8, true},    // below
                 {32, 8, 16, 8, true},    // above
                 {32, 8, 30, 8, false},   // runs over the row's end into the source
                 {48, -8, 34, 8, true},   //
                 {48, -8, 42, -8, true},  //
                 {48, -8, 33, 8, false},  //
                 {32, 8, 56, -8, false},  // its upper row
                 {32, 8, 64, -8, true}};
  const QvpiSize roi{2, 3};
  for (const auto& [src, srcStep, dst, dstStep, isApart] : kPlaces) {
    uint8_t frame[128] = {}, *const from = frame + src, *const to = frame + dst;
    const QvpStatus expected = isApart ? qvpStatusNoError : qvpStatusNotSupportedMode;
    EXPECT_EQ(qvpiRotateQuarter_8u_C1R(from, srcStep, to, dstStep, roi, src % 3 ? 1 : -1), expected)
        << src << ' ' << dst;
    if (srcStep < 0 || dstStep < 0) continue;
    EXPECT_EQ(qvpiMirror_8u_C1R(from, srcStep, to, dstStep, roi, qvpAxis45), expected) << src << ' ' << dst;
  }
}

}  // namespace
