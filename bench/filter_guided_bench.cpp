// Guided filters.
#include <opencv2/ximgproc/edge_filter.hpp>

#include "bench/filters.h"

namespace {
using namespace bench;

constexpr float kEps = 0.001f;

// The peer's eps is the variance itself. It knows bytes and floats.
template <class T>
std::vector<Peer> PeersOf(const cv::Mat& source, const cv::Mat& guide, const cv::Mat& to, int side, double atLeast) {
  if (sizeof(T) == 2) return {};
  const double variance = kEps * (std::is_same_v<T, float> ? 1 : 255 * 255);
  return {{"OpenCV guidedFilter", [=] { cv::ximgproc::guidedFilter(guide, source, to, side / 2, variance); }, atLeast}};
}

template <class T, class Call>
void AddGuided(const std::string& name, QvpiSize size, int channels, int side, bool isItself, Call call,
               double atLeast) {
  const Image<T> a = Scene<T>(size, channels), guide = isItself ? a : Scene<T>(size, channels), b(size, channels);
  int bytes;
  Require(qvpiFilterGuidedBorderGetBufferSize({side, side}, size, kType<T>, channels, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  Add({Name("guided " + name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, guide.data(), guide.step, b.data(), b.step, size, {side, side}, kEps, kBorder,
                      buffer.get()));
       },
       PeersOf<T>(a.mat, guide.mat, b.mat, side, atLeast)});
}

template <class T, class Call>
void AddByColours(const std::string& name, QvpiSize size, int side, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, 1), guide = Scene<T>(size, 3), b(size, 1);
  int bytes;
  Require(qvpiFilterGuidedColorBorderGetBufferSize({side, side}, size, kType<T>, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  Add({Name("guided by colours " + name, size),
       {a.bytes() + guide.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, guide.data(), guide.step, b.data(), b.step, size, {side, side}, kEps, kBorder,
                      buffer.get()));
       },
       PeersOf<T>(a.mat, guide.mat, b.mat, side, atLeast)});
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  const auto grey = qvpiFilterGuidedBorder_8u_C1R;
  const auto byColours = qvpiFilterGuidedColorBorder_8u_C1R;
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const bool isHd = size.width == kHd.width;
    AddGuided<uint8_t>("17x17 8u C1 itself", size, 1, 17, true, grey, isHd ? 3 : 1);
    AddGuided<float>("17x17 32f C1 itself", size, 1, 17, true, qvpiFilterGuidedBorder_32f_C1R, isHd ? 2 : 1);
    AddByColours<uint8_t>("17x17 8u", size, 17, byColours, isHd ? 3 : 1);
  }
  AddGuided<uint8_t>("5x5 8u C1 itself", kHd, 1, 5, true, grey, 1);
  AddGuided<uint8_t>("101x101 8u C1 itself", kHd, 1, 101, true, grey, 1);
  AddGuided<uint8_t>("17x17 8u C1", kHd, 1, 17, false, grey, 1);
  AddGuided<uint8_t>("17x17 8u C3 itself", kHd, 3, 17, true, qvpiFilterGuidedBorder_8u_C3R, 0);
  AddGuided<uint16_t>("17x17 16u C1", kHd, 1, 17, false, qvpiFilterGuidedBorder_16u_C1R, 0);
  AddGuided<float>("17x17 32f C1", kHd, 1, 17, false, qvpiFilterGuidedBorder_32f_C1R, 1);
  AddByColours<float>("17x17 32f", kHd, 17, qvpiFilterGuidedColorBorder_32f_C1R, 1);
  AddByColours<uint16_t>("17x17 16u", kHd, 17, qvpiFilterGuidedColorBorder_16u_C1R, 0);
  return true;
}();

}  // namespace
