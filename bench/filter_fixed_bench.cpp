// Filters with fixed kernels, and gradients.
#include "bench/filters.h"

namespace {
using namespace bench;

std::shared_ptr<Qvp8u[]> BufferFor(int side, QvpiSize size, QvpDataType type, int channels) {
  int bytes = 0;
  Require(qvpiFilterFixedBorderGetBufferSize({side, side}, size, type, channels, &bytes));
  return Pixels<Qvp8u>(bytes);
}

template <class T, class R, class Call, class Peer>
void AddFixed(const std::string& name, QvpiSize size, int channels, int side, Call call, const std::string& peerName,
              const Peer& peer, double atLeast) {
  const Image<T> a = Scene<T>(size, channels);
  const Image<R> b(size, channels);
  const auto buffer = BufferFor(side, size, kType<T>, channels);
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, size, {side, side}, kBorder, nullptr, buffer.get()));
       },
       {{"OpenCV " + peerName, [=] { peer(a.mat, b.mat); }, atLeast}}});
}

auto Gaussian(int side, double sigma) {
  return [=](const cv::Mat& a, cv::Mat b) { cv::GaussianBlur(a, b, {side, side}, sigma, sigma, kPeerBorder); };
}
auto Sobel(int depth, int dx, int dy, int side) {
  return [=](const cv::Mat& a, cv::Mat b) { cv::Sobel(a, b, depth, dx, dy, side, 1, 0, kPeerBorder); };
}
auto Filter2D(int depth, const cv::Mat& kernel) {
  return [=](const cv::Mat& a, cv::Mat b) { cv::filter2D(a, b, depth, kernel, {-1, -1}, 0, kPeerBorder); };
}

cv::Mat SharpenKernel() { return (cv::Mat_<float>(3, 3) << -1, -2, -1, -2, 28, -2, -1, -2, -1) / 16; }

void Smoothing() {
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    AddFixed<uint8_t, uint8_t>("binomial 3x3 8u C1", size, 1, 3, qvpiFilterBinomialBorder_8u_C1R, "GaussianBlur",
                               Gaussian(3, 0), 3);
  }
  AddFixed<uint8_t, uint8_t>("binomial 5x5 8u C1", kHd, 1, 5, qvpiFilterBinomialBorder_8u_C1R, "GaussianBlur",
                             Gaussian(5, 0), 3.5);
  AddFixed<uint8_t, uint8_t>("sharpen 3x3 8u C1", kHd, 1, 3, qvpiFilterSharpenBorder_8u_C1R, "filter2D",
                             Filter2D(-1, SharpenKernel()), 4);
  AddFixed<uint8_t, uint8_t>("sharpen 3x3 8u C3", kHd, 3, 3, qvpiFilterSharpenBorder_8u_C3R, "filter2D",
                             Filter2D(-1, SharpenKernel()), 4.5);
  AddFixed<uint8_t, uint8_t>(
      "sharpen 5x5 8u C1", kHd, 1, 5, qvpiFilterSharpenBorder_8u_C1R, "GaussianBlur, addWeighted",
      [](const cv::Mat& a, cv::Mat b) {
        cv::GaussianBlur(a, b, {5, 5}, 0, 0, kPeerBorder);
        cv::addWeighted(a, 2, b, -1, 0, b);
      },
      4);
}

void Derivatives() {
  const auto sobel = [](QvpiSize size, double atLeast) {
    AddFixed<uint8_t, int16_t>("SobelX 3x3 8u16s C1", size, 1, 3, qvpiFilterSobelXBorder_8u16s_C1R, "Sobel",
                               Sobel(CV_16S, 1, 0, 3), atLeast);
  };
  for (const QvpiSize size : {kTile, kVga, kHd}) sobel(size, 2);
  for (const QvpiSize size : kSmallest) sobel(size, 0);
  sobel(kLarge, 1);
  AddFixed<uint8_t, int16_t>("SobelX 5x5 8u16s C1", kHd, 1, 5, qvpiFilterSobelXBorder_8u16s_C1R, "Sobel",
                             Sobel(CV_16S, 1, 0, 5), 8);
  AddFixed<uint8_t, int16_t>("SobelX 5x5 8u16s C3", kHd, 3, 5, qvpiFilterSobelXBorder_8u16s_C3R, "Sobel",
                             Sobel(CV_16S, 1, 0, 5), 8);
  AddFixed<float, float>("SobelX 3x3 32f C1", kHd, 1, 3, qvpiFilterSobelXBorder_32f_C1R, "Sobel",
                         Sobel(CV_32F, 1, 0, 3), 1.2);
  AddFixed<uint16_t, float>("SobelX 5x5 16u32f C1", kHd, 1, 5, qvpiFilterSobelXBorder_16u32f_C1R, "Sobel",
                            Sobel(CV_32F, 1, 0, 5), 2);
  AddFixed<uint8_t, int16_t>(
      "ScharrX 8u16s C1", kHd, 1, 3, qvpiFilterScharrXBorder_8u16s_C1R, "Scharr",
      [](const cv::Mat& a, cv::Mat b) { cv::Scharr(a, b, CV_16S, 1, 0, 1, 0, kPeerBorder); }, 2);
  for (const int side : {3, 5}) {
    AddFixed<uint8_t, int16_t>(
        "Laplace " + std::to_string(side) + " 8u16s C1", kHd, 1, side, qvpiFilterLaplaceBorder_8u16s_C1R, "Laplacian",
        [=](const cv::Mat& a, cv::Mat b) { cv::Laplacian(a, b, CV_16S, side == 3 ? 1 : 5, 1, 0, kPeerBorder); },
        side == 3 ? 3.5 : 14);
  }
  cv::Mat highPass(5, 5, CV_32F, cv::Scalar(-1));
  highPass.at<float>(2, 2) = 24;
  AddFixed<uint8_t, int16_t>("high-pass 5x5 8u16s C1", kHd, 1, 5, qvpiFilterHighPassBorder_8u16s_C1R, "filter2D",
                             Filter2D(CV_16S, highPass), 12);
}

