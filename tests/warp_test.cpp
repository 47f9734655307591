// Warps and remap against the formulas in double precision.
#include <sys/mman.h>

#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Element;
using test::ElementOf;
using test::IsIn;
using test::Numbers;
using test::PixelAt;
using test::Point;
using test::Rule;
using test::Samples;
using test::Stored;
using test::ValueAt;

constexpr QvpiSize kSource{23, 17}, kTarget{83, 21};
const Element& k8u = ElementOf("8u");

std::string OperationOf(int taps, bool isPerspective) {
  const char* const method = taps == 1 ? "Nearest" : taps == 2 ? "Linear" : "Cubic";
  return std::string("Warp") + (isPerspective ? "Perspective" : "Affine") + method;
}

class Warp {
 public:
  Warp(int channels, const Element& element, int taps, const double (*matrix)[3], bool isPerspective, int border,
       QvpiSize src = kSource, QvpiSize dst = kTarget, const Rule& rule = {}, int smooth = 0)
      : function_(test::FunctionOf(OperationOf(taps, isPerspective), element, channels)) {
    const QvpDataType type = element.code;
    int size = 0, init = 0, buffer = 0;
    const int method = taps == 4 ? 6 : taps;
    EXPECT_EQ(qvpiWarpAffineGetSize(src, dst, type, kUnit, method, 1, border, &size, &init), 0);
    record_ = std::make_unique<test::Block>(size);
    test::Block room(init);
#define INIT(Kind)                                                                                                      \
  taps == 1   ? qvpiWarp##Kind##NearestInit(src, dst, type, matrix, 1, channels, border, rule.constant, smooth, spec()) \
  : taps == 2 ? qvpiWarp##Kind##LinearInit(src, dst, type, matrix, 1, channels, border, rule.constant, smooth, spec())  \
              : qvpiWarp##Kind##CubicInit(src, dst, type, matrix, 1, channels, rule.b, rule.c, border, rule.constant,   \
                                          smooth, spec(), room.data())
    status = isPerspective ? INIT(Perspective) : INIT(Affine);
    if (status == 0) {
      EXPECT_EQ(qvpiWarpGetBufferSize(spec(), dst, &buffer), 0);
      buffer_ = std::make_unique<test::Block>(buffer);
    }
  }

  QvpiWarpSpec* spec() const { return reinterpret_cast<QvpiWarpSpec*>(record_->data()); }

  // Makes the tile of `size` at `at`, from and to images that begin at the pointers.
  QvpStatus operator()(const Samples& src, const uint8_t* first, uint8_t* dst, int step, QvpiPoint at,
                       QvpiSize size) const {
    return function_({{"pSrc", {first, src.step()}},
                      {"pDst", {dst, step}},
                      {"dstRoiOffset", at},
                      {"dstRoiSize", size},
                      {"pSpec", {spec()}},
                      {"pBuffer", {buffer_->data()}}});
  }
  QvpStatus operator()(const Samples& src, const Samples& dst, QvpiPoint at, QvpiSize size) const {
    return (*this)(src, src.bytes(), dst.bytes(), dst.step(), at, size);
  }

  static constexpr double kUnit[2][3] = {{1, 0, 0.5}, {0, 1, 0}};
  QvpStatus status = 0;

 private:
  const test::Export& function_;
  std::unique_ptr<test::Block> record_, buffer_;
};

Point Map(const double (*m)[3], bool isPerspective, double x, double y) {
  const double w = isPerspective ? m[2][0] * x + m[2][1] * y + m[2][2] : 1;
  return {(m[0][0] * x + m[0][1] * y + m[0][2]) / w, (m[1][0] * x + m[1][1] * y + m[1][2]) / w};
}

constexpr double kMatrices[][3][3] = {
    {{0.26, 0.12, 1.3}, {-0.1, 0.6, 6.2}, {0, 0, 1}},        // a rotation that leaves the image
    {{-0.3, 0.05, 22.5}, {0, -0.8, 16.4}, {0, 0, 1}},        // mirrored
    {{0.5, 0.5, -10}, {0.5, 0.5000001, -10}, {0, 0, 1}},     // nearly singular
    {{1, 0, -3}, {0, 1, 2}, {0, 0, 1}},                      // whole pixels
    {{1e9, 0, -1e10}, {0, 1e12, -1e13}, {0, 0, 1}},          // huge coordinates
    {{0.2, 0.1, 1}, {0.02, 0.5, 2}, {0.012, -0.0013, 0.6}},  // a tilt
    {{0.2, 0.1, -11}, {0.02, 0.5, -2}, {0.025, 0, -1}},      // the horizon at column 40
    {{1, 1e-308, -2.5}, {-1e-308, 1, -1.5}, {0, 0, 1}},      // hardly a turn
};

void CheckWarp(const Element& element, int channels, double tolerance) {
  for (const int border : {qvpBorderReplicate, qvpBorderConst, qvpBorderTransparent}) {
    for (const int taps : {1, 2, 4}) {
      for (size_t m = 0; m < std::size(kMatrices); ++m) {
        const bool isPerspective = kMatrices[m][2][0] != 0;
        Rule rule{.taps = taps, .isConstant = border == qvpBorderConst};
        const Warp warp(channels, element, taps, kMatrices[m], isPerspective, border, kSource, kTarget, rule);
        ASSERT_EQ(warp.status, 0) << m;
        const Samples src = Numbers(element, kSource.width * channels, kSource.height, 5);
        const Samples dst = Numbers(element, kTarget.width * channels, kTarget.height, 3);
        const Samples before(dst), tiles(dst);
        ASSERT_EQ(warp(src, dst, {0, 0}, kTarget), 0);
        for (int y = 0; y < kTarget.height; y += 8) {
          for (int x = 0; x < kTarget.width; x += 37) {
            uint8_t* const tile = tiles.At(x * channels, y);
            ASSERT_GE(warp(src, src.bytes(), tile, tiles.step(), {x, y}, {37, 8}), 0);
          }
        }
        for (int y = 0; y < kTarget.height; ++y) {
          for (int x = 0; x < kTarget.width * channels; ++x) {
            const Point p = Map(kMatrices[m], isPerspective, x / channels, y);
            ASSERT_EQ(dst(x, y), tiles(x, y)) << m << ' ' << x << ',' << y;
            if (border == qvpBorderTransparent && !IsIn(p, kSource)) {
              ASSERT_EQ(dst(x, y), before(x, y)) << m << " taps " << taps << ' ' << x << ',' << y;
              continue;
            }
            if (!(p.u - p.u == 0 && p.v - p.v == 0)) continue;  // at the horizon
            const double expected = Stored(element, ValueAt(src, kSource, rule, channels, p, x % channels));
            ASSERT_NEAR(static_cast<double>(dst(x, y)), expected, taps == 1 ? 0 : tolerance)
                << "matrix " << m << " taps " << taps << " border " << border << ' ' << x << ',' << y;
          }
        }
      }
    }
  }
}

