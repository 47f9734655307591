// The guided filter whose guide has the layout of the source: each channel has its own guide.
#include "filter/guided.h"

#include "base/export.h"

namespace qvp::filter {
namespace {

template <class T>
using ByItself = GuidedModel<T, 1, 1>;
template <class T>
using ByGuide = GuidedModel<T, 1, 2>;

// Nothing but time depends on whether the guide is the source.
template <class T>
QvpStatus Guided(const GuidedCall<T>& call) {
  if (const QvpStatus failed = call.Check()) return failed;
  call.IsItsOwnGuide() ? FilterGuided<T, ByItself<T>>(call) : FilterGuided<T, ByGuide<T>>(call);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

QvpStatus qvpiFilterGuidedBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                              int numChannels, int* pBufferSize) {
  using namespace qvp::filter;
  if (const QvpStatus failed = CheckGuidedQuery(pBufferSize, maskSize, roiSize, dataType, numChannels)) return failed;
  return StoreGuidedBytes<ByGuide>(maskSize, roiSize, dataType, numChannels, pBufferSize);
}

#define GUIDED(type)                       \
  QVP_GUIDED(Guided, type, C1, C1, Guided) \
  QVP_GUIDED(Guided, type, C3, C3, Guided) \
  QVP_GUIDED(Guided, type, C4, C4, Guided) \
  QVP_GUIDED(Guided, type, AC4, AC4, Guided)
GUIDED(8u)
GUIDED(16u)
GUIDED(32f)
