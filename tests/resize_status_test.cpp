// Resize: what queries tell, and the statuses of records and calls.
#include "tests/support/faults.h"
#include "tests/support/resizes.h"

namespace {
using test::ImageResize;
using test::kLinear;

// Any failure of an Init makes the record that was there unusable; an empty size leaves it.
TEST(Resize, InitsRefuseInOrder) {
  const std::vector<test::Fault> faults = {{qvpStatusSize, "srcSize", QvpiSize{-1, 5}},
                                           {qvpStatusSize, "srcSize", QvpiSize{3, 9}, "Cubic"},
                                           {qvpStatusSize, "srcSize", QvpiSize{9, 3}, "Lanczos"},
                                           {qvpStatusNotSupportedMode, "numLobes", 4},
                                           {qvpStatusSize, "srcSize", QvpiSize{5, 9}, "Lanczos"},
                                           {qvpStatusBadArgument, "valueB", NAN},
                                           {qvpStatusBadArgument, "valueC", INFINITY},
                                           {qvpStatusSize, "dstSize", QvpiSize{1000, 1}, "SuperShift"},
                                           {qvpStatusBadArgument, "shiftX", NAN},
                                           {qvpStatusSize, "srcSize", QvpiSize{1, 1}, "Linear"},
                                           {qvpStatusDataType, "dataType", 2},
                                           {qvpStatusSizeOverflow, "srcSize", QvpiSize{0x2000000, 8}, "_L"},
                                           {qvpStatusSize, "dstSize", QvpiSize{1000, 1}, "SuperInit"}};
  for (const test::Export* init : test::FunctionsWith("qvpiResize", "Init")) {
    if (init->name.starts_with("qvpiResize42")) continue;
    test::Scene scene(*init, {37, 9}, 1);
    if (const int lobes = init->Find("numLobes"); lobes >= 0) scene.arguments[lobes] = 3;
    EXPECT_EQ(scene.Call(), 0) << init->name;
    const auto* const spec = static_cast<const QvpiResizeSpec*>(scene.arguments[init->Find("pSpec")].pointer);
    const auto isRecord = [&] {
      QvpiBorderSize reach;
      return (init->name.ends_with("_L") ? qvpiResizeGetBorderSize_L : qvpiResizeGetBorderSize_8u)(spec, &reach) == 0;
    };
    const test::Argument size = scene.arguments[init->Find("dstSize")];
    ExpectInOrder(scene, {{qvpStatusNoOperation, "dstSize", QvpiSize{0, -5}}},
                  [&](QvpStatus) { EXPECT_TRUE(isRecord()) << init->name; });
    scene.arguments[init->Find("dstSize")] = size;
    ExpectInOrder(scene, faults, [&](QvpStatus) { EXPECT_FALSE(isRecord()) << init->name; });
  }
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

  EXPECT_TRUE(std::all_of(memory.begin(), memory.begin() + 1024, [](Qvp8u v) { return v == 0; }));
}

}  // namespace
