// Vector medians: of the pixels of a rectangle, that whose distances to the others have the least sum.
//
// Each pair of pixels has one distance, whichever of both is asked. The distances from a new line to itself and to
// those above it are kept for as long as both are under the mask.
#include "base/export.h"
#include "filter/median.h"
#include "filter/unrolled.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

constexpr int kLongestSide = 7, kColours = 3, kMostOffsets = 2 * kLongestSide - 1;

// Rows that are kept, all of numbers of one type for each pixel: what has room for a pixel has room for two of them.
constexpr KeptRows RowsFor(QvpiSize mask) {
  const int offsets = 2 * mask.width - 1;
  return {mask.height * (kColours + mask.height * offsets) + offsets + 2, 2};
}

// F: 16-bit lanes, which hold the sums of L1 of bytes, or floats, which hold those of L1 of 16-bit numbers.
template <class F>
struct Distances {
  using D = hn::ScalableTag<F>;
  using V = hn::Vec<D>;

  static HWY_INLINE V Difference(V a, V b) {
    if constexpr (std::is_integral_v<F>)
      return hn::Or(hn::SaturatedSub(a, b), hn::SaturatedSub(b, a));
    else
      return hn::Abs(hn::Sub(a, b));
  }
  template <bool kIsL2>
  static HWY_INLINE V Of(V d0, V d1, V d2) {
    if constexpr (!kIsL2)
      return hn::Add(hn::Add(d0, d1), d2);
    else
      return hn::Sqrt(hn::Add(hn::Add(hn::Mul(d0, d0), hn::Mul(d1, d1)), hn::Mul(d2, d2)));
  }
};

