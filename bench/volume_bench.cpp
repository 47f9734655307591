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

// No peer here has more than two dimensions.
template <class T, class Call>
void AddMedian(const char* type, QvpDataType code, int side, int mask, Call call) {
  const QvprVolume size{side, side, side}, of{mask, mask, mask};
  const Image<T> src({side, side * side}, 1), dst({side, side * side}, 1);
  int bytes = 0;
  Require(qvprFilterMedianBorderGetBufferSize(of, size, code, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  cv::randu(src.mat, 0, 255);
  const std::string sides = std::to_string(mask) + "x" + std::to_string(mask) + "x" + std::to_string(mask);
  Add({Name("volume, median " + sides + " " + type + ", " + std::to_string(side) + " planes", {side, side}),
       {src.bytes(), dst.bytes()},
       [=] {
         Require(call(src.data(), src.step, src.step * side, dst.data(), dst.step, dst.step * side, size, of,
                      qvpBorderReplicate, nullptr, buffer.get()));
       }});
}

// A turn by 10 degrees with a tilt of 7.
template <class T, class Call>
void AddWarp(const std::string& name, QvpDataType code, int side, int method, Call call) {
  const QvprVolume size{side, side, side};
  const Image<T> src({side, side * side}, 1), dst({side, side * side}, 1);
  double turn[3][4], tilt[3][4], both[3][4];
  const double middle = (side - 1) / 2.0, center[] = {middle, middle, middle}, z[] = {0, 0, 1}, x[] = {1, 0, 0};
  Require(qvprGetRotateTransform(10, z, center, turn));
  Require(qvprGetRotateTransform(7, x, center, tilt));
  Require(qvprGetAffineProduct(turn, tilt, both));
  const auto record = Pixels<Qvp8u>(576);
  auto* const spec = reinterpret_cast<QvprWarpSpec*>(record.get());
  Require(
      method == qvpInterpolationCubic
          ? qvprWarpAffineCubicInit(size, size, code, both, qvpWarpBackward, 0, 0.5, qvpBorderReplicate, nullptr, spec)
          : (method == qvpInterpolationLinear ? qvprWarpAffineLinearInit : qvprWarpAffineNearestInit)(
                size, size, code, both, qvpWarpBackward, qvpBorderReplicate, nullptr, spec));
  int bytes = 0;
  Require(qvprWarpGetBufferSize(spec, size, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  cv::randu(src.mat, 0, 255);
  Add({Name("volume, warp " + name + ", " + std::to_string(side) + " planes", {side, side}),
       {src.bytes(), dst.bytes()},
       [=] {
         (void)record;
         Require(call(src.data(), src.step, src.step * side, dst.data(), dst.step, dst.step * side, {0, 0, 0}, size,
                      spec, buffer.get()));
       }});
}

// Resizing. The peer resizes the planes, and then these, seen as an image of a row each, through the planes.

struct Resized {
  const char* name;
  QvpiInterpolationType interpolation;
  int peer;
};

std::shared_ptr<Qvp8u[]> RecordOf(const Resized& method, QvprVolume from, QvprVolume to, QvpDataType type) {
  int bytes = 0;
  Require(qvprResizeGetSize(from, to, type, method.interpolation, &bytes));
  auto memory = Pixels<Qvp8u>(bytes);
  auto* const spec = reinterpret_cast<QvprResizeSpec*>(memory.get());
  switch (method.interpolation) {
    case qvpInterpolationNearest: Require(qvprResizeNearestInit(from, to, type, spec)); break;
    case qvpInterpolationLinear: Require(qvprResizeLinearInit(from, to, type, spec)); break;
    case qvpInterpolationCubic: Require(qvprResizeCubicInit(from, to, type, 0, 0.75f, spec)); break;
    case qvpInterpolationLanczos: Require(qvprResizeLanczosInit(from, to, type, 3, spec)); break;
    default: Require(qvprResizeSuperInit(from, to, type, spec)); break;
  }
  return memory;
}

template <class T>
void ResizeAsImages(const Image<T>& src, const Image<T>& between, const Image<T>& dst, QvprVolume from, QvprVolume to,
                    int method) {
  for (int z = 0; z < from.depth; ++z) {
    const cv::Mat plane = src.mat(cv::Rect(0, z * from.height, from.width, from.height));
    cv::Mat result = between.mat(cv::Rect(0, z * to.height, to.width, to.height));
    cv::resize(plane, result, result.size(), 0, 0, method);
  }
  const cv::Mat rows = between.mat.reshape(0, from.depth);
  cv::Mat results = dst.mat.reshape(0, to.depth);
  cv::resize(rows, results, results.size(), 0, 0, method);
}

template <class T, class Call>
void AddResize(const char* type, QvpDataType code, const Resized& method, int side, int target, double atLeast,
               Call call) {
  const QvprVolume from{side, side, side}, to{target, target, target};
  const Image<T> src({side, side * side}, 1), between({target, side * target}, 1), dst({target, target * target}, 1);
  cv::randu(src.mat, 0, 255);
  const auto record = RecordOf(method, from, to, code);
  auto* const spec = reinterpret_cast<QvprResizeSpec*>(record.get());
  int bytes = 0;
  Require(qvprResizeGetBufferSize(spec, to, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const std::string name = "volume, resize " + std::string(method.name) + " " + type + " to " + std::to_string(target);
  Add({Name(name + ", " + std::to_string(side) + " planes", {side, side}),
       {src.bytes(), dst.bytes()},
       [=] {
         Require(call(src.data(), src.step, src.step * side, dst.data(), dst.step, dst.step * target, {0, 0, 0}, to,
                      qvpBorderReplicate, reinterpret_cast<const QvprResizeSpec*>(record.get()), buffer.get()));
       },
       {{"OpenCV resize of planes, then of all as rows",
         [=] { ResizeAsImages(src, between, dst, from, to, method.peer); }, side == 128 ? atLeast : 1}}});
}

void AddResizes(int side) {
  constexpr Resized kLinear{"linear", qvpInterpolationLinear, cv::INTER_LINEAR},
      kCubic{"cubic", qvpInterpolationCubic, cv::INTER_CUBIC},
      kLanczos{"Lanczos", qvpInterpolationLanczos, cv::INTER_LANCZOS4},
      kSuper{"super", qvpInterpolationSuper, cv::INTER_AREA};
  const int less = side * 3 / 5, more = side * 3 / 2;
  AddResize<uint8_t>("8u", qvp8u, kLinear, side, less, 2.5, qvprResize_8u_C1V);
  AddResize<uint16_t>("16u", qvp16u, kLinear, side, less, 2.5, qvprResize_16u_C1V);
  AddResize<float>("32f", qvp32f, kLinear, side, less, 1.8, qvprResize_32f_C1V);
  AddResize<uint8_t>("8u", qvp8u, kLinear, side, more, 4, qvprResize_8u_C1V);
  AddResize<uint16_t>("16u", qvp16u, kLinear, side, more, 3.5, qvprResize_16u_C1V);
  AddResize<float>("32f", qvp32f, kLinear, side, more, 4, qvprResize_32f_C1V);
  AddResize<uint16_t>("16u", qvp16u, kCubic, side, less, 3, qvprResize_16u_C1V);
  AddResize<float>("32f", qvp32f, kLanczos, side, less, 4, qvprResize_32f_C1V);
  AddResize<uint8_t>("8u", qvp8u, kSuper, side, less, 7, qvprResize_8u_C1V);
}

const bool kAdded = [] {
  for (const int side : {16, 64, 128}) {
    AddWarp<uint8_t>("nearest 8u", qvp8u, side, qvpInterpolationNearest, qvprWarpAffine_8u_C1V);
    AddWarp<uint8_t>("linear 8u", qvp8u, side, qvpInterpolationLinear, qvprWarpAffine_8u_C1V);
    AddWarp<uint16_t>("linear 16u", qvp16u, side, qvpInterpolationLinear, qvprWarpAffine_16u_C1V);
    AddWarp<float>("linear 32f", qvp32f, side, qvpInterpolationLinear, qvprWarpAffine_32f_C1V);
    AddWarp<float>("cubic 32f", qvp32f, side, qvpInterpolationCubic, qvprWarpAffine_32f_C1V);
  }
  for (const int side : {16, 64, 128}) {
    AddMedian<uint8_t>("8u", qvp8u, side, 3, qvprFilterMedianBorder_8u_C1V);
    AddMedian<uint16_t>("16u", qvp16u, side, 3, qvprFilterMedianBorder_16u_C1V);
    AddMedian<float>("32f", qvp32f, side, 3, qvprFilterMedianBorder_32f_C1V);
  }
  AddMedian<uint8_t>("8u", qvp8u, 40, 5, qvprFilterMedianBorder_8u_C1V);
  AddMedian<uint16_t>("16u", qvp16u, 40, 5, qvprFilterMedianBorder_16u_C1V);
  AddResizes(16), AddResizes(128);
  AddBorder({16, 16, 16}), AddBorder({64, 64, 64}), AddBorder({128, 128, 128}), AddBorder({400, 400, 300});
  return true;
}();

}  // namespace
