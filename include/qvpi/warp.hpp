/** @file warp.hpp
 *  Affine and perspective warps.
 */
#ifndef QVPI_WARP_HPP
#define QVPI_WARP_HPP

#include "qvpi/operations/geometry.hpp"
#include "qvpi/record.hpp"

namespace qvp {

/** Four corners (x, y), in order around a quadrangle. */
using Quad = Matrix<4, 2>;

/** How an image is warped. */
struct WarpOptions {
  InterpolationType method = InterpolationType::linear; /**< nearest, linear or cubic */
  WarpDirection direction = WarpDirection::forward;     /**< which way the matrix maps */
  BorderType border = BorderType::constant;             /**< constant, replicate, or transparent */
  std::array<double, 4> value = {};                     /**< what is outside, of each channel: constant */
  bool smooth_edge = false;                             /**< edges blend into the destination's pixels */
  double b = 0, c = 0.5;                                /**< cubic: the parameters of the kernel */
};

inline namespace QVP_ERRORS {

namespace detail {

// A matrix as C takes it.
template <std::size_t kRows, std::size_t kColumns>
const double (*rows(const Matrix<kRows, kColumns>& matrix))[kColumns] {
  return reinterpret_cast<const double(*)[kColumns]>(matrix.data());
}
template <std::size_t kRows, std::size_t kColumns>
double (*rows(Matrix<kRows, kColumns>& matrix))[kColumns] {
  return reinterpret_cast<double(*)[kColumns]>(matrix.data());
}

// The functions for matrices of so many rows: affine warps, and perspectives.
template <std::size_t kRows>
struct WarpFunctions;

template <>
struct WarpFunctions<2> {
  static constexpr auto size = &qvpiWarpAffineGetSize;
  static constexpr auto nearest_init = &qvpiWarpAffineNearestInit;
  static constexpr auto linear_init = &qvpiWarpAffineLinearInit;
  static constexpr auto cubic_init = &qvpiWarpAffineCubicInit;
  static QvpStatus nearest(auto... arguments) { return calls::warp_affine_nearest(arguments...); }
  static QvpStatus linear(auto... arguments) { return calls::warp_affine_linear(arguments...); }
  static QvpStatus cubic(auto... arguments) { return calls::warp_affine_cubic(arguments...); }
};

template <>
struct WarpFunctions<3> {
  static constexpr auto size = &qvpiWarpPerspectiveGetSize;
  static constexpr auto nearest_init = &qvpiWarpPerspectiveNearestInit;
  static constexpr auto linear_init = &qvpiWarpPerspectiveLinearInit;
  static constexpr auto cubic_init = &qvpiWarpPerspectiveCubicInit;
  static QvpStatus nearest(auto... arguments) { return calls::warp_perspective_nearest(arguments...); }
  static QvpStatus linear(auto... arguments) { return calls::warp_perspective_linear(arguments...); }
  static QvpStatus cubic(auto... arguments) { return calls::warp_perspective_cubic(arguments...); }
};

}  // namespace detail

/** Turns by degrees counter-clockwise, makes larger by `scale`, and takes the point `from` to the point `to`. */
inline Result<Matrix<2, 3>> rotation(double angle, std::array<double, 2> from, std::array<double, 2> to,
                                     double scale = 1) {
  Matrix<2, 3> matrix = {};
  const QvpStatus status =
      qvpiGetRotateScaleTransform(from[0], from[1], to[0], to[1], angle, scale, detail::rows(matrix));
  return detail::finish(status, matrix);
}

/** Takes one parallelogram to another. */
inline Result<Matrix<2, 3>> affine_transform(const Quad& from, const Quad& to) {
  Matrix<2, 3> matrix = {};
  const QvpStatus status = qvpiGetAffineQuadTransform(detail::rows(from), detail::rows(to), detail::rows(matrix));
  return detail::finish(status, matrix);
}

/** Takes one quadrangle to another: a page that was photographed to a rectangle. */
inline Result<Matrix<3, 3>> perspective_transform(const Quad& from, const Quad& to) {
  Matrix<3, 3> matrix = {};
  const QvpStatus status = qvpiGetPerspectiveQuadTransform(detail::rows(from), detail::rows(to), detail::rows(matrix));
  return detail::finish(status, matrix);
}

/** Warps images of one size: `Warp<Qvp8u, 3> w(src.size(), dst.size(), matrix); w(src, dst);`
 *
 *  A matrix of two rows makes an affine warp, one of three a perspective. Positions are (x, y), and pixels lie at whole
 *  ones. 8u, 16u, 16s, 32f and 64f of 1, 3 and 4 channels. Results are the same by tiles.
 */
template <class T, int kChannels = 1>
class Warp : public Recorded {
  static_assert(
      requires(In<T, kChannels> a, Out<T, kChannels> b) { calls::warp_affine_linear(a, b, {}, {}, {}); },
      "qvp::Warp is for 8u, 16u, 16s, 32f and 64f with 1, 3 and 4 channels");

 public:
  template <std::size_t kRows>
  requires(kRows == 2 || kRows == 3)
      Warp(QvpiSize src, QvpiSize dst, const Matrix<kRows, 3>& matrix, const WarpOptions& options = {})
      : src_(src), dst_(dst), run_(call_of<detail::WarpFunctions<kRows>>(options.method)) {
    made(prepare<detail::WarpFunctions<kRows>>(detail::rows(matrix), options));
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
    const bool fits = Rows(0, dst_).contains({offset.x, offset.y, dst.width(), dst.height()});
    const QvpStatus status = ready(fits && detail::has_size(src, src_));
    if (status < 0) return detail::finish(status);
    return detail::finish(detail::call_with(
        buffer, [&](int* bytes) { return qvpiWarpGetBufferSize(spec(), dst.size(), bytes); },
        [&](Qvp8u* work) { return run_(src, dst, offset, spec(), work); }));
  }

 private:
  using Spec = QvpiWarpSpec;
  using Run = QvpStatus (*)(In<T, kChannels>, Out<T, kChannels>, QvpiPoint, const Spec*, Qvp8u*);
  static constexpr QvpDataType kType = detail::kDataType<T>;

  Spec* spec() const { return Recorded::spec<Spec>(); }

  template <class Functions>
  QvpStatus prepare(const double (*matrix)[3], const WarpOptions& options) {
    const int method = int(options.method), way = int(options.direction), border = int(options.border);
    int record = 0, init = 0;
    const QvpStatus status = Functions::size(src_, dst_, kType, matrix, method, way, border, &record, &init);
    if (status < 0) return status;
    return make(record, init, [&](Qvp8u* memory, Qvp8u* temporary) {
      const auto with = [&](auto function, auto... more) {  // what all Init functions take, and what only some do
        return function(src_, dst_, kType, matrix, way, kChannels, more..., border, options.value.data(),
                        int(options.smooth_edge), reinterpret_cast<Spec*>(memory));
      };
      if (options.method == InterpolationType::nearest) return with(Functions::nearest_init);
      if (options.method == InterpolationType::linear) return with(Functions::linear_init);
      const auto cubic_init = [=](auto... arguments) { return Functions::cubic_init(arguments..., temporary); };
      return with(cubic_init, options.b, options.c);
    });
  }

  template <class Functions>
  static Run call_of(InterpolationType method) {
    if (method == InterpolationType::nearest) return &Functions::nearest;
    return method == InterpolationType::linear ? Run(&Functions::linear) : Run(&Functions::cubic);
  }

  QvpiSize src_, dst_;
  Run run_;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
