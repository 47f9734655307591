// Premultiplied colors, compositing and color keys, against formulas in whole numbers; floats against the same order of
// operations.
#include <array>
#include <cmath>
#include <limits>

#include "tests/support/elements.h"

namespace {
using test::Element;
using test::Export;
using test::Name;
using test::Pixels;
using test::Real;

template <class T>
using Pixel = std::array<T, 4>;

template <class T>
Pixel<T> To(const test::Pixel& v) {
  return {static_cast<T>(v[0]), static_cast<T>(v[1]), static_cast<T>(v[2]), static_cast<T>(v[3])};
}

template <class T>
constexpr uint64_t kMost = std::numeric_limits<T>::max();

// n / d to the nearest, halves up
uint64_t Nearest(uint64_t n, uint64_t d) { return (2 * n + d) / (2 * d); }

constexpr int kWidths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 47, 64, 67, 130};

// Values at which something changes; floats are mostly shares.
Real EdgeOf(const Element& element, test::Random& random) {
  if (element.isInteger) return EdgeValue(element, random);
  constexpr float kInf = std::numeric_limits<float>::infinity();
  constexpr float kValues[] = {0, -0.0f, 1, 0.5f, 0.3f, 0.7f, -0.2f, 1.5f, kInf, -kInf, NAN, 1e-40f, 3e38f};
  return random.Next() % 2 ? static_cast<float>(random.Next() * 0x1p-32) : kValues[random.Next() % 13];
}

// Calls use.template operator()<T>(function, fill) for functions of the operations, with their type and what fills
// their sources with such values.
template <class Use>
void ForEach(std::initializer_list<std::string_view> operations, const Use& use) {
  for (const Export* function : test::FunctionsOf(operations)) {
    const Element& element = Name(function->name).From();
    test::Random random(5);
    const auto fill = [&](test::Samples& image) { image.Fill([&](int, int) { return EdgeOf(element, random); }); };
    test::WithType(element, [&]<class T>() {
      constexpr bool isTheirs = std::is_same_v<T, float> || (std::is_unsigned_v<T> && sizeof(T) < 4);
      if constexpr (isTheirs) use.template operator()<T>(*function, fill);
    });
  }
}

template <class T>
Pixel<T> Premultiplied(const Pixel<T>& v) {
  Pixel<T> result = v;
  for (int c = 0; c < 3; ++c) {
    if constexpr (std::is_integral_v<T>)
      result[c] = static_cast<T>(Nearest(uint64_t{v[c]} * v[3], kMost<T>));
    else
      result[c] = v[c] * v[3];
  }
  return result;
}

template <class T>
Pixel<T> Unpremultiplied(const Pixel<T>& v) {
  Pixel<T> result = v;
  for (int c = 0; c < 3; ++c) {
    if (v[3] == 0)
      result[c] = 0;
    else if constexpr (std::is_floating_point_v<T>)
      result[c] = v[c] / v[3];
    else
      result[c] = static_cast<T>(std::min(kMost<T>, Nearest(v[c] * kMost<T>, v[3])));
  }
  return result;
}

template <class T>
Pixel<T> Result(const Export& function, const test::Pixel& v) {
  return function.name.starts_with("qvpiUn") ? Unpremultiplied(To<T>(v)) : Premultiplied(To<T>(v));
}

TEST(Premultiply, AndBackInEveryLaneOfEveryMember) {
  ForEach({"Premultiply", "Unpremultiply"}, []<class T>(const Export& function, const auto& fill) {
    for (const int width : kWidths) {
      test::CheckPixels(function, {width, 3}, {}, fill,
                        [&](const auto&, const auto& v, const auto&) { return Result<T>(function, v); });
    }
  });
}

