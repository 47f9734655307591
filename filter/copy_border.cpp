// Copies into a larger image, whose border is filled from the source or with a constant.
#include <array>
#include <cstring>

#include "base/border.h"
#include "base/check.h"
#include "base/export.h"
#include "base/simd.h"

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
  ptrdiff_t bottom() const { return dst.height - src.height - top; }
};

// What border columns are made of: the columns of the source, or a single one that holds a constant.
struct Border {
  BorderKind kind;
  const uint8_t* pixels;    // row 0
  ptrdiff_t step, width;    // bytes and pixels
  ptrdiff_t span;           // pixels between the left border and the right one
  int pixelBytes, written;  // bytes of a pixel, and those of them that are not kept

  ptrdiff_t RowBytes() const { return width * pixelBytes; }
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
    const ptrdiff_t first = BorderPosition(border.kind, x, {0, border.width}) * border.pixelBytes;
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

// Bytes [0, n) of a row, whose last vector may overlap the one before it.
HWY_INLINE void CopyBytes(const uint8_t* from, uint8_t* to, ptrdiff_t n) {
  const hn::ScalableTag<uint8_t> d;
  constexpr ptrdiff_t kVector = hn::MaxLanes(d);
  if (n < kVector) return static_cast<void>(std::memcpy(to, from, n));
  for (ptrdiff_t i = 0; i < n - kVector; i += kVector) hn::StoreU(hn::LoadU(d, from + i), d, to + i);
  hn::StoreU(hn::LoadU(d, from + n - kVector), d, to + n - kVector);
}

// The border columns of a band of rows, left and right, some pieces at a time: made once for all rows.
class Columns {
 public:
  Columns(const Border& border, ptrdiff_t left, ptrdiff_t right) : border_(border), right_(right), x_(-left), end_(0) {
    if (left == 0) GoRight();
  }

  // Makes the next pieces. False when there are none left.
  bool Next() {
    for (count_ = 0; count_ < kMost && x_ < end_; ++count_) {
      pieces_[count_] = MakePiece(border_, x_, end_);
      x_ += pieces_[count_].bytes / border_.pixelBytes;
      if (x_ == 0) GoRight();
    }
    return count_ > 0;
  }

  // Writes them to each row, after `copied` bytes of the source's own pixels.
  void Write(const Bytes& dst, ptrdiff_t rows, const uint8_t* src, ptrdiff_t srcStep, ptrdiff_t copied) const {
    if (border_.written < border_.pixelBytes) return WriteBesideAlpha(dst, rows);
    const Border border = border_;
    const uint8_t* row = border.pixels;
    uint8_t* to = dst.data;
    for (ptrdiff_t y = 0; y < rows; ++y, row += border.step, to += dst.step, src += srcStep) {
      if (copied > 0) CopyBytes(src, to, copied);
      for (int i = 0; i < count_; ++i) PutPiece(pieces_[i], border, row, to);
    }
  }

 private:
  static constexpr int kMost = 8;

  void WriteBesideAlpha(const Bytes& dst, ptrdiff_t rows) const {
    for (ptrdiff_t y = 0; y < rows; ++y) {
      const uint8_t* row = border_.pixels + y * border_.step;
      for (int i = 0; i < count_; ++i) PutPieceBesideAlpha(pieces_[i], border_, row, dst.Row(y));
    }
  }

  void GoRight() {
    x_ = border_.span;
    end_ = x_ + right_;
  }

  const Border& border_;
  ptrdiff_t right_, x_, end_;
  int count_ = 0;
  std::array<Piece, kMost> pieces_;
};

// Sixteen bytes at one end of each row: the border and what of the source is beside it, by one shuffle.
struct RowEnd {
  ptrdiff_t to, from;  // bytes from the first pixel of the source
  alignas(kBlockBytes) std::array<uint8_t, kBlockBytes> index;

