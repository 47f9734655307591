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
template <int kRows, int kColumns>
const double (*rows(const Matrix<kRows, kColumns>& matrix))[kColumns] {
  return reinterpret_cast<const double(*)[kColumns]>(matrix.data());
}
template <int kRows, int kColumns>
double (*rows(Matrix<kRows, kColumns>& matrix))[kColumns] {
  return reinterpret_cast<double(*)[kColumns]>(matrix.data());
}

}  // namespace detail

/** Turns by degrees counter-clockwise, makes larger by `scale`, and takes the point `from` to the point `to`. */
inline Result<Matrix<2, 3>> rotation(double angle, std::array<double, 2> from, std::array<double, 2> to,
                                     double scale = 1) {
  Matrix<2, 3> matrix = {};
  const QvpStatus status =
      qvpiGetRotateScaleTransform(from[0], from[1], to[0], to[1], angle, scale, detail::rows<2, 3>(matrix));
  return detail::finish(status, matrix);
}

/** Takes one parallelogram to another. */
inline Result<Matrix<2, 3>> affine_transform(const Quad& from, const Quad& to) {
  Matrix<2, 3> matrix = {};
  const QvpStatus status =
      qvpiGetAffineQuadTransform(detail::rows<4, 2>(from), detail::rows<4, 2>(to), detail::rows<2, 3>(matrix));
  return detail::finish(status, matrix);
}

/** Takes one quadrangle to another: a page that was photographed to a rectangle. */
inline Result<Matrix<3, 3>> perspective_transform(const Quad& from, const Quad& to) {
  Matrix<3, 3> matrix = {};
  const QvpStatus status =
      qvpiGetPerspectiveQuadTransform(detail::rows<4, 2>(from), detail::rows<4, 2>(to), detail::rows<3, 3>(matrix));
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
  Warp(QvpiSize src, QvpiSize dst, const Matrix<2, 3>& matrix, const WarpOptions& options = {})
      : src_(src), dst_(dst), run_(affine_call(options.method)) {
    made(prepare(options, affine(src, dst, detail::rows<2, 3>(matrix), options)));
  }
  Warp(QvpiSize src, QvpiSize dst, const Matrix<3, 3>& matrix, const WarpOptions& options = {})
      : src_(src), dst_(dst), run_(perspective_call(options.method)) {
    made(prepare(options, perspective(src, dst, detail::rows<3, 3>(matrix), options)));
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

  // The functions of one kind of warp: the size of the record, and what makes it.
  static auto affine(QvpiSize src, QvpiSize dst, const double (*matrix)[3], const WarpOptions& with) {
    const int way = int(with.direction), border = int(with.border);
    return Kind{[=](int method, int* record, int* init) {
                  return qvpiWarpAffineGetSize(src, dst, kType, matrix, method, way, border, record, init);
                },
                [=](auto... rest) {
                  return qvpiWarpAffineNearestInit(src, dst, kType, matrix, way, kChannels, border, rest...);
                },
                [=](auto... rest) {
                  return qvpiWarpAffineLinearInit(src, dst, kType, matrix, way, kChannels, border, rest...);
                },
                [=, b = with.b, c = with.c](auto... rest) {
                  return qvpiWarpAffineCubicInit(src, dst, kType, matrix, way, kChannels, b, c, border, rest...);
                }};
  }
  static auto perspective(QvpiSize src, QvpiSize dst, const double (*matrix)[3], const WarpOptions& with) {
    const int way = int(with.direction), border = int(with.border);
    return Kind{[=](int method, int* record, int* init) {
                  return qvpiWarpPerspectiveGetSize(src, dst, kType, matrix, method, way, border, record, init);
                },
                [=](auto... rest) {
                  return qvpiWarpPerspectiveNearestInit(src, dst, kType, matrix, way, kChannels, border, rest...);
                },
                [=](auto... rest) {
                  return qvpiWarpPerspectiveLinearInit(src, dst, kType, matrix, way, kChannels, border, rest...);
                },
                [=, b = with.b, c = with.c](auto... rest) {
                  return qvpiWarpPerspectiveCubicInit(src, dst, kType, matrix, way, kChannels, b, c, border, rest...);
                }};
  }

  template <class Size, class Nearest, class Linear, class Cubic>
  struct Kind {
    Size size;
    Nearest nearest;
    Linear linear;
    Cubic cubic;
  };
  template <class... Functions>
  Kind(Functions...) -> Kind<Functions...>;

  template <class WarpKind>
  QvpStatus prepare(const WarpOptions& options, const WarpKind& kind) {
    int record = 0, init = 0;
    const QvpStatus status = kind.size(int(options.method), &record, &init);
    if (status < 0) return status;
    return make(record, init, [&](Qvp8u* memory, Qvp8u* temporary) {
      Spec* made = reinterpret_cast<Spec*>(memory);
      const double* value = options.value.data();
      switch (options.method) {
        case InterpolationType::nearest: return kind.nearest(value, int(options.smooth_edge), made);
        case InterpolationType::linear: return kind.linear(value, int(options.smooth_edge), made);
        default: return kind.cubic(value, int(options.smooth_edge), made, temporary);
      }
    });
  }

  static Run affine_call(InterpolationType method) {
    return method == InterpolationType::nearest  ? Run(&calls::warp_affine_nearest)
           : method == InterpolationType::linear ? Run(&calls::warp_affine_linear)
                                                 : Run(&calls::warp_affine_cubic);
  }
  static Run perspective_call(InterpolationType method) {
    return method == InterpolationType::nearest  ? Run(&calls::warp_perspective_nearest)
           : method == InterpolationType::linear ? Run(&calls::warp_perspective_linear)
                                                 : Run(&calls::warp_perspective_cubic);
  }

  QvpiSize src_, dst_;
  Run run_;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
