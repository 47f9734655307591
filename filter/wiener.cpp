// The Wiener filter (Lim 1990): pixels go to the mean under a mask, the more the less their variance there exceeds that
// of the noise.
#include "base/export.h"
#include "filter/float_sums.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

using D = hn::ScalableTag<double>;
using V = hn::Vec<D>;
constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

constexpr int kLongestSide = 255;

constexpr bool IsSide(int n) { return n >= 1 && n <= kLongestSide && n % 2 == 1; }
constexpr bool IsMask(QvpiSize mask) { return IsSide(mask.width) && IsSide(mask.height); }

// Whole numbers below 2^52, from doubles.
HWY_INLINE hn::Vec<hn::Repartition<uint64_t, D>> Whole(V v) {
  const hn::Repartition<uint64_t, D> words;
  return hn::And(hn::BitCast(words, hn::Add(v, hn::Set(D(), 0x1p52))), hn::Set(words, (uint64_t{1} << 52) - 1));
}

// A whole number below 2^63 as a double: its halves are exact, so that their sum is rounded once.
HWY_INLINE V Rounded(hn::Vec<hn::Repartition<uint64_t, D>> whole) {
  const hn::Repartition<uint64_t, D> words;
  const auto as = [=](auto half, double unit) QVP_INLINED {
    const V offset = hn::Set(D(), unit);
    return hn::Sub(hn::BitCast(D(), hn::Or(half, hn::BitCast(words, offset))), offset);
  };
  const auto lower = hn::And(whole, hn::Set(words, 0xFFFFFFFF));
  return hn::Add(as(hn::ShiftRight<32>(whole), 0x1p84), as(lower, 0x1p52));
}

// n^2 times the variance, n s2 - s1^2. That of bytes is exact in doubles; the products of sums of 16-bit numbers leave
// them, and are whole numbers modulo 2^64, which hold the difference.
template <class T>
HWY_INLINE V Deviation(double n, V s1, V s2) {
  if constexpr (sizeof(T) != 2) {
    return hn::Sub(hn::Mul(hn::Set(D(), n), s2), hn::Mul(s1, s1));
  } else {
    const hn::Repartition<uint64_t, D> words;
    const hn::Repartition<uint32_t, D> halves;
    const auto square = hn::BitCast(halves, Whole(hn::Abs(s1)));
    const auto count = hn::BitCast(halves, hn::Set(words, static_cast<uint64_t>(n))),
               sum = hn::BitCast(halves, Whole(s2));
    const auto upper = hn::MulEven(hn::BitCast(halves, hn::ShiftRight<32>(hn::BitCast(words, sum))), count);
    const auto product = hn::Add(hn::MulEven(sum, count), hn::ShiftLeft<32>(upper));
    return Rounded(hn::Sub(product, hn::MulEven(square, square)));
  }
}

// Lines have for each sample of a row of results three doubles, in rows one behind the other: the sums across of p and
// of p^2, and p itself.
template <class T>
class WienerKernel {
 public:
  WienerKernel(QvpiSize mask, const Image<const T>& src, ptrdiff_t regionWidth, uint8_t* memory)
      : mask_(mask),
        channels_(Channels(src.layout)),
        count_(static_cast<double>(mask.width) * mask.height),
        across_(TreeAcross(mask.width)),
        down_(TreeDown(mask.height)),
        noise_(reinterpret_cast<double*>(memory)),
        room_{memory + RowBytes(mask, regionWidth, channels_).value(),
              static_cast<ptrdiff_t>(RowBytes(mask, regionWidth, channels_).value())} {}

  // The variance of the noise times n^2, of each channel; that of a fourth one that is kept does not matter.
  void SetNoise(const float* noise, ptrdiff_t regionWidth, int processed) {
    constexpr double kUnit = std::is_same_v<T, float> ? 1 : sizeof(T) == 1 ? 255 : 65535;
    double variances[4] = {};
    for (int c = 0; c < processed; ++c) variances[c] = noise[c] * ((kUnit * count_) * (kUnit * count_));
    for (ptrdiff_t i = 0; i < regionWidth * channels_; ++i) noise_[i] = variances[i % channels_];
  }

  WindowKernel AsKernel() const {
    return {.context = this,
            .across = Across,
            .down = Down,
            .elementBytes = kLineBytes,
            .rowsAtOnce = 1,
            .kept = {KeptRowsFor(mask_), kKeptBytes},
            .cacheBytes = kSecondCacheBytes};
  }

  static ByteCount BufferBytes(QvpiSize mask, int64_t regionWidth, int channels) {
    return WindowBytes(mask, regionWidth, channels, kLineBytes, {KeptRowsFor(mask), kKeptBytes}, kSecondCacheBytes) +
           (3 + TreeAcross(mask.width).levels()) * RowBytes(mask, regionWidth, channels) + kRecordBoundary;
  }
  uint8_t* End() const { return room_.at + (2 + across_.levels()) * room_.step; }

 private:
  static constexpr int kLineBytes = 3 * sizeof(double), kKeptBytes = 2 * sizeof(double);

