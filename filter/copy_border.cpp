// Copies into a larger image, whose border is filled from the source or with a constant.
#include "filter/copy_border.h"

#include "base/check.h"
#include "base/export.h"
#include "core/copy.h"
#include "filter/copy_border_columns.h"
#include "filter/copy_border_narrow.h"

namespace qvp::filter {
namespace {

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
    CopyImage(src, At(dst, -frame.left, y), {frame.dst.width, count});
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
  CopyImage(src, dst, frame.src);
  WriteColumns(border, {-frame.left, 0}, {span, span + frame.right()}, dst, frame);
  return inside;
}

}  // namespace

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

namespace {

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
}  // namespace qvp::filter

using namespace qvp;

// The four forms of a member. `parameter` and `argument` are that of the constant in parentheses, or empty ones.
#define AND(...) __VA_OPT__(, ) __VA_ARGS__
#define COPY_FORM(name, kind, type, layout, Int, Roi, parameter, argument)                                             \
  QvpStatus name(const Qvp##type* pSrc, Int srcStep, Roi srcRoiSize, Qvp##type* pDst, Int dstStep, Roi dstRoiSize,     \
                 Int topBorderHeight, Int leftBorderWidth AND parameter) {                                             \
    return filter::Copy<BorderKind::k##kind>(AsBytes(pSrc, srcStep, Layout::k##layout),                                \
                                             AsBytes(pDst, dstStep, Layout::k##layout),                                \
                                             {srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth} AND argument); \
  }
#define IN_PLACE_FORM(name, kind, type, layout, Int, Roi, parameter, argument)                            \
  QvpStatus name(Qvp##type* pSrcDst, Int srcDstStep, Roi srcRoiSize, Roi dstRoiSize, Int topBorderHeight, \
                 Int leftBorderWidth AND parameter) {                                                     \
    return filter::CopyInPlace<BorderKind::k##kind>(                                                      \
        AsBytes(pSrcDst, srcDstStep, Layout::k##layout),                                                  \
        {srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth} AND argument);                         \
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
