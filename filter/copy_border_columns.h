// Border columns of any width, made by shuffles that are the same for all rows.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "filter/copy_border_frame.h"

namespace qvp::filter {

// Up to 16 bytes of the border of each row, made by one shuffle of 16 bytes of the source.
struct Piece {
  ptrdiff_t to, from;  // bytes from the first pixel of the source
  int bytes = 0;
  alignas(kBlockBytes) std::array<uint8_t, 2 * kBlockBytes> index{};
};

// The piece that begins with the first byte of pixel `x` and ends before pixel `end`, or sooner: where its sources do
// not lie within 16 bytes.
inline Piece MakePiece(const Border& border, ptrdiff_t x, ptrdiff_t end) {
  Piece piece{x * border.pixelBytes, PTRDIFF_MAX};
  ptrdiff_t source[kBlockBytes], last = 0;
  for (; x < end; ++x) {
    const ptrdiff_t first = border.SourceOf(x);
    const ptrdiff_t low = std::min(piece.from, first), high = std::max(last, first + border.pixelBytes);
    if (piece.bytes + border.pixelBytes > kBlockBytes || high - low > kBlockBytes) break;
    for (int i = 0; i < border.pixelBytes; ++i) source[piece.bytes++] = first + i;
    piece.from = low;
    last = high;
  }
  piece.from = std::min(piece.from, std::max<ptrdiff_t>(border.RowBytes() - kBlockBytes, 0));
  for (int i = 0; i < piece.bytes; ++i) piece.index[i] = static_cast<uint8_t>(source[i] - piece.from);
  return piece;
}

HWY_INLINE hn::Vec<Block> LoadSources(const uint8_t* from, ptrdiff_t readable) {
  if (HWY_LIKELY(readable >= kBlockBytes)) return hn::LoadU(Block(), from);
  alignas(kBlockBytes) uint8_t staged[kBlockBytes] = {};
  std::memcpy(staged, from, readable);
  return hn::Load(Block(), staged);
}

// The first kBytes of a vector.
template <int kBytes, class V>
HWY_INLINE auto Lowest(V v) {
  if constexpr (hn::MaxLanes(hn::DFromV<V>()) == kBytes)
    return v;
  else
    return Lowest<kBytes>(hn::LowerHalf(v));
}

// The first and the last kBytes of a piece of at least as many and at most twice as many; they may overlap.
template <int kBytes>
HWY_INLINE void PutEnds(hn::Vec<Block> sources, const Piece& piece, uint8_t* to) {
  const auto put = [&](ptrdiff_t at) HWY_ATTR {
    const auto bytes = hn::TableLookupBytes(sources, hn::LoadU(Block(), piece.index.data() + at));
    hn::StoreU(Lowest<kBytes>(bytes), hn::FixedTag<uint8_t, kBytes>(), to + at);
  };
  put(0);
  if (piece.bytes > kBytes) put(piece.bytes - kBytes);
}

// A piece of one row. `row` is that of the source, `to` its first pixel in the destination.
HWY_INLINE void PutPiece(const Piece& piece, const Border& border, const uint8_t* row, uint8_t* to) {
  const auto sources = LoadSources(row + piece.from, border.RowBytes() - piece.from);
  to += piece.to;
  if (piece.bytes >= 8) return PutEnds<8>(sources, piece, to);
  if (piece.bytes >= 4) return PutEnds<4>(sources, piece, to);
  piece.bytes >= 2 ? PutEnds<2>(sources, piece, to) : PutEnds<1>(sources, piece, to);
}

inline void PutPieceBesideAlpha(const Piece& piece, const Border& border, const uint8_t* row, uint8_t* to) {
  for (int i = 0; i < piece.bytes; i += border.pixelBytes) {
    std::memcpy(to + piece.to + i, row + piece.from + piece.index[i], border.written);
  }
}

// Border columns of a band of rows, some pieces at a time: made once for all rows.
class Columns {
 public:
  Columns(const Border& border, Extent left, Extent right)
      : border_(border), x_(left.begin), end_(left.end), right_(right) {}

  // Makes the next pieces. False when there are none left.
  bool Next() {
    for (count_ = 0; count_ < kMost && HasMore(); ++count_) {
      pieces_[count_] = MakePiece(border_, x_, end_);
      x_ += pieces_[count_].bytes / border_.pixelBytes;
    }
    return count_ > 0;
  }

  // Writes them to each row.
  void Write(const Bytes& dst, ptrdiff_t rows) const {
    if (border_.written < border_.pixelBytes) return WriteBesideAlpha(dst, rows);
    const Border border = border_;
    const uint8_t* row = border.pixels;
    uint8_t* to = dst.data;
    for (ptrdiff_t y = 0; y < rows; ++y, row += border.step, to += dst.step) {
      for (int i = 0; i < count_; ++i) PutPiece(pieces_[i], border, row, to);
    }
  }

 private:
  static constexpr int kMost = 8;

  bool HasMore() {
    if (x_ == end_) {
      x_ = std::exchange(right_.begin, right_.end);
      end_ = right_.end;
    }
    return x_ < end_;
  }

  void WriteBesideAlpha(const Bytes& dst, ptrdiff_t rows) const {
    for (ptrdiff_t y = 0; y < rows; ++y) {
      const uint8_t* row = border_.pixels + y * border_.step;
      for (int i = 0; i < count_; ++i) PutPieceBesideAlpha(pieces_[i], border_, row, dst.Row(y));
    }
  }

  const Border& border_;
  ptrdiff_t x_, end_;
  Extent right_;
  int count_ = 0;
  std::array<Piece, kMost> pieces_;
};

}  // namespace qvp::filter
