// Averages over areas of up to three pixels an axis, in single floats and without a scale. The pixel that is covered
// most is the anchor, to which the weighted differences of the others are added:
//   a + w (b - a) + v (c - a)
// Equal pixels thus stay what they are, and the error is a few units of 2^-24 of the weighted sum of the magnitudes.
#pragma once

#include "base/map.h"
#include "geometry/resize_coverage.h"
#include "geometry/resize_singles.h"

namespace qvp::resize {

inline constexpr int kMostNear = 3;

// The pixels of a coverage in the order of their use, with weights of the two behind the anchor. What is not covered
// has weight 0, and the place of the anchor.
struct NearAreas {
  ptrdiff_t at[kMostNear];
  float second, third;

  NearAreas(const Coverage& coverage, ptrdiff_t origin) {
    double parts[kMostNear] = {coverage.begin, 0, 0};
    for (ptrdiff_t k = 1; k < coverage.Pixels(); ++k) parts[k] = k <= coverage.whole ? coverage.each : coverage.end;
    const int anchor = parts[0] < parts[1] ? 1 : 0, other = 1 - anchor;
    const double total = coverage.Total();
    second = static_cast<float>(parts[other] / total);
    third = static_cast<float>(parts[2] / total);
    at[0] = coverage.first + anchor - origin;
    at[1] = second != 0 ? coverage.first + other - origin : at[0];
    at[2] = third != 0 ? coverage.first + 2 - origin : at[0];
  }
};

template <class V>
HWY_INLINE V Blended(V a, V b, V c, V second, V third) {
  return hn::Add(hn::Add(a, hn::Mul(hn::Sub(b, a), second)), hn::Mul(hn::Sub(c, a), third));
}

// sums[i] = the average down at place i. Row 0 of the image is source row `origin`.
template <class T>
void BlendDown(const Image<const T>& rows, const NearAreas& down, ptrdiff_t n, float* sums) {
  const hn::ScalableTag<float> d;
  const auto second = hn::Set(d, down.second), third = hn::Set(d, down.third);
  const T *a = rows.Row(down.at[0]), *b = rows.Row(down.at[1]), *c = rows.Row(down.at[2]);
  if (down.third != 0) {
    MapRow<false>(
        d, sums, n, [=](auto u, auto v, auto w) HWY_ATTR { return Blended(u, v, w, second, third); }, a, b, c);
  } else {
    MapRow<false>(
        d, sums, n, [=](auto u, auto v) HWY_ATTR { return hn::Add(u, hn::Mul(hn::Sub(v, u), second)); }, a, b);
  }
}

// 0 as long as all numbers that were taken are finite, then NaN.
template <class D>
struct Finite {
  hn::Vec<D> check = hn::Zero(D());
  HWY_INLINE void Take(hn::Vec<D> v) { check = hn::Add(check, hn::Sub(v, v)); }
  HWY_INLINE bool AreAll() const { return hn::AllTrue(D(), hn::Eq(check, hn::Zero(D()))); }
};

// A strip of columns.
class NearColumns {
 public:
  using Sum = float;
  using Mean = float;
  // Columns, and pixels that can be read behind those of a strip.
  static constexpr ptrdiff_t kMost = 512, kBehind = 2 * kMostNear;

  NearColumns(const ResizeRecord& record, ptrdiff_t begin, ptrdiff_t n) : columns_(n) {
    const ResizeAxis& axis = record.columns;
    Coverage coverage = PeriodicCoverage(axis, begin);
    origin_ = coverage.first;
    for (ptrdiff_t x = 0; x < n; ++x, coverage = Next(axis, coverage)) {
      const NearAreas areas(coverage, origin_);
      first_[x] = static_cast<int32_t>(coverage.first - origin_);
      isSecondAnchor_[x] = areas.at[0] == first_[x] ? 0 : -1;
      second_[x] = areas.second;
      third_[x] = areas.third;
      pixels_ = first_[x] + coverage.Pixels();
    }
    for (ptrdiff_t x = n; x < kLanes; ++x) first_[x] = isSecondAnchor_[x] = 0, second_[x] = third_[x] = 0;
  }

