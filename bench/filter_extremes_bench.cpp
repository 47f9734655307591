// Minimum, maximum, erosion and dilation.
#include "bench/filters.h"

namespace {
using namespace bench;

template <class Call>
void AddRow(const std::string& name, QvpiSize size, size_t bytes, const Call& call, const std::string& peer,
            const std::function<void()>& peerCall, double atLeast) {
  Add({Name(name, size), {bytes, bytes}, [=] { Require(call()); }, {{"OpenCV " + peer, peerCall, atLeast}}});
}

template <class T, class Call>
void AddRectangle(const std::string& what, QvpiSize size, int channels, int side, Call call, double atLeast,
                  bool isMaximum = false) {
  const Image<T> a = Scene<T>(size, channels), b(size, channels);
  int bytes;
  Require(qvpiFilterMinBorderGetBufferSize({side, side}, size, kType<T>, channels, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const cv::Mat element = cv::getStructuringElement(cv::MORPH_RECT, {side, side});
  AddRow((isMaximum ? "max " : "min ") + Square(side) + " " + what, size, a.bytes(),
         [=] {
           return call(a.data(), a.step, b.data(), b.step, size, {side, side}, {side / 2, side / 2}, kBorder, nullptr,
                       buffer.get());
         },
         isMaximum ? "dilate" : "erode",
         [=] {
           (isMaximum ? cv::dilate : cv::erode)(a.mat, b.mat, element, {-1, -1}, 1, kPeerBorder, {});
         },
         atLeast);
}

template <class T, class Call>
void AddDisc(const std::string& what, QvpiSize size, int side, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, 1), b(size, 1);
  int specBytes, bytes;
  Require(qvpiFilterMorphologyBorderGetSize({side, side}, size, kType<T>, 1, &specBytes, &bytes));
  const auto memory = Pixels<Qvp8u>(specBytes), buffer = Pixels<Qvp8u>(bytes);
  auto* const spec = reinterpret_cast<QvpiFilterMorphologyBorderSpec*>(memory.get());
  const cv::Mat element = cv::getStructuringElement(cv::MORPH_ELLIPSE, {side, side});
  Require(qvpiFilterMorphologyBorderInit(element.data, {side, side}, {side / 2, side / 2}, spec));
  AddRow(
      "erode by disc " + std::to_string(side) + " " + what, size, a.bytes(),
      [=] {
        (void)memory;
        return call(a.data(), a.step, b.data(), b.step, size, kBorder, nullptr, spec, buffer.get());
      },
      "erode",
      [=] {
        cv::erode(a.mat, b.mat, element, {-1, -1}, 1, kPeerBorder);
      },
      atLeast);
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  const auto min8u = qvpiFilterMinBorder_8u_C1R;
  for (const auto& [size, atLeast] : {std::pair{kTile, 2.0}, {kVga, 1.0}, {kHd, 1.2}, {kLarge, 1.0}}) {
    AddRectangle<uint8_t>("8u C1", size, 1, 3, min8u, atLeast);
  }
  for (const QvpiSize size : kSmallest) AddRectangle<uint8_t>("8u C1", size, 1, 3, min8u, 0);
  AddRectangle<uint8_t>("8u C1", kTile, 1, 15, min8u, 1);
  for (const auto& [side, atLeast] : {std::pair{5, 1.2}, {15, 1.8}, {63, 6.0}}) {
    AddRectangle<uint8_t>("8u C1", kHd, 1, side, min8u, atLeast);
  }
  AddRectangle<uint8_t>("8u C3", kHd, 3, 15, qvpiFilterMinBorder_8u_C3R, 2.2);
  AddRectangle<uint8_t>("8u C1", kHd, 1, 3, qvpiFilterMaxBorder_8u_C1R, 1.2, true);
  AddRectangle<uint16_t>("16u C1", kHd, 1, 15, qvpiFilterMinBorder_16u_C1R, 2);
  AddRectangle<int16_t>("16s C1", kHd, 1, 15, qvpiFilterMinBorder_16s_C1R, 2);
  const auto min32f = qvpiFilterMinBorder_32f_C1R;
  AddRectangle<float>("32f C1", kTile, 1, 3, min32f, 1);
  AddRectangle<float>("32f C1", kHd, 1, 3, min32f, 1.3);
  AddRectangle<float>("32f C1", kHd, 1, 15, min32f, 2);
  const auto erode8u = qvpiFilterErodeBorder_8u_C1R;
  for (const QvpiSize size : {kTile, kVga, kLarge}) AddDisc<uint8_t>("8u C1", size, 5, erode8u, 1);
  for (const auto& [side, atLeast] : {std::pair{5, 1.2}, {15, 6.0}, {31, 14.0}}) {
    AddDisc<uint8_t>("8u C1", kHd, side, erode8u, atLeast);
  }
  AddDisc<float>("32f C1", kHd, 15, qvpiFilterErodeBorder_32f_C1R, 8);
  return true;
}();

}  // namespace
