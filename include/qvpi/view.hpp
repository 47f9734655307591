/** @file view.hpp
 *  Views: where pixels lie that somebody else owns, with their type and layout.
 */
#ifndef QVPI_VIEW_HPP
#define QVPI_VIEW_HPP

#include <array>
#include <cstddef>
#include <span>
#include <type_traits>

#include "qvptypes.h"

namespace qvp {

/** @name Layouts
 *  The second parameter of images and views: a number of interleaved channels, or one of these.
 *  @{ */
inline constexpr int AC4 = -4;     /**< four channels, of which operations take the first three: alpha stays */
inline constexpr int OneOf3 = 103; /**< one channel in an image of three */
inline constexpr int OneOf4 = 104; /**< one channel in an image of four */
/** @} */

/** Numbers from one pixel of a layout to the next. */
constexpr int pixel_stride(int layout) { return layout < 0 ? -layout : layout % 100; }

/** A pixel's channels, such as `Pixel<Qvp8u, 3>{255, 128, 0}`. */
template <class T, int kChannels>
using Pixel = std::array<T, kChannels>;

/** What views of all types have: the row step in bytes, and the size in pixels. */
class Rows {
 public:
  constexpr Rows() = default;
  constexpr Rows(int step, QvpiSize size) : step_(step), size_(size) {}

  constexpr int step() const { return step_; }
  constexpr QvpiSize size() const { return size_; }
  constexpr int width() const { return size_.width; }
  constexpr int height() const { return size_.height; }
  constexpr QvpiRect rect() const { return {0, 0, size_.width, size_.height}; }
  constexpr bool empty() const { return size_.width < 1 || size_.height < 1; }

  /** Whether a rectangle has pixels, and all of them lie within. */
  constexpr bool contains(QvpiRect part) const {
    return part.x >= 0 && part.y >= 0 && part.width > 0 && part.height > 0 && part.width <= size_.width - part.x &&
           part.height <= size_.height - part.y;
  }

 private:
  int step_ = 0;
  QvpiSize size_ = {0, 0};
};

/** A rectangle of pixels in memory that something else owns; as cheap to pass on as a pointer.
 *
 *  `View<const T>` only reads, and every view becomes one. Where an argument below does not suit, the view is empty,
 *  and every function refuses it.
 *
 *  @tparam T type of the numbers, such as Qvp8u or const Qvp8u
 *  @tparam kLayout channels of a pixel, or a layout from above
 */
template <class T, int kLayout = 1>
class View : public Rows {
 public:
  using Number = std::remove_const_t<T>;
  static constexpr int layout = kLayout;

  constexpr View() = default;

  /** Rows that start `step` bytes after one another; a negative step goes upwards. */
  constexpr View(T* data, int step, QvpiSize size) : Rows(step, size), data_(data) {}

  /** Rows without gaps. */
  constexpr View(T* data, QvpiSize size) : View(data, packed_step(size), size) {}

  /** Rows that start `step` bytes after one another, all of them within the span, or rows without gaps. */
  constexpr View(std::span<T> numbers, int step, QvpiSize size)
      : View(fits(numbers.size_bytes(), step, size) ? View(numbers.data(), step, size) : View()) {}
  constexpr View(std::span<T> numbers, QvpiSize size) : View(numbers, packed_step(size), size) {}

  constexpr operator View<const T, kLayout>() const requires(!std::is_const_v<T>) { return {data_, step(), size()}; }

  constexpr T* data() const { return data_; }

  /** The first number of a row. */
  T* row(int y) const {
    using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(data_) + std::ptrdiff_t{step()} * y);
  }

  /** The first number of a pixel. */
  T* at(int x, int y) const { return row(y) + std::ptrdiff_t{kStride} * x; }

  /** A part of this view; an empty one if the rectangle is not within it. */
  View view(QvpiRect part) const {
    return contains(part) ? View(at(part.x, part.y), step(), {part.width, part.height}) : View();
  }

  /** The same pixels without their alpha, which operations then leave as it is. */
  constexpr View<T, AC4> colors() const requires(kLayout == 4) { return {data_, step(), size()}; }

  /** One channel, counted from 0. Copying and filling take these. */
  constexpr View<T, 100 + kLayout> channel(int index) const requires(kLayout == 3 || kLayout == 4) {
    return index < 0 || index >= kLayout ? View<T, 100 + kLayout>()
                                         : View<T, 100 + kLayout>(data_ + index, step(), size());
  }

 private:
  static constexpr int kStride = pixel_stride(kLayout);
  static constexpr int kPixelBytes = kStride * static_cast<int>(sizeof(T));

  // 0, which no function takes, where a row is longer than a step can tell.
  static constexpr int packed_step(QvpiSize size) {
    return size.width < 0 || size.width > 0x7FFFFFFF / kPixelBytes ? 0 : size.width * kPixelBytes;
  }

  static constexpr bool fits(std::size_t bytes, int step, QvpiSize size) {
    if (size.width < 1 || size.height < 1) return false;
    const auto row = static_cast<unsigned long long>(size.width) * kPixelBytes;
    if (step < 0 || static_cast<unsigned long long>(step) < row) return false;
    return (size.height - 1ULL) * static_cast<unsigned>(step) + row <= bytes;
  }

  T* data_ = nullptr;
};

/** An image whose channels lie in planes of one size and one step. */
template <class T, int kPlanes>
class PlanarView : public Rows {
 public:
  using Number = std::remove_const_t<T>;

  constexpr PlanarView() = default;

  /** From the planes; an empty view if their sizes or steps differ. */
  constexpr explicit PlanarView(const std::array<View<T>, kPlanes>& planes) : Rows(planes[0].step(), planes[0].size()) {
    for (int i = 0; i < kPlanes; ++i) data_[i] = planes[i].data();
    for (const View<T>& plane : planes) {
      const bool alike = plane.step() == step() && plane.width() == width() && plane.height() == height();
      if (!alike) *this = PlanarView();
    }
  }

  /** From planes one above the other; an empty view if the height is no multiple of their number. */
  explicit PlanarView(View<T> stack) : PlanarView(cut(stack)) {}

  constexpr operator PlanarView<const T, kPlanes>() const requires(!std::is_const_v<T>) {
    std::array<View<const T>, kPlanes> planes;
    for (int i = 0; i < kPlanes; ++i) planes[i] = plane(i);
    return PlanarView<const T, kPlanes>(planes);
  }

  constexpr View<T> plane(int index) const { return {data_[index], step(), size()}; }
  constexpr T* const* data() const { return data_.data(); }

  PlanarView view(QvpiRect part) const {
    std::array<View<T>, kPlanes> planes;
    for (int i = 0; i < kPlanes; ++i) planes[i] = plane(i).view(part);
    return PlanarView(planes);
  }

 private:
  static std::array<View<T>, kPlanes> cut(View<T> stack) {
    std::array<View<T>, kPlanes> planes;
    const int height = stack.height() / kPlanes;
    if (stack.height() % kPlanes != 0) return planes;
    for (int i = 0; i < kPlanes; ++i) planes[i] = stack.view({0, i * height, stack.width(), height});
    return planes;
  }

  std::array<T*, kPlanes> data_ = {};
};

}  // namespace qvp

#endif
