// Premultiplied colors, compositing and color keys, against formulas in whole numbers; floats against the same order of
// operations.
#include <array>
#include <cmath>
#include <limits>

#include "tests/support/name.h"

namespace {
using test::Export;
using test::Image;
using test::Name;

template <class T>
using Pixel = std::array<T, 4>;

template <class T>
constexpr uint64_t kMost = std::numeric_limits<T>::max();

// Calls use.template operator()<T>() with the type of a function of these families.
template <class Use>
void WithType(const Export& function, const Use& use) {
  const std::string type = Name(function.name).type;
  if (type == "8u") use.template operator()<uint8_t>();
  if (type == "16u") use.template operator()<uint16_t>();
  if (type == "32f") use.template operator()<float>();
}

// n / d to the nearest, halves up
uint64_t Nearest(uint64_t n, uint64_t d) { return (2 * n + d) / (2 * d); }

// Pixels in a row of an image of four channels, or of four planes, with all they need for a call.
template <class T>
class Layers {
 public:
  Layers(bool isPlanar, int pixels, int height, int gap, test::Guard guard = test::Guard::kAfter) {
    for (int p = 0; p < (isPlanar ? 4 : 1); ++p) {
      images_.push_back(std::make_unique<Image<T>>(isPlanar ? pixels : 4 * pixels, height, gap, guard));
      planes_[p] = images_[p]->data();
    }
  }
  Pixel<T> operator()(int x, int y) const {
    Pixel<T> pixel;
    for (int c = 0; c < 4; ++c) pixel[c] = IsPlanar() ? (*images_[c])(x, y) : (*images_[0])(4 * x + c, y);
    return pixel;
  }
  void Put(int x, int y, const Pixel<T>& pixel) {
    for (int c = 0; c < 4; ++c) IsPlanar() ? images_[c]->Put(x, y, pixel[c]) : images_[0]->Put(4 * x + c, y, pixel[c]);
  }
  test::Argument argument() const {
    return {IsPlanar() ? static_cast<const void*>(planes_) : images_[0]->data(), images_[0]->step()};
  }

 private:
  bool IsPlanar() const { return images_.size() == 4; }

  std::vector<std::unique_ptr<Image<T>>> images_;
  const void* planes_[4];
};

// A function on pixels: src2 is the source in place, and of functions of one source.
template <class T>
struct Call {
  const Export& function;
  int pixels, height = 1;
  std::vector<test::Named> more = {};

  // first(x, y) and second(x, y) make the sources; expected(a, b) the result.
  template <class First, class Second, class Expected>
  void Check(const First& first, const Second& second, const Expected& expected) const {
    const Name name(function.name);
    const bool isPlanar = name.layout == "AP4", isBinary = function.Has(name.inPlace ? "pSrc" : "pSrc2");
    Layers<T> a(isPlanar, pixels, height, 7), b(isPlanar, pixels, height, 3);
    Layers<T> dst(isPlanar, pixels, height, 5, test::Guard::kBefore);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < pixels; ++x) {
        a.Put(x, y, first(x, y));
        b.Put(x, y, second(x, y));
        if (name.inPlace) dst.Put(x, y, b(x, y));
      }
    }
    std::vector<test::Named> arguments = more;
    arguments.insert(arguments.end(), {{"pSrc", (isBinary ? a : b).argument()},
                                       {"pSrc1", a.argument()},
                                       {"pSrc2", b.argument()},
                                       {"pDst", dst.argument()},
                                       {"pSrcDst", dst.argument()},
                                       {"roiSize", QvpiSize{pixels, height}}});
    ASSERT_EQ(function(arguments), qvpStatusNoError) << function.name;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < pixels; ++x) {
        const Pixel<T> should = expected(a(x, y), b(x, y)), is = dst(x, y);
        for (int c = 0; c < 4; ++c) {
          ASSERT_TRUE(test::AreSame(is[c], should[c]))
              << function.name << " at " << x << ',' << y << " channel " << c << ": " << +is[c] << " not " << +should[c]
              << " of " << +a(x, y)[c] << " alpha " << +a(x, y)[3] << " and " << +b(x, y)[c] << " alpha "
              << +b(x, y)[3];
        }
      }
    }
  }
};

constexpr int kWidths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 47, 64, 67, 130};

