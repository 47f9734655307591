// Sizes and contents of the records of deconvolution.
#include <cmath>

#include "base/border.h"
#include "base/check.h"
#include "base/scalar.h"
#include "qvpi.h"
#include "signal/sin_cos.h"
#include "signal/smooth_lengths.h"
#include "transform/deconvolve.h"
#include "transform/fourier.h"

namespace {
using namespace qvp;
using namespace qvp::deconvolution;

constexpr dft::FourierFamily kFamily = dft::FourierFamily::kRealAny;
constexpr int kInverseOverCount = 2;  // the flag of transforms there and back that give what there was

bool IsBorder(QvpiBorderType border) {
  return border == qvpBorderReplicate || border == qvpBorderMirror || border == qvpBorderConst ||
         border == qvpBorderWrap;
}

QvpStatus CheckSizes(QvpiSize roi, QvpiSize psf) {
  const bool areSizes = roi.width >= 1 && roi.height >= 1 && psf.width >= 1 && psf.height >= 1;
  return areSizes && psf.width <= roi.width && psf.height <= roi.height ? qvpStatusNoError : qvpStatusSize;
}

// Images that wrap are a torus; any other is continued at least as far as a point is spread over its edges.
int64_t TorusSide(int64_t side, int64_t psfSide, QvpiBorderType border) {
  return border == qvpBorderWrap ? side : dft::SmallestSmooth(2, side + psfSide - 1);
}

struct Layouts {
  QvpiSize torus;
  int fourierBytes, fourierBufferBytes;

  ByteCount Squares() const { return Places() + (ByteCount(torus.width) + torus.height) * int{sizeof(int32_t)}; }
  ByteCount Places() const { return Transfer() + PlaneBytes(torus); }
  ByteCount Transfer() const { return (ByteCount(kRecordBoundary) + fourierBytes).RoundedTo(kRecordBoundary); }
  ByteCount RecordBytes() const {
    return Squares() + (ByteCount(torus.width) + torus.height) * int{sizeof(float)} + kRecordBoundary;
  }
  ByteCount BufferBytes() const { return PlaneBytes(torus) * 3 + fourierBufferBytes + kRecordBoundary; }
};

QvpStatus LayOut(QvpiSize roi, QvpiSize psf, QvpiBorderType border, Layouts& layouts) {
  const int64_t width = TorusSide(roi.width, psf.width, border), height = TorusSide(roi.height, psf.height, border);
  if (width > INT32_MAX || height > INT32_MAX) return qvpStatusSizeOverflow;
  layouts.torus = {static_cast<int>(width), static_cast<int>(height)};
  int none = 0, bytes = 0;
  if (const QvpStatus failed = dft::FourierGetSizes(kFamily, layouts.torus, kInverseOverCount,
                                                    {&layouts.fourierBytes, &none, &layouts.fourierBufferBytes})) {
    return failed;
  }
  if (const QvpStatus failed = layouts.RecordBytes().StoreTo(&bytes)) return failed;
  return layouts.BufferBytes().StoreTo(&bytes);
}

// The pixel that stands at place i of an axis. Beyond the last one, half of the places continue it, the others lead to
// the first.
int32_t PlaceOf(int64_t i, int64_t side, int64_t torusSide, QvpiBorderType border) {
  const int64_t position = i < side || i - (side - 1) <= torusSide - i ? i : i - torusSide;
  const ptrdiff_t place = BorderPosition(KindOf(border), static_cast<ptrdiff_t>(position), {0, ptrdiff_t(side)});
  return place == kOutside ? kNoPlace : static_cast<int32_t>(place);
}

void WriteAxis(int side, int torusSide, QvpiBorderType border, int32_t* places, float* squares) {
  for (int i = 0; i < torusSide; ++i) {
    places[i] = PlaceOf(i, side, torusSide, border);
    squares[i] = static_cast<float>(2 - 2 * SinCosOfTurn(i, torusSide).cos);
  }
}

// Calls visit(x, y, value) for each pixel of the point-spread image, row by row.
template <class Visit>
void ForEachPixel(const Image<const float>& psf, QvpiSize size, const Visit& visit) {
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) visit(x, y, LoadScalar(psf.Row(y) + x));
  }
}

// The sum; not finite if one pixel is not, as doubles hold the sum of any others.
double SumOf(const Image<const float>& psf, QvpiSize size) {
  double sum = 0;
  bool isFinite = true;
  ForEachPixel(psf, size, [&](int, int, float value) {
    sum += value;
    isFinite = isFinite && std::isfinite(value);
  });
  return isFinite ? sum : std::numeric_limits<double>::infinity();
}