const struct {
  std::string_view type;
  double tolerance;
} kTypes[] = {{"8u", 1}, {"16u", 1}, {"16s", 1}, {"32f", 2e-3}, {"64f", 1e-9}};

TEST(Warp, FollowsTheFormula) {
  for (const auto& [type, tolerance] : kTypes) {
    for (const int channels : {1, 3, 4}) CheckWarp(ElementOf(type), channels, tolerance);
  }
}

// A region inside a larger image. Sides in memory enlarge it by what the method reaches, and the kind applies outside
// of that: with transparency beyond, pixels are those of a warp of the enlarged image, smooth edges too.
TEST(Warp, ReadsSidesInMemory) {
  const double matrix[2][3] = {{0.4, 0.01, -4}, {0.005, 0.9, -3.9}};
  const QvpiSize inner{15, 10}, to{50, 18};
  constexpr int kTransparent = qvpBorderTransparent;
  for (const int border : {+qvpBorderInMem, qvpBorderInMem | kTransparent, qvpBorderInMemLeft | kTransparent,
                           qvpBorderInMemTop | qvpBorderInMemRight | kTransparent}) {
    for (const int taps : {1, 2, 4}) {
      const auto reach = [&](int side) { return border & side ? taps / 2 : 0; };
      const int left = reach(qvpBorderInMemLeft), top = reach(qvpBorderInMemTop);
      const QvpiSize outer{left + inner.width + reach(qvpBorderInMemRight),
                           top + inner.height + reach(qvpBorderInMemBottom)};
      const double shifted[2][3] = {{0.4, 0.01, -4.0 + left}, {0.005, 0.9, -3.9 + top}};
      for (const int smooth : {0, 1}) {
        const Samples src(k8u, outer.width, outer.height, 0), all(k8u, to.width, to.height, 3), dst(all);
        const Warp some(1, k8u, taps, matrix, false, border, inner, to, {.taps = taps}, smooth);
        const Warp whole(1, k8u, taps, shifted, false, kTransparent, outer, to, {.taps = taps}, smooth);
        ASSERT_EQ(some(src, src.At(left, top), dst.bytes(), dst.step(), {0, 0}, to), 0);
        ASSERT_EQ(whole(src, all, {0, 0}, to), 0);
        for (int y = 0; y < to.height; ++y) {
          for (int x = 0; x < to.width; ++x)
            ASSERT_NEAR(static_cast<double>(dst(x, y)), static_cast<double>(all(x, y)), 1)
                << border << ' ' << x << ',' << y;
        }
      }
    }
  }
}

// Rows begin and end up to two pixels outside, so that all shares occur, on the left, the right and at the corners.
// Only the mixture of the value, which may be beyond the type, and the old pixel is rounded. Where nothing is mixed,
// bytes are within 0.02 of it.
void CheckSmoothEdges(const Element& element, int channels, double tolerance, double unmixed = 0) {
  const QvpiSize size{5, 6}, to{24, 9};
  for (const int taps : {1, 2, 4}) {
    for (const double turn : {0.0, 0.03}) {
      const double matrix[2][3] = {{0.3, turn, -1.5}, {-turn, 0.875, -0.75}};
      const Warp warp(channels, element, taps, matrix, false, qvpBorderTransparent, size, to, {.taps = taps}, 1);
      const Samples src = Numbers(element, size.width * channels, size.height, 0);
      const Samples dst = Numbers(element, to.width * channels, to.height, 2), before(dst);
      ASSERT_EQ(warp(src, dst, {0, 0}, to), 0);
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width * channels; ++x) {
          const Point p = Map(matrix, false, x / channels, y);
          const Point edge{std::clamp(p.u, 0.0, 4.0), std::clamp(p.v, 0.0, 5.0)};
          const double share = std::max(0.0, 1 - std::fabs(p.u - edge.u)) * std::max(0.0, 1 - std::fabs(p.v - edge.v));
          const double value = ValueAt(src, size, {.taps = taps}, channels, edge, x % channels);
          const double old = static_cast<double>(before(x, y));
          const double mixed = std::clamp(share * value + (1 - share) * old, static_cast<double>(element.lowest),
                                          static_cast<double>(element.highest));
          ASSERT_NEAR(static_cast<double>(dst(x, y)), mixed, tolerance + (share == 1) * unmixed)
              << taps << ' ' << x << ',' << y;
        }
      }
    }
  }
}

TEST(Warp, BlendsSmoothEdges) {
  CheckSmoothEdges(ElementOf("8u"), 3, 0.5001, 0.02);
  CheckSmoothEdges(ElementOf("16u"), 1, 0.52);
  CheckSmoothEdges(ElementOf("16s"), 4, 0.52);
  CheckSmoothEdges(ElementOf("32f"), 3, 2e-3);
  CheckSmoothEdges(ElementOf("64f"), 1, 1e-9);
}

