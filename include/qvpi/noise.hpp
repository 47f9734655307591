/** @file noise.hpp
 *  Noise that does not depend on how an image is cut.
 */
#ifndef QVPI_NOISE_HPP
#define QVPI_NOISE_HPP

#include "qvpi/operations/feature.hpp"
#include "qvpi/record.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

/** Adds noise to images: `auto grain = Noise::gauss(0, 5, seed); grain(src, dst);`
 *
 *  Seed, stream and frame number make one noise, of which a part of an image gets what is at its offset. 8u, 16u, 16s
 *  and 32f of 1, 3 and 4 channels. Source and destination may be one image.
 */
class Noise : public Recorded {
 public:
  /** Adds numbers from low to high that are all as likely. */
  static Noise uniform(double low, double high, Qvp32u seed, Qvp32u stream = 0) {
    return Noise([=](auto* spec) { return qvpiNoiseUniformInit(low, high, seed, stream, spec); });
  }
  /** Adds numbers of a normal distribution. */
  static Noise gauss(double mean, double sigma, Qvp32u seed, Qvp32u stream = 0) {
    return Noise([=](auto* spec) { return qvpiNoiseGaussInit(mean, sigma, seed, stream, spec); });
  }
  /** Adds to each pixel itself times a number of a normal distribution, as ultrasound and radar show it. */
  static Noise speckle(double sigma, Qvp32u seed, Qvp32u stream = 0) {
    return Noise([=](auto* spec) { return qvpiNoiseSpeckleInit(sigma, seed, stream, spec); });
  }
  /** The noise of a sensor that counts light: `gain` is the variance for each unit of a pixel, `sigma` of darkness. */
  static Noise shot(double gain, double sigma, Qvp32u seed, Qvp32u stream = 0) {
    return Noise([=](auto* spec) { return qvpiNoiseShotInit(gain, sigma, seed, stream, spec); });
  }
  /** Makes a share `level` of the pixels `salt` or `pepper`, the former for a share `salt_share` of these. */
  static Noise salt_pepper(double level, double salt_share, double pepper, double salt, Qvp32u seed,
                           Qvp32u stream = 0) {
    return Noise(
        [=](auto* spec) { return qvpiNoiseSaltPepperInit(level, salt_share, pepper, salt, seed, stream, spec); });
  }

  template <detail::HasPixels Source, detail::HasPixels Destination>
  Status operator()(const Source& src, Destination&& dst, Qvp32u frame = 0, QvpiPoint offset = {0, 0}) const {
    const auto to = detail::view_of(dst);
    static_assert(
        requires { calls::noise(src, to, offset, frame, nullptr); },
        "qvp::Noise is for 8u, 16u, 16s and 32f with 1, 3 and 4 channels, from a type to itself");
    const QvpStatus status = ready(true);
    return detail::finish(status < 0 ? status : calls::noise(src, to, offset, frame, spec<QvpiNoiseSpec>()));
  }

 private:
  template <class Init>
  explicit Noise(Init init) {
    int bytes = 0;
    const QvpStatus status = qvpiNoiseGetSize(&bytes);
    made(status < 0 ? status : make(bytes, 0, [&](Qvp8u* memory, Qvp8u*) {
      return init(reinterpret_cast<QvpiNoiseSpec*>(memory));
    }));
  }
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
