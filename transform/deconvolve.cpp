// Deconvolution: an image is continued to a torus, on which its blur is a product of spectra. The inverse filter
// divides by that product (Wiener; Hunt 1973), the iteration goes there and back (Richardson 1972, Lucy 1974).
#include "transform/deconvolve.h"

#include <limits>

#include "base/check.h"
#include "base/export.h"
#include "base/floats.h"
#include "qvpi.h"
#include "transform/fourier.h"
#include "transform/packed_products.h"

namespace {
using namespace qvp;
using namespace qvp::deconvolution;
using packed::D;

using FloatPlane = Image<float>;
Image<const float> ToRead(const FloatPlane& plane) { return View<const float>(plane.data, plane.step, plane.layout); }

// ---- The torus: planes of it in the buffer, and its transforms.

class Torus {
 public:
  Torus(const DeconvolveRecord& record, uint8_t* buffer) : record_(record), buffer_(AtBoundary(buffer)) {}

  QvpiSize size() const { return record_.torus(); }
  FloatPlane PlaneAt(int i) const { return Plane(reinterpret_cast<float*>(buffer_ + i * PlaneBytes()), size()); }
  Image<const float> Transfer() const { return Plane(record_.At<float>(record_.transfer), size()); }

  void Transform(dft::Direction direction, const FloatPlane& from, const FloatPlane& to) const {
    dft::FourierTransform(dft::FourierFamily::kRealAny, direction, ToRead(from), to, record_.At<void>(record_.fourier),
                          buffer_ + 3 * PlaneBytes());
  }
  // A spectrum times that of the point-spread image, or its conjugate: image and spread are convolved, or correlated.
  template <class Op>
  void Multiply(const FloatPlane& spectrum) const {
    packed::MultiplyPacked<Op>(ToRead(spectrum), Transfer(), spectrum, size());
  }
  // plane = op(plane, operands...), pixel by pixel
  template <class Op, class... Planes>
  void Map(const FloatPlane& plane, const Op& op, const Planes&... operands) const {
    for (ptrdiff_t y = 0; y < size().height; ++y) {
      MapRow<false>(D(), plane.Row(y), size().width, op, plane.Row(y), operands.Row(y)...);
    }
  }

 private:
  ptrdiff_t PlaneBytes() const { return static_cast<ptrdiff_t>(deconvolution::PlaneBytes(size()).value()); }

  const DeconvolveRecord& record_;
  uint8_t* buffer_;
};

template <class V>
HWY_INLINE V PositivePart(V v) {  // of NaN, too, 0
  return MaxOrSecond(v, hn::Zero(hn::DFromV<V>()));
}

// A channel's pixels and what continues them. With kIsPositive those that are not above 0 are taken for 0.
template <bool kIsPositive>
void Continue(const Image<const float>& src, int channel, const DeconvolveRecord& record, const FloatPlane& plane) {
  const packed::Channel<const float> from(src, channel);
  const int32_t *columns = record.At<int32_t>(record.places), *rows = columns + record.torusWidth;
  for (ptrdiff_t y = 0; y < record.torusHeight; ++y) {
    float* const to = plane.Row(y);
    if (y >= record.height) {
      const size_t bytes = record.torusWidth * sizeof(float);
      rows[y] == kNoPlace ? std::memset(to, 0, bytes) : std::memcpy(to, plane.Row(rows[y]), bytes);
      continue;
    }
    packed::Gather(from.At({y, 0}), from.pitch, record.width, to);
    if constexpr (kIsPositive) {
      MapRow<false>(
          D(), to, record.width, [](auto v) HWY_ATTR { return PositivePart(v); }, to);
    }
    for (ptrdiff_t x = record.width; x < record.torusWidth; ++x) to[x] = columns[x] == kNoPlace ? 0 : to[columns[x]];
  }
}

void StoreChannel(const FloatPlane& plane, const DeconvolveRecord& record, const Image<float>& dst, int channel) {
  const packed::Channel<float> to(dst, channel);
  for (ptrdiff_t y = 0; y < record.height; ++y) packed::Scatter(plane.Row(y), record.width, to.At({y, 0}), to.pitch);
}

// ---- The inverse filter.

// The squared frequencies of a run, Laplace's operator in the spectrum: across plus down.
void LaplaceOf(const packed::Run& run, const DeconvolveRecord& record, float* to) {
  const float* across = record.At<float>(record.squares) + run.frequency.column;
  const float* down = record.At<float>(record.squares) + record.torusWidth + run.frequency.row;
  const bool isRow = run.nextFrequency.row == 0;
  const auto other = hn::Set(D(), isRow ? *down : *across);
  MapRow<false>(
      D(), to, run.count, [=](auto along) HWY_ATTR { return hn::Add(along, other); }, isRow ? across : down);
}

// The parts of conj(K) Y / D, D = ((Kr^2 + Ki^2) + noise) + smoothness L^2, and 0 where D = 0.
struct Quotient {
  hn::Vec<D> noise, smoothness;