// The `_L` forms make the same pixels, from records of their own.
TEST(Warp, WideFormsEqualPlainOnes) {
  const QvpiSizeL from{kSource.width, kSource.height}, to{kTarget.width, kTarget.height};
  test::Block record(576), buffer(1024), init(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const auto check = [&]<class T>(T, std::string_view type, const Warp& warp, auto wide) {
    const Samples src = Numbers(ElementOf(type), kSource.width * 3, kSource.height, 6);
    const Samples dst(src.element(), kTarget.width * 3, kTarget.height, 2), other(dst);
    ASSERT_EQ(warp(src, dst, {5, 1}, {70, 20}), 0);
    ASSERT_EQ(wide(src.As<T>(), src.step(), other.As<T>(), other.step(), {5, 1}, {70, 20}, spec, buffer.data()), 0);
    for (int y = 0; y < kTarget.height; ++y) {
      for (int x = 0; x < kTarget.width * 3; ++x) ASSERT_EQ(dst(x, y), other(x, y)) << x << ',' << y;
    }
  };
  const auto* turn = kMatrices[0];
  const auto* tilt = kMatrices[5];
  ASSERT_EQ(qvpiWarpAffineNearestInit_L(from, to, qvp8u, turn, 1, 3, 1, nullptr, 0, spec), 0);
  check(uint8_t(), "8u", Warp(3, k8u, 1, turn, false, 1), qvpiWarpAffineNearest_8u_C3R_L);
  ASSERT_EQ(qvpiWarpPerspectiveLinearInit_L(from, to, qvp16u, tilt, 1, 3, 1, nullptr, 0, spec), 0);
  check(uint16_t(), "16u", Warp(3, ElementOf("16u"), 2, tilt, true, 1), qvpiWarpPerspectiveLinear_16u_C3R_L);
  ASSERT_EQ(qvpiWarpAffineCubicInit_L(from, to, qvp16s, turn, 1, 3, 0, 0.5, 1, nullptr, 0, spec, init.data()), 0);
  check(int16_t(), "16s", Warp(3, ElementOf("16s"), 4, turn, false, 1), qvpiWarpAffineCubic_16s_C3R_L);
}

// Longer rows than a block, and positions in the middle between two pixels at every place of it.
TEST(Warp, PlacesNearestPixelsExactly) {
  const QvpiSize size{400, 300}, to{777, 3};
  const double half[2][3] = {{0.5, 0, 0.25}, {0, 0.5, 10.5}}, tie[2][3] = {{0.5, 0, 0}, {-0.25, 1, 250.25}};
  const double turn[2][3] = {{0.48, 0.2, 7.123}, {-0.3, 0.48, 270.3}}, far[2][3] = {{-0.5, 1e9, 399}, {0, 1, 3}};
  const Samples src(k8u, size.width, size.height, 1), dst(k8u, to.width, to.height, 0);
  for (const auto* matrix : {half, tie, turn, far}) {
    const Warp warp(1, k8u, 1, matrix, false, qvpBorderReplicate, size, to);
    ASSERT_EQ(warp.status, 0);
    ASSERT_EQ(warp(src, dst, {0, 0}, to), 0);
    for (int y = 0; y < to.height; ++y) {
      for (int x = 0; x < to.width; ++x) {
        const Point p = Map(matrix, false, x, y);
        ASSERT_EQ(dst(x, y), PixelAt(src, size, {}, 1, std::lround(std::floor(std::clamp(p.u, -9.0, 999.0) + 0.5)),
                                     std::lround(std::floor(p.v + 0.5)), 0))
            << x << ',' << y;
      }
    }
  }
}

// Rows of several blocks, whose tiles begin anywhere: slopes up to and beyond what is placed in fixed point, both ways,
// and a tilt whose horizon is outside.
void CheckLongRows(const Element& element, int channels, double tolerance) {
  const QvpiSize size{400, 300}, to{777, 3};
  const double matrices[][3][3] = {{{0.48, 0.2, 7.123}, {-0.3, 0.48, 270.3}, {0, 0, 1}},
                                   {{-3.99, 1, 401.5}, {0.1, 3.99, -2.25}, {0, 0, 1}},
                                   {{4.01, 0, -0.4}, {-0.25, -4.01, 290}, {0, 0, 1}},
                                   {{0.5, 0.1, 1}, {0.3, 0.5, 2}, {0.0005, 0.01, 1}},
                                   {{-0.6, 0.1, -400}, {-0.4, -0.5, -10}, {-0.0005, 0.01, -1.1}}};
  for (const int taps : {2, 4}) {
    for (size_t m = 0; m < std::size(matrices); ++m) {
      const Rule rule{.taps = taps};
      const Warp warp(channels, element, taps, matrices[m], m >= 3, qvpBorderReplicate, size, to, rule);
      ASSERT_EQ(warp.status, 0);
      const Samples src = Numbers(element, size.width * channels, size.height, 1);
      const Samples dst(element, to.width * channels, to.height, 0), tiles(dst);
      ASSERT_EQ(warp(src, dst, {0, 0}, to), 0);
      for (int x = 0, width = 1; x < to.width; x += width, width = width * 5 % 143) {
        ASSERT_GE(warp(src, src.bytes(), tiles.At(x * channels, 0), tiles.step(), {x, 0}, {width, 3}), 0);
      }
      for (int y = 0; y < to.height; ++y) {
        for (int x = 0; x < to.width * channels; ++x) {
          ASSERT_EQ(dst(x, y), tiles(x, y)) << m << " taps " << taps << ' ' << x << ',' << y;
          const Point p = Map(matrices[m], m >= 3, x / channels, y);
          const double expected = Stored(element, ValueAt(src, size, rule, channels, p, x % channels));
          ASSERT_NEAR(static_cast<double>(dst(x, y)), expected, tolerance)
              << m << " taps " << taps << ' ' << x << ',' << y;
        }
      }
    }
  }
}

TEST(Warp, InterpolatesLongRows) {
  CheckLongRows(ElementOf("8u"), 1, 1), CheckLongRows(ElementOf("8u"), 3, 1), CheckLongRows(ElementOf("8u"), 4, 1);
  CheckLongRows(ElementOf("16u"), 1, 1), CheckLongRows(ElementOf("16s"), 3, 1);
  CheckLongRows(ElementOf("32f"), 1, 2e-3), CheckLongRows(ElementOf("32f"), 3, 2e-3);
  CheckLongRows(ElementOf("64f"), 1, 1e-8);
}

// Where fractions are eighths nothing is rounded but the result, ties to even: between any two values, at every place
// of a vector, inside and at the border.
TEST(Warp, BytesAreExactBetweenEighths) {
  const QvpiSize size{900, 3};
  for (int eighth = 0; eighth < 8; ++eighth) {
    const double matrix[2][3] = {{1, 0, eighth / 8.0}, {0, 1, 0.5}};
    const Warp warp(1, k8u, 2, matrix, false, qvpBorderReplicate, size, size, {.taps = 2});
    const Samples src(k8u, size.width, size.height, 1), dst(k8u, size.width, size.height, 0);
    ASSERT_EQ(warp(src, dst, {0, 0}, size), 0);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const double value = ValueAt(src, size, {.taps = 2}, 1, {x + eighth / 8.0, y + 0.5}, 0);
        ASSERT_EQ(dst(x, y), std::nearbyint(value)) << eighth << ' ' << x << ',' << y;
      }
    }
  }
}

