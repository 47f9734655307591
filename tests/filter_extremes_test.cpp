// Minimum, maximum, erosion and dilation against their definition.
#include <cmath>

#include "tests/support/bordered.h"

namespace {
using test::Block;
using test::Bordered;
using test::ElementOf;
using test::Export;
using test::FunctionNamed;
using test::Name;
using test::Random;
using test::Real;
using test::Region;

struct Mask {
  QvpiSize size;
  QvpiPoint anchor;
  std::vector<Qvp8u> selected;

  bool Has(int i, int j) const { return selected[j * size.width + i] != 0; }
  test::Reach reach() const { return test::ReachOf(size, anchor); }
};

Mask Full(QvpiSize size, QvpiPoint anchor) { return {size, anchor, std::vector<Qvp8u>(size.width * size.height, 255)}; }
Mask Full(QvpiSize size) { return Full(size, {(size.width - 1) / 2, (size.height - 1) / 2}); }

// Runs of any length, and empty rows.
Mask Scattered(QvpiSize size, uint64_t seed) {
  Random random(seed);
  Mask mask = Full(size, {static_cast<int>(random.Next() % size.width), static_cast<int>(random.Next() % size.height)});
  for (int j = 0; j < size.height; ++j) {
    const int likely = static_cast<int>(random.Next() % 9);
    bool isIn = false;
    for (int i = 0; i < size.width; ++i) {
      if (random.Next() % 4 == 0) isIn = static_cast<int>(random.Next() % 8) < likely;
      mask.selected[j * size.width + i] = isIn ? 1 + i % 200 : 0;
    }
  }
  mask.selected[random.Next() % mask.selected.size()] = 128;
  return mask;
}

Mask Disc(int side) {
  Mask mask = Full({side, side});
  const int r = side / 2;
  for (int k = 0; k < side * side; ++k) {
    const int x = k % side - r, y = k / side - r;
    mask.selected[k] = x * x + y * y <= r * r + r;
  }
  return mask;
}

// Pixels of one colour of a board, and every other row: as many runs as masks of few pixels can have.
Mask Board(QvpiSize size) {
  Mask mask = Full(size);
  for (int k = 0; k < size.width * size.height; ++k) mask.selected[k] = (k % size.width + k / size.width) % 2;
  return mask;
}
Mask Striped(QvpiSize size) {
  Mask mask = Full(size);
  for (int k = 0; k < size.width * size.height; ++k) mask.selected[k] = k / size.width % 2 == 0;
  return mask;
}

bool TakesLeast(const Export& function) {
  return function.name.find("Min") != std::string::npos || function.name.find("Erode") != std::string::npos;
}

auto FilterAll(const Export& function, const Bordered& scene, const Mask& mask) {
  const std::vector<test::Named> demand = {
      {"pMask", {mask.selected.data()}}, {"maskSize", mask.size}, {"anchor", mask.anchor}};
  EXPECT_LE(test::Preparation(function, scene.region.size, demand).sizes().spec,
            16 * mask.size.height * ((mask.size.width + 1) / 2) + 256);
  return test::FilterAll(function, scene, mask.size, test::kPlain, demand);
}

bool IsBelow(Real a, Real b) { return a < b || (a == b && std::signbit(a) && !std::signbit(b)); }

Real ExtremeAt(const Bordered& scene, const Mask& mask, bool takesLeast, int x, int y, int c) {
  const Real worst = takesLeast ? INFINITY : -INFINITY;
  Real best = worst;
  for (int j = 0; j < mask.size.height; ++j) {
    for (int i = 0; i < mask.size.width; ++i) {
      if (!mask.Has(i, j)) continue;
      Real p = scene.Pixel(x - mask.anchor.x + i, y - mask.anchor.y + j, c);
      if (std::isnan(p)) p = worst;
      if (takesLeast ? IsBelow(p, best) : IsBelow(best, p)) best = p;
    }
  }
  return best;
}

void Check(const Export& function, const Mask& mask, const Region& r) {
  const Name name(function.name);
  Bordered scene(name.From(), mask.reach(), r);
  Random random(r.size.width + mask.size.width);
  if (!name.From().isInteger) {
    scene.image.Fill([&](int, int) {
      return random.Next() % 3 ? EdgeValue(name.From(), random) : random.Next() % 2 ? NAN : -NAN;
    });
  }
  test::ExpectResults(
      function, scene, FilterAll(function, scene, mask),
      [&](int x, int y, int c) { return ExtremeAt(scene, mask, TakesLeast(function), x, y, c); },
      test::Shown(mask.size));
}

// Some regions are narrow and higher than two masks; none is wide under a large mask, which takes the definition long.
Region RegionOf(int turn, const Name& name, QvpiSize mask) {
  Region r = test::RegionOf(turn, name.channels);
  const int count = mask.width * mask.height;
  if (turn % 2) {
    r.size = {1 + turn % std::clamp(3000 / count, 3, 40), 2 * mask.height + 1 + turn % 3};
  } else if (count >= 100) {
    r.size.width = std::min(r.size.width, 70);
  }
  return r;
}

TEST(FilterExtremes, RectanglesEqualTheirDefinition) {
  constexpr QvpiSize kSizes[] = {{1, 1}, {3, 3}, {5, 5}, {2, 4},  {4, 2},  {7, 6},  {6, 7},  {1, 9},
                                 {9, 1}, {8, 8}, {9, 9}, {15, 3}, {3, 15}, {64, 1}, {1, 64}, {21, 17}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterMinBorder", "FilterMaxBorder"})) {
    for (const QvpiSize size : kSizes) {
      ++turn;
      Check(*function, Full(size, {turn % size.width, turn / 3 % size.height}),
            RegionOf(turn, Name(function->name), size));
    }
  }
}

TEST(FilterExtremes, MasksEqualTheirDefinition) {
  constexpr QvpiSize kSizes[] = {{1, 1}, {3, 3},  {5, 5},  {2, 4},  {7, 6}, {1, 9},
                                 {9, 1}, {17, 3}, {3, 15}, {64, 1}, {40, 6}};
  int turn = 0;
  for (const Export* function : test::FunctionsOf({"FilterErodeBorder", "FilterDilateBorder"})) {
    const Name name(function->name);
    for (const QvpiSize size : kSizes) {
      ++turn;
      Check(*function, Scattered(size, turn), RegionOf(turn, name, size));
    }
    ++turn;
    Check(*function, Full({5, 4}), RegionOf(turn, name, {5, 4}));
    Check(*function, Disc(turn % 2 ? 15 : 5), RegionOf(turn, name, {5, 5}));
    Check(*function, turn % 2 ? Board({6, 5}) : Striped({12, 3}), RegionOf(turn, name, {12, 3}));
  }
}

TEST(FilterExtremes, TakeEveryAnchorAtEveryBorder) {
  for (const char* name : {"qvpiFilterMinBorder_8u_C1R", "qvpiFilterDilateBorder_16u_C3R"}) {
    const Export& function = FunctionNamed(name);
    for (int k = 0; k < 6 * 16 * 3; ++k) {
      constexpr QvpiBorderType kKinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
      Check(function, Full({3, 2}, {k % 3, k / 3 % 2}),
            {{2, 3}, Name(name).channels, kKinds[k / 96] | k / 6 % 16 * 16});
    }
  }
}

// Wider than the blocks of columns.
TEST(FilterExtremes, TakeLongRows) {
  for (const QvpiSize mask : {QvpiSize{2, 1}, {1, 3}, {3, 9}}) {
    Check(FunctionNamed("qvpiFilterMaxBorder_16u_C4R"), Full(mask), {{20000, 2}, 4, qvpBorderConst});
    Check(FunctionNamed("qvpiFilterErodeBorder_8u_C1R"), Full(mask), {{50000, 1}, 1, qvpBorderMirror});
  }
}

TEST(FilterExtremes, TakeNumbersBeforeNanAndTellZerosApart) {
  const Region r{{7, 1}, 1, qvpBorderReplicate};
  Bordered scene(ElementOf("32f"), {}, r);
  constexpr Real kPixels[] = {NAN, 2, -0.0, 0.0, NAN, -NAN, NAN};
  scene.image.Fill([&](int x, int) { return kPixels[x]; });
  const auto check = [&](const char* name, std::initializer_list<Real> expected) {
    const test::Samples dst(ElementOf("32f"), 7, 1, 0);
    const Mask full = Full({3, 1});
    ASSERT_EQ(FilterAll(FunctionNamed(name), scene, full)(dst), 0);
    for (int x = 0; x < 7; ++x) EXPECT_TRUE(test::AreSame(dst(x, 0), expected.begin()[x])) << name << ' ' << x;
  };
  check("qvpiFilterMinBorder_32f_C1R", {2, -0.0, -0.0, -0.0, 0.0, INFINITY, INFINITY});
  check("qvpiFilterMaxBorder_32f_C1R", {2, 2, 2, 0.0, 0.0, -INFINITY, -INFINITY});
}

// By a mask without symmetry, which is turned for the second step: no pixel rises, and a second opening changes
// nothing. Borders are never taken.
TEST(FilterExtremes, OpeningsLowerOnceAndForAll) {
  const QvpiSize size{61, 37};
  const Mask mask = Scattered({6, 5}, 3);
  Mask turned = mask;
  std::reverse(turned.selected.begin(), turned.selected.end());
  turned.anchor = {mask.size.width - 1 - mask.anchor.x, mask.size.height - 1 - mask.anchor.y};
  const auto step = [&](const char* name, const Mask& m, int constant, const test::Samples& src) {
    Bordered scene(ElementOf("8u"), {}, {size, 1, qvpBorderConst});
    scene.image.Fill([&](int x, int y) { return src(x, y); });
    scene.value[0] = static_cast<Qvp8u>(constant);
    const test::Samples dst(ElementOf("8u"), size.width, size.height, 0);
    EXPECT_EQ(FilterAll(FunctionNamed(name), scene, m)(dst), 0);
    return dst;
  };
  const auto open = [&](const test::Samples& src) {
    return step("qvpiFilterDilateBorder_8u_C1R", turned, 0, step("qvpiFilterErodeBorder_8u_C1R", mask, 255, src));
  };
  const test::Samples src(ElementOf("8u"), size.width, size.height, 0), once = open(src), twice = open(once);
  bool isLower = false;
  for (int i = 0; i < size.width * size.height; ++i) {
    const int x = i % size.width, y = i / size.width;
    ASSERT_LE(once(x, y), src(x, y));
    ASSERT_EQ(twice(x, y), once(x, y));
    isLower = isLower || once(x, y) < src(x, y);
  }
  EXPECT_TRUE(isLower);
}

}  // namespace
