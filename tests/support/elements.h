// How functions that make each element from the elements at its place are called, and compared with formulas.
#pragma once

#include "tests/support/element.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"

namespace test {

// fill(image) sets the sources, and expected(a, b, channel) is a result. A function of one source has `b` alone, as one
// in place has where its destination is. `more` are the function's other arguments. Alpha that is kept is as it was.
template <class Fill, class Expected>
void CheckElements(const Export& function, QvpiSize size, std::vector<Named> more, const Fill& fill,
                   const Expected& expected) {
  const Name name(function.name);
  const int samples = size.width * name.channels;
  Samples a(name.From(), samples, size.height, 7), b(name.From(), samples, size.height, 3);
  const Samples dst(name.To(), samples, size.height, 5, Guard::kBefore);
  fill(a), fill(b);
  const Samples given(b), before(name.inPlace ? b : dst), &out = name.inPlace ? b : dst;
  const bool isBinary = function.Has(name.inPlace ? "pSrc" : "pSrc2");
  more.insert(
      more.end(),
      {{"pSrc", isBinary ? a : b}, {"pSrc1", a}, {"pSrc2", b}, {"pDst", out}, {"pSrcDst", out}, {"roiSize", size}});
  ASSERT_EQ(function(more), qvpStatusNoError) << function.name;
  const auto result = [&](const Samples& image, int x, int y) { return name.To().read(image.At(x, y)); };
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < samples; ++x) {
      const int c = x % name.channels;
      const Real wanted = c < name.written ? Real(expected(a(x, y), given(x, y), c)) : result(before, x, y);
      ASSERT_TRUE(AreSame(result(out, x, y), wanted))
          << function.name << " at " << x << ',' << y << " is " << result(out, x, y) << ", not " << wanted << " of "
          << given(x, y) << " and, if it has two operands, " << a(x, y);
    }
  }
}

}  // namespace test