// An image whose rows are so far apart that offsets in it take more than 32 bits has the pixels of a dense one. Only
// the pages of its rows are ever touched.
TEST(Warp, DistantRowsGiveTheSamePixels) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "an image beyond 2 GiB";
  constexpr int kStep = 300000000;
  const size_t bytes = size_t{kStep} * kSource.height;
  void* memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (memory == MAP_FAILED) GTEST_SKIP() << "no room for addresses";
  auto* distant = static_cast<uint8_t*>(memory);
  test::Image<uint8_t> src(kSource.width, kSource.height, 0), dst(kTarget.width, kTarget.height, 0), other(dst);
  for (int y = 0; y < kSource.height; ++y) {
    std::memcpy(distant + size_t{kStep} * y, src.data() + y * src.step(), kSource.width);
  }
  test::Block record(576), buffer(1024), init(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const auto check = [&](auto function) {
    ASSERT_EQ(function(src.data(), src.step(), dst.data(), dst.step(), {0, 0}, kTarget, spec, buffer.data()), 0);
    ASSERT_EQ(function(distant, kStep, other.data(), other.step(), {0, 0}, kTarget, spec, buffer.data()), 0);
    for (int y = 0; y < kTarget.height; ++y) {
      for (int x = 0; x < kTarget.width; ++x) ASSERT_EQ(dst(x, y), other(x, y)) << x << ',' << y;
    }
  };
  ASSERT_EQ(qvpiWarpAffineLinearInit(kSource, kTarget, qvp8u, kMatrices[0], 1, 1, 1, nullptr, 0, spec), 0);
  check(qvpiWarpAffineLinear_8u_C1R);
  ASSERT_EQ(
      qvpiWarpAffineCubicInit(kSource, kTarget, qvp8u, kMatrices[0], 1, 1, 0, 0.5, 1, nullptr, 0, spec, init.data()),
      0);
  check(qvpiWarpAffineCubic_8u_C1R);
  ASSERT_EQ(qvpiWarpPerspectiveLinearInit(kSource, kTarget, qvp8u, kMatrices[5], 1, 1, 1, nullptr, 0, spec), 0);
  check(qvpiWarpPerspectiveLinear_8u_C1R);
  munmap(memory, bytes);
}

