// Medians, weighted medians and vector medians.
#include "bench/filters.h"

namespace {
using namespace bench;

// Without a peer's call, a row has our time alone.
template <class Call>
void AddRow(const std::string& name, QvpiSize size, size_t bytes, const Call& call, const std::string& peer = "",
            const std::function<void()>& peerCall = {}, double atLeast = 0) {
  Row row{Name(name, size), {bytes, bytes}, [=] { Require(call()); }};
  if (peerCall) row.peers.push_back({peer, peerCall, atLeast});
  Add(row);
}

template <class T, class Call>
auto Caller(const Image<T>& a, const Image<T>& b, QvpiSize mask, int channels, Call call) {
  int bytes;
  Require(qvpiFilterMedianBorderGetBufferSize(mask, a.size, kType<T>, channels, &bytes));
  return [=, buffer = Pixels<Qvp8u>(bytes)] {
    return call(a.data(), a.step, b.data(), b.step, a.size, mask, kBorder, nullptr, buffer.get());
  };
}

// The peer has medians of 16-bit numbers and floats up to 5x5 only.
template <class T, class Call>
void AddMedian(const std::string& what, QvpiSize size, int channels, int side, Call call, double atLeast = 0) {
  const Image<T> a = Scene<T>(size, channels), b(size, channels);
  std::function<void()> peer = [=] { cv::medianBlur(a.mat, b.mat, side); };
  if (sizeof(T) > 1 && side > 5) peer = nullptr;
  AddRow("median " + Square(side) + " " + what, size, a.bytes(), Caller(a, b, {side, side}, channels, call),
         "OpenCV medianBlur", peer, atLeast);
}

// Beside the plain median of that mask.
void AddCentre(QvpiSize size, int side, int weight, double atLeast) {
  const Image<Qvp8u> a = Scene<Qvp8u>(size, 1), b(size, 1);
  const auto plain = Caller(a, b, {side, side}, 1, qvpiFilterMedianBorder_8u_C1R);
  const auto weighted = [=](auto... arguments) {
    return [=](const Qvp8u* src, int srcStep, Qvp8u* dst, int dstStep, QvpiSize roi, QvpiSize mask, int border,
               const Qvp8u* value, Qvp8u* buffer) {
      return qvpiFilterMedianCenterBorder_8u_C1R(src, srcStep, dst, dstStep, roi, mask, arguments..., border, value,
                                                 buffer);
    };
  };
  AddRow(
      "median " + Square(side) + " weight " + std::to_string(weight) + " 8u C1", size, a.bytes(),
      Caller(a, b, {side, side}, 1, weighted(weight)), "own median", [=] { Require(plain()); }, atLeast);
}

template <class T, class Call>
void AddVector(const std::string& what, QvpiSize size, int side, QvpNormType norm, Call call) {
  const Image<T> a = Scene<T>(size, 3), b(size, 3);
  int bytes;
  Require(qvpiFilterMedianVectorBorderGetBufferSize({side, side}, size, kType<T>, 3, &bytes));
  AddRow("vector median " + Square(side) + " " + what, size, a.bytes(), [=, buffer = Pixels<Qvp8u>(bytes)] {
    return call(a.data(), a.step, b.data(), b.step, size, {side, side}, norm, kBorder, nullptr, buffer.get());
  });
}

const bool kRegistered = [] {
  cv::setNumThreads(1);
  const auto m8u = qvpiFilterMedianBorder_8u_C1R;
  for (const auto& [size, atLeast] : {std::pair{kTile, 1.5}, {kVga, 1.0}, {kHd, 1.4}, {kLarge, 1.0}}) {
    AddMedian<Qvp8u>("8u C1", size, 1, 3, m8u, atLeast);
  }
  for (const QvpiSize size : kSmallest) AddMedian<Qvp8u>("8u C1", size, 1, 3, m8u);
  for (const int side : {5, 7, 15, 31}) AddMedian<Qvp8u>("8u C1", kTile, 1, side, m8u, 1);
  for (const auto& [side, atLeast] : {std::pair{5, 3.5},
                                      {7, 15.0},
                                      {9, 1.0},
                                      {11, 1.0},
                                      {13, 1.0},
                                      {15, 6.0},
                                      {17, 1.0},
                                      {21, 1.0},
                                      {31, 2.0},
                                      {63, 1.7}}) {
    AddMedian<Qvp8u>("8u C1", kHd, 1, side, m8u, atLeast);
  }
  for (const auto& [side, atLeast] : {std::pair{3, 1.4}, {5, 3.5}, {7, 18.0}}) {
    AddMedian<Qvp8u>("8u C3", kHd, 3, side, qvpiFilterMedianBorder_8u_C3R, atLeast);
  }
  for (const auto& [side, atLeast] : {std::pair{3, 1.2}, {5, 3.0}, {7, 0.0}, {15, 0.0}, {31, 0.0}}) {
    AddMedian<Qvp16u>("16u C1", kHd, 1, side, qvpiFilterMedianBorder_16u_C1R, atLeast);
  }
  for (const auto& [side, atLeast] : {std::pair{3, 1.1}, {5, 2.5}, {15, 0.0}, {31, 0.0}}) {
    AddMedian<Qvp32f>("32f C1", kHd, 1, side, qvpiFilterMedianBorder_32f_C1R, atLeast);
  }
  AddMedian<Qvp32f>("32f C3", kHd, 3, 5, qvpiFilterMedianBorder_32f_C3R, 3);
  for (const int side : {3, 5}) AddMedian<Qvp32f>("32f C1", kTile, 1, side, qvpiFilterMedianBorder_32f_C1R, 1);
  AddCentre(kHd, 5, 3, 0.5);
  AddCentre(kHd, 3, 3, 0.5);
  for (const int side : {3, 5}) {
    AddVector<Qvp8u>("L1 8u C3", kHd, side, qvpNormL1, qvpiFilterMedianVectorBorder_8u_C3R);
    AddVector<Qvp32f>("L2 32f C3", kHd, side, qvpNormL2, qvpiFilterMedianVectorBorder_32f_C3R);
  }
  AddVector<Qvp8u>("L1 8u C3", kTile, 3, qvpNormL1, qvpiFilterMedianVectorBorder_8u_C3R);
  return true;
}();

}  // namespace
