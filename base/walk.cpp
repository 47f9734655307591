#include "base/walk.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/store.h"

namespace qvp {
namespace {

// Sends a row to memory past the caches. What comes in pieces of any length leaves in whole lines; only the ends of the
// row, where they share a line with others, are stored ordinarily.
class LineWriter {
 public:
  explicit LineWriter(uint8_t* row) : to_(row) {}

  // Where the next piece goes.
  uint8_t* Next() { return bytes_ + waiting_; }

  void Write(ptrdiff_t pieceBytes) {
    const ptrdiff_t n = waiting_ + pieceBytes;
    const ptrdiff_t unaligned = -reinterpret_cast<uintptr_t>(to_) & (kStreamedLine - 1);
    const ptrdiff_t head = std::min(unaligned, n);
    std::memcpy(to_, bytes_, head);
    const ptrdiff_t end = head + (n - head) / kStreamedLine * kStreamedLine;
    const hn::ScalableTag<uint8_t> d;
    constexpr ptrdiff_t kVector = hn::MaxLanes(d);
    for (ptrdiff_t i = head; i < end; i += kVector) StoreTo<Store::kStreaming>(hn::LoadU(d, bytes_ + i), d, to_ + i);
    to_ += end;
    waiting_ = n - end;
    std::memmove(bytes_, bytes_ + end, waiting_);
  }

  void Finish() { std::memcpy(to_, bytes_, waiting_); }

 private:
  uint8_t* to_;
  ptrdiff_t waiting_ = 0;
  alignas(kStreamedLine) uint8_t bytes_[kStreamedLine + kPieceBytes];
};

// Streaming pays for results that are not read: rows that keep an alpha, or that are sources too, are in the caches.
Store StoreForWalk(Size roi, const Bytes& dst, const ConstBytes& a, const ConstBytes* b) {
  if (KeepsAlpha(dst.layout) || a.data == dst.data || (b && b->data == dst.data)) return Store::kOrdinary;
  const auto bytes = [&](const auto& image) { return static_cast<int64_t>(image.RowBytes(roi.width)) * roi.height; };
  return StoreForMoved(bytes(dst) + bytes(a) + (b ? bytes(*b) : 0));
}

struct WalkedRow {
  uint8_t* to;
  const uint8_t *a, *b;
};

// Whole pixels, and so whole elements, at a time.
HWY_NOINLINE void StreamRow(const WalkedRow& row, ptrdiff_t n, const Bytes& dst, const ConstBytes& a,
                            const ConstBytes* b, RowCall call, const void* context) {
  LineWriter writer(row.to);
  const ptrdiff_t most = kPieceBytes / dst.elementBytes;
  for (ptrdiff_t i = 0; i < n; i += most) {
    const ptrdiff_t piece = std::min(most, n - i);
    call(context, piece, writer.Next(), row.a + i * a.elementBytes, b ? row.b + i * b->elementBytes : nullptr);
    writer.Write(piece * dst.elementBytes);
  }
  writer.Finish();
}

// Copies rows of a few bytes: by pieces, of which the last one ends with the row.
template <class Piece>
HWY_INLINE void CopyRowsBy(const uint8_t* from, ptrdiff_t fromStep, uint8_t* to, ptrdiff_t toStep, ptrdiff_t bytes,
                           ptrdiff_t rows) {
  constexpr ptrdiff_t kBytes = sizeof(Piece);
  for (ptrdiff_t y = 0; y < rows; ++y, from += fromStep, to += toStep) {
    QVP_ROLLED
    for (ptrdiff_t i = 0; i + kBytes < bytes; i += kBytes) std::memcpy(to + i, from + i, kBytes);
    std::memcpy(to + bytes - kBytes, from + bytes - kBytes, kBytes);
  }
}
void CopyShortRows(const uint8_t* from, ptrdiff_t fromStep, uint8_t* to, ptrdiff_t toStep, ptrdiff_t bytes,
                   ptrdiff_t rows) {
  const auto copy = bytes >= 16  ? CopyRowsBy<std::array<uint64_t, 2>>
                    : bytes >= 8 ? CopyRowsBy<uint64_t>
                    : bytes >= 4 ? CopyRowsBy<uint32_t>
                                 : CopyRowsBy<uint8_t>;
  copy(from, fromStep, to, toStep, bytes, rows);
}

// Rows that are shorter than a vector come to the kernel together, one behind the other: gathering them costs less than
// a call for each.
HWY_NOINLINE void WalkShortRows(Size roi, const Bytes& dst, const ConstBytes& a, const ConstBytes* b, RowCall call,
                                const void* context) {
  constexpr ptrdiff_t kStageBytes = 4096;
  alignas(kStreamedLine) uint8_t to[kStageBytes], sources[2][kStageBytes];
  const ptrdiff_t n = roi.width * Channels(dst.layout);
  const ptrdiff_t most = kStageBytes / (n * std::max({dst.elementBytes, a.elementBytes, b ? b->elementBytes : 0}));
  for (ptrdiff_t y = 0; y < roi.height; y += most) {
    const ptrdiff_t rows = std::min(most, roi.height - y);
    const auto gather = [&](const auto& image, uint8_t* stage) {
      CopyShortRows(image.Row(y), image.step, stage, n * image.elementBytes, n * image.elementBytes, rows);
    };
    gather(a, sources[0]);
    if (b) gather(*b, sources[1]);
    if (KeepsAlpha(dst.layout)) gather(dst, to);
    call(context, n * rows, to, sources[0], b ? sources[1] : nullptr);
    CopyShortRows(to, n * dst.elementBytes, dst.Row(y), dst.step, n * dst.elementBytes, rows);
  }
}

}  // namespace

void Walk(Size roi, const Bytes& dst, const ConstBytes& a, const ConstBytes* b, RowCall call, const void* context) {
  const Store store = StoreForWalk(roi, dst, a, b);
  const bool isPacked = dst.IsPacked(roi.width) && a.IsPacked(roi.width) && (!b || b->IsPacked(roi.width));
  ptrdiff_t pixels;
  if (isPacked && !__builtin_mul_overflow(roi.width, roi.height, &pixels)) roi = Size(pixels, 1);
  constexpr ptrdiff_t kVector = hn::MaxLanes(hn::ScalableTag<uint8_t>());
  if (roi.height > 1 && dst.RowBytes(roi.width) < kVector) return WalkShortRows(roi, dst, a, b, call, context);
  const ptrdiff_t n = roi.width * Channels(dst.layout), stepB = b ? b->step : 0;
  WalkedRow row{dst.data, a.data, b ? b->data : nullptr};
  for (ptrdiff_t y = 0; y < roi.height; ++y, row.to += dst.step, row.a += a.step, row.b += stepB) {
    if (store == Store::kStreaming) {
      StreamRow(row, n, dst, a, b, call, context);
    } else {
      call(context, n, row.to, row.a, row.b);
    }
  }
  Fence(store);
}

}  // namespace qvp
