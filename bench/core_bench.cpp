// Copy, set and channel moves.
#include <libyuv.h>

#include <array>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench/image.h"
#include "qvpi.h"

namespace {
using namespace bench;

void Copies() {
  struct {
    QvpiSize size;
    double atLeast;
  } cases[] = {{kTile, 1.6}, {kVga, 1.0}, {kHd, 0}, {kLarge, 1.5}};
  for (const auto& c : cases) {
    const Image<uint8_t> a(c.size, 1), b(c.size, 1);
    Add({Name("copy 8u C1", c.size),
         {a.bytes(), b.bytes()},
         [=] { Require(qvpiCopy_8u_C1R(a.data(), a.step, b.data(), b.step, a.size)); },
         {{"OpenCV copyTo", [=] { a.mat.copyTo(b.mat); }, c.atLeast}}});
  }
  const Image<uint8_t> a(kHd, 1), b(kHd, 1);
  Add({Name("copy 8u C1 inner region", kHd),
       {a.bytes(), b.bytes()},
       [=] {
         Require(qvpiCopy_8u_C1R(a.data(), a.step, b.data(), b.step, {kHd.width - 3, kHd.height}));
       },
       {{"libyuv CopyPlane",
         [=] { libyuv::CopyPlane(a.data(), a.step, b.data(), b.step, kHd.width - 3, kHd.height); }}}});
  const Image<uint8_t> c(kHd, 4), d(kHd, 4);
  Add({Name("copy 8u AC4", kHd), {c.bytes(), 0, d.bytes()}, [=] {
         Require(qvpiCopy_8u_AC4R(c.data(), c.step, d.data(), d.step, c.size));
       }});
  Add({Name("copy 8u C4", kHd),
       {c.bytes(), d.bytes()},
       [=] { Require(qvpiCopy_8u_C4R(c.data(), c.step, d.data(), d.step, c.size)); },
       {{"OpenCV copyTo", [=] { c.mat.copyTo(d.mat); }}}});
}

void Fills() {
  struct {
    QvpiSize size;
    int channels;
    double atLeast;
  } cases[] = {{kTile, 1, 10}, {kTile, 3, 0}, {kVga, 3, 1.3}, {kHd, 3, 0}, {kLarge, 3, 1.5}};
  for (const auto& c : cases) {
    const Image<uint8_t> a(c.size, c.channels);
    const Qvp8u value[3] = {1, 2, 3};
    Add({Name(c.channels == 1 ? "set 8u C1" : "set 8u C3", c.size),
         {0, a.bytes()},
         [=] {
           Require(c.channels == 1 ? qvpiSet_8u_C1R(7, a.data(), a.step, a.size)
                                   : qvpiSet_8u_C3R(value, a.data(), a.step, a.size));
         },
         {{"OpenCV setTo", [=] { a.mat.setTo(cv::Scalar(1, 2, 3)); }, c.atLeast}}});
  }
  const Image<uint8_t> a(kHd, 4);
  const Qvp8u value[3] = {1, 2, 3};
  Add({Name("set 8u AC4", kHd), {0, 0, a.bytes()}, [=] { Require(qvpiSet_8u_AC4R(value, a.data(), a.step, a.size)); }});
  const Image<uint8_t> grey(kHd, 1);
  Add({Name("set 8u C1", kHd),
       {0, grey.bytes()},
       [=] { Require(qvpiSet_8u_C1R(7, grey.data(), grey.step, kHd)); },
       {{"OpenCV setTo", [=] { grey.mat.setTo(cv::Scalar(7)); }},
        {"libyuv SetPlane", [=] { libyuv::SetPlane(grey.data(), grey.step, kHd.width, kHd.height, 7); }}}});
  const Image<float> f(kHd, 1);
  Add({Name("set 32f C1", kHd),
       {0, f.bytes()},
       [=] { Require(qvpiSet_32f_C1R(0.5f, f.data(), f.step, f.size)); },
       {{"OpenCV setTo", [=] { f.mat.setTo(cv::Scalar(0.5)); }}}});
}

// Half of the pixels, in no order.
Image<uint8_t> RandomMask(QvpiSize size) {
  Image<uint8_t> mask(size, 1);
  for (size_t i = 0; i < mask.bytes(); ++i) mask.data()[i] = mask.data()[i] & 8 ? 0xFF : 0;
  return mask;
}

void Masked() {
  const Image<uint8_t> mask = RandomMask(kHd), a(kHd, 3), b(kHd, 3), c(kHd, 1), d(kHd, 1);
  const Traffic traffic{a.bytes() + mask.bytes(), 0, b.bytes()};
  Add({Name("masked copy 8u C3", kHd),
       traffic,
       [=] { Require(qvpiCopy_8u_C3MR(a.data(), a.step, b.data(), b.step, a.size, mask.data(), mask.step)); },
       {{"OpenCV copyTo with mask", [=] { a.mat.copyTo(b.mat, mask.mat); }, 30}}});
  Add({Name("masked copy 8u C1", kHd),
       {c.bytes() + mask.bytes(), 0, d.bytes()},
       [=] { Require(qvpiCopy_8u_C1MR(c.data(), c.step, d.data(), d.step, c.size, mask.data(), mask.step)); },
       {{"OpenCV copyTo with mask", [=] { c.mat.copyTo(d.mat, mask.mat); }}}});
  const Qvp8u value[3] = {1, 2, 3};
  Add({Name("masked set 8u C3", kHd),
       {mask.bytes(), 0, b.bytes()},
       [=] { Require(qvpiSet_8u_C3MR(value, b.data(), b.step, b.size, mask.data(), mask.step)); },
       {{"OpenCV setTo with mask", [=] { b.mat.setTo(cv::Scalar(1, 2, 3), mask.mat); }}}});
}

void ChannelMoves() {
  const Image<uint8_t> a(kHd, 3), b(kHd, 3), four(kHd, 4), other(kHd, 4), grey(kHd, 1);
  static const int reversed[] = {2, 1, 0, 3};
  Add({Name("swap channels 8u C3", kHd),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiSwapChannels_8u_C3R(a.data(), a.step, b.data(), b.step, a.size, reversed)); },
       {{"OpenCV cvtColor BGR2RGB", [=] { cv::cvtColor(a.mat, b.mat, cv::COLOR_BGR2RGB); }, 1.0},
        {"libyuv RAWToRGB24",
         [=] { libyuv::RAWToRGB24(a.data(), a.step, b.data(), b.step, kHd.width, kHd.height); }}}});
  const Image<uint8_t> s(kTile, 3), t(kTile, 3);
  Add({Name("swap channels 8u C3", kTile),
       {s.bytes(), t.bytes()},
       [=] { Require(qvpiSwapChannels_8u_C3R(s.data(), s.step, t.data(), t.step, s.size, reversed)); },
       {{"OpenCV cvtColor BGR2RGB", [=] { cv::cvtColor(s.mat, t.mat, cv::COLOR_BGR2RGB); }}}});
  Add({Name("swap channels 8u C4", kHd),
       {four.bytes(), other.bytes()},
       [=] { Require(qvpiSwapChannels_8u_C4R(four.data(), four.step, other.data(), other.step, four.size, reversed)); },
       {{"OpenCV cvtColor BGRA2RGBA", [=] { cv::cvtColor(four.mat, other.mat, cv::COLOR_BGRA2RGBA); }}}});
  Add({Name("swap channels 8u C3C4", kHd),
       {a.bytes(), four.bytes()},
       [=] { Require(qvpiSwapChannels_8u_C3C4R(a.data(), a.step, four.data(), four.step, a.size, reversed, 255)); },
       {{"OpenCV cvtColor BGR2RGBA", [=] { cv::cvtColor(a.mat, four.mat, cv::COLOR_BGR2RGBA); }}}});
  Add({Name("swap channels 8u C4C3", kHd),
       {four.bytes(), a.bytes()},
       [=] { Require(qvpiSwapChannels_8u_C4C3R(four.data(), four.step, a.data(), a.step, a.size, reversed)); },
       {{"OpenCV cvtColor BGRA2RGB", [=] { cv::cvtColor(four.mat, a.mat, cv::COLOR_BGRA2RGB); }}}});
  Add({Name("extract channel 8u C3C1", kHd),
       {a.bytes(), grey.bytes()},
       [=] { Require(qvpiCopy_8u_C3C1R(a.data() + 1, a.step, grey.data(), grey.step, a.size)); },
       {{"OpenCV extractChannel", [=] { cv::extractChannel(a.mat, grey.mat, 1); }, 4.5}}});
  Add({Name("insert channel 8u C1C3", kHd),
       {grey.bytes(), 0, b.bytes()},
       [=] { Require(qvpiCopy_8u_C1C3R(grey.data(), grey.step, b.data() + 1, b.step, b.size)); },
       {{"OpenCV insertChannel", [=] { cv::insertChannel(grey.mat, b.mat, 1); }, 3}}});
  Add({Name("duplicate channel 8u C1C3", kHd),
       {grey.bytes(), b.bytes()},
       [=] { Require(qvpiDup_8u_C1C3R(grey.data(), grey.step, b.data(), b.step, b.size)); },
       {{"OpenCV merge", [=] { cv::merge(std::vector<cv::Mat>(3, grey.mat), b.mat); }, 1.5}}});
}

