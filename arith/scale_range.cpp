// Linear maps between the ranges of two types: full range to full range, or to and from a range of floats.
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"

namespace {
using namespace qvp;

// Bytes repeated over the element, with the upper half of the range negative where it is signed: 257 v, or
// 16843009 v. Lanes wrap.
template <class T>
QvpStatus Expand(const Image<const uint8_t>& src, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  const auto kernel = [](auto v) HWY_ATTR {
    const hn::DFromV<decltype(v)> d;
    const T lowest = std::numeric_limits<T>::lowest();
    return hn::Xor(hn::Mul(v, hn::Set(d, static_cast<T>(sizeof(T) == 2 ? 257 : 16843009))), hn::Set(d, lowest));
  };
  MapImages(hn::ScalableTag<T>(), kernel, roi, dst, src);
  return qvpStatusNoError;
}

// v / (2^n - 1) 255, rounded to the nearest, of n = 16 or 32 bits: with s = v + 128, or v + 0x808080, bounded by the
// largest number, it is the upper byte of s - (s >> 8).
template <class T>
QvpStatus Reduce(const Image<const T>& src, const Image<uint8_t>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  using U = std::make_unsigned_t<T>;
  const auto kernel = [](auto v) HWY_ATTR {
    const hn::ScalableTag<U> d;
    constexpr U kHalf = static_cast<U>(0x808080808080 >> (sizeof(U) == 2 ? 40 : 24)), kMost = static_cast<U>(~U{0});
    const auto u = hn::Xor(hn::BitCast(d, v), hn::Set(d, std::is_signed_v<T> ? U{1} << (8 * sizeof(U) - 1) : U{0}));
    const auto s = hn::Add(hn::Min(u, hn::Set(d, static_cast<U>(kMost - kHalf))), hn::Set(d, kHalf));
    const auto byte = hn::ShiftRight<8 * sizeof(U) - 8>(hn::Sub(s, hn::ShiftRight<8>(s)));
    return hn::BitCast(hn::DFromV<decltype(v)>(), byte);
  };
  MapImages(hn::ScalableTag<T>(), kernel, roi, dst, src);
  return qvpStatusNoError;
}

// Ends that are infinite or not numbers are no range.
QvpStatus CheckRange(Size roi, Operands images, double low, double high) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, images)) return failed;
  return high - low > 0 && high - low < __builtin_inf() ? qvpStatusNoError : qvpStatusScaleRange;
}

// first + v (last - first) / 255 of bytes v in double precision. 255 gives the upper end itself, whatever the product
// is rounded to.
struct ExactFloats {
  double first, last, factor = (last - first) / 255;

  template <class V>
  HWY_INLINE V operator()(V v) const {
    const hn::DFromV<V> d;
    const V inside = hn::Add(hn::Set(d, first), hn::Mul(v, hn::Set(d, factor)));
    return hn::IfThenElse(hn::Eq(v, hn::Set(d, 255.0)), hn::Set(d, last), inside);
  }
};

// The same in single precision, by a factor in two parts: products with the first, of 16 bits, are exact, and mostly so
// are their sums with an end of few digits.
struct SingleFloats {
  float first, factor, rest;

  explicit SingleFloats(const ExactFloats& exact) : first(static_cast<float>(exact.first)) {
    const float whole = static_cast<float>(exact.factor), spread = whole * 257;
    factor = spread - (spread - whole);  // its upper 16 bits
    rest = static_cast<float>(exact.factor - static_cast<double>(factor));
  }

  template <class V>
  HWY_INLINE V operator()(V v) const {
    const hn::DFromV<V> d;
    return hn::Add(hn::Add(hn::Set(d, first), hn::Mul(v, hn::Set(d, factor))), hn::Mul(v, hn::Set(d, rest)));
  }
};

