// Resize: what queries tell, and the statuses of records and calls.
#include <functional>

#include "tests/support/resizes.h"

namespace {
using test::ImageResize;
using test::kLinear;

// Any failure of an Init makes the record that was there unusable, and changes nothing else; an empty size leaves it.
TEST(Resize, FailedInitsClearRecords) {
  std::vector<Qvp8u> memory(1 << 14), buffer(64);
  auto* spec = reinterpret_cast<QvpiResizeSpec*>(memory.data());
  Qvp8u* const b = buffer.data();
  const QvpiSize n{8, 8}, small{1, 1}, none{0, 8}, negative{-1, 1}, larger{9, 8};
  const QvpiSizeL nL{8, 8}, longL{0x2000000, 8};
  const std::function<QvpStatus()> failing[] = {
      [&] { return qvpiResizeNearestInit_8u(negative, n, spec); },
      [&] { return qvpiResizeLinearInit_32f(small, n, spec); },
      [&] { return qvpiResizeLinearInit_L(nL, nL, 2, spec); },
      [&] { return qvpiResizeNearestInit_L(longL, nL, qvp8u, spec); },
      [&] { return qvpiResizeCubicInit_8u(n, n, 0, 0.5f, spec, nullptr); },
      [&] { return qvpiResizeCubicInit_16u(n, n, NAN, 0.5f, spec, b); },
      [&] { return qvpiResizeAntialiasingCubicInit_L(nL, nL, qvp32f, 0, NAN, spec, b); },
      [&] { return qvpiResizeAntialiasingCubicInit_64f(n, n, INFINITY, 0, spec, b); },
      [&] { return qvpiResizeLanczosInit_8u(n, n, 4, spec, b); },
      [&] { return qvpiResizeSuperInit_8u(n, larger, spec); },
      [&] { return qvpiResizeSuperShiftInit_8u(n, n, NAN, 0, spec); },
      [&] { return qvpiResizeAntialiasingLinearInit(none, n, spec, nullptr); },
      [&] { return qvpiResizeAntialiasingLinearInit(small, n, spec, b); },
  };
  int size = 0;
  for (const auto& init : failing) {
    ASSERT_EQ(qvpiResizeLinearInit_8u(n, n, spec), 0);
    const std::vector<Qvp8u> before = memory;
    ASSERT_LT(init(), 0);
    ASSERT_EQ(qvpiResizeGetBufferSize_8u(spec, n, 1, &size), qvpStatusContextMatch) << &init - failing;
    const auto changed = std::mismatch(before.begin(), before.end(), memory.begin()).first - before.begin();
    ASSERT_TRUE(std::equal(before.begin() + changed + 4, before.end(), memory.begin() + changed + 4));
  }
  ASSERT_EQ(qvpiResizeLinearInit_8u(n, n, spec), 0);
  EXPECT_EQ(qvpiResizeLanczosInit_8u(none, n, 4, spec, b), qvpStatusNoOperation);
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(spec, n, 1, &size), 0);
}

TEST(Resize, SizeQueries) {
  int spec = 7, init = 7;
  const auto query = [&](QvpiSize s, QvpiSize d, int interpolation, int smooth = 0) {
    return qvpiResizeGetSize_32f(s, d, interpolation, smooth, &spec, &init);
  };
  EXPECT_EQ(query({0, 5}, {-1, 5}, 3), qvpStatusNoOperation);
  EXPECT_EQ(query({-1, 5}, {5, 5}, 3), qvpStatusSize);
  EXPECT_EQ(query({5, 5}, {5, 5}, 3), qvpStatusInterpolation);
  EXPECT_EQ(query({5, 5}, {5, 5}, 0), qvpStatusNotSupportedMode);
  EXPECT_EQ(query({1, 5}, {5, 5}, qvpInterpolationLinear), qvpStatusSize);
  EXPECT_EQ(query({3, 5}, {5, 5}, qvpInterpolationLanczos), qvpStatusSize);
  EXPECT_EQ(query({5, 5}, {6, 5}, qvpInterpolationSuper), qvpStatusSize);
  EXPECT_EQ(spec, 7);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationNearest, 1), qvpStatusAntialiasIgnored);
  EXPECT_EQ(spec, 4 * (64 + 32) + 324);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationLinear), 0);
  EXPECT_EQ(spec, 8 * (64 + 32) + 324);
  EXPECT_EQ(init, 64);
  EXPECT_EQ(query({100, 70}, {33, 32}, qvpInterpolationCubic), 0);
  EXPECT_EQ(spec, 20 * (64 + 32) + 324);
  EXPECT_EQ(query({5, 5}, {INT32_MAX, 5}, qvpInterpolationLinear), qvpStatusSizeOverflow);
  EXPECT_EQ(spec, 0);
  QvpSizeL wide = 7, wideInit = 7;
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, 2, 2, 0, &wide, &wideInit), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, qvp64f, 6, 0, &wide, &wideInit), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 5}, {5, 5}, qvp64f, 2, 1, &wide, &wideInit), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeGetSize_L({5, 0x2000000}, {5, 5}, qvp8u, 2, 1, &wide, &wideInit), qvpStatusSizeOverflow);
}