template <class T>
std::array<T*, 3> PlanesOf(const Image<T> (&p)[3]) {
  return {p[0].data(), p[1].data(), p[2].data()};
}

void BytePlanes() {
  const Image<uint8_t> a(kHd, 3), p[3] = {{kHd, 1}, {kHd, 1}, {kHd, 1}};
  const std::vector<cv::Mat> mats = {p[0].mat, p[1].mat, p[2].mat};
  const auto planes = PlanesOf(p);  // for the peer; the calls of ours keep the images themselves
  const int step = p[0].step, width = kHd.width, height = kHd.height;
  Add({Name("split 8u C3P3", kHd),
       {a.bytes(), a.bytes()},
       [=] { Require(qvpiCopy_8u_C3P3R(a.data(), a.step, PlanesOf(p).data(), step, kHd)); },
       {{"OpenCV split",
         [=] {
           std::vector<cv::Mat> out = mats;
           cv::split(a.mat, out);
         },
         1.5},
        {"libyuv SplitRGBPlane", [=] {
           libyuv::SplitRGBPlane(a.data(), a.step, planes[0], step, planes[1], step, planes[2], step, width, height);
         }}}});
  Add({Name("merge 8u P3C3", kHd),
       {a.bytes(), a.bytes()},
       [=] { Require(qvpiCopy_8u_P3C3R(PlanesOf(p).data(), step, a.data(), a.step, kHd)); },
       {{"OpenCV merge", [=] { cv::merge(mats, a.mat); }, 1.5},
        {"libyuv MergeRGBPlane", [=] {
           libyuv::MergeRGBPlane(planes[0], step, planes[1], step, planes[2], step, a.data(), a.step, width, height);
         }}}});
}

void FloatPlanes() {
  const Image<float> a(kHd, 3), p[3] = {{kHd, 1}, {kHd, 1}, {kHd, 1}};
  const std::vector<cv::Mat> mats = {p[0].mat, p[1].mat, p[2].mat};
  Add({Name("split 32f C3P3", kHd),
       {a.bytes(), a.bytes()},
       [=] { Require(qvpiCopy_32f_C3P3R(a.data(), a.step, PlanesOf(p).data(), p[0].step, kHd)); },
       {{"OpenCV split", [=] {
           std::vector<cv::Mat> out = mats;
           cv::split(a.mat, out);
         }}}});
  Add({Name("merge 32f P3C3", kHd),
       {a.bytes(), a.bytes()},
       [=] { Require(qvpiCopy_32f_P3C3R(PlanesOf(p).data(), p[0].step, a.data(), a.step, kHd)); },
       {{"OpenCV merge", [=] { cv::merge(mats, a.mat); }}}});
}

const bool kRegistered = [] {
  Copies();
  Fills();
  Masked();
  ChannelMoves();
  BytePlanes();
  FloatPlanes();
  return true;
}();

}  // namespace
