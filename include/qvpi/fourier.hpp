/** @file fourier.hpp
 *  Fourier transforms of images.
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

namespace detail {

// The record of images of a pixel type, and the functions that make it.
template <class T>
struct FourierRecord;

template <>
struct FourierRecord<Qvp32f> {
  using Spec = QvpiDFTSpec_R_32f;
  static constexpr auto size = &qvpiDFTGetSize_R_32f;
  static constexpr auto init = &qvpiDFTInit_R_32f;
};

template <>
struct FourierRecord<Qvp32fc> {
  using Spec = QvpiDFTSpec_C_32fc;
  static constexpr auto size = &qvpiDFTGetSize_C_32fc;
  static constexpr auto init = &qvpiDFTInit_C_32fc;
};

}  // namespace detail

inline namespace QVP_ERRORS {

/** Transforms images of one size: `Fourier<Qvp32f> f(image.size()); f.forward(image, spectrum);`
 *
 *  32f of 1, 3 and 4 channels has packed spectra of its own size, for multiply_packed() and others; 32fc of one channel
 *  complex ones. Any size will do. An image may be transformed in place.
 */
template <class T, int kChannels = 1>
class Fourier : public Recorded {
  static constexpr bool kIsReal = std::is_same_v<T, Qvp32f>;
  static_assert((kIsReal && (kChannels == 1 || kChannels == 3 || kChannels == 4)) ||
                    (std::is_same_v<T, Qvp32fc> && kChannels == 1),
                "qvp::Fourier is for 32f with 1, 3 and 4 channels, and for 32fc with one");

 public:
  explicit Fourier(QvpiSize size, FourierNorm norm = FourierNorm::backward) : size_(size) { made(prepare(int(norm))); }

  Status forward(In<T, kChannels> src, Out<T, kChannels> dst) { return forward(src, dst, own_); }
  Status forward(In<T, kChannels> src, Out<T, kChannels> dst, Buffer& buffer) const {
    return run(src, dst, buffer, [&](Qvp8u* work) {
      if constexpr (kIsReal) {
        return calls::dft_fwd_r_to_pack(src, dst, spec(), work);
      } else {
        return calls::dft_fwd_c_to_c(src, dst, spec(), work);
      }
    });
  }

  Status inverse(In<T, kChannels> src, Out<T, kChannels> dst) { return inverse(src, dst, own_); }
  Status inverse(In<T, kChannels> src, Out<T, kChannels> dst, Buffer& buffer) const {
    return run(src, dst, buffer, [&](Qvp8u* work) {
      if constexpr (kIsReal) {
        return calls::dft_inv_pack_to_r(src, dst, spec(), work);
      } else {
        return calls::dft_inv_c_to_c(src, dst, spec(), work);
      }
    });
  }

 private:
  using Record = detail::FourierRecord<T>;
  using Spec = typename Record::Spec;
  Spec* spec() const { return Recorded::spec<Spec>(); }

  QvpStatus prepare(int flag) {
    int record = 0, init = 0;
    const QvpStatus status = Record::size(size_, flag, qvpAlgHintFast, &record, &init, &work_bytes_);
    if (status < 0) return status;
    return make(record, init, [&](Qvp8u* memory, Qvp8u* temporary) {
      return Record::init(size_, flag, qvpAlgHintFast, reinterpret_cast<Spec*>(memory), temporary);
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

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
