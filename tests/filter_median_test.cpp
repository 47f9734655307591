// Medians against their definition.
#include <cmath>

#include "tests/support/bordered.h"
#include "tests/support/name.h"

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

// What a function takes beside its images.
struct Manner {
  QvpiSize mask;
  int weight = 1;
  QvpNormType norm = qvpNormL1;

  test::Reach reach() const { return test::ReachOf(mask); }
};

auto FilterAll(const Export& function, const Bordered& scene, const Manner& m) {
  return test::FilterAll(function, scene, m.mask, test::kAmple,
                         {{"maskSize", m.mask}, {"weight", m.weight}, {"normType", m.norm}});
}

// ---- The definition

using Value = int64_t;  // an element's place in the order of its type

Value PlaceOf(const test::Element& element, const uint8_t* bytes) {
  if (element.isInteger) return static_cast<Value>(element.read(bytes));
  int32_t bits;
  std::memcpy(&bits, bytes, sizeof(bits));
  return bits ^ ((bits >> 31) & 0x7FFFFFFF);
}

// The address of what stands for a pixel.
const uint8_t* PixelAt(const Bordered& scene, int x, int y) {
  const int kind = scene.region.border & 15;
  const int column = test::BorderPosition(kind, x, -scene.left, scene.region.size.width - 1 + scene.right),
            row = test::BorderPosition(kind, y, -scene.top, scene.region.size.height - 1 + scene.bottom);
  return column == test::kConstant || row == test::kConstant ? scene.value : scene.At(column, row);
}

Value MedianAt(const Bordered& scene, const Manner& manner, int x, int y, int c) {
  const test::Element& element = scene.element();
  const auto at = [&](int dx, int dy) { return PlaceOf(element, PixelAt(scene, x + dx, y + dy) + c * element.bytes); };
  const int beside = manner.mask.width / 2, beyond = manner.mask.height / 2;
  std::vector<Value> values;
  for (int dy = -beyond; dy <= beyond; ++dy) {
    for (int dx = -beside; dx <= beside; ++dx) values.push_back(at(dx, dy));
  }
  const int more = std::min(manner.weight, static_cast<int>(values.size())) - 1;  // as many as all others decide
  values.insert(values.end(), more, at(0, 0));
  const auto middle = values.begin() + (values.size() - 1) / 2;
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

// Few values and their ties, extremes, or any.
void FillScene(Bordered& scene, int turn) {
  Random random(turn);
  const test::Element& element = scene.element();
  const Real few[] = {3, 7, EdgeValue(element, random), element.isInteger ? element.highest : -NAN};
  scene.image.Fill([&](int x, int y) -> Real {
    switch (turn % 4) {
      case 0: return few[random.Next() % 4];
      case 1: return element.isInteger ? element.lowest + (x + 3 * y) % 251 : x / 8.0L - y;
      default: return EdgeValue(element, random);
    }
  });
}

void Check(const Export& function, const Manner& manner, const Region& r, int turn = 2) {
  const Name name(function.name);
  Bordered scene(name.From(), manner.reach(), r);
  FillScene(scene, turn);
  const test::Samples dst(name.To(), r.size.width * r.channels, r.size.height, 8), before(dst);
  ASSERT_EQ(FilterAll(function, scene, manner)(dst), 0) << function.name;
  for (int y = 0; y < r.size.height; ++y) {
    for (int i = 0; i < r.size.width * r.channels; ++i) {
      const int x = i / r.channels, c = i % r.channels;
      const bool isKept = name.written == 3 && c == 3;
      const Value expected = isKept ? PlaceOf(name.To(), before.At(i, y)) : MedianAt(scene, manner, x, y, c);
      ASSERT_EQ(PlaceOf(name.To(), dst.At(i, y)), expected)
          << function.name << " mask " << manner.mask.width << 'x' << manner.mask.height << " weight " << manner.weight
          << " border " << r.border << " region " << r.size.width << 'x' << r.size.height << " at " << i << ',' << y;
    }
  }
}

// A region and a border that a number stands for: narrow and low ones, and some that are wider than vectors.
Region RegionOf(int turn, const Name& name, QvpiSize mask) {
  constexpr QvpiBorderType kKinds[] = {qvpBorderReplicate, qvpBorderConst};
  const int border = turn % 11 == 10 ? qvpBorderInMem : kKinds[turn % 2] | turn * 0x30 % 0x100;
  const int most = std::max(40000 / (mask.width * mask.height * name.channels), 12);
  const int width = 1 + turn * 7 % (turn % 3 ? 70 : 23);
  return {{width, 1 + turn * 5 % std::clamp(most / width, 1, 9)}, name.channels, border};
}

std::vector<const Export*> Functions(const char* prefix) {
  auto functions = test::FunctionsOf({prefix});
  std::erase_if(functions, [](const Export* e) { return !e->Has("pDst"); });
  return functions;
}

TEST(FilterMedian, EqualsItsDefinition) {
  constexpr QvpiSize kMasks[] = {{1, 1},   {3, 3}, {5, 5}, {7, 7}, {9, 9},  {11, 11}, {13, 13}, {15, 15},
                                 {17, 17}, {3, 1}, {1, 3}, {3, 5}, {7, 3},  {15, 3},  {3, 15},  {1, 31},
                                 {31, 1},  {5, 9}, {9, 5}, {1, 5}, {21, 5}, {5, 23},  {33, 31}};
  int turn = 0;
  for (const Export* function : Functions("FilterMedianBorder")) {
    for (const QvpiSize mask : kMasks) {
      ++turn;
      Check(*function, {mask}, RegionOf(turn, Name(function->name), mask), turn / 3);
    }
  }
}

// Each weight of the smallest masks, and those on both sides of where another network or the counts take over.
TEST(FilterMedian, WeightedEqualsItsDefinition) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 5}, {7, 7}, {3, 5}, {9, 9}, {15, 3}, {15, 15}, {1, 31}, {19, 17}};
  constexpr int kWeights[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 23, 24, 25, 26, INT32_MAX};
  int turn = 0;
  for (const Export* function : Functions("FilterMedianCenterBorder")) {
    const Name name(function->name);
    for (const QvpiSize mask : kMasks) {
      ++turn;
      Check(*function, {mask, kWeights[turn * 7 % std::size(kWeights)]}, RegionOf(turn, name, mask), turn / 3);
    }
    for (const int weight : kWeights) {
      ++turn;
      const int side = 3 + turn % 3 * 2;
      Check(*function, {{side, side}, weight}, {{1 + turn * 7 % 50, 3}, name.channels, qvpBorderReplicate}, turn / 3);
    }
  }
}