// Each color with each alpha of bytes. Of words colors at and beside each tie of every alpha: color 65535 / alpha =
// k + 1/2 at color = (2k + 1) alpha / 131070.
TEST(Premultiply, AndBackOfBytesAndOfTies) {
  const auto bytes = [](uint64_t x, uint64_t y) { return std::array{x, (x + 85) % 256, 255 - x, y}; };
  const auto words = [](uint64_t x, uint64_t y) {
    const uint64_t alpha = 256 * y + x, k = (alpha * 40503) % 65535, color = (2 * k + 1) * alpha / 131070;
    return std::array{color, std::min(color + 1, alpha), alpha / 2, alpha};
  };
  ForEach({"Premultiply", "Unpremultiply"}, [&]<class T>(const Export& function, const auto&) {
    const auto fill = [&](Pixels&, Pixels& image) { sizeof(T) == 1 ? image.Fill(bytes) : image.Fill(words); };
    if (!std::is_integral_v<T>) return;
    test::CheckPixels(function, {256, 256}, {}, fill,
                      [&](const auto&, const auto& v, const auto&) { return Result<T>(function, v); });
  });
}

// ---- Operators. What 1 is, is told by `one`: M or 1.

// The factors of an operator; a layer without a term has the factor 0.
template <class V>
std::pair<V, V> Factors(QvpiCompositeOp op, V a, V b, V one) {
  switch (op) {
    case qvpCompositeClear: return {0, 0};
    case qvpCompositeFirst: return {one, 0};
    case qvpCompositeSecond: return {0, one};
    case qvpCompositeFirstOver: return {one, one - a};
    case qvpCompositeSecondOver: return {one - b, one};
    case qvpCompositeFirstIn: return {b, 0};
    case qvpCompositeSecondIn: return {0, a};
    case qvpCompositeFirstOut: return {one - b, 0};
    case qvpCompositeSecondOut: return {0, one - a};
    case qvpCompositeFirstAtop: return {b, one - a};
    case qvpCompositeSecondAtop: return {one - b, a};
    default: return {one - b, one - a};
  }
}
bool HasFirst(QvpiCompositeOp op) { return op != 0 && op != 2 && op != 6 && op != 8; }
bool HasSecond(QvpiCompositeOp op) { return op != 0 && op != 1 && op != 5 && op != 7; }

// A sum of floats without terms that an operator does not have.
float Sum(QvpiCompositeOp op, float first, float second) {
  return HasFirst(op) && HasSecond(op) ? first + second : HasFirst(op) ? first : HasSecond(op) ? second : 0;
}
float Product(float a, float b) { return a * b; }

template <class T>
T Composited(QvpiCompositeOp op, T first, T a, T second, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    const auto [f1, f2] = Factors<float>(op, a, b, 1);
    return Sum(op, Product(first, f1), Product(second, f2));
  } else {
    const auto [f1, f2] = Factors<uint64_t>(op, a, b, kMost<T>);
    return static_cast<T>(std::min(kMost<T>, Nearest(f1 * first + f2 * second, kMost<T>)));
  }
}

// The alpha of a straight composite, and a color.
template <class T>
T StraightAlpha(QvpiCompositeOp op, T a, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    const auto [f1, f2] = Factors<float>(op, a, b, 1);
    const float alpha = Sum(op, Product(f1, a), Product(f2, b));
    return alpha == 0 ? 0 : alpha;
  } else {
    const auto [f1, f2] = Factors<uint64_t>(op, a, b, kMost<T>);
    return static_cast<T>(Nearest(f1 * a + f2 * b, kMost<T>));
  }
}
template <class T>
T StraightColor(QvpiCompositeOp op, T first, T a, T second, T b) {
  if (StraightAlpha(op, a, b) == 0) return 0;
  if constexpr (std::is_floating_point_v<T>) {
    if (!HasFirst(op) || !HasSecond(op)) return HasFirst(op) ? first : second;
    const auto [f1, f2] = Factors<float>(op, a, b, 1);
    const float w1 = Product(f1, a), w2 = Product(f2, b), colors = Sum(op, Product(w1, first), Product(w2, second));
    return colors / (w1 + w2);
  } else {
    const auto [f1, f2] = Factors<uint64_t>(op, a, b, kMost<T>);
    return static_cast<T>(Nearest(f1 * a * first + f2 * b * second, f1 * a + f2 * b));
  }
}
template <class T>
Pixel<T> Straight(QvpiCompositeOp op, const Pixel<T>& a, const Pixel<T>& b) {
  Pixel<T> result;
  for (int c = 0; c < 3; ++c) result[c] = StraightColor(op, a[c], a[3], b[c], b[3]);
  result[3] = StraightAlpha(op, a[3], b[3]);
  return result;
}
template <class T>
Pixel<T> Expected(bool isStraight, QvpiCompositeOp op, const Pixel<T>& a, const Pixel<T>& b) {
  if (isStraight) return Straight(op, a, b);
  Pixel<T> result;
  for (int c = 0; c < 4; ++c) result[c] = Composited(op, a[c], a[3], b[c], b[3]);
  return result;
}

