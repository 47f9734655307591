// Averages over areas of up to kMostParts pixels across, in double: the partly covered pixels by their parts, added to
// the sum of the whole ones. Sums of integers are exact, so that their averages are the nearest integers.
#pragma once

#include "geometry/resize_area_down.h"
#include "geometry/resize_area_sums.h"
#include "geometry/resize_singles.h"

namespace qvp::resize {

inline constexpr int kMostParts = 18;

// A strip of columns, of sums S of rows: whole parts in 32 bits, or floats.
template <class S>
class PartColumns {
 public:
  using Sum = S;
  using Mean = double;
  // Columns, and pixels that can be read behind those of a strip.
  static constexpr ptrdiff_t kMost = 256, kBehind = kMostParts + 4;

  PartColumns(const ResizeRecord& record, ptrdiff_t begin, ptrdiff_t n)
      : rows_(record.rows), columns_(n), taps_(record.columns.taps), whole_(record.columns.p / record.columns.q) {
    const ResizeAxis& axis = record.columns;
    Coverage coverage = PeriodicCoverage(axis, begin);
    origin_ = coverage.first;
    const double area = axis.p * (std::is_integral_v<S> ? static_cast<double>(rows_.p) : DivisorOf(rows_));
    scale_ = {coverage.each, area, 1 / area};
    for (ptrdiff_t x = 0; x < n; ++x, coverage = Next(axis, coverage)) {
      const bool hasMore = coverage.whole == whole_;  // whole pixels than all columns have
      first_[x] = static_cast<int32_t>(coverage.first - origin_);
      begin_[x] = coverage.begin;
      next_[x] = hasMore ? coverage.each : coverage.end;
      last_[x] = hasMore ? coverage.end : 0;
      pixels_ = first_[x] + coverage.Pixels();
    }
    for (ptrdiff_t x = n; x < kLanes; ++x) first_[x] = 0, begin_[x] = next_[x] = last_[x] = 0;
  }

  ptrdiff_t origin() const { return origin_; }
  ptrdiff_t pixels() const { return pixels_; }
  ptrdiff_t columns() const { return columns_; }

  // sums[i] = what is at place i of the rows that are covered, of which `rows` begins with the first one.
  template <class T>
  void SumDown(const Image<const T>& rows, const Coverage& down, ptrdiff_t n, S* sums) const {
    if constexpr (std::is_integral_v<S>) {
      SumCovered(hn::ScalableTag<S>(), rows, down, n, sums);
    } else {
      MeanDown(rows, rows_, down, n, sums);
    }
  }

  // Averages of `sums`, behind which kBehind pixels more can be read. False where not all are finite.
  bool Average(const S* sums, int channels, double* out) const {
    if (channels == 1) return AverageSingles(sums, out);
    return channels == 3 ? AveragePixels<3>(sums, out) : AveragePixels<4>(sums, out);
  }

 private:
  using D = hn::CappedTag<float, 8>;
  using Wide = hn::Rebind<double, hn::Half<D>>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kWide = hn::MaxLanes(Wide());

  // The part of whole pixels, and that of all. A product with the inverse does for floats, but with integers it need
  // not be a tie where the quotient is one.
  struct Scale {
    double each, area, inverse;
  };

  // Sums of four or eight samples, in kVectors vectors: those of the partly covered pixels, and of the others.
  template <class W, int kVectors>
  struct Total {
    using V = hn::Vec<W>;
    V parts[kVectors], whole[kVectors];

    HWY_INLINE void Begin(const V* v, const V* part) {
      for (int i = 0; i < kVectors; ++i) parts[i] = hn::Mul(v[i], part[i]), whole[i] = hn::Zero(W());
    }
    HWY_INLINE void AddWhole(const V* v) {
      for (int i = 0; i < kVectors; ++i) whole[i] = hn::Add(whole[i], v[i]);
    }
    // What has no part may be NaN.
    HWY_INLINE void AddPart(const V* v, const V* part) {
      for (int i = 0; i < kVectors; ++i) {
        const V some = std::is_integral_v<S> ? v[i] : hn::IfThenElseZero(hn::Ne(part[i], hn::Zero(W())), v[i]);
        parts[i] = hn::Add(parts[i], hn::Mul(some, part[i]));
      }
    }
    HWY_INLINE V Mean(int i, const Scale& scale) const {
      const V sum = hn::Add(parts[i], hn::Mul(whole[i], hn::Set(W(), scale.each)));
      if constexpr (std::is_integral_v<S>) return hn::Div(sum, hn::Set(W(), scale.area));
      return hn::Mul(sum, hn::Set(W(), scale.inverse));
    }
  };

