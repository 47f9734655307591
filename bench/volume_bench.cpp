// Volumes. The peer works plane by plane.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

constexpr int kBorder = 4;

// Planes one below the other.
struct Stack {
  QvprVolume size;
  Image<uint16_t> planes;

  explicit Stack(QvprVolume s) : size(s), planes({s.width, s.height * s.depth}, 1) {}
  int planeStep() const { return planes.step * size.height; }
  cv::Mat Plane(int z) const { return planes.mat(cv::Rect(0, z * size.height, size.width, size.height)); }
};

void AddBorder(QvprVolume from) {
  const QvprVolume to{from.width + 2 * kBorder, from.height + 2 * kBorder, from.depth + 2 * kBorder};
  const Stack src(from), dst(to);
  Add({Name("volume, border of 4, 16u, " + std::to_string(from.depth) + " planes", {from.width, from.height}),
       {src.planes.bytes(), dst.planes.bytes()},
       [=] {
         Require(qvprCopyReplicateBorder_16u_C1V(src.planes.data(), src.planes.step, src.planeStep(), from,
                                                 dst.planes.data(), dst.planes.step, dst.planeStep(), to, kBorder,
                                                 kBorder, kBorder));
       },
       {{"OpenCV copyMakeBorder",
         [=] {
           for (int z = 0; z < to.depth; ++z) {
             const cv::Mat plane = src.Plane(std::clamp(z - kBorder, 0, from.depth - 1));
             cv::Mat result = dst.Plane(z);
             cv::copyMakeBorder(plane, result, kBorder, kBorder, kBorder, kBorder,
                                cv::BORDER_REPLICATE | cv::BORDER_ISOLATED);
           }
         },
         1}}});
}

const bool kAdded = [] {
  AddBorder({16, 16, 16}), AddBorder({64, 64, 64}), AddBorder({128, 128, 128}), AddBorder({400, 400, 300});
  return true;
}();

}  // namespace
