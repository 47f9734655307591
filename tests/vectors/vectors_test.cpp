// What instruction sets do differently has one meaning in base: each operation against it, with every extreme value in
// every lane. This program is compiled for each CPU build with that build's flags.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "base/blocks.h"
#include "base/gather.h"
#include "base/halves.h"
#include "base/lanes.h"
#include "base/pairs.h"

namespace {
using namespace qvp;

template <class T>
using Limits = std::numeric_limits<T>;

// Values at which something changes: of reals the ends of every integer type and what lies beyond them, ties, zeros.
template <class T>
std::vector<T> Extremes() {
  if constexpr (std::is_integral_v<T>) {
    std::vector<T> values = {Limits<T>::lowest(), Limits<T>::max(), 0, 1, 2, 63, 64, 100, 127};
    for (const int64_t v : {-1, -2, -128, -129, 128, 255, 256, -32768, -32769, 32767, 32768, 65535, 65536, 98304}) {
      if (v >= Limits<T>::lowest() && v <= Limits<T>::max()) values.push_back(static_cast<T>(v));
    }
    return values;
  } else {
    std::vector<T> values = {Limits<T>::quiet_NaN(), Limits<T>::denorm_min(), Limits<T>::max(), Limits<T>::infinity()};
    for (const double v : {0.0, 0.49999997, 0.5, 1.5, 2.5, 127.5, 255.5, 32767.5, 65535.5, 2147483520.0, 2147483647.0,
                           2147483647.5, 2147483648.0, 2147483904.0, 4294967040.0, 4294967296.0, 1e18, 1e30}) {
      values.push_back(static_cast<T>(v));
    }
    for (size_t i = 0, n = values.size(); i < n; ++i) values.push_back(-values[i]);
    return values;
  }
}

template <class V>
auto LanesOf(V v) {
  const hn::DFromV<V> d;
  std::array<hn::TFromV<V>, hn::MaxLanes(d)> lanes;
  hn::StoreU(v, d, lanes.data());
  return lanes;
}

// Calls check(v, lanes of v) for vectors that have each extreme value in each lane; the second differs from the first
// by `turn` values.
template <class D, class Check>
void ForExtremes(D d, const Check& check, size_t turn = 0) {
  using T = hn::TFromD<D>;
  const std::vector<T> values = Extremes<T>();
  std::array<T, hn::MaxLanes(D())> lanes;
  for (size_t first = 0; first < values.size(); ++first) {
    for (size_t i = 0; i < lanes.size(); ++i) lanes[i] = values[(first * (turn + 1) + turn + i) % values.size()];
    check(hn::LoadU(d, lanes.data()), lanes);
  }
}
template <class D, class Check>
void ForPairs(D d, const Check& check) {
  for (size_t turn = 0; turn < Extremes<hn::TFromD<D>>().size(); ++turn) {
    ForExtremes(d, [&](auto a, const auto& x) {
      ForExtremes(
          d, [&](auto b, const auto& y) { check(a, b, x, y); }, turn);
    });
  }
}

// To the nearest, ties to even; saturated; NaN is the lowest value.
template <class T, class S>
T Converted(S value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value);
  } else {
    const long double real = value;
    if (std::isnan(real) || real <= Limits<T>::lowest()) return Limits<T>::lowest();
    return real >= Limits<T>::max() ? Limits<T>::max() : static_cast<T>(std::nearbyint(real));
  }
}

template <class T>
bool AreSame(T a, T b) {
  return (a != a && b != b) || (a == b && std::signbit(1.0L * a) == std::signbit(1.0L * b));
}

template <class T, class L>
void ExpectNarrow() {
  const hn::ScalableTag<L> d;
  ForExtremes(d, [&](auto v, const auto& lanes) {
    const auto narrow = LanesOf(Narrow<T>(d, v));
    for (size_t i = 0; i < narrow.size(); ++i) EXPECT_EQ(narrow[i], Converted<T>(lanes[i])) << lanes[i];
  });
}

TEST(Vectors, NarrowWithSaturation) {
  ExpectNarrow<uint8_t, float>();
  ExpectNarrow<int8_t, float>();
  ExpectNarrow<uint16_t, float>();
  ExpectNarrow<int16_t, float>();
  ExpectNarrow<uint32_t, float>();
  ExpectNarrow<int32_t, float>();
  ExpectNarrow<uint8_t, double>();
  ExpectNarrow<uint16_t, double>();
  ExpectNarrow<int16_t, double>();
  ExpectNarrow<int32_t, double>();
  ExpectNarrow<uint8_t, int32_t>();
  ExpectNarrow<int8_t, int32_t>();
  ExpectNarrow<uint16_t, int32_t>();
  ExpectNarrow<int16_t, int32_t>();
  ExpectNarrow<uint32_t, int32_t>();
  ExpectNarrow<int32_t, uint32_t>();
  ExpectNarrow<uint8_t, uint32_t>();
  ExpectNarrow<uint16_t, uint32_t>();
  ExpectNarrow<uint8_t, int16_t>();
  ExpectNarrow<int8_t, int16_t>();
  ExpectNarrow<uint8_t, uint16_t>();
}