// Also over backgrounds all of whose pixels are opaque.
TEST(Composite, EveryOperatorInEveryLaneOfEveryMember) {
  ForEach({"Composite", "CompositeStraight"}, []<class T>(const Export& function, const auto& fill) {
    const bool isStraight = function.name.starts_with("qvpiCompositeStraight");
    const Real opaque = std::is_integral_v<T> ? std::numeric_limits<T>::max() : T{1};
    for (int i = 0; i < 12 * 17; ++i) {
      const auto fillBoth = [&](Pixels& a, Pixels& b) {
        a.FillPlanes(fill), b.FillPlanes(fill);
        const Pixels any(b);
        if (i % 5 != 0) return;
        b.Fill([&](int x, int y) { return test::Pixel{any(x, y, 0), any(x, y, 1), any(x, y, 2), opaque}; });
      };
      test::CheckPixels(
          function, {kWidths[i % 17], 2}, {{"op", i % 12}}, fillBoth,
          [&](const auto& a, const auto& b, const auto&) { return Expected(isStraight, i % 12, To<T>(a), To<T>(b)); });
    }
  });
}

// Three colors of each layer at every pair of alphas.
TEST(Composite, EveryPairOfAlphasOfBytes) {
  constexpr uint8_t kColors[][2] = {{255, 0},  {0, 255}, {255, 255}, {1, 0},     {0, 1},   {128, 127},
                                    {5, 0},    {3, 0},   {200, 50},  {100, 250}, {254, 1}, {17, 93},
                                    {64, 192}, {250, 6}, {127, 255}, {33, 201},  {2, 3},   {0, 0}};
  constexpr int kPixels = 65536;
  std::vector<Pixel<uint8_t>> a(kPixels), b(kPixels), dst(kPixels);
  const auto bytes = [](auto& pixels) { return pixels[0].data(); };
  for (size_t first = 0; first < std::size(kColors); first += 3) {
    for (int i = 0; i < kPixels; ++i) {
      for (size_t c = 0; c < 3; ++c) a[i][c] = kColors[first + c][0], b[i][c] = kColors[first + c][1];
      a[i][3] = static_cast<uint8_t>(i / 256), b[i][3] = static_cast<uint8_t>(i);
    }
    for (int op = 0; op < 12; ++op) {
      for (const bool isStraight : {false, true}) {
        const auto call = isStraight ? qvpiCompositeStraight_8u_AC4R : qvpiComposite_8u_AC4R;
        ASSERT_EQ(call(bytes(a), 1024, bytes(b), 1024, bytes(dst), 1024, {256, 256}, op), qvpStatusNoError);
        for (int i = 0; i < kPixels; ++i) {
          ASSERT_EQ(dst[i], Expected(isStraight, op, a[i], b[i])) << "operator " << op << " of " << i << isStraight;
        }
      }
    }
  }
}

