// Threshold, comparison and counting.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

void Thresholds() {
  const Image<uint8_t> a(kHd, 1), b(kHd, 1), c(kHd, 3), d(kHd, 3);
  Add({Name("threshold GT 8u C1", kHd),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiThreshold_GT_8u_C1R(a.data(), a.step, b.data(), b.step, kHd, 100)); },
       {{"OpenCV threshold TRUNC", [=] { cv::threshold(a.mat, b.mat, 100, 255, cv::THRESH_TRUNC); }, 1.6}}});
  Add({Name("threshold LTValGTVal 8u C3", kHd),
       {c.bytes(), d.bytes()},
       [=] {
         const Qvp8u low[3] = {50, 60, 70}, below[3] = {0, 1, 2}, high[3] = {180, 170, 160}, above[3] = {253, 254, 255};
         Require(qvpiThreshold_LTValGTVal_8u_C3R(c.data(), c.step, d.data(), d.step, kHd, low, below, high, above));
       },
       {{"OpenCV threshold, twice, one bound each",
         [=] {
           cv::threshold(c.mat, d.mat, 50, 255, cv::THRESH_TOZERO);
           cv::threshold(d.mat, d.mat, 180, 255, cv::THRESH_TRUNC);
         }},
        {"OpenCV threshold, once", [=] { cv::threshold(c.mat, d.mat, 50, 255, cv::THRESH_TOZERO); }, 3}}});
  Add({Name("Otsu 8u C1", kHd),
       {a.bytes(), 0},
       [=] {
         Qvp8u threshold;
         Require(qvpiComputeThreshold_Otsu_8u_C1R(a.data(), a.step, kHd, &threshold));
         Require(qvpiThreshold_GT_8u_C1R(a.data(), a.step, b.data(), b.step, kHd, threshold));
       },
       {{"OpenCV threshold OTSU", [=] { cv::threshold(a.mat, b.mat, 0, 255, cv::THRESH_TRUNC | cv::THRESH_OTSU); },
         1.2}}});
}

void Comparisons() {
  const Image<uint8_t> a(kHd, 1), b(kHd, 1), mask(kHd, 1), c(kHd, 3), d(kHd, 3), masks(kHd, 3);
  const Image<float> f(kHd, 1);
  for (size_t i = 0; i < f.bytes() / 4; ++i) f.data()[i] = static_cast<float>(a.data()[i]);
  Add({Name("compare constant 32f C1", kHd),
       {f.bytes(), mask.bytes()},
       [=] { Require(qvpiCompareC_32f_C1R(f.data(), f.step, 100, mask.data(), mask.step, kHd, qvpCmpGreater)); },
       {{"OpenCV compare", [=] { cv::compare(f.mat, 100, mask.mat, cv::CMP_GT); }, 2}}});
  Add({Name("compare two 8u C1", kHd),
       {a.bytes() + b.bytes(), mask.bytes()},
       [=] {
         Require(qvpiCompare_8u_C1R(a.data(), a.step, b.data(), b.step, mask.data(), mask.step, kHd, qvpCmpLess));
       },
       {{"OpenCV compare", [=] { cv::compare(a.mat, b.mat, mask.mat, cv::CMP_LT); }, 1.2}}});
  Add({Name("compare two 8u C3", kHd),
       {c.bytes() + d.bytes(), mask.bytes()},
       [=] {
         Require(qvpiCompare_8u_C3R(c.data(), c.step, d.data(), d.step, mask.data(), mask.step, kHd, qvpCmpLess));
       },
       {{"OpenCV compare and all channels of it",
         [=] {
           cv::compare(c.mat, d.mat, masks.mat, cv::CMP_LT);
           cv::inRange(masks.mat, cv::Scalar(255, 255, 255), cv::Scalar(255, 255, 255), mask.mat);
         },
         5},
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

const bool added = (Thresholds(), Comparisons(), Counts(), true);

}  // namespace
