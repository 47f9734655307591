// Vector medians: of the pixels of a rectangle, that whose distances to the others have the least sum.
//
// Each pair of pixels has one distance, whichever of both is asked. The distances from a new line to itself and to
// those above it are kept for as long as both are under the mask.
#pragma once

#include "base/channels.h"
#include "base/scalar.h"
#include "base/unrolled.h"
#include "filter/median.h"

namespace qvp::filter {

inline constexpr int kLongestVectorSide = 7, kColours = 3;

// Rows that are kept, all of numbers of one type for each pixel: what has room for a pixel has room for two of them.
constexpr KeptRows VectorRowsFor(QvpiSize mask) {
  const int offsets = 2 * mask.width - 1;
  return {mask.height * (kColours + mask.height * offsets + offsets) + 2, 2};
}

// F: 16-bit lanes, which hold the sums of L1 of bytes, or floats, which hold those of L1 of 16-bit numbers.
template <class F>
struct Distances {
  using D = hn::ScalableTag<F>;
  using V = hn::Vec<D>;

  static HWY_INLINE V Difference(V a, V b) {
    if constexpr (std::is_integral_v<F>)
      return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    else
      return hn::Abs(hn::Sub(a, b));
  }
  template <bool kIsL2>
  static HWY_INLINE V Of(V d0, V d1, V d2) {
    if constexpr (!kIsL2)
      return hn::Add(hn::Add(d0, d1), d2);
    else
      return hn::Sqrt(hn::Add(hn::Add(hn::Mul(d0, d0), hn::Mul(d1, d1)), hn::Mul(d2, d2)));
  }
};

template <class T, class F, bool kIsL2>
class VectorKernel {
 public:
  struct Context {
    QvpiSize mask;
    ptrdiff_t channels;
  };

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const VectorKernel kernel(*static_cast<const Context*>(context), window);
    for (ptrdiff_t l = window.y == 0 ? 0 : kernel.height_ - 1; l < kernel.height_; ++l) kernel.Enter(l);
    kernel.ChooseByWidth();
    kernel.Put(reinterpret_cast<T*>(rows.upper[0]));
  }

 private:
  using D = hn::ScalableTag<F>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  VectorKernel(const Context& context, const Window& window)
      : window_(window),
        channels_(context.channels),
        width_(context.mask.width),
        height_(context.mask.height),
        offsets_(2 * width_ - 1),
        results_(window.samples / channels_),
        pixels_(results_ + width_ - 1) {
    for (ptrdiff_t l = 0; l < height_; ++l) slots_[l] = (window.y + l) % height_;
  }

  // ---- Rows that are kept. Lines are counted from the uppermost of the mask.

  F* Kept(ptrdiff_t row) const { return reinterpret_cast<F*>(window_.kept + row * window_.keptStep); }
  F* Colour(ptrdiff_t line, int c) const { return Kept(slots_[line] * kColours + c); }
  // The distances from pixels of an upper line to those of a lower one, `dx` to their right, or of the same if they are
  // to the right.
  F* Distance(ptrdiff_t upper, ptrdiff_t lower, ptrdiff_t dx) const {
    return Kept(height_ * kColours + (slots_[lower] * height_ + lower - upper) * offsets_ + dx + width_ - 1);
  }
  // The sums of the distances from pixels of a line to a column of the mask, `dx` to their right.
  F* ColumnSum(ptrdiff_t line, ptrdiff_t dx) const {
    return Kept(height_ * (kColours + height_ * offsets_) + line * offsets_ + dx + width_ - 1);
  }
  F* Best() const { return ColumnSum(height_, 1 - width_); }
  F* Choice() const { return ColumnSum(height_, 2 - width_); }

  // Vectors at the places [begin, end), and as far beyond as there is room: rows end with a vector's.
  template <class Step>
  static HWY_INLINE void ForVectors(ptrdiff_t begin, ptrdiff_t end, const Step& step) {
    for (ptrdiff_t x = begin; x < end; x += kLanes) step(end - begin < kLanes ? x : std::min(x, end - kLanes));
  }

  // ---- A line that comes under the mask

