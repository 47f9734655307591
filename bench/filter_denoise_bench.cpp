// Filters that remove noise and keep edges.
#include "bench/filters.h"

namespace {
using namespace bench;

template <class T, class Call>
void AddBilateral(const std::string& name, QvpiSize size, int channels, int radius, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, channels), b(size, channels);
  const float range = std::is_same_v<T, float> ? 100 : 25, space = static_cast<float>(radius) / 2;
  int specBytes, bufferBytes;
  Require(qvpiFilterBilateralBorderGetSize(radius, size, kType<T>, channels, &specBytes, &bufferBytes));
  const Prepared<QvpiFilterBilateralBorderSpec> prepared{Pixels<Qvp8u>(specBytes), Pixels<Qvp8u>(bufferBytes)};
  Require(qvpiFilterBilateralBorderInit(radius, qvpNormL1, range, space, kType<T>, channels, prepared.get()));
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(
             call(a.data(), a.step, b.data(), b.step, size, kBorder, nullptr, prepared.get(), prepared.buffer.get()));
       },
       {{"OpenCV bilateralFilter",
         [=] { cv::bilateralFilter(a.mat, b.mat, 2 * radius + 1, range, space, kPeerBorder); }, atLeast}}});
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  const auto grey = qvpiFilterBilateralBorder_8u_C1R;
  AddBilateral<uint8_t>("bilateral 2 8u C1", kHd, 1, 2, grey, 1.2);
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    AddBilateral<uint8_t>("bilateral 5 8u C1", size, 1, 5, grey, size.width == kHd.width ? 1.3 : 1);
  }
  AddBilateral<uint8_t>("bilateral 5 8u C3", kHd, 3, 5, qvpiFilterBilateralBorder_8u_C3R, 1.8);
  AddBilateral<float>("bilateral 5 32f C1", kHd, 1, 5, qvpiFilterBilateralBorder_32f_C1R, 2);
  AddBilateral<float>("bilateral 5 32f C3", kHd, 3, 5, qvpiFilterBilateralBorder_32f_C3R, 2.5);
  AddBilateral<uint8_t>("bilateral 15 8u C1", kVga, 1, 15, grey, 1);
  return true;
}();

}  // namespace
