// Rows with so little border that the first and the last vector hold it.
#pragma once

#include <algorithm>

#include "base/store.h"
#include "core/fill.h"
#include "filter/copy_border_frame.h"

namespace qvp::filter {

// Whether `bytes` of border columns, and what of the source follows in their block, are made from one block of it: the
// one beside the edge, or the one a pixel further inside if no byte follows. A mirror folds once.
inline bool IsNearItsSources(const Border& border, ptrdiff_t bytes) {
  if (border.kind != BorderKind::kMirror) return border.kind == BorderKind::kReplicate || bytes == 0;
  const ptrdiff_t reach = bytes + border.pixelBytes;
  return reach <= border.RowBytes() && (reach <= kBlockBytes || bytes == kBlockBytes);
}

// A vector at the beginning or the end of each row, whose first or last block has the border: shuffled from the
// source's row, but for a constant border. D has one or two blocks.
template <class D, bool kIsFirst>
class RowEnd {
 public:
  // `bytes` of the block belong to the border; `row` is the length of the source's row in bytes.
  HWY_INLINE RowEnd(const Border& border, ptrdiff_t bytes, ptrdiff_t row) {
    const Block d;
    const hn::RebindToSigned<Block> s;
    const auto number = [&](ptrdiff_t n) HWY_ATTR { return hn::Set(s, static_cast<int8_t>(n)); };
    const bool isMirror = border.kind == BorderKind::kMirror;
    const int pixel = border.pixelBytes, skipped = isMirror && bytes == kBlockBytes ? pixel : 0;
    from_ = kIsFirst ? skipped : row - kBlockBytes - skipped;
    // Which byte of its pixel each byte is, how far that pixel is outside (0 or less: inside), and how far the one is
    // that stands for it.
    const auto phase = hn::LoadU(d, kPhases[pixel].data() + (kIsFirst ? 0 : kPeriod - kBlockBytes));
    const auto phases = hn::BitCast(s, phase), begins = hn::Sub(hn::Iota(s, int8_t{0}), phases);
    const auto out = kIsFirst ? hn::Sub(number(bytes), begins) : hn::Add(begins, number(bytes - kBlockBytes + pixel));
    const auto inside = hn::Min(out, isMirror ? hn::Neg(out) : hn::Zero(s));
    const auto index = kIsFirst ? hn::Sub(hn::Sub(phases, number(skipped)), inside)
                                : hn::Add(hn::Add(phases, number(kBlockBytes + skipped - pixel)), inside);
    const auto isConstant = hn::And(hn::VecFromMask(s, hn::Gt(out, hn::Zero(s))), number(border.IsConstant() ? -1 : 0));
    const auto value = hn::TableLookupBytes(hn::LoadU(d, border.pixels), phase);
    index_ = WithBlock(hn::BitCast(d, hn::Or(index, isConstant)), hn::Iota(d, uint8_t{0}));
    constant_ = WithBlock(hn::And(value, hn::BitCast(d, isConstant)), hn::Zero(d));
  }

  // The vector for a row of the source. `beside` are the bytes of the other block.
  HWY_INLINE hn::Vec<D> Of(const uint8_t* row, const uint8_t* beside) const {
    const auto bytes = WithBlock(hn::LoadU(Block(), row + from_), hn::LoadU(Block(), beside));
    return hn::Or(hn::TableLookupBytesOr0(bytes, index_), constant_);
  }

 private:
  static constexpr int kPeriod = 48;  // bytes that make whole pixels of every type

  static HWY_INLINE hn::Vec<D> WithBlock(hn::Vec<Block> block, [[maybe_unused]] hn::Vec<Block> other) {
    if constexpr (hn::MaxLanes(D()) == kBlockBytes)
      return block;
    else
      return kIsFirst ? hn::Combine(D(), other, block) : hn::Combine(D(), block, other);
  }