  // What the loops read, apart from the class: stores of averages could change its members.
  struct Tables {
    int taps, whole;
    Scale scale;
    const int32_t* first;
    const double *begin, *next, *last;
  };
  Tables Locals() const { return {taps_, whole_, scale_, first_, begin_, next_, last_}; }

  // As many columns as there are lanes.
  static HWY_INLINE void AverageAt(const Tables& tables, const S* sums, ptrdiff_t x, hn::Vec<Wide>* means) {
    using V = hn::Vec<Wide>;
    const hn::Rebind<S, D> d;
    const hn::Rebind<S, Wide> half;
    const Wide wide;
    const auto load = [&](const double* parts, V* v) HWY_ATTR {
      for (int i = 0; i < 2; ++i) v[i] = hn::LoadU(wide, parts + x + i * kWide);
    };
    Total<Wide, 2> total;
    const auto take = [&](int k, hn::Vec<D> samples) HWY_ATTR QVP_INLINED {
      const auto of = hn::BitCast(d, samples);
      const V v[2] = {hn::PromoteTo(wide, hn::LowerHalf(half, of)), hn::PromoteTo(wide, hn::UpperHalf(half, of))};
      if (k > 0 && k < tables.whole) return total.AddWhole(v);
      V part[2];
      load(k == 0 ? tables.begin : k == tables.whole ? tables.next : tables.last, part);
      k == 0 ? total.Begin(v, part) : total.AddPart(v, part);
    };
    const auto* row = reinterpret_cast<const float*>(sums);  // only moved until they are taken
    for (int k = 0; k < tables.taps; k += 4) TakeFours(D(), row, tables.first + x, k, tables.taps, take);
    for (int i = 0; i < 2; ++i) means[i] = total.Mean(i, tables.scale);
  }

  bool AverageSingles(const S* sums, double* out) const {
    const Tables tables = Locals();
    Finite<Wide> finite;
    const auto average = [&](ptrdiff_t x, double* to) HWY_ATTR {
      hn::Vec<Wide> means[2];
      AverageAt(tables, sums, x, means);
      for (int i = 0; i < 2; ++i) {
        finite.Take(means[i]);
        hn::StoreU(means[i], Wide(), to + i * kWide);
      }
    };
    const ptrdiff_t last = std::max<ptrdiff_t>(columns_ - kLanes, 0);
    for (ptrdiff_t x = 0; x < last; x += kLanes) average(x, out + x);
    average(last, out + last);
    return finite.AreAll();
  }

  // A pixel in four lanes; of three channels the last one is overwritten by the next pixel.
  template <int kChannels>
  bool AveragePixels(const S* sums, double* out) const {
    using W = hn::CappedTag<double, 4>;
    constexpr ptrdiff_t kEach = hn::MaxLanes(W());
    constexpr int kVectors = 4 / kEach;
    const Tables tables = Locals();
    const int taps = tables.taps, whole = tables.whole;
    Finite<W> finite;
    for (ptrdiff_t x = 0; x < columns_; ++x) {
      const S* from = sums + tables.first[x] * ptrdiff_t{kChannels};
      hn::Vec<W> pixel[kVectors], part[kVectors];
      const auto load = [&](int k) HWY_ATTR {
        for (int i = 0; i < kVectors; ++i) pixel[i] = LoadWide(W(), from + k * kChannels + i * kEach);
      };
      const auto by = [&](double value) HWY_ATTR {
        std::fill_n(part, kVectors, hn::Set(W(), value));
        return part;
      };
      Total<W, kVectors> total;
      load(0), total.Begin(pixel, by(tables.begin[x]));
      for (int k = 1; k < whole; ++k) load(k), total.AddWhole(pixel);
      if (whole < taps) load(whole), total.AddPart(pixel, by(tables.next[x]));
      if (whole + 1 < taps) load(whole + 1), total.AddPart(pixel, by(tables.last[x]));
      for (int i = 0; i < kVectors; ++i) {
        const auto mean = total.Mean(i, tables.scale);
        finite.Take(mean);
        hn::StoreU(mean, W(), out + x * kChannels + i * kEach);
      }
    }
    return finite.AreAll();
  }

  const ResizeAxis& rows_;
  ptrdiff_t columns_, origin_, pixels_;
  int taps_, whole_;
  Scale scale_;
  int32_t first_[kMost];
  double begin_[kMost], next_[kMost], last_[kMost];
};

}  // namespace qvp::resize
