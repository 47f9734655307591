// Warps: what is refused, in the documented order.
#include <utility>
#include <vector>

#include "tests/support/faults.h"
#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Argument;
using test::Export;
using test::Fault;
using test::Kind;
using test::Scene;

constexpr double kUnit[9] = {1, 0, 0.5, 0, 1, 0, 0, 0, 1}, kFlat[9] = {}, kNan[9] = {1, 0, NAN, NAN, 1},
                 kPlain[8] = {0, 1, 0, 3, 0, 0, 1, -2}, kCrossed[8] = {-1, 1, 0, 0, 0, 0, 1, 0};
constexpr double kTriangle[4][2] = {{0, 0}, {4, 0}, {8, 0}, {0, 4}}, kBent[4][2] = {{0, 0}, {4, 0}, {1, 1}, {0, 4}};

// A scene whose arguments all faults are about.
void Prepare(Scene& scene) {
  for (const auto& [name, value] : {std::pair<const char*, Argument>{"borderType", qvpBorderConst},
                                    {"smoothEdge", 0},
                                    {"dataType", qvp8u},
                                    {"coeffs", {scene.Has("Bilinear") ? kPlain : kUnit}}}) {
    const int place = scene.function().Find(name);
    if (place >= 0) scene.arguments[place] = value;
  }
  EXPECT_EQ(scene.Call(), 0) << scene.function().name;
}

// What an Init refuses is no record afterwards.
TEST(Warp, InitsRefuseInOrder) {
  const std::vector<Fault> faults = {
      {qvpStatusBorder, "borderType", 256},
      {qvpStatusBorder, "borderType", qvpBorderMirror},
      {qvpStatusNullPointer, "coeffs", {nullptr}},
      {qvpStatusNullPointer, "srcQuad", {nullptr}},
      {qvpStatusNullPointer, "dstQuad", {nullptr}},
      {qvpStatusNullPointer, "pInitBuf", {nullptr}},
      {qvpStatusSize, "srcSize", QvpiSize{0, 5}},
      {qvpStatusDataType, "dataType", 3},
      {qvpStatusWarpDirection, "direction", 2},
      {qvpStatusCoefficient, "coeffs", {kNan}},
      {qvpStatusCoefficient, "coeffs", {kFlat}},
      {qvpStatusQuad, "srcQuad", {kTriangle}},
      {qvpStatusQuad, "dstQuad", {kBent}},
      {qvpStatusNullPointer, "pBorderValue", {nullptr}},
      {qvpStatusNumChannels, "numChannels", 2},
      {qvpStatusBadArgument, "valueB", NAN},
      {qvpStatusBadArgument, "valueC", -INFINITY},
      {qvpStatusNotSupportedMode, "smoothEdge", 1},
      {qvpStatusSize, "srcSize", QvpiSize{1, 5}, "Linear"},
      {qvpStatusSizeOverflow, "srcSize", QvpiSize{33554432, 5}},
  };
  for (const Export* init : test::FunctionsWith("qvpiWarp", "Init")) {
    Scene scene(*init, {37, 5}, 1);
    Prepare(scene);
    const auto* const spec = static_cast<const QvpiWarpSpec*>(scene.arguments[init->Find("pSpec")].pointer);
    ExpectInOrder(scene, faults, [&](QvpStatus status) {
      int bytes = 0;
      EXPECT_EQ(qvpiWarpGetBufferSize(spec, {5, 5}, &bytes), qvpStatusContextMatch) << init->name << ' ' << status;
    });
  }
}

