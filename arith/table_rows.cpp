#include "arith/table_rows.h"

#include <array>

#include "arith/byte_table.h"
#include "arith/channel_rows.h"
#include "base/pixelwise.h"
#include "base/rows.h"
#include "base/scalar.h"

namespace qvp {
namespace {

template <class T>
bool AreOne(const Tables<T>& tables, Layout layout) {
  for (int c = 1; c < ProcessedChannels(layout); ++c) {
    if (tables[c] != tables[0]) return false;
  }
  return true;
}

// A table for each channel, in vectors.
template <int kChannels, int kProcessed>
void MapChannelsThrough(const Tables<uint8_t>& tables, const Image<const uint8_t>& src, const Image<uint8_t>& dst,
                        Size roi) {
  struct {
    ByteTable table[4];
  } const prepared = {
      {ByteTable(tables[0]), ByteTable(tables[1]), ByteTable(tables[2]), ByteTable(tables[kProcessed - 1])}};
  const auto row = [prepared](ptrdiff_t n, uint8_t* to, const uint8_t* from) HWY_ATTR {
    const auto look = [&](int c, auto v) HWY_ATTR { return prepared.table[c](v); };
    MapChannelsOfRow<kChannels, kProcessed>(hn::ScalableTag<uint8_t>(), to, n, look, from);
  };
  ForEachPiece(roi, row, dst, src);
}

// Entries of 16 bits, one after the other: no CPU has room for the table in registers.
template <int kChannels, int kProcessed>
void MapChannelsThrough(const Tables<uint16_t>& tables, const Image<const uint16_t>& src, const Image<uint16_t>& dst,
                        Size roi) {
  const std::array<const uint16_t*, 4> of = {tables[0], tables[1], tables[2], tables[3]};
  Rows(src, dst).ForEach(roi, [of](ptrdiff_t width, const uint16_t* from, uint16_t* to) {
    for (ptrdiff_t i = 0; i < width * kChannels; i += kChannels) {
      for (int c = 0; c < kProcessed; ++c) StoreScalar(to + i + c, LoadScalar(of[c] + LoadScalar(from + i + c)));
    }
  });
}

// Rows that are shorter than a vector go by elements.
template <bool kKeepAlpha>
void MapThrough(const uint8_t* table, const Image<const uint8_t>& src, const Image<uint8_t>& dst, Size roi) {
  const ByteTable prepared(table);
  const auto row = [prepared, table](ptrdiff_t n, uint8_t* to, const uint8_t* from) HWY_ATTR {
    const hn::ScalableTag<uint8_t> d;
    if (n >= ptrdiff_t{hn::MaxLanes(d)}) return MapRow<kKeepAlpha>(d, to, n, prepared, from);
    for (ptrdiff_t i = 0; i < n; ++i) {
      if (!kKeepAlpha || i % 4 != 3) to[i] = table[from[i]];
    }
  };
  ForEachPiece(roi, row, dst, src);
}
void MapThrough(const uint8_t* table, const Image<const uint8_t>& src, const Image<uint8_t>& dst, Size roi) {
  KeepsAlpha(dst.layout) ? MapThrough<true>(table, src, dst, roi) : MapThrough<false>(table, src, dst, roi);
}

void MapThrough(const uint16_t* table, const Image<const uint16_t>& src, const Image<uint16_t>& dst, Size roi) {
  if (KeepsAlpha(dst.layout)) return MapChannelsThrough<4, 3>({table, table, table, table}, src, dst, roi);
  const int channels = Channels(dst.layout);
  Rows(src, dst).ForEach(roi, [=](ptrdiff_t width, const uint16_t* from, uint16_t* to) {
    ForEachOf(width * channels,
              [=](ptrdiff_t i) HWY_ATTR { StoreScalar(to + i, LoadScalar(table + LoadScalar(from + i))); });
  });
}

template <class T>
void Map(const Tables<T>& tables, const Image<const T>& src, const Image<T>& dst, Size roi) {
  if (AreOne(tables, dst.layout)) return MapThrough(tables[0], src, dst, roi);
  switch (dst.layout) {
    case Layout::kC3: return MapChannelsThrough<3, 3>(tables, src, dst, roi);
    case Layout::kAC4: return MapChannelsThrough<4, 3>(tables, src, dst, roi);
    default: return MapChannelsThrough<4, 4>(tables, src, dst, roi);
  }
}

}  // namespace

void MapThroughTables(const Tables<uint8_t>& tables, const Image<const uint8_t>& src, const Image<uint8_t>& dst,
                      Size roi) {
  Map(tables, src, dst, roi);
}
void MapThroughTables(const Tables<uint16_t>& tables, const Image<const uint16_t>& src, const Image<uint16_t>& dst,
                      Size roi) {
  Map(tables, src, dst, roi);
}

}  // namespace qvp
