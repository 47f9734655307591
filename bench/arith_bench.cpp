// Pixel-wise arithmetic.
#include <algorithm>

#include "bench/image.h"

namespace {
using namespace bench;

// Numbers from 0.5 to 20.5: no subnormal, zero or NaN, which peers and CPUs treat at speeds of their own.
Image<float> Floats(QvpiSize size, int channels = 1) {
  Image<float> image(size, channels);
  const auto* bytes = reinterpret_cast<const uint8_t*>(image.data());
  for (size_t i = 0; i < image.bytes() / sizeof(float); ++i) image.data()[i] = bytes[4 * i] / 12.75f + 0.5f;
  return image;
}

template <class T>
using Binary = QvpStatus (*)(const T*, int, const T*, int, T*, int, QvpiSize, int);
template <class T>
using FloatBinary = QvpStatus (*)(const T*, int, const T*, int, T*, int, QvpiSize);
using FloatUnary = QvpStatus (*)(const float*, int, float*, int, QvpiSize);

template <class T>
using Call = std::function<void(const Image<T>& a, const Image<T>& b, const Image<T>& dst)>;

template <class T>
void AddBinary(const char* name, QvpiSize size, int channels, Binary<T> ours, int scale, const char* peer = nullptr,
               Call<T> theirs = {}, double atLeast = 0) {
  const Image<T> a(size, channels), b(size, channels), dst(size, channels);
  Row row{Name(name, size), {a.bytes() + b.bytes(), dst.bytes()}, [=] {
            Require(ours(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size, scale));
          }};
  if (peer) row.peers = {{peer, [=] { theirs(a, b, dst); }, atLeast}};
  Add(row);
}

void Sums() {
  const Call<uint8_t> add = [](auto& a, auto& b, auto& dst) { cv::add(a.mat, b.mat, dst.mat); };
  struct {
    QvpiSize size;
    double atLeast;
  } cases[] = {{kTile, 3}, {kVga, 1.0}, {kHd, 0}, {kLarge, 1.7}};
  for (const auto& c : cases) {
    AddBinary<uint8_t>("add scale 0 8u C1", c.size, 1, qvpiAdd_8u_C1RSfs, 0, "OpenCV add", add, c.atLeast);
  }
  AddBinary<uint8_t>(
      "add scale 1 8u C1", kHd, 1, qvpiAdd_8u_C1RSfs, 1, "OpenCV addWeighted",
      [](auto& a, auto& b, auto& dst) { cv::addWeighted(a.mat, 0.5, b.mat, 0.5, 0, dst.mat); }, 4.2);
  AddBinary<uint8_t>(
      "add scale 3 8u C1", kHd, 1, qvpiAdd_8u_C1RSfs, 3, "OpenCV addWeighted",
      [](auto& a, auto& b, auto& dst) { cv::addWeighted(a.mat, 0.125, b.mat, 0.125, 0, dst.mat); }, 3);
  AddBinary<uint8_t>("add scale -1 8u C1", kHd, 1, qvpiAdd_8u_C1RSfs, -1);
  AddBinary<uint8_t>("add scale 0 8u C4", kHd, 4, qvpiAdd_8u_C4RSfs, 0, "OpenCV add", add);
  AddBinary<uint8_t>(
      "add scale 0 8u AC4", kHd, 4, qvpiAdd_8u_AC4RSfs, 0, "our C4",
      [](auto& a, auto& b, auto& dst) {
        Require(qvpiAdd_8u_C4RSfs(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, kHd, 0));
      },
      0.8);
  AddBinary<uint8_t>("subtract scale 0 8u C1", kHd, 1, qvpiSub_8u_C1RSfs, 0, "OpenCV subtract",
                     [](auto& a, auto& b, auto& dst) { cv::subtract(b.mat, a.mat, dst.mat); });
  AddBinary<int16_t>("add scale 1 16s C1", kHd, 1, qvpiAdd_16s_C1RSfs, 1);
  AddBinary<int16_t>("add scale 3 16s C1", kHd, 1, qvpiAdd_16s_C1RSfs, 3);
}

void Products() {
  AddBinary<uint8_t>(
      "multiply scale 8 8u C1", kHd, 1, qvpiMul_8u_C1RSfs, 8, "OpenCV multiply(1/256)",
      [](auto& a, auto& b, auto& dst) { cv::multiply(a.mat, b.mat, dst.mat, 1.0 / 256); }, 3);
  AddBinary<uint8_t>(
      "multiply scale 8 8u AC4", kHd, 4, qvpiMul_8u_AC4RSfs, 8, "our C4",
      [](auto& a, auto& b, auto& dst) {
        Require(qvpiMul_8u_C4RSfs(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, kHd, 8));
      },
      0.8);
  AddBinary<uint16_t>("multiply scale 16 16u C1", kHd, 1, qvpiMul_16u_C1RSfs, 16, "OpenCV multiply(1/65536)",
                      [](auto& a, auto& b, auto& dst) { cv::multiply(a.mat, b.mat, dst.mat, 1.0 / 65536); });
  const Image<uint8_t> a(kHd, 1), b(kHd, 1), dst(kHd, 1);
  Add({Name("multiply fractions 8u C1", kHd),
       {a.bytes() + b.bytes(), dst.bytes()},
       [=] { Require(qvpiMulScale_8u_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, kHd)); },
       {{"OpenCV multiply(1/255)", [=] { cv::multiply(a.mat, b.mat, dst.mat, 1.0 / 255); }}}});
}

