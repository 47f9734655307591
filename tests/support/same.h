// Images that must be alike.
#pragma once

#include <string>

#include "tests/support/element.h"

namespace test {

inline void ExpectSame(const Samples& a, const Samples& b, const std::string& about = "") {
  for (int i = 0; i < a.width() * a.height(); ++i) {
    const int x = i % a.width(), y = i / a.width();
    ASSERT_TRUE(AreSame(a(x, y), b(x, y))) << a(x, y) << " and " << b(x, y) << " at " << x << ',' << y << ' ' << about;
  }
}

}  // namespace test