TEST(Composite, GivesKnownValues) {
  using P = Pixel<uint8_t>;
  const P first{100, 50, 0, 128}, second{40, 200, 10, 200}, third{200, 100, 0, 128}, fourth{50, 250, 12, 200};
  const P premultiplied[] = {{0, 0, 0, 0},       {100, 50, 0, 128}, {40, 200, 10, 200}, {120, 150, 5, 228},
                             {62, 211, 10, 228}, {78, 39, 0, 100},  {20, 100, 5, 100},  {22, 11, 0, 28},
                             {20, 100, 5, 100},  {98, 139, 5, 200}, {42, 111, 5, 128},  {41, 110, 5, 127}};
  const P straight[] = {{0, 0, 0, 0},       {200, 100, 0, 128}, {50, 250, 12, 200}, {134, 166, 5, 228},
                        {68, 232, 11, 228}, {200, 100, 0, 100}, {50, 250, 12, 100}, {200, 100, 0, 28},
                        {50, 250, 12, 100}, {125, 175, 6, 200}, {82, 218, 9, 128},  {83, 217, 9, 127}};
  P dst;
  for (int op = 0; op < 12; ++op) {
    qvpiComposite_8u_AC4R(first.data(), 4, second.data(), 4, dst.data(), 4, {1, 1}, op);
    EXPECT_EQ(dst, premultiplied[op]) << op;
    qvpiCompositeStraight_8u_AC4R(third.data(), 4, fourth.data(), 4, dst.data(), 4, {1, 1}, op);
    EXPECT_EQ(dst, straight[op]) << op;
  }
  const P light{255, 0, 0, 10}, white{255, 255, 255, 255}, odd{5, 3, 1, 30}, black{0, 0, 0, 34};
  qvpiComposite_8u_AC4R(light.data(), 4, white.data(), 4, dst.data(), 4, {1, 1}, qvpCompositeFirstOver);
  EXPECT_EQ(dst, (P{255, 245, 245, 255}));
  qvpiCompositeStraight_8u_AC4R(odd.data(), 4, black.data(), 4, dst.data(), 4, {1, 1}, qvpCompositeFirstOver);
  EXPECT_EQ(dst, (P{3, 2, 1, 60}));  // a tie goes up
}

// ---- Constant opacities

template <class T>
T Blended(QvpiCompositeOp op, T first, T a, T second, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    const auto [f1, f2] = Factors<float>(op, a, b, 1);
    return Sum(op, Product(first, Product(a, f1)), Product(second, Product(b, f2)));
  } else {
    const auto [f1, f2] = Factors<uint64_t>(op, a, b, kMost<T>);
    const uint64_t w1 = Nearest(a * f1, kMost<T>), w2 = Nearest(b * f2, kMost<T>);
    return static_cast<T>(Nearest(w1 * first + w2 * second, kMost<T>));
  }
}

TEST(CompositeC, EveryOperatorInEveryLaneOfEveryMember) {
  ForEach({"CompositeC"}, []<class T>(const Export& function, const auto& fill) {
    test::Random random(9);
    for (int i = 0; i < 12 * 17; ++i) {
      const int op = i % 12;
      T alpha[2];
      for (T& v : alpha) {
        if constexpr (std::is_integral_v<T>)
          v = static_cast<T>(EdgeOf(Name(function.name).From(), random));
        else
          v = random.Next() % 4 ? static_cast<float>(random.Next() * 0x1p-32) : random.Next() % 2;
      }
      const auto expected = [&](Real a, Real b, int) {
        return Blended(op, static_cast<T>(a), alpha[0], static_cast<T>(b), alpha[1]);
      };
      test::CheckElements(function, {kWidths[i % 17], 2}, {{"alpha1", alpha[0]}, {"alpha2", alpha[1]}, {"op", op}},
                          fill, expected);
    }
  });
}

// All opacities; colors that reach the extremes of sums.
TEST(CompositeC, EveryPairOfOpacitiesOfBytes) {
  constexpr uint8_t kFirst[] = {0, 0, 255, 255, 128, 1, 200, 37}, kSecond[] = {0, 255, 0, 255, 127, 254, 100, 142};
  for (int i = 0; i < 65536 * 12; ++i) {
    const int op = i % 12;
    const auto a = static_cast<uint8_t>(i / 12), b = static_cast<uint8_t>(i / 12 / 256);
    uint8_t dst[8];
    qvpiCompositeC_8u_C1R(kFirst, 8, a, kSecond, 8, b, dst, 8, {8, 1}, op);
    for (int x = 0; x < 8; ++x)
      ASSERT_EQ(dst[x], Blended(op, kFirst[x], a, kSecond[x], b)) << op << ' ' << +a << ' ' << +b;
  }
}