  void Enter(ptrdiff_t line) const {
    channels_ == 3 ? Separate<3>(line) : Separate<4>(line);
    for (ptrdiff_t upper = 0; upper <= line; ++upper) {
      for (ptrdiff_t dx = upper == line ? 0 : 1 - width_; dx < width_; ++dx) Measure(upper, line, dx);
    }
  }

  // Each colour by itself.
  template <int kChannels>
  HWY_NOINLINE void Separate(ptrdiff_t line) const {
    const auto* const from = static_cast<const T*>(window_.lines[line]);
    F *HWY_RESTRICT const red = Colour(line, 0), *HWY_RESTRICT const green = Colour(line, 1),
                          *HWY_RESTRICT const blue = Colour(line, 2);
    const ptrdiff_t n = pixels_;
    if constexpr (hn::MaxLanes(hn::Rebind<T, D>()) * sizeof(T) >= kBlockBytes) {
      if (n >= kLanes) return SeparateVectors<kChannels>(from, red, green, blue);
    }
    for (ptrdiff_t x = 0; x < n; ++x) {
      red[x] = static_cast<F>(LoadScalar(from + kChannels * x));
      green[x] = static_cast<F>(LoadScalar(from + kChannels * x + 1));
      blue[x] = static_cast<F>(LoadScalar(from + kChannels * x + 2));
    }
  }

