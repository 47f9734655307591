// Norms, sums, extrema, dot products, histograms and moments.
#include <algorithm>
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

// Where the result of a peer goes, so that it has to be computed.
volatile double sink;

// Numbers that can be added up, in no order.
void MakeNumbers(const Image<float>& image) {
  for (size_t i = 0; i < image.bytes() / sizeof(float); ++i) {
    uint32_t bits;
    std::memcpy(&bits, image.data() + i, sizeof(bits));
    image.data()[i] = static_cast<float>(bits >> 8) / 65536;
  }
}
// Bytes without 0 and 255, at which a search for extremes could stop.
Image<uint8_t> WithoutEnds(QvpiSize size, int channels) {
  const Image<uint8_t> image(size, channels);
  for (size_t i = 0; i < image.bytes(); ++i) image.data()[i] = std::clamp<uint8_t>(image.data()[i], 1, 254);
  return image;
}

template <class T>
Image<T> Numbers(QvpiSize size, int channels) {
  Image<T> image(size, channels);
  if constexpr (std::is_floating_point_v<T>) MakeNumbers(image);
  return image;
}

template <class T, class Call, class... Hint>
void Norm(const char* name, QvpiSize size, int channels, int kind, double atLeast, Call call, Hint... hint) {
  const Image<T> a = Numbers<T>(size, channels);
  const auto ours = [=] {
    double values[4];
    Require(call(a.data(), a.step, size, values, hint...));
    sink = values[0];
  };
  Add({Name(name, size), {a.bytes(), 0}, ours, {{"OpenCV norm", [=] { sink = cv::norm(a.mat, kind); }, atLeast}}});
}

template <class T, class Call>
void NormOfTwo(const char* name, QvpiSize size, int kind, double atLeast, Call call) {
  const Image<T> a = Numbers<T>(size, 1), b = Numbers<T>(size, 1);
  const auto ours = [=] {
    double value;
    Require(call(a.data(), a.step, b.data(), b.step, size, &value));
    sink = value;
  };
  Add({Name(name, size),
       {a.bytes() + b.bytes(), 0},
       ours,
       {{"OpenCV norm", [=] { sink = cv::norm(a.mat, b.mat, kind); }, atLeast}}});
}

void Norms(QvpiSize size, bool isAsked) {
  const auto asked = [=](double ratio) { return isAsked ? ratio : 0; };
  Norm<uint8_t>("norm Inf 8u C1", size, 1, cv::NORM_INF, asked(50), qvpiNorm_Inf_8u_C1R);
  Norm<uint8_t>("norm L1 8u C1", size, 1, cv::NORM_L1, asked(3), qvpiNorm_L1_8u_C1R);
  Norm<uint8_t>("norm L2 8u C1", size, 1, cv::NORM_L2, asked(3), qvpiNorm_L2_8u_C1R);
  Norm<uint8_t>("norm L2 8u C3", size, 3, cv::NORM_L2, asked(15), qvpiNorm_L2_8u_C3R);
  Norm<int16_t>("norm L2 16s C1", size, 1, cv::NORM_L2, asked(10), qvpiNorm_L2_16s_C1R);
  Norm<float>("norm L2 32f C1 fast", size, 1, cv::NORM_L2, asked(6), qvpiNorm_L2_32f_C1R, qvpAlgHintFast);
  NormOfTwo<uint8_t>("norm of difference L1 8u C1", size, cv::NORM_L1, asked(1.5), qvpiNormDiff_L1_8u_C1R);
  NormOfTwo<int16_t>("norm of difference L1 16s C1", size, cv::NORM_L1, asked(11), qvpiNormDiff_L1_16s_C1R);
  NormOfTwo<uint8_t>("relative norm L2 8u C1", size, cv::NORM_L2 | cv::NORM_RELATIVE, asked(3), qvpiNormRel_L2_8u_C1R);
}

template <class T, class Call, class... Hint>
void Sum(const char* name, QvpiSize size, int channels, double atLeast, Call call, Hint... hint) {
  const Image<T> a = Numbers<T>(size, channels);
  const auto ours = [=] {
    double values[4];
    Require(call(a.data(), a.step, size, values, hint...));
    sink = values[0];
  };
  Add({Name(name, size), {a.bytes(), 0}, ours, {{"OpenCV sum", [=] { sink = cv::sum(a.mat)[0]; }, atLeast}}});
}

template <class T, class Call>
void Position(const char* name, const Image<T>& a, double atLeast, Call call) {
  const QvpiSize size = a.size;
  const auto ours = [=] {
    T value;
    int x, y;
    Require(call(a.data(), a.step, size, &value, &x, &y));
    sink = x + y;
  };
  const auto theirs = [=] {
    double least;
    cv::Point where;
    cv::minMaxLoc(a.mat, &least, nullptr, &where, nullptr);
    sink = where.x + where.y;
  };
  Add({Name(name, size), {a.bytes(), 0}, ours, {{"OpenCV minMaxLoc", theirs, atLeast}}});
}