TEST(Warp, SizeQueriesRefuseInOrder) {
  const std::vector<Fault> faults = {
      {qvpStatusNullPointer, "coeffs", {nullptr}},  {qvpStatusNullPointer, "srcQuad", {nullptr}},
      {qvpStatusSize, "srcSize", QvpiSize{0, 5}},   {qvpStatusDataType, "dataType", 3},
      {qvpStatusInterpolation, "interpolation", 3}, {qvpStatusWarpDirection, "direction", 2},
      {qvpStatusCoefficient, "coeffs", {kNan}},     {qvpStatusBorder, "borderType", 0},
      {qvpStatusSize, "srcSize", QvpiSize{1, 5}},   {qvpStatusSizeOverflow, "srcSize", QvpiSize{33554432, 5}},
  };
  for (const Export* query : test::FunctionsWith("qvpiWarp", "GetSize")) {
    Scene scene(*query, {37, 5}, 1);
    Prepare(scene);
    int bytes = 0;
    std::memcpy(&bytes, scene.arguments[query->Find("pSpecSize")].pointer, sizeof(bytes));
    EXPECT_EQ(bytes, 576) << query->name;
    ExpectInOrder(scene, faults, [](QvpStatus) {});
  }
}

TEST(Warp, OtherInits) {
  const double tiny[9] = {1e-6, 0, 0, 0, 1e-6, 0, 0, 0, 1};
  const double fold[8] = {0.5, 1, 0, 0, 0, 0, -1, 0};
  test::Block record(576);
  const auto init = [&](Kind kind, const double* c, int direction, int border, int smooth, bool isWide = false) {
    test::Map map{kind};
    std::copy(c, c + (kind == Kind::kAffine ? 9 : 8), map.c);
    map.direction = direction;
    return InitWarp(map, {.taps = 2}, isWide ? qvp64f : qvp8u, 1, border, {5, 5}, {5, 5}, smooth, isWide,
                    record.data());
  };
  EXPECT_EQ(init(Kind::kAffine, kUnit, qvpWarpForward, 0xF0, 1), 0);
  EXPECT_EQ(init(Kind::kAffine, kUnit, qvpWarpForward, 0x16, 0), 0);
  EXPECT_EQ(init(Kind::kAffine, tiny, qvpWarpForward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinear, kPlain, qvpWarpForward, 0xF0, 1), 0);
  EXPECT_EQ(init(Kind::kBilinear, kCrossed, qvpWarpForward, 1, 0), qvpStatusQuad);
  EXPECT_EQ(init(Kind::kBilinearBack, kCrossed, qvpWarpBackward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinearBack, fold, qvpWarpBackward, 1, 0), 0);
  EXPECT_EQ(init(Kind::kBilinear, kPlain, qvpWarpForward, 1, 0, true), qvpStatusDataType);
}

TEST(Warp, CallsRefuseForeignRecordsAndBadTiles) {
  const std::vector<Fault> faults = {{qvpStatusNoOperation, "dstRoiSize", QvpiSize{0, -1}},
                                     {qvpStatusSize, "dstRoiSize", QvpiSize{1, -1}},
                                     {qvpStatusStep, "srcStep", 1, "_16u"},
                                     {qvpStatusOutOfRange, "dstRoiOffset", QvpiPoint{37, 0}},
                                     {qvpStatusSizeWarning, "dstRoiSize", QvpiSize{38, 5}}};
  const std::vector<const Export*> calls =
      test::FunctionsOf({"WarpAffineNearest", "WarpAffineLinear", "WarpAffineCubic", "WarpPerspectiveLinear",
                         "WarpBilinear", "WarpBilinearBack", "WarpBilinearQuad"});
  const void* foreign = nullptr;
  std::unique_ptr<Scene> last;
  for (const Export* call : calls) {
    if (test::Name(call->name).isWide) continue;
    auto scene = std::make_unique<Scene>(*call, QvpiSize{37, 5}, 1);
    EXPECT_EQ(scene->Call(), 0) << call->name;
    Argument& spec = scene->arguments[call->Find("pSpec")];
    const void* const own = std::exchange(spec.pointer, foreign);
    if (foreign != nullptr) {
      EXPECT_EQ(scene->Call(), qvpStatusContextMatch) << call->name;
    }
    foreign = spec.pointer = own;
    ExpectInOrder(*scene, faults, [](QvpStatus) {});
    last = std::move(scene);  // whose record the next one is given
  }
}

}  // namespace
