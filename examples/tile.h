// What the contact sheet shows of an image: RGB, scaled to fit a square of kTileSide pixels.
#pragma once

#include "examples/image.h"

namespace demo {

constexpr int kTileSide = 256;

Rgb Tile(const Grey& image);
Rgb Tile(const Rgb& image);
Rgb Tile(const Rgba& image);  // over a checkerboard, which shows the alpha channel

}  // namespace demo
