// Mirrors and transpositions.
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

// `axis` is qvpAxis45 for transpositions.
void Check(const Export& function, int w, int h, int axis, int gap) {
  const Name name(function.name);
  const int element = name.type == "32fc" ? 8 : name.From().bytes, pixel = element * name.channels,
            written = element * name.written;
  const bool turned = axis >= qvpAxis45;
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
      const auto [fromX, fromY] = SourceOf(axis, x, y, w, h);
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
}

TEST(Mirror, ChecksEachPathInItsOrder) {
  uint8_t image[64] = {1, 2, 3, 4}, other[64] = {};
  const QvpiSize wide{3, 2}, none{0, 2};
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, other, 8, none, 5), qvpStatusSize);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, other, 8, wide, 5), qvpStatusMirrorFlip);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, image, 8, wide, -1), qvpStatusMirrorFlip);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 0, other, 8, none, qvpAxis45), qvpStatusStep);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, other, 8, none, qvpAxis45), qvpStatusSize);
  EXPECT_EQ(qvpiMirror_8u_C1R(image, 8, image, 8, wide, qvpAxis135), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiMirror_8u_C1IR(image, 8, wide, qvpAxis45), qvpStatusSize);
  EXPECT_EQ(qvpiTranspose_8u_C1IR(image, 8, wide), qvpStatusSize);
  EXPECT_EQ(qvpiTranspose_8u_C1R(image, 8, image, 8, wide), qvpStatusSize);
}

// Source 2 wide and 3 high, destination 3 wide and 2 high, in one frame with rows of 8 bytes.
TEST(Mirror, TellsOverlapFromNeighbourhood) {
  const QvpiSize roi{2, 3};
  const auto at = [&](ptrdiff_t srcOffset, ptrdiff_t dstOffset) {
    uint8_t frame[128] = {};
    return qvpiMirror_8u_C1R(frame + srcOffset, 8, frame + dstOffset, 8, roi, qvpAxis45);
  };
  EXPECT_EQ(at(32, 34), qvpStatusNoError);           // side by side
  EXPECT_EQ(at(37, 34), qvpStatusNoError);           // the other way round
  EXPECT_EQ(at(32, 33), qvpStatusNotSupportedMode);  // a shared column
  EXPECT_EQ(at(36, 34), qvpStatusNotSupportedMode);
  EXPECT_EQ(at(32, 48), qvpStatusNotSupportedMode);  // a shared row
  EXPECT_EQ(at(32, 56), qvpStatusNoError);           // below
  EXPECT_EQ(at(32, 16), qvpStatusNoError);           // above
  EXPECT_EQ(at(32, 30), qvpStatusNotSupportedMode);  // runs over the row's end into the source
}

}  // namespace