TEST(FilterMedian, TakesMasksLargerThanTheRegion) {
  for (const char* type : {"8u_C1R", "16s_C1R", "32f_C1R"}) {
    for (const int turn : {0, 2}) {
      const Region r{{20, 3}, 1, turn ? qvpBorderConst : qvpBorderReplicate};
      Check(FunctionNamed(std::string("qvpiFilterMedianBorder_") + type), {{255, 255}}, r, turn);
      Check(FunctionNamed(std::string("qvpiFilterMedianCenterBorder_") + type), {{255, 131}, 5000}, r, turn);
    }
  }
}

// ---- Colour vectors

struct Colour {
  float c[3];
};

// Each operation is rounded to single precision, which L1 of integers needs nowhere.
float DistanceOf(const Colour& a, const Colour& b, QvpNormType norm) {
  volatile float d[3], sum, square;
  for (int c = 0; c < 3; ++c) d[c] = std::fabs(a.c[c] - b.c[c]);
  if (norm == qvpNormL1) {
    sum = d[0] + d[1];
    return sum + d[2];
  }
  for (int c = 0; c < 3; ++c) d[c] = d[c] * d[c];
  sum = d[0] + d[1];
  square = sum + d[2];
  return std::sqrt(square);
}

// The number of the pixel in the mask that is taken.
int ChoiceOf(const std::vector<Colour>& mask, const Manner& manner) {
  const int width = manner.mask.width, height = manner.mask.height;
  const auto sumOf = [&](int p) {
    volatile float all = 0;
    for (int k = 0; k < width; ++k) {
      volatile float column = 0;
      for (int l = 0; l < height; ++l) column = column + DistanceOf(mask[p], mask[l * width + k], manner.norm);
      all = all + column;
    }
    return all;
  };
  int best = width * height / 2;
  float least = sumOf(best);
  for (int p = 0; p < width * height; ++p) {
    const float sum = sumOf(p);
    if (sum < least) best = p, least = sum;
  }
  return best;
}

