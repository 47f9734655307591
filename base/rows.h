// The walk over the rows of a region.
#pragma once

#include <tuple>

#include "base/image.h"

namespace qvp {

// The images that an operation walks over together: Rows(src, dst).ForEach(roi, kernel).
template <class... T>
class Rows {
 public:
  explicit Rows(const Image<T>&... images) : images_(images...) {}

  // Calls kernel(pixels, row pointers...) for each row from 0 on, or once for all pixels when every image is packed.
  template <class Kernel>
  void ForEach(Size roi, const Kernel& kernel) const {
    std::apply(
        [&](const Image<T>&... images) {
          ptrdiff_t pixels;
          if ((images.IsPacked(roi.width) && ...) && !__builtin_mul_overflow(roi.width, roi.height, &pixels)) {
            roi = Size(pixels, 1);
          }
          for (ptrdiff_t y = 0; y < roi.height; ++y) kernel(roi.width, images.Row(y)...);
        },
        images_);
  }

 private:
  std::tuple<const Image<T>&...> images_;
};

}  // namespace qvp
