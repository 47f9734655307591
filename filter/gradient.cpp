// Gradients by Sobel's and Scharr's kernels: as vectors with magnitude and angle, and as one picture of magnitudes.
#include "filter/gradient_parts.h"

namespace qvp::filter {
namespace {

// What two rows of results are made of: the derivatives, from a source of them, as a sink writes them.
template <class Source, class Sink>
struct GradientKernel {
  using D = typename Source::D;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  Source source;
  Sink sink;

  static void Down(const void* context, const Window& window, const ResultRows& outputs) {
    const GradientKernel kernel = *static_cast<const GradientKernel*>(context);
    const ResultRows rows = outputs;
    const auto copy = LinesOf<typename Source::Element, Source::kHeight + 1>(window.lines);
    const auto* const from = copy.data();
    const ptrdiff_t n = window.samples / kernel.sink.channels;
    if (n >= kLanes) {
      return ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { kernel.Make(from, n, i, rows, i); });
    }
    uint8_t staged[2][kMostOutputs][kLanes * sizeof(float)];
    ResultRows to{};
    for (int k = 0; k < kMostOutputs; ++k) {
      if (rows.upper[k]) to.upper[k] = staged[0][k];
      if (rows.lower[k]) to.lower[k] = staged[1][k];
    }
    kernel.Make(from, n, 0, to, 0);
    for (int k = 0; k < kMostOutputs; ++k) {
      if (rows.lower[k]) std::memcpy(rows.lower[k], to.lower[k], n * kernel.sink.ElementBytes(k));
      if (rows.upper[k]) std::memcpy(rows.upper[k], to.upper[k], n * kernel.sink.ElementBytes(k));
    }
  }

 private:
  HWY_INLINE void Make(const typename Source::Element* const* lines, ptrdiff_t n, ptrdiff_t at, const ResultRows& to,
                       ptrdiff_t i) const {
    GradientVector<D> vectors[2];
    source.Make(lines, n, at, vectors);
    sink.Put(vectors[1], to.lower, i);
    sink.Put(vectors[0], to.upper, i);
  }
};

// gx, gy, magnitude and angle, as far as they are wanted. If these are both axes and nothing else, nothing is asked on
// the way.
template <class D, class R, bool kIsBothAxes>
struct VectorSink {
  QvpNormType norm;
  int channels;
  static constexpr bool kTakesColours = true;

  static constexpr int ElementBytes(int output) { return output < 2 ? sizeof(R) : sizeof(float); }

  HWY_INLINE void Put(const GradientVector<D>& v, const std::array<uint8_t*, kMostOutputs>& to, ptrdiff_t i) const {
    const D d;
    const hn::Vec<D> axes[2] = {v.x, v.y};
    for (int k = 0; k < 2; ++k) {
      const hn::Vec<D> one[1] = {axes[k]};
      if (kIsBothAxes || to[k]) StoreLanes<1>(d, one, reinterpret_cast<R*>(to[k]) + i);
    }
    if (kIsBothAxes || (!to[2] && !to[3])) return;
    Unrolled<kFloatParts<D>>([&](auto part) QVP_INLINED {
      const hn::Repartition<float, D> floats;
      const auto x = FloatPart<part>(d, v.x), y = FloatPart<part>(d, v.y);
      const ptrdiff_t at = i + part * static_cast<ptrdiff_t>(hn::MaxLanes(floats));
      if (to[2]) hn::StoreU(MagnitudeOf(floats, norm, x, y), floats, reinterpret_cast<float*>(to[2]) + at);
      constexpr bool kIsWhole = std::is_integral_v<hn::TFromD<D>>;
      if (to[3]) hn::StoreU(AngleOf<kIsWhole>(floats, x, y), floats, reinterpret_cast<float*>(to[3]) + at);
    });
  }
};

// The magnitude alone, as R. Integers are exact but for the root.
template <class D, class R>
struct MagnitudeSink {
  QvpNormType norm;
  static constexpr int channels = 1;
  static constexpr bool kTakesColours = false;

  static constexpr int ElementBytes(int) { return sizeof(R); }

