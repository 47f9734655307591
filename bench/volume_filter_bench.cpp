// The general filter of volumes. The peer filters the planes, and sums what the planes of the kernel give; separable
// filters are its own of the planes, and then of the volume seen as one image whose rows are planes.
#include "bench/volumes.h"

namespace {
using namespace bench;

enum class Kind { kIntegers, kFloats, kSeparable };

// Coefficients of a cube, or of one of three equal factors.
template <class K>
std::vector<K> KernelOf(int n, K unit) {
  std::vector<K> kernel(n);
  for (int i = 0; i < n; ++i) kernel[i] = static_cast<K>(i * 7 % 11 - 3) * unit;
  return kernel;
}

using Record = Prepared<QvprFilterBorderSpec>;

template <class T>
Record RecordFor(Kind kind, QvprVolume size, int mask) {
  const QvprVolume kernel = Cube(mask);
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
  for (int z = 0; z < src.size.depth; ++z) {
    for (int k = 0; k < mask; ++k) {
      const cv::Mat plane = src.Plane(std::clamp(z + k - mask / 2, 0, src.size.depth - 1));
      const cv::Mat part = kernel(cv::Rect(0, k * mask, mask, mask));
      cv::filter2D(plane, k == 0 ? sum : one, CV_32F, part, {-1, -1}, 0, kPeerBorder | cv::BORDER_ISOLATED);
      if (k > 0) sum += one;
    }
    cv::Mat result = dst.Plane(z);
    sum.convertTo(result, result.type());
  }
}

template <class T>
void FilterAxes(const Stack<T>& src, const Stack<T>& dst, const cv::Mat& kernel) {
  const auto& floats = Shared<float, 5>(src.size);
  const cv::Mat one(1, 1, CV_32F, cv::Scalar(1));
  for (int z = 0; z < src.size.depth; ++z) {
    cv::Mat plane = floats.Plane(z);
    cv::sepFilter2D(src.Plane(z), plane, CV_32F, kernel, kernel, {-1, -1}, 0, kPeerBorder | cv::BORDER_ISOLATED);
  }
  cv::Mat rows = dst.PlanesAsRows();
  cv::sepFilter2D(floats.PlanesAsRows(), rows, rows.type(), one, kernel, {-1, -1}, 0, kPeerBorder);
}

template <class T>
Peer PeerOf(Kind kind, QvprVolume size, int mask, double atLeast) {
  const auto &src = Source<T>(size), &dst = Destination<T>(size);
  const int rows = kind == Kind::kSeparable ? mask : mask * mask, columns = kind == Kind::kSeparable ? 1 : mask;
  const auto coefficients = KernelOf(rows * columns, 0.01f);
  const cv::Mat kernel = cv::Mat(coefficients, true).reshape(1, rows);
  return {"OpenCV filter2D of planes",
          [=, &src, &dst] {
            kind == Kind::kSeparable ? FilterAxes(src, dst, kernel) : FilterPlanes(src, dst, kernel, mask);
          },
          size.width == 128 ? atLeast : 1};
}

template <class T, class Volume, class Planes>
void AddFilter(const std::string& what, Kind kind, QvprVolume size, int mask, double atLeast, Volume volume,
               Planes planes) {
  const auto &src = Source<T>(size), &dst = Destination<T>(size);
  const Record record = RecordFor<T>(kind, size, mask);
  const auto byVolume = [=, &src, &dst] {
    Require(volume(src.data(), src.step(), src.planeStep(), dst.data(), dst.step(), dst.planeStep(), size, kBorder,
                   nullptr, record.get(), record.buffer.get()));
  };
  const auto byPlanes = [=, &src, &dst] {
    Require(planes(src.planes.data(), src.step(), dst.planes.data(), dst.step(), size, kBorder, nullptr, record.get(),
                   record.buffer.get()));
  };
  AddForms(what + " " + kTypeName<T>, size, {src.bytes(), dst.bytes()}, {byVolume, byPlanes},
           {PeerOf<T>(kind, size, mask, atLeast)});
}

void AddFloats(const std::string& what, Kind kind, QvprVolume size, int mask, double atLeast) {
  AddFilter<float>(what, kind, size, mask, atLeast, qvprFilterBorder_32f_C1V, qvprFilterBorder_32f_C1PV);
}
void AddWords(const std::string& what, Kind kind, QvprVolume size, int mask, double atLeast) {
  AddFilter<Qvp16u>(what, kind, size, mask, atLeast, qvprFilterBorder_16u_C1V, qvprFilterBorder_16u_C1PV);
}
void AddBytes(const std::string& what, Kind kind, QvprVolume size, int mask, double atLeast) {
  AddFilter<Qvp8u>(what, kind, size, mask, atLeast, qvprFilterBorder_8u_C1V, qvprFilterBorder_8u_C1PV);
}

const bool kAdded = [] {
  for (const QvprVolume size : kCubes) {
    AddFloats("filter 3x3x3", Kind::kFloats, size, 3, 3.5);
    AddBytes("filter 3x3x3 by integers", Kind::kIntegers, size, 3, 1);
    AddWords("filter 3x3x3 by integers", Kind::kIntegers, size, 3, 8);
    AddFloats("filter 5x5x5", Kind::kFloats, size, 5, 2);
    AddFloats("separable filter 7+7+7", Kind::kSeparable, size, 7, 3);
    AddWords("separable filter 7+7+7", Kind::kSeparable, size, 7, 3);
  }
  AddWords("filter 3x3x3 by integers", Kind::kIntegers, kBeyondCaches, 3, 1);
  AddWords("separable filter 7+7+7", Kind::kSeparable, kBeyondCaches, 7, 1);
  return true;
}();

}  // namespace