// Whether all bytes become the same floats, bit for bit.
bool AreSame(const ExactFloats& exact, const SingleFloats& single) {
  static constexpr auto kBytes = [] {
    std::array<uint8_t, 256> bytes{};
    for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<uint8_t>(i);
    return bytes;
  }();
  float expected[256], given[256];
  MapRow<false>(hn::ScalableTag<double>(), expected, 256, exact, kBytes.data());
  MapRow<false>(hn::ScalableTag<float>(), given, 256, single, kBytes.data());
  uint32_t difference = 0;
  for (int i = 0; i < 256; ++i) {
    uint32_t bits[2];
    std::memcpy(bits, expected + i, sizeof(uint32_t));
    std::memcpy(bits + 1, given + i, sizeof(uint32_t));
    difference |= bits[0] ^ bits[1];
  }
  return difference == 0;
}

// Single precision takes a fraction of the time, so that from some pixels on it is worth trying whether it may stand
// for double.
QvpStatus ToFloat(const Image<const uint8_t>& src, const Image<float>& dst, Size roi, float low, float high) {
  if (const QvpStatus failed = CheckRange(roi, {src, dst}, low, high)) return failed;
  const ExactFloats exact{low, high};
  const SingleFloats single(exact);
  constexpr int64_t kWorthTrying = 1024;
  if (int64_t{roi.width} * roi.height >= kWorthTrying && AreSame(exact, single)) {
    MapImages(hn::ScalableTag<float>(), single, roi, dst, src);
  } else {
    MapImages(hn::ScalableTag<double>(), exact, roi, dst, src);
  }
  return qvpStatusNoError;
}

// v 255 / range in double precision. The product with a rounded factor is off by less than 2^-51 of it, so that it may
// stand for the quotient unless it comes this close to a half.
struct InRangeOf {
  double range, factor;

  template <class V>
  HWY_INLINE V operator()(V v) const {
    const hn::DFromV<V> d;
    const V product = hn::Mul(v, hn::Set(d, factor));
    const auto isClose = hn::Gt(hn::Abs(hn::Sub(product, hn::Round(product))), hn::Set(d, 0.5 - 0x1p-40));
    if (HWY_LIKELY(hn::AllFalse(d, isClose))) return product;
    return hn::IfThenElse(isClose, hn::Div(hn::Mul(v, hn::Set(d, 255.0)), hn::Set(d, range)), product);
  }
};

QvpStatus FromFloat(const Image<const float>& src, const Image<uint8_t>& dst, Size roi, float low, float high) {
  if (const QvpStatus failed = CheckRange(roi, {src, dst}, low, high)) return failed;
  const double first = low, range = static_cast<double>(high) - first;
  const InRangeOf scaled{range, 255 / range};
  const auto kernel = [=](auto v) HWY_ATTR { return scaled(hn::Sub(v, hn::Set(hn::DFromV<decltype(v)>(), first))); };
  MapImages(hn::ScalableTag<double>(), kernel, roi, dst, src);
  return qvpStatusNoError;
}

}  // namespace

#define SCALE(from, to, impl, layout) QVP_CONVERT(qvpiScale_##from##to##_##layout##R, from, to, layout, impl, (), ())
#define SCALE_FLOAT(from, to, impl, layout) \
  QVP_CONVERT(qvpiScale_##from##to##_##layout##R, from, to, layout, impl, (Qvp32f vMin, Qvp32f vMax), (vMin, vMax))

QVP_EACH_LAYOUT(SCALE, 8u, 16u, Expand)
QVP_EACH_LAYOUT(SCALE, 8u, 16s, Expand)
QVP_EACH_LAYOUT(SCALE, 8u, 32s, Expand)
QVP_EACH_LAYOUT(SCALE, 16u, 8u, Reduce)
QVP_EACH_LAYOUT(SCALE, 16s, 8u, Reduce)
QVP_EACH_LAYOUT(SCALE, 32s, 8u, Reduce)
QVP_EACH_LAYOUT(SCALE_FLOAT, 8u, 32f, ToFloat)
QVP_EACH_LAYOUT(SCALE_FLOAT, 32f, 8u, FromFloat)
