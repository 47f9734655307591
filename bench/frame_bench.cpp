// Frames with subsampled chroma: decimation.
#include "bench/frames.h"

namespace {
using namespace bench;

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
