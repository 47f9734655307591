// An image of an operation on two images of sizes of their own.
#pragma once

#include "tests/support/element.h"

namespace test {

// Of random pixels: integers of any value, floats of the size of ten.
inline Real AnyPixel(const Element& element, Random& random) {
  if (element.isInteger) return element.lowest + random.Next() % int(element.highest - element.lowest + 1);
  return static_cast<float>(random.Next() % 20001) / 1000 - 10;
}

struct Operand {
  QvpiSize size;
  int channels;
  Samples pixels;

  Operand(const Element& element, QvpiSize s, int c, int gap)
      : size(s), channels(c), pixels(element, s.width * c, s.height, gap) {}
  // With what the test's ValueOf(content, element, random) gives.
  template <class Content>
  void Fill(Content content, uint64_t seed) {
    Random random(seed);
    pixels.Fill([&](int, int) { return ValueOf(content, pixels.element(), random); });
  }
  // Gives all integers of a channel the middle of their range.
  void Flatten(int channel) {
    const Real middle = (pixels.element().lowest + pixels.element().highest + 1) / 2;
    for (int i = 0; i < size.width * size.height; ++i) {
      pixels.Put(i % size.width * channels + channel, i / size.width, middle);
    }
  }
  // 0 outside.
  double At(int x, int y, int channel) const {
    if (x < 0 || y < 0 || x >= size.width || y >= size.height) return 0;
    return static_cast<double>(pixels(x * channels + channel, y));
  }
};

}  // namespace test
