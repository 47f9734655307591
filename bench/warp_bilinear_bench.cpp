// Bilinear warps against OpenCV's remap, whose maps are ready, and against maps that a loop makes on the way. It rounds
// positions to 1/32 pixel.
#include <array>
#include <cmath>
#include <map>
#include <opencv2/imgproc.hpp>

#include "bench/filters.h"

namespace bench {
namespace {

constexpr double kZero[4] = {};
constexpr QvpiSize kBeyondCache{4000, 3000};

// What each size is measured with: the way back turns by 10 degrees and twists, the way there is a keystone.
struct Bilinear {
  double back[2][4], forward[2][4], from[4][2], to[4][2];

  explicit Bilinear(QvpiSize size) {
    const double w = size.width - 1, h = size.height - 1;
    const double corners[2][4][2] = {{{0, 0}, {w, 0}, {w, h}, {0, h}}, {{0, 0}, {w, 0}, {0.8 * w, h}, {0.2 * w, h}}};
    std::copy(corners[0][0], corners[0][0] + 8, from[0]);
    std::copy(corners[1][0], corners[1][0] + 8, to[0]);
    double turn[2][3], x, y;
    Require(qvpiGetRotateShift(w / 2, h / 2, 10, &x, &y));
    Require(qvpiGetRotateTransform(10, x, y, turn));
    for (int i = 0; i < 2; ++i) {
      back[i][0] = 0.05 / (w + h + 1);
      std::copy(turn[i], turn[i] + 3, back[i] + 1);
    }
    if (w > 0 && h > 0) Require(qvpiGetBilinearTransform({0, 0, size.width, size.height}, to, forward));
  }
};

// The maps of a keystone that keeps rows: y is linear, and x is linear on each row.
void MapKeystone(QvpiSize size, float* u, float* v) {
  const Bilinear b(size);
  const auto &c = b.forward[0], &d = b.forward[1];
  for (int y = 0; y < size.height; ++y) {
    const double row = (y - d[3]) / d[2], across = c[0] * row + c[1], start = c[2] * row + c[3];
    for (int x = 0; x < size.width; ++x) {
      u[x + y * size.width] = static_cast<float>((x - start) / across);
      v[x + y * size.width] = static_cast<float>(row);
    }
  }
}

// The same by the general formula, without the knowledge that rows stay rows.
void MapBilinear(const double (*c)[4], QvpiSize size, float* u, float* v) {
  const double *a = c[0], *b = c[1], det = a[1] * b[2] - a[2] * b[1];
  const double ofV = a[0] * b[2] - a[2] * b[0], ofU = a[0] * b[1] - a[1] * b[0];
  for (int y = 0; y < size.height; ++y) {
    const double q = y - b[3];
    for (int x = 0; x < size.width; ++x) {
      const double p = x - a[3], m = (det - q * a[0]) + p * b[0], n = m - (det + det);
      const double k = p * b[1] - q * a[1], l = p * b[2] - q * a[2], r = std::sqrt(m * m - 4 * ofV * k);
      v[x + y * size.width] = static_cast<float>(m >= 0 ? (-2 * k) / (m + r) : (r - m) / (2 * ofV));
      u[x + y * size.width] = static_cast<float>(n <= 0 ? (2 * l) / (r - n) : (r + n) / (-2 * ofU));
    }
  }
}

void MapBack(const double (*c)[4], QvpiSize size, float* u, float* v) {
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      u[x + y * size.width] = static_cast<float>((c[0][0] * y + c[0][1]) * x + c[0][2] * y + c[0][3]);
      v[x + y * size.width] = static_cast<float>((c[1][0] * y + c[1][1]) * x + c[1][2] * y + c[1][3]);
    }
  }
}

// What the peer is given, once for all rows of a size.
struct Maps {
  Image<float> u, v;
};
const Maps& MapsOf(QvpiSize size, QvpiWarpDirection direction) {
  static std::map<std::array<int, 3>, Maps> all;
  const auto [place, isNew] = all.try_emplace({size.width, size.height, direction}, Maps{{size, 1}, {size, 1}});
  const Maps& maps = place->second;
  if (isNew && direction == qvpWarpForward) MapKeystone(size, maps.u.data(), maps.v.data());
  if (isNew && direction == qvpWarpBackward) MapBack(Bilinear(size).back, size, maps.u.data(), maps.v.data());
  return maps;
}

template <class T>
struct Case {
  Bilinear map;
  int channels;
  Image<T> src, dst;
  Prepared<QvpiWarpSpec> spec{Pixels<Qvp8u>(576), Pixels<Qvp8u>(65536)};

  Case(QvpiSize size, int nc) : map(size), channels(nc), src(Scene<T>(size, nc)), dst(size, nc) {}

  void Init(int method, QvpiWarpDirection direction) const {
    const QvpiSize s = src.size;
    const auto& c = direction == qvpWarpForward ? map.forward : map.back;
    if (method == cv::INTER_NEAREST) {
      Require(qvpiWarpBilinearNearestInit(s, s, kType<T>, c, direction, channels, 6, kZero, 0, spec.get()));
    } else if (method == cv::INTER_LINEAR) {
      Require(qvpiWarpBilinearLinearInit(s, s, kType<T>, c, direction, channels, 6, kZero, 0, spec.get()));
    } else {
      Require(qvpiWarpBilinearCubicInit(s, s, kType<T>, c, direction, channels, 0, 0.75, 6, kZero, 0, spec.get(),
                                        spec.buffer.get()));
    }
  }
  void InitQuad() const {
    Require(qvpiWarpBilinearQuadLinearInit(src.size, map.from, src.size, map.to, kType<T>, channels, 6, kZero, 0,
                                           spec.get()));
  }
};

