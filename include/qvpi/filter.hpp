/** @file filter.hpp
 *  Filters with a record: general and separable kernels, Gauss, bilateral, erosion and dilation.
 */
#ifndef QVPI_FILTER_HPP
#define QVPI_FILTER_HPP

#include <span>

#include "qvpi/operations/denoise.hpp"
#include "qvpi/operations/filter.hpp"
#include "qvpi/record.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

/** A filter for images of any size: `auto blur = Filter<Qvp8u, 3>::gauss({9, 9}, 1.5); blur(src, dst);`
 *
 *  Sources and destinations have one type and number of channels, and must not overlap. What is outside of the image is
 *  told by the border; a view whose surroundings are pixels too has sides in memory, as in
 *  `BorderType::replicate | BorderType::in_mem_top`.
 */
template <class T, int kChannels = 1>
class Filter : public Recorded {
 public:
  /** A Gauss filter of odd size. */
  static Filter gauss(QvpiSize mask_size, Qvp32f sigma_x, Qvp32f sigma_y) {
    Filter filter(mask_size, &gauss_size, &run<QvpiFilterGaussBorderSpec>);
    filter.prepare([&](Qvp8u* memory) {
      return qvpiFilterGaussBorderInit(mask_size, sigma_x, sigma_y, kType, kCount,
                                       record<QvpiFilterGaussBorderSpec>(memory));
    });
    return filter;
  }
  static Filter gauss(QvpiSize mask_size, Qvp32f sigma) { return gauss(mask_size, sigma, sigma); }

  /** A bilateral filter: each pixel the mean of a disc, in which pixels count by nearness and likeness. */
  static Filter bilateral(int radius, Qvp32f sigma_range, Qvp32f sigma_space, NormType norm = NormType::l2) {
    Filter filter({radius, 0}, &bilateral_size, &run<QvpiFilterBilateralBorderSpec>);
    filter.prepare([&](Qvp8u* memory) {
      return qvpiFilterBilateralBorderInit(radius, int(norm), sigma_range, sigma_space, kType, kCount,
                                           record<QvpiFilterBilateralBorderSpec>(memory));
    });
    return filter;
  }

  /** A convolution with any kernel, by rows, of integers that are divided by `divisor` at the end. */
  static Filter kernel(QvpiSize size, std::span<const Qvp16s> taps, int divisor = 1,
                       RoundMode rounding = RoundMode::near) {
    Filter filter(size, &kernel_size<qvp16s>, &run<QvpiFilterBorderSpec>);
    filter.prepare_if(holds(size, taps.size()), [&](Qvp8u* memory) {
      return qvpiFilterBorderInit_16s(taps.data(), size, divisor, kType, kCount, int(rounding),
                                      record<QvpiFilterBorderSpec>(memory));
    });
    return filter;
  }
  /** The same of floats. */
  static Filter kernel(QvpiSize size, std::span<const Qvp32f> taps, RoundMode rounding = RoundMode::near) {
    Filter filter(size, &kernel_size<qvp32f>, &run<QvpiFilterBorderSpec>);
    filter.prepare_if(holds(size, taps.size()), [&](Qvp8u* memory) {
      return qvpiFilterBorderInit_32f(taps.data(), size, kType, kCount, int(rounding),
                                      record<QvpiFilterBorderSpec>(memory));
    });
    return filter;
  }

  /** A convolution with the product of a row and a column of integers, divided by `divisor` at the end. */
  static Filter separable(std::span<const Qvp16s> row, std::span<const Qvp16s> column, int divisor = 1,
                          RoundMode rounding = RoundMode::near) {
    const QvpiSize size = {int(row.size()), int(column.size())};
    Filter filter(size, &separable_size<qvp16s>, &run<QvpiFilterSeparableBorderSpec>);
    filter.prepare([&](Qvp8u* memory) {
      return qvpiFilterSeparableBorderInit_16s(row.data(), column.data(), size, divisor, kType, kType, kCount,
                                               int(rounding), record<QvpiFilterSeparableBorderSpec>(memory));
    });
    return filter;
  }
  /** The same of floats. */
  static Filter separable(std::span<const Qvp32f> row, std::span<const Qvp32f> column,
                          RoundMode rounding = RoundMode::near) {
    const QvpiSize size = {int(row.size()), int(column.size())};
    Filter filter(size, &separable_size<qvp32f>, &run<QvpiFilterSeparableBorderSpec>);
    filter.prepare([&](Qvp8u* memory) {
      return qvpiFilterSeparableBorderInit_32f(row.data(), column.data(), size, kType, kType, kCount, int(rounding),
                                               record<QvpiFilterSeparableBorderSpec>(memory));
    });
    return filter;
  }

  /** The least, or the greatest pixel under the places of a mask, by rows, that are not 0. */
  static Filter erode(QvpiSize size, std::span<const Qvp8u> mask, QvpiPoint anchor) {
    return morphology(size, mask, anchor, &run_erode);
  }
  static Filter dilate(QvpiSize size, std::span<const Qvp8u> mask, QvpiPoint anchor) {
    return morphology(size, mask, anchor, &run_dilate);
  }

  /** How many rows and columns beyond its place a pixel may be made from, at most. */
  int reach() const { return mask_.width > mask_.height ? mask_.width : mask_.height; }