// Pixels with values at which something changes.
template <class T>
Pixel<T> EdgePixel(test::Random& random) {
  constexpr T kValues[] = {0, 1, 2, 3, 100, 127, 128, 200, 254, 255, std::numeric_limits<T>::max()};
  Pixel<T> pixel;
  for (T& value : pixel) {
    random.Fill(reinterpret_cast<uint8_t*>(&value), sizeof(T));
    if (random.Next() % 2) value = kValues[random.Next() % std::size(kValues)];
  }
  return pixel;
}
template <>
Pixel<float> EdgePixel<float>(test::Random& random) {
  constexpr float kInf = std::numeric_limits<float>::infinity();
  constexpr float kValues[] = {0, -0.0f, 1, 0.5f, 0.3f, 0.7f, -0.2f, 1.5f, kInf, -kInf, NAN, 1e-40f, 3e38f};
  Pixel<float> pixel;
  for (float& value : pixel) {
    value = random.Next() % 2 ? static_cast<float>(random.Next() * 0x1p-32) : kValues[random.Next() % 13];
  }
  return pixel;
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

TEST(Premultiply, AndBackInEveryLaneOfEveryMember) {
  for (const Export* function : test::FunctionsOf({"Premultiply", "Unpremultiply"})) {
    const bool isBack = function->name.starts_with("qvpiUn");
    WithType(*function, [&]<class T>() {
      test::Random random(3);
      const auto pixel = [&](int, int) { return EdgePixel<T>(random); };
      const auto result = [&](const auto&, const Pixel<T>& v) {
        return isBack ? Unpremultiplied(v) : Premultiplied(v);
      };
      for (const int width : kWidths) Call<T>{*function, width, 3}.Check(pixel, pixel, result);
    });
  }
}

TEST(Premultiply, AndBackOfEachColorAndAlphaOfBytes) {
  for (const Export* function : test::FunctionsOf({"Premultiply", "Unpremultiply"})) {
    if (Name(function->name).type != "8u") continue;
    const bool isBack = function->name.starts_with("qvpiUn");
    const auto pair = [](int x, int y) {
      const auto color = static_cast<uint8_t>(x);
      return Pixel<uint8_t>{color, static_cast<uint8_t>(color + 85), static_cast<uint8_t>(255 - color),
                            static_cast<uint8_t>(y)};
    };
    Call<uint8_t>{*function, 256, 256}.Check(pair, pair, [&](const auto&, const Pixel<uint8_t>& v) {
      return isBack ? Unpremultiplied(v) : Premultiplied(v);
    });
  }
}

// Colors at and beside each tie of every 16-bit alpha: color 65535 / alpha = k + 1/2 at color = (2k + 1) alpha /
// 131070.
TEST(Unpremultiply, RoundsTiesOf16BitsUp) {
  const auto pixel = [](int x, int y) {
    const auto alpha = static_cast<uint64_t>(256 * y + x);
    const uint64_t k = (alpha * 40503) % 65535, color = (2 * k + 1) * alpha / 131070;
    return Pixel<uint16_t>{static_cast<uint16_t>(color), static_cast<uint16_t>(std::min(color + 1, alpha)),
                           static_cast<uint16_t>(alpha / 2), static_cast<uint16_t>(alpha)};
  };
  for (const Export* function : test::FunctionsOf({"Unpremultiply"})) {
    if (Name(function->name).type != "16u") continue;
    Call<uint16_t>{*function, 256, 256}.Check(pixel, pixel,
                                              [](const auto&, const Pixel<uint16_t>& v) { return Unpremultiplied(v); });
  }
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
  for (const Export* function : test::FunctionsOf({"Composite", "CompositeStraight"})) {
    const bool isStraight = function->name.starts_with("qvpiCompositeStraight");
    WithType(*function, [&]<class T>() {
      test::Random random(5);
      for (int i = 0; i < 12 * 17; ++i) {
        const int op = i % 12;
        const bool isOpaque = i % 5 == 0;
        const auto pixel = [&](int, int) { return EdgePixel<T>(random); };
        const auto background = [&](int, int) {
          Pixel<T> v = EdgePixel<T>(random);
          if (isOpaque) v[3] = std::is_floating_point_v<T> ? T{1} : std::numeric_limits<T>::max();
          return v;
        };
        Call<T>{*function, kWidths[i % 17], 2, {{"op", op}}}.Check(
            pixel, background, [&](const Pixel<T>& a, const Pixel<T>& b) { return Expected(isStraight, op, a, b); });
      }
    });
  }
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

// Samples of an image with the alpha of AC4 kept: compares dst with expected(a sample, b sample, channel).
template <class T, class Expected>
void CheckSamples(const Export& function, int pixels, const Image<T>& a, const Image<T>& b,
                  std::vector<test::Named> arguments, const Expected& expected) {
  const Name name(function.name);
  const int samples = pixels * name.channels, height = 2;
  const bool isBinary = function.Has(name.inPlace ? "pSrc" : "pSrc2");
  Image<T> dst(samples, height, 5, test::Guard::kBefore), both(isBinary ? b : a);
  const Image<T> before(dst);
  auto& out = name.inPlace ? both : dst;
  arguments.insert(arguments.end(), {{"pSrc", a},
                                     {"pSrc1", a},
                                     {"pSrc2", b},
                                     {"pDst", out},
                                     {"pSrcDst", out},
                                     {"roiSize", QvpiSize{pixels, height}}});
  ASSERT_EQ(function(arguments), qvpStatusNoError) << function.name;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < samples; ++x) {
      const T kept = name.inPlace ? (isBinary ? b : a)(x, y) : before(x, y);
      const T should = x % name.channels < name.written ? expected(x, y) : kept;
      ASSERT_TRUE(test::AreSame(out(x, y), should) || test::SameBits(out(x, y), should))
          << function.name << " at " << x << ',' << y << ": " << +out(x, y) << " not " << +should;
    }
  }
}

