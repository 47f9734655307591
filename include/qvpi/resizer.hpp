/** @file resizer.hpp
 *  Images of another size.
 */
#ifndef QVPI_RESIZER_HPP
#define QVPI_RESIZER_HPP

#include "qvpi/operations/geometry.hpp"
#include "qvpi/record.hpp"

namespace qvp {

/** How an image is resized. */
struct ResizeOptions {
  /** nearest, linear, cubic, lanczos, or super: the mean over the area of a pixel, for reductions. */
  InterpolationType method = InterpolationType::linear;
  bool antialias = false;                    /**< kernels widened so that every source pixel counts */
  BorderType border = BorderType::replicate; /**< beyond the source: replicate or mirror */
  Qvp32f b = 0, c = 0.5F;                    /**< cubic: the parameters of Mitchell and Netravali's kernel */
  int lobes = 3;                             /**< Lanczos: 2 or 3 */
  bool accurate = false;                     /**< 8u in single precision, instead of 16-bit weights */
};

namespace detail {

template <class T>
QvpStatus init_antialiased(QvpiSize src, QvpiSize dst, const ResizeOptions& options, QvpiResizeSpec* spec,
                           Qvp8u* init) {
  switch (options.method) {
    case InterpolationType::linear: return qvpiResizeAntialiasingLinearInit(src, dst, spec, init);
    case InterpolationType::cubic: return qvpiResizeAntialiasingCubicInit(src, dst, options.b, options.c, spec, init);
    case InterpolationType::lanczos: return qvpiResizeAntialiasingLanczosInit(src, dst, options.lobes, spec, init);
    default: return qvpStatusInterpolation;
  }
}

}  // namespace detail

inline namespace QVP_ERRORS {

/** Resizes images of one size to another: `Resizer<Qvp8u, 3> resizer(src.size(), dst.size()); resizer(src, dst);`
 *
 *  8u, 16u, 16s and 32f, and 64f by linear interpolation, of 1, 3 and 4 channels. Results are the same by tiles.
 */
template <class T, int kChannels = 1>
class Resizer : public Recorded {
  static_assert(
      requires(In<T, kChannels> a, Out<T, kChannels> b) { calls::resize_linear(a, b, {}, 0, {}, {}, {}); },
      "qvp::Resizer is for 8u, 16u, 16s, 32f and 64f with 1, 3 and 4 channels");

 public:
  Resizer(QvpiSize src, QvpiSize dst, const ResizeOptions& options = {}) : src_(src), dst_(dst), options_(options) {
    made(prepare());
  }

  /** Whether images of these sizes are what it was made for. */
  bool is_for(QvpiSize src, QvpiSize dst) const {
    return detail::has_size(Rows(0, src), src_) && detail::has_size(Rows(0, dst), dst_);
  }

  /** The whole image. */
  Status operator()(In<T, kChannels> src, Out<T, kChannels> dst) { return (*this)(src, dst, own_); }
  Status operator()(In<T, kChannels> src, Out<T, kChannels> dst, Buffer& buffer) const {
    return detail::has_size(dst, dst_) ? tile(src, dst, {0, 0}, buffer) : detail::finish(ready(false));
  }

  /** A tile of the destination whose first pixel is at `offset`, from the whole source. */
  Status tile(In<T, kChannels> src, Out<T, kChannels> dst, QvpiPoint offset, Buffer& buffer) const {
    QvpStatus status =
        ready(detail::has_size(src, src_) && Rows(0, dst_).contains({offset.x, offset.y, dst.width(), dst.height()}));
    QvpiPoint first = {0, 0};
    if (status >= 0) status = calls::resize_get_src_offset(Of<T>(), spec(), offset, &first);
    if (status < 0) return detail::finish(status);
    const In<T, kChannels> from(src.at(first.x, first.y), src.step(), src.size());
    return detail::finish(detail::call_with(
        buffer,
        [&](int* bytes) {
          return calls::resize_get_buffer_size(Of<T>(), spec(), dst.size(), pixel_stride(kChannels), bytes);
        },
        [&](Qvp8u* work) { return run(from, dst, offset, work); }));
  }

 private:
  using Spec = QvpiResizeSpec;
  Spec* spec() const { return Recorded::spec<Spec>(); }

  QvpStatus prepare() {
    int record = 0, init = 0;
    const QvpStatus status =
        calls::resize_get_size(Of<T>(), src_, dst_, int(options_.method), options_.antialias, &record, &init);
    if (status < 0) return status;
    return make(record, init, [&](Qvp8u* memory, Qvp8u* temporary) {
      Spec* made = reinterpret_cast<Spec*>(memory);
      if (options_.antialias) return detail::init_antialiased<T>(src_, dst_, options_, made, temporary);
      const QvpStatus result = init_plain(made, temporary);
      return result < 0 || !is_switched() ? result : qvpiResizeSetMode(qvpAlgHintAccurate, made);
    });
  }

  // The methods that only move pixels or take means have one way of computing.
  bool is_switched() const {
    return options_.accurate && options_.method != InterpolationType::nearest &&
           options_.method != InterpolationType::super;
  }

  QvpStatus init_plain(Spec* made, Qvp8u* temporary) {
    constexpr Of<T> type;
    if (options_.method == InterpolationType::linear) return calls::resize_linear_init(type, src_, dst_, made);
    if constexpr (kHasAll) {
      switch (options_.method) {
        case InterpolationType::nearest: return calls::resize_nearest_init(type, src_, dst_, made);
        case InterpolationType::super: return calls::resize_super_init(type, src_, dst_, made);
        case InterpolationType::cubic:
          return calls::resize_cubic_init(type, src_, dst_, options_.b, options_.c, made, temporary);
        case InterpolationType::lanczos:
          return calls::resize_lanczos_init(type, src_, dst_, options_.lobes, made, temporary);
        default: break;
      }
    }
    return qvpStatusInterpolation;
  }

  QvpStatus run(In<T, kChannels> src, Out<T, kChannels> dst, QvpiPoint offset, Qvp8u* work) const {
    const int border = int(options_.border);
    if (options_.antialias) return calls::resize_antialiasing(src, dst, offset, border, nullptr, spec(), work);
    if constexpr (kHasAll) {
      switch (options_.method) {
        case InterpolationType::nearest: return calls::resize_nearest(src, dst, offset, spec(), work);
        case InterpolationType::super: return calls::resize_super(src, dst, offset, spec(), work);
        case InterpolationType::cubic: return calls::resize_cubic(src, dst, offset, border, nullptr, spec(), work);
        case InterpolationType::lanczos: return calls::resize_lanczos(src, dst, offset, border, nullptr, spec(), work);
        default: break;
      }
    }
    return calls::resize_linear(src, dst, offset, border, nullptr, spec(), work);
  }

  static constexpr bool kHasAll = !std::is_same_v<T, Qvp64f>;

  QvpiSize src_, dst_;
  ResizeOptions options_;
};

/** Resizes an image to the size of another; a Resizer is faster for more than one. */
template <detail::HasPixels Source, detail::HasPixels Destination>
Status resize(const Source& src, Destination&& dst, const ResizeOptions& options = {}) {
  const auto to = detail::view_of(dst);
  using To = std::remove_const_t<decltype(to)>;
  using From = In<typename To::Number, To::layout>;
  static_assert(std::is_convertible_v<const Source&, From>, "qvp::resize needs images of one type and layout");
  Resizer<typename To::Number, To::layout> resizer(src.size(), to.size(), options);
  return resizer(src, to);
}

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
