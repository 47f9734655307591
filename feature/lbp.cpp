// Local binary patterns: codes of a row, then what a mode makes of them in their place.
#include "base/map.h"
#include "base/row_ring.h"
#include "base/scalar.h"
#include "base/unrolled.h"
#include "feature/lbp_labels.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

// ---- Codes

// The k-th of kCount pixels along the rim of a square that reaches kRadius around its middle: from the right on
// counter-clockwise.
template <int kRadius, int kCount>
constexpr QvpiPoint OnRim(int k) {
  constexpr int kR = kRadius;
  const int i = k * (8 * kR / kCount);
  if (i < kR) return {kR, -i};
  if (i < 3 * kR) return {2 * kR - i, -kR};
  if (i < 5 * kR) return {-kR, i - 4 * kR};
  return i < 7 * kR ? QvpiPoint{i - 6 * kR, kR} : QvpiPoint{kR, 8 * kR - i};
}

// Lines of signed integers, which every CPU compares: unsigned ones less the middle of their range.
template <class T>
struct CentredRows {
  using Element = std::make_signed_t<T>;
  static constexpr int kRows = 1;
  static constexpr bool kIsInPlace = false;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<T>());

  static Element Of(const T* const (&rows)[2], ptrdiff_t i) {
    return static_cast<Element>(LoadScalar(rows[0] + i) ^ kMiddle);
  }
  static void Convert(const T* const (&rows)[2], Element* out, ptrdiff_t i) {
    const hn::ScalableTag<T> d;
    const hn::ScalableTag<Element> s;
    hn::StoreU(hn::BitCast(s, hn::Xor(hn::LoadU(d, rows[0] + i), hn::Set(d, kMiddle))), s, out + i);
  }

 private:
  static constexpr T kMiddle = static_cast<T>(T{1} << (8 * sizeof(T) - 1));
};
template <class T>
using LineForm = std::conditional_t<std::is_unsigned_v<T>, CentredRows<T>, SingleRows<T, T>>;

// Codes of type R of lines of T, with as many neighbours as R has bits.
template <class T, class R, int kRadius>
class Codes {
 public:
  static constexpr ptrdiff_t kAtOnce = hn::MaxLanes(hn::ScalableTag<R>()) * (sizeof(T) < sizeof(R) ? 2 : 1);

  // Those of a row of n samples, from the lines around it; where n is less than kAtOnce, with room behind them.
  static void Row(const void* const* lines, ptrdiff_t channels, ptrdiff_t n, void* to) {
    Codes codes;
    codes.channels_ = channels;
    for (int j = 0; j <= 2 * kRadius; ++j) codes.lines_[j] = static_cast<const T*>(lines[j]) + kRadius * channels;
    R* const out = static_cast<R*>(to);
    if (n >= kAtOnce) return ForEachVector<kAtOnce>(n, [&](ptrdiff_t i) HWY_ATTR { codes.Store(i, out + i); });
    R staged[kAtOnce];
    codes.Store(0, staged);
    std::memcpy(out, staged, n * sizeof(R));
  }

 private:
  static constexpr int kNeighbours = 8 * sizeof(R);
  using Lane = hwy::MakeUnsigned<T>;
  using V = hn::Vec<hn::ScalableTag<Lane>>;

  // A vector of codes from sample i on, in lanes as long as those of pixels: kCount bits, those from kFirst on.
  template <int kFirst, int kCount>
  HWY_INLINE V Bits(ptrdiff_t i) const {
    const hn::ScalableTag<T> d;
    const hn::ScalableTag<Lane> u;
    constexpr bool kIsFloat = std::is_floating_point_v<T>;
    const auto pixel = hn::LoadU(d, lines_[kRadius] + i);
    V code = hn::Set(u, kIsFloat ? Lane{0} : static_cast<Lane>((1 << kCount) - 1));
    Unrolled<kCount>([&](auto k) QVP_INLINED {
      constexpr QvpiPoint kAt = OnRim<kRadius, kNeighbours>(kFirst + k);
      const auto neighbour = hn::LoadU(d, lines_[kRadius + kAt.y] + i + kAt.x * channels_);
      // Bits of floats are set where they are to be, as NaN is in no order, others cleared where they are not.
      const auto isOther = [&]() QVP_INLINED {
        if constexpr (kIsFloat) return hn::Ge(neighbour, pixel);
        if constexpr (!kIsFloat) return hn::Gt(pixel, neighbour);
      }();
      const auto bit = hn::Set(u, static_cast<Lane>(1 << k));
      code = hn::Xor(code, hn::IfThenElseZero(hn::RebindMask(u, isOther), bit));
    });
    return code;
  }

  HWY_INLINE void Store(ptrdiff_t i, R* to) const {
    const hn::ScalableTag<R> d;
    if constexpr (sizeof(T) < sizeof(R)) {
      StoreWords(Bits<0, 8>(i), Bits<8, 8>(i), to);
    } else if constexpr (sizeof(T) == sizeof(R)) {
      hn::StoreU(Bits<0, kNeighbours>(i), d, to);
    } else {
      const hn::ScalableTag<std::make_signed_t<Lane>> s;
      constexpr ptrdiff_t kLanes = hn::MaxLanes(s);
      const auto part = [&](ptrdiff_t k) HWY_ATTR { return hn::BitCast(s, Bits<0, kNeighbours>(i + k * kLanes)); };
      if constexpr (sizeof(T) == 2) hn::StoreU(PackedInOrder<R>(part(0), part(1)), d, to);
      if constexpr (sizeof(T) == 4) hn::StoreU(NarrowParts<R>(s, part), d, to);
    }
  }

