// The sums that the guided filter's model is made from, row by row of the images: those of integers run down the
// columns, exactly, those of floats are trees.
#pragma once

#include "base/pairs.h"
#include "filter/guided_model.h"
#include "filter/running_totals.h"
#include "filter/window_sums.h"

namespace qvp::filter {

// The planes of a line.
template <class T>
struct PlaneRows {
  const T* first;
  ptrdiff_t step;  // elements

  const T* operator[](int plane) const { return first + plane * step; }
};

// The sums of a row as vectors of doubles, from sample i on.
struct TreeReader {
  TreeParts<double> parts;
  ptrdiff_t step;

  HWY_INLINE DoubleVector Get(int term, ptrdiff_t i) const {
    return TreeSums<1>(DoubleLanes(), parts, term * step + i)[0];
  }
};
struct TotalsReader {
  const uint32_t* totals;
  ptrdiff_t step, apart;

  HWY_INLINE DoubleVector Get(int term, ptrdiff_t i) const {
    const hn::Rebind<uint32_t, DoubleLanes> d;
    const uint32_t* const from = totals + term * step + i;
    const auto sum = hn::Sub(hn::LoadU(d, from + apart), hn::LoadU(d, from));
    return WithOffset(hn::PromoteTo(WordLanes(), sum), 0x1p52);
  }
};

// value(term) for each term of a model, from value(plane) and a product.
template <class Model, class V>
HWY_INLINE auto TermOf(int q, const std::array<V, Model::kPlanes>& planes) {
  const GuidedTerm term = Model::kTermTable[q];
  return term.second < 0 ? planes[term.first] : hn::Mul(planes[term.first], planes[term.second]);
}

// Of 16-bit integers and floats, in doubles.
template <class T, class Model>
class GuidedMoments {
 public:
  GuidedMoments(QvpiSize mask, int channels, ptrdiff_t samples)
      : values_(samples + (mask.width - 1) * channels), sums_(MaskOf(mask), channels, Model::kTerms, samples) {}

  static RowBytes Bytes(QvpiSize mask) { return Sums::Bytes(MaskOf(mask), Model::kTerms); }
  uint8_t* Start(uint8_t* memory) {
    uint8_t* const end = sums_.Start(memory);
    for (int q = 0; q < Model::kTerms; ++q) std::fill_n(sums_.Values(q), values_, 0);
    return end;
  }

  // The line that the window reaches, and that which it leaves, or zeros.
  void Add(const PlaneRows<T>& newest, const PlaneRows<T>& oldest) {
    for (ptrdiff_t i = 0; i < values_; i += kLanes) {
      const auto planes = PlanesAt(newest, i), left = kRuns ? PlanesAt(oldest, i) : planes;
      Unrolled<Model::kTerms>([&](auto q) QVP_INLINED {
        double* const at = sums_.Values(q) + i;
        auto value = TermOf<Model>(q, planes);
        if constexpr (kRuns) value = hn::Add(hn::LoadU(D(), at), hn::Sub(value, TermOf<Model>(q, left)));
        hn::StoreU(value, D(), at);
      });
    }
    sums_.Add();
  }

  TreeReader Reader() const { return {sums_.Parts(), sums_.PlaneStep()}; }

 private:
  using D = DoubleLanes;
  using Sums = WindowSums<double>;
  static constexpr bool kRuns = std::is_integral_v<T>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  // Sums of columns are there already if they run.
  static QvpiSize MaskOf(QvpiSize mask) { return {mask.width, kRuns ? 1 : mask.height}; }

  static HWY_INLINE auto PlanesAt(const PlaneRows<T>& rows, ptrdiff_t i) {
    std::array<DoubleVector, Model::kPlanes> planes;
    Unrolled<Model::kPlanes>([&](auto k) QVP_INLINED { planes[k] = LoadWide(D(), rows[k] + i); });
    return planes;
  }

  ptrdiff_t values_;
  Sums sums_;
};

// Of bytes, in 32 bits, which hold the sums of squares of 255 x 255.
template <class Model>
class GuidedMoments<uint8_t, Model> {
 public:
  GuidedMoments(QvpiSize mask, int channels, ptrdiff_t samples)
      : width_(mask.width),
        channels_(channels),
        values_(samples + (mask.width - 1) * channels),
        step_(PlaneSamples<uint32_t>(values_, kRoom)) {}

  static RowBytes Bytes(QvpiSize) { return BytesOfRows<uint32_t>(2 * Model::kTerms, kRoom); }
  uint8_t* Start(uint8_t* memory) {
    columns_ = reinterpret_cast<uint32_t*>(memory);
    totals_ = columns_ + Model::kTerms * step_;
    std::fill_n(columns_, Model::kTerms * step_, 0);
    return reinterpret_cast<uint8_t*>(totals_ + Model::kTerms * step_);
  }

  void Add(const PlaneRows<uint8_t>& newest, const PlaneRows<uint8_t>& oldest) {
    Run(newest, oldest);
    for (int q = 0; q < Model::kTerms; ++q) {
      const uint32_t* const columns = columns_ + q * step_;
      uint32_t* const totals = totals_ + q * step_;
      channels_ == 1   ? AddUp<1>(columns, values_, totals)
      : channels_ == 3 ? AddUpThrees(columns, values_, totals)
                       : AddUp<4>(columns, values_, totals);
    }
  }

  TotalsReader Reader() const { return {totals_, step_, width_ * channels_}; }

 private:
  static constexpr int64_t kRoom = 2 * kVectorRoom;

  // Newest and oldest pixels lie in pairs, so that one instruction makes the difference of their products.
  HWY_NOINLINE void Run(const PlaneRows<uint8_t>& newest, const PlaneRows<uint8_t>& oldest) const {
    const hn::ScalableTag<int32_t> d;
    const hn::ScalableTag<int16_t> pairs;
    const auto change = hn::BitCast(pairs, hn::Set(d, static_cast<int32_t>(0xFFFF0001)));
    for (ptrdiff_t i = 0; i < values_; i += hn::MaxLanes(d)) {
      std::array<hn::Vec<decltype(pairs)>, Model::kPlanes> both, differences;
      Unrolled<Model::kPlanes>([&](auto k) QVP_INLINED {
        const auto newer = LoadWide(d, newest[k] + i), older = hn::ShiftLeft<16>(LoadWide(d, oldest[k] + i));
        both[k] = hn::BitCast(pairs, hn::Add(newer, older));
        differences[k] = hn::BitCast(pairs, hn::Sub(newer, older));
      });
      Unrolled<Model::kTerms>([&](auto q) QVP_INLINED {
        constexpr GuidedTerm kTerm = Model::kTermTable[q];
        uint32_t* const at = columns_ + q * step_ + i;
        const auto factor = kTerm.second < 0 ? change : differences[std::max(kTerm.second, 0)];
        const auto difference = hn::BitCast(hn::ScalableTag<uint32_t>(), MulAddPairs(both[kTerm.first], factor));
        hn::StoreU(hn::Add(hn::LoadU(hn::ScalableTag<uint32_t>(), at), difference), hn::ScalableTag<uint32_t>(), at);
      });
    }
  }

  ptrdiff_t width_, channels_, values_, step_;
  uint32_t *columns_ = nullptr, *totals_ = nullptr;
};

}  // namespace qvp::filter
