// Products of floats, or squares of their differences, in double.
#pragma once

#include "stats/match_pieces.h"

namespace qvp::matching {

// Samples as doubles, less a number.
struct LessRows : SingleRows<float, double> {
  double less = 0;

  void Finish(double* line, ptrdiff_t n) const {
    if (less == 0) return;
    ForEachElement(hn::ScalableTag<double>(), n, [&](auto d, ptrdiff_t i) HWY_ATTR {
      hn::StoreU(hn::Sub(hn::LoadU(d, line + i), hn::Set(d, less)), d, line + i);
    });
  }
};

template <Products kProducts>
class RealSums {
 public:
  // The template's samples, those of a pixel's channels side by side.
  RealSums(const double* samples, const Piece& piece, int channels)
      : samples_(samples), size_(piece.size), channels_(channels) {}

  // lines[c] are those of a channel.
  void AddRows(const double* const* const* lines, ptrdiff_t columns, double* upper, double* lower) const {
    const RealSums kernel = *this;
    ForEachGroup<kLanes, 4>(columns, [&](auto count, ptrdiff_t i) QVP_INLINED {
      kernel.template Run<count.value>(lines, i, upper + i, lower + i);
    });
  }

 private:
  using D = hn::ScalableTag<double>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  HWY_INLINE static V Added(V sum, V v, double sample) {
    const V t = hn::Set(D(), sample);
    if constexpr (kProducts == Products::kOf) return hn::Add(sum, hn::Mul(v, t));
    const V difference = hn::Sub(v, t);
    return hn::Add(sum, hn::Mul(difference, difference));
  }

  // Of one row of samples: that of the template for the upper results, and the one above it for the lower ones.
  template <int kCount, bool kHasUpper, bool kHasLower>
  HWY_INLINE void AddRow(const double* const* const* lines, ptrdiff_t j, ptrdiff_t at, V (&above)[kCount],
                         V (&below)[kCount]) const {
    const ptrdiff_t step = size_.width * channels_;
    const double* row = samples_ + j * step;
    for (ptrdiff_t i = 0; i < size_.width; ++i) {
      for (int c = 0; c < channels_; ++c, ++row) {
        const double* const line = lines[c][j] + at + i;
        for (int v = 0; v < kCount; ++v) {
          const V sample = hn::LoadU(D(), line + v * kLanes);
          if constexpr (kHasUpper) above[v] = Added(above[v], sample, row[0]);
          if constexpr (kHasLower) below[v] = Added(below[v], sample, row[-step]);
        }
      }
    }
  }

  template <int kCount>
  HWY_INLINE void Run(const double* const* const* lines, ptrdiff_t at, double* upper, double* lower) const {
    V above[kCount], below[kCount];
    for (int v = 0; v < kCount; ++v) {
      above[v] = hn::LoadU(D(), upper + v * kLanes), below[v] = hn::LoadU(D(), lower + v * kLanes);
    }
    AddRow<kCount, true, false>(lines, 0, at, above, below);
    for (ptrdiff_t j = 1; j < size_.height; ++j) AddRow<kCount, true, true>(lines, j, at, above, below);
    AddRow<kCount, false, true>(lines, size_.height, at, above, below);
    for (int v = 0; v < kCount; ++v) {
      hn::StoreU(above[v], D(), upper + v * kLanes), hn::StoreU(below[v], D(), lower + v * kLanes);
    }
  }

  const double* samples_;
  Size size_;
  int channels_;
};

template <Products kProducts>
void AddPiece(const ChannelSet<float>& channels, const Piece& piece, const Tile<float>& tile, uint8_t* memory) {
  auto* const samples = reinterpret_cast<double*>(memory);
  double* to = samples;
  for (ptrdiff_t i = 0; i < piece.size.width * piece.size.height; ++i) {
    for (int c = 0; c < channels.count; ++c) {
      const float sample =
          LoadScalar(channels.tpl[c].At(piece.x + i % piece.size.width, piece.y + i / piece.size.width));
      *to++ = static_cast<double>(sample) - channels.less[c];
    }
  }
  memory += PairBytes(to - samples);
  const auto lines = [&](int channel) {
    const int c = std::min(channel, channels.count - 1);
    return LinesFor(channels.image[c], piece, tile, piece.size.height + 1, LessRows{{}, channels.less[c]});
  };
  LineWindow<LessRows, float> windows[kMostJoint] = {lines(0), lines(1), lines(2)};
  const double* const* starts[kMostJoint] = {};
  for (int c = 0; c < channels.count; ++c) memory = windows[c].Start(memory), starts[c] = windows[c].lines();
  const RealSums<kProducts> kernel(samples, piece, channels.count);
  for (ptrdiff_t y = 0; y < tile.size.height; y += 2) {
    for (int c = 0; y > 0 && c < channels.count; ++c) windows[c].Advance(2);
    kernel.AddRows(starts, tile.size.width, tile.Row(y), tile.Row(y + 1));
  }
}

template <Products kProducts>
void AddProducts(const ChannelSet<float>& channels, const Tile<float>& tile, uint8_t* memory) {
  const Size tpl = channels.tpl[0].size;
  ForEachPiece(tpl, {kMostWidth, tpl.width > kMostWidth ? 1 : kMostLines},
               [&](const Piece& piece) { AddPiece<kProducts>(channels, piece, tile, memory); });
}

}  // namespace qvp::matching
