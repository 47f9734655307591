// Local binary patterns against their definition, bit by bit.
#include "tests/support/bordered.h"

namespace {
using test::Bordered;
using test::Export;
using test::Name;
using test::Real;
using test::Region;

// Neighbours as (x, y), from the right on counter-clockwise.
constexpr QvpiPoint kEight[] = {{1, 0}, {1, -1}, {0, -1}, {-1, -1}, {-1, 0}, {-1, 1}, {0, 1}, {1, 1}};
constexpr QvpiPoint kSixteen[] = {{2, 0},  {2, -1}, {2, -2}, {1, -2}, {0, -2}, {-1, -2}, {-2, -2}, {-2, -1},
                                  {-2, 0}, {-2, 1}, {-2, 2}, {-1, 2}, {0, 2},  {1, 2},   {2, 2},   {2, 1}};

template <class Pixel>
int CodeOf(int side, int neighbours, const Pixel& pixel) {
  int code = 0;
  for (int k = 0; k < neighbours; ++k) {
    const QvpiPoint at = neighbours == 16 ? kSixteen[k] : kEight[k];
    const int scale = neighbours == 8 && side == 5 ? 2 : 1;
    code |= (pixel(scale * at.x, scale * at.y) >= pixel(0, 0) ? 1 : 0) << k;
  }
  return code;
}

int Label(int code, int p, QvpiLBPMode mode) {
  int least = code, changes = 0, ones = 0, begin = 0;
  for (int k = 0; k < p; ++k) {
    least = std::min(least, (code << k | code >> (p - k)) & ((1 << p) - 1));
    const bool bit = code >> k & 1, before = code >> (k + p - 1) % p & 1;
    changes += bit != before;
    ones += bit;
    if (bit && !before) begin = k;
  }
  if (mode == qvpLBPCode) return code;
  if (mode == qvpLBPRotation) return least;
  if (mode == qvpLBPUniformRotation) return changes <= 2 ? ones : p + 1;
  if (changes > 2) return p * (p - 1) + 2;
  return ones == 0 ? 0 : ones == p ? p * (p - 1) + 1 : 1 + (ones - 1) * p + begin;
}

// Its buffers are smaller than most.
auto FilterAll(const Export& function, const Bordered& scene, QvpiSize mask, QvpiLBPMode mode) {
  const test::Bound most{2 * scene.element().bytes, 4096};
  return test::FilterAll(function, scene, {4, 0}, most, {{"maskSize", mask}, {"mode", mode}});
}

// Few levels, so that there are ties, among them the ends of the type, and NaN.
void FillWithTies(Bordered& scene) {
  const test::Element& e = scene.element();
  const Real levels[] = {1, 2, 3, 3, 250, e.lowest, e.highest, e.isInteger ? 2 : std::nan("")};
  test::Random random(3);
  scene.image.Fill([&](int, int) { return levels[random.Next() % std::size(levels)]; });
}

void Check(const Export& function, int side, QvpiLBPMode mode, const Region& r, test::Guard guard) {
  const Name name(function.name);
  const QvpiSize mask{side, side};
  const int neighbours = 8 * name.To().bytes;
  Bordered scene(name.From(), test::ReachOf(mask), r, guard);
  FillWithTies(scene);
  test::ExpectWindows(
      function, scene, FilterAll(function, scene, mask, mode),
      [&](const auto& pixel) { return Label(CodeOf(side, neighbours, pixel), neighbours, mode); },
      test::Shown(mask) + " mode " + std::to_string(mode), guard);
}

TEST(LocalPatterns, EveryMemberEqualsItsDefinition) {
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterLBPBorder"})) {
    const Name name(function->name);
    for (const int side : {3, 5}) {
      if (name.To().bytes == 2 && side == 3) continue;
      for (int i = 0; i < 24; ++i, ++turn) {
        Region r = test::RegionOf(turn, name.channels);
        if (i == 23) r.size = {1100, 3};  // of several blocks
        Check(*function, side, i % 4, r, turn % 2 ? test::Guard::kAfter : test::Guard::kBefore);
      }
    }
  }
  EXPECT_EQ(turn, 24 * 24);
}