template <class T, class S>
void ExpectWide() {
  using Narrow = hn::Rebind<S, hn::ScalableTag<T>>;
  ForExtremes(Narrow(), [](auto, const auto& lanes) {
    const auto wide = LanesOf(LoadWide(hn::ScalableTag<T>(), lanes.data()));
    for (size_t i = 0; i < wide.size(); ++i) EXPECT_EQ(wide[i], static_cast<T>(lanes[i]));
  });
}

TEST(Vectors, LoadElementsInWiderLanes) {
  ExpectWide<int16_t, uint8_t>();
  ExpectWide<int32_t, int8_t>();
  ExpectWide<float, uint8_t>();
  ExpectWide<float, int8_t>();
  ExpectWide<float, int32_t>();
  ExpectWide<float, uint32_t>();
  ExpectWide<double, int16_t>();
  ExpectWide<double, uint32_t>();
}

template <class F>
void ExpectMinimaAndMaxima() {
  ForPairs(hn::ScalableTag<F>(), [](auto a, auto b, const auto& x, const auto& y) {
    const auto least = LanesOf(MinOrSecond(a, b)), most = LanesOf(MaxOrSecond(a, b));
    for (size_t i = 0; i < x.size(); ++i) {
      EXPECT_TRUE(AreSame(least[i], x[i] < y[i] ? x[i] : y[i])) << x[i] << ' ' << y[i];
      EXPECT_TRUE(AreSame(most[i], y[i] < x[i] ? x[i] : y[i])) << x[i] << ' ' << y[i];
    }
  });
}

TEST(Vectors, TakeTheSecondOfNanAndOfZeros) {
  ExpectMinimaAndMaxima<float>();
  ExpectMinimaAndMaxima<double>();
}

TEST(Vectors, RoundToIntGivesTheLowestOutsideOfTheRange) {
  ForExtremes(hn::ScalableTag<float>(), [](auto v, const auto& lanes) {
    const auto rounded = LanesOf(RoundToInt(v));
    for (size_t i = 0; i < lanes.size(); ++i) {
      const bool isInside = lanes[i] >= -2147483648.0f && lanes[i] < 2147483648.0f;
      EXPECT_EQ(rounded[i], isInside ? Converted<int32_t>(lanes[i]) : INT32_MIN) << lanes[i];
    }
  });
}

TEST(Vectors, TruncateTowardZero) {
  ForExtremes(hn::ScalableTag<float>(), [](auto v, const auto& lanes) {
    const auto truncated = LanesOf(TruncateInRange(v));
    for (size_t i = 0; i < lanes.size(); ++i) {
      const bool isInside = lanes[i] >= -2147483648.0f && lanes[i] < 2147483648.0f;
      if (!isInside) continue;
      EXPECT_EQ(truncated[i], static_cast<int32_t>(lanes[i])) << lanes[i];
    }
  });
}

template <class T, class L>
void ExpectPacked() {
  ForPairs(hn::ScalableTag<L>(), [](auto lower, auto upper, const auto& x, const auto& y) {
    const auto packed = LanesOf(PackedInOrder<T>(lower, upper));
    for (size_t i = 0; i < packed.size(); ++i) {
      EXPECT_EQ(packed[i], Converted<T>(i < x.size() ? x[i] : y[i - x.size()])) << i;
    }
  });
}

// Four vectors in two steps, as narrowing from 32 to 8 bits goes.
template <class T>
void ExpectFourInOrder() {
  const hn::ScalableTag<int32_t> d;
  constexpr int kLanes = hn::MaxLanes(d);
  const auto from = [&](int first) { return hn::Iota(d, first); };
  const auto lower = Packed(int16_t(), from(0), from(kLanes)),
             upper = Packed(int16_t(), from(2 * kLanes), from(3 * kLanes));
  const auto packed = LanesOf(InOrder<4>(Packed(T(), lower, upper)));
  for (int i = 0; i < 4 * kLanes; ++i) EXPECT_EQ(packed[i], i);
}

TEST(Vectors, PackTwoIntoOneWithSaturation) {
  ExpectPacked<uint8_t, int16_t>();
  ExpectPacked<int8_t, int16_t>();
  ExpectPacked<uint16_t, int32_t>();
  ExpectPacked<int16_t, int32_t>();
  ExpectFourInOrder<uint8_t>();
  ExpectFourInOrder<int8_t>();
}

template <class T>
void ExpectHalves() {
  ForPairs(hn::ScalableTag<T>(),
           [](auto a, auto, const auto& x, const auto&) { EXPECT_EQ(LanesOf(Pack<T>(Widen<T>(a))), x); });
}

