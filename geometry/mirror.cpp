// Mirrors: rows, columns or both reversed, or rows and columns exchanged.
#include "geometry/mirror.h"

#include <algorithm>
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/store.h"
#include "core/channels.h"
#include "core/copy.h"
#include "geometry/reverse_rows.h"
#include "geometry/transpose.h"

namespace qvp::mirror {
namespace {

// The pixels of every row from the last to the first. The images must not overlap.
void ReverseRows(const ConstBytes& src, const Bytes& dst, Size roi) {
  const int pixelBytes = dst.PixelBytes();
  const Reversal& reversal = kReversals[pixelBytes];
  const ptrdiff_t n = dst.RowBytes(roi.width);
  const ReversedRows rows{src.data + n, src.step, dst.data, dst.step, n, roi.height};
  if (n < kBlockBytes) {
    ReversePixels(rows, pixelBytes, ProcessedChannels(dst.layout) * dst.elementBytes);
  } else if (reversal.used != kBlockBytes) {
    ReverseTriples(Wide(), reversal, rows);
  } else if (n < static_cast<ptrdiff_t>(hn::MaxLanes(Wide()))) {
    (KeepsAlpha(dst.layout) ? ReverseVectors<true, Block> : ReverseVectors<false, Block>)(Block(), reversal, rows);
  } else {
    (KeepsAlpha(dst.layout) ? ReverseVectors<true, Wide> : ReverseVectors<false, Wide>)(Wide(), reversal, rows);
  }
}

ConstBytes Constant(const Bytes& image) { return {image.data, image.step, image.layout, image.elementBytes}; }

void CopyRows(const ConstBytes& src, const Bytes& dst, Size roi, Store store) {
  if (KeepsAlpha(dst.layout)) return MoveChannels(src, dst, roi, {{0, 1, 2, kKeepChannel}});
  CopyPixels(src, dst, roi, store);
}

// Swaps two pieces of rows, one of them being held back in a buffer; both are reversed if asked.
class Swap {
 public:
  static constexpr ptrdiff_t kMostPixels = 256;

  Swap(const Bytes& image, bool reverses)
      : image_(image),
        buffer_{pixels_, 0, image.layout == Layout::kAC4 ? Layout::kC4 : image.layout, image.elementBytes},
        reverses_(reverses) {}

  void operator()(uint8_t* a, uint8_t* b, ptrdiff_t pixels) const {
    const ptrdiff_t n = pixels * image_.PixelBytes();
    std::memcpy(pixels_, a, n);
    Put(b, a, n);
    Put(pixels_, b, n);
  }

 private:
  void Put(const uint8_t* from, uint8_t* to, ptrdiff_t n) const {
    const ConstBytes src{from, n, buffer_.layout, image_.elementBytes};
    const Bytes dst{to, n, image_.layout, image_.elementBytes};
    const Size row(n / image_.PixelBytes(), 1);
    reverses_ ? ReverseRows(src, dst, row) : CopyRows(src, dst, row, Store::kOrdinary);
  }

  alignas(kStreamedLine) mutable uint8_t pixels_[kMostPixels * 16];
  const Bytes& image_;
  Bytes buffer_;
  bool reverses_;
};

void ReverseRowInPlace(const Swap& swap, const Bytes& image, uint8_t* row, ptrdiff_t width) {
  const int bytes = image.PixelBytes();
  for (ptrdiff_t left = 0, half = width / 2; left < half; left += Swap::kMostPixels) {
    const ptrdiff_t n = std::min(Swap::kMostPixels, half - left);
    swap(row + left * bytes, row + (width - left - n) * bytes, n);
  }
}

void ReverseRowsInPlace(const Bytes& image, Size roi) {
  const Swap swap(image, true);
  for (ptrdiff_t y = 0; y < roi.height; ++y) ReverseRowInPlace(swap, image, image.Row(y), roi.width);
}

// Swaps row y and row H - 1 - y, with or without a reversal of both.
void SwapRows(const Bytes& image, Size roi, bool reverses) {
  const Swap swap(image, reverses);
  const int bytes = image.PixelBytes();
  for (ptrdiff_t y = 0; y < roi.height / 2; ++y) {
    uint8_t *const upper = image.Row(y), *const lower = image.Row(roi.height - 1 - y);
    for (ptrdiff_t x = 0; x < roi.width; x += Swap::kMostPixels) {
      const ptrdiff_t n = std::min(Swap::kMostPixels, roi.width - x);
      swap(upper + x * bytes, lower + (reverses ? roi.width - x - n : x) * bytes, n);
    }
  }
  if (reverses && roi.height % 2 != 0) ReverseRowInPlace(swap, image, image.Row(roi.height / 2), roi.width);
}

bool IsDiagonal(QvpiAxis flip) { return flip == qvpAxis45 || flip == qvpAxis135; }

QvpStatus MirrorInPlace(const Bytes& image, Size roi, QvpiAxis flip) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {image})) return failed;
  if (IsDiagonal(flip) && roi.width != roi.height) return qvpStatusSize;
  switch (flip) {
    case qvpAxisHorizontal: SwapRows(image, roi, false); break;
    case qvpAxisVertical: ReverseRowsInPlace(image, roi); break;
    case qvpAxisBoth: SwapRows(image, roi, true); break;
    case qvpAxis45: transpose::TransposeInPlace(image, roi.width); break;
    case qvpAxis135:
      SwapRows(image, roi, true);
      transpose::TransposeInPlace(image, roi.width);
      break;
    default: return qvpStatusMirrorFlip;
  }
  return qvpStatusNoError;
}

