// Fourier transforms.
#include <fftw3.h>

#include <opencv2/core.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

// A general transform with its record and buffer.
struct Transform {
  std::shared_ptr<uint8_t[]> record, buffer;

  Transform(QvpiSize size, bool isReal) {
    int bytes = 0, initBytes = 0, bufferBytes = 0;
    Require((isReal ? qvpiDFTGetSize_R_32f : qvpiDFTGetSize_C_32fc)(size, 8, 0, &bytes, &initBytes, &bufferBytes));
    record = Pixels<uint8_t>(bytes);
    buffer = Pixels<uint8_t>(bufferBytes);
    Require(isReal ? qvpiDFTInit_R_32f(size, 8, 0, As<QvpiDFTSpec_R_32f>(), nullptr)
                   : qvpiDFTInit_C_32fc(size, 8, 0, As<QvpiDFTSpec_C_32fc>(), nullptr));
  }
  template <class Spec>
  Spec* As() const {
    return reinterpret_cast<Spec*>(record.get());
  }
};

struct Least {
  double fftw, opencv = 0;
};

template <class Call>
void AddRow(const char* name, QvpiSize size, const Image<float>& src, const Image<float>& dst, fftwf_plan plan,
            Least least, Call ours) {
  std::vector<Peer> peers{{"FFTW, measured plan", [plan] { fftwf_execute(plan); }, least.fftw}};
  if (least.opencv > 0) {
    peers.push_back({"OpenCV dft", [src, dst] { cv::dft(src.mat, dst.mat); }, least.opencv});
  }
  Add({Name(name, size), {src.bytes(), dst.bytes()}, ours, peers});
}

// Out of place on both sides, forward, not scaled.
void AddReal(QvpiSize size, Least least) {
  const Image<float> src(size, 1), dst(size, 1), half({size.width / 2 + 1, size.height}, 2);
  const auto plan = fftwf_plan_dft_r2c_2d(size.height, size.width, src.data(),
                                          reinterpret_cast<fftwf_complex*>(half.data()), FFTW_MEASURE);
  src.mat.setTo(1);
  const Transform transform(size, true);
  AddRow("real transform", size, src, dst, plan, least, [=] {
    Require(qvpiDFTFwd_RToPack_32f_C1R(src.data(), src.step, dst.data(), dst.step, transform.As<QvpiDFTSpec_R_32f>(),
                                       transform.buffer.get()));
    (void)half;
  });
}

void AddComplex(QvpiSize size, Least least) {
  const Image<float> src(size, 2), dst(size, 2);
  const auto plan = fftwf_plan_dft_2d(size.height, size.width, reinterpret_cast<fftwf_complex*>(src.data()),
                                      reinterpret_cast<fftwf_complex*>(dst.data()), FFTW_FORWARD, FFTW_MEASURE);
  src.mat.setTo(cv::Scalar(1, 1));
  const Transform transform(size, false);
  AddRow("complex transform", size, src, dst, plan, least, [=] {
    Require(qvpiDFTFwd_CToC_32fc_C1R(reinterpret_cast<const Qvp32fc*>(src.data()), src.step,
                                     reinterpret_cast<Qvp32fc*>(dst.data()), dst.step,
                                     transform.As<QvpiDFTSpec_C_32fc>(), transform.buffer.get()));
  });
}

// Operations on packed spectra, which the peer has for whole planes of real and imaginary parts only, but for products.
void AddPacked(QvpiSize size) {
  const Image<float> a(size, 1), b(size, 1), dst(size, 1);
  const auto buffer = Pixels<Qvp8u>(size.width * sizeof(float) + 64);
  for (const auto& image : {a, b}) cv::randu(image.mat, -1, 1);
  const auto add = [&](const char* name, size_t sources, auto ours, Peer peer) {
    Add({Name(name, size), {sources * a.bytes(), a.bytes()}, ours, {peer}});
  };
  add("product of packed spectra", 2,
      [=] { Require(qvpiMulPack_32f_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size)); },
      {"OpenCV mulSpectrums", [=] { cv::mulSpectrums(a.mat, b.mat, dst.mat, 0); }, 1.0});
  add("magnitudes of a packed spectrum", 1,
      [=] { Require(qvpiMagnitudePack_32f_C1R(a.data(), a.step, dst.data(), dst.step, size, buffer.get())); },
      {"OpenCV magnitude, of float planes", [=] { cv::magnitude(a.mat, b.mat, dst.mat); }});
  add("phases of a packed spectrum", 1,
      [=] { Require(qvpiPhasePack_32f_C1R(a.data(), a.step, dst.data(), dst.step, size)); },
      {"OpenCV phase, of float planes, to 0.3 degrees", [=] { cv::phase(a.mat, b.mat, dst.mat); }});
}

const bool added = [] {
  AddReal({64, 64}, {1.0});
  AddReal({256, 256}, {1.1});
  AddReal({512, 512}, {1.2, 4});
  AddReal({1024, 1024}, {1.2});
  AddReal({2048, 2048}, {1.2});
  AddReal(kVga, {1.4});
  AddReal(kHd, {1.5});
  AddReal({509, 499}, {3});
  AddComplex({64, 64}, {1.0});
  AddComplex({512, 512}, {1.2, 5});
  AddComplex({1024, 1024}, {1.2});
  AddPacked({256, 256});
  AddPacked({512, 512});
  return true;
}();

}  // namespace
