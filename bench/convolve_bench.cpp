// Convolutions; the peer's kernel is rotated and made of floats beforehand, ours is an image like the other.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

std::shared_ptr<Qvp8u[]> BufferFor(QvpiSize a, QvpiSize b, QvpDataType type, int channels) {
  int bytes = 0;
  Require(qvpiConvolveGetBufferSize(a, b, type, channels, qvpMethodAuto, &bytes));
  return Pixels<Qvp8u>(bytes);
}

// What becomes of the pixels: values of a kernel up to `most`, whose sum is divided.
struct Kernel {
  int side;
  double most;
};

template <class T, class Call>
void AddSame(const std::string& name, QvpiSize size, Kernel k, int channels, Call call, double atLeast) {
  const QvpiSize kernelSize{k.side, k.side};
  const Image<T> a(size, channels), b(kernelSize, channels), dst(size, channels);
  const QvpDataType type = sizeof(T) == 1 ? qvp8u : sizeof(T) == 2 ? qvp16s : qvp32f;
  const auto buffer = BufferFor(size, kernelSize, type, channels);
  cv::randu(a.mat, sizeof(T) == 2 ? -32768 : 0, sizeof(T) == 2 ? 32767 : 255);
  cv::randu(b.mat, 0, k.most);
  cv::Mat plane, weights;
  cv::extractChannel(b.mat, plane, 0);
  cv::flip(plane, weights, -1);
  const double sum = std::max(cv::sum(plane)[0], 1.0);
  weights.convertTo(weights, CV_32F, sizeof(T) == 4 ? 1 : 1 / sum);
  Add({Name("convolve same " + name + " " + std::to_string(k.side) + "x" + std::to_string(k.side), size),
       {a.bytes(), dst.bytes()},
       [=] { Require(call(a, b, dst, static_cast<int>(sum), buffer.get())); },
       {{"OpenCV filter2D",
         [=] {
           cv::filter2D(a.mat, dst.mat, -1, weights, {-1, -1}, 0, cv::BORDER_CONSTANT);
         },
         atLeast}}});
}

void AddFloats(QvpiSize size, int side, double atLeast) {
  AddSame<float>(
      "32f C1", size, {side, 1}, 1,
      [](auto& a, auto& b, auto& dst, int, Qvp8u* buffer) {
        return qvpiConvolveSame_32f_C1R(a.data(), a.step, a.size, b.data(), b.step, b.size, dst.data(), dst.step, 0,
                                        buffer);
      },
      atLeast);
}
void AddBytes(QvpiSize size, int side, double atLeast) {
  AddSame<uint8_t>(
      "8u C1", size, {side, 255}, 1,
      [](auto& a, auto& b, auto& dst, int sum, Qvp8u* buffer) {
        return qvpiConvolveSame_8u_C1R(a.data(), a.step, a.size, b.data(), b.step, b.size, dst.data(), dst.step, sum, 0,
                                       buffer);
      },
      atLeast);
}
void AddBytesOfColours(QvpiSize size, int side, double atLeast) {
  AddSame<uint8_t>(
      "8u C3", size, {side, 255}, 3,
      [](auto& a, auto& b, auto& dst, int sum, Qvp8u* buffer) {
        return qvpiConvolveSame_8u_C3R(a.data(), a.step, a.size, b.data(), b.step, b.size, dst.data(), dst.step, sum, 0,
                                       buffer);
      },
      atLeast);
}
// Kernels whose sums stay in 32 bits.
void AddWords(QvpiSize size, int side, double atLeast) {
  AddSame<int16_t>(
      "16s C1", size, {side, 100000.0 / (side * side)}, 1,
      [](auto& a, auto& b, auto& dst, int sum, Qvp8u* buffer) {
        return qvpiConvolveSame_16s_C1R(a.data(), a.step, a.size, b.data(), b.step, b.size, dst.data(), dst.step, sum,
                                        0, buffer);
      },
      atLeast);
}

void AddFull(QvpiSize size) {
  const QvpiSize full{2 * size.width - 1, 2 * size.height - 1}, padded{2 * size.width, 2 * size.height};
  const Image<float> a(size, 1), b(size, 1), dst(full, 1), first(padded, 1), second(padded, 1);
  const auto buffer = BufferFor(size, size, qvp32f, 1);
  for (const auto& image : {a, b}) cv::randu(image.mat, 0, 1);
  const auto spectrum = [=](const Image<float>& from, const Image<float>& to) {
    to.mat.setTo(0);
    from.mat.copyTo(to.mat(cv::Rect(0, 0, size.width, size.height)));
    cv::dft(to.mat, to.mat, 0, size.height);
  };
  Add({Name("convolve full 32f C1 by its size", size),
       {2 * a.bytes(), dst.bytes()},
       [=] {
         Require(qvpiConvolveFull_32f_C1R(a.data(), a.step, size, b.data(), b.step, size, dst.data(), dst.step, 0,
                                          buffer.get()));
       },
       {{"OpenCV dft, mulSpectrums",
         [=] {
           spectrum(a, first), spectrum(b, second);
           cv::mulSpectrums(first.mat, second.mat, first.mat, 0);
           cv::dft(first.mat, first.mat, cv::DFT_INVERSE | cv::DFT_SCALE);
           first.mat(cv::Rect(0, 0, full.width, full.height)).copyTo(dst.mat);
         },
         2}}});
}

const bool kAdded = [] {
  AddFloats(kHd, 5, 1.4), AddFloats(kHd, 15, 3.3), AddFloats(kHd, 31, 3.5), AddFloats(kHd, 63, 3.5),
      AddFloats(kHd, 127, 4.5);
  AddBytes(kHd, 5, 2.5), AddBytes(kHd, 15, 4), AddBytes(kHd, 31, 1.1), AddBytes(kHd, 63, 2);
  AddWords(kHd, 5, 8), AddWords(kHd, 15, 4.5), AddWords(kHd, 31, 1.3);
  AddFull({512, 512});
  for (const QvpiSize size : {kTile, kVga, kLarge}) {
    AddFloats(size, 5, 1), AddFloats(size, 31, 1);
    AddBytes(size, 5, 1), AddBytes(size, 31, 1), AddWords(size, 5, 1);
  }
  AddBytesOfColours(kTile, 5, 0), AddBytesOfColours(kHd, 5, 0);
  for (const QvpiSize size : kSmallest) AddBytes(size, 3, 0);
  return true;
}();

}  // namespace
