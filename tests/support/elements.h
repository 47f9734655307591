// How functions that make each pixel from the pixels at its place are called, and compared with formulas.
#pragma once

#include <array>

#include "tests/support/element.h"
#include "tests/support/exports.h"
#include "tests/support/name.h"

namespace test {

// Of up to four channels.
using Pixel = std::array<Real, 4>;

// An image of pixels, or one plane for each channel.
class Pixels {
 public:
  Pixels(const Element& element, const Name& name, QvpiSize size, int gap, Guard guard = Guard::kAfter)
      : size_(size), channels_(name.channels), element_(&element) {
    const int count = name.layout == "AP4" ? 4 : 1;
    planes_.reserve(count);
    for (int p = 0; p < count; ++p) {
      planes_.emplace_back(element, size.width * channels_ / count, size.height, gap, guard);
    }
  }
  const Element& element() const { return *element_; }
  Real operator()(int x, int y, int c) const {
    return element_->read(IsPlanar() ? planes_[c].At(x, y) : planes_[0].At(x * channels_ + c, y));
  }
  Pixel operator()(int x, int y) const {
    Pixel pixel{};
    for (int c = 0; c < channels_; ++c) pixel[c] = (*this)(x, y, c);
    return pixel;
  }
  // What was converted in place has another type.
  void ReadAs(const Element& element) { element_ = &element; }
  // Fills with pixels value(x, y).
  template <class Value>
  void Fill(const Value& value) {
    for (int y = 0; y < size_.height; ++y) {
      for (int x = 0; x < size_.width; ++x) {
        const auto pixel = value(x, y);
        for (int c = 0; c < channels_; ++c)
          IsPlanar() ? planes_[c].Put(x, y, pixel[c]) : planes_[0].Put(x * channels_ + c, y, pixel[c]);
      }
    }
  }
  // Or each plane by fill(samples).
  template <class FillSamples>
  void FillPlanes(const FillSamples& fill) {
    for (Samples& plane : planes_) fill(plane);
  }
  Argument argument() {
    for (size_t p = 0; p < planes_.size(); ++p) pointers_[p] = planes_[p].data();
    return {IsPlanar() ? static_cast<const void*>(pointers_) : pointers_[0], planes_[0].step()};
  }

 private:
  bool IsPlanar() const { return planes_.size() > 1; }

  std::vector<Samples> planes_;
  QvpiSize size_;
  int channels_;
  const Element* element_;
  const void* pointers_[4] = {};
};

// fill(samples) sets each source, or fill(a, b) both, and expected(a, b, before) is a pixel where the destination had
// the last one. A function of one source has `b` alone, as one in place has where its destination is. `more` are the
// function's other arguments.
template <class Fill, class Expected>
void CheckPixels(const Export& function, QvpiSize size, std::vector<Named> more, const Fill& fill,
                 const Expected& expected, QvpStatus status = qvpStatusNoError) {
  const Name name(function.name);
  const int gap = size.width % 4 == 0 ? 0 : 1;  // none where four divides the width: packed images
  Pixels a(name.From(), name, size, 7 * gap), b(name.From(), name, size, 3 * gap);
  Pixels dst(name.To(), name, size, 5 * gap, Guard::kBefore);
  if constexpr (std::is_invocable_v<Fill, Samples&>) {
    a.FillPlanes(fill), b.FillPlanes(fill);
  } else {
    fill(a, b);
  }
  const Pixels given(b);
  Pixels& out = name.inPlace ? b : dst;
  out.ReadAs(name.To());
  const Pixels before(out);
  const bool isBinary = function.Has(name.inPlace ? "pSrc" : "pSrc2");
  more.insert(more.end(), {{"pSrc", (isBinary ? a : b).argument()},
                           {"pSrc1", a.argument()},
                           {"pSrc2", b.argument()},
                           {"pDst", out.argument()},
                           {"pSrcDst", out.argument()},
                           {"roiSize", size}});
  ASSERT_EQ(function(more), status) << function.name;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto wanted = expected(a(x, y), given(x, y), before(x, y));
      for (int c = 0; c < name.channels; ++c) {
        ASSERT_TRUE(AreSame(out(x, y, c), wanted[c]))
            << function.name << " at " << x << ',' << y << " channel " << c << " is " << out(x, y, c) << ", not "
            << wanted[c] << " of " << given(x, y, c) << " and, if it has two operands, " << a(x, y, c);
      }
    }
  }
}

// The same where channels are independent: expected(a, b, channel) is a sample. Alpha that is kept is as it was.
template <class Fill, class Expected>
void CheckElements(const Export& function, QvpiSize size, std::vector<Named> more, const Fill& fill,
                   const Expected& expected, QvpStatus status = qvpStatusNoError) {
  const int written = Name(function.name).written;
  const auto pixel = [&](const Pixel& a, const Pixel& b, Pixel result) {
    for (int c = 0; c < written; ++c) result[c] = Real(expected(a[c], b[c], c));
    return result;
  };
  CheckPixels(function, size, std::move(more), fill, pixel, status);
}

}  // namespace test
