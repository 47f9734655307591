// Sizes and records of the iterative least-squares filter.
#include <limits>

#include "filter/least_squares.h"
#include "filter/window_check.h"
#include "qvpi.h"
#include "signal/exp_log.h"
#include "signal/sin_cos.h"

namespace qvp::filter {
namespace {

constexpr double kLargestBeta = 65536;

QvpStatus CheckImage(QvpiSize roi, QvpDataType type, int channels) {
  if (roi.width < 1 || roi.height < 1) return qvpStatusSize;
  if (type == qvp16s || !IsFilteredType(type)) return qvpStatusDataType;
  return channels == 1 || channels == 3 ? qvpStatusNoError : qvpStatusNumChannels;
}

// x^y for 1e-20 <= x and -1 < y <= 0.
double Power(double x, double y) {
  const hn::CappedTag<double, 1> d;
  const auto exponent = hn::Mul(hn::Set(d, y), Ln(hn::Set(d, x)));
  if (hn::GetLane(exponent) <= 0) return hn::GetLane(ExpOfNegative(exponent));
  return 1 / hn::GetLane(ExpOfNegative(hn::Neg(exponent)));
}

// Differences of a reflected row multiply its frequency k by 2 - 2 cos(pi k / n) = 4 sin(pi k / (2 n))^2.
void FillEigenvalues(double beta, LeastSquaresRecord& record) {
  for (int k = 0; k < record.width; ++k) {
    const double sin = SinCosOfTurn(k, 4 * int64_t{record.width}).sin;
    record.Eigenvalues()[k] = beta * (4 * (sin * sin));
  }
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterLeastSquaresGetSize(QvpiSize roiSize, QvpDataType dataType, int numChannels, int* pSpecSize,
                                        int* pBufferSize) {
  if (!pSpecSize || !pBufferSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckImage(roiSize, dataType, numChannels)) return failed;
  const dft::DftPlan plan = LeastSquaresRecord::PlanFor(roiSize.width);
  const ByteCount spec = ByteCount(LeastSquaresRecord::kHeadBytes) + LeastSquaresRecord::TableBytes(roiSize.width) +
                         plan.bytes + kRecordBoundary;
  const LeastSquaresLayout layout(roiSize.width, roiSize.height, plan);
  const QvpStatus ofSpec = spec.StoreTo(pSpecSize), ofBuffer = layout.bytes().StoreTo(pBufferSize);
  return ofSpec ? ofSpec : ofBuffer;
}

QvpStatus qvpiFilterLeastSquaresInit(QvpiSize roiSize, Qvp32f lambda, Qvp32f power, Qvp32f eps, int numIterations,
                                     QvpDataType dataType, int numChannels, QvpiFilterLeastSquaresSpec* pSpec) {
  return InitRecordIn<LeastSquaresRecord>(pSpec, [&](LeastSquaresRecord& record) -> QvpStatus {
    constexpr float kMost = std::numeric_limits<float>::max();
    if (const QvpStatus failed = CheckImage(roiSize, dataType, numChannels)) return failed;
    if (!(lambda >= 0 && lambda <= kMost) || !(power > 0 && power <= 2)) return qvpStatusBadArgument;
    if (!(eps >= 1e-20f && eps <= kMost)) return qvpStatusEps;
    if (numIterations < 1 || numIterations > 100) return qvpStatusBadArgument;
    const double beta = power * Power(eps, power / 2.0 - 1) * lambda / 2;
    if (!(beta <= kLargestBeta)) return qvpStatusBadArgument;
    record = {0,
              dataType,
              numChannels,
              roiSize.width,
              roiSize.height,
              numIterations,
              static_cast<float>(beta),
              static_cast<float>(static_cast<double>(lambda) * power / 2),
              static_cast<float>(power / 2.0 - 1),
              eps};
    FillEigenvalues(record.beta, record);
    dft::WriteDft(LeastSquaresRecord::PlanFor(roiSize.width), record.PlanBytes());
    return qvpStatusNoError;
  });
}
