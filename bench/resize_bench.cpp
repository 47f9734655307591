// Resize. Peers compute with other weights or rounding; the work, pixels in and out, is the same.
#include <libyuv.h>
#include <vips/vips.h>

#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

// One case: images of both libraries over the same memory, a record and a work buffer.
template <class T>
struct Case {
  QvpiSize from, to;
  int channels;
  std::shared_ptr<T[]> src, dst;
  std::shared_ptr<uint8_t[]> record = Pixels<uint8_t>(1 << 18), buffer = Pixels<uint8_t>(1 << 20);
  mutable cv::Mat source, target;

  Case(QvpiSize f, double scale, int nc)
      : from(f),
        to{static_cast<int>(f.width * scale + 0.5), static_cast<int>(f.height * scale + 0.5)},
        channels(nc),
        src(Pixels<T>(size_t{1} * from.width * from.height * nc)),
        dst(Pixels<T>(size_t{1} * to.width * to.height * nc)),
        source(from.height, from.width, CV_MAKETYPE(cv::DataType<T>::depth, nc), src.get()),
        target(to.height, to.width, CV_MAKETYPE(cv::DataType<T>::depth, nc), dst.get()) {
    if constexpr (std::is_floating_point_v<T>) {
      for (size_t i = 0; i < size_t{1} * from.width * from.height * nc; ++i) src[i] = static_cast<T>(i % 251);
    }
  }

  QvpiResizeSpec* spec() const { return reinterpret_cast<QvpiResizeSpec*>(record.get()); }
  int srcStep() const { return from.width * channels * int{sizeof(T)}; }
  int dstStep() const { return to.width * channels * int{sizeof(T)}; }
  Traffic traffic() const { return {size_t{1} * srcStep() * from.height, size_t{1} * dstStep() * to.height}; }
  std::string Name(const char* what) const {
    return std::string(what) + " " + std::to_string(from.width) + "x" + std::to_string(from.height) + " to " +
           std::to_string(to.width) + "x" + std::to_string(to.height);
  }
  // The least ratio of full frames; elsewhere no peer may be ahead.
  double Least(double ofFrames) const { return from.width == kHd.width ? ofFrames : 1; }
  Peer OpenCv(const char* name, int interpolation, double atLeast) const {
    return {name, [c = *this, interpolation] { cv::resize(c.source, c.target, c.target.size(), 0, 0, interpolation); },
            Least(atLeast)};
  }
};

#define OURS(function, ...)                                                                                  \
  [=] {                                                                                                      \
    Require(function(c.src.get(), c.srcStep(), c.dst.get(), c.dstStep(), {0, 0}, c.to, __VA_ARGS__ c.spec(), \
                     c.buffer.get()));                                                                       \
  }
#define BORDER qvpBorderReplicate, nullptr,

template <class T, class Init, class Function>
void AddLinear(const char* what, const Case<T>& c, Init init, Function function, double atLeast) {
  Require(init(c.from, c.to, c.spec()));
  Add({c.Name(what),
       c.traffic(),
       OURS(function, BORDER),
       {c.OpenCv("OpenCV INTER_LINEAR", cv::INTER_LINEAR, atLeast)}});
}

void Linear(QvpiSize size) {
  AddLinear("linear 8u C1", Case<uint8_t>(size, 0.6, 1), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C1R, 3.6);
  AddLinear("linear 8u C3", Case<uint8_t>(size, 0.6, 3), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C3R, 3);
  AddLinear("linear 8u C4", Case<uint8_t>(size, 0.6, 4), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C4R, 3);
  AddLinear("linear 32f C1", Case<float>(size, 0.6, 1), qvpiResizeLinearInit_32f, qvpiResizeLinear_32f_C1R, 2);
  AddLinear("linear 16u C1", Case<uint16_t>(size, 0.6, 1), qvpiResizeLinearInit_16u, qvpiResizeLinear_16u_C1R, 3);
  AddLinear("linear 32f C1", Case<float>(size, 1.5, 1), qvpiResizeLinearInit_32f, qvpiResizeLinear_32f_C1R, 1);
  AddLinear("linear 8u C1", Case<uint8_t>(size, 1.5, 1), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C1R, 4);
  AddLinear("linear 8u C4", Case<uint8_t>(size, 1.5, 4), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C4R, 1);
  AddLinear("linear 8u C1", Case<uint8_t>(size, 0.25, 1), qvpiResizeLinearInit_8u, qvpiResizeLinear_8u_C1R, 3);
}

void Nearest(QvpiSize size) {
  const Case<uint8_t> c(size, 0.6, 1);
  Require(qvpiResizeNearestInit_8u(c.from, c.to, c.spec()));
  Add({c.Name("nearest 8u C1"),
       c.traffic(),
       OURS(qvpiResizeNearest_8u_C1R, ),
       {c.OpenCv("OpenCV INTER_NEAREST", cv::INTER_NEAREST, 4.5)}});
}

template <class T, class Init, class Function>
void AddCubic(const char* what, const Case<T>& c, Init init, Function function, double atLeast) {
  Require(init(c.from, c.to, 0, 0.75f, c.spec(), c.buffer.get()));
  Add({c.Name(what), c.traffic(), OURS(function, BORDER), {c.OpenCv("OpenCV INTER_CUBIC", cv::INTER_CUBIC, atLeast)}});
}

