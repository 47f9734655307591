// Images that we and the peers work on, and the sizes and names of rows.
#pragma once

#include <opencv2/core.hpp>

#include "bench/support.h"
#include "qvpi.h"

namespace bench {

// An image of ours and the same memory as a matrix of the peer.
template <class T>
struct Image {
  std::shared_ptr<T[]> pixels;
  int step;
  QvpiSize size;
  mutable cv::Mat mat;  // the peer takes its outputs as changeable headers

  Image(QvpiSize s, int channels)
      : pixels(Pixels<T>(size_t{1} * s.width * s.height * channels)),
        step(s.width * channels * int{sizeof(T)}),
        size(s),
        mat(s.height, s.width, CV_MAKETYPE(cv::DataType<T>::depth, channels), pixels.get()) {}

  T* data() const { return pixels.get(); }
  size_t bytes() const { return size_t{1} * step * size.height; }
};

inline constexpr QvpiSize kTile{64, 64}, kVga{640, 480}, kHd{1920, 1080}, kLarge{8000, 6000};
// What a call and a row cost: images of one pixel, of one column, and small ones.
inline constexpr QvpiSize kSmallest[] = {{1, 1}, {1, 64}, {16, 16}};

inline std::string Name(const std::string& what, QvpiSize size) {
  return what + " " + std::to_string(size.width) + "x" + std::to_string(size.height);
}

}  // namespace bench