// From its first to behind its last byte.
struct ByteRange {
  uintptr_t begin, end;

  ByteRange(const ConstBytes& image, Size size)
      : begin(reinterpret_cast<uintptr_t>(image.data)),
        end(reinterpret_cast<uintptr_t>(image.Row(size.height - 1)) + image.RowBytes(size.width)) {}
};

// The same image, from its lowest row in memory on.
ConstBytes FromLowestRow(const ConstBytes& image, Size size) {
  return image.step < 0 ? Upended(image, size.height) : image;
}

}  // namespace

// With equal steps the columns of the images are compared, row by row of the frame that both lie in.
bool Overlap(const ConstBytes& image, Size aSize, const ConstBytes& other, Size bSize) {
  const ConstBytes a = FromLowestRow(image, aSize), b = FromLowestRow(other, bSize);
  const ByteRange first(a, aSize), second(b, bSize);
  if (first.end <= second.begin || second.end <= first.begin) return false;
  if (a.step != b.step) return true;
  const bool isAFirst = first.begin <= second.begin;
  const uintptr_t distance = isAFirst ? second.begin - first.begin : first.begin - second.begin;
  const ptrdiff_t earlier = isAFirst ? a.RowBytes(aSize.width) : b.RowBytes(bSize.width);
  const ptrdiff_t later = isAFirst ? b.RowBytes(bSize.width) : a.RowBytes(aSize.width);
  const ptrdiff_t column = static_cast<ptrdiff_t>(distance % static_cast<uintptr_t>(a.step));
  return column < earlier || column + later > a.step;
}

void ReverseBothAxes(const ConstBytes& src, const Bytes& dst, Size roi) {
  const bool isInPlace = src.data == dst.data && src.step == dst.step;
  isInPlace ? SwapRows(dst, roi, true) : ReverseRows(Upended(src, roi.height), dst, roi);
}

namespace {

QvpStatus MirrorDiagonal(const ConstBytes& src, const Bytes& dst, Size roi, QvpiAxis flip) {
  if (const QvpStatus failed = Validate<kPointers, kSteps, kSize>(roi, {src, dst})) return failed;
  const Size turned(roi.height, roi.width);
  if (Overlap(src, roi, Constant(dst), turned)) return qvpStatusNotSupportedMode;
  if (flip == qvpAxis45) {
    transpose::TransposePixels(src, dst, roi);
  } else {
    transpose::TransposePixels(Upended(src, roi.height), Upended(dst, turned.height), roi);
  }
  return qvpStatusNoError;
}

// Images of this many pixels are not read back soon: their rows bypass the caches.
constexpr int64_t kStreamedPixels = 2097153;

QvpStatus Mirror(const ConstBytes& src, const Bytes& dst, Size roi, QvpiAxis flip) {
  if (IsDiagonal(flip)) return MirrorDiagonal(src, dst, roi, flip);
  if (src.data == dst.data && src.step == dst.step) return MirrorInPlace(dst, roi, flip);
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  const bool isLarge = static_cast<int64_t>(roi.width) * roi.height >= kStreamedPixels;
  switch (flip) {
    case qvpAxisHorizontal:
      CopyRows(Upended(src, roi.height), dst, roi, isLarge ? Store::kStreaming : Store::kOrdinary);
      break;
    case qvpAxisVertical: ReverseRows(src, dst, roi); break;
    case qvpAxisBoth: ReverseBothAxes(src, dst, roi); break;
    default: return qvpStatusMirrorFlip;
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::mirror

using namespace qvp;
using namespace qvp::mirror;

#define MIRROR(type, layout)                                                                                        \
  QVP_MAP(AsBytes, qvpiMirror_##type##_##layout##R, type, layout, type, layout, int, QvpiSize, Mirror,              \
          (QvpiAxis flip), (flip))                                                                                  \
  QvpStatus qvpiMirror_##type##_##layout##IR(Qvp##type* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpiAxis flip) { \
    return MirrorInPlace(AsBytes(pSrcDst, srcDstStep, Layout::k##layout), roiSize, flip);                           \
  }
#define MIRROR_LAYOUTS(type) QVP_EACH_LAYOUT(MIRROR, type)

QVP_EACH_MOVED_TYPE(MIRROR_LAYOUTS)
