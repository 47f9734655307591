/** @file image.hpp
 *  Memory that is released by itself: images, and work buffers.
 */
#ifndef QVPI_IMAGE_HPP
#define QVPI_IMAGE_HPP

#include <memory>
#include <utility>

#include "qvpi/error.hpp"
#include "qvpi/view.hpp"

namespace qvp {
inline namespace QVP_ERRORS {

namespace detail {

struct Release {
  void operator()(void* block) const { qvpFree(block); }
};

// At addresses that are multiples of 64, not initialised.
template <class T>
using Block = std::unique_ptr<T, Release>;

}  // namespace detail

/** A work buffer, or a record's memory. It only ever grows, so that one serves any number of calls, one at a time. */
class Buffer {
 public:
  Buffer() = default;
  explicit Buffer(QvpSizeL bytes) { reserve(bytes); }

  /** Makes room for so many bytes, and forgets what was in them if there was less. False: there is no memory. */
  bool reserve(QvpSizeL bytes) {
    if (block_ && bytes <= size_) return true;
    block_.reset();
    size_ = bytes < 1 ? 1 : bytes;
    block_.reset(static_cast<Qvp8u*>(qvpMalloc_L(size_)));
    return block_ != nullptr;
  }

  Qvp8u* data() const { return block_.get(); }

 private:
  detail::Block<Qvp8u> block_;
  QvpSizeL size_ = 0;
};

/** An image that owns its pixels, whose rows start at multiples of 64 bytes. They are not initialised.
 *
 *  It can be moved and not copied; copy_to(a, b) copies pixels. It becomes a View wherever one is asked for.
 */
template <class T, int kChannels = 1>
class Image {
  static_assert(kChannels >= 1 && kChannels <= 4, "An image has 1 to 4 channels; view().colors() leaves out alpha");

 public:
  using Number = T;

  Image() = default;

  /** Refused with qvpStatusSize if a side is below 1 or a row too long, with qvpStatusMemoryAllocation if memory is
   *  short. Without exceptions the image is then empty. */
  explicit Image(QvpiSize size) { (void)detail::finish(allocate(size)); }
  Image(int width, int height) : Image(QvpiSize{width, height}) {}

  Image(Image&& other) noexcept : block_(std::move(other.block_)), rows_(std::exchange(other.rows_, {})) {}
  Image& operator=(Image&& other) noexcept {
    block_ = std::move(other.block_);
    rows_ = std::exchange(other.rows_, {});
    return *this;
  }

  T* data() { return block_.get(); }
  const T* data() const { return block_.get(); }
  int step() const { return rows_.step(); }
  QvpiSize size() const { return rows_.size(); }
  int width() const { return rows_.width(); }
  int height() const { return rows_.height(); }
  QvpiRect rect() const { return rows_.rect(); }
  bool empty() const { return rows_.empty(); }

  View<T, kChannels> view() { return {data(), step(), size()}; }
  View<const T, kChannels> view() const { return {data(), step(), size()}; }
  View<T, kChannels> view(QvpiRect part) { return view().view(part); }
  View<const T, kChannels> view(QvpiRect part) const { return view().view(part); }
  operator View<T, kChannels>() { return view(); }
  operator View<const T, kChannels>() const { return view(); }

  T* row(int y) { return view().row(y); }
  const T* row(int y) const { return view().row(y); }

 private:
  QvpStatus allocate(QvpiSize size) {
    constexpr int kPixelBytes = kChannels * static_cast<int>(sizeof(T)), kMost = 0x7FFFFFFF - 63;
    if (size.width < 1 || size.height < 1 || size.width > kMost / kPixelBytes) return qvpStatusSize;
    const int step = (size.width * kPixelBytes + 63) & ~63;
    constexpr QvpSizeL kAll = static_cast<QvpSizeL>(~std::size_t{0} >> 1);
    if (size.height > kAll / step) return qvpStatusSize;
    block_.reset(static_cast<T*>(qvpMalloc_L(QvpSizeL{step} * size.height)));
    if (!block_) return qvpStatusMemoryAllocation;
    rows_ = Rows(step, size);
    return qvpStatusNoError;
  }

  detail::Block<T> block_;
  Rows rows_;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
