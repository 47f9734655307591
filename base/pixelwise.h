// Operations that compute each element of a destination from the elements at its place: the walk over the images, with
// or without constants of the channels.
#pragma once

#include "base/map.h"
#include "base/rows.h"
#include "base/store.h"

namespace qvp {

// Sends a row to memory past the caches. What comes in pieces of any length leaves in whole lines; only the ends of the
// row, where they share a line with others, are stored ordinarily.
class LineWriter {
 public:
  static constexpr int kPieceBytes = 6144;  // whole pixels of every type and layout; stays in the first-level cache

  explicit LineWriter(void* row) : to_(static_cast<uint8_t*>(row)) {}

  // Where the next piece goes.
  void* Next() { return bytes_ + waiting_; }

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
template <class T, class... S>
Store StoreForPixelwise(Size roi, const Image<T>& dst, const Image<const S>&... src) {
  if (KeepsAlpha(dst.layout) || ((static_cast<const void*>(src.data) == dst.data) || ...)) return Store::kOrdinary;
  return StoreForMoved((static_cast<int64_t>(dst.RowBytes(roi.width)) + ... + src.RowBytes(roi.width)) * roi.height);
}

// Calls kernel(n, elements of dst, elements of src...) for pieces of rows, each of whole pixels.
template <class Kernel, class T, class... S>
void ForEachPiece(Size roi, const Kernel& kernel, const Image<T>& dst, const Image<const S>&... src) {
  const int channels = Channels(dst.layout);
  const Store store = StoreForPixelwise(roi, dst, src...);
  if (store == Store::kOrdinary) {
    return Rows(dst, src...).ForEach(roi, [&](ptrdiff_t width, T* to, const S*... from) {
      kernel(width * channels, to, from...);
    });
  }
  constexpr ptrdiff_t kPiece = LineWriter::kPieceBytes / sizeof(T);
  Rows(dst, src...).ForEach(roi, [&](ptrdiff_t width, T* to, const S*... from) {
    LineWriter writer(to);
    for (ptrdiff_t i = 0, n = width * channels; i < n; i += kPiece) {
      const ptrdiff_t piece = std::min(kPiece, n - i);
      kernel(piece, static_cast<T*>(writer.Next()), (from + i)...);
      writer.Write(piece * sizeof(T));
    }
    writer.Finish();
  });
  Fence(store);
}

// A row kernel is called from two places, with the destination or with a piece that is streamed, but exists once. What
// it needs it copies first: bytes that are stored could otherwise be part of it, and it would be read again after each
// store.
#define QVP_ROW_KERNEL HWY_NOINLINE HWY_ATTR

// dst = op(src...) in lanes of D.
template <class D, class Op, class T, class... S>
void MapImages(D d, const Op& op, Size roi, const Image<T>& dst, const Image<const S>&... src) {
  const auto map = [&](auto keepAlpha) {
    const auto row = [&](ptrdiff_t n, T* to, const S*... from) QVP_ROW_KERNEL {
      const Op own = op;
      MapRow<keepAlpha()>(d, to, n, own, from...);
    };
    ForEachPiece(roi, row, dst, src...);
  };
  KeepsAlpha(dst.layout) ? map(std::true_type()) : map(std::false_type());
}

// The same for images of one channel, so that there is no kernel that keeps an alpha.
template <class D, class Op, class T, class... S>
void MapOneChannel(D d, const Op& op, Size roi, const Image<T>& dst, const Image<const S>&... src) {
  const auto row = [&](ptrdiff_t n, T* to, const S*... from) QVP_ROW_KERNEL {
    const Op own = op;
    MapRow<false>(d, to, n, own, from...);
  };
  ForEachPiece(roi, row, dst, src...);
}

// dst = op(value of the channel, src) in lanes of D.
template <class D, class Op, class T, class S>
void MapImagesWith(D d, const Op& op, Size roi, const S* values, const Image<T>& dst, const Image<const S>& src) {
  const PerChannel<D> constant(d, values, dst.layout);
  const auto map = [&](auto keepAlpha) {
    const auto row = [&](ptrdiff_t n, T* to, const S* from) QVP_ROW_KERNEL {
      const Op own = op;
      const auto withConstant = [&](const auto& at, auto v) HWY_ATTR { return own(at(constant), v); };
      MapRowWith<keepAlpha()>(d, to, n, withConstant, from);
    };
    ForEachPiece(roi, row, dst, src);
  };
  KeepsAlpha(dst.layout) ? map(std::true_type()) : map(std::false_type());
}

}  // namespace qvp