TEST(Vectors, WidenAndPackAgain) {
  ExpectHalves<uint8_t>();
  ExpectHalves<int8_t>();
  ExpectHalves<int16_t>();
  // Of unsigned lanes everything above is the greatest.
  const hn::ScalableTag<uint16_t> d;
  ForExtremes(d, [&](auto v, const auto& lanes) {
    const auto packed = LanesOf(InOrder<2>(Pack<uint8_t>(Halves{v, v})));
    for (size_t i = 0; i < lanes.size(); ++i) EXPECT_EQ(packed[i], std::min<int>(lanes[i], 255));
  });
}

// Sums of bytes by signed bytes saturate; those of 16 bits only leave the range for four times the lowest.
TEST(Vectors, AddProductsInPairs) {
  ForExtremes(hn::ScalableTag<uint8_t>(), [](auto a, const auto& x) {
    ForExtremes(hn::ScalableTag<int8_t>(), [&](auto b, const auto& y) {
      const auto sums = LanesOf(MulAddPairs(a, b));
      for (size_t i = 0; i < sums.size(); ++i) {
        EXPECT_EQ(sums[i], Converted<int16_t>(x[2 * i] * y[2 * i] + x[2 * i + 1] * y[2 * i + 1]));
      }
    });
  });
  ForPairs(hn::ScalableTag<int16_t>(), [](auto a, auto b, const auto& x, const auto& y) {
    const auto sums = LanesOf(MulAddPairs(a, b));
    for (size_t i = 0; i < sums.size(); ++i) {
      const int64_t exact = int64_t{x[2 * i]} * y[2 * i] + int64_t{x[2 * i + 1]} * y[2 * i + 1];
      EXPECT_EQ(sums[i], exact > INT32_MAX ? INT32_MIN : exact);
    }
  });
}

TEST(Vectors, ShuffleZeroForEveryPlaceOutsideOfTheBlock) {
  const hn::ScalableTag<uint8_t> d;
  const auto block =
      hn::LoadDup128(d, std::array<uint8_t, 16>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}.data());
  for (int place = 0; place < 256; ++place) {
    const auto places = hn::Set(d, static_cast<uint8_t>(place));
    const auto found = LanesOf(hn::TableLookupBytesOr0(block, IndicesOr0(places)));
    for (const uint8_t byte : found) EXPECT_EQ(byte, place < 16 ? place + 1 : 0) << place;
    const bool isFound = place < (kShuffleIsModulo16 ? 128 : 16);
    for (const uint8_t byte : LanesOf(hn::TableLookupBytesOr0(block, places)))
      EXPECT_EQ(byte, isFound ? place % 16 + 1 : 0) << place;
  }
}

TEST(Vectors, EvenAndOddLanesOfBlocks) {
  const hn::CappedTag<float, 8> d;
  const auto a = hn::Iota(d, 0.0f), b = hn::Iota(d, 100.0f);
  const auto even = LanesOf(EvenLanesOfBlocks(a, b)), odd = LanesOf(OddLanesOfBlocks(a, b));
  for (int i = 0; i < static_cast<int>(even.size()); ++i) {
    const float expected = static_cast<float>((i % 4 < 2 ? 0 : 100) + i / 4 * 4 + 2 * (i % 2));
    EXPECT_EQ(even[i], expected);
    EXPECT_EQ(odd[i], expected + 1);
  }
}

TEST(Vectors, CollectWordsFromBothSidesOfAnAddress) {
  alignas(64) std::array<uint8_t, 256> bytes;
  for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i);
  const hn::ScalableTag<int32_t> d;
  constexpr int kLanes = hn::MaxLanes(d);
  int32_t offsets[kLanes];
  for (int i = 0; i < kLanes; ++i) offsets[i] = (i % 2 ? -1 : 1) * (5 * i + 3);
  const auto words = LanesOf(GatherWords(d, bytes.data() + 128, hn::LoadU(d, offsets)));
  EXPECT_EQ(LanesOf(GatherWords(d, bytes.data() + 128, offsets)), words);
  const auto pairs = LanesOf(hn::BitCast(hn::ScalableTag<uint64_t>(), LoadWords<2>(bytes.data() + 128, offsets)));
  float table[2 * kLanes];
  for (int i = 0; i < 2 * kLanes; ++i) table[i] = static_cast<float>(i) / 4;
  const auto indices = hn::Add(hn::Iota(d, 1), hn::ShiftRight<1>(hn::Iota(d, 0)));
  const auto looked = LanesOf(LookUpWords(hn::ScalableTag<float>(), table, indices));
  for (int i = 0; i < kLanes; ++i) {
    const uint32_t first = 128 + offsets[i];
    EXPECT_EQ(looked[i], static_cast<float>(1 + i + i / 2) / 4);
    EXPECT_EQ(static_cast<uint32_t>(words[i]),
              first + (first + 1) * 0x100 + (first + 2) * 0x10000 + (first + 3) * 0x1000000);
    if (i % 2 == 0) {
      EXPECT_EQ(pairs[i / 2] & 0xFFFFFFFF, static_cast<uint32_t>(words[i]));
    }
  }
  const auto streamed = LanesOf(LoadStreaming(bytes.data() + 16));
  for (int i = 0; i < 16; ++i) EXPECT_EQ(streamed[i], 16 + i);
}

}  // namespace
