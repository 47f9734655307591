// Conversions and scaling.
#include "bench/image.h"

namespace {
using namespace bench;

template <class S, class T>
struct Pair {
  Image<S> src;
  Image<T> dst;
  Pair(QvpiSize size, int channels) : src(size, channels), dst(size, channels) {}
};

template <class S, class T, class Ours, class Theirs>
void AddRow(const char* name, QvpiSize size, int channels, double atLeast, Ours ours, Theirs theirs) {
  const Pair<S, T> p(size, channels);
  if constexpr (std::is_same_v<S, float>) {
    for (size_t i = 0; i < p.src.bytes() / sizeof(S); ++i) p.src.data()[i] = static_cast<float>(i % 3001) / 10;
  }
  Add({Name(name, size),
       {p.src.bytes(), p.dst.bytes()},
       [=] { Require(ours(p.src.data(), p.src.step, p.dst.data(), p.dst.step, size)); },
       {{"OpenCV convertTo", [=] { theirs(p.src.mat, p.dst.mat); }, atLeast}}});
}

void Rows(QvpiSize size, bool isAsked) {
  const auto asked = [=](double atLeast) { return isAsked ? atLeast : 0; };
  AddRow<float, uint8_t>(
      "convert 32f8u C1", size, 1, asked(1.0), [](auto... a) { return qvpiConvert_32f8u_C1R(a..., qvpRoundNear); },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_8U); });
  AddRow<int16_t, int8_t>(
      "convert 16s8s C1, scale 4", size, 1, asked(2.5),
      [](auto... a) { return qvpiConvert_16s8s_C1RSfs(a..., qvpRoundNear, 4); },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_8S, 1.0 / 16); });
  AddRow<uint8_t, float>(
      "convert 8u32f C3", size, 3, asked(1.0), [](auto... a) { return qvpiConvert_8u32f_C3R(a...); },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_32F); });
  AddRow<uint8_t, float>(
      "scale 8u32f C1", size, 1, asked(1.0), [](auto... a) { return qvpiScale_8u32f_C1R(a..., 0, 1); },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_32F, 1.0 / 255); });
  AddRow<uint8_t, uint16_t>(
      "scale 8u16u C1", size, 1, asked(1.0), [](auto... a) { return qvpiScale_8u16u_C1R(a...); },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_16U, 257); });
  AddRow<uint8_t, uint8_t>(
      "scale by a constant 8u C1, fast", size, 1, asked(2.7),
      [](auto src, int srcStep, auto... a) {
        return qvpiScaleC_8u_C1R(src, srcStep, 1.3, -20.5, a..., qvpAlgHintFast);
      },
      [](const cv::Mat& a, cv::Mat& b) { a.convertTo(b, CV_8U, 1.3, -20.5); });
}

const bool added = (Rows(kTile, false), Rows(kVga, false), Rows(kHd, true), true);

}  // namespace
