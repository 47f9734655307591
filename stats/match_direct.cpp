// Products of windows and template, one by one: a piece of the template at a time is moved over the tile, for two rows
// of results at once.
#include "stats/match_direct.h"

#include "base/pairs.h"
#include "base/plane_lines.h"
#include "base/row_pairs.h"
#include "base/scalar.h"

namespace qvp::matching {
namespace {

// Sides of pieces, and how many steps of two products of bytes a sum of 32 bits takes.
constexpr ptrdiff_t kMostWidth = 512, kMostLines = 32, kMostBytePairs = 33025 / 2;

// A part of the template.
struct Piece {
  ptrdiff_t x, y;
  Size size;
};

// Calls visit(piece) for pieces of at most `most`, row by row: of several in a row, each has one row of the template.
template <class Visit>
void ForEachPiece(Size tpl, Size most, const Visit& visit) {
  for (ptrdiff_t y = 0; y < tpl.height; y += most.height) {
    for (ptrdiff_t x = 0; x < tpl.width; x += most.width) {
      visit(Piece{x, y, {std::min(most.width, tpl.width - x), std::min(most.height, tpl.height - y)}});
    }
  }
}

// A plane whose lines are those that a piece covers, for the tile's columns.
template <class Form, class T>
LineWindow<Form, T> LinesFor(const Plane<T>& image, const Piece& piece, const Tile<T>& tile, ptrdiff_t lines,
                             const Form& form = {}) {
  const ptrdiff_t first = tile.x + piece.x, samples = tile.size.width + piece.size.width - 1;
  return {image, {first, first + samples}, false, tile.y + piece.y, static_cast<int>(lines), form};
}

// Calls run(count, column) for all columns of a tile: `kMany` vectors at a time, or one. Rows have room for the last.
template <ptrdiff_t kLanes, int kMany, class Run>
HWY_INLINE void ForEachGroup(ptrdiff_t columns, const Run& run) {
  ptrdiff_t i = 0;
  for (; i + kMany * kLanes <= columns; i += kMany * kLanes) run(std::integral_constant<int, kMany>(), i);
  for (; i < columns; i += kLanes) run(std::integral_constant<int, 1>(), i);
}

// ---- Integers: rows in pairs, whose products are added by the multiplication.

template <class T>
class PairSums {
 public:
  using Form = PairedRows<T, int16_t>;
  using N = Sum<T>;

  // The pairs are of coefficients, or of a part of them, 2^shift times as much as they are.
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

// Bytes of the pairs of a piece, of the larger kind.
constexpr int64_t PairBytes(ptrdiff_t pairs) { return ByteCount((pairs + 1) * 8).RoundedTo(kRecordBoundary).value(); }

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

// ---- Floats, in double.

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

// ---- Tiles of at most kDirectColumns x kDirectRows.

template <class T>
void SumTile(const ChannelSet<T>& channels, Products products, const Tile<T>& tile, uint8_t* memory) {
  const ptrdiff_t columns = (tile.size.width + kTileUnit - 1) / kTileUnit * kTileUnit;
  for (ptrdiff_t y = 0; y < (tile.size.height + 1) / 2 * 2; ++y) std::fill_n(tile.Row(y), columns, Sum<T>{});
  if constexpr (kIsFloat<T>) {
    if (products == Products::kOf) return AddProducts<Products::kOf>(channels, tile, memory);
    AddProducts<Products::kOfDifferences>(channels, tile, memory);
  } else {
    for (int c = 0; c < channels.count; ++c) AddProducts(channels.image[c], channels.tpl[c], tile, memory);
  }
}

}  // namespace

ByteCount DirectBytes() {
  constexpr int64_t kSamples = kDirectColumns + kMostWidth;
  const ByteCount line = LineBytesFor(kSamples, sizeof(double)), lines = line * (kMostLines + 2) + kRecordBoundary * 8;
  return ByteCount(PairBytes(kMostWidth * (kMostLines + 1))) * kMostJoint + lines * kMostJoint;
}

template <class T>
void SumDirectly(const ChannelSet<T>& channels, Products products, const Tile<T>& tile, uint8_t* memory) {
  for (ptrdiff_t y = 0; y < tile.size.height; y += kDirectRows) {
    for (ptrdiff_t x = 0; x < tile.size.width; x += kDirectColumns) {
      const Size size{std::min(kDirectColumns, tile.size.width - x), std::min(kDirectRows, tile.size.height - y)};
      SumTile(channels, products, Tile<T>{tile.x + x, tile.y + y, size, tile.Row(y) + x, tile.step}, memory);
    }
  }
}

template void SumDirectly(const ChannelSet<uint8_t>&, Products, const Tile<uint8_t>&, uint8_t*);
template void SumDirectly(const ChannelSet<uint16_t>&, Products, const Tile<uint16_t>&, uint8_t*);
template void SumDirectly(const ChannelSet<int16_t>&, Products, const Tile<int16_t>&, uint8_t*);
template void SumDirectly(const ChannelSet<float>&, Products, const Tile<float>&, uint8_t*);

}  // namespace qvp::matching
