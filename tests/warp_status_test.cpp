// Warps: what is refused, in the documented order.
#include <vector>

#include "tests/support/name.h"
#include "tests/support/warped.h"

namespace {
using test::Export;
using test::ImageWarp;
using test::Kind;
using test::Named;

constexpr double kUnit[9] = {1, 0, 0.5, 0, 1, 0, 0, 0, 1}, kFlat[9] = {}, kNan[9] = {1, 0, NAN, NAN, 1},
                 kPlain[8] = {0, 1, 0, 3, 0, 0, 1, -2}, kCrossed[8] = {-1, 1, 0, 0, 0, 0, 1, 0};
constexpr double kSquare[4][2] = {{0, 0}, {4, 0}, {4, 4}, {0, 4}}, kTriangle[4][2] = {{0, 0}, {4, 0}, {8, 0}, {0, 4}},
                 kBent[4][2] = {{0, 0}, {4, 0}, {1, 1}, {0, 4}};
constexpr double kValue[4] = {};

struct Fault {
  QvpStatus status;
  std::vector<Named> arguments;
  const char* only = "";  // of functions with this in their names
};

// Each function refuses the first of those faults that concern it, whatever comes after. The first of two arguments of
// a name counts.
template <class Expect>
void ForEachFault(const Export& function, const std::vector<Fault>& faults, const std::vector<Named>& good,
                  const Expect& expect) {
  std::vector<Named> arguments = good;
  expect(function(arguments), 0);
  for (auto fault = faults.rbegin(); fault != faults.rend(); ++fault) {
    if (!function.Has(fault->arguments[0].name) || function.name.find(fault->only) == std::string::npos) continue;
    arguments.insert(arguments.begin(), fault->arguments.begin(), fault->arguments.end());
    expect(function(arguments), fault->status);
  }
}

std::vector<const Export*> FunctionsWith(std::string_view start, std::string_view part) {
  std::vector<const Export*> functions;
  for (const Export& function : test::Exports()) {
    if (function.name.starts_with(start) && function.name.find(part) != std::string::npos)
      functions.push_back(&function);
  }
  return functions;
}

const double* GoodFor(const Export& function) {
  return function.name.find("Bilinear") == std::string::npos ? kUnit : kPlain;
}

// What an Init refuses is no record afterwards.
TEST(Warp, InitsRefuseInOrder) {
  test::Block record(576), room(64);
  auto* const spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
  const std::vector<Fault> faults = {
      {qvpStatusBorder, {{"borderType", 256}}},
      {qvpStatusBorder, {{"borderType", qvpBorderMirror}}},
      {qvpStatusNullPointer, {{"coeffs", {nullptr}}}},
      {qvpStatusNullPointer, {{"srcQuad", {nullptr}}}},
      {qvpStatusNullPointer, {{"dstQuad", {nullptr}}}},
      {qvpStatusNullPointer, {{"pInitBuf", {nullptr}}}},
      {qvpStatusSize, {{"srcSize", QvpiSize{0, 5}}}},
      {qvpStatusDataType, {{"dataType", 3}}},
      {qvpStatusWarpDirection, {{"direction", 2}}},
      {qvpStatusCoefficient, {{"coeffs", {kNan}}}},
      {qvpStatusCoefficient, {{"coeffs", {kFlat}}}},
      {qvpStatusQuad, {{"srcQuad", {kTriangle}}}},
      {qvpStatusQuad, {{"dstQuad", {kBent}}}},
      {qvpStatusNullPointer, {{"pBorderValue", {nullptr}}}},
      {qvpStatusNumChannels, {{"numChannels", 2}}},
      {qvpStatusBadArgument, {{"valueB", NAN}}},
      {qvpStatusBadArgument, {{"valueC", -INFINITY}}},
      {qvpStatusNotSupportedMode, {{"smoothEdge", 1}}},
      {qvpStatusSize, {{"srcSize", QvpiSize{1, 5}}}, "Linear"},
      {qvpStatusSizeOverflow, {{"srcSize", QvpiSize{33554432, 5}}}},
  };
  for (const Export* init : FunctionsWith("qvpiWarp", "Init")) {
    const bool isWide = init->name.ends_with("_L");
    ForEachFault(
        *init, faults,
        {{"srcSize", QvpiSize{5, 5}},
         {"dstSize", QvpiSize{5, 5}},
         {"srcQuad", {kSquare}},
         {"dstQuad", {kSquare}},
         {"dataType", qvp8u},
         {"coeffs", {GoodFor(*init)}},
         {"direction", qvpWarpForward},
         {"numChannels", 3},
         {"valueB", 0},
         {"valueC", 0.5},
         {"borderType", qvpBorderConst},
         {"pBorderValue", {kValue}},
         {"smoothEdge", 0},
         {"pSpec", {spec}},
         {"pInitBuf", {room.data()}}},
        [&](QvpStatus status, QvpStatus expected) {
          int bytes = 0;
          QvpSizeL wide = 0;
          EXPECT_EQ(status, expected) << init->name;
          EXPECT_EQ(isWide ? qvpiWarpGetBufferSize_L(spec, {5, 5}, &wide) : qvpiWarpGetBufferSize(spec, {5, 5}, &bytes),
                    expected == 0 ? 0 : qvpStatusContextMatch)
              << init->name << " after " << expected;
        });
  }
}

TEST(Warp, SizeQueriesRefuseInOrder) {
  int size = 0, room = 0;
  QvpSizeL wide = 0, wideRoom = 0;
  const std::vector<Fault> faults = {
      {qvpStatusNullPointer, {{"coeffs", {nullptr}}}},  {qvpStatusNullPointer, {{"srcQuad", {nullptr}}}},
      {qvpStatusSize, {{"srcSize", QvpiSize{0, 5}}}},   {qvpStatusDataType, {{"dataType", 3}}},
      {qvpStatusInterpolation, {{"interpolation", 3}}}, {qvpStatusWarpDirection, {{"direction", 2}}},
      {qvpStatusCoefficient, {{"coeffs", {kNan}}}},     {qvpStatusBorder, {{"borderType", 0}}},
      {qvpStatusSize, {{"srcSize", QvpiSize{1, 5}}}},   {qvpStatusSizeOverflow, {{"srcSize", QvpiSize{33554432, 5}}}},
  };
  for (const Export* query : FunctionsWith("qvpiWarp", "GetSize")) {
    const bool isWide = query->name.ends_with("_L");
    ForEachFault(*query, faults,
                 {{"srcSize", QvpiSize{5, 5}},
                  {"dstSize", QvpiSize{5, 5}},
                  {"srcQuad", {kSquare}},
                  {"dstQuad", {kSquare}},
                  {"dataType", qvp8u},
                  {"coeffs", {GoodFor(*query)}},
                  {"interpolation", qvpInterpolationCubic},
                  {"direction", qvpWarpForward},
                  {"borderType", qvpBorderReplicate},
                  {"pSpecSize", {isWide ? static_cast<void*>(&wide) : &size}},
                  {"pInitBufSize", {isWide ? static_cast<void*>(&wideRoom) : &room}}},
                 [&](QvpStatus status, QvpStatus expected) {
                   EXPECT_EQ(status, expected) << query->name;
                   if (expected != 0) return;
                   EXPECT_EQ(isWide ? wide + wideRoom : size + room, 576 + 64) << query->name;
                 });
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
  const test::Element& words = test::ElementOf("16u");
  uint16_t pixels[64] = {};
  for (const Kind kind : {Kind::kAffine, Kind::kPerspective, Kind::kBilinear, Kind::kBilinearBack}) {
    test::Map map{kind};
    std::copy(map.IsBilinear() ? kPlain : kUnit, (map.IsBilinear() ? kPlain : kUnit) + 8, map.c);
    map.c[8] = 1;
    const ImageWarp warp(map, words, 1, {.taps = 2}, 1, {2, 2}, {2, 2});
    const test::Block buffer(1024);
    const std::vector<Fault> faults = {{qvpStatusNoOperation, {{"dstRoiSize", QvpiSize{0, -1}}}},
                                       {qvpStatusSize, {{"dstRoiSize", QvpiSize{1, -1}}}},
                                       {qvpStatusStep, {{"srcStep", 1}}},
                                       {qvpStatusOutOfRange, {{"dstRoiOffset", QvpiPoint{2, 0}}}},
                                       {qvpStatusSizeWarning, {{"dstRoiSize", QvpiSize{3, 1}}}}};
    const std::vector<Named> good = {{"pSrc", {pixels, 8}},          {"srcStep", 8},
                                     {"pDst", {pixels, 8}},          {"dstRoiOffset", QvpiPoint{0, 0}},
                                     {"dstRoiSize", QvpiSize{1, 1}}, {"pSpec", {warp.spec()}},
                                     {"pBuffer", {buffer.data()}}};
    ForEachFault(warp.function(), faults, good,
                 [&](QvpStatus status, QvpStatus expected) { EXPECT_EQ(status, expected) << warp.function().name; });
    for (const Export* other : test::FunctionsOf({"WarpAffineCubic", "WarpPerspectiveLinear", "WarpBilinear",
                                                  "WarpBilinearBack", "WarpBilinearQuad", "WarpAffineLinear"})) {
      const bool isOwn = other->name == warp.function().name;
      EXPECT_EQ((*other)(good), isOwn ? 0 : qvpStatusContextMatch) << other->name;
    }
  }
}

}  // namespace
