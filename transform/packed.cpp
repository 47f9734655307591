// Operations on packed spectra of real images.
#include <limits>

#include "base/check.h"
#include "base/export.h"
#include "base/record.h"
#include "signal/arc_tangent.h"
#include "transform/packed_products.h"

namespace {
using namespace qvp;
using namespace qvp::packed;

template <class Op>
QvpStatus Multiply(const Image<const float>& a, const Image<const float>& b, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
  MultiplyPacked<Op>(a, b, dst, roi);
  return qvpStatusNoError;
}

// ---- Whole spectra, by X(W - u, H - v) = conj(X(u, v)).

// Turns an array round, a vector at each end at a time.
void Reverse(float* values, ptrdiff_t n) {
  float *first = values, *end = values + n;
  for (; end - first >= 2 * kLanes; first += kLanes, end -= kLanes) {
    const auto lower = hn::LoadU(D(), first), upper = hn::LoadU(D(), end - kLanes);
    hn::StoreU(hn::Reverse(D(), upper), D(), first);
    hn::StoreU(hn::Reverse(D(), lower), D(), end - kLanes);
  }
  std::reverse(first, end);
}

// The frequency that has the conjugate.
Place Opposite(Size roi, Place at) {
  return {at.row == 0 ? 0 : roi.height - at.row, at.column == 0 ? 0 : roi.width - at.column};
}

// In double precision, where no square of a float overflows or vanishes.
struct Magnitude {
  template <class V>
  static HWY_INLINE V Of(V re, V im) {
    return hn::Sqrt(hn::Add(hn::Mul(re, re), hn::Mul(im, im)));
  }
  // That of the conjugate.
  template <class V>
  static HWY_INLINE V Opposite(V magnitude, V) {
    return magnitude;
  }
};

// In (-pi, pi], that of 0 is 0. A zero has no sign, so that both ends of a real number's pair get the same.
struct Phase {
  template <class V>
  static HWY_INLINE V Of(V re, V im) {
    const hn::DFromV<V> d;
    const V zero = hn::Zero(d), pi = hn::Set(d, 0x1.921fb54442d18p+1), halfPi = hn::Set(d, 0x1.921fb54442d18p+0);
    const V largest = hn::Set(d, 0x1p+300);  // of infinities: a float to it is less than any float
    const V x = hn::Min(hn::Abs(re), largest), y = hn::Min(hn::Abs(im), largest), longer = hn::Max(x, y);
    const V divisor = hn::IfThenElse(hn::Gt(longer, zero), longer, hn::Set(d, 1.0));
    const V fromAxis = ArcTangent(hn::Div(hn::Min(x, y), divisor));
    const V inQuadrant = hn::IfThenElse(hn::Gt(y, x), hn::Sub(halfPi, fromAxis), fromAxis);
    const V above = hn::IfThenElse(hn::Lt(re, zero), hn::Sub(pi, inQuadrant), inQuadrant);
    const V angle = hn::IfThenElse(hn::Lt(im, zero), hn::Neg(above), above);
    const auto isNan = hn::Or(hn::IsNaN(re), hn::IsNaN(im));
    return hn::IfThenElse(isNan, hn::Set(d, std::numeric_limits<double>::quiet_NaN()), angle);
  }
  template <class V>
  static HWY_INLINE V Opposite(V angle, V im) {
    const auto isSame = hn::Or(hn::Eq(im, hn::Zero(hn::DFromV<V>())), hn::IsNaN(angle));
    return hn::IfThenElse(isSame, angle, hn::Neg(angle));
  }
};

template <class Op>
void ShowNumbers(const float* re, const float* im, ptrdiff_t n, float* shown) {
  MapRow<false>(
      hn::ScalableTag<double>(), shown, n, [](auto x, auto y) HWY_ATTR { return Op::Of(x, y); }, re, im);
}

template <class Op>
void ShowRun(const Channel<const float>& from, const Run& run, Size roi, const Channel<float>& to) {
  Numbers x;
  HWY_ALIGN float shown[kMostNumbers], opposite[kMostNumbers];
  LoadPacked(from, run, x);
  ShowNumbers<Op>(x.re, x.im, run.count, shown);
  const auto ofConjugate = [](auto value, auto im) HWY_ATTR { return Op::Opposite(value, im); };
  MapRow<false>(D(), opposite, run.count, ofConjugate, shown, x.im);
  Reverse(opposite, run.count);
  const ptrdiff_t stride = to.Distance(run.nextFrequency);
  Scatter(shown, run.count, to.At(run.frequency), stride);
  Scatter(opposite, run.count, to.At(Opposite(roi, run.LastFrequency())), stride);
}

template <class Op>
QvpStatus Show(const Image<const float>& src, const Image<float>& dst, Size roi, Pointers others = {}) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, others)) return failed;
  const auto showReal = [&](int c, Place frequency, Place at) {
    const float re = Channel<const float>(src, c).Get(at), im = 0;
    float shown;
    ShowNumbers<Op>(&re, &im, 1, &shown);
    Channel<float>(dst, c).Put(frequency, shown);
  };
  ForEachRun(roi, dst.layout, showReal, [&](int c, const Run& run) { ShowRun<Op>({src, c}, run, roi, {dst, c}); });
  return qvpStatusNoError;
}

// No buffer is needed, but one is asked for.
QvpStatus ShowMagnitude(const Image<const float>& src, const Image<float>& dst, Size roi, const Qvp8u* buffer) {
  return Show<Magnitude>(src, dst, roi, {buffer});
}

QvpStatus Extend(const Image<const float>& src, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  const Channel<const float> from(src, 0);
  const Channel<float> re(dst, 0), im(dst, 1);
  const auto extendReal = [&](int, Place frequency, Place at) {
    re.Put(frequency, from.Get(at));
    im.Put(frequency, 0);
  };
  ForEachRun(roi, src.layout, extendReal, [&](int, const Run& run) {
    Numbers x;
    const ptrdiff_t stride = re.Distance(run.nextFrequency);
    const Place opposite = Opposite(roi, run.LastFrequency());
    LoadPacked(from, run, x);
    Store(x, run.count, re.At(run.frequency), im.At(run.frequency), stride);
    MapRow<false>(
        D(), x.im, run.count, [](auto v) HWY_ATTR { return hn::Neg(v); }, x.im);
    Reverse(x.re, run.count);
    Reverse(x.im, run.count);
    Store(x, run.count, re.At(opposite), im.At(opposite), stride);
  });
  return qvpStatusNoError;
}

QvpStatus Pack(const Image<const float>& src, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst})) return failed;
  const Channel<const float> re(src, 0), im(src, 1);
  const Channel<float> to(dst, 0);
  const auto packReal = [&](int, Place frequency, Place at) { to.Put(at, re.Get(frequency)); };
  ForEachRun(roi, dst.layout, packReal, [&](int, const Run& run) {
    Numbers x;
    Load(re.At(run.frequency), im.At(run.frequency), re.Distance(run.nextFrequency), run.count, x);
    StorePacked(x, run, to);
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

#define SHOW(layout)                                                                                            \
  QVP_CONVERT(qvpiMagnitudePack_32f_##layout##R, 32f, 32f, layout, ShowMagnitude, (Qvp8u * pBuffer), (pBuffer)) \
  QVP_CONVERT(qvpiPhasePack_32f_##layout##R, 32f, 32f, layout, Show<Phase>, (), ())
SHOW(C1)
SHOW(C3)
SHOW(C4)
SHOW(AC4)

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