TEST(Warp, RefusesInOrder) {
  const double good[2][3] = {{1, 0, 0}, {0, 1, 0}}, flat[2][3] = {{0, 1, 0}, {0, 1, 0}};
  const double nan[2][3] = {{1, 0, NAN}, {0, 1, 0}}, tiny[2][3] = {{1e-6, 0, 0}, {0, 1e-6, 0}};
  const auto init = [](const double(*m)[3], QvpiSize src, int type, int direction, int channels, int border,
                       const double* value, int smooth) {
    test::Block record(576);
    return qvpiWarpAffineLinearInit(src, {5, 5}, type, m, direction, channels, border, value, smooth,
                                    reinterpret_cast<QvpiWarpSpec*>(record.data()));
  };
  const double value[4] = {};
  EXPECT_EQ(init(good, {5, 5}, qvp8u, 0, 1, 0xF0, nullptr, 1), 0);
  EXPECT_EQ(init(good, {5, 5}, qvp8u, 0, 1, 0x16, value, 0), 0);
  EXPECT_EQ(init(tiny, {5, 5}, qvp8u, 0, 1, 1, nullptr, 0), 0);
  EXPECT_EQ(init(nullptr, {0, 5}, 3, 2, 2, 256, nullptr, 1), qvpStatusBorder);
  EXPECT_EQ(init(good, {5, 5}, qvp8u, 0, 1, qvpBorderMirror, nullptr, 0), qvpStatusBorder);
  EXPECT_EQ(init(nullptr, {0, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusNullPointer);
  EXPECT_EQ(init(flat, {0, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusSize);
  EXPECT_EQ(init(flat, {1, 5}, 3, 2, 2, 1, nullptr, 1), qvpStatusDataType);
  EXPECT_EQ(init(flat, {1, 5}, qvp8u, 2, 2, 1, nullptr, 1), qvpStatusWarpDirection);
  EXPECT_EQ(init(flat, {1, 5}, qvp8u, 1, 2, 6, nullptr, 1), qvpStatusCoefficient);
  EXPECT_EQ(init(nan, {1, 5}, qvp8u, 1, 2, 6, nullptr, 1), qvpStatusCoefficient);
  EXPECT_EQ(init(good, {1, 5}, qvp8u, 1, 2, 6, nullptr, 1), qvpStatusNullPointer);
  EXPECT_EQ(init(good, {1, 5}, qvp8u, 1, 2, 6, value, 1), qvpStatusNumChannels);
  EXPECT_EQ(init(good, {1, 5}, qvp8u, 1, 3, 6, value, 1), qvpStatusNotSupportedMode);
  EXPECT_EQ(init(good, {1, 5}, qvp8u, 1, 3, 6, value, 0), qvpStatusSize);
  EXPECT_EQ(init(good, {33554432, 5}, qvp8u, 1, 3, 6, value, 0), qvpStatusSizeOverflow);
}

// Whatever an Init refuses, and whatever else is wrong with it, no record is left that a call would take.
TEST(Warp, RefusedInitsLeaveNoRecord) {
  const double good[3][3] = {{1, 0, 0.5}, {0, 1, 0}, {0, 0, 1}}, flat[3][3] = {};
  const double square[4][2] = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
  test::Block record(576), room(64);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const QvpiSize size{5, 5}, none{5, 0};
  const auto affine = [&](auto* matrix, QvpiSize src, int channels, int border, Qvp8u* buffer) {
    return qvpiWarpAffineCubicInit(src, size, qvp8u, matrix, 1, channels, 0, 0.5, border, nullptr, 0, spec, buffer);
  };
  const auto tilt = [&](auto* matrix, int border, double b, Qvp8u* buffer) {
    return qvpiWarpPerspectiveCubicInit(size, size, qvp8u, matrix, 1, 1, b, 0.5, border, nullptr, 0, spec, buffer);
  };
  const auto quad = [&](const double(*from)[2], const double(*to)[2], int border, double c, Qvp8u* buffer) {
    return qvpiWarpQuadCubicInit(size, from, size, to, qvp8u, 1, 0, c, border, nullptr, 0, spec, buffer);
  };
  const auto check = [&](QvpStatus status, QvpStatus expected) {
    int bytes = 0;
    EXPECT_EQ(status, expected);
    EXPECT_EQ(qvpiWarpGetBufferSize(spec, size, &bytes), status == 0 ? 0 : qvpStatusContextMatch) << status;
    ASSERT_EQ(affine(good, size, 1, 1, room.data()), 0);
  };
  constexpr std::nullptr_t kNoMatrix = nullptr;
  check(affine(good, size, 1, 1, room.data()), 0);
  check(affine(static_cast<const double(*)[3]>(kNoMatrix), size, 1, 1, room.data()), qvpStatusNullPointer);
  check(affine(static_cast<const double(*)[3]>(kNoMatrix), size, 1, 2, room.data()), qvpStatusBorder);
  check(affine(good, size, 1, 1, nullptr), qvpStatusNullPointer);
  check(affine(good, size, 1, 0x31, nullptr), qvpStatusNullPointer);
  check(affine(good, size, 1, 256, nullptr), qvpStatusBorder);
  check(affine(good, none, 1, 1, room.data()), qvpStatusSize);
  check(affine(flat, size, 1, 1, room.data()), qvpStatusCoefficient);
  check(affine(good, size, 2, 1, room.data()), qvpStatusNumChannels);
  check(affine(good, size, 1, qvpBorderConst, room.data()), qvpStatusNullPointer);
  check(tilt(flat, 1, 0, room.data()), qvpStatusCoefficient);
  check(tilt(good, 1, NAN, room.data()), qvpStatusBadArgument);
  check(tilt(good, 3, NAN, nullptr), qvpStatusBorder);
  check(quad(nullptr, square, 1, 0, room.data()), qvpStatusNullPointer);
  check(quad(square, nullptr, 5, 0, room.data()), qvpStatusBorder);
  check(quad(square, square, 1, 0, nullptr), qvpStatusNullPointer);
  check(quad(square, square, 1, -INFINITY, room.data()), qvpStatusBadArgument);
  check(quad(square, square, 1, 0, room.data()), 0);
}

// A common factor of a perspective's coefficients changes nothing, however large or small it is.
TEST(Warp, PerspectivesMayHaveAnyFactor) {
  constexpr int kForward = 0, kBackward = 1;
  const double matrix[3][3] = {{0.25, 0.125, 1}, {0.03125, 0.5, 2}, {0.015625, -0.0009765625, 0.75}};
  test::Image<uint8_t> src(kSource.width, kSource.height, 0);
  test::Block record(576), buffer(1024);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  for (const int direction : {kForward, kBackward}) {
    test::Image<uint8_t> expected(kTarget.width, kTarget.height, 0), dst(expected);
    for (const int power : {0, -1060, -700, -360, -341, 340, 700, 1022}) {
      double scaled[3][3];
      for (int i = 0; i < 9; ++i) scaled[i / 3][i % 3] = std::ldexp(matrix[i / 3][i % 3], power);
      ASSERT_EQ(qvpiWarpPerspectiveLinearInit(kSource, kTarget, qvp8u, scaled, direction, 1, 1, nullptr, 0, spec), 0)
          << power;
      auto& out = power == 0 ? expected : dst;
      ASSERT_EQ(qvpiWarpPerspectiveLinear_8u_C1R(src.data(), src.step(), out.data(), out.step(), {0, 0}, kTarget, spec,
                                                 buffer.data()),
                0);
      for (int y = 0; power != 0 && y < kTarget.height; ++y) {
        for (int x = 0; x < kTarget.width; ++x) ASSERT_EQ(dst(x, y), expected(x, y)) << power << ' ' << x << ',' << y;
      }
    }
  }
}

TEST(Warp, CallsRefuseForeignRecordsAndBadTiles) {
  const Warp warp(1, ElementOf("16u"), 2, Warp::kUnit, false, 1);
  uint16_t pixel[2] = {};
  test::Block buffer(1024);
  const auto call = [&](auto f, QvpiPoint at, QvpiSize size, int step) {
    return f(pixel, step, pixel, 2, at, size, warp.spec(), buffer.data());
  };
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C1R, {0, 0}, {0, -1}, 1), qvpStatusNoOperation);
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C1R, {0, 0}, {1, -1}, 1), qvpStatusSize);
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C1R, {-1, 0}, {1, 1}, 1), qvpStatusStep);
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C1R, {83, 0}, {1, 1}, 2), qvpStatusOutOfRange);
  EXPECT_EQ(call(qvpiWarpAffineLinear_16u_C3R, {0, 0}, {1, 1}, 2), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpAffineCubic_16u_C1R, {0, 0}, {1, 1}, 2), qvpStatusContextMatch);
  EXPECT_EQ(call(qvpiWarpPerspectiveLinear_16u_C1R, {0, 0}, {1, 1}, 2), qvpStatusContextMatch);
  EXPECT_EQ(qvpiWarpAffineLinear_16u_C1R_L(nullptr, 2, pixel, 2, {0, 0}, {1, 1}, warp.spec(), nullptr),
            qvpStatusContextMatch);
}

