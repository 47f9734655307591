// Transforms of planes of real numbers whose spectra are multiplied: convolutions. The spectra are in the order that
// the passes leave, which their products do not mind, so that nothing is put in order.
//
// Across, a plane is convolved cyclically. Down, what leaves the plane comes in again with the other sign: a polynomial
// modulo x^2h + 1, of which (x^h - i) is a factor. Modulo that, rows y and y + h of real numbers are the parts of one
// complex row y, and with x = z e^(i pi / 2h), the twist, the product is a cyclic one of h rows. The real plane costs
// the transform of half as many complex numbers, without the work that separates spectra of two halves.
#pragma once

#include <cstdint>

#include "base/record.h"
#include "base/simd.h"

namespace qvp::dft {

// A length with factors of 2, 3 and 5, in the order of the passes.
struct SmoothLength {
  int64_t length;
  int factorCount;
  uint8_t factors[40];

  // No factors of another length.
  static SmoothLength Of(int64_t length);
};

// F is float or double. Columns go through the passes in blocks of kLines of them, rows in groups of as many.
template <class F>
class PlaneTransform {
 public:
  static constexpr int kLines = 32 / sizeof(F);

  // Sides whose factors are 2, 3 and 5: `width` a multiple of kLines, `height` one of 2 kLines.
  PlaneTransform(int64_t width, int64_t height);

  ptrdiff_t width() const { return static_cast<ptrdiff_t>(across_.length); }
  ptrdiff_t half() const { return static_cast<ptrdiff_t>(down_.length); }  // of the height

  // Of the tables, of a plane and of a block of columns; all begin at boundaries.
  int64_t TableBytes() const;
  int64_t PlaneBytes() const { return half() / kLines * (int64_t{GroupStep()} * int64_t{sizeof(F)}); }
  int64_t BlockBytes() const { return (half() + kSpareRows) * (2 * kLines * int64_t{sizeof(F)}); }

  // Writes the tables. The others are called then.
  void Start(uint8_t* memory);

  // A block has rows of kLines numbers: row 2 y is row y of the plane, row 2 y + 1 its row y + half().
  // Transforms columns from x on, whose block is overwritten, and the same back.
  void PutColumns(F* block, ptrdiff_t x, F* plane) const;
  void GetColumns(const F* plane, ptrdiff_t x, F* block) const;

  // Transforms all rows and multiplies what comes out by a number.
  void TransformRows(F scale, F* plane) const;
  // Multiplies rows by those of a spectrum, and back. With `isPut`, the plane's own rows are transformed first, and
  // stay so. The result may be in the place of the plane.
  void MultiplyRows(const F* spectrum, bool isPut, F* plane, F* out) const;

 private:
  // Between groups of rows there is a distance that is no power of two.
  static constexpr ptrdiff_t kSpareRows = kLines;
  ptrdiff_t GroupStep() const { return (width() + kSpareRows) * 2 * kLines; }

  SmoothLength across_, down_;
  F *twiddlesAcross_ = nullptr, *twiddlesDown_ = nullptr, *twist_ = nullptr;
};

extern template class PlaneTransform<float>;
extern template class PlaneTransform<double>;

}  // namespace qvp::dft