  HWY_INLINE void Put(const GradientVector<D>& v, const std::array<uint8_t*, kMostOutputs>& to, ptrdiff_t i) const {
    const D d;
    R* const out = reinterpret_cast<R*>(to[0]) + i;
    if constexpr (std::is_integral_v<hn::TFromD<D>>) {
      if (norm != qvpNormL2) {
        const hn::Vec<D> whole[1] = {WholeMagnitudeOf(d, norm, v.x, v.y)};
        return StoreLanes<1>(d, whole, out);
      }
    }
    Unrolled<kFloatParts<D>>([&](auto part) QVP_INLINED {
      const hn::Repartition<float, D> floats;
      const auto magnitude = MagnitudeOf(floats, norm, FloatPart<part>(d, v.x), FloatPart<part>(d, v.y));
      const auto result = Narrow<R>(floats, magnitude);
      hn::StoreU(result, hn::Rebind<R, decltype(floats)>(), out + part * static_cast<ptrdiff_t>(hn::MaxLanes(floats)));
    });
  }
};

template <class T, class R>
struct GradientCall {
  Image<const T> src;
  std::array<Bytes, kMostOutputs> outputs;
  Size roi;
  QvpiSize mask;
  QvpNormType norm;
  QvpiBorderType border;
  const T* value;
  uint8_t* buffer;
};

constexpr bool IsNorm(QvpNormType norm) { return norm == qvpNormL1 || norm == qvpNormL2 || norm == qvpNormInf; }

template <class Sink, class KindX, class KindY, class T, class R>
void FilterGradient(const GradientCall<T, R>& call, const Sink& sink) {
  constexpr ptrdiff_t kReach = KindX::kWidth / 2;
  auto windows = WindowsOn(call.src, call.roi, call.border, call.value, {kReach, kReach, kReach, kReach}, call.buffer);
  windows.outputs = call.outputs;
  if (Channels(call.src.layout) == 1) {
    using Source = PixelGradients<T, KindX, KindY>;
    const GradientKernel<Source, Sink> kernel{{call.norm}, sink};
    return FilterWindows(windows, {&kernel, nullptr, kernel.Down, sizeof(T), 2});
  }
  if constexpr (Sink::kTakesColours) {
    using Source = LargestGradients<T, KindX, KindY>;
    const GradientKernel<Source, Sink> kernel{{call.norm}, sink};
    FilterWindows(windows, {&kernel, Source::Across, kernel.Down, 2 * sizeof(typename Source::Element), 2});
  }
}

// All checks but that of the border, in their order. A function tells whether it knows the mask.
template <class T, class R>
QvpStatus CheckGradient(const GradientCall<T, R>& call, bool isMaskKnown) {
  bool isAnyWanted = false, areStepsLong = CoversRow(call.src, call.roi), areStepsEven = true;
  for (const Bytes& output : call.outputs) {
    if (!output.data) continue;
    isAnyWanted = true;
    areStepsLong = areStepsLong && CoversRow(output, call.roi);
    areStepsEven = areStepsEven && output.step % 4 == 0;
  }
  if (!call.src.data || !isAnyWanted || !call.buffer) return qvpStatusNullPointer;
  if (KindOf(call.border) == BorderKind::kConst && !call.value) return qvpStatusNullPointer;
  if (const QvpStatus failed = Validate<kSize>(call.roi, {})) return failed;
  if (!areStepsLong) return qvpStatusStep;
  if (sizeof(T) == 2 && std::is_same_v<R, float> && !areStepsEven) return qvpStatusNotEvenStep;
  if (!isMaskKnown) return qvpStatusMaskSize;
  return IsNorm(call.norm) ? qvpStatusNoError : qvpStatusNotSupportedMode;
}

constexpr bool IsSobelMask(QvpiSize mask) { return IsMask(mask, 3, 3) || IsMask(mask, 5, 5); }

template <class Sink, class T, class R>
QvpStatus FilterSobel(const GradientCall<T, R>& call, const Sink& sink) {
  IsMask(call.mask, 3, 3) ? FilterGradient<Sink, SobelX3, SobelY3>(call, sink)
                          : FilterGradient<Sink, SobelX5, SobelY5>(call, sink);
  return qvpStatusNoError;
}

template <class T, class R, bool kIsBothAxes>
using VectorSinkOf = VectorSink<hn::ScalableTag<FixedLane<T>>, R, kIsBothAxes>;
template <class T, class R>
bool IsBothAxes(const GradientCall<T, R>& call) {
  const auto& outputs = call.outputs;
  return outputs[0].data && outputs[1].data && !outputs[2].data && !outputs[3].data;
}
template <class T, class R>
using MagnitudeSinkOf = MagnitudeSink<hn::ScalableTag<FixedLane<T>>, R>;

template <class T, class R>
QvpStatus SobelVectors(GradientCall<T, R> call) {
  if (const QvpStatus failed = CheckGradient(call, IsSobelMask(call.mask))) return failed;
  if (const QvpStatus failed = CheckFixedBorder(call.mask, &call.border)) return failed;
  const int channels = Channels(call.src.layout);
  return IsBothAxes(call) ? FilterSobel(call, VectorSinkOf<T, R, true>{call.norm, channels})
                          : FilterSobel(call, VectorSinkOf<T, R, false>{call.norm, channels});
}

template <class T, class R>
QvpStatus ScharrVectors(GradientCall<T, R> call) {
  if (const QvpStatus failed = CheckGradient(call, IsMask(call.mask, 3, 3))) return failed;
  if (const QvpStatus failed = CheckFixedBorder(call.mask, &call.border)) return failed;
  const int channels = Channels(call.src.layout);
  IsBothAxes(call) ? FilterGradient<VectorSinkOf<T, R, true>, ScharrX3, ScharrY3>(call, {call.norm, channels})
                   : FilterGradient<VectorSinkOf<T, R, false>, ScharrX3, ScharrY3>(call, {call.norm, channels});
  return qvpStatusNoError;
}

// There is no mirror here.
template <class T, class R>
QvpStatus SobelMagnitude(const GradientCall<T, R>& call) {
  if (const QvpStatus failed = CheckGradient(call, IsSobelMask(call.mask))) return failed;
  if (const QvpStatus failed = CheckBorder(call.border, {BorderKind::kReplicate, BorderKind::kConst})) return failed;
  return FilterSobel(call, MagnitudeSinkOf<T, R>{call.norm});
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define MAGNITUDE(from, to, types)                                                                                   \
  QvpStatus qvpiFilterSobel_##types##_C1R(const Qvp##from* pSrc, int srcStep, Qvp##to* pDst, int dstStep,            \
                                          QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType,                 \
                                          QvpiBorderType borderType, const Qvp##from* borderValue, Qvp8u* pBuffer) { \
    return SobelMagnitude<Qvp##from, Qvp##to>({{pSrc, srcStep, Layout::kC1},                                         \
                                               {AsBytes(pDst, dstStep, Layout::kC1)},                                \
                                               roiSize,                                                              \
                                               maskSize,                                                             \
                                               normType,                                                             \
                                               borderType,                                                           \
                                               borderValue,                                                          \
                                               pBuffer});                                                            \
  }
