// Prepared rows that several results need: kept while a region is walked down.
//
//   RowRing     memory for the rows of successive positions
//   WalkDown    results whose positions are anywhere, one at a time
//   RowWindow   lines of an image under a kernel that moves down one or two rows at a time
//   WindowPlan  the blocks of columns that windows work on, and the bytes that they need
#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

#include "base/border_rows.h"

namespace qvp {

// Rows of the last `places` positions: that of position p is at place p modulo the number of places.
template <class E>
struct RowRing {
  E* at;
  ptrdiff_t step;  // elements
  int places;

  // Positions are numbers of 32 bits, which are quicker to divide.
  E* Row(ptrdiff_t position) const {
    int place = static_cast<int32_t>(position) % places;
    if (place < 0) place += places;
    return at + place * step;
  }

  // The row of the position behind that of a row.
  E* Next(const E* row) const {
    const ptrdiff_t next = row - at + step;
    return next == places * step ? at : at + next;
  }

  // The rows of kCount successive positions.
  template <size_t kCount>
  std::array<const E*, kCount> Rows(ptrdiff_t position) const {
    std::array<const E*, kCount> rows{Row(position)};
    for (size_t k = 1; k < kCount; ++k) rows[k] = Next(rows[k - 1]);
    return rows;
  }
};

// Makes n results from rows, each of which is prepared once: needs(y) tells the positions [begin, end) that result y is
// made from, which never decrease; prepare(begin, end) fills the rows of these positions, combine(y) makes the result.
template <class Needs, class Prepare, class Combine>
void WalkDown(ptrdiff_t n, const Needs& needs, const Prepare& prepare, const Combine& combine) {
  ptrdiff_t next = PTRDIFF_MIN;
  for (ptrdiff_t y = 0; y < n; ++y) {
    const Extent needed = needs(y);
    prepare(std::max(next, needed.begin), needed.end);
    next = std::max(next, needed.end);
    combine(y);
  }
}

// The lines of an image that a kernel covers, as pointers in their order. The window moves down, and prepares each line
// once.
template <class Form, class T>
class RowWindow {
 public:
  using Element = typename Form::Element;

  // A window of `lines` lines, each of Form::kRows rows, which begins at row `first`. For the others see BorderRows.
  RowWindow(const BorderedImage<T>& image, Extent columns, bool mayBeInPlace, ptrdiff_t first, int lines)
      : rows_(image, columns, mayBeInPlace), lines_(lines), next_(first) {}

  // What of a work buffer it takes.
  int64_t Bytes() const {
    return PointerBytes() + rows_.TableBytes() + (rows_.isInPlace() ? 0 : lines_ * rows_.LineBytes());
  }

  // Prepares the first lines. Returns where the memory ends that it takes; it begins at a boundary.
  uint8_t* Start(uint8_t* memory) {
    pointers_ = reinterpret_cast<const Element**>(memory);
    uint8_t* const slots = rows_.Start(memory + PointerBytes());
    const ptrdiff_t step = rows_.LineBytes() / static_cast<ptrdiff_t>(sizeof(Element));
    ring_ = {reinterpret_cast<Element*>(slots), step, static_cast<int>(lines_)};
    room_ = ring_.at;
    Prepare(0);
    return memory + Bytes();
  }

  const Element* const* lines() const { return pointers_; }

  // Goes on by `count` lines.
  void Advance(ptrdiff_t count) {
    std::memmove(pointers_, pointers_ + count, (lines_ - count) * sizeof(*pointers_));
    Prepare(lines_ - count);
  }

 private:
  int64_t PointerBytes() const { return ByteCount(lines_ * 8).RoundedTo(kRecordBoundary).value(); }

  // The lines from one of the window to its last.
  HWY_NOINLINE void Prepare(ptrdiff_t line) {
    for (; line < lines_; ++line, next_ += Form::kRows, room_ = ring_.Next(room_)) {
      pointers_[line] = rows_.Line(next_, room_);
    }
  }

  BorderRows<Form, T> rows_;
  int64_t lines_;
  ptrdiff_t next_;  // row of the next line
  RowRing<Element> ring_{};
  Element* room_ = nullptr;  // for the next line
  const Element** pointers_ = nullptr;
};

// Windows on regions up to a width, for a kernel of so many columns: the region is walked in blocks of columns whose
// lines stay in a cache.
class WindowPlan {
 public:
  // Samples of all lines of a block that stay in the nearest cache.
  static constexpr int64_t kNearestSamples = 4096;

  // `lines` of the window, with elements of up to `elementBytes`, and about `samples` in all lines of a block.
  WindowPlan(int64_t kernelWidth, int64_t lines, int channels, int64_t regionWidth, int elementBytes = 8,
             int64_t samples = kNearestSamples)
      : kernelWidth_(kernelWidth),
        lines_(lines),
        regionWidth_(regionWidth),
        channels_(channels),
        elementBytes_(elementBytes),
        samples_(samples),
        mostColumns_(std::min(regionWidth, BlockColumns())) {}

  // What windows on all blocks take, one after the other, from any address on.
  ByteCount Bytes() const {
    const ByteCount line = LineBytesFor(ByteCount(mostColumns_ + kernelWidth_ - 1) * channels_, elementBytes_);
    const ByteCount pointers = (ByteCount(lines_) * 8).RoundedTo(kRecordBoundary);
    const ByteCount columns = (ByteCount(kernelWidth_) * int64_t{sizeof(int32_t)}).RoundedTo(kRecordBoundary);
    return line * (lines_ + 1) + pointers + columns + kRecordBoundary;  // one line is that of constants
  }

  // Calls walk(columns) for each block.
  template <class Walk>
  void ForEachBlock(const Walk& walk) const {
    const int64_t blocks = (regionWidth_ + mostColumns_ - 1) / mostColumns_;
    for (int64_t b = 0; b < blocks; ++b) {
      walk(Extent{static_cast<ptrdiff_t>(regionWidth_ * b / blocks),
                  static_cast<ptrdiff_t>(regionWidth_ * (b + 1) / blocks)});
    }
  }

 private:
  // So many that the columns that blocks have in common do not count.
  int64_t BlockColumns() const { return std::max({samples_ / (lines_ * channels_), 4 * kernelWidth_, int64_t{64}}); }

  int64_t kernelWidth_, lines_, regionWidth_;
  int channels_, elementBytes_;
  int64_t samples_, mostColumns_;
};

}  // namespace qvp
