// Steps of qvpi_filter.h: opening and closing by a disc, and local contrast.
#include <vector>

#include "examples/demo.h"

namespace demo {
namespace {

// Erosion and dilation by a disc, of images of one size.
class Disc {
 public:
  Disc(int side, QvpiSize size) : size_(size) {
    const QvpiSize mask{side, side};
    int specSize, bufferSize;
    Require(qvpiFilterMorphologyBorderGetSize(mask, size, qvp8u, 3, &specSize, &bufferSize));
    memory_.resize(specSize);
    buffer_.resize(bufferSize);
    std::vector<Qvp8u> disc(side * side);
    const int radius = side / 2;
    for (int i = 0; i < side * side; ++i) {
      const int x = i % side - radius, y = i / side - radius;
      disc[i] = x * x + y * y <= radius * radius;
    }
    Require(qvpiFilterMorphologyBorderInit(disc.data(), mask, {radius, radius}, spec()));
  }

  void Erode(Demo& demo, const Rgb& from, Rgb& to) {
    demo.Time(size_, 3 + 3,
              CALL(qvpiFilterErodeBorder_8u_C3R, from.data(), from.step(), to.data(), to.step(), size_,
                   qvpBorderReplicate, nullptr, spec(), buffer_.data()));
  }
  void Dilate(Demo& demo, const Rgb& from, Rgb& to) {
    demo.Time(size_, 3 + 3,
              CALL(qvpiFilterDilateBorder_8u_C3R, from.data(), from.step(), to.data(), to.step(), size_,
                   qvpBorderReplicate, nullptr, spec(), buffer_.data()));
  }

 private:
  QvpiFilterMorphologyBorderSpec* spec() { return reinterpret_cast<QvpiFilterMorphologyBorderSpec*>(memory_.data()); }

  QvpiSize size_;
  std::vector<Qvp8u> memory_, buffer_;
};

void OpenAndClose(Demo& demo) {
  const Rgb& photo = demo.photo();
  Rgb half(photo.size()), result(photo.size());
  Disc disc(15, photo.size());
  disc.Erode(demo, photo, half);
  disc.Dilate(demo, half, result);
  demo.Show("Opened by a disc of 15", result);
  disc.Dilate(demo, photo, half);
  disc.Erode(demo, half, result);
  demo.Show("Closed by a disc of 15", result);
}

void LocalContrast(Demo& demo) {
  const Rgb& photo = demo.photo();
  const QvpiSize size = photo.size(), mask{7, 7};
  const QvpiPoint anchor{3, 3};
  int bufferSize;
  Require(qvpiFilterMaxBorderGetBufferSize(mask, size, qvp8u, 3, &bufferSize));
  std::vector<Qvp8u> buffer(bufferSize);
  Rgb least(size), contrast(size);
  Require(qvpiFilterMinBorder_8u_C3R(photo.data(), photo.step(), least.data(), least.step(), size, mask, anchor,
                                     qvpBorderReplicate, nullptr, buffer.data()));
  demo.Time(size, 3 + 3,
            CALL(qvpiFilterMaxBorder_8u_C3R, photo.data(), photo.step(), contrast.data(), contrast.step(), size, mask,
                 anchor, qvpBorderReplicate, nullptr, buffer.data()));
  Require(qvpiSub_8u_C3IRSfs(least.data(), least.step(), contrast.data(), contrast.step(), size, 0));
  demo.Show("Local contrast: max - min, 7x7", contrast);
}

}  // namespace

void ExtremesSteps(Demo& demo) {
  OpenAndClose(demo);
  LocalContrast(demo);
}

}  // namespace demo
