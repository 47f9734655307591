// The box filter, and sums along rows and columns.
#include "bench/filters.h"

namespace {
using namespace bench;

template <class T, class Call>
void AddBox(const std::string& type, QvpiSize size, int channels, int side, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, channels), b(size, channels);
  int bytes;
  Require(qvpiFilterBoxBorderGetBufferSize({side, side}, size, kType<T>, channels, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  Add({Name("box " + Square(side) + " " + type, size),
       {a.bytes(), b.bytes()},
       [=] {
         Require(call(a.data(), a.step, b.data(), b.step, size, {side, side}, {side / 2, side / 2}, kBorder, nullptr,
                      buffer.get()));
       },
       {{"OpenCV blur",
         [=] {
           cv::blur(a.mat, b.mat, {side, side}, {-1, -1}, kPeerBorder);
         },
         atLeast}}});
}

template <class T, class Call, class Query>
void AddSums(const std::string& name, int n, bool isRow, QvpiSize size, Query query, Call call, double atLeast) {
  const Image<T> a = Scene<T>(size, 1);
  const Image<float> b(size, 1);
  int bytes;
  Require(query(n, size, kType<T>, 1, &bytes));
  const auto buffer = Pixels<Qvp8u>(bytes);
  const cv::Size mask = isRow ? cv::Size(n, 1) : cv::Size(1, n);
  Add({Name(name, size),
       {a.bytes(), b.bytes()},
       [=] { Require(call(a.data(), a.step, b.data(), b.step, size, n, n / 2, kBorder, nullptr, buffer.get())); },
       {{"OpenCV boxFilter",
         [=] {
           cv::boxFilter(a.mat, b.mat, CV_32F, mask, {-1, -1}, false, kPeerBorder);
         },
         atLeast}}});
}

void AddBoxes() {
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    AddBox<uint8_t>("8u C1", size, 1, 3, qvpiFilterBoxBorder_8u_C1R,
                    size.width == kTile.width ? 2
                    : size.width == kHd.width ? 4.5
                                              : 1);
  }
  for (const auto& [side, atLeast] : {std::pair{5, 5.0}, {15, 3.0}, {63, 2.2}}) {
    AddBox<uint8_t>("8u C1", kHd, 1, side, qvpiFilterBoxBorder_8u_C1R, atLeast);
  }
  for (const QvpiSize size : kSmallest) AddBox<uint8_t>("8u C1", size, 1, 3, qvpiFilterBoxBorder_8u_C1R, 0);
  AddBox<uint8_t>("8u C1", kTile, 1, 15, qvpiFilterBoxBorder_8u_C1R, 1);
  AddBox<uint8_t>("8u C1", kHd, 1, 4, qvpiFilterBoxBorder_8u_C1R, 1);
  AddBox<uint8_t>("8u C3", kHd, 3, 5, qvpiFilterBoxBorder_8u_C3R, 5);
  AddBox<uint8_t>("8u C3", kHd, 3, 63, qvpiFilterBoxBorder_8u_C3R, 1);
  AddBox<uint16_t>("16u C1", kHd, 1, 3, qvpiFilterBoxBorder_16u_C1R, 4);
  AddBox<uint16_t>("16u C1", kHd, 1, 15, qvpiFilterBoxBorder_16u_C1R, 2.5);
  AddBox<int16_t>("16s C1", kHd, 1, 15, qvpiFilterBoxBorder_16s_C1R, 2.5);
  AddBox<float>("32f C1", kTile, 1, 3, qvpiFilterBoxBorder_32f_C1R, 1);
  for (const auto& [side, atLeast] : {std::pair{3, 3.0}, {15, 2.5}, {63, 1.8}}) {
    AddBox<float>("32f C1", kHd, 1, side, qvpiFilterBoxBorder_32f_C1R, atLeast);
  }
  AddBox<float>("32f C1", kLarge, 1, 15, qvpiFilterBoxBorder_32f_C1R, 1);
}

void AddAxes() {
  const auto rowQuery = qvpiFilterSumRowBorderGetBufferSize, columnQuery = qvpiFilterSumColumnBorderGetBufferSize;
  const auto rows = qvpiFilterSumRowBorder_8u32f_C1R, columns = qvpiFilterSumColumnBorder_8u32f_C1R;
  for (const QvpiSize size : {kTile, kVga, kHd, kLarge}) {
    const bool isHd = size.width == kHd.width;
    AddSums<uint8_t>("sums of 5 along rows, 8u32f C1", 5, true, size, rowQuery, rows, isHd ? 4 : 1);
    AddSums<uint8_t>("sums of 5 along columns, 8u32f C1", 5, false, size, columnQuery, columns, isHd ? 3 : 1);
  }
  AddSums<uint8_t>("sums of 31 along rows, 8u32f C1", 31, true, kHd, rowQuery, rows, 3);
  AddSums<uint8_t>("sums of 31 along columns, 8u32f C1", 31, false, kHd, columnQuery, columns, 3);
  AddSums<float>("sums of 5 along rows, 32f C1", 5, true, kHd, rowQuery, qvpiFilterSumRowBorder_32f_C1R, 4);
  AddSums<float>("sums of 5 along columns, 32f C1", 5, false, kHd, columnQuery, qvpiFilterSumColumnBorder_32f_C1R, 1);
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  AddBoxes();
  AddAxes();
  return true;
}();

}  // namespace