// Those outputs that are wanted, as bits: gx, gy, magnitude, angle.
template <class T, class R, class Call, class Peer>
void AddGradient(const std::string& name, int wanted, Call call, const std::string& peerName, const Peer& peer,
                 double atLeast) {
  const Image<T> a = Scene<T>(kHd, 1);
  const Image<R> gx(kHd, 1), gy(kHd, 1);
  const Image<float> magnitude(kHd, 1), angle(kHd, 1);
  const auto buffer = BufferFor(3, kHd, kType<T>, 1);
  const auto out = [=](int bit, const auto& image) { return wanted & bit ? image.data() : nullptr; };
  const size_t written = (wanted & 1 ? gx.bytes() : 0) + (wanted & 2 ? gy.bytes() : 0) +
                         (wanted & 4 ? magnitude.bytes() : 0) + (wanted & 8 ? angle.bytes() : 0);
  Add({Name(name, kHd),
       {a.bytes(), written},
       [=] {
         Require(call(a.data(), a.step, out(1, gx), gx.step, out(2, gy), gy.step, out(4, magnitude), magnitude.step,
                      out(8, angle), angle.step, kHd, {3, 3}, qvpNormL2, kBorder, nullptr, buffer.get()));
       },
       {{"OpenCV " + peerName, [=] { peer(a.mat); }, atLeast}}});
}

// What the peer writes; it makes the memory at its first call.
struct Results {
  mutable cv::Mat x, y, magnitude, angle;

  void Differentiate(const cv::Mat& a, int depth) const {
    cv::Sobel(a, x, depth, 1, 0, 3, 1, 0, kPeerBorder);
    cv::Sobel(a, y, depth, 0, 1, 3, 1, 0, kPeerBorder);
  }
};

void Gradients() {
  const auto call = qvpiFilterGradientSobelBorder_8u16s_C1R;
  const Results r;
  const auto vectors = [=](const cv::Mat& a) { cv::spatialGradient(a, r.x, r.y, 3, kPeerBorder); };
  const auto magnitude = [=](const cv::Mat& a) {
    r.Differentiate(a, CV_32F);
    cv::magnitude(r.x, r.y, r.magnitude);
  };
  const auto all = [=](const cv::Mat& a) {
    r.Differentiate(a, CV_32F);
    cv::cartToPolar(r.x, r.y, r.magnitude, r.angle);
  };
  AddGradient<uint8_t, int16_t>("gradient 8u gx, gy", 3, call, "spatialGradient", vectors, 1.4);
  AddGradient<uint8_t, int16_t>("gradient 8u magnitude", 4, call, "Sobel, magnitude", magnitude, 5);
  AddGradient<uint8_t, int16_t>("gradient 8u all", 15, call, "Sobel, cartToPolar", all, 3.5);
  AddGradient<float, float>("gradient 32f all", 15, qvpiFilterGradientSobelBorder_32f_C1R, "Sobel, cartToPolar", all,
                            3.5);
  const Image<uint8_t> a(kHd, 1), b(kHd, 1);
  const auto buffer = BufferFor(3, kHd, qvp8u, 1);
  Add({Name("Sobel magnitude L1 8u", kHd),
       {a.bytes(), b.bytes()},
       [=] {
         Require(qvpiFilterSobel_8u_C1R(a.data(), a.step, b.data(), b.step, kHd, {3, 3}, qvpNormL1, kBorder, nullptr,
                                        buffer.get()));
       },
       {{"OpenCV Sobel, convertScaleAbs, add",
         [=] {
           r.Differentiate(a.mat, CV_16S);
           cv::convertScaleAbs(r.x, r.x);
           cv::convertScaleAbs(r.y, r.y);
           cv::add(r.x, r.y, b.mat);
         },
         6}}});
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  Smoothing();
  Derivatives();
  Gradients();
  return true;
}();

}  // namespace