  ptrdiff_t from_;
  hn::Vec<D> index_, constant_;
};

// Rows of a source with at most a block of border on both sides, written from left to right.
template <class D>
class NarrowRows {
 public:
  static bool Serves(const Border& border, const Frame& frame) {
    const ptrdiff_t left = frame.left * border.pixelBytes, right = frame.right() * border.pixelBytes;
    return frame.src.width * border.pixelBytes >= kVector && left <= kBlockBytes && right <= kBlockBytes &&
           IsNearItsSources(border, left) && IsNearItsSources(border, right);
  }

  HWY_INLINE NarrowRows(const Border& border, const Frame& frame)
      : left_(frame.left * border.pixelBytes),
        end_(left_ + frame.src.width * border.pixelBytes),
        bytes_(frame.dst.width * border.pixelBytes),
        lastInside_(std::clamp((bytes_ - 1) / kVector * kVector - kVector, left_, end_ - kVector)),
        first_(border, left_, end_ - left_),
        last_(border, bytes_ - end_, end_ - left_) {}

  // Both images begin with the first pixel of the source.
  HWY_INLINE void Write(BorderKind kind, const ConstBytes& src, const Bytes& dst, Extent source, Extent rows) const {
    const ptrdiff_t step = src.step, toStep = dst.step;
    const uint8_t* const pixels = src.data;
    uint8_t* to = dst.Row(rows.begin) - left_;
    ForEachBand(kind, rows, source, [&](ptrdiff_t, ptrdiff_t from, ptrdiff_t distance, ptrdiff_t count) HWY_ATTR {
      bytes_ < kLong ? WriteBand<false>(pixels + from * step, distance * step, to, toStep, count)
                     : WriteBand<true>(pixels + from * step, distance * step, to, toStep, count);
      to += count * toStep;
    });
  }

 private:
  static constexpr ptrdiff_t kVector = hn::MaxLanes(D());
  static constexpr ptrdiff_t kLong = 8 * kVector;  // bytes of rows that it pays to align stores in

  template <bool kIsLong>
  HWY_NOINLINE void WriteBand(const uint8_t* row, ptrdiff_t step, uint8_t* to, ptrdiff_t toStep, ptrdiff_t rows) const {
    const D d;
    const NarrowRows own = *this;
    for (; rows > 0; --rows, row += step, to += toStep) {
      const uint8_t* const from = row - own.left_;  // where the first byte of the result would be
      hn::StoreU(own.first_.Of(row, from + kBlockBytes), d, to);
      own.WriteInside<kIsLong>(from, to);
      hn::StoreU(own.last_.Of(row, from + own.bytes_ - kVector), d, to + own.bytes_ - kVector);
    }
  }

  // What is between the first vector and the last one.
  template <bool kIsLong>
  HWY_INLINE void WriteInside(const uint8_t* from, uint8_t* to) const {
    const D d;
    const auto copy = [&](ptrdiff_t i) HWY_ATTR { hn::StoreU(hn::LoadU(d, from + i), d, to + i); };
    ptrdiff_t i = kVector, last = lastInside_;
    if constexpr (kIsLong) {
      i = BytesToAlignment(d, to);
      if (i < left_) {
        copy(left_);
        i += kVector;
      }
      last = end_ - kVector;
      for (; i + kVector < last; i += 2 * kVector) {
        copy(i);
        copy(i + kVector);
      }
    }
#pragma GCC unroll 1
    for (; i < last; i += kVector) copy(i);
    copy(last);
  }

  // Of a row of results: where the source begins and ends, how long it is, and where its last vector but one begins if
  // they follow each other from the beginning.
  ptrdiff_t left_, end_, bytes_, lastInside_;
  RowEnd<D, true> first_;
  RowEnd<D, false> last_;
};

// Copies rows with their borders. False, and nothing is written, if these are not narrow, or are short. `dst` begins
// with the first pixel of the source.
template <class D>
HWY_INLINE bool WriteNarrowRows(const Border& border, const ConstBytes& src, const Bytes& dst, const Frame& frame,
                                const Extent& rows) {
  if (!NarrowRows<D>::Serves(border, frame)) return false;
  NarrowRows<D>(border, frame).Write(border.kind, src, dst, {0, frame.src.height}, rows);
  return true;
}

}  // namespace qvp::filter