MAGNITUDE(8u, 8u, 8u)
MAGNITUDE(8u, 16s, 8u16s)
MAGNITUDE(16u, 16u, 16u)
MAGNITUDE(16s, 16s, 16s)
MAGNITUDE(32f, 32f, 32f)

#define VECTORS(name, from, to, types, layouts, layout)                                                            \
  QvpStatus qvpiFilterGradient##name##Border_##types##_##layouts##R(                                               \
      const Qvp##from* pSrc, int srcStep, Qvp##to* pGx, int gxStep, Qvp##to* pGy, int gyStep, Qvp32f* pMagnitude,  \
      int magnitudeStep, Qvp32f* pAngle, int angleStep, QvpiSize roiSize, QvpiSize maskSize, QvpNormType normType, \
      QvpiBorderType borderType, const Qvp##from* borderValue, Qvp8u* pBuffer) {                                   \
    return name##Vectors<Qvp##from, Qvp##to>(                                                                      \
        {{pSrc, srcStep, Layout::k##layout},                                                                       \
         {AsBytes(pGx, gxStep, Layout::kC1), AsBytes(pGy, gyStep, Layout::kC1),                                    \
          AsBytes(pMagnitude, magnitudeStep, Layout::kC1), AsBytes(pAngle, angleStep, Layout::kC1)},               \
         roiSize,                                                                                                  \
         maskSize,                                                                                                 \
         normType,                                                                                                 \
         borderType,                                                                                               \
         borderValue,                                                                                              \
         pBuffer});                                                                                                \
  }
#define VECTORS_OF(name, from, to, types) \
  VECTORS(name, from, to, types, C1, C1)  \
  VECTORS(name, from, to, types, C3C1, C3)
VECTORS_OF(Sobel, 8u, 16s, 8u16s)
VECTORS_OF(Sobel, 16u, 32f, 16u32f)
VECTORS_OF(Sobel, 16s, 32f, 16s32f)
VECTORS_OF(Sobel, 32f, 32f, 32f)
VECTORS_OF(Scharr, 8u, 16s, 8u16s)
VECTORS_OF(Scharr, 16u, 32f, 16u32f)
VECTORS_OF(Scharr, 16s, 32f, 16s32f)
VECTORS_OF(Scharr, 32f, 32f, 32f)
