// The two derivatives of a row of results, and what gradients are made of them: magnitudes and angles.
#pragma once

#include "filter/fixed.h"
#include "signal/arc_tangent.h"

namespace qvp::filter {

template <class D>
using FloatsOf = hn::Rebind<float, D>;

inline constexpr float kHalfPi = 0x1.921fb6p+0f, kPi = 0x1.921fb6p+1f;

// The magnitude by a norm, of floats. NaN in either gives NaN.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V MagnitudeOf(D, QvpNormType norm, V x, V y) {
  if (norm == qvpNormL2) return hn::Sqrt(hn::Add(hn::Mul(x, x), hn::Mul(y, y)));
  const V ax = hn::Abs(x), ay = hn::Abs(y);
  if (norm == qvpNormL1) return hn::Add(ax, ay);
  const auto isNaN = hn::Or(hn::IsNaN(ax), hn::IsNaN(ay));
  return hn::IfThenElse(isNaN, hn::Add(ax, ay), hn::IfThenElse(hn::Gt(ay, ax), ay, ax));
}

// The same of integers, where it is one.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V WholeMagnitudeOf(D, QvpNormType norm, V x, V y) {
  const V ax = hn::Abs(x), ay = hn::Abs(y);
  return norm == qvpNormL1 ? hn::Add(ax, ay) : hn::Max(ax, ay);
}

// What tells the largest of several gradients: the square of the magnitude will do.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V MeasureOf(D d, QvpNormType norm, V x, V y) {
  return norm == qvpNormL2 ? hn::Add(hn::Mul(x, x), hn::Mul(y, y)) : MagnitudeOf(d, norm, x, y);
}

// A quotient of lengths, at most 1. That of two zeros is 0, of two infinities 1; NaN stays, as it equals nothing. Of
// whole numbers a zero is divided by 1.
template <bool kIsWhole, class D, class V = hn::Vec<D>>
HWY_INLINE V TangentOf(D d, V shorter, V longer) {
  const V zero = hn::Zero(d), one = hn::Set(d, 1.0f);
  if constexpr (kIsWhole) {
    return hn::Div(shorter, hn::Max(longer, one));
  } else {
    const V same = hn::IfThenElse(hn::Eq(longer, zero), zero, one);
    return hn::IfThenElse(hn::Eq(shorter, longer), same, hn::Div(shorter, longer));
  }
}

// The direction, in radians: from the nearest axis, whose tangent is at most 1, by reflections. Of no gradient it is 0,
// whatever the signs of zeros, of which whole numbers have but one.
template <bool kIsWhole, class D, class V = hn::Vec<D>>
HWY_INLINE V AngleOf(D d, V x, V y) {
  const V ax = hn::Abs(x), ay = hn::Abs(y), zero = hn::Zero(d);
  const auto isSteep = hn::Gt(ay, ax);
  const V shorter = kIsWhole ? hn::Min(ax, ay) : hn::IfThenElse(isSteep, ax, ay),
          longer = kIsWhole ? hn::Max(ax, ay) : hn::IfThenElse(isSteep, ay, ax);
  V angle = ArcTangent(TangentOf<kIsWhole>(d, shorter, longer));
  angle = hn::IfThenElse(isSteep, hn::Sub(hn::Set(d, kHalfPi), angle), angle);
  angle = hn::IfThenElse(hn::Lt(x, zero), hn::Sub(hn::Set(d, kPi), angle), angle);
  if constexpr (kIsWhole) return hn::CopySignToAbs(angle, y);
  return hn::IfThenElse(hn::Lt(y, zero), hn::Neg(angle), angle);
}

// A vector of floats for each part of one of lanes: 16-bit lanes have two.
template <class D>
inline constexpr int kFloatParts = sizeof(hn::TFromD<D>) == 2 ? 2 : 1;

template <int kPart, class D, class V = hn::Vec<D>>
HWY_INLINE auto FloatPart(D, V v) {
  if constexpr (std::is_same_v<hn::TFromD<D>, float>) {
    return v;
  } else if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return hn::ConvertTo(FloatsOf<D>(), v);
  } else {
    const hn::Half<D> half;
    const hn::Repartition<int32_t, D> ints;
    const hn::Repartition<float, D> floats;
    const auto part = [&] {
      if constexpr (kPart == 0) return hn::LowerHalf(v);
      if constexpr (kPart == 1) return hn::UpperHalf(half, v);
    }();
    return hn::ConvertTo(floats, hn::PromoteTo(ints, part));
  }
}

// A vector of both derivatives.
template <class D>
struct GradientVector {
  hn::Vec<D> x, y;
};

// Those of pixels of one channel, for two rows of results.
template <class T, class KindX, class KindY>
struct PixelGradients {
  using Element = T;
  using D = hn::ScalableTag<FixedLane<T>>;
  static constexpr int kHeight = KindX::kHeight;

  HWY_INLINE void Make(const T* const* lines, ptrdiff_t, ptrdiff_t at, GradientVector<D> (&rows)[2]) const {
    const D d;
    Parts<D, 1> x[kHeight + 1], y[kHeight + 1];
    Unrolled<kHeight + 1>([&](auto j) QVP_INLINED {
      const T* const first = lines[j] + at;
      const auto pixel = [&](int k) QVP_INLINED { return LoadWide(d, first + k); };
      x[j] = KindX::RowOf(d, pixel);
      y[j] = KindY::RowOf(d, pixel);
    });
    Unrolled<2>([&](auto row) QVP_INLINED {
      rows[row] = {KindX::Result(d, Const(x + row)), KindY::Result(d, Const(y + row))};
    });
  }
  QvpNormType norm;
};

