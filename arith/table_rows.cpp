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

// One element after the other: rows that are too short for vectors, and tables that have no room in registers.
template <int kChannels, int kProcessed, class T>
HWY_INLINE void MapElements(const std::array<const T*, 4>& of, ptrdiff_t n, T* to, const T* from) {
  ForEachOf(n / kChannels, [=](ptrdiff_t i) HWY_ATTR {
    for (int c = 0; c < kProcessed; ++c) {
      StoreScalar(to + kChannels * i + c, LoadScalar(of[c] + LoadScalar(from + kChannels * i + c)));
    }
  });
}

template <int kChannels, int kProcessed>
void MapChannelsThrough(const Tables<uint8_t>& tables, const Image<const uint8_t>& src, const Image<uint8_t>& dst,
                        Size roi) {
  using D = hn::ScalableTag<uint8_t>;
  const std::array<const uint8_t*, 4> of = {tables[0], tables[1], tables[2], tables[kProcessed - 1]};
  const std::array<ByteTable, 4> prepared = {ByteTable(of[0]), ByteTable(of[1]), ByteTable(of[2]), ByteTable(of[3])};
  const auto row = [of, prepared](ptrdiff_t n, uint8_t* to, const uint8_t* from) HWY_ATTR {
    if (n < ptrdiff_t{hn::MaxLanes(D())} * kChannels) return MapElements<kChannels, kProcessed>(of, n, to, from);
    const auto look = [&](int c, auto v) HWY_ATTR { return prepared[c](v); };
    MapChannelsOfRow<kChannels, kProcessed>(D(), to, n, look, from);
  };
  ForEachPiece(roi, row, dst, src);
}

template <int kChannels, int kProcessed>
void MapChannelsThrough(const Tables<uint16_t>& tables, const Image<const uint16_t>& src, const Image<uint16_t>& dst,
                        Size roi) {
  const std::array<const uint16_t*, 4> of = {tables[0], tables[1], tables[2], tables[3]};
  Rows(src, dst).ForEach(roi, [of](ptrdiff_t width, const uint16_t* from, uint16_t* to) {
    MapElements<kChannels, kProcessed>(of, width * kChannels, to, from);
  });
}

// One table for all channels.
template <bool kKeepAlpha>
void MapThrough(const uint8_t* table, const Image<const uint8_t>& src, const Image<uint8_t>& dst, Size roi) {
  using D = hn::ScalableTag<uint8_t>;
  const ByteTable prepared(table);
  const auto row = [table, prepared](ptrdiff_t n, uint8_t* to, const uint8_t* from) HWY_ATTR {
    if (n >= ptrdiff_t{hn::MaxLanes(D())}) return MapRow<kKeepAlpha>(D(), to, n, prepared, from);
    MapElements<kKeepAlpha ? 4 : 1, kKeepAlpha ? 3 : 1, uint8_t>({table, table, table, table}, n, to, from);
  };
  ForEachPiece(roi, row, dst, src);
}
void MapThrough(const uint8_t* table, const Image<const uint8_t>& src, const Image<uint8_t>& dst, Size roi) {
  KeepsAlpha(dst.layout) ? MapThrough<true>(table, src, dst, roi) : MapThrough<false>(table, src, dst, roi);
}

void MapThrough(const uint16_t* table, const Image<const uint16_t>& src, const Image<uint16_t>& dst, Size roi) {
  const Tables<uint16_t> tables = {table, table, table, table};
  switch (dst.layout) {
    case Layout::kC1: return MapChannelsThrough<1, 1>(tables, src, dst, roi);
    case Layout::kC3: return MapChannelsThrough<3, 3>(tables, src, dst, roi);
    case Layout::kAC4: return MapChannelsThrough<4, 3>(tables, src, dst, roi);
    default: return MapChannelsThrough<4, 4>(tables, src, dst, roi);
  }
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