  HWY_INLINE hn::Vec<Block> Of(const uint8_t* row) const {
    return hn::TableLookupBytes(hn::LoadU(Block(), row + from), hn::Load(Block(), index.data()));
  }
};

// The end that begins `skipped` bytes into pixel `x`. False if its sources do not lie within 16 bytes.
bool MakeRowEnd(const Border& border, ptrdiff_t x, int skipped, RowEnd& end) {
  ptrdiff_t source[kBlockBytes], low = border.RowBytes() - kBlockBytes, high = 0;
  end.to = x * border.pixelBytes + skipped;
  for (int i = -skipped; i < kBlockBytes; ++x) {
    ptrdiff_t from = BorderPosition(border.kind, x, {0, border.width}) * border.pixelBytes;
    for (int k = 0; k < border.pixelBytes && i < kBlockBytes; ++k, ++i, ++from) {
      if (i < 0) continue;
      source[i] = from;
      low = std::min(low, from);
      high = std::max(high, from);
    }
  }
  end.from = low;
  for (int i = 0; i < kBlockBytes; ++i) end.index[i] = static_cast<uint8_t>(source[i] - low);
  return high - low < kBlockBytes;
}

// Rows whose borders are narrow and near to their sources: a copy and two stores each. False, and nothing is written,
// if these are not.
bool CopyWithEnds(const Border& border, const Frame& frame, const Bytes& dst) {
  const int pixels = (kBlockBytes + border.pixelBytes - 1) / border.pixelBytes;
  const ptrdiff_t widest = std::max(frame.left, frame.right());
  if (border.RowBytes() < kBlockBytes || widest > kBlockBytes / border.pixelBytes) return false;
  RowEnd left, right;
  if (!MakeRowEnd(border, -frame.left, 0, left) ||
      !MakeRowEnd(border, border.span + frame.right() - pixels, pixels * border.pixelBytes - kBlockBytes, right)) {
    return false;
  }
  const ptrdiff_t bytes = border.RowBytes(), step = border.step, dstStep = dst.step;
  const uint8_t* row = border.pixels;
  uint8_t* to = dst.data;
  for (ptrdiff_t y = 0; y < frame.src.height; ++y, row += step, to += dstStep) {
    CopyBytes(row, to, bytes);
    hn::StoreU(left.Of(row), Block(), to + left.to);
    hn::StoreU(right.Of(row), Block(), to + right.to);
  }
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

// One row of the pixel that it begins with: what is filled already is copied behind itself, doubling it.
void SpreadFirstPixel(const Bytes& row, ptrdiff_t width) {
  for (ptrdiff_t filled = 1; filled < width; filled *= 2) {
    CopyPixels(Const(row), At(row, filled, 0), {std::min(filled, width - filled), 1});
  }
}

// Rows [begin, end) of the destination, whose column 0 is that of the source, in one constant.
void FillRows(const ConstBytes& value, const Bytes& dst, ptrdiff_t begin, ptrdiff_t end, const Frame& frame) {
  if (begin == end) return;
  const Bytes first = At(dst, -frame.left, begin);
  CopyPixels(value, first, {1, 1});
  SpreadFirstPixel(first, frame.dst.width);
  ConstBytes again = Const(first);
  again.step = 0;
  if (end - begin > 1) CopyPixels(again, At(first, 0, 1), {frame.dst.width, end - begin - 1});
}

// Rows [begin, end) from rows of the source that have their border columns already, as many at a time as lie at one
// distance from each other.
void CopyRows(BorderKind kind, const Bytes& dst, ptrdiff_t begin, ptrdiff_t end, const Frame& frame) {
  const auto rowFor = [&](ptrdiff_t y) { return BorderPosition(kind, y, {0, frame.src.height}); };
  while (begin < end) {
    const ptrdiff_t from = rowFor(begin), distance = begin + 1 < end ? rowFor(begin + 1) - from : 0;
    ptrdiff_t rows = 1;
    while (begin + rows < end && rowFor(begin + rows) == from + rows * distance) ++rows;
    ConstBytes src = Const(At(dst, -frame.left, from));
    src.step *= distance;
    CopyPixels(src, At(dst, -frame.left, begin), {frame.dst.width, rows});
    begin += rows;
  }
}

// The source and its border columns. `dst` begins with the first pixel of the source, which is there already where the
// two are the same memory. Only large images have pixels copied apart from their columns, past the cache.
void WriteSourceRows(const ConstBytes& src, const Border& border, const Bytes& dst, const Frame& frame) {
  constexpr int64_t kLargeBytes = 16 << 20;
  const bool isLarge = static_cast<int64_t>(dst.RowBytes(frame.dst.width)) * frame.dst.height > kLargeBytes;
  const bool isCopied = src.data != dst.data, isApart = isLarge || KeepsAlpha(dst.layout);
  if (isCopied && isApart) CopyPixels(src, dst, frame.src);
  if (isCopied && !isApart && border.pixels == src.data && CopyWithEnds(border, frame, dst)) return;
  ptrdiff_t copied = isCopied && !isApart ? dst.RowBytes(frame.src.width) : 0;
  Columns columns(border, frame.left, frame.right());
  while (columns.Next() || copied > 0) {
    columns.Write(dst, frame.src.height, src.data, src.step, copied);
    copied = 0;
  }
}

// `dst` begins with the first pixel of the source. `value` is the pixel of a constant border.
void WriteFrame(BorderKind kind, const ConstBytes& src, const Bytes& dst, const Frame& frame, const uint8_t* value) {
  const ptrdiff_t top = -frame.top, height = frame.src.height, bottom = height + frame.bottom();
  const int pixelBytes = dst.PixelBytes(), written = ProcessedChannels(dst.layout) * dst.elementBytes;
  if (kind != BorderKind::kConst) {
    WriteSourceRows(src, {kind, src.data, src.step, frame.src.width, frame.src.width, pixelBytes, written}, dst, frame);
    CopyRows(kind, dst, top, 0, frame);
    return CopyRows(kind, dst, height, bottom, frame);
  }
  // All of the border columns are replicas of one column.
  WriteSourceRows(src, {BorderKind::kReplicate, value, 0, 1, frame.src.width, pixelBytes, written}, dst, frame);
  const ConstBytes constant{value, 0, dst.layout, dst.elementBytes};
  FillRows(constant, dst, top, 0, frame);
  FillRows(constant, dst, height, bottom, frame);
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
