/** @file hog.hpp
 *  Histograms of oriented gradients.
 */
#ifndef QVPI_HOG_HPP
#define QVPI_HOG_HPP

#include <span>

#include "qvpi/operations/feature.hpp"
#include "qvpi/record.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

/** Describes windows of images by their gradients: `Hog hog(config); hog(image, places, descriptors);` */
class Hog : public Recorded {
 public:
  explicit Hog(const QvpiHOGConfig& config) : config_(config) { made(prepare()); }

  /** How many numbers describe a window. */
  int length() const { return length_; }

  /** The descriptors of the windows with these first pixels, one after the other.
   *
   *  8u, 16u, 16s and 32f of 1 and 3 channels. Windows that do not lie within the whole blocks of the image are left
   *  out, and the next descriptor takes their place. Too few places for the numbers are refused with qvpStatusSize.
   */
  template <detail::HasPixels Source>
  Status operator()(const Source& src, std::span<const QvpiPoint> windows, std::span<Qvp32f> descriptors,
                    BorderType border = BorderType::replicate) {
    return (*this)(src, windows, descriptors, border, own_);
  }
  template <detail::HasPixels Source>
  Status operator()(const Source& src, std::span<const QvpiPoint> windows, std::span<Qvp32f> descriptors,
                    BorderType border, Buffer& buffer) const {
    const auto view = detail::view_of(src);
    using T = typename decltype(view)::Number;
    using Pixels = In<T, decltype(view)::layout>;
    static_assert(
        requires(Pixels pixels) { calls::hog(pixels, {}, 0, {}, {}, 0, {}, {}); },
        "qvp::Hog is for 8u, 16u, 16s and 32f with 1 and 3 channels");
    const QvpStatus status = ready(length_ > 0 && !windows.empty() && descriptors.size() / length_ >= windows.size());
    if (status < 0) return detail::finish(status);
    const Pixel<T, 4> black = {};
    return detail::finish(detail::call_with(
        buffer, [&](int* bytes) { return qvpiHOGGetBufferSize(record(), view.size(), bytes); },
        [&](Qvp8u* work) {
          return calls::hog(Pixels(view), windows.data(), int(windows.size()), descriptors.data(), record(),
                            int(border), black.data(), work);
        }));
  }

 private:
  const QvpiHOGSpec* record() const { return spec<QvpiHOGSpec>(); }

  QvpStatus prepare() {
    int bytes = 0;
    QvpStatus status = qvpiHOGGetSize(&config_, &bytes);
    if (status >= 0) {
      status = make(bytes, 0, [&](Qvp8u* memory, Qvp8u*) {
        return qvpiHOGInit(&config_, reinterpret_cast<QvpiHOGSpec*>(memory));
      });
    }
    int descriptor = 0;
    if (status >= 0) status = qvpiHOGGetDescriptorSize(record(), &descriptor);
    length_ = descriptor / static_cast<int>(sizeof(Qvp32f));
    return status;
  }

  QvpiHOGConfig config_;
  int length_ = 0;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
