// Resize: every member by its definition in double, all borders, and tiles.
#include "tests/support/name.h"
#include "tests/support/resizes.h"

namespace {
using test::AllTapsOf;
using test::Bordered;
using test::Element;
using test::ElementOf;
using test::Export;
using test::FunctionOf;
using test::ImageResize;
using test::kCubic;
using test::kLanczos2;
using test::kLanczos3;
using test::kLinear;
using test::kNearest;
using test::kShifted;
using test::kSmoothCubic;
using test::kSmoothLanczos;
using test::kSmoothLinear;
using test::kSuper;
using test::Name;
using test::Resizing;
using test::Samples;

const Resizing kSharp{"Cubic", qvpInterpolationCubic, false, 0, 0.75},
    kWild{"Cubic", qvpInterpolationCubic, false, 0, 9};
const Resizing kAll[] = {kNearest,  kLinear, kCubic,   kSharp,        kWild,        kLanczos2,
                         kLanczos3, kSuper,  kShifted, kSmoothLinear, kSmoothCubic, kSmoothLanczos};

bool IsInWholeNumbers(const Resizing& m, const Element& element) {
  return element.name == "8u" && m.Is(qvpInterpolationLinear) && !m.isAntialiasing;
}

// Rounding of weights and intermediate rows, as documented.
double Tolerance(const Resizing& m, const Element& element) {
  const double range = element.isInteger ? static_cast<double>(element.highest - element.lowest + 1) : 100;
  const double weights = m.Is(qvpInterpolationLanczos) ? 4e-4 : m.c > 1 ? 2e-4 : 4e-6;
  if (m.Is(qvpInterpolationNearest) || IsInWholeNumbers(m, element)) return 0;
  if (element.name == "64f" && !m.isAntialiasing) return 1e-10;
  const bool isFixed = element.name == "8u" && !m.isAntialiasing && !m.Is(qvpInterpolationSuper) && m.c <= 1;
  return range * weights + (!element.isInteger ? 0 : isFixed ? 1.0 : 0.5);
}

// Modest numbers, with what the border has in memory around them.
Bordered SourceOf(const Export& function, const ImageResize& resize, QvpiSize size, int border) {
  const Name name(function.name);
  Bordered src(name.From(), resize.ReachOf(), {size, name.channels, border}, test::Guard::kAfter,
               2 * name.From().bytes);
  test::Random random(11);
  if (!name.From().isInteger) src.image.Fill([&](int, int) { return random.Next() % 20001 / 100.0 - 100; });
  return src;
}

void Check(const Resizing& m, const Export& function, QvpiSize from, QvpiSize to, int border = qvpBorderReplicate) {
  const Name name(function.name);
  const ImageResize resize(m, name.type, from, to, name.isWide);
  ASSERT_EQ(resize.status(), 0) << function.name;
  const Bordered src = SourceOf(function, resize, from, border);
  const Samples dst = Resized(function, resize, src);
  const Element& element = name.From();
  const auto across = AllTapsOf(m, {.from = from.width, .to = to.width, .shift = m.shift[0]}, to.width);
  const auto down = AllTapsOf(m, {.from = from.height, .to = to.height, .shift = m.shift[1]}, to.height);
  const auto expected = [&](int i, int y) -> test::Real {
    const auto& columns = across[i / name.channels];
    const auto at = [&](int u, int v) { return src.Pixel(u, v, i % name.channels); };
    const double sum =
        IsInWholeNumbers(m, element) ? InterpolatedBytes(columns, down[y], at) : Interpolated(columns, down[y], at);
    return element.isInteger ? std::clamp<test::Real>(sum, element.lowest, element.highest) : sum;
  };
  ExpectImage(dst, expected,
              function.name + ' ' + m.name + ' ' + test::Shown(from) + " to " + test::Shown(to) + " border " +
                  std::to_string(border),
              Tolerance(m, element));
}

TEST(Resize, EveryMember) {
  for (const Resizing& m : kAll) {
    for (const Export* function : test::FunctionsOf({m.Operation()})) {
      if (Name(function->name).isWide) {
        if (m.shift[0] == 0) Check(m, *function, {50, 8}, {30, 6});
        continue;
      }
      for (const int width : {7, 12, 40, 61, 97}) {
        Check(m, *function, {width, 9}, {width * 3 / 5, 7});
        Check(m, *function, {width, 13}, {std::max(1, width / 4), 3});
        if (!m.Is(qvpInterpolationSuper)) Check(m, *function, {width, 7}, {width * 3 / 2, 10});
      }
      Check(m, *function, {80, 6}, {5, 2});
      for (const int half : {3, 31}) Check(m, *function, {2 * half, 8}, {half, 4});
    }
  }
}

TEST(Resize, EveryPairOfLengths) {
  for (const Resizing& m : kAll) {
    for (int source = 1; source <= 24; ++source) {
      for (int destination = 1; destination <= 24; ++destination) {
        if (!m.Fits(source, destination)) continue;
        Check(m, FunctionOf(m, "32f", 1), {source, source}, {destination, destination});
        Check(m, FunctionOf(m, "8u", 1), {source, 6}, {destination, 6});
      }
    }
  }
}

TEST(Resize, EveryBorder) {
  constexpr struct {
    const char* type;
    int channels;
  } kImages[] = {{"8u", 1}, {"8u", 3}, {"32f", 4}, {"16u", 1}, {"16s", 3}};
  for (const Resizing& m : {kLinear, kSharp, kLanczos2, kLanczos3, kSmoothLinear, kSmoothCubic, kSmoothLanczos}) {
    for (const auto& [type, channels] : kImages) {
      const Export& function = FunctionOf(m, type, channels);
      for (int flags = 0; flags < 256; flags += 16) {
        for (const int kind : {qvpBorderReplicate, qvpBorderMirror, qvpBorderReplicateAlt}) {
          Check(m, function, {9, 7}, {23, 15}, kind | flags);
          Check(m, function, {40, 9}, {27, 7}, kind | flags);
        }
      }
      Check(m, function, {7, 8}, {15, 11}, qvpBorderInMem);
    }
  }
}

// Ratios at which bytes are brought to the lanes by other numbers of loads, from one for a whole vector to one for each
// sample, rows that begin on either one of a pair, and more samples than a strip has.
TEST(Resize, RatiosOfBytes) {
  for (const int channels : {1, 3, 4}) {
    for (const Resizing& m : {kLinear, kSharp, kLanczos2, kLanczos3}) {
      for (const int width : {20, 60, 80, 100, 120, 150, 200, 260, 330, 420, 700, 1400}) {
        Check(m, FunctionOf(m, "8u", channels), {width, 7}, {100, 5}, qvpBorderMirror);
        Check(m, FunctionOf(m, "8u", channels), {width, 6}, {101, 9});
      }
    }
    Check(kLinear, FunctionOf(kLinear, "8u", channels), {1600, 6}, {1301, 4});
    Check(kLinear, FunctionOf(kLinear, "8u", channels), {1600, 6}, {1999, 7});
  }
}

// Rows that the floating-point kernels take in several pieces.
TEST(Resize, WideRows) {
  for (const char* type : {"8u", "16u", "16s", "32f"}) {
    for (const int channels : {1, 3, 4}) {
      for (const Resizing& m : {kSmoothLinear, kSmoothCubic, kSharp, kLanczos3}) {
        Check(m, FunctionOf(m, type, channels), {900, 7}, {230, 3}, qvpBorderMirror);
      }
      Check(kSuper, FunctionOf(kSuper, type, channels), {2800, 4}, {1999, 3});
    }
  }
}

// A tile from a copy of nothing but its source rectangle and the border around it that lies in the image.
void CheckTile(const Export& function, const ImageResize& resize, const Bordered& src, const Samples& whole,
               QvpiRect tile) {
  QvpiPoint at{};
  QvpiSize size{};
  ASSERT_EQ(qvpiResizeGetSrcRoi_16u(resize.spec(), tile, &at, &size), 0);
  const auto [left, above, right, below] = resize.ReachOf();
  const QvpiSize from = src.region.size;
  const int u = std::max(at.x - left, 0), v = std::max(at.y - above, 0);
  const int endU = std::min(at.x + size.width + right, from.width),
            endV = std::min(at.y + size.height + below, from.height), channels = src.region.channels;
  const Samples copy(src.element(), (endU - u) * channels, endV - v, 0,
                     tile.x % 2 ? test::Guard::kBefore : test::Guard::kAfter);
  for (int y = v; y < endV; ++y) std::memcpy(copy.At(0, y - v), src.At(u, y), copy.step());
  const Samples out(src.element(), tile.width * channels, tile.height, src.element().bytes);
  ASSERT_EQ(resize(function, {copy.At((at.x - u) * channels, at.y - v), copy.step()}, out, tile, src.region.border), 0);
  for (int y = 0; y < tile.height; ++y) {
    ASSERT_EQ(std::memcmp(out.At(0, y), whole.At(tile.x * channels, tile.y + y), out.width() * src.element().bytes), 0)
        << function.name << " tile " << tile.x << ',' << tile.y << ' ' << tile.width << 'x' << tile.height << " row "
        << y;
  }
}

TEST(Resize, TilesAreTheWhole) {
  const QvpiSize sizes[][2] = {{{53, 13}, {31, 9}}, {{9, 7}, {40, 19}}, {{64, 40}, {16, 10}}, {{61, 9}, {60, 8}}};
  for (const Resizing& m : kAll) {
    for (const Export* function : test::FunctionsOf({m.Operation()})) {
      for (const auto& [from, to] : sizes) {
        if (!m.Fits(from.width, to.width) || Name(function->name).isWide) continue;
        const ImageResize resize(m, Name(function->name).type, from, to);
        const Bordered src = SourceOf(*function, resize, from, qvpBorderMirror);
        const Samples whole = Resized(*function, resize, src);
        for (const int side : {1, 2, 5, 17}) {
          for (int y = 0; y < to.height; y += side) {
            for (int x = 0; x < to.width; x += side + 2) {
              CheckTile(*function, resize, src, whole,
                        {x, y, std::min(side + 2, to.width - x), std::min(side, to.height - y)});
            }
          }
        }
      }
    }
  }
}

// Buffers of the reported size at an unreadable page, for widths at which tables and rows just fit.
TEST(Resize, BuffersAreLargeEnough) {
  for (const Resizing& m : kAll) {
    for (const Export* function : test::FunctionsOf({m.Operation()})) {
      const Name name(function->name);
      for (int width = 1; width <= 70 && name.type != "16s" && !name.isWide; ++width) {
        for (const int wider : {width + 6, 3 * width + 6, 20 * width}) {
          const QvpiSize from{wider, 9}, to{width, 1 + width % 3};
          if (!m.Fits(wider, width)) continue;
          const ImageResize resize(m, name.type, from, to);
          Resized(*function, resize, SourceOf(*function, resize, from, qvpBorderReplicate));
        }
      }
    }
  }
}

// Every kind of weights in every function: within the memory, and near the function's own.
TEST(Resize, RecordsOfOtherTypesWork) {
  const QvpiSize from{57, 9}, to{41, 7};
  for (const Resizing& m : {kLinear, kCubic, kLanczos3}) {
    for (const Export* function : test::FunctionsOf({m.Operation()})) {
      const Name name(function->name);
      if (name.isWide) continue;
      const ImageResize own(m, name.type, from, to);
      const Bordered src = SourceOf(*function, own, from, qvpBorderReplicate);
      const Samples expected = Resized(*function, own, src);
      for (const char* type : {"8u", "32f", "64f"}) {
        if (type[0] == '6' && !m.Is(qvpInterpolationLinear)) continue;
        const Samples dst = Resized(*function, ImageResize(m, type, from, to), src);
        for (int i = 0; i < to.width * name.channels; ++i) {
          ASSERT_NEAR(static_cast<double>(dst(i, 3)), static_cast<double>(expected(i, 3)),
                      name.type == "8u"        ? 1
                      : name.From().bytes == 2 ? 24
                                               : 0.05)
              << function->name;
        }
      }
    }
  }
}

}  // namespace