void Taps(QvpiSize size) {
  AddCubic("cubic 8u C1", Case<uint8_t>(size, 0.6, 1), qvpiResizeCubicInit_8u, qvpiResizeCubic_8u_C1R, 10);
  AddCubic("cubic 8u C3", Case<uint8_t>(size, 0.6, 3), qvpiResizeCubicInit_8u, qvpiResizeCubic_8u_C3R, 6);
  AddCubic("cubic 8u C3", Case<uint8_t>(size, 1.5, 3), qvpiResizeCubicInit_8u, qvpiResizeCubic_8u_C3R, 1);
  AddCubic("cubic 32f C1", Case<float>(size, 0.6, 1), qvpiResizeCubicInit_32f, qvpiResizeCubic_32f_C1R, 5);
  const Case<uint8_t> c(size, 0.6, 1);
  Require(qvpiResizeLanczosInit_8u(c.from, c.to, 3, c.spec(), c.buffer.get()));
  Add({c.Name("Lanczos 3 lobes 8u C1"),
       c.traffic(),
       OURS(qvpiResizeLanczos_8u_C1R, BORDER),
       {c.OpenCv("OpenCV INTER_LANCZOS4, 8 taps for our 6", cv::INTER_LANCZOS4, 14)}});
}

template <class T, class Init, class Function>
void AddSuper(const char* what, const Case<T>& c, Init init, Function function, double atLeast) {
  Require(init(c.from, c.to, c.spec()));
  Row row{c.Name(what), c.traffic(), OURS(function, ), {c.OpenCv("OpenCV INTER_AREA", cv::INTER_AREA, atLeast)}};
  if constexpr (sizeof(T) == 1) {
    if (c.channels == 1) {
      row.peers.push_back({"libyuv ScalePlane box",
                           [=] {
                             libyuv::ScalePlane(c.src.get(), c.srcStep(), c.from.width, c.from.height, c.dst.get(),
                                                c.dstStep(), c.to.width, c.to.height, libyuv::kFilterBox);
                           },
                           c.Least(c.to.width * 2 == c.from.width ? 1.0 : 1.2)});
    }
  }
  Add(row);
}

void Super(QvpiSize size) {
  AddSuper("super 8u C1", Case<uint8_t>(size, 0.6, 1), qvpiResizeSuperInit_8u, qvpiResizeSuper_8u_C1R, 7);
  AddSuper("super 8u C1", Case<uint8_t>(size, 0.5, 1), qvpiResizeSuperInit_8u, qvpiResizeSuper_8u_C1R, 1);
  AddSuper("super 8u C3", Case<uint8_t>(size, 0.6, 3), qvpiResizeSuperInit_8u, qvpiResizeSuper_8u_C3R, 5);
  AddSuper("super 32f C1", Case<float>(size, 0.6, 1), qvpiResizeSuperInit_32f, qvpiResizeSuper_32f_C1R, 4);
}

// The whole of libvips's reduction, to a new image: in one thread, and without remembering results.
void ReduceByVips(const Case<uint8_t>& c, VipsKernel kernel) {
  const size_t bytes = size_t{1} * c.srcStep() * c.from.height;
  VipsImage* from =
      vips_image_new_from_memory(c.src.get(), bytes, c.from.width, c.from.height, c.channels, VIPS_FORMAT_UCHAR);
  VipsImage* to = nullptr;
  const double across = 1.0 * c.from.width / c.to.width, down = 1.0 * c.from.height / c.to.height;
  Require(vips_reduce(from, &to, across, down, "kernel", kernel, nullptr));
  size_t size = 0;
  g_free(vips_image_write_to_memory(to, &size));
  Require(size == size_t{1} * c.dstStep() * c.to.height ? 0 : -1);
  g_object_unref(to);
  g_object_unref(from);
}

void Antialiasing() {
  Require(VIPS_INIT("resize_bench"));
  vips_concurrency_set(1);
  vips_cache_set_max(0);
  const auto add = [](const char* what, const Case<uint8_t>& c, VipsKernel kernel) {
    Add({c.Name(what),
         c.traffic(),
         OURS(qvpiResizeAntialiasing_8u_C3R, BORDER),
         {{"libvips vips_reduce, fixed point", [=] { ReduceByVips(c, kernel); }, 3}}});
  };
  const Case<uint8_t> linear(kHd, 0.25, 3), cubic(kHd, 0.25, 3);
  Require(qvpiResizeAntialiasingLinearInit(linear.from, linear.to, linear.spec(), linear.buffer.get()));
  Require(qvpiResizeAntialiasingCubicInit(cubic.from, cubic.to, 0, 0.5f, cubic.spec(), cubic.buffer.get()));
  add("antialiased linear 8u C3", linear, VIPS_KERNEL_LINEAR);
  add("antialiased cubic 8u C3", cubic, VIPS_KERNEL_CUBIC);
}

const bool kRegistered = [] {
  for (const QvpiSize size : {kTile, QvpiSize{640, 480}, kHd}) {
    Nearest(size);
    Linear(size);
    Taps(size);
    Super(size);
  }
  Antialiasing();
  return true;
}();

}  // namespace