TEST(Resize, TileQueries) {
  const ImageResize record(kLinear, "8u", {4, 4}, {16, 8});
  QvpiPoint at{};
  QvpiSize size{};
  const auto roi = [&](QvpiRect tile) { return qvpiResizeGetSrcRoi_8u(record.spec(), tile, &at, &size); };
  EXPECT_EQ(roi({16, 0, 1, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(roi({0, -1, 1, 1}), qvpStatusOutOfRange);
  EXPECT_EQ(roi({0, 0, 0, 1}), qvpStatusSize);
  EXPECT_EQ(roi({8, 4, 8, 9}), qvpStatusSizeWarning);
  EXPECT_EQ((std::vector<int>{at.x, at.y, size.width, size.height}), (std::vector<int>{2, 2, 2, 2}));
  EXPECT_EQ(roi({2, 0, 1, 1}), 0);
  EXPECT_EQ((std::vector<int>{at.x, size.width, size.height}), (std::vector<int>{0, 1, 1}));
  int bytes = 0;
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.spec(), {17, 8}, 3, &bytes), qvpStatusSizeWarning);
  EXPECT_EQ(bytes, 32 + 64 + 2 * 192 + 64);
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.spec(), {17, 8}, 5, &bytes), qvpStatusChannel);
  QvpSizeL wide = 0;
  EXPECT_EQ(qvpiResizeGetBufferSize_L(record.spec(), {17, 8}, 3, &wide), qvpStatusContextMatch);
}

// The checks of calls and Inits, each with everything that comes later wrong too.
TEST(Resize, ChecksInOrder) {
  std::vector<Qvp8u> memory(4096);
  Qvp8u* const p = memory.data();
  const ImageResize linear(kLinear, "8u", {8, 8}, {4, 4}), wide(kLinear, "64f", {8, 8}, {4, 4}, true),
      smooth({"Linear", qvpInterpolationLinear, true}, "8u", {8, 8}, {4, 4});
  const auto call = [&](const Qvp8u* src, QvpiPoint o, QvpiSize z, int border, const QvpiResizeSpec* spec) {
    return qvpiResizeLinear_8u_C1R(src, 8, p + 2048, 4, o, z, border, nullptr, spec, p + 2100);
  };
  const auto* foreign = reinterpret_cast<const QvpiResizeSpec*>(p + 1024);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 6, foreign), qvpStatusBorder);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 0x101, foreign), qvpStatusBorder);
  EXPECT_EQ(call(nullptr, {9, 9}, {0, 0}, 4, foreign), qvpStatusNullPointer);
  EXPECT_EQ(call(p, {9, 9}, {0, -1}, 1, foreign), qvpStatusNoOperation);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, foreign), qvpStatusContextMatch);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, wide.spec()), qvpStatusContextMatch);
  EXPECT_EQ(call(p, {9, 9}, {1, -1}, 1, linear.spec()), qvpStatusSize);
  EXPECT_EQ(call(p, {4, 0}, {1, 1}, 1, smooth.spec()), qvpStatusOutOfRange);
  EXPECT_EQ(call(p, {3, 0}, {1, 1}, 1, smooth.spec()), qvpStatusNotSupportedMode);
  EXPECT_EQ(call(p, {3, 0}, {2, 1}, 0xF1, linear.spec()), qvpStatusSizeWarning);
  const auto* words = reinterpret_cast<const Qvp16u*>(p);
  auto* out = reinterpret_cast<Qvp16u*>(p + 2048);
  EXPECT_EQ(qvpiResizeLinear_16u_C1R(words, 17, out, 8, {4, 0}, {1, 1}, 1, nullptr, linear.spec(), p + 2100),
            qvpStatusStep);
  EXPECT_EQ(qvpiResizeCubic_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.spec(), p), qvpStatusContextMatch);
  EXPECT_EQ(qvpiResizeAntialiasing_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.spec(), p),
            qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeLinear_8u_C1R_L(p, 8, p, 8, {0, 0}, {1, 1}, 3, nullptr, wide.spec(), p), qvpStatusBorder);
  EXPECT_EQ(qvpiResizeLinear_8u_C1R_L(p, 8, p, 8, {0, 0}, {1, 1}, 1, nullptr, wide.spec(), p), qvpStatusContextMatch);

  auto* spec = reinterpret_cast<QvpiResizeSpec*>(p);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {0, 5}, 4, spec, p), qvpStatusNoOperation);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({3, 5}, {5, 5}, 4, spec, p), qvpStatusSize);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {5, 5}, 4, spec, p), qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeLanczosInit_8u({5, 5}, {5, 5}, 3, spec, p), qvpStatusSize);
  EXPECT_EQ(qvpiResizeCubicInit_8u({5, 5}, {5, 5}, NAN, 0, spec, p), qvpStatusBadArgument);
  EXPECT_EQ(qvpiResizeSuperInit_8u({5, 5}, {6, 5}, spec), qvpStatusSize);
  EXPECT_EQ(qvpiResizeSuperShiftInit_8u({5, 5}, {4, 5}, 0, INFINITY, spec), qvpStatusBadArgument);
  EXPECT_EQ(qvpiResizeNearestInit_L({5, 5}, {4, 0x2000000}, 2, spec), qvpStatusDataType);
  EXPECT_EQ(qvpiResizeNearestInit_L({5, 5}, {4, 0x2000000}, qvp8u, spec), qvpStatusSizeOverflow);
  EXPECT_TRUE(std::all_of(memory.begin(), memory.begin() + 1024, [](Qvp8u v) { return v == 0; }));
}

}  // namespace