  static int KeptRowsFor(QvpiSize mask) { return RowsKept(TreeAcross(1), TreeDown(mask.height)); }
  static ByteCount RowBytes(QvpiSize mask, int64_t regionWidth, int channels) {
    return ((ByteCount(regionWidth) + mask.width) * (channels * int64_t{sizeof(double)}) + kRecordBoundary)
        .RoundedTo(kRecordBoundary);
  }

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    static_cast<const WienerKernel*>(context)->Across(static_cast<const T*>(source), static_cast<double*>(line),
                                                      samples);
  }
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    static_cast<const WienerKernel*>(context)->Down(window, reinterpret_cast<T*>(rows.upper[0]));
  }

  void Across(const T* from, double* line, ptrdiff_t n) const {
    double *const values = room_.Row(0), *const squares = room_.Row(1);
    ForEachVectors<2, kLanes>(n + (mask_.width - 1) * channels_, [&](auto count, ptrdiff_t i) QVP_INLINED {
      Unrolled<count>([&](auto v) QVP_INLINED {
        const V p = LoadWide(D(), from + i + v * kLanes);
        hn::StoreU(p, D(), values + i + v * kLanes);
        hn::StoreU(hn::Mul(p, p), D(), squares + i + v * kLanes);
      });
    });
    SumAcross(values, n, line);
    SumAcross(squares, n, line + n);
    std::memcpy(line + 2 * n, values + mask_.width / 2 * channels_, n * sizeof(double));
  }
  HWY_NOINLINE void SumAcross(const double* values, ptrdiff_t n, double* to) const {
    const auto parts = PartsAcross<double>(across_, values, channels_, n, room_.From(2));
    ForEachVectors<2, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED {
      const auto sums = TreeSums<count>(D(), parts, i);
      Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], D(), to + i + v * kLanes); });
    });
  }

  void Down(const Window& window, T* to) const {
    const ptrdiff_t n = window.samples, last = mask_.height - 1;
    const ColumnLevels<double> levels(down_, window, {window.kept, window.keptStep}, false);
    for (ptrdiff_t line = window.y == 0 ? 0 : last; line <= last; ++line)
      Add(levels.Line(line), LineOf(window, line), 2 * n);
    const auto parts = levels.Parts();
    const double* const pixels = LineOf(window, last / 2) + 2 * n;
    MakeRow<2, kLanes>(n, to, [&](auto count, ptrdiff_t i, T* out) QVP_INLINED {
      const auto s1 = TreeSums<count>(D(), parts, i), s2 = TreeSums<count>(D(), parts, n + i);
      Unrolled<count>([&](auto v) QVP_INLINED {
        const V p = hn::LoadU(D(), pixels + i + v * kLanes), noise = hn::LoadU(D(), noise_ + i + v * kLanes);
        hn::StoreU(Narrow<T>(D(), Result(p, s1[v], s2[v], noise)), hn::Rebind<T, D>(), out + v * kLanes);
      });
    });
  }
  static const double* LineOf(const Window& window, ptrdiff_t line) {
    return static_cast<const double*>(window.lines[line]);
  }
  static HWY_NOINLINE void Add(const LineSums<double>& sums, const double* line, ptrdiff_t n) {
    if (sums.levels == 0) return;
    ForEachVectors<2, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED {
      std::array<V, count> v;
      Unrolled<count>([&](auto k) QVP_INLINED { v[k] = hn::LoadU(D(), line + i + k * kLanes); });
      sums.template Put<count>(v, i);
    });
  }

  // (s1 + (n p - s1) g) / n with g = (d - noise) / d, or 0.
  HWY_INLINE V Result(V p, V s1, V s2, V noise) const {
    const V n = hn::Set(D(), count_), deviation = Deviation<T>(count_, s1, s2);
    const V gain = hn::IfThenElseZero(hn::Gt(deviation, noise), hn::Div(hn::Sub(deviation, noise), deviation));
    return hn::Div(hn::Add(s1, hn::Mul(hn::Sub(hn::Mul(n, p), s1), gain)), n);
  }

  QvpiSize mask_;
  int channels_;
  double count_;
  SumTree across_, down_;
  double* noise_;
  RowRoom<double> room_;  // pixels, their squares, and levels of sums across
};

bool IsNoise(const float* noise, int channels) {
  for (int c = 0; c < channels; ++c) {
    if (!(noise[c] >= 0 && noise[c] < 1)) return false;
  }
  return true;
}

template <class T>
QvpStatus Wiener(const WindowCall<T>& call, QvpiSize mask, const float* noise) {
  if (const QvpStatus failed = call.Check(noise)) return failed;
  if (!IsMask(mask)) return qvpStatusMaskSize;
  const int processed = ProcessedChannels(call.src.layout);
  if (!IsNoise(noise, processed)) return qvpStatusNoiseRange;
  if (const QvpStatus failed = CheckBorder(call.border)) return failed;
  auto windows = call.Reaching(ReachOf(mask, {mask.width / 2, mask.height / 2}));
  WienerKernel<T> kernel(mask, call.src, call.roi.width, AtBoundary(call.buffer));
  kernel.SetNoise(noise, call.roi.width, processed);
  windows.buffer = kernel.End();
  FilterWindows(windows, kernel.AsKernel());
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterWienerBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                              int numChannels, int* pBufferSize) {
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, filter::IsMask(maskSize), dataType, numChannels))
    return failed;
  return WienerKernel<float>::BufferBytes(maskSize, roiSize.width, numChannels).StoreTo(pBufferSize);
}

#define WIENER_C1(type) \
  QVP_WINDOW(Wiener, type, type, type, C1, Wiener, (QvpiSize maskSize, Qvp32f noise), (), (maskSize, &noise))
#define WIENER_MORE(type, layout, n)                                                                   \
  QVP_WINDOW(Wiener, type, type, type, layout, Wiener, (QvpiSize maskSize, const Qvp32f noise[n]), (), \
             (maskSize, noise))
#define WIENER(type) WIENER_C1(type) WIENER_MORE(type, C3, 3) WIENER_MORE(type, C4, 4) WIENER_MORE(type, AC4, 3)
WIENER(8u)
WIENER(16u)
WIENER(16s)
WIENER(32f)
