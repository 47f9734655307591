// An image with what lies around it by a border type: what filters over neighbourhoods are tested with.
#pragma once

#include "tests/support/element.h"
#include "tests/support/exports.h"
#include "tests/support/reference.h"

namespace test {

// How far an operation reads beyond a pixel.
struct Reach {
  int left, above, right, below;
};
inline Reach ReachOf(QvpiSize mask, QvpiPoint anchor) {
  return {anchor.x, anchor.y, mask.width - 1 - anchor.x, mask.height - 1 - anchor.y};
}
inline Reach ReachOf(QvpiSize mask) { return ReachOf(mask, {(mask.width - 1) / 2, (mask.height - 1) / 2}); }

struct Region {
  QvpiSize size;
  int channels;
  QvpiBorderType border;
};

// The image holds just what may be read: the region, and on the sides in memory what the operation reaches.
struct Bordered {
  int left, top, right, bottom;
  Region region;
  Samples image;
  uint8_t value[32];  // beyond the image

  Bordered(const Element& element, const Reach& reach, const Region& r, Guard guard = Guard::kAfter)
      : left(r.border & qvpBorderInMemLeft ? reach.left : 0),
        top(r.border & qvpBorderInMemTop ? reach.above : 0),
        right(r.border & qvpBorderInMemRight ? reach.right : 0),
        bottom(r.border & qvpBorderInMemBottom ? reach.below : 0),
        region(r),
        image(element, (left + r.size.width + right) * r.channels, top + r.size.height + bottom, 3, guard) {
    Random random(7);
    if (!element.isInteger) image.Fill([&](int, int) { return static_cast<int>(random.Next()) / 1000; });
    constexpr Real kValue[4] = {250, 3, 77, 128};
    for (int c = 0; c < 4; ++c) element.write(value + c * element.bytes, kValue[c]);
  }
  const Element& element() const { return image.element(); }
  const uint8_t* At(int x, int y) const { return image.At((left + x) * region.channels, top + y); }
  Real Pixel(int x, int y, int c) const {
    const int kind = region.border & 15;
    const int column = BorderPosition(kind, x, -left, region.size.width - 1 + right),
              row = BorderPosition(kind, y, -top, region.size.height - 1 + bottom);
    if (column == kConstant || row == kConstant) return element().read(value + c * element().bytes);
    return image((left + column) * region.channels + c, top + row);
  }
};

// Calls tile(x, y, size, border) for the tiles of an image, whose inner sides are in memory. All, the last ones too,
// must be at least as long as the operation reaches.
template <class Tile>
void ForEachTile(QvpiSize size, QvpiSize most, int kind, const Tile& tile) {
  for (int y = 0; y < size.height; y += most.height) {
    for (int x = 0; x < size.width; x += most.width) {
      const QvpiSize part{std::min(most.width, size.width - x), std::min(most.height, size.height - y)};
      const int flags = (y > 0 ? qvpBorderInMemTop : 0) | (x > 0 ? qvpBorderInMemLeft : 0) |
                        (y + part.height < size.height ? qvpBorderInMemBottom : 0) |
                        (x + part.width < size.width ? qvpBorderInMemRight : 0);
      tile(x, y, part, flags | kind);
    }
  }
}

}  // namespace test