template <class T>
void FillWithEdges(Image<T>& image, int samples, int height, test::Random& random) {
  for (int i = 0; i < samples * height; ++i) image.Put(i % samples, i / samples, EdgePixel<T>(random)[0]);
}

TEST(CompositeC, EveryOperatorInEveryLaneOfEveryMember) {
  for (const Export* function : test::FunctionsOf({"CompositeC"})) {
    const Name name(function->name);
    WithType(*function, [&]<class T>() {
      test::Random random(9);
      for (int i = 0; i < 12 * 17; ++i) {
        const int op = i % 12, pixels = kWidths[i % 17], samples = pixels * name.channels;
        Image<T> a(samples, 2, 3), b(samples, 2, 7);
        FillWithEdges(a, samples, 2, random), FillWithEdges(b, samples, 2, random);
        T alpha[2];
        for (T& v : alpha) {
          if constexpr (std::is_integral_v<T>)
            v = EdgePixel<T>(random)[0];
          else
            v = random.Next() % 4 ? static_cast<float>(random.Next() * 0x1p-32) : random.Next() % 2;
        }
        CheckSamples<T>(*function, pixels, a, b, {{"alpha1", alpha[0]}, {"alpha2", alpha[1]}, {"op", op}},
                        [&](int x, int y) { return Blended(op, a(x, y), alpha[0], b(x, y), alpha[1]); });
      }
    });
  }
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

// Values at and beside the bounds, in every channel of every lane.
template <class T>
void CheckKeys(const Export& function, int pixels, test::Random& random) {
  const Name name(function.name);
  const int n = name.channels, samples = pixels * n;
  const bool isConstant = function.Has("value");
  const T high = std::numeric_limits<T>::max() - 5;
  const T lower[4] = {10, 0, 7, 20}, upper[4] = {20, std::numeric_limits<T>::max(), 7, high}, value[4] = {1, 2, 3, 4};
  Image<T> a(samples, 2, 3), b(samples, 2, 7);
  for (int i = 0; i < samples * 2; ++i) {
    const int x = i % samples, c = x % n;
    const T around[] = {lower[c], upper[c], static_cast<T>(lower[c] - 1), static_cast<T>(upper[c] + 1)};
    a.Put(x, i / samples, around[random.Next() % 8 ? random.Next() % 2 : 2 + random.Next() % 2]);
  }
  const auto expected = [&](int x, int y) {
    bool isInside = true;
    for (int c = 0; c < name.written; ++c) {
      const T v = a(x - x % n + c, y);
      isInside &= lower[c] <= v && v <= upper[c];
    }
    return !isInside ? a(x, y) : isConstant ? value[x % n] : b(x, y);
  };
  CheckSamples<T>(function, pixels, a, b,
                  {{"value", test::Argument(value, value[0])},
                   {"lowerBound", test::Argument(lower, lower[0])},
                   {"upperBound", test::Argument(upper, upper[0])}},
                  expected);
}

TEST(ColorKey, EachBoundAndItsNeighborsInEveryLaneOfEveryMember) {
  test::Random random(11);
  for (const Export* function : test::FunctionsOf({"ColorKey", "ColorKeyC"})) {
    WithType(*function, [&]<class T>() {
      for (int i = 0; i < 4; ++i) {
        for (const int width : kWidths) CheckKeys<T>(*function, width, random);
      }
      CheckKeys<T>(*function, 3000, random);  // more than one piece
    });
  }
}

TEST(ColorKeyComposite, TakesTheAlphaOfPixelsInside) {
  for (const Export* function : test::FunctionsOf({"ColorKeyComposite"})) {
    WithType(*function, [&]<class T>() {
      test::Random random(13);
      const T lower[] = {100, 0, 2}, upper[] = {200, 128, 255};
      for (int i = 0; i < 12 * 17; ++i) {
        const int op = i % 12;
        const auto pixel = [&](int, int) { return EdgePixel<T>(random); };
        const auto expected = [&](Pixel<T> a, const Pixel<T>& b) {
          bool isInside = true;
          for (int c = 0; c < 3; ++c) isInside &= lower[c] <= a[c] && a[c] <= upper[c];
          if (isInside) a[3] = 0;
          return Straight(op, a, b);
        };
        Call<T>{*function, kWidths[i % 17], 2, {{"op", op}, {"lowerBound", {lower}}, {"upperBound", {upper}}}}.Check(
            pixel, pixel, expected);
      }
    });
  }
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
