// The WebAssembly build against plain loops, in one program: how long ten members take, and how many times as long the
// loop. Each is timed by turns with its loop, and the least time counts.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench/wasm/plain.h"
#include "qvpi.h"

namespace {

constexpr QvpiSize kHd{1920, 1080}, kSmaller{1152, 648};
constexpr int kPixels = kHd.width * kHd.height;

void Require(QvpStatus status) {
  if (status == qvpStatusNoError) return;
  std::printf("status %d\n", status);
  std::exit(1);
}

template <class T>
std::vector<T> Noise(size_t n) {
  std::vector<T> values(n);
  uint32_t state = 1;
  for (T& value : values) value = static_cast<T>((state = state * 1664525 + 1013904223) >> 24);
  return values;
}

template <class Work>
double Milliseconds(const Work& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

template <class Ours, class Plain>
void Compare(const char* what, const Ours& ours, const Plain& plain) {
  constexpr int kTurns = 60;
  double us = 1e9, loop = 1e9;
  for (int i = 0; i < kTurns; ++i) {
    us = std::min(us, Milliseconds(ours));
    loop = std::min(loop, Milliseconds(plain));
  }
  std::printf("| %-22s | %8.3f | %8.3f | %5.1f |\n", what, us, loop, loop / us);
}

// Bytes that a record or a work buffer takes, however few.
std::vector<Qvp8u> Bytes(int n) { return std::vector<Qvp8u>(std::max(n, 1)); }

struct Bench {
  const std::vector<Qvp8u> a = Noise<Qvp8u>(3 * kPixels), b = Noise<Qvp8u>(kPixels);
  std::vector<Qvp8u> dst = std::vector<Qvp8u>(3 * kPixels);

  void Elements() {
    Compare(
        "add 8u", [&] { Require(qvpiAdd_8u_C1RSfs(a.data(), 1920, b.data(), 1920, dst.data(), 1920, kHd, 0)); },
        [&] { PlainAdd(a.data(), b.data(), dst.data(), kPixels); });
    const std::vector<float> reals = Noise<float>(kPixels);
    Compare(
        "convert 32f8u",
        [&] { Require(qvpiConvert_32f8u_C1R(reals.data(), 7680, dst.data(), 1920, kHd, qvpRoundNear)); },
        [&] { PlainConvert(reals.data(), dst.data(), kPixels); });
  }

  void Filter() {
    const int16_t kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 3};
    int specSize, bufferSize;
    Require(qvpiFilterBorderGetSize({3, 3}, kHd, qvp8u, qvp16s, 1, &specSize, &bufferSize));
    auto record = Bytes(specSize), buffer = Bytes(bufferSize);
    auto* spec = reinterpret_cast<QvpiFilterBorderSpec*>(record.data());
    Require(qvpiFilterBorderInit_16s(kernel, {3, 3}, 18, qvp8u, 1, qvpRoundNear, spec));
    Compare(
        "3x3 filter 8u",
        [&] {
          Require(qvpiFilterBorder_8u_C1R(a.data(), 1920, dst.data(), 1920, kHd, qvpBorderReplicate, nullptr, spec,
                                          buffer.data()));
        },
        [&] { PlainFilter3x3(a.data(), dst.data(), kHd.width, kHd.height, kernel, 18); });
  }

  template <class Init, class Resize, class Plain>
  void Resizing(const char* what, QvpiInterpolationType kind, int channels, Init init, Resize resize, Plain plain) {
    int specSize, initSize, bufferSize;
    Require(qvpiResizeGetSize_8u(kHd, kSmaller, kind, 0, &specSize, &initSize));
    auto record = Bytes(specSize), scratch = Bytes(initSize);
    auto* spec = reinterpret_cast<QvpiResizeSpec*>(record.data());
    Require(init(spec, scratch.data()));
    Require(qvpiResizeGetBufferSize_8u(spec, kSmaller, channels, &bufferSize));
    auto buffer = Bytes(bufferSize);
    Compare(
        what,
        [&] {
          Require(resize(a.data(), kHd.width * channels, dst.data(), kSmaller.width * channels, {0, 0}, kSmaller,
                         qvpBorderReplicate, nullptr, spec, buffer.data()));
        },
        [&] { plain(a.data(), kHd.width, kHd.height, dst.data(), kSmaller.width, kSmaller.height); });
  }

  void Resizes() {
    Resizing(
        "resize linear 8u", qvpInterpolationLinear, 1,
        [](auto* spec, Qvp8u*) { return qvpiResizeLinearInit_8u(kHd, kSmaller, spec); }, qvpiResizeLinear_8u_C1R,
        PlainResizeLinear);
    Resizing(
        "resize cubic 8u C3", qvpInterpolationCubic, 3,
        [](auto* spec, Qvp8u* scratch) { return qvpiResizeCubicInit_8u(kHd, kSmaller, 0, 0.5f, spec, scratch); },
        qvpiResizeCubic_8u_C3R, PlainResizeCubicC3);
  }

  void Warp() {
    const double inverse[2][3] = {{0.9, 0.2, 10.3}, {-0.2, 0.9, 200.7}}, value = 0;
    int specSize, initSize, bufferSize;
    Require(qvpiWarpAffineGetSize(kHd, kHd, qvp8u, inverse, qvpInterpolationLinear, qvpWarpBackward, qvpBorderConst,
                                  &specSize, &initSize));
    auto record = Bytes(specSize);
    auto* spec = reinterpret_cast<QvpiWarpSpec*>(record.data());
    Require(qvpiWarpAffineLinearInit(kHd, kHd, qvp8u, inverse, qvpWarpBackward, 1, qvpBorderConst, &value, 0, spec));
    Require(qvpiWarpGetBufferSize(spec, kHd, &bufferSize));
    auto buffer = Bytes(bufferSize);
    Compare(
        "affine linear 8u",
        [&] {
          Require(qvpiWarpAffineLinear_8u_C1R(a.data(), 1920, dst.data(), 1920, {0, 0}, kHd, spec, buffer.data()));
        },
        [&] { PlainAffineLinear(a.data(), dst.data(), kHd.width, kHd.height, inverse); });
  }

  void Moves() {
    Compare(
        "transpose 8u", [&] { Require(qvpiTranspose_8u_C1R(a.data(), 1920, dst.data(), 1080, kHd)); },
        [&] { PlainTranspose(a.data(), dst.data(), kHd.width, kHd.height); });
  }

  void Statistics() {
    const float lower = 0, upper = 256;
    const int levels = 257;
    int specSize, bufferSize;
    Require(qvpiHistogramGetBufferSize(qvp8u, kHd, &levels, 1, 1, &specSize, &bufferSize));
    auto record = Bytes(specSize), buffer = Bytes(bufferSize);
    auto* spec = reinterpret_cast<QvpiHistogramSpec*>(record.data());
    Require(qvpiHistogramUniformInit(qvp8u, &lower, &upper, &levels, 1, spec));
    Qvp32u counts[256], *histogram[1] = {counts};
    Compare(
        "histogram 8u", [&] { Require(qvpiHistogram_8u_C1R(a.data(), 1920, kHd, histogram, spec, buffer.data())); },
        [&] { PlainHistogram(a.data(), kPixels, counts); });
    volatile double norm;
    Compare(
        "norm L2 8u",
        [&] {
          double value;
          Require(qvpiNorm_L2_8u_C1R(a.data(), 1920, kHd, &value));
          norm = value;
        },
        [&] { norm = PlainNormL2(a.data(), kPixels); });
  }

  // 512 x 512 complex numbers: all rows, then all columns.
  void Fourier() {
    constexpr int kOrder = 9, n = 1 << kOrder;
    std::vector<float> roots(n), data = Noise<float>(2 * n * n), out(2 * n * n);
    for (int k = 0; k < n / 2; ++k) {
      roots[2 * k] = static_cast<float>(std::cos(2 * M_PI * k / n));
      roots[2 * k + 1] = static_cast<float>(-std::sin(2 * M_PI * k / n));
    }
    int specSize, initSize, bufferSize;
    Require(qvpiFFTGetSize_C_32fc(kOrder, kOrder, 8, qvpAlgHintFast, &specSize, &initSize, &bufferSize));
    auto record = Bytes(specSize), scratch = Bytes(initSize), buffer = Bytes(bufferSize);
    auto* spec = reinterpret_cast<QvpiFFTSpec_C_32fc*>(record.data());
    Require(qvpiFFTInit_C_32fc(kOrder, kOrder, 8, qvpAlgHintFast, spec, scratch.data()));
    const auto* from = reinterpret_cast<const Qvp32fc*>(data.data());
    auto* to = reinterpret_cast<Qvp32fc*>(out.data());
    Compare(
        "FFT 512 x 512", [&] { Require(qvpiFFTFwd_CToC_32fc_C1R(from, 8 * n, to, 8 * n, spec, buffer.data())); },
        [&] { PlainFft2d(data.data(), out.data(), n, roots.data()); });
  }
};

}  // namespace

int main() {
  std::printf("| 1920 x 1080            | ours, ms | loop, ms | times |\n|---|---|---|---|\n");
  Bench bench;
  bench.Elements();
  bench.Filter();
  bench.Resizes();
  bench.Warp();
  bench.Moves();
  bench.Statistics();
  bench.Fourier();
}
