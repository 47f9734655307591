// The lines that sums over windows are made from: samples of a channel with the zeros around the image, in the form
// that a kernel reads, kept while it moves down. A form may have a last
// word on whole lines, Finish(line, samples).
#pragma once

#include "base/plane.h"
#include "base/row_ring.h"

namespace qvp {

// Bytes of an element of most forms, and of two samples.
inline constexpr int kLineElementBytes = 4;

template <class Form, class T>
class LineWindow {
 public:
  using Element = typename Form::Element;

  // Lines of columns, from a row on; in each, Form::kRows rows of the image. `mayBeInPlace`: nothing is read behind the
  // last sample, so that a row of the image may be a line if it needs no conversion.
  LineWindow(const Plane<T>& plane, Extent columns, bool mayBeInPlace, ptrdiff_t row, int lines, const Form& form = {})
      : plane_(plane), columns_(columns), next_(row), lines_(lines), form_(form) {
    before_ = std::clamp<ptrdiff_t>(-columns.begin, 0, Samples());
    inside_ = std::clamp<ptrdiff_t>(plane.size.width - columns.begin, before_, Samples()) - before_;
    isInPlace_ = Form::kIsInPlace && mayBeInPlace && plane.channels() == 1 && inside_ == Samples();
  }

  // Takes memory that begins at a boundary. Returns where it ends.
  uint8_t* Start(uint8_t* memory) {
    pointers_ = reinterpret_cast<const Element**>(memory);
    staged_ = reinterpret_cast<T*>(memory + PointerBytes());
    ring_ = {reinterpret_cast<Element*>(memory + PointerBytes() + LineBytes()),
             LineBytes() / ptrdiff_t{sizeof(Element)}, lines_};
    room_ = ring_.at;
    Prepare(0);
    return memory + Bytes();
  }
  int64_t Bytes() const { return PointerBytes() + LineBytes() * (isInPlace_ ? 1 : lines_ + 1); }
  ptrdiff_t LineBytes() const { return static_cast<ptrdiff_t>(LineBytesFor(Samples(), kElementBytes).value()); }

  const Element* const* lines() const { return pointers_; }

  void Advance(int count) {
    std::memmove(pointers_, pointers_ + count, (lines_ - count) * sizeof(*pointers_));
    Prepare(lines_ - count);
  }

 private:
  static constexpr int kElementBytes = std::max<int>(kLineElementBytes, sizeof(Element));

  ptrdiff_t Samples() const { return columns_.end - columns_.begin; }

  int64_t PointerBytes() const { return ByteCount(lines_ * int64_t{8}).RoundedTo(kRecordBoundary).value(); }

  HWY_NOINLINE void Prepare(int line) {
    for (; line < lines_; ++line, next_ += Form::kRows) {
      if constexpr (Form::kIsInPlace) {
        if (isInPlace_) {
          pointers_[line] = Readable(next_, staged_);
          continue;
        }
      }
      Fill();
      pointers_[line] = room_;
      room_ = ring_.Next(room_);
    }
  }

  void Fill() {
    const T* const upper = Readable(next_, staged_);
    const T* const lower = Form::kRows == 1 ? upper : Readable(next_ + 1, staged_ + Samples());
    constexpr T kZero[1] = {};
    const Element outside = Form::Of({kZero, kZero}, 0);
    std::fill_n(room_, before_, outside);
    ConvertRows<Form>({upper, lower}, room_ + before_, inside_);
    for (int i = 0; i < Form::kRows; ++i) FetchAhead(next_ + Form::kRows + i);
    const ptrdiff_t end = before_ + inside_;
    std::fill_n(room_ + end, Samples() - end, outside);
    if constexpr (requires { form_.Finish(room_, end); }) form_.Finish(room_, Samples());
  }

  // The next row of a block of columns begins far from the end of this one, where the CPU does not expect it.
  void FetchAhead(ptrdiff_t row) const {
    constexpr ptrdiff_t kCacheLine = 64 / sizeof(T);
    if (!plane_.HasRow(row) || inside_ == 0) return;
    const T* const samples = plane_.At(columns_.begin + before_, row);
    for (ptrdiff_t i = 0; i < inside_ * plane_.channels(); i += kCacheLine) hwy::Prefetch(samples + i);
  }

  // The samples inside the image, as neighbours.
  const T* Readable(ptrdiff_t row, T* staged) const {
    if (!plane_.HasRow(row)) {
      std::memset(staged, 0, inside_ * sizeof(T));
      return staged;
    }
    const T* const samples = plane_.At(columns_.begin + before_, row);
    if (plane_.channels() == 1) return samples;
    CopySamples(samples, plane_.channels(), inside_, staged);
    return staged;
  }

  const Plane<T>& plane_;
  Extent columns_;
  ptrdiff_t before_, inside_, next_;
  int lines_;
  Form form_;
  bool isInPlace_;
  const Element** pointers_ = nullptr;
  T* staged_ = nullptr;
  RowRing<Element> ring_{};
  Element* room_ = nullptr;
};

}  // namespace qvp
