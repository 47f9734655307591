// What benchmarks of filters have in common: images, types and borders, with the peer's.
#pragma once

#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace bench {

inline constexpr QvpiBorderType kBorder = qvpBorderReplicate;
inline constexpr int kPeerBorder = cv::BORDER_REPLICATE;

template <class T>
constexpr QvpDataType kType = sizeof(T) == 1              ? qvp8u
                              : std::is_same_v<T, Qvp16u> ? qvp16u
                              : std::is_same_v<T, Qvp16s> ? qvp16s
                                                          : qvp32f;

// An image of random pixels; floats of random bytes would be NaN and subnormals.
template <class T>
Image<T> Scene(QvpiSize size, int channels) {
  const Image<T> image(size, channels);
  if constexpr (std::is_same_v<T, float>) {
    for (size_t i = 0; i < image.bytes() / sizeof(T); ++i) image.data()[i] = static_cast<float>(i * 7919 % 1000);
  }
  return image;
}

// A record with its work buffer.
template <class Spec>
struct Prepared {
  std::shared_ptr<Qvp8u[]> spec, buffer;
  Spec* get() const { return reinterpret_cast<Spec*>(spec.get()); }
};

inline std::string Square(int side) { return std::to_string(side) + "x" + std::to_string(side); }

}  // namespace bench
