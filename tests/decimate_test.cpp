// Decimations of frames, by their definition.
#include <vector>

#include "tests/support/name.h"

namespace {
using test::Export;
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

// Samples of one axis: of the destination, and of the source that are read.
struct Lengths {
  int to, from;
};
Lengths LengthsOf(const Fraction& f, int luma, bool isChroma) {
  const int read = (luma * f.from + f.to - 1) / f.to;
  return isChroma ? Lengths{(luma + 1) / 2, (read + 1) / 2} : Lengths{luma, read};
}

template <class T>
struct Planes {
  std::vector<std::unique_ptr<test::Image<T>>> images;
  T* data[3] = {};
  int step[3] = {};

  // Every plane has a step of its own; those that go upwards begin with the last row in memory.
  void Add(int samples, int height, int gap, test::Guard guard, bool isUpwards) {
    const size_t i = images.size();
    images.push_back(std::make_unique<test::Image<T>>(samples, height, gap, guard));
    const int up = isUpwards ? (height - 1) * images[i]->step() : 0;
    data[i] = reinterpret_cast<T*>(images[i]->bytes() + up);
    step[i] = isUpwards ? -images[i]->step() : images[i]->step();
  }
  T operator()(size_t plane, int x, int y) const {
    T value;
    const uint8_t* row = reinterpret_cast<const uint8_t*>(data[plane]) + ptrdiff_t{y} * step[plane];
    std::memcpy(&value, row + x * sizeof(T), sizeof(T));
    return value;
  }
};

// The definition, for sample x of row y of a plane; `unit` samples make a pixel.
template <class T>
int64_t Expected(const Planes<T>& src, size_t plane, const Fraction& f, int x, int y, int unit, Lengths across,
                 Lengths down) {
  int64_t sum = 0;
  for (const auto& [column, weight] : WeightsOf(f, x / unit, across.from)) {
    for (const auto& [row, factor] : WeightsOf(f, y, down.from)) {
      sum += weight * factor * src(plane, column * unit + x % unit, row);
    }
  }
  const int all = f.from * f.from;
  return (2 * sum + all) / (2 * all);
}

enum class Values { kRandom, kHighest };

template <class T>
void Check(const Export& function, int planes, const Fraction& f, QvpiSize size, Values values, bool isUpwards) {
  Planes<T> src, dst;
  for (int i = 0; i < planes; ++i) {
    const Lengths across = LengthsOf(f, size.width, i > 0), down = LengthsOf(f, size.height, i > 0);
    const int unit = planes == 2 && i == 1 ? 2 : 1, bytes = sizeof(T);
    const auto guard = i % 2 ? test::Guard::kBefore : test::Guard::kAfter;
    src.Add(across.from * unit, down.from, i * 3 * bytes, guard, isUpwards);
    dst.Add(across.to * unit, down.to, (4 - i) * bytes, guard, isUpwards && i == 1);
    for (int y = 0; values == Values::kHighest && y < down.from; ++y) {
      for (int x = 0; x < across.from * unit; ++x) src.images[i]->Put(x, y, static_cast<T>(-1));
    }
  }
  const test::Argument arguments[] = {{src.data}, {src.step}, {dst.data}, {dst.step}, size, f.code};
  ASSERT_EQ(function.call(arguments), qvpStatusNoError) << function.name;
  for (int i = 0; i < planes; ++i) {
    const Lengths across = LengthsOf(f, size.width, i > 0), down = LengthsOf(f, size.height, i > 0);
    const int unit = planes == 2 && i == 1 ? 2 : 1;
    for (int y = 0; y < down.to; ++y) {
      for (int x = 0; x < across.to * unit; ++x) {
        ASSERT_EQ(dst(i, x, y), Expected(src, i, f, x, y, unit, across, down))
            << function.name << ' ' << f.to << " of " << f.from << ", " << size.width << 'x' << size.height
            << ", plane " << i << " at " << x << ',' << y;
      }
    }
  }
}

void CheckAny(const Export& function, const Fraction& f, QvpiSize size, Values values, bool isUpwards) {
  const Name name(function.name);
  (name.type == "8u" ? Check<uint8_t> : Check<uint16_t>)(function, name.channels, f, size, values, isUpwards);
}

TEST(Decimate, IsTheMeanOfWhatEachSampleCovers) {
  for (const Export* function : test::FunctionsOf({"Decimate420"})) {
    for (const Fraction& f : kFractions) {
      for (int w = 1; w <= 40; ++w) CheckAny(*function, f, {w, 1 + w * 3 % 8}, Values::kRandom, w % 2);
      for (int h = 1; h <= 9; ++h) CheckAny(*function, f, {70 + h, h}, Values::kRandom, false);
      CheckAny(*function, f, {201, 7}, Values::kHighest, false);
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

TEST(Decimate, ChecksInOrder) {
  Qvp16u samples[64] = {}, results[64] = {};
  const Qvp16u *src[] = {samples, samples}, *none[] = {samples, nullptr};
  Qvp16u* dst[] = {results, results + 32};
  const int step[] = {16, 16}, odd[] = {16, 15};
  EXPECT_EQ(qvpiDecimate420_16u_P2R(none, odd, dst, step, {0, 1}, 0), qvpStatusNullPointer);
  EXPECT_EQ(qvpiDecimate420_16u_P2R(src, nullptr, dst, step, {0, 1}, 0), qvpStatusNullPointer);
  EXPECT_EQ(qvpiDecimate420_16u_P2R(src, odd, dst, step, {0, 1}, 0), qvpStatusSize);
  EXPECT_EQ(qvpiDecimate420_16u_P2R(src, step, dst, odd, {2, 2}, 0), qvpStatusStep);
  for (const int fraction : {0, 0x11, 0x15, 0x38 + 256, -1, 0x21}) {
    EXPECT_EQ(qvpiDecimate420_16u_P2R(src, step, dst, step, {2, 2}, fraction), qvpStatusDecimateFraction);
  }
}

}  // namespace