  template <int kChannels>
  HWY_INLINE void SeparateVectors(const T* from, F* red, F* green, F* blue) const {
    const D d;
    const hn::Rebind<T, D> narrow;
    ForVectors(0, pixels_, [=](ptrdiff_t x) HWY_ATTR {
      const auto colours = LoadChannels<kChannels>(narrow, from + kChannels * x);
      hn::StoreU(Widened(d, colours.v[0]), d, red + x);
      hn::StoreU(Widened(d, colours.v[1]), d, green + x);
      hn::StoreU(Widened(d, colours.v[2]), d, blue + x);
    });
  }
  template <class N>
  static HWY_INLINE V Widened(D d, N v) {
    if constexpr (std::is_same_v<T, F>)
      return v;
    else if constexpr (std::is_same_v<F, float>)
      return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<int32_t, D>(), v));
    else
      return hn::PromoteTo(d, v);
  }

  HWY_NOINLINE void Measure(ptrdiff_t upper, ptrdiff_t lower, ptrdiff_t dx) const {
    const D d;
    const F *const a0 = Colour(upper, 0), *const a1 = Colour(upper, 1), *const a2 = Colour(upper, 2);
    const F *const b0 = Colour(lower, 0) + dx, *const b1 = Colour(lower, 1) + dx, *const b2 = Colour(lower, 2) + dx;
    F* const to = Distance(upper, lower, dx);
    ForVectors(std::max<ptrdiff_t>(0, -dx), pixels_ - std::max<ptrdiff_t>(0, dx), [=](ptrdiff_t x) HWY_ATTR {
      const auto difference = [=](const F* a, const F* b) QVP_INLINED {
        return Distances<F>::Difference(hn::LoadU(d, a + x), hn::LoadU(d, b + x));
      };
      hn::StoreU(Distances<F>::template Of<kIsL2>(difference(a0, b0), difference(a1, b1), difference(a2, b2)), d,
                 to + x);
    });
  }

  // ---- The choice

  // For the pixels of a line of the mask, from the top down.
  template <int kHeight>
  HWY_NOINLINE void SumColumns(ptrdiff_t line) const {
    for (ptrdiff_t dx = 1 - width_; dx < width_; ++dx) {
      std::array<const F*, kHeight> terms;
      for (ptrdiff_t l = 0; l < kHeight; ++l) {
        const bool isMeasured = l > line || (l == line && dx >= 0);
        terms[l] = isMeasured ? Distance(line, l, dx) : Distance(l, line, -dx) + dx;
      }
      const D d;
      F* const to = ColumnSum(line, dx);
      ForVectors(std::max<ptrdiff_t>(0, -dx), pixels_ - std::max<ptrdiff_t>(0, dx), [=](ptrdiff_t x) HWY_ATTR {
        V sum = hn::LoadU(d, terms[0] + x);
        Unrolled<kHeight - 1>([&](auto l) QVP_INLINED { sum = hn::Add(sum, hn::LoadU(d, terms[l + 1] + x)); });
        hn::StoreU(sum, d, to + x);
      });
    }
  }
  void SumColumnsByHeight(ptrdiff_t line) const {
    if (height_ == 1) return SumColumns<1>(line);
    if (height_ == 3) return SumColumns<3>(line);
    height_ == 5 ? SumColumns<5>(line) : SumColumns<7>(line);
  }

  // Of the pixel of the mask in a column, for the masks from x on.
  template <int kWidth>
  using Columns = std::array<const F*, 2 * kWidth - 1>;
  template <int kWidth>
  Columns<kWidth> ColumnsOf(ptrdiff_t line) const {
    Columns<kWidth> columns;
    for (int k = 0; k < 2 * kWidth - 1; ++k) columns[k] = ColumnSum(line, k + 1 - kWidth);
    return columns;
  }
  template <int kWidth>
  static HWY_INLINE V SumOf(const Columns<kWidth>& columns, ptrdiff_t i, ptrdiff_t x) {
    const D d;
    const auto term = [&](ptrdiff_t k) QVP_INLINED { return hn::LoadU(d, columns[k - i + kWidth - 1] + x + i); };
    V sum = term(0);
    Unrolled<kWidth - 1>([&](auto k) QVP_INLINED { sum = hn::Add(sum, term(k + 1)); });
    return sum;
  }

  void ChooseByWidth() const {
    if (width_ == 1) return Choose<1>();
    if (width_ == 3) return Choose<3>();
    width_ == 5 ? Choose<5>() : Choose<7>();
  }

  // Choices are numbers of pixels of the mask, in the order of rows.
  template <int kWidth>
  void Choose() const {
    const D d;
    const ptrdiff_t middle = height_ / 2;
    F *const best = Best(), *const choice = Choice();
    for (ptrdiff_t j = 0; j < height_; ++j) SumColumnsByHeight(j);
    const auto centres = ColumnsOf<kWidth>(middle);
    const auto centre = middle * kWidth + kWidth / 2;
    const V first = hn::Set(d, static_cast<F>(centre));
    ForVectors(0, results_, [&](ptrdiff_t x) HWY_ATTR {
      hn::StoreU(SumOf<kWidth>(centres, kWidth / 2, x), d, best + x);
      hn::StoreU(first, d, choice + x);
    });
    for (ptrdiff_t j = 0; j < height_; ++j) {
      const auto columns = ColumnsOf<kWidth>(j);
      ForVectors(0, results_, [&](ptrdiff_t x) HWY_ATTR {
        V least = hn::LoadU(d, best + x), chosen = hn::LoadU(d, choice + x);
        Unrolled<kWidth>([&](auto i) QVP_INLINED {
          const V sum = SumOf<kWidth>(columns, i, x);
          const auto isLess = hn::Lt(sum, least);
          least = hn::IfThenElse(isLess, sum, least);
          chosen = hn::IfThenElse(isLess, hn::Set(d, static_cast<F>(j * kWidth + i)), chosen);
        });
        hn::StoreU(least, d, best + x);
        hn::StoreU(chosen, d, choice + x);
      });
    }
  }

  void Put(T* to) const {
    const F* next = Choice();
    const T* chosen[kLongestVectorSide * kLongestVectorSide];
    for (ptrdiff_t k = 0; k < width_ * height_; ++k) {
      chosen[k] = static_cast<const T*>(window_.lines[k / width_]) + k % width_ * channels_;
    }
    const ptrdiff_t n = results_ * channels_;
    for (ptrdiff_t i = 0; i < n; i += channels_, ++next) {
      std::memcpy(to + i, chosen[static_cast<unsigned>(*next)] + i, kColours * sizeof(T));
    }
  }

  const Window& window_;
  const ptrdiff_t channels_, width_, height_, offsets_, results_, pixels_;
  ptrdiff_t slots_[kLongestVectorSide];  // of lines
};

}  // namespace qvp::filter
