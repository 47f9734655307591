/** @file call.hpp
 *  What the functions of qvpi/operations/ share.
 */
#ifndef QVPI_CALL_HPP
#define QVPI_CALL_HPP

#include "qvpi/image.hpp"
#include "qvpi/operations/selectors.hpp"

namespace qvp {

/** The least and the greatest number, of each channel if there are several. */
template <class Value>
struct Extrema {
  Value min, max;
};

/** The least or the greatest number and its first place by rows, of each channel if there are several. */
template <class Value, class Place>
struct Extremum {
  Value value;
  Place x, y;
};

/** A source of a call, and a destination. */
template <class T, int kLayout = 1>
using In = View<const T, kLayout>;
template <class T, int kLayout = 1>
using Out = View<T, kLayout>;

/** Tells a pixel type to functions without images. */
template <class T>
struct Of {};

namespace detail {

template <class...>
inline constexpr bool kNever = false;

// Images and views.
template <class Argument>
concept HasPixels = requires {
  typename std::remove_cvref_t<Argument>::Number;
};

// The view that an image or a view is.
template <class Argument>
auto view_of(Argument&& argument) {
  if constexpr (requires { argument.view(); }) {
    return argument.view();
  } else {
    return argument;
  }
}

constexpr bool has_size(const Rows& image, QvpiSize size) {
  return image.width() == size.width && image.height() == size.height;
}

constexpr bool same(const Rows& image, const Rows& other) { return has_size(image, other.size()); }

// Of an image that may be left out.
constexpr bool fits(const Rows& image, const Rows& other) { return image.empty() || same(image, other); }

constexpr QvpiSize transposed(QvpiSize size) { return {size.height, size.width}; }

constexpr QvpiSize turned(QvpiSize size, int turns) { return turns % 2 != 0 ? transposed(size) : size; }

// Coefficients of blocks of 8 x 8 pixels: a row of them for eight rows.
constexpr QvpiSize blocks(QvpiSize size) {
  const int across = size.width / 8 + (size.width % 8 != 0);
  return {across > 0x7FFFFFFF / 64 ? -1 : 64 * across, size.height / 8 + (size.height % 8 != 0)};
}

// Of convolutions. What is no int is not the size of an image, and so refused.
constexpr int sum_or_none(int a, int b) { return a > 0x7FFFFFFF - b ? -1 : a + b - 1; }
constexpr QvpiSize full(QvpiSize a, QvpiSize b) {
  return {sum_or_none(a.width, b.width), sum_or_none(a.height, b.height)};
}
constexpr QvpiSize valid(QvpiSize a, QvpiSize b) { return {a.width - b.width + 1, a.height - b.height + 1}; }

constexpr QvpiSize matched(MatchShape shape, QvpiSize image, QvpiSize part) {
  return shape == MatchShape::full ? full(image, part) : shape == MatchShape::valid ? valid(image, part) : image;
}

}  // namespace detail

inline namespace QVP_ERRORS {

namespace forms {
using namespace detail;
}  // namespace forms
namespace calls {
using namespace detail;
}  // namespace calls

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
