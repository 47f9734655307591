// Histograms of oriented gradients.
#include <cmath>
#include <opencv2/imgproc.hpp>
#include <opencv2/objdetect.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

constexpr QvpiSize kWindow{64, 128};

// With so large a sigma the weights of both are 1, and columns first is the peer's order.
QvpiHOGConfig ConfigOf(float sigma) { return {1, 8, 16, 8, 9, sigma, 0.2f, kWindow}; }

cv::HOGDescriptor PeerOf(float sigma) {
  return {cv::Size(64, 128), cv::Size(16, 16), cv::Size(8, 8), cv::Size(8, 8), 9, 1, sigma};
}

// A record with its buffers for one image.
struct Describer {
  QvpiSize size;
  std::shared_ptr<uint8_t[]> spec, buffer;
  std::vector<QvpiPoint> locations;
  std::shared_ptr<float[]> descriptors;
  size_t length;

  Describer(QvpiSize s, float sigma) : size(s) {
    const QvpiHOGConfig config = ConfigOf(sigma);
    int bytes = 0;
    Require(qvpiHOGGetSize(&config, &bytes));
    spec = Pixels<uint8_t>(bytes);
    Require(qvpiHOGInit(&config, Spec()));
    Require(qvpiHOGGetBufferSize(Spec(), size, &bytes));
    buffer = Pixels<uint8_t>(bytes);
    Require(qvpiHOGGetDescriptorSize(Spec(), &bytes));
    for (int y = 0; y + kWindow.height <= size.height; y += 8) {
      for (int x = 0; x + kWindow.width <= size.width; x += 8) locations.push_back({x, y});
    }
    length = locations.size() * bytes / sizeof(float);
    descriptors = Pixels<float>(length);
  }
  QvpiHOGSpec* Spec() const { return reinterpret_cast<QvpiHOGSpec*>(spec.get()); }
};

template <class Call>
void Describe(const Describer& d, const Image<uint8_t>& image, Call call) {
  const Qvp8u outside[3] = {0, 0, 0};
  Require(call(image.data(), image.step, image.size, d.locations.data(), static_cast<int>(d.locations.size()),
               d.descriptors.get(), d.Spec(), qvpBorderMirror, outside, d.buffer.get()));
}

// A smooth picture, with runs of neighbours of one direction, unlike noise.
void MakeSmooth(const Image<uint8_t>& image, int channels) {
  for (size_t i = 0; i < image.bytes(); ++i) {
    const double x = static_cast<double>(i % image.step / channels), y = static_cast<double>(i / image.step);
    image.data()[i] = static_cast<uint8_t>(128 + 100 * std::sin(x / 17 + std::cos(y / 23) * 2) * std::cos(y / 31));
  }
}

// Both describe the same, else their times could not be compared: on strong gradients, as the peer adds a tenth for
// each value of a block to its length.
void RequireAgreement(const Image<uint8_t>& image) {
  const Describer d(image.size, 1e6f);
  Describe(d, image, qvpiHOG_8u32f_C1R);
  std::vector<float> theirs;
  PeerOf(1e6f).compute(image.mat, theirs, cv::Size(8, 8));
  bool agrees = theirs.size() == d.length;
  for (size_t i = 0; agrees && i < d.length; ++i) agrees = std::fabs(theirs[i] - d.descriptors[i]) <= 1e-3f;
  Require(agrees ? qvpStatusNoError : qvpStatusBadArgument);
}

template <class Call>
void AddRow(const std::string& name, const Image<uint8_t>& image, double atLeast, Call call) {
  const Describer d(image.size, 4);
  Add({Name(name, image.size),
       {image.bytes(), d.length * sizeof(float)},
       [=] { Describe(d, image, call); },
       {{"OpenCV HOGDescriptor::compute",
         [=, hog = PeerOf(4)] {
           std::vector<float> out;
           hog.compute(image.mat, out, cv::Size(8, 8));
         },
         atLeast}}});
}

const bool added = [] {
  const Image<uint8_t> noise(kWindow, 1), smooth(kWindow, 1), grey(kVga, 1), colours(kVga, 3);
  MakeSmooth(smooth, 1);
  MakeSmooth(grey, 1);
  MakeSmooth(colours, 3);
  RequireAgreement(noise);
  AddRow("HOG window 8u C1, noise", noise, 3, qvpiHOG_8u32f_C1R);
  AddRow("HOG window 8u C1, smooth", smooth, 2.5, qvpiHOG_8u32f_C1R);
  AddRow("HOG all windows 8u C1", grey, 3, qvpiHOG_8u32f_C1R);
  AddRow("HOG all windows 8u C3", colours, 2.5, qvpiHOG_8u32f_C3R);
  return true;
}();

}  // namespace
