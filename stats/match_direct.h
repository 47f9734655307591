// Sums of products of windows and template, product by product.
#pragma once

#include "stats/match.h"

namespace qvp::matching {

// Results of a tile, at most: rows of sums are not powers of two apart.
inline constexpr ptrdiff_t kDirectColumns = 240, kDirectRows = 64;

// Bytes of work memory for results of so many columns, and channels of one result.
int64_t DirectBytes(Size tpl, int64_t columns, int channels);

// Writes the sums of a tile of any size, with work memory from a boundary on. Integers have sums of products alone.
// Floats: products are added to +0 one by one, row by row, channels of a pixel in their order.
template <class T>
void SumDirectly(const ChannelSet<T>& channels, Products products, const Tile<T>& tile, uint8_t* memory);
extern template void SumDirectly(const ChannelSet<uint8_t>&, Products, const Tile<uint8_t>&, uint8_t*);
extern template void SumDirectly(const ChannelSet<uint16_t>&, Products, const Tile<uint16_t>&, uint8_t*);
extern template void SumDirectly(const ChannelSet<int16_t>&, Products, const Tile<int16_t>&, uint8_t*);
extern template void SumDirectly(const ChannelSet<float>&, Products, const Tile<float>&, uint8_t*);

}  // namespace qvp::matching
