// Images made by formulas, and noise.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"

namespace {
using namespace bench;

// The peer's way to a sum of a function of the column and one of the row: both repeated over the image.
struct Repeated {
  cv::Mat row, column, across, down, sum;

  explicit Repeated(QvpiSize size) : row(1, size.width, CV_32F), column(size.height, 1, CV_32F) {
    for (int x = 0; x < size.width; ++x) row.at<float>(x) = 0.05f * static_cast<float>(x);
    for (int y = 0; y < size.height; ++y) column.at<float>(y) = 0.1f * static_cast<float>(y);
  }
  void Add(const cv::Mat& to) {
    cv::repeat(row, column.rows, 1, across);
    cv::repeat(column, 1, row.cols, down);
    cv::add(across, down, to);
  }
};

void AddRamps(QvpiSize size, double bytes, double floats) {
  const Image<uint8_t> grey(size, 1);
  const Image<float> real(size, 1);
  const auto peer = std::make_shared<Repeated>(size);
  Add({Name("ramp 8u C1", size),
       {0, grey.bytes()},
       [=] {
         Require(qvpiRamp_8u_C1R(0, 0.05, 0.1, grey.data(), grey.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add, convertScaleAbs",
         [=] {
           peer->sum.create(size.height, size.width, CV_32F), peer->Add(peer->sum),
               cv::convertScaleAbs(peer->sum, grey.mat);
         },
         bytes}}});
  Add({Name("ramp 32f C1", size),
       {0, real.bytes()},
       [=] {
         Require(qvpiRamp_32f_C1R(0, 0.05, 0.1, real.data(), real.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add", [=] { peer->Add(real.mat); }, floats}}});
}

// Cosine of the sum of the squares of two ramps.
void AddJaehne(QvpiSize size, double atLeast) {
  const Image<uint8_t> grey(size, 1);
  const auto peer = std::make_shared<Repeated>(size);
  cv::multiply(peer->row, peer->row, peer->row);
  cv::multiply(peer->column, peer->column, peer->column);
  const auto draw = [=] {
    cv::Mat angle(size.height, size.width, CV_32F), cos, sin;
    peer->Add(angle);
    cv::polarToCart(cv::Mat(), angle, cos, sin);
    cv::convertScaleAbs(cos, grey.mat, 127.5, 127.5);
  };
  Add({Name("Jaehne 8u C1", size),
       {0, grey.bytes()},
       [=] {
         Require(qvpiJaehne_8u_C1R(size, 2, grey.data(), grey.step, size, {0, 0}));
       },
       {{"OpenCV repeat, repeat, add, polarToCart, convertScaleAbs", draw, atLeast}}});
}

// What the peer does with numbers of its own, drawn into an image each time.
template <class T>
using PeerNoise = void (*)(const Image<T>& from, cv::Mat& numbers, const Image<T>& to);

template <class T>
void AddRandn(const Image<T>& from, cv::Mat& numbers, const Image<T>& to) {
  const int depth = from.mat.depth() == CV_32F ? CV_32F : CV_16S;
  numbers.create(from.mat.size(), CV_MAKETYPE(depth, from.mat.channels()));
  cv::randn(numbers, cv::Scalar::all(0), cv::Scalar::all(10));
  cv::add(from.mat, numbers, to.mat, cv::noArray(), from.mat.depth());
}
void AddRandu(const Image<uint8_t>& from, cv::Mat& numbers, const Image<uint8_t>& to) {
  numbers.create(from.mat.size(), CV_16S);
  cv::randu(numbers, cv::Scalar::all(-10), cv::Scalar::all(10));
  cv::add(from.mat, numbers, to.mat, cv::noArray(), CV_8U);
}
void PutRandu(const Image<uint8_t>& from, cv::Mat& numbers, const Image<uint8_t>& to) {
  static cv::Mat pepper, salt;
  numbers.create(from.mat.size(), CV_8U);
  cv::randu(numbers, cv::Scalar::all(0), cv::Scalar::all(256));
  cv::compare(numbers, 12, pepper, cv::CMP_GE);
  cv::compare(numbers, 243, salt, cv::CMP_GE);
  cv::bitwise_and(from.mat, pepper, to.mat);
  cv::bitwise_or(to.mat, salt, to.mat);
}

template <class T, class Call>
void AddNoise(const std::string& name, QvpiSize size, int channels, const std::shared_ptr<uint8_t[]>& record, Call call,
              const char* peer, PeerNoise<T> theirs, double atLeast) {
  const Image<T> a(size, channels), b(size, channels);
  a.mat.setTo(cv::Scalar::all(100));
  const auto numbers = std::make_shared<cv::Mat>();
  const auto spec = reinterpret_cast<const QvpiNoiseSpec*>(record.get());
  Add({Name("noise " + name, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, size, {0, 0}, 0, spec)), (void)record;
       },
       {{peer, [=] { theirs(a, *numbers, b); }, atLeast}}});
}

template <class Init>
std::shared_ptr<uint8_t[]> RecordOf(const Init& init) {
  const auto record = Pixels<uint8_t>(128);
  Require(init(0, 0, reinterpret_cast<QvpiNoiseSpec*>(record.get())));
  return record;
}

void AddNoises(QvpiSize size, double atLeast) {
  const bool isAsked = size.width == kHd.width;
  const double most = isAsked ? 2.5 : atLeast;
  const auto gauss = RecordOf([](auto... key) { return qvpiNoiseGaussInit(0, 10, key...); });
  const auto uniform = RecordOf([](auto... key) { return qvpiNoiseUniformInit(-10, 10, key...); });
  const auto shot = RecordOf([](auto... key) { return qvpiNoiseShotInit(4, 3, key...); });
  const auto lost = RecordOf([](auto... key) { return qvpiNoiseSaltPepperInit(0.1, 0.5, 0, 255, key...); });
  AddNoise<uint8_t>("Gauss 8u C1", size, 1, gauss, qvpiNoise_8u_C1R, "OpenCV randn, add", AddRandn, most);
  AddNoise<uint8_t>("Gauss 8u C3", size, 3, gauss, qvpiNoise_8u_C3R, "OpenCV randn, add", AddRandn, most);
  AddNoise<float>("Gauss 32f C1", size, 1, gauss, qvpiNoise_32f_C1R, "OpenCV randn, add", AddRandn, most);
  AddNoise<uint8_t>("shot 8u C1", size, 1, shot, qvpiNoise_8u_C1R, "OpenCV randn, add (no light)", AddRandn, atLeast);
  AddNoise<uint8_t>("uniform 8u C1", size, 1, uniform, qvpiNoise_8u_C1R, "OpenCV randu, add", AddRandu, most);
  AddNoise<uint8_t>("salt and pepper 8u C1", size, 1, lost, qvpiNoise_8u_C1R, "OpenCV randu, two compares, and, or",
                    PutRandu, isAsked ? 1.4 : atLeast);
}

const bool kAdded = [] {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const bool isAsked = size.width == kHd.width;
    AddRamps(size, isAsked ? 15 : 1, isAsked ? 5 : 1);
    AddJaehne(size, isAsked ? 15 : 1);
    AddNoises(size, 1);
  }
  for (const QvpiSize size : kSmallest) AddRamps(size, 0, 0), AddJaehne(size, 0), AddNoises(size, 0);
  return true;
}();

}  // namespace
