// Threshold, comparison and counting.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

void Thresholds(QvpiSize size, bool isAsked) {
  const Image<uint8_t> a(size, 1), b(size, 1), c(size, 3), d(size, 3);
  Add({Name("threshold GT 8u C1", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiThreshold_GT_8u_C1R(a.data(), a.step, b.data(), b.step, size, 100)); },
       {{"OpenCV threshold TRUNC", [=] { cv::threshold(a.mat, b.mat, 100, 255, cv::THRESH_TRUNC); },
         isAsked ? 1.6 : 0}}});
  Add({Name("threshold LTValGTVal 8u C3", size),
       {c.bytes(), d.bytes()},
       [=] {
         const Qvp8u low[3] = {50, 60, 70}, below[3] = {0, 1, 2}, high[3] = {180, 170, 160}, above[3] = {253, 254, 255};
         Require(qvpiThreshold_LTValGTVal_8u_C3R(c.data(), c.step, d.data(), d.step, size, low, below, high, above));
       },
       {{"OpenCV threshold, twice, one bound each",
         [=] {
           cv::threshold(c.mat, d.mat, 50, 255, cv::THRESH_TOZERO);
           cv::threshold(d.mat, d.mat, 180, 255, cv::THRESH_TRUNC);
         }},
        {"OpenCV threshold, once", [=] { cv::threshold(c.mat, d.mat, 50, 255, cv::THRESH_TOZERO); },
         isAsked ? 3.0 : 0}}});
  Add({Name("Otsu 8u C1", size),
       {a.bytes(), 0},
       [=] {
         Qvp8u threshold;
         Require(qvpiComputeThreshold_Otsu_8u_C1R(a.data(), a.step, size, &threshold));
         Require(qvpiThreshold_GT_8u_C1R(a.data(), a.step, b.data(), b.step, size, threshold));
       },
       {{"OpenCV threshold OTSU", [=] { cv::threshold(a.mat, b.mat, 0, 255, cv::THRESH_TRUNC | cv::THRESH_OTSU); },
         1.2}}});
}

void Comparisons(QvpiSize size, bool isAsked) {
  const Image<uint8_t> a(size, 1), b(size, 1), mask(size, 1), c(size, 3), d(size, 3), masks(size, 3);
  const Image<float> f(size, 1);
  for (size_t i = 0; i < f.bytes() / 4; ++i) f.data()[i] = static_cast<float>(a.data()[i]);
  Add({Name("compare constant 32f C1", size),
       {f.bytes(), mask.bytes()},
       [=] { Require(qvpiCompareC_32f_C1R(f.data(), f.step, 100, mask.data(), mask.step, size, qvpCmpGreater)); },
       {{"OpenCV compare", [=] { cv::compare(f.mat, 100, mask.mat, cv::CMP_GT); }, isAsked ? 2.0 : 0}}});
  Add({Name("compare two 8u C1", size),
       {a.bytes() + b.bytes(), mask.bytes()},
       [=] {
         Require(qvpiCompare_8u_C1R(a.data(), a.step, b.data(), b.step, mask.data(), mask.step, size, qvpCmpLess));
       },
       {{"OpenCV compare", [=] { cv::compare(a.mat, b.mat, mask.mat, cv::CMP_LT); }, isAsked ? 1.2 : 0}}});
  Add({Name("compare two 8u C3", size),
       {c.bytes() + d.bytes(), mask.bytes()},
       [=] {
         Require(qvpiCompare_8u_C3R(c.data(), c.step, d.data(), d.step, mask.data(), mask.step, size, qvpCmpLess));
       },
       {{"OpenCV compare and all channels of it",
         [=] {
           cv::compare(c.mat, d.mat, masks.mat, cv::CMP_LT);
           cv::inRange(masks.mat, cv::Scalar(255, 255, 255), cv::Scalar(255, 255, 255), mask.mat);
         },
         isAsked ? 5.0 : 0},
        {"OpenCV compare, a mask for each channel", [=] { cv::compare(c.mat, d.mat, masks.mat, cv::CMP_LT); }}}});
}

void Counts() {
  for (const auto& [size, atLeast] : {std::pair{kHd, 5.5}, std::pair{kTile, 30.0}}) {
    const Image<uint8_t> a(size, 1), mask(size, 1);
    Add({Name("count in range 8u C1", size),
         {a.bytes(), 0},
         [=] {
           int count;
           Require(qvpiCountInRange_8u_C1R(a.data(), a.step, a.size, &count, 50, 180));
         },
         {{"OpenCV inRange and countNonZero",
           [=] {
             cv::inRange(a.mat, 50, 180, mask.mat);
             cv::countNonZero(mask.mat);
           },
           atLeast}}});
  }
}

const bool added = [] {
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    const bool isAsked = size.width == kHd.width;
    Thresholds(size, isAsked);
    Comparisons(size, isAsked);
  }
  Counts();
  return true;
}();

}  // namespace
