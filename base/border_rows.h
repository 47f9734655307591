// Pixels of an image with what the border puts around them: the one source of all operations that read around their
// pixels. Single pixels and rows by their position, and lines of columns in the form that a kernel reads.
#pragma once

#include <hwy/cache_control.h>

#include <algorithm>
#include <cstring>

#include "base/border.h"
#include "base/lanes.h"
#include "base/record.h"
#include "base/row_vectors.h"

namespace qvp {

// How far an operation reads beyond a pixel.
struct Reach {
  ptrdiff_t left, above, right, below;
};

// The image around a region. Positions count from the first pixel of the region.
template <class T>
struct BorderedImage {
  Image<const T> image;  // at position (0, 0)
  BorderKind kind;
  Extent columns, rows;  // what can be read; the kind applies outside of it
  T constant[4] = {};    // one value for each channel

  int channels() const { return Channels(image.layout); }

  // The pixel at column 0 of what stands for row y; null if that is the constant.
  const T* Row(ptrdiff_t y) const {
    const ptrdiff_t row = BorderPosition(kind, y, rows);
    return row == kOutside ? nullptr : image.Row(row);
  }

  // The pixel that stands for column x of such a row.
  const T* PixelOf(const T* row, ptrdiff_t x) const {
    const ptrdiff_t column = BorderPosition(kind, x, columns);
    return row == nullptr || column == kOutside ? constant : row + column * channels();
  }
};

// `constant` is looked at for BorderKind::kConst only.
template <class T>
BorderedImage<T> WithBorder(const Image<const T>& image, Size roi, QvpiBorderType border, const T* constant,
                            const Reach& reach) {
  BorderedImage<T> bordered{image, KindOf(border), EffectiveColumns(border, roi.width, reach.left, reach.right),
                            EffectiveRows(border, roi.height, reach.above, reach.below)};
  if (bordered.kind == BorderKind::kConst) {  // of alpha that is kept there is none
    std::memcpy(bordered.constant, constant, ProcessedChannels(image.layout) * image.elementBytes);
  }
  return bordered;
}

// ---- Forms of a line: what its elements are, from how many successive rows they are made (1 or 2), and how one
// element and a vector of them are made. Convert reads and writes kLanes samples.

// The samples of a row as numbers of F. Where these are the same, the image's own row may serve as the line.
template <class T, class F>
struct SingleRows {
  using Element = F;
  static constexpr int kRows = 1;
  static constexpr bool kIsInPlace = std::is_same_v<T, F>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<F>());

  static Element Of(const T* const (&rows)[2], ptrdiff_t i) {
    T value;
    std::memcpy(&value, rows[0] + i, sizeof(T));
    return static_cast<F>(value);
  }
  static void Convert(const T* const (&rows)[2], Element* out, ptrdiff_t i) {
    const hn::ScalableTag<F> d;
    hn::StoreU(LoadWide(d, rows[0] + i), d, out + i);
  }
};

template <class Form, class T>
HWY_NOINLINE void ConvertShortRows(const T* const (&rows)[2], typename Form::Element* out, ptrdiff_t n) {
  const Partial<T> upper(rows[0], n), lower(rows[1], n);
  Form::Convert({upper.lanes, lower.lanes}, out, 0);
}

// Converts n samples. Behind the last one there is room for a vector.
template <class Form, class T>
void ConvertRows(const T* const (&rows)[2], typename Form::Element* out, ptrdiff_t n) {
  constexpr ptrdiff_t kLanes = Form::kLanes;
  if (n < kLanes) return ConvertShortRows<Form>(rows, out, n);
  ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { Form::Convert(rows, out, i); });
}

// The border columns of lines: copies of other columns in the line, or the constant.
struct BorderColumns {
  ptrdiff_t before, inside, after;  // columns; those inside can be read
  bool isConstant, isUniform;       // all of a side are copies of one
  const int32_t* places = nullptr;  // where in a line the sample is that each border column begins with

  // Of lines of `columns`, among which are those that stand for border columns.
  template <class T>
  static BorderColumns Of(const BorderedImage<T>& image, Extent columns) {
    const ptrdiff_t begin = std::max(columns.begin, image.columns.begin),
                    end = std::min(columns.end, image.columns.end);
    const bool isConstant = image.kind == BorderKind::kConst;
    return {begin - columns.begin, end - begin, columns.end - end, isConstant,
            isConstant || image.kind == BorderKind::kReplicate};
  }

  int64_t Bytes() const {
    return ByteCount((before + after) * int64_t{sizeof(*places)}).RoundedTo(kRecordBoundary).value();
  }

  // Finds the places for lines that begin with a column; they take Bytes().
  template <class T>
  void Find(const BorderedImage<T>& image, ptrdiff_t first, int32_t* to) {
    places = to;
    const auto find = [&](ptrdiff_t x, ptrdiff_t count) {
      for (const ptrdiff_t end = x + count; x < end; ++x) {
        const ptrdiff_t column = BorderPosition(image.kind, x, image.columns);
        *to++ = column == kOutside ? 0 : static_cast<int32_t>((column - first) * image.channels());
      }
    };
    find(first, before);
    find(first + before + inside, after);
  }

  // Fills them in a line whose columns inside are there.
  template <class E>
  void Fill(ptrdiff_t channels, const E* constant, E* line) const {
    if (channels == 1) return FillPixels<1>(constant, line);
    if (channels == 3) return FillPixels<3>(constant, line);
    FillPixels<4>(constant, line);
  }

