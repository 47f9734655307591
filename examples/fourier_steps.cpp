// Steps of qvpi_transform.h: the spectrum of a picture, and the picture without its high frequencies.
#include <algorithm>
#include <cmath>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

using Plane = Image<qvpiMalloc_32f_C1, 1>;

class Transform {
 public:
  explicit Transform(QvpiSize size) {
    int bytes = 0, initBytes = 0, bufferBytes = 0;
    Require(qvpiDFTGetSize_R_32f(size, 2, 0, &bytes, &initBytes, &bufferBytes));
    record_.resize(bytes);
    buffer_.resize(bufferBytes);
    Require(qvpiDFTInit_R_32f(size, 2, 0, reinterpret_cast<QvpiDFTSpec_R_32f*>(record_.data()), nullptr));
  }
  const QvpiDFTSpec_R_32f* spec() const { return reinterpret_cast<const QvpiDFTSpec_R_32f*>(record_.data()); }
  Qvp8u* buffer() { return buffer_.data(); }

 private:
  std::vector<Qvp8u> record_, buffer_;
};

Plane Green(const Rgb& photo) {
  Plane green(photo.size());
  for (int y = 0; y < photo.size().height; ++y) {
    for (int x = 0; x < photo.size().width; ++x) *green.At(x, y) = photo.At(x, y)[1];
  }
  return green;
}

Qvp8u ToGrey(double v) { return static_cast<Qvp8u>(std::clamp(v, 0.0, 255.0) + 0.5); }

// The logarithm of the magnitudes, frequency 0 in the middle.
Grey LogMagnitude(Demo& demo, const Plane& spectrum) {
  const QvpiSize size = spectrum.size();
  Plane magnitude(size);
  int bytes = 0;
  Require(qvpiMagnitudePackGetBufferSize_32f(1, size, &bytes));
  std::vector<Qvp8u> buffer(bytes);
  demo.Time(size, 4 + 4,
            CALL(qvpiMagnitudePack_32f_C1R, spectrum.data(), spectrum.step(), magnitude.data(), magnitude.step(), size,
                 buffer.data()));
  Grey picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const float m = *magnitude.At((x + size.width / 2) % size.width, (y + size.height / 2) % size.height);
      *picture.At(x, y) = ToGrey(20 * (std::log(1 + m) - 5));
    }
  }
  return picture;
}

// A Gaussian of the distance from frequency 0, as a packed spectrum of real numbers.
Plane LowPass(QvpiSize size, double width) {
  Image<qvpiMalloc_32fc_C1, 1> whole(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double u = 1.0 * std::min(x, size.width - x) / width, v = 1.0 * std::min(y, size.height - y) / width;
      *whole.At(x, y) = {static_cast<Qvp32f>(std::exp(-(u * u + v * v) / 2)), 0};
    }
  }
  Plane packed(size);
  Require(qvpiCplxExtendToPack_32fc32f_C1R(whole.data(), whole.step(), packed.data(), packed.step(), size));
  return packed;
}

Grey Rounded(const Plane& plane) {
  Grey picture(plane.size());
  for (int y = 0; y < plane.size().height; ++y) {
    for (int x = 0; x < plane.size().width; ++x) *picture.At(x, y) = ToGrey(*plane.At(x, y));
  }
  return picture;
}

// From the lowest eighth of its cosines on either axis.
void ShowLowCosines(Demo& demo, const Plane& image) {
  const QvpiSize size = image.size();
  int specBytes, initBytes, bufferBytes;
  Require(qvpiDCTGetSize_32f(size, 2, 0, &specBytes, &initBytes, &bufferBytes));
  std::vector<Qvp8u> record(specBytes), buffer(bufferBytes);
  auto* const spec = reinterpret_cast<QvpiDCTSpec_32f*>(record.data());
  Require(qvpiDCTInit_32f(size, 2, 0, spec, nullptr));
  Plane cosines(size), low(size);
  demo.Time(size, 4 + 4,
            CALL(qvpiDCTFwd_32f_C1R, image.data(), image.step(), cosines.data(), cosines.step(), spec, buffer.data()));
  Require(qvpiSet_32f_C1R(0, low.data(), low.step(), size));
  const QvpiSize kept{(size.width + 7) / 8, (size.height + 7) / 8};
  Require(qvpiCopy_32f_C1R(cosines.data(), cosines.step(), low.data(), low.step(), kept));
  demo.Time(size, 4 + 4,
            CALL(qvpiDCTInv_32f_C1R, low.data(), low.step(), cosines.data(), cosines.step(), spec, buffer.data()));
  demo.Show("From the lowest 1/64 of its cosines", Rounded(cosines));
}

// What a lens out of focus makes of a point: a disc.
Plane Disc(int side) {
  Plane disc({side, side});
  const int middle = side / 2;
  int area = 0;
  const auto isInside = [=](int x, int y) {
    return 4 * ((x - middle) * (x - middle) + (y - middle) * (y - middle)) <= side * side;
  };
  for (int i = 0; i < side * side; ++i) area += isInside(i % side, i / side);
  for (int i = 0; i < side * side; ++i) {
    *disc.At(i % side, i / side) = isInside(i % side, i / side) ? 1.0f / static_cast<float>(area) : 0.0f;
  }
  return disc;
}

