// Windows that fade an image towards its edges: products of weights of its columns and of its rows.
#include <array>

#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "qvpi.h"
#include "signal/sin_cos.h"

namespace {
using namespace qvp;

using Doubles = hn::ScalableTag<double>;
using DoubleVector = hn::Vec<Doubles>;
using Floats = hn::ScalableTag<float>;

// Columns whose weights are kept at a time, and rows; behind them there is room for a vector.
constexpr ptrdiff_t kColumns = 8192, kRows = 64;
template <ptrdiff_t kCount>
using Weights = std::array<float, kCount + HWY_MAX_BYTES / sizeof(float)>;

bool IsWindow(QvpiWindow window) {
  const int kind = window & ~qvpWindowPeriodic;
  return kind >= qvpWindowBartlett && kind <= qvpWindowBlackman;
}

// The weight of place k of a window whose last place, or that behind it, is n.
template <int kKind>
HWY_INLINE DoubleVector WeightAt(DoubleVector k, DoubleVector n) {
  const Doubles d;
  const auto of = [&](double value) QVP_INLINED { return hn::Set(d, value); };
  if constexpr (kKind == qvpWindowBartlett) {
    const DoubleVector twice = hn::Add(k, k), part = hn::Div(twice, n);
    return hn::IfThenElse(hn::Le(twice, n), part, hn::Sub(of(2), part));
  } else {
    const DoubleVector cos = CosOfTurn(k, n);
    if constexpr (kKind == qvpWindowHann) return hn::Sub(of(0.5), hn::Mul(of(0.5), cos));
    if constexpr (kKind == qvpWindowHamming) return hn::Sub(of(0.54), hn::Mul(of(0.46), cos));
    if constexpr (kKind == qvpWindowBlackman) {
      const DoubleVector near = hn::Min(k, hn::Sub(n, k)), of2 = CosOfTurn(hn::Add(near, near), n);
      const DoubleVector sum = hn::Sub(of(0.42), hn::Mul(of(0.5), cos));
      return hn::Max(hn::Add(sum, hn::Mul(of(0.08), of2)), of(0));
    }
  }
}

// Weights of `count` places of a side, from the first one on; whole vectors are written.
template <int kKind>
void Fill(ptrdiff_t first, ptrdiff_t count, double last, float* to) {
  const Doubles d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const DoubleVector n = hn::Set(d, last);
  for (ptrdiff_t i = 0; i < count; i += kLanes) {
    const DoubleVector k = hn::Min(hn::Iota(d, static_cast<double>(first + i)), n);
    hn::StoreU(hn::DemoteTo(hn::Rebind<float, Doubles>(), WeightAt<kKind>(k, n)), hn::Rebind<float, Doubles>(), to + i);
  }
}

// One side of a window.
class Side {
 public:
  Side(QvpiWindow window, ptrdiff_t length)
      : kind_(window & ~qvpWindowPeriodic),
        last_(static_cast<double>(window & qvpWindowPeriodic ? length : length - 1)),
        isSingle_(length == 1) {}

  void Weigh(ptrdiff_t first, ptrdiff_t count, float* to) const {
    static constexpr decltype(&Fill<0>) kFill[] = {Fill<0>, Fill<1>, Fill<2>, Fill<3>};
    if (isSingle_) {
      *to = 1;
    } else if (first == 0 && static_cast<double>(count) >= last_) {
      const auto last = static_cast<ptrdiff_t>(last_), middle = last / 2;
      kFill[kind_](0, middle + 1, last_, to);
      for (ptrdiff_t i = middle + 1; i < count; ++i) to[i] = to[last - i];
    } else {
      kFill[kind_](first, count, last_, to);
    }
  }
  // Each weight for all channels of a pixel.
  void WeighPixels(ptrdiff_t first, ptrdiff_t count, int channels, float* to) const {
    Weigh(first, count, to);
    if (channels == 1) return;
    for (ptrdiff_t i = count - 1; i >= 0; --i) {
      const float weight = to[i];
      for (int c = 0; c < channels; ++c) to[i * channels + c] = weight;
    }
  }

