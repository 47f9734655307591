// Copies into a larger image, whose border is filled from the source or with a constant.
#include <array>
#include <cstring>
#include <utility>

#include "base/border.h"
#include "base/check.h"
#include "base/export.h"
#include "base/simd.h"
#include "base/store.h"
#include "core/fill.h"

namespace {
using namespace qvp;

// A source and the larger image around it.
struct Frame {
  Size src, dst;
  ptrdiff_t top, left;

  bool IsValid() const {
    const bool hasPixels = src.width >= 1 && src.height >= 1 && dst.width >= 1 && dst.height >= 1;
    return hasPixels && top >= 0 && left >= 0 && dst.width - src.width >= left && dst.height - src.height >= top;
  }
  ptrdiff_t right() const { return dst.width - src.width - left; }
  Extent Rows() const { return {-top, dst.height - top}; }  // of the destination, counted from the source's first
};

// What border columns are made of: the columns of the source, or a single one that holds a constant.
struct Border {
  BorderKind kind;
  const uint8_t* pixels;    // row 0
  ptrdiff_t step, width;    // bytes and pixels
  int pixelBytes, written;  // bytes of a pixel, and those of them that are not kept

  ptrdiff_t RowBytes() const { return width * pixelBytes; }
  bool IsConstant() const { return step == 0; }
  // The first byte of what stands for column x.
  ptrdiff_t SourceOf(ptrdiff_t x) const { return BorderPosition(kind, x, {0, width}) * pixelBytes; }
};

using Block = hn::FixedTag<uint8_t, kBlockBytes>;

// Up to 16 bytes of the border of each row, made by one shuffle of 16 bytes of the source.
struct Piece {
  ptrdiff_t to, from;  // bytes from the first pixel of the source
  int bytes = 0;
  alignas(kBlockBytes) std::array<uint8_t, 2 * kBlockBytes> index{};
};

// The piece that begins with the first byte of pixel `x` and ends before pixel `end`, or sooner: where its sources do
// not lie within 16 bytes.
Piece MakePiece(const Border& border, ptrdiff_t x, ptrdiff_t end) {
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

// The first and the last kBytes of a piece of at least as many and at most twice as many; they may overlap.
template <int kBytes>
HWY_INLINE void PutEnds(hn::Vec<Block> sources, const Piece& piece, uint8_t* to) {
  const hn::FixedTag<uint8_t, kBytes> d;
  const auto put = [&](ptrdiff_t at) HWY_ATTR {
    const auto bytes = hn::TableLookupBytes(sources, hn::LoadU(Block(), piece.index.data() + at));
    hn::StoreU(hn::Vec<decltype(d)>{bytes.raw}, d, to + at);
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

void PutPieceBesideAlpha(const Piece& piece, const Border& border, const uint8_t* row, uint8_t* to) {
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

// Calls write(y, from, distance, count) for rows [y, y + count) that stand for rows `from`, `from` + distance, ...
template <class Write>
void ForEachBand(BorderKind kind, Extent rows, Extent source, const Write& write) {
  const auto rowFor = [&](ptrdiff_t y) { return BorderPosition(kind, y, source); };
  for (ptrdiff_t y = rows.begin, count = 1; y < rows.end; y += count, count = 1) {
    const ptrdiff_t from = rowFor(y), distance = y + 1 < rows.end ? rowFor(y + 1) - from : 0;
    if (source.Contains(y)) count = std::min(rows.end, source.end) - y;
    while (y + count < rows.end && rowFor(y + count) == from + count * distance) ++count;
    write(y, from, distance, count);
  }
}

// Whether `bytes` of border columns, and what of the source follows in their block, are made from one block of it: the
// one beside the edge, or the one a pixel further inside if no byte follows. A mirror folds once.
bool IsNearItsSources(const Border& border, ptrdiff_t bytes) {
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
bool WriteNarrowRows(const Border& border, const ConstBytes& src, const Bytes& dst, const Frame& frame,
                     const Extent& rows) {
  if (!NarrowRows<D>::Serves(border, frame)) return false;
  NarrowRows<D>(border, frame).Write(border.kind, src, dst, {0, frame.src.height}, rows);
  return true;
}

// Three channels of four, or else all bytes. The sizes hold pixels, so no check of the callee's can fail.
void CopyPixels(const ConstBytes& src, const Bytes& dst, Size size) {
  const QvpiSizeL roi{size.width, size.height};
  if (!KeepsAlpha(dst.layout)) {
    qvpiCopy_8u_C1R_L(src.data, src.step, dst.data, dst.step, {dst.RowBytes(size.width), size.height});
  } else if (dst.elementBytes == sizeof(Qvp8u)) {
    qvpiCopy_8u_AC4R_L(src.data, src.step, dst.data, dst.step, roi);
  } else if (dst.elementBytes == sizeof(Qvp16u)) {
    qvpiCopy_16u_AC4R_L(reinterpret_cast<const Qvp16u*>(src.data), src.step, reinterpret_cast<Qvp16u*>(dst.data),
                        dst.step, roi);
  } else {
    qvpiCopy_32s_AC4R_L(reinterpret_cast<const Qvp32s*>(src.data), src.step, reinterpret_cast<Qvp32s*>(dst.data),
                        dst.step, roi);
  }
}

template <class T>
Image<T> At(const Image<T>& image, ptrdiff_t x, ptrdiff_t y) {
  return {image.Row(y) + x * image.PixelBytes(), image.step, image.layout, image.elementBytes};
}
ConstBytes Const(const Bytes& image) { return {image.data, image.step, image.layout, image.elementBytes}; }

void FillRows(const uint8_t* value, const Bytes& dst, Extent rows, const Frame& frame) {
  if (rows.begin < rows.end) {
    FillPixels(value, At(dst, -frame.left, rows.begin), {frame.dst.width, rows.end - rows.begin});
  }
}

// Rows from those of the source that have their border columns already.
void CopyRows(BorderKind kind, const Bytes& dst, Extent rows, const Frame& frame) {
  ForEachBand(kind, rows, {0, frame.src.height}, [&](ptrdiff_t y, ptrdiff_t from, ptrdiff_t distance, ptrdiff_t count) {
    ConstBytes src = Const(At(dst, -frame.left, from));
    src.step *= distance;
    CopyPixels(src, At(dst, -frame.left, y), {frame.dst.width, count});
  });
}

// Writes border columns to the rows of the source.
void WriteColumns(const Border& border, Extent left, Extent right, const Bytes& dst, const Frame& frame) {
  if (left.begin == left.end && right.begin == right.end) return;
  Columns columns(border, left, right);
  while (columns.Next()) columns.Write(dst, frame.src.height);
}

// Copies the rows of the source with the border columns beside them. Those above and below, if they are sources as
// well, follow where it is as easy. Returns which rows those are. Only large images have pixels copied apart from their
// columns, past the cache.
Extent CopyWithColumns(const Border& border, const ConstBytes& src, const Bytes& dst, const Frame& frame) {
  constexpr int64_t kLargeBytes = 16 << 20;
  const bool isLarge = static_cast<int64_t>(dst.RowBytes(frame.dst.width)) * frame.dst.height > kLargeBytes;
  const ptrdiff_t most = kBlockBytes / border.pixelBytes, left = std::min(frame.left, most),
                  right = std::min(frame.right(), most), span = frame.src.width;
  const Frame near{frame.src, {left + span + right, frame.dst.height}, frame.top, left};
  const bool isAll = !border.IsConstant() && left == frame.left && right == frame.right();
  const Extent inside{0, frame.src.height}, rows = isAll ? frame.Rows() : inside;
  if (!isLarge && !KeepsAlpha(dst.layout) &&
      (WriteNarrowRows<hn::CappedTag<uint8_t, 2 * kBlockBytes>>(border, src, dst, near, rows) ||
       WriteNarrowRows<Block>(border, src, dst, near, rows))) {
    WriteColumns(border, {-frame.left, -left}, {span + right, span + frame.right()}, dst, frame);
    return rows;
  }
  CopyPixels(src, dst, frame.src);
  WriteColumns(border, {-frame.left, 0}, {span, span + frame.right()}, dst, frame);
  return inside;
}

// `dst` begins with the first pixel of the source, which is there already where the two are the same memory. `value` is
// the pixel of a constant border.
void WriteFrame(BorderKind kind, const ConstBytes& src, const Bytes& dst, const Frame& frame, const uint8_t* value) {
  const int pixelBytes = dst.PixelBytes(), written = ProcessedChannels(dst.layout) * dst.elementBytes;
  const ptrdiff_t width = frame.src.width;
  const bool isConst = kind == BorderKind::kConst;  // all border columns are replicas of one
  const Border border = isConst ? Border{BorderKind::kReplicate, value, 0, 1, pixelBytes, written}
                                : Border{kind, src.data, src.step, width, pixelBytes, written};
  Extent done{0, frame.src.height};
  if (src.data == dst.data) {
    WriteColumns(border, {-frame.left, 0}, {width, width + frame.right()}, dst, frame);
  } else {
    done = CopyWithColumns(border, src, dst, frame);
  }
  for (const Extent rest : {Extent{-frame.top, done.begin}, Extent{done.end, frame.Rows().end}}) {
    isConst ? FillRows(value, dst, rest, frame) : CopyRows(kind, dst, rest, frame);
  }
}

QvpStatus CheckFrame(const ConstBytes& src, const Bytes& dst, const Frame& frame, const void* value) {
  if (const QvpStatus failed = Validate<kPointers, kSteps>(frame.src, {src, dst}, {value})) return failed;
  return frame.IsValid() ? qvpStatusNoError : qvpStatusSize;
}

// `value` has an element for each channel; kinds without a constant have any.
constexpr uint8_t kNoValue[sizeof(Qvp32s) * 4] = {};

template <BorderKind kKind>
QvpStatus CopyInPlace(const Bytes& image, const Frame& frame, const void* value = kNoValue) {
  const ConstBytes src = Const(image);
  if (const QvpStatus failed = CheckFrame(src, image, frame, value)) return failed;
  uint8_t pixel[kBlockBytes] = {};
  std::memcpy(pixel, value, ProcessedChannels(image.layout) * image.elementBytes);
  WriteFrame(kKind, src, image, frame, pixel);
  return qvpStatusNoError;
}

template <BorderKind kKind>
QvpStatus Copy(const ConstBytes& src, const Bytes& dst, const Frame& frame, const void* value = kNoValue) {
  // One pointer for both asks for the form in place, before the checks or, where it is wrapped, after them.
  constexpr bool kTurnsInPlace = kKind != BorderKind::kConst;
  if (kTurnsInPlace && src.data == dst.data && kKind != BorderKind::kWrap) return CopyInPlace<kKind>(dst, frame);
  if (const QvpStatus failed = CheckFrame(src, dst, frame, value)) return failed;
  if (kTurnsInPlace && src.data == dst.data) return CopyInPlace<kKind>(dst, frame);
  uint8_t pixel[kBlockBytes] = {};
  std::memcpy(pixel, value, ProcessedChannels(dst.layout) * dst.elementBytes);
  WriteFrame(kKind, src, At(dst, frame.left, frame.top), frame, pixel);
  return qvpStatusNoError;
}

}  // namespace

// The four forms of a member. `parameter` and `argument` are that of the constant in parentheses, or empty ones.
#define AND(...) __VA_OPT__(, ) __VA_ARGS__
#define COPY_FORM(name, kind, type, layout, Int, Roi, parameter, argument)                                         \
  QvpStatus name(const Qvp##type* pSrc, Int srcStep, Roi srcRoiSize, Qvp##type* pDst, Int dstStep, Roi dstRoiSize, \
                 Int topBorderHeight, Int leftBorderWidth AND parameter) {                                         \
    return Copy<BorderKind::k##kind>(AsBytes(pSrc, srcStep, Layout::k##layout),                                    \
                                     AsBytes(pDst, dstStep, Layout::k##layout),                                    \
                                     {srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth} AND argument);     \
  }
#define IN_PLACE_FORM(name, kind, type, layout, Int, Roi, parameter, argument)                                        \
  QvpStatus name(Qvp##type* pSrcDst, Int srcDstStep, Roi srcRoiSize, Roi dstRoiSize, Int topBorderHeight,             \
                 Int leftBorderWidth AND parameter) {                                                                 \
    return CopyInPlace<BorderKind::k##kind>(AsBytes(pSrcDst, srcDstStep, Layout::k##layout),                          \
                                            {srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth} AND argument); \
  }
#define COPY_BORDER(kind, type, layout, parameter, argument)                                                          \
  COPY_FORM(qvpiCopy##kind##Border_##type##_##layout##R, kind, type, layout, int, QvpiSize, parameter, argument)      \
  COPY_FORM(qvpiCopy##kind##Border_##type##_##layout##R_L, kind, type, layout, QvpSizeL, QvpiSizeL, parameter,        \
            argument)                                                                                                 \
  IN_PLACE_FORM(qvpiCopy##kind##Border_##type##_##layout##IR, kind, type, layout, int, QvpiSize, parameter, argument) \
  IN_PLACE_FORM(qvpiCopy##kind##Border_##type##_##layout##IR_L, kind, type, layout, QvpSizeL, QvpiSizeL, parameter,   \
                argument)

#define CONST_BORDER(type)                                          \
  COPY_BORDER(Const, type, C1, (Qvp##type value), (&value))         \
  COPY_BORDER(Const, type, C3, (const Qvp##type value[3]), (value)) \
  COPY_BORDER(Const, type, C4, (const Qvp##type value[4]), (value)) \
  COPY_BORDER(Const, type, AC4, (const Qvp##type value[3]), (value))
#define REPLICATE_BORDER(type)             \
  COPY_BORDER(Replicate, type, C1, (), ()) \
  COPY_BORDER(Replicate, type, C3, (), ()) \
  COPY_BORDER(Replicate, type, C4, (), ()) \
  COPY_BORDER(Replicate, type, AC4, (), ())
#define MIRROR_BORDER(type)             \
  COPY_BORDER(Mirror, type, C1, (), ()) \
  COPY_BORDER(Mirror, type, C3, (), ()) \
  COPY_BORDER(Mirror, type, C4, (), ())

QVP_EACH_MOVED_TYPE(CONST_BORDER)
QVP_EACH_MOVED_TYPE(REPLICATE_BORDER)
QVP_EACH_MOVED_TYPE(MIRROR_BORDER)
COPY_BORDER(Wrap, 32s, C1, (), ())
COPY_BORDER(Wrap, 32f, C1, (), ())
