// Deconvolution. The peer's plans are of the same torus, its planes are ready on it, and nothing is cut out of them.
#include <fftw3.h>

#include <complex>
#include <opencv2/core.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

constexpr int kSpread = 15;

struct Record {
  std::shared_ptr<uint8_t[]> record, buffer;

  Record(QvpiSize size, const Image<float>& psf) {
    int bytes = 0, initBytes = 0, bufferBytes = 0;
    Require(qvpiDeconvolveGetSize_32f(size, psf.size, qvpBorderWrap, &bytes, &initBytes, &bufferBytes));
    record = Pixels<uint8_t>(bytes), buffer = Pixels<uint8_t>(bufferBytes);
    const auto init = Pixels<uint8_t>(initBytes);
    Require(qvpiDeconvolveInit_32f(size, psf.data(), psf.step, psf.size, qvpBorderWrap, spec(), init.get()));
  }
  QvpiDeconvolveSpec_32f* spec() const { return reinterpret_cast<QvpiDeconvolveSpec_32f*>(record.get()); }
};

// Plans there and back of a plane, whose spectrum is half a plane of complex numbers.
struct Plans {
  Image<float> plane, half;
  fftwf_plan forward, inverse;

  explicit Plans(QvpiSize size)
      : plane(size, 1),
        half({size.width / 2 + 1, size.height}, 2),
        forward(fftwf_plan_dft_r2c_2d(size.height, size.width, plane.data(), Numbers(), FFTW_MEASURE)),
        inverse(fftwf_plan_dft_c2r_2d(size.height, size.width, Numbers(), plane.data(), FFTW_MEASURE)) {
    plane.mat.setTo(0.5);
  }
  fftwf_complex* Numbers() const { return reinterpret_cast<fftwf_complex*>(half.data()); }
  // There, each number times a factor, and back.
  void Filter() const {
    fftwf_execute(forward);
    auto* const numbers = reinterpret_cast<std::complex<float>*>(half.data());
    const float re = numbers[1].real() * 1e-9f, im = 0.25f;
    for (int i = 0; i < half.size.width * half.size.height; ++i) {
      numbers[i] = {numbers[i].real() * re - numbers[i].imag() * im, numbers[i].real() * im + numbers[i].imag() * re};
    }
    fftwf_execute(inverse);
  }
};

void AddRows(QvpiSize size, double inverse, double iteration) {
  const Image<float> src(size, 1), dst(size, 1), psf({kSpread, kSpread}, 1);
  psf.mat.setTo(1.0 / (kSpread * kSpread));
  cv::randu(src.mat, 0, 1);
  const Record record(size, psf);
  const Plans plans(size);
  Add({Name("deconvolve, inverse filter", size),
       {src.bytes(), dst.bytes()},
       [=] {
         Require(qvpiDeconvolveInverse_32f_C1R(src.data(), src.step, dst.data(), dst.step, 0.01f, 0.001f, record.spec(),
                                               record.buffer.get()));
       },
       {{"FFTW, measured plans, a product between", [=] { plans.Filter(); }, inverse}}});
  Add({Name("deconvolve, 11 iterations", size),
       {src.bytes(), dst.bytes()},
       [=] {
         Require(qvpiDeconvolveIterative_32f_C1R(src.data(), src.step, dst.data(), dst.step, 11, 1e-6f, record.spec(),
                                                 record.buffer.get()));
       },
       {{"FFTW, measured plans, products between",
         [=] {
           for (int i = 0; i < 21; ++i) plans.Filter();
         },
         iteration}}});
}

const bool kAdded = [] {
  for (const QvpiSize size : {kTile, QvpiSize{512, 512}, kVga, kHd}) AddRows(size, 1, 1);
  return true;
}();

}  // namespace
