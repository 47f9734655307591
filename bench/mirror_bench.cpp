// Mirror, transpose and turns by quarters.
#include <libyuv.h>

#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

void Mirrors(QvpiSize size, bool isAsked) {
  const Image<uint8_t> a(size, 1), b(size, 1), c(size, 3), d(size, 3);
  const Image<float> f(size, 1), g(size, 1);
  Add({Name("mirror columns 8u C1", size),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiMirror_8u_C1R(a.data(), a.step, b.data(), b.step, size, qvpAxisVertical)); },
       {{"OpenCV flip", [=] { cv::flip(a.mat, b.mat, 1); }, isAsked ? 10.0 : 0}}});
  Add({Name("mirror columns 8u C3", size),
       {c.bytes(), d.bytes()},
       [=] { Require(qvpiMirror_8u_C3R(c.data(), c.step, d.data(), d.step, size, qvpAxisVertical)); },
       {{"OpenCV flip", [=] { cv::flip(c.mat, d.mat, 1); }, isAsked ? 3.0 : 0}}});
  Add({Name("mirror both 32f C1", size),
       {f.bytes(), g.bytes()},
       [=] { Require(qvpiMirror_32f_C1R(f.data(), f.step, g.data(), g.step, size, qvpAxisBoth)); },
       {{"OpenCV flip", [=] { cv::flip(f.mat, g.mat, -1); }, isAsked ? 1.2 : 0}}});
  Add({Name("mirror columns in place 8u C3", size),
       {0, 0, c.bytes()},
       [=] { Require(qvpiMirror_8u_C3IR(c.data(), c.step, size, qvpAxisVertical)); },
       {{"OpenCV flip", [=] { cv::flip(c.mat, c.mat, 1); }}}});
}

template <class T, class Call>
void Transposition(const char* name, QvpiSize size, int channels, double atLeast, Call call) {
  const QvpiSize turned{size.height, size.width};
  const Image<T> a(size, channels), b(turned, channels);
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] { Require(call(a.data(), a.step, b.data(), b.step, size)); },
       {{"OpenCV transpose", [=] { cv::transpose(a.mat, b.mat); }, atLeast}}});
}

void Transpositions() {
  Transposition<uint8_t>("transpose 8u C1", kTile, 1, 0, qvpiTranspose_8u_C1R);
  Transposition<uint8_t>("transpose 8u C1", kVga, 1, 0, qvpiTranspose_8u_C1R);
  Transposition<uint8_t>("transpose 8u C3", kVga, 3, 0, qvpiTranspose_8u_C3R);
  Transposition<uint8_t>("transpose 8u C1", kHd, 1, 2, qvpiTranspose_8u_C1R);
  Transposition<uint8_t>("transpose 8u C3", kHd, 3, 2, qvpiTranspose_8u_C3R);
  Transposition<uint8_t>("transpose 8u C1", kLarge, 1, 2, qvpiTranspose_8u_C1R);
  Transposition<uint8_t>("transpose 8u C1", {8192, 6144}, 1, 0, qvpiTranspose_8u_C1R);
  Transposition<float>("transpose 32f C1", kHd, 1, 1.5, qvpiTranspose_32f_C1R);
  Transposition<uint16_t>("transpose 16u C3", kHd, 3, 0, qvpiTranspose_16u_C3R);
}

// Clockwise.
template <class T, class Call>
void QuarterTurn(const char* name, QvpiSize size, int channels, double atLeast, Call call) {
  const QvpiSize turned{size.height, size.width};
  const Image<T> a(size, channels), b(turned, channels);
  std::vector<Peer> peers = {{"OpenCV rotate", [=] { cv::rotate(a.mat, b.mat, cv::ROTATE_90_CLOCKWISE); }, atLeast}};
  if constexpr (sizeof(T) == 1) {
    const auto plane = [=] { libyuv::RotatePlane90(a.data(), a.step, b.data(), b.step, size.width, size.height); };
    if (channels == 1) peers.push_back({"libyuv RotatePlane90", plane, atLeast > 0 ? 1.1 : 0});
  }
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] { Require(call(a.data(), a.step, b.data(), b.step, size, -1)); },
       std::move(peers)});
}

void QuarterTurns() {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge, QvpiSize{8192, 6144}}) {
    const bool isAsked = size.width == kHd.width;
    QuarterTurn<uint8_t>("quarter turn 8u C1", size, 1, isAsked ? 2.5 : 0, qvpiRotateQuarter_8u_C1R);
    QuarterTurn<uint8_t>("quarter turn 8u C3", size, 3, isAsked ? 1.8 : 0, qvpiRotateQuarter_8u_C3R);
    QuarterTurn<float>("quarter turn 32f C1", size, 1, isAsked ? 2 : 0, qvpiRotateQuarter_32f_C1R);
  }
  for (const QvpiSize size : kSmallest) {
    QuarterTurn<uint8_t>("quarter turn 8u C1", size, 1, 0, qvpiRotateQuarter_8u_C1R);
  }
}

const bool added =
    (Mirrors(kTile, false), Mirrors(kVga, false), Mirrors(kHd, true), Transpositions(), QuarterTurns(), true);

}  // namespace
