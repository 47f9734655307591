// The general filter of volumes. The peer filters the planes, and sums what the planes of the kernel give; separable
// filters are its own of the planes, and then of the volume seen as one image whose rows are planes.
#include "bench/filters.h"

namespace {
using namespace bench;

enum class Kind { kIntegers, kFloats, kSeparable };

template <class T>
struct Stack {
  int side;
  Image<T> planes;  // one below the other

  explicit Stack(int n) : side(n), planes({n, n * n}, 1) {}
  cv::Mat Plane(int z) const { return planes.mat(cv::Rect(0, z * side, side, side)); }
  cv::Mat View() const { return {side, side * side, planes.mat.type(), planes.data()}; }
};

// Coefficients of a cube, or of one of three equal factors.
template <class K>
std::vector<K> KernelOf(int n, K unit) {
  std::vector<K> kernel(n);
  for (int i = 0; i < n; ++i) kernel[i] = static_cast<K>(i * 7 % 11 - 3) * unit;
  return kernel;
}

using Record = Prepared<QvprFilterBorderSpec>;

template <class T>
Record RecordFor(Kind kind, int side, int mask) {
  const QvprVolume kernel{mask, mask, mask}, size{side, side, side};
  const QvprPoint anchor{mask / 2, mask / 2, mask / 2};
  int spec, buffer;
  Require(qvprFilterBorderGetSize(kernel, size, kType<T>, kind == Kind::kIntegers ? qvp16s : qvp32f, &spec, &buffer));
  const Record record{Pixels<Qvp8u>(spec), Pixels<Qvp8u>(buffer)};
  const auto floats = KernelOf(mask * mask * mask, 0.01f);
  const auto integers = KernelOf<Qvp16s>(mask * mask * mask, 3);
  const float* const k = floats.data();
  if (kind == Kind::kIntegers) {
    Require(qvprFilterBorderInit_16s(integers.data(), kernel, anchor, 128, kType<T>, qvpRoundNear, record.get()));
  } else if (kind == Kind::kFloats) {
    Require(qvprFilterBorderInit_32f(k, kernel, anchor, kType<T>, qvpRoundNear, record.get()));
  } else {
    Require(qvprFilterBorderSeparableInit_32f(k, k, k, kernel, anchor, kType<T>, qvpRoundNear, record.get()));
  }
  return record;
}

template <class T>
void FilterPlanes(const Stack<T>& src, const Stack<T>& dst, const cv::Mat& kernel, int mask) {
  cv::Mat sum, one;
  for (int z = 0; z < src.side; ++z) {
    for (int k = 0; k < mask; ++k) {
      const cv::Mat plane = src.Plane(std::clamp(z + k - mask / 2, 0, src.side - 1));
      const cv::Mat part = kernel(cv::Rect(0, k * mask, mask, mask));
      cv::filter2D(plane, k == 0 ? sum : one, CV_32F, part, {-1, -1}, 0, kPeerBorder | cv::BORDER_ISOLATED);
      if (k > 0) sum += one;
    }
    cv::Mat result = dst.Plane(z);
    sum.convertTo(result, result.type());
  }
}

template <class T>
void FilterAxes(const Stack<T>& src, const Stack<T>& dst, const cv::Mat& kernel, const cv::Mat& floats) {
  const cv::Mat one(1, 1, CV_32F, cv::Scalar(1));
  for (int z = 0; z < src.side; ++z) {
    cv::Mat plane = floats(cv::Rect(0, z * src.side, src.side, src.side));
    cv::sepFilter2D(src.Plane(z), plane, CV_32F, kernel, kernel, {-1, -1}, 0, kPeerBorder | cv::BORDER_ISOLATED);
  }
  cv::Mat view = dst.View();
  const cv::Mat across(src.side, src.side * src.side, CV_32F, floats.data);
  cv::sepFilter2D(across, view, view.type(), one, kernel, {-1, -1}, 0, kPeerBorder);
}

template <class T, class Call>
void AddFilter(const std::string& what, Kind kind, int side, int mask, Call call, double atLeast) {
  const Stack<T> src(side), dst(side);
  if constexpr (std::is_same_v<T, float>) {
    for (int i = 0; i < side * side * side; ++i) src.planes.data()[i] = static_cast<float>(i * 7919LL % 1000);
  }
  const Record record = RecordFor<T>(kind, side, mask);
  const int n = kind == Kind::kSeparable ? mask : mask * mask * mask;
  const auto coefficients = KernelOf(n, 0.01f);
  const cv::Mat kernel =
      cv::Mat(n, 1, CV_32F, const_cast<float*>(coefficients.data())).clone().reshape(1, n / (n > mask ? mask : 1));
  const cv::Mat floats(side * side, side, CV_32F);
  Add({Name("volume, " + what + ", " + std::to_string(side) + " planes", {side, side}),
       {src.planes.bytes(), dst.planes.bytes()},
       [=] {
         Require(call(src.planes.data(), src.planes.step, src.planes.step * side, dst.planes.data(), dst.planes.step,
                      dst.planes.step * side, {side, side, side}, kBorder, nullptr, record.get(), record.buffer.get()));
       },
       {{"OpenCV filter2D of planes",
         [=] {
           kind == Kind::kSeparable ? FilterAxes(src, dst, kernel, floats) : FilterPlanes(src, dst, kernel, mask);
         },
         atLeast}}});
}

const bool kAdded = [] {
  for (const int side : {16, 64, 128, 256}) {
    AddFilter<float>("filter 3x3x3 32f", Kind::kFloats, side, 3, qvprFilterBorder_32f_C1V, 3.5);
    AddFilter<Qvp16u>("filter 3x3x3 16u by integers", Kind::kIntegers, side, 3, qvprFilterBorder_16u_C1V, 8);
    AddFilter<float>("separable filter 7+7+7 32f", Kind::kSeparable, side, 7, qvprFilterBorder_32f_C1V, 3);
  }
  AddFilter<float>("filter 5x5x5 32f", Kind::kFloats, 128, 5, qvprFilterBorder_32f_C1V, 2);
  AddFilter<Qvp16u>("separable filter 7+7+7 16u", Kind::kSeparable, 128, 7, qvprFilterBorder_16u_C1V, 3);
  return true;
}();

}  // namespace