 private:
  int kind_;
  double last_;
  bool isSingle_;
};

// apply(x, y, samples, weights of columns, weight of the row) for parts of rows from pixel (x, y) on.
template <class Apply>
void ForEachPart(QvpiWindow window, Size roi, int channels, const Apply& apply) {
  const Side across(window, roi.width), down(window, roi.height);
  const ptrdiff_t most = kColumns / channels;
  Weights<kColumns> columns;
  Weights<kRows> rows;
  for (ptrdiff_t x = 0; x < roi.width; x += most) {
    const ptrdiff_t count = std::min(most, roi.width - x);
    across.WeighPixels(x, count, channels, columns.data());
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
      if (y % kRows == 0) down.Weigh(y, std::min(kRows, roi.height - y), rows.data());
      apply(x, y, count * channels, columns.data(), rows[y % kRows]);
    }
  }
}

// Rows that are shorter than what MapRow takes at a time go by vectors of floats and by single pixels.
template <class T>
HWY_INLINE void WeighRow(const T* from, const float* columns, float row, ptrdiff_t n, T* to) {
  const auto weigh = [=](auto d, auto v, auto column)
                         QVP_INLINED { return hn::Mul(v, hn::Mul(hn::Set(d, row), column)); };
  if (n >= ptrdiff_t{hn::MaxLanes(Floats())} * kVectorsAtOnce<T, float>) {
    const auto map = [=](auto v, auto column) HWY_ATTR { return weigh(Floats(), v, column); };
    return MapRow<false>(Floats(), to, n, map, from, columns);
  }
  ForEachElement(Floats(), n, [=](auto d, ptrdiff_t i) HWY_ATTR {
    const auto weighed = weigh(d, LoadWide(d, from + i), hn::LoadU(d, columns + i));
    hn::StoreU(Narrow<T>(d, weighed), hn::Rebind<T, decltype(d)>(), to + i);
  });
}

template <class T>
QvpStatus ApplyWindow(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiWindow window) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  if (!IsWindow(window)) return qvpStatusNotSupportedMode;
  const int channels = Channels(src.layout);
  ForEachPart(window, roi, channels, [&](ptrdiff_t x, ptrdiff_t y, ptrdiff_t n, const float* columns, float row) {
    WeighRow(src.Row(y) + x * channels, columns, row, n, dst.Row(y) + x * channels);
  });
  return qvpStatusNoError;
}

QvpStatus SetWindow(const Image<float>& dst, Size roi, QvpiWindow window) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {dst})) return failed;
  if (!IsWindow(window)) return qvpStatusNotSupportedMode;
  ForEachPart(window, roi, 1, [&](ptrdiff_t x, ptrdiff_t y, ptrdiff_t n, const float* columns, float row) {
    const auto weigh = [=](auto column) HWY_ATTR { return hn::Mul(hn::Set(Floats(), row), column); };
    MapRow<false>(Floats(), dst.Row(y) + x, n, weigh, columns);
  });
  return qvpStatusNoError;
}

}  // namespace

#define APPLY(type, layout) QVP_BOTH_PLACES(qvpiApplyWindow, , type, layout, ApplyWindow, (QvpiWindow window), (window))
#define APPLY_TO_EACH(type) QVP_C1_C3_C4(APPLY, type)
APPLY_TO_EACH(8u)
APPLY_TO_EACH(16u)
APPLY_TO_EACH(16s)
APPLY_TO_EACH(32f)

QvpStatus qvpiSetWindow_32f_C1R(Qvp32f* pDst, int dstStep, QvpiSize roiSize, QvpiWindow window) {
  return SetWindow(View(pDst, dstStep, Layout::kC1), roiSize, window);
}
