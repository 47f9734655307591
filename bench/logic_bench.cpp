// Bitwise operations and shifts.
#include "bench/image.h"

namespace {
using namespace bench;

constexpr QvpiSize kSizes[] = {kTile, kVga, kHd, kLarge};

// What a program without a library would write.
void ShiftPlainly(const Image<uint8_t>& src, const Image<uint8_t>& dst, int count) {
  const uint8_t* from = src.data();
  uint8_t* to = dst.data();
  for (size_t i = 0, n = src.bytes(); i < n; ++i) to[i] = static_cast<uint8_t>(from[i] >> count);
}
void ShiftPlainly(const Image<uint16_t>& src, const Image<uint16_t>& dst, int first, int second, int third) {
  const uint16_t* from = src.data();
  uint16_t* to = dst.data();
  for (size_t i = 0, n = src.bytes() / sizeof(uint16_t); i + 3 <= n; i += 3) {
    to[i] = static_cast<uint16_t>(from[i] >> first);
    to[i + 1] = static_cast<uint16_t>(from[i + 1] >> second);
    to[i + 2] = static_cast<uint16_t>(from[i + 2] >> third);
  }
}

// With rows that do not join.
void Overhead() {
  for (const QvpiSize size : kSmallest) {
    const QvpiSize wider{size.width + 1, size.height};
    const Image<uint8_t> a(wider, 1), b(wider, 1), dst(wider, 1);
    const cv::Mat first = a.mat.colRange(0, size.width), second = b.mat.colRange(0, size.width);
    Add({Name("and 8u C1, rows apart", size),
         {a.bytes() + b.bytes(), dst.bytes()},
         [=] { Require(qvpiAnd_8u_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size)); },
         {{"OpenCV bitwise_and",
           [=, to = dst.mat.colRange(0, size.width)]() mutable { cv::bitwise_and(first, second, to); }}}});
  }
}

void Logic() {
  for (const QvpiSize size : kSizes) {
    const bool isTile = size.width == kTile.width, isLarge = size.width == kLarge.width;
    const Image<uint8_t> a(size, 1), b(size, 1), dst(size, 1);
    Add({Name("and 8u C1", size),
         {a.bytes() + b.bytes(), dst.bytes()},
         [=] { Require(qvpiAnd_8u_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size)); },
         {{"OpenCV bitwise_and", [=] { cv::bitwise_and(a.mat, b.mat, dst.mat); },
           isTile    ? 3
           : isLarge ? 1.3
                     : 1.0}}});
    Add({Name("not 8u C1", size),
         {a.bytes(), dst.bytes()},
         [=] { Require(qvpiNot_8u_C1R(a.data(), a.step, dst.data(), dst.step, size)); },
         {{"OpenCV bitwise_not", [=] { cv::bitwise_not(a.mat, dst.mat); }, isTile ? 3 : 1.0}}});
  }
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    const Image<uint8_t> a(size, 3), b(size, 3), c(size, 4), d(size, 4), e(size, 4);
    const auto with = [=] {
      const Qvp8u value[3] = {0xF0, 0xE0, 0xC0};
      Require(qvpiAndC_8u_C3R(a.data(), a.step, value, b.data(), b.step, size));
    };
    Add({Name("and constant 8u C3", size),
         {a.bytes(), b.bytes()},
         with,
         {{"OpenCV bitwise_and(Scalar)", [=] { cv::bitwise_and(a.mat, cv::Scalar(0xF0, 0xE0, 0xC0), b.mat); }, 1.0}}});
    Add({Name("exclusive or 8u AC4", size),
         {c.bytes() + d.bytes(), e.bytes()},
         [=] { Require(qvpiXor_8u_AC4R(c.data(), c.step, d.data(), d.step, e.data(), e.step, size)); },
         {{"our C4", [=] { Require(qvpiXor_8u_C4R(c.data(), c.step, d.data(), d.step, e.data(), e.step, size)); },
           0.8}}});
  }
}

void Shifts() {
  for (const QvpiSize size : kSizes) {
    const Image<uint8_t> a(size, 1), dst(size, 1);
    Add({Name("shift right 8u C1", size),
         {a.bytes(), dst.bytes()},
         [=] { Require(qvpiShiftRightC_8u_C1R(a.data(), a.step, 3, dst.data(), dst.step, size)); },
         {{"plain loop", [=] { ShiftPlainly(a, dst, 3); }, 1.0}}});
  }
  for (const QvpiSize size : {kTile, kVga, kHd}) {
    const Image<uint16_t> a(size, 3), dst(size, 3);
    const auto ours = [=] {
      const Qvp32u counts[3] = {4, 6, 0};
      Require(qvpiShiftRightC_16u_C3R(a.data(), a.step, counts, dst.data(), dst.step, size));
    };
    Add({Name("shift right 16u C3, three counts", size),
         {a.bytes(), dst.bytes()},
         ours,
         {{"plain loop", [=] { ShiftPlainly(a, dst, 4, 6, 0); }, 1.5}}});
  }
}

const bool kRegistered = [] {
  Overhead();
  Logic();
  Shifts();
  return true;
}();

}  // namespace