template <class T, class Function>
void AddRow(const std::string& what, const Case<T>& c, int method, QvpiWarpDirection direction, Function function,
            double atLeast) {
  const Maps maps = MapsOf(c.src.size, direction);
  const auto peer = [=] { cv::remap(c.src.mat, c.dst.mat, maps.u.mat, maps.v.mat, method, cv::BORDER_CONSTANT); };
  Add({Name(what, c.src.size),
       {c.src.bytes(), c.dst.bytes()},
       [=] {
         Require(function(c.src.data(), c.src.step, c.dst.data(), c.dst.step, {0, 0}, c.src.size, c.spec.get(),
                          c.spec.buffer.get()));
       },
       {{"OpenCV remap", peer, atLeast}}});
}

template <class T, class Function>
void AddWarp(const std::string& what, int channels, int method, QvpiWarpDirection direction, Function function,
             double atLeast) {
  for (const QvpiSize size : {kTile, kVga, kHd, kBeyondCache}) {
    const Case<T> c(size, channels);
    c.Init(method, direction);
    AddRow((direction == qvpWarpForward ? "bilinear " : "bilinear back ") + what, c, method, direction, function,
           size.width == kHd.width ? atLeast : 1);
  }
}

void AddQuad() {
  for (const QvpiSize size : {kTile, kVga, kHd, kBeyondCache}) {
    const Case<uint8_t> c(size, 3);
    c.InitQuad();
    AddRow("bilinear quad linear 8u C3", c, cv::INTER_LINEAR, qvpWarpForward, qvpiWarpBilinearQuad_8u_C3R,
           size.width == kHd.width ? 1.4 : 1);
  }
}

// With the peer's maps made for each image.
void AddWithMaps() {
  const Case<uint8_t> c(kHd, 1);
  const Image<float> u(kHd, 1), v(kHd, 1);
  c.Init(cv::INTER_LINEAR, qvpWarpForward);
  Add({Name("bilinear linear 8u C1, maps made", kHd),
       {c.src.bytes(), c.dst.bytes()},
       [=] {
         Require(qvpiWarpBilinear_8u_C1R(c.src.data(), c.src.step, c.dst.data(), c.dst.step, {0, 0}, kHd, c.spec.get(),
                                         c.spec.buffer.get()));
       },
       {{"a loop and OpenCV remap",
         [=] {
           MapBilinear(c.map.forward, kHd, u.data(), v.data());
           cv::remap(c.src.mat, c.dst.mat, u.mat, v.mat, cv::INTER_LINEAR, cv::BORDER_CONSTANT);
         },
         3}}});
}

// What a call, and a row, cost.
void AddSmallest() {
  for (const QvpiSize size : kSmallest) {
    const Case<uint8_t> back(size, 1);
    back.Init(cv::INTER_NEAREST, qvpWarpBackward);
    AddRow("bilinear back nearest 8u C1", back, cv::INTER_NEAREST, qvpWarpBackward, qvpiWarpBilinearBack_8u_C1R, 0);
    if (size.width == 1) continue;
    const Case<uint8_t> c(size, 1);
    c.Init(cv::INTER_LINEAR, qvpWarpForward);
    AddRow("bilinear linear 8u C1", c, cv::INTER_LINEAR, qvpWarpForward, qvpiWarpBilinear_8u_C1R, 0);
  }
}

const bool kRegistered = [] {
  constexpr int kNearest = cv::INTER_NEAREST, kLinear = cv::INTER_LINEAR, kCubic = cv::INTER_CUBIC;
  AddWarp<uint8_t>("nearest 8u C1", 1, kNearest, qvpWarpBackward, qvpiWarpBilinearBack_8u_C1R, 1.5);
  AddWarp<uint8_t>("linear 8u C1", 1, kLinear, qvpWarpBackward, qvpiWarpBilinearBack_8u_C1R, 3.5);
  AddWarp<uint8_t>("linear 8u C3", 3, kLinear, qvpWarpBackward, qvpiWarpBilinearBack_8u_C3R, 2.7);
  AddWarp<float>("linear 32f C1", 1, kLinear, qvpWarpBackward, qvpiWarpBilinearBack_32f_C1R, 4);
  AddWarp<uint8_t>("cubic 8u C1", 1, kCubic, qvpWarpBackward, qvpiWarpBilinearBack_8u_C1R, 3);
  AddWarp<uint8_t>("linear 8u C1", 1, kLinear, qvpWarpForward, qvpiWarpBilinear_8u_C1R, 1.2);
  AddWarp<float>("linear 32f C3", 3, kLinear, qvpWarpForward, qvpiWarpBilinear_32f_C3R, 1.3);
  AddQuad();
  AddWithMaps();
  AddSmallest();
  return true;
}();

}  // namespace
}  // namespace bench
