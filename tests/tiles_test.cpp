// Every function that takes a border type filters a tile, with the image around it in memory, as it filters the whole.
#include <gtest/gtest.h>

#include "tests/support/name.h"

namespace {
using test::Export;
using test::Exports;
using test::Name;
using test::Scene;

struct Tile {
  int x, y;
  QvpiSize size;
  QvpiBorderType inMemory;
};
// At corners of the region, where borders are, and between.
constexpr QvpiSize kRoi{150, 60};
constexpr Tile kTiles[] = {{0, 0, {60, 30}, qvpBorderInMemRight | qvpBorderInMemBottom},
                           {83, 37, {67, 23}, qvpBorderInMemLeft | qvpBorderInMemTop},
                           {50, 20, {47, 21}, qvpBorderInMem}};

bool IsFilter(const Export& function) {
  return function.name.ends_with("R") && function.Has("pSrc") && function.Has("pDst") && function.Has("roiSize") &&
         function.Has("borderType") && function.Has("pBuffer") && !Name(function.name).layout.empty();
}

// The bytes of a pixel of an image that a parameter points at.
ptrdiff_t PixelBytes(const Export& function, size_t place) {
  const Name name(function.name);
  const bool isColorGuide =
      function.parameters[place].name == "pGuide" && name.operation.find("Color") != std::string::npos;
  return test::PointedAt(function.parameters[place].type)->bytes * (isColorGuide ? 3 : name.channels);
}

// Calls for a part of the scene's region; `dst` is that of another scene with the same arguments.
QvpStatus CallForTile(const Scene& scene, const Scene& destination, const Tile& tile, QvpiBorderType kind) {
  const Export& function = scene.function();
  std::vector<test::Argument> arguments = scene.arguments;
  const size_t dst = function.Find("pDst");
  arguments[dst] = destination.arguments[dst];
  for (size_t i = 0; i + 1 < arguments.size(); ++i) {
    if (!function.parameters[i + 1].name.ends_with("Step")) continue;
    const ptrdiff_t offset = tile.y * ptrdiff_t{arguments[i + 1].number} + tile.x * PixelBytes(function, i);
    arguments[i].pointer = static_cast<const uint8_t*>(arguments[i].pointer) + offset;
  }
  arguments[function.Find("roiSize")] = tile.size;
  arguments[function.Find("borderType")] = kind | tile.inMemory;
  return function.call(arguments.data());
}

void ExpectSameTile(const Scene& whole, const Scene& tiled, const Tile& tile, QvpiBorderType kind) {
  const Export& function = whole.function();
  const size_t dst = function.Find("pDst");
  const ptrdiff_t step = whole.arguments[dst + 1].number, pixel = PixelBytes(function, dst);
  const auto rowOf = [&](const Scene& scene, int y) {
    return static_cast<const uint8_t*>(scene.arguments[dst].pointer) + (tile.y + y) * step + tile.x * pixel;
  };
  for (int y = 0; y < tile.size.height; ++y) {
    ASSERT_EQ(std::memcmp(rowOf(whole, y), rowOf(tiled, y), tile.size.width * pixel), 0)
        << function.name << " border " << kind << " row " << y << " of the tile at " << tile.x;
  }
}

// How many tiles there are of a region that is so many times as wide; none where there is no such border.
int CheckTiles(const Export& function, uint64_t seed, QvpiBorderType kind, int times) {
  const QvpiSize roi{kRoi.width * times, kRoi.height};
  Scene whole(function, roi, seed), tiled(function, roi, seed);
  whole.arguments[function.Find("borderType")] = kind;
  if (whole.Call() == qvpStatusBorder) return 0;
  for (Tile tile : kTiles) {
    tile.x *= times, tile.size.width *= times;
    EXPECT_EQ(CallForTile(whole, tiled, tile, kind), 0) << function.name;
    ExpectSameTile(whole, tiled, tile, kind);
  }
  return std::size(kTiles);
}

TEST(Tiles, AreFilteredAsTheWhole) {
  int tiles = 0;
  for (const Export& function : Exports()) {
    if (!IsFilter(function)) continue;
    for (uint64_t seed = 1; seed <= 3; ++seed) {
      constexpr QvpiBorderType kKinds[] = {qvpBorderReplicate, qvpBorderMirror, qvpBorderConst};
      tiles += CheckTiles(function, seed, kKinds[seed % 3], 1);
    }
    // Wide regions are cut into blocks of columns.
    if (function.name.ends_with("C1R")) tiles += CheckTiles(function, 4, qvpBorderReplicate, 10);
  }
  EXPECT_GT(tiles, 1000);
}

}  // namespace
