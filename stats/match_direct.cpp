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