  template <class V>
  HWY_INLINE void Of(V yRe, V yIm, V kRe, V kIm, V laplace, V& re, V& im) const {
    const V square = hn::Add(hn::Mul(kRe, kRe), hn::Mul(kIm, kIm));
    const V divisor = hn::Add(hn::Add(square, noise), hn::Mul(smoothness, hn::Mul(laplace, laplace)));
    const auto isNone = hn::Eq(divisor, hn::Zero(D()));
    packed::ConjugateProduct::Of(yRe, yIm, kRe, kIm, re, im);
    re = hn::IfThenZeroElse(isNone, hn::Div(re, divisor));
    im = hn::IfThenZeroElse(isNone, hn::Div(im, divisor));
  }
};

void DivideSpectrum(const Torus& torus, const DeconvolveRecord& record, const Quotient& quotient,
                    const FloatPlane& spectrum) {
  const packed::Channel<const float> from(ToRead(spectrum), 0), transfer(torus.Transfer(), 0);
  const packed::Channel<float> to(spectrum, 0);
  HWY_ALIGN float laplace[packed::kMostNumbers] = {};
  const auto divideReal = [&](int, packed::Place frequency, packed::Place at) {
    const auto y = hn::Set(D(), from.Get(at)), k = hn::Set(D(), transfer.Get(at)), none = hn::Zero(D());
    auto re = none, im = none;
    LaplaceOf({at, at, {}, frequency, {}, 1}, record, laplace);
    quotient.Of(y, none, k, none, hn::Set(D(), laplace[0]), re, im);
    to.Put(at, hn::GetLane(re));
  };
  packed::ForEachRun(torus.size(), Layout::kC1, divideReal, [&](int, const packed::Run& run) {
    LaplaceOf(run, record, laplace);
    packed::CombineRun(from, transfer, run, to,
                       [&](ptrdiff_t i, auto yRe, auto yIm, auto kRe, auto kIm, auto& re, auto& im)
                           HWY_ATTR { quotient.Of(yRe, yIm, kRe, kIm, hn::Load(D(), laplace + i), re, im); });
  });
}

bool IsPenalty(float value) { return value >= 0 && value <= std::numeric_limits<float>::max(); }

// What both methods check, but for the parameters between; then each channel goes by transform(torus, record, channel).
template <class CheckParameters, class CheckRecord, class Restore>
QvpStatus Deconvolve(const Image<const float>& src, const Image<float>& dst, const QvpiDeconvolveSpec_32f* spec,
                     uint8_t* buffer, const CheckParameters& check, const CheckRecord& checkRecord,
                     const Restore& restore) {
  if (const QvpStatus failed = Validate<kPointers, kSteps>({1, 1}, {src, dst}, {spec, buffer})) return failed;
  if (!check()) return qvpStatusBadArgument;
  const DeconvolveRecord& record = *RecordIn<DeconvolveRecord>(spec);
  if (record.identification != DeconvolveRecord::kIdentification) return qvpStatusContextMatch;
  if (!checkRecord(record)) return qvpStatusBadArgument;
  const Torus torus(record, buffer);
  for (int c = 0; c < Channels(dst.layout); ++c) StoreChannel(restore(torus, record, c), record, dst, c);
  return qvpStatusNoError;
}

QvpStatus Inverse(const Image<const float>& src, const Image<float>& dst, float noise, float smoothness,
                  const QvpiDeconvolveSpec_32f* spec, uint8_t* buffer) {
  const auto areParameters = [=] { return IsPenalty(noise) && IsPenalty(smoothness) && (noise > 0 || smoothness > 0); };
  const auto isRecord = [](const DeconvolveRecord&) { return true; };
  return Deconvolve(src, dst, spec, buffer, areParameters, isRecord,
                    [&](const Torus& torus, const DeconvolveRecord& record, int channel) {
                      const FloatPlane plane = torus.PlaneAt(0);
                      Continue<false>(src, channel, record, plane);
                      torus.Transform(dft::Direction::kForward, plane, plane);
                      DivideSpectrum(torus, record, {hn::Set(D(), noise), hn::Set(D(), smoothness)}, plane);
                      torus.Transform(dft::Direction::kInverse, plane, plane);
                      return plane;
                    });
}

// ---- The iteration.

// Each step multiplies the estimate by the correlation of the spread with what the image is of the estimate's blur.
// From a constant the first step is known without its blur.
class Iteration {
 public:
  Iteration(const Torus& torus, float sum, float threshold) : torus_(torus), factor_(1 / sum), threshold_(threshold) {}

