// Compositing, premultiplication and color keys.
#include <libyuv.h>

#include <algorithm>
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

constexpr QvpiSize kQvga{320, 240}, kSizes[] = {kTile, kQvga, kVga, kHd, kLarge};

bool Is(QvpiSize size, QvpiSize other) { return size.width == other.width; }

// An image of pixels, all of which are opaque.
Image<uint8_t> Opaque(QvpiSize size) {
  Image<uint8_t> image(size, 4);
  for (size_t i = 3; i < image.bytes(); i += 4) image.data()[i] = 255;
  return image;
}

// What a program without a library would write.
void AtopPlainly(const Image<uint8_t>& a, const Image<uint8_t>& b, const Image<uint8_t>& dst) {
  const uint8_t* __restrict x = a.data(), * __restrict y = b.data();
  uint8_t* __restrict to = dst.data();
  for (size_t i = 0; i < dst.bytes(); i += 4) {
    const int alphaX = x[i + 3], alphaY = y[i + 3];
    for (size_t c = i; c < i + 4; ++c) {
      to[c] = static_cast<uint8_t>(std::min(255, (x[c] * alphaY + y[c] * (255 - alphaX) + 127) / 255));
    }
  }
}
void StraightOverPlainly(const Image<uint8_t>& a, const Image<uint8_t>& b, const Image<uint8_t>& dst) {
  const uint8_t* __restrict x = a.data(), * __restrict y = b.data();
  uint8_t* __restrict to = dst.data();
  for (size_t i = 0; i < dst.bytes(); i += 4) {
    const int w1 = 255 * x[i + 3], w2 = (255 - x[i + 3]) * y[i + 3], sum = w1 + w2, alpha = (sum + 127) / 255;
    to[i + 3] = static_cast<uint8_t>(alpha);
    for (size_t c = i; c < i + 3; ++c) {
      to[c] = static_cast<uint8_t>(alpha == 0 ? 0 : (2 * (w1 * x[c] + w2 * y[c]) + sum) / (2 * sum));
    }
  }
}

void Composites(QvpiSize size) {
  const Image<uint8_t> a(size, 4), b(size, 4), dst(size, 4), opaque = Opaque(size);
  const Traffic traffic{a.bytes() + b.bytes(), dst.bytes()};
  const auto composite = [=](const auto& function, const Image<uint8_t>& background, QvpiCompositeOp op) {
    return [=] {
      Require(function(a.data(), a.step, background.data(), background.step, dst.data(), dst.step, size, op));
    };
  };
  Add({Name("composite over 8u AC4", size),
       traffic,
       composite(qvpiComposite_8u_AC4R, opaque, qvpCompositeFirstOver),
       {{"libyuv ARGBBlend, coarser rounding",
         [=] {
           libyuv::ARGBBlend(a.data(), a.step, opaque.data(), opaque.step, dst.data(), dst.step, size.width,
                             size.height);
         },
         Is(size, kQvga) ? 1.15 : 1.0}}});
  Add({Name("composite atop 8u AC4", size),
       traffic,
       composite(qvpiComposite_8u_AC4R, b, qvpCompositeFirstAtop),
       {{"plain loop", [=] { AtopPlainly(a, b, dst); }, 2.5}}});
  Add({Name("straight over 8u AC4", size),
       traffic,
       composite(qvpiCompositeStraight_8u_AC4R, b, qvpCompositeFirstOver),
       {{"plain loop", [=] { StraightOverPlainly(a, b, dst); }, 4}}});
  Add({Name("straight over opaque 8u AC4", size),
       traffic,
       composite(qvpiCompositeStraight_8u_AC4R, opaque, qvpCompositeFirstOver),
       {{"plain loop", [=] { StraightOverPlainly(a, opaque, dst); }}}});
}

template <class T, class Function>
void Blend(const char* what, Function function, QvpiSize size, T alpha, T one, double least) {
  const Image<T> a(size, 1), b(size, 1), dst(size, 1);
  std::fill_n(a.data(), a.bytes() / sizeof(T), T{1});
  std::fill_n(b.data(), b.bytes() / sizeof(T), one);
  Add({Name(what, size),
       {a.bytes() + b.bytes(), dst.bytes()},
       [=] {
         Require(function(a.data(), a.step, alpha, b.data(), b.step, one, dst.data(), dst.step, size,
                          qvpCompositeFirstOver));
       },
       {{"OpenCV addWeighted",
         [=] {
           const double share = static_cast<double>(alpha) / one;
           cv::addWeighted(a.mat, share, b.mat, 1 - share, 0, dst.mat);
         },
         least}}});
}

