// Decimations of frames, by their definition.
#include <vector>

#include "tests/support/frames.h"
#include "tests/support/name.h"

namespace {
using test::Component;
using test::Export;
using test::Frame;
using test::Name;

struct Fraction {
  int code, from, to;
};
constexpr Fraction kFractions[] = {{qvpDecimate1of2, 2, 1}, {qvpDecimate1of3, 3, 1}, {qvpDecimate1of4, 4, 1},
                                   {qvpDecimate1of8, 8, 1}, {qvpDecimate2of3, 3, 2}, {qvpDecimate3of4, 4, 3},
                                   {qvpDecimate3of8, 8, 3}};

// Weights of what sample j covers, by position; those beyond `count` samples are of the last.
std::vector<std::pair<int, int>> WeightsOf(const Fraction& f, int j, int count) {
  std::vector<std::pair<int, int>> weights;
  for (int i = j * f.from / f.to; i * f.to < (j + 1) * f.from; ++i) {
    const int covered = std::min((i + 1) * f.to, (j + 1) * f.from) - std::max(i * f.to, j * f.from);
    weights.emplace_back(std::min(i, count - 1), covered);
  }
  return weights;
}

int64_t Expected(const Frame& src, const Component& c, const Fraction& f, int x, int y) {
  const QvpiSize size = src.format.SizeOf(src.luma, c.isChroma);
  int64_t sum = 0;
  for (const auto& [column, weight] : WeightsOf(f, x, size.width)) {
    for (const auto& [row, factor] : WeightsOf(f, y, size.height)) {
      sum += weight * factor * static_cast<int64_t>(src(c, column, row));
    }
  }
  const int all = f.from * f.from;
  return (2 * sum + all) / (2 * all);
}

void Check(const Export& function, const Fraction& f, QvpiSize size, bool isHighest, bool isUpwards) {
  const Name name(function.name);
  const auto read = [&](int length) { return (length * f.from + f.to - 1) / f.to; };
  const auto guard = size.width % 4 < 2 ? test::Guard::kAfter : test::Guard::kBefore;
  const Frame src(name.From(), {name.layout}, {read(size.width), read(size.height)}, 0, guard, isUpwards);
  const Frame dst(name.From(), {name.layout}, size, 0, guard, size.height % 3 == 0);
  if (isHighest) {
    src.ForEach([&](const Component& c, int x, int y) { name.From().write(src.At(c, x, y), name.From().highest); });
  }
  const test::Argument arguments[] = {{src.data}, {src.step}, {dst.data}, {dst.step}, size, f.code};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError) << function.name;
  dst.ForEach([&](const Component& c, int x, int y) {
    ASSERT_EQ(dst(c, x, y), Expected(src, c, f, x, y))
        << function.name << ' ' << f.to << " of " << f.from << ", " << size.width << 'x' << size.height << ", plane "
        << c.plane << " at " << x << ',' << y;
  });
}

TEST(Decimate, IsTheMeanOfWhatEachSampleCovers) {
  for (const Export* function : test::FunctionsOf({"Decimate420"})) {
    for (const Fraction& f : kFractions) {
      for (int w = 1; w <= 40; ++w) Check(*function, f, {w, 1 + w * 3 % 8}, false, w % 2);
      for (int h = 1; h <= 9; ++h) Check(*function, f, {70 + h, h}, false, false);
      Check(*function, f, {201, 7}, true, false);
    }
  }
}

// Sums of nine samples, each of them, above and below every tie.
TEST(Decimate, DividesEverySumByNine) {
  constexpr int kSums = 9 * 255 + 1;
  std::vector<uint8_t> src(3 * 3 * kSums), chroma(2 * 3 * kSums + 3), dst(kSums), other(2 * kSums);
  for (int sum = 0; sum < kSums; ++sum) {
    for (int i = 0; i < 9; ++i) src[i / 3 * 3 * kSums + sum * 3 + i % 3] = (sum + i) / 9;
  }
  const Qvp8u* const from[] = {src.data(), chroma.data()};
  Qvp8u* const to[] = {dst.data(), other.data()};
  const int srcStep[] = {3 * kSums, 3 * kSums + 3}, dstStep[] = {kSums, kSums + 1};
  ASSERT_EQ(qvpiDecimate420_8u_P2R(from, srcStep, to, dstStep, {kSums, 1}, qvpDecimate1of3), 0);
  for (int sum = 0; sum < kSums; ++sum) ASSERT_EQ(dst[sum], (sum + 4) / 9) << sum;
}

TEST(Decimate, GivesTheValuesOfItsText) {
  const auto row = [](const std::vector<Qvp16u>& values, int fraction, const std::vector<Qvp16u>& expected) {
    std::vector<Qvp16u> src, dst(expected.size());
    for (int y = 0; y < 4; ++y) src.insert(src.end(), values.begin(), values.end());
    Qvp16u u[64] = {}, v[64] = {}, toU[64], toV[64];
    const Qvp16u* const from[] = {src.data(), u, v};
    Qvp16u* const to[] = {dst.data(), toU, toV};
    const int step = static_cast<int>(2 * values.size()), srcStep[] = {step, 16, 16}, dstStep[] = {2, 16, 16};
    const QvpiSize size{static_cast<int>(expected.size()), 1};
    ASSERT_EQ(qvpiDecimate420_16u_P3R(from, srcStep, to, dstStep, size, fraction), 0);
    EXPECT_EQ(dst, expected);
  };
  row({10, 20, 30, 40, 50, 60}, qvpDecimate2of3, {13, 27, 43, 57});
  row({10, 20, 30, 40}, qvpDecimate3of4, {13, 25, 38});
}

TEST(Decimate, RefusesRowsOfHalfWordsAndOtherFractions) {
  Qvp16u samples[64] = {}, results[64] = {};
  const Qvp16u* src[] = {samples, samples};
  Qvp16u* dst[] = {results, results + 32};
  const int step[] = {16, 16}, odd[] = {16, 15};
  EXPECT_EQ(qvpiDecimate420_16u_P2R(src, odd, dst, step, {2, 2}, 0), qvpStatusStep);
  EXPECT_EQ(qvpiDecimate420_16u_P2R(src, step, dst, odd, {2, 2}, 0), qvpStatusStep);
  for (const int fraction : {0, 0x11, 0x15, 0x38 + 256, -1, 0x21}) {
    EXPECT_EQ(qvpiDecimate420_16u_P2R(src, step, dst, step, {2, 2}, fraction), qvpStatusDecimateFraction);
  }
}

}  // namespace