// Those of that channel of three whose gradient is the largest, the first of equal ones. A line has the sums along the
// row, x of each channel, then y of each channel.
template <class T, class KindX, class KindY>
struct LargestGradients {
  using Element = FixedLane<T>;
  using D = hn::ScalableTag<Element>;
  static constexpr int kHeight = KindX::kHeight, kChannels = 3;

  static void Across(const void*, const void* source, void* line, ptrdiff_t samples) {
    const hn::ScalableTag<Element> d;
    const hn::Rebind<T, D> narrow;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    const ptrdiff_t n = samples / kChannels;
    const auto sums = [&](const T* from, Element* to, ptrdiff_t step) HWY_ATTR {
      hn::Vec<D> pixels[kChannels][KindX::kWidth];
      Unrolled<KindX::kWidth>([&](auto k) QVP_INLINED {
        hn::Vec<decltype(narrow)> red, green, blue;
        hn::LoadInterleaved3(narrow, from + k * kChannels, red, green, blue);
        pixels[0][k] = Widened(red);
        pixels[1][k] = Widened(green);
        pixels[2][k] = Widened(blue);
      });
      for (int c = 0; c < kChannels; ++c) {
        const auto pixel = [&](int k) QVP_INLINED { return pixels[c][k]; };
        hn::StoreU(KindX::RowOf(d, pixel)[0], d, to + c * step);
        hn::StoreU(KindY::RowOf(d, pixel)[0], d, to + (kChannels + c) * step);
      }
    };
    const auto* const from = static_cast<const T*>(source);
    auto* const to = static_cast<Element*>(line);
    if (n >= kLanes) {
      return ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { sums(from + i * kChannels, to + i, n); });
    }
    T staged[kChannels * (kLanes + KindX::kWidth)] = {};
    Element parts[2 * kChannels][kLanes];
    std::memcpy(staged, from, (n + KindX::kWidth - 1) * kChannels * sizeof(T));
    sums(staged, parts[0], kLanes);
    for (int c = 0; c < 2 * kChannels; ++c) std::memcpy(to + c * n, parts[c], n * sizeof(Element));
  }

  HWY_INLINE void Make(const Element* const* lines, ptrdiff_t n, ptrdiff_t at, GradientVector<D> (&rows)[2]) const {
    Unrolled<2>([&](auto row) QVP_INLINED {
      rows[row] = OfChannel(lines + row, at, n, 0);
      Unrolled<kChannels - 1>([&](auto c) QVP_INLINED { KeepLarger(OfChannel(lines + row, at, n, c + 1), rows[row]); });
    });
  }
  QvpNormType norm;

 private:
  static HWY_INLINE auto Widened(hn::Vec<hn::Rebind<T, D>> v) {
    if constexpr (std::is_same_v<T, Element>) {
      return v;
    } else {
      return hn::PromoteTo(D(), v);
    }
  }

  static HWY_INLINE GradientVector<D> OfChannel(const Element* const* lines, ptrdiff_t at, ptrdiff_t n, int c) {
    const D d;
    Parts<D, 1> x[kHeight], y[kHeight];
    for (int j = 0; j < kHeight; ++j) {
      x[j][0] = hn::LoadU(d, lines[j] + at + c * n);
      y[j][0] = hn::LoadU(d, lines[j] + at + (kChannels + c) * n);
    }
    return {KindX::Result(d, Const(x)), KindY::Result(d, Const(y))};
  }

  HWY_INLINE void KeepLarger(const GradientVector<D>& other, GradientVector<D>& largest) const {
    const D d;
    const auto isLarger = IsLarger(d, other, largest);
    largest.x = hn::IfThenElse(isLarger, other.x, largest.x);
    largest.y = hn::IfThenElse(isLarger, other.y, largest.y);
  }
  // In single precision, whatever the lanes are.
  HWY_INLINE hn::Mask<D> IsLarger(D d, const GradientVector<D>& a, const GradientVector<D>& b) const {
    const auto larger = [&](auto part) QVP_INLINED {
      const hn::Repartition<float, D> floats;
      const hn::RebindToSigned<decltype(floats)> ints;
      const auto isLarger = hn::Gt(MeasureOf(floats, norm, FloatPart<part>(d, a.x), FloatPart<part>(d, a.y)),
                                   MeasureOf(floats, norm, FloatPart<part>(d, b.x), FloatPart<part>(d, b.y)));
      return hn::BitCast(ints, hn::VecFromMask(floats, isLarger));
    };
    if constexpr (kFloatParts<D> == 1) {
      return hn::MaskFromVec(hn::BitCast(d, larger(std::integral_constant<int, 0>())));
    } else {
      return hn::MaskFromVec(
          PackedInOrder<int16_t>(larger(std::integral_constant<int, 0>()), larger(std::integral_constant<int, 1>())));
    }
  }
};

}  // namespace qvp::filter
