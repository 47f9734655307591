// Resize: what queries tell, and the statuses of records and calls.
#include "tests/support/resizes.h"

namespace {
using test::ImageResize;
using test::kLinear;

// Lengths that a method cannot enlarge, reduce or represent.
TEST(Resize, InitsRefuseLengthsOfTheirMethod) {
  constexpr struct {
    const char* part;
    QvpiSize src, dst;
    int lobes;
    QvpStatus status;
  } kRefused[] = {{"Linear", {1, 1}, {4, 4}, 3, qvpStatusSize},
                  {"Cubic", {3, 9}, {4, 4}, 3, qvpStatusSize},
                  {"Lanczos", {9, 3}, {4, 4}, 2, qvpStatusSize},
                  {"Lanczos", {5, 9}, {4, 4}, 3, qvpStatusSize},
                  {"SuperInit", {37, 9}, {1000, 1}, 3, qvpStatusSize},
                  {"SuperShift", {37, 9}, {1000, 1}, 3, qvpStatusSize},
                  {"_L", {0x2000000, 8}, {4, 4}, 3, qvpStatusSizeOverflow}};
  for (const test::Export& init : test::Exports()) {
    if (!init.name.starts_with("qvpiResize") || init.name.find("Init") == std::string::npos) continue;
    for (const auto& [part, src, dst, lobes, status] : kRefused) {
      if (init.name.starts_with("qvpiResize42") || init.name.find(part) == std::string::npos) continue;
      test::Scene scene(init, {37, 9}, 1);
      scene.arguments[init.Find("srcSize")] = src;
      scene.arguments[init.Find("dstSize")] = dst;
      if (const int place = init.Find("numLobes"); place >= 0) scene.arguments[place] = lobes;
      EXPECT_EQ(scene.Call(), status) << init.name << ' ' << src.width << 'x' << src.height;
    }
  }
}

TEST(Resize, SizeQueries) {
  int spec = 7, init = 7;
  const auto query = [&](QvpiSize s, QvpiSize d, int interpolation, int smooth = 0) {
    return qvpiResizeGetSize_32f(s, d, interpolation, smooth, &spec, &init);
  };
  EXPECT_EQ(query({0, 5}, {-1, 5}, 3), qvpStatusNoOperation);
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
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.spec(), {16, 8}, 3, &bytes), 0);
  EXPECT_EQ(qvpiResizeGetBufferSize_8u(record.spec(), {17, 8}, 5, &bytes), qvpStatusChannel);
  QvpSizeL wide = 0;
  EXPECT_EQ(qvpiResizeGetBufferSize_L(record.spec(), {17, 8}, 3, &wide), qvpStatusContextMatch);
}

// A destination without pixels asks for nothing, of an Init as of a call.
TEST(Resize, CallsKnowTheirRecordsAndTheLastPixel) {
  std::vector<Qvp8u> memory(4096);
  Qvp8u* const p = memory.data();
  const ImageResize linear(kLinear, "8u", {8, 8}, {4, 4}), wide(kLinear, "64f", {8, 8}, {4, 4}, true),
      smooth({"Linear", qvpInterpolationLinear, true}, "8u", {8, 8}, {4, 4});
  const auto call = [&](QvpiPoint at, QvpiSize size, int border, const ImageResize& resize) {
    return qvpiResizeLinear_8u_C1R(p, 8, p + 2048, 4, at, size, border, nullptr, resize.spec(), p + 2100);
  };
  EXPECT_EQ(call({9, 9}, {0, -1}, 1, wide), qvpStatusNoOperation);
  EXPECT_EQ(call({9, 9}, {1, -1}, 1, wide), qvpStatusContextMatch);
  EXPECT_EQ(call({9, 9}, {1, -1}, 1, linear), qvpStatusSize);
  EXPECT_EQ(call({4, 0}, {1, 1}, 1, smooth), qvpStatusOutOfRange);
  EXPECT_EQ(call({3, 0}, {1, 1}, 1, smooth), qvpStatusNotSupportedMode);
  EXPECT_EQ(call({3, 0}, {2, 1}, 0xF1, linear), qvpStatusSizeWarning);
  EXPECT_EQ(qvpiResizeLinearInit_8u({8, 8}, {0, -5}, linear.spec()), qvpStatusNoOperation);
  EXPECT_EQ(call({3, 0}, {1, 1}, 1, linear), 0);
  EXPECT_EQ(qvpiResizeCubic_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.spec(), p), qvpStatusContextMatch);
  EXPECT_EQ(qvpiResizeAntialiasing_8u_C1R(p, 8, p, 8, {0, 0}, {1, 1}, 4, nullptr, linear.spec(), p),
            qvpStatusNotSupportedMode);
  EXPECT_EQ(qvpiResizeLinear_8u_C1R_L(p, 8, p, 8, {0, 0}, {1, 1}, 1, nullptr, wide.spec(), p), qvpStatusContextMatch);
}

}  // namespace