// ---- Color keys

bool IsInside(const test::Pixel& v, int channels, const auto* lower, const auto* upper) {
  bool isInside = true;
  for (int c = 0; c < channels; ++c) isInside &= lower[c] <= v[c] && v[c] <= upper[c];
  return isInside;
}

// Values at and beside the bounds, in every channel of every lane; of the wide ones there is more than one piece.
TEST(ColorKey, EachBoundAndItsNeighborsInEveryLaneOfEveryMember) {
  test::Random random(11);
  ForEach({"ColorKey", "ColorKeyC"}, [&]<class T>(const Export& function, const auto& fillAny) {
    const int written = Name(function.name).written;
    const bool isConstant = function.Has("value");
    const T high = std::numeric_limits<T>::max() - 5;
    const T lower[4] = {10, 0, 7, 20}, upper[4] = {20, std::numeric_limits<T>::max(), 7, high}, value[4] = {1, 2, 3, 4};
    const auto near = [&](int, int) {
      test::Pixel pixel;
      for (int c = 0; c < 4; ++c) {
        const T around[] = {lower[c], upper[c], static_cast<T>(lower[c] - 1), static_cast<T>(upper[c] + 1)};
        pixel[c] = around[random.Next() % 8 ? random.Next() % 2 : 2 + random.Next() % 2];
      }
      return pixel;
    };
    const auto fill = [&](Pixels& a, Pixels& b) { b.FillPlanes(fillAny), (isConstant ? b : a).Fill(near); };
    const auto expected = [&](const test::Pixel& a, const test::Pixel& b, test::Pixel result) {
      const test::Pixel& v = isConstant ? b : a;
      const bool isInside = IsInside(v, written, lower, upper);
      for (int c = 0; c < written; ++c) result[c] = !isInside ? v[c] : isConstant ? value[c] : b[c];
      return result;
    };
    for (int i = 0; i < 4 * 17 + 1; ++i) {
      test::CheckPixels(function, {i == 68 ? 3000 : kWidths[i % 17], 2},
                        {{"value", test::Argument(value, value[0])},
                         {"lowerBound", test::Argument(lower, lower[0])},
                         {"upperBound", test::Argument(upper, upper[0])}},
                        fill, expected);
    }
  });
}

TEST(ColorKeyComposite, TakesTheAlphaOfPixelsInside) {
  ForEach({"ColorKeyComposite"}, []<class T>(const Export& function, const auto& fill) {
    const T lower[] = {100, 0, 2}, upper[] = {200, 128, 255};
    for (int i = 0; i < 12 * 17; ++i) {
      const auto expected = [&](test::Pixel a, const test::Pixel& b, const test::Pixel&) {
        if (IsInside(a, 3, lower, upper)) a[3] = 0;
        return Straight(i % 12, To<T>(a), To<T>(b));
      };
      test::CheckPixels(function, {kWidths[i % 17], 2},
                        {{"op", i % 12}, {"lowerBound", {lower}}, {"upperBound", {upper}}}, fill, expected);
    }
  });
}

// ---- Refusals, in the documented order

// Every channel's bounds are looked at, but not those of alpha.
TEST(ColorKey, RefusesALowerBoundAboveTheUpper) {
  Qvp8u a[16] = {}, b[16] = {};
  const Qvp8u low[] = {0, 0, 5, 9}, high[] = {9, 9, 4, 0}, most[] = {9, 9, 9, 0};
  const QvpiSize one{1, 1};
  EXPECT_EQ(qvpiColorKey_8u_C3R(a, 3, a, 3, b, 3, one, low, high), qvpStatusRange);
  EXPECT_EQ(qvpiColorKeyC_8u_C1R(a, 3, 1, b, 3, one, 6, 5), qvpStatusRange);
  EXPECT_EQ(qvpiColorKeyC_8u_C4R(a, 4, low, b, 4, one, low, most), qvpStatusRange);
  EXPECT_EQ(qvpiColorKeyComposite_8u_AC4R(a, 4, a, 4, b, 4, one, low, most, 0), qvpStatusNoError);
}

}  // namespace
