// Rows of pixels as the kernels of the general filter read them: with their border columns, in the form that the kernel
// multiplies. Each row of a block of columns is prepared once, while the block is walked down two rows of results at a
// time.
#pragma once

#include <hwy/cache_control.h>

#include <cstring>
#include <utility>

#include "base/border.h"
#include "base/lanes.h"
#include "filter/border_filter.h"

namespace qvp {

// The image around a region: how far it can be read, and what stands for pixels beyond.
template <class T>
struct FilterSource {
  Image<const T> image;  // at the first pixel of the region
  BorderKind kind;
  Extent columns, rows;
  T value[4];  // the constant of each channel
  int channels;
};

// The rows of two pixels, as pairs of bytes or of 16-bit words, one pair to a sample.
template <class T, class Lane>
struct PairedRows {
  using Element = std::conditional_t<sizeof(Lane) == 1, uint16_t, uint32_t>;
  static constexpr int kRows = 2;
  template <class>
  static constexpr bool kIsInPlace = false;

  static Element Pack(T upper, T lower) {
    const uint32_t bits = 8 * sizeof(Lane), mask = (1u << bits) - 1;
    return static_cast<Element>((static_cast<uint32_t>(upper) & mask) | (static_cast<uint32_t>(lower) & mask) << bits);
  }
  static void Convert(const T* const (&rows)[2], Element* out, ptrdiff_t i) {
    const hn::ScalableTag<Lane> d;
    hn::StoreInterleaved2(LoadWide(d, rows[0] + i), LoadWide(d, rows[1] + i), d, reinterpret_cast<Lane*>(out + i));
  }
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<Lane>());
};

// Single rows, as numbers of F.
template <class T, class F>
struct SingleRows {
  using Element = F;
  static constexpr int kRows = 1;
  template <class P>
  static constexpr bool kIsInPlace = std::is_same_v<P, F>;

  static Element Pack(T value, T) { return static_cast<F>(value); }
  static void Convert(const T* const (&rows)[2], Element* out, ptrdiff_t i) {
    const hn::ScalableTag<F> d;
    if constexpr (std::is_same_v<T, float> && std::is_same_v<F, double>) {
      hn::StoreU(hn::PromoteTo(d, hn::LoadU(hn::Rebind<float, decltype(d)>(), rows[0] + i)), d, out + i);
    } else if constexpr (std::is_same_v<T, double> && !std::is_same_v<F, double>) {
      static_assert(sizeof(T) == 0, "doubles are not narrowed");
    } else {
      hn::StoreU(LoadWide(d, rows[0] + i), d, out + i);
    }
  }
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<F>());
};

// Converts n samples. Behind the last one there is room for a vector.
template <class Form, class T>
void ConvertRows(const T* const (&rows)[2], typename Form::Element* out, ptrdiff_t n) {
  constexpr ptrdiff_t kLanes = Form::kLanes;
  if (n < kLanes) {
    const Partial<T> upper(rows[0], n), lower(rows[1], n);
    const T* const staged[2] = {upper.lanes, lower.lanes};
    return Form::Convert(staged, out, 0);
  }
  for (ptrdiff_t i = 0; i < n - kLanes; i += kLanes) Form::Convert(rows, out, i);
  Form::Convert(rows, out, n - kLanes);
}

// Columns [x, x + width) of results.
struct FilterBlock {
  ptrdiff_t x, width;
};

// The rows that the results of a block are made from. A line is a prepared row, or a pair of rows.
template <class Form, class T>
class FilterWindow {
 public:
  using Element = typename Form::Element;

  FilterWindow(const FilterRecord& record, const FilterSource<T>& source, FilterBlock block, ptrdiff_t height)
      : source_(source),
        lines_(Form::kRows == 2 ? record.PairsOfRows() : record.height + 1),
        lastRow_(height - 1 + record.below()),
        needed_{block.x - record.left(), block.x + block.width + record.right()},
        readable_{std::max(needed_.begin, source.columns.begin), std::min(needed_.end, source.columns.end)},
        before_(readable_.begin - needed_.begin),
        after_(needed_.end - readable_.end),
        row_(-record.above()),
        isInPlace_(Form::template kIsInPlace<T> && before_ == 0 && after_ == 0 &&
                   Samples(block.width) >= Form::kLanes) {}

  // What of the work buffer it takes.
  int64_t Bytes() const {
    return PointerBytes() + EdgeBytes() + ConstantBytes() + (isInPlace_ ? 0 : lines_ * LineBytes());
  }

  // Prepares the lines of the first two rows of results. Returns where the memory ends that it takes.
  uint8_t* Start(uint8_t* memory) {
    const auto take = [&memory](int64_t bytes) { return std::exchange(memory, memory + bytes); };
    pointers_ = reinterpret_cast<const Element**>(take(PointerBytes()));
    edges_ = reinterpret_cast<int32_t*>(take(EdgeBytes()));
    constants_ = reinterpret_cast<T*>(take(ConstantBytes()));
    slots_ = take(isInPlace_ ? 0 : lines_ * LineBytes());
    FindEdges();
    FillConstants();
    for (ptrdiff_t i = 0; i < lines_; ++i) pointers_[i] = NextLine();
    return memory;
  }

