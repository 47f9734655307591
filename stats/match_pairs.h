// Products of integers: rows in pairs, whose products are added by the multiplication.
#pragma once

#include "base/pairs.h"
#include "base/row_pairs.h"
#include "stats/match_pieces.h"

namespace qvp::matching {

template <class T>
class PairSums {
 public:
  using Form = PairedRows<T, int16_t>;
  using N = Sum<T>;

  // The pairs are of coefficients, or of their high or low parts.
  PairSums(const int32_t* pairs, Size piece, bool isHigh)
      : pairs_(pairs), lines_(piece.height / 2 + 1), width_(piece.width), isHigh_(isHigh) {}

  void AddRows(const uint32_t* const* lines, ptrdiff_t columns, N* upper, N* lower) const {
    const PairSums kernel = *this;
    ForEachGroup<kLanes, 4>(columns, [&](auto count, ptrdiff_t i) QVP_INLINED {
      kernel.template Run<count.value>(lines, i, upper + i, lower + i);
    });
  }

 private:
  using D = hn::ScalableTag<int32_t>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  template <int kCount>
  HWY_INLINE void Run(const uint32_t* const* lines, ptrdiff_t at, N* upper, N* lower) const {
    const hn::ScalableTag<int16_t> words;
    V above[kCount], below[kCount];
    for (int v = 0; v < kCount; ++v) above[v] = below[v] = hn::Zero(D());
    const int32_t* pair = pairs_;
    for (ptrdiff_t p = 0; p < lines_; ++p) {
      const auto* line = lines[p] + at;
      for (ptrdiff_t i = 0; i < width_; ++i, ++line, pair += 2) {
        const auto a = hn::BitCast(words, hn::Set(D(), pair[0])), b = hn::BitCast(words, hn::Set(D(), pair[1]));
        for (int v = 0; v < kCount; ++v) {
          const auto pixel = hn::LoadU(words, reinterpret_cast<const int16_t*>(line + v * kLanes));
          above[v] = hn::Add(above[v], MulAddPairs(pixel, a));
          below[v] = hn::Add(below[v], MulAddPairs(pixel, b));
        }
      }
    }
    for (int v = 0; v < kCount; ++v) Add(above[v], upper + v * kLanes), Add(below[v], lower + v * kLanes);
  }

  HWY_INLINE void Add(V sum, N* to) const {
    const hn::ScalableTag<N> d;
    AddHalf(hn::PromoteTo(d, hn::LowerHalf(sum)), to);
    AddHalf(hn::PromoteTo(d, hn::UpperHalf(hn::Half<D>(), sum)), to + kLanes / 2);
  }
  HWY_INLINE void AddHalf(hn::Vec<hn::ScalableTag<N>> sum, N* to) const {
    const hn::ScalableTag<N> d;
    if constexpr (std::is_same_v<N, int64_t>) {
      if (isHigh_) sum = hn::ShiftLeft<8>(sum);
    }
    hn::StoreU(hn::Add(hn::LoadU(d, to), sum), d, to);
  }

  const int32_t* pairs_;
  ptrdiff_t lines_, width_;
  bool isHigh_;
};

// So many steps that sums stay in 32 bits.
template <class T>
Size MostOfPiece(Size tpl) {
  constexpr ptrdiff_t kSteps = sizeof(T) == 1 ? kMostBytePairs : kMostWordPairs;
  constexpr ptrdiff_t kWidth = sizeof(T) == 1 ? kMostWidth : 64;
  const ptrdiff_t width = std::min(tpl.width, kWidth), lines = std::min(kSteps / width, kMostLines);
  return {width, 2 * lines - 1};
}

template <class T, class Part>
void WritePart(const Plane<T>& tpl, const Piece& piece, const Part& part, int32_t* to) {
  const auto at = [&](ptrdiff_t j, ptrdiff_t i) {
    if (j < 0 || j >= piece.size.height) return 0;
    return part(LoadScalar(tpl.At(piece.x + i, piece.y + j)) - kMiddle<T>);
  };
  WriteRowPairs(piece.size, at, to);
}

template <class T>
void AddPiece(const Plane<T>& image, const Piece& piece, const Tile<T>& tile, const PairSums<T>* kernels, int count,
              uint8_t* memory) {
  auto window = LinesFor<typename PairSums<T>::Form>(image, piece, tile, piece.size.height / 2 + 1);
  window.Start(memory);
  for (ptrdiff_t y = 0; y < tile.size.height; y += 2) {
    if (y > 0) window.Advance(1);
    for (int k = 0; k < count; ++k) {
      kernels[k].AddRows(window.lines(), tile.size.width, tile.Row(y), tile.Row(y + 1));
    }
  }
}

template <class T>
void AddProducts(const Plane<T>& image, const Plane<T>& tpl, const Tile<T>& tile, uint8_t* memory) {
  ForEachPiece(tpl.size, MostOfPiece<T>(tpl.size), [&](const Piece& piece) {
    const int64_t bytes = PairBytes((piece.size.height / 2 + 1) * piece.size.width);
    auto *const pairs = reinterpret_cast<int32_t*>(memory), *const low = reinterpret_cast<int32_t*>(memory + bytes);
    if constexpr (sizeof(T) == 1) {
      WritePart(
          tpl, piece, [](int b) { return b; }, pairs);
      const PairSums<T> kernel(pairs, piece.size, false);
      AddPiece(image, piece, tile, &kernel, 1, memory + bytes);
    } else {
      WritePart(tpl, piece, HighPart, pairs);
      WritePart(tpl, piece, LowPart, low);
      const PairSums<T> kernels[] = {{pairs, piece.size, true}, {low, piece.size, false}};
      AddPiece(image, piece, tile, kernels, 2, memory + 2 * bytes);
    }
  });
}

}  // namespace qvp::matching