void SumsAndExtrema(QvpiSize size, bool isAsked) {
  const auto asked = [=](double ratio) { return isAsked ? ratio : 0; };
  Sum<uint8_t>("sum 8u C1", size, 1, asked(1.2), qvpiSum_8u_C1R);
  Sum<uint8_t>("sum 8u C3", size, 3, asked(13), qvpiSum_8u_C3R);
  Sum<float>("sum 32f C1", size, 1, asked(1.8), qvpiSum_32f_C1R, qvpAlgHintFast);
  Position("minimum with position 8u C1", WithoutEnds(size, 1), asked(6.5), qvpiMinIndx_8u_C1R);
  Position("minimum with position 32f C1", Numbers<float>(size, 1), asked(6), qvpiMinIndx_32f_C1R);
  const Image<uint8_t> a = WithoutEnds(size, 3);
  const auto ours = [=] {
    Qvp8u least[3], greatest[3];
    Require(qvpiMinMax_8u_C3R(a.data(), a.step, size, least, greatest));
    sink = least[0] + greatest[0];
  };
  const auto theirs = [=] {  // of all channels together
    double least, greatest;
    cv::minMaxLoc(a.mat.reshape(1), &least, &greatest);
    sink = least + greatest;
  };
  Add({Name("minimum and maximum 8u C3", size), {a.bytes(), 0}, ours, {{"OpenCV minMaxLoc", theirs, asked(6)}}});
}

template <class T, class Call, class... Hint>
void Dot(const char* name, QvpiSize size, double atLeast, Call call, Hint... hint) {
  const Image<T> a = Numbers<T>(size, 1), b = Numbers<T>(size, 1);
  const auto ours = [=] {
    double value;
    Require(call(a.data(), a.step, b.data(), b.step, size, &value, hint...));
    sink = value;
  };
  Add({Name(name, size),
       {a.bytes() + b.bytes(), 0},
       ours,
       {{"OpenCV Mat::dot", [=] { sink = a.mat.dot(b.mat); }, atLeast}}});
}

// 256 bins of equal width from 0 to 256.
struct Bins {
  std::vector<uint8_t> record, buffer;
  std::vector<Qvp32u> counts = std::vector<Qvp32u>(3 * 256);

  Bins(QvpDataType type, QvpiSize size) {
    const int levels[3] = {257, 257, 257};
    const float lower[3] = {0, 0, 0}, upper[3] = {256, 256, 256};
    int recordBytes, bufferBytes;
    Require(qvpiHistogramGetBufferSize(type, size, levels, 3, 1, &recordBytes, &bufferBytes));
    record.resize(recordBytes);
    buffer.resize(bufferBytes + 1);
    Require(qvpiHistogramUniformInit(type, lower, upper, levels, 3, Spec()));
  }
  QvpiHistogramSpec* Spec() { return reinterpret_cast<QvpiHistogramSpec*>(record.data()); }
};

template <class T, class Call>
void Histogram(const char* name, QvpiSize size, int channels, double atLeast, Call call) {
  const Image<T> a = Numbers<T>(size, channels);
  const auto bins = std::make_shared<Bins>(sizeof(T) == 1 ? qvp8u : qvp32f, size);
  const auto ours = [=] {
    Qvp32u* const counts[3] = {bins->counts.data(), bins->counts.data() + 256, bins->counts.data() + 512};
    Require(call(a.data(), a.step, size, counts, bins->Spec(), bins->buffer.data()));
  };
  const auto theirs = [=] {
    const float range[] = {0, 256};
    const float* ranges[] = {range};
    const int count[] = {256};
    for (int c = 0; c < channels; ++c) {
      cv::Mat histogram;
      cv::calcHist(&a.mat, 1, &c, cv::Mat(), histogram, 1, count, ranges);
    }
  };
  Add({Name(name, size), {a.bytes(), 0}, ours, {{"OpenCV calcHist", theirs, atLeast}}});
}

template <class T, class Call>
void Moments(const char* name, QvpiSize size, double atLeast, Call call) {
  const Image<T> a = Numbers<T>(size, 1);
  const auto ours = [=] {
    uint8_t state[400];
    auto* const record = reinterpret_cast<QvpiMomentState_64f*>(state);
    Require(qvpiMomentInit_64f(record, qvpAlgHintFast));
    Require(call(a.data(), a.step, size, record));
  };
  Add({Name(name, size), {a.bytes(), 0}, ours, {{"OpenCV moments", [=] { sink = cv::moments(a.mat).m30; }, atLeast}}});
}

void Others(QvpiSize size, bool isAsked) {
  const auto asked = [=](double ratio) { return isAsked ? ratio : 0; };
  Dot<uint8_t>("dot product 8u C1", size, asked(1.2), qvpiDotProd_8u64f_C1R);
  Dot<int16_t>("dot product 16s C1", size, asked(2), qvpiDotProd_16s64f_C1R);
  Dot<float>("dot product 32f C1", size, asked(1.5), qvpiDotProd_32f64f_C1R, qvpAlgHintFast);
  Histogram<uint8_t>("histogram 8u C1", size, 1, asked(1.2), qvpiHistogram_8u_C1R);
  Histogram<uint8_t>("histogram 8u C3", size, 3, asked(1.2), qvpiHistogram_8u_C3R);
  Histogram<float>("histogram 32f C1", size, 1, asked(3.5),
                   [](auto src, int step, QvpiSize roi, auto counts, auto spec, auto) {
                     return qvpiHistogram_32f_C1R(src, step, roi, counts, spec);
                   });
  Moments<uint8_t>("moments 8u C1", size, asked(1.8), qvpiMoments64f_8u_C1R);
  Moments<uint16_t>("moments 16u C1", size, asked(4), qvpiMoments64f_16u_C1R);
  Moments<float>("moments 32f C1", size, asked(3), qvpiMoments64f_32f_C1R);
}

const bool added = [] {
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    const bool isAsked = size.width == kHd.width;
    Norms(size, isAsked);
    SumsAndExtrema(size, isAsked);
    Others(size, isAsked);
  }
  return true;
}();

}  // namespace
