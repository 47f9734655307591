// Steps of qvpi_geometry.h.
#include <algorithm>
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// A record, its Init buffer and a work buffer, of the sizes that the library asks for.
class Resizer {
 public:
  template <class Init>
  Resizer(QvpiSize from, QvpiSize to, int interpolation, bool isAntialiasing, const Init& init) {
    int record = 0, initBuffer = 0, buffer = 0;
    Require(qvpiResizeGetSize_8u(from, to, interpolation, isAntialiasing, &record, &initBuffer));
    record_.resize(record);
    std::vector<Qvp8u> temporary(initBuffer);
    Require(init(from, to, spec(), temporary.data()));
    Require(qvpiResizeGetBufferSize_8u(spec(), to, 3, &buffer));
    buffer_.resize(buffer);
  }

  QvpiResizeSpec* spec() { return reinterpret_cast<QvpiResizeSpec*>(record_.data()); }
  Qvp8u* buffer() { return buffer_.data(); }

 private:
  std::vector<Qvp8u> record_, buffer_;
};

constexpr auto kInitNearest = [](QvpiSize from, QvpiSize to, QvpiResizeSpec* spec, Qvp8u*) {
  return qvpiResizeNearestInit_8u(from, to, spec);
};
constexpr auto kInitLinear = [](QvpiSize from, QvpiSize to, QvpiResizeSpec* spec, Qvp8u*) {
  return qvpiResizeLinearInit_8u(from, to, spec);
};
constexpr auto kInitCubic = [](QvpiSize from, QvpiSize to, QvpiResizeSpec* spec, Qvp8u* buffer) {
  return qvpiResizeCubicInit_8u(from, to, 0, 0.5f, spec, buffer);
};
constexpr auto kInitLanczos = [](QvpiSize from, QvpiSize to, QvpiResizeSpec* spec, Qvp8u* buffer) {
  return qvpiResizeLanczosInit_8u(from, to, 3, spec, buffer);
};
constexpr auto kInitSuper = [](QvpiSize from, QvpiSize to, QvpiResizeSpec* spec, Qvp8u*) {
  return qvpiResizeSuperInit_8u(from, to, spec);
};

// Runs one method from a part of a picture to an image and shows what comes out.
template <class Init, class Function>
void Resize(Demo& demo, const char* name, const std::string& caption, const Rgb& from, QvpiPoint at, QvpiSize part,
            QvpiSize to, int interpolation, bool isAntialiasing, const Init& init, Function function) {
  Resizer resizer(part, to, interpolation, isAntialiasing, init);
  Rgb result(to);
  demo.Time(to, 3, name, [&] {
    return function(from.At(at.x, at.y), from.step(), result.data(), result.step(), {0, 0}, to, resizer);
  });
  demo.Show(caption, result);
}

#define STEP(method)                                                                                          \
  "qvpiResize" #method "_8u_C3R",                                                                             \
      [](const Qvp8u* src, int srcStep, Qvp8u* dst, int dstStep, QvpiPoint at, QvpiSize size, Resizer& r) {   \
        return qvpiResize##method##_8u_C3R(src, srcStep, dst, dstStep, at, size, qvpBorderReplicate, nullptr, \
                                           r.spec(), r.buffer());                                             \
      }
#define STEP_WITHOUT_BORDER(method)                                                                         \
  "qvpiResize" #method "_8u_C3R",                                                                           \
      [](const Qvp8u* src, int srcStep, Qvp8u* dst, int dstStep, QvpiPoint at, QvpiSize size, Resizer& r) { \
        return qvpiResize##method##_8u_C3R(src, srcStep, dst, dstStep, at, size, r.spec(), r.buffer());     \
      }

struct Part {
  QvpiPoint at;
  QvpiSize size, to;
  std::string caption;
};

template <class Init, class Function>
void Show(Demo& demo, const Part& part, int interpolation, const char* method, const Init& init, const char* name,
          Function function, bool isAntialiasing = false) {
  Resize(demo, name, part.caption + method, demo.photo(), part.at, part.size, part.to, interpolation, isAntialiasing,
         init, function);
}

void EveryMethod(Demo& demo, const Part& part) {
  Show(demo, part, qvpInterpolationNearest, "nearest", kInitNearest, STEP_WITHOUT_BORDER(Nearest));
  Show(demo, part, qvpInterpolationLinear, "linear", kInitLinear, STEP(Linear));
  Show(demo, part, qvpInterpolationCubic, "cubic", kInitCubic, STEP(Cubic));
  Show(demo, part, qvpInterpolationLanczos, "Lanczos", kInitLanczos, STEP(Lanczos));
  if (part.to.width > part.size.width) return;
  Show(demo, part, qvpInterpolationSuper, "super-sampling", kInitSuper, STEP_WITHOUT_BORDER(Super));
  Show(demo, part, qvpInterpolationLinear, "antialiased linear", qvpiResizeAntialiasingLinearInit, STEP(Antialiasing),
       true);
}

}  // namespace

void ResizeSteps(Demo& demo) {
  const QvpiSize all = demo.photo().size();
  if (all.width < 24 || all.height < 24) return;  // too small for every method
  EveryMethod(demo, {{0, 0}, all, {std::max(1, all.width / 4), std::max(1, all.height / 4)}, "Quarter size, "});
  const QvpiSize part{std::min(64, all.width / 3), std::min(64, all.height / 3)};
  const QvpiPoint face{all.width * 2 / 5, all.height / 8};
  EveryMethod(demo, {face, part, {4 * part.width, 4 * part.height}, "Detail x 4, "});
}

}  // namespace demo
