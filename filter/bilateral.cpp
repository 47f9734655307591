// The bilateral filter: means of the pixels of a disc around each pixel, weighted by their distance in space and in
// value.
#include "filter/bilateral_kernel.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

template <class T, int kChannels, class Range>
void FilterBy(const Windows<BitsOf<T>>& windows, const BilateralRecord& record, const Range& range) {
  const Bilateral<Range> bilateral{record, range};
  const auto filter = [&]<bool kKeeps>(std::bool_constant<kKeeps>) {
    using Kernel = BilateralKernel<T, kChannels, Range, kKeeps>;
    WindowKernel kernel{&bilateral, Kernel::Across, Kernel::Down, sizeof(float), 1};
    if (kKeeps) kernel.kept = KeptWeights(record.radius, kChannels);
    kernel.keepsReach = true;
    kernel.cacheBytes = kSecondCacheBytes;
    FilterWindows(windows, kernel);
  };
  if (record.radius <= MostKeptRadius(kChannels)) return filter(std::true_type());
  filter(std::false_type());
}

template <class T, int kChannels>
void FilterPixels(const Windows<BitsOf<T>>& windows, const BilateralRecord& record) {
  constexpr int kColours = kChannels == 1 ? 1 : 3;
  if constexpr (sizeof(T) == 1) {
    if (record.HasTable()) {
      return FilterBy<T, kChannels>(windows, record, RangeByTable<kColours>{record.Table()});
    }
  }
  if (kColours == 1 || record.norm == qvpNormL1) {
    if constexpr (sizeof(T) > 1) {
      FilterBy<T, kChannels>(windows, record, RangeBySum<kColours>{record.falloff});
    }
    return;
  }
  if constexpr (kColours > 1) {
    FilterBy<T, kChannels>(windows, record, RangeBySquares<kColours>{record.falloff});
  }
}

template <class T>
QvpStatus FilterBilateral(const WindowCall<T>& call, const QvpiFilterBilateralBorderSpec* spec) {
  return FilterByRecord<BilateralRecord>(call, spec, [&](const BilateralRecord& r) {
    const auto windows = call.Reaching(r.reach());
    if (r.channels == 1) FilterPixels<T, 1>(windows, r);
    if (r.channels == 3) FilterPixels<T, 3>(windows, r);
    if (r.channels == 4) FilterPixels<T, 4>(windows, r);
  });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define BILATERAL(type, layout) \
  QVP_WINDOW_BY_RECORD(Bilateral, type, type, type, layout, FilterBilateral, QvpiFilterBilateralBorderSpec)
#define BILATERALS(type) BILATERAL(type, C1) BILATERAL(type, C3) BILATERAL(type, AC4)
BILATERALS(8u)
BILATERALS(16u)
BILATERALS(32f)
