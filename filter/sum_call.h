// Calls of the filters that sum pixels under a window: what they take, their checks, and the lanes that sums need.
#pragma once

#include "filter/float_sums.h"
#include "filter/integer_sums.h"
#include "filter/window_call.h"

namespace qvp::filter {

constexpr bool IsSummed(QvpiSize mask) {
  return mask.width >= 1 && mask.height >= 1 && int64_t{mask.width} * mask.height <= INT32_MAX;
}

// Above all magnitudes of integers.
template <class T>
constexpr int64_t kBeyondPixels = int64_t{1} << (8 * sizeof(T));

// Sums of so many pixels fit lanes of 16 bits without a sign, or of 32 bits. Doubles hold those of any mask exactly.
constexpr int64_t kMostBytesIn16Bits = 257;
template <class T>
constexpr bool Fits32Bits(int64_t count) {
  return count <= INT32_MAX / kBeyondPixels<T>;
}

// Rows that are kept for a mask; they grow with it, and no call keeps more.
template <class T>
KeptRows KeptFor(QvpiSize mask) {
  if constexpr (std::is_same_v<T, float>) {
    return {RowsKept(TreeAcross(mask.width), TreeDown(mask.height)), sizeof(float)};
  } else {
    const bool isShort = Fits32Bits<T>(int64_t{mask.width} * mask.height);
    return {SumRows::kLevels + SumTree(mask.width).levels(), isShort ? int{sizeof(int32_t)} : int{sizeof(double)}};
  }
}
inline KeptRows KeptFor(QvpDataType type, QvpiSize mask) {
  return type == qvp8u    ? KeptFor<uint8_t>(mask)
         : type == qvp32f ? KeptFor<float>(mask)
                          : KeptFor<uint16_t>(mask);  // or signed
}

template <class T, class R>
struct SumCall {
  WindowCall<T, R> on;
  QvpiSize mask;
  QvpiPoint anchor;

  int64_t Count() const { return int64_t{mask.width} * mask.height; }

  QvpStatus Check() const {
    if (const QvpStatus failed = on.Check()) return failed;
    return CheckAnchored(IsSummed(mask), mask, anchor, on.border);
  }

  template <class L, class Finish>
  void RunIntegers(void (*columns)(const SumShape&, const Window&), const Finish& finish) const {
    Run(IntegerSums<T, L, Finish>{Shape(), SumTree(mask.width), columns, finish});
  }
  template <class Finish>
  void RunFloats(const Finish& finish) const {
    Run(FloatSums<Finish>{Shape(), TreeAcross(mask.width), TreeDown(mask.height), finish});
  }

 private:
  SumShape Shape() const { return {mask.width, mask.height, on.channels()}; }

  template <class Sums>
  void Run(const Sums& sums) const {
    FilterWindows(on.Reaching(ReachOf(mask, anchor)), sums.AsKernel());
  }
};

}  // namespace qvp::filter
