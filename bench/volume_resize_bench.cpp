// Resizing of volumes. The peer resizes the planes, and then these, seen as an image of a row each, through the planes.
#include "bench/volumes.h"

namespace {
using namespace bench;

struct Method {
  const char* name;
  QvpiInterpolationType interpolation;
  int peer;
};
constexpr Method kNearest{"nearest", qvpInterpolationNearest, cv::INTER_NEAREST},
    kLinear{"linear", qvpInterpolationLinear, cv::INTER_LINEAR},
    kCubic{"cubic", qvpInterpolationCubic, cv::INTER_CUBIC},
    kLanczos{"Lanczos", qvpInterpolationLanczos, cv::INTER_LANCZOS4},  // of eight taps, ours has six
    kSuper{"super", qvpInterpolationSuper, cv::INTER_AREA};

using Record = Prepared<QvprResizeSpec>;

Record RecordOf(const Method& method, QvprVolume from, QvprVolume to, QvpDataType type) {
  int spec = 0, buffer = 0;
  Require(qvprResizeGetSize(from, to, type, method.interpolation, &spec));
  Record record{Pixels<Qvp8u>(spec), nullptr};
  switch (method.interpolation) {
    case qvpInterpolationNearest: Require(qvprResizeNearestInit(from, to, type, record.get())); break;
    case qvpInterpolationLinear: Require(qvprResizeLinearInit(from, to, type, record.get())); break;
    case qvpInterpolationCubic: Require(qvprResizeCubicInit(from, to, type, 0, 0.75f, record.get())); break;
    case qvpInterpolationLanczos: Require(qvprResizeLanczosInit(from, to, type, 3, record.get())); break;
    default: Require(qvprResizeSuperInit(from, to, type, record.get())); break;
  }
  Require(qvprResizeGetBufferSize(record.get(), to, &buffer));
  record.buffer = Pixels<Qvp8u>(buffer);
  return record;
}

template <class T>
void ResizeAsImages(const Stack<T>& src, const Stack<T>& between, const Stack<T>& dst, int method) {
  for (int z = 0; z < src.size.depth; ++z) {
    cv::Mat result = between.Plane(z);
    cv::resize(src.Plane(z), result, result.size(), 0, 0, method);
  }
  cv::Mat results = dst.PlanesAsRows();
  cv::resize(between.PlanesAsRows(), results, results.size(), 0, 0, method);
}

// To numerator / denominator of the source's size.
struct Ratio {
  int numerator, denominator;
  int Of(int length) const { return length * numerator / denominator; }
  QvprVolume Of(QvprVolume v) const { return {Of(v.width), Of(v.height), Of(v.depth)}; }
};
constexpr Ratio kLess{3, 5}, kMore{3, 2};

template <class T, class Volume, class Planes>
void AddResize(const Method& method, Ratio ratio, QvprVolume from, double atLeast, Volume volume, Planes planes) {
  const QvprVolume to = ratio.Of(from);
  const auto &src = Source<T>(from), &between = Destination<T>({to.width, to.height, from.depth}),
             &dst = Destination<T>(to);
  const Record record = RecordOf(method, from, to, kType<T>);
  const auto byVolume = [=, &src, &dst] {
    Require(volume(src.data(), src.step(), src.planeStep(), dst.data(), dst.step(), dst.planeStep(), {0, 0, 0}, to,
                   kBorder, record.get(), record.buffer.get()));
  };
  const auto byPlanes = [=, &src, &dst] {
    Require(planes(src.planes.data(), src.step(), dst.planes.data(), dst.step(), {0, 0, 0}, to, kBorder, record.get(),
                   record.buffer.get()));
  };
  const auto peer = [=, &src, &between, &dst] { ResizeAsImages(src, between, dst, method.peer); };
  AddForms(std::string("resize ") + method.name + " " + kTypeName<T> + " to " + std::to_string(to.width), from,
           {src.bytes(), dst.bytes()}, {byVolume, byPlanes},
           {{"OpenCV resize of planes, then of all as rows", peer, from.width == 128 ? atLeast : 1}});
}

void AddLinear(Ratio ratio, QvprVolume from, double bytes, double words, double floats) {
  AddResize<Qvp8u>(kLinear, ratio, from, bytes, qvprResize_8u_C1V, qvprResize_8u_C1PV);
  AddResize<Qvp16u>(kLinear, ratio, from, words, qvprResize_16u_C1V, qvprResize_16u_C1PV);
  AddResize<Qvp16s>(kLinear, ratio, from, words, qvprResize_16s_C1V, qvprResize_16s_C1PV);
  AddResize<float>(kLinear, ratio, from, floats, qvprResize_32f_C1V, qvprResize_32f_C1PV);
}

const bool kAdded = [] {
  for (const QvprVolume from : kCubes) {
    AddLinear(kLess, from, 2.5, 2.5, 1.8);
    AddLinear(kMore, from, 4, 3.5, 4);
    AddResize<Qvp16u>(kNearest, kLess, from, 1, qvprResize_16u_C1V, qvprResize_16u_C1PV);
    AddResize<Qvp16u>(kCubic, kLess, from, 3, qvprResize_16u_C1V, qvprResize_16u_C1PV);
    AddResize<float>(kLanczos, kLess, from, 4, qvprResize_32f_C1V, qvprResize_32f_C1PV);
    AddResize<Qvp8u>(kSuper, kLess, from, 7, qvprResize_8u_C1V, qvprResize_8u_C1PV);
  }
  AddResize<Qvp16u>(kLinear, kLess, kBeyondCaches, 1, qvprResize_16u_C1V, qvprResize_16u_C1PV);
  AddResize<Qvp16u>(kLinear, kMore, kBeyondCaches, 1, qvprResize_16u_C1V, qvprResize_16u_C1PV);
  return true;
}();

}  // namespace
