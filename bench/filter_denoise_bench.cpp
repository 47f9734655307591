// Filters that remove noise and keep edges.
#include <fftw3.h>

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

// The peer's means and means of squares are those of floats.
template <class T, class Call>
void AddWiener(const std::string& name, QvpiSize size, int side, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, 1), b(size, 1);
  constexpr float kNoise = 0.001f, kVariance = kNoise * (std::is_same_v<T, float> ? 1 : 255 * 255);
  int bytes;
  Require(qvpiFilterWienerBorderGetBufferSize({side, side}, size, kType<T>, 1, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, size, {side, side}, kNoise, kBorder, nullptr, buffer.get()));
       },
       {{"OpenCV boxFilter, sqrBoxFilter and arithmetic",
         [=] {
           cv::Mat p, mean, variance, gain;
           a.mat.convertTo(p, CV_32F);
           cv::boxFilter(a.mat, mean, CV_32F, {side, side}, {-1, -1}, true, kPeerBorder);
           cv::sqrBoxFilter(a.mat, variance, CV_32F, {side, side}, {-1, -1}, true, kPeerBorder);
           variance -= mean.mul(mean);
           cv::max(variance - kVariance, 0, gain);
           cv::divide(gain, variance, gain);
           cv::Mat(mean + (p - mean).mul(gain)).convertTo(b.mat, a.mat.type());
         },
         atLeast}}});
}

// The peer rounds means first. It takes one side for both axes, and for Gauss the sigma that it finds from the side.
template <class Call>
void AddLocalThreshold(const std::string& name, QvpiSize size, int side, bool isGauss, Call call, double atLeast) {
  const Image<uint8_t> a = Scene<uint8_t>(size, 1), b(size, 1);
  int bytes;
  Require((isGauss ? qvpiThresholdLocalGaussBorderGetBufferSize : qvpiThresholdLocalBoxBorderGetBufferSize)(
      {side, side}, size, qvp8u, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const int method = isGauss ? cv::ADAPTIVE_THRESH_GAUSSIAN_C : cv::ADAPTIVE_THRESH_MEAN_C;
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a, b, size, QvpiSize{side, side}, buffer.get()));
       },
       {{"OpenCV adaptiveThreshold",
         [=] { cv::adaptiveThreshold(a.mat, b.mat, 255, method, cv::THRESH_BINARY, side, 3); }, atLeast}}});
}

void AddLocalThresholds() {
  using Bytes = Image<uint8_t>;
  const auto box = [](const Bytes& a, const Bytes& b, QvpiSize size, QvpiSize mask, Qvp8u* buffer) {
    return qvpiThresholdLocalBoxBorder_8u_C1R(a.data(), a.step, b.data(), b.step, size, mask, 3, 255, 0, kBorder,
                                              nullptr, buffer);
  };
  const auto inPlace = [](const Bytes&, const Bytes& b, QvpiSize size, QvpiSize mask, Qvp8u* buffer) {
    return qvpiThresholdLocalBoxBorder_8u_C1IR(b.data(), b.step, size, mask, 3, 255, 0, kBorder, nullptr, buffer);
  };
  const auto gauss = [](const Bytes& a, const Bytes& b, QvpiSize size, QvpiSize mask, Qvp8u* buffer) {
    const float sigma = 0.3f * (static_cast<float>(mask.width - 1) * 0.5f - 1) + 0.8f;
    return qvpiThresholdLocalGaussBorder_8u_C1R(a.data(), a.step, b.data(), b.step, size, mask, sigma, 3, 255, 0,
                                                kBorder, nullptr, buffer);
  };
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    AddLocalThreshold("local threshold box 15 8u C1", size, 15, false, box, size.width == kHd.width ? 2.2 : 2);
    AddLocalThreshold("local threshold Gauss 11 8u C1", size, 11, true, gauss, size.width == kHd.width ? 2.2 : 1);
  }
  AddLocalThreshold("local threshold box 3 8u C1", kHd, 3, false, box, 2.5);
  AddLocalThreshold("local threshold box 51 8u C1", kHd, 51, false, box, 1.6);
  AddLocalThreshold("local threshold box 15 8u C1, in place", kHd, 15, false, inPlace, 1);
  AddLocalThreshold("local threshold Gauss 51 8u C1", kHd, 51, true, gauss, 3);
}

// The peer makes the cosine transforms of as many iterations alone.
void AddLeastSquares(QvpiSize size, double atLeast) {
  constexpr int kIterations = 4;
  const Image<float> a = Scene<float>(size, 1), b(size, 1);
  int specBytes, bufferBytes;
  Require(qvpiFilterLeastSquaresGetSize(size, qvp32f, 1, &specBytes, &bufferBytes));
  const Prepared<QvpiFilterLeastSquaresSpec> prepared{Pixels<Qvp8u>(specBytes), Pixels<Qvp8u>(bufferBytes)};
  Require(qvpiFilterLeastSquaresInit(size, 1, 0.8f, 1e-4f, kIterations, qvp32f, 1, prepared.get()));
  const auto plan = [&](fftwf_r2r_kind kind) {
    return fftwf_plan_r2r_2d(size.height, size.width, a.data(), b.data(), kind, kind, FFTW_MEASURE);
  };
  const fftwf_plan forward = plan(FFTW_REDFT10), inverse = plan(FFTW_REDFT01);
  Add({Name("least squares 32f C1, 4 iterations", size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(
             qvpiFilterLeastSquares_32f_C1R(a.data(), a.step, b.data(), b.step, prepared.get(), prepared.buffer.get()));
       },
       {{"FFTW 2D cosine transforms alone",
         [=] {
           for (int i = 0; i < kIterations; ++i) {
             fftwf_execute_r2r(forward, a.data(), b.data());
             fftwf_execute_r2r(inverse, b.data(), b.data());
           }
         },
         atLeast}}});
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  AddLocalThresholds();
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    AddLeastSquares(size, 0);
    AddWiener<uint8_t>("Wiener 5x5 8u C1", size, 5, qvpiFilterWienerBorder_8u_C1R, 3);
  }
  AddWiener<uint8_t>("Wiener 5x5 8u C1", kLarge, 5, qvpiFilterWienerBorder_8u_C1R, 1);
  AddWiener<uint8_t>("Wiener 31x31 8u C1", kHd, 31, qvpiFilterWienerBorder_8u_C1R, 1);
  AddWiener<uint16_t>("Wiener 5x5 16u C1", kHd, 5, qvpiFilterWienerBorder_16u_C1R, 1);
  AddWiener<float>("Wiener 5x5 32f C1", kHd, 5, qvpiFilterWienerBorder_32f_C1R, 1);
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
