// The guided filter of one channel with the three of a guide.
#include "base/export.h"
#include "filter/guided.h"

namespace qvp::filter {
namespace {

template <class T>
using ByColours = GuidedModel<T, 3, 4>;

template <class T>
QvpStatus GuidedColor(const GuidedCall<T>& call) {
  if (const QvpStatus failed = call.Check()) return failed;
  FilterGuided<T, ByColours<T>>(call);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

QvpStatus qvpiFilterGuidedColorBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                   int* pBufferSize) {
  using namespace qvp::filter;
  if (const QvpStatus failed = CheckGuidedQuery(pBufferSize, maskSize, roiSize, dataType, 1)) return failed;
  return StoreGuidedBytes<ByColours>(maskSize, roiSize, dataType, 1, pBufferSize);
}

QVP_GUIDED(GuidedColor, 8u, C1, C3, GuidedColor)
QVP_GUIDED(GuidedColor, 16u, C1, C3, GuidedColor)
QVP_GUIDED(GuidedColor, 32f, C1, C3, GuidedColor)