void CheckVectors(const Export& function, const Manner& manner, const Region& r, int turn) {
  const Name name(function.name);
  Bordered scene(name.From(), manner.reach(), r);
  FillScene(scene, turn);
  const int bytes = scene.element().bytes, beside = manner.mask.width / 2, beyond = manner.mask.height / 2;
  const test::Samples dst(name.To(), r.size.width * r.channels, r.size.height, 8), before(dst);
  ASSERT_EQ(FilterAll(function, scene, manner)(dst), 0);
  for (int i = 0; i < r.size.width * r.size.height; ++i) {
    const int x = i % r.size.width, y = i / r.size.width;
    std::vector<Colour> mask;
    for (int k = 0; k < manner.mask.width * manner.mask.height; ++k) {
      const uint8_t* const p = PixelAt(scene, x + k % manner.mask.width - beside, y + k / manner.mask.width - beyond);
      const auto channel = [&](int c) { return static_cast<float>(scene.element().read(p + c * bytes)); };
      mask.push_back({{channel(0), channel(1), channel(2)}});
    }
    const int choice = ChoiceOf(mask, manner);
    const uint8_t *const result = dst.At(x * r.channels, y), *const expected =
                                                                 PixelAt(scene, x + choice % manner.mask.width - beside,
                                                                         y + choice / manner.mask.width - beyond);
    ASSERT_EQ(std::memcmp(result, expected, 3 * bytes), 0)
        << function.name << " norm " << manner.norm << " mask " << manner.mask.width << 'x' << manner.mask.height
        << " border " << r.border << " at " << x << ',' << y;
    const uint8_t* const alpha = before.At(x * r.channels, y) + 3 * bytes;
    if (r.channels == 4) {
      ASSERT_EQ(std::memcmp(result + 3 * bytes, alpha, bytes), 0) << function.name;
    }
  }
}

TEST(FilterMedian, VectorsEqualTheirDefinition) {
  constexpr QvpiSize kMasks[] = {{1, 1}, {3, 3}, {5, 5}, {7, 7}, {1, 7}, {7, 1}, {3, 5}};
  int turn = 0;
  for (const Export* function : Functions("FilterMedianVectorBorder")) {
    for (const QvpiSize mask : kMasks) {
      for (const QvpNormType norm : {qvpNormL1, qvpNormL2}) {
        ++turn;
        CheckVectors(*function, {mask, 1, norm}, RegionOf(turn, Name(function->name), mask), turn / 2);
      }
    }
  }
}

// ---- Examples, tiles, refusals

// The middle of an image of bytes, of one channel or three.
template <int kCount>
std::vector<int> MiddleOf(const char* name, QvpiSize size, const Qvp8u (&pixels)[kCount], const Manner& manner) {
  const Export& function = FunctionNamed(name);
  const int channels = Name(function.name).channels;
  Bordered scene(ElementOf("8u"), manner.reach(), {size, channels, qvpBorderReplicate});
  scene.image.Fill([&](int i, int y) { return pixels[y * size.width * channels + i]; });
  const test::Samples dst(ElementOf("8u"), size.width * channels, size.height, 0);
  EXPECT_EQ(FilterAll(function, scene, manner)(dst), 0);
  std::vector<int> result;
  for (int c = 0; c < channels; ++c) {
    result.push_back(static_cast<int>(dst(size.width / 2 * channels + c, size.height / 2)));
  }
  return result;
}

TEST(FilterMedian, GivesTheDocumentedExamples) {
  constexpr Qvp8u kSpot[] = {10, 10, 10, 10, 200, 10, 10, 10, 10}, kLine[] = {10, 200, 10, 10, 200, 10, 10, 200, 10};
  for (const int weight : {1, 4, 5, 8, 9, INT32_MAX}) {
    const auto at = [&](const auto& pixels) {
      return MiddleOf("qvpiFilterMedianCenterBorder_8u_C1R", {3, 3}, pixels, {{3, 3}, weight})[0];
    };
    EXPECT_EQ(at(kSpot), weight < 9 ? 10 : 200) << weight;
    EXPECT_EQ(at(kLine), weight < 5 ? 10 : 200) << weight;
  }
  using Pixel = std::vector<int>;
  const char* const kVectors = "qvpiFilterMedianVectorBorder_8u_C3R";
  constexpr Qvp8u kFlags[] = {255, 0, 0,   255, 0, 0, 255, 0, 0, 0,   255, 0, 0,  255,
                              0,   0, 255, 0,   0, 0, 255, 0, 0, 255, 0,   0, 255};
  EXPECT_EQ(MiddleOf(kVectors, {3, 3}, kFlags, {{3, 3}}), (Pixel{0, 255, 0}));
  constexpr Qvp8u kMixed[] = {0, 60, 60, 70, 10, 0,  70, 0,  40, 0,  20, 40, 30, 30,
                              0, 0,  10, 0,  60, 40, 50, 20, 50, 60, 30, 40, 80};
  EXPECT_EQ(MiddleOf(kVectors, {3, 3}, kMixed, {{3, 3}, 1, qvpNormL1}), (Pixel{0, 20, 40}));
  EXPECT_EQ(MiddleOf(kVectors, {3, 3}, kMixed, {{3, 3}, 1, qvpNormL2}), (Pixel{20, 50, 60}));
}

}  // namespace