  // Words from their lower and their upper bytes.
  static HWY_INLINE void StoreWords(V lower, V upper, uint16_t* to) {
    const hn::ScalableTag<uint16_t> d;
    const auto low = hn::BitCast(d, lower), high = hn::BitCast(d, upper);
    const auto even = hn::Or(hn::And(low, hn::Set(d, 0xFF)), hn::ShiftLeft<8>(high));
    const auto odd = hn::Or(hn::ShiftRight<8>(low), hn::And(high, hn::Set(d, 0xFF00)));
    hn::StoreInterleaved2(even, odd, d, to);
  }

  const T* lines_[2 * kRadius + 1];  // where they hold the first sample
  ptrdiff_t channels_;
};

// ---- Rows

template <class R, class Label>
void LabelRow(void* row, ptrdiff_t n) {
  MapRow<false>(hn::ScalableTag<R>(), static_cast<R*>(row), n, Label(), static_cast<const R*>(row));
}

// What makes a row of results.
struct RowKernel {
  void (*codes)(const void* const* lines, ptrdiff_t channels, ptrdiff_t n, void* to);
  void (*labels)(void* row, ptrdiff_t n);  // null if these are the codes
  ptrdiff_t atOnce;                        // samples that are read together
};

template <class T, class R, int kRadius>
RowKernel KernelFor(QvpiLBPMode mode) {
  using C = Codes<typename LineForm<T>::Element, R, kRadius>;
  constexpr decltype(RowKernel::labels) kLabels[] = {nullptr, LabelRow<R, lbp::LeastRotation>,
                                                     LabelRow<R, lbp::UniformLabel>, LabelRow<R, lbp::UniformOnes>};
  return {C::Row, kLabels[mode], C::kAtOnce};
}

constexpr int64_t kLineBytes = 16384;  // of all lines of a block, so that they stay in the nearest cache

WindowPlan PlanFor(int side, int channels, int64_t regionWidth, int elementBytes) {
  return WindowPlan(side, side, channels, regionWidth, elementBytes, kLineBytes / elementBytes);
}

template <class T>
void DescribePixels(const Windows<T>& windows, int radius, const RowKernel& kernel) {
  const int side = 2 * radius + 1, channels = windows.src.channels();
  const Bytes& dst = windows.outputs[0];
  PlanFor(side, channels, windows.roi.width, sizeof(T)).ForEachBlock([&](Extent columns) {
    const ptrdiff_t n = (columns.end - columns.begin) * channels;
    RowWindow<LineForm<T>, T> window(windows.src, {columns.begin - radius, columns.end + radius}, n >= kernel.atOnce,
                                     -radius, side);
    window.Start(AtBoundary(windows.buffer));
    for (ptrdiff_t y = 0; y < windows.roi.height; ++y) {
      if (y > 0) window.Advance(1);
      uint8_t* const row = dst.Row(y) + columns.begin * dst.PixelBytes();
      kernel.codes(reinterpret_cast<const void* const*>(window.lines()), channels, n, row);
      if (kernel.labels) kernel.labels(row, n);
    }
  });
}

// ---- Calls

constexpr bool IsSquare(QvpiSize mask, int side) { return mask.width == side && mask.height == side; }

// The rim of 3 x 3 pixels has no more than 8.
template <class T, class R>
QvpStatus LocalPatterns(const WindowCall<T, R>& call, QvpiSize mask, QvpiLBPMode mode) {
  const bool isSmall = sizeof(R) == 1 && IsSquare(mask, 3);
  if (const QvpStatus failed = call.CheckPointersAndSize(call.buffer)) return failed;
  if (const QvpStatus failed = Validate<kSteps>(call.roi, {call.src, call.dst})) return failed;
  if (!isSmall && !IsSquare(mask, 5)) return qvpStatusMaskSize;
  if (mode < qvpLBPCode || mode > qvpLBPUniformRotation) return qvpStatusNotSupportedMode;
  if (const QvpStatus failed = CheckBorder(call.border)) return failed;
  const int radius = isSmall ? 1 : 2;
  RowKernel kernel = KernelFor<T, R, 2>(mode);
  if constexpr (sizeof(R) == 1) {
    if (isSmall) kernel = KernelFor<T, R, 1>(mode);
  }
  DescribePixels(call.template Reaching<T>({radius, radius, radius, radius}), radius, kernel);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterLBPBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                           int* pBufferSize) {
  if (!pBufferSize) return qvpStatusNullPointer;
  if (!IsFilteredType(dataType)) return qvpStatusDataType;
  if (numChannels != 1 && numChannels != 3) return qvpStatusNumChannels;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (!IsSquare(maskSize, 3) && !IsSquare(maskSize, 5)) return qvpStatusMaskSize;
  const int elementBytes = dataType == qvp8u ? 1 : dataType == qvp32f ? 4 : 2;
  return PlanFor(maskSize.width, numChannels, roiSize.width, elementBytes).Bytes().StoreTo(pBufferSize);
}

#define PATTERNS(from, to, types, layout) \
  QVP_WINDOW(LBP, from, to, types, layout, LocalPatterns, (QvpiSize maskSize, QvpiLBPMode mode), (), (maskSize, mode))
#define PATTERNS_C1_C3(from, to, types) PATTERNS(from, to, types, C1) PATTERNS(from, to, types, C3)
PATTERNS_C1_C3(8u, 8u, 8u)
PATTERNS_C1_C3(16u, 8u, 16u8u)
PATTERNS_C1_C3(16s, 8u, 16s8u)
PATTERNS_C1_C3(32f, 8u, 32f8u)
PATTERNS_C1_C3(8u, 16u, 8u16u)
PATTERNS_C1_C3(16u, 16u, 16u)
PATTERNS_C1_C3(16s, 16u, 16s16u)
PATTERNS_C1_C3(32f, 16u, 32f16u)
