// Volumes: copies with a border, and medians. The peer works plane by plane, and has no median in space.
#include "bench/volumes.h"

namespace {
using namespace bench;

constexpr int kWidth = 4;  // of a border

void PadPlanes(const Stack<Qvp16u>& src, const Stack<Qvp16u>& dst) {
  for (int z = 0; z < dst.size.depth; ++z) {
    const cv::Mat plane = src.Plane(std::clamp(z - kWidth, 0, src.size.depth - 1));
    cv::Mat result = dst.Plane(z);
    cv::copyMakeBorder(plane, result, kWidth, kWidth, kWidth, kWidth, kPeerBorder | cv::BORDER_ISOLATED);
  }
}

void AddBorder(QvprVolume size) {
  const auto& src = Source<Qvp16u>(size);
  const auto& dst = Destination<Qvp16u>({size.width + 2 * kWidth, size.height + 2 * kWidth, size.depth + 2 * kWidth});
  Add({Name("volume, border of 4, 16u, " + std::to_string(size.depth) + " planes", {size.width, size.height}),
       {src.bytes(), dst.bytes()},
       [&] {
         Require(qvprCopyReplicateBorder_16u_C1V(src.data(), src.step(), src.planeStep(), src.size, dst.data(),
                                                 dst.step(), dst.planeStep(), dst.size, kWidth, kWidth, kWidth));
       },
       {{"OpenCV copyMakeBorder of planes", [&] { PadPlanes(src, dst); }, 1}}});
}

template <class T, class Volume, class Planes>
void AddMedian(QvprVolume size, int side, Volume volume, Planes planes) {
  const QvprVolume mask = Cube(side);
  const auto &src = Source<T>(size), &dst = Destination<T>(size);
  int bytes = 0;
  Require(qvprFilterMedianBorderGetBufferSize(mask, size, kType<T>, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const auto byVolume = [=, &src, &dst] {
    Require(volume(src.data(), src.step(), src.planeStep(), dst.data(), dst.step(), dst.planeStep(), size, mask,
                   kBorder, nullptr, buffer.get()));
  };
  const auto byPlanes = [=, &src, &dst] {
    Require(planes(src.planes.data(), src.step(), dst.planes.data(), dst.step(), size, mask, kBorder, nullptr,
                   buffer.get()));
  };
  AddForms("median " + Square(side) + "x" + std::to_string(side) + " " + kTypeName<T>, size, {src.bytes(), dst.bytes()},
           {byVolume, byPlanes});
}

void AddMedians(QvprVolume size, int side) {
  AddMedian<Qvp8u>(size, side, qvprFilterMedianBorder_8u_C1V, qvprFilterMedianBorder_8u_C1PV);
  AddMedian<Qvp16u>(size, side, qvprFilterMedianBorder_16u_C1V, qvprFilterMedianBorder_16u_C1PV);
  AddMedian<Qvp16s>(size, side, qvprFilterMedianBorder_16s_C1V, qvprFilterMedianBorder_16s_C1PV);
  AddMedian<float>(size, side, qvprFilterMedianBorder_32f_C1V, qvprFilterMedianBorder_32f_C1PV);
}

const bool kAdded = [] {
  for (const QvprVolume size : kCubes) {
    AddBorder(size);
    AddMedians(size, 3);
  }
  AddMedians(Cube(40), 5);
  AddBorder(kBeyondCaches);
  AddMedian<Qvp16u>(kBeyondCaches, 3, qvprFilterMedianBorder_16u_C1V, qvprFilterMedianBorder_16u_C1PV);
  return true;
}();

}  // namespace
