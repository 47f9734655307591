// Quality of pictures: the quality index.
#include "bench/filters.h"

namespace {
using namespace bench;

// Where results go, so that they have to be computed.
volatile double sink;

template <class T, class Call>
void AddIndex(const std::string& name, QvpiSize size, int channels, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, channels), b = Scene<T>(size, channels);
  Add({Name(name, size),
       {a.bytes() + b.bytes(), 0},
       [=] {
         double values[4];
         Require(call(a.data(), a.step, b.data(), b.step, size, values));
         sink = values[0];
       },
       {{"OpenCV meanStdDev of both, dot",
         [=] {
           cv::Scalar mean, deviation;
           cv::meanStdDev(a.mat, mean, deviation);
           cv::meanStdDev(b.mat, mean, deviation);
           sink = a.mat.dot(b.mat);
         },
         atLeast}}});
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    AddIndex<uint8_t>("quality index 8u C1", size, 1, qvpiQualityIndex_8u_C1R, size.width == kHd.width ? 1.5 : 1);
  }
  // One pixel has no variance, which is refused as a result.
  AddIndex<uint8_t>("quality index 8u C1", {2, 1}, 1, qvpiQualityIndex_8u_C1R, 0);
  AddIndex<uint8_t>("quality index 8u C1", {1, 64}, 1, qvpiQualityIndex_8u_C1R, 0);
  AddIndex<uint8_t>("quality index 8u C1", {16, 16}, 1, qvpiQualityIndex_8u_C1R, 0);
  AddIndex<uint8_t>("quality index 8u C3", kHd, 3, qvpiQualityIndex_8u_C3R, 1);
  AddIndex<uint16_t>("quality index 16u C1", kHd, 1, qvpiQualityIndex_16u_C1R, 1);
  AddIndex<uint16_t>("quality index 16u C3", kHd, 3, qvpiQualityIndex_16u_C3R, 1);
  AddIndex<float>("quality index 32f C1", kHd, 1, qvpiQualityIndex_32f_C1R, 1);
  return true;
}();

}  // namespace
