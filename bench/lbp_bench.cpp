// Local binary patterns.
#include "bench/filters.h"

namespace {
using namespace bench;

// What OpenCV has no function for: the image with its border, a comparison for each neighbour, and its bit. Codes
// alone; bits 8 to 15 of 16 neighbours go to a second image of bytes.
void ComparePeer(const cv::Mat& src, int radius, const std::vector<cv::Point>& neighbours, cv::Mat& framed, cv::Mat& is,
                 std::vector<cv::Mat>& codes) {
  cv::copyMakeBorder(src, framed, radius, radius, radius, radius, kPeerBorder);
  for (size_t k = 0; k < neighbours.size(); ++k) {
    const cv::Rect at(radius + neighbours[k].x, radius + neighbours[k].y, src.cols, src.rows);
    cv::compare(framed(at), src, is, cv::CMP_GE);
    cv::bitwise_and(is, cv::Scalar::all(1 << k % 8), is);
    if (k % 8 == 0) {
      is.copyTo(codes[k / 8]);
    } else {
      cv::bitwise_or(codes[k / 8], is, codes[k / 8]);
    }
  }
}

std::vector<cv::Point> Rim(int radius, int count) {
  std::vector<cv::Point> rim;
  for (int i = 0; i < 8 * radius; i += 8 * radius / count) {
    const int r = radius;
    rim.push_back(i < r       ? cv::Point(r, -i)
                  : i < 3 * r ? cv::Point(2 * r - i, -r)
                  : i < 5 * r ? cv::Point(-r, i - 4 * r)
                  : i < 7 * r ? cv::Point(i - 6 * r, r)
                              : cv::Point(r, 8 * r - i));
  }
  return rim;
}

template <class T, class R, class Call>
void AddPatterns(const std::string& name, QvpiSize size, int side, QvpiLBPMode mode, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, 1);
  const Image<R> b(size, 1);
  int bytes = 0;
  Require(qvpiFilterLBPBorderGetBufferSize({side, side}, size, kType<T>, 1, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const auto rim = Rim(side / 2, 8 * sizeof(R));
  cv::Mat framed, is;
  std::vector<cv::Mat> codes(sizeof(R));
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, size, {side, side}, mode, kBorder, nullptr, buffer.get()));
       },
       {{"OpenCV border, compare, and, or", [=]() mutable { ComparePeer(a.mat, side / 2, rim, framed, is, codes); },
         atLeast}}});
}

void Bytes(QvpiSize size, bool isAsked) {
  AddPatterns<uint8_t, uint8_t>("LBP code 3x3 8u C1", size, 3, qvpLBPCode, qvpiFilterLBPBorder_8u_C1R,
                                isAsked ? 10 : 1);
  AddPatterns<uint8_t, uint8_t>("LBP uniform 3x3 8u C1", size, 3, qvpLBPUniform, qvpiFilterLBPBorder_8u_C1R,
                                isAsked ? 6 : 1);
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) Bytes(size, size.width == kHd.width);
  for (const QvpiSize size : kSmallest) Bytes(size, false);
  for (const QvpiSize size : {kTile, kHd}) {
    AddPatterns<uint16_t, uint16_t>("LBP code 5x5 16u C1", size, 5, qvpLBPCode, qvpiFilterLBPBorder_16u_C1R,
                                    size.width == kHd.width ? 8 : 1);
  }
  AddPatterns<uint8_t, uint8_t>("LBP rotation 3x3 8u C1", kHd, 3, qvpLBPRotation, qvpiFilterLBPBorder_8u_C1R, 0);
  AddPatterns<float, uint8_t>("LBP code 3x3 32f8u C1", kHd, 3, qvpLBPCode, qvpiFilterLBPBorder_32f8u_C1R, 0);
  AddPatterns<uint8_t, uint16_t>("LBP uniform 5x5 8u16u C1", kHd, 5, qvpLBPUniform, qvpiFilterLBPBorder_8u16u_C1R, 0);
  return true;
}();

}  // namespace
