// Products of two images, of an image and a constant, and squares.
#include "arith/nan.h"
#include "arith/scale.h"
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"

namespace {
using namespace qvp;

// Lanes that hold every product of two elements.
template <class T>
using ProductLane =
    std::conditional_t<std::is_signed_v<T>, int32_t, std::conditional_t<sizeof(T) == 1, uint16_t, uint32_t>>;

struct Product {
  template <class T, class Then>
  static void WithKernel(int scale, const Then& then) {
    if constexpr (std::is_integral_v<T>) {
      WithScaling<ProductLane<T>, T>(scale, [&](const auto& scaling) {
        then([=](auto a, auto b) HWY_ATTR { return ScaleAndPack<T>(scaling, Products(a, b)); });
      });
    } else {
      then([](auto a, auto b) HWY_ATTR { return WithNanOf(a, hn::Mul(a, b)); });
    }
  }
};

// a b / (2^n - 1), rounded to the nearest, for elements of n bits: full times full is full. With t = a b + 2^(n-1) that
// is (t + (t >> n)) >> n for every pair; 65535 * 65535 + 32768 + 65535 still fits 32 bits, and likewise for 8.
struct ScaledProduct {
  template <class T, class Then>
  static void WithKernel(int, const Then& then) {
    constexpr int kN = kBits<T>;
    const auto divide = [](auto product) HWY_ATTR {
      const hn::DFromV<decltype(product)> d;
      const auto t = hn::Add(product, hn::Set(d, hn::TFromD<decltype(d)>{1} << (kN - 1)));
      return hn::ShiftRight<kN>(hn::Add(t, hn::ShiftRight<kN>(t)));
    };
    then([=](auto a, auto b) HWY_ATTR { return ScaleAndPack<T>(divide, Products(a, b)); });
  }
};

template <class Op, class T>
QvpStatus Multiply(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {a, b, dst})) return failed;
  Op::template WithKernel<T>(scale,
                             [&](const auto& kernel) { MapImages(hn::ScalableTag<T>(), kernel, roi, dst, a, b); });
  return qvpStatusNoError;
}

template <class Op, class T>
QvpStatus MultiplyBy(const T* values, const Image<const T>& src, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst}, {values})) return failed;
  Op::template WithKernel<T>(
      scale, [&](const auto& kernel) { MapImagesWith(hn::ScalableTag<T>(), kernel, roi, values, dst, src); });
  return qvpStatusNoError;
}

template <class T>
QvpStatus Square(const Image<const T>& src, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  Product::WithKernel<T>(scale, [&](const auto& kernel) {
    const auto square = [&](auto v) HWY_ATTR { return kernel(v, v); };
    MapImages(hn::ScalableTag<T>(), square, roi, dst, src);
  });
  return qvpStatusNoError;
}

}  // namespace

#define MUL_SFS(type)                                                     \
  QVP_C1_C3_C4_AC4(QVP_BINARY_SFS, qvpiMul, type, Multiply<Product>)      \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT_SFS, qvpiMulC, type, MultiplyBy<Product>) \
  QVP_C1_C3_C4_AC4(QVP_UNARY_SFS, qvpiSqr, type, Square)
MUL_SFS(8u)
MUL_SFS(16u)
MUL_SFS(16s)

QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiMul, 32f, Multiply<Product>)
QVP_C1_C3_C4_AC4(QVP_CONSTANT, qvpiMulC, 32f, MultiplyBy<Product>)
QVP_C1_C3_C4_AC4(QVP_UNARY, qvpiSqr, 32f, Square)

#define MUL_SCALE(type)                                                     \
  QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiMulScale, type, Multiply<ScaledProduct>) \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT, qvpiMulCScale, type, MultiplyBy<ScaledProduct>)
MUL_SCALE(8u)
MUL_SCALE(16u)
