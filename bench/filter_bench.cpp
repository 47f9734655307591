// Copies into a border, and the general filter.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

void ReplicatedBorder(QvpiSize size, double atLeast) {
  constexpr int kBorder = 4;
  const Image<uint8_t> a(size, 1), b({size.width + 2 * kBorder, size.height + 2 * kBorder}, 1);
  Add({Name("replicate border 4 8u C1", size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(qvpiCopyReplicateBorder_8u_C1R(a.data(), a.step, a.size, b.data(), b.step, b.size, kBorder, kBorder));
       },
       {{"OpenCV copyMakeBorder",
         [=] { cv::copyMakeBorder(a.mat, b.mat, kBorder, kBorder, kBorder, kBorder, cv::BORDER_REPLICATE); },
         atLeast}}});
}

struct Filter {
  std::shared_ptr<Qvp8u[]> spec, buffer;
  cv::Mat kernel;  // as the peer correlates it

  QvpiFilterBorderSpec* get() const { return reinterpret_cast<QvpiFilterBorderSpec*>(spec.get()); }
};

Filter Allocate(QvpDataType type, QvpDataType kernelType, int channels, int side) {
  int spec, buffer;
  Require(qvpiFilterBorderGetSize({side, side}, kHd, type, kernelType, channels, &spec, &buffer));
  return {Pixels<Qvp8u>(spec), Pixels<Qvp8u>(buffer), cv::Mat(side, side, CV_32F)};
}

// Coefficients of either sign. `limit` bounds their magnitude.
Filter IntegerFilter(QvpDataType type, int channels, int side, int limit, int divisor) {
  Filter filter = Allocate(type, qvp16s, channels, side);
  std::vector<Qvp16s> kernel(side * side);
  for (size_t i = 0; i < kernel.size(); ++i) {
    kernel[i] = static_cast<Qvp16s>((i * 7 + 3) % (2 * limit + 1)) - limit;
    filter.kernel.at<float>(static_cast<int>(kernel.size() - 1 - i)) = static_cast<float>(kernel[i]) / divisor;
  }
  Require(qvpiFilterBorderInit_16s(kernel.data(), {side, side}, divisor, type, channels, qvpRoundNear, filter.get()));
  return filter;
}

Filter FloatFilter(int side) {
  Filter filter = Allocate(qvp32f, qvp32f, 1, side);
  std::vector<Qvp32f> kernel(side * side);
  for (size_t i = 0; i < kernel.size(); ++i) {
    kernel[i] = static_cast<float>(i % 11) / 50 - 0.1f;
    filter.kernel.at<float>(static_cast<int>(kernel.size() - 1 - i)) = kernel[i];
  }
  Require(qvpiFilterBorderInit_32f(kernel.data(), {side, side}, qvp32f, 1, qvpRoundNear, filter.get()));
  return filter;
}

template <class T, class Call>
void AddFilter(const std::string& name, const Filter& filter, int channels, Call call, double atLeast) {
  const Image<T> a(kHd, channels), b(kHd, channels);
  if constexpr (std::is_same_v<T, float>) {
    for (size_t i = 0; i < a.bytes() / sizeof(T); ++i) a.data()[i] = static_cast<float>(i * 7919 % 1000) / 1000;
  }
  Add({Name(name, kHd),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, kHd, qvpBorderReplicate, nullptr, filter.get(),
                      filter.buffer.get()));
       },
       {{"OpenCV filter2D",
         [=] {
           cv::filter2D(a.mat, b.mat, -1, filter.kernel, {-1, -1}, 0, cv::BORDER_REPLICATE);
         },
         atLeast}}});
}

void Bytes() {
  const auto c1 = qvpiFilterBorder_8u_C1R, c3 = qvpiFilterBorder_8u_C3R;
  AddFilter<uint8_t>("filter 3x3 8u C1, small coefficients", IntegerFilter(qvp8u, 1, 3, 8, 16), 1, c1, 4.5);
  AddFilter<uint8_t>("filter 3x3 8u C1, any coefficients", IntegerFilter(qvp8u, 1, 3, 900, 1024), 1, c1, 2.8);
  AddFilter<uint8_t>("filter 3x3 8u C1, divisor 9", IntegerFilter(qvp8u, 1, 3, 8, 9), 1, c1, 0);
  AddFilter<uint8_t>("filter 5x5 8u C1, small coefficients", IntegerFilter(qvp8u, 1, 5, 4, 16), 1, c1, 5.5);
  AddFilter<uint8_t>("filter 5x5 8u C1, any coefficients", IntegerFilter(qvp8u, 1, 5, 900, 1024), 1, c1, 2.7);
  AddFilter<uint8_t>("filter 5x5 8u C1, any divisor", IntegerFilter(qvp8u, 1, 5, 900, 1000), 1, c1, 0);
  AddFilter<uint8_t>("filter 5x5 8u C3", IntegerFilter(qvp8u, 3, 5, 900, 1024), 3, c3, 2.7);
  AddFilter<uint8_t>("filter 7x7 8u C1", IntegerFilter(qvp8u, 1, 7, 900, 1024), 1, c1, 3);
}

void Words() {
  AddFilter<int16_t>("filter 5x5 16s C1", IntegerFilter(qvp16s, 1, 5, 900, 1024), 1, qvpiFilterBorder_16s_C1R, 15);
  AddFilter<uint16_t>("filter 5x5 16u C1", IntegerFilter(qvp16u, 1, 5, 900, 1024), 1, qvpiFilterBorder_16u_C1R, 3);
}

void Floats() {
  AddFilter<float>("filter 3x3 32f C1", FloatFilter(3), 1, qvpiFilterBorder_32f_C1R, 1.5);
  AddFilter<float>("filter 5x5 32f C1", FloatFilter(5), 1, qvpiFilterBorder_32f_C1R, 1.6);
  AddFilter<float>("filter 15x15 32f C1", FloatFilter(15), 1, qvpiFilterBorder_32f_C1R, 3.5);
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  ReplicatedBorder(kTile, 5);
  ReplicatedBorder(kVga, 1.4);
  ReplicatedBorder(kHd, 0);
  Bytes();
  Words();
  Floats();
  return true;
}();

}  // namespace
