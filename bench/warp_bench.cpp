// Warps and remap against OpenCV, which rounds positions to 1/32 pixel: ours keep 15 bits of a fraction, or more.
#include <cmath>
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace bench {
namespace {

// A rotation by 10 degrees about the centre, from destination to source.
struct Rotation {
  double c[2][3];
  explicit Rotation(QvpiSize size) {
    double x, y;
    Require(qvpiGetRotateShift((size.width - 1) / 2.0, (size.height - 1) / 2.0, 10, &x, &y));
    Require(qvpiGetRotateTransform(10, x, y, c));
  }
};

// Something like it with a tilt, which grows with the image.
struct Tilt {
  double c[3][3];
  explicit Tilt(QvpiSize size) {
    const double scale = size.width / 1920.0;
    const double of[3][3] = {{0.98, 0.17, -70 * scale}, {-0.17, 0.98, 170 * scale}, {1e-4 / scale, 5e-5 / scale, 1}};
    std::copy(of[0], of[0] + 9, c[0]);
  }
};

template <class T>
struct Case {
  int channels;
  QvpiSize size;
  Image<T> src, dst;
  std::shared_ptr<uint8_t[]> record = Pixels<uint8_t>(576), buffer = Pixels<uint8_t>(16384);

  Case(QvpiSize of, int nc) : channels(nc), size(of), src(of, nc), dst(of, nc) {
    if constexpr (std::is_floating_point_v<T>) {
      for (size_t i = 0; i < src.bytes() / sizeof(T); ++i) src.data()[i] = static_cast<T>(i % 251);
    }
  }
  QvpiWarpSpec* spec() const { return reinterpret_cast<QvpiWarpSpec*>(record.get()); }
  Traffic traffic() const { return {src.bytes(), dst.bytes()}; }
};

template <class T>
constexpr QvpDataType kType = sizeof(T) == 1   ? qvp8u
                              : sizeof(T) == 2 ? qvp16u
                                               : qvp32f;
constexpr double kZero[4] = {};

template <class T, class Function>
auto Ours(const Case<T>& c, Function function) {
  return [=] {
    Require(function(c.src.data(), c.src.step, c.dst.data(), c.dst.step, {0, 0}, c.size, c.spec(), c.buffer.get()));
  };
}

template <class T, class Function>
void AddAffine(const char* what, QvpiSize size, int channels, int method, Function function, double atLeast,
               QvpiBorderType border = qvpBorderConst) {
  const Case<T> c(size, channels);
  const Rotation r(size);
  if (method == cv::INTER_NEAREST) {
    Require(qvpiWarpAffineNearestInit(size, size, kType<T>, r.c, 1, channels, border, kZero, 0, c.spec()));
  } else if (method == cv::INTER_LINEAR) {
    Require(qvpiWarpAffineLinearInit(size, size, kType<T>, r.c, 1, channels, border, kZero, 0, c.spec()));
  } else {
    Require(qvpiWarpAffineCubicInit(size, size, kType<T>, r.c, 1, channels, 0, 0.75, border, kZero, 0, c.spec(),
                                    c.buffer.get()));
  }
  const cv::Mat matrix = cv::Mat(2, 3, CV_64F, const_cast<double*>(&r.c[0][0])).clone();
  const int flags = method | cv::WARP_INVERSE_MAP,
            edge = border == qvpBorderConst ? cv::BORDER_CONSTANT : cv::BORDER_REPLICATE;
  Add({Name(what, size),
       c.traffic(),
       Ours(c, function),
       {{"OpenCV warpAffine", [=] { cv::warpAffine(c.src.mat, c.dst.mat, matrix, c.dst.mat.size(), flags, edge); },
         atLeast}}});
}

template <class T, class Function>
void AddPerspective(const char* what, QvpiSize size, int channels, Function function, double atLeast) {
  const Case<T> c(size, channels);
  const Tilt tilt(size);
  Require(qvpiWarpPerspectiveLinearInit(size, size, kType<T>, tilt.c, 1, channels, qvpBorderConst, kZero, 0, c.spec()));
  const cv::Mat matrix = cv::Mat(3, 3, CV_64F, const_cast<double*>(&tilt.c[0][0])).clone();
  constexpr int kFlags = cv::INTER_LINEAR | cv::WARP_INVERSE_MAP;
  Add({Name(what, size),
       c.traffic(),
       Ours(c, function),
       {{"OpenCV warpPerspective", [=] { cv::warpPerspective(c.src.mat, c.dst.mat, matrix, c.dst.mat.size(), kFlags); },
         atLeast}}});
}

template <class T, class Function>
void AddRemap(const char* what, QvpiSize size, int channels, int ours, int method, Function function, double atLeast) {
  const Case<T> c(size, channels);
  const Image<float> x(size, 1), y(size, 1);
  const Rotation r(size);
  for (int j = 0; j < size.height; ++j) {
    for (int i = 0; i < size.width; ++i) {
      x.data()[j * size.width + i] = static_cast<float>(r.c[0][0] * i + r.c[0][1] * j + r.c[0][2]);
      y.data()[j * size.width + i] = static_cast<float>(r.c[1][0] * i + r.c[1][1] * j + r.c[1][2]);
    }
  }
  Add({Name(what, size),
       {c.src.bytes() + 2 * x.bytes(), c.dst.bytes()},
       [=] {
         Require(function(c.src.data(), size, c.src.step, {0, 0, size.width, size.height}, x.data(), x.step, y.data(),
                          y.step, c.dst.data(), c.dst.step, size, ours));
       },
       {{"OpenCV remap", [=] { cv::remap(c.src.mat, c.dst.mat, x.mat, y.mat, method, cv::BORDER_TRANSPARENT); },
         atLeast}}});
}

void AddAll(QvpiSize size) {
  AddAffine<uint8_t>("affine nearest 8u C1", size, 1, cv::INTER_NEAREST, qvpiWarpAffineNearest_8u_C1R, 2);
  AddAffine<uint8_t>("affine linear 8u C1", size, 1, cv::INTER_LINEAR, qvpiWarpAffineLinear_8u_C1R, 3);
  AddAffine<uint8_t>("affine linear 8u C3", size, 3, cv::INTER_LINEAR, qvpiWarpAffineLinear_8u_C3R, 3);
  AddAffine<float>("affine linear 32f C1", size, 1, cv::INTER_LINEAR, qvpiWarpAffineLinear_32f_C1R, 3.3);
  AddAffine<uint16_t>("affine linear 16u C1", size, 1, cv::INTER_LINEAR, qvpiWarpAffineLinear_16u_C1R, 3);
  AddAffine<uint8_t>("affine linear edges 8u C1", size, 1, cv::INTER_LINEAR, qvpiWarpAffineLinear_8u_C1R, 1,
                     qvpBorderReplicate);
  AddAffine<uint8_t>("affine nearest edges 8u C3", size, 3, cv::INTER_NEAREST, qvpiWarpAffineNearest_8u_C3R, 1,
                     qvpBorderReplicate);
  AddAffine<uint8_t>("affine cubic 8u C1", size, 1, cv::INTER_CUBIC, qvpiWarpAffineCubic_8u_C1R, 3);
  AddPerspective<uint8_t>("perspective linear 8u C1", size, 1, qvpiWarpPerspectiveLinear_8u_C1R, 3);
  AddPerspective<float>("perspective linear 32f C3", size, 3, qvpiWarpPerspectiveLinear_32f_C3R, 2);
  AddRemap<uint8_t>("remap nearest 8u C1", size, 1, qvpInterpolationNearest, cv::INTER_NEAREST, qvpiRemap_8u_C1R, 3);
  AddRemap<uint8_t>("remap linear 8u C1", size, 1, qvpInterpolationLinear, cv::INTER_LINEAR, qvpiRemap_8u_C1R, 2.7);
  AddRemap<float>("remap linear 32f C1", size, 1, qvpInterpolationLinear, cv::INTER_LINEAR, qvpiRemap_32f_C1R, 3);
  AddRemap<uint8_t>("remap cubic 8u C3", size, 3, qvpInterpolationCubicClassic, cv::INTER_CUBIC, qvpiRemap_8u_C3R, 2);
}

const bool kRegistered = [] {
  for (const QvpiSize size : {QvpiSize{16, 16}, QvpiSize{64, 64}, QvpiSize{640, 480}, kHd}) AddAll(size);
  return true;
}();

}  // namespace
}  // namespace bench
