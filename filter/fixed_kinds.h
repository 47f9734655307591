// The fixed kernels as sums along the two axes: what each makes of the pixels of one row, and of its rows.
//
// A kind has a width and a height, RowOf(d, pixel), which makes the parts, one vector or two, of the pixels pixel(0),
// pixel(1)... of one row, and Result(d, rows), which makes the result of the parts of its rows. Parts serve every
// result that reads their row. Integers are exact. Floats are added in the order that is written here, along rows
// first.
#pragma once

#include <array>

#include "base/lanes.h"

namespace qvp::filter {

template <class D, int kCount>
using Parts = std::array<hn::Vec<D>, kCount>;

// Coefficients along one axis, symmetric or antisymmetric.
template <int... kTaps>
struct AxisTaps {
  static constexpr int kCount = sizeof...(kTaps), kMiddle = kCount / 2;
  static constexpr std::array<int, kCount> kAt{kTaps...};
  static constexpr bool kIsOdd = kAt[0] == -kAt[kCount - 1];
};

template <int kTap, class D, class V>
HWY_INLINE V Times(D d, V v) {
  if constexpr (kTap == 1) return v;
  return hn::Mul(v, hn::Set(d, static_cast<hn::TFromD<D>>(kTap)));
}

// The sum of taps times values: the middle one, then the pairs beside it from the nearest on, whose values are added or
// subtracted before they are multiplied. Taps of 0 are not there, so that an infinite value under one does no harm.
template <class Taps, int kDistance = 0, class D, class Value, class... Sum>
HWY_INLINE hn::Vec<D> SumAlong(D d, const Value& value, Sum... before) {
  constexpr int kMiddle = Taps::kMiddle;
  if constexpr (kDistance > kMiddle) {
    return (before, ...);
  } else {
    constexpr int kTap = Taps::kAt[kMiddle + kDistance];
    if constexpr (kTap == 0) {
      return SumAlong<Taps, kDistance + 1>(d, value, before...);
    } else {
      const auto pair = [&] {
        if constexpr (kDistance == 0) return value(kMiddle);
        const auto after = value(kMiddle + kDistance), ahead = value(kMiddle - kDistance);
        if constexpr (Taps::kIsOdd) return hn::Sub(after, ahead);
        return hn::Add(after, ahead);
      }();
      const auto term = Times<kTap>(d, pair);
      if constexpr (sizeof...(before) == 0) return SumAlong<Taps, kDistance + 1>(d, value, term);
      if constexpr (sizeof...(before) != 0) return SumAlong<Taps, kDistance + 1>(d, value, hn::Add(before..., term));
    }
  }
}

// The sum of 3 or 5 values, each added as often as any other: by twos, the odd one last.
template <int kCount, class Value>
HWY_INLINE auto TreeSum(const Value& value) {
  const auto two = hn::Add(value(0), value(1));
  if constexpr (kCount == 3) return hn::Add(two, value(2));
  if constexpr (kCount == 5) return hn::Add(hn::Add(two, hn::Add(value(2), value(3))), value(4));
}

// A kernel that is the product of a column and a row.
template <class Across, class Down>
struct Product {
  static constexpr int kWidth = Across::kCount, kHeight = Down::kCount, kParts = 1;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 1> RowOf(D d, const Pixel& pixel) {
    return {SumAlong<Across>(d, pixel)};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 1>* rows) {
    return SumAlong<Down>(d, [&](int j) HWY_ATTR { return rows[j][0]; });
  }
};

// Two such kernels, added.
template <class Across1, class Down1, class Across2, class Down2>
struct SumOfProducts {
  static constexpr int kWidth = Across1::kCount, kHeight = Down1::kCount, kParts = 2;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 2> RowOf(D d, const Pixel& pixel) {
    return {SumAlong<Across1>(d, pixel), SumAlong<Across2>(d, pixel)};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 2>* rows) {
    return hn::Add(SumAlong<Down1>(d, [&](int j) HWY_ATTR { return rows[j][0]; }),
                   SumAlong<Down2>(d, [&](int j) HWY_ATTR { return rows[j][1]; }));
  }
};

using Smooth3 = AxisTaps<1, 2, 1>;
using Smooth5 = AxisTaps<1, 4, 6, 4, 1>;
using Slope3 = AxisTaps<-1, 0, 1>;
using Slope5 = AxisTaps<-1, -2, 0, 2, 1>;
using Bend3 = AxisTaps<1, -2, 1>;
using Bend5 = AxisTaps<1, 0, -2, 0, 1>;
using Ones3 = AxisTaps<1, 1, 1>;
using Ones5 = AxisTaps<1, 1, 1, 1, 1>;
using Line5 = AxisTaps<-2, -1, 0, 1, 2>;
using Scharr3 = AxisTaps<3, 10, 3>;

using SobelX3 = Product<Slope3, Smooth3>;
using SobelX5 = Product<Slope5, Smooth5>;
using SobelY3 = Product<Smooth3, Slope3>;
using SobelY5 = Product<Smooth5, Slope5>;
using SobelXX3 = Product<Bend3, Smooth3>;
using SobelXX5 = Product<Bend5, Smooth5>;
using SobelYY3 = Product<Smooth3, Bend3>;
using SobelYY5 = Product<Smooth5, Bend5>;
using SobelXY3 = Product<Slope3, Slope3>;
using SobelXY5 = Product<Slope5, Slope5>;
using ScharrX3 = Product<Slope3, Scharr3>;
using ScharrY3 = Product<Scharr3, Slope3>;
using PrewittX3 = Product<Slope3, Ones3>;
using PrewittX5 = Product<Line5, Ones5>;
using PrewittY3 = Product<Ones3, Slope3>;
using PrewittY5 = Product<Ones5, Line5>;
using Laplace5 = SumOfProducts<Bend5, Smooth5, Smooth5, Bend5>;

// The four neighbours minus 4 times the pixel. Parts: the pixel, and the sum of those beside it.
struct Laplace3 {
  static constexpr int kWidth = 3, kHeight = 3, kParts = 2;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 2> RowOf(D, const Pixel& pixel) {
    return {pixel(1), hn::Add(pixel(0), pixel(2))};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 2>* rows) {
    return hn::Add(Times<-4>(d, rows[1][0]), hn::Add(rows[1][1], hn::Add(rows[0][0], rows[2][0])));
  }
};

// The pixel times their number minus all of the mask. Parts: the pixel, and the sum of its row.
template <int kSide>
struct HighPass {
  static constexpr int kWidth = kSide, kHeight = kSide, kParts = 2;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 2> RowOf(D, const Pixel& pixel) {
    return {pixel(kSide / 2), TreeSum<kSide>(pixel)};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 2>* rows) {
    const auto sum = TreeSum<kSide>([&](int j) HWY_ATTR { return rows[j][1]; });
    return hn::Sub(Times<kSide * kSide>(d, rows[kSide / 2][0]), sum);
  }
};

// The differences along the diagonals of 2 x 2 pixels. Parts: both pixels.
template <bool kIsDown>
struct Roberts {
  static constexpr int kWidth = 2, kHeight = 2, kParts = 2;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 2> RowOf(D, const Pixel& pixel) {
    return {pixel(0), pixel(1)};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D, const Parts<D, 2>* rows) {
    return kIsDown ? hn::Sub(rows[1][1], rows[0][0]) : hn::Sub(rows[0][1], rows[1][0]);
  }
};

// Divided by 2^kBits: integers to the nearest, ties to even. Those of 16 bits are unsigned.
template <int kBits, class D, class V>
HWY_INLINE V DividedBy(D d, V sum) {
  using L = hn::TFromD<D>;
  if constexpr (std::is_same_v<L, float>) {
    return hn::Mul(sum, hn::Set(d, 1.0f / (1 << kBits)));
  } else if constexpr (sizeof(L) == sizeof(int16_t) && std::is_signed_v<L>) {
    const hn::RebindToUnsigned<D> u;
    return hn::BitCast(d, DividedBy<kBits>(u, hn::BitCast(u, sum)));
  } else {
    const auto isOdd = hn::And(hn::ShiftRight<kBits>(sum), hn::Set(d, L{1}));
    return hn::ShiftRight<kBits>(hn::Add(hn::Add(sum, hn::Set(d, L{(1 << (kBits - 1)) - 1})), isOdd));
  }
}

template <class Taps>
struct Binomial : Product<Taps, Taps> {
  static constexpr int kBits = Taps::kCount == 3 ? 4 : 8;

  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 1>* rows) {
    return DividedBy<kBits>(d, Product<Taps, Taps>::Result(d, rows));
  }
};