// Squares of pixels, each of which has another code in its middle.
TEST(LocalPatterns, EveryCodeHasItsLabel) {
  for (const int neighbours : {8, 16}) {
    const int across = neighbours == 8 ? 16 : 256;
    const QvpiSize size{5 * across, 5 * (1 << neighbours) / across};
    const auto& function =
        test::FunctionNamed(neighbours == 8 ? "qvpiFilterLBPBorder_8u_C1R" : "qvpiFilterLBPBorder_8u16u_C1R");
    Bordered scene(test::ElementOf("8u"), test::ReachOf({5, 5}), {size, 1, qvpBorderReplicate});
    for (int i = 0; i < 1 << neighbours; ++i) {
      const int x = 5 * (i % across) + 2, y = 5 * (i / across) + 2;
      scene.image.Put(x, y, 100);
      for (int k = 0; k < neighbours; ++k) {
        const QvpiPoint at = neighbours == 16 ? kSixteen[k] : kEight[k];
        const int scale = neighbours == 8 ? 2 : 1;
        scene.image.Put(x + scale * at.x, y + scale * at.y, i >> k & 1 ? 100 : 99);
      }
    }
    const test::Samples dst(Name(function.name).To(), size.width, size.height, 5);
    for (int mode = qvpLBPCode; mode <= qvpLBPUniformRotation; ++mode) {
      ASSERT_EQ(FilterAll(function, scene, {5, 5}, mode)(dst), 0);
      for (int i = 0; i < 1 << neighbours; ++i) {
        ASSERT_EQ(dst(5 * (i % across) + 2, 5 * (i / across) + 2), Label(i, neighbours, mode)) << i << " mode " << mode;
      }
    }
  }
}

TEST(LocalPatterns, KnownValues) {
  const auto middle = [](QvpiLBPMode mode, std::vector<Qvp8u> pixels) {
    std::vector<Qvp8u> buffer(8192), out(9);
    EXPECT_EQ(qvpiFilterLBPBorder_8u_C1R(pixels.data(), 3, out.data(), 3, {3, 3}, {3, 3}, mode, qvpBorderReplicate,
                                         nullptr, buffer.data()),
              0);
    return int{out[4]};
  };
  const int ofSlope[] = {248, 31, 36, 5}, ofFlat[] = {255, 255, 57, 8};
  for (int mode = 0; mode < 4; ++mode) {
    EXPECT_EQ(middle(mode, {6, 5, 2, 7, 6, 1, 9, 8, 7}), ofSlope[mode]);
    EXPECT_EQ(middle(mode, std::vector<Qvp8u>(9, 200)), ofFlat[mode]);
    EXPECT_EQ(middle(mode, {1, 1, 1, 1, 2, 1, 1, 1, 1}), 0);
  }
  Qvp8u rising[25], buffer[8192];
  Qvp16u wide[25];
  for (int i = 0; i < 25; ++i) rising[i] = static_cast<Qvp8u>(i);
  EXPECT_EQ(
      qvpiFilterLBPBorder_8u16u_C1R(rising, 5, wide, 10, {5, 5}, {5, 5}, qvpLBPCode, qvpBorderMirror, nullptr, buffer),
      0);
  EXPECT_EQ(wide[12], 65025);
}

TEST(LocalPatterns, TakesTheMasksOfItsResults) {
  uint8_t in[64] = {}, out[64] = {}, buffer[8192];
  auto* const wide = reinterpret_cast<Qvp16u*>(out);
  for (const QvpiSize mask : {QvpiSize{4, 4}, {3, 5}}) {
    EXPECT_EQ(qvpiFilterLBPBorder_8u_C1R(in, 8, out, 8, {8, 8}, mask, 0, 1, nullptr, buffer), qvpStatusMaskSize);
  }
  EXPECT_EQ(qvpiFilterLBPBorder_8u16u_C1R(in, 8, wide, 8, {1, 1}, {3, 3}, 0, 1, nullptr, buffer), qvpStatusMaskSize);
}

}  // namespace
