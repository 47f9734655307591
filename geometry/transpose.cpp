// Transposition of images, in place and out of place.
#include "geometry/transpose.h"

#include <algorithm>
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/store.h"
#include "core/channels.h"
#include "core/copy.h"
#include "geometry/transpose_tiles.h"

namespace qvp::transpose {
namespace {

using Wide = hn::ScalableTag<uint8_t>;
using Block = hn::Full128<uint8_t>;

// Tiles are taken by blocks, whose lines stay in the first-level cache with those that are fetched.
template <int kBytes>
constexpr ptrdiff_t kSideOf = kBytes <= 3   ? 64
                              : kBytes <= 6 ? 32
                                            : 16;
constexpr ptrdiff_t kBlockSide = 64;  // of images beyond the caches

// Asks for bytes of n rows, ahead of their use: a CPU does not guess the next of lines that lie a step apart.
template <class Bytes>
void Prefetch(const Bytes& image, ptrdiff_t row, ptrdiff_t n, ptrdiff_t offset, ptrdiff_t bytes) {
  constexpr ptrdiff_t kLine = 64;
  for (ptrdiff_t y = row; y < row + n; ++y) {
    const uint8_t* const at = image.Row(y) + offset;
    for (ptrdiff_t i = 0; i < bytes; i += kLine) hwy::Prefetch(at + i);
  }
}

// Calls at(x, y) for tiles that cover an area of at least one tile. The last ones of a row or column may overlap their
// neighbours: pixels are then written twice with one value. Before each row of tiles, the `row`th of its block,
// comes ahead(x, y, row) with the place of the next block to the right, if that is a whole one.
template <ptrdiff_t kSide, class Ahead, class At>
void ForEachTile(Size size, ptrdiff_t columns, ptrdiff_t rows, const Ahead& ahead, const At& at) {
  for (ptrdiff_t top = 0; top < size.height; top += kSide) {
    for (ptrdiff_t left = 0; left < size.width; left += kSide) {
      const bool hasNext = left + 2 * kSide <= size.width && top + kSide <= size.height;
      for (ptrdiff_t y = top; y < std::min(top + kSide, size.height); y += rows) {
        if (hasNext) ahead(left + kSide, top, y - top);
        for (ptrdiff_t x = left; x < std::min(left + kSide, size.width); x += columns) {
          at(std::min(x, size.width - columns), std::min(y, size.height - rows));
        }
      }
    }
  }
}

template <int kBytes, bool kAlpha, class D>
void TransposeTiles(const ConstBytes& src, const Bytes& dst, Size size) {
  using T = Tile<kBytes, kAlpha, D>;
  const T tile(0), lastTile(4);
  const ptrdiff_t spare = T::U::kIsSpread ? kBlockBytes - T::U::kUsed : 0;
  const auto ahead = [&](ptrdiff_t x, ptrdiff_t y, ptrdiff_t row) {
    if (kBytes < 3) return;  // a line for each row: asking for it takes longer than is gained
    Prefetch(src, y + row, T::kRows, x * kBytes, kSideOf<kBytes> * kBytes);
    Prefetch(dst, x + row, T::kRows, y * kBytes, kSideOf<kBytes> * kBytes);
  };
  ForEachTile<kSideOf<kBytes>>(size, T::kColumns, T::kRows, ahead, [&](ptrdiff_t x, ptrdiff_t y) {
    const bool isLast = (x + T::kColumns) * kBytes + spare > size.width * kBytes;
    (isLast ? lastTile : tile)(src.Row(y) + x * kBytes, src.step, dst.Row(x) + y * kBytes, dst.step);
  });
}

template <int kBytes, bool kAlpha>
void TransposeSmall(const ConstBytes& src, const Bytes& dst, Size size) {
  for (ptrdiff_t x = 0; x < size.width; ++x) {
    for (ptrdiff_t y = 0; y < size.height; ++y) {
      std::memcpy(dst.Row(x) + y * kBytes, src.Row(y) + x * kBytes, kAlpha ? kBytes / 4 * 3 : kBytes);
    }
  }
}

// Pixels of three floats, moved with the next bytes, which the next pixel replaces.
void TransposeTriples(const ConstBytes& src, const Bytes& dst, Size size) {
  constexpr ptrdiff_t kBytes = 12, kSide = kSideOf<kBytes>;
  const Block d;
  const auto column = [&](ptrdiff_t x, ptrdiff_t top, ptrdiff_t end) HWY_ATTR {
    const ptrdiff_t wide = x + 1 < size.width ? end - 1 : top;  // nothing is read or written behind the last pixel
    uint8_t* const to = dst.Row(x);
    for (ptrdiff_t y = top; y < wide; ++y) hn::StoreU(hn::LoadU(d, src.Row(y) + x * kBytes), d, to + y * kBytes);
    for (ptrdiff_t y = wide; y < end; ++y) std::memcpy(to + y * kBytes, src.Row(y) + x * kBytes, kBytes);
  };
  for (ptrdiff_t top = 0; top < size.height; top += kSide) {
    const ptrdiff_t end = std::min(top + kSide, size.height);
    for (ptrdiff_t x = 0; x < size.width; ++x) column(x, top, end);
  }
}

template <int kBytes, bool kAlpha>
void Transpose(const ConstBytes& src, const Bytes& dst, Size size) {
  if constexpr (kBytes == 12) return TransposeTriples(src, dst, size);
  const bool isWide = size.width * kBytes >= kBlockBytes;
  if (isWide && size.height >= Tile<kBytes, kAlpha, Wide>::kRows) {
    TransposeTiles<kBytes, kAlpha, Wide>(src, dst, size);
  } else if (isWide && size.height >= Tile<kBytes, kAlpha, Block>::kRows) {
    TransposeTiles<kBytes, kAlpha, Block>(src, dst, size);
  } else {
    TransposeSmall<kBytes, kAlpha>(src, dst, size);
  }
}

// Images beyond the caches, in whole blocks and lines: turned into a buffer of lines, which leave for memory at once.
// Blocks follow each other along rows of the source, whose lines are asked for a block ahead: no CPU guesses them.
template <int kBytes>
void TransposeLarge(const ConstBytes& src, const Bytes& dst, Size size) {
  constexpr ptrdiff_t kColumns = kBytes <= 4 ? kBlockSide : 16, kRowBytes = kBlockSide * kBytes;
  alignas(kStreamedLine) uint8_t lines[kColumns * kRowBytes];
  const Bytes buffer{lines, kRowBytes, dst.layout, dst.elementBytes};
  const Wide d;
  for (ptrdiff_t y = 0; y < size.height; y += kBlockSide) {
    for (ptrdiff_t x = 0; x < size.width; x += kColumns) {
      const ConstBytes part{src.Row(y) + x * kBytes, src.step, src.layout, src.elementBytes};
      if (x + kColumns < size.width) Prefetch(src, y, kBlockSide, (x + kColumns) * kBytes, kColumns * kBytes);
      Transpose<kBytes, false>(part, buffer, Size(kColumns, kBlockSide));
      for (ptrdiff_t i = 0; i < kColumns; ++i) {
        uint8_t* to = dst.Row(x + i) + y * kBytes;
        for (ptrdiff_t b = 0; b < kRowBytes; b += hn::MaxLanes(d))
          hn::Stream(hn::Load(d, buffer.Row(i) + b), d, to + b);
      }
    }
  }
  Fence(Store::kStreaming);
}

bool IsLarge(const ConstBytes& src, const Bytes& dst, Size size) {
  const auto isMultiple = [](auto n, ptrdiff_t of) { return n % of == 0; };
  return size.width >= 1025 && isMultiple(size.width, kBlockSide) && isMultiple(size.height, kBlockSide) &&
         isMultiple(src.step, kBlockBytes) && isMultiple(reinterpret_cast<uintptr_t>(src.data), kBlockBytes) &&
         isMultiple(dst.step, kStreamedLine) && isMultiple(reinterpret_cast<uintptr_t>(dst.data), kStreamedLine) &&
         StoreFor(2 * static_cast<int64_t>(size.width) * size.height * src.PixelBytes()) == Store::kStreaming;
}

template <int kBytes>
void TransposeAnySize(const ConstBytes& src, const Bytes& dst, Size size) {
  if constexpr (kBytes % 4 == 0) {
    if (KeepsAlpha(dst.layout)) return Transpose<kBytes, true>(src, dst, size);
  }
  IsLarge(src, dst, size) ? TransposeLarge<kBytes>(src, dst, size) : Transpose<kBytes, false>(src, dst, size);
}

}  // namespace

void TransposePixels(const ConstBytes& src, const Bytes& dst, Size size) {
  switch (dst.PixelBytes()) {
    case 1: return TransposeAnySize<1>(src, dst, size);
    case 2: return TransposeAnySize<2>(src, dst, size);
    case 3: return TransposeAnySize<3>(src, dst, size);
    case 4: return TransposeAnySize<4>(src, dst, size);
    case 6: return TransposeAnySize<6>(src, dst, size);
    case 8: return TransposeAnySize<8>(src, dst, size);
    case 12: return TransposeAnySize<12>(src, dst, size);
    default: return TransposeAnySize<16>(src, dst, size);
  }
}

// Blocks on both sides of the diagonal change places; a block on it does so with itself.
void TransposeInPlace(const Bytes& image, ptrdiff_t side) {
  constexpr ptrdiff_t kPart = 32;
  alignas(kStreamedLine) uint8_t pixels[kPart * kPart * 16];
  const int bytes = image.PixelBytes();
  const Bytes buffer{pixels, kPart * bytes, image.layout == Layout::kAC4 ? Layout::kC4 : image.layout,
                     image.elementBytes};
  const auto at = [&](ptrdiff_t x, ptrdiff_t y) {
    return Bytes{image.Row(y) + x * bytes, image.step, image.layout, image.elementBytes};
  };
  const auto constant = [](const Bytes& b) { return ConstBytes{b.data, b.step, b.layout, b.elementBytes}; };
  for (ptrdiff_t y = 0; y < side; y += kPart) {
    const ptrdiff_t height = std::min(kPart, side - y);
    for (ptrdiff_t x = y; x < side; x += kPart) {
      const ptrdiff_t width = std::min(kPart, side - x);
      TransposePixels(constant(at(x, y)), buffer, Size(width, height));
      if (x != y) TransposePixels(constant(at(y, x)), at(x, y), Size(height, width));
      if (KeepsAlpha(image.layout)) {
        MoveChannels(constant(buffer), at(y, x), Size(height, width), {{0, 1, 2, kKeepChannel}});
      } else {
        CopyPixels(constant(buffer), at(y, x), Size(height, width), Store::kOrdinary);
      }
    }
  }
}

namespace {

QvpStatus TransposeInPlaceChecked(const Bytes& image, Size size) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(size, {image})) return failed;
  if (size.width != size.height) return qvpStatusSize;
  TransposeInPlace(image, size.width);
  return qvpStatusNoError;
}

QvpStatus TransposeChecked(const ConstBytes& src, const Bytes& dst, Size size) {
  if (src.data == dst.data && src.step == dst.step) return TransposeInPlaceChecked(dst, size);
  if (const QvpStatus failed = Validate<kPointers, kSize>(size, {src, dst})) return failed;
  TransposePixels(src, dst, size);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::transpose

using namespace qvp;
using namespace qvp::transpose;

#define TRANSPOSE(type, layout)                                                                         \
  QVP_MOVE(qvpiTranspose_##type##_##layout##R, type, layout, layout, TransposeChecked)                  \
  QvpStatus qvpiTranspose_##type##_##layout##IR(Qvp##type* pSrcDst, int srcDstStep, QvpiSize roiSize) { \
    return TransposeInPlaceChecked(AsBytes(pSrcDst, srcDstStep, Layout::k##layout), roiSize);           \
  }
#define TRANSPOSE_LAYOUTS(type) \
  TRANSPOSE(type, C1)           \
  TRANSPOSE(type, C3)           \
  TRANSPOSE(type, C4)

QVP_EACH_MOVED_TYPE(TRANSPOSE_LAYOUTS)
QVP_MOVE(qvpiTranspose_32fc_C1R, 32fc, C1, C1, TransposeChecked)
