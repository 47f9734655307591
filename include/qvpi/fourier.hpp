/** @file fourier.hpp
 *  Fourier and cosine transforms of images.
 */
#ifndef QVPI_FOURIER_HPP
#define QVPI_FOURIER_HPP

#include "qvpi/operations/transform.hpp"
#include "qvpi/record.hpp"

namespace qvp {

/** By what a transform of N pixels divides; with each but `none`, there and back gives the image again. */
enum class FourierNorm : int {
  forward = 1,  /**< N forward */
  backward = 2, /**< N back */
  ortho = 4,    /**< the root of N, both ways */
  none = 8,     /**< nothing */
};

inline namespace QVP_ERRORS {

namespace detail {

// The functions of each kind of transform.
struct RealFourier {
  using Spec = QvpiDFTSpec_R_32f;
  static constexpr auto size = &qvpiDFTGetSize_R_32f;
  static constexpr auto init = &qvpiDFTInit_R_32f;
  static QvpStatus forward(auto... arguments) { return calls::dft_fwd_r_to_pack(arguments...); }
  static QvpStatus inverse(auto... arguments) { return calls::dft_inv_pack_to_r(arguments...); }
};

struct ComplexFourier {
  using Spec = QvpiDFTSpec_C_32fc;
  static constexpr auto size = &qvpiDFTGetSize_C_32fc;
  static constexpr auto init = &qvpiDFTInit_C_32fc;
  static QvpStatus forward(auto... arguments) { return calls::dft_fwd_c_to_c(arguments...); }
  static QvpStatus inverse(auto... arguments) { return calls::dft_inv_c_to_c(arguments...); }
};

struct RealCosine {
  using Spec = QvpiDCTSpec_32f;
  static constexpr auto size = &qvpiDCTGetSize_32f;
  static constexpr auto init = &qvpiDCTInit_32f;
  static QvpStatus forward(auto... arguments) { return calls::dct_fwd(arguments...); }
  static QvpStatus inverse(auto... arguments) { return calls::dct_inv(arguments...); }
};

}  // namespace detail

/** Transforms images of one size, in place if that is wanted. The base of Fourier and Cosine. */
template <class Functions, class T, int kChannels>
class Transform : public Recorded {
 public:
  Transform(QvpiSize size, FourierNorm norm) : size_(size) { made(prepare(int(norm))); }

  Status forward(In<T, kChannels> src, Out<T, kChannels> dst) { return forward(src, dst, own_); }
  Status forward(In<T, kChannels> src, Out<T, kChannels> dst, Buffer& buffer) const {
    return run(src, dst, buffer, [&](Qvp8u* work) { return Functions::forward(src, dst, record(), work); });
  }

  Status inverse(In<T, kChannels> src, Out<T, kChannels> dst) { return inverse(src, dst, own_); }
  Status inverse(In<T, kChannels> src, Out<T, kChannels> dst, Buffer& buffer) const {
    return run(src, dst, buffer, [&](Qvp8u* work) { return Functions::inverse(src, dst, record(), work); });
  }

 private:
  using Spec = typename Functions::Spec;
  const Spec* record() const { return spec<Spec>(); }

  QvpStatus prepare(int flag) {
    int bytes = 0, init = 0;
    const QvpStatus status = Functions::size(size_, flag, qvpAlgHintFast, &bytes, &init, &work_bytes_);
    if (status < 0) return status;
    return make(bytes, init, [&](Qvp8u* memory, Qvp8u* temporary) {
      return Functions::init(size_, flag, qvpAlgHintFast, reinterpret_cast<Spec*>(memory), temporary);
    });
  }

  template <class Call>
  Status run(const Rows& src, const Rows& dst, Buffer& buffer, Call call) const {
    QvpStatus status = ready(detail::has_size(src, size_) && detail::has_size(dst, size_));
    if (status >= 0) status = buffer.reserve(work_bytes_) ? call(buffer.data()) : qvpStatusMemoryAllocation;
    return detail::finish(status);
  }

  QvpiSize size_;
  int work_bytes_ = 0;
};

/** The Fourier transform of images of one size: `Fourier<Qvp32f> f(image.size()); f.forward(image, spectrum);`
 *
 *  32f of 1, 3 and 4 channels has packed spectra of its own size, for multiply_packed() and others; 32fc of one channel
 *  complex ones. Any size will do.
 */
template <class T, int kChannels = 1>
class Fourier;

template <int kChannels>
class Fourier<Qvp32f, kChannels> : public Transform<detail::RealFourier, Qvp32f, kChannels> {
 public:
  explicit Fourier(QvpiSize size, FourierNorm norm = FourierNorm::backward)
      : Transform<detail::RealFourier, Qvp32f, kChannels>(size, norm) {}
};

template <>
class Fourier<Qvp32fc> : public Transform<detail::ComplexFourier, Qvp32fc, 1> {
 public:
  explicit Fourier(QvpiSize size, FourierNorm norm = FourierNorm::backward) : Transform(size, norm) {}
};

/** The cosine transform (DCT-II, and its inverse) of 32f images of one size, of 1, 3 and 4 channels; any size will do.
 */
template <int kChannels = 1>
class Cosine : public Transform<detail::RealCosine, Qvp32f, kChannels> {
 public:
  explicit Cosine(QvpiSize size, FourierNorm norm = FourierNorm::ortho)
      : Transform<detail::RealCosine, Qvp32f, kChannels>(size, norm) {}
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