  Status operator()(In<T, kChannels> src, Out<T, kChannels> dst, BorderType border = BorderType::replicate,
                    const Pixel<T, kChannels>& value = {}) {
    return (*this)(src, dst, border, value, own_);
  }
  Status operator()(In<T, kChannels> src, Out<T, kChannels> dst, BorderType border, const Pixel<T, kChannels>& value,
                    Buffer& buffer) const {
    const QvpStatus status = ready(detail::same(src, dst));
    if (status < 0) return detail::finish(status);
    int unused = 0;
    return detail::finish(detail::call_with(
        buffer, [&](int* bytes) { return size_(mask_, dst.size(), &unused, bytes); },
        [&](Qvp8u* work) { return run_(src, dst, int(border), value.data(), spec<Qvp8u>(), work); }));
  }

 private:
  static_assert(kChannels == 1 || kChannels == 3 || kChannels == 4, "qvp::Filter is for 1, 3 and 4 channels");
  static constexpr QvpDataType kType = detail::kDataType<T>;
  static constexpr int kCount = kChannels;

  using SizeQuery = QvpStatus (*)(QvpiSize mask, QvpiSize image, int* record, int* buffer);
  using Run = QvpStatus (*)(In<T, kChannels>, Out<T, kChannels>, QvpiBorderType, const T*, const Qvp8u*, Qvp8u*);

  Filter(QvpiSize mask, SizeQuery size, Run call) : mask_(mask), size_(size), run_(call) {}

  template <class Spec>
  static Spec* record(Qvp8u* memory) {
    return reinterpret_cast<Spec*>(memory);
  }

  static bool holds(QvpiSize size, std::size_t count) {
    return size.width > 0 && size.height > 0 && count / size.width >= std::size_t(size.height);
  }

  template <class Init>
  void prepare(Init init) {
    int bytes = 0, unused = 0;
    const QvpStatus status = size_(mask_, {1, 1}, &bytes, &unused);
    made(status < 0 ? status : make(bytes, 0, [&](Qvp8u* memory, Qvp8u*) { return init(memory); }));
  }
  template <class Init>
  void prepare_if(bool is_whole, Init init) {
    is_whole ? prepare(init) : made(qvpStatusSize);
  }

  static Filter morphology(QvpiSize size, std::span<const Qvp8u> mask, QvpiPoint anchor, Run call) {
    Filter filter(size, &morphology_size, call);
    filter.prepare_if(holds(size, mask.size()), [&](Qvp8u* memory) {
      return qvpiFilterMorphologyBorderInit(mask.data(), size, anchor, record<QvpiFilterMorphologyBorderSpec>(memory));
    });
    return filter;
  }

  static QvpStatus gauss_size(QvpiSize mask, QvpiSize image, int* bytes, int* buffer) {
    return qvpiFilterGaussBorderGetSize(mask, image, kType, kCount, bytes, buffer);
  }
  static QvpStatus bilateral_size(QvpiSize mask, QvpiSize image, int* bytes, int* buffer) {
    return qvpiFilterBilateralBorderGetSize(mask.width, image, kType, kCount, bytes, buffer);
  }
  template <QvpDataType kTaps>
  static QvpStatus kernel_size(QvpiSize mask, QvpiSize image, int* bytes, int* buffer) {
    return qvpiFilterBorderGetSize(mask, image, kType, kTaps, kCount, bytes, buffer);
  }
  template <QvpDataType kTaps>
  static QvpStatus separable_size(QvpiSize mask, QvpiSize image, int* bytes, int* buffer) {
    return qvpiFilterSeparableBorderGetSize(mask, image, kType, kType, kTaps, kCount, bytes, buffer);
  }
  static QvpStatus morphology_size(QvpiSize mask, QvpiSize image, int* bytes, int* buffer) {
    return qvpiFilterMorphologyBorderGetSize(mask, image, kType, kCount, bytes, buffer);
  }

  template <class Spec>
  static QvpStatus run(In<T, kChannels> src, Out<T, kChannels> dst, QvpiBorderType border, const T* value,
                       const Qvp8u* memory, Qvp8u* work) {
    const auto* spec = reinterpret_cast<const Spec*>(memory);
    static_assert(
        requires { calls::filter(src, dst, border, value, spec, work); },
        "qvp::Filter: kernels and Gauss are for 8u, 16u, 16s and 32f, the bilateral one for 8u, 16u and 32f");
    return calls::filter(src, dst, border, value, spec, work);
  }
  static QvpStatus run_erode(In<T, kChannels> src, Out<T, kChannels> dst, QvpiBorderType border, const T* value,
                             const Qvp8u* memory, Qvp8u* work) {
    const auto* spec = reinterpret_cast<const QvpiFilterMorphologyBorderSpec*>(memory);
    return calls::filter_erode_border(src, dst, border, value, spec, work);
  }
  static QvpStatus run_dilate(In<T, kChannels> src, Out<T, kChannels> dst, QvpiBorderType border, const T* value,
                              const Qvp8u* memory, Qvp8u* work) {
    const auto* spec = reinterpret_cast<const QvpiFilterMorphologyBorderSpec*>(memory);
    return calls::filter_dilate_border(src, dst, border, value, spec, work);
  }

  QvpiSize mask_;
  SizeQuery size_;
  Run run_;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