 private:
  template <int kChannels, class E>
  HWY_INLINE void FillPixels(const E* constant, E* line) const {
    constexpr ptrdiff_t kMany = 16;
    const auto fill = [&](const int32_t* from, ptrdiff_t count, E* to) QVP_INLINED {
      if (kChannels == 1 && isUniform && count >= kMany) {
        std::fill_n(to, count, isConstant ? *constant : line[*from]);
        return;
      }
      QVP_ROLLED
      for (ptrdiff_t i = 0; i < count; ++i, to += kChannels) {
        std::memcpy(to, isConstant ? constant : line + from[i], kChannels * sizeof(E));
      }
    };
    fill(places, before, line);
    fill(places + before, after, line + (before + inside) * kChannels);
  }
};

// ---- Lines

// What may be read and written behind a line: as many bytes as the longest vector has.
inline constexpr int64_t kLineSpare = 256;

// A line of so many samples with what is behind it. Lines begin at boundaries.
constexpr ByteCount LineBytesFor(ByteCount samples, int elementBytes) {
  return (samples * elementBytes + kLineSpare).RoundedTo(kRecordBoundary);
}

// Columns of an image, border columns among them, as lines.
template <class Form, class T>
class BorderRows {
 public:
  using Element = typename Form::Element;

  // `columns` has one at least that can be read, and with it those that stand for border columns. `mayBeInPlace`:
  // nothing is read behind the last sample of a line, so that a row of the image may be one if it needs no conversion
  // and no border columns.
  BorderRows(const BorderedImage<T>& image, Extent columns, bool mayBeInPlace)
      : image_(image),
        channels_(image.channels()),
        first_(columns.begin),
        columns_(BorderColumns::Of(image, columns)),
        readableAt_(Samples(columns_.before)),
        readableSamples_(Samples(columns_.inside)),
        firstReadable_(Samples(columns.begin + columns_.before)),
        isInPlace_(Form::kIsInPlace && mayBeInPlace && columns_.before == 0 && columns_.after == 0) {}

  bool isInPlace() const { return isInPlace_; }
  int64_t LineBytes() const {
    return LineBytesFor(readableAt_ + readableSamples_ + Samples(columns_.after), sizeof(Element)).value();
  }

  // What Start() takes: where border columns are found, and a row of constants.
  int64_t TableBytes() const { return columns_.Bytes() + ConstantBytes(); }

  // Prepares the tables. Returns where the memory ends that they take; it begins at a boundary.
  uint8_t* Start(uint8_t* memory) {
    columns_.Find(image_, first_, reinterpret_cast<int32_t*>(memory));
    constants_ = reinterpret_cast<T*>(memory + columns_.Bytes());
    if (image_.kind == BorderKind::kConst) FillConstants();
    return memory + TableBytes();
  }

  // The line that begins with row y: a row of the image, or else in `room`, which has LineBytes().
  const Element* Line(ptrdiff_t y, Element* room) const {
    const T* const first = image_.Row(y);
    const T* const rows[2] = {first, Form::kRows == 1 ? first : image_.Row(y + 1)};
    const T* const readable[2] = {Readable(rows[0]), Readable(rows[1])};
    if constexpr (Form::kIsInPlace) {
      if (isInPlace_) return readable[0];
    }
    ConvertRows<Form>(readable, room + readableAt_, readableSamples_);
    if (readableSamples_ >= kFetchedSamples) {
      for (int i = 0; i < Form::kRows; ++i) FetchAhead(Readable(image_.Row(y + Form::kRows + i)));
    }
    columns_.Fill(channels_, constant_, room);
    return room;
  }

 private:
  static constexpr ptrdiff_t kFetchedSamples = 128;  // shorter lines are not worth it

  ptrdiff_t Samples(ptrdiff_t pixels) const { return pixels * channels_; }
  int64_t ConstantBytes() const {
    return image_.kind == BorderKind::kConst ? LineBytesFor(readableSamples_, sizeof(T)).value() : 0;
  }

  void FillConstants() {
    const T* const pixels[2] = {image_.constant, image_.constant};
    for (ptrdiff_t c = 0; c < 4; ++c) constant_[c] = Form::Of(pixels, c);
    for (ptrdiff_t i = 0; i < readableSamples_; i += channels_) {
      std::memcpy(constants_ + i, image_.constant, channels_ * sizeof(T));
    }
  }

  const T* Readable(const T* row) const { return row == nullptr ? constants_ : row + firstReadable_; }

  // The next row of a block of columns begins far from the end of this one, where the CPU does not expect it.
  void FetchAhead(const T* row) const {
    constexpr ptrdiff_t kCacheLine = 64 / sizeof(T);
    for (ptrdiff_t i = 0; i < readableSamples_; i += kCacheLine) hwy::Prefetch(row + i);
  }

  const BorderedImage<T>& image_;
  ptrdiff_t channels_;
  ptrdiff_t first_;  // column of lines
  BorderColumns columns_;
  ptrdiff_t readableAt_, readableSamples_, firstReadable_;  // where they are in a line, how many, and where in a row
  bool isInPlace_;
  Element constant_[4] = {};
  T* constants_ = nullptr;  // stands for the readable columns of rows of the constant
};

}  // namespace qvp