// The spectrum of the point-spread image with its middle at the origin of the torus.
QvpStatus Transfer(const Image<const float>& psf, QvpiSize size, DeconvolveRecord& record, uint8_t* buffer) {
  const QvpiSize torus = record.torus();
  float* const at = record.At<float>(record.transfer);
  std::memset(at, 0, static_cast<size_t>(PlaneBytes(torus).value()));
  const Image<float> plane = Plane(at, torus);
  const auto wrapped = [](int i, int n) { return i < 0 ? i + n : i; };
  ForEachPixel(psf, size, [&](int x, int y, float value) {
    plane.Row(wrapped(y - (size.height - 1) / 2, torus.height))[wrapped(x - (size.width - 1) / 2, torus.width)] = value;
  });
  return dft::FourierTransform(kFamily, dft::Direction::kForward, Plane<const float>(at, torus), plane,
                               record.At<void>(record.fourier), buffer);
}

struct Demand {
  QvpiSize roi, psfSize;
  Image<const float> psf;
  QvpiBorderType border;
};

QvpStatus Check(const Demand& demand, const uint8_t* buffer) {
  if (!Passes(kPointers, demand.psfSize, {demand.psf}, {buffer})) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSizes(demand.roi, demand.psfSize)) return failed;
  if (demand.psf.step < 1) return qvpStatusStep;
  if (!IsBorder(demand.border)) return qvpStatusBorder;
  return std::isfinite(SumOf(demand.psf, demand.psfSize)) ? qvpStatusNoError : qvpStatusBadArgument;
}

QvpStatus FillRecord(const Demand& demand, DeconvolveRecord& record, uint8_t* buffer) {
  Layouts layouts;
  if (const QvpStatus failed = Check(demand, buffer)) return failed;
  if (const QvpStatus failed = LayOut(demand.roi, demand.psfSize, demand.border, layouts)) return failed;
  const auto [width, height] = layouts.torus;
  const auto sum = static_cast<float>(SumOf(demand.psf, demand.psfSize));
  record = {0,
            demand.roi.width,
            demand.roi.height,
            width,
            height,
            sum,
            kRecordBoundary,
            layouts.Transfer().value(),
            layouts.Places().value(),
            layouts.Squares().value()};
  int32_t* const places = record.At<int32_t>(record.places);
  float* const squares = record.At<float>(record.squares);
  WriteAxis(record.width, width, demand.border, places, squares);
  WriteAxis(record.height, height, demand.border, places + width, squares + width);
  const auto ofTorus = [&](dft::FourierDemand& fourier) {
    fourier = {layouts.torus, kInverseOverCount, qvpAlgHintFast};
    return qvpStatusNoError;
  };
  if (const QvpStatus failed = dft::FourierInit(kFamily, record.At<void>(record.fourier), ofTorus)) return failed;
  return Transfer(demand.psf, demand.psfSize, record, buffer);
}

}  // namespace

QvpStatus qvpiDeconvolveGetSize_32f(QvpiSize roiSize, QvpiSize psfSize, QvpiBorderType borderType, int* pSpecSize,
                                    int* pInitBufSize, int* pBufferSize) {
  if (!pSpecSize || !pInitBufSize || !pBufferSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckSizes(roiSize, psfSize)) return failed;
  if (!IsBorder(borderType)) return qvpStatusBorder;
  Layouts layouts;
  const QvpStatus status = LayOut(roiSize, psfSize, borderType, layouts);
  *pSpecSize = status ? 0 : static_cast<int>(layouts.RecordBytes().value());
  *pInitBufSize = status ? 0 : layouts.fourierBufferBytes;
  *pBufferSize = status ? 0 : static_cast<int>(layouts.BufferBytes().value());
  return status;
}

QvpStatus qvpiDeconvolveInit_32f(QvpiSize roiSize, const Qvp32f* pPsf, int psfStep, QvpiSize psfSize,
                                 QvpiBorderType borderType, QvpiDeconvolveSpec_32f* pSpec, Qvp8u* pInitBuf) {
  return InitRecordIn<DeconvolveRecord>(pSpec, [&](DeconvolveRecord& record) {
    return FillRecord({roiSize, psfSize, View(pPsf, psfStep, Layout::kC1), borderType}, record, pInitBuf);
  });
}