void Quotients() {
  const Call<uint8_t> divide = [](auto& a, auto& b, auto& dst) { cv::divide(b.mat, a.mat, dst.mat); };
  const auto ours = [](const Qvp8u* a, int as, const Qvp8u* b, int bs, Qvp8u* d, int ds, QvpiSize size, int scale) {
    return std::min(0, qvpiDiv_8u_C1RSfs(a, as, b, bs, d, ds, size, scale));  // zero divisors are part of the work
  };
  AddBinary<uint8_t>("divide scale 0 8u C1", kVga, 1, ours, 0, "OpenCV divide", divide);
  AddBinary<uint8_t>("divide scale 0 8u C1", kHd, 1, ours, 0, "OpenCV divide", divide, 1.5);
  for (const QvpiSize size : {kVga, kHd, kLarge}) {
    const Image<float> a = Floats(size), b = Floats(size), dst = Floats(size);
    Add({Name("divide 32f C1", size),
         {a.bytes() + b.bytes(), dst.bytes()},
         [=] { Require(qvpiDiv_32f_C1R(a.data(), a.step, b.data(), b.step, dst.data(), dst.step, size)); },
         {{"OpenCV divide", [=] { cv::divide(b.mat, a.mat, dst.mat); }, size.width == kLarge.width ? 1.35 : 0}}});
  }
}

void Constants() {
  const Image<int16_t> a(kHd, 1), b(kHd, 1);
  Add({Name("add constant 16s C1", kHd),
       {a.bytes(), b.bytes()},
       [=] { Require(qvpiAddC_16s_C1RSfs(a.data(), a.step, 77, b.data(), b.step, kHd, 0)); },
       {{"OpenCV add(Scalar)", [=] { cv::add(a.mat, cv::Scalar(77), b.mat); }, 5.5}}});
  const Image<uint8_t> c(kHd, 3), d(kHd, 3);
  Add({Name("add constant 8u C3", kHd),
       {c.bytes(), d.bytes()},
       [=] {
         const Qvp8u value[3] = {7, 8, 9};
         Require(qvpiAddC_8u_C3RSfs(c.data(), c.step, value, d.data(), d.step, kHd, 0));
       },
       {{"OpenCV add(Scalar)", [=] { cv::add(c.mat, cv::Scalar(7, 8, 9), d.mat); }, 3}}});
}

void Functions() {
  struct {
    const char* name;
    FloatUnary ours;
    const char* peer;
    void (*theirs)(cv::InputArray, cv::OutputArray);
    double atLeast;
  } cases[] = {{"square root 32f C1", qvpiSqrt_32f_C1R, "OpenCV sqrt", cv::sqrt, 1.0},
               {"exponent 32f C1", qvpiExp_32f_C1R, "OpenCV exp", cv::exp, 1.0},
               {"logarithm 32f C1", qvpiLn_32f_C1R, "OpenCV log", cv::log, 1.0}};
  for (const auto& c : cases) {
    const Image<float> a = Floats(kHd), dst = Floats(kHd);
    Add({Name(c.name, kHd),
         {a.bytes(), dst.bytes()},
         [=] { Require(c.ours(a.data(), a.step, dst.data(), dst.step, kHd)); },
         {{c.peer, [=] { c.theirs(a.mat, dst.mat); }, c.atLeast}}});
  }
}

const bool kRegistered = [] {
  Sums();
  Products();
  Quotients();
  Constants();
  Functions();
  return true;
}();

}  // namespace
