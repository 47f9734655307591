// Images that must be alike.
#pragma once

#include <cmath>
#include <string>

#include "tests/support/element.h"

namespace test {

// Compares an image with expected(x, y): the same numbers, or as close to them as a tolerance is.
template <class Expected>
void ExpectImage(const Samples& found, const Expected& expected, const std::string& about = "", Real tolerance = 0) {
  for (int i = 0; i < found.width() * found.height(); ++i) {
    const int x = i % found.width(), y = i / found.width();
    const Real value = expected(x, y);
    const bool isClose = tolerance > 0 && std::fabs(found(x, y) - value) <= tolerance;  // or else zeros have signs
    ASSERT_TRUE(isClose || AreSame(found(x, y), value))
        << found(x, y) << " for " << value << " at " << x << ',' << y << ' ' << about;
  }
}

inline void ExpectSame(const Samples& a, const Samples& b, const std::string& about = "") {
  ExpectImage(
      a, [&](int x, int y) { return b(x, y); }, about);
}

}  // namespace test
