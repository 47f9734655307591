// From sums over windows and template to scores: exact numbers of products and squares, each rounded to double once,
// then a quotient. Exact numbers are doubles where these hold them, else 64 bits, else two words.
#pragma once

#include "base/row_vectors.h"
#include "stats/match.h"
#include "stats/match_lanes.h"
#include "stats/two_words.h"

namespace qvp::matching {

// Sums over the template, of samples less what they are taken less by.
template <class T>
struct TemplateSums {
  Sum<T> squares, samples[kMostJoint];
};

// A row of sums over windows, the latter of which may be narrower.
template <class T, class N>
struct WindowRow {
  const Sum<T>* products;  // or squares of differences
  const N* squares;
  const N* samples[kMostJoint];
};

// Lanes of doubles, as numbers.
template <class D>
struct Real {
  hn::Vec<D> v;
  Real(hn::Vec<D> lanes) : v(lanes) {}
  Real(double n) : v(hn::Set(D(), n)) {}
  HWY_INLINE friend Real operator+(Real a, Real b) { return hn::Add(a.v, b.v); }
  HWY_INLINE friend Real operator-(Real a, Real b) { return hn::Sub(a.v, b.v); }
  HWY_INLINE friend Real operator*(Real a, Real b) { return hn::Mul(a.v, b.v); }
};

// What is the same for all windows, as exact numbers.
template <class E>
struct Constants {
  E pixels, less, lessSquares;  // lessSquares: of all samples of a window
  E samples[kMostJoint], allSamples, squares;
  bool isFlat;
};

template <class T>
class Scores {
 public:
  Scores(const Norm& norm, Products products, const ChannelSet<T>& channels, Size tpl, const TemplateSums<T>& sums)
      : norm_(norm),
        isDifference_(products == Products::kOfDifferences),
        channels_(channels.count),
        less_(channels.less[0]),
        pixels_(int64_t{tpl.width} * tpl.height),
        sums_(sums) {}

  // Whether sums of squares, and of samples, are looked at.
  static bool NeedsSquares(const Norm& norm, Products products) {
    return norm.isNormed || (norm.isDistance && products == Products::kOf);
  }
  static bool NeedsSamples(const Norm& norm, double less) {
    return norm.isCentred || (!kIsFloat<T> && less != 0 && !IsShiftFree(norm));
  }

  template <class N>
  void Row(const WindowRow<T, N>& row, ptrdiff_t n, float* to) const {
    if constexpr (kIsFloat<T>) {
      RowOfReals(row, n, to);
    } else {
      const double pixels = static_cast<double>(pixels_), sums = pixels * kLargest;
      const bool isCentred = norm_.isCentred;
      const double most = isCentred ? sums : sums * kLargest;
      if (most <= (isCentred ? 0x1p24 : 0x1p47)) return RowOfReals(row, n, to);
      if (most <= (isCentred ? 0x1p29 : 0x1p59)) return RowOf<int64_t>(row, n, to);
      RowOf<TwoWords>(row, n, to);
    }
  }

 private:
  static constexpr int kLargest = sizeof(T) == 1 ? 255 : 65535;
  static constexpr double kFlat = 0x1p-40;

  // Neither centred numbers nor differences mind what all samples are taken less by.
  static bool IsShiftFree(const Norm& norm) { return norm.isCentred || (norm.isDistance && !norm.isNormed); }
  bool IsRestored() const { return !kIsFloat<T> && less_ != 0 && !IsShiftFree(norm_); }

  // Exact numbers of E from sums.
  template <class E, class N>
  static E Exact(N n) {
    if constexpr (std::is_same_v<E, double>) return static_cast<double>(n);
    if constexpr (!std::is_same_v<E, double>) return E(static_cast<int64_t>(n));
  }

  template <class E>
  Constants<E> ConstantsOf() const {
    const auto whole = [](int64_t n) { return Exact<E>(static_cast<Sum<T>>(n)); };
    const auto less = kIsFloat<T> ? 0 : static_cast<int64_t>(less_);
    Constants<E> t{whole(pixels_),
                   whole(less),
                   whole(channels_ * pixels_ * (less * less)),
                   {whole(0), whole(0), whole(0)},
                   whole(0),
                   Exact<E>(sums_.squares),
                   false};
    for (int c = 0; c < channels_; ++c) {
      t.samples[c] = Exact<E>(sums_.samples[c]);
      t.allSamples = t.allSamples + t.samples[c];
    }
    if (norm_.isCentred) {
      const E squares = t.pixels * t.squares;
      t.squares = squares - SumOver<E>([&](int c) { return t.samples[c] * t.samples[c]; });
      if constexpr (kIsFloat<T>) t.isFlat = norm_.isNormed && t.squares <= kFlat * squares;
      if (t.isFlat) t.squares = whole(0);
    } else if (IsRestored()) {
      t.squares = Restored(t, t.squares, t.allSamples + t.allSamples);
    }
    return t;
  }

  template <class E, class Of>
  HWY_INLINE E SumOver(const Of& of) const {
    E sum = of(0);
    for (int c = 1; c < channels_; ++c) sum = sum + of(c);
    return sum;
  }

  // Sums of products of whole samples from those that are less; `samples` is the sum of both factors.
  template <class E, class C>
  HWY_INLINE static E Restored(const Constants<C>& t, E products, E samples) {
    return (products + E(t.less) * samples) + E(t.lessSquares);
  }

  template <class E>
  struct Terms {
    E numerator, squares;
  };

