// Quality of pictures: the quality index, structural similarity.
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

// In single precision, with windows around every pixel.
struct SimilarityPeer {
  mutable cv::Mat a, b, aa, bb, ab, ma, mb, mab, upper, lower;

  static void Blur(const cv::Mat& from, cv::Mat& to) { cv::GaussianBlur(from, to, {11, 11}, 1.5, 1.5, kPeerBorder); }
  double operator()(const cv::Mat& x, const cv::Mat& y) const {
    x.convertTo(a, CV_32F);
    y.convertTo(b, CV_32F);
    Blur(a.mul(a), aa);
    Blur(b.mul(b), bb);
    Blur(a.mul(b), ab);
    Blur(a, ma);
    Blur(b, mb);
    mab = ma.mul(mb);
    cv::multiply(ma, ma, ma);
    cv::multiply(mb, mb, mb);
    cv::add(ma, mb, ma);
    cv::add(aa, bb, aa);
    cv::subtract(aa, ma, aa);
    cv::subtract(ab, mab, ab);
    upper = (2 * mab + 6.5025).mul(2 * ab + 58.5225);
    lower = (ma + 6.5025).mul(aa + 58.5225);
    cv::divide(upper, lower, upper);
    return cv::mean(upper)[0];
  }
};

template <class T, class Call>
void AddSimilarity(const std::string& name, QvpiSize size, int channels, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, channels), b = Scene<T>(size, channels);
  int bytes = 0;
  Require(qvpiSSIMGetBufferSize(size, 11, channels, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  Add({Name(name, size),
       {a.bytes() + b.bytes(), 0},
       [=] {
         double values[4];
         Require(call(a.data(), a.step, b.data(), b.step, size, values, 11, 1.5, 6.5025, 58.5225, buffer.get()));
         sink = values[0];
       },
       {{"OpenCV GaussianBlur and formula in 32f", [=, peer = SimilarityPeer()] { sink = peer(a.mat, b.mat); },
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
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const double atLeast = size.width == kHd.width ? 4 : 1;
    AddSimilarity<uint8_t>("SSIM 11, 1.5, 8u C1", size, 1, qvpiSSIM_8u_C1R, atLeast);
  }
  AddSimilarity<uint8_t>("SSIM 11, 1.5, 8u C1", {16, 16}, 1, qvpiSSIM_8u_C1R, 1);
  AddSimilarity<uint8_t>("SSIM 11, 1.5, 8u C3", kHd, 3, qvpiSSIM_8u_C3R, 1);
  AddSimilarity<float>("SSIM 11, 1.5, 32f C1", kHd, 1, qvpiSSIM_32f_C1R, 4);
  return true;
}();

}  // namespace
