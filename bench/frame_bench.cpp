// Frames with subsampled chroma: decimation.
#include <libyuv.h>

#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

QvpiSize Halved(QvpiSize size) { return {(size.width + 1) / 2, (size.height + 1) / 2}; }

// A 4:2:0 frame of bytes with two or three planes, as arrays of pointers and steps.
struct Frame {
  std::vector<Image<uint8_t>> planes;
  const Qvp8u* from[3] = {};
  Qvp8u* to[3] = {};
  int step[3] = {};

  Frame(QvpiSize size, int count) {
    planes.emplace_back(size, 1);
    for (int i = 1; i < count; ++i) planes.emplace_back(Halved(size), count == 2 ? 2 : 1);
    for (int i = 0; i < count; ++i) {
      from[i] = to[i] = planes[i].data();
      step[i] = planes[i].step;
    }
  }
  QvpiSize size() const { return planes[0].size; }
  size_t bytes() const {
    size_t sum = 0;
    for (const auto& plane : planes) sum += plane.bytes();
    return sum;
  }
};

// The peers' calls for a whole frame.
void ScaleByYuv(const Frame& a, const Frame& b, libyuv::FilterMode mode) {
  const QvpiSize from = a.size(), to = b.size();
  if (a.planes.size() == 3) {
    libyuv::I420Scale(a.from[0], a.step[0], a.from[1], a.step[1], a.from[2], a.step[2], from.width, from.height,
                      b.to[0], b.step[0], b.to[1], b.step[1], b.to[2], b.step[2], to.width, to.height, mode);
  } else {
    libyuv::NV12Scale(a.from[0], a.step[0], a.from[1], a.step[1], from.width, from.height, b.to[0], b.step[0], b.to[1],
                      b.step[1], to.width, to.height, mode);
  }
}
void ScaleByOpenCv(const Frame& a, const Frame& b, int interpolation) {
  for (size_t i = 0; i < a.planes.size(); ++i) {
    cv::resize(a.planes[i].mat, b.planes[i].mat, b.planes[i].mat.size(), 0, 0, interpolation);
  }
}

struct Fraction {
  const char* name;
  int code, from, to;
  double atLeast;
};

void Decimation(QvpiSize size, const Fraction& f, int planes, bool isAsked) {
  const Frame a(size, planes), b({size.width * f.to / f.from, size.height * f.to / f.from}, planes);
  const auto ours = planes == 2 ? qvpiDecimate420_8u_P2R : qvpiDecimate420_8u_P3R;
  Add({Name("decimate 4:2:0 " + std::string(f.name) + " 8u P" + std::to_string(planes), size),
       {a.bytes(), b.bytes()},
       [=] { Require(ours(a.from, a.step, b.to, b.step, b.size(), f.code)); },
       {{planes == 2 ? "libyuv NV12Scale box" : "libyuv I420Scale box", [=] { ScaleByYuv(a, b, libyuv::kFilterBox); },
         isAsked && planes == 3 ? f.atLeast : 0},
        {"OpenCV INTER_AREA", [=] { ScaleByOpenCv(a, b, cv::INTER_AREA); }}}});
}

void Decimations() {
  constexpr Fraction kFractions[] = {{"1of2", qvpDecimate1of2, 2, 1, 0.95}, {"1of3", qvpDecimate1of3, 3, 1, 0},
                                     {"1of4", qvpDecimate1of4, 4, 1, 0.95}, {"1of8", qvpDecimate1of8, 8, 1, 0},
                                     {"2of3", qvpDecimate2of3, 3, 2, 0},    {"3of4", qvpDecimate3of4, 4, 3, 1.3},
                                     {"3of8", qvpDecimate3of8, 8, 3, 3}};
  for (const QvpiSize size : {QvpiSize{16, 16}, kTile, kVga, kHd, kLarge}) {
    for (const Fraction& f : kFractions) {
      for (const int planes : {2, 3}) Decimation(size, f, planes, size.width == kHd.width);
    }
  }
}

const bool added = (Decimations(), true);

}  // namespace