void CheckRemap(const test::Export& remap, double tolerance) {
  const test::Name name(remap.name);
  const Element& element = name.From();
  const Element& places = *test::PointedAt(remap.parameters[remap.Find("pxMap")].type);
  const int channels = name.channels;
  const QvpiSize to{71, 9};
  const test::Argument region(nullptr, 2, 1, 40, 12);
  const test::Real special[] = {2,     22,     1.9999L,       NAN,   INFINITY,    -INFINITY,
                                3e38L, -3e38L, 2147483648.0L, 21.5L, 0.49999997L, 2.5L};
  for (const int method : {1, 2, 4, 6, 16}) {
    const Samples src = Numbers(element, kSource.width * channels, kSource.height, 5);
    const Samples dst = Numbers(element, to.width * channels, to.height, 0), before(dst);
    Samples x(places, to.width, to.height, 8), y(places, to.width, to.height, 16);
    test::Random random(9);
    for (int j = 0; j < to.height; ++j) {
      for (int i = 0; i < to.width; ++i) {
        Samples* const maps[] = {&x, &y};
        for (Samples* m : maps)
          m->Put(i, j, j >= 6 ? 5 + random.Next() % 600 / 100.0 : random.Next() % 2600 / 100.0 - 1);
        if (j < 2) maps[j]->Put(i, j, special[i % std::size(special)]);
      }
    }
    ASSERT_EQ(remap({{"pSrc", src},
                     {"srcSize", kSource},
                     {"srcStep", src.step()},
                     {"srcRoi", region},
                     {"pxMap", x},
                     {"pyMap", y},
                     {"pDst", dst},
                     {"dstRoiSize", to},
                     {"interpolation", method}}),
              0)
        << remap.name;
    const Rule rule{.taps = method == 16 ? 6 : method >= 4 ? 4 : method, .c = method == 4 ? 0.75 : 0.5};
    for (int j = 0; j < to.height; ++j) {
      for (int i = 0; i < to.width * channels; ++i) {
        const Point p{static_cast<double>(x(i / channels, j)), static_cast<double>(y(i / channels, j))};
        const bool isIn = p.u >= 2 && p.u <= 22 && p.v >= 1 && p.v <= 12;
        if (!isIn || i % channels >= name.written) {
          ASSERT_EQ(dst(i, j), before(i, j)) << remap.name << ' ' << method << ' ' << i << ',' << j;
          continue;
        }
        const double expected = Stored(element, ValueAt(src, kSource, rule, channels, p, i % channels));
        ASSERT_NEAR(static_cast<double>(dst(i, j)), expected, method == 1 ? 0 : tolerance)
            << remap.name << ' ' << method << ' ' << p.u << ',' << p.v;
      }
    }
  }
}

TEST(Remap, FollowsTheFormula) {
  for (const test::Export* remap : test::FunctionsOf({"Remap"})) {
    for (const auto& [type, tolerance] : kTypes) {
      if (test::Name(remap->name).type == type) CheckRemap(*remap, tolerance);
    }
  }
}

TEST(Remap, KeepsAlphaAndDowngradesForSmallSources) {
  const float x[] = {0, 0.49f, 0.5f, 2, 2.01f, -0.5f}, y[6] = {};
  test::Image<uint8_t> src(3 * 4, 3, 1), classic(6 * 4, 1, 0), lanczos(classic);
  const QvpiRect all{0, 0, 3, 3};
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, lanczos.data(), 24, {6, 1}, 16), 0);
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, classic.data(), 24, {6, 1}, 2), 0);
  for (int i = 0; i < 24; ++i) EXPECT_EQ(lanczos(i, 0), classic(i, 0)) << i;
  test::Image<uint8_t> nearest(6 * 4, 1, 0);
  const test::Image<uint8_t> before(nearest);
  ASSERT_EQ(qvpiRemap_8u_AC4R(src.data(), {3, 3}, src.step(), all, x, 24, y, 24, nearest.data(), 24, {6, 1}, 1), 0);
  const int columns[] = {0, 0, 1, 2, -1, -1};
  for (int i = 0; i < 24; ++i) {
    const int column = columns[i / 4];
    EXPECT_EQ(nearest(i, 0), column < 0 || i % 4 == 3 ? before(i, 0) : src(column * 4 + i % 4, 0)) << i;
  }
}

// A coordinate of -0 is 0: with a next weight of -0 the zero would be +0. Points of a row run by vectors or, beside one
// that is outside, one by one.
TEST(Remap, ZerosHaveTheSameSignWhateverIsBesideThem) {
  const float src[8][8] = {{-0.0f, -5}, {-0.0f, -5}};
  for (int outside = -1; outside < 40; ++outside) {
    float u[40], v[40] = {}, dst[40];
    std::fill(u, u + 40, -0.0f);
    std::fill(dst, dst + 40, 1.0f);
    if (outside >= 0) u[outside] = -9;
    ASSERT_EQ(qvpiRemap_32f_C1R(src[0], {8, 8}, sizeof(src[0]), {0, 0, 8, 8}, u, sizeof(u), v, sizeof(v), dst,
                                sizeof(dst), {40, 1}, qvpInterpolationLinear),
              0);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(std::signbit(dst[i]), i != outside) << i << ", outside " << outside;
  }
}

TEST(Remap, RefusesInOrder) {
  uint8_t pixel[4] = {};
  float map[4] = {};
  const auto remap = [&](QvpiSize size, QvpiRect region, int step, int mapStep, int method) {
    return qvpiRemap_8u_C1R(pixel, size, step, region, map, mapStep, map, 4, pixel, 1, {1, 1}, method);
  };
  EXPECT_EQ(remap({0, 1}, {0, 0, 1, 1}, 0, 0, 3), qvpStatusSize);
  EXPECT_EQ(remap({1, 1}, {-1, 0, 1, 1}, 0, 0, 3), qvpStatusSize);
  EXPECT_EQ(remap({1, 1}, {1, 0, 1, 1}, 0, 0, 3), qvpStatusInterpolation);
  EXPECT_EQ(remap({1, 1}, {1, 0, 1, 1}, 1, 0, 2), qvpStatusStep);
  EXPECT_EQ(remap({1, 1}, {1, 0, 1, 1}, 1, 4, 2), qvpStatusNoIntersection);
  EXPECT_EQ(remap({1, 1}, {0, 0, INT32_MAX, INT32_MAX}, 1, 4, 2 | qvpSmoothEdge), 0);
}