template <class T, class F, bool kIsL2>
class VectorKernel {
 public:
  struct Context {
    QvpiSize mask;
    ptrdiff_t channels;
  };

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const VectorKernel kernel(*static_cast<const Context*>(context), window);
    for (ptrdiff_t l = window.y == 0 ? 0 : kernel.height_ - 1; l < kernel.height_; ++l) kernel.Enter(l);
    kernel.Choose();
    kernel.Put(reinterpret_cast<T*>(rows.upper[0]));
  }

 private:
  using D = hn::ScalableTag<F>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  VectorKernel(const Context& context, const Window& window)
      : window_(window),
        channels_(context.channels),
        width_(context.mask.width),
        height_(context.mask.height),
        offsets_(2 * width_ - 1),
        results_(window.samples / channels_),
        pixels_(results_ + width_ - 1) {}

  // ---- Rows that are kept. Lines are counted from the uppermost of the mask.

  F* Kept(ptrdiff_t row) const { return reinterpret_cast<F*>(window_.kept + row * window_.keptStep); }
  ptrdiff_t Slot(ptrdiff_t line) const { return (window_.y + line) % height_; }
  F* Colour(ptrdiff_t line, int c) const { return Kept(Slot(line) * kColours + c); }
  // The distances from pixels of an upper line, or of the same, to those of a lower one, `dx` to their right.
  F* Distance(ptrdiff_t upper, ptrdiff_t lower, ptrdiff_t dx) const {
    return Kept(height_ * kColours + (Slot(lower) * height_ + lower - upper) * offsets_ + dx + width_ - 1);
  }
  // The sums of the distances from pixels to a column of the mask, `dx` to their right.
  F* ColumnSum(ptrdiff_t dx) const { return Kept(height_ * (kColours + height_ * offsets_) + dx + width_ - 1); }
  F* Best() const { return ColumnSum(width_); }
  F* Choice() const { return ColumnSum(width_ + 1); }

  // Vectors at the places [begin, end), and as far beyond as there is room: rows end with a vector's.
  template <class Step>
  static HWY_INLINE void ForVectors(ptrdiff_t begin, ptrdiff_t end, const Step& step) {
    for (ptrdiff_t x = begin; x < end; x += kLanes) step(end - begin < kLanes ? x : std::min(x, end - kLanes));
  }

  // ---- A line that comes under the mask

  void Enter(ptrdiff_t line) const {
    const auto* const from = static_cast<const T*>(window_.lines[line]);
    for (int c = 0; c < kColours; ++c) {
      F* const to = Colour(line, c);
      for (ptrdiff_t x = 0; x < pixels_; ++x) {
        T value;
        std::memcpy(&value, from + x * channels_ + c, sizeof(T));
        to[x] = static_cast<F>(value);
      }
    }
    for (ptrdiff_t upper = 0; upper <= line; ++upper) {
      for (ptrdiff_t dx = 1 - width_; dx < width_; ++dx) Measure(upper, line, dx);
    }
  }

  void Measure(ptrdiff_t upper, ptrdiff_t lower, ptrdiff_t dx) const {
    const D d;
    const F *const a0 = Colour(upper, 0), *const a1 = Colour(upper, 1), *const a2 = Colour(upper, 2);
    const F *const b0 = Colour(lower, 0) + dx, *const b1 = Colour(lower, 1) + dx, *const b2 = Colour(lower, 2) + dx;
    F* const to = Distance(upper, lower, dx);
    ForVectors(std::max<ptrdiff_t>(0, -dx), pixels_ - std::max<ptrdiff_t>(0, dx), [=](ptrdiff_t x) HWY_ATTR {
      const auto difference = [=](const F* a, const F* b) QVP_INLINED {
        return Distances<F>::Difference(hn::LoadU(d, a + x), hn::LoadU(d, b + x));
      };
      hn::StoreU(Distances<F>::template Of<kIsL2>(difference(a0, b0), difference(a1, b1), difference(a2, b2)), d,
                 to + x);
    });
  }

  // ---- The choice

  // For the pixels of a line of the mask, from the top down.
  void SumColumns(ptrdiff_t line) const {
    for (ptrdiff_t dx = 1 - width_; dx < width_; ++dx) {
      const F* terms[kLongestSide];
      for (ptrdiff_t l = 0; l < height_; ++l) {
        terms[l] = l >= line ? Distance(line, l, dx) : Distance(l, line, -dx) + dx;
      }
      const D d;
      const ptrdiff_t height = height_;
      F* const to = ColumnSum(dx);
      ForVectors(std::max<ptrdiff_t>(0, -dx), pixels_ - std::max<ptrdiff_t>(0, dx), [&](ptrdiff_t x) HWY_ATTR {
        V sum = hn::LoadU(d, terms[0] + x);
        for (ptrdiff_t l = 1; l < height; ++l) sum = hn::Add(sum, hn::LoadU(d, terms[l] + x));
        hn::StoreU(sum, d, to + x);
      });
    }
  }

  // Of the pixel of the mask in a column, for the masks from x on.
  HWY_INLINE V SumOf(const F* const* columns, ptrdiff_t i, ptrdiff_t x) const {
    const D d;
    V sum = hn::LoadU(d, columns[-i] + x + i);
    for (ptrdiff_t k = 1; k < width_; ++k) sum = hn::Add(sum, hn::LoadU(d, columns[k - i] + x + i));
    return sum;
  }

  // Choices are numbers of pixels of the mask, in the order of rows.
  void Choose() const {
    const D d;
    const ptrdiff_t middle = height_ / 2, centre = width_ / 2;
    const F* sums[kMostOffsets];
    for (ptrdiff_t k = 0; k < offsets_; ++k) sums[k] = ColumnSum(k + 1 - width_);
    const F* const* const columns = sums + width_ - 1;
    F *const best = Best(), *const choice = Choice();
    SumColumns(middle);
    const V first = hn::Set(d, static_cast<F>(middle * width_ + centre));
    ForVectors(0, results_, [&](ptrdiff_t x) HWY_ATTR {
      hn::StoreU(SumOf(columns, centre, x), d, best + x);
      hn::StoreU(first, d, choice + x);
    });
    for (ptrdiff_t j = 0; j < height_; ++j) {
      SumColumns(j);
      ForVectors(0, results_, [&](ptrdiff_t x) HWY_ATTR {
        V least = hn::LoadU(d, best + x), chosen = hn::LoadU(d, choice + x);
        for (ptrdiff_t i = 0; i < width_; ++i) {
          const V sum = SumOf(columns, i, x);
          const auto isLess = hn::Lt(sum, least);
          least = hn::IfThenElse(isLess, sum, least);
          chosen = hn::IfThenElse(isLess, hn::Set(d, static_cast<F>(j * width_ + i)), chosen);
        }
        hn::StoreU(least, d, best + x);
        hn::StoreU(chosen, d, choice + x);
      });
    }
  }

  void Put(T* to) const {
    const F* const choice = Choice();
    ptrdiff_t places[kLongestSide * kLongestSide];
    for (ptrdiff_t k = 0; k < width_ * height_; ++k) places[k] = k % width_ * channels_;
    const auto width = static_cast<unsigned>(width_);
    for (ptrdiff_t x = 0; x < results_; ++x, to += channels_) {
      const auto k = static_cast<unsigned>(choice[x]);
      const auto* const line = static_cast<const T*>(window_.lines[k / width]);
      std::memcpy(to, line + x * channels_ + places[k], channels_ * sizeof(T));
    }
  }

  const Window& window_;
  const ptrdiff_t channels_, width_, height_, offsets_, results_, pixels_;
};