// Twice the pixel minus what smoothing makes of it. The rounded quotient serves here too: 2 p is even, so that ties go
// to even either way. Parts: that of smoothing, and the pixel.
template <class Taps>
struct Sharpen {
  using Smooth = Binomial<Taps>;
  static constexpr int kWidth = Taps::kCount, kHeight = Taps::kCount, kParts = 2;

  template <class D, class Pixel>
  static HWY_INLINE Parts<D, 2> RowOf(D d, const Pixel& pixel) {
    return {Smooth::RowOf(d, pixel)[0], pixel(kWidth / 2)};
  }
  template <class D>
  static HWY_INLINE hn::Vec<D> Result(D d, const Parts<D, 2>* rows) {
    Parts<D, 1> smooth[kHeight];
    for (int j = 0; j < kHeight; ++j) smooth[j][0] = rows[j][0];
    return hn::Sub(Times<2>(d, rows[kHeight / 2][1]), Smooth::Result(d, smooth));
  }
};

// Whether the parts of rows are worth keeping: else they are made again for every two rows of results, which saves
// stores and loads.
template <class Kind>
inline constexpr bool kKeepsParts = Kind::kHeight == 5;
template <class Taps>
inline constexpr bool kKeepsParts<Binomial<Taps>> = true;
template <class Taps>
inline constexpr bool kKeepsParts<Sharpen<Taps>> = true;

}  // namespace qvp::filter
