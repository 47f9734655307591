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
  if (bordered.kind == BorderKind::kConst) std::memcpy(bordered.constant, constant, image.PixelBytes());
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
        readable_{std::max(columns.begin, image.columns.begin), std::min(columns.end, image.columns.end)},
        before_(readable_.begin - columns.begin),
        after_(columns.end - readable_.end),
        readableAt_(Samples(before_)),
        readableSamples_(Samples(readable_.end - readable_.begin)),
        firstReadable_(Samples(readable_.begin)),
        isInPlace_(Form::kIsInPlace && mayBeInPlace && before_ == 0 && after_ == 0) {}

  bool isInPlace() const { return isInPlace_; }
  int64_t LineBytes() const {
    return LineBytesFor(readableAt_ + readableSamples_ + Samples(after_), sizeof(Element)).value();
  }

  // What Start() takes: where border columns are found, and a row of constants.
  int64_t TableBytes() const { return ColumnBytes() + ConstantBytes(); }

  // Prepares the tables. Returns where the memory ends that they take; it begins at a boundary.
  uint8_t* Start(uint8_t* memory) {
    places_ = reinterpret_cast<int32_t*>(memory);
    FindColumns(readable_.begin - before_, before_, places_);
    FindColumns(readable_.end, after_, places_ + before_);
    constants_ = reinterpret_cast<T*>(memory + ColumnBytes());
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
    FillColumns(room);
    return room;
  }

 private:
  static constexpr ptrdiff_t kFetchedSamples = 128;  // shorter lines are not worth it

  ptrdiff_t Samples(ptrdiff_t pixels) const { return pixels * channels_; }
  int64_t ColumnBytes() const {
    return ByteCount((before_ + after_) * int64_t{sizeof(*places_)}).RoundedTo(kRecordBoundary).value();
  }
  int64_t ConstantBytes() const {
    return image_.kind == BorderKind::kConst ? LineBytesFor(readableSamples_, sizeof(T)).value() : 0;
  }

  // Columns of the border are copies of others in the line.
  void FindColumns(ptrdiff_t x, ptrdiff_t count, int32_t* to) const {
    for (ptrdiff_t i = 0; i < count; ++i) {
      const ptrdiff_t column = BorderPosition(image_.kind, x + i, image_.columns);
      to[i] = column == kOutside ? 0 : static_cast<int32_t>(Samples(column - readable_.begin) + readableAt_);
    }
  }

  void FillConstants() {
    const T* const pixels[2] = {image_.constant, image_.constant};
    for (ptrdiff_t c = 0; c < channels_; ++c) constant_[c] = Form::Of(pixels, c);
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

  void FillColumns(Element* line) const {
    if (channels_ == 1) return FillColumnsOf<1>(line);
    if (channels_ == 3) return FillColumnsOf<3>(line);
    FillColumnsOf<4>(line);
  }
  template <int kChannels>
  HWY_INLINE void FillColumnsOf(Element* line) const {
    const bool isConstant = image_.kind == BorderKind::kConst;
    const auto fill = [&](const int32_t* places, ptrdiff_t count, Element* to) QVP_INLINED {
      QVP_ROLLED
      for (ptrdiff_t i = 0; i < count; ++i, to += kChannels) {
        std::memcpy(to, isConstant ? constant_ : line + places[i], kChannels * sizeof(Element));
      }
    };
    fill(places_, before_, line);
    fill(places_ + before_, after_, line + readableAt_ + readableSamples_);
  }

  const BorderedImage<T>& image_;
  ptrdiff_t channels_;
  Extent readable_;
  ptrdiff_t before_, after_;                                // border columns on either side
  ptrdiff_t readableAt_, readableSamples_, firstReadable_;  // where they are in a line, how many, and where in a row
  bool isInPlace_;
  int32_t* places_ = nullptr;  // where in a line the pixel is that each border column takes
  Element constant_[4] = {};
  T* constants_ = nullptr;  // stands for the readable columns of rows of the constant
};

}  // namespace qvp