  // sample(c): the sum of a channel's samples.
  template <class E, class C, class Samples>
  HWY_INLINE Terms<E> TermsOf(const Constants<C>& t, E products, E squares, const Samples& sample) const {
    if (norm_.isCentred) {
      products = E(t.pixels) * products - SumOver<E>([&](int c) QVP_INLINED { return sample(c) * E(t.samples[c]); });
      const E all = E(t.pixels) * squares;
      squares = all - SumOver<E>([&](int c) QVP_INLINED { return sample(c) * sample(c); });
      if constexpr (kIsFloat<T>) {
        if (norm_.isNormed) DropFlat(t.isFlat, all, products, squares);
      }
    } else if (IsRestored()) {
      const E samples = SumOver<E>(sample);
      products = Restored(t, products, samples + E(t.allSamples));
      squares = Restored(t, squares, samples + samples);
    }
    if (!norm_.isDistance || isDifference_) return {products, squares};
    return {(squares - (products + products)) + E(t.squares), squares};
  }

  // Windows that are flat but for rounding are flat; a flat template has no products.
  template <class D>
  HWY_INLINE static void DropFlat(bool isTemplateFlat, Real<D> all, Real<D>& products, Real<D>& squares) {
    const D d;
    const auto isFlat = hn::Le(squares.v, hn::Mul(hn::Set(d, kFlat), all.v));
    squares.v = hn::IfThenZeroElse(isFlat, squares.v);
    products.v = isTemplateFlat ? hn::Zero(d) : hn::IfThenZeroElse(isFlat, products.v);
  }

  // The last step, in double. NaN passes all of its tests.
  template <class D>
  HWY_INLINE hn::Vec<hn::Rebind<float, D>> Score(D d, hn::Vec<D> numerator, hn::Vec<D> squares,
                                                 double ofTemplate) const {
    const auto zero = hn::Zero(d);
    if (kIsFloat<T> && norm_.isDistance) numerator = hn::IfThenZeroElse(hn::Lt(numerator, zero), numerator);
    auto score = numerator;
    if (norm_.isNormed) {
      const auto product = hn::Mul(squares, hn::Set(d, ofTemplate));
      score = hn::Div(numerator, hn::Sqrt(product));
      const auto infinite = hn::Set(d, norm_.isDistance ? std::numeric_limits<double>::infinity() : 0.0);
      const auto ofZero = hn::IfThenElseZero(hn::Ne(numerator, zero), infinite);
      score = hn::IfThenElse(hn::Eq(product, zero), ofZero, score);
      if (kIsFloat<T> && !norm_.isDistance) score = Clamped(d, score);
    } else if (norm_.isCentred) {
      score = hn::Div(numerator, hn::Set(d, static_cast<double>(pixels_)));
    }
    return hn::DemoteTo(hn::Rebind<float, D>(), score);
  }
  template <class D>
  HWY_INLINE static hn::Vec<D> Clamped(D d, hn::Vec<D> v) {
    const auto one = hn::Set(d, 1.0), minusOne = hn::Set(d, -1.0);
    v = hn::IfThenElse(hn::Gt(v, one), one, v);
    return hn::IfThenElse(hn::Lt(v, minusOne), minusOne, v);
  }

  template <class N>
  void RowOfReals(const WindowRow<T, N>& row, ptrdiff_t n, float* to) const {
    const Constants<double> t = ConstantsOf<double>();
    ForEachElement(hn::ScalableTag<double>(), n, [&](auto d, ptrdiff_t i) HWY_ATTR {
      using D = decltype(d);
      const auto load = [&](const auto* from)
                            QVP_INLINED { return Real<D>(from == nullptr ? hn::Zero(D()) : LoadSums(D(), from + i)); };
      const auto terms = TermsOf<Real<D>>(t, load(row.products), load(row.squares),
                                          [&](int c) QVP_INLINED { return load(row.samples[c]); });
      hn::StoreU(Score(d, terms.numerator.v, terms.squares.v, t.squares), hn::Rebind<float, D>(), to + i);
    });
  }

  // Numbers of more bits, one by one.
  template <class E, class N>
  void RowOf(const WindowRow<T, N>& row, ptrdiff_t n, float* to) const {
    constexpr ptrdiff_t kMost = 128;
    const Constants<E> t = ConstantsOf<E>();
    double numerators[kMost], squares[kMost];
    for (ptrdiff_t first = 0; first < n; first += kMost) {
      const ptrdiff_t count = std::min(kMost, n - first);
      for (ptrdiff_t i = 0; i < count; ++i) {
        const auto load = [&](const auto* from) { return from ? Exact<E>(from[first + i]) : Exact<E>(0.0); };
        const auto terms =
            TermsOf<E>(t, load(row.products), load(row.squares), [&](int c) { return load(row.samples[c]); });
        numerators[i] = static_cast<double>(terms.numerator), squares[i] = static_cast<double>(terms.squares);
      }
      ForEachElement(hn::ScalableTag<double>(), count, [&](auto d, ptrdiff_t i) HWY_ATTR {
        const auto score =
            Score(d, hn::LoadU(d, numerators + i), hn::LoadU(d, squares + i), static_cast<double>(t.squares));
        hn::StoreU(score, hn::Rebind<float, decltype(d)>(), to + first + i);
      });
    }
  }

  Norm norm_;
  bool isDifference_;
  int channels_;
  double less_;
  int64_t pixels_;
  TemplateSums<T> sums_;
};

}  // namespace qvp::matching
