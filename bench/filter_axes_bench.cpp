// The separable filter and that of Gauss.
#include "bench/filters.h"

namespace {
using namespace bench;

template <class T, class Spec, class Call, class PeerCall>
void AddRow(const std::string& name, QvpiSize size, int channels, const Prepared<Spec>& prepared, Call call,
            const std::string& peer, const PeerCall& peerCall, double atLeast) {
  const Image<T> a = Scene<T>(size, channels), b(size, channels);
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(
             call(a.data(), a.step, b.data(), b.step, size, kBorder, nullptr, prepared.get(), prepared.buffer.get()));
       },
       {{"OpenCV " + peer, [=] { peerCall(a.mat, b.mat); }, atLeast}}});
}

// Without symmetry, of either sign; divided by 2^bits.
template <class T, class Call>
void AddSeparable(const std::string& name, QvpiSize size, int side, bool isInteger, Call call, double atLeast) {
  int spec, buffer;
  Require(qvpiFilterSeparableBorderGetSize({side, side}, size, kType<T>, kType<T>, isInteger ? qvp16s : qvp32f, 1,
                                           &spec, &buffer));
  const Prepared<QvpiFilterSeparableBorderSpec> prepared{Pixels<Qvp8u>(spec), Pixels<Qvp8u>(buffer)};
  cv::Mat row(1, side, CV_32F), column(side, 1, CV_32F);
  std::vector<Qvp16s> whole(side);
  std::vector<Qvp32f> real(side);
  for (int i = 0; i < side; ++i) {
    whole[i] = static_cast<Qvp16s>((i * 5 + 3) % 17 - 6);
    real[i] = static_cast<float>(whole[i]) / 16;
    row.at<float>(side - 1 - i) = column.at<float>(side - 1 - i) = real[i];
  }
  if (isInteger) {
    Require(qvpiFilterSeparableBorderInit_16s(whole.data(), whole.data(), {side, side}, 256, kType<T>, kType<T>, 1,
                                              qvpRoundNear, prepared.get()));
  } else {
    Require(qvpiFilterSeparableBorderInit_32f(real.data(), real.data(), {side, side}, kType<T>, kType<T>, 1,
                                              qvpRoundNear, prepared.get()));
  }
  AddRow<T>(
      name, size, 1, prepared, call, "sepFilter2D",
      [=](const cv::Mat& a, cv::Mat b) {
        cv::sepFilter2D(a, b, -1, row, column, {-1, -1}, 0, kPeerBorder);
      },
      atLeast);
}

template <class T, class Call>
void AddGauss(const std::string& name, QvpiSize size, int channels, int side, Call call, double atLeast) {
  const float sigma = static_cast<float>(side) / 6;
  int spec, buffer;
  Require(qvpiFilterGaussBorderGetSize({side, side}, size, kType<T>, channels, &spec, &buffer));
  const Prepared<QvpiFilterGaussBorderSpec> prepared{Pixels<Qvp8u>(spec), Pixels<Qvp8u>(buffer)};
  Require(qvpiFilterGaussBorderInit({side, side}, sigma, sigma, kType<T>, channels, prepared.get()));
  AddRow<T>(
      name, size, channels, prepared, call, "GaussianBlur",
      [=](const cv::Mat& a, cv::Mat b) {
        cv::GaussianBlur(a, b, {side, side}, sigma, sigma, kPeerBorder);
      },
      atLeast);
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  const auto separable8u = qvpiFilterSeparableBorder_8u_C1R;
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    AddSeparable<uint8_t>("separable 5x5 8u C1, integers", size, 5, true, separable8u, size.width == kHd.width ? 4 : 1);
  }
  AddSeparable<uint8_t>("separable 15x15 8u C1, integers", kHd, 15, true, separable8u, 5);
  AddSeparable<int16_t>("separable 15x15 16s C1, integers", kHd, 15, true, qvpiFilterSeparableBorder_16s_C1R, 3.5);
  AddSeparable<uint8_t>("separable 15x15 8u C1, floats", kHd, 15, false, separable8u, 2.5);
  AddSeparable<float>("separable 5x5 32f C1", kHd, 5, false, qvpiFilterSeparableBorder_32f_C1R, 2.2);
  AddSeparable<float>("separable 15x15 32f C1", kHd, 15, false, qvpiFilterSeparableBorder_32f_C1R, 2.2);
  const auto gauss8u = qvpiFilterGaussBorder_8u_C1R;
  for (const QvpiSize size : {kTile, kVga, kHd}) AddGauss<uint8_t>("Gauss 3x3 8u C1", size, 1, 3, gauss8u, 1.6);
  for (const QvpiSize size : kSmallest) AddGauss<uint8_t>("Gauss 3x3 8u C1", size, 1, 3, gauss8u, 0);
  AddGauss<uint8_t>("Gauss 3x3 8u C1", kLarge, 1, 3, gauss8u, 1);
  AddGauss<uint8_t>("Gauss 5x5 8u C1", kHd, 1, 5, gauss8u, 2);
  AddGauss<uint8_t>("Gauss 15x15 8u C1", kHd, 1, 15, gauss8u, 3.5);
  AddGauss<uint8_t>("Gauss 31x31 8u C1", kHd, 1, 31, gauss8u, 4.2);
  AddGauss<uint8_t>("Gauss 15x15 8u C3", kHd, 3, 15, qvpiFilterGaussBorder_8u_C3R, 3.2);
  AddGauss<uint16_t>("Gauss 5x5 16u C1", kHd, 1, 5, qvpiFilterGaussBorder_16u_C1R, 10);
  AddGauss<uint16_t>("Gauss 15x15 16u C1", kHd, 1, 15, qvpiFilterGaussBorder_16u_C1R, 3.2);
  for (const auto& [side, atLeast] : {std::pair{5, 1.3}, {15, 2.0}, {31, 1.6}}) {
    AddGauss<float>("Gauss " + Square(side) + " 32f C1", kHd, 1, side, qvpiFilterGaussBorder_32f_C1R, atLeast);
  }
  return true;
}();

}  // namespace