void Premultiplications(QvpiSize size) {
  const Image<uint8_t> a(size, 4), dst(size, 4);
  const bool isHd = Is(size, kHd);
  const auto peers = [=](const char* opencv, int code, double least, const char* yuv, auto function) {
    return std::vector<Peer>{
        {opencv, [=] { cv::cvtColor(a.mat, dst.mat, code); }, isHd ? least : 1.0},
        {yuv, [=] { function(a.data(), a.step, dst.data(), dst.step, size.width, size.height); }, 1.0}};
  };
  Add({Name("premultiply 8u AC4", size),
       {a.bytes(), dst.bytes()},
       [=] { Require(qvpiPremultiply_8u_AC4R(a.data(), a.step, dst.data(), dst.step, size)); },
       peers("OpenCV RGBA2mRGBA", cv::COLOR_RGBA2mRGBA, 4, "libyuv ARGBAttenuate", libyuv::ARGBAttenuate)});
  Add({Name("unpremultiply 8u AC4", size),
       {a.bytes(), dst.bytes()},
       [=] { Require(qvpiUnpremultiply_8u_AC4R(a.data(), a.step, dst.data(), dst.step, size)); },
       peers("OpenCV mRGBA2RGBA", cv::COLOR_mRGBA2RGBA, 2.2, "libyuv ARGBUnattenuate, inexact",
             libyuv::ARGBUnattenuate)});
}

void Keys(QvpiSize size) {
  const Image<uint8_t> a(size, 3), b(size, 3), dst(size, 3), mask(size, 1);
  const Image<uint8_t> c(size, 4), d(size, 4), e(size, 4);
  static constexpr Qvp8u kLower[] = {50, 0, 60, 0}, kUpper[] = {255, 255, 200, 255};
  Add({Name("color key 8u C3", size),
       {a.bytes() + b.bytes(), dst.bytes()},
       [=] {
         Require(qvpiColorKey_8u_C3R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size, kLower, kUpper));
       },
       {{"OpenCV inRange, copy, copyTo",
         [=] {
           cv::inRange(a.mat, cv::Scalar(50, 0, 60), cv::Scalar(255, 255, 200), mask.mat);
           a.mat.copyTo(dst.mat);
           b.mat.copyTo(dst.mat, mask.mat);
         },
         Is(size, kHd) ? 5 : 1.0}}});
  Add({Name("color key 8u AC4", size),
       {c.bytes() + d.bytes(), 0, e.bytes()},
       [=] {
         Require(qvpiColorKey_8u_AC4R(c.data(), c.step, d.data(), d.step, e.data(), e.step, size, kLower, kUpper));
       },
       {{"our C4",
         [=] {
           Require(qvpiColorKey_8u_C4R(c.data(), c.step, d.data(), d.step, e.data(), e.step, size, kLower, kUpper));
         },
         0.8}}});
}

// With rows that do not join.
void Overhead() {
  for (const QvpiSize size : kSmallest) {
    const Image<uint8_t> a({size.width + 1, size.height}, 4), b(a.size, 4), dst(a.size, 4);
    Add({Name("composite over 8u AC4, rows apart", size),
         {a.bytes() + b.bytes(), dst.bytes()},
         [=] {
           Require(qvpiComposite_8u_AC4R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size,
                                         qvpCompositeFirstOver));
         },
         {{"libyuv ARGBBlend", [=] {
             libyuv::ARGBBlend(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size.width, size.height);
           }}}});
  }
}

const bool kRegistered = [] {
  Overhead();
  for (const QvpiSize size : kSizes) {
    const bool isVga = Is(size, kVga), isHd = Is(size, kHd);
    Composites(size);
    Blend<uint8_t>("constant opacities 8u C1", qvpiCompositeC_8u_C1R, size, 102, 255, isVga ? 4 : isHd ? 2 : 1.0);
    Blend<float>("constant opacities 32f C1", qvpiCompositeC_32f_C1R, size, 0.4f, 1.0f, 1.0);
    Premultiplications(size);
    Keys(size);
  }
  return true;
}();

}  // namespace