  // The lines from the row that the upper one of two results begins with.
  const Element* const* lines() const { return pointers_; }

  // Goes on to the next two rows of results.
  void Advance() {
    constexpr ptrdiff_t kNew = 2 / Form::kRows;
    std::memmove(pointers_, pointers_ + kNew, (lines_ - kNew) * sizeof(*pointers_));
    for (ptrdiff_t i = lines_ - kNew; i < lines_; ++i) pointers_[i] = NextLine();
  }

 private:
  static constexpr int64_t Rounded(int64_t bytes) { return (bytes + kRecordBoundary - 1) & -int64_t{kRecordBoundary}; }
  int64_t PointerBytes() const { return Rounded(lines_ * int64_t{sizeof(*pointers_)}); }
  int64_t EdgeBytes() const { return Rounded((before_ + after_) * int64_t{sizeof(*edges_)}); }
  int64_t ConstantBytes() const {
    return source_.kind == BorderKind::kConst ? Rounded(ReadableSamples() * int64_t{sizeof(T)}) : 0;
  }
  int64_t LineBytes() const {
    return Rounded(Samples(needed_.end - needed_.begin) * int64_t{sizeof(Element)} + FilterWork::kSpare);
  }

  ptrdiff_t Samples(ptrdiff_t pixels) const { return pixels * source_.channels; }
  ptrdiff_t ReadableSamples() const { return Samples(readable_.end - readable_.begin); }

  // Where in the line each border column finds its like, or -1 for the constant.
  void FindEdges() {
    int32_t* edge = edges_;
    const auto find = [&](ptrdiff_t from, ptrdiff_t count) {
      for (ptrdiff_t x = from; x < from + count; ++x) {
        const ptrdiff_t like = BorderPosition(source_.kind, x, source_.columns);
        *edge++ = like == kOutside ? -1 : static_cast<int32_t>(like - needed_.begin);
      }
    };
    find(needed_.begin, before_);
    find(readable_.end, after_);
  }

  void FillConstants() {
    if (source_.kind != BorderKind::kConst) return;
    for (ptrdiff_t i = 0; i < ReadableSamples(); ++i) constants_[i] = source_.value[i % source_.channels];
  }

  // The readable samples of a row. Rows below the last one that counts are read by no result that counts.
  const T* RowAt(ptrdiff_t y) const {
    const ptrdiff_t row = BorderPosition(source_.kind, std::min(y, lastRow_), source_.rows);
    return row == kOutside ? constants_ : source_.image.Row(row) + Samples(readable_.begin);
  }

  const Element* NextLine() {
    const T* const first = RowAt(row_);
    const T* const rows[2] = {first, Form::kRows == 1 ? first : RowAt(row_ + 1)};
    row_ += Form::kRows;
    if constexpr (Form::template kIsInPlace<T>) {
      if (isInPlace_) return rows[0];
    }
    auto* line = reinterpret_cast<Element*>(slots_ + slot_ * LineBytes());
    slot_ = slot_ + 1 == lines_ ? 0 : slot_ + 1;
    ConvertRows<Form>(rows, line + Samples(before_), ReadableSamples());
    for (int i = 0; i < Form::kRows; ++i) FetchAhead(RowAt(row_ + i));
    FillEdges(line, 0, before_, edges_);
    FillEdges(line, before_ + readable_.end - readable_.begin, after_, edges_ + before_);
    return line;
  }

  // The next row of a block begins far from the end of this one, where the CPU does not expect it.
  void FetchAhead(const T* row) const {
    constexpr ptrdiff_t kCacheLine = 64 / sizeof(T);
    for (ptrdiff_t i = 0; i < ReadableSamples(); i += kCacheLine) hwy::Prefetch(row + i);
  }

  void FillEdges(Element* line, ptrdiff_t column, ptrdiff_t count, const int32_t* edges) const {
    const ptrdiff_t channels = source_.channels;
    for (ptrdiff_t i = 0; i < count; ++i) {
      Element* to = line + (column + i) * channels;
      for (ptrdiff_t c = 0; c < channels; ++c) {
        to[c] = edges[i] < 0 ? Form::Pack(source_.value[c], source_.value[c]) : line[edges[i] * channels + c];
      }
    }
  }

  const FilterSource<T>& source_;
  ptrdiff_t lines_, lastRow_;
  Extent needed_, readable_;
  ptrdiff_t before_, after_, row_, slot_ = 0;
  bool isInPlace_;  // rows of numbers that need no conversion, no border, and fill a vector
  const Element** pointers_ = nullptr;
  int32_t* edges_ = nullptr;
  T* constants_ = nullptr;
  uint8_t* slots_ = nullptr;
};

}  // namespace qvp
