// Cosine transforms of images.
#include <fftw3.h>

#include <opencv2/core.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

struct Least {
  double fftw, opencv = 0;
};

void AddCosine(QvpiSize size, bool isForward, Least least) {
  const Image<float> src(size, 1), dst(size, 1);
  const fftwf_r2r_kind kind = isForward ? FFTW_REDFT10 : FFTW_REDFT01;
  const fftwf_plan plan = fftwf_plan_r2r_2d(size.height, size.width, src.data(), dst.data(), kind, kind, FFTW_MEASURE);
  src.mat.setTo(1);
  int specBytes, initBytes, bufferBytes;
  Require(qvpiDCTGetSize_32f(size, 8, 0, &specBytes, &initBytes, &bufferBytes));
  const auto record = Pixels<uint8_t>(specBytes), buffer = Pixels<uint8_t>(bufferBytes);
  auto* const spec = reinterpret_cast<QvpiDCTSpec_32f*>(record.get());
  Require(qvpiDCTInit_32f(size, 8, 0, spec, nullptr));
  std::vector<Peer> peers{{"FFTW, measured plan", [plan] { fftwf_execute(plan); }, least.fftw}};
  if (least.opencv > 0) {
    peers.push_back(
        {"OpenCV dct", [=] { isForward ? cv::dct(src.mat, dst.mat) : cv::idct(src.mat, dst.mat); }, least.opencv});
  }
  Add({Name(isForward ? "cosine transform" : "inverse cosine transform", size),
       {src.bytes(), dst.bytes()},
       [=] {
         (void)record;
         const auto transform = isForward ? qvpiDCTFwd_32f_C1R : qvpiDCTInv_32f_C1R;
         Require(transform(src.data(), src.step, dst.data(), dst.step, spec, buffer.get()));
       },
       peers});
}

const bool kAdded = [] {
  AddCosine({16, 16}, true, {1});
  AddCosine({64, 64}, true, {2});
  AddCosine({512, 512}, true, {3, 4.5});
  AddCosine({512, 512}, false, {3, 1});
  AddCosine(kVga, true, {1});
  AddCosine(kHd, true, {3});
  AddCosine({509, 499}, true, {1});
  AddCosine({4096, 4096}, true, {1});
  return true;
}();

}  // namespace