  ptrdiff_t origin() const { return origin_; }
  ptrdiff_t pixels() const { return pixels_; }
  ptrdiff_t columns() const { return columns_; }

  // sums[i] = the average at place i of the rows that are covered, of which `rows` begins with the first one.
  template <class T>
  void SumDown(const Image<const T>& rows, const Coverage& down, ptrdiff_t n, float* sums) const {
    BlendDown(rows, NearAreas(down, down.first), n, sums);
  }

  // Averages of `sums`, behind which kBehind pixels more can be read. False where not all are finite.
  bool Average(const float* sums, int channels, float* out) const {
    if (channels == 1) return AverageSingles(sums, out);
    return channels == 3 ? AveragePixels<3>(sums, out) : AveragePixels<4>(sums, out);
  }

 private:
  using D = hn::CappedTag<float, 8>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  bool AverageSingles(const float* sums, float* out) const {
    const D d;
    Finite<D> finite;
    const ptrdiff_t last = columns_ - kLanes;
    const auto average = [&](ptrdiff_t x) HWY_ATTR {
      const auto v = BlendAt(sums, x);
      finite.Take(v);
      return v;
    };
    if (last < 0) {
      HWY_ALIGN float few[kLanes];
      hn::Store(average(0), d, few);
      std::copy_n(few, columns_, out);
    } else {
      for (ptrdiff_t x = 0; x < last; x += kLanes) hn::StoreU(average(x), d, out + x);
      hn::StoreU(average(last), d, out + last);
    }
    return finite.AreAll();
  }

  // As many columns as there are lanes, each from its first pixels in four successive sums.
  HWY_INLINE hn::Vec<D> BlendAt(const float* sums, ptrdiff_t x) const {
    const D d;
    hn::Vec<D> v[kMostNear];
    TakeFours(d, sums, first_ + x, 0, kMostNear, [&](int k, auto samples) HWY_ATTR QVP_INLINED { v[k] = samples; });
    const auto isSwapped = hn::MaskFromVec(hn::BitCast(d, hn::LoadU(hn::Rebind<int32_t, D>(), isSecondAnchor_ + x)));
    const auto second = hn::LoadU(d, second_ + x), third = hn::LoadU(d, third_ + x);
    const auto anchor = hn::IfThenElse(isSwapped, v[1], v[0]);
    const auto other = hn::IfThenElse(hn::Eq(second, hn::Zero(d)), anchor, hn::IfThenElse(isSwapped, v[0], v[1]));
    return Blended(anchor, other, hn::IfThenElse(hn::Eq(third, hn::Zero(d)), anchor, v[2]), second, third);
  }

  template <int kChannels>
  bool AveragePixels(const float* sums, float* out) const {
    const hn::Full128<float> d;
    Finite<hn::Full128<float>> finite;
    const auto average = [&](ptrdiff_t x) HWY_ATTR {
      const float *first = sums + first_[x] * ptrdiff_t{kChannels}, *next = first + kChannels;
      const float *a = isSecondAnchor_[x] ? next : first, *b = isSecondAnchor_[x] ? first : next;
      const float second = second_[x], third = third_[x];
      const auto anchor = hn::LoadU(d, a), other = hn::LoadU(d, second != 0 ? b : a);
      const auto last = hn::LoadU(d, third != 0 ? first + 2 * kChannels : a);
      const auto v = Blended(anchor, other, last, hn::Set(d, second), hn::Set(d, third));
      finite.Take(v);
      return v;
    };
    // Of three channels the fourth sample is overwritten by the next pixel.
    for (ptrdiff_t x = 0; x + 1 < columns_; ++x) hn::StoreU(average(x), d, out + x * kChannels);
    HWY_ALIGN float pixel[4];
    hn::Store(average(columns_ - 1), d, pixel);
    std::copy_n(pixel, kChannels, out + (columns_ - 1) * kChannels);
    return finite.AreAll();
  }

  ptrdiff_t columns_, origin_, pixels_;
  int32_t first_[kMost], isSecondAnchor_[kMost];
  float second_[kMost], third_[kMost];
};

}  // namespace qvp::resize
