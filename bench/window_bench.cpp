// Window functions: ours makes its weights in each call.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

template <class T, class Call>
void AddApply(const std::string& name, QvpiSize size, int channels, Call call, double atLeast) {
  const Image<T> a(size, channels), b(size, channels);
  const Image<float> weights(size, channels);
  a.mat.setTo(100);
  weights.mat.setTo(0.5);
  Add({Name("window " + name, size),
       {a.bytes(), b.bytes()},
       [=] { Require(call(a.data(), a.step, b.data(), b.step, size, qvpWindowHann)); },
       {{"OpenCV multiply by a ready window", [=] { cv::multiply(a.mat, weights.mat, b.mat, 1, a.mat.depth()); },
         atLeast}}});
}

// The peer's window is the root of the product.
void AddMade(QvpiSize size, double atLeast, double alone) {
  const Image<float> a(size, 1), b(size, 1), weights(size, 1);
  a.mat.setTo(100);
  const auto make = [=] { cv::createHanningWindow(weights.mat, {size.width, size.height}, CV_32F); };
  Add({Name("window 32f C1, made for it", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiApplyWindow_32f_C1R(a.data(), a.step, b.data(), b.step, size, qvpWindowHann)); },
       {{"OpenCV createHanningWindow and multiply", [=] { make(), cv::multiply(a.mat, weights.mat, b.mat); },
         atLeast}}});
  Add({Name("window itself", size),
       {0, weights.bytes()},
       [=] { Require(qvpiSetWindow_32f_C1R(b.data(), b.step, size, qvpWindowHann)); },
       {{"OpenCV createHanningWindow", make, alone}}});
}

const bool kAdded = [] {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const bool isAsked = size.width == kHd.width;
    AddApply<float>("32f C1", size, 1, qvpiApplyWindow_32f_C1R, isAsked ? 1.4 : 1);
    AddApply<uint8_t>("8u C1", size, 1, qvpiApplyWindow_8u_C1R, isAsked ? 3 : 1);
    AddApply<uint8_t>("8u C3", size, 3, qvpiApplyWindow_8u_C3R, isAsked ? 2.5 : 1);
  }
  AddMade(kTile, 5, 4);
  AddMade(kHd, 1, 4);
  for (const QvpiSize size : kSmallest) AddApply<uint8_t>("8u C1", size, 1, qvpiApplyWindow_8u_C1R, 0);
  return true;
}();

}  // namespace