TEST(Transforms, MapCornersOfARectangleToAQuadrangleAndBack) {
  const QvpiRect roi{3, 5, 30, 20};
  const double quad[4][2] = {{1, 2}, {41, -3}, {50, 60}, {-2, 33}};
  double affine[2][3], perspective[3][3], bilinear[2][4], back[4][2], bound[2][2];
  ASSERT_EQ(qvpiGetAffineTransform(roi, quad, affine), 0);
  ASSERT_EQ(qvpiGetAffineQuad(roi, back, affine), 0);
  for (const int i : {0, 1, 3}) {
    EXPECT_NEAR(back[i][0], quad[i][0], 1e-12);
    EXPECT_NEAR(back[i][1], quad[i][1], 1e-12);
  }
  ASSERT_EQ(qvpiGetPerspectiveTransform(roi, quad, perspective), 0);
  EXPECT_EQ(perspective[2][2], 1);
  ASSERT_EQ(qvpiGetPerspectiveQuad(roi, back, perspective), 0);
  for (int i = 0; i < 8; ++i) EXPECT_NEAR(back[i / 2][i % 2], quad[i / 2][i % 2], 1e-11);
  ASSERT_EQ(qvpiGetBilinearTransform(roi, quad, bilinear), 0);
  ASSERT_EQ(qvpiGetBilinearBound(roi, bound, bilinear), 0);
  const double expected[] = {-2, -3, 50, 60};
  for (int i = 0; i < 4; ++i) EXPECT_NEAR(bound[i / 2][i % 2], expected[i], 1e-11);
  const double crossed[4][2] = {{0, 0}, {1, 1}, {1, 0}, {0, 1}}, flat[2][3] = {{1, 1, 0}, {1, 1, 0}};
  EXPECT_EQ(qvpiGetPerspectiveTransform(roi, crossed, perspective), qvpStatusQuad);
  EXPECT_EQ(qvpiGetAffineTransform({0, 0, 1, 4}, quad, affine), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetAffineTransform({0, 0, 1, 0}, quad, affine), qvpStatusRect);
  EXPECT_EQ(qvpiGetAffineBound(roi, bound, flat), qvpStatusCoefficient);
  EXPECT_EQ(bound[1][0], 32 + 24);
}

TEST(Transforms, RotationsAreAccurate) {
  for (const double angle : {0.0, 10.0, 45.0, 90.0, 135.5, 180.0, 270.0, -30.0, 3600090.0, 1e18, -1e300}) {
    double c[2][3], x, y;
    ASSERT_EQ(qvpiGetRotateTransform(angle, 1, 2, c), 0);
    ASSERT_EQ(qvpiGetRotateShift(30, 20, angle, &x, &y), 0);
    const double turn = std::fmod(angle, 360) * M_PI / 180;
    EXPECT_NEAR(c[0][0], std::cos(turn), 4e-16) << angle;
    EXPECT_NEAR(c[0][1], std::sin(turn), 4e-16) << angle;
    EXPECT_NEAR(c[0][0] * 30 + c[0][1] * 20 + x, 30, 1e-13);
    EXPECT_NEAR(c[1][0] * 30 + c[1][1] * 20 + y, 20, 1e-13);
  }
}

// The corners of random quadrangles, some of them far away.
TEST(Transforms, TakeQuadranglesToQuadrangles) {
  test::Random random(7);
  const auto near = [&](double x) { return x + static_cast<double>(random.Next()) * 0x1p-32 * 900; };
  for (int n = 0; n < 200; ++n) {
    const double at = n % 4 * 1000;
    double from[4][2], to[4][2], affine[2][3], perspective[3][3];
    for (auto* quad : {from, to}) {
      const double corners[4][2] = {{at, at}, {at + 2000, at}, {at + 2000, at + 2000}, {at, at + 2000}};
      for (int i = 0; i < 8; ++i) quad[(i / 2 + n) % 4][i % 2] = near(corners[i / 2][i % 2]);
    }
    ASSERT_EQ(qvpiGetAffineQuadTransform(from, to, affine), 0);
    ASSERT_EQ(qvpiGetPerspectiveQuadTransform(from, to, perspective), 0);
    EXPECT_EQ(perspective[2][2], 1);
    for (int i = 0; i < 4; ++i) {
      const double x = from[i][0], y = from[i][1], w = perspective[2][0] * x + perspective[2][1] * y + 1;
      for (int k = 0; k < 2; ++k) {
        EXPECT_NEAR((perspective[k][0] * x + perspective[k][1] * y + perspective[k][2]) / w, to[i][k], 1e-8) << n;
        const double mapped = affine[k][0] * x + affine[k][1] * y + affine[k][2];
        EXPECT_NEAR(mapped, i == 2 ? mapped : to[i][k], 1e-10) << n;
      }
    }
  }
}

