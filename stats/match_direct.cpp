// Products of windows and template, one by one.
#include "stats/match_direct.h"

#include "stats/match_pairs.h"
#include "stats/match_reals.h"

namespace qvp::matching {
namespace {

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

int64_t DirectBytes(Size tpl, int64_t columns, int channels) {
  const ptrdiff_t width = std::min(tpl.width, kMostWidth), lines = std::min(tpl.height, kMostLines) + 1;
  const int64_t samples = std::min<int64_t>(columns, kDirectColumns) + width;
  const int64_t line = LineBytesFor(samples, sizeof(double)).value(), pointers = PairBytes(lines);
  const int64_t tables = PairBytes(width * lines) * std::max(channels, 2);  // words have two
  return tables + ((lines + 1) * line + pointers) * channels;
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
