// Types of elements as values, so that one function, compiled once, serves all of them.
#pragma once

#include <string_view>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace test {

// Holds every element exactly.
using Real = long double;

struct Element {
  std::string_view name;
  QvpDataType code;  // 0 where functions have none for it
  int bytes;
  bool isInteger;
  Real lowest, highest;
  Real (*read)(const uint8_t*);
  void (*write)(uint8_t*, Real);

  // What an element of this type makes of a value that it can hold.
  Real Stored(Real value) const;
};

// By its name as in "16u"; of the pairs 32fc and 32sc it is the part.
const Element& ElementOf(std::string_view name);
// That whose name the text begins with, which it is taken from; or null.
const Element* TakeElement(std::string_view& text);
// Of the pixels that a parameter's type, as in "const Qvp16u*", points at; or null.
const Element* PointedAt(std::string_view type);

// The same value, and the same sign of zero; a NaN has neither.
bool AreSame(Real a, Real b);

template <class T>
bool SameBits(T a, T b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Values at which something changes: ends of the type, signs, zeros of both signs, ties, what is not finite, close
// whole numbers; and random bits.
Real EdgeValue(const Element& element, Random& random);
// The same without NaN and infinities, and small enough for sums and products of them.
Real PlainValue(const Element& element, Random& random);

// An image of elements, `samples` in a row.
class Samples : public Image<uint8_t> {
 public:
  Samples(const Element& e, int samples, int height, int gap, Guard guard = Guard::kAfter)
      : Image(samples * e.bytes, height, gap, guard), element_(&e), samples_(samples), height_(height) {}

  const Element& element() const { return *element_; }
  int width() const { return samples_; }
  int height() const { return height_; }
  Real operator()(int x, int y) const { return element_->read(At(x, y)); }
  void Put(int x, int y, Real value) { element_->write(At(x, y), value); }
  uint8_t* At(int x, int y) const { return bytes() + ptrdiff_t{y} * step() + ptrdiff_t{x} * element_->bytes; }
  template <class T>
  T* As() const {
    return reinterpret_cast<T*>(bytes());
  }
  // Fills with value(x, y).
  template <class Value>
  void Fill(const Value& value) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < samples_; ++x) Put(x, y, value(x, y));
    }
  }

 private:
  const Element* element_;
  int samples_, height_;
};

}  // namespace test