TEST(Transforms, RefuseQuadranglesInOrder) {
  const double good[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}, line[4][2] = {{0, 0}, {1, 1}, {9, 0}, {2, 2}},
               crossed[4][2] = {{0, 0}, {1, 0}, {0, 1}, {1, 1}},
               endless[4][2] = {{0, 0}, {1, 0}, {1, INFINITY}, {0, 1}};
  const double fan[4][2] = {{-1, 1}, {1, 1}, {2, 2}, {-2, 2}};  // whose sides meet in (0, 0)
  double c[3][3] = {{7, 7, 7}, {7, 7, 7}, {7, 7, 7}};
  EXPECT_EQ(qvpiGetAffineQuadTransform(endless, line, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetAffineQuadTransform(good, line, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetAffineQuadTransform(line, good, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(good, endless, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(crossed, good, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(fan, line, c), qvpStatusQuad);
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(fan, good, c), qvpStatusCoefficient);
  for (const auto& row : c) {
    for (const double number : row) EXPECT_EQ(number, 7);
  }
  EXPECT_EQ(qvpiGetAffineQuadTransform(good, crossed, c), 0);  // the corners 2 do not count
  EXPECT_EQ(qvpiGetPerspectiveQuadTransform(good, fan, c), 0);
}

TEST(Transforms, CanvasesHoldTurnedImages) {
  QvpiSize canvas;
  QvpiRect inside{7, 7, 7, 7};
  double x, y;
  ASSERT_EQ(qvpiGetRotateFit({1920, 1080}, 10, &canvas, &x, &y), 0);
  ASSERT_EQ(qvpiGetRotateInside({1920, 1080}, 10, &inside), 0);
  EXPECT_EQ(std::pair(canvas.width, canvas.height), std::pair(2079, 1397));
  EXPECT_NEAR(x, 0.39376913347746, 1e-11);
  EXPECT_NEAR(y, 333.31164372133, 1e-11);
  EXPECT_TRUE(inside.x == 134 && inside.y == 310 && inside.width == 1811 && inside.height == 777);
  ASSERT_EQ(qvpiGetRotateFit({1920, 1080}, 90, &canvas, &x, &y), 0);
  ASSERT_EQ(qvpiGetRotateInside({1920, 1080}, 90, &inside), 0);
  EXPECT_TRUE(canvas.width == 1080 && canvas.height == 1920 && x == 0 && y == 1919);
  EXPECT_TRUE(inside.x == 0 && inside.y == 0 && inside.width == 1080 && inside.height == 1920);
  ASSERT_EQ(qvpiGetRotateFit({3, 2}, 30, &canvas, &x, &y), 0);
  EXPECT_TRUE(canvas.width == 4 && canvas.height == 3);
  EXPECT_EQ(qvpiGetRotateInside({3, 2}, 30, &inside), qvpStatusRect);
  EXPECT_EQ(qvpiGetRotateFit({0, 2}, NAN, &canvas, &x, &y), qvpStatusSize);
  EXPECT_EQ(qvpiGetRotateFit({3, 2}, NAN, &canvas, &x, &y), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetRotateFit({INT32_MAX, INT32_MAX}, 45, &canvas, &x, &y), qvpStatusSizeOverflow);
  EXPECT_EQ(qvpiGetRotateInside({INT32_MAX, INT32_MAX}, 45, &inside), qvpStatusSizeOverflow);
  EXPECT_TRUE(canvas.width == 4 && inside.width == 1080);
}

// All four corners of the inner rectangle lie in the image, and all corners of the image in the canvas.
TEST(Transforms, WhatIsInsideOfACanvasHasPixelsOfTheImage) {
  test::Random random(3);
  for (int n = 0; n < 3000; ++n) {
    const QvpiSize size{1 + static_cast<int>(random.Next() % 300), 1 + static_cast<int>(random.Next() % 300)};
    const double angle = n % 3 == 0 ? n % 48 * 7.5 : random.Next() % 72000 * 0.01 - 360;
    double c[2][3], bound[2][2], x, y;
    QvpiSize canvas;
    QvpiRect inside;
    ASSERT_EQ(qvpiGetRotateFit(size, angle, &canvas, &x, &y), 0);
    ASSERT_EQ(qvpiGetRotateTransform(angle, x, y, c), 0);
    const QvpStatus status = qvpiGetRotateBound({0, 0, size.width, size.height}, bound, angle, x, y);
    EXPECT_EQ(status, size.width > 1 && size.height > 1 ? 0 : qvpStatusCoefficient);
    for (int i = 0; i < 2; ++i) {
      const int length = i == 0 ? canvas.width : canvas.height;
      EXPECT_GE(bound[0][i], -1e-9);
      EXPECT_LE(bound[1][i], length - 1 + 1e-9);
      EXPECT_GT(bound[1][i] - bound[0][i], length - 2);
    }
    if (qvpiGetRotateInside(size, angle, &inside) != 0) continue;
    for (int i = 0; i < 4; ++i) {
      const double dx = inside.x + (i % 2) * (inside.width - 1) - x, dy = inside.y + (i / 2) * (inside.height - 1) - y;
      const double u = c[0][0] * dx + c[1][0] * dy, v = c[0][1] * dx + c[1][1] * dy;
      EXPECT_TRUE(u > -1e-9 && u < size.width - 1 + 1e-9) << size.width << 'x' << size.height << ' ' << angle;
      EXPECT_TRUE(v > -1e-9 && v < size.height - 1 + 1e-9) << size.width << 'x' << size.height << ' ' << angle;
    }
  }
}

TEST(Transforms, RotationsTakeACentreToAnotherAndEqualTheAffineForm) {
  double c[2][3], turn[2][3], quad[4][2], expected[4][2], bound[2][2] = {{7, 7}, {7, 7}};
  ASSERT_EQ(qvpiGetRotateScaleTransform(30, 20, 11, -5, 25, 1.5, c), 0);
  ASSERT_EQ(qvpiGetRotateTransform(25, 0.5, 3, turn), 0);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(c[i / 2][i % 2], 1.5 * turn[i / 2][i % 2]);
  EXPECT_NEAR(c[0][0] * 30 + c[0][1] * 20 + c[0][2], 11, 1e-14);
  EXPECT_NEAR(c[1][0] * 30 + c[1][1] * 20 + c[1][2], -5, 1e-14);
  const QvpiRect roi{3, 5, 30, 20};
  ASSERT_EQ(qvpiGetRotateQuad(roi, quad, 25, 0.5, 3), 0);
  ASSERT_EQ(qvpiGetAffineQuad(roi, expected, turn), 0);
  for (int i = 0; i < 8; ++i) EXPECT_EQ(quad[i / 2][i % 2], expected[i / 2][i % 2]);
  EXPECT_EQ(qvpiGetRotateScaleTransform(NAN, 20, 11, -5, 25, -1, c), qvpStatusCoefficient);
  EXPECT_EQ(qvpiGetRotateScaleTransform(1, 20, 11, -5, 25, 0, c), qvpStatusResizeFactor);
  EXPECT_EQ(qvpiGetRotateScaleTransform(1, 20, 11, -5, 25, NAN, c), qvpStatusResizeFactor);
  EXPECT_EQ(qvpiGetRotateBound({-1, 0, 1, 1}, bound, NAN, 0, 0), qvpStatusSize);
  EXPECT_EQ(qvpiGetRotateBound({0, 0, 5, 1}, bound, 0, INFINITY, 0), qvpStatusCoefficient);
  EXPECT_EQ(bound[0][0], 7);
  EXPECT_EQ(qvpiGetRotateBound({0, 0, 5, 1}, bound, 180, 4, 2), qvpStatusCoefficient);  // no area, and yet written
  EXPECT_TRUE(bound[0][0] == 0 && bound[0][1] == 2 && bound[1][0] == 4 && bound[1][1] == 2);
}

TEST(Warp, QuadranglesMeetTheirCorners) {
  const double from[4][2] = {{2, 1}, {20, 2}, {19, 14}, {1, 15}}, to[4][2] = {{3, 2}, {70, 1}, {60, 18}, {5, 19}};
  test::Block record(576), buffer(1024);
  auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  ASSERT_EQ(qvpiWarpQuadNearestInit(kSource, from, kTarget, to, qvp8u, 1, 1, nullptr, 0, spec), 0);
  test::Image<uint8_t> src(kSource.width, kSource.height, 2), dst(kTarget.width, kTarget.height, 3);
  ASSERT_EQ(qvpiWarpPerspectiveNearest_8u_C1R(src.data(), src.step(), dst.data(), dst.step(), {0, 0}, kTarget, spec,
                                              buffer.data()),
            0);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(dst(static_cast<int>(to[i][0]), static_cast<int>(to[i][1])),
              src(static_cast<int>(from[i][0]), static_cast<int>(from[i][1])));
  }
}

}  // namespace