  FloatPlane Image() const { return torus_.PlaneAt(0); }
  FloatPlane Estimate() const { return torus_.PlaneAt(1); }

  void Start() const {
    const auto r = hn::Set(D(), factor_);
    Filter<packed::ConjugateProduct>(Image(), Estimate());
    torus_.Map(Estimate(), [=](auto c) HWY_ATTR { return PositivePart(hn::Mul(hn::Mul(c, r), r)); });
  }

  void Step() const {
    const FloatPlane work = torus_.PlaneAt(2);
    const auto r = hn::Set(D(), factor_), threshold = hn::Set(D(), threshold_);
    Filter<packed::Product>(Estimate(), work);
    const auto ratio = [=](auto blurred, auto image)
                           HWY_ATTR { return hn::IfThenElseZero(hn::Gt(blurred, threshold), hn::Div(image, blurred)); };
    torus_.Map(work, ratio, Image());
    Filter<packed::ConjugateProduct>(work, work);
    const auto update = [=](auto estimate, auto c) HWY_ATTR { return PositivePart(hn::Mul(estimate, hn::Mul(c, r))); };
    torus_.Map(Estimate(), update, work);
  }

 private:
  template <class Op>
  void Filter(const FloatPlane& from, const FloatPlane& to) const {
    torus_.Transform(dft::Direction::kForward, from, to);
    torus_.Multiply<Op>(to);
    torus_.Transform(dft::Direction::kInverse, to, to);
  }

  const Torus& torus_;
  float factor_, threshold_;
};

QvpStatus Iterate(const Image<const float>& src, const Image<float>& dst, int iterations, float threshold,
                  const QvpiDeconvolveSpec_32f* spec, uint8_t* buffer) {
  const auto areParameters = [=] { return iterations >= 1 && threshold >= 0; };
  const auto hasSum = [](const DeconvolveRecord& record) { return record.sum > 0; };
  return Deconvolve(src, dst, spec, buffer, areParameters, hasSum,
                    [&](const Torus& torus, const DeconvolveRecord& record, int channel) {
                      const Iteration iteration(torus, record.sum, threshold);
                      Continue<true>(src, channel, record, iteration.Image());
                      iteration.Start();
                      for (int i = 1; i < iterations; ++i) iteration.Step();
                      return iteration.Estimate();
                    });
}

}  // namespace

#define QVP_DECONVOLVE(layout)                                                                                        \
  QvpStatus qvpiDeconvolveInverse_32f_##layout##R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep,         \
                                                  Qvp32f noise, Qvp32f smoothness,                                    \
                                                  const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer) {              \
    return Inverse(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), noise, smoothness, \
                   pSpec, pBuffer);                                                                                   \
  }                                                                                                                   \
  QvpStatus qvpiDeconvolveIterative_32f_##layout##R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep,       \
                                                    int iterations, Qvp32f threshold,                                 \
                                                    const QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pBuffer) {            \
    return Iterate(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), iterations,        \
                   threshold, pSpec, pBuffer);                                                                        \
  }
QVP_DECONVOLVE(C1)
QVP_DECONVOLVE(C3)
QVP_DECONVOLVE(C4)
