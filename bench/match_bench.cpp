// Template matching; the peer takes bytes as floats.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

struct Kind {
  std::string name;
  QvpiMatchNorm norm;
  int peer;
};
const Kind kCoefficient{"coefficient", qvpMatchCoefficient, cv::TM_CCOEFF_NORMED};

template <class T, class Call>
void AddMatch(const std::string& name, const Kind& kind, QvpiSize size, int side, int channels, Call call,
              double atLeast) {
  const QvpiSize tplSize{side, side}, dstSize{size.width - side + 1, size.height - side + 1};
  const Image<T> src(size, channels), tpl(tplSize, channels);
  const Image<float> dst(dstSize, 1);
  int bytes = 0;
  Require(qvpiMatchGetBufferSize(sizeof(T) == 1 ? qvp8u : qvp32f, channels, size, tplSize, qvpMatchValid, kind.norm,
                                 qvpMethodAuto, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  for (const auto& mat : {src.mat, tpl.mat}) cv::randu(mat, 0, 255);
  Add({Name("match " + kind.name + " " + name + " " + std::to_string(side) + "x" + std::to_string(side), size),
       {src.bytes(), dst.bytes()},
       [=] {
         Require(call(src.data(), src.step, size, tpl.data(), tpl.step, tplSize, dst.data(), dst.step, qvpMatchValid,
                      kind.norm, qvpMethodAuto, buffer.get()));
       },
       {{"OpenCV matchTemplate", [=] { cv::matchTemplate(src.mat, tpl.mat, dst.mat, kind.peer); }, atLeast}}});
}

void AddBytes(QvpiSize size, int side, double atLeast) {
  AddMatch<uint8_t>("8u C1", kCoefficient, size, side, 1, qvpiMatchCorrelation_8u32f_C1R, atLeast);
}
void AddColours(QvpiSize size, int side, double atLeast) {
  AddMatch<uint8_t>("8u C3C1", kCoefficient, size, side, 3, qvpiMatchCorrelation_8u32f_C3C1R, atLeast);
}
void AddFloats(QvpiSize size, int side, double atLeast) {
  AddMatch<float>("32f C1", kCoefficient, size, side, 1, qvpiMatchCorrelation_32f_C1R, atLeast);
}

const bool kAdded = [] {
  AddBytes(kHd, 8, 6), AddBytes(kHd, 16, 3), AddBytes(kHd, 32, 3), AddBytes(kHd, 64, 3), AddBytes(kHd, 128, 2.5);
  AddMatch<uint8_t>("8u C1", {"correlation", qvpMatchPlain, cv::TM_CCORR}, kHd, 32, 1, qvpiMatchCorrelation_8u32f_C1R,
                    2);
  AddMatch<uint8_t>("8u C1", {"distance", qvpMatchPlain, cv::TM_SQDIFF}, kHd, 32, 1, qvpiMatchDistance_8u32f_C1R, 4);
  AddColours(kHd, 16, 4), AddColours(kHd, 64, 4);
  AddFloats(kHd, 8, 5), AddFloats(kHd, 16, 3), AddFloats(kHd, 64, 3);
  AddBytes(kVga, 8, 4), AddBytes(kVga, 16, 2), AddBytes(kVga, 64, 1.5);
  for (const int side : {8, 16, 32}) AddBytes(kTile, side, 1), AddFloats(kTile, side, 1);
  AddColours(kTile, 8, 1), AddBytes(kLarge, 16, 1), AddFloats(kLarge, 8, 1);
  return true;
}();

}  // namespace
