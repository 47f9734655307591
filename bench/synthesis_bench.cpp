// Images made by formulas, and noise.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

// The peer's way to a sum of a function of the column and one of the row: both repeated over the image.
struct Repeated {
  cv::Mat row, column, across, down, sum;

  explicit Repeated(QvpiSize size) : row(1, size.width, CV_32F), column(size.height, 1, CV_32F) {
    for (int x = 0; x < size.width; ++x) row.at<float>(x) = 0.05f * static_cast<float>(x);
    for (int y = 0; y < size.height; ++y) column.at<float>(y) = 0.1f * static_cast<float>(y);
  }
  void Add(const cv::Mat& to) {
    cv::repeat(row, column.rows, 1, across);
    cv::repeat(column, 1, row.cols, down);
    cv::add(across, down, to);
  }
};

void AddRamps(QvpiSize size, double bytes, double floats) {
  const Image<uint8_t> grey(size, 1);
  const Image<float> real(size, 1);
  const auto peer = std::make_shared<Repeated>(size);
  Add({Name("ramp 8u C1", size),
       {0, grey.bytes()},
       [=] {
         Require(qvpiRamp_8u_C1R(0, 0.05, 0.1, grey.data(), grey.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add, convertScaleAbs",
         [=] {
           peer->sum.create(size.height, size.width, CV_32F), peer->Add(peer->sum),
               cv::convertScaleAbs(peer->sum, grey.mat);
         },
         bytes}}});
  Add({Name("ramp 32f C1", size),
       {0, real.bytes()},
       [=] {
         Require(qvpiRamp_32f_C1R(0, 0.05, 0.1, real.data(), real.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add", [=] { peer->Add(real.mat); }, floats}}});
}

// Cosine of the sum of the squares of two ramps.
void AddJaehne(QvpiSize size, double atLeast) {
  const Image<uint8_t> grey(size, 1);
  const auto peer = std::make_shared<Repeated>(size);
  cv::multiply(peer->row, peer->row, peer->row);
  cv::multiply(peer->column, peer->column, peer->column);
  const auto draw = [=] {
    cv::Mat angle(size.height, size.width, CV_32F), cos, sin;
    peer->Add(angle);
    cv::polarToCart(cv::Mat(), angle, cos, sin);
    cv::convertScaleAbs(cos, grey.mat, 127.5, 127.5);
  };
  Add({Name("Jaehne 8u C1", size),
       {0, grey.bytes()},
       [=] {
         Require(qvpiJaehne_8u_C1R(size, 2, grey.data(), grey.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add, polarToCart, convertScaleAbs", draw, atLeast}}});
}

const bool kAdded = [] {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const bool isAsked = size.width == kHd.width;
    AddRamps(size, isAsked ? 15 : 1, isAsked ? 5 : 1);
    AddJaehne(size, isAsked ? 15 : 1);
  }
  for (const QvpiSize size : kSmallest) AddRamps(size, 0, 0), AddJaehne(size, 0);
  return true;
}();

}  // namespace
