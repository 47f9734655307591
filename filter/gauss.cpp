// The Gauss filter: symmetric sums across, then down.
#include "filter/gauss_axes.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

void FilterBytes(const GaussRecord& r, const Windows<uint8_t>& windows) {
  const ByteAxes axes(r, windows.src.channels());
  const auto down = [](auto terms) { return ByteKernel<terms>::Down; };
  FilterWindows<uint8_t, int16_t>(windows, {.context = &axes,
                                            .across = GaussAcrossBytes(axes),
                                            .down = ForTerms<kFewTerms>(axes.down.count, down),
                                            .elementBytes = sizeof(int16_t),
                                            .rowsAtOnce = 1});
}

template <class T>
void FilterFloats(const GaussRecord& r, const Windows<typename LineTypes<T, float>::Pixel>& windows) {
  using Lines = LineTypes<T, float>;
  const LaneAxes<float> axes = GaussFloatAxes(r, windows.src.channels());
  FilterWindows<typename Lines::Pixel, typename Lines::Element>(windows, LaneKernel<float, T, float, true>::For(axes));
}

template <class T>
QvpStatus Gauss(const WindowCall<T>& call, const QvpiFilterGaussBorderSpec* spec) {
  return FilterByRecord<GaussRecord>(call, spec, [&](const GaussRecord& r) {
    const auto windows = call.template Reaching<typename LineTypes<T, float>::Pixel>(r.reach());
    if constexpr (sizeof(T) == 1) {
      FilterBytes(r, windows);
    } else {
      FilterFloats<T>(r, windows);
    }
  });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define GAUSS(type, layout) QVP_WINDOW_BY_RECORD(Gauss, type, type, type, layout, Gauss, QvpiFilterGaussBorderSpec)
QVP_EACH_LAYOUT(GAUSS, 8u)
QVP_EACH_LAYOUT(GAUSS, 16u)
QVP_EACH_LAYOUT(GAUSS, 16s)
QVP_EACH_LAYOUT(GAUSS, 32f)
