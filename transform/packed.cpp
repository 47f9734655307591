// Operations on packed spectra of real images.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "base/check.h"
#include "base/export.h"
#include "base/record.h"
#include "base/simd.h"
#include "signal/arc_tangent.h"

namespace {
using namespace qvp;

struct Number {
  float re, im;
};

// ---- The layout: which stored floats are which frequency.

struct Place {
  ptrdiff_t row, column;
};

// Calls real(u, v, place) for each entry that is real by symmetry and pair(u, v, place of Re, place of Im) for each
// other one.
template <class Real, class Pair>
void ForEachEntry(Size roi, const Real& real, const Pair& pair) {
  const ptrdiff_t w = roi.width, h = roi.height;
  for (ptrdiff_t column = 0; column < w; column += std::max<ptrdiff_t>(w - 1, 1)) {
    if (column != 0 && w % 2 != 0) break;  // odd widths have no last real column
    const ptrdiff_t u = column == 0 ? 0 : w / 2;
    real(u, ptrdiff_t{0}, Place{0, column});
    for (ptrdiff_t v = 1; v <= (h - 1) / 2; ++v) pair(u, v, Place{2 * v - 1, column}, Place{2 * v, column});
    if (h % 2 == 0) real(u, h / 2, Place{h - 1, column});
  }
  for (ptrdiff_t v = 0; v < h; ++v) {
    for (ptrdiff_t u = 1; u <= (w - 1) / 2; ++u) pair(u, v, Place{v, 2 * u - 1}, Place{v, 2 * u});
  }
}

// One channel of an image, whose floats need not be aligned.
template <class T>
struct Channel {
  T* data;
  ptrdiff_t step, pitch;

  Channel(const Image<T>& image, int channel)
      : data(image.data + channel), step(image.step), pitch(image.PixelBytes()) {}
  auto At(Place at) const {
    using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
    return reinterpret_cast<Byte*>(data) + at.row * step + at.column * pitch;
  }
  float Get(Place at) const {
    float value;
    std::memcpy(&value, At(at), sizeof(value));
    return value;
  }
  void Put(Place at, float value) const { std::memcpy(At(at), &value, sizeof(value)); }
};

// ---- Products.

struct Product {
  Number operator()(Number a, Number b) const { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
};
struct ConjugateProduct {  // of the first and the conjugate of the second
  Number operator()(Number a, Number b) const { return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im}; }
};

template <class Op>
QvpStatus Multiply(const Image<const float>& a, const Image<const float>& b, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) {
    const Channel<const float> first(a, c), second(b, c);
    const Channel<float> to(dst, c);
    ForEachEntry(
        roi, [&](ptrdiff_t, ptrdiff_t, Place at) { to.Put(at, first.Get(at) * second.Get(at)); },
        [&](ptrdiff_t, ptrdiff_t, Place re, Place im) {
          const Number product = Op()({first.Get(re), first.Get(im)}, {second.Get(re), second.Get(im)});
          to.Put(re, product.re);
          to.Put(im, product.im);
        });
  }
  return qvpStatusNoError;
}

// ---- Whole spectra, by X(W - u, H - v) = conj(X(u, v)).

// Calls visit(place, X) for all places of the spectrum.
template <class Visit>
void ForEachFrequency(Size roi, const Channel<const float>& src, const Visit& visit) {
  ForEachEntry(
      roi,
      [&](ptrdiff_t u, ptrdiff_t v, Place at) {
        visit(Place{v, u}, Number{src.Get(at), 0});
      },
      [&](ptrdiff_t u, ptrdiff_t v, Place re, Place im) {
        const Number x{src.Get(re), src.Get(im)};
        visit(Place{v, u}, x);
        visit(Place{v == 0 ? 0 : roi.height - v, u == 0 ? 0 : roi.width - u}, Number{x.re, -x.im});
      });
}

// In double precision, where no square of a float overflows or vanishes.
struct Magnitude {
  float operator()(Number x) const {
    const hn::FixedTag<double, 2> d;
    const double re = x.re, im = x.im;
    return static_cast<float>(hn::GetLane(hn::Sqrt(hn::Set(d, re * re + im * im))));
  }
};