template <class T, class F, bool kIsL2>
void FilterVectors(const Windows<BitsOf<T>>& windows, QvpiSize mask) {
  using Kernel = VectorKernel<T, F, kIsL2>;
  const typename Kernel::Context context{mask, windows.src.channels()};
  FilterWindows(windows, {.context = &context,
                          .across = nullptr,
                          .down = Kernel::Down,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = 1,
                          .kept = RowsFor(mask),
                          .cacheBytes = kSecondCacheBytes});
}

template <class T>
QvpStatus MedianVector(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiSize mask, QvpNormType norm,
                       QvpiBorderType border, const T* value, uint8_t* buffer) {
  if (const QvpStatus failed = CheckWindow(src, dst, roi, border, value, {buffer})) return failed;
  if (!IsOddUpTo(kLongestSide, mask)) return qvpStatusMaskSize;
  if (norm != qvpNormL1 && norm != qvpNormL2) return qvpStatusNotSupportedMode;
  if (!IsBorderOf({BorderKind::kReplicate, BorderKind::kConst}, border)) return qvpStatusBorder;
  const ptrdiff_t beside = mask.width / 2, beyond = mask.height / 2;
  auto windows = WindowsOn(src, roi, border, value, {beside, beyond, beside, beyond}, buffer);
  windows.outputs[0] = AsBytes(dst);
  if (norm == qvpNormL2) {
    FilterVectors<T, float, true>(windows, mask);
  } else {
    FilterVectors<T, std::conditional_t<sizeof(T) == 1, uint16_t, float>, false>(windows, mask);
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterMedianVectorBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                    int numChannels, int* pBufferSize) {
  const bool isMask = IsOddUpTo(kLongestSide, maskSize);
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, isMask, dataType, 3)) return failed;
  if (dataType == qvp16s) return qvpStatusDataType;
  if (numChannels != 3 && numChannels != 4) return qvpStatusNumChannels;
  const int elementBytes = dataType == qvp8u ? 1 : dataType == qvp16u ? 2 : 4;
  return WindowBytes(maskSize, roiSize.width, numChannels, elementBytes, RowsFor(maskSize), kSecondCacheBytes)
      .StoreTo(pBufferSize);
}

#define MEDIAN_VECTOR(type, layout)                                                                                 \
  QvpStatus qvpiFilterMedianVectorBorder_##type##_##layout##R(                                                      \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize,        \
      QvpNormType normType, QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {              \
    return MedianVector<Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, roiSize, \
                                   maskSize, normType, borderType, borderValue, pBuffer);                           \
  }
#define MEDIAN_VECTORS(type) MEDIAN_VECTOR(type, C3) MEDIAN_VECTOR(type, AC4)
MEDIAN_VECTORS(8u)
MEDIAN_VECTORS(16u)
MEDIAN_VECTORS(32f)
