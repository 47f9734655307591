// Frames with subsampled chroma, and what peers do with them.
#pragma once

#include <libyuv.h>

#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace bench {

inline QvpiSize Halved(QvpiSize size) { return {(size.width + 1) / 2, (size.height + 1) / 2}; }

// A 4:2:0 frame of bytes with two or three planes, as arrays of pointers and steps.
struct Frame {
  std::vector<Image<uint8_t>> planes;
  const Qvp8u* from[3] = {};
  Qvp8u* to[3] = {};
  int step[3] = {};

  Frame(QvpiSize size, int count) {
    planes.emplace_back(size, 1);
    for (int i = 1; i < count; ++i) planes.emplace_back(Halved(size), count == 2 ? 2 : 1);
    for (int i = 0; i < count; ++i) {
      from[i] = to[i] = planes[i].data();
      step[i] = planes[i].step;
    }
  }
  QvpiSize size() const { return planes[0].size; }
  size_t bytes() const {
    size_t sum = 0;
    for (const auto& plane : planes) sum += plane.bytes();
    return sum;
  }
};

// The peers' calls for a whole frame.
inline void ScaleByYuv(const Frame& a, const Frame& b, libyuv::FilterMode mode) {
  const QvpiSize from = a.size(), to = b.size();
  if (a.planes.size() == 3) {
    libyuv::I420Scale(a.from[0], a.step[0], a.from[1], a.step[1], a.from[2], a.step[2], from.width, from.height,
                      b.to[0], b.step[0], b.to[1], b.step[1], b.to[2], b.step[2], to.width, to.height, mode);
  } else {
    libyuv::NV12Scale(a.from[0], a.step[0], a.from[1], a.step[1], from.width, from.height, b.to[0], b.step[0], b.to[1],
                      b.step[1], to.width, to.height, mode);
  }
}
inline void ScaleByOpenCv(const Frame& a, const Frame& b, int interpolation) {
  for (size_t i = 0; i < a.planes.size(); ++i) {
    cv::resize(a.planes[i].mat, b.planes[i].mat, b.planes[i].mat.size(), 0, 0, interpolation);
  }
}

}  // namespace bench