// In (-pi, pi], that of 0 is 0. A zero has no sign, so that both ends of a real number's pair get the same.
struct Phase {
  float operator()(Number x) const {
    constexpr double kPi = 0x1.921fb54442d18p+1, kLargest = 0x1p+200;  // infinities become comparable
    if (!(x.re == x.re && x.im == x.im)) return std::numeric_limits<float>::quiet_NaN();
    const double re = std::min(std::fabs(static_cast<double>(x.re)), kLargest);
    const double im = std::min(std::fabs(static_cast<double>(x.im)), kLargest);
    const double longer = std::max(re, im);
    const hn::FixedTag<double, 2> d;
    double angle = longer > 0 ? hn::GetLane(ArcTangent(hn::Set(d, std::min(re, im) / longer))) : 0;
    if (im > re) angle = kPi / 2 - angle;
    if (x.re < 0) angle = kPi - angle;
    return static_cast<float>(x.im < 0 ? -angle : angle);
  }
};

template <class Op>
QvpStatus Show(const Image<const float>& src, const Image<float>& dst, Size roi, Pointers others = {}) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, others)) return failed;
  for (int c = 0; c < ProcessedChannels(dst.layout); ++c) {
    const Channel<float> to(dst, c);
    ForEachFrequency(roi, {src, c}, [&](Place at, Number x) { to.Put(at, Op()(x)); });
  }
  return qvpStatusNoError;
}

QvpStatus Extend(const Image<const float>& src, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  const Channel<float> re(dst, 0), im(dst, 1);
  ForEachFrequency(roi, {src, 0}, [&](Place at, Number x) {
    re.Put(at, x.re);
    im.Put(at, x.im);
  });
  return qvpStatusNoError;
}

QvpStatus Pack(const Image<const float>& src, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  const Channel<const float> re(src, 0), im(src, 1);
  const Channel<float> to(dst, 0);
  ForEachEntry(
      roi,
      [&](ptrdiff_t u, ptrdiff_t v, Place at) {
        to.Put(at, re.Get({v, u}));
      },
      [&](ptrdiff_t u, ptrdiff_t v, Place atRe, Place atIm) {
        to.Put(atRe, re.Get({v, u}));
        to.Put(atIm, im.Get({v, u}));
      });
  return qvpStatusNoError;
}

// Room for one row.
QvpStatus GetBufferSize(int channels, Size roi, int* bytes) {
  if (bytes == nullptr) return qvpStatusNullPointer;
  if (!Passes(kSize, roi, {}, {})) return qvpStatusSize;
  if (channels != 1 && channels != 3 && channels != 4) return qvpStatusNumChannels;
  return (ByteCount(roi.width) * int{sizeof(float)} + kRecordBoundary).StoreTo(bytes);
}

}  // namespace

QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiMulPack, 32f, Multiply<Product>)
QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiMulPackConj, 32f, Multiply<ConjugateProduct>)

QvpStatus qvpiMagnitudePackGetBufferSize_32f(int numChannels, QvpiSize roiSize, int* pBufferSize) {
  return GetBufferSize(numChannels, roiSize, pBufferSize);
}

#define QVP_MAGNITUDE(layout)                                                                                       \
  QvpStatus qvpiMagnitudePack_32f_##layout##R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep,           \
                                              QvpiSize roiSize, Qvp8u* pBuffer) {                                   \
    return Show<Magnitude>(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), roiSize, \
                           {pBuffer});                                                                              \
  }
#define QVP_PHASE(layout)                                                                                        \
  QvpStatus qvpiPhasePack_32f_##layout##R(const Qvp32f* pSrc, int srcStep, Qvp32f* pDst, int dstStep,            \
                                          QvpiSize roiSize) {                                                    \
    return Show<Phase>(View(pSrc, srcStep, Layout::k##layout), View(pDst, dstStep, Layout::k##layout), roiSize); \
  }
QVP_MAGNITUDE(C1)
QVP_MAGNITUDE(C3)
QVP_MAGNITUDE(C4)
QVP_MAGNITUDE(AC4)
QVP_PHASE(C1)
QVP_PHASE(C3)
QVP_PHASE(C4)
QVP_PHASE(AC4)

// Complex images are taken as pairs of floats.
QvpStatus qvpiPackToCplxExtend_32f32fc_C1R(const Qvp32f* pSrc, int srcStep, Qvp32fc* pDst, int dstStep,
                                           QvpiSize roiSize) {
  return Extend(View(pSrc, srcStep, Layout::kC1), View(reinterpret_cast<float*>(pDst), dstStep, Layout::kC2), roiSize);
}

QvpStatus qvpiCplxExtendToPack_32fc32f_C1R(const Qvp32fc* pSrc, int srcStep, Qvp32f* pDst, int dstStep,
                                           QvpiSize roiSize) {
  return Pack(View(reinterpret_cast<const float*>(pSrc), srcStep, Layout::kC2), View(pDst, dstStep, Layout::kC1),
              roiSize);
}