// All that the blur reaches, so that nothing is lost beyond the edges.
Plane ShowOutOfFocus(Demo& demo, const Plane& image, const Plane& disc) {
  const QvpiSize size = image.size(), side = disc.size();
  Plane blurred({size.width + side.width - 1, size.height + side.height - 1});
  int bufferBytes;
  Require(qvpiConvolveGetBufferSize(size, side, qvp32f, 1, qvpMethodAuto, &bufferBytes));
  std::vector<Qvp8u> buffer(bufferBytes);
  demo.Time(size, 4 + 4,
            CALL(qvpiConvolveFull_32f_C1R, image.data(), image.step(), size, disc.data(), disc.step(), side,
                 blurred.data(), blurred.step(), qvpMethodAuto, buffer.data()));
  demo.Show("Convolved with a disc of 15 pixels", Rounded(blurred));
  return blurred;
}

void ShowRestored(Demo& demo, const Plane& blurred, const Plane& disc) {
  const QvpiSize size = blurred.size(), side = disc.size();
  int specBytes, initBytes, bufferBytes;
  Require(qvpiDeconvolveGetSize_32f(size, side, qvpBorderConst, &specBytes, &initBytes, &bufferBytes));
  std::vector<Qvp8u> record(specBytes), init(initBytes), buffer(bufferBytes);
  auto* const spec = reinterpret_cast<QvpiDeconvolveSpec_32f*>(record.data());
  Require(qvpiDeconvolveInit_32f(size, disc.data(), disc.step(), side, qvpBorderConst, spec, init.data()));
  Plane restored(size);
  demo.Time(size, 4 + 4,
            CALL(qvpiDeconvolveInverse_32f_C1R, blurred.data(), blurred.step(), restored.data(), restored.step(), 1e-4f,
                 0, spec, buffer.data()));
  demo.Show("Restored by the inverse filter", Rounded(restored));
  demo.Time(size, 4 + 4,
            CALL(qvpiDeconvolveIterative_32f_C1R, blurred.data(), blurred.step(), restored.data(), restored.step(), 30,
                 1e-3f, spec, buffer.data()));
  demo.Show("Restored by 30 iterations", Rounded(restored));
}

// By blocks whose coefficients are kept as multiples of a step that grows with the frequency.
void ShowBlocks(Demo& demo, const Grey& picture, int strength) {
  const QvpiSize size = picture.size();
  Qvp16u quantizer[64];
  for (int i = 0; i < 64; ++i) quantizer[i] = static_cast<Qvp16u>(strength * (1 + i / 8 + i % 8));
  Image<qvpiMalloc_16s_C1, 1> coefficients({(size.width + 7) / 8 * 64, (size.height + 7) / 8});
  Grey result(size);
  demo.Time(size, 1 + 2,
            CALL(qvpiDCTBlocksQuantFwd_8u16s_C1R, picture.data(), picture.step(), coefficients.data(),
                 coefficients.step(), size, quantizer));
  int kept = 0;
  for (int y = 0; y < coefficients.size().height; ++y) {
    for (int x = 0; x < coefficients.size().width; ++x) kept += *coefficients.At(x, y) != 0;
  }
  demo.Time(size, 2 + 1,
            CALL(qvpiDCTBlocksQuantInv_16s8u_C1R, coefficients.data(), coefficients.step(), result.data(),
                 result.step(), size, quantizer));
  const int percent = 100 * kept / (size.width * size.height);
  demo.Show("From " + std::to_string(percent) + " % of its coefficients", result);
}

}  // namespace

void FourierSteps(Demo& demo) {
  const Plane green = Green(demo.photo());
  const QvpiSize size = green.size();
  Transform transform(size);
  Plane spectrum(size), passed(size), back(size);
  demo.Time(size, 4 + 4,
            CALL(qvpiDFTFwd_RToPack_32f_C1R, green.data(), green.step(), spectrum.data(), spectrum.step(),
                 transform.spec(), transform.buffer()));
  demo.Show("Spectrum, log of the magnitude", LogMagnitude(demo, spectrum));
  Plane faded(size), fadedSpectrum(size);
  demo.Time(size, 4 + 4,
            CALL(qvpiApplyWindow_32f_C1R, green.data(), green.step(), faded.data(), faded.step(), size, qvpWindowHann));
  demo.Show("Faded to its edges", Rounded(faded));
  Require(qvpiDFTFwd_RToPack_32f_C1R(faded.data(), faded.step(), fadedSpectrum.data(), fadedSpectrum.step(),
                                     transform.spec(), transform.buffer()));
  demo.Show("Its spectrum: no cross of the edges", LogMagnitude(demo, fadedSpectrum));
  const Plane lowPass = LowPass(size, 24);
  demo.Time(size, 4 + 4 + 4,
            CALL(qvpiMulPack_32f_C1R, lowPass.data(), lowPass.step(), spectrum.data(), spectrum.step(), passed.data(),
                 passed.step(), size));
  Require(qvpiDFTInv_PackToR_32f_C1R(passed.data(), passed.step(), back.data(), back.step(), transform.spec(),
                                     transform.buffer()));
  demo.Show("Without its high frequencies", Rounded(back));
  const Plane disc = Disc(15);
  ShowRestored(demo, ShowOutOfFocus(demo, green, disc), disc);
  ShowLowCosines(demo, green);
  for (const int strength : {4, 16, 48}) ShowBlocks(demo, Rounded(green), strength);
}

}  // namespace demo
