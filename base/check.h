// Argument checks. A family states its documented order as the template arguments of Validate.
#pragma once

#include <cstring>
#include <initializer_list>

#include "base/image.h"

namespace qvp {

enum class Check {
  kPointers,      // images, then the other pointers: not null
  kSize,          // both sides of the region: at least 1
  kSteps,         // steps: at least 1
  kStepsNotZero,  // steps: any but 0
};
using enum Check;

// An image reduced to what the checks look at.
struct Operand {
  const void* data;
  ptrdiff_t step;
  template <class T>
  Operand(const Image<T>& image) : data(image.data), step(image.step) {}
};
using Operands = std::initializer_list<Operand>;
using Pointers = std::initializer_list<const void*>;

inline bool Passes(Check check, Size roi, Operands images, Pointers others) {
  if (check == kSize) return roi.width >= 1 && roi.height >= 1;
  for (const Operand& image : images) {
    if (check == kPointers ? image.data == nullptr : check == kSteps ? image.step < 1 : image.step == 0) return false;
  }
  for (const void* pointer : others) {
    if (check == kPointers && pointer == nullptr) return false;
  }
  return true;
}

constexpr QvpStatus FailureOf(Check check) {
  switch (check) {
    case kPointers: return qvpStatusNullPointer;
    case kSize: return qvpStatusSize;
    default: return qvpStatusStep;
  }
}

// The status of the first check that fails, in the order of the template arguments, or success.
template <Check... kOrder>
inline QvpStatus Validate(Size roi, Operands images, Pointers others = {}) {
  QvpStatus failed = qvpStatusNoError;
  (void)((Passes(kOrder, roi, images, others) || ((failed = FailureOf(kOrder)), false)) && ...);
  return failed;
}

// Whether lower <= upper for each processed channel. NaN is in no order.
template <class T>
bool AreOrdered(const T* lower, const T* upper, Layout layout) {
  for (int c = 0; c < ProcessedChannels(layout); ++c) {
    T from, to;
    std::memcpy(&from, lower + c, sizeof(T));
    std::memcpy(&to, upper + c, sizeof(T));
    if (!(from <= to)) return false;
  }
  return true;
}

}  // namespace qvp
